#include "buttontestutils.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "drawutils.h"
#include "ikabutton.h"
#include "kadialpadbutton.h"
#include "kadualcellbutton.h"
#include "kadualcombobutton.h"
#include "kadualiconbutton.h"
#include "kadualiconcellconfig.h"
#include "kaemojipushbutton.h"
#include "kahyperlinkbutton.h"
#include "katitlebarbutton.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QMenu>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTest>
#include <QTimer>
#include <climits>

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
class TestButton : public IKaButton {
    Q_OBJECT
public:
    explicit TestButton(IKaButtonConfig* config, QWidget* parent = nullptr)
        : IKaButton(parent, config) {
        // IKaButton only guards its configuration; the concrete button owns it.
        if (config && !config->parent())
            config->setParent(this);
        connect(this, &IKaButton::refreshConfig, this, &TestButton::refresh);
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

class tst_IKaButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void leftIconTellsConfiguration() {
        auto* config = new TestConfig;
        TestButton button(config);
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
        TestButton button(new TestConfig);
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
        TestButton button(config);

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
        TestButton button(config);
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
        TestButton button(config);
        QVERIFY(button.getWCSS().isOn(BzCSSData::BorderLeft));
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderRight));

        button.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderLeft));
        QVERIFY(button.getWCSS().isOn(BzCSSData::BorderRight));
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderTop));
    }

    void visibilitySignals() {
        QWidget window;
        TestButton button(new TestConfig, &window);
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
        TestButton button(config);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(config->customValue, int(BzPushButton::AlwaysUnderlined));
        QCOMPARE(button.getAcceleratorType(), int(BzPushButton::AlwaysUnderlined));
        QCOMPARE(refreshes.count(), 1);

        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(refreshes.count(), 1);
    }

    void withoutConfiguration() {
        TestButton button(nullptr);
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
    }

    void keyboardOpensMenu() {
        Shown shown(KaDualButtonEnum::LabelArrowSecondary);
        QMenu menu;
        menu.addAction(QStringLiteral("Audio only"));
        shown.button->setMenu(&menu);
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
};

QTEST_MAIN(tst_IKaButton)
#include "tst_ikabutton.moc"
