#include "kaoverlaybutton.h"

#include <QEvent>

KaOverlayButton::KaOverlayButton(QWidget* parent)
    : IKaButton(parent, new KaOverlayButtonConfig)
    , m_overlayConfig(qobject_cast<KaOverlayButtonConfig*>(buttonConfig())) {
    m_overlayConfig->setParent(this);
    // A None overlay would be invisible: start as the expand arrow.
    m_overlayConfig->setType(KaOverlayButtonEnum::ExpandAreaOverlay);
    connectRefreshSlot();
    updateDefaultAccessibleName();
    refresh();
}

KaOverlayButton::KaOverlayButton(QWidget* parent, KaOverlayButtonEnum::Type type,
                                 KaOverlayButtonEnum::Size size)
    : KaOverlayButton(parent) {
    setSize(size);
    setType(type);
}

KaOverlayButton::~KaOverlayButton() = default;

void KaOverlayButton::setSize(KaOverlayButtonEnum::Size size) {
    if (!writeConfig(m_overlayConfig.data(), &KaOverlayButtonConfig::size, &KaOverlayButtonConfig::setSize,
                     size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

KaOverlayButtonEnum::Size KaOverlayButton::size() const {
    return m_overlayConfig ? m_overlayConfig->size() : KaOverlayButtonEnum::Normal;
}

void KaOverlayButton::setType(KaOverlayButtonEnum::Type type) {
    if (!writeConfig(m_overlayConfig.data(), &KaOverlayButtonConfig::type, &KaOverlayButtonConfig::setType,
                     type))
        return;
    updateDefaultAccessibleName();
    Q_EMIT typeChanged(type);
    Q_EMIT refreshConfig();
}

KaOverlayButtonEnum::Type KaOverlayButton::type() const {
    return m_overlayConfig ? m_overlayConfig->type() : KaOverlayButtonEnum::None;
}

void KaOverlayButton::refresh() {
    KaOverlayButtonConfig::Geometry g;
    if (!applyGeometry(m_overlayConfig.data(), g))
        return;
    setSvgIcon(g.svgIcon);
    setSvgIconSize(g.svgIconSize);
    setSvgIconAlignment(g.svgIconAlignment);
    setSvgIconVisible(!g.svgIcon.isEmpty());
    setAnchorIconVisible(false);
    if (g.fixedHeight > 0) {
        setFixedWidth(g.fixedHeight);
        setFocusBorderRadius(g.fixedHeight / 2.0);
    }
}

void KaOverlayButton::updateDefaultAccessibleName() {
    QString name;
    if (type() == KaOverlayButtonEnum::ExpandAreaOverlay)
        name = tr("Expand");
    else if (type() == KaOverlayButtonEnum::CollapseAreaOverlay)
        name = tr("Collapse");
    setDefaultAccessibleName(name);
}

void KaOverlayButton::changeEvent(QEvent* event) {
    IKaButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        updateDefaultAccessibleName();
}
