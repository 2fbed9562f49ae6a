#include "buttontestutils.h"
#include "drawutils.h"
#include "kadualcellbutton.h"
#include "kadualcombobutton.h"
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
};

QTEST_MAIN(tst_KaDualComboButton)
#include "tst_kadualcombobutton.moc"
