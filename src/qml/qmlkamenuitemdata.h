#pragma once

#include "kadiscoverabilityenum.h"
#include "karvex_export.h"

#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

// One menu entry as QML describes it. QmlKaMenuData::doPopup() turns it into
// a native entry; the entry's triggered(), hovered() and toggled() come back
// through this object's signals. A non-empty `menu` makes it a sub-menu.
class QmlKaObjectList;

class KARVEX_EXPORT QmlKaMenuItemData : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    // objectName is QObject's own property (it also notifies only on change).
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString subText READ subText WRITE setSubText NOTIFY subTextChanged)
    Q_PROPERTY(QString tooltip READ tooltip WRITE setTooltip NOTIFY tooltipChanged)
    Q_PROPERTY(
        QString accessibleName READ accessibleName WRITE setAccessibleName NOTIFY accessibleNameChanged)
    Q_PROPERTY(QString leftIcon READ leftIcon WRITE setLeftIcon NOTIFY leftIconChanged)
    Q_PROPERTY(QString leftText READ leftText WRITE setLeftText NOTIFY leftTextChanged)
    Q_PROPERTY(QString leftTextColorSet READ leftTextColorSet WRITE setLeftTextColorSet NOTIFY
                   leftTextColorSetChanged)
    Q_PROPERTY(QString rightIcon READ rightIcon WRITE setRightIcon NOTIFY rightIconChanged)
    Q_PROPERTY(QString leftIconColorSet READ leftIconColorSet WRITE setLeftIconColorSet NOTIFY
                   leftIconColorSetChanged)
    Q_PROPERTY(QString rightIconColorSet READ rightIconColorSet WRITE setRightIconColorSet NOTIFY
                   rightIconColorSetChanged)
    Q_PROPERTY(QString rightIconTooltip READ rightIconTooltip WRITE setRightIconTooltip NOTIFY
                   rightIconTooltipChanged)
    Q_PROPERTY(QString badgeText READ badgeText WRITE setBadgeText NOTIFY badgeTextChanged)
    Q_PROPERTY(KaDiscoverabilityEnum::DiscoverabilityLabelType labelType READ labelType WRITE setLabelType
                   NOTIFY labelTypeChanged)
    Q_PROPERTY(bool showDiscoverabilityLabel READ showDiscoverabilityLabel WRITE setShowDiscoverabilityLabel
                   NOTIFY showDiscoverabilityLabelChanged)
    Q_PROPERTY(bool checkable READ checkable WRITE setCheckable NOTIFY checkableChanged)
    Q_PROPERTY(bool checked READ checked WRITE setChecked NOTIFY checkedChanged)
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool isAlert READ isAlert WRITE setIsAlert NOTIFY isAlertChanged)
    Q_PROPERTY(bool firstAction READ firstAction WRITE setFirstAction NOTIFY firstActionChanged)
    Q_PROPERTY(int minimumWidth READ minimumWidth WRITE setMinimumWidth NOTIFY minimumWidthChanged)
    Q_PROPERTY(int maximumWidth READ maximumWidth WRITE setMaximumWidth NOTIFY maximumWidthChanged)
    Q_PROPERTY(bool visible READ visible WRITE setIsVisible NOTIFY visibleChanged)
    Q_PROPERTY(QQmlListProperty<QObject> menu READ menu NOTIFY menuChanged)

public:
    explicit QmlKaMenuItemData(QObject* parent = nullptr);
    ~QmlKaMenuItemData() override;

    QString title() const { return m_title; }
    void setTitle(const QString& title);
    QString subText() const { return m_subText; }
    void setSubText(const QString& subText);
    QString tooltip() const { return m_tooltip; }
    void setTooltip(const QString& tooltip);
    QString accessibleName() const { return m_accessibleName; }
    void setAccessibleName(const QString& name);
    QString leftIcon() const { return m_leftIcon; }
    void setLeftIcon(const QString& icon);
    QString leftText() const { return m_leftText; }
    void setLeftText(const QString& text);
    QString leftTextColorSet() const { return m_leftTextColorSet; }
    void setLeftTextColorSet(const QString& colorSet);
    QString rightIcon() const { return m_rightIcon; }
    void setRightIcon(const QString& icon);
    QString leftIconColorSet() const { return m_leftIconColorSet; }
    void setLeftIconColorSet(const QString& colorSet);
    QString rightIconColorSet() const { return m_rightIconColorSet; }
    void setRightIconColorSet(const QString& colorSet);
    QString rightIconTooltip() const { return m_rightIconTooltip; }
    void setRightIconTooltip(const QString& tooltip);
    QString badgeText() const { return m_badgeText; }
    void setBadgeText(const QString& text);
    KaDiscoverabilityEnum::DiscoverabilityLabelType labelType() const { return m_labelType; }
    void setLabelType(KaDiscoverabilityEnum::DiscoverabilityLabelType type);
    bool showDiscoverabilityLabel() const { return m_showDiscoverabilityLabel; }
    void setShowDiscoverabilityLabel(bool show);
    bool checkable() const { return m_checkable; }
    void setCheckable(bool checkable);
    bool checked() const { return m_checked; }
    void setChecked(bool checked);
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    bool isAlert() const { return m_isAlert; }
    void setIsAlert(bool alert);
    bool firstAction() const { return m_firstAction; }
    void setFirstAction(bool first);
    int minimumWidth() const { return m_minimumWidth; }
    void setMinimumWidth(int width);
    int maximumWidth() const { return m_maximumWidth; }
    void setMaximumWidth(int width);
    bool visible() const { return m_visible; }
    void setIsVisible(bool visible);

    QQmlListProperty<QObject> menu();
    // The children in order; destroyed ones have already left.
    QList<QObject*> menuObjects() const;
    Q_INVOKABLE void appendSubMenu(QmlKaMenuItemData* item);

Q_SIGNALS:
    void titleChanged();
    void subTextChanged();
    void tooltipChanged();
    void accessibleNameChanged();
    void leftIconChanged();
    void leftTextChanged();
    void leftTextColorSetChanged();
    void rightIconChanged();
    void leftIconColorSetChanged();
    void rightIconColorSetChanged();
    void rightIconTooltipChanged();
    void badgeTextChanged();
    void labelTypeChanged();
    void showDiscoverabilityLabelChanged();
    void checkableChanged();
    void checkedChanged();
    void enabledChanged();
    void isAlertChanged();
    void firstActionChanged();
    void minimumWidthChanged();
    void maximumWidthChanged();
    void visibleChanged();
    void menuChanged();

    void triggered(bool checked);
    void hovered();
    void toggled(bool checked);

private:
    QString m_title;
    QString m_subText;
    QString m_tooltip;
    QString m_accessibleName;
    QString m_leftIcon;
    QString m_leftText;
    QString m_leftTextColorSet;
    QString m_rightIcon;
    QString m_leftIconColorSet;
    QString m_rightIconColorSet;
    QString m_rightIconTooltip;
    QString m_badgeText;
    KaDiscoverabilityEnum::DiscoverabilityLabelType m_labelType = KaDiscoverabilityEnum::IconTag;
    bool m_showDiscoverabilityLabel = false;
    bool m_checkable = false;
    bool m_checked = false;
    bool m_enabled = true;
    bool m_isAlert = false;
    bool m_firstAction = false;
    int m_minimumWidth = 264;
    int m_maximumWidth = 720;
    bool m_visible = true;
    std::unique_ptr<QmlKaObjectList> m_menu;
};
