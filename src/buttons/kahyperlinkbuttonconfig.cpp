#include "kahyperlinkbuttonconfig.h"

#include "bzfont.h"
#include "kasizetable_p.h"

using KaSizeTable::name;

namespace {

const KaSizeTable::Entry<KaSizeTable::TextRow> kLinks[] = {
    {KaButtonEnum::ExtraLarge, {BzFont::ButtonLarge, 40, 20, 6, 8, 32}},
    {KaButtonEnum::Large, {BzFont::ButtonLarge, 32, 16, 6, 6, 24}},
    {KaButtonEnum::Normal, {BzFont::Button, 28, 16, 4, 4, 20}},
    {KaButtonEnum::Small, {BzFont::Button, 28, 16, 4, 4, 20}},
    {KaButtonEnum::ExtraSmall, {BzFont::Caption, 24, 16, 4, 2, 16}},
};

} // namespace

KaHyperlinkButtonConfig::KaHyperlinkButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaHyperlinkButtonConfig::~KaHyperlinkButtonConfig() = default;

void KaHyperlinkButtonConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    out.sizePolicy = QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed, QSizePolicy::PushButton);
    out.colors.backgroundColorSet = name(button_hyperlink_background);
    out.colors.setBorderColorSet(name(button_hyperlink_border));
    out.colors.textColorSet = name(button_hyperlink_text);
    out.colors.underlineText = m_alwaysUnderline;
    out.acceleratorType = m_customValue;
    if (const KaSizeTable::TextRow* row = KaSizeTable::find(kLinks, m_size))
        KaSizeTable::applyText(out, *row);
}

void KaHyperlinkButtonConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    const KaSizeTable::TextRow* row = KaSizeTable::find(kLinks, m_size);
    if (!row)
        return;
    out.paddingLeft = row->padding;
    out.paddingRight = row->padding;
    KaSizeTable::iconSlot(m_hasLeftIcon, *row, out.svgIconSize, out.svgIconSpacing);
    out.svgIconVisible = m_hasLeftIcon;
}

void KaHyperlinkButtonConfig::setHasLeftIcon(bool hasIcon) {
    store(m_hasLeftIcon, hasIcon);
}

// A link has no trailing icon.
void KaHyperlinkButtonConfig::setHasRightIcon(bool) {}

void KaHyperlinkButtonConfig::setCustomValue(int value) {
    store(m_customValue, value);
}

void KaHyperlinkButtonConfig::setSize(KaButtonEnum::Size size) {
    store(m_size, size, &KaHyperlinkButtonConfig::sizeChanged);
}

void KaHyperlinkButtonConfig::setAlwaysUnderline(bool always) {
    store(m_alwaysUnderline, always, &KaHyperlinkButtonConfig::alwaysUnderlineChanged);
}
