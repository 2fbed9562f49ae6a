#pragma once

#include "ikadualcellconfig.h"
#include "karvex_export.h"

// The icon cell of a dual button: a square with one centred icon, or, as the
// trailing half of an arrow layout, a narrow cell showing only the arrow.
// No text, so no font token. By size:
//
//   size        side  icon   arrow cell length  arrow icon  anchor spacing  inner
//   ExtraLarge  40    20x20  28                 16x16       6               32
//   Large       32    16x16  24                 12x12       6               24
//   Normal      28    16x16  20                 12x12       4               20
//
// The square is side by side; an arrow cell is `length` wide and `side` tall
// (the other way round when the cells are stacked vertically). Paddings
// centre the icon. The icon shows only with setHasLeftIcon(true) (an arrow
// cell always shows its arrow); setHasRightIcon(true) adds an anchor arrow
// beside the icon, which frees the width (at least `side`). A size outside
// the table keeps the Geometry defaults.
class KARVEX_EXPORT KaDualIconCellConfig : public IKaDualCellConfig {
    Q_OBJECT
public:
    explicit KaDualIconCellConfig(QObject* parent = nullptr);
    ~KaDualIconCellConfig() override;

    // Colours, fixed size policy, height and inner metric.
    void fillConfig(Config& out) const override;
    void fillGeometry(Geometry& out) const override;

    static QString arrowIconPath();
};
