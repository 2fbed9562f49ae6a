#pragma once

#include "karvex_export.h"

#include <QObject>

// Avatars. Only holds enumerations.
class KARVEX_EXPORT KaAvatarEnum : public QObject {
    Q_OBJECT
public:
    // Scoped: its None would otherwise clash with Presence's.
    enum class Transformation { None = 0, Pretty = 1 };
    Q_ENUM(Transformation)

    enum Size { XSmall = 0, Small = 1, Medium = 2, XMedium = 3, Large = 4, XLarge = 5, XXLarge = 6 };
    Q_ENUM(Size)

    enum Presence {
        None = 0,
        Active = 1,
        Meeting = 2,
        CalendarMeeting = 3,
        Call = 4,
        Dnd = 5,
        Busy = 6,
        Sharing = 7,
        QuietHours = 8,
        Inactive = 9,
        OOO = 10,
        Hold = 11,
        JoinMeetingByMobile = 12,
        JoinMeetingByPersonalDevice = 13,
        Away = 14
    };
    Q_ENUM(Presence)

    enum AvatarType {
        Unknown = 0,
        Image = 1,
        InitialsWithBackground = 2,
        LockedIconWithBackground = 3,
        Pair = 4,
        DefaultAvatar = 5,
        MessageSentBySelf = 6,
        DefaultExConferenceAvatar = 7,
        DefaultGuestUserAvatar = 8,
        MeetingIcon = 9,
        IMShareScreen = 10,
        IMContentShare = 11,
        MeetingRoomWithDevice = 12,
        MeetingRoomWithoutDevice = 13,
        UnknownSpeaker = 14,
        MeetingStepAway = 15
    };
    Q_ENUM(AvatarType)
};
