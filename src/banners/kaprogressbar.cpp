#include "kaprogressbar.h"

#include "kacolortokenutils.h"
#include "kaconfig.h"

#include <bzthemeutils.h>
#include <drawutils.h>

#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>
#include <QTimerEvent>

namespace {

// About 30 frames a second; a sweep takes 1.5 s.
constexpr int kFrameMs = 33;
constexpr qreal kPhaseStep = kFrameMs / 1500.0;
// Share of the track the indeterminate segment covers.
constexpr qreal kSegment = 0.3;

class ProgressBarAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit ProgressBarAccessible(KaProgressBar* bar)
        : QAccessibleWidget(bar, QAccessible::ProgressBar) {}

    const KaProgressBar* bar() const { return static_cast<const KaProgressBar*>(object()); }

    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.busy = bar()->isIndeterminate();
        s.focusable = false;
        return s;
    }
    QString text(QAccessible::Text t) const override {
        const QString own = QAccessibleWidget::text(t);
        if (t == QAccessible::Value && own.isEmpty() && !bar()->isIndeterminate())
            return KaProgressBar::tr("%1%").arg(qRound(bar()->fraction() * 100));
        return own;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return bar()->value(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return bar()->maximum(); }
    QVariant minimumValue() const override { return bar()->minimum(); }
    QVariant minimumStepSize() const override { return 1; }
};

QAccessibleInterface* progressFactory(const QString&, QObject* object) {
    if (auto* bar = qobject_cast<KaProgressBar*>(object))
        return new ProgressBarAccessible(bar);
    return nullptr;
}

} // namespace

KaProgressBar::KaProgressBar(QWidget* parent)
    : QWidget(parent) {
    static bool factoryInstalled = false;
    if (!factoryInstalled) {
        factoryInstalled = true;
        QAccessible::installFactory(progressFactory);
    }
    setObjectName(QStringLiteral("KaProgressBar"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFixedHeight(thicknessOf(m_barSize));
    resolveColours();
}

KaProgressBar::~KaProgressBar() = default;

int KaProgressBar::thicknessOf(BarSize size) {
    switch (size) {
    case Small:
        return 2;
    case Large:
        return 6;
    default:
        return 4;
    }
}

void KaProgressBar::setRange(int minimum, int maximum) {
    if (maximum < minimum) {
        qWarning("KaProgressBar::setRange: maximum %d below minimum %d; using %d", maximum, minimum, minimum);
        maximum = minimum;
    }
    if (minimum == m_minimum && maximum == m_maximum)
        return;
    m_minimum = minimum;
    m_maximum = maximum;
    const int clamped = qBound(m_minimum, m_value, m_maximum);
    const bool valueMoved = clamped != m_value;
    m_value = clamped;
    m_lastStep = announcedStep();
    update();
    Q_EMIT rangeChanged();
    if (valueMoved)
        Q_EMIT valueChanged(m_value);
}

void KaProgressBar::setMinimum(int minimum) {
    setRange(minimum, qMax(minimum, m_maximum));
}

void KaProgressBar::setMaximum(int maximum) {
    setRange(qMin(m_minimum, maximum), maximum);
}

void KaProgressBar::setValue(int value) {
    if (value < m_minimum || value > m_maximum) {
        qWarning("KaProgressBar::setValue: %d outside %d..%d; clamped", value, m_minimum, m_maximum);
        value = qBound(m_minimum, value, m_maximum);
    }
    if (value == m_value)
        return;
    m_value = value;
    if (!m_indeterminate)
        update();
    announceIfStepped();
    Q_EMIT valueChanged(value);
}

void KaProgressBar::reset() {
    setValue(m_minimum);
}

qreal KaProgressBar::fraction() const {
    if (m_maximum <= m_minimum)
        return 0;
    return qreal(qint64(m_value) - m_minimum) / qreal(qint64(m_maximum) - m_minimum);
}

int KaProgressBar::announcedStep() const {
    return int(fraction() * 10);
}

void KaProgressBar::announceIfStepped() {
    const int step = announcedStep();
    if (step == m_lastStep)
        return;
    m_lastStep = step;
    if (m_indeterminate)
        return;
    QAccessibleValueChangeEvent event(this, m_value);
    QAccessible::updateAccessibility(&event);
}

void KaProgressBar::setIndeterminate(bool indeterminate) {
    if (indeterminate == m_indeterminate)
        return;
    m_indeterminate = indeterminate;
    m_phase = 0;
    updateTimer();
    update();
    QAccessible::State changed;
    changed.busy = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    Q_EMIT indeterminateChanged();
}

void KaProgressBar::setBarSize(BarSize size) {
    if (size < Small || size > Large) {
        qWarning("KaProgressBar::setBarSize: unknown size %d ignored", int(size));
        return;
    }
    if (size == m_barSize)
        return;
    m_barSize = size;
    setFixedHeight(thicknessOf(size));
    updateGeometry();
    Q_EMIT barSizeChanged();
}

QSize KaProgressBar::sizeHint() const {
    return QSize(160, thicknessOf(m_barSize));
}

QSize KaProgressBar::minimumSizeHint() const {
    return QSize(16, thicknessOf(m_barSize));
}

void KaProgressBar::onThemeChanged() {
    resolveColours();
    update();
}

void KaProgressBar::resolveColours() {
    const auto type = BzThemeUtils::getThemeTypeOfWidget(this);
    const BzColorSet track =
        BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::spinner_progress_track), type);
    const BzColorSet fill =
        BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::spinner_progress_cursor), type);
    const bool enabled = isEnabled();
    m_track = enabled ? track.normal() : track.disabled();
    m_fill = enabled ? fill.normal() : fill.disabled();
}

void KaProgressBar::changeEvent(QEvent* event) {
    // A new parent may carry another "themeType"; disabled bars fade.
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::EnabledChange) {
        resolveColours();
        update();
    }
    QWidget::changeEvent(event);
}

void KaProgressBar::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    updateTimer();
}

void KaProgressBar::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    updateTimer();
}

void KaProgressBar::onReducedMotionChanged() {
    updateTimer();
    update();
}

void KaProgressBar::updateTimer() {
    if (m_indeterminate && isVisible() && !KaConfig::reducedMotion()) {
        m_timer.start(kFrameMs, this);
        return;
    }
    m_timer.stop();
    if (KaConfig::reducedMotion())
        m_phase = 0.5;
}

void KaProgressBar::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_phase += kPhaseStep;
    if (m_phase >= 1)
        m_phase -= 1;
    update();
}

void KaProgressBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const qreal thickness = thicknessOf(m_barSize);
    const QRectF track(0, (height() - thickness) / 2, width(), thickness);
    const qreal radius = thickness / 2;
    DrawUtils::drawRoundedRect(&painter, track, radius, m_track, QColor(), 0);

    QRectF fill = track;
    if (m_indeterminate) {
        // The segment enters at the leading edge and leaves at the trailing one.
        const qreal segment = track.width() * kSegment;
        const qreal left = -segment + m_phase * (track.width() + segment);
        fill = QRectF(left, track.top(), segment, thickness).intersected(track);
    } else {
        fill.setWidth(track.width() * fraction());
    }
    if (fill.width() <= 0)
        return;
    if (layoutDirection() == Qt::RightToLeft)
        fill.moveRight(track.right() - (fill.left() - track.left()));
    DrawUtils::drawRoundedRect(&painter, fill, radius, m_fill, QColor(), 0);
}
