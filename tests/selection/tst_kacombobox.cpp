#include "buttontestutils.h"
#include "testhelpers.h"

#include <kacombobox.h>
#include <kacomboboxdelegate.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QSignalSpy>
#include <QStandardItemModel>
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

constexpr int kRowWidth = 240;

QImage paintRow(const KaComboBoxDelegate& delegate, const QModelIndex& index, Qt::LayoutDirection direction,
                QStyle::State state = QStyle::State_Enabled) {
    QImage image(kRowWidth, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, kRowWidth, 40);
    option.state = state;
    option.direction = direction;
    QPainter painter(&image);
    delegate.paint(&painter, option, index);
    return image;
}

QColor normalOf(const char* set) {
    return BzThemeUtils::getColorSet(QString::fromLatin1(set)).normal();
}

// Pixels inside the row's fill that are not the fill colour: the text, or
// for a row without text the mark.
QRect inkBox(const QImage& image) {
    const QRgb fill = normalOf("combobox-background").rgb();
    QRect box;
    for (int y = 14; y < image.height() - 14; ++y)
        for (int x = 6; x < image.width() - 6; ++x)
            if (image.pixel(x, y) != fill)
                box |= QRect(x, y, 1, 1);
    return box;
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

    // KaComboBoxDelegate: the rows of the list.
    void rowHeight_data() {
        QTest::addColumn<int>("pixelSize");
        QTest::addColumn<bool>("raised");
        QTest::newRow("small text") << 12 << true;
        QTest::newRow("tall text") << 60 << false;
    }
    void rowHeight() {
        QFETCH(int, pixelSize);
        QFETCH(bool, raised);
        QStandardItemModel model;
        auto* item = new QStandardItem(QStringLiteral("Row"));
        QFont font;
        font.setPixelSize(pixelSize);
        item->setFont(font);
        model.appendRow(item);
        KaComboBoxDelegate delegate;
        QStyleOptionViewItem option;
        const int natural = QStyledItemDelegate().sizeHint(option, model.index(0, 0)).height();
        QCOMPARE(natural < 40, raised);
        QCOMPARE(delegate.sizeHint(option, model.index(0, 0)).height(), raised ? 40 : natural);
    }

    void checkMark_data() {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("right");
        // 18 px wide, 12 px in from the trailing edge.
        QTest::newRow("left to right")
            << int(Qt::LeftToRight) << kRowWidth - 1 - 12 - 18 << kRowWidth - 1 - 12;
        QTest::newRow("right to left") << int(Qt::RightToLeft) << 12 << 12 + 18;
    }
    void checkMark() {
        QFETCH(int, direction);
        QFETCH(int, left);
        QFETCH(int, right);
        // Rows without text: whatever differs from the row's fill is the mark.
        QComboBox combo;
        combo.addItems({QString(), QString()});
        combo.setCurrentIndex(1);
        KaComboBoxDelegate delegate(&combo);
        delegate.setDrawIcon(true);
        const QRect box =
            inkBox(paintRow(delegate, combo.model()->index(1, 0), Qt::LayoutDirection(direction)));
        QVERIFY(!box.isEmpty());
        QVERIFY2(box.left() >= left && box.right() <= right,
                 qPrintable(QStringLiteral("mark at %1..%2").arg(box.left()).arg(box.right())));
        QVERIFY(box.top() >= 11 && box.bottom() <= 29);
        // Only the current row carries it.
        QVERIFY(
            inkBox(paintRow(delegate, combo.model()->index(0, 0), Qt::LayoutDirection(direction))).isEmpty());
    }

    void noMark_data() {
        QTest::addColumn<bool>("comboParent");
        QTest::addColumn<bool>("drawIcon");
        QTest::newRow("draw icon off") << true << false;
        QTest::newRow("parent is no combo box") << false << true;
    }
    void noMark() {
        QFETCH(bool, comboParent);
        QFETCH(bool, drawIcon);
        QComboBox combo;
        combo.addItems({QString()});
        combo.setCurrentIndex(0);
        QObject other;
        KaComboBoxDelegate delegate(comboParent ? static_cast<QObject*>(&combo) : &other);
        delegate.setDrawIcon(drawIcon);
        QCOMPARE(delegate.isSelected(combo.model()->index(0, 0)), comboParent);
        const QImage image = paintRow(delegate, combo.model()->index(0, 0), Qt::LeftToRight);
        QVERIFY(inkBox(image).isEmpty());
    }

    void textReachesTrailingEdgeWithoutIcon_data() {
        QTest::addColumn<bool>("drawIcon");
        QTest::newRow("icon on") << true;
        QTest::newRow("icon off") << false;
    }
    void textReachesTrailingEdgeWithoutIcon() {
        QFETCH(bool, drawIcon);
        QStandardItemModel model;
        model.appendRow(new QStandardItem(QString(200, QLatin1Char('l'))));
        KaComboBoxDelegate delegate;
        delegate.setDrawIcon(drawIcon);
        const QRect text = inkBox(paintRow(delegate, model.index(0, 0), Qt::LeftToRight));
        QVERIFY(!text.isEmpty());
        QCOMPARE(text.left() >= 12, true);
        if (drawIcon)
            QVERIFY(text.right() < kRowWidth - 12);
        else
            QVERIFY2(text.right() > kRowWidth - 12, qPrintable(QString::number(text.right())));
    }

    void stateColours_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("expected");
        const int enabled = int(QStyle::State_Enabled);
        QTest::newRow("normal") << enabled << int(BzColorSet::Normal);
        QTest::newRow("disabled") << 0 << int(BzColorSet::Disabled);
        QTest::newRow("selected") << (enabled | int(QStyle::State_Selected)) << int(BzColorSet::Checked);
        QTest::newRow("pressed over hover")
            << (enabled | int(QStyle::State_Sunken) | int(QStyle::State_MouseOver))
            << int(BzColorSet::Pressed);
    }
    void stateColours() {
        QFETCH(int, state);
        QFETCH(int, expected);
        QStandardItemModel model;
        model.appendRow(new QStandardItem(QString()));
        KaComboBoxDelegate delegate;
        const QImage image = paintRow(delegate, model.index(0, 0), Qt::LeftToRight, QStyle::State(state));
        const QColor colour = BzThemeUtils::getColorSet(QStringLiteral("combobox-background"))
                                  .color(BzColorSet::State(expected));
        QCOMPARE(image.pixelColor(kRowWidth / 2, 20).rgb(), colour.rgb());
        // Inset by 5 pixels: the row's edge stays clear.
        QCOMPARE(image.pixelColor(kRowWidth / 2, 2).alpha(), 0);
    }
};

QTEST_MAIN(tst_KaComboBox)
#include "tst_kacombobox.moc"
