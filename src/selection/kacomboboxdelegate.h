#pragma once

#include "karvex_export.h"

#include <bzcolorset.h>
#include <bzfont.h>
#include <bzthemeutils.h>

#include <QCache>
#include <QPixmap>
#include <QPointer>
#include <QSize>
#include <QStyledItemDelegate>

class QComboBox;
class BzSvgRenderer;

// Paints the rows of a combo box's popup: a rounded, state-coloured
// background inset into the row, the text elided to the room left, and a
// check mark at the trailing edge of the combo box's current row.
class KARVEX_EXPORT KaComboBoxDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    // The combo box whose current row gets the mark is `parent`, when it is one.
    explicit KaComboBoxDelegate(QObject* parent = nullptr);

    void setDrawIcon(bool drawIcon);
    void setFont(const BzFont& font);
    void setIconResource(const QString& resource);
    void setItemIconSize(const QSize& size);
    void setItemRadius(int radius);
    void setThemeType(BzThemeUtils::AppThemeType type);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    // Whether the row carries the check mark: the combo box's current row.
    virtual bool isSelected(const QModelIndex& index) const;

private:
    void resolveColours() const;
    QPixmap rowBackground(const QSize& size, const QColor& colour, qreal ratio) const;

    QString m_textColorSetName;
    QString m_backgroundColorSetName;
    BzThemeUtils::AppThemeType m_themeType = BzThemeUtils::Global;
    int m_itemRadius = 8;
    bool m_drawIcon = false;
    QString m_iconResource;
    QSize m_itemIconSize{18, 18};
    BzFont m_font{BzFont::Body, false};
    BzSvgRenderer* m_checkIcon = nullptr;
    QPointer<QComboBox> m_comboBox;
    // The last view marked for the focus ring's custom rectangle.
    mutable QPointer<QWidget> m_customRectWidget;

    // Resolved for the theme type and theme generation they were read for.
    mutable BzColorSet m_textColors;
    mutable BzColorSet m_backgroundColors;
    mutable BzColorSet m_iconColors;
    mutable quint64 m_resolvedGeneration = 0;
    mutable int m_resolvedType = -1;
    // Size hints of plain text rows by text and font.
    mutable QCache<QString, QSize> m_sizeHints{4096};
};
