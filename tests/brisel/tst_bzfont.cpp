#include "bzfont.h"
#include "bzfontmanager.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>

class tst_BzFont : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void table_data();
    void table();
    void bundledFamilyIsUsed();
    void outOfRangeTokenIsClamped_data();
    void outOfRangeTokenIsClamped();
    void scaledFollowsTextScale_data();
    void scaledFollowsTextScale();
    void unscaledIgnoresTextScale();
    void scaledPixelSizeNeverBelowOne();
};

void tst_BzFont::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_BzFont::cleanup() {
    if (BzFontManager::exists())
        BzFontManager::instance()->setTextScale(1.0);
}

void tst_BzFont::table_data() {
    QTest::addColumn<int>("token");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("weight");

    QTest::newRow("Body") << int(BzFont::Body) << 14 << int(QFont::Normal);
    QTest::newRow("Subtitle") << int(BzFont::Subtitle) << 16 << int(QFont::DemiBold);
    QTest::newRow("Title") << int(BzFont::Title) << 20 << int(QFont::DemiBold);
    QTest::newRow("ButtonLarge") << int(BzFont::ButtonLarge) << 14 << int(QFont::DemiBold);
    QTest::newRow("Button") << int(BzFont::Button) << 13 << int(QFont::DemiBold);
    QTest::newRow("Control") << int(BzFont::Control) << 12 << int(QFont::Medium);
    QTest::newRow("BodySmall") << int(BzFont::BodySmall) << 13 << int(QFont::Normal);
    QTest::newRow("Caption") << int(BzFont::Caption) << 11 << int(QFont::DemiBold);
    QTest::newRow("Headline") << int(BzFont::Headline) << 24 << int(QFont::Bold);
    QTest::newRow("CaptionRegular") << int(BzFont::CaptionRegular) << 11 << int(QFont::Normal);
    QTest::newRow("Display") << int(BzFont::Display) << 28 << int(QFont::Bold);
}

void tst_BzFont::table() {
    QFETCH(int, token);
    QFETCH(int, pixelSize);
    QFETCH(int, weight);

    const BzFont font(token);
    QCOMPARE(font.token(), token);
    QCOMPARE(font.pixelSize(), pixelSize);
    QCOMPARE(int(font.weight()), weight);
    QCOMPARE(BzFont::pixelSizeOf(token), pixelSize);
    QCOMPARE(int(BzFont::weightOf(token)), weight);
}

void tst_BzFont::bundledFamilyIsUsed() {
    // The family must come from the registered files, not from a system font
    // that happens to match the name.
    QCOMPARE(BzFont::family(), QStringLiteral("Inter"));
    const BzFont font(BzFont::Title);
    QCOMPARE(QFontInfo(font).family(), QStringLiteral("Inter"));
    QCOMPARE(QFontInfo(font).pixelSize(), 20);
}

void tst_BzFont::outOfRangeTokenIsClamped_data() {
    QTest::addColumn<int>("token");
    QTest::addColumn<int>("expected");

    QTest::newRow("negative") << -1 << int(BzFont::Body);
    QTest::newRow("far negative") << -100 << int(BzFont::Body);
    QTest::newRow("TokenCount") << int(BzFont::TokenCount) << int(BzFont::Display);
    QTest::newRow("far above") << 1000 << int(BzFont::Display);
}

void tst_BzFont::outOfRangeTokenIsClamped() {
    QFETCH(int, token);
    QFETCH(int, expected);

    // Exactly one warning for the construction.
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("token %1 is out of range").arg(token)));
    const BzFont font(token);
    QCOMPARE(font.token(), expected);
    QCOMPARE(font.pixelSize(), BzFont::pixelSizeOf(expected));
    QCOMPARE(font.weight(), BzFont::weightOf(expected));
}

void tst_BzFont::scaledFollowsTextScale_data() {
    QTest::addColumn<int>("token");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("pixelSize");

    QTest::newRow("Body x1.5") << int(BzFont::Body) << 1.5 << 21;
    QTest::newRow("Caption x1.5 rounds up") << int(BzFont::Caption) << 1.5 << 17;
    QTest::newRow("Button x1.5 rounds up") << int(BzFont::Button) << 1.5 << 20;
    QTest::newRow("Display x0.5") << int(BzFont::Display) << 0.5 << 14;
    QTest::newRow("Control x1.1") << int(BzFont::Control) << 1.1 << 13;
    QTest::newRow("Headline x3") << int(BzFont::Headline) << 3.0 << 72;
}

void tst_BzFont::scaledFollowsTextScale() {
    QFETCH(int, token);
    QFETCH(double, scale);
    QFETCH(int, pixelSize);

    BzFontManager::instance()->setTextScale(scale);
    const BzFont font(token, true);
    QCOMPARE(font.pixelSize(), pixelSize);
    QCOMPARE(font.weight(), BzFont::weightOf(token));
    QCOMPARE(BzFont::scaledPixelSizeOf(token, scale), pixelSize);
}

void tst_BzFont::unscaledIgnoresTextScale() {
    BzFontManager::instance()->setTextScale(2.0);
    QCOMPARE(BzFont(BzFont::Body, false).pixelSize(), 14);
    QCOMPARE(BzFont(BzFont::Body, true).pixelSize(), 28);
}

void tst_BzFont::scaledPixelSizeNeverBelowOne() {
    QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.01), 1);
    // Nonsense scales fall back to the table size rather than to 0.
    QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.0), 11);
    QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, qQNaN()), 11);
}

QTEST_MAIN(tst_BzFont)
#include "tst_bzfont.moc"
