#include "bzsvgrenderer.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

QImage transparentImage(const QSize& logicalSize, qreal dpr = 1.0) {
    QImage image(QSize(int(logicalSize.width() * dpr), int(logicalSize.height() * dpr)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::transparent);
    return image;
}

bool isFullyTransparent(const QImage& image) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0)
                return false;
    return true;
}

} // namespace

class tst_BzSvgRenderer : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void resolvePath_data();
    void resolvePath();
    void loadsBundledName();
    void loadsFilePath();
    void paintsInRequestedColour_data();
    void paintsInRequestedColour();
    void keepsTheIconShape();
    void opacityScalesAlpha();
    void sharpAtDevicePixelRatio_data();
    void sharpAtDevicePixelRatio();
    void keepsAspectRatio();
    void pixmapSizeIsTruncated_data();
    void pixmapSizeIsTruncated();
    void cacheReturnsSamePixmap();
    void missingFileWarnsOnce();
    void brokenFilesAreInvalid_data();
    void brokenFilesAreInvalid();
    void updateIconResourceSwitches();

private:
    QTemporaryDir m_dir;
    QString writeFile(const QString& name, const QByteArray& content);
};

void tst_BzSvgRenderer::initTestCase() {
    QVERIFY(m_dir.isValid());
}

void tst_BzSvgRenderer::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

QString tst_BzSvgRenderer::writeFile(const QString& name, const QByteArray& content) {
    const QString path = m_dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return QString();
    return path;
}

void tst_BzSvgRenderer::resolvePath_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("expected");

    QTest::newRow("bare name") << "check-regular"
                               << ":/Resources/check-regular.svg";
    QTest::newRow("bare name with suffix") << "check-regular.svg"
                                           << ":/Resources/check-regular.svg";
    QTest::newRow("resource path") << ":/Resources/x.svg"
                                   << ":/Resources/x.svg";
    QTest::newRow("qrc url") << "qrc:/Resources/x.svg"
                             << ":/Resources/x.svg";
    QTest::newRow("absolute file") << "/tmp/icons/x.svg"
                                   << "/tmp/icons/x.svg";
    QTest::newRow("relative file") << "icons/x.svg"
                                   << "icons/x.svg";
    QTest::newRow("file url") << "file:///tmp/x.svg"
                              << "/tmp/x.svg";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_BzSvgRenderer::resolvePath() {
    QFETCH(QString, input);
    QFETCH(QString, expected);
    QCOMPARE(BzSvgRenderer::resolvePath(input), expected);
}

void tst_BzSvgRenderer::loadsBundledName() {
    BzSvgRenderer renderer;
    QVERIFY(renderer.loadIconResource(QStringLiteral("test-square")));
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.iconResource(), QStringLiteral(":/Resources/test-square.svg"));
    QCOMPARE(renderer.defaultSize(), QSize(16, 16));

    BzSvgRenderer viaUrl(QStringLiteral("qrc:/Resources/test-wide.svg"));
    QVERIFY(viaUrl.isValid());
    QCOMPARE(viaUrl.defaultSize(), QSize(24, 12));
}

void tst_BzSvgRenderer::loadsFilePath() {
    const QString path =
        writeFile(QStringLiteral("disk.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
                                              "<rect width='8' height='8'/></svg>");
    QVERIFY(!path.isEmpty());
    BzSvgRenderer renderer(path);
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.defaultSize(), QSize(8, 8));
}

void tst_BzSvgRenderer::paintsInRequestedColour_data() {
    QTest::addColumn<QColor>("color");

    QTest::newRow("opaque green") << QColor(10, 200, 30);
    QTest::newRow("opaque white") << QColor(255, 255, 255);
    QTest::newRow("half transparent blue") << QColor(20, 40, 240, 128);
    QTest::newRow("faint red") << QColor(250, 0, 0, 40);
}

