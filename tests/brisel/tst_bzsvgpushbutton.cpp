#include "bzsvgpushbutton.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"

#include <QImage>
#include <QMetaProperty>
#include <QPixmap>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

const QString kSquare = QStringLiteral(":/Resources/test-square.svg");
const QString kLeftHalf = QStringLiteral(":/Resources/test-left-half.svg");
const char kIconSet[] = "button-cancel-fill-background";

BzColorSet set(const char* name) {
    return BzThemeUtils::getColorSet(name);
}

BzCSSData primary() {
    BzCSSData data;
    data.backgroundColorSet = QStringLiteral("button-primary-background");
    data.textColorSet = QStringLiteral("button-primary-text");
    return data;
}

QImage paint(QWidget& widget, qreal dpr = 1.0) {
    QPixmap pixmap(QSize(qRound(widget.width() * dpr), qRound(widget.height() * dpr)));
    pixmap.setDevicePixelRatio(dpr);
    pixmap.fill(Qt::transparent);
    widget.render(&pixmap, QPoint(), QRegion(), QWidget::DrawChildren);
    return pixmap.toImage();
}

// Bounding box, in image pixels, of the pixels exactly `color`.
QRect boxOf(const QImage& image, const QColor& color) {
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).rgb() == color.rgb())
                box |= QRect(x, y, 1, 1);
    return box;
}

QColor over(const QColor& top, const QColor& bottom) {
    const qreal a = top.alphaF();
    return QColor::fromRgbF(top.redF() * a + bottom.redF() * (1 - a),
                            top.greenF() * a + bottom.greenF() * (1 - a),
                            top.blueF() * a + bottom.blueF() * (1 - a));
}

bool near(const QColor& a, const QColor& b) {
    return qAbs(a.red() - b.red()) <= 2 && qAbs(a.green() - b.green()) <= 2 && qAbs(a.blue() - b.blue()) <= 2;
}

} // namespace

class TestBzSvgPushButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void iconBesideText_data();
    void iconBesideText();
    void iconDefaultsToTextColour();
    void iconFollowsState();
    void checkedIcon();
    void iconAboveText();
    void innerIcon();
    void sharpAtPixelRatio_data();
    void sharpAtPixelRatio();
    void sizeHintGrowsWithIcon();
    void missingIconTakesNoRoom();
    void themeSwitchRetintsIcon();
    void notifiesOnce_data();
    void notifiesOnce();
};

void TestBzSvgPushButton::init() {
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
}

void TestBzSvgPushButton::iconBesideText_data() {
    QTest::addColumn<bool>("rtl");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("iconOnLeft");
    QTest::newRow("leading, ltr") << false << int(BzEnum::AlignLeft) << true;
    QTest::newRow("leading, rtl") << true << int(BzEnum::AlignLeft) << false;
    QTest::newRow("trailing, ltr") << false << int(BzEnum::AlignRight) << false;
    QTest::newRow("trailing, rtl") << true << int(BzEnum::AlignRight) << true;
}

void TestBzSvgPushButton::iconBesideText() {
    QFETCH(bool, rtl);
    QFETCH(int, alignment);
    QFETCH(bool, iconOnLeft);
    BzSvgPushButton button(QStringLiteral("MMM"));
    button.setCSS(primary());
    button.setSvgIcon(kSquare);
    button.setSvgIconColorSet(QString::fromLatin1(kIconSet));
    button.setSvgIconAlignment(BzEnum::Alignment(alignment));
    if (rtl)
        button.setLayoutDirection(Qt::RightToLeft);
    button.resize(120, 32);
    const QImage image = paint(button);
    const QRect icon = boxOf(image, set(kIconSet).normal());
    const QRect text = boxOf(image, set("button-primary-text").normal());
    QCOMPARE(icon.size(), QSize(16, 16));
    QCOMPARE(icon, button.svgIconRect());
    QVERIFY(!text.isEmpty());
    if (iconOnLeft)
        QVERIFY(icon.right() < text.left());
    else
        QVERIFY(icon.left() > text.right());
    // The spacing separates them; the pair is centred as a whole.
    const int gap = iconOnLeft ? text.left() - icon.right() : icon.left() - text.right();
    QVERIFY2(gap >= button.svgIconSpacing() && gap <= button.svgIconSpacing() + 3,
             qPrintable(QString::number(gap)));
    const QRect both = icon | text;
    QVERIFY(qAbs(both.center().x() - 60) <= 2);
    QCOMPARE(icon.center().y(), 15);
}

