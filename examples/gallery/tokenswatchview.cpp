#include "tokenswatchview.h"

#include <bzfont.h>
#include <bzfontmanager.h>
#include <bztheme.h>
#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <drawutils.h>
#include <kacolortokenutils.h>

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {
constexpr int kMainSwatch = 20;
constexpr int kStateSwatch = 12;
constexpr int kStateGap = 3;
constexpr int kGap = 8;
constexpr int kColumnGap = 24;
// Columns are at least this wide for the name; longer names are elided
// when that buys another column. The tooltip has them whole.
constexpr int kMinNameWidth = 250;

int statesWidth() {
    return BzColorSet::StateCount * kStateSwatch + (BzColorSet::StateCount - 1) * kStateGap;
}

// Everything in a cell but the name.
int fixedWidth() {
    return kMainSwatch + kGap + kGap + statesWidth();
}
} // namespace

TokenSwatchView::TokenSwatchView(QWidget* parent)
    : PaintedItemView(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);

    m_swatches.resize(Karvox::TokenCount);
    for (int i = 0; i < Karvox::TokenCount; ++i)
        m_swatches[i].name = KaColorTokenUtils::tokenToString(Karvox::Token(i));
    measure();
    connect(BzFontManager::instance(), &BzFontManager::textScaleChanged, this, [this] {
        measure();
        updateGeometry();
        update();
    });
    onThemeChanged();
}

void TokenSwatchView::onThemeChanged() {
    const BzTheme& theme = BzThemeManager::instance()->themeFor(BzThemeUtils::getThemeTypeOfWidget(this));
    m_definedCount = 0;
    for (Swatch& swatch : m_swatches) {
        // Looked up directly so that tokens a theme lacks show as missing
        // instead of warning once each.
        const BzColorSet set = theme.colorSet(swatch.name);
        swatch.defined = set.isValid();
        for (int s = 0; s < BzColorSet::StateCount; ++s)
            swatch.colors[s] = swatch.defined ? set.color(BzColorSet::State(s)) : QColor();
        m_definedCount += swatch.defined ? 1 : 0;
    }

    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    m_textColor = BzThemeUtils::getColorSet("label-primary-text", type).normal();
    m_missingTextColor = BzThemeUtils::getColorSet("label-common-disabled-text", type).normal();
    m_outlineColor = BzThemeUtils::getColorSet("separator-primary", type).normal();

    // Translucent colours are shown over a checkerboard of two surface colours.
    QPixmap tile(8, 8);
    tile.fill(BzThemeUtils::getColorSet("panel-primary-background", type).normal());
    {
        QPainter painter(&tile);
        const QColor dark = BzThemeUtils::getColorSet("panel-tertiary-background", type).normal();
        painter.fillRect(0, 0, 4, 4, dark);
        painter.fillRect(4, 4, 4, 4, dark);
    }
    m_checker = QBrush(tile);

    update();
    Q_EMIT colorsResolved();
}

QFont TokenSwatchView::nameFont() const {
    return BzFontManager::instance()->font(FontManagerEnum::Scaled, BzFont::CaptionRegular);
}

void TokenSwatchView::measure() {
    const QFontMetrics metrics(nameFont());
    int widest = 0;
    for (const Swatch& swatch : m_swatches)
        widest = std::max(widest, metrics.horizontalAdvance(swatch.name));
    m_widestName = widest;
}

int TokenSwatchView::rowHeight() const {
    return std::max(kMainSwatch + 6, QFontMetrics(nameFont()).height() + 6);
}

int TokenSwatchView::minimumColumnWidth() const {
    return fixedWidth() + std::min(m_widestName, kMinNameWidth);
}

int TokenSwatchView::columnWidthFor(int width) const {
    const int columns = columnsFor(width);
    const int share = (width - (columns - 1) * kColumnGap) / columns;
    return std::max(minimumColumnWidth(), std::min(share, fixedWidth() + m_widestName));
}

int TokenSwatchView::columnsFor(int width) const {
    return std::max(1, (width + kColumnGap) / (minimumColumnWidth() + kColumnGap));
}

int TokenSwatchView::rowsFor(int columns) const {
    return (int(m_swatches.size()) + columns - 1) / columns;
}

int TokenSwatchView::heightForWidth(int width) const {
    return rowsFor(columnsFor(width)) * rowHeight();
}

QSize TokenSwatchView::sizeHint() const {
    const int width = 2 * (fixedWidth() + m_widestName) + kColumnGap;
    return QSize(width, heightForWidth(width));
}

