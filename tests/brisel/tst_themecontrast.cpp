#include "bzthemeaudit.h"
#include "bzthememanager.h"

#include <QTest>

// Text and icon colours must stay readable over their family's background in
// every built-in theme: 4.5:1 in light and dark, 7:1 in high contrast.
class TestThemeContrast : public QObject {
    Q_OBJECT
private Q_SLOTS:
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
};

QTEST_MAIN(TestThemeContrast)
#include "tst_themecontrast.moc"
