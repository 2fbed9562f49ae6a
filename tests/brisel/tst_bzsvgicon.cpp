#include "bzsvgicon.h"
#include "bzsvgrenderer.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

class tst_BzSvgIcon : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void resolvesAndCompares();
    void pixmapUsesSizeAndColour_data();
    void pixmapUsesSizeAndColour();
    void emptySizeUsesIconSize();
    void nullIconHasNoPixmap();
    void paintCentresAtItsSize();
};

void tst_BzSvgIcon::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_BzSvgIcon::resolvesAndCompares() {
    const BzSvgIcon icon(QStringLiteral("test-square"), QStringLiteral("button-icon"), QSize(12, 12));
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.path(), QStringLiteral(":/Resources/test-square.svg"));
    QCOMPARE(icon.colorSetName(), QStringLiteral("button-icon"));
    QCOMPARE(icon.size(), QSize(12, 12));

    // Two spellings of one icon are the same icon.
    QCOMPARE(BzSvgIcon(QStringLiteral("qrc:/Resources/test-square.svg"), QStringLiteral("button-icon"),
                       QSize(12, 12)),
             icon);
    QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QStringLiteral("other"), QSize(12, 12)) != icon);
    QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QStringLiteral("button-icon"), QSize(16, 16)) != icon);

    BzSvgIcon copy = icon;
    copy.setPath(QStringLiteral("test-wide"));
    QCOMPARE(copy.path(), QStringLiteral(":/Resources/test-wide.svg"));
    QVERIFY(copy != icon);
}

void tst_BzSvgIcon::pixmapUsesSizeAndColour_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qreal>("dpr");
    QTest::addColumn<QColor>("color");

    QTest::newRow("12 at 1") << QSize(12, 12) << qreal(1.0) << QColor(0, 128, 255);
    QTest::newRow("12 at 2") << QSize(12, 12) << qreal(2.0) << QColor(255, 0, 0);
    QTest::newRow("20x10 at 1.5") << QSize(20, 10) << qreal(1.5) << QColor(0, 0, 0, 100);
}

void tst_BzSvgIcon::pixmapUsesSizeAndColour() {
    QFETCH(QSize, size);
    QFETCH(qreal, dpr);
    QFETCH(QColor, color);

    const BzSvgIcon icon(QStringLiteral("test-square"), QString(), size);
    const QPixmap pm = icon.pixmap(color, dpr);
    QCOMPARE(pm.size(), QSize(int(size.width() * dpr), int(size.height() * dpr)));
    QCOMPARE(pm.devicePixelRatio(), dpr);
    // Square art in a wide box: the centre is covered.
    const QColor centre = pm.toImage().pixelColor(pm.width() / 2, pm.height() / 2);
    QVERIFY(qAbs(centre.alpha() - color.alpha()) <= 1);
    if (color.alpha() == 255)
        QCOMPARE(centre, color);
    // Served from the renderer's shared cache.
    QCOMPARE(BzSvgRenderer::cachedPixmap(QStringLiteral("test-square"), size, color, dpr).cacheKey(),
             pm.cacheKey());
}

void tst_BzSvgIcon::emptySizeUsesIconSize() {
    const BzSvgIcon icon(QStringLiteral("test-wide"));
    QCOMPARE(icon.pixmap(QColor(0, 0, 0), 2.0).size(), QSize(48, 24));
}

void tst_BzSvgIcon::nullIconHasNoPixmap() {
    const BzSvgIcon icon;
    QVERIFY(icon.isNull());
    QVERIFY(icon.pixmap(QColor(0, 0, 0)).isNull());
    QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QString(), QSize(8, 8)).pixmap(QColor()).isNull());
}

void tst_BzSvgIcon::paintCentresAtItsSize() {
    QImage image(QSize(40, 40), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter p(&image);
        BzSvgIcon(QStringLiteral("test-square"), QString(), QSize(10, 10))
            .paint(&p, QRectF(0, 0, 40, 40), QColor(0, 0, 0));
    }
    QCOMPARE(qAlpha(image.pixel(14, 20)), 0);
    QCOMPARE(qAlpha(image.pixel(15, 20)), 255);
    QCOMPARE(qAlpha(image.pixel(24, 20)), 255);
    QCOMPARE(qAlpha(image.pixel(25, 20)), 0);
    QCOMPARE(qAlpha(image.pixel(20, 14)), 0);
    QCOMPARE(qAlpha(image.pixel(20, 15)), 255);

    // Too big for the box: fitted to it instead of spilling over.
    image.fill(Qt::transparent);
    {
        QPainter p(&image);
        BzSvgIcon(QStringLiteral("test-square"), QString(), QSize(64, 64))
            .paint(&p, QRectF(10, 10, 20, 20), QColor(0, 0, 0));
    }
    QCOMPARE(qAlpha(image.pixel(9, 20)), 0);
    QCOMPARE(qAlpha(image.pixel(10, 20)), 255);
    QCOMPARE(qAlpha(image.pixel(29, 20)), 255);
    QCOMPARE(qAlpha(image.pixel(30, 20)), 0);
}

QTEST_MAIN(tst_BzSvgIcon)
#include "tst_bzsvgicon.moc"
