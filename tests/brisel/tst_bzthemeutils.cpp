#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "bzwidget.h"

#include <QApplication>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>

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

class TestBzThemeUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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

QTEST_MAIN(TestBzThemeUtils)
#include "tst_bzthemeutils.moc"
