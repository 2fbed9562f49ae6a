#pragma once

#include "kamenuenum.h"
#include "kapopupenum.h"
#include "karvex_export.h"

#include <QObject>
#include <QPointer>
#include <QQmlListProperty>
#include <QtQml/qqmlregistration.h>

#include <memory>

class KaMenu;
class KaMenuListModel;
class QmlKaMenuItemData;
class QQuickItem;

// A menu described in QML, attached to the item it pops up at:
//
//     Item {
//         QmlKaMenuData.menu: [ QmlKaMenuItemData { title: "Copy" } ]
//         TapHandler { onTapped: parent.QmlKaMenuData.doPopup() }
//     }
//
// doPopup() builds a fresh native KaMenu from the descriptions of `menu`,
// then from the rows of `kaMenuListModel`, and shows it against the item.
// The menu deletes itself when it closes; the descriptions stay with QML.
class QmlKaObjectList;

class KARVEX_EXPORT QmlKaMenuData : public QObject {
    Q_OBJECT
    QML_ATTACHED(QmlKaMenuData)
    Q_PROPERTY(QQmlListProperty<QObject> menu READ menu NOTIFY menuChanged)
    Q_PROPERTY(KaMenuListModel* kaMenuListModel READ kaMenuListModel WRITE setKaMenuListModel NOTIFY
                   kaMenuListModelChanged)
    Q_PROPERTY(KaMenuEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaMenuEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(KaPopupEnum::Alignment alignment READ alignment WRITE setAlignment NOTIFY alignmentChanged)
    Q_PROPERTY(bool active READ active NOTIFY activeChanged)

public:
    // `parent` is the item the menu pops up at; anything but a QQuickItem
    // is reported and leaves doPopup() without an anchor.
    explicit QmlKaMenuData(QObject* parent = nullptr);
    ~QmlKaMenuData() override;

    static QmlKaMenuData* qmlAttachedProperties(QObject* object);

    QQmlListProperty<QObject> menu();
    QList<QObject*> menuObjects() const;

    KaMenuListModel* kaMenuListModel() const { return m_model; }
    void setKaMenuListModel(KaMenuListModel* model);
    // Out-of-range values are refused with a warning.
    KaMenuEnum::Style style() const { return m_style; }
    void setStyle(KaMenuEnum::Style style);
    KaMenuEnum::Size size() const { return m_size; }
    void setSize(KaMenuEnum::Size size);
    KaPopupEnum::Alignment alignment() const { return m_alignment; }
    void setAlignment(KaPopupEnum::Alignment alignment);
    // True while the menu built by doPopup(), or one of its sub-menus, shows.
    bool active() const { return m_active; }

    Q_INVOKABLE void doPopup(bool showArrow = true);

Q_SIGNALS:
    void menuChanged();
    void kaMenuListModelChanged();
    void styleChanged();
    void sizeChanged();
    void alignmentChanged();
    void activeChanged();

private:
    void addObject(KaMenu* menu, QObject* object);
    void addItem(KaMenu* menu, QmlKaMenuItemData* item);
    void setActive(bool active);
    void onMenuAboutToShow();
    void onMenuAboutToHide();

    QPointer<QQuickItem> m_item;
    std::unique_ptr<QmlKaObjectList> m_menu;
    QPointer<KaMenuListModel> m_model;
    KaMenuEnum::Style m_style = KaMenuEnum::Normal;
    KaMenuEnum::Size m_size = KaMenuEnum::Medium;
    KaPopupEnum::Alignment m_alignment = KaPopupEnum::Bottom;
    bool m_active = false;
};