void tst_BzSvgRenderer::paintsInRequestedColour() {
    QFETCH(QColor, color);

    // The icon artwork is black; only the coverage may survive the tint.
    BzSvgRenderer renderer(QStringLiteral("test-square"));
    QImage image = transparentImage(QSize(16, 16));
    {
        QPainter p(&image);
        renderer.draw(&p, QRectF(0, 0, 16, 16), color);
    }
    for (const QPoint& pt : {QPoint(0, 0), QPoint(8, 8), QPoint(15, 15)}) {
        const QColor got = image.pixelColor(pt);
        QVERIFY2(qAbs(got.alpha() - color.alpha()) <= 1, qPrintable(QString::number(got.alpha())));
        // Unpremultiplying low alphas loses precision.
        const int tolerance = color.alpha() == 255 ? 0 : 255 / color.alpha() + 1;
        QVERIFY2(qAbs(got.red() - color.red()) <= tolerance, qPrintable(got.name(QColor::HexArgb)));
        QVERIFY2(qAbs(got.green() - color.green()) <= tolerance, qPrintable(got.name(QColor::HexArgb)));
        QVERIFY2(qAbs(got.blue() - color.blue()) <= tolerance, qPrintable(got.name(QColor::HexArgb)));
    }
}

void tst_BzSvgRenderer::keepsTheIconShape() {
    BzSvgRenderer renderer(QStringLiteral("test-left-half"));
    QImage image = transparentImage(QSize(16, 16));
    {
        QPainter p(&image);
        renderer.draw(&p, QRectF(0, 0, 16, 16), QColor(0, 0, 255));
    }
    QCOMPARE(image.pixelColor(3, 8), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(7, 0), QColor(0, 0, 255));
    QCOMPARE(qAlpha(image.pixel(8, 8)), 0);
    QCOMPARE(qAlpha(image.pixel(15, 15)), 0);
}

void tst_BzSvgRenderer::opacityScalesAlpha() {
    BzSvgRenderer renderer(QStringLiteral("test-square"));
    QImage image = transparentImage(QSize(16, 16));
    {
        QPainter p(&image);
        renderer.draw(&p, QRectF(0, 0, 16, 16), QColor(200, 0, 0), 0.5);
    }
    QVERIFY(qAbs(qAlpha(image.pixel(8, 8)) - 128) <= 1);

    // Opacity multiplies with the painter's own.
    QImage nested = transparentImage(QSize(16, 16));
    {
        QPainter p(&nested);
        p.setOpacity(0.5);
        renderer.draw(&p, QRectF(0, 0, 16, 16), QColor(200, 0, 0), 0.5);
        QCOMPARE(p.opacity(), 0.5);
    }
    QVERIFY(qAbs(qAlpha(nested.pixel(8, 8)) - 64) <= 1);

    QImage none = transparentImage(QSize(16, 16));
    {
        QPainter p(&none);
        renderer.draw(&p, QRectF(0, 0, 16, 16), QColor(200, 0, 0), 0.0);
    }
    QVERIFY(isFullyTransparent(none));
}

void tst_BzSvgRenderer::sharpAtDevicePixelRatio_data() {
    QTest::addColumn<qreal>("dpr");
    QTest::newRow("1") << qreal(1.0);
    QTest::newRow("1.5") << qreal(1.5);
    QTest::newRow("2") << qreal(2.0);
}

