#include "kaemojipushbuttonconfig.h"

#include "bzfont.h"
#include "kacolortokenutils.h"

namespace {

struct ChipRow {
    int fontToken;
    int height;
    int emoji;
    int spacing;
    int padding;
    int innerMetric;
};

bool chipRow(int size, ChipRow& row) {
    switch (size) {
    case KaButtonEnum::ExtraLarge:
        row = {BzFont::ButtonLarge, 40, 24, 6, 12, 32};
        return true;
    case KaButtonEnum::Large:
        row = {BzFont::ButtonLarge, 32, 20, 6, 10, 24};
        return true;
    case KaButtonEnum::Normal:
        row = {BzFont::Button, 28, 16, 4, 8, 20};
        return true;
    case KaButtonEnum::Small:
        row = {BzFont::Caption, 24, 16, 4, 6, 16};
        return true;
    case KaButtonEnum::ExtraSmall:
        row = {BzFont::Caption, 20, 14, 2, 4, 12};
        return true;
    default:
        return false;
    }
}

QString name(Karvox::Token token) {
    return KaColorTokenUtils::tokenToString(token);
}

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
    ChipRow row;
    if (!chipRow(m_size, row))
        return;
    out.fontToken = row.fontToken;
    out.fixedHeight = row.height;
    out.innerMetric = row.innerMetric;
}

void KaEmojiPushButtonConfig::fillGeometry(Geometry& out) const {
    Config base;
    fillConfig(base);
    out = Geometry();
    static_cast<Config&>(out) = base;
    ChipRow row;
    if (!chipRow(m_size, row))
        return;
    out.emojiSize = QSize(row.emoji, row.emoji);
    if (m_hasCount) {
        out.spacing = row.spacing;
        out.paddingLeft = row.padding;
        out.paddingRight = row.padding;
    } else {
        out.spacing = 0;
        out.fixedWidth = row.height;
        const int padding = (row.height - row.emoji) / 2;
        out.paddingLeft = padding;
        out.paddingRight = row.height - row.emoji - padding;
    }
}

void KaEmojiPushButtonConfig::setHasLeftIcon(bool) {}

void KaEmojiPushButtonConfig::setHasRightIcon(bool hasCount) {
    if (hasCount == m_hasCount)
        return;
    m_hasCount = hasCount;
    Q_EMIT configChanged();
}

void KaEmojiPushButtonConfig::setSize(KaButtonEnum::Size size) {
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged(size);
    Q_EMIT configChanged();
}

void KaEmojiPushButtonConfig::setReacted(bool reacted) {
    if (reacted == m_reacted)
        return;
    m_reacted = reacted;
    Q_EMIT reactedChanged(reacted);
    Q_EMIT configChanged();
}
