#include "kaemojiutils.h"

#include <QRegularExpression>
#include <QTest>

namespace {

// "key@start+length" per cluster, joined by spaces.
QString describe(const QList<KaEmojiUtils::Cluster>& clusters) {
    QStringList parts;
    for (const KaEmojiUtils::Cluster& c : clusters)
        parts << QStringLiteral("%1@%2+%3").arg(c.key).arg(c.start).arg(c.length);
    return parts.join(QLatin1Char(' '));
}

QString emojiPath(const char* key) {
    return QStringLiteral(":/emojis/%1.svg").arg(QLatin1String(key));
}

} // namespace

class tst_KaEmojiUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void clusters_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << QStringLiteral("Meeting room 4, floor #2 (a*b)") << QString();
        QTest::newRow("punctuation only")
            << QStringLiteral("\u201cquoted\u201d \u2013 text\u2026") << QString();
        QTest::newRow("one emoji") << QStringLiteral("a\U0001F44Db") << QStringLiteral("1f44d@1+2");
        QTest::newRow("skin tone") << QStringLiteral("\U0001F44D\U0001F3FD!")
                                   << QStringLiteral("1f44d-1f3fd@0+4");
        QTest::newRow("flag") << QStringLiteral("\U0001F1EF\U0001F1F5") << QStringLiteral("1f1ef-1f1f5@0+4");
        QTest::newRow("two flags") << QStringLiteral("\U0001F1EF\U0001F1F5\U0001F1EF\U0001F1F5")
                                   << QStringLiteral("1f1ef-1f1f5@0+4 1f1ef-1f1f5@4+4");
        QTest::newRow("lone regional indicator")
            << QStringLiteral("\U0001F1EFx") << QStringLiteral("1f1ef@0+2");
        QTest::newRow("zero-width joiner family")
            << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467")
            << QStringLiteral("1f468-200d-1f469-200d-1f467@0+8");
        QTest::newRow("joined with selectors") << QStringLiteral("x\U0001F3F3\uFE0F\u200D\U0001F308")
                                               << QStringLiteral("1f3f3-fe0f-200d-1f308@1+6");
        QTest::newRow("joiner before plain text")
            << QStringLiteral("\U0001F468\u200Dx") << QStringLiteral("1f468@0+2");
        QTest::newRow("keycap") << QStringLiteral("1\uFE0F\u20E3 2") << QStringLiteral("0031-fe0f-20e3@0+3");
        QTest::newRow("heart with selector")
            << QStringLiteral("\u2764\uFE0F") << QStringLiteral("2764-fe0f@0+2");
        QTest::newRow("tag sequence") << QStringLiteral("\U0001F3F4\U000E0067\U000E0062\U000E007F")
                                      << QStringLiteral("1f3f4-e0067-e0062-e007f@0+8");
    }

    void clusters() {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const QList<KaEmojiUtils::Cluster> found = KaEmojiUtils::clusters(text);
        QCOMPARE(describe(found), expected);
        // The quick test may say "maybe" for plain text, never "no" for emoji.
        if (!found.isEmpty())
            QVERIFY(KaEmojiUtils::mayContainEmoji(text));
    }

    void imagePath_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("path");
        QTest::newRow("single") << QStringLiteral("1f44d") << emojiPath("1f44d");
        QTest::newRow("sequence") << QStringLiteral("1f44d-1f3fd") << emojiPath("1f44d-1f3fd");
        QTest::newRow("selector dropped") << QStringLiteral("2764-fe0f") << emojiPath("2764");
        QTest::newRow("keycap selector dropped")
            << QStringLiteral("0031-fe0f-20e3") << emojiPath("0031-20e3");
        QTest::newRow("no image") << QStringLiteral("1f600") << QString();
        QTest::newRow("no image for the sequence") << QStringLiteral("1f44d-1f3ff") << QString();
    }

    void imagePath() {
        QFETCH(QString, key);
        QFETCH(QString, path);
        QCOMPARE(KaEmojiUtils::imagePath(key), path);
        if (!path.isEmpty())
            QVERIFY(KaEmojiUtils::isImageValid(path));
    }

    void corruptImage() {
        const QString path = KaEmojiUtils::imagePath(QStringLiteral("1f9ea"));
        QVERIFY(!path.isEmpty());
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("KaEmojiUtils: cannot read.*1f9ea")));
        QVERIFY(!KaEmojiUtils::isImageValid(path));
        // Asked again: no second warning (an unexpected one would fail here).
        QTest::failOnWarning(QRegularExpression(QStringLiteral("KaEmojiUtils")));
        QVERIFY(!KaEmojiUtils::isImageValid(path));
        const QImage empty = KaEmojiUtils::image(path, QSize(16, 16), 1.0).toImage();
        QCOMPARE(empty.size(), QSize(16, 16));
        QCOMPARE(empty.pixelColor(8, 8).alpha(), 0);
    }
};

QTEST_MAIN(tst_KaEmojiUtils)
#include "tst_kaemojiutils.moc"
