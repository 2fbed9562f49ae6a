#include "accessibilityrecorder.h"

#include <QAccessibleBridge>
#include <QAccessibleBridgePlugin>
#include <QtPlugin>

namespace AccessibilityRecorder {

namespace {

QList<Event>& store() {
    static QList<Event> list;
    return list;
}

void record(QAccessibleEvent* event) {
    Event entry{event->type(), event->object(), QVariant(), QAccessible::State()};
    if (event->type() == QAccessible::ValueChanged)
        entry.value = static_cast<QAccessibleValueChangeEvent*>(event)->value();
    else if (event->type() == QAccessible::StateChanged)
        entry.changedStates = static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
    store().append(entry);
}

class RecordingBridge : public QAccessibleBridge {
public:
    void setRootObject(QAccessibleInterface*) override {}
    void notifyAccessibilityUpdate(QAccessibleEvent* event) override { record(event); }
};

} // namespace

const QList<Event>& events() {
    return store();
}

void clear() {
    store().clear();
}

QList<Event> eventsFor(const QObject* object) {
    QList<Event> result;
    for (const Event& event : store()) {
        if (event.object == object)
            result.append(event);
    }
    return result;
}

QList<Event> eventsOfType(QAccessible::Event type, const QObject* object) {
    QList<Event> result;
    for (const Event& event : store()) {
        if (event.type == type && (!object || event.object == object))
            result.append(event);
    }
    return result;
}

QStringList announcements(const QObject* object) {
    QStringList result;
    for (const Event& event : eventsOfType(QAccessible::ValueChanged, object))
        result.append(event.value.toString());
    return result;
}

RecordingScope::RecordingScope()
    : m_previous(QAccessible::installUpdateHandler(record)) {
    clear();
}

RecordingScope::~RecordingScope() {
    QAccessible::installUpdateHandler(m_previous);
}

} // namespace AccessibilityRecorder

class AccessibilityRecorderPlugin : public QAccessibleBridgePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QAccessibleBridgeFactoryInterface_iid FILE "accessibilityrecorder.json")
public:
    // Qt keeps the bridges it asks for until exit and never deletes them.
    QAccessibleBridge* create(const QString&) override {
        static AccessibilityRecorder::RecordingBridge bridge;
        return &bridge;
    }
};

// Part of an object library, so this registration is linked into every test
// that uses the recorder without the test naming the plugin.
Q_IMPORT_PLUGIN(AccessibilityRecorderPlugin)

#include "accessibilityrecorder.moc"
