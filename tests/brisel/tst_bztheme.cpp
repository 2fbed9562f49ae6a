#include "bztheme.h"

#include <QTest>

class TestBzTheme : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void colourForms() {
        const QByteArray json = R"({"name": "t", "dark": true, "colorSets": {
            "one": "#102030",
            "six": ["#010203", "#020304", "#030405", "#04050680", "#050607", "transparent"],
            "obj": {"normal": "#abc", "pressed": "#ff000040"}
        }})";
        QList<BzTheme::Problem> problems;
        const auto theme = BzTheme::fromJson(json, &problems);
        QVERIFY(theme);
        QVERIFY(problems.isEmpty());
        QCOMPARE(theme->name(), QStringLiteral("t"));
        QVERIFY(theme->isDark());
        QVERIFY(!theme->isHighContrast());

        const BzColorSet one = theme->colorSet(QStringLiteral("one"));
        for (int s = 0; s < BzColorSet::StateCount; ++s)
            QCOMPARE(one.color(BzColorSet::State(s)), QColor(0x10, 0x20, 0x30));

        const BzColorSet six = theme->colorSet(QStringLiteral("six"));
        QCOMPARE(six.hovered(), QColor(2, 3, 4));
        QCOMPARE(six.disabled(), QColor(4, 5, 6, 0x80)); // alpha is written last
        QCOMPARE(six.checked().alpha(), 0);

        const BzColorSet obj = theme->colorSet(QStringLiteral("obj"));
        QCOMPARE(obj.normal(), QColor(0xaa, 0xbb, 0xcc));
        QCOMPARE(obj.hovered(), obj.normal()); // missing states take normal
        QCOMPARE(obj.pressed(), QColor(255, 0, 0, 0x40));
        QVERIFY(!theme->colorSet(QStringLiteral("absent")).isValid());
    }

    void parseColor_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("short") << "#fff" << QColor(255, 255, 255);
        QTest::newRow("rgb") << " #336699 " << QColor(0x33, 0x66, 0x99);
        QTest::newRow("alpha last") << "#33669911" << QColor(0x33, 0x66, 0x99, 0x11);
        QTest::newRow("keyword") << "navy" << QColor(0, 0, 128);
        QTest::newRow("transparent") << "Transparent" << QColor(0, 0, 0, 0);
        QTest::newRow("five digits") << "#12345" << QColor();
        QTest::newRow("not hex") << "#gg0000" << QColor();
        QTest::newRow("plus sign") << "#+1234567" << QColor();
        QTest::newRow("inner blank") << "# 1234567" << QColor();
        QTest::newRow("blank in keyword") << "na vy" << QColor();
        QTest::newRow("garbage") << "blurple" << QColor();
        QTest::newRow("empty") << "" << QColor();
    }

    void parseColor() {
        QFETCH(QString, text);
        QFETCH(QColor, expected);
        const QColor c = BzTheme::parseColor(text);
        QCOMPARE(c.isValid(), expected.isValid());
        if (expected.isValid())
            QCOMPARE(c.rgba(), expected.rgba());
    }

    void faults_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("key");
        QTest::newRow("syntax") << QByteArray(
                                       "{\"name\": \"t\",\n  \"colorSets\": {\n    \"a\": \"#fff\",,\n  }\n}")
                                << int(BzTheme::Problem::Syntax) << 3 << 18 << QString();
        QTest::newRow("bad colour") << QByteArray(
                                           "{\"name\": \"t\", \"colorSets\": {\n\n  \"bad\": \"#12\"}}")
                                    << int(BzTheme::Problem::BadColor) << 3 << 3 << "bad";
        QTest::newRow("0x colour") << QByteArray("{\"name\": \"t\", \"colorSets\": {\"x\": \"#0x123456\"}}")
                                   << int(BzTheme::Problem::BadColor) << 1 << 29 << "x";
        QTest::newRow("short array") << QByteArray("{\"name\": \"t\", \"colorSets\": {\"arr\": [\"#fff\"]}}")
                                     << int(BzTheme::Problem::Structure) << 1 << 29 << "arr";
        QTest::newRow("unknown state")
            << QByteArray("{\"name\": \"t\", \"colorSets\": {\"o\": {\"normal\": \"#fff\", "
                          "\"hover\": \"#000\"}}}")
            << int(BzTheme::Problem::Structure) << 1 << 29 << "o";
        QTest::newRow("no colorSets")
            << QByteArray("{\"name\": \"t\"}") << int(BzTheme::Problem::Structure) << 0 << 0 << "colorSets";
        QTest::newRow("not an object")
            << QByteArray("[1, 2]") << int(BzTheme::Problem::Structure) << 0 << 0 << QString();
        QTest::newRow("number colour") << QByteArray("{\"name\": \"t\", \"colorSets\": {\"n\": 12}}")
                                       << int(BzTheme::Problem::Structure) << 1 << 29 << "n";
    }

    void faults() {
        QFETCH(QByteArray, json);
        QFETCH(int, kind);
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(QString, key);
        QList<BzTheme::Problem> problems;
        QVERIFY(!BzTheme::fromJson(json, &problems));
        QVERIFY(!problems.isEmpty());
        const BzTheme::Problem& p = problems.first();
        QCOMPARE(int(p.kind), kind);
        QCOMPARE(p.key, key);
        QCOMPARE(p.line, line);
        QCOMPARE(p.column, column);
        QVERIFY(!p.message.isEmpty());
    }

    void roundTrip() {
        BzTheme theme;
        theme.setName(QStringLiteral("rt"));
        theme.setBaseName(QStringLiteral("dark"));
        theme.setHighContrast(true);
        theme.insert(BzColorSet(QStringLiteral("a"), QColor(1, 2, 3), QColor(4, 5, 6, 7), QColor(0, 0, 0, 0),
                                QColor(255, 255, 255), QColor(9, 9, 9, 200), QColor(10, 11, 12)));
        QTest::ignoreMessage(QtWarningMsg, "BzTheme::insert: a colour set needs a name");
        theme.insert(BzColorSet());
        const auto back = BzTheme::fromJson(theme.toJson());
        QVERIFY(back);
        QCOMPARE(back->name(), theme.name());
        QCOMPARE(back->baseName(), theme.baseName());
        QVERIFY(back->isHighContrast());
        QCOMPARE(back->names(), QStringList{QStringLiteral("a")});
        QCOMPARE(back->colorSet(QStringLiteral("a")), theme.colorSet(QStringLiteral("a")));
    }
};

QTEST_APPLESS_MAIN(TestBzTheme)
#include "tst_bztheme.moc"