void tst_BzSvgRenderer::sharpAtDevicePixelRatio() {
    QFETCH(qreal, dpr);

    BzSvgRenderer renderer(QStringLiteral("test-square"));
    QImage image = transparentImage(QSize(32, 32), dpr);
    {
        QPainter p(&image);
        renderer.draw(&p, QRectF(8, 8, 16, 16), QColor(0, 0, 0));
    }
    // Logical [8, 24) covers device [8 * dpr, 24 * dpr): every pixel inside
    // fully opaque up to the edge, nothing outside. A pixmap rendered at the
    // logical size and scaled up would blur the edges.
    const int first = int(8 * dpr);
    const int last = int(24 * dpr) - 1;
    for (int i = first; i <= last; ++i) {
        QCOMPARE(qAlpha(image.pixel(first, i)), 255);
        QCOMPARE(qAlpha(image.pixel(last, i)), 255);
        QCOMPARE(qAlpha(image.pixel(i, first)), 255);
        QCOMPARE(qAlpha(image.pixel(i, last)), 255);
        QCOMPARE(qAlpha(image.pixel(first - 1, i)), 0);
        QCOMPARE(qAlpha(image.pixel(last + 1, i)), 0);
        QCOMPARE(qAlpha(image.pixel(i, first - 1)), 0);
        QCOMPARE(qAlpha(image.pixel(i, last + 1)), 0);
    }

    const QPixmap pm = renderer.pixmap(QSize(16, 16), QColor(0, 0, 0), dpr);
    QCOMPARE(pm.size(), QSize(int(16 * dpr), int(16 * dpr)));
    QCOMPARE(pm.devicePixelRatio(), dpr);
}

void tst_BzSvgRenderer::keepsAspectRatio() {
    // A 2:1 icon in a square is centred with empty bands above and below.
    BzSvgRenderer renderer(QStringLiteral("test-wide"));
    const QImage image = renderer.pixmap(QSize(24, 24), QColor(0, 0, 0)).toImage();
    QCOMPARE(image.size(), QSize(24, 24));
    QCOMPARE(qAlpha(image.pixel(12, 5)), 0);
    QCOMPARE(qAlpha(image.pixel(12, 6)), 255);
    QCOMPARE(qAlpha(image.pixel(0, 12)), 255);
    QCOMPARE(qAlpha(image.pixel(23, 17)), 255);
    QCOMPARE(qAlpha(image.pixel(12, 18)), 0);
}

void tst_BzSvgRenderer::pixmapSizeIsTruncated_data() {
    QTest::addColumn<QSize>("logical");
    QTest::addColumn<qreal>("dpr");
    QTest::addColumn<QSize>("device");

    QTest::newRow("15 x 1.25") << QSize(15, 15) << qreal(1.25) << QSize(18, 18);
    QTest::newRow("13 x 1.5") << QSize(13, 7) << qreal(1.5) << QSize(19, 10);
    QTest::newRow("45 x 1.4") << QSize(45, 45) << qreal(1.4) << QSize(63, 63);
}

void tst_BzSvgRenderer::pixmapSizeIsTruncated() {
    QFETCH(QSize, logical);
    QFETCH(qreal, dpr);
    QFETCH(QSize, device);

    BzSvgRenderer renderer(QStringLiteral("test-square"));
    const QPixmap pm = renderer.pixmap(logical, QColor(1, 2, 3), dpr);
    QCOMPARE(pm.size(), device);
    QCOMPARE(pm.devicePixelRatio(), dpr);
}

void tst_BzSvgRenderer::cacheReturnsSamePixmap() {
    BzSvgRenderer::clearCache();
    BzSvgRenderer a(QStringLiteral("test-square"));
    BzSvgRenderer b(QStringLiteral(":/Resources/test-square.svg"));
    const QPixmap first = a.pixmap(QSize(16, 16), QColor(10, 20, 30), 2.0);
    QVERIFY(!first.isNull());
    QCOMPARE(a.pixmap(QSize(16, 16), QColor(10, 20, 30), 2.0).cacheKey(), first.cacheKey());
    // The cache is shared by every renderer of the same icon.
    QCOMPARE(b.pixmap(QSize(16, 16), QColor(10, 20, 30), 2.0).cacheKey(), first.cacheKey());
    QCOMPARE(
        BzSvgRenderer::cachedPixmap(QStringLiteral("test-square"), QSize(16, 16), QColor(10, 20, 30), 2.0)
            .cacheKey(),
        first.cacheKey());

    // Any part of the key that differs means another pixmap.
    QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 31), 2.0).cacheKey() != first.cacheKey());
    QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 30, 254), 2.0).cacheKey() != first.cacheKey());
    QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 30), 1.0).cacheKey() != first.cacheKey());
    QVERIFY(a.pixmap(QSize(17, 16), QColor(10, 20, 30), 2.0).cacheKey() != first.cacheKey());
    QVERIFY(BzSvgRenderer(QStringLiteral("test-left-half"))
                .pixmap(QSize(16, 16), QColor(10, 20, 30), 2.0)
                .cacheKey() != first.cacheKey());

    BzSvgRenderer::clearCache();
    QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 30), 2.0).cacheKey() != first.cacheKey());
}

