#include "accessibilityrecorder.h"
#include "buttontestutils.h"
#include "kapagenavigation.h"
#include "navigationdotswidget.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

QAccessibleInterface* accessible(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}

QColor cursor() {
    return colorOf("spinner-progress-cursor");
}

QColor track() {
    return colorOf("spinner-progress-track");
}

// Dot centres for index 3 of 5: the current one at 8 + 14 * 2 - 2, the one
// before it drawn 4 px to the left, the one after it in place.
constexpr int kCurrentX = 34;
constexpr int kBeforeX = 18;
constexpr int kAfterX = 50;
} // namespace

class tst_KaPageNavigation : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

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

    // NavigationDotsWidget: the dots alone.
    void fixedSize_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<QSize>("size");
        QTest::newRow("one page") << 1 << QSize(12, 24);
        QTest::newRow("twelve pages") << 12 << QSize(166, 24);
        QTest::newRow("none") << 0 << QSize(0, 24);
    }

    void fixedSize() {
        QFETCH(int, count);
        QFETCH(QSize, size);
        NavigationDotsWidget dots(count);
        QCOMPARE(dots.minimumSize(), size);
        QCOMPARE(dots.maximumSize(), size);
    }

    void negativeCount() {
        QTest::ignoreMessage(QtWarningMsg, "NavigationDotsWidget: page count -3 is negative; using 0");
        NavigationDotsWidget dots(-3);
        QCOMPARE(dots.pageCount(), 0);
        QCOMPARE(dots.maximumSize(), QSize(0, 24));
        dots.setPageIndex(1);
        QImage image(QSize(1, 24), QImage::Format_ARGB32);
        dots.render(&image);
    }

    void dotsAroundCurrent() {
        NavigationDotsWidget dots(5);
        dots.setPageIndex(3);
        const QImage image = rendered(&dots);
        QCOMPARE(image.pixelColor(kCurrentX, 12).rgb(), cursor().rgb());
        // Radius 4: the current dot reaches further than the others.
        QCOMPARE(image.pixelColor(kCurrentX + 2, 12).rgb(), cursor().rgb());
        QVERIFY(image.pixelColor(kAfterX + 3, 12).alpha() == 0);
        QCOMPARE(image.pixelColor(kBeforeX, 12).rgb(), track().rgb());
        QCOMPARE(image.pixelColor(kAfterX, 12).rgb(), track().rgb());
        // Where the dot before would sit unshifted, and between the dots.
        QCOMPARE(image.pixelColor(kBeforeX + 4, 12).alpha(), 0);
        QCOMPARE(image.pixelColor(kAfterX - 5, 12).alpha(), 0);
        QCOMPARE(QAccessible::queryAccessibleInterface(&dots)->text(QAccessible::Name),
                 QStringLiteral("Page 3 of 5"));
        // The colours follow a theme switch.
        const QColor light = cursor();
        switchTheme("dark");
        QVERIFY(cursor().rgb() != light.rgb());
        QTRY_COMPARE(rendered(&dots).pixelColor(kCurrentX, 12).rgb(), cursor().rgb());
    }

    void noDotsOutsideRange_data() {
        QTest::addColumn<int>("index");
        QTest::newRow("zero") << 0;
        QTest::newRow("beyond count") << 6;
        QTest::newRow("negative") << -2;
    }

    void noDotsOutsideRange() {
        QFETCH(int, index);
        NavigationDotsWidget dots(5);
        dots.setPageIndex(index);
        const QImage image = rendered(&dots);
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixelColor(x, 12).alpha(), 0);
    }

    // Page 1 sits on the leading side: the right one in right-to-left.
    void dotsMirrored() {
        NavigationDotsWidget dots(5);
        dots.setLayoutDirection(Qt::RightToLeft);
        dots.setPageIndex(3);
        const QImage image = rendered(&dots);
        QCOMPARE(image.pixelColor(dots.width() - kCurrentX, 12).rgb(), cursor().rgb());
        QCOMPARE(image.pixelColor(dots.width() - kBeforeX, 12).rgb(), track().rgb());
    }
};

QTEST_MAIN(tst_KaPageNavigation)
#include "tst_kapagenavigation.moc"
