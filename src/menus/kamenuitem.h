#pragma once

#include "kadiscoverabilityenum.h"
#include "kamenuenum.h"
#include "kamenuitemconfig.h"
#include "karvex_export.h"
#include "kawidgetdata.h"

#include <bzwidget.h>

#include <QPixmap>
#include <QPoint>
#include <QPointer>

#include <memory>

class KaBadge;
class KaDiscoverabilityLabel;
class KaEmojiLabel;
class KaLabelBase;
class KaSvgLabel;
class QHBoxLayout;
class QVBoxLayout;
struct KaMenuItemData;

// One entry of a KaMenu: in one row a left icon, a left text, the title
// over an optional sub-text, a counter badge, a "new" label and a trailing
// action icon. Only the title always exists; the other parts are created
// the first time they are given something to show, so a plain entry costs
// one label.
//
// Measurements and colours come from a KaMenuItemConfig; every setter
// stores into it only on a change and then rebuilds the entry (refresh()).
//
// A checkable entry that is checked shows a tick ("check-regular" in the
// "listitem-tick" colour) in place of its left icon; an unchecked checkable
// entry keeps that place empty so that the titles of a group line up.
//
// The entry never takes focus: the menu highlights the active entry and
// screen readers hear the menu's action. The entry itself reads as one menu
// item named after its title, with no children of its own.
class KARVEX_EXPORT KaMenuItem : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString subText READ subText WRITE setSubText NOTIFY subTextChanged)
    Q_PROPERTY(QString leftText READ leftText WRITE setLeftText NOTIFY leftTextChanged)
    Q_PROPERTY(QString infoIcon READ infoIcon WRITE setInfoIcon NOTIFY infoIconChanged)
    Q_PROPERTY(QString actionIcon READ actionIcon WRITE setActionIcon NOTIFY actionIconChanged)
    Q_PROPERTY(QString badgeText READ badgeText WRITE setBadgeText NOTIFY badgeTextChanged)
    Q_PROPERTY(KaMenuEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(KaMenuEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable NOTIFY checkableChanged)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY checkedChanged)
    Q_PROPERTY(bool alert READ isAlert WRITE setAlert NOTIFY alertChanged)

public:
    explicit KaMenuItem(QWidget* parent = nullptr);
    explicit KaMenuItem(const QString& title, QWidget* parent = nullptr);
    ~KaMenuItem() override;

    // Fills the entry from a record: texts, icons, colour sets, badge,
    // "new" label, check state, alert, enabled state and widths. The menu
    // calls KaMenuAction::applyData, which also sets up the action.
    void applyData(const KaMenuItemData& record);

    QString title() const;
    void setTitle(const QString& title);
    // A non-empty sub-text shows under the title and switches the entry to
    // the two-line layout; an empty one hides it again.
    QString subText() const { return m_subTextValue; }
    void setSubText(const QString& text);
    QString leftText() const { return m_leftTextValue; }
    void setLeftText(const QString& text);
    // Shown in the left icon's place; a null pixmap removes it.
    void setLeftPixmap(const QPixmap& pixmap);
    // A non-empty path sets and shows the icon; an empty one hides it.
    QString infoIcon() const { return m_infoIconPath; }
    void setInfoIcon(const QString& path);
    // Without an icon of its own the action icon is the library's chevron,
    // pointing to the trailing side; it shows only when made visible.
    QString actionIcon() const { return m_actionIconPath; }
    void setActionIcon(const QString& path);
    void setInfoIconColorSet(const QString& name);
    void setActionIconColorSet(const QString& name);
    void setActionIconTooltip(const QString& tooltip);
    QString actionIconTooltip() const { return m_actionIconTooltip; }
    // Whether the action icon is shown when it has an icon (the menu turns
    // it on for entries that open a sub-menu).
    void setActionIconVisible(bool visible);
    bool isActionIconVisible() const;
    // The badge shows exactly while the text is not empty.
    QString badgeText() const { return m_badgeTextValue; }
    void setBadgeText(const QString& text);
    void setDiscoverabilityLabel(
        bool show, KaDiscoverabilityEnum::DiscoverabilityLabelType type = KaDiscoverabilityEnum::IconTag);
    bool isDiscoverabilityLabelShown() const { return m_discoverabilityShown; }

    bool isAlert() const;
    void setAlert(bool alert);
    bool isDisabledState() const;
    void setDisabledState(bool disabled);
    bool isHoverState() const;
    void setHoverState(bool hovered);
    bool isCheckable() const { return m_checkable; }
    void setCheckable(bool checkable);
    bool isChecked() const { return m_checked; }
    void setChecked(bool checked);

    QString getTitleColorSet() const;
    void setTitleColorSet(const QString& name);
    QString leftTextColorSet() const;
    void setLeftTextColorSet(const QString& name);
    int getTitleFontToken() const;
    // Out-of-range tokens are refused with a warning.
    void setTitleFontToken(int token);
    int defaultMiniWidth() const;
    void setDefaultMiniWidth(int width);
    int defaultMaxWidth() const;
    void setDefaultMaxWidth(int width);

    // Out-of-range values fall back to Medium / Normal with a warning.
    KaMenuEnum::Size size() const;
    void setSize(KaMenuEnum::Size size);
    KaMenuEnum::Style style() const;
    void setStyle(KaMenuEnum::Style style);

    // The popover the menu shows beside the hovered entry.
    QString popupText() const { return m_popupText; }
    void setPopupText(const QString& text);
    QPoint popupOffset() const { return m_popupOffset; }
    void setPopupOffset(const QPoint& offset);
    KaWidgetData::ArrowPostion getPopupDirection() const { return m_popupDirection; }
    void setPopupDirection(KaWidgetData::ArrowPostion direction);

    // Names the entry `name` and its parts "<name>_<part>_<index>", so UI
    // automation finds each part of each entry.
    void setObjectNames(const QString& name, unsigned index);

    const KaMenuItemConfig& config() const { return *m_config; }

