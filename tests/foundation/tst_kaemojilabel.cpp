#include "kaemojilabel.h"

#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <testhelpers.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>

namespace {

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

class tst_KaEmojiLabel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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

    // Which sequences are one cluster and which have images: tst_kaemojiutils.
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
        QVERIFY(!box.isEmpty());
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

    void followsTheme() {
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

QTEST_MAIN(tst_KaEmojiLabel)
#include "tst_kaemojilabel.moc"
