#include "popuppreview.h"

#include <bzfont.h>
#include <bzthemeutils.h>
#include <drawutils.h>

#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr int kColumns = 4;
constexpr int kCellWidth = 204;
constexpr int kCellHeight = 106;
constexpr QSize kChip(56, 24);
constexpr int kTextPadding = 8;

QSize bodySize(KaPopupEnum::Alignment side, bool cover) {
    if (cover)
        return QSize(140, 62);
    const bool beside = side == KaPopupEnum::Left || side == KaPopupEnum::Right;
    return beside ? QSize(112, 52) : QSize(140, 48);
}

} // namespace

PopupPreview::PopupPreview(QWidget* parent)
    : PaintedItemView(parent) {
    using A = KaPopupEnum::Alignment;
    for (bool arrow : {true, false}) {
        for (A side : {KaPopupEnum::Top, KaPopupEnum::Bottom, KaPopupEnum::Left, KaPopupEnum::Right})
            m_cells.push_back({side, arrow, false, false, QString()});
    }
    m_cells.push_back({KaPopupEnum::Bottom, true, true, false, QString()});
    m_cells.push_back({KaPopupEnum::Top, true, false, true, QString()});
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    retranslateUi();
    onThemeChanged();
}

QSize PopupPreview::sizeHint() const {
    const int rows = (int(m_cells.size()) + kColumns - 1) / kColumns;
    return QSize(kColumns * kCellWidth, rows * kCellHeight);
}

QSize PopupPreview::minimumSizeHint() const {
    return sizeHint();
}

void PopupPreview::retranslateUi() {
    m_anchorText = tr("Anchor");
    const char* sides[] = {QT_TR_NOOP("Above"), QT_TR_NOOP("Below"), QT_TR_NOOP("Left"), QT_TR_NOOP("Right")};
    for (size_t i = 0; i < 8; ++i) {
        const QString side = tr(sides[i % 4]);
        m_cells[i].text = i < 4 ? tr("%1, with arrow").arg(side) : tr("%1, no arrow").arg(side);
    }
    m_cells[8].text = tr("With a cover image");
    m_cells[9].text = tr("Reversed colours");
    update();
}

void PopupPreview::onThemeChanged() {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    const BzThemeUtils::AppThemeType reversed =
        type == BzThemeUtils::Global ? BzThemeUtils::Alternate : BzThemeUtils::Global;
    m_colors = KaPopupUtils::popupColors(type);
    m_reversedColors = KaPopupUtils::popupColors(reversed);
    m_text = BzThemeUtils::getColorSet("label-primary-text", type).normal();
    m_reversedText = BzThemeUtils::getColorSet("label-primary-text", reversed).normal();
    m_chip = BzThemeUtils::getColorSet("button-primary-background", type).normal();
    m_chipText = BzThemeUtils::getColorSet("button-primary-text", type).normal();

    // A stand-in illustration: a diagonal blend of two accent colours.
    const qreal dpr = devicePixelRatioF();
    m_cover = DrawUtils::createPixmap(QSizeF(240, 48), dpr);
    {
        QPainter painter(&m_cover);
        QLinearGradient gradient(0, 0, 240, 48);
        gradient.setColorAt(0, BzThemeUtils::getColorSet("coachmarkteaching-background", type).normal());
        gradient.setColorAt(1, m_chip);
        painter.fillRect(QRectF(0, 0, 240, 48), gradient);
    }
    update();
}

QRect PopupPreview::cellRect(int index) const {
    const int left = (width() - kColumns * kCellWidth) / 2;
    return QRect(std::max(0, left) + (index % kColumns) * kCellWidth, (index / kColumns) * kCellHeight,
                 kCellWidth, kCellHeight);
}

QString PopupPreview::itemName(int index) const {
    return index >= 0 && index < itemCount() ? m_cells[size_t(index)].text : QString();
}

int PopupPreview::itemAt(const QPoint& pos) const {
    for (int i = 0; i < itemCount(); ++i) {
        if (cellRect(i).contains(pos))
            return i;
    }
    return -1;
}

void PopupPreview::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (size_t i = 0; i < m_cells.size(); ++i)
        paintCell(&painter, m_cells[i], cellRect(int(i)));
}

void PopupPreview::paintCell(QPainter* painter, const Cell& cell, const QRect& box) const {
    using namespace KaPopupUtils;
    const QSize body = bodySize(cell.side, cell.cover);
    const QMargins band = bodyMargins(cell.side, cell.arrow);
    const QSize window(body.width() + band.left() + band.right(), body.height() + band.top() + band.bottom());

    // Lay anchor and window out the way calculateShowPoint() does: the tip
    // (or the body's edge) AnchorGap away from the anchor, centred on it.
    const bool beside = cell.side == KaPopupEnum::Left || cell.side == KaPopupEnum::Right;
    const int reach = AnchorGap + (beside ? window.width() : window.height()) - ShadowMargin;
    const int extent = (beside ? kChip.width() : kChip.height()) + reach;
    QRect chip(QPoint(0, 0), kChip);
    QPoint origin;
    if (beside) {
        const int left = box.left() + (box.width() - extent) / 2;
        chip.moveTop(box.center().y() - kChip.height() / 2);
        if (cell.side == KaPopupEnum::Right) {
            chip.moveLeft(left);
            origin.setX(chip.right() + 1 + AnchorGap - ShadowMargin);
        } else {
            chip.moveRight(left + extent - 1);
            origin.setX(chip.left() - AnchorGap - (window.width() - ShadowMargin));
        }
        origin.setY(chip.center().y() - window.height() / 2);
    } else {
        const int top = box.top() + (box.height() - extent) / 2;
        chip.moveLeft(box.center().x() - kChip.width() / 2);
        if (cell.side == KaPopupEnum::Bottom) {
            chip.moveTop(top);
            origin.setY(chip.bottom() + 1 + AnchorGap - ShadowMargin);
        } else {
            chip.moveBottom(top + extent - 1);
            origin.setY(chip.top() - AnchorGap - (window.height() - ShadowMargin));
        }
        origin.setX(chip.center().x() - window.width() / 2);
    }

    DrawUtils::drawRoundedRect(painter, chip, kChip.height() / 2.0, m_chip, QColor(), 0);
    painter->setPen(m_chipText);
    painter->setFont(BzFont(BzFont::Caption, true));
    painter->drawText(chip, Qt::AlignCenter, m_anchorText);

    Bubble bubble;
    bubble.size = window;
    bubble.alignment = cell.side;
    bubble.arrow = cell.arrow;
    bubble.colors = cell.reversed ? m_reversedColors : m_colors;
    if (cell.cover)
        bubble.cover = m_cover;
    painter->save();
    painter->translate(origin);
    paintBubble(painter, bubble);
    QRect textArea = bodyRect(window, cell.side, cell.arrow);
    if (cell.cover)
        textArea.setTop(textArea.top() + coverHeight(m_cover, textArea.width()));
    painter->setPen(cell.reversed ? m_reversedText : m_text);
    painter->setFont(BzFont(BzFont::BodySmall, true));
    painter->drawText(textArea.adjusted(kTextPadding, 0, -kTextPadding, 0),
                      Qt::AlignCenter | Qt::TextWordWrap, cell.text);
    painter->restore();
}
