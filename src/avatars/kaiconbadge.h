#pragma once

#include "karvex_export.h"
#include "katextwithbackground.h"

// The icons an icon badge can show; each comes with its own colour.
enum KaIconBadgeType : int {
    IconBadgeAlert = 0,
    IconBadgeMention = 1,
    IconBadgeAlertMuted = 2,
    IconBadgeEnterRoom = 3,
    IconBadgeCallOutgoing = 4,
    IconBadgeUnread = 5,
    IconBadgeWarning = 6,
    IconBadgePriority = 7,
    IconBadgePopOut = 8,
    IconBadgeDisconnect = 9,
    IconBadgeSparkle = 10
};

// A 14-pixel icon in a fixed colour, with no face of its own. An unknown
// type warns and leaves the badge empty, still 14 pixels wide.
class KARVEX_EXPORT KaIconBadge : public KaTextWithBackground {
    Q_OBJECT

public:
    explicit KaIconBadge(QWidget* parent = nullptr, KaIconBadgeType type = IconBadgeAlert);
    ~KaIconBadge() override;

    void setIcon(KaIconBadgeType type);
    KaIconBadgeType iconType() const { return m_type; }

    // What a type shows: the icon path and its colour-set name; empty for
    // an unknown type.
    static QString iconPath(KaIconBadgeType type);
    static QString iconColorSet(KaIconBadgeType type);

    static constexpr int kSide = 14;

private:
    KaIconBadgeType m_type = IconBadgeAlert;
};
