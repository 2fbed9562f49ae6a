// Cost of the pill button against a QPushButton styled by hand, in the same
// run:
//  1. creating, laying out and painting once N KaPillButtons with icons
//     against N QPushButtons given the same colours, radius and padding in
//     a style sheet (bar: at most 1.5 times);
//  2. a theme switch over those pill buttons (updateSolvaneThemes, the
//     queued onThemeChanged() calls and one repaint) against restyling the
//     QPushButtons with setStyleSheet and one repaint (bar: at most 0.35);
//  3. the heap each of 5,000 shown KaPillButtons with an icon holds, against
//     a shown QPushButton with an icon (bar: at most 2 times).
// Prints the medians and their ratios, and the bytes per button.
//
//   QT_QPA_PLATFORM=offscreen ./bench_buttons [--rounds N] [--buttons N] [--heap N]

#include "benchutils.h"
#include "bzfont.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kapillbutton.h"
#include "karvexutils.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QIcon>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

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

double measurePlainRestyle(int count, int rounds) {
    std::vector<QPushButton*> buttons;
    auto window = bench::makeGrid(count, [&](int i, QWidget* parent) {
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
    return bench::median(times);
}

// The heap comparison: one icon each, no style sheet on the QPushButton (a
// sheet would only add to its side). The QIcon is shared, as a host keeps
// its icons; the pills share theirs through the renderer's cache.
QWidget* makeHeapPill(int i, QWidget* parent) {
    auto* button = new KaPillButton(parent, styleOf(i), KaButtonEnum::Large);
    button->setText(QStringLiteral("Join %1").arg(i));
    button->setLeftIcon(QStringLiteral(":/Resources/meetings-bold.svg"));
    return button;
}

QWidget* makeHeapPlain(int i, QWidget* parent) {
    static const QIcon icon(QStringLiteral(":/Resources/meetings-bold.svg"));
    auto* button = new QPushButton(icon, QStringLiteral("Join %1").arg(i), parent);
    button->setFont(BzFont(BzFont::ButtonLarge));
    return button;
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const std::vector<int> counts =
        bench::parseCounts(app, {{"buttons", "Buttons per side.", 1000},
                                 {"heap", "Buttons per side for the heap measurement.", 5000}});
    const int rounds = counts[0];
    const int count = counts[1];
    const int heapCount = counts[2];
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    const auto makeLightPlain = [](int i, QWidget* p) {
        return makePlain(i, p, BzThemeUtils::Light);
    };
    const auto [pc, qc] = bench::compareCreation(count, rounds, makePill, makeLightPlain);
    std::printf("create + lay out + paint, %d KaPillButtons with icons: %8.2f ms\n", count, pc);
    std::printf("create + lay out + paint, %d styled QPushButtons:      %8.2f ms\n", count, qc);
    std::printf("ratio: %.3f (bar: at most 1.5)\n\n", pc / qc);

    const auto [ps, qs] =
        bench::compareSwitches([&] { return bench::themeSwitchOver(count, makePill, rounds); },
                               [&] { return measurePlainRestyle(count, rounds); });
    std::printf("theme switch, %d KaPillButtons: %8.2f ms (updateSolvaneThemes + queued slots + repaint)\n",
                count, ps);
    std::printf("restyle, %d QPushButtons:       %8.2f ms (setStyleSheet + repaint)\n", count, qs);
    std::printf("ratio: %.3f (bar: at most 0.35)\n\n", ps / qs);

    const auto [ph, qh] = bench::compareHeap(heapCount, makeHeapPill, makeHeapPlain);
    std::printf("info: heap per shown button, %d each: KaPillButton with an icon %.0f bytes, "
                "QPushButton with an icon %.0f bytes\n",
                heapCount, ph, qh);
    std::printf("ratio: %.3f (bar: at most 2)\n", ph / qh);
    return 0;
}
