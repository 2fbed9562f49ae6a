#include "kascrollbarutils.h"
#include "katextbrowser.h"
#include "katextedit.h"
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
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <bzthemeutils.h>

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

// The colour the first link of `browser` is drawn in.
QColor linkColour(const QTextBrowser& browser) {
    for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isAnchor())
                return it.fragment().charFormat().foreground().color();
        }
    }
    return QColor();
}
} // namespace

class tst_Inputs : public QObject {
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

    // KaTextBrowser.
    void linksOnlyReport_data() {
        QTest::addColumn<bool>("keyboard");
        QTest::newRow("click") << false;
        QTest::newRow("tab and enter") << true;
    }
    void linksOnlyReport() {
        QFETCH(bool, keyboard);
        KaTextBrowser browser;
        browser.resize(300, 120);
        browser.setHtml(QStringLiteral("<p><a href=\"https://example.com/notes\">notes</a> and more</p>"));
        browser.show();
        QApplication::setActiveWindow(&browser);
        QVERIFY(QTest::qWaitForWindowActive(&browser));
        QSignalSpy clicked(&browser, &QTextBrowser::anchorClicked);
        if (keyboard) {
            browser.setFocus();
            QTest::keyClick(&browser, Qt::Key_Tab);
            QTest::keyClick(&browser, Qt::Key_Return);
        } else {
            const QRect link = browser.cursorRect(QTextCursor(browser.document()->findBlockByNumber(0)));
            QTest::mouseClick(browser.viewport(), Qt::LeftButton, {}, link.center() + QPoint(8, 0));
        }
        QTRY_COMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().toUrl(), QUrl(QStringLiteral("https://example.com/notes")));
        // Still showing the same text: nothing was opened.
        QVERIFY(browser.toPlainText().startsWith(QLatin1String("notes and more")));
        QVERIFY(browser.source().isEmpty());
    }

    void browserThemeSwitch() {
        KaTextBrowser browser;
        browser.resize(200, 80);
        browser.setHtml(QStringLiteral("<a href=\"x:y\">link</a>"));
        QTRY_COMPARE(linkColour(browser), colorOf("button-hyperlink-text"));
        const QColor light = rendered(&browser).pixelColor(0, 40);
        QCOMPARE(light, colorOf("separator-primary"));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&browser).pixelColor(0, 40), colorOf("separator-primary", BzThemeUtils::Dark));
        QCOMPARE(linkColour(browser), colorOf("button-hyperlink-text", BzThemeUtils::Dark));
        QCOMPARE(browser.palette().color(QPalette::Text), colorOf("label-primary-text", BzThemeUtils::Dark));
    }

    // KaTextEdit.
    void textEditThemeSwitch() {
        KaTextEdit edit;
        edit.resize(200, 100);
        QCOMPARE(rendered(&edit).pixelColor(100, 50), colorOf("textinput-background"));
        QCOMPARE(rendered(&edit).pixelColor(0, 50), colorOf("textinput-border"));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&edit).pixelColor(100, 50), colorOf("textinput-background", BzThemeUtils::Dark));
        QCOMPARE(edit.palette().color(QPalette::PlaceholderText),
                 colorOf("textinput-placeholder-text", BzThemeUtils::Dark));
        QVERIFY(edit.verticalScrollBar()->styleSheet().contains(
            BzThemeUtils::colorToCss(colorOf("scrollbar-thumb-background", BzThemeUtils::Dark))));
    }

    void textEditFocusRingAroundFrame() {
        FocusRingTest::installStyle("global-focus-outline");
        QWidget window;
        auto* edit = new KaTextEdit(&window);
        edit->setGeometry(20, 20, 200, 100);
        window.resize(260, 160);
        QVERIFY(activated(window));
        edit->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));
        QCOMPARE(FocusRingTest::visibleRing(window)->geometry(), QRect(17, 17, 206, 106));
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(edit);
        QCOMPARE(a11y->role(), QAccessible::EditableText);
        QVERIFY(a11y->state().focused);
    }

    // KaScrollbarUtils: the scroll bars of the text views.
    void sheet_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("orientations");
        QTest::addColumn<QString>("shortest");
        QTest::newRow("light, small, vertical")
            << int(BzThemeUtils::Light) << 0 << int(Qt::Vertical) << "min-height:24px";
        QTest::newRow("dark, normal, vertical")
            << int(BzThemeUtils::Dark) << 1 << int(Qt::Vertical) << "min-height:40px";
        QTest::newRow("contrast, both")
            << int(BzThemeUtils::HighContrast) << 1 << int(Qt::Vertical | Qt::Horizontal) << "min-width:40px";
    }
    void sheet() {
        QFETCH(int, type);
        QFETCH(int, size);
        QFETCH(int, orientations);
        QFETCH(QString, shortest);
        const auto theme = BzThemeUtils::AppThemeType(type);
        const QString sheet = KaScrollbarUtils::getScrollBarStyleSheet(KaScrollbarEnum::MinimumSize(size),
                                                                       theme, Qt::Orientations(orientations));
        QVERIFY(!sheet.contains(QLatin1String("$(")));
        QVERIFY(sheet.contains(shortest));
        const QString thumb = BzThemeUtils::colorToCss(colorOf("scrollbar-thumb-background", theme));
        QVERIFY2(sheet.contains(QStringLiteral("handle:vertical{background:") + thumb), qPrintable(sheet));
        QCOMPARE(sheet.contains(QLatin1String(":horizontal")), bool(orientations & Qt::Horizontal));
    }

    void unknownSizeCountsAsNormal() {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("unknown minimum size 5"));
        QCOMPARE(KaScrollbarUtils::getScrollBarTemplate(KaScrollbarEnum::MinimumSize(5)),
                 KaScrollbarUtils::getScrollBarTemplate(KaScrollbarEnum::Normal));
    }

    void appliedBarsFollowThemeSwitch() {
        QPlainTextEdit area;
        KaScrollbarUtils::applyScrollBarStyle(&area);
        const QString dark =
            BzThemeUtils::colorToCss(colorOf("scrollbar-track-background", BzThemeUtils::Dark));
        QVERIFY(!area.verticalScrollBar()->styleSheet().contains(dark));
        switchTheme("dark");
        QVERIFY(area.verticalScrollBar()->styleSheet().contains(dark));
        QVERIFY(area.horizontalScrollBar()->styleSheet().contains(dark));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("null scroll area"));
        KaScrollbarUtils::applyScrollBarStyle(nullptr);
    }
};

QTEST_MAIN(tst_Inputs)
#include "tst_inputs.moc"
