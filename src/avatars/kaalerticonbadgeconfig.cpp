#include "kaalerticonbadgeconfig.h"

KaAlertIconBadgeConfig::KaAlertIconBadgeConfig(QObject* parent)
    : KaAlertBadgeConfig(parent) {}

KaAlertIconBadgeConfig::~KaAlertIconBadgeConfig() = default;

void KaAlertIconBadgeConfig::fillGeometry(Geometry& out) const {
    KaAlertBadgeConfig::fillGeometry(out);
    out.fixedWidth = out.fixedHeight;
}
