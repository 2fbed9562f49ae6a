#pragma once

#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "karvex_export.h"

#include <QSize>

// A reaction chip: an emoji image and, optionally, a count, on a pill face
// in the "message-reactions-*" sets. Reacted (the user's own reaction, the
// button checked) draws outline and count in the accent set
// "message-reactions-count-has-self-reaction". The images keep their own
// colours. High contrast needs no override: the theme's reaction sets are
// bordered high-contrast colours already.
//
// Geometry by size, modelled on the pill rows (the count's font token, the
// height, the emoji's size, the spacing between emoji and count and the
// paddings):
//
//   size        font token  height  emoji  spacing  padding  inner
//   ExtraLarge  3           40      24x24  6        12       32
//   Large       3           32      20x20  6        10       24
//   Normal      4           28      16x16  4        8        20   (initially)
//   Small       7           24      16x16  4        6        16
//   ExtraSmall  7           20      14x14  2        4        12
//
// Without a count the chip is a circle: the width is fixed to the height
// and the paddings centre the emoji. The two smallest sizes keep the
// Geometry defaults.
class KARVEX_EXPORT KaEmojiPushButtonConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(bool reacted READ isReacted WRITE setReacted NOTIFY reactedChanged)
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize emojiSize{16, 16};
        int spacing = 4;
        int paddingLeft = 8;
        int paddingRight = 8;
        // 0: the width follows the content.
        int fixedWidth = 0;
    };

    explicit KaEmojiPushButtonConfig(QObject* parent = nullptr);
    ~KaEmojiPushButtonConfig() override;

    // Colours, size policy, height and the count's font token.
    void fillConfig(Config& out) const override;
    // The emoji is always shown; the left icon flag is ignored.
    void setHasLeftIcon(bool hasIcon) override;
    // Whether the count is shown (the "right" part of the chip).
    void setHasRightIcon(bool hasCount) override;
    void fillGeometry(Geometry& out) const;

    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);
    bool isReacted() const { return m_reacted; }
    void setReacted(bool reacted);
    bool hasCount() const { return m_hasCount; }

Q_SIGNALS:
    void sizeChanged(KaButtonEnum::Size size);
    void reactedChanged(bool reacted);

private:
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
    bool m_reacted = false;
    bool m_hasCount = false;
};
