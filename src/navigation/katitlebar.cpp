#include "katitlebar.h"

#include "bzfont.h"
#include "kacolortokenutils.h"
#include "kalabel.h"
#include "katitlebarbutton.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace {

constexpr int kMargin = 12;
constexpr int kIconSize = 16;
constexpr int kIconSpacing = 8;

class KaTitleBarAccessible : public QAccessibleWidget {
public:
    explicit KaTitleBarAccessible(KaTitleBar* bar)
        : QAccessibleWidget(bar, QAccessible::TitleBar) {}

    QString text(QAccessible::Text t) const override {
        const QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            return static_cast<KaTitleBar*>(widget())->title();
        return text;
    }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* bar = qobject_cast<KaTitleBar*>(object); bar && bar->isWidgetType())
        return new KaTitleBarAccessible(bar);
    return nullptr;
}

bool isTitleBarSize(KaButtonEnum::Size size) {
    return size == KaButtonEnum::Large || size == KaButtonEnum::Normal || size == KaButtonEnum::Small;
}

} // namespace

KaTitleBar::KaTitleBar(QWidget* parent)
    : BzWidget(parent) {
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    setObjectName(QStringLiteral("KaTitleBar"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    BzCSSData look;
    look.backgroundColorSet = KaColorTokenUtils::tokenToString(Karvox::globalHeader_container_background);
    setCSS(look);

    m_title = new KaLabel(this);
    m_title->setObjectName(QStringLiteral("titleLabel"));
    m_title->setFontToken(BzFont::Button, true);
    m_title->setElideMode(Qt::ElideRight);
    m_title->setAutoResize(false);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_minimize = new KaTitleBarButton(KaTitleBarButtonConfig::Minimize, this);
    m_maximize = new KaTitleBarButton(KaTitleBarButtonConfig::Maximize, this);
    m_close = new KaTitleBarButton(KaTitleBarButtonConfig::Close, this);
    m_minimize->setObjectName(QStringLiteral("minimizeButton"));
    m_maximize->setObjectName(QStringLiteral("maximizeButton"));
    m_close->setObjectName(QStringLiteral("closeButton"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_title, 1);
    row->addSpacing(kIconSpacing);
    row->addWidget(m_minimize);
    row->addWidget(m_maximize);
    row->addWidget(m_close);

    watchWindow();
}

KaTitleBar::~KaTitleBar() = default;

QString KaTitleBar::title() const {
    if (!m_ownTitle.isEmpty())
        return m_ownTitle;
    return m_window ? m_window->windowTitle() : QString();
}

void KaTitleBar::setTitle(const QString& title) {
    if (title == m_ownTitle)
        return;
    m_ownTitle = title;
    updateTitle();
}

QIcon KaTitleBar::icon() const {
    if (!m_ownIcon.isNull())
        return m_ownIcon;
    return m_window ? m_window->windowIcon() : QIcon();
}

void KaTitleBar::setIcon(const QIcon& icon) {
    if (icon.cacheKey() == m_ownIcon.cacheKey())
        return;
    m_ownIcon = icon;
    updateTitle();
    Q_EMIT iconChanged();
}

void KaTitleBar::setSize(KaButtonEnum::Size size) {
    if (size == m_size)
        return;
    if (!isTitleBarSize(size)) {
        qWarning("KaTitleBar: %d is not a title bar size (Large, Normal or Small); ignored", int(size));
        return;
    }
    m_size = size;
    for (KaTitleBarButton* button : {m_minimize, m_maximize, m_close})
        button->setSize(size);
    updateGeometry();
    Q_EMIT sizeChanged(size);
}

QSize KaTitleBar::sizeHint() const {
    // The window buttons fix their height; the bar is as high.
    return QSize(BzWidget::sizeHint().width(), m_close->minimumHeight());
}

QRect KaTitleBar::iconRect() const {
    const QRect box(kMargin, (height() - kIconSize) / 2, kIconSize, kIconSize);
    return QStyle::visualRect(layoutDirection(), rect(), box);
}

void KaTitleBar::updateTitle() {
    const QString text = title();
    const bool hasIcon = !icon().isNull();
    if (auto* row = qobject_cast<QHBoxLayout*>(layout()))
        row->setContentsMargins(kMargin + (hasIcon ? kIconSize + kIconSpacing : 0), 0, 0, 0);
    update();
    if (text == m_title->text())
        return;
    m_title->setText(text);
    // The title is the bar's name; a visible label would read it twice.
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    Q_EMIT titleChanged(text);
}

QWidget* KaTitleBar::targetWindow() const {
    if (m_target)
        return m_target;
    // A bar on its own is no window's title bar.
    QWidget* own = window();
    return own != this ? own : nullptr;
}

void KaTitleBar::setTargetWindow(QWidget* window) {
    if (window == m_target)
        return;
    m_target = window;
    for (KaTitleBarButton* button : {m_minimize, m_maximize, m_close})
        button->setTargetWindow(window);
    watchWindow();
    Q_EMIT targetWindowChanged(window);
}

void KaTitleBar::watchWindow() {
    QWidget* window = targetWindow();
    const bool target = window != nullptr;
    for (KaTitleBarButton* button : {m_minimize, m_maximize, m_close})
        button->setEnabled(target);
    if (window == m_window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (window)
        window->installEventFilter(this);
    updateTitle();
}

bool KaTitleBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_window) {
        if (event->type() == QEvent::WindowTitleChange && m_ownTitle.isEmpty())
            updateTitle();
        else if (event->type() == QEvent::WindowIconChange && m_ownIcon.isNull()) {
            updateTitle();
            Q_EMIT iconChanged();
        }
    }
    return BzWidget::eventFilter(watched, event);
}

void KaTitleBar::changeEvent(QEvent* event) {
    BzWidget::changeEvent(event);
    if (event->type() == QEvent::ParentChange)
        watchWindow();
}

void KaTitleBar::paintEvent(QPaintEvent* event) {
    BzWidget::paintEvent(event);
    const QIcon shown = icon();
    if (shown.isNull())
        return;
    QPainter painter(this);
    shown.paint(&painter, iconRect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void KaTitleBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_window) {
        BzWidget::mousePressEvent(event);
        return;
    }
    m_pressed = true;
    m_manualMove = false;
    m_pressGlobal = event->globalPosition().toPoint();
    m_pressWindowPos = m_window->pos();
    event->accept();
}

void KaTitleBar::mouseMoveEvent(QMouseEvent* event) {
    if (!m_pressed || !m_window || !(event->buttons() & Qt::LeftButton)) {
        BzWidget::mouseMoveEvent(event);
        return;
    }
    const QPoint delta = event->globalPosition().toPoint() - m_pressGlobal;
    if (!m_manualMove) {
        if (delta.manhattanLength() < QApplication::startDragDistance())
            return;
        // The platform's move knows about snapping, screens and maximised
        // windows; without one (some embedded platforms) move by hand.
        QWindow* handle = m_window->windowHandle();
        if (handle && handle->startSystemMove()) {
            m_pressed = false;
            return;
        }
        if (m_window->isMaximized() || m_window->isFullScreen()) {
            m_pressed = false;
            return;
        }
        m_manualMove = true;
    }
    m_window->move(m_pressWindowPos + delta);
    event->accept();
}

void KaTitleBar::mouseReleaseEvent(QMouseEvent* event) {
    m_pressed = false;
    m_manualMove = false;
    BzWidget::mouseReleaseEvent(event);
}

void KaTitleBar::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || m_maximize->isHidden() || !m_maximize->isEnabled()) {
        BzWidget::mouseDoubleClickEvent(event);
        return;
    }
    m_pressed = false;
    m_maximize->click();
    event->accept();
}
