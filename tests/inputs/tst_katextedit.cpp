#include "katextedit.h"

#include <buttontestutils.h>
#include <focusringtest.h>

#include <QAccessible>
#include <QScrollBar>
#include <QTest>

using namespace ButtonTest;

class tst_KaTextEdit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void themeSwitch() {
        KaTextEdit edit;
        edit.resize(200, 100);
        QCOMPARE(rendered(&edit).pixelColor(100, 50), colorOf("textinput-background"));
        QCOMPARE(rendered(&edit).pixelColor(0, 50), colorOf("textinput-border"));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&edit).pixelColor(100, 50), colorOf("textinput-background", BzThemeUtils::Dark));
        QCOMPARE(edit.palette().color(QPalette::PlaceholderText),
                 colorOf("textinput-placeholder-text", BzThemeUtils::Dark));
        QVERIFY(edit.verticalScrollBar()->styleSheet().contains(
            BzThemeUtils::colorToCss(colorOf("scrollbar-thumb-background", BzThemeUtils::Dark))));
    }

    void focusRingAroundFrame() {
        FocusRingTest::installStyle("global-focus-outline");
        QWidget window;
        auto* edit = new KaTextEdit(&window);
        edit->setGeometry(20, 20, 200, 100);
        window.resize(260, 160);
        QVERIFY(activated(window));
        edit->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));
        QCOMPARE(FocusRingTest::visibleRing(window)->geometry(), QRect(17, 17, 206, 106));
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(edit);
        QCOMPARE(a11y->role(), QAccessible::EditableText);
        QVERIFY(a11y->state().focused);
    }
};

QTEST_MAIN(tst_KaTextEdit)
#include "tst_katextedit.moc"
