#pragma once

#include "kadiscoverabilityenum.h"

#include <QString>

// A tip banner inside a menu: its text, its kind and its fixed width.
struct KaDiscoverabilityBannerData {
    QString text;
    KaDiscoverabilityEnum::DiscoverabilityLabelType type = KaDiscoverabilityEnum::NewFeature;
    int width = 300;
};
