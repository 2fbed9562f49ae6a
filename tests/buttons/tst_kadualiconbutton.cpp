#include "buttontestutils.h"
#include "kadualcellbutton.h"
#include "kadualiconbutton.h"

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

struct Shown {
    QWidget window;
    KaDualIconButton* button = new KaDualIconButton(&window);
    explicit Shown(KaDualButtonEnum::IconButtonStyle style) {
        button->setStyle(style);
        button->setFirstIcon(QStringLiteral("qrc:/Resources/phone-filled.svg"));
        button->setSecondIcon(QStringLiteral("qrc:/Resources/chat-filled.svg"));
        button->move(10, 10);
        window.resize(200, 200);
        window.show();
    }
};

} // namespace

class tst_KaDualIconButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

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
        Shown shown{KaDualButtonEnum::IconButtonStyle(style)};
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
        Shown shown{KaDualButtonEnum::IconButtonStyle(style)};
        KaDualCellButton* first = shown.button->firstCell();
        first->setLeftIcon(QString());
        const QImage image = rendered(first);
        const QRgb atEdge = image.pixel(image.width() - 1, image.height() / 2);
        QCOMPARE(atEdge, edge ? colorOf("button-secondary-border").rgb()
                              : colorOf("button-secondary-background").rgb());
    }

    void clicksAndTabOrder() {
        Shown shown{KaDualButtonEnum::SecondaryVertical};
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
        Shown shown{KaDualButtonEnum::AsymSecondaryHorizontal};
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
        Shown shown{KaDualButtonEnum::SecondaryHorizontal};
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

QTEST_MAIN(tst_KaDualIconButton)
#include "tst_kadualiconbutton.moc"
