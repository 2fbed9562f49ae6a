#include "kaemojipushbuttonconfig.h"

#include "bzfont.h"
#include "kasizetable_p.h"

using KaSizeTable::name;

namespace {

// The emoji takes the icon column.
const KaSizeTable::Entry<KaSizeTable::TextRow> kChips[] = {
    {KaButtonEnum::ExtraLarge, {BzFont::ButtonLarge, 40, 24, 6, 12, 32}},
    {KaButtonEnum::Large, {BzFont::ButtonLarge, 32, 20, 6, 10, 24}},
    {KaButtonEnum::Normal, {BzFont::Button, 28, 16, 4, 8, 20}},
    {KaButtonEnum::Small, {BzFont::Caption, 24, 16, 4, 6, 16}},
    {KaButtonEnum::ExtraSmall, {BzFont::Caption, 20, 14, 2, 4, 12}},
};

} // namespace

KaEmojiPushButtonConfig::KaEmojiPushButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaEmojiPushButtonConfig::~KaEmojiPushButtonConfig() = default;

void KaEmojiPushButtonConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    out.sizePolicy = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::PushButton);
    out.colors.backgroundColorSet = name(message_reactions_background);
    const Token accent = message_reactions_count_has_self_reaction;
    out.colors.setBorderColorSet(name(m_reacted ? accent : message_reactions_outline));
    out.colors.textColorSet = name(m_reacted ? accent : message_reactions_count_default);
    if (const KaSizeTable::TextRow* row = KaSizeTable::find(kChips, m_size))
        KaSizeTable::applyText(out, *row);
}

void KaEmojiPushButtonConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    const KaSizeTable::TextRow* row = KaSizeTable::find(kChips, m_size);
    if (!row)
        return;
    out.emojiSize = QSize(row->icon, row->icon);
    if (m_hasCount) {
        out.spacing = row->spacing;
        out.paddingLeft = row->padding;
        out.paddingRight = row->padding;
    } else {
        out.spacing = 0;
        out.fixedWidth = row->height;
        const int padding = (row->height - row->icon) / 2;
        out.paddingLeft = padding;
        out.paddingRight = row->height - row->icon - padding;
    }
}

void KaEmojiPushButtonConfig::setHasLeftIcon(bool) {}

void KaEmojiPushButtonConfig::setHasRightIcon(bool hasCount) {
    store(m_hasCount, hasCount);
}

void KaEmojiPushButtonConfig::setSize(KaButtonEnum::Size size) {
    store(m_size, size, &KaEmojiPushButtonConfig::sizeChanged);
}

void KaEmojiPushButtonConfig::setReacted(bool reacted) {
    store(m_reacted, reacted, &KaEmojiPushButtonConfig::reactedChanged);
}
