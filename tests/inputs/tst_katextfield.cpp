#include "katextfield.h"
#include "katextfieldwithhint.h"

#include <accessibilityrecorder.h>
#include <buttontestutils.h>
#include <focusringtest.h>
#include <kaiconbutton.h>
#include <kalabel.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

// The frame is the field's first child widget: its painted background.
QColor frameFill(KaTextField& field) {
    return rendered(&field).pixelColor(field.width() - 4, 16);
}

KaIconButton* buttonNamed(KaTextField& field, const QString& name) {
    const auto buttons = field.findChildren<KaIconButton*>();
    for (KaIconButton* button : buttons) {
        if (button->accessibleName() == name)
            return button;
    }
    return nullptr;
}

} // namespace

class tst_KaTextField : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void characterLimit_data() {
        QTest::addColumn<int>("limit");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("counter");
        QTest::newRow("no limit") << 0 << QStringLiteral("abc") << QStringLiteral("defgh")
                                  << QStringLiteral("abcdefgh") << QStringLiteral("");
        QTest::newRow("typing stops at the limit") << 5 << QStringLiteral("abcdefg") << QStringLiteral("")
                                                   << QStringLiteral("abcde") << QStringLiteral("5/5");
        QTest::newRow("paste is cut at the limit") << 5 << QStringLiteral("ab") << QStringLiteral("cdefgh")
                                                   << QStringLiteral("abcde") << QStringLiteral("5/5");
        QTest::newRow("under the limit") << 10 << QStringLiteral("ab") << QStringLiteral("")
                                         << QStringLiteral("ab") << QStringLiteral("2/10");
        QTest::newRow("negative means none") << -3 << QStringLiteral("abc") << QStringLiteral("")
                                             << QStringLiteral("abc") << QStringLiteral("");
    }
    void characterLimit() {
        QFETCH(int, limit);
        QFETCH(QString, typed);
        QFETCH(QString, pasted);
        QFETCH(QString, text);
        QFETCH(QString, counter);
        KaTextField field;
        field.setCharacterLimit(limit);
        QTest::keyClicks(field.lineEdit(), typed);
        if (!pasted.isEmpty()) {
            QGuiApplication::clipboard()->setText(pasted);
            field.lineEdit()->paste();
        }
        QCOMPARE(field.text(), text);
        // The counter is the only label of a field without error or hint.
        const auto labels = field.findChildren<KaLabel*>();
        QStringList shown;
        for (KaLabel* label : labels) {
            if (!label->isHidden())
                shown << label->text() + QLatin1Char('|') + label->accessibleName();
        }
        const QStringList parts = counter.split(QLatin1Char('/'));
        const QStringList expected =
            counter.isEmpty()
                ? QStringList()
                : QStringList{counter + QStringLiteral("|%1 of %2 characters").arg(parts[0], parts[1])};
        QCOMPARE(shown, expected);
    }

    void limitAnnouncedOnce() {
        AccessibilityRecorder::RecordingScope scope;
        QWidget window;
        auto* field = new KaTextField(&window);
        field->setCharacterLimit(3);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::keyClicks(field->lineEdit(), QStringLiteral("abcde"));
        QCOMPARE(AccessibilityRecorder::announcements(field->lineEdit()).size(), 1);
    }

    void clearButton() {
        KaTextField field(nullptr, KaTextFieldEnum::Search, KaTextFieldEnum::Normal);
        field.show();
        QVERIFY(QTest::qWaitForWindowExposed(&field));
        KaIconButton* clear = buttonNamed(field, QStringLiteral("Clear text"));
        QVERIFY(clear);
        QVERIFY(!clear->isVisible());
        field.setText(QStringLiteral("report"));
        QVERIFY(clear->isVisible());
        QSignalSpy changed(&field, &KaTextField::textChanged);
        QTest::mouseClick(clear, Qt::LeftButton);
        QCOMPARE(field.text(), QString());
        QCOMPARE(changed.count(), 1);
        QVERIFY(!clear->isVisible());
        // Nothing to clear in a field that cannot be edited.
        field.setText(QStringLiteral("report"));
        field.setReadOnly(true);
        QVERIFY(!clear->isVisible());
    }

    void passwordToggle() {
        KaTextField field(nullptr, KaTextFieldEnum::Password, KaTextFieldEnum::Normal);
        field.show();
        QVERIFY(QTest::qWaitForWindowExposed(&field));
        QCOMPARE(field.lineEdit()->echoMode(), QLineEdit::Password);
        KaIconButton* eye = buttonNamed(field, QStringLiteral("Show password"));
        QVERIFY(eye && eye->isVisible());
        QSignalSpy visible(&field, &KaTextField::passwordVisibleChanged);
        QTest::mouseClick(eye, Qt::LeftButton);
        QCOMPARE(field.lineEdit()->echoMode(), QLineEdit::Normal);
        QCOMPARE(eye->accessibleName(), QStringLiteral("Hide password"));
        QCOMPARE(visible.count(), 1);
        field.setPasswordVisible(false);
        QVERIFY(!eye->isChecked());
        QCOMPARE(field.lineEdit()->echoMode(), QLineEdit::Password);
        // Other styles never hide what is typed.
        field.setStyle(KaTextFieldEnum::Standard);
        QCOMPARE(field.lineEdit()->echoMode(), QLineEdit::Normal);
        QVERIFY(!eye->isVisible());
    }

    void errorState() {
        AccessibilityRecorder::RecordingScope scope;
        QWidget window;
        auto* field = new KaTextField(&window);
        field->setGeometry(0, 0, 200, 60);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(frameFill(*field), colorOf("textinput-background"));

        field->setErrorText(QStringLiteral("Enter a date"));
        QCOMPARE(frameFill(*field), colorOf("textinput-error-background"));
        QAccessibleInterface* editor = QAccessible::queryAccessibleInterface(field->lineEdit());
        QCOMPARE(editor->text(QAccessible::Description), QStringLiteral("Enter a date"));
        QCOMPARE(AccessibilityRecorder::announcements(field->lineEdit()), QStringList{"Enter a date"});

        field->setErrorText(QString());
        QCOMPARE(frameFill(*field), colorOf("textinput-background"));
        QVERIFY(editor->text(QAccessible::Description).isEmpty());
        QCOMPARE(AccessibilityRecorder::announcements(field->lineEdit()).size(), 1);
    }

    void hintGivesWayToError() {
        KaTextFieldWithHint field;
        field.setLabelText(QStringLiteral("Team name"));
        field.setHintText(QStringLiteral("At least four characters"));
        QAccessibleInterface* editor = QAccessible::queryAccessibleInterface(field.lineEdit());
        QCOMPARE(editor->text(QAccessible::Name), QStringLiteral("Team name"));
        QCOMPARE(editor->text(QAccessible::Description), QStringLiteral("At least four characters"));
        field.setErrorText(QStringLiteral("Too short"));
        QCOMPARE(editor->text(QAccessible::Description), QStringLiteral("Too short"));
        field.setErrorText(QString());
        QCOMPARE(editor->text(QAccessible::Description), QStringLiteral("At least four characters"));
    }

    void accessibleName() {
        KaTextField field;
        field.setPlaceholderText(QStringLiteral("Search people"));
        QAccessibleInterface* editor = QAccessible::queryAccessibleInterface(field.lineEdit());
        QCOMPARE(editor->text(QAccessible::Name), QStringLiteral("Search people"));
        QCOMPARE(editor->role(), QAccessible::EditableText);
        // A name the host gave survives later placeholders.
        field.lineEdit()->setAccessibleName(QStringLiteral("Find"));
        field.setPlaceholderText(QStringLiteral("Name or email"));
        QCOMPARE(editor->text(QAccessible::Name), QStringLiteral("Find"));
    }

    void themeSwitch() {
        KaTextField field;
        field.resize(200, 32);
        const QColor light = colorOf("textinput-background");
        QCOMPARE(frameFill(field), light);
        switchTheme("dark");
        QCoreApplication::processEvents(); // the queued onThemeChanged()
        const QColor dark = colorOf("textinput-background", BzThemeUtils::Dark);
        QVERIFY(dark != light);
        QCOMPARE(frameFill(field), dark);
        QCOMPARE(field.lineEdit()->palette().color(QPalette::Text),
                 colorOf("textinput-text", BzThemeUtils::Dark));
    }

    void focusRing() {
        FocusRingTest::installStyle("global-focus-outline");
        QWidget window;
        auto* field = new KaTextField(&window);
        field->setGeometry(20, 20, 200, 32);
        window.resize(260, 80);
        QVERIFY(activated(window));
        // Focus from a click shows the ring too: typing goes there either way.
        QTest::mouseClick(field->lineEdit(), Qt::LeftButton);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));
        QCOMPARE(FocusRingTest::visibleRing(window)->geometry(), QRect(17, 17, 206, 38));
    }

    void badInput_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("size");
        QTest::newRow("style") << 9 << int(KaTextFieldEnum::Large);
        QTest::newRow("size") << int(KaTextFieldEnum::Search) << -1;
    }
    void badInput() {
        QFETCH(int, style);
        QFETCH(int, size);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^KaTextField: unknown"));
        KaTextField field(nullptr, KaTextFieldEnum::Style(style), KaTextFieldEnum::Size(size));
        QCOMPARE(int(field.style()), style == 9 ? int(KaTextFieldEnum::Standard) : style);
        QCOMPARE(int(field.size()), size == -1 ? int(KaTextFieldEnum::Normal) : size);
        QSignalSpy styles(&field, &KaTextField::styleChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setStyle: unknown style 42"));
        field.setStyle(KaTextFieldEnum::Style(42));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setSize: unknown size 7"));
        field.setSize(KaTextFieldEnum::Size(7));
        QCOMPARE(styles.count(), 0);
    }
};

QTEST_MAIN(tst_KaTextField)
#include "tst_katextfield.moc"
