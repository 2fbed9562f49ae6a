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
#include <QCommandLineParser>
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
QPalette paletteFor(BzThemeUtils::AppThemeType type, const QPalette& base) {
    QPalette palette = base;
    const auto normal = [type](const char* set) {
        return BzThemeUtils::getColorSet(set, type).normal();
    };
    palette.setColor(QPalette::ButtonText, normal("combobox-text"));
    palette.setColor(QPalette::Text, normal("combobox-text"));
    palette.setColor(QPalette::Button, normal("combobox-background"));
    palette.setColor(QPalette::Base, normal("combobox-background"));
    palette.setColor(QPalette::Window, normal("panel-primary-background"));
    palette.setColor(QPalette::WindowText, normal("label-primary-text"));
    return palette;
}

double measureKaSwitch(int count, int rounds) {
    auto window = bench::makeGrid(count, makeKaComboBox);
    const double ms = bench::timeThemeSwitches(window.get(), rounds);
    window.reset();
    bench::flushEvents();
    return ms;
}

double measurePaletteSwitch(int count, int rounds) {
    const QPalette original = QApplication::palette();
    auto window = bench::makeGrid(count, makePlainComboBox);
    const double ms = bench::timePaletteSwitches(window.get(), paletteFor(BzThemeUtils::Dark, original),
                                                 paletteFor(BzThemeUtils::Light, original), rounds);
    window.reset();
    bench::flushEvents();
    return ms;
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    QCommandLineOption roundsOption(QStringLiteral("rounds"), QStringLiteral("Rounds per measurement."),
                                    QStringLiteral("n"), QStringLiteral("7"));
    QCommandLineOption rowsOption(QStringLiteral("rows"), QStringLiteral("Rows of the popup model."),
                                  QStringLiteral("n"), QStringLiteral("100000"));
    QCommandLineOption combosOption(QStringLiteral("combos"), QStringLiteral("Combo boxes per side."),
                                    QStringLiteral("n"), QStringLiteral("500"));
    parser.addOption(roundsOption);
    parser.addOption(rowsOption);
    parser.addOption(combosOption);
    parser.process(app);
    const int rounds = std::max(1, parser.value(roundsOption).toInt());
    const int rows = std::max(1, parser.value(rowsOption).toInt());
    const int count = std::max(1, parser.value(combosOption).toInt());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    // A popup opens in under a millisecond: more rounds for a steady median.
    const auto [kp, qp] = comparePopups(rows, std::max(rounds, 31));
    std::printf("show popup until painted, %d rows, KaComboBox: %8.2f ms\n", rows, kp);
    std::printf("show popup until painted, %d rows, QComboBox:  %8.2f ms\n", rows, qp);
    std::printf("ratio: %.3f (bar: at most 1.5)\n\n", kp / qp);

    std::vector<double> kaSwitch, plainSwitch;
    for (int pass = 0; pass < 3; ++pass) {
        kaSwitch.push_back(measureKaSwitch(count, rounds));
        plainSwitch.push_back(measurePaletteSwitch(count, rounds));
    }
    const double ks = bench::median(kaSwitch);
    const double qs = bench::median(plainSwitch);
    std::printf("theme switch, %d KaComboBoxes: %8.2f ms (updateSolvaneThemes + queued slots + repaint)\n",
                count, ks);
    std::printf("palette switch, %d QComboBoxes: %8.2f ms (QApplication::setPalette + repaint)\n", count, qs);
    std::printf("ratio: %.3f (reported, no bar)\n", ks / qs);
    return 0;
}
