#include "kacontextmenu.h"
#include "kamenubase.h"
#include "karvexutils.h"
#include "testhelpers.h"

#include <bzthememanager.h>

#include <QAccessible>
#include <QApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

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

QTEST_MAIN(tst_KaContextMenu)
#include "tst_kacontextmenu.moc"
