#pragma once

#include "karvex_export.h"

#include <QObject>

// Dual buttons. Style and IconButtonStyle values are bit-composed codes (see
// KaDualButtonCode below), so the numbers are part of the interface and the
// declaration order, not the numeric one, is the meta-object order.
class KARVEX_EXPORT KaDualButtonEnum : public QObject {
    Q_OBJECT
public:
    enum Style {
        LabelIconSecondary = 0x33,
        LabelIconPrimary = 0x32,
        LabelIconInverted = 0x35,
        IconLabelSecondary = 0x133,
        LabelArrowSecondary = 0x93,
        AsymIconArrowGhost = 0xC1,
        AsymIconArrowSecondary = 0xC3,
        AsymIconArrowSecondaryActive = 0xC4,
        LabelIconSecondaryAlignRight = 0x233,
        IconLabelDarkThemeSecondary = 0x136,
        LabelArrowGreen = 0x97
    };
    Q_ENUM(Style)

    enum IconButtonStyle {
        SecondaryHorizontal = 0x123,
        SecondaryVertical = 0x523,
        DarkThemeSecondaryHorizontal = 0x126,
        DarkThemeSecondaryVertical = 0x526,
        InvertedHorizontal = 0x125,
        InvertedVertical = 0x525,
        AsymSecondaryHorizontal = 0x143,
        AsymIconSecondaryVertical = 0x543,
        AsymIconDarkThemeSecondaryHorizontal = 0x146,
        AsymIconDarkThemeSecondaryVertical = 0x546,
        AsymIconInvertedHorizontal = 0x145,
        AsymIconInvertedVertical = 0x545,
        AsymSecondaryHorizontalWithoutSplit = 0x43
    };
    Q_ENUM(IconButtonStyle)

    enum Size { ExtraLarge = 0, Large = 1, Normal = 2 };
    Q_ENUM(Size)
};

// Decoding of the Style and IconButtonStyle codes:
//   bits 0-3  colour scheme (ColorScheme)
//   bits 4-7  cell layout
//   0x100     icon first / icon-button cell
//   0x200     label aligned right
//   0x400     cells stacked vertically
// The functions take plain ints so that either enumeration can be passed.
namespace KaDualButtonCode {

// NoColorScheme stands for a digit that names no scheme.
enum ColorScheme {
    NoColorScheme = 0,
    Ghost = 1,
    Primary = 2,
    Secondary = 3,
    SecondaryActive = 4,
    Inverted = 5,
    DarkThemeSecondary = 6,
    Green = 7
};

constexpr int IconFirstFlag = 0x100;
constexpr int AlignRightFlag = 0x200;
constexpr int VerticalFlag = 0x400;

constexpr ColorScheme colorScheme(int code) {
    const int digit = code & 0xF;
    return digit >= Ghost && digit <= Green ? static_cast<ColorScheme>(digit) : NoColorScheme;
}
constexpr int cellLayout(int code) {
    return (code >> 4) & 0xF;
}
constexpr bool isIconFirst(int code) {
    return (code & IconFirstFlag) != 0;
}
constexpr bool isAlignedRight(int code) {
    return (code & AlignRightFlag) != 0;
}
constexpr bool isVertical(int code) {
    return (code & VerticalFlag) != 0;
}

} // namespace KaDualButtonCode
