#include "kaalertbadge.h"

KaAlertBadge::KaAlertBadge(QWidget* parent)
    : KaButton(parent, new KaAlertBadgeConfig) {
    m_config = qobject_cast<KaAlertBadgeConfig*>(buttonConfig());
    connectRefreshSlot();
    refresh();
}

KaAlertBadge::KaAlertBadge(const QString& text, KaBadgeEnum::Style style, QWidget* parent)
    : KaAlertBadge(parent) {
    setText(text);
    setStyle(style);
}

KaAlertBadge::~KaAlertBadge() = default;

KaBadgeEnum::Style KaAlertBadge::style() const {
    return m_config ? m_config->style() : KaBadgeEnum::DefaultBadge;
}

void KaAlertBadge::setStyle(KaBadgeEnum::Style style) {
    if (!m_config)
        return;
    const KaBadgeEnum::Style before = m_config->style();
    {
        const ConfigWrite write(this);
        m_config->setStyle(style);
    }
    const KaBadgeEnum::Style stored = m_config->style();
    if (stored == before)
        return;
    Q_EMIT styleChanged(stored);
    Q_EMIT refreshConfig();
    setLeftIcon(KaAlertBadgeConfig::iconPath(stored));
}

void KaAlertBadge::setIconPath(const QString& path) {
    setLeftIcon(path);
}

void KaAlertBadge::refresh() {
    KaAlertBadgeConfig::Geometry g;
    if (!m_config)
        return;
    m_config->fillGeometry(g);
    applyColors(g.colors, QString(), g.radius);
    IKaButton::refresh(g);
    setSvgIconSize(g.svgIconSize);
    setSvgIconAlignment(BzEnum::AlignLeft);
    setTextHorAlign(BzEnum::Left);
    const bool hasIcon = !leftIcon().isEmpty();
    setSvgIconVisible(hasIcon);
    setSvgIconTopLeftPadding(hasIcon ? QPoint(8, 0) : QPoint());
    setSvgIconSpacing(hasIcon ? 4 : 0);
    setTextLeftPadding(hasIcon ? 0 : 8);
    setTextRightPadding(8);
}
