#pragma once

#include "painteditemview.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QPixmap>
#include <QStringList>

// A wrapping grid of SVG images with their names, painted in one widget.
// With tint colour sets, every image is drawn once per set and size as a
// monochrome icon in that set's colour; without, in its own colours (emoji).
// Screen readers get the images as a list of their names.
class IconSheet : public PaintedItemView {
    Q_OBJECT
public:
    explicit IconSheet(QWidget* parent = nullptr);

    void setImages(const QStringList& paths);
    int count() const { return int(m_paths.size()); }
    void setTintColorSets(const QStringList& names);
    void setImageSizes(const QList<int>& sizes);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    int itemCount() const override { return count(); }
    QString itemName(int index) const override { return m_names.value(index); }
    QRect itemRect(int index) const override { return cellRect(index); }
    int itemAt(const QPoint& pos) const override;

public Q_SLOTS:
    // Queued by the theme refresh: picks up the new tint and text colours.
    void onThemeChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QFont labelFont() const;
    int iconRowWidth() const;
    int maxImageSize() const;
    QSize cellSize() const;
    int columnsFor(int width) const;
    // In visual coordinates: mirrored for right-to-left.
    QRect cellRect(int index) const;
    QPixmap plainPixmap(const QString& path, int size, qreal devicePixelRatio) const;
    void relayout();

    QStringList m_paths;
    QStringList m_names;
    QStringList m_tintSets;
    QList<QColor> m_tints;
    QList<int> m_sizes{32};
    int m_widestName = 0;
    QColor m_textColor;
    QColor m_cardColor;
    mutable QHash<QString, QPixmap> m_plainCache;
};
