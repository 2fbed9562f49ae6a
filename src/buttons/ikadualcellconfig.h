#pragma once

#include "bzenum.h"
#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "kadualbuttonenum.h"
#include "karvex_export.h"

#include <QSize>
#include <QString>

// One half of a dual button. The dual-button configuration owns two cells
// and pushes its decoded state into them (setSize, setPlacement); each cell
// then fills its own record, and the cell's widget refreshes on the cell's
// configChanged().
//
// Colours come from the standard colour table through the code's colour
// scheme, high contrast included:
//
//   scheme               style (state)
//   Ghost                Ghost (the cell's state)
//   Primary              Primary
//   Secondary            Secondary (the cell's state)
//   SecondaryActive      Secondary (always Active)
//   Inverted             Inverted
//   DarkThemeSecondary   DarkThemeSecondary, DarkThemeSecondaryActive when Active
//   Green                Join
//   none                 no colours (the primary look in high contrast)
//
// The two cells share one edge. Sides are in left-to-right terms; in a
// vertical arrangement the leading cell is the top one. The leading cell
// draws the shared edge as part of its border, the trailing one leaves its
// start side open; without a split neither draws it. A split between
// borderless cells is drawn in separatorColorSet by the leading cell. The
// leading cell rounds its start corners, the trailing one its end corners.
class KARVEX_EXPORT IKaDualCellConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaDualButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(int minimumWidth READ minimumWidth WRITE setMinimumWidth NOTIFY minimumWidthChanged)
public:
    enum CellType { LabelCell = 0, IconCell = 1 };
    Q_ENUM(CellType)
    enum Position { Leading = 0, Trailing = 1 };
    Q_ENUM(Position)

    // Where the cell sits and how the button reads; set by the dual button.
    struct KARVEX_EXPORT Placement {
        // A KaDualButtonEnum::Style or IconButtonStyle code.
        int code = 0;
        Position position = Leading;
        // Whether the two cells are visibly separate buttons.
        bool split = true;
        KaButtonEnum::State state = KaButtonEnum::Inactive;

        bool operator==(const Placement& other) const;
        bool operator!=(const Placement& other) const { return !(*this == other); }
    };

    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize svgIconSize{12, 12};
        QSize anchorIconSize{12, 12};
        int svgIconSpacing = 6;
        int anchorIconSpacing = 6;
        int paddingLeft = 16;
        int paddingRight = 16;
        // 0: no lower bound / not fixed.
        int minimumWidth = 0;
        int fixedWidth = 0;
        bool svgIconVisible = false;
        bool anchorIconVisible = false;
        BzEnum::HorAlign textAlignment = BzEnum::Center;
        bool vertical = false;
        bool roundStart = true;
        bool roundEnd = true;
        // Drawn on the end side; empty when the border draws the split.
        QString separatorColorSet;
        // The arrow an arrow cell shows, or an icon cell's anchor; else empty.
        QString arrowIcon;
    };

    explicit IKaDualCellConfig(int cellType, QObject* parent = nullptr);
    ~IKaDualCellConfig() override;

    // The whole cell record: fillConfig() plus the cell's geometry.
    virtual void fillGeometry(Geometry& out) const = 0;
    // Both cells keep the two icon flags; configChanged() on a change.
    void setHasLeftIcon(bool hasIcon) override;
    void setHasRightIcon(bool hasIcon) override;

    int cellType() const { return m_cellType; }
    KaDualButtonEnum::Size size() const { return m_size; }
    void setSize(KaDualButtonEnum::Size size);
    // The label cell's lower bound for its width.
    int minimumWidth() const { return m_minimumWidth; }
    void setMinimumWidth(int width);
    Placement placement() const { return m_placement; }
    void setPlacement(const Placement& placement);
    bool hasLeftIcon() const { return m_hasLeftIcon; }
    bool hasRightIcon() const { return m_hasRightIcon; }

    // The placement's code, decoded.
    KaDualButtonCode::ColorScheme colorScheme() const;
    bool isVertical() const;
    bool isAlignedRight() const;
    // The trailing half of a label-arrow (9), icon-arrow (12) or asymmetric
    // icon-button (4) layout: a narrow cell showing only an arrow.
    bool isArrowCell() const;

Q_SIGNALS:
    void sizeChanged(KaDualButtonEnum::Size size);
    void minimumWidthChanged(int width);

protected:
    // The colour part shared by both cells, with the borders of the cell's
    // position; everything else at the record defaults.
    void fillCellColors(Config& out) const;
    // Starts `out` from fillConfig() and sets the shape: vertical, corners,
    // separator.
    void fillCellShape(Geometry& out) const;

    bool m_hasLeftIcon = false;
    bool m_hasRightIcon = false;

private:
    int m_cellType;
    KaDualButtonEnum::Size m_size = KaDualButtonEnum::Large;
    int m_minimumWidth = 32;
    Placement m_placement;
};
