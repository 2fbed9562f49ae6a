#pragma once

#include "karvex_export.h"

#include <QObject>

// Scroll bars. Only holds enumerations.
class KARVEX_EXPORT KaScrollbarEnum : public QObject {
    Q_OBJECT
public:
    enum MinimumSize { Small = 0, Normal = 1 };
    Q_ENUM(MinimumSize)
};
