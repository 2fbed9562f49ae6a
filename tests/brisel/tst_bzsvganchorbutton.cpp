#include "bzsvganchorbutton.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"

#include <QImage>
#include <QMenu>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

namespace {

const QString kSquare = QStringLiteral(":/Resources/test-square.svg");
const QString kLeftHalf = QStringLiteral(":/Resources/test-left-half.svg");
const char kAnchorSet[] = "button-cancel-fill-background";

BzColorSet set(const char* name) {
    return BzThemeUtils::getColorSet(name);
}

BzCSSData primary() {
    BzCSSData data;
    data.backgroundColorSet = QStringLiteral("button-primary-background");
    data.textColorSet = QStringLiteral("button-primary-text");
    return data;
}

QImage paint(QWidget& widget) {
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QRect boxOf(const QImage& image, const QColor& color) {
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).rgb() == color.rgb())
                box |= QRect(x, y, 1, 1);
    return box;
}

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
    void init();
    void placement_data();
    void placement();
    void offsetIsMirrored_data();
    void offsetIsMirrored();
    void anchorClickedOnlyOnIcon();
    void hiddenAnchor();
    void onIconWhenCheckedOrMenuOpen();
    void sizeHintGrowsWithAnchor();
    void notifiesOnce_data();
    void notifiesOnce();
};

void TestBzSvgAnchorButton::init() {
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
}

void TestBzSvgAnchorButton::placement_data() {
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

void TestBzSvgAnchorButton::placement() {
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
    QCOMPARE(anchor.size(), QSize(12, 12));
    QCOMPARE(anchor.top(), 6);
    if (where == QLatin1String("right edge")) {
        QCOMPARE(anchor.right(), 199 - 4);
    } else if (where == QLatin1String("left edge")) {
        QCOMPARE(anchor.left(), 4);
    } else if (where == QLatin1String("right of text")) {
        QVERIFY(anchor.left() > text.right());
        QVERIFY(anchor.left() - text.right() <= button.anchorIconSpacing() + 3);
    } else {
        QVERIFY(anchor.right() < text.left());
        QVERIFY(text.left() - anchor.right() <= button.anchorIconSpacing() + 3);
    }
    // Text stays clear of an anchor at an edge.
    QVERIFY(!anchor.intersects(text));
}

void TestBzSvgAnchorButton::offsetIsMirrored_data() {
    QTest::addColumn<bool>("rtl");
    QTest::addColumn<int>("dx");
    QTest::newRow("ltr") << false << 4;
    QTest::newRow("rtl") << true << -4;
}

void TestBzSvgAnchorButton::offsetIsMirrored() {
    QFETCH(bool, rtl);
    QFETCH(int, dx);
    BzSvgAnchorButton button(QStringLiteral("Chip"));
    setUp(button);
    button.setAlignAnchorIconToText(false);
    if (rtl)
        button.setLayoutDirection(Qt::RightToLeft);
    const QRect before = button.anchorIconRect();
    const QSize hint = button.sizeHint();
    button.setAnchorSvgOffset(QPoint(4, 1));
    QCOMPARE(button.anchorIconRect(), before.translated(dx, 1));
    QCOMPARE(boxOf(paint(button), set(kAnchorSet).normal()), before.translated(dx, 1));
    QCOMPARE(button.sizeHint(), hint); // a nudge, not a layout change
}

void TestBzSvgAnchorButton::anchorClickedOnlyOnIcon() {
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
    QCOMPARE(anchor.count(), 1);
    QCOMPARE(clicked.count(), 1);

    QTest::mouseClick(&button, Qt::LeftButton, {}, onText);
    QCOMPARE(anchor.count(), 1);
    QCOMPARE(clicked.count(), 2);

    // Pressed on the icon, released elsewhere (and the reverse): no anchor click.
    QTest::mousePress(&button, Qt::LeftButton, {}, onIcon);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, onText);
    QTest::mousePress(&button, Qt::LeftButton, {}, onText);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, onIcon);
    QCOMPARE(anchor.count(), 1);

    QTest::mouseClick(&button, Qt::RightButton, {}, onIcon);
    QCOMPARE(anchor.count(), 1);

    // Right-to-left puts the trailing edge on the left: the click area follows.
    button.setLayoutDirection(Qt::RightToLeft);
    const QPoint mirrored = button.anchorIconRect().center();
    QVERIFY(mirrored.x() < 20);
    QTest::mouseClick(&button, Qt::LeftButton, {}, mirrored);
    QCOMPARE(anchor.count(), 2);
}

