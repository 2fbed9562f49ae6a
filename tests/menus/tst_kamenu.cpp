#include "kabutton.h"
#include "kacontextmenu.h"
#include "kacustomizedseparatoritemdata.h"
#include "kadiscoverabilitybanner.h"
#include "kadiscoverabilitybannerdata.h"
#include "kamenu.h"
#include "kamenuaction.h"
#include "kamenubase.h"
#include "kamenuitem.h"
#include "kamenuitemdata.h"
#include "kapillbutton.h"
#include "kapopover.h"
#include "kapopuputils.h"
#include "karvexutils.h"
#include "testhelpers.h"

#include <bzthememanager.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

namespace {

KaMenuItemData entry(const QString& title) {
    KaMenuItemData data;
    data.title = title;
    return data;
}

// A small top-level window standing in for the widget a menu opens from.
struct Anchor {
    explicit Anchor(const QPoint& at) {
        widget.setWindowFlags(Qt::FramelessWindowHint);
        widget.setGeometry(QRect(at, QSize(40, 20)));
        widget.show();
    }
    QRect global() const { return QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size()); }
    QWidget widget;
};

void fill(KaMenu& menu, int count) {
    for (int i = 0; i < count; ++i)
        menu.addMenuItem(entry(QStringLiteral("Entry %1").arg(i + 1)));
}

// Pops `menu` up at `at` and waits until it shows.
[[nodiscard]] bool opened(KaMenu& menu, const QPoint& at = QPoint(100, 100)) {
    menu.popupAt(at);
    return QTest::qWaitFor([&menu] { return menu.isVisible(); });
}

QColor pixel(KaMenu& menu, const QPoint& at) {
    return BzTest::paint(menu).pixelColor(at);
}

// A parent that announces theme-type changes the way library widgets do.
class ThemedParent : public QWidget {
    Q_OBJECT
public:
    void setThemeType(const QString& type) {
        setProperty("themeType", type);
        Q_EMIT themeTypeChanged();
    }
Q_SIGNALS:
    void themeTypeChanged();
};
} // namespace

