#include "kaslider.h"

#include <accessibilityrecorder.h>
#include <buttontestutils.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>

using namespace ButtonTest;

class tst_KaSlider : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void fillFollowsValueAndTheme_data() {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("horizontal") << int(Qt::Horizontal) << false;
        QTest::newRow("right to left") << int(Qt::Horizontal) << true;
        QTest::newRow("vertical") << int(Qt::Vertical) << false;
    }
    void fillFollowsValueAndTheme() {
        QFETCH(int, orientation);
        QFETCH(bool, rightToLeft);
        KaSlider slider{Qt::Orientation(orientation)};
        slider.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        slider.resize(orientation == Qt::Horizontal ? QSize(200, 24) : QSize(24, 200));
        slider.setRange(0, 100);
        slider.setValue(50);
        // A point on the track a quarter of the way from the minimum's end.
        const bool horizontal = orientation == Qt::Horizontal;
        const QPoint minimumSide = horizontal ? QPoint(rightToLeft ? 150 : 50, 12) : QPoint(12, 150);
        const QPoint maximumSide = horizontal ? QPoint(rightToLeft ? 50 : 150, 12) : QPoint(12, 50);
        QCOMPARE(rendered(&slider).pixelColor(minimumSide), colorOf("slider-track-indicator-background"));
        QCOMPARE(rendered(&slider).pixelColor(maximumSide), colorOf("slider-track-empty-background"));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&slider).pixelColor(minimumSide),
                 colorOf("slider-track-indicator-background", BzThemeUtils::Dark));
    }

    void keyboardStepsAreAnnounced() {
        AccessibilityRecorder::RecordingScope scope;
        KaSlider slider;
        slider.setRange(0, 100);
        slider.setAccessibleName(QStringLiteral("Volume"));
        slider.show();
        QApplication::setActiveWindow(&slider);
        QVERIFY(QTest::qWaitForWindowActive(&slider));
        slider.setFocus();
        QTest::keyClick(&slider, Qt::Key_Right);
        QTest::keyClick(&slider, Qt::Key_PageUp);
        QCOMPARE(slider.value(), 1 + slider.pageStep());
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(&slider);
        QCOMPARE(a11y->role(), QAccessible::Slider);
        QCOMPARE(a11y->valueInterface()->currentValue().toInt(), slider.value());
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged, &slider).size(), 2);
    }

    void ticksOverTheWholeIntRange() {
        KaSlider slider;
        slider.setRange(INT_MIN, INT_MAX);
        slider.setTickPosition(QSlider::TicksBothSides);
        slider.setTickInterval(INT_MAX / 2);
        slider.resize(200, 40);
        QVERIFY(!rendered(&slider).isNull()); // terminates without overflow
    }
};

QTEST_MAIN(tst_KaSlider)
#include "tst_kaslider.moc"
