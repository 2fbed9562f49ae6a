#include "ikabuttonconfig.h"

#include <QSignalBlocker>

IKaButtonConfig::IKaButtonConfig(QObject* parent)
    : QObject(parent) {}

IKaButtonConfig::~IKaButtonConfig() = default;

void IKaButtonConfig::setCustomValue(int) {}

void IKaButtonConfig::setLeftIcon(const QString& path) {
    if (path == m_leftIcon)
        return;
    m_leftIcon = path;
    {
        // One configChanged() for the whole change, sent below.
        const QSignalBlocker blocker(this);
        setHasLeftIcon(!m_leftIcon.isEmpty());
    }
    Q_EMIT iconsChanged();
    Q_EMIT configChanged();
}

void IKaButtonConfig::setLeftIconOn(const QString& path) {
    if (path == m_leftIconOn)
        return;
    m_leftIconOn = path;
    Q_EMIT iconsChanged();
    Q_EMIT configChanged();
}

void IKaButtonConfig::setRightIcon(const QString& path) {
    if (path == m_rightIcon)
        return;
    m_rightIcon = path;
    // Both states: a checked icon set earlier is overwritten on purpose.
    m_anchorSvgOff = path;
    m_anchorSvgOn = path;
    {
        const QSignalBlocker blocker(this);
        setHasRightIcon(!m_rightIcon.isEmpty());
    }
    Q_EMIT iconsChanged();
    Q_EMIT configChanged();
}

void IKaButtonConfig::setRightIconOn(const QString& path) {
    if (path == m_rightIconOn)
        return;
    m_rightIconOn = path;
    m_anchorSvgOn = path;
    Q_EMIT iconsChanged();
    Q_EMIT configChanged();
}
