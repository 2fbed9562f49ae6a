#include "accessibilityrecorder.h"
#include "buttontestutils.h"
#include "focusringtest.h"
#include "kabadge.h"
#include "kabadgetabview.h"
#include "kapagenavigation.h"
#include "katabitem.h"
#include "katabview.h"
#include "katitlebar.h"
#include "katitlebarbutton.h"
#include "navigationdotswidget.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <QLabel>
#include <memory>

using namespace ButtonTest;

namespace {

struct Shown {
    explicit Shown(int tabs, int width = 600) {
        auto* layout = new QVBoxLayout(&window);
        view = new KaTabView;
        layout->addWidget(view);
        layout->addStretch(1);
        for (int i = 0; i < tabs; ++i)
            view->addTab(QStringLiteral("Tab %1").arg(i + 1));
        window.resize(width, 120);
    }
    bool show() {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }
    QWidget window;
    KaTabView* view = nullptr;
};

QAccessibleInterface* accessible(QObject* object) {
    return QAccessible::queryAccessibleInterface(object);
}

// The tab's rectangle in the view's coordinates.
QRect inView(const KaTabView* view, const KaTabItem* tab) {
    return QRect(tab->mapTo(view, QPoint()), tab->QWidget::size());
}

QRect viewport(const KaTabView* view) {
    return view->findChild<QWidget*>(QStringLiteral("tabViewport"))->geometry();
}

const QString kIcon = QStringLiteral("qrc:/Resources/chat-filled.svg");

// A point on the face clear of icon and text: just inside the leading edge.
QPoint faceSpot(const KaTabItem& tab) {
    return QPoint(5, tab.height() / 2);
}

struct FramelessWindow {
    FramelessWindow()
        : window(nullptr, Qt::Window | Qt::FramelessWindowHint) {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        bar = new KaTitleBar;
        layout->addWidget(bar);
        layout->addStretch(1);
        window.setWindowTitle(QStringLiteral("Settings"));
    }
    QWidget window;
    KaTitleBar* bar = nullptr;
};

// A spot on the bar between title and buttons.
QPoint emptySpot(const KaTitleBar* bar) {
    return QPoint(bar->minimizeButton()->x() - 4, bar->height() / 2);
}

QColor cursor() {
    return colorOf("spinner-progress-cursor");
}

QColor track() {
    return colorOf("spinner-progress-track");
}

// Dot centres for index 3 of 5: the current one at 8 + 14 * 2 - 2, the one
// before it drawn 4 px to the left, the one after it in place.
constexpr int kCurrentX = 34;
constexpr int kBeforeX = 18;
constexpr int kAfterX = 50;
} // namespace

