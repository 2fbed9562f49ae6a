#include "ikabuttonconfig.h"

#include "ikabutton.h"

#include <QSignalBlocker>

IKaButtonConfig::IKaButtonConfig(QObject* parent)
    : QObject(parent) {}

IKaButtonConfig::~IKaButtonConfig() = default;

void IKaButtonConfig::setCustomValue(int) {}

void IKaButtonConfig::notifyConfigChanged() {
    // A blocked configuration is in the middle of a change that sends one
    // notification at its end.
    if (signalsBlocked())
        return;
    Q_EMIT configChanged();
    if (m_owner)
        m_owner->onConfigChanged();
}

void IKaButtonConfig::notifyIconsChanged() {
    if (signalsBlocked())
        return;
    Q_EMIT iconsChanged();
    if (m_owner)
        m_owner->syncIcons();
    notifyConfigChanged();
}

void IKaButtonConfig::setLeftIcon(const QString& path) {
    if (path == m_leftIcon)
        return;
    m_leftIcon = path;
    {
        // One configChanged() for the whole change, sent below.
        const QSignalBlocker blocker(this);
        setHasLeftIcon(!m_leftIcon.isEmpty());
    }
    notifyIconsChanged();
}

void IKaButtonConfig::setLeftIconOn(const QString& path) {
    if (path == m_leftIconOn)
        return;
    m_leftIconOn = path;
    notifyIconsChanged();
}

void IKaButtonConfig::setRightIcon(const QString& path) {
    if (path == m_rightIcon)
        return;
    m_rightIcon = path;
    // Both states: a checked icon set earlier is overwritten on purpose.
    m_anchorOnIsRightIconOn = false;
    {
        const QSignalBlocker blocker(this);
        setHasRightIcon(!m_rightIcon.isEmpty());
    }
    notifyIconsChanged();
}

void IKaButtonConfig::setRightIconOn(const QString& path) {
    if (path == m_rightIconOn)
        return;
    m_rightIconOn = path;
    m_anchorOnIsRightIconOn = true;
    notifyIconsChanged();
}
