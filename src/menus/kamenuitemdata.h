#pragma once

#include "kadiscoverabilityenum.h"
#include "kawidgetdata.h"

#include <QString>

// Everything a menu needs to build one entry: the texts, icons and colour
// sets of its KaMenuItem and the state of its KaMenuAction. A plain value,
// filled field by field (from code or from a QML description) and handed to
// the menu by const reference.
struct KaMenuItemData {
    QString objectName;
    QString title;
    QString subText;
    QString tooltip;
    // Spoken instead of the title when set.
    QString accessibleName;
    QString leftIcon;
    QString leftText;
    QString leftTextColorSet;
    // The trailing action icon; empty gives the library's chevron to entries
    // that open a sub-menu.
    QString rightIcon;
    QString leftIconColorSet;
    QString rightIconColorSet;
    QString rightIconTooltip;
    // Empty: no badge.
    QString badgeText;
    KaDiscoverabilityEnum::DiscoverabilityLabelType labelType = KaDiscoverabilityEnum::IconTag;
    bool showDiscoverabilityLabel = false;
    bool checkable = false;
    bool checked = false;
    bool enabled = true;
    bool isAlert = false;
    bool firstAction = false;
    int minimumWidth = 264;
    int maximumWidth = 720;
    // Text of the popover shown beside the entry while it is hovered.
    QString popupText;
    KaWidgetData::ArrowPostion popupDirection = KaWidgetData::ArrowLeft;
};
