#pragma once

#include <QString>
#include <QStringList>

class GalleryWindow;
class QDir;

// Writes the gallery's reference screenshots: every page whole (its full
// scrolled height) in every built-in theme, in the window's current
// direction, language and text size, and every page once more right-to-left,
// pseudo-translated and at 150 % text size. Works without a display
// (QT_QPA_PLATFORM=offscreen).
class ScreenshotRunner {
public:
    explicit ScreenshotRunner(GalleryWindow* window);

    // Limits the run; empty lists mean every page and every built-in theme.
    void setPages(const QStringList& ids) { m_pages = ids; }
    void setThemes(const QStringList& names) { m_themes = names; }

    // Returns the number of files written, or -1 after the first failure
    // (reported on stderr).
    int run(const QString& directory);

private:
    bool capture(const QString& filePath);
    // The current page's pop-up windows (menus), one picture each, named
    // "<page>-<popup><suffix>.png".
    bool capturePopups(const QDir& dir, const QString& page, const QString& suffix);
    // "-rtl", "-pseudo" and "-<percent>" for what differs from the default.
    QString variantSuffix() const;
    static void settle();

    GalleryWindow* m_window;
    QStringList m_pages;
    QStringList m_themes;
};
