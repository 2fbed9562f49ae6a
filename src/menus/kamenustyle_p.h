#pragma once

#include <QPointer>
#include <QProxyStyle>

class KaMenu;

// The style a KaMenu lays out and paints its entries with: no frame or
// panel of its own (the menu paints a popup bubble), a rounded highlight
// behind the active entry and one-pixel separators, all in the colours the
// menu resolved for its theme.
class KaMenuStyle : public QProxyStyle {
    Q_OBJECT
public:
    explicit KaMenuStyle(KaMenu* menu);

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

private:
    QPointer<KaMenu> m_menu;
};
