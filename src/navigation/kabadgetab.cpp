#include "kabadgetab.h"

#include "kabadge.h"

KaBadgeTab::KaBadgeTab(QWidget* parent)
    : KaTabItem(parent) {
    connect(this, &KaTabItem::textChanged, this, &KaBadgeTab::updateName);
}

KaBadgeTab::KaBadgeTab(const QString& text, const QString& icon, QWidget* parent)
    : KaTabItem(text, icon, parent) {
    connect(this, &KaTabItem::textChanged, this, &KaBadgeTab::updateName);
}

KaBadgeTab::~KaBadgeTab() = default;

void KaBadgeTab::setCount(int count) {
    count = qMax(0, count);
    const bool changed = count != m_count;
    if (!changed && (count > 0 || !badge()))
        return;
    // The counter is kept while it counts; a word or icon badge gives way.
    auto* counter = m_count > 0 ? qobject_cast<KaBadge*>(badge()) : nullptr;
    m_count = count;
    if (count == 0) {
        showBadge(nullptr, QString());
    } else {
        if (!counter)
            counter = new KaBadge;
        counter->setText(QString::number(count));
        showBadge(counter, QString::number(count));
    }
    if (changed)
        Q_EMIT countChanged(count);
}

void KaBadgeTab::setBadgeText(const QString& word) {
    if (word.isEmpty()) {
        clearBadge();
        return;
    }
    auto* pill = new KaBadge;
    pill->setText(word);
    showBadge(pill, word);
    if (m_count != 0) {
        m_count = 0;
        Q_EMIT countChanged(0);
    }
}

void KaBadgeTab::setIconBadge(KaIconBadgeType type) {
    if (KaIconBadge::iconPath(type).isEmpty()) {
        qWarning("KaBadgeTab::setIconBadge: unknown icon badge %d ignored", int(type));
        return;
    }
    auto* icon = new KaIconBadge(nullptr, type);
    showBadge(icon, icon->accessibleName());
    if (m_count != 0) {
        m_count = 0;
        Q_EMIT countChanged(0);
    }
}

void KaBadgeTab::clearBadge() {
    setCount(0);
}

void KaBadgeTab::showBadge(QWidget* widget, const QString& spoken) {
    if (widget != badge())
        setTrailingWidget(widget);
    // The tab reads the badge out; the badge itself stays out of the way.
    if (widget)
        widget->setAccessibleName(QString());
    m_spoken = spoken;
    updateName();
}

void KaBadgeTab::updateName() {
    setDefaultAccessibleName(m_spoken.isEmpty() ? text() : tr("%1, %2").arg(text(), m_spoken));
}
