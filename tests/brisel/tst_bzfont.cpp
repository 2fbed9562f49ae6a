#include "bzfont.h"
#include "bzfontmanager.h"
#include "fontutils.h"

#include <QFontInfo>
#include <QRegularExpression>
#include <QTest>

class tst_BzFont : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void cleanup() { BzFontManager::instance()->setTextScale(1.0); }

    void bundledFamilyIsUsed() {
        // The family must come from the registered files, not from a system
        // font that happens to match the name.
        QCOMPARE(BzFont::family(), QStringLiteral("Inter"));
        const BzFont font(BzFont::Title);
        QCOMPARE(QFontInfo(font).family(), QStringLiteral("Inter"));
        QCOMPARE(QFontInfo(font).pixelSize(), BzFont::pixelSizeOf(BzFont::Title));
        QCOMPARE(font.weight(), BzFont::weightOf(BzFont::Title));
    }

    void outOfRangeTokenIsClamped_data() {
        QTest::addColumn<int>("token");
        QTest::addColumn<int>("expected");
        QTest::newRow("negative") << -1 << int(BzFont::Body);
        QTest::newRow("far negative") << -100 << int(BzFont::Body);
        QTest::newRow("TokenCount") << int(BzFont::TokenCount) << int(BzFont::Display);
        QTest::newRow("far above") << 1000 << int(BzFont::Display);
    }
    void outOfRangeTokenIsClamped() {
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

    void scaledFollowsTextScale_data() {
        QTest::addColumn<int>("token");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("pixelSize");
        QTest::newRow("Body 14 x1.5") << int(BzFont::Body) << 1.5 << 21;
        QTest::newRow("Caption 11 x1.5 rounds up") << int(BzFont::Caption) << 1.5 << 17;
        QTest::newRow("Display 28 x0.5") << int(BzFont::Display) << 0.5 << 14;
        QTest::newRow("Control 12 x1.1") << int(BzFont::Control) << 1.1 << 13;
    }
    void scaledFollowsTextScale() {
        QFETCH(int, token);
        QFETCH(double, scale);
        QFETCH(int, pixelSize);
        BzFontManager::instance()->setTextScale(scale);
        QCOMPARE(BzFont(token, true).pixelSize(), pixelSize);
        QCOMPARE(BzFont(token, true).weight(), BzFont::weightOf(token));
        QCOMPARE(BzFont(token, false).pixelSize(), BzFont::pixelSizeOf(token));
        QCOMPARE(BzFont::scaledPixelSizeOf(token, scale), pixelSize);
    }

    void scaledPixelSizeNeverBelowOne() {
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.01), 1);
        // Nonsense scales fall back to the table size rather than to 0.
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.0), BzFont::pixelSizeOf(BzFont::Caption));
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, qQNaN()), BzFont::pixelSizeOf(BzFont::Caption));
    }

    // FontUtils: fonts of the bundled family by pixel size.
    void bundledFamilyAtAnySize() {
        const QFont font = FontUtils::getFontByPixelSize(22, QFont::Bold);
        QCOMPARE(font.pixelSize(), 22);
        QCOMPARE(font.weight(), QFont::Bold);
        QCOMPARE(QFontInfo(font).family(), BzFont::family());
        QCOMPARE(FontUtils::getFontByPixelSize(FontUtils::SemiBold, 30).weight(), QFont::DemiBold);
    }

    void fontUtilsBadInputIsDefaulted() {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("pixel size 0 is too small")));
        QCOMPARE(FontUtils::getFontByPixelSize(0).pixelSize(), 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font family 9")));
        const QFont font = FontUtils::getFontByPixelSize(FontUtils::FontFamily(9), 12);
        QCOMPARE(font.weight(), QFont::Normal);
        QCOMPARE(font.pixelSize(), 12);
    }
};

QTEST_MAIN(tst_BzFont)
#include "tst_bzfont.moc"
