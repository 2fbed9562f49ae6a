#include "buttontestutils.h"
#include "focusringtest.h"
#include "kabadge.h"
#include "kabutton.h"
#include "kachips.h"
#include "kacontextmenu.h"
#include "kacustomizedseparatoritemdata.h"
#include "kadiscoverabilitybanner.h"
#include "kadiscoverabilitybannerdata.h"
#include "kadiscoverabilitylabel.h"
#include "kalabel.h"
#include "kamenu.h"
#include "kamenuaction.h"
#include "kamenubase.h"
#include "kamenuitem.h"
#include "kamenuitemcontainer.h"
#include "kamenuitemdata.h"
#include "kapillbutton.h"
#include "kapopover.h"
#include "kapopuputils.h"
#include "karvexutils.h"
#include "kasvglabel.h"
#include "testhelpers.h"

#include <bzthememanager.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

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
template <typename Menu> [[nodiscard]] bool opened(Menu& menu, const QPoint& at = QPoint(100, 100)) {
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

const QString kRight = QStringLiteral("qrc:/Resources/arrow-right-bold.svg");
const QString kLeft = QStringLiteral("qrc:/Resources/arrow-left-bold.svg");
const QString kCustom = QStringLiteral("qrc:/Resources/cancel-bold.svg");

// Whether any pixel of `area` is exactly the normal colour of `set`.
bool paintsSet(KaMenuItem& item, const QRect& area, const char* set) {
    item.resize(item.minimumWidth(), item.height());
    const QImage image = rendered(&item);
    return BzTest::boxOf(image.copy(area), colorOf(set)).isValid();
}

// A point on the pill's face, clear of text and cross.
QPoint faceSpot(const KaChips& chip) {
    return QPoint(4, chip.height() / 2);
}
} // namespace

