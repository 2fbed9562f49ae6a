#include "kadialpadbuttonconfig.h"

#include "bzfont.h"
#include "kacolortokenutils.h"

namespace {

struct KeyRow {
    int diameter;
    int digitFont;
    int lettersFont;
    int gap;
    int innerMetric;
};

bool keyRow(int size, KeyRow& row) {
    switch (size) {
    case KaButtonEnum::ExtraLarge:
        row = {72, BzFont::Headline, BzFont::Caption, 0, 56};
        return true;
    case KaButtonEnum::Large:
        row = {64, BzFont::Title, BzFont::Caption, 0, 48};
        return true;
    case KaButtonEnum::Normal:
        row = {56, BzFont::Title, BzFont::CaptionRegular, 0, 40};
        return true;
    case KaButtonEnum::Small:
        row = {48, BzFont::Subtitle, BzFont::CaptionRegular, 0, 32};
        return true;
    default:
        return false;
    }
}

QString name(Karvox::Token token) {
    return KaColorTokenUtils::tokenToString(token);
}

} // namespace

KaDialpadButtonConfig::KaDialpadButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaDialpadButtonConfig::~KaDialpadButtonConfig() = default;

void KaDialpadButtonConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    out.sizePolicy = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::PushButton);
    if (m_special) {
        out.colors.backgroundColorSet = name(button_dialpad_special_background);
        out.colors.textColorSet = name(button_dialpad_special_text_number);
    } else {
        out.colors.backgroundColorSet = name(button_dialpad_background);
        out.colors.textColorSet = name(button_dialpad_text_number);
    }
    out.colors.setBorderColorSet(name(button_dialpad_border));
    KeyRow row;
    if (!keyRow(m_size, row))
        return;
    out.fixedHeight = row.diameter;
    out.fontToken = row.digitFont;
    out.innerMetric = row.innerMetric;
}

void KaDialpadButtonConfig::fillGeometry(Geometry& out) const {
    Config base;
    fillConfig(base);
    out = Geometry();
    static_cast<Config&>(out) = base;
    out.lettersColorSet = m_special ? name(Karvox::button_dialpad_special_text_characters)
                                    : name(Karvox::button_dialpad_text_characters);
    KeyRow row;
    if (!keyRow(m_size, row))
        return;
    out.digitFontToken = row.digitFont;
    out.lettersFontToken = row.lettersFont;
    out.gap = row.gap;
}

void KaDialpadButtonConfig::setHasLeftIcon(bool) {}

void KaDialpadButtonConfig::setHasRightIcon(bool) {}

void KaDialpadButtonConfig::setSize(KaButtonEnum::Size size) {
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged(size);
    Q_EMIT configChanged();
}

void KaDialpadButtonConfig::setSpecial(bool special) {
    if (special == m_special)
        return;
    m_special = special;
    Q_EMIT specialChanged(special);
    Q_EMIT configChanged();
}
