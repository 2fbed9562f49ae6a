#pragma once

#include "karvex_export.h"

#include <QSizePolicy>
#include <QString>

#include <array>

// The appearance record a button configuration fills and a button applies as
// a whole. Colours are colour-set names (colour-token names); the button
// resolves them against its theme. Geometry records of the variants derive
// from this one, so a variant's fill starts from the same defaults.
struct KARVEX_EXPORT KaButtonConfigRecord {
    enum BorderSide { BorderTop = 0, BorderRight, BorderBottom, BorderLeft, BorderSideCount };

    struct KARVEX_EXPORT Colors {
        // Button face.
        QString backgroundColorSet;
        // Empty for a borderless look; set it with setBorderColorSet().
        QString borderColorSet;
        // Label text; icon-only looks put their icon colour here.
        QString textColorSet;
        // Left empty by the standard looks: the icon then follows the text.
        QString iconColorSet;
        // Indexed by BorderSide, in left-to-right terms (mirrored for
        // right-to-left layouts by the button).
        std::array<bool, BorderSideCount> hasBorder{{false, false, false, false}};
        // How the button reads the colours.
        bool squareCorners = false;  // radius 0 instead of half the height
        bool fixedColors = false;    // ignore hover, press and focus colours
        bool paintBackground = true; // false leaves the face unpainted
        bool underlineText = false;  // link-like label

        // Stores `name` and sets all four sides to whether it is more than
        // white space, so a blank name never draws a border.
        void setBorderColorSet(const QString& name);
        bool hasAnyBorder() const;

        bool operator==(const Colors& other) const;
        bool operator!=(const Colors& other) const { return !(*this == other); }
    };

    QSizePolicy sizePolicy;
    Qt::FocusPolicy focusPolicy = Qt::StrongFocus;
    // Arrangement of icon and text: 1 is icon beside text; variants may use
    // other values. The button recomputes its geometry when it changes.
    int layoutMode = 1;
    Colors colors;
    // BzFont::Token; 0 (body text) unless a size table says otherwise.
    int fontToken = 0;
    // Accessibility accelerator type, copied from setCustomValue().
    int acceleratorType = 0;
    // 0 leaves the height free.
    int fixedHeight = 0;
    // Height of the content box inside the face (the face less 4 px above
    // and below); the button repaints when it changes.
    int innerMetric = 0;
};
