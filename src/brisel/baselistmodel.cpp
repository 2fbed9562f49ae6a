#include "baselistmodel.h"

#include <QtGlobal>

namespace {
// Not checkIndex(): views routinely ask about invalid indexes, and that
// would warn every time.
bool isRowIndex(const QModelIndex& index, const BaseListModel* model, int rows) {
    return index.isValid() && index.model() == model && index.column() == 0 && index.row() < rows;
}
} // namespace

BaseListModel::BaseListModel(QObject* parent)
    : QAbstractListModel(parent) {}

BaseListModel::BaseListModel(const QHash<int, QByteArray>& roleNames, QObject* parent)
    : QAbstractListModel(parent)
    , m_roleNames(roleNames) {}

void BaseListModel::setRoleNames(const QHash<int, QByteArray>& roleNames) {
    if (roleNames == m_roleNames)
        return;
    beginResetModel();
    m_roleNames = roleNames;
    endResetModel();
}

QHash<int, QByteArray> BaseListModel::roleNames() const {
    return m_roleNames.isEmpty() ? QAbstractListModel::roleNames() : m_roleNames;
}

int BaseListModel::rowCount(const QModelIndex& parent) const {
    // A list: only the invisible root has children.
    return parent.isValid() ? 0 : count();
}

QVariant BaseListModel::data(const QModelIndex& index, int role) const {
    if (!isRowIndex(index, this, count()))
        return QVariant();
    const QByteArray name = roleNames().value(role);
    if (name.isEmpty())
        return QVariant();
    return m_rows.at(index.row()).value(QString::fromUtf8(name));
}

bool BaseListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!isRowIndex(index, this, count()))
        return false;
    const QByteArray name = roleNames().value(role);
    if (name.isEmpty())
        return false;
    QVariantMap& row = m_rows[index.row()];
    const QString key = QString::fromUtf8(name);
    if (row.value(key) == value)
        return true;
    row.insert(key, value);
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags BaseListModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

bool BaseListModel::insertRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || count < 1 || row < 0 || row > this->count()) {
        qWarning("BaseListModel: cannot insert %d rows at %d into %d rows", count, row, this->count());
        return false;
    }
    beginInsertRows(QModelIndex(), row, row + count - 1);
    m_rows.insert(row, count, QVariantMap());
    endInsertRows();
    Q_EMIT countChanged();
    return true;
}

bool BaseListModel::removeRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || count < 1 || row < 0 || row + count > this->count()) {
        qWarning("BaseListModel: cannot remove %d rows at %d from %d rows", count, row, this->count());
        return false;
    }
    beginRemoveRows(QModelIndex(), row, row + count - 1);
    m_rows.remove(row, count);
    endRemoveRows();
    Q_EMIT countChanged();
    return true;
}

void BaseListModel::setRows(const QList<QVariantMap>& rows) {
    const int before = count();
    beginResetModel();
    m_rows = rows;
    endResetModel();
    if (count() != before)
        Q_EMIT countChanged();
}

void BaseListModel::appendRow(const QVariantMap& row) {
    insertRow(count(), row);
}

bool BaseListModel::insertRow(int row, const QVariantMap& values) {
    if (row < 0 || row > count()) {
        qWarning("BaseListModel: cannot insert a row at %d into %d rows", row, count());
        return false;
    }
    beginInsertRows(QModelIndex(), row, row);
    m_rows.insert(row, values);
    endInsertRows();
    Q_EMIT countChanged();
    return true;
}

bool BaseListModel::setRow(int row, const QVariantMap& values) {
    if (row < 0 || row >= count()) {
        qWarning("BaseListModel: no row %d to replace in %d rows", row, count());
        return false;
    }
    QList<int> changedRoles;
    const QHash<int, QByteArray> names = roleNames();
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        const QString key = QString::fromUtf8(it.value());
        if (m_rows.at(row).value(key) != values.value(key))
            changedRoles.append(it.key());
    }
    m_rows[row] = values;
    if (!changedRoles.isEmpty()) {
        const QModelIndex idx = index(row);
        Q_EMIT dataChanged(idx, idx, changedRoles);
    }
    return true;
}

bool BaseListModel::remove(int row, int count) {
    return removeRows(row, count);
}

void BaseListModel::clear() {
    if (m_rows.isEmpty())
        return;
    beginResetModel();
    m_rows.clear();
    endResetModel();
    Q_EMIT countChanged();
}

QVariantMap BaseListModel::get(int row) const {
    if (row < 0 || row >= count()) {
        qWarning("BaseListModel: no row %d in %d rows", row, count());
        return QVariantMap();
    }
    return m_rows.at(row);
}