class tst_KaMenu : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
    void cleanup() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    void flipsAtScreenEdges_data() {
        QTest::addColumn<QPoint>("anchorAt");
        QTest::addColumn<KaPopupEnum::Alignment>("requested");
        QTest::addColumn<KaPopupEnum::Alignment>("shown");
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const int midX = screen.center().x() - 20;
        QTest::newRow("below at the bottom edge opens above")
            << QPoint(midX, screen.bottom() - 30) << KaPopupEnum::Bottom << KaPopupEnum::Top;
        QTest::newRow("above with room stays above")
            << QPoint(midX, screen.bottom() - 30) << KaPopupEnum::Top << KaPopupEnum::Top;
    }

    // The flips themselves: tst_kapopuputils' showPointNearEdges.
    void flipsAtScreenEdges() {
        QFETCH(QPoint, anchorAt);
        QFETCH(KaPopupEnum::Alignment, requested);
        QFETCH(KaPopupEnum::Alignment, shown);
        Anchor anchor(anchorAt);
        KaMenu menu;
        fill(menu, 5);
        menu.popupAt(&anchor.widget, requested, true);
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(menu.getAlignment(), shown);
        const QRect a = anchor.global();
        const QRect m = menu.geometry();
        QVERIFY(m.bottom() < a.top() + KaPopupUtils::ShadowMargin);
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(m));
        // Closing forgets the flip.
        menu.close();
        QCOMPARE(menu.getAlignment(), requested);
    }

    void popOffsetOfHundredOrMoreIsIgnored_data() {
        QTest::addColumn<unsigned>("offset");
        QTest::addColumn<unsigned>("expected");
        QTest::newRow("99 taken") << 99u << 99u;
        QTest::newRow("0 taken") << 0u << 0u;
        QTest::newRow("100 ignored") << 100u << 30u;
        QTest::newRow("4000000000 ignored") << 4000000000u << 30u;
    }

    void popOffsetOfHundredOrMoreIsIgnored() {
        QFETCH(unsigned, offset);
        QFETCH(unsigned, expected);
        KaMenu menu;
        menu.setPopOffset(30);
        menu.setPopOffset(offset);
        QCOMPARE(menu.popOffset(), expected);
    }

    void arrowMarginsPerAlignment_data() {
        QTest::addColumn<KaPopupEnum::Alignment>("alignment");
        QTest::addColumn<bool>("arrow");
        QTest::addColumn<QMargins>("margins");
        QTest::newRow("above, arrow") << KaPopupEnum::Top << true << QMargins(10, 10, 10, 25);
        QTest::newRow("right, arrow") << KaPopupEnum::Right << true << QMargins(26, 10, 10, 10);
        QTest::newRow("above, plain") << KaPopupEnum::Top << false << QMargins(10, 10, 10, 15);
        QTest::newRow("right, plain") << KaPopupEnum::Right << false << QMargins(15, 10, 10, 10);
    }

    void arrowMarginsPerAlignment() {
        QFETCH(KaPopupEnum::Alignment, alignment);
        QFETCH(bool, arrow);
        QFETCH(QMargins, margins);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        Anchor anchor(screen.center() - QPoint(20, 10));
        KaMenu menu;
        fill(menu, 2);
        menu.popupAt(&anchor.widget, alignment, arrow);
        QCOMPARE(menu.getAlignment(), alignment);
        QCOMPARE(menu.contentsMargins(), margins);
        // The entries sit inside the bubble's body.
        const QRect body = KaPopupUtils::bodyRect(menu.size(), alignment, arrow);
        for (QAction* action : menu.actions())
            QVERIFY(body.contains(menu.actionGeometry(action)));
    }

    void radiusPerStyleAndSize_data() {
        QTest::addColumn<KaMenuEnum::Style>("style");
        QTest::addColumn<KaMenuEnum::Size>("size");
        QTest::addColumn<int>("radius");
        QTest::newRow("normal small") << KaMenuEnum::Normal << KaMenuEnum::Small << 8;
        QTest::newRow("circular small") << KaMenuEnum::Circular << KaMenuEnum::Small << 16;
        QTest::newRow("circular large") << KaMenuEnum::Circular << KaMenuEnum::Large << 25;
    }

    void radiusPerStyleAndSize() {
        QFETCH(KaMenuEnum::Style, style);
        QFETCH(KaMenuEnum::Size, size);
        QFETCH(int, radius);
        KaMenu menu;
        auto* sub = new KaMenu(&menu);
        menu.addMenu(entry(QStringLiteral("More")), sub);
        QSignalSpy styleSpy(&menu, &KaMenu::styleChanged);
        menu.setStyle(style);
        menu.setSize(size);
        QCOMPARE(menu.radius(), radius);
        QCOMPARE(styleSpy.count(), style == KaMenuEnum::Normal ? 0 : 1);
        // The sub-menu and the entries follow.
        QCOMPARE(sub->radius(), radius);
        auto* action = qobject_cast<KaMenuAction*>(menu.actions().first());
        QCOMPARE(action->menuItem()->style(), style);
        QCOMPARE(action->menuItem()->size(), size);
    }

    void secondarySeparatorColour_data() {
        QTest::addColumn<bool>("secondary");
        QTest::addColumn<QString>("set");
        QTest::newRow("primary") << false << QStringLiteral("separator-primary");
        QTest::newRow("secondary") << true << QStringLiteral("separator-secondary");
    }

    void secondarySeparatorColour() {
        QFETCH(bool, secondary);
        QFETCH(QString, set);
        const QColor primary = BzTest::set("separator-primary").normal();
        const QColor other = BzTest::set("separator-secondary").normal();
        QVERIFY(primary.rgba() != other.rgba());
        KaMenu menu;
        menu.addMenuItem(entry(QStringLiteral("One")));
        QAction* separator = menu.addSeparator();
        menu.addMenuItem(entry(QStringLiteral("Two")));
        menu.enableSeparatorSecondary(secondary);
        QVERIFY(opened(menu));
        const QRect line = menu.actionGeometry(separator);
        const QColor painted = pixel(menu, QPoint(line.center().x(), line.top() + line.height() / 2));
        const QColor background = KaPopupUtils::popupColors().background;
        QVERIFY2(BzTest::near(painted, BzTest::over(BzTest::set(qPrintable(set)).normal(), background)),
                 qPrintable(painted.name(QColor::HexArgb)));
    }

    void dismissedBannerLeavesNoSeparator() {
        KaMenu menu;
        KaDiscoverabilityBannerData banner;
        banner.text = QStringLiteral("Pin chats you use often");
        menu.addDiscoverabilityBanner(banner);
        menu.addMenuItem(entry(QStringLiteral("Pin")));
        QVERIFY(opened(menu));
        const QList<QAction*> actions = menu.actions();
        QCOMPARE(actions.size(), 3);
        QVERIFY(actions.at(1)->isSeparator());
        auto* widget = menu.findChild<KaDiscoverabilityBanner*>();
        QVERIFY(widget);
        auto* dismiss = widget->findChild<QAbstractButton*>(QStringLiteral("dismissButton"));
        QVERIFY(dismiss);
        dismiss->click();
        QVERIFY(!actions.at(0)->isVisible());
        QVERIFY(!actions.at(1)->isVisible());
        QVERIFY(actions.at(2)->isVisible());
    }

    void accessibleTextsPerSection() {
        KaMenu menu;
        menu.addMenuItem(entry(QStringLiteral("Open")));
        menu.addSeparator(QStringLiteral("Header"));
        menu.addMenuItem(entry(QStringLiteral("Alpha")));
        menu.addMenuItem(entry(QStringLiteral("Title")));
        menu.addMenuItem(entry(QStringLiteral("Omega")));
        menu.addSeparator();
        KaCustomizedSeparatorItemData second;
        second.text = QStringLiteral("Share");
        menu.addSeparator(second);
        menu.addMenu(entry(QStringLiteral("Send to")), new KaMenu(&menu));
        KaDiscoverabilityBannerData banner;
        banner.text = QStringLiteral("Tip");
        menu.addDiscoverabilityBanner(banner);
        menu.addMenuItem(entry(QStringLiteral("Copy link")));

        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&menu);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::PopupMenu);
        QCOMPARE(iface->text(QAccessible::Name),
                 QStringLiteral("Context menu options, Menu, Use up and down arrow keys to navigate"));
        const auto name = [iface](int i) {
            return iface->child(i)->text(QAccessible::Name);
        };
        QTRY_COMPARE(name(0), QStringLiteral("Open, Menu Item, 1 of 1"));
        QCOMPARE(name(2), QStringLiteral("Header, Alpha, Menu Item, 1 of 3"));
        QCOMPARE(name(3), QStringLiteral("Header, Title, Menu Item, 2 of 3"));
        QCOMPARE(name(4), QStringLiteral("Header, Omega, Menu Item, 3 of 3"));
        // Entries with a sub-menu leave out "Menu Item"; banners and
        // separators are not counted.
        QCOMPARE(name(7), QStringLiteral("Share, Send to, 1 of 2"));
        QCOMPARE(name(10), QStringLiteral("Share, Copy link, Menu Item, 2 of 2"));
        QCOMPARE(iface->child(7)->role(), QAccessible::MenuItem);
    }

    // Arrow keys ring the highlighted entry, Tab stays, Escape cancels.
    void keyboard() {
        KaMenu menu;
        fill(menu, 3);
        QVERIFY(opened(menu));
        const QColor outer = BzTest::set("global-focus-outline").normal();
        QAction* first = menu.actions().at(0);
        const QRect geometry = qobject_cast<QWidgetAction*>(first)->defaultWidget()->geometry();
        const QPoint edge(geometry.center().x(), geometry.top() + 3);
        // The mouse highlights without a ring.
        menu.setActiveAction(first);
        QVERIFY(!BzTest::near(pixel(menu, edge), outer, 8));
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Up);
        QCOMPARE(menu.activeAction(), first);
        QCOMPARE(menu.focusAction(), first);
        QVERIFY2(BzTest::near(pixel(menu, edge), outer, 8), qPrintable(pixel(menu, edge).name()));
        menu.setActiveAction(menu.actions().at(1));
        QTest::keyClick(&menu, Qt::Key_Tab);
        QCOMPARE(menu.activeAction(), menu.actions().at(1));
        QVERIFY(menu.isVisible());
        QSignalSpy cancelled(&menu, &KaMenu::cancelled);
        QTest::keyClick(&menu, Qt::Key_Escape);
        QCOMPARE(cancelled.count(), 1);
        QTRY_VERIFY(!menu.isVisible());
    }

    void followsThemeSwitch() {
        KaMenu menu;
        fill(menu, 2);
        QVERIFY(opened(menu));
        // Inside the body below the last entry (no arrow: 15 px of room).
        const QPoint inBubble(menu.width() / 2, menu.height() - menu.contentsMargins().bottom() + 3);
        const QColor light = KaPopupUtils::popupColors(BzThemeUtils::Light).background;
        const QColor dark = KaPopupUtils::popupColors(BzThemeUtils::Dark).background;
        QVERIFY(light != dark);
        QVERIFY2(BzTest::near(pixel(menu, inBubble), light), qPrintable(pixel(menu, inBubble).name()));
        const QColor lightOuter = menu.colors().focusOuter;
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        KarvexUtils::updateSolvaneThemes();
        QTRY_COMPARE(menu.colors().focusOuter, BzTest::set("global-focus-outline").normal());
        QVERIFY(lightOuter != menu.colors().focusOuter);
        QVERIFY(BzTest::near(pixel(menu, inBubble), dark));
    }

    void popoverBesideEntry() {
        KaMenu menu;
        KaMenuItemData data = entry(QStringLiteral("Forward"));
        data.popupText = QStringLiteral("Sends a copy");
        QAction* withPopup = menu.addMenuItemWithPopup(data);
        QAction* plain = menu.addMenuItem(entry(QStringLiteral("Reply")));
        QVERIFY(opened(menu));
        QCOMPARE(qobject_cast<QWidgetAction*>(withPopup)->defaultWidget()->objectName(),
                 QStringLiteral("MenuItemWithPopup"));
        menu.setActiveAction(withPopup);
        QTRY_VERIFY(menu.entryPopover() && menu.entryPopover()->isVisible());
        QVERIFY(menu.entryPopover()->announcementText().contains(QStringLiteral("Sends a copy")));
        // Beside the menu, not over the entry.
        QVERIFY(menu.entryPopover()->geometry().left() >= menu.geometry().center().x());
        menu.setActiveAction(plain);
        QTRY_VERIFY(!menu.entryPopover());
    }

    void buttonOpensItsMenu() {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QWidget window;
        window.setGeometry(QRect(screen.center() - QPoint(100, 50), QSize(200, 100)));
        auto* button = new KaPillButton(&window);
        button->setText(QStringLiteral("Options"));
        window.show();
        auto* menu = new KaMenu(&window);
        fill(*menu, 2);
        menu->popupWith(button, KaPopupEnum::Top, true);
        QVERIFY(!menu->isVisible());
        QCOMPARE(button->attachedMenu(), menu);
        Q_EMIT button->pressed();
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->getAlignment(), KaPopupEnum::Top);
        QVERIFY(menu->geometry().bottom() <
                button->mapToGlobal(QPoint(0, 0)).y() + KaPopupUtils::ShadowMargin);
        QVERIFY(!button->isDown());
    }

    void rightToLeft() {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        KaMenu menu;
        menu.addSeparator(QStringLiteral("Recent"));
        fill(menu, 2);
        QVERIFY(opened(menu, QPoint(300, 100)));
        QCOMPARE(menu.layoutDirection(), Qt::RightToLeft);
        // The header's text starts at the right.
        const QRect header = menu.actionGeometry(menu.actions().first());
        const QImage image = BzTest::paint(menu);
        const QColor text = menu.colors().header;
        int left = header.right();
        int right = header.left();
        for (int y = header.top(); y <= header.bottom(); ++y)
            for (int x = header.left(); x <= header.right(); ++x)
                if (BzTest::near(image.pixelColor(x, y), text, 40)) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                }
        QVERIFY(right > left);
        QVERIFY(header.right() - right < left - header.left());
    }

    void soakKeepsWidgetCountFlat() {
        const auto cycle = [] {
            auto* menu = new KaMenu;
            menu->setAttribute(Qt::WA_DeleteOnClose);
            auto* sub = new KaMenu(menu);
            sub->addMenuItem(entry(QStringLiteral("Inner")));
            menu->addMenu(entry(QStringLiteral("More")), sub);
            KaMenuItemData data = entry(QStringLiteral("Forward"));
            data.popupText = QStringLiteral("Sends a copy");
            QAction* withPopup = menu->addMenuItemWithPopup(data);
            menu->addSeparator();
            menu->addMenuItem(entry(QStringLiteral("Reply")));
            menu->popupAt(QPoint(100, 100));
            menu->setActiveAction(withPopup);
            menu->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        cycle();
        const qsizetype before = QApplication::allWidgets().size();
        for (int i = 0; i < 1000; ++i)
            cycle();
        QCOMPARE(QApplication::allWidgets().size(), before);
    }

    void badInput() {
        KaMenu menu;
        fill(menu, 2);
        QTest::ignoreMessage(QtWarningMsg, "Unable to do KaMenu::popAt null item.");
        menu.popupAt(static_cast<QQuickItem*>(nullptr), KaPopupEnum::Bottom);
        QTest::ignoreMessage(QtWarningMsg, "Unable to do KaMenu::popAt null button.");
        menu.popupWith(nullptr, KaPopupEnum::Bottom);
        QTest::ignoreMessage(QtWarningMsg, "Unable to do KaMenu::popAt null item.");
        menu.popupAt(KaMenuPositionConfig());
        QVERIFY(!menu.isVisible());

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("style 7 out of range"));
        menu.setStyle(KaMenuEnum::Style(7));
        QCOMPARE(menu.menuStyle(), KaMenuEnum::Normal);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("size -1 out of range"));
        menu.setSize(KaMenuEnum::Size(-1));
        QCOMPARE(menu.menuSize(), KaMenuEnum::Medium);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("null entry widget"));
        QVERIFY(!menu.addCustomMenuItem(nullptr));

        // An alignment outside the table opens below.
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        {
            Anchor anchor(screen.center());
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("alignment 9 out of range"));
            menu.popupAt(&anchor.widget, KaPopupEnum::Alignment(9), true);
            QTRY_VERIFY(menu.isVisible());
            QCOMPARE(menu.getAlignment(), KaPopupEnum::Bottom);
            menu.setActiveAction(menu.actions().at(1));
        }
        // The anchor is gone while the menu is open: painting and a new
        // pop-up must cope.
        menu.repaint();
        BzTest::paint(menu);
        menu.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("anchor is gone"));
        menu.popup();
        QVERIFY(!menu.isVisible());
    }

    void subMenuDeletedBeforeParent() {
        KaMenu menu;
        auto* sub = new KaMenu(&menu);
        sub->addMenuItem(entry(QStringLiteral("Inner")));
        QAction* opener = menu.addMenu(entry(QStringLiteral("More")), sub);
        menu.addMenuItem(entry(QStringLiteral("After")));
        delete sub;
        QVERIFY(!opener->menu());
        menu.setStyle(KaMenuEnum::Circular);
        QVERIFY(opened(menu));
        menu.setActiveAction(opener);
        QTest::keyClick(&menu, Qt::Key_Right);
        BzTest::paint(menu);
        QTRY_COMPARE(menu.actions().first()->text(), QStringLiteral("More, Menu Item, 1 of 2"));
    }

    // KaContextMenu.
    void spaceActivatesHighlightedEntry_data() {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("plain") << Qt::KeyboardModifiers(Qt::NoModifier);
        QTest::newRow("with shift") << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }

    void spaceActivatesHighlightedEntry() {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        KaContextMenu menu;
        QAction* copy = menu.addAction(QStringLiteral("Copy"));
        QAction* paste = menu.addAction(QStringLiteral("Paste"));
        QSignalSpy copySpy(copy, &QAction::triggered);
        QSignalSpy pasteSpy(paste, &QAction::triggered);
        menu.popupAt(QPoint(50, 50));
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(menu.activeAction(), copy);
        QTest::keyClick(&menu, Qt::Key_Down);
        QCOMPARE(menu.activeAction(), paste);
        QTest::keyClick(&menu, Qt::Key_Space, modifiers);
        QTRY_COMPARE(pasteSpy.count(), 1);
        QCOMPARE(copySpy.count(), 0);
        QTRY_VERIFY(!menu.isVisible());
    }

    void otherKeysPassThrough() {
        KaContextMenu menu;
        QAction* copy = menu.addAction(QStringLiteral("Copy"));
        QSignalSpy copySpy(copy, &QAction::triggered);
        menu.popupAt(QPoint(50, 50));
        QTRY_VERIFY(menu.isVisible());
        QTest::keyClick(&menu, Qt::Key_Escape);
        QTRY_VERIFY(!menu.isVisible());
        QCOMPARE(copySpy.count(), 0);
    }

    void contextMenuFollowsThemeSwitch() {
        KaContextMenu menu;
        menu.addAction(QStringLiteral("Copy"));
        menu.addAction(QStringLiteral("Paste"));
        menu.popupAt(QPoint(50, 50));
        QTRY_VERIFY(menu.isVisible());
        // The frame's inside, left of the first entry's text.
        const QPoint inside(4, menu.height() / 2);
        const QColor light = BzTest::set("popover-primary-background").normal();
        QVERIFY(BzTest::near(BzTest::paint(menu).pixelColor(inside), light));
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        KarvexUtils::updateSolvaneThemes();
        const QColor dark = BzTest::set("popover-primary-background").normal();
        QVERIFY(light != dark);
        QTRY_VERIFY(BzTest::near(BzTest::paint(menu).pixelColor(inside), dark));
    }

    void focusRingFollowsKeyboard() {
        KaContextMenu menu;
        menu.addAction(QStringLiteral("Copy"));
        QAction* paste = menu.addAction(QStringLiteral("Paste"));
        menu.popupAt(QPoint(50, 50));
        QTRY_VERIFY(menu.isVisible());
        const QColor outer = BzTest::set("global-focus-outline").normal();
        const QRect geometry = menu.actionGeometry(paste);
        // The ring's solid outer line.
        const QPoint edge(geometry.center().x(), geometry.top() + 2);
        menu.setActiveAction(paste);
        QVERIFY(!BzTest::near(BzTest::paint(menu).pixelColor(edge), outer, 8));
        QTest::keyClick(&menu, Qt::Key_Up);
        QTest::keyClick(&menu, Qt::Key_Down);
        QCOMPARE(menu.activeAction(), paste);
        const QColor painted = BzTest::paint(menu).pixelColor(edge);
        QVERIFY2(BzTest::near(painted, outer, 8), qPrintable(painted.name()));
    }

    void readsAsPopupMenu() {
        KaContextMenu menu;
        menu.addAction(QStringLiteral("&Copy"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&menu);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::PopupMenu);
        QVERIFY(iface->text(QAccessible::Name).startsWith(QStringLiteral("Context menu options")));
        QCOMPARE(iface->child(0)->text(QAccessible::Name), QStringLiteral("Copy"));
    }

    // KaMenuBase: what every menu of the library shares.
    void popupHighlightsFirstActionWithoutUnfolding() {
        KaMenuBase menu;
        auto* sub = new QMenu(&menu);
        sub->addAction(QStringLiteral("Inner"));
        QAction* opener = menu.addMenu(sub);
        menu.addAction(QStringLiteral("Other"));
        menu.setFirstAction(opener);
        menu.popupAt(QPoint(40, 40));
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(menu.lastPopupPoint(), QPoint(40, 40));
        QCOMPARE(menu.activeAction(), opener);
        QVERIFY(!sub->isVisible());
    }

    void firstActionRule() {
        KaMenuBase menu;
        QAction* one = menu.addAction(QStringLiteral("One"));
        menu.addAction(QStringLiteral("Two"));
        QCOMPARE(menu.getFirstAction(), one);
        delete one;
        QVERIFY(!menu.getFirstAction());
        QAction* three = menu.addAction(QStringLiteral("Three"));
        QCOMPARE(menu.getFirstAction(), three);
        menu.popupAt(QPoint(10, 10));
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(menu.activeAction(), three);
    }

    void takesOverSourceActions() {
        QMenu source;
        source.addAction(QStringLiteral("A"));
        source.addAction(QStringLiteral("B"));
        KaMenuBase menu(&source);
        QCOMPARE(menu.actions(), source.actions());
        QCOMPARE(menu.getFirstAction(), source.actions().first());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no source menu"));
        KaMenuBase empty(static_cast<QMenu*>(nullptr));
        QVERIFY(empty.actions().isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("null action"));
        empty.addAction(static_cast<QAction*>(nullptr));
        QVERIFY(empty.actions().isEmpty());
    }

    void followsParentThemeType() {
        ThemedParent parent;
        auto* menu = new KaMenuBase(&parent);
        QSignalSpy spy(menu, &KaMenuBase::themeTypeChanged);
        parent.setThemeType(QStringLiteral("dark"));
        QCOMPARE(menu->themeType(), QStringLiteral("dark"));
        QCOMPARE(spy.count(), 1);
        parent.setThemeType(QStringLiteral("dark"));
        QCOMPARE(spy.count(), 1);
    }

    void templateResolvesPerTheme() {
        KaMenuBase menu;
        menu.setCSS(QStringLiteral("QMenu { background-color: $(listitem-background); }"));
        QVERIFY(!menu.styleSheet().contains(QLatin1String("$(")));
        QVERIFY(menu.styleSheet().contains(QLatin1String("rgba(")));
        const QString light = menu.styleSheet();
        menu.setThemeType(QStringLiteral("dark"));
        QVERIFY(menu.styleSheet() != light);
    }
};

QTEST_MAIN(tst_KaMenu)
#include "tst_kamenu.moc"
