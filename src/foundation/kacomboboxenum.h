#pragma once

#include "karvex_export.h"

#include <QObject>

// Combo boxes. Only holds enumerations.
class KARVEX_EXPORT KaComboBoxEnum : public QObject {
    Q_OBJECT
public:
    enum Style { Outline = 0, Filled = 1 };
    Q_ENUM(Style)

    enum Size { Normal = 0, Large = 1 };
    Q_ENUM(Size)
};
