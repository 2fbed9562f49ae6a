#include "kacheckbox.h"
#include "karadiobutton.h"

#include <buttontestutils.h>
#include <focusringtest.h>

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

class tst_KaCheckBox : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void paintsTheStateInTheThemesColours_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("border");
        QTest::newRow("unchecked") << int(Qt::Unchecked) << "checkbox-unchecked-border";
        QTest::newRow("checked") << int(Qt::Checked) << "checkbox-checked-border";
        QTest::newRow("partly") << int(Qt::PartiallyChecked) << "checkbox-checked-border";
    }
    void paintsTheStateInTheThemesColours() {
        QFETCH(int, state);
        QFETCH(QString, border);
        KaCheckBox box(QStringLiteral("Mentions"));
        box.setTristate(true);
        box.setCheckState(Qt::CheckState(state));
        box.resize(box.sizeHint());
        const QByteArray set = border.toLatin1();
        const int y = box.height() / 2; // the box's left edge, mid-height
        QCOMPARE(rendered(&box).pixelColor(0, y), colorOf(set.constData()));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&box).pixelColor(0, y), colorOf(set.constData(), BzThemeUtils::Dark));
    }

    void wholeWidgetToggles() {
        KaCheckBox box(QStringLiteral("A long label to click on"));
        box.resize(box.sizeHint());
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QSignalSpy toggled(&box, &QAbstractButton::toggled);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.width() - 3, box.height() / 2));
        QCOMPARE(toggled.count(), 1);
        QVERIFY(box.isChecked());
    }

    void accessibleStates() {
        KaCheckBox box(QStringLiteral("Replies"));
        box.setTristate(true);
        box.setCheckState(Qt::PartiallyChecked);
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(a11y->role(), QAccessible::CheckBox);
        QCOMPARE(a11y->text(QAccessible::Name), QStringLiteral("Replies"));
        QVERIFY(a11y->state().checkStateMixed);
        box.setCheckState(Qt::Checked);
        QVERIFY(a11y->state().checked && !a11y->state().checkStateMixed);
    }

    // KaRadioButton.
    void radioDotFollowsTheme() {
        KaRadioButton radio(QStringLiteral("Automatic"));
        radio.setChecked(true);
        radio.resize(radio.sizeHint());
        const QPoint dot(8, radio.height() / 2); // the circle's centre
        QCOMPARE(rendered(&radio).pixelColor(dot), colorOf("radio-checked-icon"));
        switchTheme("highContrast");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&radio).pixelColor(dot), colorOf("radio-checked-icon", BzThemeUtils::HighContrast));
        radio.setAutoExclusive(false); // Qt keeps a lone exclusive radio button checked
        radio.setChecked(false);
        QCOMPARE(rendered(&radio).pixelColor(dot),
                 colorOf("radio-unchecked-background", BzThemeUtils::HighContrast));
    }

    void radioMirroredRightToLeft() {
        KaRadioButton radio(QStringLiteral("Automatic"));
        radio.setChecked(true);
        radio.setLayoutDirection(Qt::RightToLeft);
        radio.resize(radio.sizeHint());
        QCOMPARE(rendered(&radio).pixelColor(radio.width() - 8, radio.height() / 2),
                 colorOf("radio-checked-icon"));
    }

    void radioAccessibleRole() {
        KaRadioButton radio(QStringLiteral("Best picture"));
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(&radio);
        QCOMPARE(a11y->role(), QAccessible::RadioButton);
        QCOMPARE(a11y->text(QAccessible::Name), QStringLiteral("Best picture"));
        radio.setEnabled(false);
        QVERIFY(a11y->state().disabled);
    }

    void focusRingRoundTheBox() {
        FocusRingTest::installStyle("global-focus-outline");
        QWidget window;
        auto* box = new KaCheckBox(QStringLiteral("Reactions"), &window);
        box->setGeometry(20, 20, 120, 20);
        window.resize(200, 80);
        QVERIFY(activated(window));
        box->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));
        // The 16-pixel box at (0, 2) in the check box, plus a margin of 3.
        QCOMPARE(FocusRingTest::visibleRing(window)->geometry(), QRect(17, 19, 22, 22));
    }
};

QTEST_MAIN(tst_KaCheckBox)
#include "tst_kacheckbox.moc"
