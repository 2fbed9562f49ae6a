#pragma once

#include "kabuttonconfig.h"
#include "karvex_export.h"

#include <QSize>

// The round button: the standard colours on a circle with one centred icon
// and no text, so no font token is set. It starts at size Small. The fixed
// height is also the width the button fixes:
//
//   size                  diameter  icon
//   ExtraLarge            64        32x32
//   Large                 52        28x28
//   Normal                40        20x20
//   Small                 32        16x16
//   ExtraSmall            28        16x16
//   ExtraExtraSmall       24        13x13
//   ExtraExtraExtraSmall  16        8x8
//
// A size outside the table keeps the Geometry defaults. A round button has
// no anchor icon: setHasRightIcon() refuses with a warning.
class KARVEX_EXPORT KaRoundButtonConfig : public KaButtonConfig {
    Q_OBJECT
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize svgIconSize{12, 12};
    };

    explicit KaRoundButtonConfig(QObject* parent = nullptr);
    ~KaRoundButtonConfig() override;

    void setHasLeftIcon(bool hasIcon) override;
    // Stores nothing and warns.
    void setHasRightIcon(bool hasIcon) override;
    bool hasLeftIcon() const { return m_hasLeftIcon; }
    QSizePolicy sizePolicy() const { return m_sizePolicy; }

    // fillConfig()'s colours, the fixed policy and the size table.
    void fillGeometry(Geometry& out) const;

private:
    QSizePolicy m_sizePolicy{QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::DefaultType};
    bool m_hasLeftIcon = false;
};
