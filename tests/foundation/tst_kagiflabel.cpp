#include "kaconfig.h"
#include "kagiflabel.h"

#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <testhelpers.h>

#include <QAccessible>
#include <QRegularExpression>
#include <QTest>

namespace {

// 16 by 16, three solid frames (red, green, blue) of 30 ms each, looping.
QString threeFrames() {
    return QFINDTESTDATA("../buttons/data/three-frames.gif");
}

struct Shown {
    QWidget window;
    KaGifLabel* label = new KaGifLabel(&window);
    Shown() {
        label->setFileName(threeFrames());
        label->move(10, 10);
        window.resize(80, 60);
        window.show();
    }
};

} // namespace

class tst_KaGifLabel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }
    void cleanup() { KaConfig::setReducedMotion(false); }

    void loads() {
        KaGifLabel label;
        QSignalSpy spy(&label, &KaGifLabel::fileNameChanged);
        label.setFileName(threeFrames());
        label.setFileName(threeFrames());
        QCOMPARE(spy.count(), 1);
        QVERIFY(label.hasImage());
        QCOMPARE(label.sizeHint(), QSize(16, 16));
        label.setImageSize(QSize(32, 24));
        label.setMargin(2);
        QCOMPARE(label.sizeHint(), QSize(36, 28));
        // Never shown: resting on the first frame.
        QVERIFY(!label.isPlaying());
        QCOMPARE(label.currentFrameNumber(), 0);
        label.resize(label.sizeHint());
        const QImage image = BzTest::paint(label);
        const QColor middle = image.pixelColor(image.width() / 2, image.height() / 2);
        QVERIFY2(middle.red() > 200 && middle.green() < 60, qPrintable(middle.name()));
    }

    void playsOnlyWhileShownAndMotionAllowed() {
        Shown shown;
        KaGifLabel* label = shown.label;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTRY_VERIFY(label->isPlaying());
        QSignalSpy frames(label, &KaGifLabel::frameChanged);
        QTRY_VERIFY(frames.count() >= 2);
        label->hide();
        QVERIFY(!label->isPlaying());
        frames.clear();
        // Hiding the window stops it as well.
        label->show();
        QTRY_VERIFY(label->isPlaying());
        shown.window.hide();
        QVERIFY(!label->isPlaying());
        label->setEnabled(false);
        shown.window.show();
        QVERIFY(!label->isPlaying());
        label->setEnabled(true);
        QTRY_VERIFY(label->isPlaying());
        // Reduced motion stops it on the first frame.
        QTRY_VERIFY(label->currentFrameNumber() > 0);
        KaConfig::setReducedMotion(true);
        QVERIFY(KaConfig::reducedMotion());
        QTRY_VERIFY(!label->isPlaying());
        QCOMPARE(label->currentFrameNumber(), 0);
        // A label made while motion is reduced never starts.
        KaGifLabel later(&shown.window);
        later.setFileName(threeFrames());
        later.show();
        QVERIFY(!later.isPlaying());
        KaConfig::setReducedMotion(false);
        QTRY_VERIFY(label->isPlaying() && later.isPlaying());
    }

    void unreadableFile_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("missing") << QStringLiteral("/nonexistent/spinner.gif");
        QTest::newRow("corrupt") << QFINDTESTDATA("data/corrupt.gif");
    }

    void unreadableFile() {
        QFETCH(QString, file);
        KaGifLabel label;
        label.setText(QStringLiteral("Working"));
        label.setImageSize(QSize(20, 20));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("KaGifLabel: cannot read")));
        label.setFileName(file);
        QVERIFY(!label.hasImage());
        QVERIFY(!label.isPlaying());
        QCOMPARE(label.currentFrameNumber(), -1);
        label.show();
        label.resize(label.sizeHint());
        // An empty picture of the asked size: neither the text nor anything else.
        QCOMPARE(label.sizeHint(), QSize(20, 20));
        QCOMPARE(BzTest::textColour(label).alpha(), 0);
    }

    void textAndTheme() {
        // Without a file the description shows, in the theme's colours.
        KaGifLabel label;
        QVERIFY(label.setProperty("text", QStringLiteral("HHH")));
        QCOMPARE(BzTest::textColour(label).rgb(), BzTest::set("label-primary-text").normal().rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Dark).normal().rgb());
        label.setFileName(threeFrames());
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(iface->role(), QAccessible::Graphic);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("HHH"));
        label.setFileName(QString());
        QVERIFY(!label.hasImage());
    }
};

QTEST_MAIN(tst_KaGifLabel)
#include "tst_kagiflabel.moc"
