#include "kamenuaction.h"

#include "kamenuitem.h"
#include "kamenuitemcontainer.h"
#include "kamenuitemdata.h"

KaMenuAction::KaMenuAction(QObject* parent)
    : QWidgetAction(parent) {
    connect(this, &QAction::toggled, this, &KaMenuAction::syncChecked);
    connect(this, &QAction::changed, this, [this] {
        if (m_item)
            m_item->setCheckable(isCheckable());
    });
}

KaMenuAction::~KaMenuAction() = default;

void KaMenuAction::setDefaultWidget(QWidget* widget) {
    if (!widget) {
        qWarning("KaMenuAction: null entry widget; ignored");
        return;
    }
    QWidgetAction::setDefaultWidget(widget);
    m_item = qobject_cast<KaMenuItem*>(widget);
    if (!m_item) {
        if (auto* container = qobject_cast<KaMenuItemContainer*>(widget))
            m_item = qobject_cast<KaMenuItem*>(container->widget());
    }
    if (!m_item)
        return;
    m_item->setCheckable(isCheckable());
    m_item->setChecked(isChecked());
    m_item->setAlert(m_alert);
    m_item->setDisabledState(!isEnabled());
    if (text().isEmpty())
        setText(m_item->title());
}

KaMenuItem* KaMenuAction::menuItem() const {
    return m_item;
}

void KaMenuAction::applyData(const KaMenuItemData& record) {
    if (!defaultWidget())
        setDefaultWidget(new KaMenuItem);
    if (!record.objectName.isEmpty())
        setObjectName(record.objectName);
    setText(record.title);
    setToolTip(record.tooltip);
    setCheckable(record.checkable);
    setChecked(record.checked);
    setEnabled(record.enabled);
    setAlert(record.isAlert);
    setFirstAction(record.firstAction);
    if (m_item)
        m_item->applyData(record);
}

void KaMenuAction::setTitle(const QString& title) {
    setText(title);
    if (m_item)
        m_item->setTitle(title);
}

void KaMenuAction::setEnabled(bool enabled) {
    QAction::setEnabled(enabled);
    if (m_item)
        m_item->setDisabledState(!enabled);
}

void KaMenuAction::setVisible(bool visible) {
    QAction::setVisible(visible);
}

void KaMenuAction::setAlert(bool alert) {
    m_alert = alert;
    if (m_item)
        m_item->setAlert(alert);
}

void KaMenuAction::setFirstAction(bool first) {
    m_firstAction = first;
}

void KaMenuAction::setActionIconVisible(bool visible) {
    if (m_item)
        m_item->setActionIconVisible(visible);
}

void KaMenuAction::showDiscoverabilityLabel(bool show) {
    if (m_item)
        m_item->setDiscoverabilityLabel(show);
}

void KaMenuAction::setGroupSeparator(bool on) {
    m_groupSeparator = on;
    if (on)
        setSeparator(true);
}

void KaMenuAction::setDiscoverabilityBanner(bool on) {
    m_banner = on;
}

void KaMenuAction::onHover(bool hovered) {
    if (m_item)
        m_item->setHoverState(hovered);
}

void KaMenuAction::syncChecked(bool checked) {
    if (m_item)
        m_item->setChecked(checked);
}
