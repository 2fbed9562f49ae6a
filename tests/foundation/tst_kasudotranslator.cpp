#include "kasudotranslator.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QTest>

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

class tst_KaSudoTranslator : public QObject {
    Q_OBJECT
private Q_SLOTS:
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

QTEST_GUILESS_MAIN(tst_KaSudoTranslator)
#include "tst_kasudotranslator.moc"
