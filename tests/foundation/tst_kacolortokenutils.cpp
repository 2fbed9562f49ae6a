#include "kacolortokenutils.h"

#include <QFile>
#include <QTest>

#include <climits>
#include <string>

class tst_KaColorTokenUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
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
};

QTEST_GUILESS_MAIN(tst_KaColorTokenUtils)
#include "tst_kacolortokenutils.moc"
