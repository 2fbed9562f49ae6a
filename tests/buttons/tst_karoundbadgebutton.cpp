#include "buttontestutils.h"
#include "focusringtest.h"
#include "kabadge.h"
#include "karoundbadgebutton.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

class tst_KaRoundBadgeButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void counterAtTrailingCorner_data() {
        QTest::addColumn<bool>("rtl");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    void counterAtTrailingCorner() {
        QFETCH(bool, rtl);
        QGuiApplication::setLayoutDirection(rtl ? Qt::RightToLeft : Qt::LeftToRight);
        KaRoundBadgeButton button(nullptr, KaButtonEnum::Secondary, KaButtonEnum::Large);
        QSignalSpy spy(&button, &KaRoundBadgeButton::badgeChanged);
        button.setBadgeText(QStringLiteral("150"));
        QCOMPARE(button.badgeText(), QStringLiteral("99+"));
        QCOMPARE(spy.count(), 1);
        const KaBadge* badge = button.counterBadge();
        QVERIFY(badge);
        QCOMPARE(badge->y(), 0);
        QCOMPARE(badge->x(), rtl ? 0 : 52 - badge->width());
        button.setBadgeText(QString());
        QVERIFY(!button.counterBadge());
        QCOMPARE(spy.count(), 2);
    }

    void badgeInName() {
        KaRoundBadgeButton button;
        button.setAccessibleLabel(QStringLiteral("Calls"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Calls"));
        button.setBadgeText(QStringLiteral("7"));
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Calls, 7"));
        button.clearBadge();
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Calls"));
    }

    void iconBadgeReplacesCounter() {
        KaRoundBadgeButton button;
        button.setBadgeText(QStringLiteral("3"));
        QPointer<KaBadge> counter = button.counterBadge();
        button.setIconBadge(IconBadgeMention);
        QVERIFY(!counter);
        QVERIFY(button.iconBadge());
        QCOMPARE(button.iconBadge()->iconType(), IconBadgeMention);
        QCOMPARE(button.iconBadge()->x(), 28 - 14);
        button.setBadgeText(QStringLiteral("4"));
        QVERIFY(!button.iconBadge());
    }

    // The face and the badge follow a theme switch; keyboard focus rings the
    // circle.
    void themeAndFocusRing() {
        FocusRingTest::installStyle();
        qApp->setProperty("isKeyboardFocus", true);
        QWidget window;
        KaRoundBadgeButton button(&window, KaButtonEnum::Join, KaButtonEnum::ExtraLarge);
        button.setBadgeText(QStringLiteral("5"));
        button.move(20, 20);
        QVERIFY(shown(window, QRect(300, 300, 120, 120)));
        const QPoint face(32, 60);
        const QPoint badgeFace(button.counterBadge()->x() + 3, 8);
        button.setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));

        const QColor lightBadge = pixelAt(&button, badgeFace);
        QVERIFY(paints(&button, badgeFace, "badge-background", 2));
        checkFollowsTheme(&button, face, "button-join-fill-background", "dark", 2);
        QVERIFY(paints(&button, badgeFace, "badge-background", 2) &&
                pixelAt(&button, badgeFace) != lightBadge);
        qApp->setProperty("isKeyboardFocus", QVariant());
    }
};

QTEST_MAIN(tst_KaRoundBadgeButton)
#include "tst_karoundbadgebutton.moc"
