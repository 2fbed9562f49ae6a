#include "buttontestutils.h"
#include "focusringtest.h"
#include "kachips.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

// A point on the pill's face, clear of text and cross.
QPoint faceSpot(const KaChips& chip) {
    return QPoint(4, chip.height() / 2);
}

} // namespace

class tst_KaChips : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

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
    void accessibility() {
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

QTEST_MAIN(tst_KaChips)
#include "tst_kachips.moc"
