// Cost of the avatar factory and view against plain Qt, in the same run:
//  1. a Medium initials avatar with presence from KaPixmapLoader::getAvatar
//     against drawing the same picture by hand into a QPixmap (a QPainter
//     circle, the initials, a filled circle for the badge) (bar: at most 2
//     times). The initials change with every picture, more of them than the
//     loader keeps finished pictures for, so each request is composed;
//     the same request again is also timed, for information;
//  2. creating, laying out and painting N KaAvatarViews on one loader, each
//     with initials of its own, against N QLabels showing one prepared
//     pixmap (bar: at most 4 times: every view composes its own picture);
//  3. overlay renders per theme switch over the N views: the shared loader
//     renders once for all of them (bar: at most 1).
//
//   QT_QPA_PLATFORM=offscreen ./bench_avatars [--rounds N] [--views N] [--avatars N]

#include "benchutils.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "fontutils.h"
#include "kaavatarview.h"
#include "kapixmaploader.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPainter>
#include <QStyleFactory>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

KaPixmapLoader* g_loader = nullptr;
const QPixmap* g_prepared = nullptr;

KaAvatarConfig mediumWithPresence() {
    KaAvatarConfig config;
    config.size = KaAvatarEnum::Medium;
    config.presence = KaAvatarEnum::Active;
    config.avatarType = KaAvatarEnum::InitialsWithBackground;
    config.initials = QStringLiteral("ak");
    return config;
}

struct HandColours {
    QColor background;
    QColor text;
    QColor dot;
};

// The plain way: the same circle, initials and badge dot, drawn directly.
QPixmap drawByHand(const HandColours& colours, const QFont& font, const QString& initials) {
    QPixmap picture(51, 48);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.background);
    painter.drawEllipse(QRect(0, 0, 48, 48));
    painter.setPen(colours.text);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, 51, 48), Qt::AlignCenter, initials);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.dot);
    painter.drawEllipse(QRect(39, 37, 8, 8));
    return picture;
}

double timeLoop(int count, const std::function<void(int)>& body) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < count; ++i)
        body(i);
    return timer.nsecsElapsed() / 1e6;
}

// 676 different two-letter initials.
QString initialsOf(int i) {
    const int n = i % (26 * 26);
    const QChar letters[] = {QChar(u'A' + n / 26), QChar(u'A' + n % 26)};
    return QString(letters, 2);
}

QWidget* makeView(int i, QWidget* parent) {
    auto* view = new KaAvatarView(parent, g_loader, KaAvatarEnum::Active, KaAvatarEnum::Medium);
    view->setAvatarInitials(initialsOf(i));
    return view;
}

QWidget* makeLabel(int, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setPixmap(*g_prepared);
    return label;
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const std::vector<int> counts = bench::parseCounts(
        app, {{"views", "Views per side.", 1000}, {"avatars", "Pictures per timed loop.", 2000}});
    const int rounds = counts[0];
    const int count = counts[1];
    const int avatars = counts[2];
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));

    KaPixmapLoader loader;
    g_loader = &loader;
    const KaAvatarConfig config = mediumWithPresence();
    const QPixmap prepared = loader.getAvatar(config);
    g_prepared = &prepared;

    // Colours read once from the theme, as a hand-written widget would.
    const HandColours colours{BzThemeUtils::getColorSet("avatar-color-avatar-background-default").normal(),
                              BzThemeUtils::getColorSet("avatar-color-avatar-text-default").normal(),
                              BzThemeUtils::getColorSet("avatar-presence-icon-active").normal()};
    QFont font = FontUtils::getFontByPixelSize(FontUtils::Bold, 16);
    font.setWeight(QFont::Normal);
    // Warm-up: glyph caches, icon renders.
    drawByHand(colours, font, initialsOf(0));
    loader.getAvatar(config);

    std::vector<double> ours, plain, repeated;
    KaAvatarConfig varied = config;
    for (int r = 0; r < rounds; ++r) {
        ours.push_back(timeLoop(avatars, [&](int i) {
            varied.initials = initialsOf(i);
            loader.getAvatar(varied);
        }));
        plain.push_back(timeLoop(avatars, [&](int i) { drawByHand(colours, font, initialsOf(i)); }));
        repeated.push_back(timeLoop(avatars, [&](int) { loader.getAvatar(config); }));
    }
    const double ka = bench::median(ours);
    const double hand = bench::median(plain);
    std::printf("%d Medium avatars with presence, getAvatar:  %8.2f ms\n", avatars, ka);
    std::printf("%d of the same drawn by hand (QPainter):     %8.2f ms\n", avatars, hand);
    std::printf("info: %d repeats of one request, getAvatar: %8.2f ms\n", avatars, bench::median(repeated));
    std::printf("ratio: %.3f (bar: at most 2)\n\n", ka / hand);

    const auto [kc, qc] = bench::compareCreation(count, rounds, makeView, makeLabel);
    std::printf("create + lay out + paint, %d KaAvatarViews: %8.2f ms\n", count, kc);
    std::printf("create + lay out + paint, %d QLabels with a prepared pixmap: %8.2f ms\n", count, qc);
    std::printf("ratio: %.3f (bar: at most 4)\n\n", kc / qc);

    auto window = bench::makeGrid(count, makeView);
    int renders = 0;
    QObject::connect(&loader, &KaPixmapLoader::overlaysUpdated, [&renders] { ++renders; });
    const double switchTime = bench::timeThemeSwitches(window.get(), rounds);
    std::printf("theme switch, %d KaAvatarViews on one loader: %8.2f ms, %d overlay renders in %d switches\n",
                count, switchTime, renders, rounds);
    std::printf("ratio: %.3f (bar: at most 1)\n", double(renders) / rounds);
    window.reset();
    bench::flushEvents();
    return 0;
}
