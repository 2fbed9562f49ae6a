#include "kamenuaction.h"
#include "kamenuitem.h"
#include "kamenuitemcontainer.h"
#include "kamenuitemdata.h"

#include <QAccessible>
#include <QEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

class tst_KaMenuAction : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // The entry shows the action's check and enabled states however they change.
    void stateReachesEntry() {
        KaMenuAction action;
        action.setCheckable(true);
        auto* item = new KaMenuItem(QStringLiteral("Bold"));
        action.setDefaultWidget(item);
        QVERIFY(item->isCheckable());
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(item);
        QVERIFY(!iface->state().checked);
        action.trigger();
        QVERIFY(action.isChecked());
        QVERIFY(iface->state().checked);
        action.setChecked(false);
        QVERIFY(!iface->state().checked);
        action.setEnabled(false);
        QVERIFY(item->isDisabledState());
        QVERIFY(!item->isEnabled());
        action.setEnabled(true);
        QVERIFY(!item->isDisabledState());
        QVERIFY(item->isEnabled());
    }

    // A record sets up the action and its entry alike.
    void fromRecord() {
        KaMenuItemData record;
        record.objectName = QStringLiteral("leaveSpace");
        record.title = QStringLiteral("Leave");
        record.isAlert = true;
        record.firstAction = true;
        record.checkable = true;
        record.checked = true;
        KaMenuAction action;
        action.applyData(record);
        KaMenuItem* item = action.menuItem();
        QVERIFY(item);
        QCOMPARE(action.defaultWidget(), item);
        QCOMPARE(action.text(), QStringLiteral("Leave"));
        QCOMPARE(action.objectName(), QStringLiteral("leaveSpace"));
        QVERIFY(action.isFirstAction() && action.isChecked());
        QVERIFY(item->isAlert() && item->isChecked());
        QCOMPARE(item->title(), QStringLiteral("Leave"));
        action.setTitle(QStringLiteral("Leave space"));
        QCOMPARE(action.text(), QStringLiteral("Leave space"));
        QCOMPARE(item->title(), QStringLiteral("Leave space"));
    }

    // A wrapped entry is found through its container; a null widget is
    // refused with a warning.
    void entryInContainer() {
        KaMenuAction action;
        auto* container = new KaMenuItemContainer;
        auto* item = new KaMenuItem(QStringLiteral("Inside"));
        container->setWidget(item);
        action.setDefaultWidget(container);
        QCOMPARE(action.menuItem(), item);
        action.onHover(true);
        QVERIFY(item->isHoverState());
        action.onHover(false);
        QVERIFY(!item->isHoverState());

        KaMenuAction other;
        QTest::ignoreMessage(QtWarningMsg, "KaMenuAction: null entry widget; ignored");
        other.setDefaultWidget(nullptr);
        QVERIFY(!other.menuItem());
        other.setDefaultWidget(new QLabel(QStringLiteral("Header")));
        QVERIFY(!other.menuItem());
        other.setAlert(true);
        other.showDiscoverabilityLabel(true);
    }

    // In a menu the entry is shown as the action's widget.
    void inMenu() {
        QMenu menu;
        auto* action = new KaMenuAction(&menu);
        auto* item = new KaMenuItem(QStringLiteral("Open"));
        action->setDefaultWidget(item);
        menu.addAction(action);
        menu.popup(QPoint(100, 100));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QTRY_VERIFY(item->isVisible());
        QCOMPARE(item->window(), &menu);
        QSignalSpy triggered(action, &QAction::triggered);
        QTest::mouseClick(item, Qt::LeftButton, {}, item->rect().center());
        QTRY_COMPARE(triggered.count(), 1);
    }

    // KaMenuItemContainer: entering the container or the wrapped widget
    // reports hovering.
    void containerHover() {
        KaMenuItemContainer container;
        auto* label = new QLabel(QStringLiteral("Custom"));
        container.setWidget(label);
        QCOMPARE(label->parentWidget(), &container);
        QSignalSpy spy(&container, &KaMenuItemContainer::hovered);
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(label, &enter);
        QCOMPARE(spy.count(), 1);
        QCoreApplication::sendEvent(&container, &enter);
        QCOMPARE(spy.count(), 2);
    }

    // A new widget replaces (and deletes) the old one, which is no longer
    // watched; null empties the container.
    void containerReplace() {
        KaMenuItemContainer container;
        QPointer<QLabel> first = new QLabel(QStringLiteral("First"));
        container.setWidget(first);
        auto* second = new QLabel(QStringLiteral("Second"));
        container.setWidget(second);
        QVERIFY(first.isNull());
        QCOMPARE(container.widget(), second);
        container.setWidget(nullptr);
        QVERIFY(!container.widget());
        QCOMPARE(container.focusPolicy(), Qt::NoFocus);
    }
};

QTEST_MAIN(tst_KaMenuAction)
#include "tst_kamenuaction.moc"
