#include "kadualbuttonenum.h"

#include <QMetaEnum>
#include <QTest>

// Compile-time use is what the dual buttons rely on.
static_assert(KaDualButtonCode::colorScheme(KaDualButtonEnum::LabelArrowGreen) == KaDualButtonCode::Green);
static_assert(KaDualButtonCode::isVertical(KaDualButtonEnum::SecondaryVertical));

Q_DECLARE_METATYPE(KaDualButtonCode::ColorScheme)
Q_DECLARE_METATYPE(QMetaEnum)

class tst_KaDualButtonEnum : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void decode_data() {
        using namespace KaDualButtonCode;
        QTest::addColumn<int>("code");
        QTest::addColumn<ColorScheme>("scheme");
        QTest::addColumn<int>("layout");
        QTest::addColumn<bool>("iconFirst");
        QTest::addColumn<bool>("alignRight");
        QTest::addColumn<bool>("vertical");

        QTest::newRow("LabelIconSecondary")
            << int(KaDualButtonEnum::LabelIconSecondary) << Secondary << 3 << false << false << false;
        QTest::newRow("IconLabelSecondary")
            << int(KaDualButtonEnum::IconLabelSecondary) << Secondary << 3 << true << false << false;
        QTest::newRow("AsymIconArrowSecondaryActive") << int(KaDualButtonEnum::AsymIconArrowSecondaryActive)
                                                      << SecondaryActive << 12 << false << false << false;
        QTest::newRow("LabelIconSecondaryAlignRight") << int(KaDualButtonEnum::LabelIconSecondaryAlignRight)
                                                      << Secondary << 3 << false << true << false;
        QTest::newRow("DarkThemeSecondaryVertical") << int(KaDualButtonEnum::DarkThemeSecondaryVertical)
                                                    << DarkThemeSecondary << 2 << true << false << true;
        QTest::newRow("AsymIconInvertedVertical")
            << int(KaDualButtonEnum::AsymIconInvertedVertical) << Inverted << 4 << true << false << true;
        QTest::newRow("AsymSecondaryHorizontalWithoutSplit")
            << int(KaDualButtonEnum::AsymSecondaryHorizontalWithoutSplit) << Secondary << 4 << false << false
            << false;
        QTest::newRow("all flags") << 0x7A5 << Inverted << 10 << true << true << true;
    }

    void decode() {
        QFETCH(int, code);
        QFETCH(KaDualButtonCode::ColorScheme, scheme);
        QFETCH(int, layout);
        QFETCH(bool, iconFirst);
        QFETCH(bool, alignRight);
        QFETCH(bool, vertical);

        QCOMPARE(KaDualButtonCode::colorScheme(code), scheme);
        QCOMPARE(KaDualButtonCode::cellLayout(code), layout);
        QCOMPARE(KaDualButtonCode::isIconFirst(code), iconFirst);
        QCOMPARE(KaDualButtonCode::isAlignedRight(code), alignRight);
        QCOMPARE(KaDualButtonCode::isVertical(code), vertical);
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
