#include "painteditemview.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <vector>

namespace {

// One painted item. Not backed by an object: the list creates and owns it.
class PaintedItemAccessible : public QAccessibleInterface {
public:
    PaintedItemAccessible(PaintedItemView* view, int index)
        : m_view(view)
        , m_index(index) {}

    bool isValid() const override { return m_view && m_index < m_view->itemCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text t) const override {
        if (!isValid())
            return QString();
        if (t == QAccessible::Name)
            return m_view->itemName(m_index);
        if (t == QAccessible::Description)
            return m_view->itemDescription(m_index);
        return QString();
    }

    QRect rect() const override {
        if (!isValid())
            return QRect();
        const QRect local = m_view->itemRect(m_index);
        return QRect(m_view->mapToGlobal(local.topLeft()), local.size());
    }

    QAccessible::State state() const override {
        QAccessible::State st;
        st.readOnly = true;
        // Scrolled out of sight, like the cells of Qt's item views.
        if (!isValid() || !m_view->isVisible() ||
            !m_view->visibleRegion().intersects(m_view->itemRect(m_index)))
            st.offscreen = true;
        return st;
    }

    int index() const { return m_index; }

private:
    QPointer<PaintedItemView> m_view;
    int m_index;
};

class PaintedListAccessible : public QAccessibleWidget {
public:
    explicit PaintedListAccessible(PaintedItemView* view)
        : QAccessibleWidget(view, QAccessible::List) {}
    ~PaintedListAccessible() override { reset(); }

    PaintedItemView* view() const { return static_cast<PaintedItemView*>(widget()); }

    int childCount() const override { return view()->itemCount(); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        if (size_t(index) >= m_ids.size())
            m_ids.resize(size_t(childCount()), 0);
        QAccessible::Id& id = m_ids[size_t(index)];
        if (!id)
            id = QAccessible::registerAccessibleInterface(new PaintedItemAccessible(view(), index));
        return QAccessible::accessibleInterface(id);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* item = dynamic_cast<const PaintedItemAccessible*>(child);
        return item && item->parent() == this ? item->index() : -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        return child(view()->itemAt(view()->mapFromGlobal(QPoint(x, y))));
    }

    // Forgets the item interfaces; they are made again when asked for.
    void reset() {
        for (QAccessible::Id id : m_ids) {
            if (id)
                QAccessible::deleteAccessibleInterface(id);
        }
        m_ids.clear();
    }

private:
    mutable std::vector<QAccessible::Id> m_ids;
};

QAccessibleInterface* factory(const QString&, QObject* object) {
    if (auto* view = qobject_cast<PaintedItemView*>(object))
        return new PaintedListAccessible(view);
    return nullptr;
}

} // namespace

PaintedItemView::PaintedItemView(QWidget* parent)
    : QWidget(parent) {
    static const bool installed = [] {
        QAccessible::installFactory(factory);
        return true;
    }();
    Q_UNUSED(installed)
}

QString PaintedItemView::itemDescription(int) const {
    return QString();
}

void PaintedItemView::itemsChanged() {
    if (auto* list = dynamic_cast<PaintedListAccessible*>(QAccessible::queryAccessibleInterface(this)))
        list->reset();
    QAccessibleEvent event(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}
