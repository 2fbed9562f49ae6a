#include "accessibilityrecorder.h"
#include "buttontestutils.h"
#include "kaprogressbar.h"
#include "testhelpers.h"

#include <QAccessible>

using namespace ButtonTest;

namespace {
// Counts the timer events a widget receives.
struct TickCounter : QObject {
    int ticks = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Timer)
            ++ticks;
        return false;
    }
};
} // namespace

class tst_KaProgressBar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void badInput_data() {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("expectedMaximum");
        QTest::addColumn<int>("expectedValue");
        QTest::newRow("value above") << 0 << 10 << 11 << 10 << 10;
        QTest::newRow("value below") << 5 << 10 << -2 << 10 << 5;
        QTest::newRow("inverted range") << 8 << 2 << 8 << 8 << 8;
        QTest::newRow("extreme range") << INT_MIN << INT_MAX << INT_MAX << INT_MAX << INT_MAX;
    }

    void badInput() {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, value);
        QFETCH(int, expectedMaximum);
        QFETCH(int, expectedValue);
        KaProgressBar bar;
        if (maximum < minimum)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("below minimum")));
        bar.setRange(minimum, maximum);
        QCOMPARE(bar.maximum(), expectedMaximum);
        if (value < bar.minimum() || value > bar.maximum())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("clamped")));
        bar.setValue(value);
        QCOMPARE(bar.value(), expectedValue);
        QVERIFY(bar.fraction() >= 0 && bar.fraction() <= 1);

        const int height = bar.height();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown size")));
        bar.setBarSize(KaProgressBar::BarSize(7));
        QCOMPARE(bar.barSize(), KaProgressBar::Medium);
        QCOMPARE(bar.height(), height);
    }

    void fillFollowsValue_data() {
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<int>("size");
        QTest::newRow("left to right, small") << false << int(KaProgressBar::Small);
        QTest::newRow("right to left, large") << true << int(KaProgressBar::Large);
    }

    void fillFollowsValue() {
        QFETCH(bool, rtl);
        QFETCH(int, size);
        KaProgressBar bar;
        bar.setBarSize(KaProgressBar::BarSize(size));
        bar.setLayoutDirection(rtl ? Qt::RightToLeft : Qt::LeftToRight);
        bar.setRange(0, 200);
        bar.setValue(100);
        bar.resize(200, bar.height());
        QCOMPARE(bar.height(), KaProgressBar::thicknessOf(KaProgressBar::BarSize(size)));
        const QImage image = BzTest::paint(bar);
        const int y = bar.height() / 2;
        const QColor fill = colorOf("spinner-progress-cursor");
        const QColor track = colorOf("spinner-progress-track");
        QCOMPARE(image.pixelColor(rtl ? 150 : 50, y), fill);
        QCOMPARE(image.pixelColor(rtl ? 50 : 150, y), track);
    }

    // Screen readers get a progress bar with its value and range, hear the value
    // when it enters another tenth of the range (not on every step), and hear
    // indeterminate bars only go busy.
    void announcesTenths() {
        KaProgressBar bar;
        bar.setRange(0, 50);
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(&bar);
        QCOMPARE(a->role(), QAccessible::ProgressBar);
        AccessibilityRecorder::RecordingScope recording;
        for (int v = 1; v <= 20; ++v)
            bar.setValue(v);
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged, &bar).size(), 4);
        QCOMPARE(a->text(QAccessible::Value), QStringLiteral("40%"));
        QCOMPARE(a->valueInterface()->currentValue().toInt(), 20);
        QCOMPARE(a->valueInterface()->maximumValue().toInt(), 50);

        AccessibilityRecorder::clear();
        bar.setIndeterminate(true);
        bar.reset();
        QVERIFY(a->state().busy);
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged, &bar).size(), 0);
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::StateChanged, &bar).size(), 1);
    }

    // A hidden indeterminate bar costs no timer ticks while a visible one ticks
    // (the visible one is the clock, so nothing waits a fixed time).
    void ticksOnlyWhileVisible() {
        QWidget window;
        auto* visible = new KaProgressBar(&window);
        auto* hidden = new KaProgressBar(&window);
        visible->setIndeterminate(true);
        hidden->setIndeterminate(true);
        hidden->hide();
        TickCounter visibleTicks, hiddenTicks;
        visible->installEventFilter(&visibleTicks);
        hidden->installEventFilter(&hiddenTicks);
        QVERIFY(shown(window));
        QTRY_VERIFY(visibleTicks.ticks >= 3);
        QCOMPARE(hiddenTicks.ticks, 0);

        // Determinate bars do not tick either.
        hidden->setIndeterminate(false);
        hidden->show();
        const int before = visibleTicks.ticks;
        QTRY_VERIFY(visibleTicks.ticks >= before + 3);
        QCOMPARE(hiddenTicks.ticks, 0);
    }

    void themeSwitchRecolours() {
        QWidget window;
        auto* bar = new KaProgressBar(&window);
        bar->setValue(100);
        bar->setGeometry(0, 0, 100, bar->height());
        QVERIFY(shown(window));
        const QPoint at(50, 2);
        QCOMPARE(pixelAt(bar, at), colorOf("spinner-progress-cursor", BzThemeUtils::Light));
        const QColor dark = colorOf("spinner-progress-cursor", BzThemeUtils::Dark);
        QVERIFY(dark != colorOf("spinner-progress-cursor", BzThemeUtils::Light));
        switchTheme("dark");
        QTRY_COMPARE(pixelAt(bar, at), dark);
    }
};

QTEST_MAIN(tst_KaProgressBar)
#include "tst_kaprogressbar.moc"
