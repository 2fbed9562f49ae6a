#include "buttontestutils.h"
#include "kapixmaploader.h"
#include "testhelpers.h"

#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

KaAvatarConfig avatar(KaAvatarEnum::Size size, KaAvatarEnum::Presence presence, double scale = 1.0) {
    KaAvatarConfig config;
    config.size = size;
    config.presence = presence;
    config.devicePixelRatio = scale;
    config.initials = QStringLiteral("ak");
    return config;
}

QImage image(KaPixmapLoader& loader, const KaAvatarConfig& config) {
    return loader.getAvatar(config).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class tst_KaPixmapLoader : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void presenceGeometry_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("alternate");
        QTest::addColumn<bool>("hide");
        QTest::addColumn<QSize>("canvas");
        QTest::addColumn<QPoint>("badgeCentre"); // (-1, -1): no badge
        QTest::addColumn<QPoint>("cut");         // inside the notch, inside the circle
        QTest::addColumn<QPoint>("kept");        // just outside the notch

        // Notch (34, 32, 18): centre (43, 41), radius 9; badge 16 px at (35, 33).
        QTest::newRow("Medium") << int(KaAvatarEnum::Medium) << false << false << QSize(51, 48)
                                << QPoint(43, 41) << QPoint(35, 40) << QPoint(33, 40);
        QTest::newRow("Medium alternate") << int(KaAvatarEnum::Medium) << true << false << QSize(51, 48)
                                          << QPoint(43, 41) << QPoint(35, 40) << QPoint(33, 40);
        // Notch (80, 81, 44), badge 36 px at (82, 83).
        QTest::newRow("XXLarge") << int(KaAvatarEnum::XXLarge) << false << false << QSize(124, 124)
                                 << QPoint(100, 101) << QPoint(81, 100) << QPoint(79, 100);
        // Notch (12, 10, 16) but no badge picture.
        QTest::newRow("XSmall") << int(KaAvatarEnum::XSmall) << false << false << QSize(27, 24)
                                << QPoint(-1, -1) << QPoint(20, 18) << QPoint(11, 18);
        QTest::newRow("hidden presence") << int(KaAvatarEnum::Medium) << false << true << QSize(48, 48)
                                         << QPoint(-1, -1) << QPoint(-1, -1) << QPoint(34, 40);
    }

    void presenceGeometry() {
        QFETCH(int, size);
        QFETCH(bool, alternate);
        QFETCH(bool, hide);
        QFETCH(QSize, canvas);
        QFETCH(QPoint, badgeCentre);
        QFETCH(QPoint, cut);
        QFETCH(QPoint, kept);
        KaPixmapLoader loader;
        KaAvatarConfig config = avatar(KaAvatarEnum::Size(size), KaAvatarEnum::Active);
        config.alternatePresenceColors = alternate;
        config.hidePresence = hide;
        const QImage picture = image(loader, config);
        QCOMPARE(picture.size(), canvas);
        if (badgeCentre.x() >= 0) {
            const QColor expected = colorOf("avatar-presence-icon-active",
                                            alternate ? BzThemeUtils::Alternate : BzThemeUtils::Global);
            QVERIFY2(BzTest::near(picture.pixelColor(badgeCentre), expected),
                     qPrintable(picture.pixelColor(badgeCentre).name()));
        }
        if (cut.x() >= 0)
            QCOMPARE(picture.pixelColor(cut).alpha(), 0);
        QCOMPARE(picture.pixelColor(kept).alpha(), 255);
    }

    void screenScale() {
        KaPixmapLoader loader;
        const QPixmap picture = loader.getAvatar(avatar(KaAvatarEnum::Medium, KaAvatarEnum::Active, 2.0));
        QCOMPARE(picture.size(), QSize(102, 96));
        QCOMPARE(picture.devicePixelRatio(), 2.0);
        QCOMPARE(loader.devicePixelRatio(), 2.0);
        // The badge is the scale-2 one: the dot's edge moves with it.
        const QImage device = picture.toImage().convertToFormat(QImage::Format_ARGB32);
        QVERIFY(BzTest::near(device.pixelColor(86, 82), colorOf("avatar-presence-icon-active")));
    }

    void initialsByCodePoint_data() {
        QTest::addColumn<QString>("initials");
        QTest::addColumn<QString>("drawnLike");
        QTest::addColumn<QString>("unlike");
        QTest::newRow("two letters, upper case")
            << QStringLiteral("ab") << QStringLiteral("AB") << QStringLiteral("A");
        QTest::newRow("three letters, first only")
            << QStringLiteral("abc") << QStringLiteral("A") << QStringLiteral("AB");
        // One emoji is two UTF-16 units but one code point: with the letter
        // after it, both are drawn.
        QTest::newRow("emoji and a letter")
            << QStringLiteral("\U0001F600x") << QStringLiteral("\U0001F600X") << QStringLiteral("\U0001F600");
    }

    void initialsByCodePoint() {
        QFETCH(QString, initials);
        QFETCH(QString, drawnLike);
        QFETCH(QString, unlike);
        KaPixmapLoader loader;
        KaAvatarConfig config = avatar(KaAvatarEnum::XLarge, KaAvatarEnum::None);
        config.avatarType = KaAvatarEnum::InitialsWithBackground;
        config.initials = initials;
        const QImage drawn = image(loader, config);
        config.initials = drawnLike;
        QCOMPARE(drawn, image(loader, config));
        config.initials = unlike;
        QVERIFY(drawn != image(loader, config));
    }

    void fallbacks_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("presence");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QSize>("canvas");
        QTest::newRow("unknown size")
            << 7 << 0 << int(KaAvatarEnum::DefaultAvatar)
            << QStringLiteral("KaPixmapLoader: unknown avatar size 7, using the default sizes")
            << QSize(32, 32);
        QTest::newRow("unknown presence")
            << int(KaAvatarEnum::Medium) << 15 << int(KaAvatarEnum::DefaultAvatar)
            << QStringLiteral("KaPixmapLoader: unknown presence 15, showing none") << QSize(48, 48);
        QTest::newRow("image without picture")
            << int(KaAvatarEnum::Medium) << 0 << int(KaAvatarEnum::Image) << QString() << QSize(48, 48);
    }

    // Bad requests draw the default initials avatar of the fallback size. (Values
    // that the enumerations can hold but do not name: others are not valid C++.)
    void fallbacks() {
        QFETCH(int, size);
        QFETCH(int, presence);
        QFETCH(int, type);
        QFETCH(QString, warning);
        QFETCH(QSize, canvas);
        KaPixmapLoader loader;
        KaAvatarConfig config = avatar(KaAvatarEnum::Size(size), KaAvatarEnum::Presence(presence));
        config.avatarType = KaAvatarEnum::AvatarType(type);
        config.processImage = true;
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const QImage picture = image(loader, config);
        QCOMPARE(picture.size(), canvas);
        KaAvatarConfig plain = avatar(KaAvatarEnum::Medium, KaAvatarEnum::None);
        if (size == KaAvatarEnum::Medium)
            QCOMPARE(picture, image(loader, plain));
        QVERIFY(BzTest::near(picture.pixelColor(canvas.width() / 2, 2),
                             colorOf("avatar-color-avatar-background-default"), 8));
    }

    // One render per theme: every view of a shared loader asks after a switch.
    void followsTheme() {
        KaPixmapLoader loader;
        QSignalSpy updated(&loader, &KaPixmapLoader::overlaysUpdated);
        const KaAvatarConfig config = avatar(KaAvatarEnum::Large, KaAvatarEnum::Active);
        const QPoint face(8, 36);
        const QPoint badge(59, 60); // the middle of the 20 px badge at (49, 50)
        const char* const background = "avatar-color-avatar-background-default";
        const char* const dot = "avatar-presence-icon-active";
        const QColor lightFace = colorOf(background);
        const QColor lightDot = colorOf(dot);
        QImage picture = image(loader, config);
        QVERIFY(BzTest::near(picture.pixelColor(face), lightFace));
        QVERIFY(BzTest::near(picture.pixelColor(badge), lightDot));

        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"), BzThemeManager::DataOnly);
        QVERIFY(colorOf(background) != lightFace && colorOf(dot) != lightDot);
        loader.updateForCurrentTheme();
        loader.updateForCurrentTheme();
        QCOMPARE(updated.count(), 1);
        picture = image(loader, config);
        QVERIFY(BzTest::near(picture.pixelColor(face), colorOf(background)));
        QVERIFY(BzTest::near(picture.pixelColor(badge), colorOf(dot)));
    }

    // Views answer overlaysUpdated() by asking again. An XSmall avatar with
    // presence has no badge map and a new scale has no overlays at all; neither
    // may make the loader notify again from inside the notification.
    void listenersDoNotLoop() {
        KaPixmapLoader loader;
        int depth = 0;
        int deepest = 0;
        int requests = 0;
        double scale = 1.0;
        connect(&loader, &KaPixmapLoader::overlaysUpdated, this, [&] {
            ++depth;
            deepest = qMax(deepest, depth);
            ++requests;
            loader.getAvatar(avatar(KaAvatarEnum::XSmall, KaAvatarEnum::Active, scale));
            --depth;
        });
        QSignalSpy updated(&loader, &KaPixmapLoader::overlaysUpdated);
        loader.onThemeChanged();
        QCOMPARE(updated.count(), 1);
        loader.getAvatar(avatar(KaAvatarEnum::XSmall, KaAvatarEnum::Active));
        QCOMPARE(updated.count(), 1);

        // A listener that brings a new scale: one more round, after this one.
        scale = 3.0;
        loader.onThemeChanged();
        QCOMPARE(updated.count(), 3);
        QCOMPARE(deepest, 1);
        QCOMPARE(requests, 3);
    }
};

QTEST_MAIN(tst_KaPixmapLoader)
#include "tst_kapixmaploader.moc"
