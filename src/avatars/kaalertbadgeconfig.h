#pragma once

#include "ikabuttonconfig.h"
#include "kabadgeenum.h"
#include "karvex_export.h"

#include <QSize>

// The alert badge look: a small rounded marker in the colours of its
// KaBadgeEnum::Style with a leading icon. It is not interactive: no focus,
// and the colours do not follow hover or press.
//
//   style         background / text                 icon
//   DefaultBadge  "alertbadge-default-*"             none
//   Announcement  "alertbadge-announcement-*"        announcement-bold
//   AlertWarning  "alertbadge-warning-*"             external-user-bold
//   Important     "alertbadge-important-*"           shield-bold
//   AlertGeneral  "alertbadge-blocked-*"             blocked-bold
//
// Geometry: height 20, font token Caption, icon 12 by 12, corners 4.
class KARVEX_EXPORT KaAlertBadgeConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaBadgeEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize svgIconSize{12, 12};
        // 0 leaves the width to the text.
        int fixedWidth = 0;
        int radius = 4;
    };

    explicit KaAlertBadgeConfig(QObject* parent = nullptr);
    ~KaAlertBadgeConfig() override;

    void fillConfig(Config& out) const override;
    void setHasLeftIcon(bool hasIcon) override;
    // An alert badge has no trailing icon; ignored.
    void setHasRightIcon(bool hasIcon) override;
    bool hasLeftIcon() const { return m_hasLeftIcon; }

    KaBadgeEnum::Style style() const { return m_style; }
    // An unknown style warns and uses DefaultBadge.
    void setStyle(KaBadgeEnum::Style style);

    virtual void fillGeometry(Geometry& out) const;

    // The leading icon of `style`; empty for DefaultBadge and unknown styles.
    static QString iconPath(KaBadgeEnum::Style style);

Q_SIGNALS:
    void styleChanged(KaBadgeEnum::Style style);

private:
    KaBadgeEnum::Style m_style = KaBadgeEnum::DefaultBadge;
    bool m_hasLeftIcon = false;
};
