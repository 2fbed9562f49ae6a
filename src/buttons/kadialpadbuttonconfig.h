#pragma once

#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "karvex_export.h"

#include <QString>

// A key of a phone dial pad: a circle with the digit on top and its letters
// below, in the "button-dialpad-*" sets. A special key (the call key's
// neighbours, a voicemail key) takes the "-special-" sets. High contrast
// needs no override: the dial-pad sets of the high-contrast theme are
// bordered already.
//
// Geometry by size, modelled on the round button (the diameter is the fixed
// height and width; the digit and letter fonts are stacked and centred as a
// block with `gap` pixels between them):
//
//   size        diameter  digit font token  letters font token  gap  inner
//   ExtraLarge  72        8 (24 px)         7 (11 px)           0    56
//   Large       64        2 (20 px)         7 (11 px)           0    48
//   Normal      56        2 (20 px)         9 (11 px)           0    40   (initially)
//   Small       48        1 (16 px)         9 (11 px)           0    32
//
// Smaller sizes keep the Geometry defaults (no fixed size).
class KARVEX_EXPORT KaDialpadButtonConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(bool special READ isSpecial WRITE setSpecial NOTIFY specialChanged)
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        // BzFont token of the letters; the digit uses fontToken.
        int lettersFontToken = 0;
        // The letters' colour; the digit uses colors.textColorSet.
        QString lettersColorSet;
        int gap = 0;
    };

    explicit KaDialpadButtonConfig(QObject* parent = nullptr);
    ~KaDialpadButtonConfig() override;

    // Colours, the fixed policy, the diameter and the digit font token.
    void fillConfig(Config& out) const override;
    // The key shows no icons.
    void setHasLeftIcon(bool hasIcon) override;
    void setHasRightIcon(bool hasIcon) override;
    // fillConfig() plus the letters' font, colour and gap.
    void fillGeometry(Geometry& out) const;

    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);
    bool isSpecial() const { return m_special; }
    void setSpecial(bool special);

Q_SIGNALS:
    void sizeChanged(KaButtonEnum::Size size);
    void specialChanged(bool special);

private:
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
    bool m_special = false;
};
