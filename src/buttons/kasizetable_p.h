#pragma once

#include "kabuttonconfigrecord.h"
#include "kacolortokenutils.h"

#include <QSize>

#include <cstddef>

// What the button configurations share: size tables, colour-set names and
// the start of a variant's geometry record.
namespace KaSizeTable {

// One row of a size table. A size without a row keeps the record defaults.
template <typename Row> struct Entry {
    int size;
    Row row;
};

// The row of `size`, or null.
template <typename Row, std::size_t N> const Row* find(const Entry<Row> (&table)[N], int size) {
    for (const Entry<Row>& entry : table) {
        if (entry.size == size)
            return &entry.row;
    }
    return nullptr;
}

// The columns of the looks with a text line: pill, link, reaction chip and
// the dual button's label cell.
struct TextRow {
    int fontToken;
    int height;
    int icon;
    int spacing;
    int padding;
    int innerMetric;
};

// A square face (or circle) and its centred icon.
struct SquareRow {
    int side;
    int icon;
};

inline void applyText(KaButtonConfigRecord& out, const TextRow& row) {
    out.fontToken = row.fontToken;
    out.fixedHeight = row.height;
    out.innerMetric = row.innerMetric;
}

// An optional icon takes the row's size and spacing only while shown.
inline void iconSlot(bool shown, const TextRow& row, QSize& size, int& spacing) {
    size = shown ? QSize(row.icon, row.icon) : QSize(0, 0);
    spacing = shown ? row.spacing : 0;
}

inline QString name(Karvox::Token token) {
    return KaColorTokenUtils::tokenToString(token);
}

// Starts a variant's geometry record from its configuration's fillConfig().
template <typename Geometry, typename Config> void start(Geometry& out, const Config& config) {
    KaButtonConfigRecord base;
    config.fillConfig(base);
    out = Geometry();
    static_cast<KaButtonConfigRecord&>(out) = base;
}

} // namespace KaSizeTable
