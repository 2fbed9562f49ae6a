#include "kamenulistmodel.h"
#include "karvextypes.h"
#include "qmlkadiscoverabilitybannerdata.h"
#include "qmlkamenudata.h"
#include "qmlkamenuitemdata.h"
#include "qmlkamenuseparatordata.h"
#include "testhelpers.h"

#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>

namespace {
const char* const typeNames[] = {"QmlKaMenuData", "QmlKaMenuItemData", "QmlKaMenuSeparatorData",
                                 "QmlKaDiscoverabilityBannerData", "KaMenuListModel"};

std::unique_ptr<QObject> create(QQmlEngine& engine, const QByteArray& qml, QString* error = nullptr) {
    QQmlComponent component(&engine);
    component.setData(qml, QUrl(QStringLiteral("inline.qml")));
    std::unique_ptr<QObject> object(component.create());
    if (error)
        *error = component.errorString();
    return object;
}
} // namespace

class tst_KarvexTypes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        // Twice on purpose: hosts are not required to remember.
        KarvexTypes::registerQmlTypes();
        KarvexTypes::registerQmlTypes();
    }

    void registersTheModuleInOrder() {
        int previous = -1;
        for (const char* name : typeNames) {
            const int id = qmlTypeId("KarvexWrapper", 1, 0, name);
            QVERIFY2(id > previous, name);
            previous = id;
        }
        QQmlEngine engine;
        QString error;
        auto object = create(engine,
                             "import QtQuick\nimport KarvexWrapper 1.0\n"
                             "Item { QmlKaMenuData.menu: [ QmlKaMenuItemData { title: \"a\" },"
                             " QmlKaMenuSeparatorData {}, QmlKaDiscoverabilityBannerData {} ]\n"
                             " property KaMenuListModel model: KaMenuListModel {} }",
                             &error);
        QVERIFY2(object, qPrintable(error));
        auto* data =
            qobject_cast<QmlKaMenuData*>(qmlAttachedPropertiesObject<QmlKaMenuData>(object.get(), false));
        QVERIFY(data);
        QCOMPARE(data->parent(), object.get());
        QCOMPARE(data->menuObjects().size(), 3);
    }

    void attachedTypeIsNotCreatable() {
        QQmlEngine engine;
        QString error;
        QVERIFY(!create(engine, "import KarvexWrapper 1.0\nQmlKaMenuData {}", &error));
        QVERIFY2(error.contains(QLatin1String("QmlKaMenuData attached property.")), qPrintable(error));
    }

    void moduleOnImportPathAfterRegistration() {
        // The plugin registers again through the same function: no duplicates.
        const int before = qmlTypeId("KarvexWrapper", 1, 0, "QmlKaMenuItemData");
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(KARVEX_QML_IMPORT_DIR));
        QString error;
        auto object = create(engine, "import KarvexWrapper 1.0\nQmlKaMenuItemData { title: \"x\" }", &error);
        QVERIFY2(object, qPrintable(error));
        QCOMPARE(qmlTypeId("KarvexWrapper", 1, 0, "QmlKaMenuItemData"), before);
        QCOMPARE(object->metaObject(), &QmlKaMenuItemData::staticMetaObject);
    }

    void settersNotifyOnlyOnChange_data() {
        QTest::addColumn<QString>("type");
        for (const char* name : typeNames)
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void settersNotifyOnlyOnChange() {
        QFETCH(QString, type);
        QQuickItem anchor;
        std::unique_ptr<QObject> object;
        if (type == QLatin1String("QmlKaMenuData"))
            object.reset(QmlKaMenuData::qmlAttachedProperties(&anchor));
        else if (type == QLatin1String("QmlKaMenuItemData"))
            object = std::make_unique<QmlKaMenuItemData>();
        else if (type == QLatin1String("QmlKaMenuSeparatorData"))
            object = std::make_unique<QmlKaMenuSeparatorData>();
        else if (type == QLatin1String("QmlKaDiscoverabilityBannerData"))
            object = std::make_unique<QmlKaDiscoverabilityBannerData>();
        else
            QSKIP("KaMenuListModel adds no properties of its own");
        // Strings and the model have no generic "other value".
        QVariantMap values;
        KaMenuListModel model;
        const QMetaObject* meta = object->metaObject();
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty p = meta->property(i);
            if (p.metaType() == QMetaType::fromType<QString>())
                values.insert(QString::fromLatin1(p.name()), QStringLiteral("changed"));
            else if (p.metaType() == QMetaType::fromType<KaMenuListModel*>())
                values.insert(QString::fromLatin1(p.name()), QVariant::fromValue(&model));
        }
        // Banners take only the banner kinds.
        if (type == QLatin1String("QmlKaDiscoverabilityBannerData"))
            values.insert(QStringLiteral("bannerType"), QVariant::fromValue(KaDiscoverabilityEnum::TipHelp));
        BzTest::checkNotifiesOnce(*object, *meta, values);
        object.reset();
    }

    void outOfRangeEnumsAreRefused_data() {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<int>("value");
        QTest::newRow("style high") << QByteArray("style") << 2;
        QTest::newRow("size negative") << QByteArray("size") << -1;
        QTest::newRow("size high") << QByteArray("size") << 3;
        QTest::newRow("alignment high") << QByteArray("alignment") << 5;
        QTest::newRow("alignment negative") << QByteArray("alignment") << -4;
    }

    void outOfRangeEnumsAreRefused() {
        QFETCH(QByteArray, property);
        QFETCH(int, value);
        QQuickItem anchor;
        QmlKaMenuData data(&anchor);
        const QVariant before = data.property(property.constData());
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression(QStringLiteral("%1 is not a menu|%1 is not a popup").arg(value)));
        const QMetaProperty p =
            data.metaObject()->property(data.metaObject()->indexOfProperty(property.constData()));
        p.write(&data, QVariant(p.metaType(), &value));
        QCOMPARE(data.property(property.constData()), before);
    }

    void typeInformationMatchesTheTypes_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<const QMetaObject*>("meta");
        QTest::newRow("QmlKaMenuData") << "QmlKaMenuData" << &QmlKaMenuData::staticMetaObject;
        QTest::newRow("QmlKaMenuItemData") << "QmlKaMenuItemData" << &QmlKaMenuItemData::staticMetaObject;
        QTest::newRow("QmlKaMenuSeparatorData")
            << "QmlKaMenuSeparatorData" << &QmlKaMenuSeparatorData::staticMetaObject;
        QTest::newRow("QmlKaDiscoverabilityBannerData")
            << "QmlKaDiscoverabilityBannerData" << &QmlKaDiscoverabilityBannerData::staticMetaObject;
        QTest::newRow("KaMenuListModel") << "KaMenuListModel" << &KaMenuListModel::staticMetaObject;
    }

    // The .qmltypes file is written by hand; tools trust it, so it must name
    // every property the type declares, and export the type.
    void typeInformationMatchesTheTypes() {
        QFETCH(QString, name);
        QFETCH(const QMetaObject*, meta);
        QFile file(QStringLiteral(KARVEX_QMLTYPES_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QString text = QString::fromUtf8(file.readAll());
        const qsizetype start = text.indexOf(QStringLiteral("name: \"%1\"").arg(name));
        QVERIFY2(start >= 0, qPrintable(name));
        qsizetype end = text.indexOf(QStringLiteral("\n    Component {"), start);
        const QString component = text.mid(start, end < 0 ? -1 : end - start);
        QVERIFY(component.contains(QStringLiteral("\"KarvexWrapper/%1 1.0\"").arg(name)));
        QStringList listed;
        const QRegularExpression property(QStringLiteral("Property \\{ name: \"(\\w+)\""));
        for (auto it = property.globalMatch(component); it.hasNext();)
            listed.append(it.next().captured(1));
        QStringList declared;
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
            declared.append(QString::fromLatin1(meta->property(i).name()));
        QCOMPARE(listed, declared);
    }
};

QTEST_MAIN(tst_KarvexTypes)
#include "tst_karvextypes.moc"
