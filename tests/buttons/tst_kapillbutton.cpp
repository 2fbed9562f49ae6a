#include "buttontestutils.h"
#include "bzfont.h"
#include "kapillbutton.h"
#include "kapillbuttonconfig.h"

#include <QMetaEnum>
#include <QTest>

using namespace ButtonTest;

namespace {
const char kIcon[] = ":/Resources/check-regular.svg";
const char kAnchor[] = ":/Resources/arrow-down_8.svg";
} // namespace

class tst_KaPillButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void geometryBySize_data() {
        QTest::addColumn<int>("size");
        for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraSmall; ++size)
            QTest::newRow(QMetaEnum::fromType<KaButtonEnum::Size>().valueToKey(size)) << size;
    }

    // The button applies its configuration's record, and its width is made of
    // the paddings, the icon with its spacing and the text.
    void geometryBySize() {
        QFETCH(int, size);
        KaPillButton button(nullptr, KaButtonEnum::Primary, KaButtonEnum::Size(size));
        button.setText(QStringLiteral("Join"));
        button.setLeftIcon(QLatin1String(kIcon));
        KaPillButtonConfig expected;
        expected.setSize(KaButtonEnum::Size(size));
        expected.setHasLeftIcon(true);
        KaPillButtonConfig::Geometry g;
        expected.fillGeometry(g);

        QCOMPARE(button.minimumHeight(), g.fixedHeight);
        QCOMPARE(button.maximumHeight(), g.fixedHeight);
        QCOMPARE(int(button.fontToken()), g.fontToken);
        QCOMPARE(button.font().pixelSize(), BzFont(g.fontToken).pixelSize());
        QCOMPARE(button.svgIconSize(), g.svgIconSize);
        QCOMPARE(button.svgIconSpacing(), g.svgIconSpacing);
        QCOMPARE(button.property("focusBorderRadius").toReal(), g.fixedHeight / 2.0);
        QCOMPARE(button.borderRadius(), 0.0 + button.QWidget::height() / 2.0);
        // The padding text reaches the base button, which lays it out without
        // giving the button a style-sheet style of its own.
        QVERIFY(button.getCSS().contains(QStringLiteral("padding-left:%1px").arg(g.paddingLeft)));
        QVERIFY(button.styleSheet().isEmpty());

        const int text = button.fontMetrics().size(Qt::TextSingleLine, QStringLiteral("Join")).width();
        QCOMPARE(button.sizeHint().width(),
                 g.paddingLeft + g.paddingRight + g.svgIconSize.width() + g.svgIconSpacing + text);

        // Without the icon the width shrinks by exactly the icon and its spacing.
        button.setLeftIcon(QString());
        QVERIFY(!button.isSvgIconVisible());
        QCOMPARE(button.svgIconSpacing(), 0);
        QCOMPARE(button.sizeHint().width(), g.paddingLeft + g.paddingRight + text);
    }

    void styleSizeConstructor() {
        KaPillButton button(nullptr, KaButtonEnum::OutlineCancel, KaButtonEnum::ExtraSmall);
        QCOMPARE(button.style(), KaButtonEnum::OutlineCancel);
        QCOMPARE(button.size(), KaButtonEnum::ExtraSmall);
        QCOMPARE(button.maximumHeight(), 24);
        QCOMPARE(button.getWCSS().borderColorSet, QStringLiteral("button-cancel-outline-border"));
        QVERIFY(button.getWCSS().hasAnyBorder());

        KaPillButton plain;
        QCOMPARE(plain.style(), KaButtonEnum::Primary);
        QCOMPARE(plain.size(), KaButtonEnum::Large);
        QCOMPARE(plain.maximumHeight(), 32);
    }

    void paintsPill() {
        QWidget window;
        KaPillButton button(&window, KaButtonEnum::Primary, KaButtonEnum::Large);
        button.setGeometry(0, 0, 120, 32);
        QVERIFY(shown(window, QRect(300, 300, 140, 40)));

        const QImage image = rendered(&button);
        const QColor face = colorOf("button-primary-background");
        QCOMPARE(image.pixelColor(60, 16), face);
        // Half-height radius: the ends are round, the corners empty.
        QCOMPARE(image.pixelColor(1, 1).alpha(), 0);
        QCOMPARE(image.pixelColor(118, 30).alpha(), 0);
        QCOMPARE(image.pixelColor(16, 16), face);
    }

    void highContrastOnThemeChange_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("background");
        QTest::addColumn<QString>("border");
        QTest::newRow("Cancel takes the primary look")
            << int(KaButtonEnum::Cancel) << false << "button-primary-background"
            << "button-primary-border";
        QTest::newRow("checked Ghost keeps its active look")
            << int(KaButtonEnum::Ghost) << true << "button-ghost-active-background"
            << "";
    }

    void highContrastOnThemeChange() {
        QFETCH(int, style);
        QFETCH(bool, checked);
        QFETCH(QString, background);
        QFETCH(QString, border);

        KaPillButton button(nullptr, KaButtonEnum::Style(style), KaButtonEnum::Large);
        button.setCheckable(true);
        button.setChecked(checked);
        const HighContrastScope on(true);
        switchTheme("highContrast");
        QTRY_COMPARE(button.getWCSS().backgroundColorSet, background);
        QCOMPARE(button.getWCSS().borderColorSet, border);
        QCOMPARE(button.getWCSS().hasAnyBorder(), !border.isEmpty());
    }

    void themeSwitchRecoloursFace() {
        QWidget window;
        KaPillButton button(&window, KaButtonEnum::Secondary, KaButtonEnum::Large);
        button.setGeometry(0, 0, 120, 32);
        QVERIFY(shown(window, QRect(300, 300, 140, 40)));

        checkFollowsTheme(&button, {60, 16}, "button-secondary-background");
        // The border follows as well.
        QVERIFY(paints(&button, {60, 0}, "button-secondary-border", 0));
    }

    void rightToLeftMirrorsIcons() {
        QWidget window;
        KaPillButton button(&window, KaButtonEnum::Primary, KaButtonEnum::Large);
        button.setText(QStringLiteral("Call"));
        button.setLeftIcon(QLatin1String(kIcon));
        button.setRightIcon(QLatin1String(kAnchor));
        button.setGeometry(0, 0, 160, 32);
        window.show();

        const QRect ltrIcon = button.svgIconRect();
        const QRect ltrAnchor = button.anchorIconRect();
        QVERIFY(ltrIcon.right() < ltrAnchor.left());
        QCOMPARE(ltrIcon.size(), QSize(16, 16));

        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_COMPARE(button.layoutDirection(), Qt::RightToLeft);
        const QRect rtlIcon = button.svgIconRect();
        const QRect rtlAnchor = button.anchorIconRect();
        QVERIFY(rtlAnchor.right() < rtlIcon.left());
        // Mirror images of each other about the button's centre.
        QCOMPARE(rtlIcon.left(), 160 - 1 - ltrIcon.right());
        QCOMPARE(rtlAnchor.left(), 160 - 1 - ltrAnchor.right());
    }
};

QTEST_MAIN(tst_KaPillButton)
#include "tst_kapillbutton.moc"
