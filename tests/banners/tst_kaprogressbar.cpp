#include "accessibilityrecorder.h"
#include "buttontestutils.h"
#include "kaconfig.h"
#include "kaprogressbar.h"
#include "kaspinner.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QPaintEvent>

using namespace ButtonTest;

namespace {
// Counts timer events and collects the rectangles repainted.
struct Watcher : QObject {
    int ticks = 0;
    QRegion painted;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Timer)
            ++ticks;
        else if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(event)->region();
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
        Watcher visibleTicks, hiddenTicks;
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
        checkFollowsTheme(bar, QPoint(50, 2), "spinner-progress-cursor");
    }

    // KaSpinner.
    void sizes_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("diameter");
        QTest::newRow("Small") << int(KaSpinner::Small) << 16;
        QTest::newRow("ExtraLarge") << int(KaSpinner::ExtraLarge) << 48;
        QTest::newRow("unknown keeps Medium") << 9 << 24;
    }

    // The ring fills the square: track at the bottom, arc from the top.
    void sizes() {
        QFETCH(int, size);
        QFETCH(int, diameter);
        if (size > KaSpinner::ExtraLarge)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown size")));
        KaSpinner spinner(nullptr, KaSpinner::Medium);
        QSignalSpy spy(&spinner, &KaSpinner::spinnerSizeChanged);
        spinner.setSpinnerSize(KaSpinner::SpinnerSize(size));
        QCOMPARE(spy.count(), diameter == 24 ? 0 : 1);
        QCOMPARE(spinner.QWidget::size(), QSize(diameter, diameter));

        const QImage image = BzTest::paint(spinner);
        const int stroke = KaSpinner::strokeOf(spinner.spinnerSize());
        const int mid = diameter / 2;
        QVERIFY(BzTest::near(image.pixelColor(mid, diameter - 1 - stroke / 2),
                             colorOf("spinner-loading-track"), 8));
        QVERIFY(BzTest::near(image.pixelColor(mid + 1, stroke / 2), colorOf("spinner-loading-cursor"), 8));
        QCOMPARE(image.pixelColor(mid, mid).alpha(), 0);
    }

    void spinnerTicksOnlyWhileVisible() {
        QWidget window;
        auto* visible = new KaSpinner(&window);
        auto* hidden = new KaSpinner(&window);
        hidden->hide();
        Watcher visibleWatch, hiddenWatch;
        visible->installEventFilter(&visibleWatch);
        hidden->installEventFilter(&hiddenWatch);
        QVERIFY(shown(window));
        QVERIFY(visible->isSpinning());
        QVERIFY(!hidden->isSpinning());
        QTRY_VERIFY(visibleWatch.ticks >= 3);
        QCOMPARE(hiddenWatch.ticks, 0);

        // Hiding stops the ticks, showing restarts them.
        visible->hide();
        hidden->show();
        const int stopped = visibleWatch.ticks;
        QTRY_VERIFY(hiddenWatch.ticks >= 3);
        QCOMPARE(visibleWatch.ticks, stopped);

        // Reduced motion stops a visible spinner too, until it is lifted.
        KaConfig::setReducedMotion(true);
        QTRY_VERIFY(!hidden->isSpinning());
        KaConfig::setReducedMotion(false);
        QTRY_VERIFY(hidden->isSpinning());
    }

    // Turning repaints the spinner's square and nothing else of the window.
    void repaintsOnlyItself() {
        QWidget window;
        auto* spinner = new KaSpinner(&window, KaSpinner::Large);
        spinner->move(40, 30);
        QVERIFY(shown(window));
        Watcher windowWatch, spinnerWatch;
        window.installEventFilter(&windowWatch);
        spinner->installEventFilter(&spinnerWatch);
        QTRY_VERIFY(spinnerWatch.ticks >= 3 && !spinnerWatch.painted.isEmpty());
        QCOMPARE(spinnerWatch.painted.boundingRect(), spinner->rect());
        QVERIFY(QRegion(spinner->geometry()).subtracted(windowWatch.painted).isEmpty() ||
                windowWatch.painted.isEmpty());
        QVERIFY(windowWatch.painted.subtracted(spinner->geometry()).isEmpty());
    }

    void accessibleBusyIndicator() {
        QWidget window;
        auto* spinner = new KaSpinner(&window);
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(spinner);
        QCOMPARE(a->role(), QAccessible::ProgressBar);
        QVERIFY(a->state().busy);
        QCOMPARE(a->text(QAccessible::Name), QStringLiteral("Loading"));

        AccessibilityRecorder::RecordingScope recording;
        spinner->setAccessibleName(QStringLiteral("Loading messages"));
        QVERIFY(shown(window));
        QCOMPARE(AccessibilityRecorder::announcements(spinner),
                 QStringList{QStringLiteral("Loading messages")});
    }

    void spinnerFollowsTheme() {
        KaSpinner spinner(nullptr, KaSpinner::Large);
        checkFollowsTheme(&spinner, QPoint(16, 32 - 2), "spinner-loading-track", "dark", 8);
    }
};

QTEST_MAIN(tst_KaProgressBar)
#include "tst_kaprogressbar.moc"
