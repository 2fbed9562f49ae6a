#pragma once

#include "kacontrolhandle.h"
#include "kamenubase.h"
#include "kamenuenum.h"
#include "kamenupositionconfig.h"
#include "kapopupenum.h"

#include <QColor>
#include <QList>
#include <QPixmap>
#include <QPointer>

class KaButton;
class KaMenuAction;
class KaMenuStyle;
class KaPopover;
class QQuickItem;
class QWidgetAction;
struct KaCustomizedSeparatorItemData;
struct KaDiscoverabilityBannerData;
struct KaMenuItemData;

// The design-system menu: a translucent window painted as a popup bubble,
// optionally with an arrow at its anchor (a widget, a QML item, a button or
// a point). Entries are KaMenuItem widgets, section headers, separators and
// tip banners. The menu flips to the other side of its anchor when it would
// leave the screen, numbers its entries per section for screen readers and
// shows a popover beside entries that carry one.
class KARVEX_EXPORT KaMenu : public KaMenuBase {
    Q_OBJECT
    Q_PROPERTY(KaMenuEnum::Style style READ menuStyle WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaMenuEnum::Size size READ menuSize WRITE setSize NOTIFY sizeChanged)

public:
    // Space between the window's edges and the entries before the arrow's
    // room is added.
    static constexpr int Margin = 10;

    explicit KaMenu(QWidget* parent = nullptr);
    ~KaMenu() override;

    // Building. Each entry gets its accessible position text at once.
    KaMenuAction* addMenuItem(const KaMenuItemData& data);
    // An entry named "MenuItemWithPopup" showing data.popupText beside it
    // while it is hovered or focused.
    KaMenuAction* addMenuItemWithPopup(const KaMenuItemData& data);
    // An entry opening `menu`, which follows this menu's style and size.
    KaMenuAction* addMenu(const KaMenuItemData& data, KaMenu* menu);
    KaMenuAction* addMenuItemInMenu(const KaMenuItemData& data, KaMenu* menu);
    QAction* addMenu(const QString& title, KaMenu* menu);
    // `widget` as an entry opening `menu`.
    QWidgetAction* addMenu(QWidget* widget, KaMenu* menu, bool enabled = true);
    // Any widget as an entry; the menu reports hovering over it.
    QWidgetAction* addCustomMenuItem(QWidget* widget, bool enabled = true, bool firstAction = false);
    // An entry whose context-menu request opens `menu` there; closing that
    // menu closes this one.
    KaMenuAction* addContextMenu(const KaMenuItemData& data, KaMenuBase* menu);
    // A tip banner followed by a group separator; dismissing the banner
    // hides both.
    QWidgetAction* addDiscoverabilityBanner(const KaDiscoverabilityBannerData& data);
    using KaMenuBase::addSeparator;
    QAction* addGroupSeparator();
    // A section header: entries after it are counted from 1 again.
    QWidgetAction* addSeparator(const QString& text);
    QWidgetAction* addSeparator(const KaCustomizedSeparatorItemData& data);

    // Pop-up. A widget, item or button anchor places the menu on
    // `alignment`'s side of it (flipped when it would leave the screen).
    void popupAt(const QPoint& globalPoint);
    void popupAt(const KaMenuPositionConfig& config);
    void popupAt(QWidget* widget, KaPopupEnum::Alignment alignment, bool showArrow = false);
    void popupAt(QQuickItem* item, KaPopupEnum::Alignment alignment, bool showArrow = false);
    // Remembers the anchor and attaches the menu to `button`, which opens it
    // (through popup()) when pressed.
    void popupWith(KaButton* button, KaPopupEnum::Alignment alignment, bool showArrow = false);
    // Opens again against the stored anchor (or at the last point).
    void popup();

    using QWidget::setStyle;
    void setStyle(KaMenuEnum::Style style);
    KaMenuEnum::Style menuStyle() const { return m_style; }
    void setSize(KaMenuEnum::Size size);
    KaMenuEnum::Size menuSize() const { return m_size; }
    // Corner radius of the bubble's entries and of the focus ring.
    int radius() const;

    void enableSeparatorSecondary(bool enable);
    bool isSeparatorSecondary() const { return m_separatorSecondary; }
    // The arrow's position along its edge in percent; 100 and more ignored.
    void setPopOffset(unsigned offset);
    unsigned popOffset() const { return m_popOffset; }
    void setFocusAction(KaMenuAction* action);
    QAction* focusAction() const;
    // Tab moves focus between the entry widgets instead of being kept.
    void setIsFocusCustomizedWidget(bool customized);
    void setFirstAction(QAction* action);
    void setCoverImage(const QPixmap& cover);
    QPixmap coverImage() const { return m_cover; }

    // The side in use (may differ from the requested one while open).
    KaPopupEnum::Alignment getAlignment() const { return m_alignment; }
    KaPopupEnum::Alignment requestedAlignment() const { return m_requestedAlignment; }
    bool showArrow() const { return m_showArrow; }
    // Whether a pop-up call gave the menu an anchor to open against.
    bool hasAnchor() const { return m_handle.kind() != KaControlHandle::Empty; }
    // The popover shown beside a hovered entry; null when none is open.
    KaPopover* entryPopover() const;
    // Re-reports the active entry as hovered.
    void updateCurrentActionState();

    // Colours the style paints with, resolved per theme.
    struct Colors {
        QColor hovered;
        QColor disabled;
        QColor separator;
        QColor header;
        QColor text;
        QColor focusOuter;
        QColor focusInner;
    };
    const Colors& colors() const { return m_colors; }

public Q_SLOTS:
    void refresh();
    void resetAlignment();
    void onThemeChanged() override;

Q_SIGNALS:
    void styleChanged(KaMenuEnum::Style style);
    void sizeChanged(KaMenuEnum::Size size);
    void cancelled();

protected:
    void applyResolvedStyleSheet(const QString& sheet) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    KaMenuAction* addEntry(const KaMenuItemData& data);
    void attachSubMenu(KaMenuAction* action, KaMenu* menu);
    void applyAlignment(KaPopupEnum::Alignment alignment);
    void updateMenuPos();
    void updateAccessibleName();
    void scheduleAccessibleUpdate();
    void showEntryPopover(QWidget* entry);
    void hideEntryPopover(QWidget* entry);
    void markHovered(QAction* action);

    KaPopupEnum::Alignment m_alignment = KaPopupEnum::Top;
    KaPopupEnum::Alignment m_requestedAlignment = KaPopupEnum::Top;
    KaMenuEnum::Style m_style = KaMenuEnum::Normal;
    KaMenuEnum::Size m_size = KaMenuEnum::Medium;
    KaControlHandle m_handle;
    QPointer<KaPopover> m_popover;
    QPointer<QWidget> m_popoverOwner;
    QPointer<KaMenuAction> m_focusAction;
    QPointer<QAction> m_hoveredAction;
    QList<QMetaObject::Connection> m_subMenuConnections;
    QPoint m_lastMousePos;
    bool m_showArrow = false;
    bool m_separatorSecondary = false;
    bool m_focusCustomizedWidget = false;
    bool m_accessibleUpdatePending = false;
    unsigned m_popOffset = 50;
    unsigned m_requestedPopOffset = 50;
    QList<int> m_sectionHeaders;
    Colors m_colors;
    QPixmap m_cover;
    QString m_resolvedSheet;
    KaMenuStyle* m_menuStyle = nullptr;
    QAction* m_spareAction = nullptr;
};
