#include "bztheme.h"
#include "bzthemeaudit.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "bzwidget.h"

#include <QApplication>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// A host theme with one colour of its own; the rest comes from "dark".
const QByteArray kOceanTheme = R"({"name": "ocean", "base": "dark", "dark": true,
    "colorSets": {"label-primary-text": "#00ffee", "my-own-set": "#010101"}})";

namespace {

// Counts style-sheet applications (each one sends StyleChange) and theme slots.
class Probe : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    int styleChanges = 0;
    int themeSlots = 0;
public Q_SLOTS:
    void onThemeChanged() { ++themeSlots; }

protected:
    void changeEvent(QEvent* e) override {
        if (e->type() == QEvent::StyleChange)
            ++styleChanges;
        QWidget::changeEvent(e);
    }
};

QString css(const QColor& c) {
    return BzThemeUtils::colorToCss(c);
}

} // namespace

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

    // BzTheme: one theme, read from its file.
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

    // Text and icon colours must stay readable over their family's background in
    // every built-in theme: 4.5:1 in light and dark, 7:1 in high contrast.
    void pairingRule_data() {
        QTest::addColumn<QString>("foreground");
        QTest::addColumn<QString>("background"); // empty: not a checked foreground
        QTest::newRow("same variant")
            << QStringLiteral("button-primary-text") << QStringLiteral("button-primary-background");
        QTest::newRow("deeper variant") << QStringLiteral("call-history-item-missed-header-text")
                                        << QStringLiteral("call-history-item-background");
        QTest::newRow("shared suffix wins the tie") << QStringLiteral("avatar-color-avatar-text-error")
                                                    << QStringLiteral("avatar-color-avatar-background-error");
        QTest::newRow("icon role") << QStringLiteral("avatar-presence-icon-busy")
                                   << QStringLiteral("avatar-presence-icon-background");
        QTest::newRow("camel-case role")
            << QStringLiteral("welcomeCard-titleText") << QStringLiteral("welcomeCard-background");
        QTest::newRow("family without background")
            << QStringLiteral("label-primary-text") << QStringLiteral("");
        QTest::newRow("background is not foreground")
            << QStringLiteral("shortcutinput-active-available-textBackground") << QStringLiteral("");
        QTest::newRow("border is not foreground")
            << QStringLiteral("button-primary-border") << QStringLiteral("");
    }

    void pairingRule() {
        QFETCH(QString, foreground);
        QFETCH(QString, background);
        const QList<BzThemeAudit::ContrastPair> pairs =
            BzThemeAudit::contrastPairs(BzThemeManager::instance()->knownColorSetNames());
        const auto it = std::find_if(pairs.cbegin(), pairs.cend(), [&](const BzThemeAudit::ContrastPair& p) {
            return p.foreground == foreground;
        });
        if (background.isEmpty()) {
            QVERIFY2(it == pairs.cend(), qPrintable(foreground));
            return;
        }
        QVERIFY2(it != pairs.cend(), qPrintable(foreground));
        QCOMPARE(it->background, background);
    }

    void ratioMath() {
        QCOMPARE(BzThemeAudit::contrastRatio(Qt::black, Qt::white), 21.0);
        QCOMPARE(BzThemeAudit::contrastRatio(Qt::white, Qt::white), 1.0);
        // The WCAG reference grey #767676 sits just above 4.5:1 on white.
        const double grey = BzThemeAudit::contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white);
        QVERIFY(grey > 4.5 && grey < 4.6);
        QCOMPARE(BzThemeAudit::composeOver(QColor(0, 0, 0, 0), QColor(10, 20, 30)), QColor(10, 20, 30));
        QCOMPARE(BzThemeAudit::composeOver(QColor(255, 255, 255, 255), QColor(10, 20, 30)),
                 QColor(255, 255, 255));
    }

    void builtInThemes_data() {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<double>("required");
        QTest::newRow("light") << QStringLiteral("light") << 4.5;
        QTest::newRow("dark") << QStringLiteral("dark") << 4.5;
        QTest::newRow("highContrast") << QStringLiteral("highContrast") << 7.0;
    }

    void builtInThemes() {
        QFETCH(QString, theme);
        QFETCH(double, required);
        BzThemeManager* m = BzThemeManager::instance();
        const BzTheme t = m->theme(theme);
        QCOMPARE(BzThemeAudit::requiredRatio(t), required);
        const QList<BzThemeAudit::ContrastPair> pairs = BzThemeAudit::contrastPairs(m->knownColorSetNames());
        QVERIFY(pairs.size() > 200);
        const QList<BzThemeAudit::ContrastPair> measured = BzThemeAudit::measure(t, pairs);
        QCOMPARE(measured.size(), pairs.size());
        const BzThemeAudit::ContrastPair& worst = measured.first();
        qInfo("%s: %d pairs, worst %s over %s at %.2f:1", qPrintable(theme), int(measured.size()),
              qPrintable(worst.foreground), qPrintable(worst.background), worst.ratio);
        for (const BzThemeAudit::ContrastPair& p : measured) {
            if (p.ratio < required)
                qWarning("%s over %s: %.2f:1", qPrintable(p.foreground), qPrintable(p.background), p.ratio);
        }
        QVERIFY2(worst.ratio >= required, qPrintable(worst.foreground));
    }

    void auditReportsFaults() {
        const QStringList known{QStringLiteral("tag-x-background"), QStringLiteral("tag-x-text"),
                                QStringLiteral("tag-y-border")};
        const QByteArray json = R"({"name": "t", "colorSets": {
            "tag-x-background": "#ffffff", "tag-x-text": "#eeeeee", "stray-name": "#000"}})";
        const BzThemeAudit::Report report = BzThemeAudit::auditJson(json, known);
        QVERIFY(report.parsed);
        QCOMPARE(report.missing, QStringList{QStringLiteral("tag-y-border")});
        QCOMPARE(report.unknown, QStringList{QStringLiteral("stray-name")});
        QCOMPARE(report.lowContrast.size(), 1);
        QCOMPARE(report.lowContrast.first().foreground, QStringLiteral("tag-x-text"));
        QVERIFY(report.hasErrors());

        const BzThemeAudit::Report broken =
            BzThemeAudit::auditJson("{\"name\": \"t\", \"colorSets\": {\"a\": \"#1\"}}", known);
        QVERIFY(!broken.parsed);
        QCOMPARE(broken.malformed.size(), 1);
        QVERIFY(broken.hasErrors());
    }

    // BzThemeUtils: colour sets, templates and the refresh of widgets.
    void themeTypeStrings_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("warns");
        QTest::newRow("global") << QStringLiteral("global") << int(BzThemeUtils::Global) << false;
        QTest::newRow("dark") << QStringLiteral("dark") << int(BzThemeUtils::Dark) << false;
        QTest::newRow("case") << QStringLiteral("HighContrast") << int(BzThemeUtils::HighContrast) << false;
        QTest::newRow("number") << QStringLiteral("2") << int(BzThemeUtils::Alternate) << false;
        QTest::newRow("out of range") << QStringLiteral("9") << int(BzThemeUtils::Global) << true;
        QTest::newRow("unknown") << QStringLiteral("purple") << int(BzThemeUtils::Global) << true;
    }

    void themeTypeStrings() {
        QFETCH(QString, text);
        QFETCH(int, type);
        QFETCH(bool, warns);
        if (warns)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown theme type")));
        QCOMPARE(int(BzThemeUtils::stringToThemeType(text)), type);
        if (!warns)
            QCOMPARE(BzThemeUtils::stringToThemeType(
                         BzThemeUtils::themeTypeToString(BzThemeUtils::AppThemeType(type))),
                     BzThemeUtils::AppThemeType(type));
    }

    void colorToCss_data() {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("expected");
        QTest::newRow("opaque") << QColor(1, 2, 3) << QStringLiteral("rgba(1,2,3,1.0)");
        QTest::newRow("transparent") << QColor(9, 8, 7, 0) << QStringLiteral("rgba(9,8,7,0.0)");
        QTest::newRow("half") << QColor(255, 0, 0, 128) << QStringLiteral("rgba(255,0,0,0.50)");
        QTest::newRow("faint") << QColor(0, 0, 0, 1) << QStringLiteral("rgba(0,0,0,0.00)");
    }

    void colorToCss() {
        QFETCH(QColor, color);
        QFETCH(QString, expected);
        QCOMPARE(BzThemeUtils::colorToCss(color), expected);
    }

    void resolveTemplate() {
        const BzColorSet set = BzThemeUtils::getColorSet("button-primary-background");
        const QString out = BzThemeUtils::resolveTemplate(QStringLiteral(
            "QPushButton { background: $(button-primary-background); } :hover { background: $( "
            "button-primary-background.hovered ); }"));
        QCOMPARE(out, QStringLiteral("QPushButton { background: ") + css(set.normal()) +
                          QStringLiteral("; } :hover { background: ") + css(set.hovered()) +
                          QStringLiteral("; }"));
        // Other theme types resolve against their own theme.
        const BzColorSet dark = BzThemeUtils::getColorSet("button-primary-background", BzThemeUtils::Dark);
        QCOMPARE(BzThemeUtils::resolveTemplate(QStringLiteral("$(button-primary-background.pressed)"),
                                               BzThemeUtils::Dark),
                 css(dark.pressed()));
    }

    void unknownNameWarnsOnce() {
        QTest::ignoreMessage(QtWarningMsg,
                             "BzThemeUtils: unknown colour set \"no-such-set\" resolves to transparent");
        const BzColorSet set = BzThemeUtils::getColorSet("no-such-set");
        QCOMPARE(set.name(), QStringLiteral("no-such-set"));
        QCOMPARE(set.normal().alpha(), 0);
        QCOMPARE(set.hovered().alpha(), 0);
        // The second lookup, and a template naming it, stay quiet.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QCOMPARE(BzThemeUtils::getColorSet("no-such-set").normal().alpha(), 0);
        QCOMPARE(BzThemeUtils::resolveTemplate(QStringLiteral("color: $(no-such-set);")),
                 QStringLiteral("color: rgba(0,0,0,0.0);"));
    }

    void malformedTemplate_data() {
        QTest::addColumn<QString>("tmpl");
        QTest::addColumn<QString>("expected");
        QTest::newRow("unclosed") << QStringLiteral("color: $(label-primary-text;")
                                  << QStringLiteral("color: $(label-primary-text;");
        QTest::newRow("empty") << QStringLiteral("a: $(); b") << QStringLiteral("a: $(); b");
        QTest::newRow("bad state") << QStringLiteral("color: $(transparent.glowing);")
                                   << QStringLiteral("color: rgba(0,0,0,0.0);");
    }

    void malformedTemplate() {
        QFETCH(QString, tmpl);
        QFETCH(QString, expected);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("malformed colour reference")));
        QCOMPARE(BzThemeUtils::resolveTemplate(tmpl), expected);
    }

    void recordRoundTrip_data() {
        QTest::addColumn<BzCSSData>("record");
        BzCSSData plain;
        plain.textColorSet = QStringLiteral("label-primary-text");
        QTest::newRow("text only") << plain;
        BzCSSData framed;
        framed.backgroundColorSet = QStringLiteral("button-secondary-background");
        framed.borderColorSet = QStringLiteral("button-secondary-border");
        framed.textColorSet = QStringLiteral("button-secondary-text");
        framed.setBorders(true);
        framed.borderRadius = -1;
        framed.borderWidth = 2;
        QTest::newRow("framed pill") << framed;
        BzCSSData odd = framed;
        odd.switches = {{1, 8, 0, 0, 0, 1}}; // carried through as given
        odd.extraCSS = QStringLiteral("QLabel { padding: 2px; color: $(label-secondary-text); }");
        QTest::newRow("odd switches and extra rules") << odd;
        BzCSSData tipOnly;
        tipOnly.extraCSS = QStringLiteral("QToolTip { color: $(label-secondary-text); }");
        QTest::newRow("extra rules name a set the record does not") << tipOnly;
    }

    void recordRoundTrip() {
        QFETCH(BzCSSData, record);
        QWidget w;
        const QString text = BzThemeUtils::convertToWCSS(record);
        const BzCSSData back = BzThemeUtils::parseCSS(&w, text, BzThemeUtils::getAppWColorSets());
        QCOMPARE(back.switches, record.switches);
        QCOMPARE(back.borderRadius, record.borderRadius);
        QCOMPARE(back.borderWidth, record.borderWidth);
        QCOMPARE(back.extraCSS, record.extraCSS);
        QCOMPARE(back.textColorSet, record.textColorSet);
        // Sets switched off are not written, so they do not come back.
        QCOMPARE(back.backgroundColorSet,
                 record.isOn(BzCSSData::PaintBackground) ? record.backgroundColorSet : QString());
        QCOMPARE(back.borderColorSet, record.hasAnyBorder() ? record.borderColorSet : QString());
        QVERIFY(!back.styleSheet.contains(QLatin1String("$(")));
    }

    void parseFreeTemplate() {
        QWidget w;
        const QString tmpl =
            QStringLiteral("QFrame#x { border: 1px solid $(search-border.focused); border-radius: 4px;"
                           " background-color: $(search-background); color: $(search-text) }");
        const BzCSSData data = BzThemeUtils::parseCSS(&w, tmpl, BzThemeUtils::getAppWColorSets());
        QCOMPARE(data.borderColorSet, QStringLiteral("search-border"));
        QCOMPARE(data.backgroundColorSet, QStringLiteral("search-background"));
        QCOMPARE(data.textColorSet, QStringLiteral("search-text"));
        QVERIFY(data.styleSheet.contains(css(BzThemeUtils::getColorSet("search-border").focused())));
        // A caller's own map is honoured.
        QHash<QString, BzColorSet> own;
        own.insert(QStringLiteral("search-text"), BzColorSet(QStringLiteral("search-text"), QColor(7, 7, 7)));
        own.insert(QStringLiteral("search-border"),
                   BzColorSet(QStringLiteral("search-border"), QColor(1, 1, 1)));
        own.insert(QStringLiteral("search-background"),
                   BzColorSet(QStringLiteral("search-background"), QColor(2, 2, 2)));
        QVERIFY(BzThemeUtils::parseCSS(&w, tmpl, own)
                    .styleSheet.contains(QLatin1String("color: rgba(7,7,7,1.0)")));
    }

    void themeTypeOfWidget() {
        QWidget top;
        QWidget middle(&top);
        QWidget leaf(&middle);
        QCOMPARE(BzThemeUtils::getThemeTypeOfWidget(&leaf), BzThemeUtils::Global);
        QCOMPARE(BzThemeUtils::getThemeTypeOfWidget(nullptr), BzThemeUtils::Global);
        top.setProperty("themeType", QStringLiteral("dark"));
        QCOMPARE(BzThemeUtils::getThemeTypeOfWidget(&leaf), BzThemeUtils::Dark);
        middle.setProperty("themeType", int(BzThemeUtils::Alternate));
        QCOMPARE(BzThemeUtils::getThemeTypeOfWidget(&leaf), BzThemeUtils::Alternate);
        // A template resolves against the widget's theme type.
        const BzCSSData data = BzThemeUtils::parseCSS(&leaf, QStringLiteral("color: $(label-primary-text);"),
                                                      BzThemeUtils::getAppWColorSets());
        const QColor alternate =
            BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Alternate).normal();
        QVERIFY(alternate != BzThemeUtils::getColorSet("label-primary-text").normal());
        QCOMPARE(data.styleSheet, QStringLiteral("color: %1;").arg(css(alternate)));
        leaf.setProperty("themeType", QStringLiteral("global"));
        QCOMPARE(BzThemeUtils::getThemeTypeOfWidget(&leaf), BzThemeUtils::Global);
    }

    void plainWidgetCss() {
        Probe w;
        const QString tmpl = QStringLiteral("color: $(label-primary-text);");
        BzThemeUtils::setWidgetCSS(&w, tmpl);
        const QString light =
            QStringLiteral("color: ") + css(BzThemeUtils::getColorSet("label-primary-text").normal()) + ';';
        QCOMPARE(w.styleSheet(), light);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        const QString dark =
            QStringLiteral("color: ") + css(BzThemeUtils::getColorSet("label-primary-text").normal()) + ';';
        QVERIFY(light != dark);
        QCOMPARE(w.styleSheet(), dark);
    }

    void refreshSkipsUnchangedStyleSheets() {
        Probe plain;
        BzThemeUtils::setWidgetCSS(&plain, QStringLiteral("background: $(panel-primary-background);"));
        Probe free;
        free.setProperty("css", QStringLiteral("x"));
        BzWidget base;
        BzCSSData record;
        record.backgroundColorSet = QStringLiteral("panel-primary-background");
        base.setCSS(record);
        QVERIFY(base.styleSheet().isEmpty()); // records are painted, not styled
        const int before = plain.styleChanges;
        BzThemeUtils::refreshWidgetThemes();
        QCoreApplication::processEvents();
        QCOMPARE(plain.styleChanges, before);
        QVERIFY(base.styleSheet().isEmpty());
        QCOMPARE(plain.property("css").toString(),
                 QStringLiteral("background: $(panel-primary-background);"));
    }

    // A widget deleted before its queued slot runs: nothing may reach it. (The
    // queued slot itself, once per refresh: tst_karvexutils' updateThemes.)
    void refreshSurvivesDeletedWidget() {
        Probe survivor;
        QPointer<Probe> doomed = new Probe;
        BzThemeUtils::refreshWidgetThemes();
        QCOMPARE(survivor.themeSlots, 0);
        delete doomed.data();
        QTRY_COMPARE(survivor.themeSlots, 1);
    }

    void nullWidget() {
        QTest::ignoreMessage(QtWarningMsg, "BzThemeUtils::setWidgetCSS: null widget ignored");
        BzThemeUtils::setWidgetCSS(nullptr, QStringLiteral("color: red;"));
    }
};

QTEST_MAIN(TestBzThemeManager)
#include "tst_bzthememanager.moc"
