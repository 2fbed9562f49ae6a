#pragma once

#include "baselistmodel.h"
#include "karvex_export.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

// Menu entries kept in a list model: each row holds one item, separator or
// banner description under the role "kaMenuListModelItem". QmlKaMenuData
// adds the rows after its own `menu` list. A description destroyed while it
// is in the model takes its row with it.
class KARVEX_EXPORT KaMenuListModel : public BaseListModel {
    Q_OBJECT
    QML_ELEMENT

public:
    enum KaMenuListModelRoles : int { KaMenuListModelItem = Qt::UserRole + 1 };
    Q_ENUM(KaMenuListModelRoles)

    explicit KaMenuListModel(QObject* parent = nullptr);
    ~KaMenuListModel() override;

    // Shorthand for appendRow({kaMenuListModelItem: item}).
    Q_INVOKABLE void appendItem(QObject* item);
    // The description of every row, in row order; rows without one are skipped.
    QList<QObject*> items() const;

private:
    void watchRows(int first, int last);
    void onItemDestroyed(QObject* item);
};
