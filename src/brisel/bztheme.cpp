#include "bztheme.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSharedData>

#include <algorithm>

class BzThemeData : public QSharedData {
public:
    QString name;
    QString base;
    bool highContrast = false;
    bool dark = false;
    QHash<QString, BzColorSet> sets;
};

namespace {

// Line and column (1-based) of a byte offset in a document.
void positionOf(const QByteArray& json, qsizetype offset, int* line, int* column) {
    offset = std::clamp<qsizetype>(offset, 0, json.size());
    const qsizetype lineStart = json.lastIndexOf('\n', offset - 1) + 1;
    *line = int(json.left(offset).count('\n')) + 1;
    *column = int(offset - lineStart) + 1;
}

BzTheme::Problem problemAt(const QByteArray& json, BzTheme::Problem::Kind kind, const QString& key,
                           const QString& message) {
    BzTheme::Problem p;
    p.kind = kind;
    p.key = key;
    p.message = message;
    // QJsonDocument keeps no positions: find the key's first occurrence instead.
    const qsizetype at = key.isEmpty() ? -1 : json.indexOf(QByteArray('"' + key.toUtf8() + '"'));
    if (at >= 0)
        positionOf(json, at, &p.line, &p.column);
    return p;
}

bool isAsciiLetter(QChar c) {
    const char16_t u = c.unicode();
    return (u >= u'a' && u <= u'z') || (u >= u'A' && u <= u'Z');
}

bool isHexDigit(QChar c) {
    const char16_t u = c.unicode();
    return (u >= u'0' && u <= u'9') || (u >= u'a' && u <= u'f') || (u >= u'A' && u <= u'F');
}

} // namespace

BzTheme::BzTheme()
    : d(new BzThemeData) {}
BzTheme::BzTheme(const BzTheme& other) = default;
BzTheme& BzTheme::operator=(const BzTheme& other) = default;
BzTheme::~BzTheme() = default;

QColor BzTheme::parseColor(const QString& text) {
    const QString t = text.trimmed();
    if (t.compare(QLatin1String("transparent"), Qt::CaseInsensitive) == 0)
        return QColor(0, 0, 0, 0);
    if (t.startsWith(QLatin1Char('#'))) {
        // Hex digits only: a number conversion would also take "0x", a sign
        // or a blank.
        const QStringView digits = QStringView(t).mid(1);
        const bool hex = std::all_of(digits.begin(), digits.end(), isHexDigit);
        if (!hex || (digits.size() != 3 && digits.size() != 6 && digits.size() != 8))
            return QColor();
        if (digits.size() == 8) {
            // Theme files write alpha last; QColor expects it first.
            const uint v = digits.toUInt(nullptr, 16);
            return QColor(int(v >> 24) & 0xff, int(v >> 16) & 0xff, int(v >> 8) & 0xff, int(v) & 0xff);
        }
        return QColor::fromString(t);
    }
    // SVG keywords are plain letters; QColor alone would also take blanks in them.
    const bool letters = !t.isEmpty() && std::all_of(t.begin(), t.end(), isAsciiLetter);
    if (!letters || !QColor::isValidColorName(t))
        return QColor();
    return QColor::fromString(t);
}

