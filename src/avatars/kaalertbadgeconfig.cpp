#include "kaalertbadgeconfig.h"

#include "bzfont.h"
#include "kacolortokenutils.h"

#include <QtDebug>

namespace {

struct StyleRow {
    Karvox::Token background;
    Karvox::Token text;
    const char* icon;
};

// Indexed by KaBadgeEnum::Style; the warning and general pairings are meant.
const StyleRow kStyles[] = {
    {Karvox::alertbadge_default_background, Karvox::alertbadge_default_text, nullptr},
    {Karvox::alertbadge_announcement_background, Karvox::alertbadge_announcement_text,
     "qrc:/Resources/announcement-bold.svg"},
    {Karvox::alertbadge_warning_background, Karvox::alertbadge_warning_text,
     "qrc:/Resources/external-user-bold.svg"},
    {Karvox::alertbadge_important_background, Karvox::alertbadge_important_text,
     "qrc:/Resources/shield-bold.svg"},
    {Karvox::alertbadge_blocked_background, Karvox::alertbadge_blocked_text,
     "qrc:/Resources/blocked-bold.svg"},
};
constexpr int kStyleCount = int(sizeof(kStyles) / sizeof(kStyles[0]));

} // namespace

KaAlertBadgeConfig::KaAlertBadgeConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaAlertBadgeConfig::~KaAlertBadgeConfig() = default;

void KaAlertBadgeConfig::setStyle(KaBadgeEnum::Style style) {
    if (style < 0 || style >= kStyleCount) {
        qWarning("KaAlertBadgeConfig: unknown badge style %d, using DefaultBadge", int(style));
        style = KaBadgeEnum::DefaultBadge;
    }
    store(m_style, style, &KaAlertBadgeConfig::styleChanged);
}

QString KaAlertBadgeConfig::iconPath(KaBadgeEnum::Style style) {
    if (style < 0 || style >= kStyleCount || !kStyles[style].icon)
        return QString();
    return QString::fromLatin1(kStyles[style].icon);
}

void KaAlertBadgeConfig::setHasLeftIcon(bool hasIcon) {
    store(m_hasLeftIcon, hasIcon);
}

void KaAlertBadgeConfig::setHasRightIcon(bool) {}

void KaAlertBadgeConfig::fillConfig(Config& out) const {
    out = Config();
    const StyleRow& row = kStyles[m_style];
    out.colors.backgroundColorSet = KaColorTokenUtils::tokenToString(row.background);
    out.colors.textColorSet = KaColorTokenUtils::tokenToString(row.text);
    out.colors.fixedColors = true;
    out.focusPolicy = Qt::NoFocus;
    out.sizePolicy = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    out.fontToken = BzFont::Caption;
    out.fixedHeight = 20;
    out.innerMetric = 12;
}

void KaAlertBadgeConfig::fillGeometry(Geometry& out) const {
    Config base;
    fillConfig(base);
    out = Geometry();
    static_cast<Config&>(out) = base;
}