class tst_Menus : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
    void cleanup() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

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

    // The flips themselves: tst_kapopover's showPointNearEdges.
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
    // Space, with or without Shift, activates the highlighted entry; other
    // keys (Escape here) pass through to the menu, which closes.
    void keysOnHighlightedEntry_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("pasted");
        QTest::newRow("plain") << int(Qt::Key_Space) << Qt::KeyboardModifiers(Qt::NoModifier) << 1;
        QTest::newRow("with shift") << int(Qt::Key_Space) << Qt::KeyboardModifiers(Qt::ShiftModifier) << 1;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << Qt::KeyboardModifiers(Qt::NoModifier) << 0;
    }

    void keysOnHighlightedEntry() {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(int, pasted);
        KaContextMenu menu;
        QAction* copy = menu.addAction(QStringLiteral("Copy"));
        QAction* paste = menu.addAction(QStringLiteral("Paste"));
        QSignalSpy copySpy(copy, &QAction::triggered);
        QSignalSpy pasteSpy(paste, &QAction::triggered);
        QVERIFY(opened(menu, QPoint(50, 50)));
        QCOMPARE(menu.activeAction(), copy);
        QTest::keyClick(&menu, Qt::Key_Down);
        QCOMPARE(menu.activeAction(), paste);
        QTest::keyClick(&menu, Qt::Key(key), modifiers);
        QTRY_VERIFY(!menu.isVisible());
        QTRY_COMPARE(pasteSpy.count(), pasted);
        QCOMPARE(copySpy.count(), 0);
    }

    void contextMenuFollowsThemeSwitch() {
        KaContextMenu menu;
        menu.addAction(QStringLiteral("Copy"));
        menu.addAction(QStringLiteral("Paste"));
        QVERIFY(opened(menu, QPoint(50, 50)));
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
        QVERIFY(opened(menu, QPoint(50, 50)));
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
        QVERIFY(opened(menu, QPoint(40, 40)));
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
        QVERIFY(opened(menu, QPoint(10, 10)));
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

    // KaMenuAction, KaMenuItemContainer and KaMenuItem: the entries.
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

    void itemBadInput_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("expectedSize");
        QTest::addColumn<int>("expectedStyle");
        QTest::newRow("above") << 7 << 5 << int(KaMenuEnum::Large) << int(KaMenuEnum::Circular);
        QTest::newRow("below") << -3 << -1 << int(KaMenuEnum::Small) << int(KaMenuEnum::Normal);
    }

    // Out-of-range sizes and styles are clamped with a warning; other bad
    // values are refused.
    void itemBadInput() {
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

    // KaChips (its focus-ring test installs the application style: it stays last).
    void clickOnlyOnCross_data() {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left-to-right") << false;
        QTest::newRow("right-to-left") << true;
    }

    // Only the cross is clickable, at the trailing end whichever way the
    // text runs: a click on the text does nothing.
    void clickOnlyOnCross() {
        QFETCH(bool, rightToLeft);
        QWidget window;
        window.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        KaChips chip(&window, 42);
        chip.setDisplayText(QStringLiteral("Ada Lovelace"));
        chip.resize(chip.sizeHint());
        QVERIFY(shown(window, QRect(300, 300, 300, 60)));
        QSignalSpy dismissed(&chip, &KaChips::dismissed);
        QSignalSpy clicked(&chip, &QAbstractButton::clicked);
        QTest::mouseClick(&chip, Qt::LeftButton, {}, QPoint(chip.width() / 3, chip.height() / 2));
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(dismissed.count(), 0);
        QVERIFY(chip.isVisible());

        const QRect cross = chip.anchorIconRect();
        QVERIFY(cross.isValid());
        QCOMPARE(cross.center().x() < chip.width() / 2, rightToLeft);
        QTest::mouseClick(&chip, Qt::LeftButton, {}, cross.center());
        QCOMPARE(dismissed.count(), 1);
        QVERIFY(chip.isHidden());
        QCOMPARE(chip.getChipValue().toInt(), 42);
    }

    void keys_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("dismisses");
        QTest::addColumn<bool>("handedOver");
        QTest::addColumn<bool>("movesFocus");
        QTest::newRow("space") << int(Qt::Key_Space) << true << false << false;
        QTest::newRow("backspace") << int(Qt::Key_Backspace) << true << false << false;
        QTest::newRow("left") << int(Qt::Key_Left) << false << true << false;
        QTest::newRow("right") << int(Qt::Key_Right) << false << true << false;
        // The push button moves the focus on with Up and Down.
        QTest::newRow("up") << int(Qt::Key_Up) << false << false << true;
    }

    void keys() {
        QFETCH(int, key);
        QFETCH(bool, dismisses);
        QFETCH(bool, handedOver);
        QFETCH(bool, movesFocus);
        QWidget window;
        KaChips chip(&window);
        chip.setDisplayText(QStringLiteral("Design"));
        QPushButton next(QStringLiteral("Next"), &window);
        next.move(150, 0);
        QVERIFY(shown(window, QRect(300, 300, 300, 60)));
        chip.setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(chip.hasFocus());
        QSignalSpy dismissed(&chip, &KaChips::dismissed);
        QSignalSpy pressed(&chip, &QAbstractButton::pressed);
        QList<int> handed;
        connect(&chip, &KaChips::keyPressed, this, [&handed](QKeyEvent* event) { handed << event->key(); });

        QTest::keyClick(&chip, Qt::Key(key));
        QCOMPARE(dismissed.count(), dismisses ? 1 : 0);
        QCOMPARE(chip.isHidden(), dismisses);
        QCOMPARE(handed, handedOver ? QList<int>{key} : QList<int>{});
        // Space never presses the chip as it would a push button.
        QCOMPARE(pressed.count(), 0);
        if (!dismisses)
            QCOMPARE(next.hasFocus(), movesFocus);
    }

    // Screen readers hear the text and how to remove the chip; the tool tip
    // carries the whole text.
    void chipAccessibility() {
        KaChips chip(nullptr, QStringLiteral("id-7"));
        chip.setDisplayText(QStringLiteral("Grace Hopper"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&chip);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Grace Hopper"));
        QVERIFY(iface->text(QAccessible::Description).contains(QStringLiteral("Delete")));
        QVERIFY(iface->state().focusable);
        QCOMPARE(chip.toolTip(), QStringLiteral("Grace Hopper"));
        QCOMPARE(chip.height(), 24);
    }

    // An empty chip still shows its cross and can be dismissed.
    void emptyText() {
        QWidget window;
        KaChips chip(&window);
        chip.setDisplayText(QString());
        chip.resize(chip.sizeHint());
        QVERIFY(shown(window, QRect(300, 300, 200, 60)));
        QSignalSpy dismissed(&chip, &KaChips::dismissed);
        QTest::mouseClick(&chip, Qt::LeftButton, {}, chip.anchorIconRect().center());
        QCOMPARE(dismissed.count(), 1);
    }

    // The face follows a theme switch; keyboard focus shows the ring.
    void themeAndFocusRing() {
        FocusRingTest::installStyle();
        qApp->setProperty("isKeyboardFocus", true);
        QWidget window;
        KaChips chip(&window);
        chip.setDisplayText(QStringLiteral("Marketing"));
        chip.resize(chip.sizeHint());
        chip.move(20, 20);
        QVERIFY(shown(window, QRect(300, 300, 240, 80)));
        QVERIFY(BzTest::near(pixelAt(&chip, faceSpot(chip)), colorOf("button-secondary-background")));

        chip.setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));

        const QColor light = colorOf("button-secondary-background");
        switchTheme("dark");
        QVERIFY(colorOf("button-secondary-background") != light);
        QTRY_VERIFY(BzTest::near(pixelAt(&chip, faceSpot(chip)), colorOf("button-secondary-background")));
        qApp->setProperty("isKeyboardFocus", QVariant());
    }
};

QTEST_MAIN(tst_Menus)
#include "tst_menus.moc"
