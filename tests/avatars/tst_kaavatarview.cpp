#include "buttontestutils.h"
#include "kaavatarview.h"
#include "kapixmaploader.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

// Every case runs on a screen of scale 2 (see main()).
class tst_KaAvatarView : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void withoutLoader() {
        KaAvatarView view(nullptr);
        view.setSize(KaAvatarEnum::Large);
        view.setAvatarInitials(QStringLiteral("ak"));
        QVERIFY(view.pixmap().isNull());
        QCOMPARE(view.maximumWidth(), QWIDGETSIZE_MAX);
        QCOMPARE(view.objectName(), QStringLiteral("KaAvatarView"));
        QCOMPARE(view.focusPolicy(), Qt::NoFocus);
    }

    void sizesToScaledPixmap() {
        KaPixmapLoader loader;
        QWidget window;
        KaAvatarView view(&window, &loader, KaAvatarEnum::Active, KaAvatarEnum::Medium);
        QVERIFY(shown(window));
        QCOMPARE(view.devicePixelRatioF(), 2.0);
        QCOMPARE(view.pixmap().size(), QSize(102, 96));
        QCOMPARE(view.minimumSize(), QSize(51, 48));
        QCOMPARE(view.maximumSize(), QSize(51, 48));

        QSignalSpy sizeSpy(&view, &KaAvatarView::sizeChanged);
        view.setSize(KaAvatarEnum::XXLarge);
        view.setSize(KaAvatarEnum::XXLarge);
        QCOMPARE(sizeSpy.count(), 1);
        QCOMPARE(view.maximumSize(), QSize(124, 124));
    }

    void pixmapDecidesType() {
        KaPixmapLoader loader;
        KaAvatarView view(nullptr, &loader);
        QSignalSpy spy(&view, &KaAvatarView::avatarPixmapChanged);
        QPixmap picture(40, 20);
        picture.fill(Qt::red);
        view.setAvatarPixmap(picture);
        QCOMPARE(view.avatarType(), KaAvatarEnum::Image);
        QCOMPARE(view.avatarConfig().avatarType, KaAvatarEnum::Image);
        // A picture that is not square is stretched into the circle.
        const QImage shown = view.pixmap().toImage();
        QCOMPARE(shown.pixelColor(shown.width() / 2, shown.height() / 2), QColor(Qt::red));
        view.setAvatarPixmap(QPixmap());
        QCOMPARE(view.avatarType(), KaAvatarEnum::DefaultAvatar);
        QCOMPARE(spy.count(), 2);
        QVERIFY(view.pixmap().toImage().pixelColor(shown.width() / 2, shown.height() / 2) != QColor(Qt::red));
    }

    void clicks_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("button");
        QTest::addColumn<QPoint>("release");
        QTest::addColumn<int>("expected");
        QTest::newRow("click inside") << 0 << int(Qt::LeftButton) << QPoint(10, 10) << 1;
        QTest::newRow("released outside") << 0 << int(Qt::LeftButton) << QPoint(200, 10) << 0;
        QTest::newRow("right button") << 0 << int(Qt::RightButton) << QPoint(10, 10) << 0;
        QTest::newRow("Return") << int(Qt::Key_Return) << 0 << QPoint() << 1;
        QTest::newRow("Space") << int(Qt::Key_Space) << 0 << QPoint() << 1;
        QTest::newRow("other key") << int(Qt::Key_A) << 0 << QPoint() << 0;
    }

    void clicks() {
        QFETCH(int, key);
        QFETCH(int, button);
        QFETCH(QPoint, release);
        QFETCH(int, expected);
        KaPixmapLoader loader;
        QWidget window;
        KaAvatarView view(&window, &loader, KaAvatarEnum::None, KaAvatarEnum::Large);
        QVERIFY(shown(window));
        QSignalSpy spy(&view, &KaAvatarView::clicked);
        if (key) {
            QTest::keyClick(&view, Qt::Key(key));
        } else {
            QTest::mousePress(&view, Qt::MouseButton(button), {}, QPoint(10, 10));
            QTest::mouseRelease(&view, Qt::MouseButton(button), {}, release);
        }
        QCOMPARE(spy.count(), expected);
    }

    void accessibleName() {
        KaPixmapLoader loader;
        KaAvatarView view(nullptr, &loader, KaAvatarEnum::Meeting, KaAvatarEnum::Medium);
        view.setAvatarInitials(QStringLiteral("AK"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&view);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Graphic);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("AK, in a meeting"));
        view.setTooltip(QStringLiteral("Alex Kim"));
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Alex Kim, in a meeting"));
        view.setPresence(KaAvatarEnum::None);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Alex Kim"));
        // The host's own name wins from then on.
        view.setAccessibleName(QStringLiteral("Profile"));
        view.setPresence(KaAvatarEnum::Away);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Profile"));
    }

    // A theme switch renders the overlays once for all views of a loader, and
    // every view shows the new theme.
    void themeSwitchRendersOnce() {
        KaPixmapLoader loader;
        QWidget window;
        QList<KaAvatarView*> views;
        for (int i = 0; i < 6; ++i) {
            auto* view = new KaAvatarView(&window, &loader, KaAvatarEnum::Active,
                                          i % 2 ? KaAvatarEnum::XSmall : KaAvatarEnum::Large);
            view->move(i * 80, 0);
            views << view;
        }
        QVERIFY(shown(window, QRect(100, 100, 500, 100)));
        QSignalSpy updated(&loader, &KaPixmapLoader::overlaysUpdated);
        const char* const face = "avatar-color-avatar-background-default";
        const QColor light = colorOf(face);
        QVERIFY(BzTest::near(BzTest::paint(*views[0], 2.0).pixelColor(16, 72), light));

        switchTheme("dark");
        QVERIFY(colorOf(face) != light);
        QTRY_COMPARE(updated.count(), 1);
        QVERIFY(BzTest::near(BzTest::paint(*views[0], 2.0).pixelColor(16, 72), colorOf(face)));
    }

    void loaderDeletedFirst() {
        auto* loader = new KaPixmapLoader;
        KaAvatarView view(nullptr, loader, KaAvatarEnum::Active, KaAvatarEnum::Medium);
        const QSize before = view.maximumSize();
        delete loader;
        view.setPresence(KaAvatarEnum::Dnd);
        view.setSize(KaAvatarEnum::XLarge);
        QVERIFY(!view.pixmapLoader());
        QCOMPARE(view.maximumSize(), before);
        QVERIFY(!view.pixmap().isNull());
    }

    void unknownSize() {
        KaPixmapLoader loader;
        KaAvatarView view(nullptr, &loader);
        QTest::ignoreMessage(QtWarningMsg, "KaPixmapLoader: unknown avatar size 7, using the default sizes");
        view.setSize(KaAvatarEnum::Size(7));
        QCOMPARE(view.maximumSize(), QSize(32, 32));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    tst_KaAvatarView test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_kaavatarview.moc"
