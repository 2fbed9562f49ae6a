#include "kaiconbuttonconfig.h"

#include "kacolortokenutils.h"
#include "kaconfig.h"

namespace {

QString name(Karvox::Token token) {
    return KaColorTokenUtils::tokenToString(token);
}

// Side and icon of the square, or false for a size outside the table.
bool squareRow(int size, int& side, int& icon) {
    switch (size) {
    case KaButtonEnum::ExtraLarge:
        side = 40;
        icon = 24;
        return true;
    case KaButtonEnum::Large:
        side = 32;
        icon = 20;
        return true;
    case KaButtonEnum::Normal:
        side = 28;
        icon = 16;
        return true;
    case KaButtonEnum::Small:
        side = 24;
        icon = 16;
        return true;
    case KaButtonEnum::ExtraSmall:
        side = 20;
        icon = 12;
        return true;
    case KaButtonEnum::ExtraExtraSmall:
        side = 16;
        icon = 12;
        return true;
    case KaButtonEnum::ExtraExtraExtraSmall:
        side = 12;
        icon = 8;
        return true;
    default:
        return false;
    }
}

} // namespace

KaIconButtonConfig::KaIconButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaIconButtonConfig::~KaIconButtonConfig() = default;

void KaIconButtonConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    out.sizePolicy = m_sizePolicy;

    const bool active = m_style == KaIconButtonEnum::ACTIVE;
    Token icon = interactiveicon_container_background;
    bool coloured = true;
    // By value: 4 to 6 are all primary filled icons, whatever their names.
    switch (int(m_type)) {
    case 1:
    case 4:
    case 5:
    case 6:
        icon = active ? interactiveicon_primary_filled_icon_active
                      : interactiveicon_primary_filled_icon_inactive;
        break;
    case 2:
        // Only an active favourite has a colour of its own.
        icon = active ? interactiveicon_tertiary_filled_favorite_icon_active
                      : interactiveicon_tertiary_filled_icon_inactive;
        break;
    case 3:
        icon = active ? interactiveicon_primary_outline_icon_active
                      : interactiveicon_primary_outline_icon_inactive;
        break;
    default:
        coloured = false;
        break;
    }
    if (coloured) {
        out.colors.backgroundColorSet = name(interactiveicon_container_background);
        out.colors.textColorSet = name(icon);
    }
    if (KaConfig::highContrast)
        out.colors.setBorderColorSet(name(button_primary_border));

    int side = 0;
    int iconSide = 0;
    if (squareRow(m_size, side, iconSide))
        out.fixedHeight = side;
}

void KaIconButtonConfig::fillGeometry(Geometry& out) const {
    Config base;
    fillConfig(base);
    out = Geometry();
    static_cast<Config&>(out) = base;
    int side = 0;
    int icon = 0;
    if (squareRow(m_size, side, icon))
        out.svgIconSize = QSize(icon, icon);
}

void KaIconButtonConfig::setHasLeftIcon(bool) {}

void KaIconButtonConfig::setHasRightIcon(bool) {}

void KaIconButtonConfig::setType(KaIconButtonEnum::Type type) {
    if (type == m_type)
        return;
    m_type = type;
    Q_EMIT typeChanged(type);
    Q_EMIT configChanged();
}

void KaIconButtonConfig::setStyle(KaIconButtonEnum::Style style) {
    if (style == m_style)
        return;
    m_style = style;
    Q_EMIT styleChanged(style);
    Q_EMIT configChanged();
}

void KaIconButtonConfig::setSize(KaButtonEnum::Size size) {
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged(size);
    Q_EMIT configChanged();
}
