#include "kadialpadbuttonconfig.h"

#include "bzfont.h"
#include "kasizetable_p.h"

using KaSizeTable::name;

namespace {

struct KeyRow {
    int diameter;
    int digitFont;
    int lettersFont;
    int gap;
    int innerMetric;
};

const KaSizeTable::Entry<KeyRow> kKeys[] = {
    {KaButtonEnum::ExtraLarge, {72, BzFont::Headline, BzFont::Caption, 0, 56}},
    {KaButtonEnum::Large, {64, BzFont::Title, BzFont::Caption, 0, 48}},
    {KaButtonEnum::Normal, {56, BzFont::Title, BzFont::CaptionRegular, 0, 40}},
    {KaButtonEnum::Small, {48, BzFont::Subtitle, BzFont::CaptionRegular, 0, 32}},
};

} // namespace

KaDialpadButtonConfig::KaDialpadButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaDialpadButtonConfig::~KaDialpadButtonConfig() = default;

void KaDialpadButtonConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    out.sizePolicy = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::PushButton);
    out.colors.backgroundColorSet =
        name(m_special ? button_dialpad_special_background : button_dialpad_background);
    out.colors.textColorSet =
        name(m_special ? button_dialpad_special_text_number : button_dialpad_text_number);
    out.colors.setBorderColorSet(name(button_dialpad_border));
    if (const KeyRow* row = KaSizeTable::find(kKeys, m_size)) {
        out.fixedHeight = row->diameter;
        out.fontToken = row->digitFont;
        out.innerMetric = row->innerMetric;
    }
}

void KaDialpadButtonConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    out.lettersColorSet = m_special ? name(Karvox::button_dialpad_special_text_characters)
                                    : name(Karvox::button_dialpad_text_characters);
    if (const KeyRow* row = KaSizeTable::find(kKeys, m_size)) {
        out.lettersFontToken = row->lettersFont;
        out.gap = row->gap;
    }
}

void KaDialpadButtonConfig::setHasLeftIcon(bool) {}

void KaDialpadButtonConfig::setHasRightIcon(bool) {}

void KaDialpadButtonConfig::setSize(KaButtonEnum::Size size) {
    store(m_size, size, &KaDialpadButtonConfig::sizeChanged);
}

void KaDialpadButtonConfig::setSpecial(bool special) {
    store(m_special, special, &KaDialpadButtonConfig::specialChanged);
}
