#include "kacolortokenutils.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>

namespace {

// Icons hosts and components load by bare name: every build must carry them.
const char kRequiredIcons[] =
    "alert-bold alert-muted-bold announcement-bold arrow-down-light arrow-down_8 arrow-left-bold "
    "arrow-right-bold arrow-up-light arrow-up_8 away-calling-presence-filled blocked-bold "
    "busy-presence-regular "
    "call-forward-settings-filled call-outgoing-bold camera-presence-filled cancel-bold chat-filled "
    "check-circle-badge-filled check-regular coffee-bold content-share-bold disconnect-filled "
    "dnd-presence-badge-filled enter-room-bold error-legacy-badge-filled external-user-bold "
    "generic-device-video-bold generic-device-video-filled handset-filled info-badge-filled keyboard-bold "
    "meet-bold meetings-bold meetings-presence-badge-filled mention-bold no-devices-bold "
    "participant-unknown-bold participant-unknown-regular pause-filled phone-filled pop-out-regular "
    "priority-badge-filled private-bold pto-presence-filled quiet-hours-presence-filled "
    "recents-presence-badge-filled room-lights-regular share-screen-badge-filled share-screen-bold "
    "shield-bold "
    "sparkle-filled unread-filled video-effect-filled warning-badge-filled warning-filled";

struct Rendered {
    bool parsed = false;
    int paintedPixels = 0;
    QSet<QRgb> colours; // of the opaque pixels, alpha stripped
};

Rendered render(const QString& path, int size) {
    Rendered result;
    QSvgRenderer renderer(path);
    result.parsed = renderer.isValid();
    if (!result.parsed)
        return result;
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, size, size));
    painter.end();
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const QRgb px = image.pixel(x, y);
            result.paintedPixels += qAlpha(px) > 0;
            if (qAlpha(px) == 255)
                result.colours.insert(px & 0xffffff);
        }
    }
    return result;
}

// Resource paths written in the library's sources.
QStringList referencedPaths() {
    static const QRegularExpression pattern(
        QStringLiteral("(?:qrc)?:/(Resources|emojis)/([A-Za-z0-9_.-]+\\.svg)"));
    QSet<QString> found;
    QDirIterator it(QStringLiteral(KARVEX_SOURCE_DIR),
                    {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.qml")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (auto m = pattern.globalMatch(QString::fromUtf8(file.readAll())); m.hasNext();) {
            const auto match = m.next();
            found.insert(QStringLiteral(":/%1/%2").arg(match.captured(1), match.captured(2)));
        }
    }
    QStringList list(found.cbegin(), found.cend());
    list.sort();
    return list;
}

} // namespace

class TestResources : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        // Touch the library so that its resources are linked and registered.
        QVERIFY(!KaColorTokenUtils::tokenToString(Karvox::Token(0)).isEmpty());
    }

    void icons_data() {
        QTest::addColumn<QString>("path");
        QStringList names = QString::fromLatin1(kRequiredIcons).split(QLatin1Char(' '));
        for (const QString& file : QDir(QStringLiteral(":/Resources")).entryList({QStringLiteral("*.svg")}))
            names << file.chopped(4);
        names.removeDuplicates();
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << QStringLiteral(":/Resources/%1.svg").arg(name);
    }
    void icons() {
        QFETCH(QString, path);
        QVERIFY2(QFile::exists(path), qPrintable(path + QLatin1String(" is missing")));
        QSvgRenderer renderer(path);
        QVERIFY(renderer.isValid());
        const int grid = path.endsWith(QLatin1String("_8.svg")) ? 8 : 16;
        QCOMPARE(renderer.viewBoxF(), QRectF(0, 0, grid, grid));
        // Legible at its own grid, and tinted by replacing its one colour: a
        // second colour would survive the tint as a different shade.
        QVERIFY(render(path, grid).paintedPixels > 0);
        const Rendered large = render(path, 32);
        QVERIFY2(large.colours.size() <= 1,
                 qPrintable(QStringLiteral("%1 colours").arg(large.colours.size())));
    }

    void referencedPaths_data() {
        QTest::addColumn<QString>("path");
        const QStringList paths = ::referencedPaths();
        for (const QString& path : paths)
            QTest::newRow(qPrintable(path)) << path;
        if (paths.isEmpty())
            QTest::newRow("delegate default") << QStringLiteral(":/Resources/check-regular.svg");
    }
    void referencedPaths() {
        QFETCH(QString, path);
        QVERIFY2(QFile::exists(path),
                 qPrintable(path + QLatin1String(" is referenced but not in the resources")));
        QVERIFY2(render(path, 16).paintedPixels > 0,
                 qPrintable(path + QLatin1String(" paints nothing at 16 px")));
    }

    void emojis() {
        const QStringList files = QDir(QStringLiteral(":/emojis")).entryList({QStringLiteral("*.svg")});
        for (const char* reaction : {"1f44d", "2764", "1f606", "1f62e", "1f622", "1f620"})
            QVERIFY2(files.contains(QLatin1String(reaction) + QLatin1String(".svg")), reaction);
        QVERIFY(files.size() >= 12);
        for (const QString& file : files) {
            const Rendered r = render(QStringLiteral(":/emojis/") + file, 32);
            QVERIFY2(r.parsed && r.paintedPixels > 100, qPrintable(file));
        }
    }
};

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
