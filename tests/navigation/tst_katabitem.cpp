#include "buttontestutils.h"
#include "katabitem.h"

#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

const QString kIcon = QStringLiteral("qrc:/Resources/chat-filled.svg");

QAccessibleInterface* accessible(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}

// A point on the face clear of icon and text: just inside the leading edge.
QPoint faceSpot(const KaTabItem& tab) {
    return QPoint(5, tab.height() / 2);
}

} // namespace

class tst_KaTabItem : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void look_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("face");
        QTest::addColumn<bool>("indicator");
        QTest::newRow("selected") << int(KaTabEnum::ACTIVE) << QStringLiteral("tab-active-background")
                                  << true;
        QTest::newRow("unselected") << int(KaTabEnum::INACTIVE) << QStringLiteral("tab-inactive-background")
                                    << false;
    }

    // The face in the style's set, and the indicator bar along the bottom
    // of the selected tab only. The selected face follows a theme switch
    // (the unselected one is transparent).
    void look() {
        QFETCH(int, style);
        QFETCH(QString, face);
        QFETCH(bool, indicator);
        KaTabItem tab(QStringLiteral("Chat"), kIcon);
        tab.setStyle(KaTabEnum::Style(style));
        tab.resize(tab.sizeHint());
        QCOMPARE(tab.isSelected(), indicator);
        const auto faceColour = [&face] {
            return QColor(BzThemeUtils::getColorSet(face).normal());
        };
        const QColor light = faceColour();
        const QImage image = rendered(&tab);
        QCOMPARE(image.pixelColor(faceSpot(tab)).rgba(), light.rgba());
        const QColor bar = image.pixelColor(tab.width() / 2, tab.height() - 1);
        QCOMPARE(bar.rgb() == colorOf("tab-default").rgb() && bar.alpha() == 255, indicator);
        if (!indicator)
            return;
        switchTheme("dark");
        QVERIFY(faceColour() != light);
        QTRY_COMPARE(pixelAt(&tab, faceSpot(tab)).rgba(), faceColour().rgba());
    }

    void sizes() {
        KaTabItem tab(QStringLiteral("Chat"), kIcon);
        int previous = 0;
        for (KaButtonEnum::Size size : {KaButtonEnum::Small, KaButtonEnum::Normal, KaButtonEnum::Large}) {
            tab.setSize(size);
            QVERIFY(tab.minimumHeight() == tab.maximumHeight());
            QVERIFY(tab.maximumHeight() > previous);
            previous = tab.maximumHeight();
        }
    }

    // Collapsed: a square with the icon; the text stays as name and tool tip.
    void collapsed() {
        KaTabItem tab(QStringLiteral("Meetings"), kIcon);
        const int expandedWidth = tab.sizeHint().width();
        tab.setState(KaTabEnum::COLLAPSED);
        QCOMPARE(tab.maximumWidth(), tab.maximumHeight());
        QVERIFY(tab.maximumWidth() < expandedWidth);
        QCOMPARE(tab.text(), QStringLiteral("Meetings"));
        QCOMPARE(tab.toolTip(), QStringLiteral("Meetings"));
        QCOMPARE(accessible(&tab)->text(QAccessible::Name), QStringLiteral("Meetings"));
        tab.setState(KaTabEnum::EXPANDED);
        QCOMPARE(tab.sizeHint().width(), expandedWidth);
        QVERIFY(tab.toolTip().isEmpty());
    }

    // Only a tab of no section closes.
    void closeCross_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("shows");
        QTest::newRow("no section") << int(KaTabEnum::NONE) << true;
        QTest::newRow("section") << int(KaTabEnum::SECTION_05) << false;
    }

    void closeCross() {
        QFETCH(int, type);
        QFETCH(bool, shows);
        KaTabItem tab(QStringLiteral("Draft"), QString());
        tab.setType(KaTabEnum::Type(type));
        const int plain = tab.sizeHint().width();
        tab.setClosable(true);
        QCOMPARE(tab.showsClose(), shows);
        QCOMPARE(tab.sizeHint().width() > plain, shows);
        QCOMPARE(accessible(&tab)->actionInterface()->actionNames().contains(QStringLiteral("Close")), shows);
        tab.setState(KaTabEnum::COLLAPSED);
        QVERIFY(!tab.showsClose());
    }

    // The cross closes without activating; the rest of the tab activates.
    void clicks() {
        QWidget window;
        auto* tab = new KaTabItem(QStringLiteral("Draft"), QString(), &window);
        tab->setClosable(true);
        tab->resize(tab->sizeHint());
        QVERIFY(shown(window));
        QSignalSpy activated(tab, &KaTabItem::activated);
        QSignalSpy close(tab, &KaTabItem::closeRequested);
        QTest::mouseClick(tab, Qt::LeftButton, {}, tab->anchorIconRect().center());
        QCOMPARE(close.count(), 1);
        QCOMPARE(activated.count(), 0);
        QTest::mouseClick(tab, Qt::LeftButton, {}, QPoint(8, tab->height() / 2));
        QCOMPARE(activated.count(), 1);
        QCOMPARE(close.count(), 1);
        QTest::keyClick(tab, Qt::Key_Delete);
        QCOMPARE(close.count(), 2);
        QTest::keyClick(tab, Qt::Key_Space);
        QCOMPARE(activated.count(), 2);
    }

    // Room is made for a trailing widget, between text and cross.
    void trailingWidget() {
        KaTabItem tab(QStringLiteral("Inbox"), QString());
        tab.setClosable(true);
        const int plain = tab.sizeHint().width();
        auto* marker = new QLabel(QStringLiteral("12"));
        marker->setFixedSize(20, 16);
        tab.setTrailingWidget(marker);
        QCOMPARE(marker->parentWidget(), &tab);
        QVERIFY(tab.sizeHint().width() >= plain + 20);
        tab.resize(tab.sizeHint());
        tab.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tab));
        const QRect cross = tab.anchorIconRect();
        QVERIFY(marker->geometry().right() < cross.left());
        QVERIFY(marker->geometry().left() > tab.contentsRect().left() + 20);
        QVERIFY(tab.rect().contains(marker->geometry()));

        tab.setLayoutDirection(Qt::RightToLeft);
        QTRY_VERIFY(marker->geometry().left() > tab.anchorIconRect().right());

        const QPointer<QLabel> guard(marker);
        tab.setTrailingWidget(nullptr);
        QVERIFY(!guard);
        QCOMPARE(tab.sizeHint().width(), plain);
    }

    void accessibility() {
        KaTabItem tab(QStringLiteral("Calls"), kIcon);
        QAccessibleInterface* iface = accessible(&tab);
        QCOMPARE(iface->role(), QAccessible::PageTab);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Calls"));
        QVERIFY(iface->state().selectable);
        QVERIFY(!iface->state().selected);
        tab.setSelected(true);
        QVERIFY(iface->state().selected);
        // Placed by a view: its position.
        QVERIFY(iface->text(QAccessible::Description).isEmpty());
        tab.setPosition(2, 5);
        QCOMPARE(iface->text(QAccessible::Description), QStringLiteral("2 of 5"));
    }

    // Values the enumerations can hold but do not name (Style and State
    // hold none).
    void outOfRangeRefused_data() {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("warning");
        QTest::newRow("type") << QByteArray("type") << 22
                              << QStringLiteral("KaTabItem: 22 is not a KaTabEnum::Type; ignored");
        QTest::newRow("size") << QByteArray("size") << 7
                              << QStringLiteral("KaTabItem: 7 is not a KaButtonEnum::Size; ignored");
    }

    void outOfRangeRefused() {
        QFETCH(QByteArray, property);
        QFETCH(int, value);
        QFETCH(QString, warning);
        KaTabItem tab(QStringLiteral("Chat"), kIcon);
        const QVariant before = tab.property(property.constData());
        const QSize hint = tab.sizeHint();
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const QMetaProperty p =
            tab.metaObject()->property(tab.metaObject()->indexOfProperty(property.constData()));
        p.write(&tab, QVariant(p.metaType(), &value));
        QCOMPARE(tab.property(property.constData()), before);
        QCOMPARE(tab.sizeHint(), hint);
        rendered(&tab);
    }
};

QTEST_MAIN(tst_KaTabItem)
#include "tst_katabitem.moc"
