#pragma once

#include "brisel_export.h"

#include <QColor>
#include <QMetaType>
#include <QObject>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>

class QPainter;

// An icon as widgets store it: which SVG, which colour set tints it, and at
// what logical size. The colour itself is resolved by the caller for the
// current theme and state and passed in; pixmaps come from BzSvgRenderer's
// shared cache.
class BRISEL_EXPORT BzSvgIcon {
    Q_GADGET
    Q_PROPERTY(QString path READ path WRITE setPath)
    Q_PROPERTY(QString colorSetName READ colorSetName WRITE setColorSetName)
    Q_PROPERTY(QSize size READ size WRITE setSize)
public:
    BzSvgIcon() = default;
    // `nameOrPath` as BzSvgRenderer::loadIconResource() takes it. An empty
    // size means the icon's own size.
    explicit BzSvgIcon(const QString& nameOrPath, const QString& colorSetName = QString(),
                       const QSize& size = QSize());

    bool isNull() const { return m_path.isEmpty(); }

    // The resolved path (":/Resources/<name>.svg" for a bare name).
    QString path() const { return m_path; }
    void setPath(const QString& nameOrPath);
    QString colorSetName() const { return m_colorSetName; }
    void setColorSetName(const QString& name) { m_colorSetName = name; }
    QSize size() const { return m_size; }
    void setSize(const QSize& size) { m_size = size; }

    // Null for a null icon or a file that cannot be rendered.
    QPixmap pixmap(const QColor& color, qreal devicePixelRatio = 1.0) const;
    // Draws the icon centred in `rect` at size() (or fitted to `rect` when the
    // size is empty or does not fit).
    void paint(QPainter* painter, const QRectF& rect, const QColor& color, qreal opacity = 1.0) const;

    friend bool operator==(const BzSvgIcon& a, const BzSvgIcon& b) {
        return a.m_path == b.m_path && a.m_colorSetName == b.m_colorSetName && a.m_size == b.m_size;
    }
    friend bool operator!=(const BzSvgIcon& a, const BzSvgIcon& b) { return !(a == b); }

private:
    QString m_path;
    QString m_colorSetName;
    QSize m_size;
};

Q_DECLARE_METATYPE(BzSvgIcon)
