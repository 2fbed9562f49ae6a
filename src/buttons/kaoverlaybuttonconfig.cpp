#include "kaoverlaybuttonconfig.h"

#include "kasizetable_p.h"

#include <QGuiApplication>

namespace {

const KaSizeTable::Entry<KaSizeTable::SquareRow> kOverlays[] = {
    {KaOverlayButtonEnum::Micro, {20, 12}}, {KaOverlayButtonEnum::ExtraSmall, {24, 13}},
    {KaOverlayButtonEnum::Small, {28, 16}}, {KaOverlayButtonEnum::Normal, {28, 16}},
    {KaOverlayButtonEnum::Large, {32, 16}}, {KaOverlayButtonEnum::ExtraLarge, {40, 20}},
};

bool isNamedType(int type) {
    return type == KaOverlayButtonEnum::ExpandAreaOverlay || type == KaOverlayButtonEnum::CollapseAreaOverlay;
}

} // namespace

KaOverlayButtonConfig::KaOverlayButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaOverlayButtonConfig::~KaOverlayButtonConfig() = default;

void KaOverlayButtonConfig::fillConfig(Config& out) const {
    out = Config();
    if (isNamedType(m_type)) {
        out.colors.backgroundColorSet = KaSizeTable::name(Karvox::button_overlay_background);
        out.colors.setBorderColorSet(KaSizeTable::name(Karvox::button_overlay_border));
        out.colors.textColorSet = KaSizeTable::name(Karvox::button_overlay_text);
    }
    if (const KaSizeTable::SquareRow* row = KaSizeTable::find(kOverlays, m_size))
        out.fixedHeight = row->side;
}

void KaOverlayButtonConfig::fillGeometry(Geometry& out) const {
    fillGeometry(out, QGuiApplication::layoutDirection());
}

void KaOverlayButtonConfig::fillGeometry(Geometry& out, Qt::LayoutDirection direction) const {
    KaSizeTable::start(out, *this);
    out.svgIcon = arrowIcon(m_type, direction);
    if (const KaSizeTable::SquareRow* row = KaSizeTable::find(kOverlays, m_size))
        out.svgIconSize = QSize(row->icon, row->icon);
}

QString KaOverlayButtonConfig::arrowIcon(KaOverlayButtonEnum::Type type, Qt::LayoutDirection direction) {
    if (!isNamedType(type))
        return QString();
    // Expanding points towards the trailing side, collapsing back.
    const bool towardsRight =
        (type == KaOverlayButtonEnum::ExpandAreaOverlay) == (direction != Qt::RightToLeft);
    return towardsRight ? QStringLiteral("qrc:/Resources/arrow-right-bold.svg")
                        : QStringLiteral("qrc:/Resources/arrow-left-bold.svg");
}

void KaOverlayButtonConfig::setHasLeftIcon(bool) {}

void KaOverlayButtonConfig::setHasRightIcon(bool) {}

void KaOverlayButtonConfig::setSize(KaOverlayButtonEnum::Size size) {
    store(m_size, size, &KaOverlayButtonConfig::sizeChanged);
}

void KaOverlayButtonConfig::setType(KaOverlayButtonEnum::Type type) {
    store(m_type, type, &KaOverlayButtonConfig::typeChanged);
}
