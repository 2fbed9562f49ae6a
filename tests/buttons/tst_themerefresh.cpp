// A theme refresh that changes nothing must cost nothing, over a whole page
// of real buttons, and the base layer's caches must not grow without bound.
#include "buttonspage.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "bzwidgettheme_p.h"
#include "karvexutils.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <malloc.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KARVEX_TEST_ASAN 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define KARVEX_TEST_ASAN 1
#endif

class TestThemeRefresh : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void unchangedThemeCostsNothing() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        ButtonsPage page;
        page.resize(900, 700);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QVERIFY(page.findChildren<QPushButton*>().size() > 100);
        // Let the showing buttons settle (their first refreshes are queued).
        QCoreApplication::processEvents();

        BzThemeCounters& counters = bzThemeCounters();
        counters = BzThemeCounters();
        KarvexUtils::updateSolvaneThemes();
        QCoreApplication::processEvents(); // the queued onThemeChanged() calls
        QCOMPARE(counters.colorSetLookups, quint64(0));
        QCOMPARE(counters.templateParses, quint64(0));
        QCOMPARE(counters.styleSheetsSet, quint64(0));

        // The same path does resolve when the theme really moves.
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCoreApplication::processEvents();
        QVERIFY(counters.colorSetLookups > 0);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
    }

    void templateCachesStayBounded() {
#ifdef KARVEX_TEST_ASAN
        QSKIP("The sanitizer's allocator keeps glibc's heap statistics at zero");
#else
        // Distinct templates: half name unknown colour sets, half are malformed,
        // so the warned-about sets are exercised as well as the parse cache.
        static int warnings = 0;
        const QtMessageHandler previous =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
        QWidget widget;
        const auto feed = [&widget](int from, int to) {
            for (int i = from; i < to; ++i) {
                const QString css = (i % 2) ? QStringLiteral("color: $(unknown-set-%1);").arg(i)
                                            : QStringLiteral("color: $(broken-%1;").arg(i);
                BzThemeUtils::parseCSS(&widget, css, BzThemeUtils::getAppWColorSets());
            }
        };
        feed(0, 20000);
        malloc_trim(0);
        const size_t early = mallinfo2().uordblks;
        feed(20000, 100000);
        malloc_trim(0);
        const size_t late = mallinfo2().uordblks;
        qInstallMessageHandler(previous);
        QVERIFY(warnings >= 100000);
        // 80,000 more templates kept would cost tens of megabytes.
        QVERIFY2(late < early + 2 * 1024 * 1024,
                 qPrintable(QStringLiteral("heap grew from %1 to %2 bytes").arg(early).arg(late)));
#endif
    }
};

QTEST_MAIN(TestThemeRefresh)
#include "tst_themerefresh.moc"
