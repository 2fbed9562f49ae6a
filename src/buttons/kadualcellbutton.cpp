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
    connect(this, &IKaButton::refreshConfig, this, &KaDualCellButton::refresh);
    Q_EMIT refreshConfig();
}

KaDualCellButton::~KaDualCellButton() = default;

void KaDualCellButton::refresh() {
    if (!m_cellConfig)
        return;
    IKaDualCellConfig::Geometry g;
    m_cellConfig->fillGeometry(g);

    // The base button paints text and icons only; the face is ours.
    Config::Colors textOnly = g.colors;
    textOnly.paintBackground = false;
    textOnly.hasBorder.fill(false);
    applyColors(textOnly, QString());

    const QString faceName = g.colors.paintBackground ? g.colors.backgroundColorSet : QString();
    const bool setsChanged = faceName != m_faceName || g.colors.borderColorSet != m_borderName ||
                             g.separatorColorSet != m_separatorName || g.colors.hasBorder != m_borders;
    m_faceName = faceName;
    m_borderName = g.colors.borderColorSet;
    m_separatorName = g.separatorColorSet;
    m_borders = g.colors.hasBorder;
    m_fixedColors = g.colors.fixedColors;
    m_vertical = g.vertical;
    if (setsChanged)
        resolveFaceSets();

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
    }
    update();
}

void KaDualCellButton::themeResolved() {
    IKaButton::themeResolved();
    resolveFaceSets();
}

void KaDualCellButton::resolveFaceSets() {
    m_face = resolveColorSet(m_faceName);
    const bool anyBorder = m_borders[0] || m_borders[1] || m_borders[2] || m_borders[3];
    m_border = anyBorder ? resolveColorSet(m_borderName) : BzColorSet();
    m_separator = resolveColorSet(m_separatorName);
}

void KaDualCellButton::paintEvent(QPaintEvent* event) {
    using Record = KaButtonConfigRecord;
    const QStyle::State state = paintState();
    const QStyle::State colourState = m_fixedColors ? (state & QStyle::State_Enabled) : state;
    {
        QPainter painter(this);
        painter.setClipRect(rect());
        const bool mirrored = !m_vertical && layoutDirection() == Qt::RightToLeft;
        const bool top = m_borders[Record::BorderTop];
        const bool bottom = m_borders[Record::BorderBottom];
        const bool left = m_borders[mirrored ? Record::BorderRight : Record::BorderLeft];
        const bool right = m_borders[mirrored ? Record::BorderLeft : Record::BorderRight];

        // A side without a border is pushed outside the widget, where the
        // clip hides its line: the cells then meet without a double edge.
        QRectF frame = rect();
        if (m_border.isValid()) {
            frame.adjust(left ? 0 : -kBorderWidth, top ? 0 : -kBorderWidth, right ? 0 : kBorderWidth,
                         bottom ? 0 : kBorderWidth);
        }
        const qreal radius = qMin(width(), height()) / 2.0;
        const QColor fill = m_face.isValid() ? m_face.colorFor(colourState) : QColor();
        const QColor line = m_border.isValid() ? m_border.colorFor(colourState) : QColor();
        DrawUtils::drawRoundedRect(&painter, frame, radius, fill, line, kBorderWidth,
                                   DrawUtils::Corners(m_squareCorners));

        if (m_separator.isValid()) {
            // Spans the content box and does not react to hover or press.
            const QColor colour = m_separator.colorFor(state & QStyle::State_Enabled);
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
    }
    IKaButton::paintEvent(event);
}
