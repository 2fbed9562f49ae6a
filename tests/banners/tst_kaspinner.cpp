#include "accessibilityrecorder.h"
#include "buttontestutils.h"
#include "kaconfig.h"
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

class tst_KaSpinner : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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

    void ticksOnlyWhileVisible() {
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

    void themeSwitchRecolours() {
        KaSpinner spinner(nullptr, KaSpinner::Large);
        const QPoint bottom(16, 32 - 2);
        QVERIFY(BzTest::near(BzTest::paint(spinner).pixelColor(bottom),
                             colorOf("spinner-loading-track", BzThemeUtils::Light), 8));
        const QColor dark = colorOf("spinner-loading-track", BzThemeUtils::Dark);
        switchTheme("dark");
        QTRY_VERIFY(BzTest::near(BzTest::paint(spinner).pixelColor(bottom), dark, 8));
    }
};

QTEST_MAIN(tst_KaSpinner)
#include "tst_kaspinner.moc"
