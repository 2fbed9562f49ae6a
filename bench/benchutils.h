#pragma once

// What the benchmarks share: medians, a shown and painted grid of widgets,
// and the heap a shown widget holds.

#include <bzthemeutils.h>

#include <QCoreApplication>
#include <QPalette>
#include <QSize>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace bench {

// Makes widget number i as a child of the given window.
using MakeWidget = std::function<QWidget*(int, QWidget*)>;

struct GridShape {
    int columns = 25;
    int spacing = 2;
    // The window is at least this large, and larger where the widgets' size
    // hints need it, so that no text is elided.
    QSize minimumSize{1600, 1000};
};

double median(std::vector<double> values);

// Builds, lays out, shows and paints a window of `count` widgets.
std::unique_ptr<QWidget> makeGrid(int count, const MakeWidget& make, const GridShape& shape = {});

// Milliseconds makeGrid() takes; the window is torn down untimed.
double timeCreation(int count, const MakeWidget& make, const GridShape& shape = {});

// Heap bytes each widget of a shown, painted grid holds, for one grid.
// Large blocks (the window's backing store, which both sides of a
// comparison pay once) are kept out of the count.
double heapPerWidget(int count, const MakeWidget& make, const GridShape& shape = {});

// Medians of `rounds` creations (timeCreation) of each side, alternating the
// sides so that drift on a noisy machine hits both, after a small warm-up
// (fonts, icons and theme caches are process-wide and paid once).
std::pair<double, double> compareCreation(int count, int rounds, const MakeWidget& ours,
                                          const MakeWidget& plain);

// Medians of three heapPerWidget() rounds of each side in a wide grid, after
// a warm-up at full size (the first grid of a size leaves process-wide
// tables grown, and later grids reuse that room).
std::pair<double, double> compareHeap(int count, const MakeWidget& ours, const MakeWidget& plain);

// Median milliseconds of `rounds` theme switches over `window`, alternating
// dark and light: the host's data-only switch, updateSolvaneThemes(), the
// queued slots and the repaint. Ends in the light theme.
double timeThemeSwitches(QWidget* window, int rounds);

// Median milliseconds of theme switches (timeThemeSwitches) over a fresh
// grid of `count` widgets, torn down untimed afterwards.
double themeSwitchOver(int count, const MakeWidget& make, int rounds);

// Which palette role takes the normal colour of which colour set: how a host
// would turn the same theme data into a palette for plain Qt widgets.
using PaletteRoles = std::initializer_list<std::pair<QPalette::ColorRole, const char*>>;
QPalette themePalette(BzThemeUtils::AppThemeType type, const QPalette& base, PaletteRoles roles);

// As themeSwitchOver, for plain widgets: QApplication::setPalette between
// the dark and the light themePalette().
double paletteSwitchOver(int count, const MakeWidget& make, PaletteRoles roles, int rounds);

// Medians of three alternating passes of each side's measurement.
std::pair<double, double> compareSwitches(const std::function<double()>& ours,
                                          const std::function<double()>& plain);

// One count option of a benchmark's command line.
struct CountOption {
    const char* name;
    const char* description;
    int defaultValue;
};
// Parses --rounds (default 7) and `counts`; returns the rounds and then each
// count, every value at least 1.
std::vector<int> parseCounts(const QCoreApplication& app, std::initializer_list<CountOption> counts);

// Deletes what is scheduled for deletion and settles posted events.
void flushEvents();

} // namespace bench
