#pragma once

#include "karvex_export.h"

#include <bzcolorset.h>
#include <bzcssdata.h>
#include <bzfont.h>
#include <bzfontmanager.h>
#include <bzsvgicon.h>
#include <bzthemeutils.h>

#include <QComboBox>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QString>

#include <array>
#include <vector>

class QTimer;
class BzScaledFont;

// The library's drop-down selector: a QComboBox whose frame, text, arrow and
// popup list take their colours from theme colour sets. Adds keyboard rules
// (Return/Enter and Alt+Up open the list, Space picks in the list, Tab
// leaves it), accessible descriptions and tooltips for rows and for a
// clipped current text, and a popup that can be kept above the combo.
class KARVEX_EXPORT KaComboBoxBase : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(QString styleSheet READ styleSheet WRITE setStyleSheet)
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY themeTypeChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont)
    Q_PROPERTY(BzFont::Token fontToken READ fontToken WRITE setFontToken)
    Q_PROPERTY(FontManagerEnum::FontType fontType READ fontType WRITE setFontType)
    Q_PROPERTY(
        QString svgDropdownIcon READ svgDropdownIcon WRITE setSvgDropdownIcon NOTIFY svgDropdownIconChanged)
    Q_PROPERTY(QString svgDropDownIconExpanded READ svgDropDownIconExpanded WRITE setSvgDropDownIconExpanded
                   NOTIFY svgDropdownIconExpandedChanged)
    Q_PROPERTY(QSize svgDropdownIconSize READ svgDropdownIconSize WRITE setSvgDropdownIconSize NOTIFY
                   svgDropdownIconSizeChanged)
    Q_PROPERTY(int svgDropdownIconPadding READ svgDropdownIconPadding WRITE setSvgDropdownIconPaddingRight
                   NOTIFY svgDropdownIconPaddingChanged)
    Q_PROPERTY(int itemViewBorderRadius READ itemViewBorderRadius WRITE setItemViewBorderRadius)
    Q_PROPERTY(QPoint itemViewDropdownOffset READ itemViewDropdownOffset WRITE setItemViewDropdownOffset)
    Q_PROPERTY(bool openedUpwards READ openedUpwards WRITE setOpenedUpwards)
    Q_PROPERTY(QString selectedBackgroundColor READ selectedBackgroundColor WRITE setSelectedBackgroundColor)
    Q_PROPERTY(QString popupBackgroundColor READ popupBackgroundColor WRITE setPopupBackgroundColor)
    Q_PROPERTY(bool showPopupEnabled READ showPopupEnabled WRITE setShowPopupEnabled)
    Q_PROPERTY(int popupItemIconSize READ popupItemIconSize WRITE setPopupItemIconSize)
    Q_PROPERTY(bool animateComboBox READ comboBoxAnimationEnabled WRITE setComboBoxAnimationEnabled)

public:
    explicit KaComboBoxBase(QWidget* parent = nullptr);
    ~KaComboBoxBase() override;

    void setCSS(const QString& css);
    void setCSS(const BzCSSData& record);
    QString getCSS() const { return m_css; }
    BzCSSData getWCSS() const { return m_cssData; }

    // Only the first text becomes the stored CSS; later calls set a plain
    // Qt style sheet and leave it alone.
    void setStyleSheet(const QString& styleSheet);

    QString themeType() const { return m_themeType; }
    void setThemeType(const QString& themeType);

    BzFont::Token fontToken() const { return m_fontToken; }
    void setFontToken(BzFont::Token token, bool scaled = false);
    FontManagerEnum::FontType fontType() const { return m_fontType; }
    void setFontType(FontManagerEnum::FontType type);

    QString svgDropdownIcon() const { return m_arrowIcon.path(); }
    void setSvgDropdownIcon(const QString& path);
    QString svgDropDownIconExpanded() const { return m_arrowIconExpanded.path(); }
    void setSvgDropDownIconExpanded(const QString& path);
    QSize svgDropdownIconSize() const { return m_arrowIcon.size(); }
    void setSvgDropdownIconSize(const QSize& size);
    int svgDropdownIconPadding() const { return m_iconPadding; }
    // The padding on both sides of the arrow.
    void setSvgDropdownIconPaddingRight(int padding);

    int itemViewBorderRadius() const { return m_itemViewBorderRadius; }
    void setItemViewBorderRadius(int radius);
    QPoint itemViewDropdownOffset() const { return m_dropdownOffset; }
    void setItemViewDropdownOffset(const QPoint& offset);
    int leftPadding() const { return m_leftPadding; }
    void setLeftPadding(double padding);
    void setEditable(bool editable);

    QString popupBackgroundColor() const { return m_popupBackgroundColor; }
    void setPopupBackgroundColor(const QString& colorSetName);
    QString selectedBackgroundColor() const { return m_selectedBackgroundColor; }
    void setSelectedBackgroundColor(const QString& colorSetName);
    // Keeps the popup above the combo wherever Qt would place it.
    bool openedUpwards() const { return m_openedUpwards; }
    void setOpenedUpwards(bool upwards);
    // Off: the combo is a click target only (contentAreaClicked), no list.
    bool showPopupEnabled() const { return m_showPopupEnabled; }
    void setShowPopupEnabled(bool enabled);
    bool comboBoxAnimationEnabled() const { return m_animateComboBox; }
    void setComboBoxAnimationEnabled(bool enabled);
    int popupItemIconSize() const { return m_popupItemIconSize; }
    void setPopupItemIconSize(int size);

    void setPopupAccessibleName(const QString& name);
    void setPopupAccessibleDescription(const QString& description);

    bool isExpanded() const { return m_expanded; }
    int highlightedIndex() const { return m_highlightedIndex; }

    // Gives both arrows the text colour set and re-applies the style sheet.
    void updateStyle();

    void showPopup() override;
    void hidePopup() override;
    QSize sizeHint() const override;

    // Wraps `text` to lines no wider than `width` in `metrics`. A break
    // inside a word drops the character at the break.
    static QString wrapText(const QString& text, int width, const QFontMetrics& metrics);

