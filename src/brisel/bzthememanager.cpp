#include "bzthememanager.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QLoggingCategory>

#include <algorithm>

namespace {
const char* const kBuiltIn[] = {"light", "dark", "highContrast"};
const char* const kBuiltInFiles[] = {":/brisel/themes/light.json", ":/brisel/themes/dark.json",
                                     ":/brisel/themes/highcontrast.json"};

bool isBuiltInName(const QString& name) {
    return std::any_of(std::begin(kBuiltIn), std::end(kBuiltIn),
                       [&](const char* n) { return name == QLatin1String(n); });
}
} // namespace

struct BzThemeManager::Private {
    QHash<QString, BzTheme> themes;
    // Built-in themes as shipped, kept for completing host themes.
    QHash<QString, BzTheme> builtIn;
    QString current = QStringLiteral("light");
    quint64 generation = 1;
    QStringList knownNames;
    BzTheme empty;
};

BzThemeManager* BzThemeManager::instance() {
    // Parented to nothing and never deleted before exit: colour lookups may
    // happen from destructors of widgets torn down late.
    static BzThemeManager* manager = new BzThemeManager;
    return manager;
}

BzThemeManager::BzThemeManager(QObject* parent)
    : QObject(parent)
    , d(new Private) {
    for (int i = 0; i < 3; ++i) {
        QFile file{QLatin1String(kBuiltInFiles[i])};
        QList<BzTheme::Problem> problems;
        std::optional<BzTheme> theme;
        if (file.open(QIODevice::ReadOnly))
            theme = BzTheme::fromJson(file.readAll(), &problems);
        if (!theme) {
            qWarning("BzThemeManager: the built-in theme %s is unreadable", kBuiltIn[i]);
            theme = BzTheme();
        }
        theme->setName(QLatin1String(kBuiltIn[i]));
        d->builtIn.insert(theme->name(), *theme);
    }
    d->knownNames = d->builtIn.value(QStringLiteral("light")).names();
    for (const char* name : kBuiltIn)
        registerTheme(d->builtIn.value(QLatin1String(name)), QStringLiteral("built-in"));
}

BzThemeManager::~BzThemeManager() {
    delete d;
}

QStringList BzThemeManager::themeNames() const {
    QStringList names = d->themes.keys();
    std::sort(names.begin(), names.end());
    return names;
}

bool BzThemeManager::hasTheme(const QString& name) const {
    return d->themes.contains(name);
}

BzTheme BzThemeManager::theme(const QString& name) const {
    return d->themes.value(name);
}

QString BzThemeManager::currentThemeName() const {
    return d->current;
}

const BzTheme& BzThemeManager::currentTheme() const {
    auto it = d->themes.constFind(d->current);
    return it == d->themes.cend() ? d->empty : *it;
}

const BzTheme& BzThemeManager::themeFor(BzThemeUtils::AppThemeType type) const {
    QString name;
    switch (type) {
    case BzThemeUtils::Light:
        name = QStringLiteral("light");
        break;
    case BzThemeUtils::Dark:
        name = QStringLiteral("dark");
        break;
    case BzThemeUtils::HighContrast:
        name = QStringLiteral("highContrast");
        break;
    case BzThemeUtils::Alternate: {
        const BzTheme& cur = currentTheme();
        if (cur.isHighContrast())
            return cur;
        name = cur.isDark() ? QStringLiteral("light") : QStringLiteral("dark");
        break;
    }
    case BzThemeUtils::Global:
    default:
        return currentTheme();
    }
    auto it = d->themes.constFind(name);
    return it == d->themes.cend() ? currentTheme() : *it;
}

bool BzThemeManager::setCurrentTheme(const QString& name, RefreshMode mode) {
    if (!d->themes.contains(name)) {
        qWarning("BzThemeManager: unknown theme \"%s\"; known: %s", qPrintable(name),
                 qPrintable(themeNames().join(QLatin1String(", "))));
        return false;
    }
    if (name == d->current)
        return true;
    d->current = name;
    ++d->generation;
    Q_EMIT currentThemeChanged(name);
    if (mode == RefreshWidgets)
        BzThemeUtils::refreshWidgetThemes();
    return true;
}

QString BzThemeManager::loadThemeFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("%s: cannot read theme file: %s", qPrintable(path), qPrintable(file.errorString()));
        return QString();
    }
    QList<BzTheme::Problem> problems;
    const QByteArray json = file.readAll();
    const std::optional<BzTheme> theme = BzTheme::fromJson(json, &problems);
    if (!theme) {
        for (const BzTheme::Problem& p : problems)
            qWarning("%s:%d:%d: %s", qPrintable(path), p.line, p.column, qPrintable(p.message));
        qWarning("%s: theme not loaded", qPrintable(path));
        return QString();
    }
    const QString name = registerTheme(*theme, path);
    if (!name.isEmpty() && name == d->current)
        BzThemeUtils::refreshWidgetThemes();
    return name;
}

QString BzThemeManager::registerTheme(const BzTheme& theme, const QString& origin) {
    if (theme.name().isEmpty()) {
        qWarning("BzThemeManager: a theme needs a name (%s)", qPrintable(origin));
        return QString();
    }
    BzTheme complete = theme;
    // Completion source: the declared base, else the built-in of the same
    // name, else light.
    QString baseName = theme.baseName();
    if (baseName.isEmpty() || !d->builtIn.contains(baseName))
        baseName = isBuiltInName(theme.name()) ? theme.name() : QStringLiteral("light");
    const BzTheme base = d->builtIn.value(baseName);
    QStringList missing;
    for (const QString& known : std::as_const(d->knownNames)) {
        if (!complete.contains(known)) {
            missing.append(known);
            if (base.contains(known))
                complete.insert(base.colorSet(known));
        }
    }
    if (!missing.isEmpty()) {
        qWarning("%s: theme \"%s\" lacks %d colour set(s), taken from \"%s\": %s", qPrintable(origin),
                 qPrintable(theme.name()), int(missing.size()), qPrintable(baseName),
                 qPrintable(missing.join(QLatin1String(", "))));
    }
    d->themes.insert(complete.name(), complete);
    ++d->generation;
    Q_EMIT themeRegistered(complete.name());
    return complete.name();
}

quint64 BzThemeManager::generation() const {
    return d->generation;
}

QStringList BzThemeManager::knownColorSetNames() const {
    return d->knownNames;
}
