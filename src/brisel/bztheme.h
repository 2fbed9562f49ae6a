#pragma once

#include "brisel_export.h"
#include "bzcolorset.h"

#include <QHash>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

#include <optional>

class BzThemeData;

// One theme: a name and the colour set of every colour-set name it defines.
// Value type with implicit sharing; themes are read from JSON files:
//
//   {
//     "name": "dark",                 // required, the id that hosts switch to
//     "base": "dark",                 // optional built-in theme for missing names
//     "highContrast": false,          // optional
//     "dark": true,                   // optional, whether the surfaces are dark
//     "colorSets": {
//       "label-primary-text": "#1b1d21",                         // one colour, all states
//       "button-primary-background": ["#2456d6", "#1d47b8", ...], // six colours in state order
//       "button-primary-text": { "normal": "#fff", "disabled": "#ffffff66" } // missing states = normal
//     }
//   }
//
// Colours are "#rgb", "#rrggbb", "#rrggbbaa" (alpha last), "transparent" or
// an SVG colour keyword.
class BRISEL_EXPORT BzTheme {
public:
    struct Problem {
        enum Kind { Syntax, Structure, BadColor };
        Kind kind = Syntax;
        int line = 0;
        int column = 0;
        QString key;     // the colour-set name concerned, when there is one
        QString message; // human-readable, without the file name
    };

    BzTheme();
    BzTheme(const BzTheme& other);
    BzTheme& operator=(const BzTheme& other);
    ~BzTheme();

    // Parses a theme document. On failure returns nothing and fills `problems`
    // with every fault found (a syntax error stops at the first one).
    static std::optional<BzTheme> fromJson(const QByteArray& json, QList<Problem>* problems = nullptr);
    QByteArray toJson() const;

    QString name() const;
    void setName(const QString& name);
    QString baseName() const;
    void setBaseName(const QString& base);
    bool isHighContrast() const;
    void setHighContrast(bool on);
    bool isDark() const;
    void setDark(bool on);

    bool contains(const QString& name) const;
    // The set for `name`, or an invalid (nameless) set when absent.
    BzColorSet colorSet(const QString& name) const;
    void insert(const BzColorSet& set);
    const QHash<QString, BzColorSet>& colorSets() const;
    QStringList names() const;

    // Parses one colour in theme-file syntax; invalid QColor on failure.
    static QColor parseColor(const QString& text);
    static QString formatColor(const QColor& color);

private:
    QSharedDataPointer<BzThemeData> d;
};
