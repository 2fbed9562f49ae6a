#pragma once

#include "karvex_export.h"

#include <QObject>

// Tabs of the navigation rail. Only holds enumerations.
class KARVEX_EXPORT KaTabEnum : public QObject {
    Q_OBJECT
public:
    // The host maps its own navigation sections onto SECTION_01..SECTION_21;
    // the library only stores and reports them. NONE means no section.
    enum Type {
        SECTION_01 = 0,
        SECTION_02 = 1,
        SECTION_03 = 2,
        SECTION_04 = 3,
        SECTION_05 = 4,
        SECTION_06 = 5,
        SECTION_07 = 6,
        SECTION_08 = 7,
        SECTION_09 = 8,
        SECTION_10 = 9,
        SECTION_11 = 10,
        SECTION_12 = 11,
        SECTION_13 = 12,
        SECTION_14 = 13,
        SECTION_15 = 14,
        SECTION_16 = 15,
        SECTION_17 = 16,
        SECTION_18 = 17,
        SECTION_19 = 18,
        SECTION_20 = 19,
        SECTION_21 = 20,
        NONE = 21
    };
    Q_ENUM(Type)

    enum Style { ACTIVE = 0, INACTIVE = 1 };
    Q_ENUM(Style)

    enum State { EXPANDED = 0, COLLAPSED = 1 };
    Q_ENUM(State)
};
