#include "kadiscoverabilitybanner.h"
#include "kamenu.h"
#include "kamenuaction.h"
#include "kamenulistmodel.h"
#include "karvextypes.h"
#include "qmlkadiscoverabilitybannerdata.h"
#include "qmlkamenudata.h"
#include "qmlkamenuitemdata.h"
#include "qmlkamenuseparatordata.h"
#include "testhelpers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QWidgetAction>

namespace {
KaMenu* openMenu() {
    return qobject_cast<KaMenu*>(QApplication::activePopupWidget());
}

// What an entry is, in a form the tests can compare: "-" a line, "=" a
// group line, "#<name>" a header, "banner:<text>", otherwise the object
// name of the item description.
KaDiscoverabilityBanner* bannerOf(QAction* action) {
    auto* entry = qobject_cast<QWidgetAction*>(action);
    QWidget* widget = entry ? entry->defaultWidget() : nullptr;
    if (auto* banner = qobject_cast<KaDiscoverabilityBanner*>(widget))
        return banner;
    return widget ? widget->findChild<KaDiscoverabilityBanner*>() : nullptr;
}

QString describe(QAction* action) {
    if (action->isSeparator())
        return action->property("_ka_menu_group_separator").toBool() ? QStringLiteral("=")
                                                                     : QStringLiteral("-");
    if (KaDiscoverabilityBanner* banner = bannerOf(action))
        return QStringLiteral("banner:") + banner->bannerText();
    auto* entry = qobject_cast<QWidgetAction*>(action);
    if (entry && !qobject_cast<KaMenuAction*>(action))
        return QLatin1Char('#') + entry->defaultWidget()->objectName();
    return action->objectName();
}

QStringList describe(const QMenu* menu) {
    QStringList result;
    for (QAction* action : menu->actions())
        result.append(describe(action));
    return result;
}

QAction* actionNamed(const QMenu* menu, const QString& name) {
    for (QAction* action : menu->actions()) {
        if (action->objectName() == name)
            return action;
    }
    return nullptr;
}

void closeAllMenus() {
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

QStringList names(const QmlKaMenuItemData& item) {
    QStringList result;
    for (QObject* child : item.menuObjects())
        result.append(child->objectName());
    return result;
}

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

// Menus described in .qml files, loaded through the built KarvexWrapper
// module and popped up as native menus.
class tst_QmlKaMenuData : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_view = std::make_unique<QQuickView>();
        m_view->engine()->addImportPath(QStringLiteral(KARVEX_QML_IMPORT_DIR));
    }

