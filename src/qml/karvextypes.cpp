#include "karvextypes.h"

#include "kamenulistmodel.h"
#include "qmlkadiscoverabilitybannerdata.h"
#include "qmlkamenudata.h"
#include "qmlkamenuitemdata.h"
#include "qmlkamenuseparatordata.h"

#include <QQmlEngine>

namespace KarvexTypes {
void registerQmlTypes() {
    // A second registration would add a second set of types under the
    // same names; the host and the module plugin may both get here.
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    const char* uri = "KarvexWrapper";
    qmlRegisterUncreatableType<QmlKaMenuData>(uri, 1, 0, "QmlKaMenuData",
                                              QStringLiteral("QmlKaMenuData attached property."));
    qmlRegisterType<QmlKaMenuItemData>(uri, 1, 0, "QmlKaMenuItemData");
    qmlRegisterType<QmlKaMenuSeparatorData>(uri, 1, 0, "QmlKaMenuSeparatorData");
    qmlRegisterType<QmlKaDiscoverabilityBannerData>(uri, 1, 0, "QmlKaDiscoverabilityBannerData");
    qmlRegisterType<KaMenuListModel>(uri, 1, 0, "KaMenuListModel");
}
} // namespace KarvexTypes
