#include "kacontextmenu.h"
#include "karvexutils.h"
#include "testhelpers.h"

#include <bzthememanager.h>

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

class tst_KaContextMenu : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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

    void followsThemeSwitch() {
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
};

QTEST_MAIN(tst_KaContextMenu)
#include "tst_kacontextmenu.moc"
