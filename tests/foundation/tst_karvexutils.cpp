#include "accessibilityrecorder.h"
#include "kaemojiutils.h"
#include "karvexutils.h"

#include <QTest>
#include <QWidget>

#include <QRegularExpression>
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

// "key@start+length" per cluster, joined by spaces.
QString describe(const QList<KaEmojiUtils::Cluster>& clusters) {
    QStringList parts;
    for (const KaEmojiUtils::Cluster& c : clusters)
        parts << QStringLiteral("%1@%2+%3").arg(c.key).arg(c.start).arg(c.length);
    return parts.join(QLatin1Char(' '));
}

QString emojiPath(const char* key) {
    return QStringLiteral(":/emojis/%1.svg").arg(QLatin1String(key));
}
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
    // (A widget deleted before its queued slot runs: tst_bzthememanager.)
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

    // KaEmojiUtils: clusters and their images.
    void clusters_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << QStringLiteral("Meeting room 4, floor #2 (a*b)") << QString();
        QTest::newRow("punctuation only")
            << QStringLiteral("\u201cquoted\u201d \u2013 text\u2026") << QString();
        QTest::newRow("one emoji") << QStringLiteral("a\U0001F44Db") << QStringLiteral("1f44d@1+2");
        QTest::newRow("skin tone") << QStringLiteral("\U0001F44D\U0001F3FD!")
                                   << QStringLiteral("1f44d-1f3fd@0+4");
        QTest::newRow("flag") << QStringLiteral("\U0001F1EF\U0001F1F5") << QStringLiteral("1f1ef-1f1f5@0+4");
        QTest::newRow("two flags") << QStringLiteral("\U0001F1EF\U0001F1F5\U0001F1EF\U0001F1F5")
                                   << QStringLiteral("1f1ef-1f1f5@0+4 1f1ef-1f1f5@4+4");
        QTest::newRow("lone regional indicator")
            << QStringLiteral("\U0001F1EFx") << QStringLiteral("1f1ef@0+2");
        QTest::newRow("zero-width joiner family")
            << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467")
            << QStringLiteral("1f468-200d-1f469-200d-1f467@0+8");
        QTest::newRow("joined with selectors") << QStringLiteral("x\U0001F3F3\uFE0F\u200D\U0001F308")
                                               << QStringLiteral("1f3f3-fe0f-200d-1f308@1+6");
        QTest::newRow("joiner before plain text")
            << QStringLiteral("\U0001F468\u200Dx") << QStringLiteral("1f468@0+2");
        QTest::newRow("keycap") << QStringLiteral("1\uFE0F\u20E3 2") << QStringLiteral("0031-fe0f-20e3@0+3");
        QTest::newRow("heart with selector")
            << QStringLiteral("\u2764\uFE0F") << QStringLiteral("2764-fe0f@0+2");
        QTest::newRow("tag sequence") << QStringLiteral("\U0001F3F4\U000E0067\U000E0062\U000E007F")
                                      << QStringLiteral("1f3f4-e0067-e0062-e007f@0+8");
    }

    void clusters() {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const QList<KaEmojiUtils::Cluster> found = KaEmojiUtils::clusters(text);
        QCOMPARE(describe(found), expected);
        // The quick test may say "maybe" for plain text, never "no" for emoji.
        if (!found.isEmpty())
            QVERIFY(KaEmojiUtils::mayContainEmoji(text));
    }

    void imagePath_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("path");
        QTest::newRow("single") << QStringLiteral("1f44d") << emojiPath("1f44d");
        QTest::newRow("sequence") << QStringLiteral("1f44d-1f3fd") << emojiPath("1f44d-1f3fd");
        QTest::newRow("selector dropped") << QStringLiteral("2764-fe0f") << emojiPath("2764");
        QTest::newRow("keycap selector dropped")
            << QStringLiteral("0031-fe0f-20e3") << emojiPath("0031-20e3");
        QTest::newRow("no image") << QStringLiteral("1f600") << QString();
        QTest::newRow("no image for the sequence") << QStringLiteral("1f44d-1f3ff") << QString();
    }

    void imagePath() {
        QFETCH(QString, key);
        QFETCH(QString, path);
        QCOMPARE(KaEmojiUtils::imagePath(key), path);
        if (!path.isEmpty())
            QVERIFY(KaEmojiUtils::isImageValid(path));
    }

    void corruptImage() {
        const QString path = KaEmojiUtils::imagePath(QStringLiteral("1f9ea"));
        QVERIFY(!path.isEmpty());
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("KaEmojiUtils: cannot read.*1f9ea")));
        QVERIFY(!KaEmojiUtils::isImageValid(path));
        // Asked again: no second warning (an unexpected one would fail here).
        QTest::failOnWarning(QRegularExpression(QStringLiteral("KaEmojiUtils")));
        QVERIFY(!KaEmojiUtils::isImageValid(path));
        const QImage empty = KaEmojiUtils::image(path, QSize(16, 16), 1.0).toImage();
        QCOMPARE(empty.size(), QSize(16, 16));
        QCOMPARE(empty.pixelColor(8, 8).alpha(), 0);
    }
};

QTEST_MAIN(tst_KarvexUtils)
#include "tst_karvexutils.moc"
