#include "kamenulistmodel.h"

#include <QVariantMap>

namespace {
QObject* itemOf(const QVariant& value) {
    return value.value<QObject*>();
}
} // namespace

KaMenuListModel::KaMenuListModel(QObject* parent)
    : BaseListModel({{KaMenuListModelItem, QByteArrayLiteral("kaMenuListModelItem")}}, parent) {
    connect(this, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { watchRows(first, last); });
    connect(this, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                watchRows(topLeft.row(), bottomRight.row());
            });
    connect(this, &QAbstractItemModel::modelReset, this, [this] { watchRows(0, count() - 1); });
}

KaMenuListModel::~KaMenuListModel() = default;

void KaMenuListModel::appendItem(QObject* item) {
    if (!item) {
        qWarning("KaMenuListModel::appendItem: null item ignored");
        return;
    }
    appendRow({{QStringLiteral("kaMenuListModelItem"), QVariant::fromValue(item)}});
}

QList<QObject*> KaMenuListModel::items() const {
    QList<QObject*> result;
    for (int row = 0; row < count(); ++row) {
        if (QObject* item = itemOf(data(index(row), KaMenuListModelItem)))
            result.append(item);
    }
    return result;
}

void KaMenuListModel::watchRows(int first, int last) {
    for (int row = first; row <= last; ++row) {
        if (QObject* item = itemOf(data(index(row), KaMenuListModelItem)))
            connect(item, &QObject::destroyed, this, &KaMenuListModel::onItemDestroyed, Qt::UniqueConnection);
    }
}

void KaMenuListModel::onItemDestroyed(QObject* item) {
    // Rows hold plain pointers: drop them before anyone reads them again.
    for (int row = count() - 1; row >= 0; --row) {
        if (itemOf(data(index(row), KaMenuListModelItem)) == item)
            remove(row);
    }
}
