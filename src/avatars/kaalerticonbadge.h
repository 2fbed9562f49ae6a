#pragma once

#include "kaalerticonbadgeconfig.h"
#include "kabutton.h"
#include "karvex_export.h"

// The alert badge without text: the style's icon on a 20 by 20 square in
// the style's colours. Screen readers hear what the style means, unless the
// host set an accessible name.
class KARVEX_EXPORT KaAlertIconBadge : public KaButton {
    Q_OBJECT
    Q_PROPERTY(KaBadgeEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)

public:
    explicit KaAlertIconBadge(QWidget* parent = nullptr,
                              KaBadgeEnum::Style style = KaBadgeEnum::Announcement);
    ~KaAlertIconBadge() override;

    // An unknown style warns and uses DefaultBadge, which has no icon.
    void setStyle(KaBadgeEnum::Style style);
    KaBadgeEnum::Style style() const;

Q_SIGNALS:
    void styleChanged(KaBadgeEnum::Style style);

protected Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void applyStyle();

    QPointer<KaAlertIconBadgeConfig> m_config;
};
