#include "buttontestutils.h"
#include "kaalertbadge.h"
#include "kaalerticonbadge.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

class tst_KaAlertBadge : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void styles_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("icon");
        QTest::newRow("DefaultBadge")
            << int(KaBadgeEnum::DefaultBadge) << QStringLiteral("alertbadge-default-background") << false;
        QTest::newRow("Announcement")
            << int(KaBadgeEnum::Announcement) << QStringLiteral("alertbadge-announcement-background") << true;
        QTest::newRow("AlertGeneral")
            << int(KaBadgeEnum::AlertGeneral) << QStringLiteral("alertbadge-blocked-background") << true;
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
};

QTEST_MAIN(tst_KaAlertBadge)
#include "tst_kaalertbadge.moc"