QString BzTheme::formatColor(const QColor& color) {
    const QString rgb = color.name(QColor::HexRgb);
    if (color.alpha() == 255)
        return rgb;
    return rgb + QStringLiteral("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
}

std::optional<BzTheme> BzTheme::fromJson(const QByteArray& json, QList<Problem>* problems) {
    QList<Problem> found;
    auto fail = [&]() -> std::optional<BzTheme> {
        if (problems)
            *problems = found;
        return std::nullopt;
    };

    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        Problem p;
        p.kind = Problem::Syntax;
        p.message = error.errorString();
        positionOf(json, error.offset, &p.line, &p.column);
        found.append(p);
        return fail();
    }
    if (!doc.isObject()) {
        found.append(
            problemAt(json, Problem::Structure, QString(), QStringLiteral("the document is not an object")));
        return fail();
    }
    const QJsonObject root = doc.object();
    BzTheme theme;
    theme.d->name = root.value(QLatin1String("name")).toString();
    if (theme.d->name.isEmpty())
        found.append(problemAt(json, Problem::Structure, QStringLiteral("name"),
                               QStringLiteral("\"name\" is missing or not a string")));
    theme.d->base = root.value(QLatin1String("base")).toString();
    theme.d->highContrast = root.value(QLatin1String("highContrast")).toBool(false);
    theme.d->dark = root.value(QLatin1String("dark")).toBool(false);

    const QJsonValue setsValue = root.value(QLatin1String("colorSets"));
    if (!setsValue.isObject()) {
        found.append(problemAt(json, Problem::Structure, QStringLiteral("colorSets"),
                               QStringLiteral("\"colorSets\" is missing or not an object")));
        return fail();
    }

    const QJsonObject sets = setsValue.toObject();
    theme.d->sets.reserve(sets.size());
    for (auto it = sets.begin(); it != sets.end(); ++it) {
        const QString name = it.key();
        QColor colors[BzColorSet::StateCount];
        bool ok = true;
        auto parseInto = [&](int state, const QJsonValue& v) {
            colors[state] = v.isString() ? parseColor(v.toString()) : QColor();
            if (!colors[state].isValid()) {
                ok = false;
                found.append(problemAt(json, Problem::BadColor, name,
                                       QStringLiteral("\"%1\": %2 is not a colour")
                                           .arg(name, BzColorSet::stateName(BzColorSet::State(state)))));
            }
        };
        const QJsonValue value = it.value();
        if (value.isString()) {
            parseInto(0, value);
            std::fill(colors + 1, colors + BzColorSet::StateCount, colors[0]);
        } else if (value.isArray()) {
            const QJsonArray array = value.toArray();
            if (array.size() != BzColorSet::StateCount) {
                found.append(problemAt(json, Problem::Structure, name,
                                       QStringLiteral("\"%1\": expected %2 colours, found %3")
                                           .arg(name)
                                           .arg(int(BzColorSet::StateCount))
                                           .arg(array.size())));
                continue;
            }
            for (int s = 0; s < BzColorSet::StateCount; ++s)
                parseInto(s, array.at(s));
        } else if (value.isObject()) {
            const QJsonObject object = value.toObject();
            if (!object.contains(QLatin1String("normal"))) {
                found.append(problemAt(json, Problem::Structure, name,
                                       QStringLiteral("\"%1\": the \"normal\" colour is missing").arg(name)));
                continue;
            }
            for (auto s = object.begin(); s != object.end(); ++s) {
                if (BzColorSet::stateFromName(s.key()) == BzColorSet::StateCount) {
                    ok = false;
                    found.append(
                        problemAt(json, Problem::Structure, name,
                                  QStringLiteral("\"%1\": unknown state \"%2\"").arg(name, s.key())));
                }
            }
            parseInto(0, object.value(QLatin1String("normal")));
            for (int s = 1; s < BzColorSet::StateCount; ++s) {
                const QJsonValue v = object.value(BzColorSet::stateName(BzColorSet::State(s)));
                if (v.isUndefined())
                    colors[s] = colors[0];
                else
                    parseInto(s, v);
            }
        } else {
            found.append(
                problemAt(json, Problem::Structure, name,
                          QStringLiteral("\"%1\": expected a colour, an array or an object").arg(name)));
            continue;
        }
        if (ok)
            theme.d->sets.insert(
                name, BzColorSet(name, colors[0], colors[1], colors[2], colors[3], colors[4], colors[5]));
    }
    if (!found.isEmpty())
        return fail();
    if (problems)
        problems->clear();
    return theme;
}

QByteArray BzTheme::toJson() const {
    QJsonObject root;
    root.insert(QLatin1String("name"), d->name);
    if (!d->base.isEmpty())
        root.insert(QLatin1String("base"), d->base);
    root.insert(QLatin1String("highContrast"), d->highContrast);
    root.insert(QLatin1String("dark"), d->dark);
    QJsonObject sets;
    for (auto it = d->sets.cbegin(); it != d->sets.cend(); ++it) {
        QJsonArray colors;
        for (int s = 0; s < BzColorSet::StateCount; ++s)
            colors.append(formatColor(it->color(BzColorSet::State(s))));
        sets.insert(it.key(), colors);
    }
    root.insert(QLatin1String("colorSets"), sets);
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

QString BzTheme::name() const {
    return d->name;
}
void BzTheme::setName(const QString& name) {
    d->name = name;
}
QString BzTheme::baseName() const {
    return d->base;
}
void BzTheme::setBaseName(const QString& base) {
    d->base = base;
}
bool BzTheme::isHighContrast() const {
    return d->highContrast;
}
void BzTheme::setHighContrast(bool on) {
    d->highContrast = on;
}
bool BzTheme::isDark() const {
    return d->dark;
}
void BzTheme::setDark(bool on) {
    d->dark = on;
}
bool BzTheme::contains(const QString& name) const {
    return d->sets.contains(name);
}

BzColorSet BzTheme::colorSet(const QString& name) const {
    return d->sets.value(name);
}

void BzTheme::insert(const BzColorSet& set) {
    if (set.name().isEmpty()) {
        qWarning("BzTheme::insert: a colour set needs a name");
        return;
    }
    d->sets.insert(set.name(), set);
}

const QHash<QString, BzColorSet>& BzTheme::colorSets() const {
    return d->sets;
}

QStringList BzTheme::names() const {
    QStringList names = d->sets.keys();
    std::sort(names.begin(), names.end());
    return names;
}
