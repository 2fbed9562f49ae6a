#include "buttontestutils.h"
#include "drawutils.h"
#include "kadualcellbutton.h"
#include "kadualcombobutton.h"
#include "kadualiconbutton.h"
#include "kadualiconcellconfig.h"

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

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

} // namespace

class tst_KaDualComboButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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

QTEST_MAIN(tst_KaDualComboButton)
#include "tst_kadualcombobutton.moc"
