#include "kaavatarenum.h"
#include "kabadgeenum.h"
#include "kabuttonenum.h"
#include "kacomboboxenum.h"
#include "kadiscoverabilityenum.h"
#include "kadualbuttonenum.h"
#include "kaiconbuttonenum.h"
#include "kamenuenum.h"
#include "kaoverlaybuttonenum.h"
#include "kapopupenum.h"
#include "kascrollbarenum.h"
#include "katabenum.h"
#include "katextfieldenum.h"

#include <QMetaEnum>
#include <QTest>

Q_DECLARE_METATYPE(QMetaEnum)

// Designer, QML and the host's settings name enumeration values as strings:
// every holder's enumerations must be registered with the meta-object
// system under their holder's name, and every key must map both ways.
class tst_KaEnums : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readableByName_data() {
        QTest::addColumn<QMetaEnum>("metaEnum");
        QTest::addColumn<QByteArray>("holder");
        const auto row = [](const QMetaObject& holder, const char* enumName) {
            const int index = holder.indexOfEnumerator(enumName);
            QTest::addRow("%s::%s", holder.className(), enumName)
                << (index >= 0 ? holder.enumerator(index) : QMetaEnum()) << QByteArray(holder.className());
        };
        for (const char* name : {"Style", "Size", "State"})
            row(KaButtonEnum::staticMetaObject, name);
        for (const char* name : {"Style", "IconButtonStyle", "Size"})
            row(KaDualButtonEnum::staticMetaObject, name);
        for (const char* name : {"Style", "Type"})
            row(KaIconButtonEnum::staticMetaObject, name);
        for (const char* name : {"Type", "Size"})
            row(KaOverlayButtonEnum::staticMetaObject, name);
        row(KaBadgeEnum::staticMetaObject, "Style");
        for (const char* name : {"Type", "Style", "State"})
            row(KaTabEnum::staticMetaObject, name);
        for (const char* name : {"Style", "Size"})
            row(KaTextFieldEnum::staticMetaObject, name);
        for (const char* name : {"Transformation", "Size", "Presence", "AvatarType"})
            row(KaAvatarEnum::staticMetaObject, name);
        for (const char* name : {"Style", "Size"})
            row(KaComboBoxEnum::staticMetaObject, name);
        row(KaScrollbarEnum::staticMetaObject, "MinimumSize");
        for (const char* name : {"Style", "Size"})
            row(KaMenuEnum::staticMetaObject, name);
        row(KaDiscoverabilityEnum::staticMetaObject, "DiscoverabilityLabelType");
        row(KaPopupEnum::staticMetaObject, "Alignment");
    }

    void readableByName() {
        QFETCH(QMetaEnum, metaEnum);
        QFETCH(QByteArray, holder);
        QVERIFY2(metaEnum.isValid(), "not registered with Q_ENUM / Q_ENUM_NS");
        QCOMPARE(QByteArray(metaEnum.scope()), holder);
        QVERIFY(metaEnum.keyCount() > 0);
        for (int i = 0; i < metaEnum.keyCount(); ++i) {
            bool ok = false;
            QCOMPARE(metaEnum.keyToValue(metaEnum.key(i), &ok), metaEnum.value(i));
            QVERIFY2(ok, metaEnum.key(i));
            // Two keys sharing a value would make the reverse lookup ambiguous.
            QCOMPARE(QByteArray(metaEnum.valueToKey(metaEnum.value(i))), QByteArray(metaEnum.key(i)));
        }
    }

    void throughVariant() {
        QCOMPARE(QVariant::fromValue(KaButtonEnum::GlobalHeaderSearchCancel).toString(),
                 QStringLiteral("GlobalHeaderSearchCancel"));
        QVariant fromName(QStringLiteral("ExtraExtraExtraSmall"));
        QVERIFY(fromName.convert(QMetaType::fromType<KaButtonEnum::Size>()));
        QCOMPARE(fromName.value<KaButtonEnum::Size>(), KaButtonEnum::ExtraExtraExtraSmall);
        QVariant unknown(QStringLiteral("Huge"));
        QVERIFY(!unknown.convert(QMetaType::fromType<KaButtonEnum::Size>()));
    }
};

QTEST_GUILESS_MAIN(tst_KaEnums)
#include "tst_kaenums.moc"
