#include "focusringtest.h"
#include "kaannouncelabel.h"
#include "kacolortokenutils.h"
#include "kaconfig.h"
#include "kaemojilabel.h"
#include "kagiflabel.h"
#include "kalabel.h"
#include "kamultiplelinklabel.h"

#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <testhelpers.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTest>
#include <QTextDocument>
#include <QVBoxLayout>
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

const QString kText = QStringLiteral("By joining you accept the <a href=\"terms\">Terms</a>, the "
                                     "<a href=\"privacy\">Privacy <b>notice</b></a> and the "
                                     "<a href=\"rules\">House rules</a>.");

// A field, the label and a field, in tab order.
struct Form {
    QWidget window;
    QLineEdit* before = new QLineEdit(&window);
    KaMultipleLinkLabel* label = new KaMultipleLinkLabel(kText, &window);
    QLineEdit* after = new QLineEdit(&window);
    Form() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(label);
        layout->addWidget(after);
        window.show();
    }
};

QColor linkColour(BzThemeUtils::AppThemeType type) {
    return BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::hyperlink_accent_text), type)
        .normal();
}

// 16 by 16, three solid frames (red, green, blue) of 30 ms each, looping.
QString threeFrames() {
    return QFINDTESTDATA("../buttons/data/three-frames.gif");
}

struct Shown {
    QWidget window;
    KaGifLabel* label = new KaGifLabel(&window);
    Shown() {
        label->setFileName(threeFrames());
        label->move(10, 10);
        window.resize(80, 60);
        window.show();
    }
};

// Painted pixels close to `colour` (the emoji images' own colours).
QRect boxNear(const QImage& image, const QColor& colour) {
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() == 255 && BzTest::near(image.pixelColor(x, y), colour, 8))
                box |= QRect(x, y, 1, 1);
    return box;
}

const QColor kThumbYellow(0xFF, 0xC9, 0x4A);
} // namespace

