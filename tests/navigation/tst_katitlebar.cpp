#include "buttontestutils.h"
#include "katitlebar.h"
#include "katitlebarbutton.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace ButtonTest;

namespace {

struct FramelessWindow {
    FramelessWindow()
        : window(nullptr, Qt::Window | Qt::FramelessWindowHint) {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        bar = new KaTitleBar;
        layout->addWidget(bar);
        layout->addStretch(1);
        window.setWindowTitle(QStringLiteral("Settings"));
    }
    QWidget window;
    KaTitleBar* bar = nullptr;
};

// A spot on the bar between title and buttons.
QPoint emptySpot(const KaTitleBar* bar) {
    return QPoint(bar->minimizeButton()->x() - 4, bar->height() / 2);
}

} // namespace

class tst_KaTitleBar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void doubleClickMaximises() {
        FramelessWindow frameless;
        QVERIFY(shown(frameless.window, QRect(200, 200, 400, 200)));
        QTest::mouseDClick(frameless.bar, Qt::LeftButton, {}, emptySpot(frameless.bar));
        QTRY_VERIFY(frameless.window.isMaximized());
        QTest::mouseDClick(frameless.bar, Qt::LeftButton, {}, emptySpot(frameless.bar));
        QTRY_VERIFY(!frameless.window.isMaximized());
    }

    // Without a platform move (offscreen has none) the bar moves the window.
    void dragMoves() {
        FramelessWindow frameless;
        QVERIFY(shown(frameless.window, QRect(200, 200, 400, 200)));
        const QPoint start = frameless.window.pos();
        const QPoint spot = emptySpot(frameless.bar);
        QTest::mousePress(frameless.bar, Qt::LeftButton, {}, spot);
        QMouseEvent move(QEvent::MouseMove, QPointF(spot + QPoint(30, 20)),
                         QPointF(frameless.bar->mapToGlobal(spot + QPoint(30, 20))), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(frameless.bar, &move);
        QTest::mouseRelease(frameless.bar, Qt::LeftButton, {}, spot + QPoint(30, 20));
        QTRY_COMPARE(frameless.window.pos(), start + QPoint(30, 20));
    }

    void titleFollowsWindow() {
        FramelessWindow frameless;
        QSignalSpy spy(frameless.bar, &KaTitleBar::titleChanged);
        QCOMPARE(frameless.bar->title(), QStringLiteral("Settings"));
        frameless.window.setWindowTitle(QStringLiteral("Preferences"));
        QCOMPARE(frameless.bar->title(), QStringLiteral("Preferences"));
        frameless.bar->setTitle(QStringLiteral("Own title"));
        frameless.window.setWindowTitle(QStringLiteral("Ignored"));
        QCOMPARE(frameless.bar->title(), QStringLiteral("Own title"));
        QCOMPARE(spy.count(), 2);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(frameless.bar);
        QCOMPARE(iface->role(), QAccessible::TitleBar);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Own title"));
        frameless.bar->setTitle(QString());
        QCOMPARE(frameless.bar->title(), QStringLiteral("Ignored"));
    }

    // A bar that is no window's title bar acts on nothing until told.
    void withoutWindow() {
        KaTitleBar bar;
        QVERIFY(!bar.targetWindow());
        QVERIFY(!bar.closeButton()->isEnabled());
        QVERIFY(shown(bar, QRect(100, 100, 300, 32)));
        QTest::mouseClick(bar.closeButton(), Qt::LeftButton);
        QTest::mouseDClick(&bar, Qt::LeftButton, {}, emptySpot(&bar));
        QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(10, 10));
        QTest::mouseMove(&bar, QPoint(60, 20));
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(60, 20));
        QVERIFY(bar.isVisible());
        QVERIFY(!bar.isMaximized());
        QVERIFY(bar.title().isEmpty());

        QWidget other;
        other.setWindowTitle(QStringLiteral("Target"));
        bar.setTargetWindow(&other);
        QCOMPARE(bar.title(), QStringLiteral("Target"));
        QVERIFY(shown(other));
        // The bar's buttons act on the window it was given (each button's
        // own action: tst_katitlebarbutton).
        QTest::mouseClick(bar.maximizeButton(), Qt::LeftButton);
        QTRY_VERIFY(other.isMaximized());
        QTest::mouseClick(bar.closeButton(), Qt::LeftButton);
        QTRY_VERIFY(!other.isVisible());
    }

    void sizes() {
        FramelessWindow frameless;
        frameless.bar->setSize(KaButtonEnum::Large);
        QCOMPARE(frameless.bar->sizeHint().height(), frameless.bar->closeButton()->maximumHeight());
        QCOMPARE(frameless.bar->minimizeButton()->size(), KaButtonEnum::Large);
        QTest::ignoreMessage(QtWarningMsg,
                             "KaTitleBar: 4 is not a title bar size (Large, Normal or Small); ignored");
        frameless.bar->setSize(KaButtonEnum::ExtraSmall);
        QCOMPARE(frameless.bar->size(), KaButtonEnum::Large);
    }

    void followsTheme() {
        FramelessWindow frameless;
        QVERIFY(shown(frameless.window, QRect(200, 200, 400, 200)));
        const QPoint spot = emptySpot(frameless.bar);
        QCOMPARE(pixelAt(frameless.bar, spot).rgb(), colorOf("globalHeader-container-background").rgb());
        switchTheme("dark");
        QTRY_COMPARE(pixelAt(frameless.bar, spot).rgb(), colorOf("globalHeader-container-background").rgb());
        QVERIFY(colorOf("globalHeader-container-background", BzThemeUtils::Light) !=
                colorOf("globalHeader-container-background"));
    }
};

QTEST_MAIN(tst_KaTitleBar)
#include "tst_katitlebar.moc"
