#pragma once

#include "karvex_export.h"

#include <QPointer>
#include <QWidgetAction>

class KaMenuItem;
struct KaMenuItemData;

// The action that carries one entry of a KaMenu: a KaMenuItem, or any
// widget (a header, a banner) wrapped by the menu. The action's text is what
// screen readers hear; the menu sets it.
//
// The action keeps its entry in step: enabling, alert, first-action
// highlight and, for checkable actions, the tick.
class KARVEX_EXPORT KaMenuAction : public QWidgetAction {
    Q_OBJECT

public:
    explicit KaMenuAction(QObject* parent = nullptr);
    ~KaMenuAction() override;

    // Installs the entry widget (the action owns it from now on). A
    // KaMenuItem follows the action's enabled and checked state.
    void setDefaultWidget(QWidget* widget);
    // The entry, when the widget is a KaMenuItem; null otherwise.
    KaMenuItem* menuItem() const;

    // Fills the action and its entry from a record: text, tool tip, object
    // name, checkable, checked, enabled, alert and first action. An action
    // without a widget gets a new KaMenuItem first.
    void applyData(const KaMenuItemData& record);

    void setTitle(const QString& title);
    void setEnabled(bool enabled);
    void setVisible(bool visible);
    void setAlert(bool alert);
    bool isAlert() const { return m_alert; }
    // The menu highlights its first action when it opens.
    void setFirstAction(bool first);
    bool isFirstAction() const { return m_firstAction; }
    void setActionIconVisible(bool visible);
    void showDiscoverabilityLabel(bool show);

    // A separator that closes a group of entries (drawn in its own place).
    void setGroupSeparator(bool on);
    bool isGroupSeparator() const { return m_groupSeparator; }
    // The entry is a discoverability banner.
    void setDiscoverabilityBanner(bool on);
    bool isDiscoverabilityBanner() const { return m_banner; }

public Q_SLOTS:
    // The menu reports the pointer entering or leaving the entry.
    void onHover(bool hovered);

private:
    void syncChecked(bool checked);

    QPointer<KaMenuItem> m_item;
    bool m_alert = false;
    bool m_firstAction = false;
    bool m_groupSeparator = false;
    bool m_banner = false;
};
