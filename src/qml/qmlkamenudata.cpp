#include "qmlkamenudata.h"

#include "kacustomizedseparatoritemdata.h"
#include "kadiscoverabilitybanner.h"
#include "kadiscoverabilitybannerdata.h"
#include "kamenu.h"
#include "kamenuaction.h"
#include "kamenuitemdata.h"
#include "kamenulistmodel.h"
#include "qmlkadescriptionutils_p.h"
#include "qmlkadiscoverabilitybannerdata.h"
#include "qmlkamenuitemdata.h"
#include "qmlkamenuseparatordata.h"
#include "qmlkaobjectlist_p.h"

#include <QApplication>
#include <QQuickItem>
#include <QWidgetAction>

namespace {
KaMenuItemData itemRecord(const QmlKaMenuItemData& item) {
    KaMenuItemData data;
    data.objectName = item.objectName();
    data.title = item.title();
    data.subText = item.subText();
    data.tooltip = item.tooltip();
    data.accessibleName = item.accessibleName();
    data.leftIcon = item.leftIcon();
    data.leftText = item.leftText();
    data.leftTextColorSet = item.leftTextColorSet();
    data.rightIcon = item.rightIcon();
    data.leftIconColorSet = item.leftIconColorSet();
    data.rightIconColorSet = item.rightIconColorSet();
    data.rightIconTooltip = item.rightIconTooltip();
    data.badgeText = item.badgeText();
    data.labelType = item.labelType();
    data.showDiscoverabilityLabel = item.showDiscoverabilityLabel();
    data.checkable = item.checkable();
    data.checked = item.checked();
    data.enabled = item.enabled();
    data.isAlert = item.isAlert();
    data.firstAction = item.firstAction();
    data.minimumWidth = item.minimumWidth();
    data.maximumWidth = item.maximumWidth();
    return data;
}

KaCustomizedSeparatorItemData headerRecord(const QmlKaMenuSeparatorData& separator) {
    KaCustomizedSeparatorItemData data;
    data.objectName = separator.objectName();
    data.text = separator.text();
    data.textColorSetName = separator.textColorSetName();
    data.leftPadding = separator.leftPadding();
    data.rightPadding = separator.rightPadding();
    data.maximumWidth = separator.maximumWidth();
    data.itemHeight = separator.itemHeight();
    data.autoWrap = separator.autoWrap();
    return data;
}

void addSeparator(KaMenu* menu, const QmlKaMenuSeparatorData& separator) {
    if (!separator.text().isEmpty())
        menu->addSeparator(headerRecord(separator));
    if (separator.showSeperatorLine()) {
        if (separator.group())
            menu->addGroupSeparator();
        else
            menu->addSeparator();
    }
}

void addBanner(KaMenu* menu, QmlKaDiscoverabilityBannerData* banner) {
    if (banner->bannerText().isEmpty())
        return;
    KaDiscoverabilityBannerData data;
    data.text = banner->bannerText();
    data.type = banner->bannerType();
    data.width = banner->bannerWidth();
    QWidgetAction* action = menu->addDiscoverabilityBanner(data);
    // The banner's dismissal belongs to the description too. The menu may
    // hold the banner inside a container of its own.
    QWidget* entry = action ? action->defaultWidget() : nullptr;
    auto* shown = qobject_cast<KaDiscoverabilityBanner*>(entry);
    if (!shown && entry)
        shown = entry->findChild<KaDiscoverabilityBanner*>();
    if (shown)
        QObject::connect(shown, &KaDiscoverabilityBanner::dismissed, banner,
                         &QmlKaDiscoverabilityBannerData::dismissed);
}
} // namespace

QmlKaMenuData::QmlKaMenuData(QObject* parent)
    : QObject(parent)
    , m_item(qobject_cast<QQuickItem*>(parent))
    , m_menu(std::make_unique<QmlKaObjectList>(this, [this] { Q_EMIT menuChanged(); })) {
    if (!m_item)
        qWarning("QmlKaMenuData parent needs to be QQuickItem.");
}

QmlKaMenuData::~QmlKaMenuData() = default;

QmlKaMenuData* QmlKaMenuData::qmlAttachedProperties(QObject* object) {
    return new QmlKaMenuData(object);
}

QQmlListProperty<QObject> QmlKaMenuData::menu() {
    return m_menu->property();
}

QList<QObject*> QmlKaMenuData::menuObjects() const {
    return m_menu->objects();
}

