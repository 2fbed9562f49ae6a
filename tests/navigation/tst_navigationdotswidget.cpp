#include "buttontestutils.h"
#include "navigationdotswidget.h"

#include <QAccessible>
#include <QTest>

using namespace ButtonTest;

namespace {

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

class tst_NavigationDotsWidget : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

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
    void mirrored() {
        NavigationDotsWidget dots(5);
        dots.setLayoutDirection(Qt::RightToLeft);
        dots.setPageIndex(3);
        const QImage image = rendered(&dots);
        QCOMPARE(image.pixelColor(dots.width() - kCurrentX, 12).rgb(), cursor().rgb());
        QCOMPARE(image.pixelColor(dots.width() - kBeforeX, 12).rgb(), track().rgb());
    }
};

QTEST_MAIN(tst_NavigationDotsWidget)
#include "tst_navigationdotswidget.moc"
