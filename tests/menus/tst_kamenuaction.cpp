#include "buttontestutils.h"
#include "kabadge.h"
#include "kadiscoverabilitylabel.h"
#include "kalabel.h"
#include "kamenuaction.h"
#include "kamenuitem.h"
#include "kamenuitemcontainer.h"
#include "kamenuitemdata.h"
#include "kasvglabel.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

const QString kRight = QStringLiteral("qrc:/Resources/arrow-right-bold.svg");
const QString kLeft = QStringLiteral("qrc:/Resources/arrow-left-bold.svg");
const QString kCustom = QStringLiteral("qrc:/Resources/cancel-bold.svg");

// Whether any pixel of `area` is exactly the normal colour of `set`.
bool paintsSet(KaMenuItem& item, const QRect& area, const char* set) {
    item.resize(item.minimumWidth(), item.height());
    const QImage image = rendered(&item);
    return BzTest::boxOf(image.copy(area), colorOf(set)).isValid();
}

} // namespace

class tst_KaMenuAction : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

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

    // KaMenuItem: the entry widget.

    void subTextHeight_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("oneLine");
        QTest::newRow("small") << int(KaMenuEnum::Small) << 32;
        QTest::newRow("medium") << int(KaMenuEnum::Medium) << 40;
        QTest::newRow("large") << int(KaMenuEnum::Large) << 50;
    }

    // A sub-text switches every size to the two-line height; removing it
    // switches back.
    void subTextHeight() {
        QFETCH(int, size);
        QFETCH(int, oneLine);
        KaMenuItem item(QStringLiteral("Share screen"));
        item.setSize(KaMenuEnum::Size(size));
        QCOMPARE(item.height(), oneLine);
        QCOMPARE(item.minimumHeight(), item.maximumHeight());
        item.setSubText(QStringLiteral("Everyone sees your window"));
        QCOMPARE(item.height(), 50);
        item.show();
        QTRY_VERIFY(item.findChild<KaLabel*>(QStringLiteral("subText"))->isVisible());
        item.setSubText(QString());
        QCOMPARE(item.height(), oneLine);
        QVERIFY(!item.findChild<KaLabel*>(QStringLiteral("subText"))->isVisible());
    }

    // A long title asks for more than the minimum width and gets up to the
    // maximum; the narrower sub-text does not hold it back.
    void longTitle() {
        KaMenuItem item(QStringLiteral("Forward to everyone who was in the meeting yesterday afternoon"));
        item.setSubText(QStringLiteral("Short"));
        QVERIFY(item.sizeHint().width() > 264);
        item.resize(item.maximumWidth(), item.height());
        item.show();
        QTRY_VERIFY(item.findChild<KaLabel*>(QStringLiteral("title"))->width() > 264);
    }

    // An entry with only a title creates no other part.
    void plainEntryIsLean() {
        KaMenuItem item(QStringLiteral("Copy"));
        QCOMPARE(item.findChildren<QWidget*>().size(), 1);
        item.setBadgeText(QStringLiteral("3"));
        QVERIFY(item.findChild<KaBadge*>());
        QVERIFY(!item.findChild<KaSvgLabel*>());
        QVERIFY(!item.findChild<KaDiscoverabilityLabel*>());
    }

    void badge_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("shown");
        QTest::newRow("count") << QStringLiteral("4") << true;
        QTest::newRow("word") << QStringLiteral("new") << true;
        QTest::newRow("empty") << QString() << false;
    }

    void badge() {
        QFETCH(QString, text);
        QFETCH(bool, shown);
        QWidget window;
        KaMenuItem item(QStringLiteral("Messages"), &window);
        QVERIFY(ButtonTest::shown(window, QRect(300, 300, 300, 60)));
        item.setBadgeText(QStringLiteral("12"));
        item.setBadgeText(text);
        KaBadge* badge = item.findChild<KaBadge*>();
        QVERIFY(badge);
        QTRY_COMPARE(badge->isVisible(), shown);
        // The badge sits after the title, inside the entry.
        if (shown)
            QVERIFY(badge->geometry().left() > item.findChild<KaLabel*>(QStringLiteral("title"))->x());
    }

    // The library's chevron points to the trailing side; a custom icon is
    // left as it is.
    void chevronFollowsDirection() {
        KaMenuItem submenu(QStringLiteral("Move to"));
        submenu.setActionIconVisible(true);
        KaMenuItem custom(QStringLiteral("Remove"));
        custom.setActionIcon(kCustom);
        QCOMPARE(submenu.actionIcon(), kRight);
        QCOMPARE(submenu.findChild<KaSvgLabel*>()->svgIcon(), kRight);

        // Where the title's first ink is, from the title label's left edge.
        auto inkStart = [&submenu] {
            submenu.layout()->activate();
            auto* title = submenu.findChild<KaLabel*>(QStringLiteral("title"));
            const QImage image = title->grab().toImage();
            for (int x = 0; x < image.width(); ++x) {
                for (int y = 0; y < image.height(); ++y) {
                    if (image.pixel(x, y) != image.pixel(0, 0))
                        return x * 2 < image.width() ? 0 : 1;
                }
            }
            return -1;
        };
        QCOMPARE(inkStart(), 0);

        QApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_COMPARE(submenu.actionIcon(), kLeft);
        QCOMPARE(submenu.findChild<KaSvgLabel*>()->svgIcon(), kLeft);
        QCOMPARE(custom.actionIcon(), kCustom);
        // Latin text too starts on the entry's leading side.
        QCOMPARE(inkStart(), 1);

        QApplication::setLayoutDirection(Qt::LeftToRight);
        QTRY_COMPARE(submenu.actionIcon(), kRight);
    }

    // Checked, a checkable entry shows a tick in the tick colour where its
    // left icon goes; unchecked, that place stays empty.
    void tick() {
        KaMenuItem item(QStringLiteral("Mute"));
        item.setCheckable(true);
        KaSvgLabel* icon = item.findChild<KaSvgLabel*>();
        QVERIFY(icon);
        const QRect place(12, 0, 16, item.height());
        QVERIFY(!paintsSet(item, place, "listitem-tick"));
        item.setChecked(true);
        QVERIFY(paintsSet(item, place, "listitem-tick"));
        item.setCheckable(false);
        QVERIFY(!paintsSet(item, place, "listitem-tick"));
    }

    void followsTheme() {
        KaMenuItem item(QStringLiteral("HHHH"));
        item.resize(item.minimumWidth(), item.height());
        auto titleColour = [&item] {
            const QRect area = item.findChild<KaLabel*>(QStringLiteral("title"))->geometry();
            return BzTest::strongestIn(rendered(&item), area);
        };
        QVERIFY(BzTest::near(titleColour(), colorOf("listitem-textprimary"), 8));
        const QColor light = colorOf("listitem-textprimary");
        switchTheme("dark");
        QVERIFY(!BzTest::near(colorOf("listitem-textprimary"), light, 8));
        QTRY_VERIFY(BzTest::near(titleColour(), colorOf("listitem-textprimary"), 8));
    }

    // Screen readers see one menu item, named after the title, whatever
    // parts it shows.
    void accessibility() {
        KaMenuItem item(QStringLiteral("Notifications"));
        item.setSubText(QStringLiteral("On for mentions"));
        item.setBadgeText(QStringLiteral("2"));
        item.setInfoIcon(QStringLiteral("qrc:/Resources/alert-bold.svg"));
        item.setCheckable(true);
        item.setChecked(true);
        QVERIFY(item.findChildren<QWidget*>().size() > 3);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&item);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::MenuItem);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Notifications"));
        QCOMPARE(iface->text(QAccessible::Description), QStringLiteral("On for mentions"));
        QCOMPARE(iface->childCount(), 0);
        QVERIFY(!iface->state().focusable);
        QVERIFY(iface->state().checkable && iface->state().checked);
        item.setDisabledState(true);
        QVERIFY(iface->state().disabled);
        item.setAccessibleName(QStringLiteral("Notification settings"));
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Notification settings"));
        QCOMPARE(item.focusPolicy(), Qt::NoFocus);
    }

    // Nothing in the library listens to it: hosts do.
    void hoverSignal() {
        KaMenuItem item(QStringLiteral("Paste"));
        QSignalSpy spy(&item, &KaMenuItem::hovered);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QCoreApplication::sendEvent(&item, &enter);
        QCOMPARE(spy.count(), 1);
    }

    // A record fills the entry: two lines, a badge, a tick, disabled.
    void itemFromRecord() {
        KaMenuItemData record;
        record.title = QStringLiteral("Record");
        record.subText = QStringLiteral("Saved to the cloud");
        record.badgeText = QStringLiteral("1");
        record.checkable = true;
        record.checked = true;
        record.enabled = false;
        record.rightIcon = kCustom;
        KaMenuItem item;
        item.setSize(KaMenuEnum::Small);
        item.applyData(record);
        QCOMPARE(item.height(), 50);
        QVERIFY(!item.isEnabled());
        QVERIFY(!item.findChild<KaBadge*>()->isHidden());
        QCOMPARE(item.actionIcon(), kCustom);
        QVERIFY(QAccessible::queryAccessibleInterface(&item)->state().checked);
    }

    void badInput_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("expectedSize");
        QTest::addColumn<int>("expectedStyle");
        QTest::newRow("above") << 7 << 5 << int(KaMenuEnum::Large) << int(KaMenuEnum::Circular);
        QTest::newRow("below") << -3 << -1 << int(KaMenuEnum::Small) << int(KaMenuEnum::Normal);
    }

    // Out-of-range sizes and styles are clamped with a warning; other bad
    // values are refused.
    void badInput() {
        QFETCH(int, size);
        QFETCH(int, style);
        QFETCH(int, expectedSize);
        QFETCH(int, expectedStyle);
        KaMenuItem item{QString()};
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a KaMenuEnum::Size")));
        item.setSize(KaMenuEnum::Size(size));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a KaMenuEnum::Style")));
        item.setStyle(KaMenuEnum::Style(style));
        QCOMPARE(int(item.size()), expectedSize);
        QCOMPARE(int(item.style()), expectedStyle);
        QCOMPARE(item.height(), expectedSize == KaMenuEnum::Small ? 32 : 50);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a font token")));
        item.setTitleFontToken(size * 40);
        QCOMPARE(item.getTitleFontToken(), 0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("negative")));
        item.setDefaultMiniWidth(-10);
        QCOMPARE(item.minimumWidth(), 264);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a label look")));
        item.setDiscoverabilityLabel(true, KaDiscoverabilityEnum::DiscoverabilityLabelType(size * 10));
        QVERIFY(item.findChild<KaDiscoverabilityLabel*>());
        item.setLeftPixmap(QPixmap());
        item.setInfoIcon(QString());
        QVERIFY(!item.findChild<KaSvgLabel*>(QString(), Qt::FindDirectChildrenOnly));
    }
};

QTEST_MAIN(tst_KaMenuAction)
#include "tst_kamenuaction.moc"