void tst_BzSvgRenderer::missingFileWarnsOnce() {
    const QString path = m_dir.filePath(QStringLiteral("does-not-exist.svg"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) +
                                                          QStringLiteral(".*cannot be opened")));
    BzSvgRenderer renderer;
    QVERIFY(!renderer.loadIconResource(path));
    QVERIFY(!renderer.isValid());
    QVERIFY(renderer.defaultSize().isEmpty());
    QCOMPARE(renderer.iconResource(), path);

    QImage image = transparentImage(QSize(16, 16));
    {
        QPainter p(&image);
        renderer.draw(&p, QRectF(0, 0, 16, 16), QColor(0, 0, 0));
    }
    QVERIFY(isFullyTransparent(image));
    QVERIFY(renderer.pixmap(QSize(16, 16), QColor(0, 0, 0), 1.0).isNull());

    // The same path again, from anywhere, stays quiet: failOnWarning is armed.
    BzSvgRenderer again(path);
    QVERIFY(!again.isValid());
    QVERIFY(BzSvgRenderer::cachedPixmap(path, QSize(16, 16), QColor(0, 0, 0)).isNull());
}

void tst_BzSvgRenderer::brokenFilesAreInvalid_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("truncated xml") << "truncated.svg"
                                   << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><rect");
    QTest::newRow("not svg") << "other.svg" << QByteArray("<html><body/></html>");
    QTest::newRow("empty") << "empty.svg" << QByteArray();
    QTest::newRow("binary") << "binary.svg" << QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11);
}

void tst_BzSvgRenderer::brokenFilesAreInvalid() {
    QFETCH(QString, name);
    QFETCH(QByteArray, content);

    const QString path = writeFile(name, content);
    QVERIFY(!path.isEmpty());
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) + QStringLiteral(".*not an SVG")));
    BzSvgRenderer renderer(path);
    QVERIFY(!renderer.isValid());
    QVERIFY(renderer.pixmap(QSize(16, 16), QColor(0, 0, 0)).isNull());
    QVERIFY(!BzSvgRenderer(path).isValid());
}

void tst_BzSvgRenderer::updateIconResourceSwitches() {
    BzSvgRenderer renderer(QStringLiteral("test-square"));
    QSignalSpy spy(&renderer, &BzSvgRenderer::iconResourceChanged);

    renderer.updateIconResource(QStringLiteral("test-square"));
    renderer.updateIconResource(QStringLiteral("qrc:/Resources/test-square.svg"));
    QCOMPARE(spy.count(), 0);

    renderer.updateIconResource(QStringLiteral("test-left-half"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(renderer.iconResource(), QStringLiteral(":/Resources/test-left-half.svg"));
    QImage image = transparentImage(QSize(16, 16));
    {
        QPainter p(&image);
        renderer.draw(&p, QRectF(0, 0, 16, 16), QColor(0, 0, 0));
    }
    QCOMPARE(qAlpha(image.pixel(12, 8)), 0);
    QCOMPARE(qAlpha(image.pixel(3, 8)), 255);

    renderer.setProperty("iconResource", QStringLiteral("test-wide"));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(renderer.defaultSize(), QSize(24, 12));
}

QTEST_MAIN(tst_BzSvgRenderer)
#include "tst_bzsvgrenderer.moc"
