#include "accessibilityrecorder.h"
#include "karvexutils.h"

#include <QTest>
#include <QWidget>

#include <memory>
#include <tuple>

namespace {

struct KeyRecord {
    QEvent::Type type;
    int key;
    QString text;
    Qt::KeyboardModifiers modifiers;
    bool autoRepeat;
    int count;
    bool operator==(const KeyRecord& o) const {
        return std::tie(type, key, text, modifiers, autoRepeat, count) ==
               std::tie(o.type, o.key, o.text, o.modifiers, o.autoRepeat, o.count);
    }
};

// Records the key events that reach a widget; optionally reacts to one key
// by simulating another, as the check-box group does.
class KeyRecorder : public QObject {
public:
    QList<KeyRecord> keys;
    int remapFrom = -1; // no key
    Qt::Key remapTo = Qt::Key_unknown;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto* key = static_cast<QKeyEvent*>(event);
            keys.append(
                {key->type(), key->key(), key->text(), key->modifiers(), key->isAutoRepeat(), key->count()});
            if (key->type() == QEvent::KeyPress && key->key() == remapFrom)
                KarvexUtils::simulateKeyEvent(static_cast<QWidget*>(watched), remapTo);
            return true;
        }
        return false;
    }
};

class PropertyChangeCounter : public QObject {
public:
    int cssChanges = 0;
    int otherChanges = 0;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::DynamicPropertyChange) {
            if (static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == "css")
                ++cssChanges;
            else
                ++otherChanges;
        }
        return false;
    }
};

} // namespace

// A themable component as the refresh sees it: it has an onThemeChanged()
// slot. The count lives outside so that it can be read after deletion.
class ThemedWidget : public QWidget {
    Q_OBJECT
public:
    explicit ThemedWidget(int* calls, QWidget* parent = nullptr)
        : QWidget(parent)
        , m_calls(calls) {}

public Q_SLOTS:
    void onThemeChanged() { ++*m_calls; }

private:
    int* m_calls;
};