class tst_KaLabel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }
    void cleanup() {
        qApp->setProperty("isKeyboardFocus", QVariant());
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        KaConfig::setReducedMotion(false);
    }

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

    // KaMultipleLinkLabel.
    void links() {
        KaMultipleLinkLabel label;
        QCOMPARE(label.focusPolicy(), Qt::NoFocus);
        QSignalSpy spy(&label, &KaMultipleLinkLabel::textChanged);
        QVERIFY(label.setProperty("text", kText));
        label.setText(kText);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(label.text(), kText);
        QCOMPARE(label.linkCount(), 3);
        QCOMPARE(label.linkText(1), QStringLiteral("Privacy notice"));
        QCOMPARE(label.linkHref(2), QStringLiteral("rules"));
        QCOMPARE(label.linkHref(3), QString());
        QCOMPARE(label.focusPolicy(), Qt::StrongFocus);
        label.resize(label.sizeHint());
        // Links lie left to right on one line, inside the label.
        QVERIFY(label.rect().contains(label.linkRect(2)));
        QVERIFY(label.linkRect(0).right() < label.linkRect(1).left());
        QCOMPARE(label.linkAt(label.linkRect(1).center()), 1);
        QCOMPARE(label.linkAt(QPoint(1, 1)), -1);
        // Fewer links: the current one stays in range.
        label.setCurrentLink(2);
        label.setText(QStringLiteral("Only <a href=\"one\">one</a> link"));
        QCOMPARE(label.currentLink(), 0);
        label.setText(QStringLiteral("No links"));
        QCOMPARE(label.currentLink(), -1);
        QCOMPARE(label.focusPolicy(), Qt::NoFocus);
        label.activateLink(0); // nothing to activate, nothing happens
    }

    void keyboard_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }

    void keyboard() {
        QFETCH(int, key);
        Form form;
        QVERIFY(QTest::qWaitForWindowExposed(&form.window));
        form.before->setFocus();
        QSignalSpy activated(form.label, &QLabel::linkActivated);
        QStringList hrefs;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), form.label);
            QCOMPARE(form.label->currentLink(), i);
            QTest::keyClick(form.label, Qt::Key(key));
            hrefs << activated.last().at(0).toString();
        }
        QCOMPARE(hrefs,
                 (QStringList{QStringLiteral("terms"), QStringLiteral("privacy"), QStringLiteral("rules")}));
        QTest::keyClick(form.label, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), form.after);
        // Shift+Tab comes back in at the last link and walks backwards.
        QTest::keyClick(form.after, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), form.label);
        QCOMPARE(form.label->currentLink(), 2);
        QTest::keyClick(form.label, Qt::Key_Backtab);
        QCOMPARE(form.label->currentLink(), 1);
        QTest::keyClick(form.label, Qt::Key_Backtab);
        QTest::keyClick(form.label, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), form.before);
        QCOMPARE(activated.count(), 3);
    }

    void mouse() {
        Form form;
        QVERIFY(QTest::qWaitForWindowExposed(&form.window));
        QSignalSpy activated(form.label, &QLabel::linkActivated);
        QSignalSpy hovered(form.label, &QLabel::linkHovered);
        const QPoint privacy = form.label->linkRect(1).center();
        QTest::mouseMove(form.label, privacy);
        QTRY_COMPARE(hovered.count(), 1);
        QCOMPARE(hovered.last().at(0).toString(), QStringLiteral("privacy"));
        QTest::mouseClick(form.label, Qt::LeftButton, {}, privacy);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.last().at(0).toString(), QStringLiteral("privacy"));
        QCOMPARE(form.label->currentLink(), 1);
        // Pressed on a link, released elsewhere: nothing.
        QTest::mousePress(form.label, Qt::LeftButton, {}, privacy);
        QTest::mouseRelease(form.label, Qt::LeftButton, {}, QPoint(1, 1));
        QTest::mouseClick(form.label, Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(activated.count(), 1);
    }

    // Tabbing to the second link announces it, focuses its accessible child
    // and rings it.
    void keyboardFocusOnLink() {
        FocusRingTest::installStyle();
        qApp->setProperty("isKeyboardFocus", true);
        Form form;
        QVERIFY(QTest::qWaitForWindowExposed(&form.window));
        const AccessibilityRecorder::RecordingScope recording;
        form.before->setFocus();
        QTest::keyClick(form.before, Qt::Key_Tab);
        QTest::keyClick(form.label, Qt::Key_Tab);
        QCOMPARE(AccessibilityRecorder::announcements(form.label),
                 (QStringList{QStringLiteral("Terms, link 1 of 3"),
                              QStringLiteral("Privacy notice, link 2 of 3")}));
        // The ring goes around the second link, 2 px out.
        const QRect linkRect = form.label->linkRect(1);
        const QRect ring(form.label->mapTo(&form.window, linkRect.topLeft()) - QPoint(2, 2),
                         linkRect.size() + QSize(4, 4));
        QTRY_VERIFY(FocusRingTest::visibleRing(form.window) &&
                    FocusRingTest::visibleRing(form.window)->geometry() == ring);

        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(form.label);
        QVERIFY(iface);
        QVERIFY(iface->text(QAccessible::Name).startsWith(QStringLiteral("By joining you accept the Terms")));
        QCOMPARE(iface->childCount(), 3);
        QAccessibleInterface* link = iface->child(1);
        QVERIFY(link && link->isValid());
        QCOMPARE(link->role(), QAccessible::Link);
        QCOMPARE(link->text(QAccessible::Name), QStringLiteral("Privacy notice"));
        QCOMPARE(link->text(QAccessible::Description), QStringLiteral("link 2 of 3"));
        QVERIFY(link->state().focused && link->state().focusable);
        QVERIFY(!iface->child(0)->state().focused);
        QCOMPARE(link->parent(), iface);
        QCOMPARE(iface->indexOfChild(link), 1);
        QCOMPARE(iface->child(1), link);
        QCOMPARE(iface->childAt(link->rect().center().x(), link->rect().center().y()), link);
        // Screen readers can activate a link too.
        QSignalSpy activated(form.label, &QLabel::linkActivated);
        link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.last().at(0).toString(), QStringLiteral("privacy"));
        // A link that went away is no longer valid.
        form.label->setText(QStringLiteral("<a href=\"x\">x</a>"));
        QVERIFY(!link->isValid());
        QCOMPARE(iface->childCount(), 1);
    }

    void linksFollowTheme() {
        KaMultipleLinkLabel label(kText);
        label.resize(label.sizeHint());
        const QRect link = label.linkRect(0);
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), link).rgb(),
                 linkColour(BzThemeUtils::Light).rgb());
        const QRect text(0, 0, link.left() - 2, label.height());
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), text).rgb(),
                 BzTest::set("label-primary-text").normal().rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), link).rgb(), linkColour(BzThemeUtils::Dark).rgb());
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), text).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Dark).normal().rgb());
    }

    // KaGifLabel.
    void loads() {
        KaGifLabel label;
        QSignalSpy spy(&label, &KaGifLabel::fileNameChanged);
        label.setFileName(threeFrames());
        label.setFileName(threeFrames());
        QCOMPARE(spy.count(), 1);
        QVERIFY(label.hasImage());
        QCOMPARE(label.sizeHint(), QSize(16, 16));
        label.setImageSize(QSize(32, 24));
        label.setMargin(2);
        QCOMPARE(label.sizeHint(), QSize(36, 28));
        // Never shown: resting on the first frame.
        QVERIFY(!label.isPlaying());
        QCOMPARE(label.currentFrameNumber(), 0);
        label.resize(label.sizeHint());
        const QImage image = BzTest::paint(label);
        const QColor middle = image.pixelColor(image.width() / 2, image.height() / 2);
        QVERIFY2(middle.red() > 200 && middle.green() < 60, qPrintable(middle.name()));
    }

    void playsOnlyWhileShownAndMotionAllowed() {
        Shown shown;
        KaGifLabel* label = shown.label;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTRY_VERIFY(label->isPlaying());
        QSignalSpy frames(label, &KaGifLabel::frameChanged);
        QTRY_VERIFY(frames.count() >= 2);
        label->hide();
        QVERIFY(!label->isPlaying());
        frames.clear();
        // Hiding the window stops it as well.
        label->show();
        QTRY_VERIFY(label->isPlaying());
        shown.window.hide();
        QVERIFY(!label->isPlaying());
        label->setEnabled(false);
        shown.window.show();
        QVERIFY(!label->isPlaying());
        label->setEnabled(true);
        QTRY_VERIFY(label->isPlaying());
        // Reduced motion stops it on the first frame.
        QTRY_VERIFY(label->currentFrameNumber() > 0);
        KaConfig::setReducedMotion(true);
        QVERIFY(KaConfig::reducedMotion());
        QTRY_VERIFY(!label->isPlaying());
        QCOMPARE(label->currentFrameNumber(), 0);
        // A label made while motion is reduced never starts.
        KaGifLabel later(&shown.window);
        later.setFileName(threeFrames());
        later.show();
        QVERIFY(!later.isPlaying());
        KaConfig::setReducedMotion(false);
        QTRY_VERIFY(label->isPlaying() && later.isPlaying());
    }

    void unreadableFile_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("missing") << QStringLiteral("/nonexistent/spinner.gif");
        QTest::newRow("corrupt") << QFINDTESTDATA("data/corrupt.gif");
    }

    void unreadableFile() {
        QFETCH(QString, file);
        KaGifLabel label;
        label.setText(QStringLiteral("Working"));
        label.setImageSize(QSize(20, 20));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("KaGifLabel: cannot read")));
        label.setFileName(file);
        QVERIFY(!label.hasImage());
        QVERIFY(!label.isPlaying());
        QCOMPARE(label.currentFrameNumber(), -1);
        label.show();
        label.resize(label.sizeHint());
        // An empty picture of the asked size: neither the text nor anything else.
        QCOMPARE(label.sizeHint(), QSize(20, 20));
        QCOMPARE(BzTest::textColour(label).alpha(), 0);
    }

    void textAndTheme() {
        // Without a file the description shows, in the theme's colours.
        KaGifLabel label;
        QVERIFY(label.setProperty("text", QStringLiteral("HHH")));
        QCOMPARE(BzTest::textColour(label).rgb(), BzTest::set("label-primary-text").normal().rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Dark).normal().rgb());
        label.setFileName(threeFrames());
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(iface->role(), QAccessible::Graphic);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("HHH"));
        label.setFileName(QString());
        QVERIFY(!label.hasImage());
    }

    // KaEmojiLabel.
    void plainTextCostsNothing() {
        const QString text = QStringLiteral("Shared with 12 people");
        KaEmojiLabel label;
        QVERIFY(label.setProperty("text", text)); // as Designer sets it
        KaLabel reference(text);
        QCOMPARE(label.text(), text);
        QVERIFY(!label.hasEmojiImages());
        QCOMPARE(label.textFormat(), Qt::AutoText);
        QCOMPARE(label.sizeHint(), reference.sizeHint());
        QVERIFY(label.children().isEmpty());
        QCOMPARE(BzTest::textColour(label).rgb(), BzTest::set("label-primary-text").normal().rgb());
    }

    // Which sequences are one cluster and which have images: tst_karvexutils.
    void sequences_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("images");
        QTest::newRow("empty") << QString() << 0;
        QTest::newRow("one emoji") << QStringLiteral("Thumbs \U0001F44D up") << 1;
        QTest::newRow("skin tone without image stays text") << QStringLiteral("\U0001F44D\U0001F3FF") << 0;
        QTest::newRow("joined family stays text")
            << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467") << 0;
        QTest::newRow("several") << QStringLiteral("\u2764\uFE0F \U0001F525 \U0001F389") << 3;
        QTest::newRow("rich text") << QStringLiteral("<b>Great</b> \U0001F44D") << 1;
        QTest::newRow("markup-like plain text") << QStringLiteral("a < b \U0001F44D") << 1;
    }

    void sequences() {
        QFETCH(QString, text);
        QFETCH(int, images);
        KaEmojiLabel label;
        QSignalSpy spy(&label, &KaEmojiLabel::textChanged);
        label.setText(text);
        label.setText(text);
        QCOMPARE(spy.count(), text.isEmpty() ? 0 : 1);
        QCOMPARE(label.text(), text);
        QCOMPARE(label.property("text").toString(), text);
        QCOMPARE(label.hasEmojiImages(), images > 0);
        // Screen readers get the text as given.
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&label);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::StaticText);
        if (!text.startsWith(QLatin1Char('<')))
            QCOMPARE(iface->text(QAccessible::Name), text);
        if (images == 0)
            return;
        // Measured as what is shown, not as the markup behind it.
        const QFontMetrics metrics = label.fontMetrics();
        QVERIFY(label.sizeHint().width() <= metrics.horizontalAdvance(text) + images * metrics.height() + 2);
        // Each sequence is one replacement character in the shown document.
        QTextDocument shown;
        shown.setHtml(static_cast<QLabel&>(label).text());
        QCOMPARE(int(shown.toPlainText().count(QChar(0xFFFC))), images);
    }

    void imageIsLineHigh() {
        KaEmojiLabel label(QStringLiteral("\U0001F44D"));
        label.resize(label.sizeHint());
        const QImage image = BzTest::paint(label, 2.0);
        const QRect box = boxNear(image, kThumbYellow);
        const int line = label.fontMetrics().height();
        QVERIFY2(box.height() <= 2 * line && box.height() > line, qPrintable(QString::number(box.height())));
    }

    void copiesOriginalText() {
        const QString text = QStringLiteral("Nice \U0001F44D\U0001F3FD work \U0001F1EF\U0001F1F5!");
        KaEmojiLabel label(text);
        label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        // Shown: "Nice \uFFFC work \uFFFC!" (13 characters).
        label.setSelection(5, 8);
        QVERIFY(label.hasSelectedText());
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("\U0001F44D\U0001F3FD work \U0001F1EF\U0001F1F5"));
    }

    void emojiFollowsTheme() {
        KaEmojiLabel label(QStringLiteral("HHHH \U0001F44D"));
        label.resize(label.sizeHint());
        const QRect textArea(0, 0, label.fontMetrics().horizontalAdvance(QStringLiteral("HHHH")),
                             label.height());
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), textArea).rgb(),
                 BzTest::set("label-primary-text").normal().rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), textArea).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Dark).normal().rgb());
        // The emoji keeps its own colours.
        QVERIFY(!boxNear(BzTest::paint(label), kThumbYellow).isEmpty());
    }

    void backToPlainText() {
        KaEmojiLabel label;
        label.setTextFormat(Qt::PlainText);
        label.setText(QStringLiteral("<b>\U0001F44D</b>"));
        QVERIFY(label.hasEmojiImages());
        label.setText(QStringLiteral("<b>no emoji</b>"));
        QVERIFY(!label.hasEmojiImages());
        // The format the caller chose is back: the markup shows as text.
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QCOMPARE(static_cast<QLabel&>(label).text(), QStringLiteral("<b>no emoji</b>"));
    }

    void corruptImage() {
        // ":/emojis/1f9ea.svg" of this test does not parse.
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("KaEmojiUtils: cannot read.*1f9ea")));
        KaEmojiLabel label(QStringLiteral("Test \U0001F9EA tube"));
        QVERIFY(label.hasEmojiImages());
        label.resize(label.sizeHint());
        const QImage first = BzTest::paint(label);
        QTest::failOnWarning(QRegularExpression(QStringLiteral("KaEmojiUtils")));
        KaEmojiLabel second(QStringLiteral("\U0001F9EA"));
        second.resize(second.sizeHint());
        const QImage image = BzTest::paint(second);
        // An empty picture, not a broken-image icon.
        QCOMPARE(BzTest::strongestIn(image, image.rect()).alpha(), 0);
        QVERIFY(!first.isNull());
    }
};

QTEST_MAIN(tst_KaLabel)
#include "tst_kalabel.moc"
