#include "buttontestutils.h"
#include "bzfont.h"
#include "focusringtest.h"
#include "kabadge.h"
#include "kabutton.h"
#include "kagifbutton.h"
#include "kaiconbutton.h"
#include "kaiconbuttonconfig.h"
#include "kaoverlaybutton.h"
#include "kaoverlaybuttonconfig.h"
#include "kapillbutton.h"
#include "kapillbuttonconfig.h"
#include "karoundbadgebutton.h"
#include "karoundbutton.h"
#include "karoundbuttonconfig.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

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

struct Shown {
    QWidget window;
    KaGifButton* button = new KaGifButton(&window);
    explicit Shown(KaGifButton::PlayMode mode) {
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

} // namespace

class tst_KaButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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

    void accessibility_data() {
        QTest::addColumn<bool>("checkable");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("menu");
        QTest::newRow("plain") << false << false << false;
        QTest::newRow("checkable, unchecked") << true << false << false;
        QTest::newRow("checkable, checked") << true << true << false;
        QTest::newRow("with a menu") << false << false << true;
    }

    void accessibility() {
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
    void geometryBySize_data() {
        QTest::addColumn<int>("size");
        for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraSmall; ++size)
            QTest::newRow(QMetaEnum::fromType<KaButtonEnum::Size>().valueToKey(size)) << size;
    }

    // The button applies its configuration's record, and its width is made of
    // the paddings, the icon with its spacing and the text.
    void geometryBySize() {
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
        Shown shown(KaGifButton::PlayAlways);
        KaGifButton* button = shown.button;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QTRY_VERIFY(button->isPlaying());
        QSignalSpy frames(button, &KaGifButton::frameChanged);
        QTRY_VERIFY(frames.count() >= 2);
        // The painted image follows the frames: it leaves red.
        QTRY_VERIFY(!reddish(centre(*button)));
    }

    void playsOnHover() {
        Shown shown(KaGifButton::PlayOnHover);
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
        Shown shown(KaGifButton::PlayAlways);
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
    void circleBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

    // A circle of the configuration's diameter, whatever the size.
    void circleBySize() {
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
    void squareBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

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

    void overlayCircleBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaOverlayButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

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

QTEST_MAIN(tst_KaButton)
#include "tst_kabutton.moc"
