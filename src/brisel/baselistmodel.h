#pragma once

#include "brisel_export.h"

#include <QAbstractListModel>
#include <QByteArray>
#include <QHash>
#include <QList>
#include <QVariantMap>

// A flat list model whose rows are maps from role name to value, for models
// that are mostly filled from code or QML and read by views and delegates.
// Without role names of its own it uses QAbstractItemModel's defaults
// ("display", "edit", "toolTip", ...).
class BRISEL_EXPORT BaseListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    explicit BaseListModel(QObject* parent = nullptr);
    explicit BaseListModel(const QHash<int, QByteArray>& roleNames, QObject* parent = nullptr);

    // Resets the model: existing views must look the roles up again.
    void setRoleNames(const QHash<int, QByteArray>& roleNames);
    QHash<int, QByteArray> roleNames() const override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    // False for an invalid index or a role without a name; true without a
    // dataChanged() when the value is already the stored one.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Inserts empty rows, so the generic QAbstractItemModel API works too.
    bool insertRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    int count() const { return int(m_rows.size()); }
    QList<QVariantMap> getRows() const { return m_rows; }
    void setRows(const QList<QVariantMap>& rows);

    Q_INVOKABLE void appendRow(const QVariantMap& row);
    using QAbstractListModel::insertRow;
    // `row` may be count() to append; anything else out of range is refused.
    Q_INVOKABLE bool insertRow(int row, const QVariantMap& values);
    // Replaces a whole row; dataChanged() names every role whose value differs.
    Q_INVOKABLE bool setRow(int row, const QVariantMap& values);
    // QML has no QAbstractItemModel::removeRow(); the same, invokable.
    Q_INVOKABLE bool remove(int row, int count = 1);
    Q_INVOKABLE void clear();
    // The row's map, or an empty map (with a warning) out of range.
    Q_INVOKABLE QVariantMap get(int row) const;

Q_SIGNALS:
    void countChanged();

private:
    QList<QVariantMap> m_rows;
    QHash<int, QByteArray> m_roleNames;
};