void TestBzSvgPushButton::iconDefaultsToTextColour() {
    BzSvgPushButton button;
    button.setCSS(primary());
    button.setSvgIcon(kSquare);
    button.resize(40, 32);
    const QRect rect = button.svgIconRect();
    QCOMPARE(rect.size(), QSize(16, 16));
    QCOMPARE(paint(button).pixelColor(rect.center()).rgb(), set("button-primary-text").normal().rgb());
}

void TestBzSvgPushButton::iconFollowsState() {
    BzSvgPushButton button;
    button.setCSS(primary());
    button.setSvgIcon(kSquare);
    button.setSvgIconColorSet(QStringLiteral("label-error-text"));
    button.resize(40, 32);
    const QPoint centre = button.svgIconRect().center();
    button.setAttribute(Qt::WA_UnderMouse);
    QCOMPARE(paint(button).pixelColor(centre).rgb(), set("label-error-text").hovered().rgb());
    button.setEnabled(false);
    // The disabled colour is translucent: it lies over the disabled face.
    const QColor shown = paint(button).pixelColor(centre);
    const QColor want = over(set("label-error-text").disabled(), set("button-primary-background").disabled());
    QVERIFY2(near(shown, want), qPrintable(shown.name() + QLatin1String(" vs ") + want.name()));
}

void TestBzSvgPushButton::checkedIcon() {
    BzSvgPushButton button;
    button.setCSS(primary());
    button.setSvgIcon(kSquare);
    button.setSvgIconChecked(kLeftHalf);
    button.setCheckable(true);
    button.resize(40, 32);
    const QRect rect = button.svgIconRect();
    const QPoint rightHalf = rect.center() + QPoint(4, 0);
    const QColor icon = set("button-primary-text").normal();
    QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), icon.rgb());
    button.setChecked(true);
    QCOMPARE(button.svgIconRect(), rect); // swapping icons does not move anything
    const QImage checked = paint(button);
    QCOMPARE(checked.pixelColor(rightHalf).rgb(), set("button-primary-background").checked().rgb());
    QCOMPARE(checked.pixelColor(rect.center() - QPoint(4, 0)).rgb(), icon.rgb());
}

void TestBzSvgPushButton::iconAboveText() {
    BzSvgPushButton button(QStringLiteral("MMM"));
    button.setCSS(primary());
    button.setSvgIcon(kSquare);
    button.setSvgIconColorSet(QString::fromLatin1(kIconSet));
    button.setSvgIconAlignment(BzEnum::AlignTop);
    const QSize hint = button.sizeHint();
    QVERIFY(hint.height() >= 16 + button.svgIconSpacing() + button.fontMetrics().height());
    button.resize(100, hint.height());
    const QImage image = paint(button);
    const QRect icon = boxOf(image, set(kIconSet).normal());
    const QRect text = boxOf(image, set("button-primary-text").normal());
    QVERIFY(icon.bottom() < text.top());
    QVERIFY(qAbs(icon.center().x() - text.center().x()) <= 1);
}

void TestBzSvgPushButton::innerIcon() {
    BzSvgPushButton button;
    button.setCSS(primary());
    button.setInnerSvgIcon(kLeftHalf);
    button.setInnerSvgIconSize(QSize(20, 20));
    button.resize(40, 40);
    QImage image = paint(button);
    // Left half of a 20 px box centred in 40 px: columns 10..19.
    QCOMPARE(boxOf(image, set("button-primary-text").normal()), QRect(10, 10, 10, 20));
    button.setInnerSvgIconColorSet(QString::fromLatin1(kIconSet));
    image = paint(button);
    QCOMPARE(boxOf(image, set(kIconSet).normal()), QRect(10, 10, 10, 20));
}

