#include "buttontestutils.h"
#include "kaoverlaybutton.h"
#include "kaoverlaybuttonconfig.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QTest>

using namespace ButtonTest;

class tst_KaOverlayButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

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

    // A circle of the configuration's side with the icon centred.
    void circleBySize() {
        QFETCH(int, size);
        KaOverlayButtonConfig expected;
        expected.setSize(KaOverlayButtonEnum::Size(size));
        KaOverlayButtonConfig::Geometry g;
        expected.fillGeometry(g, Qt::LeftToRight);
        const int side = g.fixedHeight;
        QVERIFY(side > 0);
        KaOverlayButton button(nullptr, KaOverlayButtonEnum::CollapseAreaOverlay,
                               KaOverlayButtonEnum::Size(size));
        QCOMPARE(button.maximumSize(), QSize(side, side));
        QCOMPARE(button.minimumSize(), QSize(side, side));
        QCOMPARE(button.svgIconSize(), g.svgIconSize);
        QCOMPARE(button.property("focusBorderRadius").toReal(), side / 2.0);
        button.resize(side, side);
        QCOMPARE(button.svgIconRect().center(), QRect(0, 0, side, side).center());
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

    void accessibleName() {
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

QTEST_MAIN(tst_KaOverlayButton)
#include "tst_kaoverlaybutton.moc"
