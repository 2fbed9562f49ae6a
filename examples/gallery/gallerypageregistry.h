#pragma once

#include <QString>

#include <functional>
#include <vector>

class GalleryPage;

// The pages of the gallery, in list order. A subsystem shows up in the
// gallery by adding one entry to the table in gallerypageregistry.cpp.
class GalleryPageRegistry {
public:
    struct Entry {
        // Stable, used by --page and in screenshot file names.
        QString id;
        // Source text in the "GalleryPages" context; see title().
        const char* title;
        std::function<GalleryPage*()> create;
    };

    static const std::vector<Entry>& entries();
    // Index of the page `id`, -1 when there is none.
    static int indexOf(const QString& id);
    // The entry's title in the current language.
    static QString title(const Entry& entry);
};
