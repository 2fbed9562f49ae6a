#include "kaalerticonbadge.h"

#include <QCoreApplication>

namespace {
// Indexed by KaBadgeEnum::Style.
const char* const kStyleNames[] = {
    QT_TRANSLATE_NOOP("KaAlertIconBadge", "badge"),
    QT_TRANSLATE_NOOP("KaAlertIconBadge", "announcement"),
    QT_TRANSLATE_NOOP("KaAlertIconBadge", "external user"),
    QT_TRANSLATE_NOOP("KaAlertIconBadge", "important"),
    QT_TRANSLATE_NOOP("KaAlertIconBadge", "blocked"),
};
} // namespace

KaAlertIconBadge::KaAlertIconBadge(QWidget* parent, KaBadgeEnum::Style style)
    : KaButton(parent, new KaAlertIconBadgeConfig) {
    m_config = qobject_cast<KaAlertIconBadgeConfig*>(buttonConfig());
    setSvgIconAlignment(BzEnum::AlignCenter);
    connectRefreshSlot();
    refresh();
    if (m_config && m_config->style() == style)
        applyStyle();
    else
        setStyle(style);
}

KaAlertIconBadge::~KaAlertIconBadge() = default;

KaBadgeEnum::Style KaAlertIconBadge::style() const {
    return m_config ? m_config->style() : KaBadgeEnum::DefaultBadge;
}

void KaAlertIconBadge::setStyle(KaBadgeEnum::Style style) {
    if (!m_config)
        return;
    const KaBadgeEnum::Style before = m_config->style();
    {
        const ConfigWrite write(this);
        m_config->setStyle(style);
    }
    if (m_config->style() == before)
        return;
    Q_EMIT styleChanged(m_config->style());
    Q_EMIT refreshConfig();
    applyStyle();
}

void KaAlertIconBadge::applyStyle() {
    const KaBadgeEnum::Style style = m_config->style();
    setLeftIcon(KaAlertBadgeConfig::iconPath(style));
    setDefaultAccessibleName(QCoreApplication::translate("KaAlertIconBadge", kStyleNames[style]));
}

void KaAlertIconBadge::refresh() {
    if (!m_config)
        return;
    KaAlertBadgeConfig::Geometry g;
    m_config->fillGeometry(g);
    applyColors(g.colors, QString(), g.radius);
    IKaButton::refresh(g);
    setSvgIconSize(g.svgIconSize);
    setSvgIconVisible(!leftIcon().isEmpty());
    setFixedOrFreeWidth(g.fixedWidth);
}
