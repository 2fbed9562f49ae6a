#include "buttontestutils.h"
#include "focusringtest.h"
#include "kacheckbox.h"
#include "karadiobutton.h"
#include "kaselectiongroup.h"
#include "kaslider.h"
#include "testhelpers.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <accessibilityrecorder.h>
#include <kacombobox.h>
#include <kacomboboxbase.h>
#include <kacomboboxdelegate.h>
#include <karvoxtoken.h>

using namespace ButtonTest;

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

// Pixels inside the row's fill that are not the fill colour: the text, or
// for a row without text the mark.
QRect inkBox(const QImage& image) {
    const QRgb fill = colorOf("combobox-background").rgb();
    QRect box;
    for (int y = 14; y < image.height() - 14; ++y)
        for (int x = 6; x < image.width() - 6; ++x)
            if (image.pixel(x, y) != fill)
                box |= QRect(x, y, 1, 1);
    return box;
}

QFrame* popupOf(QComboBox* combo) {
    return combo->findChild<QFrame*>(QString(), Qt::FindDirectChildrenOnly);
}

// A host container that announces its theme type, as the library's own do.
class ThemedPanel : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    void announce(const QString& type) {
        setProperty("themeType", type);
        Q_EMIT themeTypeChanged();
    }
Q_SIGNALS:
    void themeTypeChanged();
};

} // namespace

class tst_Selection : public QObject {
    Q_OBJECT

    QWidget* m_window = nullptr;
    KaComboBoxBase* m_combo = nullptr;

    void makeWindow(int rows = 5, const QPoint& at = QPoint(200, 200)) {
        delete m_window;
        m_window = new QWidget;
        m_combo = new KaComboBoxBase(m_window);
        for (int i = 0; i < rows; ++i)
            m_combo->addItem(QStringLiteral("Row %1").arg(i));
        m_combo->setGeometry(10, 10, 180, 28);
        m_window->setGeometry(QRect(at, QSize(200, 48)));
        QVERIFY(ButtonTest::activated(*m_window));
    }

private Q_SLOTS:
    void init() { switchTheme("light"); }
    void cleanup() {
        delete m_window;
        m_window = nullptr;
        qApp->setProperty("isKeyboardFocus", QVariant());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
    }

