#include "kaslider.h"

#include <accessibilityrecorder.h>
#include <buttontestutils.h>

#include <QAccessible>
#include <QApplication>
#include <QPainter>
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

    // A disabled slider still shows where it stands, high contrast included.
    void disabledTrackStaysVisible_data() {
        QTest::addColumn<QByteArray>("theme");
        QTest::newRow("light") << QByteArray("light");
        QTest::newRow("dark") << QByteArray("dark");
        QTest::newRow("high contrast") << QByteArray("highContrast");
    }
    void disabledTrackStaysVisible() {
        QFETCH(QByteArray, theme);
        switchTheme(theme.constData());
        KaSlider slider{Qt::Horizontal};
        slider.resize(200, 24);
        slider.setRange(0, 100);
        slider.setValue(50);
        slider.setEnabled(false);
        const QColor surface = colorOf("panel-primary-background");
        const QImage image = rendered(&slider);
        for (const QPoint at : {QPoint(50, 12), QPoint(150, 12)}) {
            QImage behind(1, 1, QImage::Format_ARGB32_Premultiplied);
            behind.fill(surface);
            QPainter(&behind).fillRect(0, 0, 1, 1, image.pixelColor(at));
            QVERIFY2(behind.pixelColor(0, 0) != surface, qPrintable(QStringLiteral("x = %1").arg(at.x())));
        }
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
