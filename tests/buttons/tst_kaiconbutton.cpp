#include "bzthememanager.h"
#include "kaconfig.h"
#include "kaiconbutton.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

class tst_KaIconButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void squareBySize_data();
    void squareBySize();
    void colourByTypeAndStyle_data();
    void colourByTypeAndStyle();
    void checkedIsActive();
    void highContrastAddsBorder();
    void accessibleName();
};

void tst_KaIconButton::initTestCase() {
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
}

void tst_KaIconButton::cleanup() {
    KaConfig::setIsHighContrast(false);
}

void tst_KaIconButton::squareBySize_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("icon");
    QTest::newRow("ExtraLarge") << 0 << 40 << 24;
    QTest::newRow("Large") << 1 << 32 << 20;
    QTest::newRow("Normal") << 2 << 28 << 16;
    QTest::newRow("Small") << 3 << 24 << 16;
    QTest::newRow("ExtraSmall") << 4 << 20 << 12;
    QTest::newRow("ExtraExtraSmall") << 5 << 16 << 12;
    QTest::newRow("ExtraExtraExtraSmall") << 6 << 12 << 8;
}

void tst_KaIconButton::squareBySize() {
    QFETCH(int, size);
    QFETCH(int, side);
    QFETCH(int, icon);
    KaIconButton button(nullptr, KaIconButtonEnum::Settings, KaButtonEnum::Size(size));
    button.setLeftIcon(QStringLiteral(":/Resources/keyboard-bold.svg"));
    QCOMPARE(button.maximumSize(), QSize(side, side));
    QCOMPARE(button.minimumSize(), QSize(side, side));
    QCOMPARE(button.svgIconSize(), QSize(icon, icon));
    QCOMPARE(button.property("focusBorderRadius").toReal(), side / 2.0);
    button.resize(side, side);
    // Centred.
    QCOMPARE(button.svgIconRect().center(), QRect(0, 0, side, side).center());
}

void tst_KaIconButton::colourByTypeAndStyle_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("icon");
    QTest::newRow("Settings inactive") << 1 << 1 << "interactiveicon-primary-filled-icon-inactive";
    QTest::newRow("Favorite active") << 2 << 0 << "interactiveicon-tertiary-filled-favorite-icon-active";
    QTest::newRow("None") << 0 << 0 << "";
}

void tst_KaIconButton::colourByTypeAndStyle() {
    QFETCH(int, type);
    QFETCH(int, style);
    QFETCH(QString, icon);
    KaIconButton button;
    button.setType(KaIconButtonEnum::Type(type));
    button.setStyle(KaIconButtonEnum::Style(style));
    QCOMPARE(button.getWCSS().textColorSet, icon);
    QCOMPARE(button.getWCSS().backgroundColorSet,
             icon.isEmpty() ? QString() : QStringLiteral("interactiveicon-container-background"));
    QVERIFY(!button.getWCSS().hasAnyBorder());
}

void tst_KaIconButton::checkedIsActive() {
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

void tst_KaIconButton::highContrastAddsBorder() {
    KaIconButton button(nullptr, KaIconButtonEnum::Info, KaButtonEnum::Normal);
    QVERIFY(!button.getWCSS().hasAnyBorder());
    KaConfig::setIsHighContrast(true);
    button.onThemeChanged();
    QCOMPARE(button.getWCSS().borderColorSet, QStringLiteral("button-primary-border"));
    QVERIFY(button.getWCSS().hasAnyBorder());
}

void tst_KaIconButton::accessibleName() {
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

QTEST_MAIN(tst_KaIconButton)
#include "tst_kaiconbutton.moc"
