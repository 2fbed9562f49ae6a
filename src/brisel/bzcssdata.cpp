#include "bzcssdata.h"

void BzCSSData::setBorders(bool on) {
    for (int s = BorderTop; s <= BorderLeft; ++s)
        switches[s] = on ? 1 : 0;
}

bool BzCSSData::hasAnyBorder() const {
    return isOn(BorderTop) || isOn(BorderRight) || isOn(BorderBottom) || isOn(BorderLeft);
}

bool BzCSSData::operator==(const BzCSSData& other) const {
    return backgroundColorSet == other.backgroundColorSet && borderColorSet == other.borderColorSet &&
           textColorSet == other.textColorSet && switches == other.switches &&
           borderRadius == other.borderRadius && borderWidth == other.borderWidth &&
           extraCSS == other.extraCSS;
}
