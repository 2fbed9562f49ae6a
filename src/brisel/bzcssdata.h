#pragma once

#include "brisel_export.h"

#include <QMetaType>
#include <QString>

#include <array>

// The appearance record that components hand to the base layer: which colour
// sets paint the background, border and text, which border sides are drawn,
// and the geometry of the frame.
//
// The six switches are carried through unchanged by every conversion. The
// base widgets read them as follows (any non-zero value is "on"):
//   0..3  border drawn on the top, right, bottom and left side
//   4     background painted (on by default)
//   5     state colours follow hover, press and focus (on by default)
struct BRISEL_EXPORT BzCSSData {
    enum Switch {
        BorderTop = 0,
        BorderRight,
        BorderBottom,
        BorderLeft,
        PaintBackground,
        FollowState,
        SwitchCount
    };

    QString backgroundColorSet;
    QString borderColorSet;
    QString textColorSet;
    std::array<int, SwitchCount> switches{{0, 0, 0, 0, 1, 1}};
    // Corner radius in pixels; -1 means half the widget's height.
    int borderRadius = 0;
    int borderWidth = 1;
    // Style-sheet text kept behind the generated part; may use $(set) references.
    QString extraCSS;
    // Filled by BzThemeUtils::parseCSS: the template with every reference resolved.
    QString styleSheet;

    bool isOn(Switch s) const { return switches[s] != 0; }
    void setSwitch(Switch s, int value) { switches[s] = value; }
    // Sets the four border switches at once.
    void setBorders(bool on);
    bool hasAnyBorder() const;

    // Record equality ignores the resolved style sheet.
    bool operator==(const BzCSSData& other) const;
    bool operator!=(const BzCSSData& other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(BzCSSData)
