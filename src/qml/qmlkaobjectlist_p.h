#pragma once

#include <QList>
#include <QObject>
#include <QQmlListProperty>

#include <functional>

// The storage behind a QML list property of descriptions: append, count, at,
// clear, replace and remove-last, as QML's list operations expect. Objects
// belong to QML and may be destroyed at any time; a destroyed one leaves the
// list, so readers never see a dangling pointer.
class QmlKaObjectList {
public:
    // `owner` scopes the destruction watches; `changed` runs after every change.
    QmlKaObjectList(QObject* owner, std::function<void()> changed)
        : m_owner(owner)
        , m_changed(std::move(changed)) {}

    QQmlListProperty<QObject> property() {
        return QQmlListProperty<QObject>(m_owner, this, &appendTo, &countOf, &atOf, &clearOf, &replaceIn,
                                         &removeLastOf);
    }
    const QList<QObject*>& objects() const { return m_objects; }

    void append(QObject* object) {
        if (!object) {
            qWarning("QmlKaObjectList: a null object cannot be a menu entry; ignored");
            return;
        }
        watch(object);
        m_objects.append(object);
        m_changed();
    }
    void clear() {
        if (m_objects.isEmpty())
            return;
        m_objects.clear();
        m_changed();
    }
    void replace(qsizetype index, QObject* object) {
        if (index < 0 || index >= m_objects.size() || !object) {
            qWarning("QmlKaObjectList: cannot replace entry %lld; ignored", static_cast<long long>(index));
            return;
        }
        watch(object);
        m_objects[index] = object;
        m_changed();
    }
    void removeLast() {
        if (m_objects.isEmpty())
            return;
        m_objects.removeLast();
        m_changed();
    }

private:
    void watch(QObject* object) {
        QObject::connect(object, &QObject::destroyed, m_owner, [this](QObject* gone) {
            if (m_objects.removeAll(gone) > 0)
                m_changed();
        });
    }

    static QmlKaObjectList* self(QQmlListProperty<QObject>* list) {
        return static_cast<QmlKaObjectList*>(list->data);
    }
    static void appendTo(QQmlListProperty<QObject>* list, QObject* object) { self(list)->append(object); }
    static qsizetype countOf(QQmlListProperty<QObject>* list) { return self(list)->m_objects.size(); }
    static QObject* atOf(QQmlListProperty<QObject>* list, qsizetype index) {
        const auto& objects = self(list)->m_objects;
        return index >= 0 && index < objects.size() ? objects.at(index) : nullptr;
    }
    static void clearOf(QQmlListProperty<QObject>* list) { self(list)->clear(); }
    static void replaceIn(QQmlListProperty<QObject>* list, qsizetype index, QObject* object) {
        self(list)->replace(index, object);
    }
    static void removeLastOf(QQmlListProperty<QObject>* list) { self(list)->removeLast(); }

    QObject* m_owner;
    std::function<void()> m_changed;
    QList<QObject*> m_objects;
};
