// Cost of the pill button against a QPushButton styled by hand, in the same
// run:
//  1. creating, laying out and painting once N KaPillButtons with icons
//     against N QPushButtons given the same colours, radius and padding in
//     a style sheet (bar: at most 1.5 times);
//  2. a theme switch over those pill buttons (updateSolvaneThemes, the
//     queued onThemeChanged() calls and one repaint) against restyling the
//     QPushButtons with setStyleSheet and one repaint (bar: at most 0.35).
// Prints the medians and their ratios.
//
//   QT_QPA_PLATFORM=offscreen ./bench_buttons [--rounds N] [--buttons N]

#include "bzfont.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kapillbutton.h"
#include "karvexutils.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

const char* const kThemes[] = {"dark", "light"};
const int kColumns = 25;

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Builds, lays out, shows and paints a window of `count` widgets.
std::unique_ptr<QWidget> makeGrid(int count, const std::function<QWidget*(int, QWidget*)>& make) {
    auto window = std::make_unique<QWidget>();
    auto* grid = new QGridLayout(window.get());
    grid->setSpacing(2);
    for (int i = 0; i < count; ++i)
        grid->addWidget(make(i, window.get()), i / kColumns, i % kColumns);
    // Room for every button at its size hint, so that no text is elided.
    window->resize(window->sizeHint().expandedTo(QSize(1600, 1000)));
    window->show();
    QCoreApplication::processEvents();
    window->repaint();
    return window;
}

// Half primary, half secondary: both a borderless and a bordered face.
KaButtonEnum::Style styleOf(int i) {
    return i % 2 ? KaButtonEnum::Secondary : KaButtonEnum::Primary;
}

QWidget* makePill(int i, QWidget* parent) {
    auto* button = new KaPillButton(parent, styleOf(i), KaButtonEnum::Large);
    button->setText(QStringLiteral("Join %1").arg(i));
    button->setLeftIcon(QStringLiteral(":/Resources/meetings-bold.svg"));
    button->setRightIcon(QStringLiteral(":/Resources/arrow-down_8.svg"));
    return button;
}

// The pill's large-size look written out for Qt's style-sheet engine.
QString plainSheet(int i, BzThemeUtils::AppThemeType type) {
    const bool secondary = styleOf(i) == KaButtonEnum::Secondary;
    const auto colour = [type](const char* set) {
        return BzThemeUtils::colorToCss(BzThemeUtils::getColorSet(set, type).normal());
    };
    const QString border =
        secondary ? QStringLiteral("1px solid ") + colour("button-secondary-border") : QStringLiteral("none");
    return QStringLiteral("QPushButton { background-color: %1; color: %2; border: %3; border-radius: 16px; "
                          "padding-left: 12px; padding-right: 12px; }")
        .arg(colour(secondary ? "button-secondary-background" : "button-primary-background"),
             colour(secondary ? "button-secondary-text" : "button-primary-text"), border);
}

QWidget* makePlain(int i, QWidget* parent, BzThemeUtils::AppThemeType type) {
    auto* button = new QPushButton(QStringLiteral("Join %1").arg(i), parent);
    button->setFont(BzFont(BzFont::ButtonLarge));
    button->setFixedHeight(32);
    button->setStyleSheet(plainSheet(i, type));
    return button;
}

double timeCreation(const std::function<QWidget*(int, QWidget*)>& make, int count) {
    QElapsedTimer timer;
    timer.start();
    auto window = makeGrid(count, make);
    const double ms = timer.nsecsElapsed() / 1e6;
    window.reset();
    QCoreApplication::processEvents();
    return ms;
}

double measurePillSwitch(int count, int rounds) {
    auto window = makeGrid(count, makePill);
    std::vector<double> times;
    for (int r = 0; r < rounds; ++r) {
        BzThemeManager::instance()->setCurrentTheme(QLatin1String(kThemes[r % 2]), BzThemeManager::DataOnly);
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

double measurePlainRestyle(int count, int rounds) {
    std::vector<QPushButton*> buttons;
    auto window = makeGrid(count, [&](int i, QWidget* parent) {
        auto* button = static_cast<QPushButton*>(makePlain(i, parent, BzThemeUtils::Light));
        buttons.push_back(button);
        return button;
    });
    std::vector<double> times;
    for (int r = 0; r < rounds; ++r) {
        const auto type = r % 2 ? BzThemeUtils::Light : BzThemeUtils::Dark;
        // The sheets are written before timing, as the theme data is for the pills.
        std::vector<QString> sheets;
        sheets.reserve(buttons.size());
        for (int i = 0; i < int(buttons.size()); ++i)
            sheets.push_back(plainSheet(i, type));
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < int(buttons.size()); ++i)
            buttons[i]->setStyleSheet(sheets[i]);
        QCoreApplication::processEvents();
        window->repaint();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    return median(times);
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    QCommandLineOption roundsOption(QStringLiteral("rounds"), QStringLiteral("Rounds per measurement."),
                                    QStringLiteral("n"), QStringLiteral("7"));
    QCommandLineOption buttonsOption(QStringLiteral("buttons"), QStringLiteral("Buttons per side."),
                                     QStringLiteral("n"), QStringLiteral("1000"));
    parser.addOption(roundsOption);
    parser.addOption(buttonsOption);
    parser.process(app);
    const int rounds = std::max(1, parser.value(roundsOption).toInt());
    const int count = std::max(1, parser.value(buttonsOption).toInt());
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    // Warm-up: fonts, icons and theme caches are process-wide and paid once
    // by whichever side runs first.
    timeCreation(makePill, 50);
    timeCreation([](int i, QWidget* p) { return makePlain(i, p, BzThemeUtils::Light); }, 50);

    // Alternate the sides so that drift on a noisy machine hits both.
    std::vector<double> pillCreate, plainCreate;
    for (int r = 0; r < rounds; ++r) {
        pillCreate.push_back(timeCreation(makePill, count));
        plainCreate.push_back(
            timeCreation([](int i, QWidget* p) { return makePlain(i, p, BzThemeUtils::Light); }, count));
    }
    const double pc = median(pillCreate);
    const double qc = median(plainCreate);
    std::printf("create + lay out + paint, %d KaPillButtons with icons: %8.2f ms\n", count, pc);
    std::printf("create + lay out + paint, %d styled QPushButtons:      %8.2f ms\n", count, qc);
    std::printf("ratio: %.3f (bar: at most 1.5)\n\n", pc / qc);

    std::vector<double> pillSwitch, plainSwitch;
    for (int pass = 0; pass < 3; ++pass) {
        pillSwitch.push_back(measurePillSwitch(count, rounds));
        plainSwitch.push_back(measurePlainRestyle(count, rounds));
    }
    const double ps = median(pillSwitch);
    const double qs = median(plainSwitch);
    std::printf("theme switch, %d KaPillButtons: %8.2f ms (updateSolvaneThemes + queued slots + repaint)\n",
                count, ps);
    std::printf("restyle, %d QPushButtons:       %8.2f ms (setStyleSheet + repaint)\n", count, qs);
    std::printf("ratio: %.3f (bar: at most 0.35)\n", ps / qs);
    return 0;
}
