#include "screenshotrunner.h"

#include "gallerywindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QTextStream>

namespace {
const char* const kThemes[] = {"light", "dark", "highContrast"};
} // namespace

ScreenshotRunner::ScreenshotRunner(GalleryWindow* window)
    : m_window(window) {}

void ScreenshotRunner::settle() {
    // Theme refreshes queue onThemeChanged() calls, translators post language
    // changes and layouts post their requests: a few rounds drain them all.
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

bool ScreenshotRunner::capture(const QString& filePath) {
    settle();
    const QPixmap shot = m_window->grab();
    if (shot.isNull() || !shot.save(filePath, "PNG")) {
        QTextStream(stderr) << "karvex-gallery: could not write " << filePath << '\n';
        return false;
    }
    return true;
}

int ScreenshotRunner::run(const QString& directory) {
    QDir dir(directory);
    if (!dir.mkpath(QStringLiteral("."))) {
        QTextStream(stderr) << "karvex-gallery: could not create " << directory << '\n';
        return -1;
    }

    int written = 0;
    const QStringList pages = m_window->pageIds();
    for (const char* theme : kThemes) {
        const QString themeName = QLatin1String(theme);
        if (!m_window->applyTheme(themeName)) {
            QTextStream(stderr) << "karvex-gallery: unknown theme " << themeName << '\n';
            return -1;
        }
        for (const QString& page : pages) {
            m_window->showPage(page);
            if (!capture(dir.filePath(page + QLatin1Char('-') + themeName + QLatin1String(".png"))))
                return -1;
            ++written;
        }
    }

    m_window->applyTheme(QStringLiteral("light"));
    m_window->showPage(pages.value(0));
    m_window->setRightToLeft(true);
    m_window->setPseudoTranslation(true);
    const bool ok = capture(dir.filePath(pages.value(0) + QLatin1String("-light-rtl-pseudo.png")));
    m_window->setPseudoTranslation(false);
    m_window->setRightToLeft(false);
    if (!ok)
        return -1;
    return written + 1;
}
