#pragma once

#include "karvex_export.h"

#include <QString>

// The colour sets a combo-box style paints with, and the two CSS switches
// the style keeps on.
class KARVEX_EXPORT KaComboBoxConfig {
public:
    KaComboBoxConfig() = default;
    KaComboBoxConfig(const QString& textColorSet, const QString& backgroundColorSet,
                     const QString& borderColorSet);

    QString textColorSet;
    QString backgroundColorSet;
    QString borderColorSet;
    // Stored into the first two CSS switches; both non-zero, so both stay on.
    bool firstSwitch = true;
    int secondSwitch = 8;
};
