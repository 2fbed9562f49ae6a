#include "screenshotrunner.h"

#include "gallerypage.h"
#include "gallerywindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTextStream>

namespace {
const char* const kThemes[] = {"light", "dark", "highContrast"};
// The stress variant: long mirrored text at a large size.
constexpr int kStressScale = 150;

QTextStream& errors() {
    static QTextStream stream(stderr);
    return stream;
}
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

QString ScreenshotRunner::variantSuffix() const {
    QString suffix;
    if (m_window->isRightToLeft())
        suffix += QLatin1String("-rtl");
    if (m_window->isPseudoTranslation())
        suffix += QLatin1String("-pseudo");
    if (m_window->textScalePercent() != 100)
        suffix += QLatin1Char('-') + QString::number(m_window->textScalePercent());
    return suffix;
}

bool ScreenshotRunner::capture(const QString& filePath) {
    settle();
    // Grow the window until the page no longer scrolls, so the file shows
    // all of it; a scroll bar going away can change the layout once more.
    const QSize normal = m_window->size();
    for (int round = 0; round < 3; ++round) {
        const GalleryPage* page = m_window->currentPage();
        const QSize overflow = page ? page->overflow() : QSize();
        if (overflow.width() <= 0 && overflow.height() <= 0)
            break;
        m_window->setFixedSize(m_window->size() + overflow);
        settle();
    }
    const QPixmap shot = m_window->grab();
    if (m_window->size() != normal) {
        m_window->setFixedSize(normal);
        settle();
    }
    if (shot.isNull() || !shot.save(filePath, "PNG")) {
        errors() << "karvex-gallery: could not write " << filePath << Qt::endl;
        return false;
    }
    return true;
}

bool ScreenshotRunner::capturePopups(const QDir& dir, const QString& page, const QString& suffix) {
    GalleryPage* current = m_window->currentPage();
    if (!current)
        return true;
    for (int i = 0; i < current->screenshotPopupCount(); ++i) {
        const QList<QWidget*> windows = current->openScreenshotPopup(i);
        settle();
        // The open windows (a menu and its sub-menu) in one picture, placed
        // as they are on screen.
        QRect box;
        for (QWidget* window : windows)
            box |= window->geometry();
        if (box.isEmpty())
            continue;
        const qreal dpr = m_window->devicePixelRatioF();
        QImage image((QSizeF(box.size()) * dpr).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(dpr);
        image.fill(Qt::transparent);
        {
            QPainter painter(&image);
            for (QWidget* window : windows)
                painter.drawPixmap(window->geometry().topLeft() - box.topLeft(), window->grab());
        }
        for (auto it = windows.crbegin(); it != windows.crend(); ++it)
            (*it)->close();
        settle();
        const QString path = dir.filePath(page + QLatin1Char('-') + current->screenshotPopupName(i) + suffix +
                                          QLatin1String(".png"));
        if (!image.save(path, "PNG")) {
            errors() << "karvex-gallery: could not write " << path << Qt::endl;
            return false;
        }
    }
    return true;
}

int ScreenshotRunner::run(const QString& directory) {
    QDir dir(directory);
    if (!dir.mkpath(QStringLiteral("."))) {
        errors() << "karvex-gallery: could not create " << directory << Qt::endl;
        return -1;
    }
    const QStringList pages = m_pages.isEmpty() ? m_window->pageIds() : m_pages;
    QStringList themes = m_themes;
    if (themes.isEmpty()) {
        for (const char* theme : kThemes)
            themes << QLatin1String(theme);
    }

    int written = 0;
    const QString suffix = variantSuffix();
    for (const QString& theme : std::as_const(themes)) {
        if (!m_window->applyTheme(theme)) {
            errors() << "karvex-gallery: unknown theme " << theme << Qt::endl;
            return -1;
        }
        for (const QString& page : pages) {
            if (!m_window->showPage(page)) {
                errors() << "karvex-gallery: unknown page " << page << Qt::endl;
                return -1;
            }
            if (!capture(dir.filePath(page + QLatin1Char('-') + theme + suffix + QLatin1String(".png"))))
                return -1;
            ++written;
            if (!capturePopups(dir, page, QLatin1Char('-') + theme + suffix))
                return -1;
        }
    }

    // Every page once more in the first theme with everything that moves
    // and stretches a layout, unless the run above already was that.
    const bool rtl = m_window->isRightToLeft();
    const bool pseudo = m_window->isPseudoTranslation();
    const int scale = m_window->textScalePercent();
    if (rtl && pseudo && scale == kStressScale)
        return written;
    m_window->applyTheme(themes.constFirst());
    m_window->setRightToLeft(true);
    m_window->setPseudoTranslation(true);
    m_window->setTextScalePercent(kStressScale);
    const QString stressSuffix = variantSuffix();
    bool ok = true;
    for (const QString& page : pages) {
        m_window->showPage(page);
        ok = capture(dir.filePath(page + QLatin1Char('-') + themes.constFirst() + stressSuffix +
                                  QLatin1String(".png"))) &&
             capturePopups(dir, page, QLatin1Char('-') + themes.constFirst() + stressSuffix);
        if (!ok)
            break;
        ++written;
    }
    m_window->setTextScalePercent(scale);
    m_window->setPseudoTranslation(pseudo);
    m_window->setRightToLeft(rtl);
    return ok ? written : -1;
}
