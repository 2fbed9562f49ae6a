#include "karoundbadgebutton.h"

#include "kabadge.h"

#include <QEvent>

KaRoundBadgeButton::KaRoundBadgeButton(QWidget* parent)
    : KaRoundBadgeButton(parent, KaButtonEnum::Join, KaButtonEnum::ExtraSmall) {}

KaRoundBadgeButton::KaRoundBadgeButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size)
    : KaRoundButton(parent, style, size) {}

KaRoundBadgeButton::~KaRoundBadgeButton() = default;

void KaRoundBadgeButton::setBadgeText(const QString& text) {
    if (text.isEmpty()) {
        if (m_counter) {
            delete m_counter;
            updateName();
            Q_EMIT badgeChanged();
        }
        return;
    }
    delete m_icon;
    if (!m_counter) {
        m_counter = new KaBadge(this);
        m_counter->show();
    }
    const QString before = m_counter->text();
    m_counter->setText(text);
    placeBadge();
    updateName();
    if (m_counter->text() != before || !m_icon)
        Q_EMIT badgeChanged();
}

QString KaRoundBadgeButton::badgeText() const {
    return m_counter ? m_counter->text() : QString();
}

void KaRoundBadgeButton::setIconBadge(KaIconBadgeType type) {
    delete m_counter;
    if (!m_icon) {
        m_icon = new KaIconBadge(this, type);
        m_icon->show();
    } else {
        m_icon->setIcon(type);
    }
    placeBadge();
    updateName();
    Q_EMIT badgeChanged();
}

void KaRoundBadgeButton::clearBadge() {
    if (!m_counter && !m_icon)
        return;
    delete m_counter;
    delete m_icon;
    updateName();
    Q_EMIT badgeChanged();
}

void KaRoundBadgeButton::setAccessibleLabel(const QString& label) {
    if (m_label == label)
        return;
    m_label = label;
    updateName();
}

void KaRoundBadgeButton::updateName() {
    QString badge;
    if (m_counter)
        badge = m_counter->text();
    else if (m_icon)
        badge = m_icon->accessibleName();
    const QString name =
        m_label.isEmpty() || badge.isEmpty() ? m_label + badge : tr("%1, %2").arg(m_label, badge);
    setDefaultAccessibleName(name);
}

void KaRoundBadgeButton::placeBadge() {
    QWidget* badge = m_counter ? static_cast<QWidget*>(m_counter) : m_icon;
    if (!badge)
        return;
    // Upper trailing corner, inside the button so it moves and hides with it.
    const int x = layoutDirection() == Qt::RightToLeft ? 0 : width() - badge->width();
    badge->move(qMax(0, x), 0);
    badge->raise();
}

void KaRoundBadgeButton::resizeEvent(QResizeEvent* event) {
    KaRoundButton::resizeEvent(event);
    placeBadge();
}

void KaRoundBadgeButton::changeEvent(QEvent* event) {
    KaRoundButton::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeBadge();
}
