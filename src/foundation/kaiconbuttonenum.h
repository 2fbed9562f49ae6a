#pragma once

#include "karvex_export.h"

#include <QObject>

// Icon buttons: activity state and the built-in icon. Only holds enumerations.
class KARVEX_EXPORT KaIconButtonEnum : public QObject {
    Q_OBJECT
public:
    enum Style : int { ACTIVE = 0, INACTIVE = 1 };
    Q_ENUM(Style)

    enum Type : int { None = 0, Settings = 1, Favorite = 2, Attachment = 3, Pen = 4, Info = 5, Dismiss = 6 };
    Q_ENUM(Type)
};
