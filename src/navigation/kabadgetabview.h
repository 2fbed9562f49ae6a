#pragma once

#include "kabadgetab.h"
#include "karvex_export.h"
#include "katabview.h"

// A tab view whose tabs carry badges (KaBadgeTab); badgeTabAt() reaches
// them. Everything else is KaTabView's.
class KARVEX_EXPORT KaBadgeTabView : public KaTabView {
    Q_OBJECT

public:
    explicit KaBadgeTabView(QWidget* parent = nullptr);
    ~KaBadgeTabView() override;

    // The tab at `index`, null outside the range.
    KaBadgeTab* badgeTabAt(int index) const;
    // Shortcuts for the tab at `index`; a bad index is ignored with a warning.
    void setCount(int index, int count);
    void setIconBadge(int index, KaIconBadgeType type);
    void clearBadge(int index);

protected:
    KaTabItem* createTab() override;

private:
    KaBadgeTab* checkedTab(int index, const char* where) const;
};