class tst_KarvexUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void announce_data() {
        QTest::addColumn<bool>("widget");
        QTest::addColumn<QString>("text");
        QTest::newRow("object") << false << QStringLiteral("Menu opened");
        QTest::newRow("widget") << true << QStringLiteral("Page 2 of 5");
        QTest::newRow("empty text") << false << QString();
    }

    void announce() {
        QFETCH(bool, widget);
        QFETCH(QString, text);

        const AccessibilityRecorder::RecordingScope recording;
        std::unique_ptr<QObject> object(widget ? new QWidget : new QObject);
        PropertyChangeCounter properties;
        object->installEventFilter(&properties);

        KarvexUtils::announce(object.get(), text);

        // Delivered at once, as a value change carrying the text.
        const QList<AccessibilityRecorder::Event> events = AccessibilityRecorder::eventsFor(object.get());
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().type, QAccessible::ValueChanged);
        QCOMPARE(events.first().value.metaType(), QMetaType::fromType<QString>());
        QCOMPARE(events.first().value.toString(), text);
        // Announcing must not touch the object's properties (that would restyle it).
        QCOMPARE(properties.cssChanges + properties.otherChanges, 0);
        QVERIFY(object->dynamicPropertyNames().isEmpty());
    }

    void announceNullObject() {
        const AccessibilityRecorder::RecordingScope recording;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("announce")));
        KarvexUtils::announce(nullptr, QStringLiteral("nobody"));
        QVERIFY(AccessibilityRecorder::events().isEmpty());
    }

    void simulateKeyEvent_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("pressText");
        QTest::newRow("letter") << int(Qt::Key_A) << QStringLiteral("A");
        QTest::newRow("unknown") << int(Qt::Key_unknown) << QString();
    }

    void simulateKeyEvent() {
        QFETCH(int, key);
        QFETCH(QString, pressText);

        QWidget target;
        KeyRecorder recorder;
        target.installEventFilter(&recorder);

        KarvexUtils::simulateKeyEvent(&target, Qt::Key(key));
        QVERIFY2(recorder.keys.isEmpty(), "delivered synchronously instead of posted");

        QTRY_COMPARE(recorder.keys.size(), 2);
        // Plain press with the key's text, then a release without text.
        QVERIFY(recorder.keys.at(0) ==
                (KeyRecord{QEvent::KeyPress, key, pressText, Qt::NoModifier, false, 1}));
        QVERIFY(recorder.keys.at(1) ==
                (KeyRecord{QEvent::KeyRelease, key, QString(), Qt::NoModifier, false, 1}));
    }

    // Turning one key into another from inside the target's own event handling:
    // the new key arrives after the old key's release.
    void simulateKeyEventKeepsOrderFromHandlers() {
        QWidget target;
        KeyRecorder recorder;
        recorder.remapFrom = Qt::Key_Tab;
        recorder.remapTo = Qt::Key_Down;
        target.installEventFilter(&recorder);

        KarvexUtils::simulateKeyEvent(&target, Qt::Key_Tab);
        QTRY_COMPARE(recorder.keys.size(), 4);
        QList<int> keys;
        for (const KeyRecord& record : recorder.keys)
            keys << record.key * (record.type == QEvent::KeyPress ? 1 : -1);
        QCOMPARE(keys, (QList<int>{Qt::Key_Tab, -Qt::Key_Tab, Qt::Key_Down, -Qt::Key_Down}));
    }

    void simulateKeyEventNullTarget() {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("simulateKeyEvent")));
        KarvexUtils::simulateKeyEvent(nullptr, Qt::Key_A);
        QCoreApplication::processEvents();
    }

    void simulateKeyEventTargetDeleted() {
        KeyRecorder doomedKeys;
        KeyRecorder survivorKeys;
        auto* doomed = new QWidget;
        QWidget survivor;
        doomed->installEventFilter(&doomedKeys);
        survivor.installEventFilter(&survivorKeys);
        KarvexUtils::simulateKeyEvent(doomed, Qt::Key_A);
        KarvexUtils::simulateKeyEvent(&survivor, Qt::Key_A);
        delete doomed;
        // Posted after the doomed one's keys: once they arrive, those had their turn.
        QTRY_COMPARE(survivorKeys.keys.size(), 2);
        QVERIFY(doomedKeys.keys.isEmpty());
    }

    void updateThemes_data() {
        QTest::addColumn<QVariant>("css");
        QTest::addColumn<bool>("themed");
        const QVariant css(QStringLiteral("QWidget { background: $(panel-primary-background); }"));
        QTest::newRow("css and slot") << css << true;
        QTest::newRow("empty css") << QVariant(QString()) << true;
        QTest::newRow("css, no slot") << css << false;
        QTest::newRow("neither") << QVariant() << false;
    }

    // A non-empty "css" is written again (unchanged); the slot is queued, once.
    // (A widget deleted before its queued slot runs: tst_bzthemeutils.)
    void updateThemes() {
        QFETCH(QVariant, css);
        QFETCH(bool, themed);
        int calls = 0;
        std::unique_ptr<QWidget> widget(themed ? new ThemedWidget(&calls) : new QWidget);
        if (css.isValid())
            widget->setProperty("css", css);
        PropertyChangeCounter properties;
        widget->installEventFilter(&properties);
        const bool rewritten = !css.toString().isEmpty();

        KarvexUtils::updateSolvaneThemes();

        QCOMPARE(properties.cssChanges > 0, rewritten);
        QCOMPARE(properties.otherChanges, 0);
        QCOMPARE(widget->property("css"), css);
        QCOMPARE(calls, 0); // queued, not called
        if (themed)
            QTRY_COMPARE(calls, 1);
    }
};

QTEST_MAIN(tst_KarvexUtils)
#include "tst_karvexutils.moc"
