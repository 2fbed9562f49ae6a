#include "kasvglabel.h"

KaSvgLabel::KaSvgLabel(QWidget* parent)
    : KaSvgLabelBase(parent) {}
