#pragma once

#include "karvex_export.h"

#include <kasvglabelbase.h>

// The library's name for the base layer's SVG label: one tinted icon.
class KARVEX_EXPORT KaSvgLabel : public KaSvgLabelBase {
    Q_OBJECT

public:
    explicit KaSvgLabel(QWidget* parent = nullptr);
};
