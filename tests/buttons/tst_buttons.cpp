#include "buttontestutils.h"
#include "bzfont.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "drawutils.h"
#include "focusringtest.h"
#include "ikabutton.h"
#include "kabadge.h"
#include "kabutton.h"
#include "kadialpadbutton.h"
#include "kadualcellbutton.h"
#include "kadualcombobutton.h"
#include "kadualiconbutton.h"
#include "kadualiconcellconfig.h"
#include "kaemojipushbutton.h"
#include "kagifbutton.h"
#include "kahyperlinkbutton.h"
#include "kaiconbutton.h"
#include "kaiconbuttonconfig.h"
#include "kaoverlaybutton.h"
#include "kaoverlaybuttonconfig.h"
#include "kapillbutton.h"
#include "kapillbuttonconfig.h"
#include "karoundbadgebutton.h"
#include "karoundbutton.h"
#include "karoundbuttonconfig.h"
#include "katitlebarbutton.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QMetaEnum>
#include <QPainter>
#include <QSignalSpy>

#include <QSvgRenderer>
#include <QTest>
#include <QTimer>
#include <climits>
#include <memory>

using namespace ButtonTest;

namespace {

BzColorSet linkText() {
    return BzThemeUtils::getColorSet(QStringLiteral("button-hyperlink-text"));
}

// The longest horizontal run of opaque pixels close to `colour` in the rows
// below the text's vertical centre: an underline is one long run, glyphs
// are short ones.
int longestRunBelowCentre(const QImage& image, const QColor& colour) {
    int longest = 0;
    for (int y = image.height() / 2 + 1; y < image.height(); ++y) {
        int run = 0;
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            run = pixel.alpha() > 200 && BzTest::near(pixel, colour, 40) ? run + 1 : 0;
            longest = qMax(longest, run);
        }
    }
    return longest;
}

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

// Whether a pixel close to `colour` lies within rows [top, bottom).
bool inkIn(const QImage& image, const QColor& colour, int top, int bottom) {
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (BzTest::near(image.pixelColor(x, y), colour, 11))
                return true;
        }
    }
    return false;
}

using TitleBar = KaTitleBarButtonConfig;

// Shows the button in a window of its own and waits for the layout.
struct Shown {
    QWidget window;
    KaDualComboButton* button = new KaDualComboButton(&window);
    explicit Shown(KaDualButtonEnum::Style style, Qt::LayoutDirection direction = Qt::LeftToRight) {
        window.setLayoutDirection(direction);
        button->setStyle(style);
        button->setText(QStringLiteral("Join"));
        button->setCellIcon(QStringLiteral("qrc:/Resources/camera-presence-filled.svg"));
        button->move(10, 10);
        button->resize(button->sizeHint());
        window.resize(300, 100);
        window.show();
    }
};

struct ShownIcons {
    QWidget window;
    KaDualIconButton* button = new KaDualIconButton(&window);
    explicit ShownIcons(KaDualButtonEnum::IconButtonStyle style) {
        button->setStyle(style);
        button->setFirstIcon(QStringLiteral("qrc:/Resources/phone-filled.svg"));
        button->setSecondIcon(QStringLiteral("qrc:/Resources/chat-filled.svg"));
        button->move(10, 10);
        window.resize(200, 200);
        window.show();
    }
};

const char kIcon[] = ":/Resources/check-regular.svg";
const char kAnchor[] = ":/Resources/arrow-down_8.svg";

// A 16 by 16 animation of three solid frames, red, green and blue, 30 ms
// each, looping.
QString threeFrames() {
    return QFINDTESTDATA("data/three-frames.gif");
}

// The colour in the middle of the image box of an image-only button.
QColor centre(KaGifButton& button) {
    const QImage image = rendered(&button);
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

bool reddish(const QColor& colour) {
    return colour.red() > colour.green() + 40 && colour.red() > colour.blue() + 40;
}

struct ShownGif {
    QWidget window;
    KaGifButton* button = new KaGifButton(&window);
    explicit ShownGif(KaGifButton::PlayMode mode) {
        button->setPlayMode(mode);
        button->setFileName(threeFrames());
        button->move(20, 20);
        window.resize(120, 80);
        window.show();
    }
};

// A square of `side` (a circle to the focus ring) with an icon of `icon` centred.
template <typename Button> void checkSquare(Button& button, int side, const QSize& icon) {
    QVERIFY(side > 0);
    QCOMPARE(button.maximumSize(), QSize(side, side));
    QCOMPARE(button.minimumSize(), QSize(side, side));
    QCOMPARE(button.svgIconSize(), icon);
    QCOMPARE(button.property("focusBorderRadius").toReal(), side / 2.0);
    button.resize(side, side);
    QCOMPARE(button.svgIconRect().center(), QRect(0, 0, side, side).center());
}

// Stands in for the library's menu class: any QMenu subclass attaches.
class TestMenu : public QMenu {
    Q_OBJECT
public:
    explicit TestMenu(QWidget* parent = nullptr)
        : QMenu(parent) {
        addAction(QStringLiteral("First entry"));
        addAction(QStringLiteral("Second entry"));
    }
};

// KaButton with the pill's configuration, applying only the colour part and
// the base record, so that what is tested is KaButton's own behaviour.
class TestButton : public KaButton {
    Q_OBJECT
public:
    explicit TestButton(QWidget* parent = nullptr)
        : KaButton(parent, new KaPillButtonConfig) {
        connect(this, &IKaButton::refreshConfig, this, &TestButton::refresh);
        refresh();
    }
    int refreshes = 0;

private:
    void refresh() {
        ++refreshes;
        KaPillButtonConfig::Geometry g;
        static_cast<KaPillButtonConfig*>(buttonConfig())->fillGeometry(g);
        applyColors(g.colors, QString());
        IKaButton::refresh(g);
    }
};

// Fills whatever the test puts into `record` and logs the icon flags it is told.
class TestConfig : public IKaButtonConfig {
    Q_OBJECT
public:
    using IKaButtonConfig::IKaButtonConfig;
    void fillConfig(Config& out) const override {
        out = record;
        out.acceleratorType = customValue;
    }
    void setHasLeftIcon(bool hasIcon) override { log << QStringLiteral("left:%1").arg(hasIcon); }
    void setHasRightIcon(bool hasIcon) override { log << QStringLiteral("right:%1").arg(hasIcon); }
    void setCustomValue(int value) override {
        customValue = value;
        notifyConfigChanged();
    }

    Config record;
    int customValue = 0;
    QStringList log;
};

// The smallest concrete button: applies the record as it is.
class BareButton : public IKaButton {
    Q_OBJECT
public:
    explicit BareButton(IKaButtonConfig* config, QWidget* parent = nullptr)
        : IKaButton(parent, config) {
        // IKaButton only guards its configuration; the concrete button owns it.
        if (config && !config->parent())
            config->setParent(this);
        connect(this, &IKaButton::refreshConfig, this, &BareButton::refresh);
        refresh();
    }
    int refreshes = 0;

private:
    void refresh() {
        ++refreshes;
        if (!buttonConfig())
            return;
        Config record;
        buttonConfig()->fillConfig(record);
        applyColors(record.colors, QString());
        IKaButton::refresh(record);
    }
};

} // namespace

