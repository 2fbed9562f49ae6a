#include "kadualcellbutton.h"

#include "drawutils.h"

#include <QPainter>

namespace {
const char kCornerMaskProperty[] = "rectangularCornerMask";
constexpr qreal kBorderWidth = 1;
} // namespace

KaDualCellButton::KaDualCellButton(IKaDualCellConfig* config, QWidget* parent)
    : IKaButton(parent, config)
    , m_cellConfig(config) {
    connectRefreshSlot();
    Q_EMIT refreshConfig();
}

KaDualCellButton::~KaDualCellButton() = default;

void KaDualCellButton::refresh() {
    if (!m_cellConfig)
        return;
    IKaDualCellConfig::Geometry g;
    m_cellConfig->fillGeometry(g);

    // Face and border go through the base button's frame path like every
    // other button's; the cell adds its square corners and separator.
    applyColors(g.colors, QString());
    m_vertical = g.vertical;
    if (g.separatorColorSet != m_separatorName) {
        m_separatorName = g.separatorColorSet;
        m_separator = resolveColorSet(m_separatorName);
    }

    IKaButton::refresh(g);
    if (g.fixedWidth > 0) {
        setFixedWidth(g.fixedWidth);
    } else {
        setMinimumWidth(g.minimumWidth);
        setMaximumWidth(QWIDGETSIZE_MAX);
    }
    setTextLeftPadding(g.paddingLeft);
    setTextRightPadding(g.paddingRight);
    setTextHorAlign(g.textAlignment);

    // An arrow cell shows the arrow as its only icon, whatever icon the
    // cell was given while it was a plain icon cell.
    const bool arrowCell = m_cellConfig->isArrowCell();
    setSvgIcon(arrowCell ? g.arrowIcon : m_cellConfig->svgIcon());
    setSvgIconChecked(arrowCell ? QString() : m_cellConfig->svgIconChecked());
    const bool arrowAnchor = !arrowCell && g.anchorIconVisible && m_cellConfig->anchorSvgOff().isEmpty();
    setAnchorSvgOff(arrowAnchor ? g.arrowIcon : m_cellConfig->anchorSvgOff());
    setAnchorSvgOn(arrowAnchor ? g.arrowIcon : m_cellConfig->anchorSvgOn());
    setSvgIconVisible(g.svgIconVisible);
    setSvgIconSize(g.svgIconSize);
    setSvgIconSpacing(g.svgIconSpacing);
    setAnchorIconVisible(g.anchorIconVisible);
    setAnchorIconSize(g.anchorIconSize);
    setAnchorIconSpacing(g.anchorIconSpacing);

    // Square corners in screen terms: the shared edge's two corners.
    const bool mirrored = !m_vertical && layoutDirection() == Qt::RightToLeft;
    int startCorners = m_vertical ? (DrawUtils::TopLeft | DrawUtils::TopRight)
                                  : (DrawUtils::TopLeft | DrawUtils::BottomLeft);
    int endCorners = m_vertical ? (DrawUtils::BottomLeft | DrawUtils::BottomRight)
                                : (DrawUtils::TopRight | DrawUtils::BottomRight);
    if (mirrored)
        std::swap(startCorners, endCorners);
    int square = 0;
    if (!g.roundStart)
        square |= startCorners;
    if (!g.roundEnd)
        square |= endCorners;
    if (square != m_squareCorners || !property(kCornerMaskProperty).isValid()) {
        m_squareCorners = square;
        setProperty(kCornerMaskProperty, square);
        setSquareCorners(square);
    }
}

void KaDualCellButton::themeResolved() {
    IKaButton::themeResolved();
    m_separator = resolveColorSet(m_separatorName);
}

void KaDualCellButton::paintEvent(QPaintEvent* event) {
    IKaButton::paintEvent(event);
    if (!m_separator.isValid())
        return;
    // Spans the content box and does not react to hover or press.
    QPainter painter(this);
    const QColor colour = m_separator.colorFor(paintState() & QStyle::State_Enabled);
    const bool mirrored = !m_vertical && layoutDirection() == Qt::RightToLeft;
    const int cross = m_vertical ? width() : height();
    const int inset = qMax(0, (cross - innerMetric()) / 2);
    QRectF bar;
    if (m_vertical)
        bar = QRectF(inset, height() - kBorderWidth, width() - 2 * inset, kBorderWidth);
    else if (mirrored)
        bar = QRectF(0, inset, kBorderWidth, height() - 2 * inset);
    else
        bar = QRectF(width() - kBorderWidth, inset, kBorderWidth, height() - 2 * inset);
    painter.fillRect(bar, colour);
}
