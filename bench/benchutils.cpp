#include "benchutils.h"

#include "karvexutils.h"

#include "bzthememanager.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QGridLayout>

#include <malloc.h>

#include <algorithm>

namespace bench {

namespace {

// Bytes handed out by malloc and not yet freed, over all arenas. Blocks at
// or above the mmap threshold are not in it.
std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

void fixMmapThreshold() {
    // glibc raises the threshold each time a large mmapped block is freed,
    // so a freed backing store would land in the counted heap next time.
    // A fixed threshold keeps every large block out of the count.
    static const bool fixed = mallopt(M_MMAP_THRESHOLD, 128 * 1024) == 1;
    Q_UNUSED(fixed)
}

} // namespace

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::unique_ptr<QWidget> makeGrid(int count, const MakeWidget& make, const GridShape& shape) {
    auto window = std::make_unique<QWidget>();
    auto* grid = new QGridLayout(window.get());
    grid->setSpacing(shape.spacing);
    for (int i = 0; i < count; ++i)
        grid->addWidget(make(i, window.get()), i / shape.columns, i % shape.columns);
    window->resize(window->sizeHint().expandedTo(shape.minimumSize));
    window->show();
    QCoreApplication::processEvents();
    window->repaint();
    return window;
}

double timeCreation(int count, const MakeWidget& make, const GridShape& shape) {
    QElapsedTimer timer;
    timer.start();
    auto window = makeGrid(count, make, shape);
    const double ms = timer.nsecsElapsed() / 1e6;
    window.reset();
    flushEvents();
    return ms;
}

double heapPerWidget(int count, const MakeWidget& make, const GridShape& shape) {
    fixMmapThreshold();
    flushEvents();
    const std::size_t before = heapInUse();
    auto window = makeGrid(count, make, shape);
    flushEvents();
    const std::size_t after = heapInUse();
    window.reset();
    flushEvents();
    return (double(after) - double(before)) / count;
}

void flushEvents() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

std::pair<double, double> compareCreation(int count, int rounds, const MakeWidget& ours,
                                          const MakeWidget& plain) {
    timeCreation(50, ours);
    timeCreation(50, plain);
    std::vector<double> a, b;
    for (int r = 0; r < rounds; ++r) {
        a.push_back(timeCreation(count, ours));
        b.push_back(timeCreation(count, plain));
    }
    return {median(a), median(b)};
}

std::pair<double, double> compareHeap(int count, const MakeWidget& ours, const MakeWidget& plain) {
    const GridShape shape{50, 2, QSize(1600, 1000)};
    heapPerWidget(count, ours, shape);
    heapPerWidget(count, plain, shape);
    std::vector<double> a, b;
    for (int r = 0; r < 3; ++r) {
        a.push_back(heapPerWidget(count, ours, shape));
        b.push_back(heapPerWidget(count, plain, shape));
    }
    return {median(a), median(b)};
}

double timeThemeSwitches(QWidget* window, int rounds) {
    static const char* const themes[] = {"dark", "light"};
    std::vector<double> times;
    for (int r = 0; r < rounds; ++r) {
        BzThemeManager::instance()->setCurrentTheme(QLatin1String(themes[r % 2]), BzThemeManager::DataOnly);
        QElapsedTimer timer;
        timer.start();
        KarvexUtils::updateSolvaneThemes();
        QCoreApplication::processEvents();
        window->repaint();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
    return median(times);
}

// Median milliseconds of `rounds` QApplication::setPalette switches over
// `window`, alternating `first` and `second`, with the repaint. Restores the
// application palette it found.
static double timePaletteSwitches(QWidget* window, const QPalette& first, const QPalette& second,
                                  int rounds) {
    const QPalette original = QApplication::palette();
    const QPalette* palettes[] = {&first, &second};
    std::vector<double> times;
    for (int r = 0; r < rounds; ++r) {
        QElapsedTimer timer;
        timer.start();
        QApplication::setPalette(*palettes[r % 2]);
        QCoreApplication::processEvents();
        window->repaint();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    QApplication::setPalette(original);
    return median(times);
}

double themeSwitchOver(int count, const MakeWidget& make, int rounds) {
    auto window = makeGrid(count, make);
    const double ms = timeThemeSwitches(window.get(), rounds);
    window.reset();
    flushEvents();
    return ms;
}

QPalette themePalette(BzThemeUtils::AppThemeType type, const QPalette& base, PaletteRoles roles) {
    QPalette palette = base;
    for (const auto& [role, set] : roles)
        palette.setColor(role, BzThemeUtils::getColorSet(set, type).normal());
    return palette;
}

double paletteSwitchOver(int count, const MakeWidget& make, PaletteRoles roles, int rounds) {
    const QPalette original = QApplication::palette();
    // Built before timing, as the theme data is for the library's side.
    const QPalette dark = themePalette(BzThemeUtils::Dark, original, roles);
    const QPalette light = themePalette(BzThemeUtils::Light, original, roles);
    auto window = makeGrid(count, make);
    const double ms = timePaletteSwitches(window.get(), dark, light, rounds);
    window.reset();
    flushEvents();
    return ms;
}

std::pair<double, double> compareSwitches(const std::function<double()>& ours,
                                          const std::function<double()>& plain) {
    std::vector<double> a, b;
    for (int pass = 0; pass < 3; ++pass) {
        a.push_back(ours());
        b.push_back(plain());
    }
    return {median(a), median(b)};
}

std::vector<int> parseCounts(const QCoreApplication& app, std::initializer_list<CountOption> counts) {
    QCommandLineParser parser;
    parser.addHelpOption();
    std::vector<QCommandLineOption> options;
    options.emplace_back(QStringLiteral("rounds"), QStringLiteral("Rounds per measurement."),
                         QStringLiteral("n"), QStringLiteral("7"));
    for (const CountOption& count : counts)
        options.emplace_back(QString::fromLatin1(count.name), QString::fromLatin1(count.description),
                             QStringLiteral("n"), QString::number(count.defaultValue));
    for (const QCommandLineOption& option : options)
        parser.addOption(option);
    parser.process(app);
    std::vector<int> values;
    for (const QCommandLineOption& option : options)
        values.push_back(std::max(1, parser.value(option).toInt()));
    return values;
}

} // namespace bench
