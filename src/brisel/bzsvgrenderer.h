#pragma once

#include "brisel_export.h"

#include <QColor>
#include <QObject>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>

#include <memory>

class QPainter;
class QSvgRenderer;

// Draws a monochrome SVG icon tinted with one colour.
//
// Icons are named by bare name ("check-regular", looked up as
// ":/Resources/check-regular.svg"), by resource path (":/..." or "qrc:/...")
// or by file path. Tinted pixmaps go through one process-wide cache keyed by
// path, device size, colour and pixel ratio, so repainting the same icon in
// the same colour does not render the SVG again. GUI thread only.
class BRISEL_EXPORT BzSvgRenderer : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString iconResource READ iconResource WRITE updateIconResource NOTIFY iconResourceChanged)
    Q_PROPERTY(bool valid READ isValid NOTIFY iconResourceChanged)
public:
    explicit BzSvgRenderer(QObject* parent = nullptr);
    explicit BzSvgRenderer(const QString& nameOrPath, QObject* parent = nullptr);
    ~BzSvgRenderer() override;

    // The path that `nameOrPath` stands for (see the class comment).
    static QString resolvePath(const QString& nameOrPath);

    // Loads the icon, replacing any previous one. A missing or unreadable
    // file warns once per path and leaves the renderer invalid.
    bool loadIconResource(const QString& nameOrPath);
    // Like loadIconResource(), but does nothing when the icon is already the
    // current one.
    void updateIconResource(const QString& nameOrPath);

    QString iconResource() const { return m_path; }
    bool isValid() const;
    // The icon's own size in logical pixels; empty when invalid.
    QSize defaultSize() const;

    // Draws the icon into `rect`, aspect ratio kept and centred, tinted with
    // `color` (its alpha included) at `opacity` on top of the painter's.
    void draw(QPainter* painter, const QRectF& rect, const QColor& color, qreal opacity = 1.0) const;
    // The tinted icon as a pixmap of toDevicePixels(logicalSize, dpr) with
    // that ratio set; null when invalid or empty.
    QPixmap pixmap(const QSize& logicalSize, const QColor& color, qreal devicePixelRatio = 1.0) const;

    // Cached tinted pixmap of any icon without keeping a renderer around.
    // An empty `logicalSize` uses the icon's own size.
    static QPixmap cachedPixmap(const QString& nameOrPath, const QSize& logicalSize, const QColor& color,
                                qreal devicePixelRatio = 1.0);
    // Drops every cached pixmap, e.g. after icon files were replaced on disk.
    static void clearCache();

Q_SIGNALS:
    void iconResourceChanged();

private:
    QPixmap tintedPixmap(const QSizeF& logicalSize, const QColor& color, qreal devicePixelRatio) const;

    QString m_path;
    std::unique_ptr<QSvgRenderer> m_renderer;
};
