#pragma once

#include "karvex_export.h"

// The library's QML types, module "KarvexWrapper" 1.0: QmlKaMenuData (attached
// only), QmlKaMenuItemData, QmlKaMenuSeparatorData,
// QmlKaDiscoverabilityBannerData and KaMenuListModel, then the enumerations
// they use (KaMenuEnum, KaPopupEnum, KaDiscoverabilityEnum) for their names.
namespace KarvexTypes {
// Call once before loading QML that imports the module, unless the engine
// finds the installed module on its import path instead. Calling it again,
// or also loading the module, registers nothing twice.
KARVEX_EXPORT void registerQmlTypes();
} // namespace KarvexTypes
