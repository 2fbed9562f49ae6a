#include "bzfont.h"
#include "fontutils.h"

#include <QFontInfo>
#include <QRegularExpression>
#include <QTest>

class tst_FontUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void byPixelSize_data();
    void byPixelSize();
    void byFamily_data();
    void byFamily();
    void badInputIsDefaulted();
};

void tst_FontUtils::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_FontUtils::byPixelSize_data() {
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("weight");

    QTest::newRow("default weight") << 14 << int(QFont::Normal);
    QTest::newRow("bold 22") << 22 << int(QFont::Bold);
    QTest::newRow("medium 9") << 9 << int(QFont::Medium);
    QTest::newRow("semibold 40") << 40 << int(QFont::DemiBold);
}

void tst_FontUtils::byPixelSize() {
    QFETCH(int, pixelSize);
    QFETCH(int, weight);

    const QFont font = weight == QFont::Normal
                           ? FontUtils::getFontByPixelSize(pixelSize)
                           : FontUtils::getFontByPixelSize(pixelSize, QFont::Weight(weight));
    QCOMPARE(font.pixelSize(), pixelSize);
    QCOMPARE(int(font.weight()), weight);
    QCOMPARE(font.family(), BzFont::family());
    QCOMPARE(QFontInfo(font).family(), BzFont::family());
}

void tst_FontUtils::byFamily_data() {
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("weight");

    QTest::newRow("Light") << int(FontUtils::Light) << int(QFont::Light);
    QTest::newRow("Regular") << int(FontUtils::Regular) << int(QFont::Normal);
    QTest::newRow("Medium") << int(FontUtils::Medium) << int(QFont::Medium);
    QTest::newRow("SemiBold") << int(FontUtils::SemiBold) << int(QFont::DemiBold);
    QTest::newRow("Bold") << int(FontUtils::Bold) << int(QFont::Bold);
}

void tst_FontUtils::byFamily() {
    QFETCH(int, family);
    QFETCH(int, weight);

    const QFont font = FontUtils::getFontByPixelSize(FontUtils::FontFamily(family), 30);
    QCOMPARE(font.pixelSize(), 30);
    QCOMPARE(int(font.weight()), weight);
}

void tst_FontUtils::badInputIsDefaulted() {
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("pixel size 0 is too small")));
    QCOMPARE(FontUtils::getFontByPixelSize(0).pixelSize(), 1);

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font family 9")));
    const QFont font = FontUtils::getFontByPixelSize(FontUtils::FontFamily(9), 12);
    QCOMPARE(font.weight(), QFont::Normal);
    QCOMPARE(font.pixelSize(), 12);
}

QTEST_MAIN(tst_FontUtils)
#include "tst_fontutils.moc"
