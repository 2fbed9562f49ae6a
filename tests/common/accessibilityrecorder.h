#pragma once

// Records the accessibility events the library sends, for tests that check
// announcements, state changes and focus events. Linking the recorder
// library is enough: it brings a static bridge plugin that Qt loads on its
// own. Qt only hands events to bridges when no update handler is installed
// and a screen reader is active, so tests also install the recorder as the
// update handler with a RecordingScope.

#include <QAccessible>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace AccessibilityRecorder {

struct Event {
    QAccessible::Event type;
    QObject* object;                  // may be dangling by the time a test reads it: compare only
    QVariant value;                   // ValueChanged only
    QAccessible::State changedStates; // StateChanged only
};

// Every event since the last clear(), oldest first.
const QList<Event>& events();
void clear();

QList<Event> eventsFor(const QObject* object);
QList<Event> eventsOfType(QAccessible::Event type, const QObject* object = nullptr);
// The texts passed to KarvexUtils::announce() (value-change events).
QStringList announcements(const QObject* object = nullptr);

// Installs the recorder as the update handler and clears the record;
// restores the previous handler on destruction.
class RecordingScope {
public:
    RecordingScope();
    ~RecordingScope();
    RecordingScope(const RecordingScope&) = delete;
    RecordingScope& operator=(const RecordingScope&) = delete;

private:
    QAccessible::UpdateHandler m_previous;
};

} // namespace AccessibilityRecorder
