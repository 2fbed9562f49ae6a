#include "kaiconbadge.h"

#include "kacolortokenutils.h"

#include <QCoreApplication>
#include <QtDebug>

namespace {

struct IconRow {
    const char* icon;
    Karvox::Token color;
    const char* name;
};

// Indexed by KaIconBadgeType.
const IconRow kIcons[] = {
    {"qrc:/Resources/alert-bold.svg", Karvox::button_secondary_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "alert")},
    {"qrc:/Resources/mention-bold.svg", Karvox::badge_background,
     QT_TRANSLATE_NOOP("KaIconBadge", "mention")},
    {"qrc:/Resources/alert-muted-bold.svg", Karvox::button_secondary_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "alerts muted")},
    {"qrc:/Resources/enter-room-bold.svg", Karvox::badge_background,
     QT_TRANSLATE_NOOP("KaIconBadge", "entered the room")},
    {"qrc:/Resources/call-outgoing-bold.svg", Karvox::button_secondary_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "outgoing call")},
    {"qrc:/Resources/unread-filled.svg", Karvox::badge_background,
     QT_TRANSLATE_NOOP("KaIconBadge", "unread")},
    {"qrc:/Resources/warning-filled.svg", Karvox::label_warning_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "warning")},
    {"qrc:/Resources/priority-badge-filled.svg", Karvox::label_error_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "priority")},
    {"qrc:/Resources/pop-out-regular.svg", Karvox::button_secondary_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "pops out")},
    {"qrc:/Resources/disconnect-filled.svg", Karvox::label_secondary_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "disconnected")},
    {"qrc:/Resources/sparkle-filled.svg", Karvox::newFeature_badge_text,
     QT_TRANSLATE_NOOP("KaIconBadge", "new")},
};
constexpr int kIconCount = int(sizeof(kIcons) / sizeof(kIcons[0]));

bool known(int type) {
    return type >= 0 && type < kIconCount;
}

} // namespace

KaIconBadge::KaIconBadge(QWidget* parent, KaIconBadgeType type)
    : KaTextWithBackground(parent) {
    setAccessibleRole(QAccessible::Graphic);
    setText(QString());
    // Any type, the current one included, applies its look once.
    m_type = KaIconBadgeType(-1);
    setIcon(type);
}

KaIconBadge::~KaIconBadge() = default;

QString KaIconBadge::iconPath(KaIconBadgeType type) {
    return known(type) ? QString::fromLatin1(kIcons[type].icon) : QString();
}

QString KaIconBadge::iconColorSet(KaIconBadgeType type) {
    return known(type) ? KaColorTokenUtils::tokenToString(kIcons[type].color) : QString();
}

void KaIconBadge::setIcon(KaIconBadgeType type) {
    if (type == m_type)
        return;
    if (!known(type))
        qWarning("KaIconBadge: unknown icon badge type %d, showing no icon", int(type));
    m_type = type;
    const QString color = iconColorSet(type);
    setSvgIcon(iconPath(type));
    setSvgIconColorSet(color);
    setSvgIconSize(QSize(kSide, kSide));
    // Only the icon colour: no face.
    BzCSSData look;
    if (!color.trimmed().isEmpty())
        look.textColorSet = color;
    look.setSwitch(BzCSSData::PaintBackground, 0);
    setCSS(look);
    setFixedSize(kSide, kSide);
    // An icon says nothing to a screen reader by itself.
    setAccessibleName(known(type) ? QCoreApplication::translate("KaIconBadge", kIcons[type].name)
                                  : QString());
}
