#include "kahyperlinkbuttonconfig.h"

#include "bzfont.h"
#include "kacolortokenutils.h"

namespace {

struct LinkRow {
    int fontToken;
    int height;
    int icon;
    int spacing;
    int padding;
    int innerMetric;
};

bool linkRow(int size, LinkRow& row) {
    switch (size) {
    case KaButtonEnum::ExtraLarge:
        row = {BzFont::ButtonLarge, 40, 20, 6, 8, 32};
        return true;
    case KaButtonEnum::Large:
        row = {BzFont::ButtonLarge, 32, 16, 6, 6, 24};
        return true;
    case KaButtonEnum::Normal:
    case KaButtonEnum::Small:
        row = {BzFont::Button, 28, 16, 4, 4, 20};
        return true;
    case KaButtonEnum::ExtraSmall:
        row = {BzFont::Caption, 24, 16, 4, 2, 16};
        return true;
    default:
        return false;
    }
}

} // namespace

KaHyperlinkButtonConfig::KaHyperlinkButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaHyperlinkButtonConfig::~KaHyperlinkButtonConfig() = default;

void KaHyperlinkButtonConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    out.sizePolicy = QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed, QSizePolicy::PushButton);
    out.colors.backgroundColorSet = KaColorTokenUtils::tokenToString(button_hyperlink_background);
    out.colors.setBorderColorSet(KaColorTokenUtils::tokenToString(button_hyperlink_border));
    out.colors.textColorSet = KaColorTokenUtils::tokenToString(button_hyperlink_text);
    out.colors.underlineText = m_alwaysUnderline;
    out.acceleratorType = m_customValue;
    LinkRow row;
    if (!linkRow(m_size, row))
        return;
    out.fontToken = row.fontToken;
    out.fixedHeight = row.height;
    out.innerMetric = row.innerMetric;
}

void KaHyperlinkButtonConfig::fillGeometry(Geometry& out) const {
    Config base;
    fillConfig(base);
    out = Geometry();
    static_cast<Config&>(out) = base;
    LinkRow row;
    if (!linkRow(m_size, row))
        return;
    out.paddingLeft = row.padding;
    out.paddingRight = row.padding;
    out.svgIconSize = m_hasLeftIcon ? QSize(row.icon, row.icon) : QSize(0, 0);
    out.svgIconSpacing = m_hasLeftIcon ? row.spacing : 0;
    out.svgIconVisible = m_hasLeftIcon;
}

void KaHyperlinkButtonConfig::setHasLeftIcon(bool hasIcon) {
    if (hasIcon == m_hasLeftIcon)
        return;
    m_hasLeftIcon = hasIcon;
    Q_EMIT configChanged();
}

// A link has no trailing icon.
void KaHyperlinkButtonConfig::setHasRightIcon(bool) {}

void KaHyperlinkButtonConfig::setCustomValue(int value) {
    if (value == m_customValue)
        return;
    m_customValue = value;
    Q_EMIT configChanged();
}

void KaHyperlinkButtonConfig::setSize(KaButtonEnum::Size size) {
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged(size);
    Q_EMIT configChanged();
}

void KaHyperlinkButtonConfig::setAlwaysUnderline(bool always) {
    if (always == m_alwaysUnderline)
        return;
    m_alwaysUnderline = always;
    Q_EMIT alwaysUnderlineChanged(always);
    Q_EMIT configChanged();
}
