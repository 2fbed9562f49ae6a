#include "accessibilityrecorder.h"
#include "buttontestutils.h"
#include "kapagenavigation.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

QAccessibleInterface* accessible(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}

} // namespace

class tst_KaPageNavigation : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void childrenBuiltByPageCount() {
        KaPageNavigation navigation;
        QVERIFY(!navigation.getNavigateNextButton());
        QVERIFY(navigation.findChildren<QWidget*>().isEmpty());

        navigation.setPageCount(5);
        KaRoundButton* previous = navigation.getNavigatePreviousButton();
        KaRoundButton* next = navigation.getNavigateNextButton();
        QVERIFY(previous && next && navigation.dotsWidget());
        QCOMPARE(previous->leftIcon(), QStringLiteral("qrc:/Resources/arrow-left-bold.svg"));
        QCOMPARE(next->leftIcon(), QStringLiteral("qrc:/Resources/arrow-right-bold.svg"));
        // Two arrows, the gaps beside the dots, and the 68 px of five dots.
        const QSize fixed(2 * next->width() + 16 + 68, 24);
        QCOMPARE(navigation.minimumSize(), fixed);
        QCOMPARE(navigation.maximumSize(), fixed);
        // In order along the row.
        navigation.show();
        QVERIFY(previous->x() < navigation.dotsWidget()->x() && navigation.dotsWidget()->x() < next->x());
    }

    // Each call builds afresh; nothing of the old set stays behind.
    void rebuiltWithoutLeaks() {
        KaPageNavigation navigation;
        navigation.setPageCount(3);
        const int children = int(navigation.findChildren<QObject*>().size());
        const QPointer<KaRoundButton> oldNext = navigation.getNavigateNextButton();
        for (int count : {12, 1, 4, 4}) {
            navigation.setPageCount(count);
            QCOMPARE(int(navigation.findChildren<QObject*>().size()), children);
            QCOMPARE(navigation.dotsWidget()->pageCount(), count);
        }
        QVERIFY(!oldNext);
        QCOMPARE(navigation.maximumWidth(),
                 2 * navigation.getNavigateNextButton()->width() + 16 + 4 * 14 - 2);
    }

    // A click handler that rebuilds the strip must not pull the clicked
    // button away under its own signal.
    void rebuiltFromClick() {
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        navigation.setPageIndex(2);
        connect(&navigation, &KaPageNavigation::navigateNextButtonClicked, &navigation,
                [&navigation] { navigation.setPageCount(navigation.pageCount() + 1); });
        QPointer<KaRoundButton> clicked = navigation.getNavigateNextButton();
        QSignalSpy spy(&navigation, &KaPageNavigation::navigateNextButtonClicked);
        clicked->click();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(navigation.pageCount(), 6);
        QVERIFY(navigation.getNavigateNextButton() != clicked);
        QTRY_VERIFY(!clicked);
        navigation.getNavigateNextButton()->click();
        QCOMPARE(navigation.pageCount(), 7);
    }

    void arrows_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("previous");
        QTest::addColumn<bool>("next");
        QTest::newRow("page 1 of 1") << 1 << 1 << false << false;
        QTest::newRow("first of 5") << 5 << 1 << false << true;
        QTest::newRow("middle of 5") << 5 << 3 << true << true;
        QTest::newRow("last of 5") << 5 << 5 << true << false;
    }

    void arrows() {
        QFETCH(int, count);
        QFETCH(int, index);
        QFETCH(bool, previous);
        QFETCH(bool, next);
        KaPageNavigation navigation;
        navigation.setPageCount(count);
        navigation.setPageIndex(index);
        QCOMPARE(navigation.getNavigatePreviousButton()->isEnabled(), previous);
        QCOMPARE(navigation.getNavigateNextButton()->isEnabled(), next);
        QCOMPARE(navigation.dotsWidget()->pageIndex(), index);
        // A rebuild keeps the position.
        navigation.setPageCount(count);
        QCOMPARE(navigation.getNavigateNextButton()->isEnabled(), next);
        QCOMPARE(navigation.dotsWidget()->pageIndex(), index);
    }

    void clicksForwarded() {
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        navigation.setPageIndex(3);
        QSignalSpy previous(&navigation, &KaPageNavigation::navigatePreviousButtonClicked);
        QSignalSpy next(&navigation, &KaPageNavigation::navigateNextButtonClicked);
        QVERIFY(shown(navigation));
        QTest::mouseClick(navigation.getNavigateNextButton(), Qt::LeftButton);
        QCOMPARE(next.count(), 1);
        QCOMPARE(previous.count(), 0);
        QTest::mouseClick(navigation.getNavigatePreviousButton(), Qt::LeftButton);
        QCOMPARE(previous.count(), 1);
        // The strip reports; the host moves.
        QCOMPARE(navigation.pageIndex(), 3);
    }

    void announcesPage() {
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        QSignalSpy changed(&navigation, &KaPageNavigation::pageIndexChanged);
        AccessibilityRecorder::RecordingScope recording;
        navigation.setPageIndex(4);
        navigation.setPageIndex(4);
        const QString text = QStringLiteral("You are currently viewing page 4.");
        QCOMPARE(AccessibilityRecorder::announcements(navigation.dotsWidget()), QStringList({text, text}));
        QCOMPARE(changed.count(), 1);
    }

    void badInput() {
        KaPageNavigation navigation;
        // Before any children exist.
        navigation.setPageIndex(2);
        QTest::ignoreMessage(QtWarningMsg, "KaPageNavigation: page count -4 is negative; using 0");
        navigation.setPageCount(-4);
        QCOMPARE(navigation.pageCount(), 0);
        QTest::ignoreMessage(QtWarningMsg, "KaPageNavigation: page index -1 is negative; using 0");
        navigation.setPageIndex(-1);
        QCOMPARE(navigation.pageIndex(), 0);
        // No pages: nothing to move to.
        QVERIFY(!navigation.getNavigateNextButton()->isEnabled());
        QCOMPARE(navigation.dotsWidget()->maximumWidth(), 0);
    }

    void accessibility() {
        KaPageNavigation navigation;
        navigation.setPageCount(3);
        QAccessibleInterface* next = accessible(navigation.getNavigateNextButton());
        QCOMPARE(next->role(), QAccessible::Button);
        QCOMPARE(next->text(QAccessible::Name), QStringLiteral("Next page"));
        QCOMPARE(accessible(navigation.getNavigatePreviousButton())->text(QAccessible::Name),
                 QStringLiteral("Previous page"));

        navigation.setNavigateNextAccessibity(QStringLiteral("Next photo"),
                                              QStringLiteral("Shows the next photo"));
        navigation.setNavigatePreviousAccessibity(QStringLiteral("Previous photo"), QString());
        // Kept across a rebuild.
        navigation.setPageCount(4);
        next = accessible(navigation.getNavigateNextButton());
        QCOMPARE(next->text(QAccessible::Name), QStringLiteral("Next photo"));
        QCOMPARE(next->text(QAccessible::Description), QStringLiteral("Shows the next photo"));
        QCOMPARE(accessible(navigation.getNavigatePreviousButton())->text(QAccessible::Name),
                 QStringLiteral("Previous photo"));
    }

    // The strip paints only through its children; the current dot follows
    // the theme with them.
    void followsTheme() {
        switchTheme("light");
        KaPageNavigation navigation;
        navigation.setPageCount(5);
        navigation.setPageIndex(1);
        QVERIFY(shown(navigation));
        // The first dot is current: 8 - 2 px into the dots.
        const QPoint dot = navigation.dotsWidget()->geometry().topLeft() + QPoint(6, 12);
        QCOMPARE(pixelAt(&navigation, dot).rgb(), colorOf("spinner-progress-cursor").rgb());
        switchTheme("highContrast");
        QTRY_COMPARE(pixelAt(&navigation, dot).rgb(), colorOf("spinner-progress-cursor").rgb());
        QVERIFY(colorOf("spinner-progress-cursor", BzThemeUtils::Light) !=
                colorOf("spinner-progress-cursor"));
        switchTheme("light");
    }

    // The arrows point away from the dots in either direction.
    void mirrored() {
        KaPageNavigation navigation;
        navigation.setLayoutDirection(Qt::RightToLeft);
        navigation.setPageCount(3);
        QCOMPARE(navigation.getNavigatePreviousButton()->leftIcon(),
                 QStringLiteral("qrc:/Resources/arrow-right-bold.svg"));
        navigation.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(navigation.getNavigatePreviousButton()->leftIcon(),
                 QStringLiteral("qrc:/Resources/arrow-left-bold.svg"));
    }
};

QTEST_MAIN(tst_KaPageNavigation)
#include "tst_kapagenavigation.moc"
