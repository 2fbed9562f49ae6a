#include "kaavatarenum.h"
#include "kabadgeenum.h"
#include "kabuttonenum.h"
#include "kacolortokenutils.h"
#include "kacomboboxenum.h"
#include "kadiscoverabilityenum.h"
#include "kadualbuttonenum.h"
#include "kaiconbuttonenum.h"
#include "kamenuenum.h"
#include "kaoverlaybuttonenum.h"
#include "kapopupenum.h"
#include "kascrollbarenum.h"
#include "kasudotranslator.h"
#include "katabenum.h"
#include "katextfieldenum.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaEnum>
#include <QScopeGuard>
#include <QTest>
#include <climits>
#include <string>

// Compile-time use is what the dual buttons rely on.
static_assert(KaDualButtonCode::colorScheme(KaDualButtonEnum::LabelArrowGreen) == KaDualButtonCode::Green);
static_assert(KaDualButtonCode::isVertical(KaDualButtonEnum::SecondaryVertical));

Q_DECLARE_METATYPE(QMetaEnum)

// Designer, QML and the host's settings name enumeration values as strings:
// every holder's enumerations must be registered with the meta-object
// system under their holder's name, and every key must map both ways.

namespace {

// Answers nothing and counts how often it was asked.
class CountingTranslator : public QTranslator {
public:
    mutable int asked = 0;
    QString translate(const char*, const char*, const char* = nullptr, int = -1) const override {
        ++asked;
        return QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_KaEnums : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readableByName_data() {
        QTest::addColumn<QMetaEnum>("metaEnum");
        QTest::addColumn<QByteArray>("holder");
        const auto row = [](const QMetaObject& holder, const char* enumName) {
            const int index = holder.indexOfEnumerator(enumName);
            QTest::addRow("%s::%s", holder.className(), enumName)
                << (index >= 0 ? holder.enumerator(index) : QMetaEnum()) << QByteArray(holder.className());
        };
        for (const char* name : {"Style", "Size", "State"})
            row(KaButtonEnum::staticMetaObject, name);
        for (const char* name : {"Style", "IconButtonStyle", "Size"})
            row(KaDualButtonEnum::staticMetaObject, name);
        for (const char* name : {"Style", "Type"})
            row(KaIconButtonEnum::staticMetaObject, name);
        for (const char* name : {"Type", "Size"})
            row(KaOverlayButtonEnum::staticMetaObject, name);
        row(KaBadgeEnum::staticMetaObject, "Style");
        for (const char* name : {"Type", "Style", "State"})
            row(KaTabEnum::staticMetaObject, name);
        for (const char* name : {"Style", "Size"})
            row(KaTextFieldEnum::staticMetaObject, name);
        for (const char* name : {"Transformation", "Size", "Presence", "AvatarType"})
            row(KaAvatarEnum::staticMetaObject, name);
        for (const char* name : {"Style", "Size"})
            row(KaComboBoxEnum::staticMetaObject, name);
        row(KaScrollbarEnum::staticMetaObject, "MinimumSize");
        for (const char* name : {"Style", "Size"})
            row(KaMenuEnum::staticMetaObject, name);
        row(KaDiscoverabilityEnum::staticMetaObject, "DiscoverabilityLabelType");
        row(KaPopupEnum::staticMetaObject, "Alignment");
    }

    void readableByName() {
        QFETCH(QMetaEnum, metaEnum);
        QFETCH(QByteArray, holder);
        QVERIFY2(metaEnum.isValid(), "not registered with Q_ENUM / Q_ENUM_NS");
        QCOMPARE(QByteArray(metaEnum.scope()), holder);
        QVERIFY(metaEnum.keyCount() > 0);
        for (int i = 0; i < metaEnum.keyCount(); ++i) {
            bool ok = false;
            QCOMPARE(metaEnum.keyToValue(metaEnum.key(i), &ok), metaEnum.value(i));
            QVERIFY2(ok, metaEnum.key(i));
            // Two keys sharing a value would make the reverse lookup ambiguous.
            QCOMPARE(QByteArray(metaEnum.valueToKey(metaEnum.value(i))), QByteArray(metaEnum.key(i)));
        }
    }

    void throughVariant() {
        QCOMPARE(QVariant::fromValue(KaButtonEnum::GlobalHeaderSearchCancel).toString(),
                 QStringLiteral("GlobalHeaderSearchCancel"));
        QVariant fromName(QStringLiteral("ExtraExtraExtraSmall"));
        QVERIFY(fromName.convert(QMetaType::fromType<KaButtonEnum::Size>()));
        QCOMPARE(fromName.value<KaButtonEnum::Size>(), KaButtonEnum::ExtraExtraExtraSmall);
        QVariant unknown(QStringLiteral("Huge"));
        QVERIFY(!unknown.convert(QMetaType::fromType<KaButtonEnum::Size>()));
    }

    // KaDualButtonCode: the named keys in keyNamesAgreeWithCodes; every flag at
    // once here.
    void dualButtonAllFlags() {
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

    void dualButtonSchemeOutOfRange_data() {
        QTest::addColumn<int>("code");
        QTest::newRow("zero digit") << 0x130;
        QTest::newRow("eight") << 0x38;
        QTest::newRow("fifteen") << 0x3F;
        QTest::newRow("negative") << -1;
    }

    void dualButtonSchemeOutOfRange() {
        QFETCH(int, code);
        QCOMPARE(KaDualButtonCode::colorScheme(code), KaDualButtonCode::NoColorScheme);
    }

    // KaColorTokenUtils: the colour tokens and their names.
    // Values from outside the table (a cast int, stale settings) name nothing.
    void stdAndQtAgree() {
        QList<int> values{INT_MIN, INT_MAX};
        for (int value = -2; value <= Karvox::TokenCount + 1; ++value)
            values << value;
        for (int value : values) {
            const auto token = static_cast<Karvox::Token>(value);
            const std::string stdName = KaColorTokenUtils::tokenToStdString(token);
            const QString name = KaColorTokenUtils::tokenToString(token);
            QCOMPARE(name, QString::fromStdString(stdName));
            const bool inRange = value >= 0 && value < Karvox::TokenCount;
            QVERIFY2(stdName.empty() != inRange, QByteArray::number(value).constData());
        }
    }

    void strictlyAscending() {
        for (int value = 1; value < Karvox::TokenCount; ++value) {
            const std::string previous =
                KaColorTokenUtils::tokenToStdString(static_cast<Karvox::Token>(value - 1));
            const std::string current =
                KaColorTokenUtils::tokenToStdString(static_cast<Karvox::Token>(value));
            // std::string compares as unsigned bytes: '-' < 'A'..'Z' < 'a'..'z'.
            QVERIFY2(previous < current, (previous + " >= " + current).c_str());
        }
    }

    // The generated table must follow the list it is generated from.
    void matchesTokenList() {
        QFile list(QStringLiteral(KARVEX_TOKEN_LIST));
        QVERIFY2(list.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(list.fileName()));
        int value = 0;
        while (!list.atEnd()) {
            const QByteArray line = list.readLine().trimmed();
            if (line.isEmpty() || line.startsWith('#'))
                continue;
            QCOMPARE(QByteArray::fromStdString(
                         KaColorTokenUtils::tokenToStdString(static_cast<Karvox::Token>(value))),
                     line);
            ++value;
        }
        QCOMPARE(value, Karvox::TokenCount);
    }

    // KaSudoTranslator (without a GUI application: a language change there would ask
    // every translator).
    void doubles_data() {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("expected");
        QTest::newRow("two characters") << QByteArray("OK") << QStringLiteral("OK OK");
        QTest::newRow("empty") << QByteArray("") << QStringLiteral(" ");
        QTest::newRow("placeholders")
            << QByteArray("%1, %2 of %3") << QStringLiteral("%1, %2 of %3 %1, %2 of %3");
        QTest::newRow("UTF-8") << QByteArray("Gr\xc3\xb6\xc3\x9f"
                                             "e")
                               << QStringLiteral("Gr\u00f6\u00dfe Gr\u00f6\u00dfe");
    }

    void doubles() {
        QFETCH(QByteArray, source);
        QFETCH(QString, expected);
        KaSudoTranslator translator;
        const QString result = translator.translate("Context", source.constData());
        QCOMPARE(result, expected);
        QCOMPARE(result.size(), 2 * QString::fromUtf8(source).size() + 1);
        // Context, disambiguation and count change nothing.
        QCOMPARE(translator.translate("Other", source.constData(), "menu", 3), expected);
    }

    void nullSourceText() {
        KaSudoTranslator translator;
        const QString result = translator.translate("Context", nullptr);
        QVERIFY(!result.isNull());
        QCOMPARE(result, QStringLiteral(" "));
    }

    void installedAnswersLookups() {
        KaSudoTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        {
            const auto remove = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
            QCOMPARE(QCoreApplication::translate("KaMenu", "Close"), QStringLiteral("Close Close"));
            // Qt fills %n after the lookup, in both copies.
            QCOMPARE(QCoreApplication::translate("KaMenu", "%n items", nullptr, 3),
                     QStringLiteral("3 items 3 items"));
        }
        QCOMPARE(QCoreApplication::translate("KaMenu", "Close"), QStringLiteral("Close"));
    }

    void shadowsEarlierTranslators() {
        CountingTranslator earlier;
        KaSudoTranslator translator;
        QCoreApplication::installTranslator(&earlier);
        QCoreApplication::installTranslator(&translator);
        const auto remove = qScopeGuard([&] {
            QCoreApplication::removeTranslator(&translator);
            QCoreApplication::removeTranslator(&earlier);
        });

        QCOMPARE(QCoreApplication::translate("KaMenu", "Open"), QStringLiteral("Open Open"));
        QCOMPARE(earlier.asked, 0);
    }
};

QTEST_GUILESS_MAIN(tst_KaEnums)
#include "tst_kaenums.moc"
