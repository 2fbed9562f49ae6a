#include "kacheckbox.h"
#include "karadiobutton.h"
#include "kaselectiongroup.h"
#include "kaslider.h"

#include <buttontestutils.h>
#include <focusringtest.h>

#include <QAccessible>
#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <accessibilityrecorder.h>

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

    // KaSelectionGroup.
    void selectAll_data() {
        QTest::addColumn<QList<int>>("checkedFirst");
        QTest::addColumn<int>("stateBefore");
        QTest::addColumn<int>("checkedAfterClick");
        QTest::newRow("none: click checks all") << QList<int>{} << int(Qt::Unchecked) << 3;
        QTest::newRow("some: click checks all") << QList<int>{1} << int(Qt::PartiallyChecked) << 3;
        QTest::newRow("all: click clears") << QList<int>{0, 1, 2} << int(Qt::Checked) << 0;
    }
    void selectAll() {
        QFETCH(QList<int>, checkedFirst);
        QFETCH(int, stateBefore);
        QFETCH(int, checkedAfterClick);
        KaSelectionGroup group(KaOptionRow::CheckBox);
        for (const char* text : {"Mentions", "Replies", "Reactions"})
            group.addOption(QString::fromLatin1(text));
        for (int index : checkedFirst)
            group.option(index)->setChecked(true);
        QCOMPARE(int(group.selectAllBox()->checkState()), stateBefore);
        group.selectAllBox()->click();
        int checked = 0;
        for (int i = 0; i < group.count(); ++i)
            checked += group.option(i)->isChecked();
        QCOMPARE(checked, checkedAfterClick);
        QCOMPARE(group.selectAllBox()->checkState(), checked ? Qt::Checked : Qt::Unchecked);
    }

    void arrowKeysMoveTheChoice() {
        KaSelectionGroup group(KaOptionRow::RadioButton);
        group.setTitle(QStringLiteral("Call quality"));
        for (const char* text : {"Automatic", "Best picture", "Save data"})
            group.addOption(QString::fromLatin1(text), QStringLiteral("details"));
        group.setCheckedIndex(0);
        group.show();
        QApplication::setActiveWindow(&group);
        QVERIFY(QTest::qWaitForWindowActive(&group));
        group.option(0)->button()->setFocus();
        QSignalSpy changed(&group, &KaSelectionGroup::checkedIndexChanged);
        QTest::keyClick(group.option(0)->button(), Qt::Key_Down);
        QCOMPARE(group.checkedIndex(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(QAccessible::queryAccessibleInterface(&group)->text(QAccessible::Name),
                 QStringLiteral("Call quality"));
        QCOMPARE(
            QAccessible::queryAccessibleInterface(group.option(1)->button())->text(QAccessible::Description),
            QStringLiteral("details"));
    }

    void wholeRowIsTheTarget() {
        KaSelectionGroup group(KaOptionRow::RadioButton);
        KaOptionRow* row = group.addOption(QStringLiteral("Save data"), QStringLiteral("Lower resolution"));
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));
        // Below the button: on the secondary line.
        QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(30, row->height() - 3));
        QVERIFY(row->isChecked());
    }

    void checkedIndexBounds() {
        KaSelectionGroup group;
        group.addOption(QStringLiteral("One"));
        group.addOption(QStringLiteral("Two"));
        group.setCheckedIndex(1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no option 2 ignored"));
        group.setCheckedIndex(2);
        QCOMPARE(group.checkedIndex(), 1);
        group.setCheckedIndex(-1); // clears even an exclusive group
        QCOMPARE(group.checkedIndex(), -1);
    }

    // KaSlider.
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