public Q_SLOTS:
    void refreshCSS();
    virtual void onThemeChanged();
    void onParentThemeTypeChanged();

Q_SIGNALS:
    void cssChanged();
    void themeTypeChanged();
    void svgDropdownBorderRadiusChanged(int radius);
    void svgDropdownBorderWidthChanged(int borderWidth);
    void svgDropdownIconChanged(QString path);
    void svgDropdownIconExpandedChanged(QString path);
    void svgDropdownIconSizeChanged(QSize size);
    void svgDropdownIconPaddingChanged(int padding);
    void contentAreaClicked(QMouseEvent* event);
    void dropDownCollapsed();

protected:
    // Builds the combo's and its list's style sheets from the current
    // colour sets and geometry.
    virtual void applyCustomCSS();

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    void drawDropdownIcon(QPainter* painter, const QStyleOptionComboBox& option);
    int dropDownWidth() const;
    void updateFont();
    // The switches a record carries through; a style keeps some on.
    void setCssSwitch(int index, bool on);

    // Colour sets resolved for the widget's theme.
    BzColorSet m_backgroundColorSet;
    BzColorSet m_borderColorSet;
    BzColorSet m_textColorSet;

private:
    bool filterViewEvent(QEvent* event);
    bool filterOwnEvent(QEvent* event);
    void installViewFilters();
    void applyViewSheet();
    void onHighlighted(int index);
    void onCurrentTextChanged(const QString& text);
    void showComboToolTip();
    void resetRowTexts();
    void updateVisibleRowTexts();
    void updateRowTexts(int row);
    void connectParentThemeType();
    void onModelRowsChanged();
    void onModelDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    QString buildFrameSheet(const BzCSSData& record) const;
    BzThemeUtils::AppThemeType themeTypeValue() const;

    std::array<bool, BzCSSData::SwitchCount> m_cssSwitches{{true, true, true, true, true, true}};
    BzColorSet m_arrowColorSet;
    QString m_css;
    BzCSSData m_cssData;
    QString m_themeType = QStringLiteral("global");
    BzFont::Token m_fontToken = BzFont::Body;
    FontManagerEnum::FontType m_fontType = FontManagerEnum::None;
    QPointer<BzScaledFont> m_scaledFont;
    QMetaObject::Connection m_scaledFontConnection;
    bool m_expanded = false;
    bool m_animateComboBox = true;
    bool m_openedUpwards = false;
    bool m_showPopupEnabled = true;
    int m_iconPadding = 5;
    BzSvgIcon m_arrowIcon;
    BzSvgIcon m_arrowIconExpanded;
    BzColorSet m_arrowIconColors;
    BzColorSet m_arrowIconExpandedColors;
    int m_highlightedIndex = 0;
    int m_itemViewBorderRadius = 0;
    int m_popupItemIconSize = 0;
    int m_leftPadding = 12;
    QPoint m_dropdownOffset{0, 4};
    QString m_selectedBackgroundColor;
    QString m_popupBackgroundColor;

    // The list's style sheet, waiting for the list to open.
    QString m_pendingViewSheet;
    QTimer* m_focusToolTipTimer = nullptr;
    QPointer<QAbstractItemView> m_filteredView;
    QPointer<QObject> m_parentThemeSource;
    QMetaObject::Connection m_parentThemeConnection;
    // Rows whose tooltip and description were written since the popup
    // opened; they are written as rows come into view or are asked for.
    std::vector<bool> m_rowTextsDone;
    struct RowTextsKey {
        QPointer<QAbstractItemModel> model;
        QPersistentModelIndex root;
        int column = -1;
        int current = -1;
        int rows = -1;
        int width = -1;
        QFont font;
        int iconSize = -1;
        int dropDown = -1;
        bool operator==(const RowTextsKey& o) const {
            return model == o.model && root == o.root && column == o.column && current == o.current &&
                   rows == o.rows && width == o.width && font == o.font && iconSize == o.iconSize &&
                   dropDown == o.dropDown;
        }
    };
    RowTextsKey m_rowTextsKey;
    bool m_writingRowTexts = false;
    bool m_applyingCustomCSS = false;
    // Everything the built style sheets depend on, when they were last built.
    QString m_appliedKey;
};
