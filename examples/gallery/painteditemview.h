#pragma once

#include <QWidget>

// Base of the gallery's views that paint many items themselves (the icon
// sheet, the colour-token swatches). Screen readers see such a view as a
// list with one named item per painted cell instead of one empty area.
class PaintedItemView : public QWidget {
    Q_OBJECT
public:
    explicit PaintedItemView(QWidget* parent = nullptr);

    virtual int itemCount() const = 0;
    virtual QString itemName(int index) const = 0;
    virtual QString itemDescription(int index) const;
    // In widget coordinates.
    virtual QRect itemRect(int index) const = 0;
    // -1 outside every item.
    virtual int itemAt(const QPoint& pos) const = 0;

protected:
    // Call when items were added or removed.
    void itemsChanged();
};
