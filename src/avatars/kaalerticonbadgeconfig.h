#pragma once

#include "kaalertbadgeconfig.h"
#include "karvex_export.h"

// The icon-only alert badge: the alert badge's colours and icon on a
// 20 by 20 square with 4 px corners.
class KARVEX_EXPORT KaAlertIconBadgeConfig : public KaAlertBadgeConfig {
    Q_OBJECT
public:
    explicit KaAlertIconBadgeConfig(QObject* parent = nullptr);
    ~KaAlertIconBadgeConfig() override;

    void fillGeometry(Geometry& out) const override;
};
