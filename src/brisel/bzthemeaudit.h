#pragma once

#include "brisel_export.h"
#include "bztheme.h"

#include <QList>
#include <QString>
#include <QStringList>

// Checks a theme against the names every theme must define and against the
// contrast its text and icon colours need over their backgrounds.
//
// Contrast pairs are derived from colour-set names. A name is
// "family-part-...-role": the first segment is the component family. The
// words below come from src/resources/themes/contrast-pairs.json (compiled
// in), which the theme generator reads too; matching ignores case.
//  - A background is a name with a segment (after the family) ending in a
//    background word ("background").
//  - A foreground is a name that is not a background, whose last segment
//    contains no excluded word (background, border, outline, divider,
//    separator, gradient, track, shadow), and that has a segment (after the
//    family) containing a foreground word ("text" or "icon").
//  - A foreground is paired with the background of its own family that shares
//    the longest run of leading segments with it; ties go to the background
//    sharing more segments anywhere, then the one with fewer segments, then
//    the first in byte order. A family without a background has no pairs.
// The normal-state colours are compared with the WCAG 2.1 contrast ratio;
// translucent colours are composed over the background first, translucent
// backgrounds over the theme's surface (the rule file's "surface",
// "panel-primary-background").
namespace BzThemeAudit {

struct ContrastPair {
    QString foreground;
    QString background;
    double ratio = 0.0;
};

struct Report {
    QStringList missing; // known names the theme lacks
    QStringList unknown; // names the theme defines that no component uses
    QList<BzTheme::Problem> malformed;
    QList<ContrastPair> lowContrast; // below the theme's required ratio
    bool parsed = false;
    bool hasErrors() const {
        return !parsed || !missing.isEmpty() || !malformed.isEmpty() || !lowContrast.isEmpty();
    }
};

BRISEL_EXPORT bool isBackgroundName(const QString& name);
BRISEL_EXPORT bool isForegroundName(const QString& name);
// Every foreground of `names` with its background, in the order of `names`.
BRISEL_EXPORT QList<ContrastPair> contrastPairs(const QStringList& names);

// WCAG 2.1 relative luminance and contrast ratio (1..21) of opaque colours.
BRISEL_EXPORT double relativeLuminance(const QColor& color);
BRISEL_EXPORT double contrastRatio(const QColor& a, const QColor& b);
// Source-over composition of a translucent colour on an opaque one.
BRISEL_EXPORT QColor composeOver(const QColor& top, const QColor& bottom);

// The rule file's ratio: 7 for high-contrast themes, 4.5 otherwise.
BRISEL_EXPORT double requiredRatio(const BzTheme& theme);
// The normal-state contrast of every pair in `theme`, worst first.
BRISEL_EXPORT QList<ContrastPair> measure(const BzTheme& theme, const QList<ContrastPair>& pairs);

// Audits a theme file's text against the known colour-set names.
BRISEL_EXPORT Report auditJson(const QByteArray& json, const QStringList& knownNames);
} // namespace BzThemeAudit
