#include "focuspage.h"
#include "gallerypageregistry.h"
#include "gallerywindow.h"
#include "screenshotrunner.h"

#include <bzthememanager.h>
#include <kacolortokenutils.h>
#include <kafocusstyle.h>
#include <kastyle.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("karvex-gallery"));
    QApplication::setApplicationVersion(QStringLiteral(KARVEX_GALLERY_VERSION));
    // One base style everywhere keeps the screenshots comparable between hosts;
    // the focus style on top of it draws the library's keyboard focus ring.
    QApplication::setStyle(new KaFocusStyle(KaColorTokenUtils::tokenToStdString(Karvox::global_focus_outline),
                                            KaColorTokenUtils::tokenToStdString(Karvox::textinput_background),
                                            false, new KaStyle(QStringLiteral("Fusion"))));
    FocusPage::followKeyboardNavigation();

    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate("main", "The Karvex widget gallery."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"),
        QCoreApplication::translate("main",
                                    "Write screenshots of every page in every theme to <dir> and exit."),
        QStringLiteral("dir"));
    const QCommandLineOption listOption(
        QStringLiteral("list-pages"),
        QCoreApplication::translate("main", "Print every page's id and title, tab-separated, and exit."));
    const QCommandLineOption themeOption(QStringLiteral("theme"),
                                         QCoreApplication::translate("main", "Start in the theme <name>."),
                                         QStringLiteral("name"));
    const QCommandLineOption pageOption(QStringLiteral("page"),
                                        QCoreApplication::translate("main", "Start on the page <id>."),
                                        QStringLiteral("id"));
    const QCommandLineOption rtlOption(
        QStringLiteral("rtl"), QCoreApplication::translate("main", "Start with a right-to-left layout."));
    const QCommandLineOption pseudoOption(
        QStringLiteral("pseudo"), QCoreApplication::translate("main", "Start with pseudo-translation."));
    const QCommandLineOption scaleOption(
        QStringLiteral("text-scale"),
        QCoreApplication::translate("main", "Start at a text size of <percent>."), QStringLiteral("percent"));
    const QCommandLineOption loadOption(
        QStringLiteral("load-theme"),
        QCoreApplication::translate("main", "Load the theme file <file> and start in that theme."),
        QStringLiteral("file"));
    parser.addOptions({screenshotOption, listOption, themeOption, pageOption, rtlOption, pseudoOption,
                       scaleOption, loadOption});
    parser.process(app);

    QTextStream err(stderr);
    if (parser.isSet(listOption)) {
        QTextStream out(stdout);
        for (const auto& entry : GalleryPageRegistry::entries())
            out << entry.id << '\t' << GalleryPageRegistry::title(entry) << '\n';
        return 0;
    }

    GalleryWindow window;
    window.resize(1100, 760);

    if (parser.isSet(scaleOption)) {
        bool ok = false;
        const int percent = parser.value(scaleOption).toInt(&ok);
        if (!ok || percent < 75 || percent > 200) {
            err << "karvex-gallery: --text-scale takes a percentage from 75 to 200\n";
            return 2;
        }
        window.setTextScalePercent(percent);
    }

    if (parser.isSet(themeOption)) {
        const QString theme = parser.value(themeOption);
        if (!window.applyTheme(theme)) {
            err << "karvex-gallery: unknown theme \"" << theme
                << "\"; known themes: " << BzThemeManager::instance()->themeNames().join(QLatin1String(", "))
                << '\n';
            return 2;
        }
    }
    if (parser.isSet(loadOption) && !window.loadThemeFromFile(parser.value(loadOption))) {
        err << "karvex-gallery: could not load the theme file " << parser.value(loadOption) << '\n';
        return 2;
    }
    if (parser.isSet(pageOption)) {
        const QString page = parser.value(pageOption);
        if (!window.showPage(page)) {
            err << "karvex-gallery: unknown page \"" << page
                << "\"; pages: " << window.pageIds().join(QLatin1String(", ")) << '\n';
            return 2;
        }
    }
    if (parser.isSet(rtlOption))
        window.setRightToLeft(true);
    if (parser.isSet(pseudoOption))
        window.setPseudoTranslation(true);

    if (parser.isSet(screenshotOption)) {
        // Laid out and painted like a shown window, but never mapped. A
        // theme or page from the command line narrows the run to it.
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.setFixedSize(1100, 760);
        window.show();
        ScreenshotRunner runner(&window);
        if (parser.isSet(pageOption))
            runner.setPages({window.currentPageId()});
        if (parser.isSet(themeOption) || parser.isSet(loadOption))
            runner.setThemes({BzThemeManager::instance()->currentThemeName()});
        const QString directory = parser.value(screenshotOption);
        const int written = runner.run(directory);
        if (written < 0)
            return 1;
        QTextStream(stdout) << QDir(directory).absolutePath() << ": " << written << " screenshots\n";
        return 0;
    }

    window.show();
    return app.exec();
}
