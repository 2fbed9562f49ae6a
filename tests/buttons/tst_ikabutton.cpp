#include "buttontestutils.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "ikabutton.h"
#include "kadialpadbutton.h"
#include "kaemojipushbutton.h"
#include "kahyperlinkbutton.h"
#include "katitlebarbutton.h"
#include "testhelpers.h"

#include <QAccessible>
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
};

QTEST_MAIN(tst_IKaButton)
#include "tst_ikabutton.moc"
