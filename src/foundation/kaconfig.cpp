#include "kaconfig.h"

#include <QCoreApplication>

namespace KaConfig {

bool highContrast = false;
bool discoverabilityTagBorder = false;

namespace {
QString& caption() {
    static QString text;
    return text;
}
} // namespace

void setIsHighContrast(bool enabled) {
    highContrast = enabled;
}

void setDiscoverabilityCaption(const QString& text) {
    caption() = text;
}

QString discoverabilityCaption() {
    if (!caption().isEmpty())
        return caption();
    return QCoreApplication::translate("KaConfig", "New");
}

void setDiscoverabilityTagBorder(bool enabled) {
    discoverabilityTagBorder = enabled;
}

} // namespace KaConfig
