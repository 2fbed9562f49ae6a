#include "buttontestutils.h"
#include "focusringtest.h"
#include "kabadge.h"
#include "karoundbadgebutton.h"
#include "karoundbutton.h"
#include "karoundbuttonconfig.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

class tst_KaRoundButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void circleBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

    // A circle of the configuration's diameter, whatever the size.
    void circleBySize() {
        QFETCH(int, size);
        KaRoundButtonConfig expected;
        expected.setSize(KaButtonEnum::Size(size));
        KaRoundButtonConfig::Geometry g;
        expected.fillGeometry(g);
        const int diameter = g.fixedHeight;
        QVERIFY(diameter > 0);
        QWidget window;
        KaRoundButton button(&window, KaButtonEnum::Secondary, KaButtonEnum::Size(size));
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        window.show();

        QCOMPARE(button.minimumSize(), QSize(diameter, diameter));
        QCOMPARE(button.maximumSize(), QSize(diameter, diameter));
        QCOMPARE(button.QWidget::size(), QSize(diameter, diameter));
        QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button.svgIconSize(), g.svgIconSize);
        QCOMPARE(button.property("focusBorderRadius").toReal(), diameter / 2.0);
        QCOMPARE(button.borderRadius(), diameter / 2.0);

        // Shrinking again gives the smaller circle, not a pill.
        button.setSize(KaButtonEnum::ExtraExtraExtraSmall);
        QCOMPARE(button.QWidget::size(), QSize(16, 16));
        QCOMPARE(button.property("focusBorderRadius").toReal(), 8.0);
    }

    void paintsCircleWithCentredIcon() {
        QWidget window;
        KaRoundButton button(&window, KaButtonEnum::Primary, KaButtonEnum::ExtraLarge);
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        QVERIFY(shown(window, QRect(300, 300, 80, 80)));

        const QRect icon = button.svgIconRect();
        QCOMPARE(icon, QRect(16, 16, 32, 32));
        const QImage image = rendered(&button);
        const QColor face = colorOf("button-primary-background");
        const QColor glyph = colorOf("button-primary-text");
        QCOMPARE(image.pixelColor(4, 4).alpha(), 0);
        QCOMPARE(image.pixelColor(32, 3), face);
        QCOMPARE(image.pixelColor(3, 32), face);
        // The icon is painted in the text colour somewhere inside its box.
        bool found = false;
        for (int y = icon.top(); y <= icon.bottom() && !found; ++y)
            for (int x = icon.left(); x <= icon.right() && !found; ++x)
                found = image.pixelColor(x, y) == glyph;
        QVERIFY(found);
    }

    void refusesRightIcon() {
        KaRoundButton button;
        button.resize(32, 32);
        QTest::ignoreMessage(QtWarningMsg,
                             "Setting the right icon on the KaRoundButtonConfig is not supported!");
        button.setRightIcon(QStringLiteral(":/Resources/arrow-down_8.svg"));
        QVERIFY(!button.isAnchorIconVisible());
        QVERIFY(button.anchorIconRect().isEmpty());
    }

    void accessibleName() {
        KaRoundButton button;
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        button.setAccessibleName(QStringLiteral("Call"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Call"));
        // A style change re-applies the look but keeps the host's name.
        button.setStyle(KaButtonEnum::Cancel);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Call"));
    }

    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    // KaRoundBadgeButton.
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

QTEST_MAIN(tst_KaRoundButton)
#include "tst_karoundbutton.moc"
