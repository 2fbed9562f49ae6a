// Cost of the themed combo box against a plain QComboBox, in the same run:
//  1. showing the popup of a 100,000-row model until the list has painted,
//     a KaComboBox with its row delegate against a QComboBox with the same
//     model and a QStyledItemDelegate (bar: at most 1.5 times);
//  2. a theme switch over N shown KaComboBoxes (updateSolvaneThemes, the
//     queued onThemeChanged() calls and one repaint) against giving N shown
//     Fusion QComboBoxes a new application palette and one repaint
//     (reported, no bar).
//
//   QT_QPA_PLATFORM=offscreen ./bench_combobox [--rounds N] [--rows N] [--combos N]

#include "benchutils.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kacombobox.h"
#include "kacomboboxdelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QPalette>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

QString textOf(int i) {
    switch (i % 3) {
    case 0:
        return QStringLiteral("Meeting room %1").arg(i);
    case 1:
        return QStringLiteral("Contact %1, engineering, building four, second floor").arg(i);
    default:
        return QStringLiteral("Item %1").arg(i);
    }
}

// Counts paints of the list, so a measurement ends once the rows are on screen.
class PaintCounter : public QObject {
public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

double timePopup(QComboBox* combo, PaintCounter* counter) {
    counter->paints = 0;
    QElapsedTimer timer;
    timer.start();
    combo->showPopup();
    while (counter->paints == 0)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    const double ms = timer.nsecsElapsed() / 1e6;
    combo->hidePopup();
    QCoreApplication::processEvents();
    return ms;
}

std::pair<double, double> comparePopups(int rows, int rounds) {
    QStandardItemModel model;
    for (int i = 0; i < rows; ++i)
        model.appendRow(new QStandardItem(textOf(i)));

    QWidget window;
    window.resize(420, 120);
    auto* ours = new KaComboBox(&window);
    auto* delegate = new KaComboBoxDelegate(ours);
    delegate->setDrawIcon(true);
    ours->setItemDelegate(delegate);
    ours->setModel(&model);
    ours->setGeometry(10, 10, 220, 28);
    ours->setCurrentIndex(rows / 2);
    // The plain combo does not animate its popup on this platform; the
    // comparison is of the work, not of an animation.
    ours->setComboBoxAnimationEnabled(false);

    auto* plain = new QComboBox(&window);
    plain->setItemDelegate(new QStyledItemDelegate(plain));
    // The same kind of popup as ours: a list below the combo, not a menu
    // over the current row (which measures every row on each opening).
    plain->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    plain->setModel(&model);
    plain->setGeometry(10, 60, 220, 28);
    plain->setCurrentIndex(rows / 2);
    window.show();
    QCoreApplication::processEvents();

    PaintCounter ourCounter, plainCounter;
    ours->view()->viewport()->installEventFilter(&ourCounter);
    plain->view()->viewport()->installEventFilter(&plainCounter);

    // Warm-up: the first opening lays the list out once per combo.
    timePopup(ours, &ourCounter);
    timePopup(plain, &plainCounter);
    std::vector<double> ourTimes, plainTimes;
    for (int r = 0; r < rounds; ++r) {
        ourTimes.push_back(timePopup(ours, &ourCounter));
        plainTimes.push_back(timePopup(plain, &plainCounter));
    }
    return {bench::median(ourTimes), bench::median(plainTimes)};
}

QWidget* makeKaComboBox(int i, QWidget* parent) {
    auto* combo = new KaComboBox(parent, i % 2 ? KaComboBoxEnum::Filled : KaComboBoxEnum::Outline,
                                 KaComboBoxEnum::Normal);
    combo->addItems({textOf(i), textOf(i + 1), textOf(i + 2)});
    combo->setItemDelegate(new KaComboBoxDelegate(combo));
    return combo;
}

QWidget* makePlainComboBox(int i, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->addItems({textOf(i), textOf(i + 1), textOf(i + 2)});
    combo->setFont(BzFont(BzFont::BodySmall));
    return combo;
}

// The palette a host would build from the same theme data.
const bench::PaletteRoles kComboPalette = {
    {QPalette::ButtonText, "combobox-text"},        {QPalette::Text, "combobox-text"},
    {QPalette::Button, "combobox-background"},      {QPalette::Base, "combobox-background"},
    {QPalette::Window, "panel-primary-background"}, {QPalette::WindowText, "label-primary-text"}};

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const std::vector<int> counts = bench::parseCounts(
        app, {{"rows", "Rows of the popup model.", 100000}, {"combos", "Combo boxes per side.", 500}});
    const int rounds = counts[0];
    const int rows = counts[1];
    const int count = counts[2];
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    // A popup opens in under a millisecond: more rounds for a steady median.
    const auto [kp, qp] = comparePopups(rows, std::max(rounds, 31));
    std::printf("show popup until painted, %d rows, KaComboBox: %8.2f ms\n", rows, kp);
    std::printf("show popup until painted, %d rows, QComboBox:  %8.2f ms\n", rows, qp);
    std::printf("ratio: %.3f (bar: at most 1.5)\n\n", kp / qp);

    const auto [ks, qs] = bench::compareSwitches(
        [&] { return bench::themeSwitchOver(count, makeKaComboBox, rounds); },
        [&] { return bench::paletteSwitchOver(count, makePlainComboBox, kComboPalette, rounds); });
    std::printf("theme switch, %d KaComboBoxes: %8.2f ms (updateSolvaneThemes + queued slots + repaint)\n",
                count, ks);
    std::printf("palette switch, %d QComboBoxes: %8.2f ms (QApplication::setPalette + repaint)\n", count, qs);
    std::printf("ratio: %.3f (reported, no bar)\n", ks / qs);
    return 0;
}
