#pragma once

#include "karvex_export.h"

#include <QObject>

// Overlay buttons. Only holds enumerations.
class KARVEX_EXPORT KaOverlayButtonEnum : public QObject {
    Q_OBJECT
public:
    enum Type { None = 0, ExpandAreaOverlay = 1, CollapseAreaOverlay = 2 };
    Q_ENUM(Type)

    enum Size { Micro = 0, ExtraSmall = 1, Small = 2, Normal = 3, Large = 4, ExtraLarge = 5 };
    Q_ENUM(Size)
};
