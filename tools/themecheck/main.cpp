// karvex-theme-check FILE...
//
// Reports a theme file's malformed, missing and unknown entries and the text
// and icon colours that lack contrast over their backgrounds. Exits 1 when a
// file has errors (malformed entries, missing names without a "base" theme to
// take them from, low contrast), 2 on bad usage, 0 otherwise.

#include "bzthemeaudit.h"
#include "bzthememanager.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

void print(const QString& line) {
    std::fputs(qPrintable(line + QLatin1Char('\n')), stdout);
}

bool checkFile(const QString& path, bool verbose) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        print(QStringLiteral("%1: error: cannot read: %2").arg(path, file.errorString()));
        return false;
    }
    const QByteArray json = file.readAll();
    BzThemeManager* manager = BzThemeManager::instance();
    const QStringList known = manager->knownColorSetNames();
    const BzThemeAudit::Report report = BzThemeAudit::auditJson(json, known);
    for (const BzTheme::Problem& p : report.malformed)
        print(QStringLiteral("%1:%2:%3: error: %4").arg(path).arg(p.line).arg(p.column).arg(p.message));
    if (!report.parsed)
        return false;

    bool ok = true;
    BzTheme theme = *BzTheme::fromJson(json);
    const QString base = theme.baseName();
    if (!report.missing.isEmpty()) {
        if (base.isEmpty() || !manager->hasTheme(base)) {
            ok = false;
            print(
                QStringLiteral("%1: error: %2 colour set(s) missing and no \"base\" theme to take them from")
                    .arg(path)
                    .arg(report.missing.size()));
        } else {
            print(QStringLiteral("%1: note: %2 colour set(s) taken from \"%3\"")
                      .arg(path)
                      .arg(report.missing.size())
                      .arg(base));
        }
        if (verbose || ok == false) {
            for (const QString& name : report.missing)
                print(QStringLiteral("  missing: %1").arg(name));
        }
        // Judge contrast on what a host would see: the theme completed from its base.
        const BzTheme from = manager->theme(base);
        for (const QString& name : report.missing) {
            if (from.contains(name))
                theme.insert(from.colorSet(name));
        }
    }
    for (const QString& name : report.unknown)
        print(
            QStringLiteral("%1: warning: unknown colour set \"%2\" (no component uses it)").arg(path, name));

    const double required = BzThemeAudit::requiredRatio(theme);
    const QList<BzThemeAudit::ContrastPair> measured =
        BzThemeAudit::measure(theme, BzThemeAudit::contrastPairs(known));
    for (const BzThemeAudit::ContrastPair& pair : measured) {
        if (pair.ratio >= required)
            break; // sorted worst first
        ok = false;
        print(QStringLiteral("%1: error: \"%2\" over \"%3\" has contrast %4:1, needs %5:1")
                  .arg(path, pair.foreground, pair.background)
                  .arg(pair.ratio, 0, 'f', 2)
                  .arg(required, 0, 'f', 1));
    }
    if (!measured.isEmpty()) {
        print(QStringLiteral("%1: %2 contrast pairs, worst \"%3\" over \"%4\" at %5:1")
                  .arg(path)
                  .arg(measured.size())
                  .arg(measured.first().foreground, measured.first().background)
                  .arg(measured.first().ratio, 0, 'f', 2));
    }
    print(QStringLiteral("%1: %2").arg(path, ok ? QStringLiteral("ok") : QStringLiteral("FAILED")));
    return ok;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Checks theme files against the library's colour-set names."));
    parser.addHelpOption();
    parser.addOption(
        {{QStringLiteral("v"), QStringLiteral("verbose")}, QStringLiteral("List every missing name.")});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Theme files to check."),
                                 QStringLiteral("FILE..."));
    parser.process(app);
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty()) {
        parser.showHelp(2);
    }
    bool ok = true;
    for (const QString& path : files)
        ok = checkFile(path, parser.isSet(QStringLiteral("verbose"))) && ok;
    return ok ? 0 : 1;
}
