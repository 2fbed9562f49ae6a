#include "drawutils.h"
#include "testhelpers.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

using BzTest::canvas;

class tst_DrawUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void toDevicePixels_data() {
        QTest::addColumn<qreal>("logical");
        QTest::addColumn<qreal>("dpr");
        QTest::addColumn<int>("expected");
        QTest::newRow("whole") << qreal(16) << qreal(2) << 32;
        QTest::newRow("truncates") << qreal(15) << qreal(1.25) << 18;
        QTest::newRow("truncates 1.75") << qreal(7) << qreal(1.75) << 12;
        QTest::newRow("float noise below a whole") << qreal(45) << qreal(1.4) << 63;
        QTest::newRow("fraction") << qreal(0.5) << qreal(1) << 0;
        QTest::newRow("negative toward zero") << qreal(-1.5) << qreal(1) << -1;
        QTest::newRow("half pixel at 1.5") << qreal(10.5) << qreal(1.5) << 15;
    }
    void toDevicePixels() {
        QFETCH(qreal, logical);
        QFETCH(qreal, dpr);
        QFETCH(int, expected);
        QCOMPARE(DrawUtils::toDevicePixels(logical, dpr), expected);
        QCOMPARE(DrawUtils::toDevicePixels(QSizeF(logical, 2 * logical), dpr),
                 QSize(expected, DrawUtils::toDevicePixels(2 * logical, dpr)));
    }

    void badRatioWarns() {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("invalid device pixel ratio 0")));
        QCOMPARE(DrawUtils::toDevicePixels(12.0, 0.0), 12);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("invalid device pixel ratio -2")));
        QCOMPARE(DrawUtils::toDevicePixels(QSizeF(3, 4), -2.0), QSize(3, 4));
    }

    void createPixmap() {
        const QPixmap pm = DrawUtils::createPixmap(QSizeF(15, 10), 1.25);
        QCOMPARE(pm.size(), QSize(18, 12));
        QCOMPARE(pm.devicePixelRatio(), 1.25);
        QCOMPARE(qAlpha(pm.toImage().pixel(5, 5)), 0);
        QVERIFY(DrawUtils::createPixmap(QSizeF(0.5, 10), 1.0).isNull());
    }

    void roundedRectPathCorners() {
        const QPointF nearCorner[] = {{11, 21}, {109, 21}, {11, 69}, {109, 69}}; // TopLeft, TopRight, ...
        for (int square = 0; square <= int(DrawUtils::AllCorners); ++square) {
            const QPainterPath path =
                DrawUtils::roundedRectPath(QRectF(10, 20, 100, 50), 10, DrawUtils::Corners(square));
            // 1 px inside a corner is inside the shape only if that corner is square.
            for (int c = 0; c < 4; ++c)
                QVERIFY2(path.contains(nearCorner[c]) == bool(square & (1 << c)),
                         qPrintable(QStringLiteral("corners %1, corner %2").arg(square).arg(c)));
            QVERIFY(path.contains(QPointF(60, 45)));
            QCOMPARE(path.boundingRect(), QRectF(10, 20, 100, 50));
        }
    }

    void roundedRectPathClampsRadius() {
        // A radius larger than half the height gives a pill, not a mess.
        const QPainterPath pill = DrawUtils::roundedRectPath(QRectF(0, 0, 100, 20), 500);
        QCOMPARE(pill.boundingRect(), QRectF(0, 0, 100, 20));
        QVERIFY(pill.contains(QPointF(10, 10)));
        QVERIFY(!pill.contains(QPointF(2, 2)));
        QVERIFY(pill.contains(QPointF(50, 1)));
        QVERIFY(DrawUtils::roundedRectPath(QRectF(0, 0, 10, 10), -4).contains(QPointF(0.5, 0.5)));
        QVERIFY(DrawUtils::roundedRectPath(QRectF(0, 0, 0, 10), 2).isEmpty());
    }

    void roundedRectBorderIsCrisp_data() {
        QTest::addColumn<qreal>("dpr");
        QTest::addColumn<qreal>("borderWidth");
        QTest::newRow("1px at 1") << qreal(1) << qreal(1);
        QTest::newRow("2px at 1") << qreal(1) << qreal(2);
        QTest::newRow("1px at 2") << qreal(2) << qreal(1);
    }
    void roundedRectBorderIsCrisp() {
        QFETCH(qreal, dpr);
        QFETCH(qreal, borderWidth);
        const QColor fill(0, 200, 0);
        const QColor border(200, 0, 0);
        QImage image = canvas(QSize(40, 30), dpr);
        {
            QPainter p(&image);
            DrawUtils::drawRoundedRect(&p, QRectF(5, 5, 30, 20), 4, fill, border, borderWidth);
        }
        const int b = int(borderWidth * dpr);
        const int left = int(5 * dpr), right = int(35 * dpr) - 1, top = int(5 * dpr);
        const int midX = int(20 * dpr), midY = int(15 * dpr);
        // Whole border pixels inside the rectangle, nothing bleeding outside and
        // no blend between border and fill.
        for (int i = 0; i < b; ++i) {
            QCOMPARE(image.pixelColor(left + i, midY), border);
            QCOMPARE(image.pixelColor(right - i, midY), border);
            QCOMPARE(image.pixelColor(midX, top + i), border);
        }
        QCOMPARE(image.pixelColor(left + b, midY), fill);
        QCOMPARE(image.pixelColor(right - b, midY), fill);
        QCOMPARE(image.pixelColor(midX, top + b), fill);
        QCOMPARE(image.pixelColor(left - 1, midY).alpha(), 0);
        QCOMPARE(image.pixelColor(right + 1, midY).alpha(), 0);
        QCOMPARE(image.pixelColor(midX, top - 1).alpha(), 0);
    }

    void roundedRectFillAndCorners() {
        QImage image = canvas(QSize(20, 20));
        {
            QPainter p(&image);
            DrawUtils::drawRoundedRect(&p, QRectF(0, 0, 20, 20), 8, Qt::blue, QColor(), 0,
                                       DrawUtils::BottomRight);
        }
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(19, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(0, 19)), 0);
        QCOMPARE(image.pixelColor(19, 19), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(10, 10), QColor(Qt::blue));

        // Without a visible border the fill reaches the edge; without a fill
        // nothing is painted inside.
        image.fill(Qt::transparent);
        {
            QPainter p(&image);
            DrawUtils::drawRoundedRect(&p, QRectF(0, 0, 10, 10), 0, QColor(9, 9, 9), QColor(255, 0, 0, 0), 2);
            DrawUtils::drawRoundedRect(&p, QRectF(10, 10, 10, 10), 2, QColor(), QColor(1, 2, 3), 0);
        }
        QCOMPARE(image.pixelColor(0, 5), QColor(9, 9, 9));
        QCOMPARE(qAlpha(image.pixel(15, 15)), 0);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without a painter")));
        DrawUtils::drawRoundedRect(nullptr, QRectF(0, 0, 10, 10), 2, QColor(1, 2, 3), QColor(), 0);
    }

    void elidedText() {
        // Qt elides; ours adds that no room means no text, not an ellipsis.
        const QFontMetrics fm{QFont()};
        const QString text = QStringLiteral("A fairly long line of text for eliding");
        QCOMPARE(DrawUtils::elidedText(fm, text, Qt::ElideRight, 0), QString());
        QCOMPARE(DrawUtils::elidedText(fm, text, Qt::ElideRight, -5), QString());
        const int width = fm.horizontalAdvance(text) / 2;
        QCOMPARE(DrawUtils::elidedText(fm, text, Qt::ElideLeft, width),
                 fm.elidedText(text, Qt::ElideLeft, width));
    }

    void softShadowFadesOut() {
        const QColor color(0, 0, 0, 200);
        QImage image = canvas(QSize(100, 100));
        QPainterPath path;
        path.addRect(30, 30, 40, 40);
        {
            QPainter p(&image);
            DrawUtils::drawSoftShadow(&p, path, color, 12);
        }
        // Full strength deep inside, fading monotonically across the edge, gone
        // beyond the radius.
        QCOMPARE(image.pixelColor(50, 50).rgb(), QColor(Qt::black).rgb());
        QVERIFY(qAbs(qAlpha(image.pixel(50, 50)) - color.alpha()) <= 1);
        int previous = 256;
        for (int x = 50; x < 100; ++x) {
            const int a = qAlpha(image.pixel(x, 50));
            QVERIFY2(a <= previous, qPrintable(QStringLiteral("x=%1").arg(x)));
            previous = a;
        }
        const int atEdge = qAlpha(image.pixel(70, 50));
        QVERIFY(atEdge > 0 && atEdge < color.alpha());
        QVERIFY(qAlpha(image.pixel(76, 50)) > 0);
        QCOMPARE(qAlpha(image.pixel(83, 50)), 0);
        QCOMPARE(qAlpha(image.pixel(50, 17)), 0);
    }

    void softShadowIsStable() {
        QPainterPath path = DrawUtils::roundedRectPath(QRectF(10, 10, 30, 20), 6);
        QImage first = canvas(QSize(50, 40), 2.0);
        QImage second = canvas(QSize(50, 40), 2.0);
        {
            QPainter p(&first);
            DrawUtils::drawSoftShadow(&p, path, QColor(10, 20, 30, 120), 6);
        }
        {
            // The cached image drawn again, also after moving the shape.
            QPainter p(&second);
            p.translate(-5, 0);
            DrawUtils::drawSoftShadow(&p, path.translated(5, 0), QColor(10, 20, 30, 120), 6);
        }
        QCOMPARE(second, first);
        QVERIFY(qAlpha(first.pixel(2 * 25, 2 * 20)) > 100);
    }
};

QTEST_MAIN(tst_DrawUtils)
#include "tst_drawutils.moc"
