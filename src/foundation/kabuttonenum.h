#pragma once

#include "karvex_export.h"

#include <QObject>

// Looks of the standard button family. Only holds enumerations.
class KARVEX_EXPORT KaButtonEnum : public QObject {
    Q_OBJECT
public:
    // Fixed underlying types: forms and scripts can hand in values that are
    // not keys, which the setters then refuse.
    enum Style : int {
        Primary = 0,
        Secondary = 1,
        Ghost = 2,
        CancelGhost = 3,
        MessageGhost = 4,
        Join = 5,
        OutlineJoin = 6,
        Cancel = 7,
        OutlineCancel = 8,
        Message = 9,
        DarkThemePrimary = 10,
        DarkThemeSecondary = 11,
        DarkThemeSecondaryActive = 12,
        GlobalHeaderDeviceActive = 13,
        GlobalHeaderDeviceInactive = 14,
        GlobalHeaderIcon = 15,
        GlobalHeaderSearchCancel = 16,
        Inverted = 17,
        TeachingPrimary = 18,
        TeachingSecondary = 19
    };
    Q_ENUM(Style)

    enum Size : int {
        ExtraLarge = 0,
        Large = 1,
        Normal = 2,
        Small = 3,
        ExtraSmall = 4,
        ExtraExtraSmall = 5,
        ExtraExtraExtraSmall = 6
    };
    Q_ENUM(Size)

    enum State { Active = 0, Inactive = 1 };
    Q_ENUM(State)
};
