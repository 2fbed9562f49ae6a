#include "accessibilityrecorder.h"
#include "kamoreinfobutton.h"
#include "kapopover.h"

#include <QAccessible>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class TestKaMoreInfoButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void clickTogglesPopover() {
        QWidget window;
        window.resize(400, 300);
        KaMoreInfoButton button(QStringLiteral("Calls are recorded for training."), &window);
        button.move(180, 130);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy shown(&button, &KaMoreInfoButton::popupShown);
        QSignalSpy hidden(&button, &KaMoreInfoButton::popupHidden);

        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(shown.count(), 1);
        QVERIFY(button.isPopupVisible());
        QWidget* text = button.popover()->contentWidget();
        QVERIFY(text);
        // The focus ring must never surround the popover's text.
        QCOMPARE(text->objectName(), QStringLiteral("MoreInfoButtonPopupText"));

        button.hidePopup();
        QTRY_COMPARE(hidden.count(), 1);
        QVERIFY(!button.isPopupVisible());
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(shown.count(), 2);
        QTest::mouseClick(&button, Qt::LeftButton); // a second click closes it
        QTRY_VERIFY(!button.isPopupVisible());
    }

    void popoverSideFollowsDirection_data() {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("expected");
        QTest::newRow("none opens below") << int(KaPopupEnum::None) << int(KaPopupEnum::Bottom);
        QTest::newRow("left") << int(KaPopupEnum::Left) << int(KaPopupEnum::Left);
    }

    void popoverSideFollowsDirection() {
        QFETCH(int, direction);
        QFETCH(int, expected);
        QWidget window;
        window.resize(600, 500);
        KaMoreInfoButton button(QStringLiteral("Short"), &window);
        button.move(280, 230);
        button.setPopupDirection(KaPopupEnum::Alignment(direction));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        button.showPopup();
        QVERIFY(button.popover());
        QCOMPARE(int(button.popover()->alignment()), expected);
        button.hidePopup();
    }

    void emptyTextOpensNothing() {
        KaMoreInfoButton button;
        QSignalSpy shown(&button, &KaMoreInfoButton::popupShown);
        button.showPopup();
        QCOMPARE(shown.count(), 0);
        QVERIFY(!button.popover());
    }

    void badDirectionIgnored() {
        KaMoreInfoButton button;
        QSignalSpy changed(&button, &KaMoreInfoButton::popupDirectionChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a side")));
        button.setPopupDirection(KaPopupEnum::Alignment(9));
        QCOMPARE(button.popupDirection(), KaPopupEnum::None);
        button.setPopupDirection(KaPopupEnum::Left);
        button.setPopupDirection(KaPopupEnum::Left);
        QCOMPARE(changed.count(), 1);
    }

    void accessibility() {
        const AccessibilityRecorder::RecordingScope recording;
        QWidget window;
        window.resize(400, 300);
        KaMoreInfoButton button(QStringLiteral("Details"), &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QVERIFY(!iface->text(QAccessible::Name).isEmpty());
        QCOMPARE(iface->text(QAccessible::Description), QStringLiteral("Details"));

        // Read out once, by the popover: Qt's Linux bridge drops value changes
        // from objects without a value, such as the button.
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(AccessibilityRecorder::announcements(), QStringList{QStringLiteral("Details")});
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged).first().object,
                 button.popover());
        QVERIFY(QAccessible::queryAccessibleInterface(button.popover())->valueInterface());
        button.hidePopup();
    }

    void deletingButtonClosesPopover() {
        QWidget window;
        window.resize(400, 300);
        auto* button = new KaMoreInfoButton(QStringLiteral("Bye"), &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        button->showPopup();
        QPointer<KaPopover> popover = button->popover();
        QVERIFY(popover);
        delete button;
        QTRY_VERIFY(!popover || !popover->isVisible());
    }
};

QTEST_MAIN(TestKaMoreInfoButton)
#include "tst_kamoreinfobutton.moc"
