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
const bench::PaletteRoles kLabelPalette = {{QPalette::WindowText, "label-primary-text"},
                                           {QPalette::Text, "label-primary-text"},
                                           {QPalette::Window, "panel-primary-background"},
                                           {QPalette::Base, "panel-primary-background"}};

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const std::vector<int> counts =
        bench::parseCounts(app, {{"labels", "Labels per side.", 1000},
                                 {"heap", "Labels per side for the heap measurement.", 5000}});
    const int rounds = counts[0];
    const int count = counts[1];
    const int heapCount = counts[2];
    // Both sides in the same style, the one the plain side is compared in.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    const auto [kc, qc] = bench::compareCreation(count, rounds, makeKaLabel, makePlainLabel);
    std::printf("create + lay out + paint, %d KaLabels: %8.2f ms\n", count, kc);
    std::printf("create + lay out + paint, %d QLabels:  %8.2f ms\n", count, qc);
    std::printf("ratio: %.3f (bar: at most 1.3)\n\n", kc / qc);

    const auto [ks, qs] = bench::compareSwitches(
        [&] { return bench::themeSwitchOver(count, makeKaLabel, rounds); },
        [&] { return bench::paletteSwitchOver(count, makePlainLabel, kLabelPalette, rounds); });
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
