#include "kadualbuttonenum.h"

#include <QMetaEnum>
#include <QTest>

// Compile-time use is what the dual buttons rely on.
static_assert(KaDualButtonCode::colorScheme(KaDualButtonEnum::LabelArrowGreen) == KaDualButtonCode::Green);
static_assert(KaDualButtonCode::isVertical(KaDualButtonEnum::SecondaryVertical));

Q_DECLARE_METATYPE(QMetaEnum)

class tst_KaDualButtonEnum : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // The named keys: keyNamesAgreeWithCodes. Every flag at once:
    void allFlags() {
        using namespace KaDualButtonCode;
        QCOMPARE(colorScheme(0x7A5), Inverted);
        QCOMPARE(cellLayout(0x7A5), 10);
        QVERIFY(isIconFirst(0x7A5) && isAlignedRight(0x7A5) && isVertical(0x7A5));
        QCOMPARE(cellLayout(KaDualButtonEnum::AsymIconArrowSecondaryActive), 12);
    }

    // Every key's name describes its code: the scheme word, "Vertical",
    // "AlignRight", and the icon-first cell ("IconLabel..." styles and every
    // icon-button style that is split).
    void keyNamesAgreeWithCodes_data() {
        QTest::addColumn<QMetaEnum>("metaEnum");
        QTest::newRow("Style") << QMetaEnum::fromType<KaDualButtonEnum::Style>();
        QTest::newRow("IconButtonStyle") << QMetaEnum::fromType<KaDualButtonEnum::IconButtonStyle>();
    }

    void keyNamesAgreeWithCodes() {
        using namespace KaDualButtonCode;
        QFETCH(QMetaEnum, metaEnum);
        const bool iconButtons = QByteArray(metaEnum.enumName()) == "IconButtonStyle";
        for (int i = 0; i < metaEnum.keyCount(); ++i) {
            const QByteArray key(metaEnum.key(i));
            const int code = metaEnum.value(i);

            ColorScheme expected = NoColorScheme;
            if (key.contains("DarkThemeSecondary"))
                expected = DarkThemeSecondary;
            else if (key.contains("SecondaryActive"))
                expected = SecondaryActive;
            else if (key.contains("Secondary"))
                expected = Secondary;
            else if (key.contains("Primary"))
                expected = Primary;
            else if (key.contains("Inverted"))
                expected = Inverted;
            else if (key.contains("Ghost"))
                expected = Ghost;
            else if (key.contains("Green"))
                expected = Green;
            QVERIFY2(expected != NoColorScheme, key.constData());
            QVERIFY2(colorScheme(code) == expected, key.constData());

            QVERIFY2(isVertical(code) == key.contains("Vertical"), key.constData());
            QVERIFY2(isAlignedRight(code) == key.contains("AlignRight"), key.constData());
            const bool iconCell = iconButtons ? !key.endsWith("WithoutSplit") : key.startsWith("IconLabel");
            QVERIFY2(isIconFirst(code) == iconCell, key.constData());
            QVERIFY2(cellLayout(code) != 0, key.constData());
            // Nothing above 0x7FF is defined.
            QVERIFY2((code & ~0x7FF) == 0, key.constData());
        }
    }

    void schemeOutOfRange_data() {
        QTest::addColumn<int>("code");
        QTest::newRow("zero digit") << 0x130;
        QTest::newRow("eight") << 0x38;
        QTest::newRow("fifteen") << 0x3F;
        QTest::newRow("negative") << -1;
    }

    void schemeOutOfRange() {
        QFETCH(int, code);
        QCOMPARE(KaDualButtonCode::colorScheme(code), KaDualButtonCode::NoColorScheme);
    }
};

QTEST_GUILESS_MAIN(tst_KaDualButtonEnum)
#include "tst_kadualbuttonenum.moc"
