#include "bzsvgrenderer.h"

#include "drawutils.h"

#include <QCache>
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

const QString kResourcePrefix = QStringLiteral(":/Resources/");

// A plain struct key: building a formatted string per lookup cost more than
// the draw itself for small icons.
struct PixmapKey {
    QString path;
    QSize deviceSize;
    QRgb rgba;
    qreal dpr;
    bool operator==(const PixmapKey& o) const {
        return deviceSize == o.deviceSize && rgba == o.rgba && dpr == o.dpr && path == o.path;
    }
};

size_t qHash(const PixmapKey& k, size_t seed = 0) {
    return qHashMulti(seed, k.path, k.deviceSize.width(), k.deviceSize.height(), k.rgba, k.dpr);
}

QCache<PixmapKey, QPixmap>& pixmapCache() {
    // Cost in KiB: room for a few thousand small icons.
    static QCache<PixmapKey, QPixmap> cache(16 * 1024);
    static const bool cleanupRegistered = [] {
        // Pixmaps must not outlive the GUI application.
        qAddPostRoutine([] { pixmapCache().clear(); });
        return true;
    }();
    Q_UNUSED(cleanupRegistered);
    return cache;
}

// Reports a broken icon once per path; icons are drawn on every repaint and
// a warning per paint would drown everything else.
void warnOnce(const QString& path, const char* problem) {
    static QSet<QString> warned;
    if (warned.contains(path))
        return;
    warned.insert(path);
    qWarning("BzSvgRenderer: icon \"%s\" %s", qUtf8Printable(path), problem);
}

// QSvgRenderer reports parse errors through its own logging, several lines
// per file; checking the XML first keeps it to our single warning.
bool looksLikeSvg(const QByteArray& data) {
    if (data.startsWith("\x1f\x8b")) // compressed; leave it to QSvgRenderer
        return true;
    QXmlStreamReader xml(data);
    bool sawRoot = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!sawRoot && xml.isStartElement()) {
            if (xml.name() != QLatin1String("svg"))
                return false;
            sawRoot = true;
        }
    }
    return sawRoot && !xml.hasError();
}

PixmapKey cacheKey(const QString& path, const QSize& deviceSize, const QColor& color, qreal dpr) {
    return PixmapKey{path, deviceSize, color.rgba(), dpr};
}

} // namespace

BzSvgRenderer::BzSvgRenderer(QObject* parent)
    : QObject(parent) {}

BzSvgRenderer::BzSvgRenderer(const QString& nameOrPath, QObject* parent)
    : QObject(parent) {
    loadIconResource(nameOrPath);
}

BzSvgRenderer::~BzSvgRenderer() = default;

QString BzSvgRenderer::resolvePath(const QString& nameOrPath) {
    const QString s = nameOrPath.trimmed();
    if (s.isEmpty())
        return QString();
    if (s.startsWith(QLatin1String("qrc:/")))
        return s.mid(3);
    if (s.startsWith(QLatin1String(":/")))
        return s;
    if (s.startsWith(QLatin1String("file:")))
        return QUrl(s).toLocalFile();
    if (s.contains(QLatin1Char('/')) || s.contains(QLatin1Char('\\')))
        return s;
    // A bare name: one of the bundled icons.
    if (s.endsWith(QLatin1String(".svg")) || s.endsWith(QLatin1String(".svgz")))
        return kResourcePrefix + s;
    return kResourcePrefix + s + QLatin1String(".svg");
}

bool BzSvgRenderer::loadIconResource(const QString& nameOrPath) {
    const QString path = resolvePath(nameOrPath);
    const bool wasValid = isValid();
    const bool pathChanged = path != m_path;
    m_path = path;
    m_renderer.reset();

    if (!path.isEmpty()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            warnOnce(path, "cannot be opened");
        } else {
            const QByteArray data = file.readAll();
            if (!looksLikeSvg(data)) {
                warnOnce(path, "is not an SVG document");
            } else {
                auto renderer = std::make_unique<QSvgRenderer>(data);
                if (renderer->isValid())
                    m_renderer = std::move(renderer);
                else
                    warnOnce(path, "cannot be rendered");
            }
        }
    }

    if (pathChanged || wasValid != isValid())
        Q_EMIT iconResourceChanged();
    return isValid();
}

void BzSvgRenderer::updateIconResource(const QString& nameOrPath) {
    if (resolvePath(nameOrPath) == m_path)
        return;
    loadIconResource(nameOrPath);
}