class tst_Navigation : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }
    void cleanup() {
        qApp->setProperty("isKeyboardFocus", QVariant());
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }

    void firstTabBecomesCurrent() {
        KaTabView view;
        QCOMPARE(view.currentIndex(), -1);
        QSignalSpy current(&view, &KaTabView::currentChanged);
        view.addTab(QStringLiteral("Chat"));
        view.addTab(QStringLiteral("Calls"));
        QCOMPARE(current.count(), 1);
        QCOMPARE(view.currentIndex(), 0);
        QVERIFY(view.tabAt(0)->isSelected());
        QVERIFY(!view.tabAt(1)->isSelected());
        // Inserted in front: the same tab stays current at its new index.
        view.insertTab(0, QStringLiteral("Activity"));
        QCOMPARE(view.currentIndex(), 1);
        QCOMPARE(view.tabAt(1)->text(), QStringLiteral("Chat"));
        QCOMPARE(current.last().at(0).toInt(), 1);
    }

    void clickSelects() {
        Shown shown(4);
        QVERIFY(shown.show());
        QSignalSpy current(shown.view, &KaTabView::currentChanged);
        QTest::mouseClick(shown.view->tabAt(2), Qt::LeftButton);
        QCOMPARE(shown.view->currentIndex(), 2);
        QCOMPARE(current.count(), 1);
        QVERIFY(shown.view->tabAt(2)->isSelected());
        QVERIFY(!shown.view->tabAt(0)->isSelected());
        // Only the current tab is a Tab stop.
        QCOMPARE(shown.view->tabAt(2)->focusPolicy(), Qt::TabFocus);
        QCOMPARE(shown.view->tabAt(0)->focusPolicy(), Qt::NoFocus);
    }

    void keyboard_data() {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("expected");
        const int ltr = Qt::LeftToRight;
        const int rtl = Qt::RightToLeft;
        QTest::newRow("right") << ltr << 1 << int(Qt::Key_Right) << 2;
        QTest::newRow("left at start") << ltr << 0 << int(Qt::Key_Left) << 0;
        QTest::newRow("right at end") << ltr << 4 << int(Qt::Key_Right) << 4;
        QTest::newRow("home") << ltr << 3 << int(Qt::Key_Home) << 0;
        QTest::newRow("rtl left") << rtl << 1 << int(Qt::Key_Left) << 2;
        QTest::newRow("rtl right") << rtl << 1 << int(Qt::Key_Right) << 0;
    }

    void keyboard() {
        QFETCH(int, direction);
        QFETCH(int, start);
        QFETCH(int, key);
        QFETCH(int, expected);
        Shown shown(5);
        shown.window.setLayoutDirection(Qt::LayoutDirection(direction));
        QVERIFY(shown.show());
        shown.view->setCurrentIndex(start);
        shown.view->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(shown.view->tabAt(start)->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QCOMPARE(shown.view->currentIndex(), expected);
        QTRY_VERIFY(shown.view->tabAt(expected)->hasFocus());
        // A focused tab means a focused list for screen readers.
        QVERIFY(accessible(shown.view)->state().focused);
    }

    void removal_data() {
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("removed");
        QTest::addColumn<int>("expected");
        QTest::addColumn<QString>("expectedText");
        QTest::newRow("current, the next takes its place") << 2 << 2 << 2 << QStringLiteral("Tab 4");
        QTest::newRow("current and last") << 4 << 4 << 3 << QStringLiteral("Tab 4");
        QTest::newRow("before current") << 3 << 1 << 2 << QStringLiteral("Tab 4");
        QTest::newRow("after current") << 1 << 3 << 1 << QStringLiteral("Tab 2");
    }

    void removal() {
        QFETCH(int, current);
        QFETCH(int, removed);
        QFETCH(int, expected);
        QFETCH(QString, expectedText);
        Shown shown(5);
        QVERIFY(shown.show());
        shown.view->setCurrentIndex(current);
        shown.view->tabAt(current)->setFocus(Qt::TabFocusReason);
        QSignalSpy spy(shown.view, &KaTabView::currentChanged);
        shown.view->removeTab(removed);
        QCOMPARE(shown.view->count(), 4);
        QCOMPARE(shown.view->currentIndex(), expected);
        QCOMPARE(spy.isEmpty(), current == expected && removed > current);
        KaTabItem* tab = shown.view->tabAt(expected);
        QCOMPARE(tab->text(), expectedText);
        QVERIFY(tab->isSelected());
        QTRY_VERIFY(tab->hasFocus());
        QCOMPARE(tab->position(), expected + 1);
        QCOMPARE(tab->positionCount(), 4);
    }

    void removeAll() {
        KaTabView view;
        view.addTab(QStringLiteral("Only"));
        QSignalSpy spy(&view, &KaTabView::currentChanged);
        view.removeTab(0);
        QCOMPARE(view.currentIndex(), -1);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.last().at(0).toInt(), -1);
        QVERIFY(!view.focusProxy());
    }

    // The host removes the tab from inside the close click.
    void closedFromItsOwnCross() {
        Shown shown(3);
        shown.view->setTabsClosable(true);
        connect(shown.view, &KaTabView::tabCloseRequested, shown.view, &KaTabView::removeTab);
        QVERIFY(shown.show());
        QPointer<KaTabItem> tab = shown.view->tabAt(1);
        QTRY_VERIFY(!tab->anchorIconRect().isEmpty());
        QTest::mouseClick(tab, Qt::LeftButton, {}, tab->anchorIconRect().center());
        QCOMPARE(shown.view->count(), 2);
        QTRY_VERIFY(!tab);
        QCOMPARE(shown.view->currentIndex(), 0);
    }

    void closableOnlyWithoutSection() {
        KaTabView view;
        view.addTab(QStringLiteral("Chat"), QString(), KaTabEnum::SECTION_01);
        view.addTab(QStringLiteral("Draft"));
        QSignalSpy spy(&view, &KaTabView::tabsClosableChanged);
        view.setTabsClosable(true);
        view.setTabsClosable(true);
        QCOMPARE(spy.count(), 1);
        QVERIFY(!view.tabAt(0)->showsClose());
        QVERIFY(view.tabAt(1)->showsClose());
        view.addTab(QStringLiteral("Later"));
        QVERIFY(view.tabAt(2)->showsClose());
    }

    void badIndices() {
        KaTabView view;
        view.addTab(QStringLiteral("Chat"));
        QTest::ignoreMessage(QtWarningMsg, "KaTabView: no tab at index 4 (count 1)");
        view.setCurrentIndex(4);
        QTest::ignoreMessage(QtWarningMsg, "KaTabView: no tab at index -1 (count 1)");
        view.removeTab(-1);
        QTest::ignoreMessage(QtWarningMsg, "KaTabView: 7 is not a KaButtonEnum::Size; ignored");
        view.setSize(KaButtonEnum::Size(7));
        QCOMPARE(view.currentIndex(), 0);
        QCOMPARE(view.count(), 1);
        QVERIFY(!view.tabAt(3));
        QCOMPARE(view.size(), KaButtonEnum::Normal);
        // Out of range on insert appends.
        QCOMPARE(view.insertTab(-5, QStringLiteral("End")), 1);
    }

    void overflowScrolls() {
        Shown shown(10, 320);
        QVERIFY(shown.show());
        KaTabView* view = shown.view;
        auto* back = view->findChild<QWidget*>(QStringLiteral("scrollBackButton"));
        auto* forward = view->findChild<QWidget*>(QStringLiteral("scrollForwardButton"));
        QTRY_VERIFY(view->isScrollable());
        QVERIFY(back->isVisible() && forward->isVisible());
        QVERIFY(!back->isEnabled());
        QVERIFY(forward->isEnabled());

        const int before = inView(view, view->tabAt(0)).x();
        QTest::mouseClick(forward, Qt::LeftButton);
        QVERIFY(inView(view, view->tabAt(0)).x() < before);
        QVERIFY(back->isEnabled());

        // The current tab is scrolled fully into view, up to the last one.
        view->setCurrentIndex(9);
        QVERIFY(viewport(view).contains(inView(view, view->tabAt(9))));
        QVERIFY(!forward->isEnabled());
        view->setCurrentIndex(0);
        QVERIFY(viewport(view).contains(inView(view, view->tabAt(0))));

        // Room for all: no arrows.
        shown.window.resize(view->sizeHint().width() + 40, 120);
        QTRY_VERIFY(!view->isScrollable());
        QTRY_VERIFY(!forward->isVisible());
        QCOMPARE(inView(view, view->tabAt(0)).x(), 0);
    }

    void accessibility() {
        KaTabView view;
        for (const char* text : {"Chat", "Calls", "Meetings", "Files", "Apps"})
            view.addTab(QString::fromLatin1(text));
        view.setCurrentIndex(1);
        QAccessibleInterface* list = accessible(&view);
        QCOMPARE(list->role(), QAccessible::PageTabList);
        QVERIFY(!list->text(QAccessible::Name).isEmpty());
        QCOMPARE(list->childCount(), 5);
        QAccessibleInterface* second = list->child(1);
        QCOMPARE(second->role(), QAccessible::PageTab);
        QCOMPARE(second->text(QAccessible::Name), QStringLiteral("Calls"));
        QCOMPARE(second->text(QAccessible::Description), QStringLiteral("2 of 5"));
        QVERIFY(second->state().selected);
        QVERIFY(!list->child(0)->state().selected);
        QCOMPARE(second->parent(), list);
        QCOMPARE(list->indexOfChild(second), 1);
        view.removeTab(0);
        QCOMPARE(accessible(view.tabAt(0))->text(QAccessible::Description), QStringLiteral("1 of 4"));
    }

    void followsTheme() {
        switchTheme("light");
        Shown shown(3);
        QVERIFY(shown.show());
        shown.view->setCurrentIndex(1);
        const QPoint face = inView(shown.view, shown.view->tabAt(1)).topLeft() + QPoint(4, 10);
        QCOMPARE(pixelAt(shown.view, face).rgb(), colorOf("tab-active-background").rgb());
        switchTheme("dark");
        QTRY_COMPARE(pixelAt(shown.view, face).rgb(), colorOf("tab-active-background").rgb());
        QVERIFY(colorOf("tab-active-background", BzThemeUtils::Light) != colorOf("tab-active-background"));
        switchTheme("light");
    }

    // Arrow keys move the keyboard focus ring along with the selection.
    void focusRing() {
        FocusRingTest::installStyle();
        qApp->setProperty("isKeyboardFocus", true);
        Shown shown(3);
        QVERIFY(shown.show());
        shown.view->setFocus(Qt::TabFocusReason);
        QTest::keyClick(shown.view->tabAt(0), Qt::Key_Right);
        KaTabItem* tab = shown.view->tabAt(1);
        QTRY_VERIFY(tab->hasFocus());
        const QRect target(tab->mapTo(&shown.window, QPoint()), tab->QWidget::size());
        QTRY_VERIFY(FocusRingTest::visibleRing(shown.window) &&
                    FocusRingTest::visibleRing(shown.window)->geometry().contains(target));
    }

    // KaBadgeTabView: tabs with badges.
    void badgesJoinTheName_data() {
        QTest::addColumn<QString>("badge"); // "count N", "word W", "icon", "none"
        QTest::addColumn<QString>("name");
        QTest::newRow("count") << QStringLiteral("count 3") << QStringLiteral("Chat, 3");
        QTest::newRow("count over the cap") << QStringLiteral("count 120") << QStringLiteral("Chat, 120");
        QTest::newRow("word") << QStringLiteral("word New") << QStringLiteral("Chat, New");
        QTest::newRow("icon") << QStringLiteral("icon") << QStringLiteral("Chat, mention");
        QTest::newRow("cleared") << QStringLiteral("none") << QStringLiteral("Chat");
    }
    void badgesJoinTheName() {
        QFETCH(QString, badge);
        QFETCH(QString, name);
        KaBadgeTabView view;
        view.addTab(QStringLiteral("Chat"));
        KaBadgeTab* tab = view.badgeTabAt(0);
        QVERIFY(tab);
        const int plainWidth = tab->sizeHint().width();
        const QString kind = badge.section(QLatin1Char(' '), 0, 0);
        const QString value = badge.section(QLatin1Char(' '), 1);
        if (kind == QLatin1String("count")) {
            view.setCount(0, value.toInt());
        } else if (kind == QLatin1String("word")) {
            tab->setBadgeText(value);
        } else if (kind == QLatin1String("icon")) {
            view.setIconBadge(0, IconBadgeMention);
        } else {
            view.setCount(0, 5);
            view.clearBadge(0);
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(tab)->text(QAccessible::Name), name);
        QCOMPARE(tab->badge() != nullptr, kind != QLatin1String("none"));
        // The tab makes room for its badge.
        QCOMPARE(tab->sizeHint().width() > plainWidth, kind != QLatin1String("none"));
        // A host's own name wins over the badge's.
        tab->setAccessibleName(QStringLiteral("Chat (unread)"));
        view.setCount(0, 9);
        QCOMPARE(QAccessible::queryAccessibleInterface(tab)->text(QAccessible::Name),
                 QStringLiteral("Chat (unread)"));
    }

    void counterIsReusedAndSignalled() {
        KaBadgeTab tab(QStringLiteral("Calls"), QString());
        QSignalSpy counts(&tab, &KaBadgeTab::countChanged);
        tab.setCount(2);
        QWidget* counter = tab.badge();
        tab.setCount(7);
        QCOMPARE(tab.badge(), counter);
        QCOMPARE(static_cast<KaBadge*>(counter)->number(), 7);
        tab.setCount(7);
        tab.setCount(-4); // none
        QCOMPARE(counts.count(), 3);
        QVERIFY(!tab.badge());
    }

    void badgeFollowsTheme() {
        KaBadgeTabView view;
        view.addTab(QStringLiteral("Chat"));
        view.setCount(0, 3);
        view.resize(view.sizeHint());
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QWidget* badge = view.badgeTabAt(0)->badge();
        const QPoint edge = badge->mapTo(&view, QPoint(2, badge->height() / 2));
        QCOMPARE(rendered(&view).pixelColor(edge), colorOf("badge-background"));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&view).pixelColor(edge), colorOf("badge-background", BzThemeUtils::Dark));
    }

    void badInput() {
        KaBadgeTabView view;
        view.addTab(QStringLiteral("Chat"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setCount: no tab 4 ignored"));
        view.setCount(4, 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("unknown icon badge 99 ignored"));
        view.setIconBadge(0, KaIconBadgeType(99));
        QVERIFY(!view.badgeTabAt(0)->badge());
        view.removeTab(0);
        QVERIFY(!view.badgeTabAt(0));
    }

    // KaTabItem: a tab on its own.
    void look_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("face");
        QTest::addColumn<bool>("indicator");
        QTest::newRow("selected") << int(KaTabEnum::ACTIVE) << QStringLiteral("tab-active-background")
                                  << true;
        QTest::newRow("unselected") << int(KaTabEnum::INACTIVE) << QStringLiteral("tab-inactive-background")
                                    << false;
    }

    // The face in the style's set, and the indicator bar along the bottom
    // of the selected tab only. The selected face follows a theme switch
    // (the unselected one is transparent).
    void look() {
        QFETCH(int, style);
        QFETCH(QString, face);
        QFETCH(bool, indicator);
        KaTabItem tab(QStringLiteral("Chat"), kIcon);
        tab.setStyle(KaTabEnum::Style(style));
        tab.resize(tab.sizeHint());
        QCOMPARE(tab.isSelected(), indicator);
        const auto faceColour = [&face] {
            return QColor(BzThemeUtils::getColorSet(face).normal());
        };
        const QColor light = faceColour();
        const QImage image = rendered(&tab);
        QCOMPARE(image.pixelColor(faceSpot(tab)).rgba(), light.rgba());
        const QColor bar = image.pixelColor(tab.width() / 2, tab.height() - 1);
        QCOMPARE(bar.rgb() == colorOf("tab-default").rgb() && bar.alpha() == 255, indicator);
        if (!indicator)
            return;
        switchTheme("dark");
        QVERIFY(faceColour() != light);
        QTRY_COMPARE(pixelAt(&tab, faceSpot(tab)).rgba(), faceColour().rgba());
    }

    void sizes() {
        KaTabItem tab(QStringLiteral("Chat"), kIcon);
        int previous = 0;
        for (KaButtonEnum::Size size : {KaButtonEnum::Small, KaButtonEnum::Normal, KaButtonEnum::Large}) {
            tab.setSize(size);
            QVERIFY(tab.minimumHeight() == tab.maximumHeight());
            QVERIFY(tab.maximumHeight() > previous);
            previous = tab.maximumHeight();
        }
    }

    // Collapsed: a square with the icon; the text stays as name and tool tip.
    void collapsed() {
        KaTabItem tab(QStringLiteral("Meetings"), kIcon);
        const int expandedWidth = tab.sizeHint().width();
        tab.setState(KaTabEnum::COLLAPSED);
        QCOMPARE(tab.maximumWidth(), tab.maximumHeight());
        QVERIFY(tab.maximumWidth() < expandedWidth);
        QCOMPARE(tab.text(), QStringLiteral("Meetings"));
        QCOMPARE(tab.toolTip(), QStringLiteral("Meetings"));
        QCOMPARE(accessible(&tab)->text(QAccessible::Name), QStringLiteral("Meetings"));
        tab.setState(KaTabEnum::EXPANDED);
        QCOMPARE(tab.sizeHint().width(), expandedWidth);
        QVERIFY(tab.toolTip().isEmpty());
    }

    // Only a tab of no section closes.
    void closeCross_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("shows");
        QTest::newRow("no section") << int(KaTabEnum::NONE) << true;
        QTest::newRow("section") << int(KaTabEnum::SECTION_05) << false;
    }

    void closeCross() {
        QFETCH(int, type);
        QFETCH(bool, shows);
        KaTabItem tab(QStringLiteral("Draft"), QString());
        tab.setType(KaTabEnum::Type(type));
        const int plain = tab.sizeHint().width();
        tab.setClosable(true);
        QCOMPARE(tab.showsClose(), shows);
        QCOMPARE(tab.sizeHint().width() > plain, shows);
        QCOMPARE(accessible(&tab)->actionInterface()->actionNames().contains(QStringLiteral("Close")), shows);
        tab.setState(KaTabEnum::COLLAPSED);
        QVERIFY(!tab.showsClose());
    }

    // The cross closes without activating; the rest of the tab activates.
    void clicks() {
        QWidget window;
        auto* tab = new KaTabItem(QStringLiteral("Draft"), QString(), &window);
        tab->setClosable(true);
        tab->resize(tab->sizeHint());
        QVERIFY(shown(window));
        QSignalSpy activated(tab, &KaTabItem::activated);
        QSignalSpy close(tab, &KaTabItem::closeRequested);
        QTest::mouseClick(tab, Qt::LeftButton, {}, tab->anchorIconRect().center());
        QCOMPARE(close.count(), 1);
        QCOMPARE(activated.count(), 0);
        QTest::mouseClick(tab, Qt::LeftButton, {}, QPoint(8, tab->height() / 2));
        QCOMPARE(activated.count(), 1);
        QCOMPARE(close.count(), 1);
        QTest::keyClick(tab, Qt::Key_Delete);
        QCOMPARE(close.count(), 2);
        QTest::keyClick(tab, Qt::Key_Space);
        QCOMPARE(activated.count(), 2);
    }

    // Room is made for a trailing widget, between text and cross.
    void trailingWidget() {
        KaTabItem tab(QStringLiteral("Inbox"), QString());
        tab.setClosable(true);
        const int plain = tab.sizeHint().width();
        auto* marker = new QLabel(QStringLiteral("12"));
        marker->setFixedSize(20, 16);
        tab.setTrailingWidget(marker);
        QCOMPARE(marker->parentWidget(), &tab);
        QVERIFY(tab.sizeHint().width() >= plain + 20);
        tab.resize(tab.sizeHint());
        tab.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tab));
        const QRect cross = tab.anchorIconRect();
        QVERIFY(marker->geometry().right() < cross.left());
        QVERIFY(marker->geometry().left() > tab.contentsRect().left() + 20);
        QVERIFY(tab.rect().contains(marker->geometry()));

        tab.setLayoutDirection(Qt::RightToLeft);
        QTRY_VERIFY(marker->geometry().left() > tab.anchorIconRect().right());

        const QPointer<QLabel> guard(marker);
        tab.setTrailingWidget(nullptr);
        QVERIFY(!guard);
        QCOMPARE(tab.sizeHint().width(), plain);
    }

    void itemAccessibility() {
        KaTabItem tab(QStringLiteral("Calls"), kIcon);
        QAccessibleInterface* iface = accessible(&tab);
        QCOMPARE(iface->role(), QAccessible::PageTab);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Calls"));
        QVERIFY(iface->state().selectable);
        QVERIFY(!iface->state().selected);
        tab.setSelected(true);
        QVERIFY(iface->state().selected);
        // Placed by a view: its position.
        QVERIFY(iface->text(QAccessible::Description).isEmpty());
        tab.setPosition(2, 5);
        QCOMPARE(iface->text(QAccessible::Description), QStringLiteral("2 of 5"));
    }

    // Values the enumerations can hold but do not name (Style and State
    // hold none).
    void outOfRangeRefused_data() {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("warning");
        QTest::newRow("type") << QByteArray("type") << 22
                              << QStringLiteral("KaTabItem: 22 is not a KaTabEnum::Type; ignored");
        QTest::newRow("size") << QByteArray("size") << 7
                              << QStringLiteral("KaTabItem: 7 is not a KaButtonEnum::Size; ignored");
    }

    void outOfRangeRefused() {
        QFETCH(QByteArray, property);
        QFETCH(int, value);
        QFETCH(QString, warning);
        KaTabItem tab(QStringLiteral("Chat"), kIcon);
        const QVariant before = tab.property(property.constData());
        const QSize hint = tab.sizeHint();
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const QMetaProperty p =
            tab.metaObject()->property(tab.metaObject()->indexOfProperty(property.constData()));
        p.write(&tab, QVariant(p.metaType(), &value));
        QCOMPARE(tab.property(property.constData()), before);
        QCOMPARE(tab.sizeHint(), hint);
        rendered(&tab);
    }

    // KaTitleBar.
    void doubleClickMaximises() {
        FramelessWindow frameless;
        QVERIFY(shown(frameless.window, QRect(200, 200, 400, 200)));
        QTest::mouseDClick(frameless.bar, Qt::LeftButton, {}, emptySpot(frameless.bar));
        QTRY_VERIFY(frameless.window.isMaximized());
        QTest::mouseDClick(frameless.bar, Qt::LeftButton, {}, emptySpot(frameless.bar));
        QTRY_VERIFY(!frameless.window.isMaximized());
    }

    // Without a platform move (offscreen has none) the bar moves the window.
    void dragMoves() {
        FramelessWindow frameless;
        QVERIFY(shown(frameless.window, QRect(200, 200, 400, 200)));
        const QPoint start = frameless.window.pos();
        const QPoint spot = emptySpot(frameless.bar);
        QTest::mousePress(frameless.bar, Qt::LeftButton, {}, spot);
        QMouseEvent move(QEvent::MouseMove, QPointF(spot + QPoint(30, 20)),
                         QPointF(frameless.bar->mapToGlobal(spot + QPoint(30, 20))), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(frameless.bar, &move);
        QTest::mouseRelease(frameless.bar, Qt::LeftButton, {}, spot + QPoint(30, 20));
        QTRY_COMPARE(frameless.window.pos(), start + QPoint(30, 20));
    }

    void titleFollowsWindow() {
        FramelessWindow frameless;
        QSignalSpy spy(frameless.bar, &KaTitleBar::titleChanged);
        QCOMPARE(frameless.bar->title(), QStringLiteral("Settings"));
        frameless.window.setWindowTitle(QStringLiteral("Preferences"));
        QCOMPARE(frameless.bar->title(), QStringLiteral("Preferences"));
        frameless.bar->setTitle(QStringLiteral("Own title"));
        frameless.window.setWindowTitle(QStringLiteral("Ignored"));
        QCOMPARE(frameless.bar->title(), QStringLiteral("Own title"));
        QCOMPARE(spy.count(), 2);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(frameless.bar);
        QCOMPARE(iface->role(), QAccessible::TitleBar);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Own title"));
        frameless.bar->setTitle(QString());
        QCOMPARE(frameless.bar->title(), QStringLiteral("Ignored"));
    }

    // A bar that is no window's title bar acts on nothing until told.
    void withoutWindow() {
        KaTitleBar bar;
        QVERIFY(!bar.targetWindow());
        QVERIFY(!bar.closeButton()->isEnabled());
        QVERIFY(shown(bar, QRect(100, 100, 300, 32)));
        QTest::mouseClick(bar.closeButton(), Qt::LeftButton);
        QTest::mouseDClick(&bar, Qt::LeftButton, {}, emptySpot(&bar));
        QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(10, 10));
        QTest::mouseMove(&bar, QPoint(60, 20));
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(60, 20));
        QVERIFY(bar.isVisible());
        QVERIFY(!bar.isMaximized());
        QVERIFY(bar.title().isEmpty());

        QWidget other;
        other.setWindowTitle(QStringLiteral("Target"));
        bar.setTargetWindow(&other);
        QCOMPARE(bar.title(), QStringLiteral("Target"));
        QVERIFY(shown(other));
        // The bar's buttons act on the window it was given (each button's
        // own action: tst_buttons).
        QTest::mouseClick(bar.maximizeButton(), Qt::LeftButton);
        QTRY_VERIFY(other.isMaximized());
        QTest::mouseClick(bar.closeButton(), Qt::LeftButton);
        QTRY_VERIFY(!other.isVisible());
    }

    void titleBarSizes() {
        FramelessWindow frameless;
        frameless.bar->setSize(KaButtonEnum::Large);
        QCOMPARE(frameless.bar->sizeHint().height(), frameless.bar->closeButton()->maximumHeight());
        QCOMPARE(frameless.bar->minimizeButton()->size(), KaButtonEnum::Large);
        QTest::ignoreMessage(QtWarningMsg,
                             "KaTitleBar: 4 is not a title bar size (Large, Normal or Small); ignored");
        frameless.bar->setSize(KaButtonEnum::ExtraSmall);
        QCOMPARE(frameless.bar->size(), KaButtonEnum::Large);
    }

    void titleBarFollowsTheme() {
        FramelessWindow frameless;
        QVERIFY(shown(frameless.window, QRect(200, 200, 400, 200)));
        const QPoint spot = emptySpot(frameless.bar);
        QCOMPARE(pixelAt(frameless.bar, spot).rgb(), colorOf("globalHeader-container-background").rgb());
        switchTheme("dark");
        QTRY_COMPARE(pixelAt(frameless.bar, spot).rgb(), colorOf("globalHeader-container-background").rgb());
        QVERIFY(colorOf("globalHeader-container-background", BzThemeUtils::Light) !=
                colorOf("globalHeader-container-background"));
    }

    // KaPageNavigation.
    void childrenBuiltByPageCount() {
        KaPageNavigation navigation;
        QVERIFY(!navigation.getNavigateNextButton());
        QVERIFY(navigation.findChildren<QWidget*>().isEmpty());

        navigation.setPageCount(5);
        KaRoundButton* previous = navigation.getNavigatePreviousButton();
        KaRoundButton* next = navigation.getNavigateNextButton();
        QVERIFY(previous && next && navigation.dotsWidget());
        QCOMPARE(previous->leftIcon(), QStringLiteral("qrc:/Resources/arrow-left-bold.svg"));
        QCOMPARE(next->leftIcon(), QStringLiteral("qrc:/Resources/arrow-right-bold.svg"));
        // Two arrows, the gaps beside the dots, and the 68 px of five dots.
        const QSize fixed(2 * next->width() + 16 + 68, 24);
        QCOMPARE(navigation.minimumSize(), fixed);
        QCOMPARE(navigation.maximumSize(), fixed);
        // In order along the row.
        navigation.show();
        QVERIFY(previous->x() < navigation.dotsWidget()->x() && navigation.dotsWidget()->x() < next->x());
    }

    // Each call builds afresh; nothing of the old set stays behind.
    void rebuiltWithoutLeaks() {
        KaPageNavigation navigation;
        navigation.setPageCount(3);
        const int children = int(navigation.findChildren<QObject*>().size());
        const QPointer<KaRoundButton> oldNext = navigation.getNavigateNextButton();
        for (int count : {12, 1, 4, 4}) {
            navigation.setPageCount(count);
            QCOMPARE(int(navigation.findChildren<QObject*>().size()), children);
            QCOMPARE(navigation.dotsWidget()->pageCount(), count);
        }
        QVERIFY(!oldNext);
        QCOMPARE(navigation.maximumWidth(),
                 2 * navigation.getNavigateNextButton()->width() + 16 + 4 * 14 - 2);
    }

    // A click handler that rebuilds the strip must not pull the clicked
    // button away under its own signal.
    void rebuiltFromClick() {
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        navigation.setPageIndex(2);
        connect(&navigation, &KaPageNavigation::navigateNextButtonClicked, &navigation,
                [&navigation] { navigation.setPageCount(navigation.pageCount() + 1); });
        QPointer<KaRoundButton> clicked = navigation.getNavigateNextButton();
        QSignalSpy spy(&navigation, &KaPageNavigation::navigateNextButtonClicked);
        clicked->click();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(navigation.pageCount(), 6);
        QVERIFY(navigation.getNavigateNextButton() != clicked);
        QTRY_VERIFY(!clicked);
        navigation.getNavigateNextButton()->click();
        QCOMPARE(navigation.pageCount(), 7);
    }

    void arrows_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("previous");
        QTest::addColumn<bool>("next");
        QTest::newRow("page 1 of 1") << 1 << 1 << false << false;
        QTest::newRow("first of 5") << 5 << 1 << false << true;
        QTest::newRow("middle of 5") << 5 << 3 << true << true;
        QTest::newRow("last of 5") << 5 << 5 << true << false;
    }

    void arrows() {
        QFETCH(int, count);
        QFETCH(int, index);
        QFETCH(bool, previous);
        QFETCH(bool, next);
        KaPageNavigation navigation;
        navigation.setPageCount(count);
        navigation.setPageIndex(index);
        QCOMPARE(navigation.getNavigatePreviousButton()->isEnabled(), previous);
        QCOMPARE(navigation.getNavigateNextButton()->isEnabled(), next);
        QCOMPARE(navigation.dotsWidget()->pageIndex(), index);
        // A rebuild keeps the position.
        navigation.setPageCount(count);
        QCOMPARE(navigation.getNavigateNextButton()->isEnabled(), next);
        QCOMPARE(navigation.dotsWidget()->pageIndex(), index);
    }

    void clicksForwarded() {
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        navigation.setPageIndex(3);
        QSignalSpy previous(&navigation, &KaPageNavigation::navigatePreviousButtonClicked);
        QSignalSpy next(&navigation, &KaPageNavigation::navigateNextButtonClicked);
        QVERIFY(shown(navigation));
        QTest::mouseClick(navigation.getNavigateNextButton(), Qt::LeftButton);
        QCOMPARE(next.count(), 1);
        QCOMPARE(previous.count(), 0);
        QTest::mouseClick(navigation.getNavigatePreviousButton(), Qt::LeftButton);
        QCOMPARE(previous.count(), 1);
        // The strip reports; the host moves.
        QCOMPARE(navigation.pageIndex(), 3);
    }

    void announcesPage() {
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        QSignalSpy changed(&navigation, &KaPageNavigation::pageIndexChanged);
        AccessibilityRecorder::RecordingScope recording;
        navigation.setPageIndex(4);
        navigation.setPageIndex(4);
        const QString text = QStringLiteral("You are currently viewing page 4.");
        QCOMPARE(AccessibilityRecorder::announcements(navigation.dotsWidget()), QStringList({text, text}));
        QCOMPARE(changed.count(), 1);
    }

    void pageNavigationBadInput() {
        KaPageNavigation navigation;
        // Before any children exist.
        navigation.setPageIndex(2);
        QTest::ignoreMessage(QtWarningMsg, "KaPageNavigation: page count -4 is negative; using 0");
        navigation.setPageCount(-4);
        QCOMPARE(navigation.pageCount(), 0);
        QTest::ignoreMessage(QtWarningMsg, "KaPageNavigation: page index -1 is negative; using 0");
        navigation.setPageIndex(-1);
        QCOMPARE(navigation.pageIndex(), 0);
        // No pages: nothing to move to.
        QVERIFY(!navigation.getNavigateNextButton()->isEnabled());
        QCOMPARE(navigation.dotsWidget()->maximumWidth(), 0);
    }

    void pageNavigationAccessibility() {
        KaPageNavigation navigation;
        navigation.setPageCount(3);
        QAccessibleInterface* next = accessible(navigation.getNavigateNextButton());
        QCOMPARE(next->role(), QAccessible::Button);
        QCOMPARE(next->text(QAccessible::Name), QStringLiteral("Next page"));
        QCOMPARE(accessible(navigation.getNavigatePreviousButton())->text(QAccessible::Name),
                 QStringLiteral("Previous page"));

        navigation.setNavigateNextAccessibity(QStringLiteral("Next photo"),
                                              QStringLiteral("Shows the next photo"));
        navigation.setNavigatePreviousAccessibity(QStringLiteral("Previous photo"), QString());
        // Kept across a rebuild.
        navigation.setPageCount(4);
        next = accessible(navigation.getNavigateNextButton());
        QCOMPARE(next->text(QAccessible::Name), QStringLiteral("Next photo"));
        QCOMPARE(next->text(QAccessible::Description), QStringLiteral("Shows the next photo"));
        QCOMPARE(accessible(navigation.getNavigatePreviousButton())->text(QAccessible::Name),
                 QStringLiteral("Previous photo"));
    }

    // The strip paints only through its children; the current dot follows
    // the theme with them.
    void pageNavigationFollowsTheme() {
        switchTheme("light");
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        navigation.setPageIndex(1);
        QVERIFY(shown(navigation));
        // The first dot is current: 8 - 2 px into the dots.
        const QPoint dot = navigation.dotsWidget()->geometry().topLeft() + QPoint(6, 12);
        QCOMPARE(pixelAt(&navigation, dot).rgb(), colorOf("spinner-progress-cursor").rgb());
        switchTheme("highContrast");
        QTRY_COMPARE(pixelAt(&navigation, dot).rgb(), colorOf("spinner-progress-cursor").rgb());
        QVERIFY(colorOf("spinner-progress-cursor", BzThemeUtils::Light) !=
                colorOf("spinner-progress-cursor"));
        switchTheme("light");
    }

    // The arrows point away from the dots in either direction.
    void mirrored() {
        KaPageNavigation navigation;
        navigation.setLayoutDirection(Qt::RightToLeft);
        navigation.setPageCount(3);
        QCOMPARE(navigation.getNavigatePreviousButton()->leftIcon(),
                 QStringLiteral("qrc:/Resources/arrow-right-bold.svg"));
        navigation.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(navigation.getNavigatePreviousButton()->leftIcon(),
                 QStringLiteral("qrc:/Resources/arrow-left-bold.svg"));
    }

    // NavigationDotsWidget: the dots alone.
    void fixedSize_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<QSize>("size");
        QTest::newRow("one page") << 1 << QSize(12, 24);
        QTest::newRow("twelve pages") << 12 << QSize(166, 24);
        QTest::newRow("none") << 0 << QSize(0, 24);
    }

    void fixedSize() {
        QFETCH(int, count);
        QFETCH(QSize, size);
        NavigationDotsWidget dots(count);
        QCOMPARE(dots.minimumSize(), size);
        QCOMPARE(dots.maximumSize(), size);
    }

    void negativeCount() {
        QTest::ignoreMessage(QtWarningMsg, "NavigationDotsWidget: page count -3 is negative; using 0");
        NavigationDotsWidget dots(-3);
        QCOMPARE(dots.pageCount(), 0);
        QCOMPARE(dots.maximumSize(), QSize(0, 24));
        dots.setPageIndex(1);
        QImage image(QSize(1, 24), QImage::Format_ARGB32);
        dots.render(&image);
    }

    void dotsAroundCurrent() {
        NavigationDotsWidget dots(5);
        dots.setPageIndex(3);
        const QImage image = rendered(&dots);
        QCOMPARE(image.pixelColor(kCurrentX, 12).rgb(), cursor().rgb());
        // Radius 4: the current dot reaches further than the others.
        QCOMPARE(image.pixelColor(kCurrentX + 2, 12).rgb(), cursor().rgb());
        QVERIFY(image.pixelColor(kAfterX + 3, 12).alpha() == 0);
        QCOMPARE(image.pixelColor(kBeforeX, 12).rgb(), track().rgb());
        QCOMPARE(image.pixelColor(kAfterX, 12).rgb(), track().rgb());
        // Where the dot before would sit unshifted, and between the dots.
        QCOMPARE(image.pixelColor(kBeforeX + 4, 12).alpha(), 0);
        QCOMPARE(image.pixelColor(kAfterX - 5, 12).alpha(), 0);
        QCOMPARE(QAccessible::queryAccessibleInterface(&dots)->text(QAccessible::Name),
                 QStringLiteral("Page 3 of 5"));
        // The colours follow a theme switch.
        const QColor light = cursor();
        switchTheme("dark");
        QVERIFY(cursor().rgb() != light.rgb());
        QTRY_COMPARE(rendered(&dots).pixelColor(kCurrentX, 12).rgb(), cursor().rgb());
    }

    void noDotsOutsideRange_data() {
        QTest::addColumn<int>("index");
        QTest::newRow("zero") << 0;
        QTest::newRow("beyond count") << 6;
        QTest::newRow("negative") << -2;
    }

    void noDotsOutsideRange() {
        QFETCH(int, index);
        NavigationDotsWidget dots(5);
        dots.setPageIndex(index);
        const QImage image = rendered(&dots);
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixelColor(x, 12).alpha(), 0);
    }

    // Page 1 sits on the leading side: the right one in right-to-left.
    void dotsMirrored() {
        NavigationDotsWidget dots(5);
        dots.setLayoutDirection(Qt::RightToLeft);
        dots.setPageIndex(3);
        const QImage image = rendered(&dots);
        QCOMPARE(image.pixelColor(dots.width() - kCurrentX, 12).rgb(), cursor().rgb());
        QCOMPARE(image.pixelColor(dots.width() - kBeforeX, 12).rgb(), track().rgb());
    }
};

QTEST_MAIN(tst_Navigation)
#include "tst_navigation.moc"
