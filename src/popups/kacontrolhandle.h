#pragma once

#include "karvex_export.h"

#include <QPoint>
#include <QPointer>
#include <QRect>

class QAbstractButton;
class QQuickItem;
class QScreen;
class QWidget;

// What a popup is anchored to: a widget, a button, a QML item or a bare
// global point. Widgets and items are held by guarded pointers, so a handle
// may outlive its anchor; it then reports itself invalid with a null
// rectangle and no screen, and callers simply do not place anything.
class KARVEX_EXPORT KaControlHandle {
public:
    enum Kind { Empty, Widget, Button, QuickItem, Point };

    KaControlHandle() = default;
    explicit KaControlHandle(QWidget* widget);
    explicit KaControlHandle(QAbstractButton* button);
    explicit KaControlHandle(QQuickItem* item);
    explicit KaControlHandle(const QPoint& globalPoint);

    Kind kind() const { return m_kind; }
    // False for an empty handle and once the anchor has been deleted.
    bool isValid() const;

    // The anchor's rectangle in global coordinates; a point anchor is a 1x1
    // rectangle at the point. Null when the handle is not valid.
    QRect globalRect() const;
    // The screen that holds the anchor's centre (the primary screen for a
    // point off every screen); null when the handle is not valid.
    QScreen* screen() const;

    // The anchor widget (buttons included); null for items, points and
    // deleted anchors.
    QWidget* widget() const;
    QAbstractButton* button() const;
    QQuickItem* quickItem() const;

private:
    Kind m_kind = Empty;
    QPointer<QWidget> m_widget;
    QPointer<QQuickItem> m_item;
    QPoint m_point;
};
