#include "buttontestutils.h"

#include <kacombobox.h>
#include <kacomboboxdelegate.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>
#include <QWheelEvent>

using ButtonTest::colorOf;

namespace {

// Whether the image holds a pixel of exactly this colour inside `area`.
bool hasPixel(const QImage& image, const QColor& colour, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(x, y).rgb() == colour.rgb())
                return true;
    return false;
}

} // namespace

class tst_KaComboBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void stylesAndSizes_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("borderSet");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("arrow");
        QTest::addColumn<int>("pixelSize");
        QTest::newRow("outline normal") << int(KaComboBoxEnum::Outline) << int(KaComboBoxEnum::Normal)
                                        << "combobox-border" << 28 << 12 << 13;
        QTest::newRow("filled large") << int(KaComboBoxEnum::Filled) << int(KaComboBoxEnum::Large)
                                      << "combobox-background" << 32 << 18 << 14;
    }
    void stylesAndSizes() {
        QFETCH(int, style);
        QFETCH(int, size);
        QFETCH(QString, borderSet);
        QFETCH(int, height);
        QFETCH(int, arrow);
        QFETCH(int, pixelSize);
        KaComboBox combo(nullptr, KaComboBoxEnum::Style(style), KaComboBoxEnum::Size(size));
        combo.addItem(QStringLiteral("Item"));
        combo.resize(160, combo.height());
        QCOMPARE(combo.height(), height);
        QCOMPARE(combo.svgDropdownIconSize(), QSize(arrow, arrow));
        QCOMPARE(combo.font().pixelSize(), pixelSize);
        const QImage image = ButtonTest::rendered(&combo);
        QCOMPARE(image.pixelColor(80, 0), colorOf(borderSet.toLatin1().constData()));
        QCOMPARE(image.pixelColor(4, height / 2), colorOf("combobox-background"));
    }

    void unknownStyleOrSize_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("size");
        QTest::newRow("style 2") << 2 << int(KaComboBoxEnum::Large);
        QTest::newRow("size 2") << int(KaComboBoxEnum::Filled) << 2;
    }
    void unknownStyleOrSize() {
        QFETCH(int, style);
        QFETCH(int, size);
        KaComboBox combo(nullptr, KaComboBoxEnum::Filled, KaComboBoxEnum::Large);
        const QString sheet = combo.QWidget::styleSheet();
        QSignalSpy styleSpy(&combo, &KaComboBox::styleChanged);
        QSignalSpy sizeSpy(&combo, &KaComboBox::sizeChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown (style|size)")));
        combo.setStyle(KaComboBoxEnum::Style(style));
        combo.setSize(KaComboBoxEnum::Size(size));
        QCOMPARE(combo.style(), KaComboBoxEnum::Filled);
        QCOMPARE(combo.size(), KaComboBoxEnum::Large);
        QCOMPARE(combo.QWidget::size().height(), 32);
        QCOMPARE(combo.QWidget::styleSheet(), sheet);
        QCOMPARE(styleSpy.count() + sizeSpy.count(), 0);
    }

    void wheelNeverChangesIndex() {
        QWidget window;
        auto* combo = new KaComboBox(&window);
        combo->addItems({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
        combo->setGeometry(10, 10, 150, 28);
        combo->setCurrentIndex(1);
        QVERIFY(ButtonTest::shown(window, QRect(100, 100, 220, 60)));
        combo->setFocus();
        for (int delta : {-120, 120, -120, -120}) {
            const QPointF at(40, 14);
            QWheelEvent wheel(at, combo->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(combo, &wheel);
            // Left unaccepted, Qt hands it on to the scroll area around.
            QVERIFY(!wheel.isAccepted());
        }
        QCOMPARE(combo->currentIndex(), 1);
    }

    void placeholderOnlyWithoutIndex() {
        KaComboBox combo;
        combo.addItems({QStringLiteral("Mmmmmm"), QStringLiteral("Wwwwww")});
        combo.setPlaceholderText(QStringLiteral("Mmmmmm"));
        combo.resize(160, combo.height());
        const QRect textArea(12, 2, 80, combo.height() - 4);
        const QColor placeholder = colorOf("combobox-placeholder-text");
        const QColor text = colorOf("combobox-text");
        combo.setCurrentIndex(-1);
        QImage image = ButtonTest::rendered(&combo);
        QVERIFY(hasPixel(image, placeholder, textArea));
        QVERIFY(!hasPixel(image, text, textArea));
        combo.setCurrentIndex(0);
        image = ButtonTest::rendered(&combo);
        QVERIFY(!hasPixel(image, placeholder, textArea));
        QVERIFY(hasPixel(image, text, textArea));
    }

    void followsThemeSwitch() {
        KaComboBox combo;
        combo.addItem(QStringLiteral("Item"));
        auto* delegate = new KaComboBoxDelegate(&combo);
        combo.setItemDelegate(delegate);
        QVERIFY(ButtonTest::shown(combo));
        const QColor light = colorOf("combobox-background");
        QCOMPARE(ButtonTest::pixelAt(&combo, QPoint(4, 14)), light);
        ButtonTest::switchTheme("dark");
        const QColor dark = colorOf("combobox-background", BzThemeUtils::Dark);
        QVERIFY(dark != light);
        QTRY_COMPARE(ButtonTest::pixelAt(&combo, QPoint(4, 14)), dark);
        // The list opens in the new theme.
        combo.showPopup();
        QVERIFY(combo.view()->styleSheet().contains(BzThemeUtils::colorToCss(dark)));
        combo.hidePopup();
        // An own theme type wins over the application's theme.
        combo.setThemeType(QStringLiteral("light"));
        QCOMPARE(ButtonTest::pixelAt(&combo, QPoint(4, 14)), light);
    }

    void foreignOrNullDelegate() {
        KaComboBox combo;
        combo.addItems({QStringLiteral("A"), QStringLiteral("B")});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot set a 0 delegate")));
        combo.setItemDelegate(nullptr);
        combo.setItemDelegate(new QStyledItemDelegate(&combo));
        combo.setThemeType(QStringLiteral("dark"));
        QVERIFY(ButtonTest::shown(combo));
        combo.showPopup();
        QVERIFY(combo.view()->isVisible());
        QVERIFY(!ButtonTest::rendered(combo.view()).isNull());
        combo.hidePopup();
    }

    void accessibility() {
        QWidget window;
        auto* combo = new KaComboBox(&window);
        combo->addItems({QStringLiteral("Red"), QStringLiteral("Green")});
        combo->setAccessibleName(QStringLiteral("Colour"));
        combo->setGeometry(10, 10, 150, 28);
        QVERIFY(ButtonTest::shown(window));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(combo);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::ComboBox);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Colour"));
        QVERIFY(iface->state().focusable);
        combo->setEnabled(false);
        QVERIFY(iface->state().disabled);
        QVERIFY(combo->view()->accessibleDescription().startsWith(QLatin1String("Expanded")));
    }
};

QTEST_MAIN(tst_KaComboBox)
#include "tst_kacombobox.moc"
