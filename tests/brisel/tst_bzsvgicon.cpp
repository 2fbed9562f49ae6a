#include "bzsvgicon.h"
#include "bzsvgrenderer.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

class tst_BzSvgIcon : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void spellingsOfOneIconCompareEqual() {
        const BzSvgIcon icon(QStringLiteral("test-square"), QStringLiteral("button-icon"), QSize(12, 12));
        QCOMPARE(icon.path(), QStringLiteral(":/Resources/test-square.svg"));
        QCOMPARE(BzSvgIcon(QStringLiteral("qrc:/Resources/test-square.svg"), QStringLiteral("button-icon"),
                           QSize(12, 12)),
                 icon);
        QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QStringLiteral("other"), QSize(12, 12)) != icon);
        QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QStringLiteral("button-icon"), QSize(16, 16)) !=
                icon);
        BzSvgIcon other = icon;
        other.setPath(QStringLiteral("test-wide"));
        QCOMPARE(other.path(), QStringLiteral(":/Resources/test-wide.svg"));
        QVERIFY(other != icon);
    }

    void pixmapUsesSizeAndColour_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("dpr");
        QTest::addColumn<QColor>("color");
        QTest::newRow("12 at 1") << QSize(12, 12) << qreal(1.0) << QColor(0, 128, 255);
        QTest::newRow("12 at 2") << QSize(12, 12) << qreal(2.0) << QColor(255, 0, 0);
        QTest::newRow("20x10 at 1.5") << QSize(20, 10) << qreal(1.5) << QColor(0, 0, 0, 100);
        QTest::newRow("empty: the icon's own size") << QSize() << qreal(2.0) << QColor(Qt::black);
    }
    void pixmapUsesSizeAndColour() {
        QFETCH(QSize, size);
        QFETCH(qreal, dpr);
        QFETCH(QColor, color);
        const QPixmap pm = BzSvgIcon(QStringLiteral("test-square"), QString(), size).pixmap(color, dpr);
        const QSize logical = size.isEmpty() ? QSize(16, 16) : size;
        QCOMPARE(pm.size(), QSize(int(logical.width() * dpr), int(logical.height() * dpr)));
        QCOMPARE(pm.devicePixelRatio(), dpr);
        // Square art in a wide box: the centre is covered.
        const QColor centre = pm.toImage().pixelColor(pm.width() / 2, pm.height() / 2);
        QVERIFY(qAbs(centre.alpha() - color.alpha()) <= 1);
        if (color.alpha() == 255)
            QCOMPARE(centre, color);
        // Served from the renderer's shared cache.
        QCOMPARE(BzSvgRenderer::cachedPixmap(QStringLiteral("test-square"), logical, color, dpr).cacheKey(),
                 pm.cacheKey());
    }

    void nullIconHasNoPixmap() {
        QVERIFY(BzSvgIcon().isNull());
        QVERIFY(BzSvgIcon().pixmap(Qt::black).isNull());
        QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QString(), QSize(8, 8)).pixmap(QColor()).isNull());
    }

    void paintCentresAtItsSize_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRectF>("box");
        QTest::addColumn<QRect>("painted");
        QTest::newRow("centred") << QSize(10, 10) << QRectF(0, 0, 40, 40) << QRect(15, 15, 10, 10);
        QTest::newRow("too big: fitted") << QSize(64, 64) << QRectF(10, 10, 20, 20) << QRect(10, 10, 20, 20);
    }
    void paintCentresAtItsSize() {
        QFETCH(QSize, size);
        QFETCH(QRectF, box);
        QFETCH(QRect, painted);
        QImage image(QSize(40, 40), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        {
            QPainter p(&image);
            BzSvgIcon(QStringLiteral("test-square"), QString(), size).paint(&p, box, Qt::black);
        }
        for (int i = 0; i < 40; ++i) {
            QCOMPARE(qAlpha(image.pixel(i, 20)), painted.contains(i, 20) ? 255 : 0);
            QCOMPARE(qAlpha(image.pixel(20, i)), painted.contains(20, i) ? 255 : 0);
        }
    }
};

QTEST_MAIN(tst_BzSvgIcon)
#include "tst_bzsvgicon.moc"
