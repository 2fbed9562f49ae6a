#include "kacolortokenutils.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <climits>
#include <string>

class tst_KaColorTokenUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void names_data();
    void names();
    void stdAndQtAgree();
    void strictlyAscending();
    void nameForm();
    void identifiers();
    void matchesTokenList();
};

void tst_KaColorTokenUtils::names_data() {
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");

    QTest::newRow("first") << 0 << QStringLiteral("alertbadge-announcement-background");
    QTest::newRow("last") << 821 << QStringLiteral("welcomeCard-titleText");
    QTest::newRow("first button") << 122 << QStringLiteral("button-accent-fill-background");
    QTest::newRow("button-primary-border") << 191 << QStringLiteral("button-primary-border");
    QTest::newRow("last button") << 198 << QStringLiteral("button-secondary-text");
    QTest::newRow("single-member family") << 220 << QStringLiteral("cancelicon-default-icon");
    QTest::newRow("popover") << 534 << QStringLiteral("popover-primary-background");
    QTest::newRow("newFeature-tag-border") << 500 << QStringLiteral("newFeature-tag-border");
    QTest::newRow("past the end") << 822 << QString();
    QTest::newRow("negative") << -1 << QString();
    QTest::newRow("far out") << INT_MAX << QString();
    QTest::newRow("far below") << INT_MIN << QString();
}

void tst_KaColorTokenUtils::names() {
    QFETCH(int, value);
    QFETCH(QString, name);
    const auto token = static_cast<Karvox::Token>(value);
    QCOMPARE(KaColorTokenUtils::tokenToString(token), name);
    QCOMPARE(KaColorTokenUtils::tokenToStdString(token), name.toStdString());
}

void tst_KaColorTokenUtils::stdAndQtAgree() {
    QCOMPARE(Karvox::TokenCount, 822);
    for (int value = -2; value <= Karvox::TokenCount + 1; ++value) {
        const auto token = static_cast<Karvox::Token>(value);
        const std::string stdName = KaColorTokenUtils::tokenToStdString(token);
        const QString name = KaColorTokenUtils::tokenToString(token);
        QCOMPARE(name, QString::fromStdString(stdName));
        const bool inRange = value >= 0 && value < Karvox::TokenCount;
        QVERIFY2(stdName.empty() != inRange, QByteArray::number(value).constData());
    }
}

void tst_KaColorTokenUtils::strictlyAscending() {
    for (int value = 1; value < Karvox::TokenCount; ++value) {
        const std::string previous =
            KaColorTokenUtils::tokenToStdString(static_cast<Karvox::Token>(value - 1));
        const std::string current = KaColorTokenUtils::tokenToStdString(static_cast<Karvox::Token>(value));
        // std::string compares as unsigned bytes: '-' < 'A'..'Z' < 'a'..'z'.
        QVERIFY2(previous < current, (previous + " >= " + current).c_str());
    }
}

// A component word, then one or more "-" segments (camel case and digits allowed).
void tst_KaColorTokenUtils::nameForm() {
    const QRegularExpression form(QStringLiteral("^[a-z][A-Za-z]*(-[A-Za-z0-9]+)+$"));
    for (int value = 0; value < Karvox::TokenCount; ++value) {
        const QString name = KaColorTokenUtils::tokenToString(static_cast<Karvox::Token>(value));
        QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
    }
}

// Member names are the token names with "-" turned into "_".
void tst_KaColorTokenUtils::identifiers() {
    using namespace KaColorTokenUtils;
    QCOMPARE(tokenToString(Karvox::alertbadge_announcement_background),
             QStringLiteral("alertbadge-announcement-background"));
    QCOMPARE(tokenToString(Karvox::button_primary_background), QStringLiteral("button-primary-background"));
    QCOMPARE(tokenToString(Karvox::button_join_animated_gradient_background_normal_1),
             QStringLiteral("button-join-animated-gradient-background-normal-1"));
    QCOMPARE(tokenToString(Karvox::videoSupport_videoNameLabels_videoOff_iconMute),
             QStringLiteral("videoSupport-videoNameLabels-videoOff-iconMute"));
    QCOMPARE(tokenToString(Karvox::newFeature_tag_border), QStringLiteral("newFeature-tag-border"));
    QCOMPARE(int(Karvox::welcomeCard_titleText), 821);
}

// The generated table must follow the list it is generated from.
void tst_KaColorTokenUtils::matchesTokenList() {
    QFile list(QStringLiteral(KARVEX_TOKEN_LIST));
    QVERIFY2(list.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(list.fileName()));
    int value = 0;
    while (!list.atEnd()) {
        const QByteArray line = list.readLine().trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        QCOMPARE(
            QByteArray::fromStdString(KaColorTokenUtils::tokenToStdString(static_cast<Karvox::Token>(value))),
            line);
        ++value;
    }
    QCOMPARE(value, Karvox::TokenCount);
}

QTEST_GUILESS_MAIN(tst_KaColorTokenUtils)
#include "tst_kacolortokenutils.moc"