void TestBzSvgAnchorButton::hiddenAnchor() {
    BzSvgAnchorButton button(QStringLiteral("Chip"));
    setUp(button);
    const QSize shown = button.sizeHint();
    button.setAnchorIconVisible(false);
    QVERIFY(button.anchorIconRect().isEmpty());
    QVERIFY(button.sizeHint().width() < shown.width());
    QVERIFY(boxOf(paint(button), set(kAnchorSet).normal()).isEmpty());
}

void TestBzSvgAnchorButton::onIconWhenCheckedOrMenuOpen() {
    QMenu menu; // outlives the button that shows it
    menu.addAction(QStringLiteral("Item"));
    BzSvgAnchorButton button(QStringLiteral("Chip"));
    setUp(button);
    button.setAnchorSvgOn(kLeftHalf);
    const QRect rect = button.anchorIconRect();
    const QPoint rightHalf = rect.center() + QPoint(3, 0);
    const QColor anchorColour = set(kAnchorSet).normal();
    QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), anchorColour.rgb());

    button.setCheckable(true);
    button.setChecked(true);
    QVERIFY(button.isAnchorOn());
    QImage image = paint(button);
    QCOMPARE(image.pixelColor(rightHalf).rgb(), set("button-primary-background").checked().rgb());
    QCOMPARE(image.pixelColor(rect.center() - QPoint(3, 0)).rgb(), set(kAnchorSet).checked().rgb());
    button.setChecked(false);
    QVERIFY(!button.isAnchorOn());

    button.setMenu(&menu);
    QVERIFY(!button.isAnchorOn());
    menu.popup(QPoint(0, 0));
    QTRY_VERIFY(button.isAnchorOn());
    QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), set("button-primary-background").normal().rgb());
    menu.hide();
    QTRY_VERIFY(!button.isAnchorOn());
    QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), anchorColour.rgb());

    // Without an "off" icon the "on" one is shown all the time.
    button.setAnchorSvgOff(QString());
    QCOMPARE(button.anchorIconRect(), rect);
    QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), set("button-primary-background").normal().rgb());
}

void TestBzSvgAnchorButton::sizeHintGrowsWithAnchor() {
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
}

void TestBzSvgAnchorButton::notifiesOnce_data() {
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("anchorSvgOn") << QByteArray("anchorSvgOn") << QVariant(kLeftHalf);
    QTest::newRow("anchorSvgOff") << QByteArray("anchorSvgOff") << QVariant(kSquare);
    QTest::newRow("anchorIconSize") << QByteArray("anchorIconSize") << QVariant(QSize(16, 16));
    QTest::newRow("anchorSvgColorSet")
        << QByteArray("anchorSvgColorSet") << QVariant(QStringLiteral("label-error-text"));
    QTest::newRow("anchorPadding") << QByteArray("anchorPadding") << QVariant(6);
    QTest::newRow("anchorSvgOffset") << QByteArray("anchorSvgOffset") << QVariant(QPoint(4, 1));
    QTest::newRow("isLeftAnchor") << QByteArray("isLeftAnchor") << QVariant(true);
    QTest::newRow("alignAnchorIconToText") << QByteArray("alignAnchorIconToText") << QVariant(false);
    QTest::newRow("anchorIconVisible") << QByteArray("anchorIconVisible") << QVariant(false);
    QTest::newRow("anchorIconSpacing") << QByteArray("anchorIconSpacing") << QVariant(4);
}

void TestBzSvgAnchorButton::notifiesOnce() {
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    BzSvgAnchorButton button;
    const QMetaObject* mo = button.metaObject();
    const QMetaProperty p = mo->property(mo->indexOfProperty(property.constData()));
    QVERIFY(p.isValid());
    QVERIFY(p.hasNotifySignal());
    QVERIFY(p.read(&button) != value);
    QSignalSpy spy(&button, p.notifySignal());
    QVERIFY(p.write(&button, value));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(p.read(&button), value);
    QVERIFY(p.write(&button, value));
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(TestBzSvgAnchorButton)
#include "tst_bzsvganchorbutton.moc"
