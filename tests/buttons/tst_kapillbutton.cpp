#include "bzfont.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kaconfig.h"
#include "kapillbutton.h"
#include "karvexutils.h"

#include <QSignalSpy>
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
const char kIcon[] = ":/Resources/check-regular.svg";
const char kAnchor[] = ":/Resources/arrow-down_8.svg";
} // namespace

class tst_KaPillButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void geometryBySize_data();
    void geometryBySize();
    void missingLeftIconNarrows_data();
    void missingLeftIconNarrows();
    void styleSizeConstructor();
    void paintsPill();
    void highContrastOnThemeChange_data();
    void highContrastOnThemeChange();
    void themeSwitchRecoloursFace();
    void rightToLeftMirrorsIcons();
};

void tst_KaPillButton::initTestCase() {
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
}

void tst_KaPillButton::cleanup() {
    KaConfig::setIsHighContrast(false);
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_KaPillButton::geometryBySize_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("fontToken");
    QTest::addColumn<int>("padding");
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("spacing");
    QTest::newRow("ExtraLarge") << 0 << 40 << int(BzFont::ButtonLarge) << 16 << 20 << 6;
    QTest::newRow("Large") << 1 << 32 << int(BzFont::ButtonLarge) << 12 << 16 << 6;
    QTest::newRow("Normal") << 2 << 28 << int(BzFont::Button) << 10 << 16 << 4;
    QTest::newRow("Small") << 3 << 28 << int(BzFont::Button) << 10 << 16 << 4;
    QTest::newRow("ExtraSmall") << 4 << 24 << int(BzFont::Caption) << 8 << 16 << 4;
}

void tst_KaPillButton::geometryBySize() {
    QFETCH(int, size);
    QFETCH(int, height);
    QFETCH(int, fontToken);
    QFETCH(int, padding);
    QFETCH(int, icon);
    QFETCH(int, spacing);

    KaPillButton button(nullptr, KaButtonEnum::Primary, KaButtonEnum::Size(size));
    button.setText(QStringLiteral("Join"));
    button.setLeftIcon(QLatin1String(kIcon));

    QCOMPARE(button.minimumHeight(), height);
    QCOMPARE(button.maximumHeight(), height);
    QCOMPARE(int(button.fontToken()), fontToken);
    QCOMPARE(button.font().pixelSize(), BzFont(fontToken).pixelSize());
    QCOMPARE(button.svgIconSize(), QSize(icon, icon));
    QCOMPARE(button.svgIconSpacing(), spacing);
    QCOMPARE(button.property("focusBorderRadius").toReal(), height / 2.0);
    QCOMPARE(button.borderRadius(), 0.0 + button.QWidget::height() / 2.0);
    QVERIFY(button.styleSheet().contains(QStringLiteral("padding-left:%1px").arg(padding)));

    // Paddings, icon, spacing and text make up the width.
    const int text = button.fontMetrics().size(Qt::TextSingleLine, QStringLiteral("Join")).width();
    QCOMPARE(button.sizeHint().width(), 2 * padding + icon + spacing + text);
}

void tst_KaPillButton::missingLeftIconNarrows_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("iconAndSpacing");
    QTest::newRow("ExtraLarge") << 0 << 26;
    QTest::newRow("Large") << 1 << 22;
    QTest::newRow("ExtraSmall") << 4 << 20;
}

void tst_KaPillButton::missingLeftIconNarrows() {
    QFETCH(int, size);
    QFETCH(int, iconAndSpacing);
    KaPillButton button(nullptr, KaButtonEnum::Secondary, KaButtonEnum::Size(size));
    button.setText(QStringLiteral("Share"));
    button.setLeftIcon(QLatin1String(kIcon));
    const int withIcon = button.sizeHint().width();
    QVERIFY(button.isSvgIconVisible());

    button.setLeftIcon(QString());
    QVERIFY(!button.isSvgIconVisible());
    QCOMPARE(button.svgIconSpacing(), 0);
    QCOMPARE(withIcon - button.sizeHint().width(), iconAndSpacing);
}

void tst_KaPillButton::styleSizeConstructor() {
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

void tst_KaPillButton::paintsPill() {
    QWidget window;
    KaPillButton button(&window, KaButtonEnum::Primary, KaButtonEnum::Large);
    button.setGeometry(0, 0, 120, 32);
    window.setGeometry(300, 300, 140, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QImage image = rendered(&button);
    const QColor face = BzThemeUtils::getColorSet("button-primary-background").normal();
    QCOMPARE(image.pixelColor(60, 16), face);
    // Half-height radius: the ends are round, the corners empty.
    QCOMPARE(image.pixelColor(1, 1).alpha(), 0);
    QCOMPARE(image.pixelColor(118, 30).alpha(), 0);
    QCOMPARE(image.pixelColor(16, 16), face);
}

void tst_KaPillButton::highContrastOnThemeChange_data() {
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

void tst_KaPillButton::highContrastOnThemeChange() {
    QFETCH(int, style);
    QFETCH(bool, checked);
    QFETCH(QString, background);
    QFETCH(QString, border);

    KaPillButton button(nullptr, KaButtonEnum::Style(style), KaButtonEnum::Large);
    button.setCheckable(true);
    button.setChecked(checked);
    KaConfig::setIsHighContrast(true);
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("highContrast"), BzThemeManager::DataOnly);
    KarvexUtils::updateSolvaneThemes();
    QTRY_COMPARE(button.getWCSS().backgroundColorSet, background);
    QCOMPARE(button.getWCSS().borderColorSet, border);
    QCOMPARE(button.getWCSS().hasAnyBorder(), !border.isEmpty());
}

void tst_KaPillButton::themeSwitchRecoloursFace() {
    QWidget window;
    KaPillButton button(&window, KaButtonEnum::Secondary, KaButtonEnum::Large);
    button.setGeometry(0, 0, 120, 32);
    window.setGeometry(300, 300, 140, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const auto face = [&] {
        return rendered(&button).pixelColor(60, 16);
    };
    QCOMPARE(face(), BzThemeUtils::getColorSet("button-secondary-background", BzThemeUtils::Light).normal());
    const QColor dark = BzThemeUtils::getColorSet("button-secondary-background", BzThemeUtils::Dark).normal();
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"), BzThemeManager::DataOnly);
    KarvexUtils::updateSolvaneThemes();
    QTRY_COMPARE(face(), dark);
    // The border follows as well.
    const QColor darkBorder =
        BzThemeUtils::getColorSet("button-secondary-border", BzThemeUtils::Dark).normal();
    QCOMPARE(rendered(&button).pixelColor(60, 0), darkBorder);
}

void tst_KaPillButton::rightToLeftMirrorsIcons() {
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

QTEST_MAIN(tst_KaPillButton)
#include "tst_kapillbutton.moc"