public Q_SLOTS:
    void refresh();
    void onLayoutDirectionChanged();
    void onHover();

Q_SIGNALS:
    void titleChanged();
    void subTextChanged();
    void leftTextChanged();
    void infoIconChanged();
    void actionIconChanged();
    void badgeTextChanged();
    void sizeChanged();
    void styleChanged();
    void checkableChanged();
    void checkedChanged();
    void alertChanged();
    // The pointer entered the entry.
    void hovered();

protected:
    bool event(QEvent* event) override;

private:
    template <typename Setter, typename Value> void writeConfig(Setter setter, const Value& value);
    KaSvgLabel* ensureInfoIcon();
    KaLabelBase* ensureLeftText();
    KaEmojiLabel* ensureSubText();
    KaBadge* ensureBadge();
    KaDiscoverabilityLabel* ensureDiscoverabilityLabel();
    KaSvgLabel* ensureActionIcon();
    void updateInfoIcon();
    void updateActionIcon();
    void nameParts();
    int insertIndexFor(int part) const;

    std::shared_ptr<KaMenuItemConfig> m_config;
    QHBoxLayout* m_outer = nullptr;
    QVBoxLayout* m_inner = nullptr;
    KaEmojiLabel* m_title = nullptr;
    QPointer<KaSvgLabel> m_infoIcon;
    QPointer<KaLabelBase> m_leftText;
    QPointer<KaEmojiLabel> m_subText;
    QPointer<KaBadge> m_badge;
    QPointer<KaDiscoverabilityLabel> m_discoverability;
    QPointer<KaSvgLabel> m_actionIcon;

    QString m_subTextValue;
    QString m_leftTextValue;
    QString m_infoIconPath;
    QString m_actionIconPath;
    QString m_actionIconTooltip;
    QString m_badgeTextValue;
    QPixmap m_leftPixmap;
    QString m_popupText;
    QPoint m_popupOffset;
    QString m_partPrefix;
    QString m_partSuffix;
    KaWidgetData::ArrowPostion m_popupDirection = KaWidgetData::ArrowLeft;
    bool m_actionIconVisible = false;
    bool m_discoverabilityShown = false;
    bool m_checkable = false;
    bool m_checked = false;
};
