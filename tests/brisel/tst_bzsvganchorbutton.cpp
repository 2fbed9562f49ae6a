#include "bzsvganchorbutton.h"
#include "bzthememanager.h"
#include "testhelpers.h"

#include <QMenu>
#include <QTest>

using namespace BzTest;

namespace {
const QString kSquare = QStringLiteral(":/Resources/test-square.svg");
const QString kLeftHalf = QStringLiteral(":/Resources/test-left-half.svg");
const char kAnchorSet[] = "button-cancel-fill-background";

// A chip-like button: text, a 12 px anchor 4 px in from the edge.
void setUp(BzSvgAnchorButton& button) {
    button.setCSS(primary());
    button.setAnchorSvgOff(kSquare);
    button.setAnchorSvgColorSet(QString::fromLatin1(kAnchorSet));
    button.setAnchorPadding(4);
    button.resize(200, 24);
}
} // namespace

class TestBzSvgAnchorButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void placement_data() {
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<bool>("followsText");
        QTest::addColumn<bool>("leading");
        QTest::addColumn<QString>("where");
        QTest::newRow("edge, ltr") << false << false << false << "right edge";
        QTest::newRow("edge, rtl") << true << false << false << "left edge";
        QTest::newRow("leading edge, ltr") << false << false << true << "left edge";
        QTest::newRow("leading edge, rtl") << true << false << true << "right edge";
        QTest::newRow("after text, ltr") << false << true << false << "right of text";
        QTest::newRow("after text, rtl") << true << true << false << "left of text";
    }
    void placement() {
        QFETCH(bool, rtl);
        QFETCH(bool, followsText);
        QFETCH(bool, leading);
        QFETCH(QString, where);
        BzSvgAnchorButton button(QStringLiteral("Chip"));
        setUp(button);
        button.setAlignAnchorIconToText(followsText);
        button.setLeftAnchor(leading);
        if (rtl)
            button.setLayoutDirection(Qt::RightToLeft);
        const QImage image = paint(button);
        const QRect anchor = boxOf(image, set(kAnchorSet).normal());
        const QRect text = boxOf(image, set("button-primary-text").normal());
        QCOMPARE(anchor, button.anchorIconRect());
        QCOMPARE(anchor, QRect(anchor.left(), 6, 12, 12));
        QVERIFY(!anchor.intersects(text));
        const int spacing = button.anchorIconSpacing();
        if (where == QLatin1String("right edge"))
            QCOMPARE(anchor.right(), 199 - 4);
        else if (where == QLatin1String("left edge"))
            QCOMPARE(anchor.left(), 4);
        else if (where == QLatin1String("right of text"))
            QVERIFY(anchor.left() > text.right() && anchor.left() - text.right() <= spacing + 3);
        else
            QVERIFY(anchor.right() < text.left() && text.left() - anchor.right() <= spacing + 3);

        // An offset nudges the icon, mirrored in right-to-left, without
        // changing the layout.
        const QSize hint = button.sizeHint();
        button.setAnchorSvgOffset(QPoint(4, 1));
        const QRect moved = anchor.translated(rtl ? -4 : 4, 1);
        QCOMPARE(button.anchorIconRect(), moved);
        QCOMPARE(boxOf(paint(button), set(kAnchorSet).normal()), moved);
        QCOMPARE(button.sizeHint(), hint);
    }

    void anchorClickedOnlyOnIcon() {
        QWidget window;
        BzSvgAnchorButton button(QStringLiteral("Removable chip"), &window);
        setUp(button);
        button.setAlignAnchorIconToText(false);
        window.resize(220, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy anchor(&button, &BzSvgAnchorButton::anchorClicked);
        QSignalSpy clicked(&button, &BzSvgAnchorButton::clicked);
        const QPoint onIcon = button.anchorIconRect().center();
        const QPoint onText(40, 12);
        QTest::mouseClick(&button, Qt::LeftButton, {}, onIcon);
        QTest::mouseClick(&button, Qt::LeftButton, {}, onText);
        QCOMPARE(anchor.count(), 1);
        QCOMPARE(clicked.count(), 2);
        // Pressed on the icon, released elsewhere (and the reverse), or the
        // other button: no anchor click.
        QTest::mousePress(&button, Qt::LeftButton, {}, onIcon);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, onText);
        QTest::mousePress(&button, Qt::LeftButton, {}, onText);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, onIcon);
        QTest::mouseClick(&button, Qt::RightButton, {}, onIcon);
        QCOMPARE(anchor.count(), 1);
        // Right-to-left puts the trailing edge on the left: the click area follows.
        button.setLayoutDirection(Qt::RightToLeft);
        const QPoint mirrored = button.anchorIconRect().center();
        QVERIFY(mirrored.x() < 20);
        QTest::mouseClick(&button, Qt::LeftButton, {}, mirrored);
        QCOMPARE(anchor.count(), 2);
    }

    void onIconWhenCheckedOrMenuOpen() {
        QMenu menu; // outlives the button that shows it
        menu.addAction(QStringLiteral("Item"));
        BzSvgAnchorButton button(QStringLiteral("Chip"));
        setUp(button);
        button.setAnchorSvgOn(kLeftHalf);
        const QRect rect = button.anchorIconRect();
        const QPoint rightHalf = rect.center() + QPoint(3, 0);
        const QColor anchorColour = set(kAnchorSet).normal();
        const QColor face = set("button-primary-background").normal();
        QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), anchorColour.rgb());

        button.setCheckable(true);
        button.setChecked(true);
        QVERIFY(button.isAnchorOn());
        const QImage image = paint(button);
        QCOMPARE(image.pixelColor(rightHalf).rgb(), set("button-primary-background").checked().rgb());
        QCOMPARE(image.pixelColor(rect.center() - QPoint(3, 0)).rgb(), set(kAnchorSet).checked().rgb());
        button.setChecked(false);
        QVERIFY(!button.isAnchorOn());

        button.setMenu(&menu);
        QVERIFY(!button.isAnchorOn());
        menu.popup(QPoint(0, 0));
        QTRY_VERIFY(button.isAnchorOn());
        QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), face.rgb());
        menu.hide();
        QTRY_VERIFY(!button.isAnchorOn());
        QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), anchorColour.rgb());

        // Without an "off" icon the "on" one is shown all the time.
        button.setAnchorSvgOff(QString());
        QCOMPARE(button.anchorIconRect(), rect);
        QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), face.rgb());
    }

    void sizeHintMakesRoomForAnchor() {
        BzSvgAnchorButton button(QStringLiteral("Chip"));
        const QSize bare = button.sizeHint();
        button.setAnchorSvgOff(kSquare);
        QCOMPARE(button.sizeHint().width(), bare.width() + 12 + button.anchorIconSpacing());
        button.setAnchorPadding(5);
        button.setAnchorIconSpacing(2);
        button.setAnchorIconSize(QSize(20, 20));
        QCOMPARE(button.sizeHint().width(), bare.width() + 20 + 2 + 5);
        button.setSvgIcon(kSquare);
        QCOMPARE(button.sizeHint().width(), bare.width() + 20 + 2 + 5 + 16 + button.svgIconSpacing());
        // A hidden anchor takes no room and is not painted.
        button.setCSS(primary());
        button.setAnchorSvgColorSet(QString::fromLatin1(kAnchorSet));
        button.resize(200, 24);
        button.setAnchorIconVisible(false);
        QCOMPARE(button.sizeHint().width(), bare.width() + 16 + button.svgIconSpacing());
        QVERIFY(button.anchorIconRect().isEmpty());
        QVERIFY(boxOf(paint(button), set(kAnchorSet).normal()).isEmpty());
    }

    void notifiesOnce() {
        ReportingButton<BzSvgAnchorButton> button;
        checkNotifiesOnce(button, BzSvgAnchorButton::staticMetaObject,
                          {{QStringLiteral("anchorSvgOn"), kLeftHalf},
                           {QStringLiteral("anchorSvgOff"), kSquare},
                           {QStringLiteral("anchorSvgColorSet"), QStringLiteral("label-error-text")}},
                          [&](const char* name) { return button.reported(name); });
    }
};

QTEST_MAIN(TestBzSvgAnchorButton)
#include "tst_bzsvganchorbutton.moc"
