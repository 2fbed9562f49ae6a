#include "kacomboboxconfig.h"

KaComboBoxConfig::KaComboBoxConfig(const QString& text, const QString& background, const QString& border)
    : textColorSet(text)
    , backgroundColorSet(background)
    , borderColorSet(border) {}
