#pragma once

#include <QFont>
#include <QString>

class QStaticText;

// Prepared single-line texts shared by every widget that paints them. A
// widget keeps nothing of its own: painting looks the text up by text, font
// and direction, so buttons with the same caption share one layout, and a
// screen full of distinct captions holds at most the cache's capacity.
namespace BzStaticTextCache {

// The prepared text; valid until the next call.
const QStaticText& get(const QString& text, const QFont& font, Qt::LayoutDirection direction);

// Entries kept; the least recently painted go first.
constexpr int kCapacity = 1024;

} // namespace BzStaticTextCache
