#include "kacontrolhandle.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QWidget>

KaControlHandle::KaControlHandle(QWidget* widget)
    : m_kind(widget ? Widget : Empty)
    , m_widget(widget) {
    if (!widget)
        qWarning("KaControlHandle: null widget anchor");
}

KaControlHandle::KaControlHandle(QAbstractButton* button)
    : m_kind(button ? Button : Empty)
    , m_widget(button) {
    if (!button)
        qWarning("KaControlHandle: null button anchor");
}

KaControlHandle::KaControlHandle(QQuickItem* item)
    : m_kind(item ? QuickItem : Empty)
    , m_item(item) {
    if (!item)
        qWarning("KaControlHandle: null item anchor");
}

KaControlHandle::KaControlHandle(const QPoint& globalPoint)
    : m_kind(Point)
    , m_point(globalPoint) {}

bool KaControlHandle::isValid() const {
    switch (m_kind) {
    case Widget:
    case Button:
        return !m_widget.isNull();
    case QuickItem:
        return !m_item.isNull();
    case Point:
        return true;
    case Empty:
        break;
    }
    return false;
}

QRect KaControlHandle::globalRect() const {
    switch (m_kind) {
    case Widget:
    case Button:
        if (m_widget)
            return QRect(m_widget->mapToGlobal(QPoint(0, 0)), m_widget->size());
        break;
    case QuickItem:
        if (m_item) {
            const QPointF topLeft = m_item->mapToGlobal(QPointF(0, 0));
            return QRectF(topLeft, QSizeF(m_item->width(), m_item->height())).toAlignedRect();
        }
        break;
    case Point:
        return QRect(m_point, QSize(1, 1));
    case Empty:
        break;
    }
    return QRect();
}

QScreen* KaControlHandle::screen() const {
    if (!isValid())
        return nullptr;
    const QPoint centre = globalRect().center();
    if (QScreen* at = QGuiApplication::screenAt(centre))
        return at;
    // Off every screen (a hidden widget, an item without a window): the
    // screen its window belongs to, then the primary one.
    if (m_widget)
        return m_widget->screen();
    if (m_item && m_item->window())
        return m_item->window()->screen();
    return QGuiApplication::primaryScreen();
}

QWidget* KaControlHandle::widget() const {
    return m_widget.data();
}

QAbstractButton* KaControlHandle::button() const {
    return m_kind == Button ? static_cast<QAbstractButton*>(m_widget.data()) : nullptr;
}

QQuickItem* KaControlHandle::quickItem() const {
    return m_item.data();
}
