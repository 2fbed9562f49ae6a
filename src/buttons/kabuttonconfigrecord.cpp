#include "kabuttonconfigrecord.h"

void KaButtonConfigRecord::Colors::setBorderColorSet(const QString& name) {
    borderColorSet = name;
    const bool drawn = !name.trimmed().isEmpty();
    hasBorder.fill(drawn);
}

bool KaButtonConfigRecord::Colors::hasAnyBorder() const {
    for (bool side : hasBorder) {
        if (side)
            return true;
    }
    return false;
}

bool KaButtonConfigRecord::Colors::operator==(const Colors& other) const {
    return backgroundColorSet == other.backgroundColorSet && borderColorSet == other.borderColorSet &&
           textColorSet == other.textColorSet && iconColorSet == other.iconColorSet &&
           hasBorder == other.hasBorder && squareCorners == other.squareCorners &&
           fixedColors == other.fixedColors && paintBackground == other.paintBackground &&
           underlineText == other.underlineText;
}
