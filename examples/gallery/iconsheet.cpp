#include "iconsheet.h"

#include <bzfont.h>
#include <bzfontmanager.h>
#include <bzsvgrenderer.h>
#include <bzthemeutils.h>
#include <drawutils.h>

#include <QFileInfo>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QSvgRenderer>
#include <QToolTip>

#include <algorithm>

namespace {
constexpr int kPadding = 12;
constexpr int kIconGap = 8;
constexpr int kGroupGap = 20;
constexpr int kCellGap = 8;
// Cells fit the widest name within these bounds; longer names are elided.
constexpr int kMinCellWidth = 88;
constexpr int kMaxCellWidth = 200;
} // namespace

IconSheet::IconSheet(QWidget* parent)
    : PaintedItemView(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(BzFontManager::instance(), &BzFontManager::textScaleChanged, this, &IconSheet::relayout);
    onThemeChanged();
}

void IconSheet::setImages(const QStringList& paths) {
    m_paths = paths;
    m_names.clear();
    for (const QString& path : paths)
        m_names << QFileInfo(path).completeBaseName();
    relayout();
    itemsChanged();
}

void IconSheet::setTintColorSets(const QStringList& names) {
    m_tintSets = names;
    onThemeChanged();
    relayout();
}

void IconSheet::setImageSizes(const QList<int>& sizes) {
    m_sizes = sizes;
    relayout();
}

void IconSheet::onThemeChanged() {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    m_tints.clear();
    for (const QString& name : std::as_const(m_tintSets))
        m_tints << BzThemeUtils::getColorSet(name, type).normal();
    m_textColor = BzThemeUtils::getColorSet("label-secondary-text", type).normal();
    m_cardColor = BzThemeUtils::getColorSet("panel-secondary-background", type).normal();
    update();
}

void IconSheet::relayout() {
    const QFontMetrics metrics(labelFont());
    m_widestName = 0;
    for (const QString& name : std::as_const(m_names))
        m_widestName = std::max(m_widestName, metrics.horizontalAdvance(name));
    updateGeometry();
    update();
}

QFont IconSheet::labelFont() const {
    return BzFontManager::instance()->font(FontManagerEnum::Scaled, BzFont::CaptionRegular);
}

int IconSheet::maxImageSize() const {
    return m_sizes.isEmpty() ? 0 : *std::max_element(m_sizes.cbegin(), m_sizes.cend());
}

int IconSheet::iconRowWidth() const {
    int group = 0;
    for (int size : m_sizes)
        group += size;
    group += kIconGap * std::max(0, int(m_sizes.size()) - 1);
    const int groups = std::max(1, int(m_tintSets.size()));
    return group * groups + kGroupGap * (groups - 1);
}

QSize IconSheet::cellSize() const {
    const QFontMetrics metrics(labelFont());
    const int width = std::max(iconRowWidth() + 2 * kPadding,
                               std::clamp(m_widestName + kPadding, kMinCellWidth, kMaxCellWidth));
    const int height = kPadding + maxImageSize() + kIconGap + metrics.height() + kPadding;
    return QSize(width, height);
}

int IconSheet::columnsFor(int width) const {
    const int cell = cellSize().width() + kCellGap;
    return std::max(1, (width + kCellGap) / cell);
}

int IconSheet::heightForWidth(int width) const {
    if (m_paths.isEmpty())
        return 0;
    const int columns = columnsFor(width);
    const int rows = (int(m_paths.size()) + columns - 1) / columns;
    return rows * cellSize().height() + (rows - 1) * kCellGap;
}

QSize IconSheet::sizeHint() const {
    const int width = 4 * (cellSize().width() + kCellGap);
    return QSize(width, heightForWidth(width));
}

QSize IconSheet::minimumSizeHint() const {
    return QSize(cellSize().width(), 0);
}

QRect IconSheet::cellRect(int index) const {
    QSize cell = cellSize();
    const int columns = columnsFor(width());
    // Spread the cells over the whole width rather than leaving a gap at the end.
    cell.setWidth(std::max(cell.width(), (width() - (columns - 1) * kCellGap) / columns));
    const QRect logical(
        QPoint((index % columns) * (cell.width() + kCellGap), (index / columns) * (cell.height() + kCellGap)),
        cell);
    return QStyle::visualRect(layoutDirection(), rect(), logical);
}

int IconSheet::itemAt(const QPoint& pos) const {
    for (int i = 0; i < m_paths.size(); ++i) {
        if (cellRect(i).contains(pos))
            return i;
    }
    return -1;
}

QPixmap IconSheet::plainPixmap(const QString& path, int size, qreal devicePixelRatio) const {
    const QString key = path % QLatin1Char('@') % QString::number(size) % QLatin1Char('x') %
                        QString::number(devicePixelRatio);
    auto it = m_plainCache.constFind(key);
    if (it != m_plainCache.cend())
        return *it;
    QPixmap pixmap = DrawUtils::createPixmap(QSizeF(size, size), devicePixelRatio);
    QSvgRenderer renderer(path);
    if (renderer.isValid()) {
        QPainter painter(&pixmap);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(&painter, QRectF(0, 0, size, size));
    }
    m_plainCache.insert(key, pixmap);
    return pixmap;
}

bool IconSheet::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int index = itemAt(help->pos());
        if (index >= 0)
            QToolTip::showText(help->globalPos(), m_names.at(index), this, cellRect(index));
        else
            QToolTip::hideText();
        return true;
    }
    if (event->type() == QEvent::LayoutDirectionChange)
        update();
    return PaintedItemView::event(event);
}

void IconSheet::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont font = labelFont();
    const QFontMetrics metrics(font);
    painter.setFont(font);
    const qreal dpr = devicePixelRatioF();
    const int imageRow = maxImageSize();
    const bool tinted = !m_tintSets.isEmpty();
    const bool rtl = layoutDirection() == Qt::RightToLeft;

    for (int i = 0; i < m_paths.size(); ++i) {
        const QRect cell = cellRect(i);
        if (!cell.intersects(event->rect()))
            continue;
        DrawUtils::drawRoundedRect(&painter, cell, 8, m_cardColor, QColor(), 0);

        // Icons centred in the row; groups run in reading order.
        const QRect row(cell.left(), cell.top() + kPadding, cell.width(), imageRow);
        int x = cell.center().x() - iconRowWidth() / 2;
        const int groups = tinted ? int(m_tints.size()) : 1;
        QList<QRect> boxes;
        QList<int> boxGroups;
        for (int g = 0; g < groups; ++g) {
            for (int size : std::as_const(m_sizes)) {
                boxes << QRect(x, row.top() + (imageRow - size) / 2, size, size);
                boxGroups << g;
                x += size + kIconGap;
            }
            x += kGroupGap - kIconGap;
        }
        for (int b = 0; b < boxes.size(); ++b) {
            QRect box = boxes[b];
            if (rtl)
                box.moveLeft(cell.left() + cell.right() - box.right());
            const QPixmap pixmap =
                tinted ? BzSvgRenderer::cachedPixmap(m_paths[i], box.size(), m_tints[boxGroups[b]], dpr)
                       : plainPixmap(m_paths[i], box.width(), dpr);
            if (!pixmap.isNull())
                painter.drawPixmap(box.topLeft(), pixmap);
        }

        const QRect text(cell.left() + kPadding / 2, row.bottom() + 1 + kIconGap, cell.width() - kPadding,
                         metrics.height());
        painter.setPen(m_textColor);
        painter.drawText(text, Qt::AlignCenter,
                         DrawUtils::elidedText(metrics, m_names[i], Qt::ElideMiddle, text.width()));
    }
}
