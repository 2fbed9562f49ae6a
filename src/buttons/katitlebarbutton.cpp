#include "katitlebarbutton.h"

#include <QEvent>
#include <QPainter>
#include <QPolygonF>

KaTitleBarButton::KaTitleBarButton(QWidget* parent)
    : KaTitleBarButton(KaTitleBarButtonConfig::Close, parent) {}

KaTitleBarButton::KaTitleBarButton(KaTitleBarButtonConfig::Type type, QWidget* parent)
    : IKaButton(parent, new KaTitleBarButtonConfig) {
    buttonConfig()->setParent(this);
    titleBarConfig()->setType(type);
    connectRefreshSlot();
    connect(this, &QAbstractButton::clicked, this, &KaTitleBarButton::actOnWindow);
    watchWindow();
    refresh();
}

KaTitleBarButton::~KaTitleBarButton() = default;

KaTitleBarButtonConfig* KaTitleBarButton::titleBarConfig() const {
    return qobject_cast<KaTitleBarButtonConfig*>(buttonConfig());
}

KaTitleBarButtonConfig::Type KaTitleBarButton::type() const {
    const KaTitleBarButtonConfig* config = titleBarConfig();
    return config ? config->type() : KaTitleBarButtonConfig::Close;
}

void KaTitleBarButton::setType(KaTitleBarButtonConfig::Type type) {
    if (!writeConfig(titleBarConfig(), &KaTitleBarButtonConfig::type, &KaTitleBarButtonConfig::setType, type))
        return;
    Q_EMIT typeChanged(type);
    Q_EMIT refreshConfig();
}

KaButtonEnum::Size KaTitleBarButton::size() const {
    const KaTitleBarButtonConfig* config = titleBarConfig();
    return config ? config->size() : KaButtonEnum::Normal;
}

void KaTitleBarButton::setSize(KaButtonEnum::Size size) {
    if (!writeConfig(titleBarConfig(), &KaTitleBarButtonConfig::size, &KaTitleBarButtonConfig::setSize, size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

QWidget* KaTitleBarButton::targetWindow() const {
    return m_target ? m_target.data() : window();
}

void KaTitleBarButton::setTargetWindow(QWidget* window) {
    if (window == m_target)
        return;
    m_target = window;
    watchWindow();
    Q_EMIT targetWindowChanged(window);
}

void KaTitleBarButton::actOnWindow() {
    QWidget* target = targetWindow();
    if (!target)
        return;
    switch (type()) {
    case KaTitleBarButtonConfig::Minimize:
        target->showMinimized();
        break;
    case KaTitleBarButtonConfig::Maximize:
        if (target->isMaximized())
            target->showNormal();
        else
            target->showMaximized();
        break;
    case KaTitleBarButtonConfig::Close:
        target->close();
        break;
    }
}

void KaTitleBarButton::watchWindow() {
    QWidget* target = targetWindow();
    if (target == m_window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = target;
    // A button that is its own window has no title bar to sit in.
    if (target && target != this)
        target->installEventFilter(this);
    syncWindowState();
}

void KaTitleBarButton::syncWindowState() {
    KaTitleBarButtonConfig* config = titleBarConfig();
    if (config && m_window)
        config->setWindowMaximized(m_window->isMaximized());
}

bool KaTitleBarButton::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_window && event->type() == QEvent::WindowStateChange)
        syncWindowState();
    return IKaButton::eventFilter(watched, event);
}

void KaTitleBarButton::changeEvent(QEvent* event) {
    IKaButton::changeEvent(event);
    if (event->type() == QEvent::ParentChange)
        watchWindow();
}

void KaTitleBarButton::refresh() {
    KaTitleBarButtonConfig::Geometry g;
    if (!applyGeometry(titleBarConfig(), g))
        return;
    setFixedOrFreeWidth(g.fixedWidth);
    setFocusBorderRadius(0);
    if (g.glyph != m_glyph || g.glyphSize != m_glyphSize) {
        m_glyph = g.glyph;
        m_glyphSize = g.glyphSize;
        update();
    }
    QString name;
    switch (m_glyph) {
    case KaTitleBarButtonConfig::MinimizeGlyph:
        name = tr("Minimize");
        break;
    case KaTitleBarButtonConfig::MaximizeGlyph:
        name = tr("Maximize");
        break;
    case KaTitleBarButtonConfig::RestoreGlyph:
        name = tr("Restore");
        break;
    case KaTitleBarButtonConfig::CloseGlyph:
        name = tr("Close");
        break;
    }
    if (name != accessibleName()) {
        setAccessibleName(name);
        setToolTip(name);
    }
}

void KaTitleBarButton::paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) {
    IKaButton::paintDecorations(painter, geometry, state);
    const int side = qMin(m_glyphSize.width(), m_glyphSize.height());
    if (side <= 0)
        return;
    // Whole-pixel origin, lines on pixel centres: crisp at ratio 1 and 2.
    const qreal x = (width() - side) / 2;
    const qreal y = (height() - side) / 2;
    const QColor colour = stateColor(textColorSet(), state);

    painter->save();
    painter->setPen(QPen(colour, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    switch (m_glyph) {
    case KaTitleBarButtonConfig::MinimizeGlyph:
        painter->fillRect(QRectF(x, y + side / 2, side, 1), colour);
        break;
    case KaTitleBarButtonConfig::MaximizeGlyph:
        painter->drawRect(QRectF(x + 0.5, y + 0.5, side - 1, side - 1));
        break;
    case KaTitleBarButtonConfig::RestoreGlyph: {
        // Front window in the lower left, the back one peeking out above
        // and to the right.
        const qreal offset = 2;
        painter->drawRect(QRectF(x + 0.5, y + offset + 0.5, side - offset - 1, side - offset - 1));
        const QPolygonF back({QPointF(x + offset + 0.5, y + offset), QPointF(x + offset + 0.5, y + 0.5),
                              QPointF(x + side - 0.5, y + 0.5),
                              QPointF(x + side - 0.5, y + side - offset - 0.5),
                              QPointF(x + side - offset, y + side - offset - 0.5)});
        painter->drawPolyline(back);
        break;
    }
    case KaTitleBarButtonConfig::CloseGlyph:
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(colour, 1.2, Qt::SolidLine, Qt::FlatCap));
        painter->drawLine(QPointF(x, y), QPointF(x + side, y + side));
        painter->drawLine(QPointF(x + side, y), QPointF(x, y + side));
        break;
    }
    painter->restore();
}
