#include "kaavatarview.h"

#include "kapixmaploader.h"

#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QToolTip>
#include <QtDebug>

namespace {

// Spoken after the name; indexed by KaAvatarEnum::Presence.
const char* const kPresenceTexts[] = {
    "",
    QT_TRANSLATE_NOOP("KaAvatarView", "active"),
    QT_TRANSLATE_NOOP("KaAvatarView", "in a meeting"),
    QT_TRANSLATE_NOOP("KaAvatarView", "in a scheduled meeting"),
    QT_TRANSLATE_NOOP("KaAvatarView", "on a call"),
    QT_TRANSLATE_NOOP("KaAvatarView", "do not disturb"),
    QT_TRANSLATE_NOOP("KaAvatarView", "busy"),
    QT_TRANSLATE_NOOP("KaAvatarView", "sharing the screen"),
    QT_TRANSLATE_NOOP("KaAvatarView", "quiet hours"),
    QT_TRANSLATE_NOOP("KaAvatarView", "inactive"),
    QT_TRANSLATE_NOOP("KaAvatarView", "out of office"),
    QT_TRANSLATE_NOOP("KaAvatarView", "on hold"),
    QT_TRANSLATE_NOOP("KaAvatarView", "in a meeting on a mobile phone"),
    QT_TRANSLATE_NOOP("KaAvatarView", "in a meeting on a device"),
    QT_TRANSLATE_NOOP("KaAvatarView", "away"),
};
constexpr int kPresenceTextCount = int(sizeof(kPresenceTexts) / sizeof(kPresenceTexts[0]));

} // namespace

KaAvatarView::KaAvatarView(QWidget* parent)
    : KaLabelBase(parent, QAccessible::Graphic) {
    setObjectName(QStringLiteral("KaAvatarView"));
    setFocusPolicy(Qt::NoFocus);
    setContentsMargins(0, 0, 0, 0);
    m_config.devicePixelRatio = 1.0;
    m_config.transformation = KaAvatarEnum::Transformation::Pretty;
    m_config.presence = KaAvatarEnum::None;
    m_config.size = m_size;
    m_config.avatarType = m_avatarType;
    m_config.hidePresence = false;
    m_config.processImage = true;
    m_config.showBorder = false;
    m_config.alternatePresenceColors = false;
    m_config.devicePixelRatio = devicePixelRatioF();
}

KaAvatarView::KaAvatarView(QWidget* parent, KaPixmapLoader* loader)
    : KaAvatarView(parent) {
    setPixmapLoader(loader);
}

KaAvatarView::KaAvatarView(QWidget* parent, KaPixmapLoader* loader, KaAvatarEnum::Presence presence,
                           KaAvatarEnum::Size size)
    : KaAvatarView(parent) {
    // One picture for the finished view rather than one per step.
    m_deferUpdates = true;
    setPixmapLoader(loader);
    setPresence(presence);
    setSize(size);
    m_deferUpdates = false;
    updateAvatar();
}

KaAvatarView::KaAvatarView(QWidget* parent, KaPixmapLoader* loader, const QPixmap& pixmap,
                           KaAvatarEnum::Presence presence, KaAvatarEnum::Size size)
    : KaAvatarView(parent) {
    m_deferUpdates = true;
    setPixmapLoader(loader);
    setAvatarPixmap(pixmap);
    setPresence(presence);
    setSize(size);
    m_deferUpdates = false;
    updateAvatar();
}

KaAvatarView::~KaAvatarView() = default;

void KaAvatarView::setPixmapLoader(KaPixmapLoader* loader) {
    if (m_loader == loader)
        return;
    if (m_loader)
        disconnect(m_loader, nullptr, this, nullptr);
    m_loader = loader;
    updateAvatar();
    if (m_loader)
        connect(m_loader, &KaPixmapLoader::overlaysUpdated, this, &KaAvatarView::updateAvatar);
}

void KaAvatarView::setPresence(KaAvatarEnum::Presence presence) {
    if (m_presence == presence)
        return;
    m_presence = presence;
    m_config.presence = presence;
    updateAvatar();
    updateAccessibleName();
    Q_EMIT presenceChanged(presence);
}

void KaAvatarView::setSize(KaAvatarEnum::Size size) {
    if (m_size == size)
        return;
    m_size = size;
    m_config.size = size;
    updateAvatar();
    Q_EMIT sizeChanged(size);
}

void KaAvatarView::setAvatarType(KaAvatarEnum::AvatarType type) {
    if (m_avatarType == type)
        return;
    m_avatarType = type;
    m_config.avatarType = type;
    updateAvatar();
}

