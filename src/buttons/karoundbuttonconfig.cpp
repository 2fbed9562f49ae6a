#include "karoundbuttonconfig.h"

#include <QtDebug>

KaRoundButtonConfig::KaRoundButtonConfig(QObject* parent)
    : KaButtonConfig(parent) {
    m_size = KaButtonEnum::Small;
}

KaRoundButtonConfig::~KaRoundButtonConfig() = default;

void KaRoundButtonConfig::setHasLeftIcon(bool hasIcon) {
    if (hasIcon == m_hasLeftIcon)
        return;
    m_hasLeftIcon = hasIcon;
    Q_EMIT configChanged();
}

void KaRoundButtonConfig::setHasRightIcon(bool) {
    qWarning("Setting the right icon on the KaRoundButtonConfig is not supported!");
}

void KaRoundButtonConfig::fillGeometry(Geometry& out) const {
    Config colorPart;
    fillConfig(colorPart);
    out = Geometry();
    static_cast<Config&>(out) = colorPart;
    out.sizePolicy = m_sizePolicy;

    int diameter = 0;
    int icon = 0;
    switch (m_size) {
    case KaButtonEnum::ExtraLarge:
        diameter = 64;
        icon = 32;
        break;
    case KaButtonEnum::Large:
        diameter = 52;
        icon = 28;
        break;
    case KaButtonEnum::Normal:
        diameter = 40;
        icon = 20;
        break;
    case KaButtonEnum::Small:
        diameter = 32;
        icon = 16;
        break;
    case KaButtonEnum::ExtraSmall:
        diameter = 28;
        icon = 16;
        break;
    case KaButtonEnum::ExtraExtraSmall:
        diameter = 24;
        icon = 13;
        break;
    case KaButtonEnum::ExtraExtraExtraSmall:
        diameter = 16;
        icon = 8;
        break;
    default:
        return;
    }
    out.fixedHeight = diameter;
    out.svgIconSize = QSize(icon, icon);
}
