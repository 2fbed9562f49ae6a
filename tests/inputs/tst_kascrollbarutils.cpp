#include "kascrollbarutils.h"

#include <buttontestutils.h>
#include <bzthemeutils.h>

#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>

using namespace ButtonTest;

class tst_KaScrollbarUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void sheet_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("orientations");
        QTest::addColumn<QString>("shortest");
        QTest::newRow("light, small, vertical")
            << int(BzThemeUtils::Light) << 0 << int(Qt::Vertical) << "min-height:24px";
        QTest::newRow("dark, normal, vertical")
            << int(BzThemeUtils::Dark) << 1 << int(Qt::Vertical) << "min-height:40px";
        QTest::newRow("contrast, both")
            << int(BzThemeUtils::HighContrast) << 1 << int(Qt::Vertical | Qt::Horizontal) << "min-width:40px";
    }
    void sheet() {
        QFETCH(int, type);
        QFETCH(int, size);
        QFETCH(int, orientations);
        QFETCH(QString, shortest);
        const auto theme = BzThemeUtils::AppThemeType(type);
        const QString sheet = KaScrollbarUtils::getScrollBarStyleSheet(KaScrollbarEnum::MinimumSize(size),
                                                                       theme, Qt::Orientations(orientations));
        QVERIFY(!sheet.contains(QLatin1String("$(")));
        QVERIFY(sheet.contains(shortest));
        const QString thumb = BzThemeUtils::colorToCss(colorOf("scrollbar-thumb-background", theme));
        QVERIFY2(sheet.contains(QStringLiteral("handle:vertical{background:") + thumb), qPrintable(sheet));
        QCOMPARE(sheet.contains(QLatin1String(":horizontal")), bool(orientations & Qt::Horizontal));
    }

    void unknownSizeCountsAsNormal() {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("unknown minimum size 5"));
        QCOMPARE(KaScrollbarUtils::getScrollBarTemplate(KaScrollbarEnum::MinimumSize(5)),
                 KaScrollbarUtils::getScrollBarTemplate(KaScrollbarEnum::Normal));
    }

    void appliedBarsFollowThemeSwitch() {
        QPlainTextEdit area;
        KaScrollbarUtils::applyScrollBarStyle(&area);
        const QString dark =
            BzThemeUtils::colorToCss(colorOf("scrollbar-track-background", BzThemeUtils::Dark));
        QVERIFY(!area.verticalScrollBar()->styleSheet().contains(dark));
        switchTheme("dark");
        QVERIFY(area.verticalScrollBar()->styleSheet().contains(dark));
        QVERIFY(area.horizontalScrollBar()->styleSheet().contains(dark));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("null scroll area"));
        KaScrollbarUtils::applyScrollBarStyle(nullptr);
    }
};

QTEST_MAIN(tst_KaScrollbarUtils)
#include "tst_kascrollbarutils.moc"
