#include "bzthemeaudit.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

// The pairing words, surface and ratios: one data file shared with the theme
// generator, so that both always pair the same names.
struct PairingRule {
    QStringList backgroundEndings;
    QStringList foregroundWords;
    QStringList nonForegroundWords;
    QString surface;
    double ratio = 0.0;
    double highContrastRatio = 0.0;
};

QStringList wordsOf(const QJsonValue& value) {
    QStringList words;
    for (const QJsonValue& word : value.toArray())
        words.append(word.toString().toLower());
    return words;
}

PairingRule loadRule() {
    PairingRule rule;
    QFile file(QStringLiteral(":/brisel/themes/contrast-pairs.json"));
    const QJsonObject root =
        file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    if (root.isEmpty()) {
        qWarning("BzThemeAudit: the contrast pairing rule is unreadable; no pairs are checked");
        return rule;
    }
    const QJsonObject foreground = root.value(QLatin1String("foreground")).toObject();
    const QJsonObject ratios = root.value(QLatin1String("requiredRatio")).toObject();
    rule.backgroundEndings =
        wordsOf(root.value(QLatin1String("background")).toObject().value(QLatin1String("segmentEndsWith")));
    rule.foregroundWords = wordsOf(foreground.value(QLatin1String("segmentContains")));
    rule.nonForegroundWords = wordsOf(foreground.value(QLatin1String("lastSegmentExcludes")));
    rule.surface = root.value(QLatin1String("surface")).toString();
    rule.ratio = ratios.value(QLatin1String("default")).toDouble();
    rule.highContrastRatio = ratios.value(QLatin1String("highContrast")).toDouble();
    return rule;
}

const PairingRule& rule() {
    static const PairingRule loaded = loadRule();
    return loaded;
}

bool containsAny(const QString& segment, const QStringList& words) {
    return std::any_of(words.cbegin(), words.cend(),
                       [&](const QString& word) { return segment.contains(word, Qt::CaseInsensitive); });
}

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

} // namespace

namespace BzThemeAudit {

bool isBackgroundName(const QString& name) {
    const QStringList segs = segmentsOf(name);
    const QStringList& endings = rule().backgroundEndings;
    return std::any_of(segs.cbegin() + 1, segs.cend(), [&](const QString& s) {
        return std::any_of(endings.cbegin(), endings.cend(),
                           [&](const QString& end) { return s.endsWith(end, Qt::CaseInsensitive); });
    });
}

bool isForegroundName(const QString& name) {
    const QStringList segs = segmentsOf(name);
    if (segs.size() < 2 || isBackgroundName(name))
        return false;
    if (containsAny(segs.last(), rule().nonForegroundWords))
        return false;
    return std::any_of(segs.cbegin() + 1, segs.cend(),
                       [](const QString& s) { return containsAny(s, rule().foregroundWords); });
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
    return theme.isHighContrast() ? rule().highContrastRatio : rule().ratio;
}

QList<ContrastPair> measure(const BzTheme& theme, const QList<ContrastPair>& pairs) {
    const QColor surface = theme.colorSet(rule().surface).normal();
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
