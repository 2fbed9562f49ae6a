#include "buttontestutils.h"
#include "kaiconbutton.h"
#include "kaiconbuttonconfig.h"
#include "kaoverlaybutton.h"
#include "kaoverlaybuttonconfig.h"

#include <QAccessible>
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

class tst_KaIconButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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

    void accessibleName() {
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

    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

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

    void circleBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaOverlayButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

    void circleBySize() {
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
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Expand"));
        button.setType(KaOverlayButtonEnum::CollapseAreaOverlay);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Collapse"));
        button.setAccessibleName(QStringLiteral("Hide the participant list"));
        button.setType(KaOverlayButtonEnum::ExpandAreaOverlay);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Hide the participant list"));
    }
};

QTEST_MAIN(tst_KaIconButton)
#include "tst_kaiconbutton.moc"