bool BzSvgRenderer::isValid() const {
    return m_renderer && m_renderer->isValid();
}

QSize BzSvgRenderer::defaultSize() const {
    return isValid() ? m_renderer->defaultSize() : QSize();
}

void BzSvgRenderer::draw(QPainter* painter, const QRectF& rect, const QColor& color, qreal opacity) const {
    if (!painter) {
        qWarning("BzSvgRenderer: draw() without a painter");
        return;
    }
    if (!isValid() || rect.isEmpty() || !color.isValid() || color.alpha() == 0 || !(opacity > 0))
        return;
    const QPaintDevice* device = painter->device();
    const qreal dpr = device ? device->devicePixelRatioF() : 1.0;
    const QPixmap pm = tintedPixmap(rect.size(), color, dpr);
    if (pm.isNull())
        return;
    painter->save();
    painter->setOpacity(painter->opacity() * std::min(opacity, qreal(1)));
    painter->drawPixmap(rect.topLeft(), pm);
    painter->restore();
}

QPixmap BzSvgRenderer::pixmap(const QSize& logicalSize, const QColor& color, qreal devicePixelRatio) const {
    return tintedPixmap(QSizeF(logicalSize), color, devicePixelRatio);
}

QPixmap BzSvgRenderer::tintedPixmap(const QSizeF& logicalSize, const QColor& color,
                                    qreal devicePixelRatio) const {
    if (!isValid() || !color.isValid() || logicalSize.isEmpty())
        return QPixmap();
    if (!(devicePixelRatio > 0)) {
        qWarning("BzSvgRenderer: invalid device pixel ratio %g, using 1", devicePixelRatio);
        devicePixelRatio = 1.0;
    }
    const QSize deviceSize = DrawUtils::toDevicePixels(logicalSize, devicePixelRatio);
    if (deviceSize.isEmpty())
        return QPixmap();

    QCache<PixmapKey, QPixmap>& cache = pixmapCache();
    const PixmapKey key = cacheKey(m_path, deviceSize, color, devicePixelRatio);
    if (const QPixmap* cached = cache.object(key))
        return *cached;

    // Render at device resolution so the result maps 1:1 onto device pixels.
    QImage image(deviceSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter p(&image);
        p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        QSizeF natural = m_renderer->viewBoxF().size();
        if (natural.isEmpty())
            natural = m_renderer->defaultSize();
        QRectF target(QPointF(0, 0), QSizeF(deviceSize));
        if (!natural.isEmpty()) {
            const QSizeF fitted = natural.scaled(target.size(), Qt::KeepAspectRatio);
            target = QRectF(QPointF((deviceSize.width() - fitted.width()) / 2,
                                    (deviceSize.height() - fitted.height()) / 2),
                            fitted);
        }
        m_renderer->render(&p, target);
        // Keep the icon's coverage, replace its colours.
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(image.rect(), color);
    }
    QPixmap result = QPixmap::fromImage(std::move(image));
    result.setDevicePixelRatio(devicePixelRatio);

    const qsizetype cost =
        std::max<qsizetype>(1, qsizetype(deviceSize.width()) * deviceSize.height() * 4 / 1024);
    if (cost <= cache.maxCost())
        cache.insert(key, new QPixmap(result), cost);
    return result;
}

QPixmap BzSvgRenderer::cachedPixmap(const QString& nameOrPath, const QSize& logicalSize, const QColor& color,
                                    qreal devicePixelRatio) {
    // Painting asks with the same few names over and over: resolve each once
    // instead of building its path on every paint.
    static QHash<QString, QString> paths;
    auto known = paths.constFind(nameOrPath);
    if (known == paths.cend()) {
        if (paths.size() >= 256)
            paths.clear();
        known = paths.insert(nameOrPath, resolvePath(nameOrPath));
    }
    const QString path = *known;
    if (path.isEmpty() || !color.isValid())
        return QPixmap();
    if (!logicalSize.isEmpty() && devicePixelRatio > 0) {
        const QSize deviceSize = DrawUtils::toDevicePixels(QSizeF(logicalSize), devicePixelRatio);
        if (const QPixmap* cached = pixmapCache().object(cacheKey(path, deviceSize, color, devicePixelRatio)))
            return *cached;
    }
    const BzSvgRenderer renderer(path);
    const QSize size = logicalSize.isEmpty() ? renderer.defaultSize() : logicalSize;
    return renderer.pixmap(size, color, devicePixelRatio);
}

void BzSvgRenderer::clearCache() {
    pixmapCache().clear();
}
