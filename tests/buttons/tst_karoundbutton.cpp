#include "buttontestutils.h"
#include "karoundbutton.h"
#include "karoundbuttonconfig.h"

#include <QAccessible>
#include <QMetaEnum>
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
};

QTEST_MAIN(tst_KaRoundButton)
#include "tst_karoundbutton.moc"
