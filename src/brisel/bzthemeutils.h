#pragma once

#include "brisel_export.h"
#include "bzcolorset.h"
#include "bzcssdata.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <string>

class QWidget;

// Theme access for components: colour-set lookup per theme type, style-sheet
// templates and the theme refresh of all widgets.
//
// Style-sheet templates are Qt style sheets in which colours are written as
// references to colour sets: "$(set)" is the set's normal colour and
// "$(set.state)" one of its state colours (normal, hovered, pressed,
// disabled, focused, checked). They resolve to "rgba(r,g,b,a)" text.
namespace BzThemeUtils {
Q_NAMESPACE_EXPORT(BRISEL_EXPORT)

// 0 resolves against the application's current theme; Alternate is the
// current theme's light/dark counterpart (high contrast stays high contrast).
enum AppThemeType { Global = 0, Light = 1, Alternate = 2, Dark = 3, HighContrast = 4 };
Q_ENUM_NS(AppThemeType)

// "global", "light", "alternate", "dark", "highContrast".
BRISEL_EXPORT QString themeTypeToString(AppThemeType type);
// Accepts the names above (case-insensitive) and their numbers; anything
// else gives Global with a warning.
BRISEL_EXPORT AppThemeType stringToThemeType(const QString& text);
// The built-in theme name a type stands for right now ("light", "dark", ...).
BRISEL_EXPORT QString themeNameForType(AppThemeType type);

// The colour set of `name` in the theme `type` resolves to. An unknown name
// gives a transparent set carrying that name, with one warning per name.
BRISEL_EXPORT BzColorSet getColorSet(const QString& name, AppThemeType type = Global);
BRISEL_EXPORT BzColorSet getColorSet(const std::string& name, AppThemeType type = Global);
BRISEL_EXPORT BzColorSet getColorSet(const char* name, AppThemeType type = Global);
// Every colour set of the current theme, by name.
BRISEL_EXPORT const QHash<QString, BzColorSet>& getAppWColorSets();
// The theme type a widget paints in: the first "themeType" dynamic property
// found on the widget or its ancestors; Global when there is none.
BRISEL_EXPORT AppThemeType getThemeTypeOfWidget(const QWidget* widget);
// Connects `parent`'s themeTypeChanged(), when its class declares one, to
// `receiver`'s onParentThemeTypeChanged() slot; returns an invalid connection
// when either is missing. For widgets that follow their parent's theme type.
BRISEL_EXPORT QMetaObject::Connection connectParentThemeType(QObject* parent, QObject* receiver);
BRISEL_EXPORT bool isHighContrastEnabled();
BRISEL_EXPORT BzColorSet transparentColourSet();

// Resolves a style-sheet template for `widget` (its theme type decides which
// theme; `colourSets` is used when that is the current theme) and reads the
// record it describes: the background, border and text colour sets, the
// switches and the frame. The result's styleSheet holds the resolved text.
// Results are cached per template and theme.
BRISEL_EXPORT BzCSSData parseCSS(const QWidget* widget, const QString& css,
                                 const QHash<QString, BzColorSet>& colourSets);
// Resolves the "$(...)" references of a template against one theme type.
BRISEL_EXPORT QString resolveTemplate(const QString& css, AppThemeType type = Global);
// Writes a record as a style-sheet template that parseCSS reads back.
BRISEL_EXPORT QString convertToWCSS(const BzCSSData& data);
// "rgba(r,g,b,a)" with a = alpha / 255: one decimal at 0 and 255, two otherwise.
BRISEL_EXPORT QString colorToCss(const QColor& color);

// Gives any widget the base layer's "css" contract: from now on, writing its
// dynamic property "css" resolves the template and sets the style sheet
// (skipped when the resolved text is unchanged). Base-layer widgets have this
// built in. A null widget is ignored.
BRISEL_EXPORT void setWidgetCSS(QWidget* widget, const QString& css);

// Re-applies the current theme to every widget: rewrites each non-empty
// "css" property and queues each widget's onThemeChanged() slot.
BRISEL_EXPORT void refreshWidgetThemes();
} // namespace BzThemeUtils
