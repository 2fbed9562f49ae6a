#include "kaoverlaybuttonconfig.h"

#include "kacolortokenutils.h"

#include <QGuiApplication>

namespace {

bool overlayRow(int size, int& height, int& icon) {
    switch (size) {
    case KaOverlayButtonEnum::Micro:
        height = 20;
        icon = 12;
        return true;
    case KaOverlayButtonEnum::ExtraSmall:
        height = 24;
        icon = 13;
        return true;
    case KaOverlayButtonEnum::Small:
    case KaOverlayButtonEnum::Normal:
        height = 28;
        icon = 16;
        return true;
    case KaOverlayButtonEnum::Large:
        height = 32;
        icon = 16;
        return true;
    case KaOverlayButtonEnum::ExtraLarge:
        height = 40;
        icon = 20;
        return true;
    default:
        return false;
    }
}

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
        out.colors.backgroundColorSet = KaColorTokenUtils::tokenToString(Karvox::button_overlay_background);
        out.colors.setBorderColorSet(KaColorTokenUtils::tokenToString(Karvox::button_overlay_border));
        out.colors.textColorSet = KaColorTokenUtils::tokenToString(Karvox::button_overlay_text);
    }
    int height = 0;
    int icon = 0;
    if (overlayRow(m_size, height, icon))
        out.fixedHeight = height;
}

void KaOverlayButtonConfig::fillGeometry(Geometry& out) const {
    fillGeometry(out, QGuiApplication::layoutDirection());
}

void KaOverlayButtonConfig::fillGeometry(Geometry& out, Qt::LayoutDirection direction) const {
    Config base;
    fillConfig(base);
    out = Geometry();
    static_cast<Config&>(out) = base;
    out.svgIcon = arrowIcon(m_type, direction);
    int height = 0;
    int icon = 0;
    if (overlayRow(m_size, height, icon))
        out.svgIconSize = QSize(icon, icon);
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
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged(size);
    Q_EMIT configChanged();
}

void KaOverlayButtonConfig::setType(KaOverlayButtonEnum::Type type) {
    if (type == m_type)
        return;
    m_type = type;
    Q_EMIT typeChanged(type);
    Q_EMIT configChanged();
}
