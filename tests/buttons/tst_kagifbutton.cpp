#include "buttontestutils.h"
#include "kagifbutton.h"

#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

// A 16 by 16 animation of three solid frames, red, green and blue, 30 ms
// each, looping.
QString threeFrames() {
    return QFINDTESTDATA("data/three-frames.gif");
}

// The colour in the middle of the image box of an image-only button.
QColor centre(KaGifButton& button) {
    const QImage image = rendered(&button);
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

bool reddish(const QColor& colour) {
    return colour.red() > colour.green() + 40 && colour.red() > colour.blue() + 40;
}

struct Shown {
    QWidget window;
    KaGifButton* button = new KaGifButton(&window);
    explicit Shown(KaGifButton::PlayMode mode) {
        button->setPlayMode(mode);
        button->setFileName(threeFrames());
        button->move(20, 20);
        window.resize(120, 80);
        window.show();
    }
};

} // namespace

class tst_KaGifButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void loadsAnimation() {
        KaGifButton button;
        QVERIFY(!button.hasImage());
        QSignalSpy spy(&button, &KaGifButton::fileNameChanged);
        button.setFileName(threeFrames());
        button.setFileName(threeFrames());
        QCOMPARE(spy.count(), 1);
        QVERIFY(button.hasImage());
        QCOMPARE(button.frameCount(), 3);
        // Not shown: resting on the first frame.
        QVERIFY(!button.isPlaying());
        QCOMPARE(button.currentFrameNumber(), 0);
    }

    void playsAlways() {
        Shown shown(KaGifButton::PlayAlways);
        KaGifButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTRY_VERIFY(button->isPlaying());
        QSignalSpy frames(button, &KaGifButton::frameChanged);
        QTRY_VERIFY(frames.count() >= 2);
        // The painted image follows the frames: it leaves red.
        QTRY_VERIFY(!reddish(centre(*button)));
    }

    void playsOnHover() {
        Shown shown(KaGifButton::PlayOnHover);
        KaGifButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTest::mouseMove(&shown.window, QPoint(2, 2));
        QVERIFY(!button->isPlaying());
        QVERIFY(reddish(centre(*button)));

        QTest::mouseMove(button, button->rect().center());
        QTRY_VERIFY(button->isPlaying());
        QTRY_VERIFY(button->currentFrameNumber() > 0);
        QTest::mouseMove(&shown.window, QPoint(2, 2));
        QTRY_VERIFY(!button->isPlaying());
        QCOMPARE(button->currentFrameNumber(), 0);
    }

    void pauses_data() {
        QTest::addColumn<QString>("by");
        QTest::addColumn<bool>("firstFrame");
        QTest::newRow("disabling") << "disabled" << true;
        QTest::newRow("hiding") << "hidden" << false;
        QTest::newRow("reduced motion") << "reduced motion" << true;
    }

    // Stopped while disabled, hidden or asked for reduced motion, and playing
    // again once that is over; disabled and reduced-motion buttons rest on the
    // first frame (disabled ones faded, but still its red).
    void pauses() {
        QFETCH(QString, by);
        QFETCH(bool, firstFrame);
        Shown shown(KaGifButton::PlayAlways);
        KaGifButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTRY_VERIFY(button->currentFrameNumber() > 0);
        const auto pause = [&](bool on) {
            if (by == QLatin1String("disabled"))
                button->setEnabled(!on);
            else if (by == QLatin1String("hidden"))
                button->setVisible(!on);
            else
                KaConfig::setReducedMotion(on);
        };
        pause(true);
        if (by == QLatin1String("reduced motion")) // the setting reaches the button later
            QTRY_VERIFY(!button->isPlaying());
        QVERIFY(!button->isPlaying());
        if (firstFrame) {
            QCOMPARE(button->currentFrameNumber(), 0);
            QVERIFY(reddish(centre(*button)));
        }
        pause(false);
        QTRY_VERIFY(button->isPlaying());
    }

    void shapeFollowsText() {
        KaGifButton button(nullptr, KaButtonEnum::Secondary, KaButtonEnum::Large);
        button.setFileName(threeFrames());
        // Image only: a 32 px circle around a 20 px image.
        QCOMPARE(button.minimumSize(), QSize(32, 32));
        QCOMPARE(button.maximumSize(), QSize(32, 32));
        button.resize(32, 32);
        QVERIFY(reddish(rendered(&button).pixelColor(7, 16)));
        QVERIFY(!reddish(rendered(&button).pixelColor(5, 16)));

        button.setText(QStringLiteral("Celebrate"));
        QVERIFY(button.maximumWidth() > 32);
        // Padding 12, image 20, spacing 6, text, padding 12.
        const int textWidth = button.fontMetrics().size(Qt::TextSingleLine, button.text()).width();
        QCOMPARE(button.sizeHint().width(), 12 + 20 + 6 + textWidth + 12);
        button.setImageSize(QSize(24, 24));
        QCOMPARE(button.sizeHint().width(), 12 + 24 + 6 + textWidth + 12);
    }

    void unreadableFile() {
        KaGifButton button;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot read")));
        button.setFileName(QStringLiteral(":/no/such/image.gif"));
        QVERIFY(!button.hasImage());
        QCOMPARE(button.currentFrameNumber(), -1);
        button.resize(32, 32);
        rendered(&button);
    }
};

QTEST_MAIN(tst_KaGifButton)
#include "tst_kagifbutton.moc"
