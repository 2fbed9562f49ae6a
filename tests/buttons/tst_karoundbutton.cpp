#include "buttontestutils.h"
#include "focusringtest.h"
#include "kabadge.h"
#include "kaiconbutton.h"
#include "kaiconbuttonconfig.h"
#include "kaoverlaybutton.h"
#include "kaoverlaybuttonconfig.h"
#include "karoundbadgebutton.h"
#include "karoundbutton.h"
#include "karoundbuttonconfig.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {
// A square of `side` (a circle to the focus ring) with an icon of `icon` centred.
template <typename Button> void checkSquare(Button& button, int side, const QSize& icon) {
    QVERIFY(side > 0);
    QCOMPARE(button.maximumSize(), QSize(side, side));
    QCOMPARE(button.minimumSize(), QSize(side, side));
    QCOMPARE(button.svgIconSize(), icon);
    QCOMPARE(button.property("focusBorderRadius").toReal(), side / 2.0);
    button.resize(side, side);
    QCOMPARE(button.svgIconRect().center(), QRect(0, 0, side, side).center());
}
} // namespace

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
        QWidget window;
        KaRoundButton button(&window, KaButtonEnum::Secondary, KaButtonEnum::Size(size));
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        window.show();

        QCOMPARE(button.QWidget::size(), QSize(diameter, diameter));
        QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button.borderRadius(), diameter / 2.0);
        checkSquare(button, diameter, g.svgIconSize);

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

    void roundAccessibleName() {
        KaRoundButton button;
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        button.setAccessibleName(QStringLiteral("Call"));
        QCOMPARE(accessibleRole(&button), QAccessible::Button);
        QCOMPARE(accessibleName(&button), QStringLiteral("Call"));
        // A style change re-applies the look but keeps the host's name.
        button.setStyle(KaButtonEnum::Cancel);
        QCOMPARE(accessibleName(&button), QStringLiteral("Call"));
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
        QCOMPARE(accessibleRole(&button), QAccessible::Button);
        QCOMPARE(accessibleName(&button), QStringLiteral("Calls"));
        button.setBadgeText(QStringLiteral("7"));
        QCOMPARE(accessibleName(&button), QStringLiteral("Calls, 7"));
        button.clearBadge();
        QCOMPARE(accessibleName(&button), QStringLiteral("Calls"));
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

    // KaIconButton.
    void squareBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

    // The configuration's side and icon size.
    void squareBySize() {
        QFETCH(int, size);
        KaIconButtonConfig expected;
        expected.setSize(KaButtonEnum::Size(size));
        KaIconButtonConfig::Geometry g;
        expected.fillGeometry(g);
        KaIconButton button(nullptr, KaIconButtonEnum::Settings, KaButtonEnum::Size(size));
        button.setLeftIcon(QStringLiteral(":/Resources/keyboard-bold.svg"));
        checkSquare(button, g.fixedHeight, g.svgIconSize);
    }

    void checkedIsActive() {
        KaIconButton button(nullptr, KaIconButtonEnum::Favorite, KaButtonEnum::Normal);
        button.setCheckable(true);
        QSignalSpy styles(&button, &KaIconButton::styleChanged);
        button.setChecked(true);
        QCOMPARE(button.style(), KaIconButtonEnum::ACTIVE);
        QCOMPARE(button.getWCSS().textColorSet,
                 QStringLiteral("interactiveicon-tertiary-filled-favorite-icon-active"));
        button.setChecked(false);
        QCOMPARE(button.style(), KaIconButtonEnum::INACTIVE);
        QCOMPARE(styles.count(), 2);
    }

    void highContrastAddsBorder() {
        KaIconButton button(nullptr, KaIconButtonEnum::Info, KaButtonEnum::Normal);
        QVERIFY(!button.getWCSS().hasAnyBorder());
        const ButtonTest::HighContrastScope on(true);
        button.onThemeChanged();
        QVERIFY(button.getWCSS().hasAnyBorder());
    }

    void iconAccessibleName() {
        KaIconButton button(nullptr, KaIconButtonEnum::Settings, KaButtonEnum::Normal);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Settings"));
        // The default follows the type ...
        button.setType(KaIconButtonEnum::Dismiss);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Dismiss"));
        // ... until the host names the button itself.
        button.setAccessibleName(QStringLiteral("Close the panel"));
        button.setType(KaIconButtonEnum::Info);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Close the panel"));

        button.setCheckable(true);
        button.setChecked(true);
        QVERIFY(iface->state().checkable);
        QVERIFY(iface->state().checked);
    }

    // KaOverlayButton.
    void arrowFollowsLayoutDirection_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("ltr");
        QTest::addColumn<QString>("rtl");
        QTest::newRow("expand") << int(KaOverlayButtonEnum::ExpandAreaOverlay)
                                << QStringLiteral("qrc:/Resources/arrow-right-bold.svg")
                                << QStringLiteral("qrc:/Resources/arrow-left-bold.svg");
        QTest::newRow("collapse") << int(KaOverlayButtonEnum::CollapseAreaOverlay)
                                  << QStringLiteral("qrc:/Resources/arrow-left-bold.svg")
                                  << QStringLiteral("qrc:/Resources/arrow-right-bold.svg");
    }

    void arrowFollowsLayoutDirection() {
        QFETCH(int, type);
        QFETCH(QString, ltr);
        QFETCH(QString, rtl);
        QWidget window;
        KaOverlayButton button(&window, KaOverlayButtonEnum::Type(type), KaOverlayButtonEnum::Normal);
        QCOMPARE(button.svgIcon(), ltr);
        QVERIFY(button.isSvgIconVisible());

        // Switching the application's direction at run time turns the arrow.
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_COMPARE(button.svgIcon(), rtl);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QTRY_COMPARE(button.svgIcon(), ltr);
    }

    void overlayCircleBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaOverlayButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

    void overlayCircleBySize() {
        QFETCH(int, size);
        KaOverlayButtonConfig expected;
        expected.setSize(KaOverlayButtonEnum::Size(size));
        KaOverlayButtonConfig::Geometry g;
        expected.fillGeometry(g, Qt::LeftToRight);
        KaOverlayButton button(nullptr, KaOverlayButtonEnum::CollapseAreaOverlay,
                               KaOverlayButtonEnum::Size(size));
        checkSquare(button, g.fixedHeight, g.svgIconSize);
    }

    void noneShowsNothing() {
        KaOverlayButton button;
        QCOMPARE(button.type(), KaOverlayButtonEnum::ExpandAreaOverlay);
        button.setType(KaOverlayButtonEnum::None);
        QVERIFY(button.svgIcon().isEmpty());
        QVERIFY(!button.isSvgIconVisible());
        QVERIFY(button.getWCSS().backgroundColorSet.isEmpty());
        QVERIFY(!button.getWCSS().hasAnyBorder());
    }

    void paintsBorderAndFace() {
        QWidget window;
        KaOverlayButton button(&window, KaOverlayButtonEnum::ExpandAreaOverlay,
                               KaOverlayButtonEnum::ExtraLarge);
        QVERIFY(shown(window, QRect(300, 300, 60, 60)));
        QCOMPARE(button.getWCSS().borderColorSet, QStringLiteral("button-overlay-border"));
        const QImage image = rendered(&button);
        // Outside the circle nothing, inside the translucent face.
        QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
        const QColor face = colorOf("button-overlay-background");
        QCOMPARE(image.pixelColor(20, 4).alpha(), face.alpha());
    }

    void overlayAccessibleName() {
        KaOverlayButton button;
        QCOMPARE(accessibleRole(&button), QAccessible::Button);
        QCOMPARE(accessibleName(&button), QStringLiteral("Expand"));
        button.setType(KaOverlayButtonEnum::CollapseAreaOverlay);
        QCOMPARE(accessibleName(&button), QStringLiteral("Collapse"));
        button.setAccessibleName(QStringLiteral("Hide the participant list"));
        button.setType(KaOverlayButtonEnum::ExpandAreaOverlay);
        QCOMPARE(accessibleName(&button), QStringLiteral("Hide the participant list"));
    }
};

QTEST_MAIN(tst_KaRoundButton)
#include "tst_karoundbutton.moc"
