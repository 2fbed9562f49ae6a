#pragma once

#include "kadiscoverabilityenum.h"
#include "kadiscoverabilitylabel.h"
#include "karvex_export.h"

#include <bzwidget.h>

#include <QPointer>

// A host widget that pins a "new" badge ("discoverabilityBadge") to its
// top-right corner, above its other children. The badge starts hidden.
class KARVEX_EXPORT KaDiscoverabilityWidget : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(KaDiscoverabilityEnum::DiscoverabilityLabelType badgeType READ badgeType WRITE setBadgeType
                   NOTIFY badgeTypeChanged)
    Q_PROPERTY(bool badgeShown READ isBadgeShown WRITE showDiscoverabilityBadge NOTIFY badgeShownChanged)

public:
    explicit KaDiscoverabilityWidget(QWidget* parent = nullptr);
    ~KaDiscoverabilityWidget() override;

    // Only the badge looks IconWithBorder and IconBadge; anything else is
    // ignored with a warning.
    void setBadgeType(KaDiscoverabilityEnum::DiscoverabilityLabelType type);
    KaDiscoverabilityEnum::DiscoverabilityLabelType badgeType() const { return m_type; }

    void showDiscoverabilityBadge(bool show);
    bool isBadgeShown() const { return m_shown; }
    // Null once someone deleted it; the widget then does without.
    KaDiscoverabilityLabel* badge() const { return m_label; }

Q_SIGNALS:
    void badgeTypeChanged();
    void badgeShownChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeBadge();

    QPointer<KaDiscoverabilityLabel> m_label;
    KaDiscoverabilityEnum::DiscoverabilityLabelType m_type = KaDiscoverabilityEnum::IconBadge;
    bool m_shown = false;
};
