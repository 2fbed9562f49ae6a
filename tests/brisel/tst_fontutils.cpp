#include "bzfont.h"
#include "fontutils.h"

#include <QFontInfo>
#include <QRegularExpression>
#include <QTest>

class tst_FontUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void bundledFamilyAtAnySize() {
        const QFont font = FontUtils::getFontByPixelSize(22, QFont::Bold);
        QCOMPARE(font.pixelSize(), 22);
        QCOMPARE(font.weight(), QFont::Bold);
        QCOMPARE(QFontInfo(font).family(), BzFont::family());
        QCOMPARE(FontUtils::getFontByPixelSize(FontUtils::SemiBold, 30).weight(), QFont::DemiBold);
    }

    void badInputIsDefaulted() {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("pixel size 0 is too small")));
        QCOMPARE(FontUtils::getFontByPixelSize(0).pixelSize(), 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font family 9")));
        const QFont font = FontUtils::getFontByPixelSize(FontUtils::FontFamily(9), 12);
        QCOMPARE(font.weight(), QFont::Normal);
        QCOMPARE(font.pixelSize(), 12);
    }
};

QTEST_MAIN(tst_FontUtils)
#include "tst_fontutils.moc"
