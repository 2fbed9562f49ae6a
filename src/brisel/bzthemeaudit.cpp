#include "bzthemeaudit.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

QStringList segmentsOf(const QString& name) {
    return name.split(QLatin1Char('-'));
}

int commonPrefix(const QStringList& a, const QStringList& b) {
    int n = 0;
    while (n < a.size() && n < b.size() && a.at(n) == b.at(n))
        ++n;
    return n;
}

int sharedSegments(const QStringList& a, const QStringList& b) {
    QSet<QString> sa(a.cbegin(), a.cend());
    const QSet<QString> sb(b.cbegin(), b.cend());
    return int(sa.intersect(sb).size());
}

double channel(int c) {
    const double v = c / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

const char kSurface[] = "panel-primary-background";

} // namespace

namespace BzThemeAudit {

bool isBackgroundName(const QString& name) {
    const QStringList segs = segmentsOf(name);
    return std::any_of(segs.cbegin() + 1, segs.cend(), [](const QString& s) {
        return s.endsWith(QLatin1String("background"), Qt::CaseInsensitive);
    });
}

bool isForegroundName(const QString& name) {
    const QStringList segs = segmentsOf(name);
    if (segs.size() < 2 || isBackgroundName(name))
        return false;
    static const char* const nonForeground[] = {"background", "border",   "outline", "divider",
                                                "separator",  "gradient", "track",   "shadow"};
    const QString last = segs.last().toLower();
    for (const char* word : nonForeground) {
        if (last.contains(QLatin1String(word)))
            return false;
    }
    return std::any_of(segs.cbegin() + 1, segs.cend(), [](const QString& s) {
        const QString l = s.toLower();
        return l.contains(QLatin1String("text")) || l.contains(QLatin1String("icon"));
    });
}

QList<ContrastPair> contrastPairs(const QStringList& names) {
    QHash<QString, QStringList> backgroundsByFamily;
    for (const QString& name : names) {
        if (isBackgroundName(name))
            backgroundsByFamily[name.section(QLatin1Char('-'), 0, 0)].append(name);
    }
    QList<ContrastPair> pairs;
    for (const QString& name : names) {
        if (!isForegroundName(name))
            continue;
        const QStringList candidates = backgroundsByFamily.value(name.section(QLatin1Char('-'), 0, 0));
        if (candidates.isEmpty())
            continue;
        const QStringList fg = segmentsOf(name);
        const QString* best = nullptr;
        std::tuple<int, int, int> bestKey;
        for (const QString& bg : candidates) {
            const QStringList bs = segmentsOf(bg);
            // Larger is better: prefix, shared segments, then fewer segments.
            const std::tuple<int, int, int> key(commonPrefix(fg, bs), sharedSegments(fg, bs),
                                                -int(bs.size()));
            if (!best || key > bestKey || (key == bestKey && bg.toUtf8() < best->toUtf8())) {
                best = &bg;
                bestKey = key;
            }
        }
        pairs.append({name, *best, 0.0});
    }
    return pairs;
}

double relativeLuminance(const QColor& color) {
    const QColor c = color.toRgb();
    return 0.2126 * channel(c.red()) + 0.7152 * channel(c.green()) + 0.0722 * channel(c.blue());
}

double contrastRatio(const QColor& a, const QColor& b) {
    const double la = relativeLuminance(a);
    const double lb = relativeLuminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor composeOver(const QColor& top, const QColor& bottom) {
    const double a = top.alphaF();
    auto mix = [a](int t, int b) {
        return int(std::lround(t * a + b * (1.0 - a)));
    };
    return QColor(mix(top.red(), bottom.red()), mix(top.green(), bottom.green()),
                  mix(top.blue(), bottom.blue()));
}

double requiredRatio(const BzTheme& theme) {
    return theme.isHighContrast() ? 7.0 : 4.5;
}

QList<ContrastPair> measure(const BzTheme& theme, const QList<ContrastPair>& pairs) {
    const QColor surface = theme.colorSet(QLatin1String(kSurface)).normal();
    const QColor opaqueSurface = surface.isValid() ? composeOver(surface, Qt::white) : QColor(Qt::white);
    QList<ContrastPair> measured;
    for (const ContrastPair& pair : pairs) {
        if (!theme.contains(pair.foreground) || !theme.contains(pair.background))
            continue;
        const QColor bg = composeOver(theme.colorSet(pair.background).normal(), opaqueSurface);
        const QColor fg = composeOver(theme.colorSet(pair.foreground).normal(), bg);
        measured.append({pair.foreground, pair.background, contrastRatio(fg, bg)});
    }
    std::sort(measured.begin(), measured.end(),
              [](const ContrastPair& a, const ContrastPair& b) { return a.ratio < b.ratio; });
    return measured;
}

Report auditJson(const QByteArray& json, const QStringList& knownNames) {
    Report report;
    const std::optional<BzTheme> theme = BzTheme::fromJson(json, &report.malformed);
    if (!theme)
        return report;
    report.parsed = true;
    const QSet<QString> known(knownNames.cbegin(), knownNames.cend());
    for (const QString& name : knownNames) {
        if (!theme->contains(name))
            report.missing.append(name);
    }
    for (const QString& name : theme->names()) {
        if (!known.contains(name))
            report.unknown.append(name);
    }
    const double required = requiredRatio(*theme);
    for (const ContrastPair& pair : measure(*theme, contrastPairs(knownNames))) {
        if (pair.ratio < required)
            report.lowContrast.append(pair);
    }
    return report;
}

} // namespace BzThemeAudit
