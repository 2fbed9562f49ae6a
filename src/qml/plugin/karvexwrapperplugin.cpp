#include "karvextypes.h"

#include <QQmlExtensionPlugin>

// Loaded by the QML engine for `import KarvexWrapper 1.0` when the module
// directory is on its import path; registers the library's types, unless
// the host already did.
class KarvexWrapperPlugin : public QQmlExtensionPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override {
        if (qstrcmp(uri, "KarvexWrapper") != 0) {
            qWarning("KarvexWrapperPlugin: loaded as module %s; expected KarvexWrapper", uri);
            return;
        }
        KarvexTypes::registerQmlTypes();
    }
};

#include "karvexwrapperplugin.moc"
