#include "kaemojiutils.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace KaEmojiUtils {

namespace {

constexpr char32_t kZeroWidthJoiner = 0x200D;
constexpr char32_t kKeycap = 0x20E3;

bool isRegionalIndicator(char32_t c) {
    return c >= 0x1F1E6 && c <= 0x1F1FF;
}

bool isKeycapBase(char32_t c) {
    return (c >= '0' && c <= '9') || c == '#' || c == '*';
}

// Code points that start an emoji presentation (the pictographic blocks and
// the few older symbols that have one).
bool isPictograph(char32_t c) {
    return (c >= 0x1F000 && c <= 0x1FAFF) || (c >= 0x2600 && c <= 0x27BF) || (c >= 0x2300 && c <= 0x23FF) ||
           (c >= 0x2B00 && c <= 0x2BFF) || (c >= 0x2190 && c <= 0x21FF) || (c >= 0x25A0 && c <= 0x25FF) ||
           c == 0x203C || c == 0x2049 || c == 0x2122 || c == 0x2139 || c == 0x24C2 || c == 0x3030 ||
           c == 0x303D || c == 0x3297 || c == 0x3299 || c == 0xA9 || c == 0xAE;
}

// What may follow a pictograph within its sequence.
bool isExtender(char32_t c) {
    return c == 0xFE0F || c == 0xFE0E || (c >= 0x1F3FB && c <= 0x1F3FF) || c == kKeycap ||
           (c >= 0xE0020 && c <= 0xE007F);
}

// The code point at `i` and its length in UTF-16 units.
char32_t codePointAt(QStringView text, int i, int* units) {
    const QChar c = text[i];
    if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
        *units = 2;
        return QChar::surrogateToUcs4(c, text[i + 1]);
    }
    *units = 1;
    return c.unicode();
}

QString keyOf(QStringView sequence) {
    QString key;
    for (char32_t c : sequence.toUcs4()) {
        if (!key.isEmpty())
            key += QLatin1Char('-');
        key += QString::number(uint(c), 16).rightJustified(4, QLatin1Char('0'));
    }
    return key;
}

bool exists(const QString& path) {
    return QFile::exists(path);
}

} // namespace

bool mayContainEmoji(QStringView text) {
    for (const QChar ch : text) {
        const char16_t u = ch.unicode();
        // Symbols, pictograph blocks (reached through high surrogates),
        // keycaps, joiners and the two old-style marks.
        if ((u >= 0x2000 && u < 0x3300) || (u >= 0xD83C && u <= 0xDB40) || u == 0xA9 || u == 0xAE)
            return true;
    }
    return false;
}

QList<Cluster> clusters(QStringView text) {
    QList<Cluster> result;
    const int n = int(text.size());
    int i = 0;
    while (i < n) {
        int units = 0;
        const char32_t c = codePointAt(text, i, &units);
        int end = i + units;
        bool found = false;
        if (isRegionalIndicator(c)) {
            found = true;
            int next = 0;
            if (end < n && isRegionalIndicator(codePointAt(text, end, &next)))
                end += next;
        } else if (isKeycapBase(c)) {
            int j = end;
            int next = 0;
            if (j < n && codePointAt(text, j, &next) == 0xFE0F)
                j += next;
            if (j < n && codePointAt(text, j, &next) == kKeycap) {
                end = j + next;
                found = true;
            }
        } else if (isPictograph(c)) {
            found = true;
            while (end < n) {
                int next = 0;
                const char32_t following = codePointAt(text, end, &next);
                if (isExtender(following)) {
                    end += next;
                    continue;
                }
                int joined = 0;
                if (following == kZeroWidthJoiner && end + next < n &&
                    isPictograph(codePointAt(text, end + next, &joined))) {
                    end += next + joined;
                    continue;
                }
                break;
            }
        }
        if (found)
            result.append({i, end - i, keyOf(text.mid(i, end - i))});
        i = end;
    }
    return result;
}

QString imagePath(const QString& key) {
    static QHash<QString, QString> paths;
    const auto it = paths.constFind(key);
    if (it != paths.constEnd())
        return *it;
    QString path = QStringLiteral(":/emojis/%1.svg").arg(key);
    if (!exists(path)) {
        // Images are named without the presentation selector too.
        QString bare = key;
        bare.remove(QLatin1String("-fe0f")).remove(QLatin1String("-fe0e"));
        path = bare != key ? QStringLiteral(":/emojis/%1.svg").arg(bare) : QString();
        if (!path.isEmpty() && !exists(path))
            path.clear();
    }
    // Bounded like the base layer's tables: text can name endless sequences.
    if (paths.size() >= 1024)
        paths.clear();
    paths.insert(key, path);
    return path;
}

bool isImageValid(const QString& path) {
    static QHash<QString, bool> valid;
    const auto it = valid.constFind(path);
    if (it != valid.constEnd())
        return *it;
    const bool ok = !path.isEmpty() && QSvgRenderer(path).isValid();
    if (!ok)
        qWarning("KaEmojiUtils: cannot read the emoji image \"%s\"", qPrintable(path));
    // Asked for the paths imagePath() found: as many as there are images.
    valid.insert(path, ok);
    return ok;
}

QPixmap image(const QString& path, const QSize& size, qreal ratio) {
    const QSize pixels(int(size.width() * ratio), int(size.height() * ratio));
    if (pixels.isEmpty())
        return QPixmap();
    const QString cacheKey =
        QStringLiteral("kaemoji:%1:%2x%3").arg(path).arg(pixels.width()).arg(pixels.height());
    QPixmap pixmap;
    if (QPixmapCache::find(cacheKey, &pixmap))
        return pixmap;
    QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    if (isImageValid(path)) {
        QPainter painter(&canvas);
        QSvgRenderer(path).render(&painter, QRectF(QPointF(0, 0), QSizeF(pixels)));
    }
    pixmap = QPixmap::fromImage(canvas);
    pixmap.setDevicePixelRatio(ratio);
    QPixmapCache::insert(cacheKey, pixmap);
    return pixmap;
}

} // namespace KaEmojiUtils
