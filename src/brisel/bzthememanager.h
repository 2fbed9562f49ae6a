#pragma once

#include "brisel_export.h"
#include "bztheme.h"
#include "bzthemeutils.h"

#include <QObject>
#include <QStringList>

// The process-wide registry of themes and the current theme.
//
// The three built-in themes "light", "dark" and "highContrast" are read from
// the library's resources on first use. A host may load its own theme files
// at run time: a file whose name matches a registered theme replaces it, and
// every colour-set name it lacks falls back to its base theme.
//
// Lives on the GUI thread; created on first use.
class BRISEL_EXPORT BzThemeManager : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString currentTheme READ currentThemeName NOTIFY currentThemeChanged)

public:
    enum RefreshMode {
        RefreshWidgets, // re-apply every widget's theme (BzThemeUtils::refreshWidgetThemes)
        DataOnly        // switch only; the caller refreshes the widgets itself
    };

    static BzThemeManager* instance();
    ~BzThemeManager() override;

    QStringList themeNames() const;
    bool hasTheme(const QString& name) const;
    BzTheme theme(const QString& name) const;

    QString currentThemeName() const;
    const BzTheme& currentTheme() const;
    // The theme that a theme type resolves to right now: Global is the current
    // theme, Alternate the current theme's light/dark counterpart.
    const BzTheme& themeFor(BzThemeUtils::AppThemeType type) const;

    // Switches the current theme. Unknown names are refused with a warning.
    // Returns whether `name` is current afterwards.
    bool setCurrentTheme(const QString& name, RefreshMode mode = RefreshWidgets);

    // Loads and registers a theme file. On a malformed file, warns with the
    // file name and the position of the fault and changes nothing; returns
    // the theme's name, or an empty string on failure.
    QString loadThemeFile(const QString& path);
    // Registers an already parsed theme (completing it from its base).
    QString registerTheme(const BzTheme& theme, const QString& origin = QString());

    // Increases whenever the colours behind any theme type may have changed;
    // caches keyed by it stay valid while it does not move.
    quint64 generation() const;

    // The names every complete theme defines (those of the built-in light theme).
    QStringList knownColorSetNames() const;

Q_SIGNALS:
    void currentThemeChanged(const QString& name);
    void themeRegistered(const QString& name);

private:
    explicit BzThemeManager(QObject* parent = nullptr);
    struct Private;
    Private* d;
};
