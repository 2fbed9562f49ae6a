#pragma once

#include "karvex_export.h"

#include <QList>
#include <QPixmap>
#include <QString>
#include <QStringView>

// The library's one emoji lookup: finding emoji sequences in text and the
// images under ":/emojis/" that draw them. An image is named after its
// sequence: lower-case hexadecimal code points joined by '-'
// ("1f44d-1f3fd.svg" for a thumbs up with a skin tone).
namespace KaEmojiUtils {

// One emoji sequence in a text: a pictograph with its variation selector,
// skin tone, keycap or tags, and everything joined to it by zero-width
// joiners; a pair of regional indicators (a flag); or a keycap sequence.
struct Cluster {
    int start = 0;  // in UTF-16 units
    int length = 0; // in UTF-16 units
    QString key;    // "1f44d-1f3fd"
};

// Whether `text` may hold an emoji: one pass over the UTF-16 units, no
// allocation. False means clusters() would find none.
KARVEX_EXPORT bool mayContainEmoji(QStringView text);

// The emoji sequences of `text`, in order.
KARVEX_EXPORT QList<Cluster> clusters(QStringView text);

// ":/emojis/<key>.svg", or the same without variation selectors, when such
// a file exists; empty otherwise. Answers are remembered.
KARVEX_EXPORT QString imagePath(const QString& key);

// Whether the file at `path` renders. A file that does not is reported
// with one warning, however often it is asked for.
KARVEX_EXPORT bool isImageValid(const QString& path);

// The image at `path` rendered at `size` logical pixels for `ratio`, from a
// shared cache. A file that does not render gives a transparent picture of
// that size.
KARVEX_EXPORT QPixmap image(const QString& path, const QSize& size, qreal ratio);

} // namespace KaEmojiUtils