QSize TokenSwatchView::minimumSizeHint() const {
    return QSize(minimumColumnWidth(), 0);
}

QRect TokenSwatchView::cellRect(int index) const {
    // Column-major, so the sorted names read down each column.
    const int columns = columnsFor(width());
    const int rows = rowsFor(columns);
    const int column = columnWidthFor(width());
    const QRect logical((index / rows) * (column + kColumnGap), (index % rows) * rowHeight(), column,
                        rowHeight());
    return QStyle::visualRect(layoutDirection(), rect(), logical);
}

int TokenSwatchView::itemAt(const QPoint& pos) const {
    const int columns = columnsFor(width());
    const int rows = rowsFor(columns);
    const int row = pos.y() / rowHeight();
    if (pos.y() < 0 || row >= rows)
        return -1;
    for (int column = 0; column < columns; ++column) {
        const int index = column * rows + row;
        if (index < int(m_swatches.size()) && cellRect(index).contains(pos))
            return index;
    }
    return -1;
}

QString TokenSwatchView::itemName(int index) const {
    return index >= 0 && index < tokenCount() ? m_swatches[size_t(index)].name : QString();
}

QString TokenSwatchView::itemDescription(int index) const {
    if (index < 0 || index >= tokenCount())
        return QString();
    const Swatch& swatch = m_swatches[size_t(index)];
    if (!swatch.defined)
        return tr("Not defined by this theme");
    QStringList states;
    for (int s = 0; s < BzColorSet::StateCount; ++s) {
        states << BzColorSet::stateName(BzColorSet::State(s)) + QLatin1String(": ") +
                      BzTheme::formatColor(swatch.colors[size_t(s)]);
    }
    return states.join(QLatin1String("; "));
}

bool TokenSwatchView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int index = itemAt(help->pos());
        if (index < 0) {
            QToolTip::hideText();
            return true;
        }
        const QString text = QStringLiteral("%1 (%2)\n").arg(itemName(index)).arg(index) +
                             itemDescription(index).replace(QLatin1String("; "), QLatin1String("\n"));
        QToolTip::showText(help->globalPos(), text, this, cellRect(index));
        return true;
    }
    if (event->type() == QEvent::LayoutDirectionChange)
        update();
    return PaintedItemView::event(event);
}

void TokenSwatchView::paintSwatch(QPainter* painter, const QRect& box, const QColor& color,
                                  bool defined) const {
    const QRectF rect = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
    if (!defined) {
        painter->setPen(QPen(m_missingTextColor, 1, Qt::DashLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(rect, 3, 3);
        return;
    }
    if (color.alpha() < 255) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(m_checker);
        painter->setBrushOrigin(box.topLeft());
        painter->drawRoundedRect(rect, 3, 3);
    }
    painter->setPen(QPen(m_outlineColor, 1));
    painter->setBrush(color);
    painter->drawRoundedRect(rect, 3, 3);
}

void TokenSwatchView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont font = nameFont();
    const QFontMetrics metrics(font);
    painter.setFont(font);
    const bool rtl = layoutDirection() == Qt::RightToLeft;

    for (int i = 0; i < int(m_swatches.size()); ++i) {
        const QRect cell = cellRect(i);
        if (!cell.intersects(event->rect()))
            continue;
        const Swatch& swatch = m_swatches[i];

        // Laid out left to right inside the cell, then mirrored as a whole.
        const QRect logicalCell(0, 0, cell.width(), cell.height());
        const int midY = cell.height() / 2;
        QRect main(0, midY - kMainSwatch / 2, kMainSwatch, kMainSwatch);
        QRect name(kMainSwatch + kGap, 0, cell.width() - fixedWidth(), cell.height());
        const int statesX = name.right() + 1 + kGap;
        const auto place = [&](const QRect& r) {
            const QRect v = rtl ? QStyle::visualRect(Qt::RightToLeft, logicalCell, r) : r;
            return v.translated(cell.topLeft());
        };

        paintSwatch(&painter, place(main), swatch.colors[BzColorSet::Normal], swatch.defined);
        for (int s = 0; s < BzColorSet::StateCount; ++s) {
            const QRect box(statesX + s * (kStateSwatch + kStateGap), midY - kStateSwatch / 2, kStateSwatch,
                            kStateSwatch);
            paintSwatch(&painter, place(box), swatch.colors[s], swatch.defined);
        }
        painter.setPen(swatch.defined ? m_textColor : m_missingTextColor);
        painter.drawText(place(name), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine,
                         DrawUtils::elidedText(metrics, swatch.name, Qt::ElideMiddle, name.width()));
    }
}
