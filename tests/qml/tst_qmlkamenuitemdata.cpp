#include "qmlkamenuitemdata.h"

#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

namespace {
QStringList names(const QmlKaMenuItemData& item) {
    QStringList result;
    for (QObject* child : item.menuObjects())
        result.append(child->objectName());
    return result;
}
} // namespace

class tst_QmlKaMenuItemData : public QObject {
    Q_OBJECT
private Q_SLOTS:
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
};

QTEST_MAIN(tst_QmlKaMenuItemData)
#include "tst_qmlkamenuitemdata.moc"
