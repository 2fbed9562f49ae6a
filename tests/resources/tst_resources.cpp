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

// Icons the components load by name; the set every build must carry.
const char* const kRequiredIcons[] = {"alert-bold",
                                      "alert-muted-bold",
                                      "announcement-bold",
                                      "arrow-down-light",
                                      "arrow-down_8",
                                      "arrow-left-bold",
                                      "arrow-right-bold",
                                      "arrow-up-light",
                                      "arrow-up_8",
                                      "away-calling-presence-filled",
                                      "blocked-bold",
                                      "busy-presence-regular",
                                      "call-forward-settings-filled",
                                      "call-outgoing-bold",
                                      "camera-presence-filled",
                                      "cancel-bold",
                                      "chat-filled",
                                      "check-circle-badge-filled",
                                      "check-regular",
                                      "coffee-bold",
                                      "content-share-bold",
                                      "disconnect-filled",
                                      "dnd-presence-badge-filled",
                                      "enter-room-bold",
                                      "error-legacy-badge-filled",
                                      "external-user-bold",
                                      "generic-device-video-bold",
                                      "generic-device-video-filled",
                                      "handset-filled",
                                      "info-badge-filled",
                                      "keyboard-bold",
                                      "meet-bold",
                                      "meetings-bold",
                                      "meetings-presence-badge-filled",
                                      "mention-bold",
                                      "no-devices-bold",
                                      "participant-unknown-bold",
                                      "participant-unknown-regular",
                                      "pause-filled",
                                      "phone-filled",
                                      "pop-out-regular",
                                      "priority-badge-filled",
                                      "private-bold",
                                      "pto-presence-filled",
                                      "quiet-hours-presence-filled",
                                      "recents-presence-badge-filled",
                                      "room-lights-regular",
                                      "share-screen-badge-filled",
                                      "share-screen-bold",
                                      "shield-bold",
                                      "sparkle-filled",
                                      "unread-filled",
                                      "video-effect-filled",
                                      "warning-badge-filled",
                                      "warning-filled"};

struct Rendered {
    bool parsed = false;
    int paintedPixels = 0;
    QSet<QRgb> colours; // opaque-enough pixels, alpha stripped
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
            if (qAlpha(px) > 0)
                ++result.paintedPixels;
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
        const QString text = QString::fromUtf8(file.readAll());
        for (auto m = pattern.globalMatch(text); m.hasNext();) {
            const auto match = m.next();
            found.insert(QStringLiteral(":/") + match.captured(1) + QLatin1Char('/') + match.captured(2));
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
    void initTestCase();
    void requiredIcons_data();
    void requiredIcons();
    void referencedPaths_data();
    void referencedPaths();
    void everyIconIsMonochrome_data();
    void everyIconIsMonochrome();
    void emojis();
};

void TestResources::initTestCase() {
    // Touch the library so that its resources are linked and registered.
    QVERIFY(!KaColorTokenUtils::tokenToString(Karvox::Token(0)).isEmpty());
}

void TestResources::requiredIcons_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : kRequiredIcons)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestResources::requiredIcons() {
    QFETCH(QString, name);
    for (const QString& prefix : {QStringLiteral(":/Resources/"), QStringLiteral("qrc:/Resources/")}) {
        const QString path = prefix + name + QStringLiteral(".svg");
        QVERIFY2(QFile::exists(path.startsWith(QLatin1String("qrc")) ? path.mid(3) : path), qPrintable(path));
    }
    const QString path = QStringLiteral(":/Resources/") + name + QStringLiteral(".svg");
    QSvgRenderer renderer(path);
    QVERIFY2(renderer.isValid(), qPrintable(path));
    const int grid = name.endsWith(QLatin1String("_8")) ? 8 : 16;
    QCOMPARE(renderer.viewBoxF(), QRectF(0, 0, grid, grid));
    const Rendered r = render(path, 16);
    QVERIFY2(r.paintedPixels > 0, qPrintable(path + QLatin1String(" paints nothing at 16 px")));
    // Legible at its own grid: a glyph that vanishes at 8 px is no use there.
    if (grid == 8)
        QVERIFY(render(path, 8).paintedPixels > 0);
}

void TestResources::referencedPaths_data() {
    QTest::addColumn<QString>("path");
    for (const QString& path : ::referencedPaths())
        QTest::newRow(qPrintable(path)) << path;
    if (::referencedPaths().isEmpty())
        QTest::newRow("check-regular (delegate default)") << QStringLiteral(":/Resources/check-regular.svg");
}

void TestResources::referencedPaths() {
    QFETCH(QString, path);
    QVERIFY2(QFile::exists(path),
             qPrintable(path + QLatin1String(" is referenced but not in the resources")));
    const Rendered r = render(path, 16);
    QVERIFY2(r.parsed, qPrintable(path + QLatin1String(" does not parse as SVG")));
    QVERIFY2(r.paintedPixels > 0, qPrintable(path + QLatin1String(" paints nothing at 16 px")));
}

void TestResources::everyIconIsMonochrome_data() {
    QTest::addColumn<QString>("path");
    const QStringList files = QDir(QStringLiteral(":/Resources")).entryList({QStringLiteral("*.svg")});
    QVERIFY(files.size() >= int(std::size(kRequiredIcons)));
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << QStringLiteral(":/Resources/") + file;
}

void TestResources::everyIconIsMonochrome() {
    QFETCH(QString, path);
    // Icons are tinted by replacing their one colour: a second colour would
    // survive the tint as a different shade.
    const Rendered r = render(path, 32);
    QVERIFY(r.parsed);
    QVERIFY(r.paintedPixels > 0);
    QVERIFY2(r.colours.size() <= 1,
             qPrintable(QStringLiteral("%1 uses %2 colours").arg(path).arg(r.colours.size())));
}

void TestResources::emojis() {
    const QStringList files = QDir(QStringLiteral(":/emojis")).entryList({QStringLiteral("*.svg")});
    QVERIFY(files.size() >= 12);
    for (const QString& reaction :
         {QStringLiteral("1f44d.svg"), QStringLiteral("2764.svg"), QStringLiteral("1f606.svg"),
          QStringLiteral("1f62e.svg"), QStringLiteral("1f622.svg"), QStringLiteral("1f620.svg")})
        QVERIFY2(files.contains(reaction), qPrintable(reaction));
    for (const QString& file : files) {
        const Rendered r = render(QStringLiteral(":/emojis/") + file, 32);
        QVERIFY2(r.parsed && r.paintedPixels > 100, qPrintable(file));
    }
}

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
