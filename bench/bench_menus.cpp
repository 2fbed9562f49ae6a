// Cost of KaMenu against plain QMenus, in the same run:
//  1. a menu of N entries (title, sub-text, left icon) built, popped up and
//     painted once, against a QMenu of N QWidgetActions each holding a plain
//     QWidget with an icon QLabel and two text QLabels in a layout (bar: at
//     most 1.5 times);
//  2. the same for a 20-entry KaMenu against a 20-entry QMenu of plain
//     QActions with icons (bar: at most 3 times; the N-entry ratio against
//     plain QActions is reported too);
//  3. soak: pop-up/close cycles of a delete-on-close KaMenu with a sub-menu
//     and a popover entry: widget count and resident memory before and after
//     (bar: the widget count stays, resident memory grows by at most 8 MiB).
//
//   QT_QPA_PLATFORM=offscreen ./bench_menus [--rounds N] [--entries N] [--cycles N]

#include "benchutils.h"
#include "bzthememanager.h"
#include "kamenu.h"
#include "kamenuaction.h"
#include "kamenuitemdata.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QStyleFactory>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <vector>

namespace {

const char* const kIcons[] = {"chat-filled", "meet-bold", "search-bold", "keyboard-bold", "show-bold"};

QString iconPath(int i) {
    return QStringLiteral(":/Resources/%1.svg").arg(QLatin1String(kIcons[i % 5]));
}

QString titleOf(int i) {
    return QStringLiteral("Entry number %1").arg(i);
}

QString subTextOf(int i) {
    return QStringLiteral("Details of entry %1").arg(i);
}

// Counts paints of a menu, so that a measurement ends once it is on screen.
class PaintCounter : public QObject {
public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

QMenu* makeKaMenu(int entries) {
    auto* menu = new KaMenu;
    for (int i = 0; i < entries; ++i) {
        KaMenuItemData data;
        data.title = titleOf(i);
        data.subText = subTextOf(i);
        data.leftIcon = QLatin1String("qrc") + iconPath(i);
        menu->addMenuItem(data);
    }
    return menu;
}

QMenu* makeWidgetActionMenu(int entries) {
    auto* menu = new QMenu;
    for (int i = 0; i < entries; ++i) {
        auto* row = new QWidget;
        auto* layout = new QHBoxLayout(row);
        layout->setContentsMargins(12, 3, 12, 3);
        layout->setSpacing(12);
        auto* icon = new QLabel(row);
        icon->setPixmap(QIcon(iconPath(i)).pixmap(16, 16));
        layout->addWidget(icon);
        auto* texts = new QVBoxLayout;
        texts->setSpacing(0);
        texts->addWidget(new QLabel(titleOf(i), row));
        texts->addWidget(new QLabel(subTextOf(i), row));
        layout->addLayout(texts);
        auto* action = new QWidgetAction(menu);
        action->setDefaultWidget(row);
        menu->addAction(action);
    }
    return menu;
}

QMenu* makeActionMenu(int entries) {
    auto* menu = new QMenu;
    for (int i = 0; i < entries; ++i)
        menu->addAction(QIcon(iconPath(i)), titleOf(i));
    return menu;
}

// Build, pop up and wait for the first paint; the teardown is not timed.
double timeMenu(QMenu* (*make)(int), int entries) {
    PaintCounter counter;
    QElapsedTimer timer;
    timer.start();
    QMenu* menu = make(entries);
    menu->installEventFilter(&counter);
    menu->popup(QPoint(20, 20));
    while (counter.paints == 0)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    const double ms = timer.nsecsElapsed() / 1e6;
    menu->removeEventFilter(&counter);
    menu->close();
    delete menu;
    bench::flushEvents();
    return ms;
}

std::pair<double, double> compare(QMenu* (*ours)(int), QMenu* (*plain)(int), int entries, int rounds) {
    timeMenu(ours, entries);
    timeMenu(plain, entries);
    std::vector<double> a, b;
    for (int r = 0; r < rounds; ++r) {
        a.push_back(timeMenu(ours, entries));
        b.push_back(timeMenu(plain, entries));
    }
    return {bench::median(a), bench::median(b)};
}

double residentMiB() {
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = statm.readAll().split(' ');
    if (fields.size() < 2)
        return 0;
    return fields.at(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

void soakCycle() {
    auto* menu = new KaMenu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* sub = new KaMenu(menu);
    KaMenuItemData inner;
    inner.title = QStringLiteral("Inner");
    sub->addMenuItem(inner);
    KaMenuItemData more;
    more.title = QStringLiteral("More");
    menu->addMenu(more, sub);
    KaMenuItemData withPopup;
    withPopup.title = QStringLiteral("Forward");
    withPopup.popupText = QStringLiteral("Sends a copy");
    QAction* popupEntry = menu->addMenuItemWithPopup(withPopup);
    menu->addSeparator();
    KaMenuItemData plain;
    plain.title = QStringLiteral("Reply");
    plain.leftIcon = QLatin1String("qrc") + iconPath(0);
    menu->addMenuItem(plain);
    menu->popupAt(QPoint(100, 100));
    menu->setActiveAction(popupEntry);
    QCoreApplication::processEvents();
    menu->close();
    bench::flushEvents();
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const std::vector<int> counts = bench::parseCounts(app, {{"entries", "Entries of the large menu.", 100},
                                                             {"cycles", "Soak pop-up/close cycles.", 10000}});
    const int rounds = std::max(counts[0], 9);
    const int entries = counts[1];
    const int cycles = counts[2];
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    const auto [k1, w1] = compare(makeKaMenu, makeWidgetActionMenu, entries, rounds);
    std::printf("%d entries, build + pop up + paint, KaMenu:                %8.2f ms\n", entries, k1);
    std::printf("%d entries, build + pop up + paint, QMenu of QWidgetActions: %8.2f ms\n", entries, w1);
    std::printf("ratio: %.3f (bar: at most 1.5)\n\n", k1 / w1);

    const auto [k2, p2] = compare(makeKaMenu, makeActionMenu, 20, rounds);
    std::printf("20 entries, build + pop up + paint, KaMenu:           %8.2f ms\n", k2);
    std::printf("20 entries, build + pop up + paint, QMenu of QActions: %8.2f ms\n", p2);
    std::printf("ratio: %.3f (bar: at most 3)\n", k2 / p2);
    const auto [k3, p3] = compare(makeKaMenu, makeActionMenu, entries, rounds);
    std::printf("%d entries against QActions: %.2f ms / %.2f ms, ratio %.3f (reported, no bar)\n\n", entries,
                k3, p3, k3 / p3);

    soakCycle();
    const qsizetype widgetsBefore = QApplication::allWidgets().size();
    const double rssBefore = residentMiB();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < cycles; ++i)
        soakCycle();
    const qsizetype widgetsAfter = QApplication::allWidgets().size();
    const double rssAfter = residentMiB();
    std::printf(
        "soak, %d pop-up/close cycles in %.0f ms: widgets %lld -> %lld, resident %.1f MiB -> %.1f MiB\n",
        cycles, timer.nsecsElapsed() / 1e6, qlonglong(widgetsBefore), qlonglong(widgetsAfter), rssBefore,
        rssAfter);
    std::printf("widget growth: %lld (bar: at most 0)\n", qlonglong(widgetsAfter - widgetsBefore));
    std::printf("resident growth: %.1f MiB (bar: at most 8)\n", rssAfter - rssBefore);
    return 0;
}
