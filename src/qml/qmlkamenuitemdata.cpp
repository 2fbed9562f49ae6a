#include "qmlkamenuitemdata.h"

#include "qmlkadescriptionutils_p.h"
#include "qmlkaobjectlist_p.h"

#include <QtGlobal>

QmlKaMenuItemData::QmlKaMenuItemData(QObject* parent)
    : QObject(parent)
    , m_menu(std::make_unique<QmlKaObjectList>(this, [this] { Q_EMIT menuChanged(); })) {}

QmlKaMenuItemData::~QmlKaMenuItemData() = default;

void QmlKaMenuItemData::setTitle(const QString& title) {
    if (QmlKaDescriptionUtils::assign(m_title, title))
        Q_EMIT titleChanged();
}

void QmlKaMenuItemData::setSubText(const QString& subText) {
    if (QmlKaDescriptionUtils::assign(m_subText, subText))
        Q_EMIT subTextChanged();
}

void QmlKaMenuItemData::setTooltip(const QString& tooltip) {
    if (QmlKaDescriptionUtils::assign(m_tooltip, tooltip))
        Q_EMIT tooltipChanged();
}

void QmlKaMenuItemData::setAccessibleName(const QString& name) {
    if (QmlKaDescriptionUtils::assign(m_accessibleName, name))
        Q_EMIT accessibleNameChanged();
}

void QmlKaMenuItemData::setLeftIcon(const QString& icon) {
    if (QmlKaDescriptionUtils::assign(m_leftIcon, icon))
        Q_EMIT leftIconChanged();
}

void QmlKaMenuItemData::setLeftText(const QString& text) {
    if (QmlKaDescriptionUtils::assign(m_leftText, text))
        Q_EMIT leftTextChanged();
}

void QmlKaMenuItemData::setLeftTextColorSet(const QString& colorSet) {
    if (QmlKaDescriptionUtils::assign(m_leftTextColorSet, colorSet))
        Q_EMIT leftTextColorSetChanged();
}

void QmlKaMenuItemData::setRightIcon(const QString& icon) {
    if (QmlKaDescriptionUtils::assign(m_rightIcon, icon))
        Q_EMIT rightIconChanged();
}

void QmlKaMenuItemData::setLeftIconColorSet(const QString& colorSet) {
    if (QmlKaDescriptionUtils::assign(m_leftIconColorSet, colorSet))
        Q_EMIT leftIconColorSetChanged();
}

void QmlKaMenuItemData::setRightIconColorSet(const QString& colorSet) {
    if (QmlKaDescriptionUtils::assign(m_rightIconColorSet, colorSet))
        Q_EMIT rightIconColorSetChanged();
}

void QmlKaMenuItemData::setRightIconTooltip(const QString& tooltip) {
    if (QmlKaDescriptionUtils::assign(m_rightIconTooltip, tooltip))
        Q_EMIT rightIconTooltipChanged();
}

void QmlKaMenuItemData::setBadgeText(const QString& text) {
    if (QmlKaDescriptionUtils::assign(m_badgeText, text))
        Q_EMIT badgeTextChanged();
}

void QmlKaMenuItemData::setLabelType(KaDiscoverabilityEnum::DiscoverabilityLabelType type) {
    if (type < KaDiscoverabilityEnum::IconWithTextTag || type > KaDiscoverabilityEnum::TipShortcut) {
        qWarning("QmlKaMenuItemData::setLabelType: %d is not a label type; ignored", int(type));
        return;
    }
    if (QmlKaDescriptionUtils::assign(m_labelType, type))
        Q_EMIT labelTypeChanged();
}

void QmlKaMenuItemData::setShowDiscoverabilityLabel(bool show) {
    if (QmlKaDescriptionUtils::assign(m_showDiscoverabilityLabel, show))
        Q_EMIT showDiscoverabilityLabelChanged();
}

void QmlKaMenuItemData::setCheckable(bool checkable) {
    if (QmlKaDescriptionUtils::assign(m_checkable, checkable))
        Q_EMIT checkableChanged();
}

void QmlKaMenuItemData::setChecked(bool checked) {
    if (QmlKaDescriptionUtils::assign(m_checked, checked))
        Q_EMIT checkedChanged();
}

void QmlKaMenuItemData::setEnabled(bool enabled) {
    if (QmlKaDescriptionUtils::assign(m_enabled, enabled))
        Q_EMIT enabledChanged();
}

void QmlKaMenuItemData::setIsAlert(bool alert) {
    if (QmlKaDescriptionUtils::assign(m_isAlert, alert))
        Q_EMIT isAlertChanged();
}

void QmlKaMenuItemData::setFirstAction(bool first) {
    if (QmlKaDescriptionUtils::assign(m_firstAction, first))
        Q_EMIT firstActionChanged();
}

void QmlKaMenuItemData::setMinimumWidth(int width) {
    if (QmlKaDescriptionUtils::assign(m_minimumWidth, width))
        Q_EMIT minimumWidthChanged();
}

void QmlKaMenuItemData::setMaximumWidth(int width) {
    if (QmlKaDescriptionUtils::assign(m_maximumWidth, width))
        Q_EMIT maximumWidthChanged();
}

void QmlKaMenuItemData::setIsVisible(bool visible) {
    if (QmlKaDescriptionUtils::assign(m_visible, visible))
        Q_EMIT visibleChanged();
}

QQmlListProperty<QObject> QmlKaMenuItemData::menu() {
    return m_menu->property();
}

QList<QObject*> QmlKaMenuItemData::menuObjects() const {
    return m_menu->objects();
}

void QmlKaMenuItemData::appendSubMenu(QmlKaMenuItemData* item) {
    m_menu->append(item);
}
