#pragma once

#include "karvex_export.h"

#include <QObject>

// Text fields. Only holds enumerations.
class KARVEX_EXPORT KaTextFieldEnum : public QObject {
    Q_OBJECT
public:
    // int-based, so that a value from outside the list can be held and refused.
    enum Style : int { Password = 0, Search = 1, Standard = 2, Pin = 3 };
    Q_ENUM(Style)

    enum Size : int { SingleCharacter = 0, Normal = 1, Large = 2 };
    Q_ENUM(Size)
};