void QmlKaMenuData::setKaMenuListModel(KaMenuListModel* model) {
    if (model == m_model)
        return;
    if (m_model)
        disconnect(m_model, &QObject::destroyed, this, &QmlKaMenuData::kaMenuListModelChanged);
    m_model = model;
    if (m_model)
        connect(m_model, &QObject::destroyed, this, &QmlKaMenuData::kaMenuListModelChanged);
    Q_EMIT kaMenuListModelChanged();
}

void QmlKaMenuData::setStyle(KaMenuEnum::Style style) {
    if (style < KaMenuEnum::Normal || style > KaMenuEnum::Circular) {
        qWarning("QmlKaMenuData::setStyle: %d is not a menu style; ignored", int(style));
        return;
    }
    if (QmlKaDescriptionUtils::assign(m_style, style))
        Q_EMIT styleChanged();
}

void QmlKaMenuData::setSize(KaMenuEnum::Size size) {
    if (size < KaMenuEnum::Small || size > KaMenuEnum::Large) {
        qWarning("QmlKaMenuData::setSize: %d is not a menu size; ignored", int(size));
        return;
    }
    if (QmlKaDescriptionUtils::assign(m_size, size))
        Q_EMIT sizeChanged();
}

void QmlKaMenuData::setAlignment(KaPopupEnum::Alignment alignment) {
    if (alignment < KaPopupEnum::None || alignment > KaPopupEnum::Bottom) {
        qWarning("QmlKaMenuData::setAlignment: %d is not a popup alignment; ignored", int(alignment));
        return;
    }
    if (QmlKaDescriptionUtils::assign(m_alignment, alignment))
        Q_EMIT alignmentChanged();
}

void QmlKaMenuData::setActive(bool active) {
    if (QmlKaDescriptionUtils::assign(m_active, active))
        Q_EMIT activeChanged();
}

void QmlKaMenuData::onMenuAboutToShow() {
    setActive(true);
}

void QmlKaMenuData::onMenuAboutToHide() {
    setActive(false);
}

void QmlKaMenuData::doPopup(bool showArrow) {
    if (!m_item) {
        qWarning("Parent is not QQuickItem or is null.");
        return;
    }
    // The menu is a widget: the qml tool, for one, runs a QGuiApplication
    // unless it is told --apptype widget.
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        qWarning("QmlKaMenuData::doPopup: menus need a QApplication; nothing shown");
        return;
    }
    auto* menu = new KaMenu(QApplication::activeWindow());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyle(m_style);
    menu->setSize(m_size);
    for (QObject* object : menuObjects())
        addObject(menu, object);
    if (m_model) {
        for (QObject* object : m_model->items())
            addObject(menu, object);
    }
    menu->popupAt(m_item.data(), m_alignment, showArrow);
}

void QmlKaMenuData::addObject(KaMenu* menu, QObject* object) {
    // Unique: a menu gets many entries but should report its showing once.
    connect(menu, &QMenu::aboutToShow, this, &QmlKaMenuData::onMenuAboutToShow, Qt::UniqueConnection);
    connect(menu, &QMenu::aboutToHide, this, &QmlKaMenuData::onMenuAboutToHide, Qt::UniqueConnection);
    if (auto* item = qobject_cast<QmlKaMenuItemData*>(object))
        addItem(menu, item);
    else if (auto* separator = qobject_cast<QmlKaMenuSeparatorData*>(object))
        addSeparator(menu, *separator);
    else if (auto* banner = qobject_cast<QmlKaDiscoverabilityBannerData*>(object))
        addBanner(menu, banner);
}

void QmlKaMenuData::addItem(KaMenu* menu, QmlKaMenuItemData* item) {
    if (!item->visible())
        return;
    const KaMenuItemData data = itemRecord(*item);
    QAction* action = nullptr;
    if (!item->menuObjects().isEmpty()) {
        auto* subMenu = new KaMenu(menu);
        for (QObject* child : item->menuObjects())
            addObject(subMenu, child);
        // The sub-menu takes this menu's style and size here.
        action = menu->addMenu(data, subMenu);
    } else {
        action = menu->addMenuItem(data);
    }
    if (!action)
        return;
    connect(action, &QAction::triggered, item, &QmlKaMenuItemData::triggered, Qt::UniqueConnection);
    connect(action, &QAction::hovered, item, &QmlKaMenuItemData::hovered, Qt::UniqueConnection);
    connect(action, &QAction::toggled, item, &QmlKaMenuItemData::toggled, Qt::UniqueConnection);
}
