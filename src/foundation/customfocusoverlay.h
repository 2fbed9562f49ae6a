#pragma once

#include "karvex_export.h"

#include <bzthemeutils.h>

#include <QColor>
#include <QWidget>

#include <string>

// The transparent widget that KaFocusStyle lays over a focused widget to
// paint the focus ring. It never takes mouse input and paints nothing but
// the ring, over its whole rectangle.
//
// Colours: the normal colour of each of the two colour sets, resolved for
// the overlay's theme type when it is created, reparented or told that the
// theme changed.
class KARVEX_EXPORT CustomFocusOverlay : public QWidget {
    Q_OBJECT
public:
    CustomFocusOverlay(const std::string& outerToken, const std::string& innerToken, bool opaque,
                       QWidget* parent = nullptr);

    // Corner radius of the ring's outer edge.
    void setRadius(double radius);
    double getRadius() const { return m_radius; }
    // 1 top-left, 2 top-right, 4 bottom-left, 8 bottom-right: square corners.
    void setRectangularCornerMask(unsigned char mask);
    unsigned char rectangularCornerMask() const { return m_cornerMask; }
    // Reparents and re-resolves the colours if the theme type changed with it.
    void setParent(QWidget* parent);

public Q_SLOTS:
    void onThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void loadBorderColor(bool force);

    double m_radius = 0;
    std::string m_outerToken;
    std::string m_innerToken;
    QColor m_outerColor;
    QColor m_innerColor;
    BzThemeUtils::AppThemeType m_themeType = BzThemeUtils::Global;
    bool m_opaque = false;
    unsigned char m_cornerMask = 0;
};
