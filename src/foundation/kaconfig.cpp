#include "kaconfig.h"

#include <QApplication>
#include <QCoreApplication>
#include <QMetaObject>
#include <QWidget>

namespace KaConfig {

bool highContrast = false;
bool discoverabilityTagBorder = false;

namespace {
bool g_reducedMotion = false;

QString& caption() {
    static QString text;
    return text;
}
} // namespace

void setIsHighContrast(bool enabled) {
    highContrast = enabled;
}

void setReducedMotion(bool enabled) {
    if (g_reducedMotion == enabled)
        return;
    g_reducedMotion = enabled;
    // Rare, so a walk over the widgets is cheaper than a registry every
    // animated widget would have to join and leave.
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->metaObject()->indexOfSlot("onReducedMotionChanged()") >= 0)
            QMetaObject::invokeMethod(widget, "onReducedMotionChanged", Qt::QueuedConnection);
    }
}

bool reducedMotion() {
    return g_reducedMotion;
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
