#pragma once

#include <QString>

class GalleryWindow;

// Writes the gallery's reference screenshots: every page in every built-in
// theme, plus the first page right-to-left with pseudo-translation. Works
// without a display (QT_QPA_PLATFORM=offscreen).
class ScreenshotRunner {
public:
    explicit ScreenshotRunner(GalleryWindow* window);

    // Returns the number of files written, or -1 after the first failure
    // (reported on stderr).
    int run(const QString& directory);

private:
    bool capture(const QString& filePath);
    static void settle();

    GalleryWindow* m_window;
};
