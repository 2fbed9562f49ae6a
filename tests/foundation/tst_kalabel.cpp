#include "kaannouncelabel.h"
#include "kalabel.h"

#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <testhelpers.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTest>
#include <QTextDocument>
#include <accessibilityrecorder.h>
#include <utility>

namespace {

// Counts the presses of one key that bubble up from a child (the modifier
// keys QTest presses first bubble up too and are not counted).
class KeyPressCounter : public QObject {
public:
    int key = 0;
    int presses = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == key)
            ++presses;
        return false;
    }
};

const char kSentinel[] = "clipboard before the key press";

} // namespace

class tst_KaLabel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void defaultColorSet_data() {
        QTest::addColumn<int>("constructor");
        QTest::newRow("parent") << 0;
        QTest::newRow("parent, role, flags") << 1;
        QTest::newRow("text, parent, role, flags") << 2;
    }

    void defaultColorSet() {
        QFETCH(int, constructor);
        QWidget parent;
        KaLabel* label = nullptr;
        switch (constructor) {
        case 0:
            label = new KaLabel(&parent);
            break;
        case 1:
            label = new KaLabel(&parent, QAccessible::StaticText, Qt::WindowFlags());
            break;
        default:
            label = new KaLabel(QStringLiteral("abc"), &parent, QAccessible::StaticText, Qt::WindowFlags());
            break;
        }
        QCOMPARE(label->textColorSetName(), QStringLiteral("label-primary-text"));
        QVERIFY(label->autoResize());
        const BzColorSet set = BzThemeUtils::getColorSet("label-primary-text");
        label->setText(QStringLiteral("HHH"));
        QCOMPARE(BzTest::textColour(*label).rgb(), set.normal().rgb());
        // The record names nothing but the text colour set.
        const BzCSSData record = label->getWCSS();
        QVERIFY(record.backgroundColorSet.isEmpty());
        QVERIFY(record.borderColorSet.isEmpty());
        QVERIFY(!record.hasAnyBorder());
    }

    void textColorSetName() {
        KaLabel label(QStringLiteral("abc"));
        label.setTextColorSetName(QStringLiteral("label-error-text"));
        QCOMPARE(label.textColorSetName(), QStringLiteral("label-error-text"));
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-error-text").normal().rgb());
        // The base layer keeps it on a theme switch without help from the label.
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-error-text", BzThemeUtils::Dark).normal().rgb());
    }

    void sizeHint_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("margin");
        QTest::addColumn<bool>("autoResize");
        QTest::addColumn<bool>("wordWrap");
        QTest::addColumn<int>("maxWidth");
        // -1: as QLabel; -2: the text's bounding width + 2 x margin + 1; else that width.
        QTest::addColumn<int>("expectedWidth");
        QTest::addColumn<bool>("labelHeight"); // height of QLabel::sizeHint

        const QString longText =
            QStringLiteral("A sentence long enough to need wrapping in a narrow label, surely.");
        QTest::newRow("abc, margin 5") << "abc" << 5 << true << false << QWIDGETSIZE_MAX << -2 << true;
        QTest::newRow("empty") << "" << 0 << true << false << QWIDGETSIZE_MAX << 1 << true;
        QTest::newRow("auto-resize off") << "abc" << 3 << false << false << QWIDGETSIZE_MAX << -1 << true;
        QTest::newRow("auto-resize off, wrap") << longText << 0 << false << true << 120 << -1 << true;
        QTest::newRow("wrap, no max width") << longText << 0 << true << true << QWIDGETSIZE_MAX << -1 << true;
        QTest::newRow("wrap, narrower max width") << longText << 0 << true << true << 120 << 120 << true;
        QTest::newRow("wrap, max width exactly reached") << "abc" << 0 << true << true << 0 << 0 << true;
        QTest::newRow("wrap, wide max width") << "abc" << 2 << true << true << 500 << -2 << true;
    }

    void sizeHint() {
        QFETCH(QString, text);
        QFETCH(int, margin);
        QFETCH(bool, autoResize);
        QFETCH(bool, wordWrap);
        QFETCH(int, maxWidth);
        QFETCH(int, expectedWidth);

        KaLabel label(text);
        label.setMargin(margin);
        label.setWordWrap(wordWrap);
        label.setAutoResize(autoResize);
        const int bounding = QFontMetrics(label.font()).boundingRect(text).width();
        if (maxWidth == 0) // "exactly reached": the maximum is the label's own width
            maxWidth = bounding + 1;
        label.setMaximumWidth(maxWidth);

        // A plain QLabel configured the same way gives the reference values.
        QLabel reference(text);
        reference.setFont(label.font());
        reference.setMargin(margin);
        reference.setWordWrap(wordWrap);
        reference.setMaximumWidth(maxWidth);
        const QSize plain = reference.sizeHint();

        const QSize hint = label.sizeHint();
        QCOMPARE(hint.height(), plain.height());
        if (expectedWidth == -1)
            QCOMPARE(hint, plain);
        else if (expectedWidth == -2)
            QCOMPARE(hint.width(), bounding + 2 * margin + 1);
        else
            QCOMPARE(hint.width(), expectedWidth == 0 ? maxWidth : expectedWidth);
    }

    void richTextWidth() {
        const QString html = QStringLiteral("<b>bold</b> and <i>italic</i>");
        KaLabel label(html);
        label.setTextFormat(Qt::RichText);
        QTextDocument document;
        document.setDefaultFont(label.font());
        document.setHtml(html);
        QCOMPARE(label.sizeHint().width(), int(document.size().width()) + 1);
        // Not the width of the markup itself.
        QVERIFY(label.sizeHint().width() < QFontMetrics(label.font()).boundingRect(html).width());
    }

    void copy_data() {
        QTest::addColumn<bool>("select");
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<bool>("copied");
        QTest::addColumn<bool>("passedOn");

        QTest::newRow("Ctrl+C with selection")
            << true << int(Qt::Key_C) << Qt::KeyboardModifiers(Qt::ControlModifier) << true << false;
        QTest::newRow("Ctrl+Shift+C")
            << true << int(Qt::Key_C) << Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier)
            << false << true;
        QTest::newRow("Ctrl+X") << true << int(Qt::Key_X) << Qt::KeyboardModifiers(Qt::ControlModifier)
                                << false << true;
        QTest::newRow("Ctrl+C without selection")
            << false << int(Qt::Key_C) << Qt::KeyboardModifiers(Qt::ControlModifier) << false << true;
    }

    void copy() {
        QFETCH(bool, select);
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(bool, copied);
        QFETCH(bool, passedOn);

        QClipboard* clipboard = QGuiApplication::clipboard();
        clipboard->setText(QString::fromLatin1(kSentinel), QClipboard::Clipboard);

        QWidget parent;
        KeyPressCounter counter;
        counter.key = key;
        parent.installEventFilter(&counter);
        KaLabel label(QStringLiteral("copy me please"), &parent);
        // Without a selection the label is not selectable at all, so QLabel
        // itself ignores the key and the parent shows whether it was passed on.
        if (select) {
            label.setTextInteractionFlags(Qt::TextSelectableByMouse);
            label.setSelection(5, 2);
        }
        QCOMPARE(label.hasSelectedText(), select);

        QTest::keyClick(&label, Qt::Key(key), modifiers);
        QCOMPARE(clipboard->text(QClipboard::Clipboard),
                 copied ? QStringLiteral("me") : QString::fromLatin1(kSentinel));
        // Keys the label does not take travel on to the parent.
        QCOMPARE(counter.presses > 0, passedOn);
    }

    // KaAnnounceLabel.
    void announcesChanges_data() {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("spoken");
        QTest::addColumn<bool>("shown");
        QTest::newRow("one change") << QStringList{QStringLiteral("Saved")}
                                    << QStringList{QStringLiteral("Saved")} << true;
        QTest::newRow("same text twice") << QStringList{QStringLiteral("Saved"), QStringLiteral("Saved")}
                                         << QStringList{QStringLiteral("Saved")} << true;
        QTest::newRow("cleared") << QStringList{QStringLiteral("Saved"), QString(), QStringLiteral(" ")}
                                 << QStringList{QStringLiteral("Saved")} << true;
        QTest::newRow("each change") << QStringList{QStringLiteral("1 result"), QStringLiteral("2 results")}
                                     << QStringList{QStringLiteral("1 result"), QStringLiteral("2 results")}
                                     << true;
        QTest::newRow("rich text is read as text") << QStringList{QStringLiteral("<b>3</b> results")}
                                                   << QStringList{QStringLiteral("3 results")} << true;
        QTest::newRow("hidden") << QStringList{QStringLiteral("Saved")} << QStringList() << false;
    }

    void announcesChanges() {
        QFETCH(QStringList, texts);
        QFETCH(QStringList, spoken);
        QFETCH(bool, shown);
        KaAnnounceLabel label;
        label.setVisible(shown);
        const AccessibilityRecorder::RecordingScope recording;
        QSignalSpy changed(&label, &KaAnnounceLabel::textChanged);
        for (const QString& text : texts)
            label.setText(text);
        QCOMPARE(AccessibilityRecorder::announcements(&label), spoken);
        QCOMPARE(label.text(), texts.last());
        int changes = 0;
        QString previous;
        for (const QString& text : texts)
            changes += std::exchange(previous, text) != text;
        QCOMPARE(changed.count(), changes);
    }

    void designerTextProperty() {
        KaAnnounceLabel label;
        label.show();
        const AccessibilityRecorder::RecordingScope recording;
        QVERIFY(label.setProperty("text", QStringLiteral("Text")));
        QCOMPARE(label.text(), QStringLiteral("Text"));
        QCOMPARE(AccessibilityRecorder::announcements(&label), QStringList{QStringLiteral("Text")});
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Text"));
        QCOMPARE(iface->role(), QAccessible::StaticText);
    }

    void followsTheme() {
        KaAnnounceLabel label;
        label.setText(QStringLiteral("HHH"));
        QCOMPARE(BzTest::textColour(label).rgb(), BzTest::set("label-primary-text").normal().rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("highContrast"));
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::HighContrast).normal().rgb());
    }
};

QTEST_MAIN(tst_KaLabel)
#include "tst_kalabel.moc"
