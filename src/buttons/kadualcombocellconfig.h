#pragma once

#include "ikadualcellconfig.h"
#include "karvex_export.h"

// The label cell of a dual combo button: text with an optional leading icon
// (setHasLeftIcon) and an optional trailing anchor icon (setHasRightIcon).
// Geometry follows the pill rows for the three dual-button sizes; icon size
// and spacing apply only to a present icon:
//
//   size        font token  height  icon   spacing  padding  inner
//   ExtraLarge  3           40      20x20  6        16       32
//   Large       3           32      16x16  6        12       24
//   Normal      4           28      16x16  4        10       20
//
// The width may grow (preferred horizontally) but not below minimumWidth();
// the text is centred, or aligned to the trailing side for a right-aligned
// code. A size outside the table keeps the Geometry defaults.
class KARVEX_EXPORT KaDualComboCellConfig : public IKaDualCellConfig {
    Q_OBJECT
public:
    explicit KaDualComboCellConfig(QObject* parent = nullptr);
    ~KaDualComboCellConfig() override;

    // Colours, size policy, height, font token and inner metric.
    void fillConfig(Config& out) const override;
    void fillGeometry(Geometry& out) const override;
};
