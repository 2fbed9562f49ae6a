#include "kaiconbuttonconfig.h"

#include "kaconfig.h"
#include "kasizetable_p.h"

using KaSizeTable::name;

namespace {

const KaSizeTable::Entry<KaSizeTable::SquareRow> kSquares[] = {
    {KaButtonEnum::ExtraLarge, {40, 24}},
    {KaButtonEnum::Large, {32, 20}},
    {KaButtonEnum::Normal, {28, 16}},
    {KaButtonEnum::Small, {24, 16}},
    {KaButtonEnum::ExtraSmall, {20, 12}},
    {KaButtonEnum::ExtraExtraSmall, {16, 12}},
    {KaButtonEnum::ExtraExtraExtraSmall, {12, 8}},
};

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

    if (const KaSizeTable::SquareRow* row = KaSizeTable::find(kSquares, m_size))
        out.fixedHeight = row->side;
}

void KaIconButtonConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    if (const KaSizeTable::SquareRow* row = KaSizeTable::find(kSquares, m_size))
        out.svgIconSize = QSize(row->icon, row->icon);
}

void KaIconButtonConfig::setHasLeftIcon(bool) {}

void KaIconButtonConfig::setHasRightIcon(bool) {}

void KaIconButtonConfig::setType(KaIconButtonEnum::Type type) {
    store(m_type, type, &KaIconButtonConfig::typeChanged);
}

void KaIconButtonConfig::setStyle(KaIconButtonEnum::Style style) {
    store(m_style, style, &KaIconButtonConfig::styleChanged);
}

void KaIconButtonConfig::setSize(KaButtonEnum::Size size) {
    store(m_size, size, &KaIconButtonConfig::sizeChanged);
}
