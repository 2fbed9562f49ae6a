#include "kaspinner.h"

#include "kacolortokenutils.h"
#include "kaconfig.h"
#include "karvexutils.h"

#include <bzthemeutils.h>

#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>
#include <QTimerEvent>

namespace {

// About 30 frames a second, one turn a second.
constexpr int kFrameMs = 33;
constexpr int kDegreesPerFrame = 12;
constexpr int kArcDegrees = 90;

QString defaultName() {
    return KaSpinner::tr("Loading");
}

class SpinnerAccessible : public QAccessibleWidget {
public:
    explicit SpinnerAccessible(KaSpinner* spinner)
        : QAccessibleWidget(spinner, QAccessible::ProgressBar) {}

    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.busy = true;
        return s;
    }
    QString text(QAccessible::Text t) const override {
        const QString own = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && own.isEmpty())
            return defaultName();
        return own;
    }
};

QAccessibleInterface* spinnerFactory(const QString&, QObject* object) {
    if (auto* spinner = qobject_cast<KaSpinner*>(object))
        return new SpinnerAccessible(spinner);
    return nullptr;
}

} // namespace

KaSpinner::KaSpinner(QWidget* parent, SpinnerSize size)
    : QWidget(parent) {
    static bool factoryInstalled = false;
    if (!factoryInstalled) {
        factoryInstalled = true;
        QAccessible::installFactory(spinnerFactory);
    }
    setObjectName(QStringLiteral("KaSpinner"));
    if (size < Small || size > ExtraLarge) {
        qWarning("KaSpinner: unknown size %d; using Medium", int(size));
        size = Medium;
    }
    m_size = size;
    setFixedSize(sizeHint());
    resolveColours();
}

KaSpinner::~KaSpinner() = default;

int KaSpinner::diameterOf(SpinnerSize size) {
    switch (size) {
    case Small:
        return 16;
    case Large:
        return 32;
    case ExtraLarge:
        return 48;
    default:
        return 24;
    }
}

int KaSpinner::strokeOf(SpinnerSize size) {
    switch (size) {
    case Small:
        return 2;
    case ExtraLarge:
        return 4;
    default:
        return 3;
    }
}

void KaSpinner::setSpinnerSize(SpinnerSize size) {
    if (size < Small || size > ExtraLarge) {
        qWarning("KaSpinner::setSpinnerSize: unknown size %d ignored", int(size));
        return;
    }
    if (size == m_size)
        return;
    m_size = size;
    setFixedSize(sizeHint());
    update();
    Q_EMIT spinnerSizeChanged();
}

QSize KaSpinner::sizeHint() const {
    const int d = diameterOf(m_size);
    return QSize(d, d);
}

void KaSpinner::onThemeChanged() {
    resolveColours();
    update();
}

void KaSpinner::resolveColours() {
    const auto type = BzThemeUtils::getThemeTypeOfWidget(this);
    m_track = BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::spinner_loading_track), type)
                  .normal();
    m_arc = BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::spinner_loading_cursor), type)
                .normal();
}

void KaSpinner::changeEvent(QEvent* event) {
    // A new parent may carry another "themeType".
    if (event->type() == QEvent::ParentChange) {
        resolveColours();
        update();
    }
    QWidget::changeEvent(event);
}

void KaSpinner::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    updateTimer();
    const QString name = accessibleName().isEmpty() ? defaultName() : accessibleName();
    KarvexUtils::announce(this, name);
}

void KaSpinner::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    updateTimer();
}

void KaSpinner::onReducedMotionChanged() {
    updateTimer();
}

void KaSpinner::updateTimer() {
    if (isVisible() && !KaConfig::reducedMotion())
        m_timer.start(kFrameMs, this);
    else
        m_timer.stop();
}

void KaSpinner::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_angle = (m_angle + kDegreesPerFrame) % 360;
    update();
}

void KaSpinner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal stroke = strokeOf(m_size);
    const qreal side = qMin(width(), height());
    // Centred on the stroke so the ring stays inside the widget.
    const QRectF ring((width() - side) / 2 + stroke / 2, (height() - side) / 2 + stroke / 2, side - stroke,
                      side - stroke);
    QPen pen(m_track, stroke);
    painter.setPen(pen);
    painter.drawEllipse(ring);
    pen.setColor(m_arc);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    // Qt counts angles anticlockwise in sixteenths of a degree; the arc turns clockwise.
    painter.drawArc(ring, (90 - m_angle) * 16, -kArcDegrees * 16);
}
