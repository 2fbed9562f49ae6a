// Cost of a theme switch over 2,000 visible base-layer widgets, against the
// plain-Qt way of restyling 2,000 QPushButtons with setStyleSheet, measured
// in the same run. Prints both medians and their ratio.
//
//   QT_QPA_PLATFORM=offscreen ./bench_themeswitch [--rounds N] [--widgets N]

#include "benchutils.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "bzwidget.h"
#include "kalabelbase.h"
#include "karvexutils.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

// Counts style-sheet applications anywhere in the application.
class StyleChangeCounter : public QObject {
public:
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::StyleChange)
            ++count;
        return false;
    }
};

// Small widgets, 50 to a row.
const bench::GridShape kShape{50, 1, QSize(1600, 1000)};

double measureBase(int count, int rounds) {
    auto window = bench::makeGrid(
        count,
        [](int i, QWidget* parent) -> QWidget* {
            BzCSSData data;
            if (i % 2) {
                auto* label = new KaLabelBase(QStringLiteral("Label %1").arg(i), parent);
                data.textColorSet = QStringLiteral("label-primary-text");
                label->setCSS(data);
                return label;
            }
            auto* box = new BzWidget(parent);
            box->setMinimumSize(12, 12);
            data.backgroundColorSet = QStringLiteral("button-secondary-background");
            data.borderColorSet = QStringLiteral("button-secondary-border");
            data.setBorders(true);
            data.borderRadius = 4;
            box->setCSS(data);
            return box;
        },
        kShape);
    return bench::timeThemeSwitches(window.get(), rounds);
}

double measurePlain(int count, int rounds) {
    std::vector<QPushButton*> buttons;
    auto window = bench::makeGrid(
        count,
        [&](int i, QWidget* parent) -> QWidget* {
            auto* button = new QPushButton(QStringLiteral("B%1").arg(i), parent);
            buttons.push_back(button);
            return button;
        },
        kShape);
    std::vector<double> times;
    for (int r = 0; r < rounds; ++r) {
        // The same colours the base widgets get, written out by hand.
        const auto type = r % 2 ? BzThemeUtils::Light : BzThemeUtils::Dark;
        const QString sheet =
            QStringLiteral(
                "QPushButton { background-color: %1; border: 1px solid %2; border-radius: 4px; color: %3; }")
                .arg(
                    BzThemeUtils::colorToCss(
                        BzThemeUtils::getColorSet("button-secondary-background", type).normal()),
                    BzThemeUtils::colorToCss(
                        BzThemeUtils::getColorSet("button-secondary-border", type).normal()),
                    BzThemeUtils::colorToCss(BzThemeUtils::getColorSet("label-primary-text", type).normal()));
        QElapsedTimer timer;
        timer.start();
        for (QPushButton* b : buttons)
            b->setStyleSheet(sheet);
        QCoreApplication::processEvents();
        window->repaint();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    return bench::median(times);
}

int styleSheetCallsOnReapply(int count) {
    auto window = bench::makeGrid(
        count,
        [](int i, QWidget* parent) -> QWidget* {
            auto* label = new KaLabelBase(QStringLiteral("L%1").arg(i), parent);
            // Half records, half free templates that do need Qt's style sheets.
            if (i % 2)
                label->setCSS(QStringLiteral("QLabel { color: $(label-primary-text); padding: 1px; }"));
            else
                BzThemeUtils::setWidgetCSS(label,
                                           QStringLiteral("QLabel { color: $(label-secondary-text); }"));
            return label;
        },
        kShape);
    StyleChangeCounter counter;
    qApp->installEventFilter(&counter);
    KarvexUtils::updateSolvaneThemes();
    QCoreApplication::processEvents();
    qApp->removeEventFilter(&counter);
    return counter.count;
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    QCommandLineOption roundsOption(QStringLiteral("rounds"), QStringLiteral("Theme switches per side."),
                                    QStringLiteral("n"), QStringLiteral("9"));
    QCommandLineOption widgetsOption(QStringLiteral("widgets"), QStringLiteral("Widgets per side."),
                                     QStringLiteral("n"), QStringLiteral("2000"));
    parser.addOption(roundsOption);
    parser.addOption(widgetsOption);
    parser.process(app);
    const int rounds = std::max(1, parser.value(roundsOption).toInt());
    const int widgets = std::max(1, parser.value(widgetsOption).toInt());

    // Alternate the sides so that drift on a noisy machine hits both.
    std::vector<double> base, plain;
    for (int pass = 0; pass < 3; ++pass) {
        base.push_back(measureBase(widgets, rounds));
        plain.push_back(measurePlain(widgets, rounds));
    }
    const double b = bench::median(base);
    const double p = bench::median(plain);
    std::printf(
        "theme switch, %d base-layer widgets: %8.2f ms (updateSolvaneThemes + queued slots + repaint)\n",
        widgets, b);
    std::printf("restyle, %d QPushButtons:           %8.2f ms (setStyleSheet + repaint)\n", widgets, p);
    std::printf("ratio: %.3f (bar: at most 0.35)\n", b / p);
    const int calls = styleSheetCallsOnReapply(widgets);
    std::printf("style-sheet applications when re-applying the current theme: %d (bar: 0)\n", calls);
    return 0;
}
