#include "testhelpers.h"

#include <kacomboboxdelegate.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>

namespace {

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

class tst_KaComboBoxDelegate : public QObject {
    Q_OBJECT

private Q_SLOTS:
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

QTEST_MAIN(tst_KaComboBoxDelegate)
#include "tst_kacomboboxdelegate.moc"
