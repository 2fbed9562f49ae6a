#include "bzthememanager.h"
#include "bzthemeutils.h"

#include <QApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// A host theme with one colour of its own; the rest comes from "dark".
const QByteArray kOceanTheme = R"({"name": "ocean", "base": "dark", "dark": true,
    "colorSets": {"label-primary-text": "#00ffee", "my-own-set": "#010101"}})";

class TestBzThemeManager : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    int m_files = 0;

    QString writeFile(const QByteArray& content) {
        QFile file(m_dir.filePath(QStringLiteral("theme%1.json").arg(++m_files)));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void builtInsAreComplete_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("highContrast");
        QTest::newRow("light") << "light" << false << false;
        QTest::newRow("dark") << "dark" << true << false;
        QTest::newRow("highContrast") << "highContrast" << true << true;
    }
    void builtInsAreComplete() {
        QFETCH(QString, name);
        QFETCH(bool, dark);
        QFETCH(bool, highContrast);
        BzThemeManager* m = BzThemeManager::instance();
        QVERIFY(m->hasTheme(name));
        const BzTheme theme = m->theme(name);
        QCOMPARE(theme.isDark(), dark);
        QCOMPARE(theme.isHighContrast(), highContrast);
        // Every name the components use, plus the few sets outside the token table.
        QVERIFY(m->knownColorSetNames().size() >= 822);
        for (const char* extra : {"transparent", "kv-orbis-combobox-background", "welcomeCard-titleText"})
            QVERIFY2(theme.contains(QLatin1String(extra)), extra);
        QCOMPARE(theme.names(), m->knownColorSetNames());
        QCOMPARE(theme.colorSet(QStringLiteral("transparent")).normal().alpha(), 0);
    }

    void switching() {
        BzThemeManager* m = BzThemeManager::instance();
        QSignalSpy spy(m, &BzThemeManager::currentThemeChanged);
        const quint64 before = m->generation();
        QVERIFY(m->setCurrentTheme(QStringLiteral("dark")));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("dark"));
        QVERIFY(m->generation() > before);
        QCOMPARE(BzThemeUtils::getColorSet("label-primary-text"),
                 m->theme(QStringLiteral("dark")).colorSet(QStringLiteral("label-primary-text")));
        // The same theme again: nothing moves.
        const quint64 same = m->generation();
        QVERIFY(m->setCurrentTheme(QStringLiteral("dark")));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(m->generation(), same);
        // An unknown one is refused.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown theme \"sepia\"")));
        QVERIFY(!m->setCurrentTheme(QStringLiteral("sepia")));
        QCOMPARE(m->currentThemeName(), QStringLiteral("dark"));
        QCOMPARE(spy.count(), 1);
    }

    void malformedFileChangesNothing_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("position");
        QTest::newRow("syntax") << QByteArray("{\"name\": \"light\",\n \"colorSets\": {\"a\": \"#fff\"\n}")
                                << ":3:";
        QTest::newRow("bad colour")
            << QByteArray("{\"name\": \"light\", \"colorSets\": {\n\"label-primary-text\": \"#zzzzzz\"}}")
            << ":2:1:";
    }
    void malformedFileChangesNothing() {
        QFETCH(QByteArray, content);
        QFETCH(QString, position);
        BzThemeManager* m = BzThemeManager::instance();
        const BzColorSet before =
            m->theme(QStringLiteral("light")).colorSet(QStringLiteral("label-primary-text"));
        const quint64 generation = m->generation();
        QSignalSpy registered(m, &BzThemeManager::themeRegistered);
        const QString path = writeFile(content);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path + position)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("theme not loaded")));
        QCOMPARE(m->loadThemeFile(path), QString());
        QCOMPARE(registered.count(), 0);
        QCOMPARE(m->generation(), generation);
        QCOMPARE(m->theme(QStringLiteral("light")).colorSet(QStringLiteral("label-primary-text")), before);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot read theme file")));
        QCOMPARE(m->loadThemeFile(m_dir.filePath(QStringLiteral("missing.json"))), QString());
    }

    void partialHostThemeFallsBack() {
        BzThemeManager* m = BzThemeManager::instance();
        const QString path = writeFile(kOceanTheme);
        // One warning naming what was taken from the base.
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral(
                                 "theme \"ocean\" lacks \\d+ colour set\\(s\\), taken from \"dark\": "
                                 "alertbadge-announcement-background, ")));
        QCOMPARE(m->loadThemeFile(path), QStringLiteral("ocean"));
        const BzTheme ocean = m->theme(QStringLiteral("ocean"));
        QCOMPARE(ocean.colorSet(QStringLiteral("button-primary-background")),
                 m->theme(QStringLiteral("dark")).colorSet(QStringLiteral("button-primary-background")));
        QVERIFY(ocean.contains(QStringLiteral("my-own-set")));
        QVERIFY(m->setCurrentTheme(QStringLiteral("ocean")));
        QCOMPARE(BzThemeUtils::getColorSet("label-primary-text").normal(), QColor(0, 255, 0xee));
    }

    void hostThemeReplacesBuiltIn() {
        BzThemeManager* m = BzThemeManager::instance();
        const BzTheme original = m->theme(QStringLiteral("light"));
        QSignalSpy registered(m, &BzThemeManager::themeRegistered);
        // Loading the current theme's replacement takes effect at once.
        BzTheme replacement = original;
        replacement.insert(BzColorSet(QStringLiteral("label-primary-text"), QColor(1, 2, 3)));
        QCOMPARE(m->loadThemeFile(writeFile(replacement.toJson())), QStringLiteral("light"));
        QCOMPARE(registered.count(), 1);
        QCOMPARE(BzThemeUtils::getColorSet("label-primary-text").normal(), QColor(1, 2, 3));
        m->registerTheme(original, QStringLiteral("restore"));
        QCOMPARE(BzThemeUtils::getColorSet("label-primary-text"),
                 original.colorSet(QStringLiteral("label-primary-text")));
    }

    void alternateFollowsCurrent() {
        BzThemeManager* m = BzThemeManager::instance();
        QCOMPARE(m->themeFor(BzThemeUtils::Alternate).name(), QStringLiteral("dark"));
        QCOMPARE(m->themeFor(BzThemeUtils::Global).name(), QStringLiteral("light"));
        m->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(m->themeFor(BzThemeUtils::Alternate).name(), QStringLiteral("light"));
        QCOMPARE(m->themeFor(BzThemeUtils::Light).name(), QStringLiteral("light"));
        m->setCurrentTheme(QStringLiteral("highContrast"));
        QCOMPARE(m->themeFor(BzThemeUtils::Alternate).name(), QStringLiteral("highContrast"));
        QVERIFY(BzThemeUtils::isHighContrastEnabled());
    }
};

QTEST_MAIN(TestBzThemeManager)
#include "tst_bzthememanager.moc"
