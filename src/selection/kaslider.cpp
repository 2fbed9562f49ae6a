#include "kaslider.h"

#include "kacolortokenutils.h"
#include "kafocusstyle.h"

#include <bzcolorset.h>
#include <bzthemeutils.h>
#include <drawutils.h>

#include <QEvent>
#include <QPainter>
#include <QStyleOptionSlider>

namespace {

constexpr int kTrack = 4;
constexpr int kHandle = 16;
constexpr int kTick = 4;

BzColorSet set(Karvox::Token token, BzThemeUtils::AppThemeType type) {
    return BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(token), type);
}

} // namespace

struct KaSlider::Colours {
    BzColorSet empty;
    BzColorSet filled;
    BzColorSet handle;
    BzColorSet handleBorder;
    BzColorSet tick;
};

KaSlider::KaSlider(QWidget* parent)
    : KaSlider(Qt::Horizontal, parent) {}

KaSlider::KaSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
    , m_colours(new Colours) {
    setObjectName(QStringLiteral("Slider"));
    setAttribute(Qt::WA_Hover);
    setProperty("hasCustomRect", true);
    setProperty("focusMargin", 3);
    setProperty("focusBorderRadius", kHandle / 2.0);
    resolve();
}

KaSlider::~KaSlider() = default;

QSize KaSlider::sizeHint() const {
    const int thickness = kHandle + (tickPosition() != NoTicks ? 2 * (kTick + 2) : 0);
    return orientation() == Qt::Horizontal ? QSize(160, thickness) : QSize(thickness, 160);
}

QSize KaSlider::minimumSizeHint() const {
    const QSize hint = sizeHint();
    return orientation() == Qt::Horizontal ? QSize(2 * kHandle, hint.height())
                                           : QSize(hint.width(), 2 * kHandle);
}

void KaSlider::onThemeChanged() {
    resolve();
    update();
}

void KaSlider::resolve() {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    m_colours->empty = set(Karvox::slider_track_empty_background, type);
    m_colours->filled = set(Karvox::slider_track_indicator_background, type);
    m_colours->handle = set(Karvox::slider_handle_background, type);
    m_colours->handleBorder = set(Karvox::slider_handle_border, type);
    m_colours->tick = set(Karvox::slider_track_buffer_background, type);
}

void KaSlider::paintEvent(QPaintEvent*) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (isSliderDown())
        option.state |= QStyle::State_Sunken;
    const bool horizontal = orientation() == Qt::Horizontal;
    // Geometry from the style, so that the handle sits where QSlider's own
    // mouse handling expects it; the drawing is the library's.
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect knob = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int knobLength = horizontal ? knob.width() : knob.height();
    const int span = (horizontal ? groove.width() : groove.height()) - knobLength;
    const int start = (horizontal ? groove.left() : groove.top()) + knobLength / 2;
    const auto centreOf = [&](int value) {
        return start + QStyle::sliderPositionFromValue(minimum(), maximum(), value, span, option.upsideDown);
    };

    const QPointF centre = QRectF(knob).center();
    const QRectF handle(centre - QPointF(kHandle / 2.0, kHandle / 2.0), QSizeF(kHandle, kHandle));
    const int first = centreOf(option.upsideDown ? maximum() : minimum());
    const int last = centreOf(option.upsideDown ? minimum() : maximum());
    const QRectF track = horizontal ? QRectF(first, centre.y() - kTrack / 2.0, last - first, kTrack)
                                    : QRectF(centre.x() - kTrack / 2.0, first, kTrack, last - first);
    // Filled from the minimum's end to the handle.
    QRectF filled = track;
    const qreal at = horizontal ? centre.x() : centre.y();
    const bool minimumAtStart = !option.upsideDown;
    if (horizontal)
        minimumAtStart ? filled.setRight(at) : filled.setLeft(at);
    else
        minimumAtStart ? filled.setBottom(at) : filled.setTop(at);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QStyle::State enabled = option.state & QStyle::State_Enabled;
    DrawUtils::drawRoundedRect(&painter, track, kTrack / 2.0, m_colours->empty.colorFor(enabled), QColor(),
                               0);
    DrawUtils::drawRoundedRect(&painter, filled.normalized(), kTrack / 2.0,
                               m_colours->filled.colorFor(enabled), QColor(), 0);

    if (tickPosition() != NoTicks && maximum() > minimum()) {
        const int interval = tickInterval() > 0 ? tickInterval() : qMax(1, pageStep());
        painter.setPen(QPen(m_colours->tick.colorFor(enabled), 1));
        const qreal before = (horizontal ? handle.top() : handle.left()) - kTick - 2;
        const qreal after = (horizontal ? handle.bottom() : handle.right()) + 2;
        for (int value = minimum(); value <= maximum(); value += interval) {
            const qreal p = centreOf(value) + 0.5;
            for (const qreal from : {before, after}) {
                if (!(tickPosition() & (from == before ? TicksAbove : TicksBelow)))
                    continue;
                if (horizontal)
                    painter.drawLine(QPointF(p, from), QPointF(p, from + kTick));
                else
                    painter.drawLine(QPointF(from, p), QPointF(from + kTick, p));
            }
            if (value > maximum() - interval)
                break; // no overflow past INT_MAX
        }
    }

    DrawUtils::drawRoundedRect(&painter, handle, kHandle / 2.0, m_colours->handle.colorFor(option),
                               m_colours->handleBorder.colorFor(option), 2);

    // The ring goes round the handle, the part the keys move.
    if (option.state & QStyle::State_HasFocus)
        KaFocusStyle::requestRing(this, &painter, handle.toAlignedRect());
}

void KaSlider::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ParentChange)
        resolve();
    QSlider::changeEvent(event);
}
