#include "bzsvgicon.h"
#include "bzsvgrenderer.h"
#include "drawutils.h"
#include "testhelpers.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using BzTest::canvas;

namespace {

QImage drawn(const BzSvgRenderer& renderer, const QColor& color, qreal opacity = 1.0,
             qreal painterOpacity = 1.0) {
    QImage image = canvas(QSize(16, 16));
    QPainter p(&image);
    p.setOpacity(painterOpacity);
    renderer.draw(&p, QRectF(0, 0, 16, 16), color, opacity);
    if (p.opacity() != painterOpacity)
        qWarning("draw() left the painter's opacity changed");
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
    QTemporaryDir m_dir;

    QString writeFile(const QString& name, const QByteArray& content) {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return QString();
        return file.fileName();
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void resolvePath_data() {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        const char* const rows[][2] = {{"check-regular", ":/Resources/check-regular.svg"},
                                       {"check-regular.svg", ":/Resources/check-regular.svg"},
                                       {":/Resources/x.svg", ":/Resources/x.svg"},
                                       {"qrc:/Resources/x.svg", ":/Resources/x.svg"},
                                       {"/tmp/icons/x.svg", "/tmp/icons/x.svg"},
                                       {"icons/x.svg", "icons/x.svg"},
                                       {"file:///tmp/x.svg", "/tmp/x.svg"},
                                       {"", ""}};
        for (const auto& row : rows)
            QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
    }
    void resolvePath() {
        QFETCH(QString, input);
        QFETCH(QString, expected);
        QCOMPARE(BzSvgRenderer::resolvePath(input), expected);
    }

    void loads() {
        BzSvgRenderer renderer;
        QVERIFY(renderer.loadIconResource(QStringLiteral("test-square")));
        QVERIFY(renderer.isValid());
        QCOMPARE(renderer.iconResource(), QStringLiteral(":/Resources/test-square.svg"));
        QCOMPARE(renderer.defaultSize(), QSize(16, 16));
        QCOMPARE(BzSvgRenderer(QStringLiteral("qrc:/Resources/test-wide.svg")).defaultSize(), QSize(24, 12));
        const QString path = writeFile(QStringLiteral("disk.svg"),
                                       "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
                                       "<rect width='8' height='8'/></svg>");
        QVERIFY(!path.isEmpty());
        QCOMPARE(BzSvgRenderer(path).defaultSize(), QSize(8, 8));
    }

    void paintsShapeInRequestedColour_data() {
        QTest::addColumn<QColor>("color");
        QTest::newRow("opaque green") << QColor(10, 200, 30);
        QTest::newRow("half transparent blue") << QColor(20, 40, 240, 128);
        QTest::newRow("faint red") << QColor(250, 0, 0, 40);
    }
    void paintsShapeInRequestedColour() {
        QFETCH(QColor, color);
        // The artwork is black; only its coverage may survive the tint.
        const QImage image = drawn(BzSvgRenderer(QStringLiteral("test-left-half")), color);
        for (const QPoint& pt : {QPoint(0, 0), QPoint(3, 8), QPoint(7, 15)}) {
            const QColor got = image.pixelColor(pt);
            // Unpremultiplying low alphas loses precision.
            const int tolerance = color.alpha() == 255 ? 0 : 255 / color.alpha() + 1;
            QVERIFY2(qAbs(got.alpha() - color.alpha()) <= 1 && qAbs(got.red() - color.red()) <= tolerance &&
                         qAbs(got.green() - color.green()) <= tolerance &&
                         qAbs(got.blue() - color.blue()) <= tolerance,
                     qPrintable(got.name(QColor::HexArgb)));
        }
        QCOMPARE(qAlpha(image.pixel(8, 8)), 0);
        QCOMPARE(qAlpha(image.pixel(15, 15)), 0);
    }

    void opacityScalesAlpha() {
        const BzSvgRenderer renderer(QStringLiteral("test-square"));
        QVERIFY(qAbs(qAlpha(drawn(renderer, Qt::red, 0.5).pixel(8, 8)) - 128) <= 1);
        // Multiplies with the painter's own, which is left as it was.
        QVERIFY(qAbs(qAlpha(drawn(renderer, Qt::red, 0.5, 0.5).pixel(8, 8)) - 64) <= 1);
        QVERIFY(isFullyTransparent(drawn(renderer, Qt::red, 0.0)));
    }

    void sharpAtDevicePixelRatio_data() {
        QTest::addColumn<qreal>("dpr");
        QTest::newRow("1.25") << qreal(1.25);
        QTest::newRow("2") << qreal(2.0);
    }
    void sharpAtDevicePixelRatio() {
        QFETCH(qreal, dpr);
        BzSvgRenderer renderer(QStringLiteral("test-square"));
        QImage image = canvas(QSize(32, 32), dpr);
        {
            QPainter p(&image);
            renderer.draw(&p, QRectF(8, 8, 16, 16), QColor(0, 0, 0));
        }
        // Logical [8, 24) covers device [8 * dpr, 24 * dpr): fully opaque up to
        // the edge, nothing outside. A pixmap rendered at the logical size and
        // scaled up would blur the edges.
        const int first = int(8 * dpr);
        const int last = int(24 * dpr) - 1;
        for (int i = first; i <= last; ++i) {
            for (const QPoint& in : {QPoint(first, i), QPoint(last, i), QPoint(i, first), QPoint(i, last)})
                QCOMPARE(qAlpha(image.pixel(in)), 255);
            for (const QPoint& out :
                 {QPoint(first - 1, i), QPoint(last + 1, i), QPoint(i, first - 1), QPoint(i, last + 1)})
                QCOMPARE(qAlpha(image.pixel(out)), 0);
        }
        // Pixmaps are sized like every other device-pixel buffer (truncated).
        const QPixmap pm = renderer.pixmap(QSize(15, 13), QColor(0, 0, 0), dpr);
        QCOMPARE(pm.size(), DrawUtils::toDevicePixels(QSizeF(15, 13), dpr));
        QCOMPARE(pm.devicePixelRatio(), dpr);
    }

    void keepsAspectRatio() {
        // A 2:1 icon in a square is centred with empty bands above and below.
        const QImage image =
            BzSvgRenderer(QStringLiteral("test-wide")).pixmap(QSize(24, 24), Qt::black).toImage();
        QCOMPARE(image.size(), QSize(24, 24));
        QCOMPARE(qAlpha(image.pixel(12, 5)), 0);
        QCOMPARE(qAlpha(image.pixel(12, 6)), 255);
        QCOMPARE(qAlpha(image.pixel(0, 12)), 255);
        QCOMPARE(qAlpha(image.pixel(23, 17)), 255);
        QCOMPARE(qAlpha(image.pixel(12, 18)), 0);
    }

    void cacheIsSharedAndKeyedOnEverything() {
        BzSvgRenderer::clearCache();
        BzSvgRenderer a(QStringLiteral("test-square"));
        const QColor c(10, 20, 30);
        const qint64 first = a.pixmap(QSize(16, 16), c, 2.0).cacheKey();
        QCOMPARE(a.pixmap(QSize(16, 16), c, 2.0).cacheKey(), first);
        // Shared by every renderer of the icon, whatever the spelling.
        QCOMPARE(BzSvgRenderer(QStringLiteral(":/Resources/test-square.svg"))
                     .pixmap(QSize(16, 16), c, 2.0)
                     .cacheKey(),
                 first);
        QCOMPARE(BzSvgRenderer::cachedPixmap(QStringLiteral("test-square"), QSize(16, 16), c, 2.0).cacheKey(),
                 first);
        // Any part of the key that differs means another pixmap.
        QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 31), 2.0).cacheKey() != first);
        QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 30, 254), 2.0).cacheKey() != first);
        QVERIFY(a.pixmap(QSize(16, 16), c, 1.0).cacheKey() != first);
        QVERIFY(a.pixmap(QSize(17, 16), c, 2.0).cacheKey() != first);
        QVERIFY(BzSvgRenderer(QStringLiteral("test-left-half")).pixmap(QSize(16, 16), c, 2.0).cacheKey() !=
                first);
        BzSvgRenderer::clearCache();
        QVERIFY(a.pixmap(QSize(16, 16), c, 2.0).cacheKey() != first);
    }

    void missingFileWarnsOnce() {
        const QString path = m_dir.filePath(QStringLiteral("does-not-exist.svg"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) +
                                                              QStringLiteral(".*cannot be opened")));
        BzSvgRenderer renderer;
        QVERIFY(!renderer.loadIconResource(path));
        QVERIFY(!renderer.isValid());
        QVERIFY(renderer.defaultSize().isEmpty());
        QCOMPARE(renderer.iconResource(), path);
        QVERIFY(isFullyTransparent(drawn(renderer, Qt::black)));
        QVERIFY(renderer.pixmap(QSize(16, 16), Qt::black, 1.0).isNull());
        // The same path again, from anywhere, stays quiet: failOnWarning is armed.
        QVERIFY(!BzSvgRenderer(path).isValid());
        QVERIFY(BzSvgRenderer::cachedPixmap(path, QSize(16, 16), Qt::black).isNull());
    }

    void brokenFilesAreInvalid_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("truncated xml")
            << "truncated.svg" << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><rect");
        QTest::newRow("not svg") << "other.svg" << QByteArray("<html><body/></html>");
        QTest::newRow("empty") << "empty.svg" << QByteArray();
        QTest::newRow("binary") << "binary.svg" << QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11);
    }
    void brokenFilesAreInvalid() {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        const QString path = writeFile(name, content);
        QVERIFY(!path.isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) +
                                                              QStringLiteral(".*not an SVG")));
        BzSvgRenderer renderer(path);
        QVERIFY(!renderer.isValid());
        QVERIFY(renderer.pixmap(QSize(16, 16), Qt::black).isNull());
        QVERIFY(!BzSvgRenderer(path).isValid());
    }

    void updateIconResourceSwitches() {
        BzSvgRenderer renderer(QStringLiteral("test-square"));
        QSignalSpy spy(&renderer, &BzSvgRenderer::iconResourceChanged);
        renderer.updateIconResource(QStringLiteral("test-square"));
        renderer.updateIconResource(QStringLiteral("qrc:/Resources/test-square.svg"));
        QCOMPARE(spy.count(), 0);
        renderer.updateIconResource(QStringLiteral("test-left-half"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(renderer.iconResource(), QStringLiteral(":/Resources/test-left-half.svg"));
        const QImage image = drawn(renderer, Qt::black);
        QCOMPARE(qAlpha(image.pixel(12, 8)), 0);
        QCOMPARE(qAlpha(image.pixel(3, 8)), 255);
        renderer.setProperty("iconResource", QStringLiteral("test-wide"));
        QCOMPARE(spy.count(), 2);
        QCOMPARE(renderer.defaultSize(), QSize(24, 12));
    }

    // BzSvgIcon: an icon name with its renderer.

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

QTEST_MAIN(tst_BzSvgRenderer)
#include "tst_bzsvgrenderer.moc"
