#pragma once

#include "painteditemview.h"

#include <kapopupenum.h>
#include <kapopuputils.h>

#include <QColor>
#include <QPixmap>
#include <QString>

#include <vector>

// Still pictures of popover bubbles next to an anchor chip: every side with
// and without arrow, one with a cover image and one in reversed colours.
// Real popovers are windows of their own and never show up in a grab of
// the gallery, so screenshots rely on this. Screen readers get the
// captions as a list.
class PopupPreview : public PaintedItemView {
    Q_OBJECT
public:
    explicit PopupPreview(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    int itemCount() const override { return int(m_cells.size()); }
    QString itemName(int index) const override;
    QRect itemRect(int index) const override { return cellRect(index); }
    int itemAt(const QPoint& pos) const override;

    // Re-sets the captions; called from the page's retranslateUi().
    void retranslateUi();

public Q_SLOTS:
    // Queued by the theme refresh: resolves every colour the preview paints.
    void onThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Cell {
        KaPopupEnum::Alignment side;
        bool arrow;
        bool cover;
        bool reversed;
        QString text;
    };

    QRect cellRect(int index) const;
    void paintCell(QPainter* painter, const Cell& cell, const QRect& box) const;

    std::vector<Cell> m_cells;
    KaPopupUtils::PopupColors m_colors;
    KaPopupUtils::PopupColors m_reversedColors;
    QColor m_text;
    QColor m_reversedText;
    QColor m_chip;
    QColor m_chipText;
    QPixmap m_cover;
    QString m_anchorText;
};
