#include "karvexplugincollection.h"

#include "kaplugins.h"

KarvexPluginCollection::KarvexPluginCollection(QObject* parent)
    : QObject(parent) {
    // The plugins are children of the collection, which Designer keeps for
    // the whole session.
#define KARVEX_ADD_DESIGNER_PLUGIN(Widget, ObjectName, Properties, Editors)                                  \
    m_widgets.append(new KaPlugin_##Widget(this));
    KARVEX_DESIGNER_WIDGETS(KARVEX_ADD_DESIGNER_PLUGIN)
#undef KARVEX_ADD_DESIGNER_PLUGIN
}

QList<QDesignerCustomWidgetInterface*> KarvexPluginCollection::customWidgets() const {
    return m_widgets;
}
