#include "karvextypes.h"

#include "kadiscoverabilityenum.h"
#include "kamenuenum.h"
#include "kamenulistmodel.h"
#include "kapopupenum.h"
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
    // QML takes enumeration values by name only (KaMenuEnum.Circular): a
    // plain number in a binding is refused as an unknown key.
    const QString enumsOnly = QStringLiteral("Enumerations only.");
    qmlRegisterUncreatableMetaObject(KaMenuEnum::staticMetaObject, uri, 1, 0, "KaMenuEnum", enumsOnly);
    qmlRegisterUncreatableMetaObject(KaPopupEnum::staticMetaObject, uri, 1, 0, "KaPopupEnum", enumsOnly);
    qmlRegisterUncreatableMetaObject(KaDiscoverabilityEnum::staticMetaObject, uri, 1, 0,
                                     "KaDiscoverabilityEnum", enumsOnly);
}
} // namespace KarvexTypes
