#include "buttontestutils.h"
#include "kaiconbutton.h"
#include "kaiconbuttonconfig.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

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

    // A square of the configuration's side with the icon centred.
    void squareBySize() {
        QFETCH(int, size);
        KaIconButtonConfig expected;
        expected.setSize(KaButtonEnum::Size(size));
        KaIconButtonConfig::Geometry g;
        expected.fillGeometry(g);
        const int side = g.fixedHeight;
        QVERIFY(side > 0);
        KaIconButton button(nullptr, KaIconButtonEnum::Settings, KaButtonEnum::Size(size));
        button.setLeftIcon(QStringLiteral(":/Resources/keyboard-bold.svg"));
        QCOMPARE(button.maximumSize(), QSize(side, side));
        QCOMPARE(button.minimumSize(), QSize(side, side));
        QCOMPARE(button.svgIconSize(), g.svgIconSize);
        QCOMPARE(button.property("focusBorderRadius").toReal(), side / 2.0);
        button.resize(side, side);
        QCOMPARE(button.svgIconRect().center(), QRect(0, 0, side, side).center());
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
};

QTEST_MAIN(tst_KaIconButton)
#include "tst_kaiconbutton.moc"
