#include "kadiscoverabilitywidget.h"

#include "kadiscoverabilitylabel.h"

KaDiscoverabilityWidget::KaDiscoverabilityWidget(QWidget* parent)
    : BzWidget(parent)
    , m_label(new KaDiscoverabilityLabel(this)) {
    m_label->setObjectName(QStringLiteral("discoverabilityBadge"));
    m_label->setLabelType(m_type);
    m_label->hide();
    placeBadge();
}

KaDiscoverabilityWidget::~KaDiscoverabilityWidget() = default;

void KaDiscoverabilityWidget::setBadgeType(KaDiscoverabilityEnum::DiscoverabilityLabelType type) {
    if (type != KaDiscoverabilityEnum::IconWithBorder && type != KaDiscoverabilityEnum::IconBadge) {
        qWarning("KaDiscoverabilityWidget::setBadgeType: %d is not a badge look; ignored", int(type));
        return;
    }
    if (type == m_type)
        return;
    m_type = type;
    if (m_label) {
        m_label->setLabelType(type);
        m_label->setObjectName(QStringLiteral("discoverabilityBadge"));
        placeBadge();
    }
    Q_EMIT badgeTypeChanged();
}

void KaDiscoverabilityWidget::showDiscoverabilityBadge(bool show) {
    if (show == m_shown)
        return;
    m_shown = show;
    if (m_label) {
        m_label->setVisible(show);
        if (show)
            m_label->raise();
    }
    Q_EMIT badgeShownChanged();
}

void KaDiscoverabilityWidget::resizeEvent(QResizeEvent* event) {
    BzWidget::resizeEvent(event);
    placeBadge();
}

void KaDiscoverabilityWidget::placeBadge() {
    if (!m_label)
        return;
    const QRect own(QPoint(0, 0), m_label->size());
    m_label->setGeometry(own.translated(width() - m_label->width(), 0));
}
