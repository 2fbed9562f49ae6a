#pragma once

#include "kaavatarenum.h"
#include "karvex_export.h"

#include <QColor>
#include <QPixmap>
#include <QString>

// What KaPixmapLoader::getAvatar() is asked for: a plain value record.
struct KARVEX_EXPORT KaAvatarConfig {
    // The picture of an Image avatar; empty otherwise.
    QPixmap pixmap;
    // Screen scale: every length of the size tables is multiplied by it.
    double devicePixelRatio = 1.0;
    // Initials are taken from this text: two code points are drawn both,
    // any other length only its first.
    QString initials;
    KaAvatarEnum::Transformation transformation = KaAvatarEnum::Transformation::Pretty;
    KaAvatarEnum::Presence presence = KaAvatarEnum::None;
    // Background of initials avatars; invalid means the theme's default.
    QColor backgroundColor;
    KaAvatarEnum::Size size = KaAvatarEnum::Medium;
    KaAvatarEnum::AvatarType avatarType = KaAvatarEnum::DefaultAvatar;
    // Suppresses the badge even when presence is not None.
    bool hidePresence = false;
    // Crop and scale an Image avatar's picture; false uses it unchanged.
    bool processImage = false;
    // A ring of one device pixel around the avatar.
    bool showBorder = false;
    // The badge colours of the alternate (light/dark counterpart) theme.
    bool alternatePresenceColors = false;
};
