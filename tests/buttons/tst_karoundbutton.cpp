#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "karoundbutton.h"

#include <QAccessible>
#include <QTest>

namespace {
// What the button paints by itself, on a transparent image: grab() would
// show the parent's background through the empty corners.
QImage rendered(QWidget* widget) {
    QImage image(widget->QWidget::size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}
} // namespace

class tst_KaRoundButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void circleBySize_data();
    void circleBySize();
    void paintsCircleWithCentredIcon();
    void refusesRightIcon();
    void accessibleName();
};

void tst_KaRoundButton::initTestCase() {
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
}

void tst_KaRoundButton::circleBySize_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<int>("icon");
    QTest::newRow("ExtraLarge") << 0 << 64 << 32;
    QTest::newRow("Large") << 1 << 52 << 28;
    QTest::newRow("Normal") << 2 << 40 << 20;
    QTest::newRow("Small") << 3 << 32 << 16;
    QTest::newRow("ExtraSmall") << 4 << 28 << 16;
    QTest::newRow("ExtraExtraSmall") << 5 << 24 << 13;
    QTest::newRow("ExtraExtraExtraSmall") << 6 << 16 << 8;
}

void tst_KaRoundButton::circleBySize() {
    QFETCH(int, size);
    QFETCH(int, diameter);
    QFETCH(int, icon);
    QWidget window;
    KaRoundButton button(&window, KaButtonEnum::Secondary, KaButtonEnum::Size(size));
    button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
    window.show();

    QCOMPARE(button.minimumSize(), QSize(diameter, diameter));
    QCOMPARE(button.maximumSize(), QSize(diameter, diameter));
    QCOMPARE(button.QWidget::size(), QSize(diameter, diameter));
    QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(button.svgIconSize(), QSize(icon, icon));
    QCOMPARE(button.property("focusBorderRadius").toReal(), diameter / 2.0);
    QCOMPARE(button.borderRadius(), diameter / 2.0);

    // Shrinking again gives the smaller circle, not a pill.
    button.setSize(KaButtonEnum::ExtraExtraExtraSmall);
    QCOMPARE(button.QWidget::size(), QSize(16, 16));
    QCOMPARE(button.property("focusBorderRadius").toReal(), 8.0);
}

void tst_KaRoundButton::paintsCircleWithCentredIcon() {
    QWidget window;
    KaRoundButton button(&window, KaButtonEnum::Primary, KaButtonEnum::ExtraLarge);
    button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
    window.setGeometry(300, 300, 80, 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QRect icon = button.svgIconRect();
    QCOMPARE(icon, QRect(16, 16, 32, 32));
    const QImage image = rendered(&button);
    const QColor face = BzThemeUtils::getColorSet("button-primary-background").normal();
    const QColor glyph = BzThemeUtils::getColorSet("button-primary-text").normal();
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

void tst_KaRoundButton::refusesRightIcon() {
    KaRoundButton button;
    button.resize(32, 32);
    QTest::ignoreMessage(QtWarningMsg, "Setting the right icon on the KaRoundButtonConfig is not supported!");
    button.setRightIcon(QStringLiteral(":/Resources/arrow-down_8.svg"));
    QVERIFY(!button.isAnchorIconVisible());
    QVERIFY(button.anchorIconRect().isEmpty());
}

void tst_KaRoundButton::accessibleName() {
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

QTEST_MAIN(tst_KaRoundButton)
#include "tst_karoundbutton.moc"
