#pragma once

#include "karvex_export.h"

#include <QObject>

// Badge looks. Only holds enumerations.
class KARVEX_EXPORT KaBadgeEnum : public QObject {
    Q_OBJECT
public:
    enum Style { DefaultBadge = 0, Announcement = 1, AlertWarning = 2, Important = 3, AlertGeneral = 4 };
    Q_ENUM(Style)
};
