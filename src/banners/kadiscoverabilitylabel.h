#pragma once

#include "kadiscoverabilityenum.h"
#include "karvex_export.h"

#include <bzwidget.h>

class KaLabel;
class KaSvgLabel;

// A small "new" marker: a sparkle icon ("icon") and, in the text tag look,
// the library's shared caption ("tagText", KaConfig::discoverabilityCaption).
//
//   look              height  background                       border
//   IconWithTextTag   24      newFeature-tag-background        newFeature-tag-border (*)
//   IconTag           24      newFeature-tag-background        newFeature-tag-border (*)
//   IconWithBorder    18      newFeature-badgeWithBorder-...   newFeature-badgeWithBorder-border
//   IconBadge         18      newFeature-badge-background      newFeature-badge-border
//   (banner kinds)    18      newFeature-badge-background      newFeature-banner-newFeatureIcon
//
// (*) only with KaConfig's tag-border or high-contrast flag, else none.
// Tags are rounded rectangles, badges circles.
class KARVEX_EXPORT KaDiscoverabilityLabel : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(KaDiscoverabilityEnum::DiscoverabilityLabelType labelType READ labelType WRITE setLabelType
                   NOTIFY labelTypeChanged)

public:
    explicit KaDiscoverabilityLabel(QWidget* parent = nullptr);
    ~KaDiscoverabilityLabel() override;

    // Banner kinds and values outside the enumeration draw the last row of
    // the table, with a warning.
    void setLabelType(KaDiscoverabilityEnum::DiscoverabilityLabelType type);
    KaDiscoverabilityEnum::DiscoverabilityLabelType labelType() const { return m_type; }
    // The fixed height of a look.
    static int getSize(int type);

public Q_SLOTS:
    // Re-reads the shared caption and the border flag.
    void onThemeChanged() override;

Q_SIGNALS:
    void labelTypeChanged();

private:
    void initialize();

    KaSvgLabel* m_icon;
    KaLabel* m_text;
    KaDiscoverabilityEnum::DiscoverabilityLabelType m_type = KaDiscoverabilityEnum::IconWithTextTag;
};
