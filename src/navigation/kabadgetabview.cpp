#include "kabadgetabview.h"

KaBadgeTabView::KaBadgeTabView(QWidget* parent)
    : KaTabView(parent) {
    setObjectName(QStringLiteral("BadgeTabView"));
}

KaBadgeTabView::~KaBadgeTabView() = default;

KaBadgeTab* KaBadgeTabView::badgeTabAt(int index) const {
    return qobject_cast<KaBadgeTab*>(tabAt(index));
}

void KaBadgeTabView::setCount(int index, int count) {
    if (KaBadgeTab* tab = checkedTab(index, "setCount"))
        tab->setCount(count);
}

void KaBadgeTabView::setIconBadge(int index, KaIconBadgeType type) {
    if (KaBadgeTab* tab = checkedTab(index, "setIconBadge"))
        tab->setIconBadge(type);
}

void KaBadgeTabView::clearBadge(int index) {
    if (KaBadgeTab* tab = checkedTab(index, "clearBadge"))
        tab->clearBadge();
}

KaTabItem* KaBadgeTabView::createTab() {
    return new KaBadgeTab;
}

KaBadgeTab* KaBadgeTabView::checkedTab(int index, const char* where) const {
    KaBadgeTab* tab = badgeTabAt(index);
    if (!tab)
        qWarning("KaBadgeTabView::%s: no tab %d ignored", where, index);
    return tab;
}