class tst_Buttons : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    // IKaButton.
    void leftIconTellsConfiguration() {
        auto* config = new TestConfig;
        BareButton button(config);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        QSignalSpy changed(&button, &IKaButton::leftIconChanged);

        const QString icon = QStringLiteral(":/Resources/check-regular.svg");
        const QString iconOn = QStringLiteral(":/Resources/check-circle-badge-filled.svg");
        button.setLeftIcon(icon);
        QCOMPARE(button.svgIcon(), icon);
        QCOMPARE(button.leftIcon(), icon);
        // One refresh per change, not one from the configuration and one from the button.
        QCOMPARE(refreshes.count(), 1);
        QCOMPARE(changed.count(), 1);

        button.setLeftIconOn(iconOn);
        QCOMPARE(button.svgIconChecked(), iconOn);
        QCOMPARE(button.svgIcon(), icon);
        QCOMPARE(refreshes.count(), 2);

        button.setLeftIcon(QString());
        QCOMPARE(config->log, (QStringList{"left:1", "left:0"}));

        // The button paints the anchors the configuration chose.
        button.setRightIcon(icon);
        QCOMPARE(button.anchorSvgOff(), icon);
        QCOMPARE(button.anchorSvgOn(), icon);
        button.setRightIcon(QString());
        QCOMPARE(config->log, (QStringList{"left:1", "left:0", "right:1", "right:0"}));

        // The current path changes nothing.
        button.setLeftIconOn(iconOn);
        button.setRightIcon(QString());
        QCOMPARE(refreshes.count(), 5);
        QCOMPARE(config->log.size(), 4);
    }

    // The base button declares no change signals; the properties re-declared
    // here still announce each new value once.
    void basePropertiesNotify() {
        BareButton button(new TestConfig);
        // Invalid values leave css and the policies out.
        QVariantMap values{{"css", {}}, {"sizePolicy", {}}, {"focusPolicy", {}}};
        for (const char* icon : {"anchorSvgOn", "anchorSvgOff", "svgIcon", "svgIconChecked", "innerSvgIcon"})
            values.insert(QLatin1String(icon), QStringLiteral(":/Resources/check-regular.svg"));
        for (const char* set :
             {"anchorSvgColorSet", "focusRectColorSet", "svgIconColorSet", "innerSvgIconColorSet"})
            values.insert(QLatin1String(set), QStringLiteral("label-error-text"));
        BzTest::checkNotifiesOnce(button, IKaButton::staticMetaObject, values);
    }

    void recordIsApplied() {
        auto* config = new TestConfig;
        config->record.sizePolicy = QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        config->record.focusPolicy = Qt::TabFocus;
        config->record.fixedHeight = 36;
        config->record.fontToken = BzFont::Caption;
        config->record.layoutMode = 3;
        config->record.innerMetric = 17;
        BareButton button(config);

        QCOMPARE(button.sizePolicy(), config->record.sizePolicy);
        QCOMPARE(button.focusPolicy(), Qt::TabFocus);
        QCOMPARE(button.minimumHeight(), 36);
        QCOMPARE(button.maximumHeight(), 36);
        QCOMPARE(int(button.fontToken()), int(BzFont::Caption));
        QCOMPARE(button.font().pixelSize(), BzFont(BzFont::Caption).pixelSize());
        QCOMPARE(button.layoutMode(), 3);
        QCOMPARE(button.innerMetric(), 17);

        QSignalSpy layout(&button, &IKaButton::layoutModeChanged);
        QSignalSpy inner(&button, &IKaButton::innerMetricChanged);
        Q_EMIT button.refreshConfig();
        QCOMPARE(layout.count(), 0);
        QCOMPARE(inner.count(), 0);
        config->record.innerMetric = 20;
        Q_EMIT button.refreshConfig();
        QCOMPARE(inner.count(), 1);
        QCOMPARE(layout.count(), 0);

        // Height 0 frees the height again.
        config->record.fixedHeight = 0;
        Q_EMIT button.refreshConfig();
        QCOMPARE(button.minimumHeight(), 0);
        QCOMPARE(button.maximumHeight(), QWIDGETSIZE_MAX);
    }

    void identicalRecordDoesNotResolveAgain() {
        auto* config = new TestConfig;
        config->record.colors.backgroundColorSet = QStringLiteral("button-primary-background");
        BareButton button(config);
        QSignalSpy resolved(&button, &BzPushButton::cssChanged);
        Q_EMIT button.refreshConfig();
        QCOMPARE(resolved.count(), 0);
        config->record.colors.backgroundColorSet = QStringLiteral("button-secondary-background");
        Q_EMIT button.refreshConfig();
        QCOMPARE(resolved.count(), 1);
        QCOMPARE(button.getWCSS().backgroundColorSet, QStringLiteral("button-secondary-background"));
    }

    void bordersMirrorInRightToLeft() {
        auto* config = new TestConfig;
        config->record.colors.borderColorSet = QStringLiteral("button-secondary-border");
        config->record.colors.hasBorder = {{false, false, false, true}}; // left only
        BareButton button(config);
        QVERIFY(button.getWCSS().isOn(BzCSSData::BorderLeft));
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderRight));

        button.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderLeft));
        QVERIFY(button.getWCSS().isOn(BzCSSData::BorderRight));
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderTop));
    }

    void visibilitySignals() {
        QWidget window;
        BareButton button(new TestConfig, &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QSignalSpy visibility(&button, &IKaButton::onVisibilityChanged);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.hide();
        QCOMPARE(visibility.count(), 1);
        QCOMPARE(visibility.at(0).at(0).toBool(), false);
        QCOMPARE(refreshes.count(), 0);

        button.show();
        QCOMPARE(visibility.count(), 2);
        QCOMPARE(visibility.at(1).at(0).toBool(), true);
        // The program showed it: the look is re-applied.
        QCOMPARE(refreshes.count(), 1);
    }

    void acceleratorTypeGoesThroughConfiguration() {
        auto* config = new TestConfig;
        BareButton button(config);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(config->customValue, int(BzPushButton::AlwaysUnderlined));
        QCOMPARE(button.getAcceleratorType(), int(BzPushButton::AlwaysUnderlined));
        QCOMPARE(refreshes.count(), 1);

        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(refreshes.count(), 1);
    }

    void withoutConfiguration() {
        BareButton button(nullptr);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.setLeftIcon(QStringLiteral(":/Resources/check-regular.svg"));
        button.setRightIcon(QStringLiteral(":/Resources/check-regular.svg"));
        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(refreshes.count(), 0);
        QVERIFY(button.leftIcon().isEmpty());
        QVERIFY(button.svgIcon().isEmpty());
        button.onThemeChanged();
        QCOMPARE(refreshes.count(), 1);
    }

    // A configuration follows one button: handed to a second one, it warns
    // and refreshes only that one, also once the first is gone.
    void configurationHandedOn() {
        auto* config = new TestConfig;
        auto first = std::make_unique<BareButton>(config);
        QTest::ignoreMessage(
            QtWarningMsg,
            "IKaButton: the configuration already belongs to another button; it now follows this one");
        BareButton second(config);
        QSignalSpy firstRefreshes(first.get(), &IKaButton::refreshConfig);
        QSignalSpy secondRefreshes(&second, &IKaButton::refreshConfig);
        config->setCustomValue(2);
        QCOMPARE(firstRefreshes.count(), 0);
        QCOMPARE(secondRefreshes.count(), 1);
        first.reset(); // owns the configuration as its Qt parent
        QVERIFY(!second.buttonConfig());
        second.setLeftIcon(QStringLiteral(":/Resources/check-regular.svg"));
        QCOMPARE(secondRefreshes.count(), 1);
    }

    // KaHyperlinkButton.
    void linkColours() {
        KaHyperlinkButton link(QStringLiteral("Learn more"));
        QCOMPARE(link.cursor().shape(), Qt::PointingHandCursor);

        link.resize(link.sizeHint());
        // The face is invisible at rest and the text is painted in link colour.
        const QImage image = rendered(&link);
        QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
        bool linkColoured = false;
        for (int y = 0; y < image.height() && !linkColoured; ++y) {
            for (int x = 0; x < image.width() && !linkColoured; ++x)
                linkColoured = image.pixelColor(x, y).rgb() == linkText().normal().rgb();
        }
        QVERIFY(linkColoured);
    }

    void underlinedOnHover() {
        QWidget window;
        auto* link = new KaHyperlinkButton(QStringLiteral("Learn more"), &window);
        link->move(20, 20);
        QVERIFY(shown(window, QRect(300, 300, 200, 80)));
        QTest::mouseMove(&window, QPoint(5, 5));
        QVERIFY(!link->isUnderlined());
        link->resize(link->sizeHint());
        const int textWidth = link->fontMetrics().horizontalAdvance(link->text());
        const QImage plain = rendered(link);
        QVERIFY(longestRunBelowCentre(plain, linkText().normal()) < textWidth / 2);

        QTest::mouseMove(link, link->rect().center());
        QTRY_VERIFY(link->isUnderlined());
        link->setAttribute(Qt::WA_UnderMouse, true);
        const QImage hovered = rendered(link);
        QVERIFY(longestRunBelowCentre(hovered, linkText().hovered()) >= textWidth * 9 / 10);

        QTest::mouseMove(&window, QPoint(5, 5));
        QTRY_VERIFY(!link->isUnderlined());

        // A disabled link does not react to the pointer.
        link->setEnabled(false);
        QTest::mouseMove(link, link->rect().center());
        QTRY_VERIFY(link->underMouse());
        QVERIFY(!link->isUnderlined());
    }

    void alwaysUnderline() {
        KaHyperlinkButton link(QStringLiteral("Terms"));
        QSignalSpy spy(&link, &KaHyperlinkButton::alwaysUnderlineChanged);
        link.setAlwaysUnderline(true);
        link.setAlwaysUnderline(true);
        QCOMPARE(spy.count(), 1);
        QVERIFY(link.isUnderlined());
        link.setAlwaysUnderline(false);
        QVERIFY(!link.isUnderlined());
    }

    // Fixed height; smaller sizes never get taller or larger text.
    void geometryBySize() {
        KaHyperlinkButton link(QStringLiteral("Learn more"));
        int previousHeight = INT_MAX;
        int previousPixels = INT_MAX;
        for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraSmall; ++size) {
            link.setSize(KaButtonEnum::Size(size));
            QCOMPARE(link.minimumHeight(), link.maximumHeight());
            QVERIFY(link.maximumHeight() > link.fontMetrics().height());
            QVERIFY(link.maximumHeight() <= previousHeight);
            QVERIFY(link.font().pixelSize() <= previousPixels);
            previousHeight = link.maximumHeight();
            previousPixels = link.font().pixelSize();
        }
        QVERIFY(previousHeight < QWIDGETSIZE_MAX);
    }

    void iconWidensButton() {
        KaHyperlinkButton link(QStringLiteral("Open"));
        const int plain = link.sizeHint().width();
        link.setLeftIcon(QStringLiteral("qrc:/Resources/pop-out-regular.svg"));
        // Normal: a 16 px icon and 4 px spacing.
        QCOMPARE(link.sizeHint().width(), plain + 20);
        link.setLeftIcon(QString());
        QCOMPARE(link.sizeHint().width(), plain);
    }

    // KaEmojiPushButton.
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

    void emojiAccessibleName() {
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

    // KaDialpadButton.
    void keypadLayout_data() {
        QTest::addColumn<QString>("character");
        QTest::addColumn<QString>("letters");
        QTest::addColumn<QString>("alternate");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* key, const char* letters, const char* alternate, const char* name) {
            QTest::newRow(name) << QString::fromLatin1(key) << QString::fromLatin1(letters)
                                << QString::fromLatin1(alternate) << QString::fromLatin1(name);
        };
        row("1", "", "", "1");
        row("2", "ABC", "", "2 ABC");
        row("0", "+", "+", "0 +");
        row("*", "", "", "*");
    }

    void keypadLayout() {
        QFETCH(QString, character);
        QFETCH(QString, letters);
        QFETCH(QString, alternate);
        QFETCH(QString, name);
        KaDialpadButton key(QStringLiteral("5"));
        key.setCharacter(character);
        QCOMPARE(key.letters(), letters);
        QCOMPARE(key.alternateCharacter(), alternate);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&key);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::PushButton);
        QCOMPARE(iface->text(QAccessible::Name), name);
    }

    void longPressEntersAlternate() {
        KaDialpadButton key(QStringLiteral("0"));
        key.setLongPressInterval(20);
        QSignalSpy entered(&key, &KaDialpadButton::characterEntered);
        QSignalSpy longPressed(&key, &KaDialpadButton::longPressed);
        QTest::mousePress(&key, Qt::LeftButton);
        QTRY_COMPARE(longPressed.count(), 1);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).toString(), QStringLiteral("+"));
        // The release after a long press enters nothing more.
        QTest::mouseRelease(&key, Qt::LeftButton);
        QCOMPARE(entered.count(), 1);
        // And the next short press is an ordinary one again.
        key.setLongPressInterval(60000);
        QTest::mouseClick(&key, Qt::LeftButton);
        QCOMPARE(entered.count(), 2);
        QCOMPARE(entered.at(1).at(0).toString(), QStringLiteral("0"));
        QCOMPARE(longPressed.count(), 1);
    }

    void longPressWithoutAlternate() {
        KaDialpadButton key(QStringLiteral("5"));
        key.setLongPressInterval(1);
        QSignalSpy entered(&key, &KaDialpadButton::characterEntered);
        QSignalSpy longPressed(&key, &KaDialpadButton::longPressed);
        QTest::mousePress(&key, Qt::LeftButton);
        // Let a timer of the interval run out if one were started.
        QSignalSpy released(&key, &QAbstractButton::released);
        QTimer::singleShot(10, &key, [&key] { QTest::mouseRelease(&key, Qt::LeftButton); });
        QVERIFY(released.wait());
        QCOMPARE(longPressed.count(), 0);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).toString(), QStringLiteral("5"));
    }

    void typingTheCharacter() {
        QWidget window;
        auto* key = new KaDialpadButton(QStringLiteral("#"), &window);
        window.show();
        key->setFocus();
        QSignalSpy entered(key, &KaDialpadButton::characterEntered);
        QTest::keyClick(key, Qt::Key_3);
        QCOMPARE(entered.count(), 0);
        QTest::keyClick(key, Qt::Key_NumberSign, Qt::NoModifier);
        QTRY_COMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).toString(), QStringLiteral("#"));
    }

    // The digit in the number colour above the letters in the letters colour
    // (antialiased digit edges pass through the lighter letters colour, so only
    // the darker number colour can be ruled out below).
    void digitAboveLetters() {
        KaDialpadButton key(QStringLiteral("8"));
        key.resize(56, 56);
        const QImage image = rendered(&key);
        const QColor number = colorOf("button-dialpad-text-number");
        const QColor letters = colorOf("button-dialpad-text-characters");
        const int middle = image.height() / 2 + 2;
        QVERIFY(inkIn(image, number, 0, middle));
        QVERIFY(!inkIn(image, number, middle + 2, image.height()));
        QVERIFY(inkIn(image, letters, middle, image.height()));
    }

    void specialKey() {
        KaDialpadButton key(QStringLiteral("*"));
        key.resize(56, 56);
        const QPoint face(28, 6);
        QCOMPARE(rendered(&key).pixelColor(face).rgb(), colorOf("button-dialpad-background").rgb());
        QSignalSpy spy(&key, &KaDialpadButton::specialChanged);
        key.setSpecial(true);
        key.setSpecial(true);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(rendered(&key).pixelColor(face).rgb(), colorOf("button-dialpad-special-background").rgb());
        QCOMPARE(key.getWCSS().textColorSet, QStringLiteral("button-dialpad-special-text-number"));
    }

    // A circle at every size, smaller sizes smaller.
    void circleBySize() {
        KaDialpadButton key(QStringLiteral("4"));
        int previous = INT_MAX;
        for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::Small; ++size) {
            key.setSize(KaButtonEnum::Size(size));
            const int diameter = key.maximumWidth();
            QCOMPARE(key.minimumSize(), QSize(diameter, diameter));
            QCOMPARE(key.maximumSize(), QSize(diameter, diameter));
            QCOMPARE(key.property("focusBorderRadius").toReal(), diameter / 2.0);
            QVERIFY(diameter < previous);
            previous = diameter;
        }
    }

    // KaTitleBarButton.
    void actsOnWindow_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("name");
        QTest::newRow("minimise") << int(TitleBar::Minimize) << "Minimize";
        QTest::newRow("close") << int(TitleBar::Close) << "Close";
    }

    void actsOnWindow() {
        QFETCH(int, type);
        QFETCH(QString, name);
        QWidget window;
        auto* button = new KaTitleBarButton(TitleBar::Type(type), &window);
        QVERIFY(shown(window));
        QCOMPARE(accessibleName(button), name);
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(type == TitleBar::Close ? !window.isVisible() : window.isMinimized());
    }

    void maximiseToggles() {
        QWidget window;
        auto* button = new KaTitleBarButton(TitleBar::Maximize, &window);
        QVERIFY(shown(window));
        QCOMPARE(button->glyph(), TitleBar::MaximizeGlyph);
        QCOMPARE(accessibleName(button), QStringLiteral("Maximize"));

        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(window.isMaximized());
        QCOMPARE(button->glyph(), TitleBar::RestoreGlyph);
        QCOMPARE(accessibleName(button), QStringLiteral("Restore"));
        QCOMPARE(button->toolTip(), QStringLiteral("Restore"));

        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(!window.isMaximized());
        QCOMPARE(button->glyph(), TitleBar::MaximizeGlyph);
    }

    void followsOutsideStateChanges() {
        QWidget window;
        auto* button = new KaTitleBarButton(TitleBar::Maximize, &window);
        window.showMaximized();
        QTRY_COMPARE(button->glyph(), TitleBar::RestoreGlyph);
        window.showNormal();
        QTRY_COMPARE(button->glyph(), TitleBar::MaximizeGlyph);

        // Moved into another window, it follows that one.
        QWidget other;
        button->setParent(&other);
        other.showMaximized();
        QTRY_COMPARE(button->glyph(), TitleBar::RestoreGlyph);
        window.showMaximized();
        other.showNormal();
        QTRY_COMPARE(button->glyph(), TitleBar::MaximizeGlyph);
    }

    void targetWindow() {
        QWidget window;
        QWidget preview;
        auto* button = new KaTitleBarButton(TitleBar::Maximize, &window);
        QSignalSpy spy(button, &KaTitleBarButton::targetWindowChanged);
        button->setTargetWindow(&preview);
        button->setTargetWindow(&preview);
        QCOMPARE(spy.count(), 1);
        window.show();
        preview.show();
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(preview.isMaximized());
        QVERIFY(!window.isMaximized());
        QCOMPARE(button->glyph(), TitleBar::RestoreGlyph);
        button->setTargetWindow(nullptr);
        QCOMPARE(button->targetWindow(), &window);
        QCOMPARE(button->glyph(), TitleBar::MaximizeGlyph);
    }

    void colourSets_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("maximise") << int(TitleBar::Maximize);
        QTest::newRow("close") << int(TitleBar::Close);
    }

    // Transparent at rest, the face of the type's set under the pointer; close
    // has a look of its own.
    void colourSets() {
        QFETCH(int, type);
        KaTitleBarButton button{TitleBar::Type(type)};
        QCOMPARE(button.focusPolicy(), Qt::NoFocus);
        const QString background = button.getWCSS().backgroundColorSet;
        QVERIFY(!background.isEmpty());
        QVERIFY(!button.getWCSS().textColorSet.isEmpty());
        KaTitleBarButton close;
        QCOMPARE(close.type(), TitleBar::Close); // the default
        QCOMPARE(background == close.getWCSS().backgroundColorSet, type == TitleBar::Close);
        button.resize(40, 32);
        QCOMPARE(rendered(&button).pixelColor(1, 1).alpha(), 0);
        button.setAttribute(Qt::WA_UnderMouse);
        // Square corners: the corner pixel is face too.
        QCOMPARE(rendered(&button).pixelColor(0, 0).rgba(),
                 BzThemeUtils::getColorSet(background).hovered().rgba());
    }

    // Fixed size, growing with the size setting.
    void titleBarGeometryBySize() {
        KaTitleBarButton button(TitleBar::Minimize);
        QSize previous;
        for (int size : {KaButtonEnum::Small, KaButtonEnum::Normal, KaButtonEnum::Large}) {
            button.setSize(KaButtonEnum::Size(size));
            QCOMPARE(button.minimumSize(), button.maximumSize());
            QVERIFY(previous.isEmpty() || (button.maximumSize().width() > previous.width() &&
                                           button.maximumSize().height() > previous.height()));
            previous = button.maximumSize();
        }
    }

    // Each glyph in the text colour: a line, a square, two squares, a cross.
    void glyphs() {
        const QRgb ink =
            BzThemeUtils::getColorSet(QStringLiteral("globalHeader-maxMinButton-text")).normal().rgb();
        KaTitleBarButton button(TitleBar::Minimize);
        button.resize(40, 32);
        // A 10 px glyph box at (15, 11).
        QImage image = rendered(&button);
        QCOMPARE(image.pixel(15, 16), ink);
        QCOMPARE(image.pixel(24, 16), ink);
        QCOMPARE(qAlpha(image.pixel(20, 11)), 0);

        button.setType(TitleBar::Maximize);
        image = rendered(&button);
        QCOMPARE(image.pixel(15, 11), ink);
        QCOMPARE(image.pixel(24, 20), ink);
        QCOMPARE(qAlpha(image.pixel(20, 16)), 0);

        QWidget window;
        auto* restore = new KaTitleBarButton(TitleBar::Maximize, &window);
        window.showMaximized();
        QTRY_COMPARE(restore->glyph(), TitleBar::RestoreGlyph);
        restore->resize(40, 32);
        image = rendered(restore);
        // Front window's top-left corner, the back window's top-right one.
        QCOMPARE(image.pixel(15, 13), ink);
        QCOMPARE(image.pixel(24, 11), ink);
        QCOMPARE(qAlpha(image.pixel(15, 11)), 0);
    }

    // KaDualComboButton.
    void decodesCode_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("iconFirst");
        QTest::addColumn<bool>("arrow");
        QTest::addColumn<int>("labelAlign");
        QTest::addColumn<int>("direction");

        const int ltr = Qt::LeftToRight;
        const int rtl = Qt::RightToLeft;
        QTest::newRow("LabelIconSecondary") << 0x33 << false << false << int(BzEnum::Center) << ltr;
        QTest::newRow("IconLabelSecondary") << 0x133 << true << false << int(BzEnum::Center) << ltr;
        QTest::newRow("LabelArrowSecondary") << 0x93 << false << true << int(BzEnum::Center) << ltr;
        QTest::newRow("LabelIconSecondaryAlignRight") << 0x233 << false << false << int(BzEnum::Right) << ltr;
        QTest::newRow("IconLabelSecondary rtl") << 0x133 << true << false << int(BzEnum::Center) << rtl;
        QTest::newRow("LabelArrowGreen rtl") << 0x97 << false << true << int(BzEnum::Center) << rtl;
    }

    void decodesCode() {
        QFETCH(int, style);
        QFETCH(bool, iconFirst);
        QFETCH(bool, arrow);
        QFETCH(int, labelAlign);
        QFETCH(int, direction);
        Shown shown{KaDualButtonEnum::Style(style), Qt::LayoutDirection(direction)};
        KaDualComboButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));

        KaDualCellButton* label = button->labelCell();
        KaDualCellButton* icon = button->iconCell();
        QCOMPARE(button->leadingCell(), iconFirst ? icon : label);
        QCOMPARE(button->trailingCell(), iconFirst ? label : icon);
        QVERIFY(!button->isVertical());

        // Side by side on one row; the leading cell on the reading side.
        QTRY_COMPARE(label->y(), icon->y());
        const bool leadingLeft = direction == Qt::LeftToRight;
        const KaDualCellButton* leading = button->leadingCell();
        const KaDualCellButton* trailing = button->trailingCell();
        if (leadingLeft)
            QCOMPARE(trailing->x(), leading->x() + leading->width());
        else
            QCOMPARE(leading->x(), trailing->x() + trailing->width());

        QCOMPARE(int(label->textHorAlign()), labelAlign);
        // Large: a 32 px square icon cell, or a 24 px arrow showing the arrow.
        QCOMPARE(icon->height(), 32);
        QCOMPARE(icon->width(), arrow ? 24 : 32);
        QCOMPARE(icon->svgIcon(), arrow ? KaDualIconCellConfig::arrowIconPath()
                                        : QStringLiteral("qrc:/Resources/camera-presence-filled.svg"));
    }

    void sharedEdgeDrawnOnce_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("direction");
        QTest::newRow("label first") << 0x33 << int(Qt::LeftToRight);
        QTest::newRow("icon first") << 0x133 << int(Qt::LeftToRight);
        QTest::newRow("label first rtl") << 0x33 << int(Qt::RightToLeft);
    }

    // The leading cell draws the shared edge as its border; the trailing cell
    // leaves its start side open, so the edge is one pixel, not two.
    void sharedEdgeDrawnOnce() {
        QFETCH(int, style);
        QFETCH(int, direction);
        Shown shown{KaDualButtonEnum::Style(style), Qt::LayoutDirection(direction)};
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        KaDualCellButton* leading = shown.button->leadingCell();
        KaDualCellButton* trailing = shown.button->trailingCell();
        leading->setText(QString());
        trailing->setText(QString());

        const QRgb border = colorOf("button-secondary-border").rgb();
        const QRgb face = colorOf("button-secondary-background").rgb();
        const bool rtl = direction == Qt::RightToLeft;
        const QImage lead = rendered(leading);
        const QImage trail = rendered(trailing);
        const int mid = lead.height() / 2;
        const int leadEnd = rtl ? 0 : lead.width() - 1;
        const int trailStart = rtl ? trail.width() - 1 : 0;
        QCOMPARE(lead.pixel(leadEnd, mid), border);
        QCOMPARE(trail.pixel(trailStart, mid), face);
        // The top edge runs square into the shared side.
        QCOMPARE(trail.pixel(trailStart, 0), border);
    }

    void focusRingCorners_data() {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("leadingSquare");
        QTest::addColumn<int>("trailingSquare");
        const int left = DrawUtils::TopLeft | DrawUtils::BottomLeft;
        const int right = DrawUtils::TopRight | DrawUtils::BottomRight;
        QTest::newRow("ltr") << int(Qt::LeftToRight) << right << left;
        QTest::newRow("rtl") << int(Qt::RightToLeft) << left << right;
    }

    void focusRingCorners() {
        QFETCH(int, direction);
        QFETCH(int, leadingSquare);
        QFETCH(int, trailingSquare);
        Shown shown(KaDualButtonEnum::LabelIconSecondary, Qt::LayoutDirection(direction));
        QCOMPARE(shown.button->leadingCell()->property("rectangularCornerMask").toInt(), leadingSquare);
        QCOMPARE(shown.button->trailingCell()->property("rectangularCornerMask").toInt(), trailingSquare);
        // Round ends: the ring's radius is half the height.
        QCOMPARE(shown.button->leadingCell()->property("focusBorderRadius").toReal(), 16.0);
    }

    void arrowOpensMenu() {
        Shown shown(KaDualButtonEnum::LabelArrowSecondary);
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QMenu menu;
        menu.addAction(QStringLiteral("Audio only"));
        shown.button->setMenu(&menu);
        QSignalSpy labelSpy(shown.button, &KaDualComboButton::labelClicked);
        QSignalSpy iconSpy(shown.button, &KaDualComboButton::iconClicked);

        // Each cell reports its own click; only the arrow opens the menu.
        QTest::mouseClick(shown.button->labelCell(), Qt::LeftButton);
        QVERIFY(!menu.isVisible());
        QCOMPARE(labelSpy.count(), 1);
        QCOMPARE(iconSpy.count(), 0);
        QTest::mouseClick(shown.button->iconCell(), Qt::LeftButton);
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(iconSpy.count(), 1);
        QCOMPARE(labelSpy.count(), 1);
        // Below the button, its arrow held down while open.
        QVERIFY(menu.geometry().top() >= shown.button->mapToGlobal(QPoint(0, shown.button->height())).y());
        QVERIFY(shown.button->iconCell()->isDown());
        menu.hide();
        QTRY_VERIFY(!shown.button->iconCell()->isDown());

        // Alt+Down on the label cell opens it as well; without a menu the arrow opens nothing.
        QTest::keyClick(shown.button->labelCell(), Qt::Key_Down, Qt::AltModifier);
        QTRY_VERIFY(menu.isVisible());
        menu.hide();
        shown.button->setMenu(nullptr);
        QTest::mouseClick(shown.button->iconCell(), Qt::LeftButton);
        QVERIFY(!menu.isVisible());
    }

    // Checking the label cell puts both cells in the scheme's active colours.
    void checkedPaintsBothCells() {
        Shown shown(KaDualButtonEnum::LabelIconSecondary);
        KaDualComboButton* button = shown.button;
        button->setCheckable(true);
        QSignalSpy toggled(button, &IKaDualButton::toggled);
        KaDualCellButton* icon = button->iconCell();
        icon->setLeftIcon(QString());
        const QPoint inside(icon->width() / 2, icon->height() / 2);
        QCOMPARE(rendered(icon).pixel(inside), colorOf("button-secondary-background").rgb());

        QTest::mouseClick(button->labelCell(), Qt::LeftButton);
        QVERIFY(button->isChecked());
        QCOMPARE(toggled.count(), 1);
        QVERIFY(button->dualButtonConfig()->isChecked());
        icon->setAttribute(Qt::WA_UnderMouse, false);
        QCOMPARE(rendered(icon).pixel(inside), colorOf("button-secondary-active-background").rgb());
        QCOMPARE(button->labelCell()->getWCSS().textColorSet, QStringLiteral("button-secondary-active-text"));

        button->setCheckable(false);
        QVERIFY(!button->isChecked());
        QCOMPARE(rendered(icon).pixel(inside), colorOf("button-secondary-background").rgb());
    }

    // The faces are the cell's own colour sets, resolved again on a switch.
    void themeSwitchRepaintsFaces() {
        Shown shown(KaDualButtonEnum::LabelIconSecondary);
        KaDualCellButton* icon = shown.button->iconCell();
        icon->setLeftIcon(QString());
        checkFollowsTheme(icon, icon->rect().center(), "button-secondary-background");
    }

    void accessibility() {
        Shown shown(KaDualButtonEnum::AsymIconArrowSecondary);
        KaDualComboButton* button = shown.button;
        QAccessibleInterface* label = QAccessible::queryAccessibleInterface(button->labelCell());
        QAccessibleInterface* icon = QAccessible::queryAccessibleInterface(button->iconCell());
        QVERIFY(label && icon);
        QCOMPARE(label->role(), QAccessible::PushButton);
        QCOMPARE(icon->role(), QAccessible::PushButton);
        QCOMPARE(label->text(QAccessible::Name), QStringLiteral("Join"));
        QCOMPARE(icon->text(QAccessible::Name), QStringLiteral("More options"));

        QSignalSpy nameSpy(button, &KaDualComboButton::iconAccessibleNameChanged);
        button->setIconAccessibleName(QStringLiteral("Camera options"));
        button->setIconAccessibleName(QStringLiteral("Camera options"));
        QCOMPARE(nameSpy.count(), 1);
        QCOMPARE(icon->text(QAccessible::Name), QStringLiteral("Camera options"));
        // An icon-only label cell is named by the property.
        button->setText(QString());
        button->setLabelAccessibleName(QStringLiteral("Camera"));
        QCOMPARE(label->text(QAccessible::Name), QStringLiteral("Camera"));

        button->setCheckable(true);
        QVERIFY(label->state().checkable);
        QCOMPARE(label->role(), QAccessible::CheckBox);
        button->setChecked(true);
        QVERIFY(label->state().checked);

        // Only the cell that opens the menu says so.
        QVERIFY(!icon->state().hasPopup);
        QMenu menu;
        button->setMenu(&menu);
        QVERIFY(icon->state().hasPopup);
        QVERIFY(!label->state().hasPopup);
    }

    // KaDualIconButton.
    void arrangement_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<bool>("arrow");

        QTest::newRow("SecondaryHorizontal") << 0x123 << false << false;
        QTest::newRow("SecondaryVertical") << 0x523 << true << false;
        QTest::newRow("AsymSecondaryHorizontal") << 0x143 << false << true;
        QTest::newRow("AsymIconSecondaryVertical") << 0x543 << true << true;
        QTest::newRow("AsymSecondaryHorizontalWithoutSplit") << 0x43 << false << true;
    }

    void arrangement() {
        QFETCH(int, style);
        QFETCH(bool, vertical);
        QFETCH(bool, arrow);
        ShownIcons shown{KaDualButtonEnum::IconButtonStyle(style)};
        KaDualIconButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        KaDualCellButton* first = button->firstCell();
        KaDualCellButton* second = button->secondCell();
        QCOMPARE(button->isVertical(), vertical);
        QCOMPARE(button->leadingCell(), first);

        // Large: 32 px squares; an arrow cell is 24 px long in the direction
        // of the arrangement.
        QCOMPARE(first->size(), QSize(32, 32));
        const QSize secondSize = !arrow ? QSize(32, 32) : vertical ? QSize(32, 24) : QSize(24, 32);
        QTRY_COMPARE(second->size(), secondSize);
        if (vertical) {
            QCOMPARE(second->y(), first->y() + first->height());
            QCOMPARE(second->geometry().center().x(), first->geometry().center().x());
            QCOMPARE(button->sizeHint(), QSize(32, 32 + secondSize.height()));
        } else {
            QCOMPARE(second->x(), first->x() + first->width());
            QCOMPARE(second->y(), first->y());
            QCOMPARE(button->sizeHint(), QSize(32 + secondSize.width(), 32));
        }
    }

    void splitDecidesSharedEdge_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("edge");
        QTest::newRow("split") << 0x143 << true;
        QTest::newRow("without split") << 0x43 << false;
    }

    // Split halves each draw the shared edge; joined ones paint face across it.
    void splitDecidesSharedEdge() {
        QFETCH(int, style);
        QFETCH(bool, edge);
        ShownIcons shown{KaDualButtonEnum::IconButtonStyle(style)};
        KaDualCellButton* first = shown.button->firstCell();
        first->setLeftIcon(QString());
        const QImage image = rendered(first);
        const QRgb atEdge = image.pixel(image.width() - 1, image.height() / 2);
        QCOMPARE(atEdge, edge ? colorOf("button-secondary-border").rgb()
                              : colorOf("button-secondary-background").rgb());
    }

    void clicksAndTabOrder() {
        ShownIcons shown{KaDualButtonEnum::SecondaryVertical};
        KaDualIconButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        QSignalSpy firstSpy(button, &KaDualIconButton::firstClicked);
        QSignalSpy secondSpy(button, &KaDualIconButton::secondClicked);
        QTest::mouseClick(button->secondCell(), Qt::LeftButton);
        QCOMPARE(firstSpy.count(), 0);
        QCOMPARE(secondSpy.count(), 1);

        button->firstCell()->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(button->firstCell()->hasFocus());
        QTest::keyClick(button->firstCell(), Qt::Key_Space);
        QCOMPARE(firstSpy.count(), 1);
        QTest::keyClick(&shown.window, Qt::Key_Tab);
        QTRY_VERIFY(button->secondCell()->hasFocus());
        QTest::keyClick(button->secondCell(), Qt::Key_Space);
        QCOMPARE(secondSpy.count(), 2);
    }

    void asymmetricArrowOpensMenu() {
        ShownIcons shown{KaDualButtonEnum::AsymSecondaryHorizontal};
        QMenu menu;
        menu.addAction(QStringLiteral("Speaker"));
        shown.button->setMenu(&menu);
        QTest::mouseClick(shown.button->firstCell(), Qt::LeftButton);
        QVERIFY(!menu.isVisible());
        QTest::mouseClick(shown.button->secondCell(), Qt::LeftButton);
        QTRY_VERIFY(menu.isVisible());
        menu.hide();
        QTest::keyClick(shown.button->firstCell(), Qt::Key_F4);
        QTRY_VERIFY(menu.isVisible());
        menu.hide();
    }

    void accessibleNames() {
        ShownIcons shown{KaDualButtonEnum::SecondaryHorizontal};
        KaDualIconButton* button = shown.button;
        QSignalSpy spy(button, &KaDualIconButton::firstAccessibleNameChanged);
        button->setFirstAccessibleName(QStringLiteral("Call"));
        button->setFirstAccessibleName(QStringLiteral("Call"));
        button->setSecondAccessibleName(QStringLiteral("Chat"));
        QCOMPARE(spy.count(), 1);
        QAccessibleInterface* first = QAccessible::queryAccessibleInterface(button->firstCell());
        QAccessibleInterface* second = QAccessible::queryAccessibleInterface(button->secondCell());
        QVERIFY(first && second);
        QCOMPARE(first->role(), QAccessible::PushButton);
        QCOMPARE(second->role(), QAccessible::PushButton);
        QCOMPARE(first->text(QAccessible::Name), QStringLiteral("Call"));
        QCOMPARE(second->text(QAccessible::Name), QStringLiteral("Chat"));
        button->setCheckable(true);
        QTest::mouseClick(button->firstCell(), Qt::LeftButton);
        QVERIFY(first->state().checked);
        QVERIFY(!second->state().checkable);
    }

    // KaButton.
    void setStyleAlwaysNotifies_data() {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("same style") << int(KaButtonEnum::Primary) << int(KaButtonEnum::Primary);
        QTest::newRow("other style") << int(KaButtonEnum::Primary) << int(KaButtonEnum::Cancel);
        QTest::newRow("same, not the default") << int(KaButtonEnum::Ghost) << int(KaButtonEnum::Ghost);
    }

    void setStyleAlwaysNotifies() {
        QFETCH(int, first);
        QFETCH(int, second);
        TestButton button;
        button.setStyle(KaButtonEnum::Style(first));
        QSignalSpy styles(&button, &KaButton::styleChanged);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        const int before = button.refreshes;

        button.setStyle(KaButtonEnum::Style(second));
        QCOMPARE(styles.count(), 1);
        QCOMPARE(styles.at(0).at(0).value<KaButtonEnum::Style>(), KaButtonEnum::Style(second));
        // Exactly one refresh: the configuration's own signal is not passed on as well.
        QCOMPARE(refreshes.count(), 1);
        QCOMPARE(button.refreshes, before + 1);
        QCOMPARE(button.style(), KaButtonEnum::Style(second));
        QCOMPARE(button.getWCSS().backgroundColorSet,
                 KaButtonConfig::colorsFor(second, KaButtonEnum::Inactive).backgroundColorSet);
    }

    void setSizeDoesNotRepeat_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("expectedSignals");
        QTest::newRow("current size (Large)") << int(KaButtonEnum::Large) << 0;
        QTest::newRow("ExtraLarge") << int(KaButtonEnum::ExtraLarge) << 1;
    }

    void setSizeDoesNotRepeat() {
        QFETCH(int, size);
        QFETCH(int, expectedSignals);
        TestButton button;
        QSignalSpy sizes(&button, &KaButton::sizeChanged);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.setSize(KaButtonEnum::Size(size));
        QCOMPARE(sizes.count(), expectedSignals);
        QCOMPARE(refreshes.count(), expectedSignals);
        QCOMPARE(button.size(), KaButtonEnum::Size(size));

        // Repeating it never notifies.
        button.setSize(KaButtonEnum::Size(size));
        QCOMPARE(sizes.count(), expectedSignals);
        QCOMPARE(refreshes.count(), expectedSignals);
    }

    void widthSizePolicy() {
        TestButton button;
        QSignalSpy changed(&button, &KaButton::widthSizePolicyChanged);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.setWidthSizePolicy(QSizePolicy::Expanding);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(refreshes.count(), 1);
        QCOMPARE(button.widthSizePolicy(), QSizePolicy::Expanding);
        QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(button.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);

        button.setWidthSizePolicy(QSizePolicy::Expanding);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(refreshes.count(), 2);
    }

    void checkedDrivesState_data() {
        QTest::addColumn<int>("style");
        QTest::newRow("Secondary") << int(KaButtonEnum::Secondary);
        QTest::newRow("Ghost") << int(KaButtonEnum::Ghost);
        QTest::newRow("Primary") << int(KaButtonEnum::Primary);
    }

    void checkedDrivesState() {
        QFETCH(int, style);
        QWidget window;
        TestButton button(&window);
        button.setStyle(KaButtonEnum::Style(style));
        button.setCheckable(true);
        button.setGeometry(0, 0, 100, 32);
        QVERIFY(shown(window, QRect(300, 300, 120, 40)));

        const QPoint inside(50, 16);
        const auto faceFor = [&](bool checked) {
            const QString set =
                KaButtonConfig::colorsFor(style, checked ? KaButtonEnum::Active : KaButtonEnum::Inactive)
                    .backgroundColorSet;
            QStyle::State state = QStyle::State_Enabled;
            if (checked)
                state |= QStyle::State_On;
            return BzThemeUtils::getColorSet(set).colorFor(state);
        };

        button.setChecked(true);
        QCOMPARE(button.kaButtonConfig()->state(), KaButtonEnum::Active);
        QCOMPARE(button.getWCSS().backgroundColorSet,
                 KaButtonConfig::colorsFor(style, KaButtonEnum::Active).backgroundColorSet);
        const QColor checkedFace = rendered(&button).pixelColor(inside);
        QCOMPARE(checkedFace.rgba(), faceFor(true).rgba());

        button.setChecked(false);
        QCOMPARE(button.kaButtonConfig()->state(), KaButtonEnum::Inactive);
        const QColor uncheckedFace = rendered(&button).pixelColor(inside);
        if (faceFor(false).alpha() == 255)
            QCOMPARE(uncheckedFace.rgba(), faceFor(false).rgba());
        else
            QCOMPARE(uncheckedFace.alpha(), faceFor(false).alpha());
        QVERIFY(checkedFace != uncheckedFace);
    }

    void menuOpensBelowOnPress_data() {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left-to-right") << Qt::LeftToRight;
        QTest::newRow("right-to-left") << Qt::RightToLeft;
    }

    void menuOpensBelowOnPress() {
        QFETCH(Qt::LayoutDirection, direction);
        QWidget window;
        window.setLayoutDirection(direction);
        TestButton button(&window);
        button.setText(QStringLiteral("Options"));
        button.setRightIcon(QStringLiteral(":/Resources/arrow-down_8.svg"));
        button.setRightIconOn(QStringLiteral(":/Resources/arrow-up_8.svg"));
        button.setGeometry(20, 20, 160, 32);
        QVERIFY(shown(window, QRect(100, 100, 300, 200)));

        auto* menu = new TestMenu(&window);
        button.setMenu(menu);
        QCOMPARE(button.attachedMenu(), menu);
        QVERIFY(button.actions().contains(menu->menuAction()));
        QVERIFY(!button.isAnchorOn());

        QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QTRY_VERIFY(menu->isVisible());
        // The press was released by the button itself after the pop-up call.
        QVERIFY(!button.isDown());
        QVERIFY(button.isAnchorOn());

        const QRect global(button.mapToGlobal(QPoint(0, 0)), button.QWidget::size());
        QCOMPARE(menu->geometry().top(), global.bottom() + 1);
        if (direction == Qt::LeftToRight)
            QCOMPARE(menu->geometry().left(), global.left());
        else
            QCOMPARE(menu->geometry().right(), global.right());

        menu->hide();
        QTRY_VERIFY(!button.isAnchorOn());
        QTest::mouseRelease(&window, Qt::LeftButton); // the pointer lets go as well
        QVERIFY(!menu->isVisible());
    }

    void firstMenuStays() {
        TestButton button;
        button.setMenu(nullptr);
        QVERIFY(!button.attachedMenu());

        auto* first = new TestMenu;
        auto* second = new TestMenu;
        button.setMenu(first);
        button.setMenu(second);
        QCOMPARE(button.attachedMenu(), first);
        QVERIFY(!button.actions().contains(second->menuAction()));

        delete first;
        QVERIFY(!button.attachedMenu());
        button.setMenu(second);
        QCOMPARE(button.attachedMenu(), second);
        QCOMPARE(button.actions().size(), 1);
        delete second;
    }

    void buttonAccessibility_data() {
        QTest::addColumn<bool>("checkable");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("menu");
        QTest::newRow("plain") << false << false << false;
        QTest::newRow("checkable, unchecked") << true << false << false;
        QTest::newRow("checkable, checked") << true << true << false;
        QTest::newRow("with a menu") << false << false << true;
    }

    void buttonAccessibility() {
        QFETCH(bool, checkable);
        QFETCH(bool, checked);
        QFETCH(bool, menu);
        QWidget window;
        TestButton button(&window);
        button.setText(QStringLiteral("&Send invite"));
        button.setCheckable(checkable);
        button.setChecked(checked);
        if (menu)
            button.setMenu(new QMenu(&button));
        window.show();

        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        // Linux screen readers learn of a toggle only from the role.
        QCOMPARE(iface->role(), checkable ? QAccessible::CheckBox : QAccessible::Button);
        QCOMPARE(bool(iface->state().hasPopup), menu);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Send invite"));
        QCOMPARE(bool(iface->state().checkable), checkable);
        QCOMPARE(bool(iface->state().checked), checked);

        button.setText(QStringLiteral("Cancel invite"));
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Cancel invite"));
    }

    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    // KaPillButton.
    void pillGeometryBySize_data() {
        QTest::addColumn<int>("size");
        for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraSmall; ++size)
            QTest::newRow(QMetaEnum::fromType<KaButtonEnum::Size>().valueToKey(size)) << size;
    }

    // The button applies its configuration's record, and its width is made of
    // the paddings, the icon with its spacing and the text.
    void pillGeometryBySize() {
        QFETCH(int, size);
        KaPillButton button(nullptr, KaButtonEnum::Primary, KaButtonEnum::Size(size));
        button.setText(QStringLiteral("Join"));
        button.setLeftIcon(QLatin1String(kIcon));
        KaPillButtonConfig expected;
        expected.setSize(KaButtonEnum::Size(size));
        expected.setHasLeftIcon(true);
        KaPillButtonConfig::Geometry g;
        expected.fillGeometry(g);

        QCOMPARE(button.minimumHeight(), g.fixedHeight);
        QCOMPARE(button.maximumHeight(), g.fixedHeight);
        QCOMPARE(int(button.fontToken()), g.fontToken);
        QCOMPARE(button.font().pixelSize(), BzFont(g.fontToken).pixelSize());
        QCOMPARE(button.svgIconSize(), g.svgIconSize);
        QCOMPARE(button.svgIconSpacing(), g.svgIconSpacing);
        QCOMPARE(button.property("focusBorderRadius").toReal(), g.fixedHeight / 2.0);
        QCOMPARE(button.borderRadius(), 0.0 + button.QWidget::height() / 2.0);
        // The padding text reaches the base button, which lays it out without
        // giving the button a style-sheet style of its own.
        QVERIFY(button.getCSS().contains(QStringLiteral("padding-left:%1px").arg(g.paddingLeft)));
        QVERIFY(button.styleSheet().isEmpty());

        const int text = button.fontMetrics().size(Qt::TextSingleLine, QStringLiteral("Join")).width();
        QCOMPARE(button.sizeHint().width(),
                 g.paddingLeft + g.paddingRight + g.svgIconSize.width() + g.svgIconSpacing + text);

        // Without the icon the width shrinks by exactly the icon and its spacing.
        button.setLeftIcon(QString());
        QVERIFY(!button.isSvgIconVisible());
        QCOMPARE(button.svgIconSpacing(), 0);
        QCOMPARE(button.sizeHint().width(), g.paddingLeft + g.paddingRight + text);
    }

    void styleSizeConstructor() {
        KaPillButton button(nullptr, KaButtonEnum::OutlineCancel, KaButtonEnum::ExtraSmall);
        QCOMPARE(button.style(), KaButtonEnum::OutlineCancel);
        QCOMPARE(button.size(), KaButtonEnum::ExtraSmall);
        QCOMPARE(button.maximumHeight(), 24);
        QCOMPARE(button.getWCSS().borderColorSet, QStringLiteral("button-cancel-outline-border"));
        QVERIFY(button.getWCSS().hasAnyBorder());

        KaPillButton plain;
        QCOMPARE(plain.style(), KaButtonEnum::Primary);
        QCOMPARE(plain.size(), KaButtonEnum::Large);
        QCOMPARE(plain.maximumHeight(), 32);
    }

    void paintsPill() {
        QWidget window;
        KaPillButton button(&window, KaButtonEnum::Primary, KaButtonEnum::Large);
        button.setGeometry(0, 0, 120, 32);
        QVERIFY(shown(window, QRect(300, 300, 140, 40)));

        const QImage image = rendered(&button);
        const QColor face = colorOf("button-primary-background");
        QCOMPARE(image.pixelColor(60, 16), face);
        // Half-height radius: the ends are round, the corners empty.
        QCOMPARE(image.pixelColor(1, 1).alpha(), 0);
        QCOMPARE(image.pixelColor(118, 30).alpha(), 0);
        QCOMPARE(image.pixelColor(16, 16), face);
    }

    void highContrastOnThemeChange_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("background");
        QTest::addColumn<QString>("border");
        QTest::newRow("Cancel takes the primary look")
            << int(KaButtonEnum::Cancel) << false << "button-primary-background"
            << "button-primary-border";
        QTest::newRow("checked Ghost keeps its active look")
            << int(KaButtonEnum::Ghost) << true << "button-ghost-active-background"
            << "";
    }

    void highContrastOnThemeChange() {
        QFETCH(int, style);
        QFETCH(bool, checked);
        QFETCH(QString, background);
        QFETCH(QString, border);

        KaPillButton button(nullptr, KaButtonEnum::Style(style), KaButtonEnum::Large);
        button.setCheckable(true);
        button.setChecked(checked);
        const HighContrastScope on(true);
        switchTheme("highContrast");
        QTRY_COMPARE(button.getWCSS().backgroundColorSet, background);
        QCOMPARE(button.getWCSS().borderColorSet, border);
        QCOMPARE(button.getWCSS().hasAnyBorder(), !border.isEmpty());
    }

    void themeSwitchRecoloursFace() {
        QWidget window;
        KaPillButton button(&window, KaButtonEnum::Secondary, KaButtonEnum::Large);
        button.setGeometry(0, 0, 120, 32);
        QVERIFY(shown(window, QRect(300, 300, 140, 40)));

        checkFollowsTheme(&button, {60, 16}, "button-secondary-background");
        // The border follows as well.
        QVERIFY(paints(&button, {60, 0}, "button-secondary-border", 0));
    }

    void rightToLeftMirrorsIcons() {
        QWidget window;
        KaPillButton button(&window, KaButtonEnum::Primary, KaButtonEnum::Large);
        button.setText(QStringLiteral("Call"));
        button.setLeftIcon(QLatin1String(kIcon));
        button.setRightIcon(QLatin1String(kAnchor));
        button.setGeometry(0, 0, 160, 32);
        window.show();

        const QRect ltrIcon = button.svgIconRect();
        const QRect ltrAnchor = button.anchorIconRect();
        QVERIFY(ltrIcon.right() < ltrAnchor.left());
        QCOMPARE(ltrIcon.size(), QSize(16, 16));

        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_COMPARE(button.layoutDirection(), Qt::RightToLeft);
        const QRect rtlIcon = button.svgIconRect();
        const QRect rtlAnchor = button.anchorIconRect();
        QVERIFY(rtlAnchor.right() < rtlIcon.left());
        // Mirror images of each other about the button's centre.
        QCOMPARE(rtlIcon.left(), 160 - 1 - ltrIcon.right());
        QCOMPARE(rtlAnchor.left(), 160 - 1 - ltrAnchor.right());
    }

    // KaGifButton.
    void loadsAnimation() {
        KaGifButton button;
        QVERIFY(!button.hasImage());
        QSignalSpy spy(&button, &KaGifButton::fileNameChanged);
        button.setFileName(threeFrames());
        button.setFileName(threeFrames());
        QCOMPARE(spy.count(), 1);
        QVERIFY(button.hasImage());
        QCOMPARE(button.frameCount(), 3);
        // Not shown: resting on the first frame.
        QVERIFY(!button.isPlaying());
        QCOMPARE(button.currentFrameNumber(), 0);
    }

    void playsAlways() {
        ShownGif shown(KaGifButton::PlayAlways);
        KaGifButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTRY_VERIFY(button->isPlaying());
        QSignalSpy frames(button, &KaGifButton::frameChanged);
        QTRY_VERIFY(frames.count() >= 2);
        // The painted image follows the frames: it leaves red.
        QTRY_VERIFY(!reddish(centre(*button)));
    }

    void playsOnHover() {
        ShownGif shown(KaGifButton::PlayOnHover);
        KaGifButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTest::mouseMove(&shown.window, QPoint(2, 2));
        QVERIFY(!button->isPlaying());
        QVERIFY(reddish(centre(*button)));

        QTest::mouseMove(button, button->rect().center());
        QTRY_VERIFY(button->isPlaying());
        QTRY_VERIFY(button->currentFrameNumber() > 0);
        QTest::mouseMove(&shown.window, QPoint(2, 2));
        QTRY_VERIFY(!button->isPlaying());
        QCOMPARE(button->currentFrameNumber(), 0);
    }

    void pauses_data() {
        QTest::addColumn<QString>("by");
        QTest::addColumn<bool>("firstFrame");
        QTest::newRow("disabling") << "disabled" << true;
        QTest::newRow("hiding") << "hidden" << false;
        QTest::newRow("reduced motion") << "reduced motion" << true;
    }

    // Stopped while disabled, hidden or asked for reduced motion, and playing
    // again once that is over; disabled and reduced-motion buttons rest on the
    // first frame (disabled ones faded, but still its red).
    void pauses() {
        QFETCH(QString, by);
        QFETCH(bool, firstFrame);
        ShownGif shown(KaGifButton::PlayAlways);
        KaGifButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTRY_VERIFY(button->currentFrameNumber() > 0);
        const auto pause = [&](bool on) {
            if (by == QLatin1String("disabled"))
                button->setEnabled(!on);
            else if (by == QLatin1String("hidden"))
                button->setVisible(!on);
            else
                KaConfig::setReducedMotion(on);
        };
        pause(true);
        if (by == QLatin1String("reduced motion")) // the setting reaches the button later
            QTRY_VERIFY(!button->isPlaying());
        QVERIFY(!button->isPlaying());
        if (firstFrame) {
            QCOMPARE(button->currentFrameNumber(), 0);
            QVERIFY(reddish(centre(*button)));
        }
        pause(false);
        QTRY_VERIFY(button->isPlaying());
    }

    void shapeFollowsText() {
        KaGifButton button(nullptr, KaButtonEnum::Secondary, KaButtonEnum::Large);
        button.setFileName(threeFrames());
        // Image only: a 32 px circle around a 20 px image.
        QCOMPARE(button.minimumSize(), QSize(32, 32));
        QCOMPARE(button.maximumSize(), QSize(32, 32));
        button.resize(32, 32);
        QVERIFY(reddish(rendered(&button).pixelColor(7, 16)));
        QVERIFY(!reddish(rendered(&button).pixelColor(5, 16)));

        button.setText(QStringLiteral("Celebrate"));
        QVERIFY(button.maximumWidth() > 32);
        // Padding 12, image 20, spacing 6, text, padding 12.
        const int textWidth = button.fontMetrics().size(Qt::TextSingleLine, button.text()).width();
        QCOMPARE(button.sizeHint().width(), 12 + 20 + 6 + textWidth + 12);
        button.setImageSize(QSize(24, 24));
        QCOMPARE(button.sizeHint().width(), 12 + 24 + 6 + textWidth + 12);
    }

    void unreadableFile() {
        KaGifButton button;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot read")));
        button.setFileName(QStringLiteral(":/no/such/image.gif"));
        QVERIFY(!button.hasImage());
        QCOMPARE(button.currentFrameNumber(), -1);
        button.resize(32, 32);
        rendered(&button);
    }

    // KaRoundButton.
    void roundCircleBySize_data() { addEnumRows<KaButtonEnum::Size>("size"); }

    // A circle of the configuration's diameter, whatever the size.
    void roundCircleBySize() {
        QFETCH(int, size);
        KaRoundButtonConfig expected;
        expected.setSize(KaButtonEnum::Size(size));
        KaRoundButtonConfig::Geometry g;
        expected.fillGeometry(g);
        const int diameter = g.fixedHeight;
        QWidget window;
        KaRoundButton button(&window, KaButtonEnum::Secondary, KaButtonEnum::Size(size));
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        window.show();

        QCOMPARE(button.QWidget::size(), QSize(diameter, diameter));
        QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button.borderRadius(), diameter / 2.0);
        checkSquare(button, diameter, g.svgIconSize);

        // Shrinking again gives the smaller circle, not a pill.
        button.setSize(KaButtonEnum::ExtraExtraExtraSmall);
        QCOMPARE(button.QWidget::size(), QSize(16, 16));
        QCOMPARE(button.property("focusBorderRadius").toReal(), 8.0);
    }

    void paintsCircleWithCentredIcon() {
        QWidget window;
        KaRoundButton button(&window, KaButtonEnum::Primary, KaButtonEnum::ExtraLarge);
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        QVERIFY(shown(window, QRect(300, 300, 80, 80)));

        const QRect icon = button.svgIconRect();
        QCOMPARE(icon, QRect(16, 16, 32, 32));
        const QImage image = rendered(&button);
        const QColor face = colorOf("button-primary-background");
        const QColor glyph = colorOf("button-primary-text");
        QCOMPARE(image.pixelColor(4, 4).alpha(), 0);
        QCOMPARE(image.pixelColor(32, 3), face);
        QCOMPARE(image.pixelColor(3, 32), face);
        // The icon is painted in the text colour somewhere inside its box.
        bool found = false;
        for (int y = icon.top(); y <= icon.bottom() && !found; ++y)
            for (int x = icon.left(); x <= icon.right() && !found; ++x)
                found = image.pixelColor(x, y) == glyph;
        QVERIFY(found);
    }

    void refusesRightIcon() {
        KaRoundButton button;
        button.resize(32, 32);
        QTest::ignoreMessage(QtWarningMsg,
                             "Setting the right icon on the KaRoundButtonConfig is not supported!");
        button.setRightIcon(QStringLiteral(":/Resources/arrow-down_8.svg"));
        QVERIFY(!button.isAnchorIconVisible());
        QVERIFY(button.anchorIconRect().isEmpty());
    }

    void roundAccessibleName() {
        KaRoundButton button;
        button.setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        button.setAccessibleName(QStringLiteral("Call"));
        QCOMPARE(accessibleRole(&button), QAccessible::Button);
        QCOMPARE(accessibleName(&button), QStringLiteral("Call"));
        // A style change re-applies the look but keeps the host's name.
        button.setStyle(KaButtonEnum::Cancel);
        QCOMPARE(accessibleName(&button), QStringLiteral("Call"));
    }

    // KaRoundBadgeButton.
    void counterAtTrailingCorner_data() {
        QTest::addColumn<bool>("rtl");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    void counterAtTrailingCorner() {
        QFETCH(bool, rtl);
        QGuiApplication::setLayoutDirection(rtl ? Qt::RightToLeft : Qt::LeftToRight);
        KaRoundBadgeButton button(nullptr, KaButtonEnum::Secondary, KaButtonEnum::Large);
        QSignalSpy spy(&button, &KaRoundBadgeButton::badgeChanged);
        button.setBadgeText(QStringLiteral("150"));
        QCOMPARE(button.badgeText(), QStringLiteral("99+"));
        QCOMPARE(spy.count(), 1);
        const KaBadge* badge = button.counterBadge();
        QVERIFY(badge);
        QCOMPARE(badge->y(), 0);
        QCOMPARE(badge->x(), rtl ? 0 : 52 - badge->width());
        button.setBadgeText(QString());
        QVERIFY(!button.counterBadge());
        QCOMPARE(spy.count(), 2);
    }

    void badgeInName() {
        KaRoundBadgeButton button;
        button.setAccessibleLabel(QStringLiteral("Calls"));
        QCOMPARE(accessibleRole(&button), QAccessible::Button);
        QCOMPARE(accessibleName(&button), QStringLiteral("Calls"));
        button.setBadgeText(QStringLiteral("7"));
        QCOMPARE(accessibleName(&button), QStringLiteral("Calls, 7"));
        button.clearBadge();
        QCOMPARE(accessibleName(&button), QStringLiteral("Calls"));
    }

    void iconBadgeReplacesCounter() {
        KaRoundBadgeButton button;
        button.setBadgeText(QStringLiteral("3"));
        QPointer<KaBadge> counter = button.counterBadge();
        button.setIconBadge(IconBadgeMention);
        QVERIFY(!counter);
        QVERIFY(button.iconBadge());
        QCOMPARE(button.iconBadge()->iconType(), IconBadgeMention);
        QCOMPARE(button.iconBadge()->x(), 28 - 14);
        button.setBadgeText(QStringLiteral("4"));
        QVERIFY(!button.iconBadge());
    }

    // The face and the badge follow a theme switch; keyboard focus rings the
    // circle.
    void themeAndFocusRing() {
        FocusRingTest::installStyle();
        qApp->setProperty("isKeyboardFocus", true);
        QWidget window;
        KaRoundBadgeButton button(&window, KaButtonEnum::Join, KaButtonEnum::ExtraLarge);
        button.setBadgeText(QStringLiteral("5"));
        button.move(20, 20);
        QVERIFY(shown(window, QRect(300, 300, 120, 120)));
        const QPoint face(32, 60);
        const QPoint badgeFace(button.counterBadge()->x() + 3, 8);
        button.setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));

        const QColor lightBadge = pixelAt(&button, badgeFace);
        QVERIFY(paints(&button, badgeFace, "badge-background", 2));
        checkFollowsTheme(&button, face, "button-join-fill-background", "dark", 2);
        QVERIFY(paints(&button, badgeFace, "badge-background", 2) &&
                pixelAt(&button, badgeFace) != lightBadge);
        qApp->setProperty("isKeyboardFocus", QVariant());
    }

    // KaIconButton.
    void squareBySize_data() { addEnumRows<KaButtonEnum::Size>("size"); }

    // The configuration's side and icon size.
    void squareBySize() {
        QFETCH(int, size);
        KaIconButtonConfig expected;
        expected.setSize(KaButtonEnum::Size(size));
        KaIconButtonConfig::Geometry g;
        expected.fillGeometry(g);
        KaIconButton button(nullptr, KaIconButtonEnum::Settings, KaButtonEnum::Size(size));
        button.setLeftIcon(QStringLiteral(":/Resources/keyboard-bold.svg"));
        checkSquare(button, g.fixedHeight, g.svgIconSize);
    }

    void checkedIsActive() {
        KaIconButton button(nullptr, KaIconButtonEnum::Favorite, KaButtonEnum::Normal);
        button.setCheckable(true);
        QSignalSpy styles(&button, &KaIconButton::styleChanged);
        button.setChecked(true);
        QCOMPARE(button.style(), KaIconButtonEnum::ACTIVE);
        QCOMPARE(button.getWCSS().textColorSet,
                 QStringLiteral("interactiveicon-tertiary-filled-favorite-icon-active"));
        button.setChecked(false);
        QCOMPARE(button.style(), KaIconButtonEnum::INACTIVE);
        QCOMPARE(styles.count(), 2);
    }

    void highContrastAddsBorder() {
        KaIconButton button(nullptr, KaIconButtonEnum::Info, KaButtonEnum::Normal);
        QVERIFY(!button.getWCSS().hasAnyBorder());
        const ButtonTest::HighContrastScope on(true);
        button.onThemeChanged();
        QVERIFY(button.getWCSS().hasAnyBorder());
    }

    void iconAccessibleName() {
        KaIconButton button(nullptr, KaIconButtonEnum::Settings, KaButtonEnum::Normal);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Settings"));
        // The default follows the type ...
        button.setType(KaIconButtonEnum::Dismiss);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Dismiss"));
        // ... until the host names the button itself.
        button.setAccessibleName(QStringLiteral("Close the panel"));
        button.setType(KaIconButtonEnum::Info);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Close the panel"));

        button.setCheckable(true);
        button.setChecked(true);
        QVERIFY(iface->state().checkable);
        QVERIFY(iface->state().checked);
    }

    // KaOverlayButton.
    void arrowFollowsLayoutDirection_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("ltr");
        QTest::addColumn<QString>("rtl");
        QTest::newRow("expand") << int(KaOverlayButtonEnum::ExpandAreaOverlay)
                                << QStringLiteral("qrc:/Resources/arrow-right-bold.svg")
                                << QStringLiteral("qrc:/Resources/arrow-left-bold.svg");
        QTest::newRow("collapse") << int(KaOverlayButtonEnum::CollapseAreaOverlay)
                                  << QStringLiteral("qrc:/Resources/arrow-left-bold.svg")
                                  << QStringLiteral("qrc:/Resources/arrow-right-bold.svg");
    }

    void arrowFollowsLayoutDirection() {
        QFETCH(int, type);
        QFETCH(QString, ltr);
        QFETCH(QString, rtl);
        QWidget window;
        KaOverlayButton button(&window, KaOverlayButtonEnum::Type(type), KaOverlayButtonEnum::Normal);
        QCOMPARE(button.svgIcon(), ltr);
        QVERIFY(button.isSvgIconVisible());

        // Switching the application's direction at run time turns the arrow.
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_COMPARE(button.svgIcon(), rtl);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QTRY_COMPARE(button.svgIcon(), ltr);
    }

    void overlayCircleBySize_data() { addEnumRows<KaOverlayButtonEnum::Size>("size"); }

    void overlayCircleBySize() {
        QFETCH(int, size);
        KaOverlayButtonConfig expected;
        expected.setSize(KaOverlayButtonEnum::Size(size));
        KaOverlayButtonConfig::Geometry g;
        expected.fillGeometry(g, Qt::LeftToRight);
        KaOverlayButton button(nullptr, KaOverlayButtonEnum::CollapseAreaOverlay,
                               KaOverlayButtonEnum::Size(size));
        checkSquare(button, g.fixedHeight, g.svgIconSize);
    }

    void noneShowsNothing() {
        KaOverlayButton button;
        QCOMPARE(button.type(), KaOverlayButtonEnum::ExpandAreaOverlay);
        button.setType(KaOverlayButtonEnum::None);
        QVERIFY(button.svgIcon().isEmpty());
        QVERIFY(!button.isSvgIconVisible());
        QVERIFY(button.getWCSS().backgroundColorSet.isEmpty());
        QVERIFY(!button.getWCSS().hasAnyBorder());
    }

    void paintsBorderAndFace() {
        QWidget window;
        KaOverlayButton button(&window, KaOverlayButtonEnum::ExpandAreaOverlay,
                               KaOverlayButtonEnum::ExtraLarge);
        QVERIFY(shown(window, QRect(300, 300, 60, 60)));
        QCOMPARE(button.getWCSS().borderColorSet, QStringLiteral("button-overlay-border"));
        const QImage image = rendered(&button);
        // Outside the circle nothing, inside the translucent face.
        QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
        const QColor face = colorOf("button-overlay-background");
        QCOMPARE(image.pixelColor(20, 4).alpha(), face.alpha());
    }

    void overlayAccessibleName() {
        KaOverlayButton button;
        QCOMPARE(accessibleRole(&button), QAccessible::Button);
        QCOMPARE(accessibleName(&button), QStringLiteral("Expand"));
        button.setType(KaOverlayButtonEnum::CollapseAreaOverlay);
        QCOMPARE(accessibleName(&button), QStringLiteral("Collapse"));
        button.setAccessibleName(QStringLiteral("Hide the participant list"));
        button.setType(KaOverlayButtonEnum::ExpandAreaOverlay);
        QCOMPARE(accessibleName(&button), QStringLiteral("Hide the participant list"));
    }
};

QTEST_MAIN(tst_Buttons)
#include "tst_buttons.moc"
