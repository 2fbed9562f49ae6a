#include "bzcolorset.h"
#include "bzfontmanager.h"
#include "bzpushbutton.h"
#include "bzsvganchorbutton.h"
#include "bzsvgpushbutton.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "testhelpers.h"

#include <QMenu>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace BzTest;

namespace {

// First and last column of the middle rows whose colour differs from the
// primary face.
QPair<int, int> ink(QWidget& button) {
    const QImage image = paint(button);
    const QColor face = set("button-primary-background").normal();
    int first = -1;
    int last = -1;
    for (int y = image.height() / 4; y < image.height() * 3 / 4; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).rgb() != face.rgb()) {
                first = first < 0 ? x : qMin(first, x);
                last = qMax(last, x);
            }
        }
    }
    return {first, last};
}

class StyleChangeCounter : public QObject {
public:
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::StyleChange)
            ++count;
        return false;
    }
};

const QString kSquare = QStringLiteral(":/Resources/test-square.svg");
const QString kLeftHalf = QStringLiteral(":/Resources/test-left-half.svg");
const char kIconSet[] = "button-cancel-fill-background";

void setUp(BzSvgPushButton& button, const QString& icon = kSquare, const char* iconSet = kIconSet) {
    button.setCSS(primary());
    button.setSvgIcon(icon);
    button.setSvgIconColorSet(QString::fromLatin1(iconSet));
}

const char kAnchorSet[] = "button-cancel-fill-background";

// A chip-like button: text, a 12 px anchor 4 px in from the edge.
void setUpAnchor(BzSvgAnchorButton& button) {
    button.setCSS(primary());
    button.setAnchorSvgOff(kSquare);
    button.setAnchorSvgColorSet(QString::fromLatin1(kAnchorSet));
    button.setAnchorPadding(4);
    button.resize(200, 24);
}

BzColorSet sample() {
    return BzColorSet(QStringLiteral("s"), QColor(1, 0, 0), QColor(2, 0, 0), QColor(3, 0, 0), QColor(4, 0, 0),
                      QColor(5, 0, 0), QColor(6, 0, 0));
}
} // namespace

class TestBzPushButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void faceFollowsState_data() {
        QTest::addColumn<QString>("how");
        QTest::addColumn<bool>("followState");
        QTest::addColumn<int>("expected");
        QTest::newRow("normal") << "" << true << int(BzColorSet::Normal);
        QTest::newRow("hovered") << "hover" << true << int(BzColorSet::Hovered);
        QTest::newRow("pressed") << "press" << true << int(BzColorSet::Pressed);
        QTest::newRow("disabled") << "disable" << true << int(BzColorSet::Disabled);
        QTest::newRow("checked") << "check" << true << int(BzColorSet::Checked);
        QTest::newRow("state tracking off") << "hover" << false << int(BzColorSet::Normal);
        QTest::newRow("state tracking off, disabled") << "disable" << false << int(BzColorSet::Disabled);
    }
    void faceFollowsState() {
        QFETCH(QString, how);
        QFETCH(bool, followState);
        QFETCH(int, expected);
        BzPushButton button(QStringLiteral("OK"));
        BzCSSData data = record("button-secondary-background", "button-secondary-text");
        data.setSwitch(BzCSSData::FollowState, followState);
        button.setCSS(data);
        button.resize(80, 30);
        if (how.contains(QLatin1String("check"))) {
            button.setCheckable(true);
            button.setChecked(true);
        }
        if (how.contains(QLatin1String("hover")))
            button.setAttribute(Qt::WA_UnderMouse);
        if (how.contains(QLatin1String("press")))
            button.setDown(true);
        if (how.contains(QLatin1String("disable")))
            button.setEnabled(false);
        const QColor face = paint(button).pixelColor(3, 15);
        const QColor want = set("button-secondary-background").color(BzColorSet::State(expected));
        QCOMPARE(face.name(QColor::HexArgb), want.name(QColor::HexArgb));
    }

    void textInTextColour() {
        BzPushButton button(QStringLiteral("MMMM"));
        button.setCSS(primary());
        button.resize(100, 30);
        QVERIFY(!boxOf(paint(button), set("button-primary-text").normal()).isEmpty());
        // Without text nothing but the face is painted.
        button.setText(QString());
        QCOMPARE(ink(button).first, -1);
    }

    void borderOnlyOnSwitchedSides_data() {
        QTest::addColumn<int>("sides"); // bit per side: top, right, bottom, left
        QTest::newRow("top") << 0x1;
        QTest::newRow("right") << 0x2;
        QTest::newRow("bottom") << 0x4;
        QTest::newRow("left") << 0x8;
        QTest::newRow("top and bottom") << 0x5;
        QTest::newRow("all") << 0xf;
    }
    void borderOnlyOnSwitchedSides() {
        QFETCH(int, sides);
        BzPushButton button;
        BzCSSData data = record("button-secondary-background", "button-secondary-text");
        data.borderColorSet = QStringLiteral("button-secondary-border");
        data.borderWidth = 2;
        for (int s = 0; s < 4; ++s)
            data.setSwitch(BzCSSData::Switch(BzCSSData::BorderTop + s), (sides >> s) & 1);
        button.setCSS(data);
        button.resize(60, 30);
        const QImage image = paint(button);
        const QColor border = set("button-secondary-border").normal();
        const QColor face = set("button-secondary-background").normal();
        const QPoint probes[4] = {{30, 0}, {59, 15}, {30, 29}, {0, 15}};
        for (int s = 0; s < 4; ++s) {
            const QColor want = ((sides >> s) & 1) ? border : face;
            QCOMPARE(image.pixelColor(probes[s]).name(), want.name());
            // One pixel further in is face again: the line is borderWidth wide.
            const QPoint inner = probes[s] + QPoint(s == 3   ? 2
                                                    : s == 1 ? -2
                                                             : 0,
                                                    s == 0   ? 2
                                                    : s == 2 ? -2
                                                             : 0);
            QCOMPARE(image.pixelColor(inner).name(), face.name());
        }
    }

    void radius_data() {
        QTest::addColumn<int>("radius");
        QTest::addColumn<bool>("cornerPainted");
        QTest::addColumn<qreal>("painted");
        QTest::newRow("pill") << -1 << false << 15.0;
        QTest::newRow("square") << 0 << true << 0.0;
        QTest::newRow("six") << 6 << false << 6.0;
        QTest::newRow("larger than half") << 40 << false << 15.0;
    }
    void radius() {
        QFETCH(int, radius);
        QFETCH(bool, cornerPainted);
        QFETCH(qreal, painted);
        BzPushButton button;
        button.setCSS(primary(radius));
        button.resize(80, 30);
        const QImage image = paint(button);
        QCOMPARE(image.pixelColor(0, 0).alpha(), cornerPainted ? 255 : 0);
        QCOMPARE(image.pixelColor(40, 15).rgb(), set("button-primary-background").normal().rgb());
        QCOMPARE(button.borderRadius(), painted);
        QCOMPARE(button.property("focusBorderRadius").toReal(), painted);
    }

    void focusRadiusFollowsGeometry() {
        BzPushButton button;
        button.show(); // hidden widgets get their resize events only when shown
        // No record at all: still a pill.
        button.resize(80, 30);
        QCOMPARE(button.property("focusBorderRadius").toReal(), 15.0);
        button.setCSS(primary(-1));
        button.resize(80, 40);
        QCOMPARE(button.property("focusBorderRadius").toReal(), 20.0);
        button.setCSS(primary(4));
        QCOMPARE(button.property("focusBorderRadius").toReal(), 4.0);

        // A radius the host sets stays through new records and themes.
        QVERIFY(button.setProperty("focusBorderRadius", 7));
        button.setCSS(primary(2));
        button.resize(90, 36);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCoreApplication::processEvents();
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QCOMPARE(button.property("focusBorderRadius").toReal(), 7.0);
        QVERIFY(button.dynamicPropertyNames().isEmpty());
    }

    void elidesWhenNarrow_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("keepsStart");
        QTest::addColumn<bool>("keepsEnd");
        QTest::newRow("right") << int(Qt::ElideRight) << true << false;
        QTest::newRow("left") << int(Qt::ElideLeft) << false << true;
        QTest::newRow("middle") << int(Qt::ElideMiddle) << true << true;
        QTest::newRow("none") << int(Qt::ElideNone) << true << true;
    }
    void elidesWhenNarrow() {
        QFETCH(int, mode);
        QFETCH(bool, keepsStart);
        QFETCH(bool, keepsEnd);
        const QString text = QStringLiteral("The quick brown fox jumps over the lazy dog");
        BzPushButton button(text);
        button.setCSS(primary());
        button.setElideMode(Qt::TextElideMode(mode));
        button.setTextLeftPadding(10);
        button.setTextRightPadding(10);
        button.resize(button.sizeHint());
        QCOMPARE(button.elidedText(), text);

        button.resize(100, 30);
        const QString shown = button.elidedText();
        QCOMPARE(shown.startsWith(QLatin1String("The")), keepsStart);
        QCOMPARE(shown.endsWith(QLatin1String("dog")), keepsEnd);
        if (mode != Qt::ElideNone) {
            QVERIFY(shown.contains(QChar(0x2026)));
            QVERIFY(button.fontMetrics().horizontalAdvance(shown) <= 80);
        }
        // Elided or clipped, no ink lands in the paddings.
        const auto columns = ink(button);
        QVERIFY(columns.first >= 10);
        QVERIFY2(columns.second < 90, qPrintable(QString::number(columns.second)));
    }

    void textCacheFollowsChanges() {
        // Measurements are kept between paints; every input must drop them.
        const QString text = QStringLiteral("The quick brown fox jumps over the lazy dog");
        BzPushButton button(text);
        button.setCSS(primary());
        button.resize(100, 30);
        const QString shown = button.elidedText();
        QVERIFY(shown.startsWith(QLatin1String("The")));
        const auto wideInk = ink(button);

        button.setText(QStringLiteral("Jumps over the lazy dog, the quick brown fox"));
        QVERIFY(button.elidedText().startsWith(QLatin1String("Jumps")));

        button.setText(QStringLiteral("Hi"));
        QCOMPARE(button.elidedText(), QStringLiteral("Hi"));
        const auto shortInk = ink(button);
        QVERIFY(shortInk.first > wideInk.first);

        // A bigger font makes the same text wider.
        QFont big = button.font();
        big.setPixelSize(QFontInfo(big).pixelSize() * 3);
        button.setFont(big);
        const auto bigInk = ink(button);
        QVERIFY(bigInk.second - bigInk.first > shortInk.second - shortInk.first);

        // Same text, new font: the elision must be measured again.
        button.setFont(QFont());
        button.setText(text);
        QCOMPARE(button.elidedText(), shown);
        button.setFont(big);
        QVERIFY(button.elidedText().size() < shown.size());
        button.setFont(QFont());
        button.resize(button.sizeHint());
        QCOMPARE(button.elidedText(), text);
        button.resize(100, 30);
        QCOMPARE(button.elidedText(), shown);

        button.setElideMode(Qt::ElideLeft);
        QVERIFY(button.elidedText().endsWith(QLatin1String("dog")));
        const QString left = button.elidedText();
        button.setElidePadding(40);
        QVERIFY(button.elidedText().size() < left.size());
        button.setElideMode(Qt::ElideNone);
        QCOMPARE(button.elidedText(), text);
    }

    void textAlignment_data() {
        QTest::addColumn<int>("align");
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<QString>("side");
        QTest::newRow("left") << int(BzEnum::Left) << false << "left";
        QTest::newRow("center") << int(BzEnum::Center) << false << "centre";
        QTest::newRow("right") << int(BzEnum::Right) << false << "right";
        QTest::newRow("left, rtl") << int(BzEnum::Left) << true << "right";
        QTest::newRow("right, rtl") << int(BzEnum::Right) << true << "left";
    }
    void textAlignment() {
        QFETCH(int, align);
        QFETCH(bool, rtl);
        QFETCH(QString, side);
        BzPushButton button(QStringLiteral("Hi"));
        button.setCSS(primary());
        button.setTextHorAlign(BzEnum::HorAlign(align));
        button.setTextLeftPadding(8);
        button.setTextRightPadding(8);
        if (rtl)
            button.setLayoutDirection(Qt::RightToLeft);
        button.resize(200, 30);
        const auto columns = ink(button);
        QVERIFY(columns.first >= 0);
        if (side == QLatin1String("left"))
            QVERIFY2(columns.first >= 8 && columns.first < 12, qPrintable(QString::number(columns.first)));
        else if (side == QLatin1String("right"))
            QVERIFY2(columns.second <= 191 && columns.second > 186,
                     qPrintable(QString::number(columns.second)));
        else
            QVERIFY(qAbs((columns.first + columns.second) / 2 - 100) <= 2);
    }

    void sizeHintGrows() {
        BzPushButton button(QStringLiteral("abc"));
        const QSize base = button.sizeHint();
        QVERIFY(base.height() > button.fontMetrics().height());

        button.setText(QStringLiteral("abcdef"));
        QVERIFY(button.sizeHint().width() > base.width());
        button.setText(QStringLiteral("abc"));

        button.setTextLeftPadding(10);
        QCOMPARE(button.sizeHint().width(), base.width() + 10);
        button.setTextRightPadding(7);
        QCOMPARE(button.sizeHint().width(), base.width() + 17);
        QTest::ignoreMessage(QtWarningMsg, "BzPushButton: negative text padding -4, using 0");
        button.setTextRightPadding(-4);
        QCOMPARE(button.textRightPadding(), 0);

        button.setFontToken(BzFont::Headline);
        QVERIFY(button.sizeHint().height() > base.height());

        // Elided text may shrink to the ellipsis; unelided text may not.
        button.setText(QStringLiteral("A rather long label"));
        QVERIFY(button.minimumSizeHint().width() < button.sizeHint().width());
        button.setElideMode(Qt::ElideNone);
        QCOMPARE(button.minimumSizeHint(), button.sizeHint());
    }

    void styleSheetPadding_data() {
        QTest::addColumn<QString>("extra");
        QTest::addColumn<int>("wider");
        QTest::newRow("own class") << "BzPushButton { padding-left: 16px; padding-right: 12px; }" << 28;
        QTest::newRow("base class") << "QPushButton{padding-right:16;padding-left:16;}" << 32;
        QTest::newRow("shorthand") << "BzPushButton { padding: 2px 5px; }" << 10;
        QTest::newRow("object name") << "#probe { padding-left: 3px }" << 3;
        QTest::newRow("other object name") << "#other { padding-left: 3px }" << 0;
        QTest::newRow("other class") << "QToolTip { padding: 9px; }" << 0;
        QTest::newRow("pseudo-state") << "BzPushButton:hover { padding: 9px; }" << 0;
        QTest::newRow("later wins") << "BzPushButton { padding: 9px; } BzPushButton { padding-left: 1px; }"
                                    << 10;
    }
    void styleSheetPadding() {
        QFETCH(QString, extra);
        QFETCH(int, wider);
        BzPushButton button(QStringLiteral("Text"));
        button.setObjectName(QStringLiteral("probe"));
        button.setCSS(primary());
        const int base = button.sizeHint().width();
        BzCSSData data = primary();
        data.extraCSS = extra;
        button.setCSS(data);
        // Paddings of the button's own rules are laid out without Qt's
        // style-sheet engine; everything else still goes to it.
        QCOMPARE(button.styleSheet().isEmpty(), wider > 0);
        QCOMPARE(button.sizeHint().width(), base + wider);
    }

    void freeFormTemplateFrame() {
        BzPushButton button;
        button.setCSS(QStringLiteral("BzPushButton { background-color: $(button-secondary-background);"
                                     " border: 2px solid $(button-secondary-border); border-radius: 5px;"
                                     " padding-left: 20px; }"));
        button.resize(80, 30);
        QCOMPARE(button.borderRadius(), 5.0);
        QCOMPARE(button.getWCSS().borderWidth, 2);
        QVERIFY(button.getWCSS().hasAnyBorder());
        const QImage image = paint(button);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(0, 15).name(), set("button-secondary-border").normal().name());
        QCOMPARE(image.pixelColor(40, 15).name(), set("button-secondary-background").normal().name());
    }

    // A refresh without a switch resolves and restyles nothing.
    void themeSwitch() {
        BzPushButton button(QStringLiteral("OK"));
        BzCSSData data = primary();
        data.extraCSS = QStringLiteral("QToolTip { color: $(label-primary-text); }");
        button.setCSS(data);
        button.resize(80, 30);
        QVERIFY(!button.styleSheet().isEmpty());
        const QColor light = paint(button).pixelColor(3, 15);
        QCOMPARE(light.rgb(), set("button-primary-background").normal().rgb());
        StyleChangeCounter counter;
        button.installEventFilter(&counter);
        QSignalSpy css(&button, &BzPushButton::cssChanged);
        BzThemeUtils::refreshWidgetThemes();
        QCoreApplication::processEvents();
        QCOMPARE(css.count(), 0);
        QCOMPARE(counter.count, 0);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(css.count(), 1);   // resolved during the switch
        QCOMPARE(counter.count, 1); // the colour in the extra text did change
        const QColor dark = set("button-primary-background").normal();
        QVERIFY(light.rgb() != dark.rgb());
        QCOMPARE(paint(button).pixelColor(3, 15).rgb(), dark.rgb());
        // The property write and the queued slot resolve once between them.
        QCoreApplication::processEvents();
        QCOMPARE(css.count(), 1);
    }

    void hostStyleSheetSurvivesThemeSwitch() {
        BzPushButton button(QStringLiteral("Text"));
        const int bare = button.sizeHint().width();
        const QString sheet = QStringLiteral("BzPushButton { padding-left: 10px; }");
        button.setStyleSheet(sheet);
        QCOMPARE(button.sizeHint().width(), bare + 10);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCoreApplication::processEvents();
        QCOMPARE(button.styleSheet(), sheet);
        QCOMPARE(button.sizeHint().width(), bare + 10);
    }

    void notifiesOnce() {
        ReportingButton<BzPushButton> button;
        // "css" is left out: writing it always re-resolves, and says so.
        checkNotifiesOnce(button, BzPushButton::staticMetaObject,
                          {{QStringLiteral("css"), QVariant()},
                           {QStringLiteral("focusRectColorSet"), QStringLiteral("global-focus-outline")}},
                          [&](const char* name) { return button.reported(name); });
    }

    void acceleratorType() {
        BzPushButton withMarker(QStringLiteral("&Save"));
        BzPushButton plain(QStringLiteral("Save"));
        for (BzPushButton* b : {&withMarker, &plain}) {
            b->setCSS(primary());
            b->resize(80, 30);
        }
        QCOMPARE(withMarker.sizeHint(), plain.sizeHint());
        // Type 0 hides the marker entirely...
        QCOMPARE(paint(withMarker), paint(plain));
        // ...type 2 underlines the S.
        withMarker.setAcceleratorType(BzPushButton::AlwaysUnderlined);
        QVERIFY(paint(withMarker) != paint(plain));

        QTest::ignoreMessage(QtWarningMsg, "BzPushButton: unknown accelerator type 7, using 0");
        withMarker.setAcceleratorType(7);
        QCOMPARE(withMarker.getAcceleratorType(), 0);
    }

    void fontTokenAndType() {
        BzPushButton button;
        QCOMPARE(button.fontToken(), BzFont::Button);
        QCOMPARE(button.font().pixelSize(), BzFont::pixelSizeOf(BzFont::Button));
        QSignalSpy token(&button, &BzPushButton::fontTokenChanged);
        button.setFontToken(BzFont::Title, false);
        QCOMPARE(token.count(), 1);
        QCOMPARE(button.font().pixelSize(), BzFont::pixelSizeOf(BzFont::Title));
        QCOMPARE(button.font().weight(), BzFont::weightOf(BzFont::Title));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("42")));
        button.setFontToken(42);
        QCOMPARE(int(button.fontToken()), BzFont::TokenCount - 1);

        // A scaled font follows the text scale afterwards.
        button.setFontToken(BzFont::Body);
        button.setFontType(FontManagerEnum::Scaled);
        BzFontManager::instance()->setTextScale(1.5);
        QCOMPARE(button.font().pixelSize(), BzFont::scaledPixelSizeOf(BzFont::Body, 1.5));
        button.setFontType(FontManagerEnum::None);
        BzFontManager::instance()->setTextScale(1.0);
        QCOMPARE(button.font().pixelSize(), BzFont::pixelSizeOf(BzFont::Body));
        BzFontManager::instance()->setTextScale(2.0);
        QCOMPARE(button.font().pixelSize(), BzFont::pixelSizeOf(BzFont::Body));
        BzFontManager::instance()->setTextScale(1.0);
    }

    void richText() {
        const QString html = QStringLiteral("<b>Bold</b> text");
        BzPushButton button(html);
        button.setCSS(primary());
        const int asPlain = button.sizeHint().width();
        button.setTextFormat(Qt::RichText);
        const int asRich = button.sizeHint().width();
        QVERIFY(asRich < asPlain); // the tags are markup, not text
        button.resize(button.sizeHint());
        // The rich text is painted in the text colour.
        QVERIFY(!boxOf(paint(button), set("button-primary-text").normal()).isEmpty());
    }

    void ownFocusRing() {
        QWidget window;
        BzPushButton button(QStringLiteral("OK"), &window);
        BzPushButton other(QStringLiteral("Other"), &window);
        other.move(0, 40);
        button.setCSS(primary());
        button.resize(80, 30);
        button.setFocusRectColorSet(QStringLiteral("global-focus-outline"));
        window.resize(100, 80);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.setAttribute(Qt::WA_KeyboardFocusChange);
        button.setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(button.hasFocus());
        const BzColorSet ring = set("global-focus-outline");
        const QColor focused = ring.colorFor(QStyle::State_Enabled | QStyle::State_HasFocus);
        QCOMPARE(focused.rgb(), ring.focused().rgb());
        button.setAttribute(Qt::WA_UnderMouse, false); // hover would outrank focus
        QCOMPARE(paint(button).pixelColor(1, 15).rgb(), focused.rgb());
        other.setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(!button.hasFocus());
        QCOMPARE(paint(button).pixelColor(1, 15).rgb(), set("button-primary-background").normal().rgb());
    }

    // BzSvgPushButton: a push button with icons.
    void iconPlacement_data() {
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<int>("alignment");
        QTest::addColumn<QString>("where"); // of the icon, relative to the text
        QTest::newRow("leading, ltr") << false << int(BzEnum::AlignLeft) << "left";
        QTest::newRow("leading, rtl") << true << int(BzEnum::AlignLeft) << "right";
        QTest::newRow("trailing, ltr") << false << int(BzEnum::AlignRight) << "right";
        QTest::newRow("trailing, rtl") << true << int(BzEnum::AlignRight) << "left";
        QTest::newRow("top") << false << int(BzEnum::AlignTop) << "above";
    }
    void iconPlacement() {
        QFETCH(bool, rtl);
        QFETCH(int, alignment);
        QFETCH(QString, where);
        BzSvgPushButton button(QStringLiteral("MMM"));
        setUp(button);
        button.setSvgIconAlignment(BzEnum::Alignment(alignment));
        if (rtl)
            button.setLayoutDirection(Qt::RightToLeft);
        const QSize hint = button.sizeHint();
        button.resize(120, qMax(32, hint.height()));
        const QImage image = paint(button);
        const QRect icon = boxOf(image, set(kIconSet).normal());
        const QRect text = boxOf(image, set("button-primary-text").normal());
        QCOMPARE(icon.size(), QSize(16, 16));
        QCOMPARE(icon, button.svgIconRect());
        QVERIFY(!text.isEmpty());
        const int spacing = button.svgIconSpacing();
        if (where == QLatin1String("above")) {
            QVERIFY(hint.height() >= 16 + spacing + button.fontMetrics().height());
            QVERIFY(icon.bottom() < text.top());
            QVERIFY(qAbs(icon.center().x() - text.center().x()) <= 1);
            return;
        }
        // The spacing separates them; the pair is centred as a whole.
        const int gap =
            where == QLatin1String("left") ? text.left() - icon.right() : icon.left() - text.right();
        QVERIFY2(gap >= spacing && gap <= spacing + 3, qPrintable(QString::number(gap)));
        QVERIFY(qAbs((icon | text).center().x() - 60) <= 2);
        QCOMPARE(icon.center().y(), 15);
    }

    void iconColourFollowsState() {
        BzSvgPushButton button;
        setUp(button, kSquare, "");
        button.resize(40, 32);
        const QPoint centre = button.svgIconRect().center();
        QCOMPARE(paint(button).pixelColor(centre).rgb(), set("button-primary-text").normal().rgb());
        button.setSvgIconColorSet(QStringLiteral("label-error-text"));
        button.setAttribute(Qt::WA_UnderMouse);
        QCOMPARE(paint(button).pixelColor(centre).rgb(), set("label-error-text").hovered().rgb());
        button.setEnabled(false);
        // The disabled colour is translucent: it lies over the disabled face.
        const QColor shown = paint(button).pixelColor(centre);
        const QColor want =
            over(set("label-error-text").disabled(), set("button-primary-background").disabled());
        QVERIFY2(near(shown, want), qPrintable(shown.name() + QLatin1String(" vs ") + want.name()));
    }

    void checkedIcon() {
        BzSvgPushButton button;
        setUp(button, kSquare, "");
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

    void innerIcon() {
        BzSvgPushButton button;
        button.setCSS(primary());
        button.setInnerSvgIcon(kLeftHalf);
        button.setInnerSvgIconSize(QSize(20, 20));
        button.resize(40, 40);
        // Left half of a 20 px box centred in 40 px: columns 10..19.
        QCOMPARE(boxOf(paint(button), set("button-primary-text").normal()), QRect(10, 10, 10, 20));
        button.setInnerSvgIconColorSet(QString::fromLatin1(kIconSet));
        QCOMPARE(boxOf(paint(button), set(kIconSet).normal()), QRect(10, 10, 10, 20));
    }

    void sharpAtPixelRatio_data() {
        QTest::addColumn<qreal>("dpr");
        QTest::newRow("1") << 1.0;
        QTest::newRow("1.5") << 1.5;
        QTest::newRow("2") << 2.0;
    }
    void sharpAtPixelRatio() {
        QFETCH(qreal, dpr);
        QWidget window;
        BzSvgPushButton button(&window);
        setUp(button);
        // An odd offset puts the icon between device pixels at 1.5.
        button.setGeometry(3, 3, 33, 31);
        window.resize(40, 40);
        const QImage image = paint(window, dpr);
        const QColor icon = set(kIconSet).normal();
        const QColor face = set("button-primary-background").normal();
        const QRect box = boxOf(image, icon);
        QCOMPARE(box.size(), QSize(int(16 * dpr), int(16 * dpr)));
        // Icon inside the box, face all around it: no blended edge, so the
        // icon maps 1:1 onto device pixels.
        for (int y = box.top() - 1; y <= box.bottom() + 1; ++y)
            for (int x = box.left() - 1; x <= box.right() + 1; ++x)
                QVERIFY2(image.pixelColor(x, y).rgb() == (box.contains(x, y) ? icon : face).rgb(),
                         qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
    }

    void sizeHintMakesRoomForIcon() {
        BzSvgPushButton button(QStringLiteral("Text"));
        const QSize bare = button.sizeHint();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no-such-button-icon")));
        button.setSvgIcon(QStringLiteral("no-such-button-icon"));
        QCOMPARE(button.sizeHint(), bare); // an icon that does not load takes no room
        QVERIFY(button.svgIconRect().isEmpty());
        button.setSvgIcon(kSquare);
        const QSize withIcon = button.sizeHint();
        QCOMPARE(withIcon.width(), bare.width() + 16 + button.svgIconSpacing());
        button.setSvgIconSize(QSize(24, 24));
        QCOMPARE(button.sizeHint().width(), withIcon.width() + 8);
        button.setSvgIconSpacing(10);
        button.setSvgIconTopLeftPadding(QPoint(3, 0));
        button.setSvgIconBottomRightPadding(QPoint(2, 0));
        QCOMPARE(button.sizeHint().width(), bare.width() + 24 + 10 + 5);
        button.setSvgIconSize(QSize(24, 60));
        QVERIFY(button.sizeHint().height() > 60);
        button.setSvgIconVisible(false);
        QCOMPARE(button.sizeHint(), bare);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("negative icon size")));
        button.setSvgIconSize(QSize(-3, 8));
        QCOMPARE(button.svgIconSize(), QSize(0, 8));
    }

    void themeSwitchRetintsIcons() {
        BzSvgPushButton button;
        setUp(button, kSquare, "label-error-text");
        button.setInnerSvgIcon(kLeftHalf);
        button.setInnerSvgIconColorSet(QStringLiteral("label-primary-text"));
        button.setTextHorAlign(BzEnum::Left); // keeps the leading icon clear of the inner one
        button.resize(80, 32);
        const QPoint iconAt = button.svgIconRect().center();
        const QPoint innerAt(37, 16); // left half of the centred inner icon
        const QColor lightIcon = set("label-error-text").normal();
        QCOMPARE(paint(button).pixelColor(iconAt).rgb(), lightIcon.rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QVERIFY(set("label-error-text").normal() != lightIcon);
        QCoreApplication::processEvents();
        const QImage image = paint(button);
        QCOMPARE(image.pixelColor(iconAt).rgb(), set("label-error-text").normal().rgb());
        QCOMPARE(image.pixelColor(innerAt).rgb(), set("label-primary-text").normal().rgb());
    }

    void svgNotifiesOnce() {
        ReportingButton<BzSvgPushButton> button;
        checkNotifiesOnce(button, BzSvgPushButton::staticMetaObject,
                          {{QStringLiteral("svgIcon"), kSquare},
                           {QStringLiteral("svgIconChecked"), kLeftHalf},
                           {QStringLiteral("svgIconColorSet"), QStringLiteral("label-error-text")},
                           {QStringLiteral("innerSvgIcon"), kSquare},
                           {QStringLiteral("innerSvgIconColorSet"), QStringLiteral("label-primary-text")}},
                          [&](const char* name) { return button.reported(name); });
    }

    // BzSvgAnchorButton: a push button with an anchor icon.
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
        setUpAnchor(button);
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
        setUpAnchor(button);
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
        setUpAnchor(button);
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

    void anchorNotifiesOnce() {
        ReportingButton<BzSvgAnchorButton> button;
        checkNotifiesOnce(button, BzSvgAnchorButton::staticMetaObject,
                          {{QStringLiteral("anchorSvgOn"), kLeftHalf},
                           {QStringLiteral("anchorSvgOff"), kSquare},
                           {QStringLiteral("anchorSvgColorSet"), QStringLiteral("label-error-text")}},
                          [&](const char* name) { return button.reported(name); });
    }

    // BzColorSet: which colour a state gets.
    void stateRule_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("expected");
        const int on = QStyle::State_Enabled;
        QTest::newRow("disabled beats everything")
            << int(QStyle::State_Sunken | QStyle::State_MouseOver | QStyle::State_On)
            << int(BzColorSet::Disabled);
        QTest::newRow("sunken beats hover")
            << (on | QStyle::State_Sunken | QStyle::State_MouseOver) << int(BzColorSet::Pressed);
        QTest::newRow("hover beats focus")
            << (on | QStyle::State_MouseOver | QStyle::State_HasFocus) << int(BzColorSet::Hovered);
        QTest::newRow("focus beats checked")
            << (on | QStyle::State_HasFocus | QStyle::State_On) << int(BzColorSet::Focused);
        QTest::newRow("on is checked") << (on | QStyle::State_On) << int(BzColorSet::Checked);
        QTest::newRow("selected is checked") << (on | QStyle::State_Selected) << int(BzColorSet::Checked);
        QTest::newRow("plain") << on << int(BzColorSet::Normal);
    }
    void stateRule() {
        QFETCH(int, state);
        QFETCH(int, expected);
        const BzColorSet set = sample();
        QCOMPARE(int(set.stateFor(QStyle::State(state))), expected);
        QCOMPARE(set.colorFor(QStyle::State(state)), set.color(BzColorSet::State(expected)));
    }

    void focusOnlyWhenDistinct() {
        BzColorSet set = sample();
        set.setColor(BzColorSet::Focused, set.normal());
        // Same focus colour as normal: focus is skipped and "on" decides.
        QCOMPARE(set.stateFor(QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_On),
                 BzColorSet::Checked);
        QCOMPARE(set.stateFor(QStyle::State_Enabled | QStyle::State_HasFocus), BzColorSet::Normal);
    }

    void stateNamesRoundTrip() {
        for (int s = 0; s < BzColorSet::StateCount; ++s)
            QCOMPARE(BzColorSet::stateFromName(BzColorSet::stateName(BzColorSet::State(s))),
                     BzColorSet::State(s));
        QCOMPARE(BzColorSet::stateFromName(QStringLiteral("hover")), BzColorSet::StateCount);
        QCOMPARE(BzColorSet::stateFromName(QStringLiteral("Normal")), BzColorSet::StateCount); // case matters
    }

    void outOfRangeState() {
        BzColorSet set = sample();
        QTest::ignoreMessage(QtWarningMsg, "BzColorSet::setColor: state 9 is out of range");
        set.setColor(BzColorSet::State(9), Qt::blue);
        QCOMPARE(set, sample());
        QCOMPARE(set.color(BzColorSet::State(-1)), set.normal());
    }
};

QTEST_MAIN(TestBzPushButton)
#include "tst_bzpushbutton.moc"
