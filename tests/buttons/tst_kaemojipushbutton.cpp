#include "buttontestutils.h"
#include "kaemojipushbutton.h"

#include <QAccessible>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTest>

using namespace ButtonTest;

namespace {

// The emoji alone, drawn straight from its file at `side` pixels.
QImage reference(const QString& codePoint, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/emojis/%1.svg").arg(codePoint)).render(&painter, QRectF(0, 0, side, side));
    return image;
}

// Where the opaque pixels of `reference` appear in `image`, compared
// pixel by pixel inside the box at `origin`.
int mismatches(const QImage& image, const QImage& reference, const QPoint& origin) {
    int wrong = 0;
    for (int y = 0; y < reference.height(); ++y) {
        for (int x = 0; x < reference.width(); ++x) {
            const QRgb want = reference.pixel(x, y);
            if (qAlpha(want) == 255 && image.pixel(origin + QPoint(x, y)) != want)
                ++wrong;
        }
    }
    return wrong;
}

} // namespace

class tst_KaEmojiPushButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void paintsEmojiImage() {
        KaEmojiPushButton button(QStringLiteral("1f44d"), 0);
        QVERIFY(button.hasImage());
        button.resize(button.sizeHint());
        QCOMPARE(button.QWidget::size(), QSize(28, 28));
        // Normal: a 16 px emoji centred in the 28 px circle.
        const QImage image = rendered(&button);
        const QImage thumbsUp = reference(QStringLiteral("1f44d"), 16);
        QCOMPARE(mismatches(image, thumbsUp, QPoint(6, 6)), 0);
        // A different emoji does not match the same place.
        button.setCodePoint(QStringLiteral("1f525"));
        QVERIFY(mismatches(rendered(&button), thumbsUp, QPoint(6, 6)) > 10);
    }

    void countShapesChip() {
        KaEmojiPushButton button;
        QSignalSpy spy(&button, &KaEmojiPushButton::countChanged);
        QCOMPARE(button.minimumWidth(), button.maximumWidth());
        button.setCount(12);
        button.setCount(12);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(button.text(), QStringLiteral("12"));
        // Padding 8, emoji 16, spacing 4, the count, padding 8.
        const int countWidth = button.fontMetrics().size(Qt::TextSingleLine, QStringLiteral("12")).width();
        QCOMPARE(button.sizeHint().width(), 8 + 16 + 4 + countWidth + 8);
        QCOMPARE(button.maximumWidth(), QWIDGETSIZE_MAX);
        button.setCount(-4);
        QCOMPARE(button.count(), 0);
        QVERIFY(button.text().isEmpty());
        QCOMPARE(button.maximumWidth(), 28);
    }

    void reactedLook() {
        KaEmojiPushButton button(QStringLiteral("2764"), 2);
        QVERIFY(button.isCheckable());
        QCOMPARE(button.getWCSS().textColorSet, QStringLiteral("message-reactions-count-default"));
        QCOMPARE(button.getWCSS().borderColorSet, QStringLiteral("message-reactions-outline"));
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        QVERIFY(button.emojiConfig()->isReacted());
        QCOMPARE(button.getWCSS().textColorSet, QStringLiteral("message-reactions-count-has-self-reaction"));
        QCOMPARE(button.getWCSS().borderColorSet,
                 QStringLiteral("message-reactions-count-has-self-reaction"));
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(button.getWCSS().textColorSet, QStringLiteral("message-reactions-count-default"));
    }

    void codePointNormalised() {
        KaEmojiPushButton button;
        QSignalSpy spy(&button, &KaEmojiPushButton::codePointChanged);
        button.setCodePoint(QStringLiteral("U+1F44D"));
        QCOMPARE(button.codePoint(), QStringLiteral("1f44d"));
        QCOMPARE(spy.count(), 0); // the default already
        button.setCodePoint(QStringLiteral("1f600"));
        QCOMPARE(spy.count(), 1);
        QVERIFY(!button.hasImage());
        button.resize(28, 28);
        rendered(&button); // an emoji without an image paints an empty chip
    }

    void disabledFadesImage() {
        KaEmojiPushButton button(QStringLiteral("2764"), 0);
        button.resize(button.sizeHint());
        const QImage enabled = rendered(&button);
        button.setEnabled(false);
        const QImage disabled = rendered(&button);
        const QImage heart = reference(QStringLiteral("2764"), 16);
        QCOMPARE(mismatches(enabled, heart, QPoint(6, 6)), 0);
        QVERIFY(mismatches(disabled, heart, QPoint(6, 6)) > 10);
    }

    void accessibleName() {
        KaEmojiPushButton button(QStringLiteral("1f44d"), 3);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        // A reaction toggles: screen readers hear a check box.
        QCOMPARE(iface->role(), button.isCheckable() ? QAccessible::CheckBox : QAccessible::PushButton);
        QCOMPARE(iface->text(QAccessible::Name), QString::fromUtf8("\xF0\x9F\x91\x8D, 3"));
        button.setEmojiName(QStringLiteral("Like"));
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Like, 3"));
        button.setCount(0);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Like"));
        QVERIFY(iface->state().checkable);
        button.setChecked(true);
        QVERIFY(iface->state().checked);
    }
};

QTEST_MAIN(tst_KaEmojiPushButton)
#include "tst_kaemojipushbutton.moc"
