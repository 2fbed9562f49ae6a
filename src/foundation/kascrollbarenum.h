#pragma once

#include "karvex_export.h"

#include <QObject>

// Scroll bars. Only holds enumerations.
class KARVEX_EXPORT KaScrollbarEnum : public QObject {
    Q_OBJECT
public:
    // int-based, so that a value from outside the list can be held and refused.
    enum MinimumSize : int { Small = 0, Normal = 1 };
    Q_ENUM(MinimumSize)
};
