#pragma once

#include "kabuttonconfig.h"
#include "karvex_export.h"

#include <QPoint>
#include <QSize>

// The pill: the standard colours with a text height, paddings and optional
// icons on both sides. Geometry by size (each icon's size and spacing apply
// only while that icon is present; an absent one gets 0 by 0 and spacing 0):
//
//   size             font token  height  icon   spacing  padding  inner  anchor offset
//   ExtraLarge       3           40      20x20  6        16       32     0,1
//   Large            3           32      16x16  6        12       24     2,1
//   Normal, Small    4           28      16x16  4        10       20     2,1
//   ExtraSmall       7           24      16x16  4        8        16     0,0
//
// The two smallest sizes are not pill sizes: they keep the Geometry defaults
// and both icons stay hidden.
class KARVEX_EXPORT KaPillButtonConfig : public KaButtonConfig {
    Q_OBJECT
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize svgIconSize{12, 12};
        QSize anchorIconSize{12, 12};
        QPoint anchorSvgOffset{0, 0};
        int svgIconSpacing = 6;
        int anchorIconSpacing = 6;
        int paddingLeft = 16;
        int paddingRight = 16;
        bool alignAnchorIconToText = true;
        bool svgIconVisible = false;
        bool anchorIconVisible = false;
    };

    explicit KaPillButtonConfig(QObject* parent = nullptr);
    ~KaPillButtonConfig() override;

    void setHasLeftIcon(bool hasIcon) override;
    void setHasRightIcon(bool hasIcon) override;
    bool hasLeftIcon() const { return m_hasLeftIcon; }
    bool hasRightIcon() const { return m_hasRightIcon; }

    // The whole pill record: fillConfig()'s colours, then the size table.
    void fillGeometry(Geometry& out) const;

private:
    bool m_hasLeftIcon = false;
    bool m_hasRightIcon = false;
};
