#pragma once

#include "painteditemview.h"

#include <bzcolorset.h>

#include <QBrush>
#include <QColor>

#include <array>
#include <vector>

// Every colour token of the library as a swatch: the normal colour, the
// token's name and its six state colours. All swatches are painted by this
// one widget from colours resolved once per theme change. Screen readers get
// a list of the token names with their colours as descriptions.
class TokenSwatchView : public PaintedItemView {
    Q_OBJECT
public:
    explicit TokenSwatchView(QWidget* parent = nullptr);

    int tokenCount() const { return int(m_swatches.size()); }
    // How many tokens the current theme defines.
    int definedCount() const { return m_definedCount; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    int itemCount() const override { return tokenCount(); }
    QString itemName(int index) const override;
    // The state colours, or that the theme lacks the token.
    QString itemDescription(int index) const override;
    QRect itemRect(int index) const override { return cellRect(index); }
    int itemAt(const QPoint& pos) const override;

public Q_SLOTS:
    // Queued by the theme refresh: resolves and caches every token's colours.
    void onThemeChanged();

Q_SIGNALS:
    void colorsResolved();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Swatch {
        QString name;
        bool defined = false;
        std::array<QColor, BzColorSet::StateCount> colors;
    };

    QFont nameFont() const;
    void measure();
    int rowHeight() const;
    int minimumColumnWidth() const;
    int columnWidthFor(int width) const;
    int columnsFor(int width) const;
    int rowsFor(int columns) const;
    // In visual coordinates: mirrored for right-to-left.
    QRect cellRect(int index) const;
    void paintSwatch(QPainter* painter, const QRect& box, const QColor& color, bool defined) const;

    std::vector<Swatch> m_swatches;
    int m_definedCount = 0;
    int m_widestName = 0;
    QColor m_textColor;
    QColor m_missingTextColor;
    QColor m_outlineColor;
    QBrush m_checker;
};