    void cleanup() {
        closeAllMenus();
        m_view.reset();
        QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty() ||
                    !std::any_of(QApplication::topLevelWidgets().cbegin(),
                                 QApplication::topLevelWidgets().cend(),
                                 [](QWidget* w) { return qobject_cast<KaMenu*>(w); }));
    }

    void buildsEntriesFromDescriptions() {
        QVERIFY(load("menu.qml"));
        QmlKaMenuData* data = attached();
        QVERIFY(data);
        QCOMPARE(data->menuObjects().size(), 9);
        // Twice in a row: one menu, its entries not doubled.
        QVERIFY(QMetaObject::invokeMethod(data, "doPopup"));
        QVERIFY(QMetaObject::invokeMethod(data, "doPopup"));
        QTRY_VERIFY(openMenu());
        // Invisible items vanish with their sub-tree, a separator with neither
        // text nor line and a banner without text add nothing, strangers are
        // skipped, and the model's rows follow the list.
        QCOMPARE(describe(openMenu()), QStringList({"copy", "more", "#header", "-", "#group", "=",
                                                    "banner:Try it", "=", "row", "-"}));
        QMenu* sub = actionNamed(openMenu(), QStringLiteral("more"))->menu();
        QVERIFY(sub);
        QCOMPARE(describe(sub), QStringList({"child"}));
    }

    void forwardsTheEntrySignals() {
        QObject* root = load("menu.qml");
        QVERIFY(root);
        QVERIFY(QMetaObject::invokeMethod(attached(), "doPopup"));
        QTRY_VERIFY(openMenu());
        KaMenu* menu = openMenu();
        auto* copy = root->findChild<QmlKaMenuItemData*>(QStringLiteral("copy"));
        QSignalSpy hovered(copy, &QmlKaMenuItemData::hovered);
        actionNamed(menu, QStringLiteral("copy"))->hover();
        QCOMPARE(hovered.count(), 1);
        actionNamed(menu, QStringLiteral("row"))->trigger();
        QCOMPARE(root->property("lastTriggered").toString(), QStringLiteral("row"));

        QAction* child =
            actionNamed(actionNamed(menu, QStringLiteral("more"))->menu(), QStringLiteral("child"));
        child->trigger();
        QCOMPARE(root->property("lastToggled").toBool(), true);
        child->trigger();
        QCOMPARE(root->property("lastToggled").toBool(), false);

        auto* description = root->findChild<QmlKaDiscoverabilityBannerData*>(QStringLiteral("banner"));
        QSignalSpy dismissed(description, &QmlKaDiscoverabilityBannerData::dismissed);
        for (QAction* action : menu->actions()) {
            if (KaDiscoverabilityBanner* banner = bannerOf(action))
                banner->findChild<QAbstractButton*>(QStringLiteral("dismissButton"))->click();
        }
        QCOMPARE(dismissed.count(), 1);
    }

    void activeFollowsTheMenu() {
        QVERIFY(load("menu.qml"));
        QmlKaMenuData* data = attached();
        QSignalSpy active(data, &QmlKaMenuData::activeChanged);
        data->doPopup(false);
        QTRY_VERIFY(data->active());
        QPointer<KaMenu> menu = openMenu();
        QCOMPARE(active.count(), 1);
        menu->close();
        QTRY_VERIFY(!data->active());
        QCOMPARE(active.count(), 2);
        // The menu deletes itself on close; the descriptions stay.
        QTRY_VERIFY(!menu);
        QCOMPARE(data->menuObjects().size(), 9);
    }

    void attacheeNotAnItemShowsNothing() {
        QTest::ignoreMessage(QtWarningMsg, "QmlKaMenuData parent needs to be QQuickItem.");
        QObject* root = load("notanitem.qml");
        QVERIFY(root);
        auto* holder = root->property("holder").value<QObject*>();
        auto* data = qobject_cast<QmlKaMenuData*>(qmlAttachedPropertiesObject<QmlKaMenuData>(holder, false));
        QVERIFY(data);
        QCOMPARE(data->menuObjects().size(), 1);
        QTest::ignoreMessage(QtWarningMsg, "Parent is not QQuickItem or is null.");
        data->doPopup();
        // Building and showing are synchronous: no menu now means none at all.
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(!data->active());
    }

    void descriptionDestroyedWhileOpen_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("item") << QStringLiteral("copy");
        QTest::newRow("model row") << QStringLiteral("row");
        QTest::newRow("banner") << QStringLiteral("banner");
        QTest::newRow("separator") << QStringLiteral("header");
    }

    void descriptionDestroyedWhileOpen() {
        QFETCH(QString, name);
        QObject* root = load("menu.qml");
        QVERIFY(root);
        QmlKaMenuData* data = attached();
        data->doPopup();
        QTRY_VERIFY(openMenu());
        KaMenu* menu = openMenu();
        QObject* description = root->findChild<QObject*>(name);
        QVERIFY(description);
        const int rows = root->property("rowModel").value<KaMenuListModel*>()->count();
        delete description;
        QVERIFY(!data->menuObjects().contains(description));
        QCOMPARE(root->property("rowModel").value<KaMenuListModel*>()->count(),
                 rows - (name == "row" ? 1 : 0));
        // The entry outlives its description; using it reaches nobody.
        for (QAction* action : menu->actions())
            action->hover();
        if (QAction* action = actionNamed(menu, name))
            action->trigger();
        QCOMPARE(root->property("lastTriggered").toString(), QString());
        menu->close();
        QTRY_VERIFY(!data->active());
    }

    void anchorDestroyedWithItsParent() {
        QObject* root = load("menu.qml");
        QVERIFY(root);
        QPointer<QmlKaMenuData> data = attached();
        data->doPopup();
        QTRY_VERIFY(openMenu());
        QPointer<KaMenu> menu = openMenu();
        delete root->findChild<QQuickItem*>(QStringLiteral("anchorParent"));
        QVERIFY(!data);
        // The open menu goes on without its description object.
        actionNamed(menu, QStringLiteral("row"))->trigger();
        QCOMPARE(root->property("lastTriggered").toString(), QStringLiteral("row"));
        menu->close();
        QTRY_VERIFY(!menu);
    }

    // QmlKaMenuItemData: the entry list as QML edits it.
    void listOperationsFromQml() {
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(KARVEX_QML_IMPORT_DIR));
        // Inline rather than in data/: the linter of Qt 6.4 knows no array
        // methods on list properties.
        QQmlComponent component(&engine);
        component.setData(R"(
import KarvexWrapper 1.0
QmlKaMenuItemData {
    id: root
    property QmlKaMenuItemData first: QmlKaMenuItemData { objectName: "first" }
    property QmlKaMenuSeparatorData second: QmlKaMenuSeparatorData { objectName: "second" }
    property QmlKaMenuItemData third: QmlKaMenuItemData { objectName: "third" }
    function names() {
        let result = []
        for (let i = 0; i < menu.length; ++i)
            result.push(menu[i].objectName)
        return result.join(",")
    }
    function run() {
        let log = []
        menu.push(first)
        menu.push(second)
        appendSubMenu(third)
        log.push(menu.length + ":" + names())
        menu[1] = third
        log.push(names())
        menu.length = 1
        log.push(names())
        menu = []
        log.push(menu.length)
        return log.join(" | ")
    }
})",
                          QUrl(QStringLiteral("lists.qml")));
        std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        auto* item = qobject_cast<QmlKaMenuItemData*>(object.get());
        QVERIFY(item);
        QSignalSpy changed(item, &QmlKaMenuItemData::menuChanged);
        QVariant log;
        QVERIFY(QMetaObject::invokeMethod(item, "run", Q_RETURN_ARG(QVariant, log)));
        // append and appendSubMenu, count and at, replace, remove-last, clear.
        QCOMPARE(log.toString(), QStringLiteral("3:first,second,third | first,third,third | first | 0"));
        QVERIFY(changed.count() >= 6);
        QVERIFY(item->menuObjects().isEmpty());
    }

    void destroyedChildLeavesTheList() {
        QmlKaMenuItemData parent;
        auto* first = new QmlKaMenuItemData;
        first->setObjectName(QStringLiteral("first"));
        QmlKaMenuItemData second;
        second.setObjectName(QStringLiteral("second"));
        parent.appendSubMenu(first);
        parent.appendSubMenu(&second);
        QQmlListProperty<QObject> list = parent.menu();
        QCOMPARE(list.count(&list), 2);
        QSignalSpy changed(&parent, &QmlKaMenuItemData::menuChanged);
        delete first;
        QCOMPARE(changed.count(), 1);
        QCOMPARE(names(parent), QStringList({"second"}));
        QCOMPARE(list.at(&list, 0), &second);
        // Out of range reads give nothing rather than garbage.
        QCOMPARE(list.at(&list, 5), nullptr);
    }

    void badInput() {
        QmlKaMenuItemData item;
        QSignalSpy changed(&item, &QmlKaMenuItemData::menuChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("null object")));
        item.appendSubMenu(nullptr);
        QQmlListProperty<QObject> list = item.menu();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot replace entry 3")));
        list.replace(&list, 3, &item);
        list.removeLast(&list);
        QCOMPARE(changed.count(), 0);

        QSignalSpy typeChanged(&item, &QmlKaMenuItemData::labelTypeChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("42 is not a label type")));
        item.setLabelType(KaDiscoverabilityEnum::DiscoverabilityLabelType(42));
        QCOMPARE(item.labelType(), KaDiscoverabilityEnum::IconTag);
        QCOMPARE(typeChanged.count(), 0);
    }

    // The registered types.
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

private:
    QQuickItem* load(const char* file) {
        m_view->setSource(QUrl::fromLocalFile(QStringLiteral(KARVEX_QML_TEST_DIR "/") + QLatin1String(file)));
        if (m_view->status() != QQuickView::Ready) {
            qWarning() << m_view->errors();
            return nullptr;
        }
        m_view->show();
        return m_view->rootObject();
    }

    QmlKaMenuData* attached() const {
        auto* anchor = m_view->rootObject()->findChild<QQuickItem*>(QStringLiteral("anchor"));
        return anchor
                   ? qobject_cast<QmlKaMenuData*>(qmlAttachedPropertiesObject<QmlKaMenuData>(anchor, false))
                   : nullptr;
    }

    std::unique_ptr<QQuickView> m_view;
};

QTEST_MAIN(tst_QmlKaMenuData)
#include "tst_qmlkamenudata.moc"
