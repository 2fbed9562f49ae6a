// Cost of the themed label against a plain QLabel, in the same run:
//  1. creating, laying out and painting once N KaLabels against N QLabels
//     with the same texts and font (bar: at most 1.3 times);
//  2. a theme switch over N shown KaLabels (updateSolvaneThemes, the queued
//     onThemeChanged() calls and one repaint) against giving N shown QLabels
//     in a Fusion-styled window a new application palette and one repaint
//     (bar: at most 1.2 times);
//  3. the heap each of 5,000 shown KaLabels holds, against a shown QLabel
//     (bar: at most 1.5 times);
//  4. creating, laying out and painting once N KaEmojiLabels with the same
//     plain texts against N QLabels (bar: at most 1.3 times): menus make four
//     per entry, so text without emoji must cost what a KaLabel costs.
// Prints the medians and their ratios, and the bytes per label.
//
//   QT_QPA_PLATFORM=offscreen ./bench_labels [--rounds N] [--labels N] [--heap N]

#include "benchutils.h"
#include "bzfont.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kaemojilabel.h"
#include "kalabel.h"
#include "karvexutils.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QLabel>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

// Texts of a few lengths, as a form or a list shows them.
QString textOf(int i) {
    switch (i % 4) {
    case 0:
        return QStringLiteral("Name %1").arg(i);
    case 1:
        return QStringLiteral("Meeting room %1").arg(i);
    case 2:
        return QStringLiteral("%1 unread").arg(i);
    default:
        return QStringLiteral("Shared with %1 people").arg(i);
    }
}

QWidget* makeKaLabel(int i, QWidget* parent) {
    return new KaLabel(textOf(i), parent);
}

QWidget* makeEmojiLabel(int i, QWidget* parent) {
    return new KaEmojiLabel(textOf(i), parent);
}

// The font KaLabel uses, so that both sides lay out the same glyphs.
QWidget* makePlainLabel(int i, QWidget* parent) {
    auto* label = new QLabel(textOf(i), parent);
    label->setFont(BzFont(BzFont::Body));
    return label;
}

// The palette a host would build from the same theme data.
QPalette paletteFor(BzThemeUtils::AppThemeType type, const QPalette& base) {
    QPalette palette = base;
    const auto normal = [type](const char* set) {
        return BzThemeUtils::getColorSet(set, type).normal();
    };
    palette.setColor(QPalette::WindowText, normal("label-primary-text"));
    palette.setColor(QPalette::Text, normal("label-primary-text"));
    palette.setColor(QPalette::Window, normal("panel-primary-background"));
    palette.setColor(QPalette::Base, normal("panel-primary-background"));
    return palette;
}

double measureKaLabelSwitch(int count, int rounds) {
    auto window = bench::makeGrid(count, makeKaLabel);
    return bench::timeThemeSwitches(window.get(), rounds);
}

double measurePaletteSwitch(int count, int rounds) {
    const QPalette original = QApplication::palette();
    auto window = bench::makeGrid(count, makePlainLabel);
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
    QCommandLineOption labelsOption(QStringLiteral("labels"), QStringLiteral("Labels per side."),
                                    QStringLiteral("n"), QStringLiteral("1000"));
    QCommandLineOption heapOption(QStringLiteral("heap"),
                                  QStringLiteral("Labels per side for the heap measurement."),
                                  QStringLiteral("n"), QStringLiteral("5000"));
    parser.addOption(roundsOption);
    parser.addOption(labelsOption);
    parser.addOption(heapOption);
    parser.process(app);
    const int rounds = std::max(1, parser.value(roundsOption).toInt());
    const int count = std::max(1, parser.value(labelsOption).toInt());
    const int heapCount = std::max(1, parser.value(heapOption).toInt());
    // Both sides in the same style, the one the plain side is compared in.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    const auto [kc, qc] = bench::compareCreation(count, rounds, makeKaLabel, makePlainLabel);
    std::printf("create + lay out + paint, %d KaLabels: %8.2f ms\n", count, kc);
    std::printf("create + lay out + paint, %d QLabels:  %8.2f ms\n", count, qc);
    std::printf("ratio: %.3f (bar: at most 1.3)\n\n", kc / qc);

    std::vector<double> kaSwitch, plainSwitch;
    for (int pass = 0; pass < 3; ++pass) {
        kaSwitch.push_back(measureKaLabelSwitch(count, rounds));
        plainSwitch.push_back(measurePaletteSwitch(count, rounds));
    }
    const double ks = bench::median(kaSwitch);
    const double qs = bench::median(plainSwitch);
    std::printf("theme switch, %d KaLabels: %8.2f ms (updateSolvaneThemes + queued slots + repaint)\n", count,
                ks);
    std::printf("palette switch, %d QLabels: %8.2f ms (QApplication::setPalette + repaint)\n", count, qs);
    std::printf("ratio: %.3f (bar: at most 1.2)\n\n", ks / qs);

    const auto [kh, qh] = bench::compareHeap(heapCount, makeKaLabel, makePlainLabel);
    std::printf("info: heap per shown label, %d each: KaLabel %.0f bytes, QLabel %.0f bytes\n", heapCount, kh,
                qh);
    std::printf("ratio: %.3f (bar: at most 1.5)\n\n", kh / qh);

    const auto [ec, eq] = bench::compareCreation(count, rounds, makeEmojiLabel, makePlainLabel);
    std::printf("create + lay out + paint, %d KaEmojiLabels (plain text): %8.2f ms\n", count, ec);
    std::printf("create + lay out + paint, %d QLabels:                    %8.2f ms\n", count, eq);
    std::printf("ratio: %.3f (bar: at most 1.3)\n", ec / eq);
    return 0;
}
