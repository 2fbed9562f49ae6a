#pragma once

#include <QString>

// A section header of a menu: a text line that starts a new group of
// entries. A plain value handed to the menu by const reference.
struct KaCustomizedSeparatorItemData {
    QString objectName;
    QString text;
    // Empty: the menu's own header colour.
    QString textColorSetName;
    int leftPadding = 0;
    int rightPadding = 0;
    int maximumWidth = 720;
    int itemHeight = 60;
    // Long headers wrap instead of being elided.
    bool autoWrap = false;
};