    void paintsTheStateInTheThemesColours_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("border");
        QTest::newRow("unchecked") << int(Qt::Unchecked) << "checkbox-unchecked-border";
        QTest::newRow("checked") << int(Qt::Checked) << "checkbox-checked-border";
        QTest::newRow("partly") << int(Qt::PartiallyChecked) << "checkbox-checked-border";
    }
    void paintsTheStateInTheThemesColours() {
        QFETCH(int, state);
        QFETCH(QString, border);
        KaCheckBox box(QStringLiteral("Mentions"));
        box.setTristate(true);
        box.setCheckState(Qt::CheckState(state));
        box.resize(box.sizeHint());
        const QByteArray set = border.toLatin1();
        const int y = box.height() / 2; // the box's left edge, mid-height
        QCOMPARE(rendered(&box).pixelColor(0, y), colorOf(set.constData()));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&box).pixelColor(0, y), colorOf(set.constData(), BzThemeUtils::Dark));
    }

    void wholeWidgetToggles() {
        KaCheckBox box(QStringLiteral("A long label to click on"));
        box.resize(box.sizeHint());
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QSignalSpy toggled(&box, &QAbstractButton::toggled);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.width() - 3, box.height() / 2));
        QCOMPARE(toggled.count(), 1);
        QVERIFY(box.isChecked());
    }

    void accessibleStates() {
        KaCheckBox box(QStringLiteral("Replies"));
        box.setTristate(true);
        box.setCheckState(Qt::PartiallyChecked);
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(a11y->role(), QAccessible::CheckBox);
        QCOMPARE(a11y->text(QAccessible::Name), QStringLiteral("Replies"));
        QVERIFY(a11y->state().checkStateMixed);
        box.setCheckState(Qt::Checked);
        QVERIFY(a11y->state().checked && !a11y->state().checkStateMixed);
    }

    // KaRadioButton.
    void radioDotFollowsTheme() {
        KaRadioButton radio(QStringLiteral("Automatic"));
        radio.setChecked(true);
        radio.resize(radio.sizeHint());
        const QPoint dot(8, radio.height() / 2); // the circle's centre
        QCOMPARE(rendered(&radio).pixelColor(dot), colorOf("radio-checked-icon"));
        switchTheme("highContrast");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&radio).pixelColor(dot), colorOf("radio-checked-icon", BzThemeUtils::HighContrast));
        radio.setAutoExclusive(false); // Qt keeps a lone exclusive radio button checked
        radio.setChecked(false);
        QCOMPARE(rendered(&radio).pixelColor(dot),
                 colorOf("radio-unchecked-background", BzThemeUtils::HighContrast));
    }

    void radioMirroredRightToLeft() {
        KaRadioButton radio(QStringLiteral("Automatic"));
        radio.setChecked(true);
        radio.setLayoutDirection(Qt::RightToLeft);
        radio.resize(radio.sizeHint());
        QCOMPARE(rendered(&radio).pixelColor(radio.width() - 8, radio.height() / 2),
                 colorOf("radio-checked-icon"));
    }

    void radioAccessibleRole() {
        KaRadioButton radio(QStringLiteral("Best picture"));
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(&radio);
        QCOMPARE(a11y->role(), QAccessible::RadioButton);
        QCOMPARE(a11y->text(QAccessible::Name), QStringLiteral("Best picture"));
        radio.setEnabled(false);
        QVERIFY(a11y->state().disabled);
    }

    // KaSelectionGroup.
    void selectAll_data() {
        QTest::addColumn<QList<int>>("checkedFirst");
        QTest::addColumn<int>("stateBefore");
        QTest::addColumn<int>("checkedAfterClick");
        QTest::newRow("none: click checks all") << QList<int>{} << int(Qt::Unchecked) << 3;
        QTest::newRow("some: click checks all") << QList<int>{1} << int(Qt::PartiallyChecked) << 3;
        QTest::newRow("all: click clears") << QList<int>{0, 1, 2} << int(Qt::Checked) << 0;
    }
    void selectAll() {
        QFETCH(QList<int>, checkedFirst);
        QFETCH(int, stateBefore);
        QFETCH(int, checkedAfterClick);
        KaSelectionGroup group(KaOptionRow::CheckBox);
        for (const char* text : {"Mentions", "Replies", "Reactions"})
            group.addOption(QString::fromLatin1(text));
        for (int index : checkedFirst)
            group.option(index)->setChecked(true);
        QCOMPARE(int(group.selectAllBox()->checkState()), stateBefore);
        group.selectAllBox()->click();
        int checked = 0;
        for (int i = 0; i < group.count(); ++i)
            checked += group.option(i)->isChecked();
        QCOMPARE(checked, checkedAfterClick);
        QCOMPARE(group.selectAllBox()->checkState(), checked ? Qt::Checked : Qt::Unchecked);
    }

    void arrowKeysMoveTheChoice() {
        KaSelectionGroup group(KaOptionRow::RadioButton);
        group.setTitle(QStringLiteral("Call quality"));
        for (const char* text : {"Automatic", "Best picture", "Save data"})
            group.addOption(QString::fromLatin1(text), QStringLiteral("details"));
        group.setCheckedIndex(0);
        group.show();
        QApplication::setActiveWindow(&group);
        QVERIFY(QTest::qWaitForWindowActive(&group));
        group.option(0)->button()->setFocus();
        QSignalSpy changed(&group, &KaSelectionGroup::checkedIndexChanged);
        QTest::keyClick(group.option(0)->button(), Qt::Key_Down);
        QCOMPARE(group.checkedIndex(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(QAccessible::queryAccessibleInterface(&group)->text(QAccessible::Name),
                 QStringLiteral("Call quality"));
        QCOMPARE(
            QAccessible::queryAccessibleInterface(group.option(1)->button())->text(QAccessible::Description),
            QStringLiteral("details"));
    }

    void wholeRowIsTheTarget() {
        KaSelectionGroup group(KaOptionRow::RadioButton);
        KaOptionRow* row = group.addOption(QStringLiteral("Save data"), QStringLiteral("Lower resolution"));
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));
        // Below the button: on the secondary line.
        QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(30, row->height() - 3));
        QVERIFY(row->isChecked());
    }

    void checkedIndexBounds() {
        KaSelectionGroup group;
        group.addOption(QStringLiteral("One"));
        group.addOption(QStringLiteral("Two"));
        group.setCheckedIndex(1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no option 2 ignored"));
        group.setCheckedIndex(2);
        QCOMPARE(group.checkedIndex(), 1);
        group.setCheckedIndex(-1); // clears even an exclusive group
        QCOMPARE(group.checkedIndex(), -1);
    }

    // KaSlider.
    void fillFollowsValueAndTheme_data() {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("horizontal") << int(Qt::Horizontal) << false;
        QTest::newRow("right to left") << int(Qt::Horizontal) << true;
        QTest::newRow("vertical") << int(Qt::Vertical) << false;
    }
    void fillFollowsValueAndTheme() {
        QFETCH(int, orientation);
        QFETCH(bool, rightToLeft);
        KaSlider slider{Qt::Orientation(orientation)};
        slider.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        slider.resize(orientation == Qt::Horizontal ? QSize(200, 24) : QSize(24, 200));
        slider.setRange(0, 100);
        slider.setValue(50);
        // A point on the track a quarter of the way from the minimum's end.
        const bool horizontal = orientation == Qt::Horizontal;
        const QPoint minimumSide = horizontal ? QPoint(rightToLeft ? 150 : 50, 12) : QPoint(12, 150);
        const QPoint maximumSide = horizontal ? QPoint(rightToLeft ? 50 : 150, 12) : QPoint(12, 50);
        QCOMPARE(rendered(&slider).pixelColor(minimumSide), colorOf("slider-track-indicator-background"));
        QCOMPARE(rendered(&slider).pixelColor(maximumSide), colorOf("slider-track-empty-background"));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&slider).pixelColor(minimumSide),
                 colorOf("slider-track-indicator-background", BzThemeUtils::Dark));
    }

    // A disabled slider still shows where it stands, high contrast included.
    void disabledTrackStaysVisible_data() {
        QTest::addColumn<QByteArray>("theme");
        QTest::newRow("light") << QByteArray("light");
        QTest::newRow("dark") << QByteArray("dark");
        QTest::newRow("high contrast") << QByteArray("highContrast");
    }
    void disabledTrackStaysVisible() {
        QFETCH(QByteArray, theme);
        switchTheme(theme.constData());
        KaSlider slider{Qt::Horizontal};
        slider.resize(200, 24);
        slider.setRange(0, 100);
        slider.setValue(50);
        slider.setEnabled(false);
        const QColor surface = colorOf("panel-primary-background");
        const QImage image = rendered(&slider);
        for (const QPoint at : {QPoint(50, 12), QPoint(150, 12)}) {
            QImage behind(1, 1, QImage::Format_ARGB32_Premultiplied);
            behind.fill(surface);
            QPainter(&behind).fillRect(0, 0, 1, 1, image.pixelColor(at));
            QVERIFY2(behind.pixelColor(0, 0) != surface, qPrintable(QStringLiteral("x = %1").arg(at.x())));
        }
    }

    void keyboardStepsAreAnnounced() {
        AccessibilityRecorder::RecordingScope scope;
        KaSlider slider;
        slider.setRange(0, 100);
        slider.setAccessibleName(QStringLiteral("Volume"));
        slider.show();
        QApplication::setActiveWindow(&slider);
        QVERIFY(QTest::qWaitForWindowActive(&slider));
        slider.setFocus();
        QTest::keyClick(&slider, Qt::Key_Right);
        QTest::keyClick(&slider, Qt::Key_PageUp);
        QCOMPARE(slider.value(), 1 + slider.pageStep());
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(&slider);
        QCOMPARE(a11y->role(), QAccessible::Slider);
        QCOMPARE(a11y->valueInterface()->currentValue().toInt(), slider.value());
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged, &slider).size(), 2);
    }

    void ticksOverTheWholeIntRange() {
        KaSlider slider;
        slider.setRange(INT_MIN, INT_MAX);
        slider.setTickPosition(QSlider::TicksBothSides);
        slider.setTickInterval(INT_MAX / 2);
        slider.resize(200, 40);
        QVERIFY(!rendered(&slider).isNull()); // terminates without overflow
    }

    // KaComboBox, its base and its delegate.
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
        QVERIFY(text.left() >= 12); // also not empty: an empty box starts at 0
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

    // KaComboBoxBase: the pop-up, keys and row texts every combo box shares.
    void popupRequests_data() {
        QTest::addColumn<QString>("request");
        QTest::addColumn<bool>("enabled");
        for (const char* request : {"click", "Return", "Alt+Down"}) {
            QTest::addRow("%s, enabled", request) << QString::fromLatin1(request) << true;
            QTest::addRow("%s, disabled", request) << QString::fromLatin1(request) << false;
        }
    }
    void popupRequests() {
        QFETCH(QString, request);
        QFETCH(bool, enabled);
        makeWindow();
        m_combo->setShowPopupEnabled(enabled);
        m_combo->setCurrentIndex(2);
        QSignalSpy clicked(m_combo, &KaComboBoxBase::contentAreaClicked);
        if (request == QLatin1String("click"))
            QTest::mouseClick(m_combo, Qt::LeftButton, {}, QPoint(20, 14));
        else if (request == QLatin1String("Return"))
            QTest::keyClick(m_combo, Qt::Key_Return);
        else
            QTest::keyClick(m_combo, Qt::Key_Down, Qt::AltModifier);
        QCoreApplication::processEvents();
        QCOMPARE(m_combo->view()->isVisible(), enabled);
        QCOMPARE(m_combo->isExpanded(), enabled);
        // Keys never pick another row on the way.
        QCOMPARE(m_combo->currentIndex(), 2);
        QCOMPARE(clicked.count(), request == QLatin1String("click") ? 1 : 0);
        if (enabled) {
            QSignalSpy collapsed(m_combo, &KaComboBoxBase::dropDownCollapsed);
            m_combo->hidePopup();
            QCOMPARE(collapsed.count(), 1);
            QVERIFY(!m_combo->isExpanded());
        }
    }

    void arrowAreaIsNoContentClick() {
        makeWindow();
        QSignalSpy clicked(m_combo, &KaComboBoxBase::contentAreaClicked);
        QTest::mouseClick(m_combo, Qt::LeftButton, {}, QPoint(m_combo->width() - 4, 14));
        QCOMPARE(clicked.count(), 0);
        QTRY_VERIFY(m_combo->view()->isVisible());
        m_combo->hidePopup();
        // Without a popup the arrow is part of the click target.
        m_combo->setShowPopupEnabled(false);
        QTest::mouseClick(m_combo, Qt::LeftButton, {}, QPoint(m_combo->width() - 4, 14));
        QCOMPARE(clicked.count(), 1);
    }

    void openedUpwards_data() {
        QTest::addColumn<bool>("roomBelow");
        QTest::newRow("Qt places it below") << true;
        QTest::newRow("Qt places it above") << false;
    }
    void openedUpwards() {
        QFETCH(bool, roomBelow);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        makeWindow(6, roomBelow ? QPoint(100, screen.top() + 260) : QPoint(100, screen.bottom() - 60));
        m_combo->setOpenedUpwards(true);
        m_combo->showPopup();
        QFrame* popup = popupOf(m_combo);
        QVERIFY(popup && popup->isVisible());
        const int comboTop = m_combo->mapToGlobal(QPoint(0, 0)).y();
        QVERIFY(popup->geometry().bottom() < comboTop);
    }

    void dropdownOffset() {
        makeWindow();
        m_combo->setItemViewDropdownOffset(QPoint(0, 0));
        m_combo->showPopup();
        const QRect plain = popupOf(m_combo)->geometry();
        m_combo->hidePopup();
        m_combo->setItemViewDropdownOffset(QPoint(7, 9));
        m_combo->showPopup();
        QCOMPARE(popupOf(m_combo)->geometry().topLeft(), plain.topLeft() + QPoint(7, 9));
    }

    void wrapText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fitting");
        QTest::addColumn<QString>("wrapped");
        // Hard breaks drop the character at each break.
        QTest::newRow("no blanks") << QStringLiteral("aaaaaaaaaa") << QStringLiteral("aaaa")
                                   << QStringLiteral("aaaa\naaaa\n");
        QTest::newRow("at a blank") << QStringLiteral("one two three") << QStringLiteral("one two")
                                    << QStringLiteral("one two\nthree");
        QTest::newRow("fits") << QStringLiteral("short") << QStringLiteral("short words")
                              << QStringLiteral("short");
        QTest::newRow("blank first") << QStringLiteral(" abcdef") << QStringLiteral(" abc")
                                     << QStringLiteral(" abc\nef");
    }
    void wrapText() {
        QFETCH(QString, text);
        QFETCH(QString, fitting);
        QFETCH(QString, wrapped);
        const QFontMetrics metrics{BzFont(BzFont::Body)};
        QCOMPARE(KaComboBoxBase::wrapText(text, metrics.horizontalAdvance(fitting), metrics), wrapped);
    }

    void rgbaInListStyleSheet_data() {
        QTest::addColumn<QString>("colour");
        QTest::addColumn<QString>("expected");
        QTest::newRow("alpha 255") << QStringLiteral("#112233")
                                   << QStringLiteral("background-color: rgba(17,34,51,1.0);");
        QTest::newRow("alpha 128") << QStringLiteral("#11223380")
                                   << QStringLiteral("background-color: rgba(17,34,51,0.50);");
    }
    void rgbaInListStyleSheet() {
        QFETCH(QString, colour);
        QFETCH(QString, expected);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(QStringLiteral(R"({"name": "comboalpha", "base": "light", "dark": false,
            "colorSets": {"kv-orbis-combobox-background": "%1"}})")
                       .arg(colour)
                       .toUtf8());
        file.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("lacks .* colour set")));
        const QString name = BzThemeManager::instance()->loadThemeFile(file.fileName());
        QVERIFY(!name.isEmpty());
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(name));
        KaComboBoxBase combo;
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QVERIFY2(combo.view()->styleSheet().contains(expected), qPrintable(combo.view()->styleSheet()));
        QCOMPARE(combo.view()->objectName(), QStringLiteral("orbisAstractItemView"));
    }

    void rowTexts() {
        makeWindow(0);
        auto* model = new QStandardItemModel(m_combo);
        model->appendRow(new QStandardItem(QStringLiteral("Short")));
        model->appendRow(
            new QStandardItem(QStringLiteral("A row text far too long to fit the narrow combo box")));
        auto* described = new QStandardItem(QStringLiteral("Bob"));
        described->setData(QStringLiteral("Bob, away, last seen at nine in the morning"), Qt::WhatsThisRole);
        model->appendRow(described);
        m_combo->setModel(model);
        m_combo->setCurrentIndex(1);
        m_combo->showPopup();
        QCOMPARE(model->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 1 of 3"));
        QCOMPARE(model->index(1, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Selected, 2 of 3"));
        QCOMPARE(model->index(2, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Bob, away, last seen at nine in the morning Not selected, 3 of 3"));
        QVERIFY(model->index(0, 0).data(Qt::ToolTipRole).toString().isEmpty());
        const QString longTip = model->index(1, 0).data(Qt::ToolTipRole).toString();
        QVERIFY2(longTip.contains(QLatin1Char('\n')), qPrintable(longTip));
        QVERIFY(model->index(2, 0).data(Qt::ToolTipRole).toString().startsWith(QLatin1String("Bob, away")));

        // Screen readers read the same description from the list.
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(m_combo->view());
        QVERIFY(list);
        bool found = false;
        for (int i = 0; i < list->childCount(); ++i) {
            QAccessibleInterface* cell = list->child(i);
            if (cell && cell->text(QAccessible::Name) == QLatin1String("Short"))
                found = cell->text(QAccessible::Description) == QLatin1String("Not selected, 1 of 3");
        }
        QVERIFY(found);

        // The next opening describes the new current row.
        m_combo->hidePopup();
        m_combo->setCurrentIndex(0);
        m_combo->showPopup();
        QCOMPARE(model->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Selected, 1 of 3"));
        QCOMPARE(model->index(1, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 2 of 3"));
    }

    void rowTextsOfRowsScrolledTo() {
        makeWindow(0);
        auto* model = new QStandardItemModel(m_combo);
        for (int i = 0; i < 10000; ++i)
            model->appendRow(new QStandardItem(QStringLiteral("Row %1").arg(i)));
        m_combo->setModel(model);
        m_combo->setCurrentIndex(0);
        m_combo->showPopup();
        QCOMPARE(model->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Selected, 1 of 10000"));
        const QModelIndex far = model->index(7000, 0);
        m_combo->view()->scrollTo(far);
        QCOMPARE(far.data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 7001 of 10000"));
        // A row reached by keyboard is described before its tooltip is looked up.
        qApp->setProperty("isKeyboardFocus", true);
        m_combo->view()->setCurrentIndex(model->index(9999, 0));
        QCOMPARE(model->index(9999, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 10000 of 10000"));
    }

    void listKeys_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("expectedIndex");
        QTest::addColumn<bool>("focusMoves");
        QTest::newRow("Space picks") << int(Qt::Key_Space) << 3 << false;
        QTest::newRow("Tab leaves") << int(Qt::Key_Tab) << 1 << true;
        QTest::newRow("Alt+Up closes") << int(Qt::Key_Up) << 1 << false;
    }
    void listKeys() {
        QFETCH(int, key);
        QFETCH(int, expectedIndex);
        QFETCH(bool, focusMoves);
        makeWindow();
        auto* other = new QLineEdit(m_window);
        other->setGeometry(10, 40, 100, 20);
        other->show();
        m_combo->setFocus();
        QTRY_VERIFY(m_combo->hasFocus());
        m_combo->setCurrentIndex(1);
        m_combo->showPopup();
        QSignalSpy activated(m_combo, &QComboBox::activated);
        m_combo->view()->setCurrentIndex(m_combo->model()->index(3, 0));
        QTest::keyClick(m_combo->view(), Qt::Key(key),
                        key == Qt::Key_Up ? Qt::AltModifier : Qt::KeyboardModifiers());
        QTRY_VERIFY(!m_combo->view()->isVisible());
        QCOMPARE(m_combo->currentIndex(), expectedIndex);
        QCOMPARE(activated.count(), key == Qt::Key_Space ? 1 : 0);
        if (key == Qt::Key_Space)
            QCOMPARE(activated.first().first().toInt(), 3);
        if (focusMoves)
            QTRY_VERIFY(other->hasFocus());
    }

    void focusToolTip() {
        makeWindow(0);
        m_combo->addItem(QStringLiteral("A choice with a text much longer than the combo box is wide"));
        m_combo->addItem(QStringLiteral("Short"));
        m_combo->setCurrentIndex(1);
        m_combo->setCurrentIndex(0);
        QVERIFY(m_combo->toolTip().contains(QLatin1Char('\n')));
        QToolTip::hideText();
        QTest::mouseMove(m_window, QPoint(195, 45)); // pointer off the combo
        m_combo->clearFocus();
        QTRY_VERIFY(!QToolTip::isVisible());
        m_combo->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY_WITH_TIMEOUT(QToolTip::isVisible(), 2000);
        QCOMPARE(QToolTip::text(), m_combo->toolTip());
        m_combo->clearFocus();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void deletedWhileFocusTimerRuns() {
        makeWindow();
        m_combo->setFocus();
        QTRY_VERIFY(m_combo->hasFocus());
        delete m_combo;
        m_combo = nullptr;
        // Past the 200 ms delay: nothing may fire into the deleted combo.
        QTimer later;
        later.setSingleShot(true);
        QSignalSpy done(&later, &QTimer::timeout);
        later.start(300);
        QVERIFY(done.wait(2000));
    }

    void modelChangesWhileOpen() {
        makeWindow();
        auto* model = new QStandardItemModel(m_combo);
        model->appendRow(new QStandardItem(QStringLiteral("One")));
        m_combo->setModel(model);
        m_combo->showPopup();
        model->clear();
        model->appendRow(new QStandardItem(QStringLiteral("New")));
        model->appendRow(new QStandardItem(QStringLiteral("Newer")));
        // The rows in view are described again with the new count.
        QTRY_VERIFY(model->index(0, 0)
                        .data(Qt::AccessibleDescriptionRole)
                        .toString()
                        .endsWith(QLatin1String(", 1 of 2")));
        model->clear();
        QCoreApplication::processEvents();
        m_combo->hidePopup();
        // An empty model opens and paints without rows.
        m_combo->showPopup();
        QVERIFY(!ButtonTest::rendered(m_combo).isNull());
    }

    void parentThemeType() {
        ThemedPanel panel;
        panel.setProperty("themeType", QStringLiteral("dark"));
        auto* combo = new KaComboBoxBase(&panel);
        QCOMPARE(combo->themeType(), QStringLiteral("dark"));
        QSignalSpy changed(combo, &KaComboBoxBase::themeTypeChanged);
        panel.announce(QStringLiteral("light"));
        QCOMPARE(combo->themeType(), QStringLiteral("light"));
        QCOMPARE(changed.count(), 1);
        panel.announce(QStringLiteral("light"));
        QCOMPARE(changed.count(), 1);
        // Moved under a host without a type, it takes the window's.
        QWidget window;
        window.setProperty("themeType", QStringLiteral("highContrast"));
        auto* plain = new QWidget(&window);
        combo->setParent(plain);
        QCOMPARE(combo->themeType(), QStringLiteral("highContrast"));
        QCOMPARE(combo->view()->window()->property("themeType").toString(), QStringLiteral("highContrast"));
    }

    void focusRing() {
        FocusRingTest::installStyle("global-focus-outline");
        qApp->setProperty("isKeyboardFocus", true);
        makeWindow();
        auto* first = new QLineEdit(m_window);
        first->setGeometry(10, 40, 50, 20);
        first->show();
        first->setFocus();
        QTRY_VERIFY(first->hasFocus());
        QTest::keyClick(first, Qt::Key_Backtab);
        QTRY_VERIFY(m_combo->hasFocus());
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
        QCOMPARE(FocusRingTest::visibleRing(*m_window)->geometry(),
                 m_combo->geometry().adjusted(-5, -5, 5, 5));
    }

    void focusRingRoundTheBox() {
        FocusRingTest::installStyle("global-focus-outline");
        QWidget window;
        auto* box = new KaCheckBox(QStringLiteral("Reactions"), &window);
        box->setGeometry(20, 20, 120, 20);
        window.resize(200, 80);
        QVERIFY(activated(window));
        box->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(FocusRingTest::visibleRing(window));
        // The 16-pixel box at (0, 2) in the check box, plus a margin of 3.
        QCOMPARE(FocusRingTest::visibleRing(window)->geometry(), QRect(17, 19, 22, 22));
    }
};

QTEST_MAIN(tst_Selection)
#include "tst_selection.moc"