void TestBzSvgPushButton::sharpAtPixelRatio_data() {
    QTest::addColumn<qreal>("dpr");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void TestBzSvgPushButton::sharpAtPixelRatio() {
    QFETCH(qreal, dpr);
    QWidget window;
    BzSvgPushButton button(&window);
    button.setCSS(primary());
    button.setSvgIcon(kSquare);
    button.setSvgIconColorSet(QString::fromLatin1(kIconSet));
    // An odd offset puts the icon between device pixels at 1.5.
    button.setGeometry(3, 3, 33, 31);
    window.resize(40, 40);
    const QImage image = paint(window, dpr);
    const QColor icon = set(kIconSet).normal();
    const QColor face = set("button-primary-background").normal();
    const QRect box = boxOf(image, icon);
    const int side = int(16 * dpr);
    QCOMPARE(box.size(), QSize(side, side));
    // Every pixel of the box is icon and every pixel around it face: no
    // blended edge, so the icon maps 1:1 onto device pixels.
    for (int y = box.top() - 1; y <= box.bottom() + 1; ++y) {
        for (int x = box.left() - 1; x <= box.right() + 1; ++x) {
            const QColor want = box.contains(x, y) ? icon : face;
            QVERIFY2(image.pixelColor(x, y).rgb() == want.rgb(),
                     qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
        }
    }
}

void TestBzSvgPushButton::sizeHintGrowsWithIcon() {
    BzSvgPushButton button(QStringLiteral("Text"));
    const QSize bare = button.sizeHint();
    button.setSvgIcon(kSquare);
    const QSize withIcon = button.sizeHint();
    QCOMPARE(withIcon.width(), bare.width() + 16 + button.svgIconSpacing());
    button.setSvgIconSize(QSize(24, 24));
    QCOMPARE(button.sizeHint().width(), withIcon.width() + 8);
    button.setSvgIconSpacing(10);
    QCOMPARE(button.sizeHint().width(), bare.width() + 24 + 10);
    button.setSvgIconTopLeftPadding(QPoint(3, 0));
    button.setSvgIconBottomRightPadding(QPoint(2, 0));
    QCOMPARE(button.sizeHint().width(), bare.width() + 24 + 10 + 5);
    // A tall icon makes a taller button.
    button.setSvgIconSize(QSize(24, 60));
    QVERIFY(button.sizeHint().height() > 60);
    button.setSvgIconVisible(false);
    QCOMPARE(button.sizeHint(), bare);

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("negative icon size")));
    button.setSvgIconSize(QSize(-3, 8));
    QCOMPARE(button.svgIconSize(), QSize(0, 8));
}

void TestBzSvgPushButton::missingIconTakesNoRoom() {
    BzSvgPushButton button(QStringLiteral("Text"));
    const QSize bare = button.sizeHint();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no-such-button-icon")));
    button.setSvgIcon(QStringLiteral("no-such-button-icon"));
    QCOMPARE(button.sizeHint(), bare);
    QVERIFY(button.svgIconRect().isEmpty());
}

void TestBzSvgPushButton::themeSwitchRetintsIcon() {
    BzSvgPushButton button;
    button.setCSS(primary());
    button.setSvgIcon(kSquare);
    button.setSvgIconColorSet(QStringLiteral("label-error-text"));
    button.setInnerSvgIcon(kLeftHalf);
    button.setInnerSvgIconColorSet(QStringLiteral("label-primary-text"));
    button.setTextHorAlign(BzEnum::Left); // keeps the leading icon clear of the inner one
    button.resize(80, 32);
    const QPoint iconAt = button.svgIconRect().center();
    const QPoint innerAt(37, 16); // left half of the centred inner icon
    QCOMPARE(paint(button).pixelColor(iconAt).rgb(), set("label-error-text").normal().rgb());
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
    QCoreApplication::processEvents();
    const QImage image = paint(button);
    QCOMPARE(image.pixelColor(iconAt).rgb(), set("label-error-text").normal().rgb());
    QCOMPARE(image.pixelColor(innerAt).rgb(), set("label-primary-text").normal().rgb());
}

void TestBzSvgPushButton::notifiesOnce_data() {
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("svgIcon") << QByteArray("svgIcon") << QVariant(kSquare);
    QTest::newRow("svgIconChecked") << QByteArray("svgIconChecked") << QVariant(kLeftHalf);
    QTest::newRow("svgIconColorSet") << QByteArray("svgIconColorSet")
                                     << QVariant(QStringLiteral("label-error-text"));
    QTest::newRow("svgIconSize") << QByteArray("svgIconSize") << QVariant(QSize(20, 20));
    QTest::newRow("svgIconVisible") << QByteArray("svgIconVisible") << QVariant(false);
    QTest::newRow("svgIconAlignment")
        << QByteArray("svgIconAlignment") << QVariant::fromValue(BzEnum::AlignTop);
    QTest::newRow("svgIconTopLeftPadding") << QByteArray("svgIconTopLeftPadding") << QVariant(QPoint(2, 1));
    QTest::newRow("svgIconBottomRightPadding")
        << QByteArray("svgIconBottomRightPadding") << QVariant(QPoint(1, 2));
    QTest::newRow("svgIconSpacing") << QByteArray("svgIconSpacing") << QVariant(9);
    QTest::newRow("innerSvgIcon") << QByteArray("innerSvgIcon") << QVariant(kSquare);
    QTest::newRow("innerSvgIconColorSet")
        << QByteArray("innerSvgIconColorSet") << QVariant(QStringLiteral("label-primary-text"));
    QTest::newRow("innerSvgIconSize") << QByteArray("innerSvgIconSize") << QVariant(QSize(8, 8));
}

void TestBzSvgPushButton::notifiesOnce() {
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    BzSvgPushButton button;
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

QTEST_MAIN(TestBzSvgPushButton)
#include "tst_bzsvgpushbutton.moc"
