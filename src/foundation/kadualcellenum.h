#pragma once

#include "karvex_export.h"

#include <QObject>

// Holder for the dual-button cells. It declares no enumeration yet but keeps
// its meta-object so that the cell types can be named like the other holders.
class KARVEX_EXPORT KaDualCellEnum : public QObject {
    Q_OBJECT
};