void KaAvatarView::setAvatarColor(const QColor& color) {
    if (m_avatarColor == color)
        return;
    m_avatarColor = color;
    m_config.backgroundColor = color;
    updateAvatar();
    Q_EMIT avatarColorChanged(color);
}

void KaAvatarView::setAvatarInitials(const QString& initials) {
    if (m_avatarInitials == initials)
        return;
    m_avatarInitials = initials;
    m_config.initials = initials;
    updateAvatar();
    updateAccessibleName();
    // Listeners have always been handed a pixmap loaded from a file named
    // like the initials. Loading probes the file system, so it is done only
    // for a listener, and not for an empty name.
    static const QMetaMethod changed = QMetaMethod::fromSignal(&KaAvatarView::avatarInitialsChanged);
    if (isSignalConnected(changed))
        Q_EMIT avatarInitialsChanged(initials.isEmpty() ? QPixmap() : QPixmap(initials));
}

void KaAvatarView::setAvatarPixmap(const QPixmap& pixmap) {
    const auto type = pixmap.isNull() ? KaAvatarEnum::DefaultAvatar : KaAvatarEnum::Image;
    if (m_avatarPixmap.cacheKey() == pixmap.cacheKey() && m_avatarType == type)
        return;
    m_avatarPixmap = pixmap;
    m_config.pixmap = pixmap;
    m_avatarType = type;
    m_config.avatarType = type;
    updateAvatar();
    Q_EMIT avatarPixmapChanged(pixmap);
}

void KaAvatarView::setTooltip(const QString& text) {
    if (m_tooltip == text)
        return;
    m_tooltip = text;
    updateAccessibleName();
}

void KaAvatarView::updateAvatar() {
    if (!m_loader || m_deferUpdates)
        return;
    const QPixmap avatar = m_loader->getAvatar(m_config);
    setPixmap(avatar);
    const double ratio = m_config.devicePixelRatio > 0 ? m_config.devicePixelRatio : 1.0;
    setFixedSize(int(avatar.width() / ratio), int(avatar.height() / ratio));
    setAlignment(Qt::AlignCenter);
    // The focus ring, when the host makes the view focusable, is a circle.
    setProperty("focusBorderRadius", height() / 2.0);
}

void KaAvatarView::updateAccessibleName() {
    // A name the host set (anything but our last default) wins.
    const QString current = accessibleName();
    if (!current.isEmpty() && current != m_defaultAccessibleName)
        return;
    QString name = m_tooltip.isEmpty() ? m_avatarInitials : m_tooltip;
    if (m_presence > KaAvatarEnum::None && m_presence < kPresenceTextCount) {
        const QString presence = QCoreApplication::translate("KaAvatarView", kPresenceTexts[m_presence]);
        name = name.isEmpty() ? presence : tr("%1, %2").arg(name, presence);
    }
    m_defaultAccessibleName = name;
    if (current != name)
        setAccessibleName(name);
}

void KaAvatarView::onThemeChanged() {
    KaLabelBase::onThemeChanged();
    // The first view to hear of a new theme renders for all of them.
    if (m_loader)
        m_loader->updateForCurrentTheme();
}

void KaAvatarView::showEvent(QShowEvent* event) {
    KaLabelBase::showEvent(event);
    const double ratio = devicePixelRatioF();
    if (!qFuzzyCompare(ratio, m_config.devicePixelRatio)) {
        m_config.devicePixelRatio = ratio;
        updateAvatar();
    }
}

void KaAvatarView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_pressed = true;
    KaLabelBase::mousePressEvent(event);
}

void KaAvatarView::mouseReleaseEvent(QMouseEvent* event) {
    const bool click =
        event->button() == Qt::LeftButton && m_pressed && rect().contains(event->position().toPoint());
    m_pressed = false;
    if (click)
        Q_EMIT clicked();
    KaLabelBase::mouseReleaseEvent(event);
}

void KaAvatarView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Q_EMIT clicked();
        break;
    default:
        break;
    }
    KaLabelBase::keyPressEvent(event);
}

void KaAvatarView::enterEvent(QEnterEvent* event) {
    if (!m_tooltip.isEmpty())
        QToolTip::showText(QCursor::pos(), m_tooltip, nullptr, QRect(), -1);
    KaLabelBase::enterEvent(event);
}

void KaAvatarView::leaveEvent(QEvent* event) {
    if (!m_tooltip.isEmpty())
        QToolTip::hideText();
    KaLabelBase::leaveEvent(event);
}
