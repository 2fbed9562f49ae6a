#pragma once

#include "karvex_export.h"

#include <QObject>

// Discoverability labels and banners.
namespace KaDiscoverabilityEnum {
Q_NAMESPACE_EXPORT(KARVEX_EXPORT)

// Fixed to int: values from outside the table (QML, casts) stay well defined.
enum DiscoverabilityLabelType : int {
    IconWithTextTag = 0,
    IconTag = 1,
    IconWithBorder = 2,
    IconBadge = 3,
    NewFeature = 4,
    TipHelp = 5,
    TipShortcut = 6
};
Q_ENUM_NS(DiscoverabilityLabelType)
} // namespace KaDiscoverabilityEnum
