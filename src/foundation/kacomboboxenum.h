#pragma once

#include "karvex_export.h"

#include <QObject>

// Combo boxes. Only holds enumerations.
class KARVEX_EXPORT KaComboBoxEnum : public QObject {
    Q_OBJECT
public:
    // int-based, so that a value from outside the list can be held and refused.
    enum Style : int { Outline = 0, Filled = 1 };
    Q_ENUM(Style)

    enum Size : int { Normal = 0, Large = 1 };
    Q_ENUM(Size)
};
