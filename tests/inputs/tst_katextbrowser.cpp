#include "kascrollbarutils.h"
#include "katextbrowser.h"
#include "katextedit.h"

#include <buttontestutils.h>
#include <focusringtest.h>

#include <QAccessible>
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

class tst_KaTextBrowser : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

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

    void themeSwitch() {
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

QTEST_MAIN(tst_KaTextBrowser)
#include "tst_katextbrowser.moc"
