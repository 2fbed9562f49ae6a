#include "buttontestutils.h"
#include "kaalertbadge.h"
#include "kaalerticonbadge.h"
#include "kaavatarview.h"
#include "kabadge.h"
#include "kaiconbadge.h"
#include "kapixmaploader.h"
#include "katextwithbackground.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {
// Whether any pixel of the badge is painted in `color`.
bool paintsIn(QWidget* widget, const QColor& color) {
    const QImage image = rendered(widget);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() == 255 && BzTest::near(image.pixelColor(x, y), color, 1))
                return true;
    return false;
}

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

class tst_Avatars : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void text_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("padding");
        QTest::newRow("0") << QStringLiteral("0") << QStringLiteral("0") << QStringLiteral("0") << 12;
        QTest::newRow("99") << QStringLiteral("99") << QStringLiteral("99") << QStringLiteral("99") << 12;
        QTest::newRow("100") << QStringLiteral("100") << QStringLiteral("99+") << QStringLiteral("100") << 12;
        QTest::newRow("-3") << QStringLiteral("-3") << QStringLiteral("0") << QStringLiteral("0") << 12;
        // A word leaves the number as it was (0 at start).
        QTest::newRow("word") << QStringLiteral("new") << QStringLiteral("new") << QStringLiteral("0") << 16;
    }

    void text() {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(QString, number);
        QFETCH(int, padding);
        KaBadge badge;
        badge.setText(text);
        QCOMPARE(badge.text(), shown);
        QCOMPARE(badge.getText(), number);
        const int advance = badge.fontMetrics().horizontalAdvance(shown) + padding;
        QCOMPARE(badge.width(), advance + advance % 2);
        QCOMPARE(badge.width() % 2, 0);
        QCOMPARE(badge.maximumWidth(), badge.width());
    }

    void maximumNumber() {
        KaBadge badge;
        QSignalSpy spy(&badge, &KaBadge::maximumNumberChanged);
        badge.setText(QStringLiteral("7"));
        badge.setMaximumNumber(5);
        QCOMPARE(badge.text(), QStringLiteral("5+"));
        QCOMPARE(badge.getText(), QStringLiteral("7"));
        badge.setMaximumNumber(-1);
        QCOMPARE(badge.getMaximumNumber(), 99);
        QCOMPARE(badge.text(), QStringLiteral("7"));
        badge.setMaximumNumber(99);
        QCOMPARE(spy.count(), 2);
    }

    void emptyText() {
        KaBadge badge;
        badge.setText(QStringLiteral("4"));
        QTest::ignoreMessage(QtWarningMsg, "KaBadge: empty text, showing the number 4");
        badge.setText(QString());
        QCOMPARE(badge.text(), QStringLiteral("4"));
        QVERIFY(badge.width() > 0);
    }

    // The count is spoken as shown; a text badge is static text.
    void spoken() {
        KaBadge badge;
        badge.setText(QStringLiteral("250"));
        QCOMPARE(accessibleName(&badge), QStringLiteral("99+"));
        KaTextWithBackground label(QStringLiteral("new"));
        QCOMPARE(accessibleRole(&label), QAccessible::StaticText);
        QCOMPARE(accessibleName(&label), QStringLiteral("new"));
    }

    // KaIconBadge.
    void iconInItsColour_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("color");
        QTest::newRow("warning") << int(IconBadgeWarning) << "label-warning-text";
        QTest::newRow("unread") << int(IconBadgeUnread) << "badge-background";
    }

    // A 14-pixel icon in the type's colour, in every theme.
    void iconInItsColour() {
        QFETCH(int, type);
        QFETCH(QString, color);
        const QByteArray name = color.toLatin1();
        QWidget window;
        KaIconBadge badge(&window, KaIconBadgeType(type));
        QVERIFY(shown(window));
        QCOMPARE(badge.maximumSize(), QSize(14, 14));
        QCOMPARE(badge.svgIconSize(), QSize(14, 14));
        QVERIFY(paintsIn(&badge, colorOf(name.constData())));
        QVERIFY(!accessibleName(&badge).isEmpty());

        const QColor light = colorOf(name.constData());
        switchTheme("dark");
        QVERIFY(colorOf(name.constData()) != light);
        QTRY_VERIFY(paintsIn(&badge, colorOf(name.constData())));
    }

    void unknownType() {
        QTest::ignoreMessage(QtWarningMsg, "KaIconBadge: unknown icon badge type 11, showing no icon");
        KaIconBadge badge(nullptr, KaIconBadgeType(11));
        QCOMPARE(badge.maximumSize(), QSize(14, 14));
        QVERIFY(badge.svgIcon().isEmpty());
        const QImage image = rendered(&badge);
        QCOMPARE(image, BzTest::canvas(QSize(14, 14)));
    }

    // KaTextWithBackground.
    void looks_data() {
        QTest::addColumn<bool>("legacy");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("roundEnds");
        QTest::newRow("modern") << false << "badge-background" << true;
        QTest::newRow("legacy") << true << "badge-secondary-background" << false;
    }

    // The face takes the look's colour, its corners the look's radius, and both
    // follow a theme switch.
    void looks() {
        QFETCH(bool, legacy);
        QFETCH(QString, background);
        QFETCH(bool, roundEnds);
        QWidget window;
        KaTextWithBackground label(QStringLiteral("12"), &window);
        QSignalSpy spy(&label, &KaTextWithBackground::legacyStylingChanged);
        label.setLegacyStyling(legacy);
        label.setLegacyStyling(legacy);
        QCOMPARE(spy.count(), legacy ? 1 : 0);
        label.resize(40, KaTextWithBackground::kHeight);
        QVERIFY(shown(window));
        const QByteArray name = background.toLatin1();
        QCOMPARE(label.sizeHint().height(), KaTextWithBackground::kHeight);

        // A pill leaves its corner pixel empty; 4 px corners cover most of it.
        QCOMPARE(pixelAt(&label, QPoint(1, 1)).alpha() < 128, roundEnds);
        checkFollowsTheme(&label, QPoint(3, 8), name.constData(), "dark", 2);
    }

    // KaAlertBadge.
    void styles_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("icon");
        QTest::newRow("DefaultBadge")
            << int(KaBadgeEnum::DefaultBadge) << "alertbadge-default-background" << false;
        QTest::newRow("Announcement")
            << int(KaBadgeEnum::Announcement) << "alertbadge-announcement-background" << true;
        QTest::newRow("AlertGeneral")
            << int(KaBadgeEnum::AlertGeneral) << "alertbadge-blocked-background" << true;
    }

    // Each style paints its face, shows its icon 8 px in, and follows a theme
    // switch.
    void styles() {
        QFETCH(int, style);
        QFETCH(QString, background);
        QFETCH(bool, icon);
        const QByteArray name = background.toLatin1();
        QWidget window;
        KaAlertBadge badge(QStringLiteral("External"), KaBadgeEnum::Style(style), &window);
        QVERIFY(shown(window, QRect(300, 300, 200, 60)));
        QCOMPARE(badge.height(), 20);
        QCOMPARE(badge.style(), KaBadgeEnum::Style(style));
        QCOMPARE(badge.isSvgIconVisible(), icon);
        QCOMPARE(badge.leftIcon().isEmpty(), !icon);
        if (icon)
            QCOMPARE(badge.svgIconRect().left(), 8);
        // High contrast changes every one of these faces.
        checkFollowsTheme(&badge, QPoint(badge.width() - 3, 10), name.constData(), "highContrast", 2);
    }

    void unknownStyle() {
        KaAlertBadge badge(QStringLiteral("Blocked"), KaBadgeEnum::AlertGeneral);
        QSignalSpy spy(&badge, &KaAlertBadge::styleChanged);
        QTest::ignoreMessage(QtWarningMsg, "KaAlertBadgeConfig: unknown badge style 7, using DefaultBadge");
        badge.setStyle(KaBadgeEnum::Style(7));
        QCOMPARE(badge.style(), KaBadgeEnum::DefaultBadge);
        QVERIFY(badge.leftIcon().isEmpty());
        QCOMPARE(spy.count(), 1);
        badge.setStyle(KaBadgeEnum::DefaultBadge);
        QCOMPARE(spy.count(), 1);
    }

    void customIcon() {
        KaAlertBadge badge(QStringLiteral("Guest"), KaBadgeEnum::Important);
        badge.setIconPath(QStringLiteral("qrc:/Resources/warning-filled.svg"));
        QCOMPARE(badge.svgIcon(), QStringLiteral("qrc:/Resources/warning-filled.svg"));
        badge.setStyle(KaBadgeEnum::Announcement);
        QCOMPARE(badge.svgIcon(), QStringLiteral("qrc:/Resources/announcement-bold.svg"));
    }

    void spokenAndNotFocusable() {
        KaAlertBadge badge(QStringLiteral("External"), KaBadgeEnum::AlertWarning);
        QCOMPARE(badge.focusPolicy(), Qt::NoFocus);
        QCOMPARE(accessibleName(&badge), QStringLiteral("External"));
    }

    // KaAlertIconBadge, which shares the configuration.
    void iconBadgeSquareWithIcon() {
        QWidget window;
        KaAlertIconBadge badge(&window, KaBadgeEnum::Important);
        QVERIFY(shown(window));
        QCOMPARE(badge.maximumSize(), QSize(20, 20));
        QCOMPARE(badge.svgIconRect(), QRect(4, 4, 12, 12));
        QCOMPARE(accessibleName(&badge), QStringLiteral("important"));
        QVERIFY(paints(&badge, QPoint(10, 2), "alertbadge-important-background", 2));

        QSignalSpy spy(&badge, &KaAlertIconBadge::styleChanged);
        badge.setStyle(KaBadgeEnum::AlertGeneral);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(badge.leftIcon(), QStringLiteral("qrc:/Resources/blocked-bold.svg"));
        QCOMPARE(accessibleName(&badge), QStringLiteral("blocked"));

        checkFollowsTheme(&badge, QPoint(10, 2), "alertbadge-blocked-background", "dark", 2);
    }

    void iconBadgeUnknownStyle() {
        QTest::ignoreMessage(QtWarningMsg, "KaAlertBadgeConfig: unknown badge style 5, using DefaultBadge");
        KaAlertIconBadge badge(nullptr, KaBadgeEnum::Style(5));
        QCOMPARE(badge.style(), KaBadgeEnum::DefaultBadge);
        QVERIFY(badge.leftIcon().isEmpty());
        QCOMPARE(badge.maximumSize(), QSize(20, 20));
    }

    // KaPixmapLoader.
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
            << "KaPixmapLoader: unknown avatar size 7, using the default sizes" << QSize(32, 32);
        QTest::newRow("unknown presence")
            << int(KaAvatarEnum::Medium) << 15 << int(KaAvatarEnum::DefaultAvatar)
            << "KaPixmapLoader: unknown presence 15, showing none" << QSize(48, 48);
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

    // KaAvatarView.
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

    void viewAccessibleName() {
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

// Every case runs on a screen of scale 2, as the avatar views' pixmaps are
// checked at that scale; the badges and the loader are drawn at their own.
int main(int argc, char** argv) {
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    tst_Avatars test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_avatars.moc"
