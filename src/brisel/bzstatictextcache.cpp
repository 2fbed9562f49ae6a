#include "bzstatictextcache_p.h"

#include <QCache>
#include <QHashFunctions>
#include <QStaticText>
#include <QTextOption>
#include <QTransform>

namespace {

struct Key {
    QString text;
    QFont font;
    Qt::LayoutDirection direction;

    bool operator==(const Key& other) const {
        return direction == other.direction && text == other.text && font == other.font;
    }
};

size_t qHash(const Key& key, size_t seed = 0) {
    return qHashMulti(seed, key.text, key.font, int(key.direction));
}

QCache<Key, QStaticText>& cache() {
    static QCache<Key, QStaticText> entries(BzStaticTextCache::kCapacity);
    return entries;
}

} // namespace

const QStaticText& BzStaticTextCache::get(const QString& text, const QFont& font,
                                          Qt::LayoutDirection direction) {
    Key key{text, font, direction};
    if (QStaticText* hit = cache().object(key))
        return *hit;
    auto* prepared = new QStaticText(text);
    prepared->setTextFormat(Qt::PlainText);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(direction);
    prepared->setTextOption(option);
    prepared->prepare(QTransform(), font);
    cache().insert(std::move(key), prepared);
    return *prepared;
}
