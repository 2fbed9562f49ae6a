#include "kamenustyle_p.h"

#include "kamenu.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace {
// A separator is a one-pixel line with this much room above and below.
constexpr int kSeparatorMargin = 4;
} // namespace

KaMenuStyle::KaMenuStyle(KaMenu* menu)
    // A base of its own: QProxyStyle adopts its base, so it must never be
    // the application's style.
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    , m_menu(menu) {
    setParent(menu);
}

int KaMenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_MenuPanelWidth:
    case PM_MenuHMargin:
    case PM_MenuVMargin:
    case PM_MenuDesktopFrameWidth:
        // The menu's contents margins leave room for the bubble and arrow.
        return 0;
    case PM_SubMenuOverlap:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int KaMenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
    switch (hint) {
    case SH_Menu_AllowActiveAndDisabled:
        return 0;
    case SH_Menu_FadeOutOnHide:
    case SH_Menu_Mask:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QSize KaMenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const {
    if (type == CT_MenuItem) {
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
            item && item->menuItemType == QStyleOptionMenuItem::Separator)
            return QSize(size.width(), 1 + 2 * kSeparatorMargin);
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

void KaMenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element == PE_PanelMenu || element == PE_FrameMenu)
        return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void KaMenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuItem || !item || !m_menu) {
        if (element == CE_MenuEmptyArea)
            return;
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const KaMenu::Colors& colors = m_menu->colors();
    if (item->menuItemType == QStyleOptionMenuItem::Separator) {
        const int y = item->rect.top() + item->rect.height() / 2;
        painter->fillRect(QRect(item->rect.left(), y, item->rect.width(), 1), colors.separator);
        return;
    }
    const bool enabled = item->state & State_Enabled;
    if ((item->state & State_Selected) && enabled) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->setPen(Qt::NoPen);
        painter->setBrush(colors.hovered);
        const qreal r = std::min<qreal>(m_menu->radius(), item->rect.height() / 2.0);
        painter->drawRoundedRect(QRectF(item->rect), r, r);
        painter->restore();
    }
    // Entries that are widgets paint themselves; plain actions get their
    // text from the base style, without its own highlight.
    if (item->text.isEmpty() && item->icon.isNull())
        return;
    QStyleOptionMenuItem plain(*item);
    plain.state &= ~State_Selected;
    plain.palette.setColor(QPalette::Text, colors.text);
    plain.palette.setColor(QPalette::WindowText, colors.text);
    plain.palette.setColor(QPalette::ButtonText, colors.text);
    plain.palette.setColor(QPalette::Window, Qt::transparent);
    plain.palette.setColor(QPalette::Button, Qt::transparent);
    QProxyStyle::drawControl(element, &plain, painter, widget);
}
