#pragma once

#include "kaiconbadge.h"
#include "karvex_export.h"
#include "katabitem.h"

class KaBadge;

// A tab with a badge after its text: a counter ("3", capped at "99+"), a
// short word ("New") or an icon badge. Screen readers hear the badge with
// the tab's name ("Chat, 3") unless the host names the tab itself.
class KARVEX_EXPORT KaBadgeTab : public KaTabItem {
    Q_OBJECT
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY countChanged)

public:
    explicit KaBadgeTab(QWidget* parent = nullptr);
    KaBadgeTab(const QString& text, const QString& icon, QWidget* parent = nullptr);
    ~KaBadgeTab() override;

    // A counter badge; 0 or less removes the badge.
    int count() const { return m_count; }
    void setCount(int count);
    // A word badge; an empty word removes the badge.
    void setBadgeText(const QString& word);
    // An icon badge; an unknown type is ignored with a warning.
    void setIconBadge(KaIconBadgeType type);
    void clearBadge();

    // The badge widget, or null.
    QWidget* badge() const { return trailingWidget(); }

Q_SIGNALS:
    void countChanged(int count);

private:
    void showBadge(QWidget* badge, const QString& spoken);
    void updateName();

    QString m_spoken;
    int m_count = 0;
};
