#pragma once

#include "karvex_export.h"

#include <QPointer>
#include <QWidget>

class QHBoxLayout;

// Wraps any widget as a menu entry. The pointer entering the container or
// the wrapped widget is reported by hovered(), so the menu can highlight the
// entry as it does its own items.
class KARVEX_EXPORT KaMenuItemContainer : public QWidget {
    Q_OBJECT

public:
    explicit KaMenuItemContainer(QWidget* parent = nullptr);
    ~KaMenuItemContainer() override;

    // Takes ownership of `widget` and fills the container with it; the one
    // there before is deleted. Null empties the container.
    void setWidget(QWidget* widget);
    QWidget* widget() const { return m_widget; }

public Q_SLOTS:
    void onHover();

Q_SIGNALS:
    void hovered();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QHBoxLayout* m_layout;
    QPointer<QWidget> m_widget;
};
