#include "kapixmaploader.h"

#include "bzsvgrenderer.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "fontutils.h"
#include "kacolortokenutils.h"

#include <QPainter>
#include <QPainterPath>
#include <QtDebug>

#include <cmath>

namespace {

// Indexes of the renderers, in loading order.
enum Icon : int {
    MeetingsPresenceBadge,
    Handset,
    DndPresenceBadge,
    BusyPresence,
    RecentsPresenceBadge,
    CameraPresence,
    PtoPresence,
    QuietHoursPresence,
    ShareScreenBadge,
    Unread,
    Private,
    Meetings,
    Pause,
    AwayCallingPresence,
    Phone,
    GenericDeviceVideoFilled,
    ContentShare,
    ShareScreen,
    Chat,
    GenericDeviceVideo,
    NoDevices,
    ParticipantUnknownRegular,
    ParticipantUnknown,
    Meet,
    Coffee,
    NoIcon = -1
};

using Size = KaAvatarEnum::Size;
using Presence = KaAvatarEnum::Presence;
using AvatarType = KaAvatarEnum::AvatarType;

// Loaded in this order; KaPixmapLoader::Icon indexes it.
const char* const kIconFiles[] = {
    ":/Resources/meetings-presence-badge-filled.svg",
    ":/Resources/handset-filled.svg",
    ":/Resources/dnd-presence-badge-filled.svg",
    ":/Resources/busy-presence-regular.svg",
    ":/Resources/recents-presence-badge-filled.svg",
    ":/Resources/camera-presence-filled.svg",
    ":/Resources/pto-presence-filled.svg",
    ":/Resources/quiet-hours-presence-filled.svg",
    ":/Resources/share-screen-badge-filled.svg",
    ":/Resources/unread-filled.svg",
    ":/Resources/private-bold.svg",
    ":/Resources/meetings-bold.svg",
    ":/Resources/pause-filled.svg",
    ":/Resources/away-calling-presence-filled.svg",
    ":/Resources/phone-filled.svg",
    ":/Resources/generic-device-video-filled.svg",
    ":/Resources/content-share-bold.svg",
    ":/Resources/share-screen-bold.svg",
    ":/Resources/chat-filled.svg",
    ":/Resources/generic-device-video-bold.svg",
    ":/Resources/no-devices-bold.svg",
    ":/Resources/participant-unknown-regular.svg",
    ":/Resources/participant-unknown-bold.svg",
    ":/Resources/meet-bold.svg",
    ":/Resources/coffee-bold.svg",
};

struct SizeRow {
    int avatar;
    int badge;
    double adjustX;
    double adjustY;
    int notchX;
    int notchY;
    int notchSide;
    int fontPx;
    int fontWeight;
};

// Indexed by KaAvatarEnum::Size. Medium's lighter initials are deliberate.
const SizeRow kSizes[] = {
    {24, 14, 13, 11, 12, 10, 16, 12, 600},      {32, 14, 21, 19, 20, 18, 16, 16, 600},
    {48, 16, 35, 33, 34, 32, 18, 16, 400},      {64, 18, 45, 43, 44, 42, 22, 20, 600},
    {72, 20, 49.5, 50.5, 48, 49, 24, 20, 600},  {88, 26, 58, 59, 56, 57, 32, 40, 600},
    {124, 36, 82.5, 83.5, 80, 81, 44, 40, 600},
};
// What an unknown size gets.
const SizeRow kFallbackSize = {32, 14, 0, 0, 0, 0, 0, 16, 600};

// Colour groups of the presences: several presences share one colour.
enum ColorGroup { NoColor, ActiveColor, MeetingColor, DndColor, QuietColor, AwayColor, ColorGroupCount };

const Karvox::Token kGroupTokens[ColorGroupCount] = {
    Karvox::avatar_presence_icon_active, // unused: no presence is transparent
    Karvox::avatar_presence_icon_active, Karvox::avatar_presence_icon_meeting,
    Karvox::avatar_presence_icon_dnd,    Karvox::avatar_presence_icon_quiet_hours,
    Karvox::avatar_presence_icon_away,
};

struct PresenceRow {
    int icon;
    ColorGroup color;
    bool square;
};

// Indexed by KaAvatarEnum::Presence.
const PresenceRow kPresences[] = {
    {NoIcon, NoColor, false},
    {Unread, ActiveColor, false},
    {CameraPresence, MeetingColor, true},
    {MeetingsPresenceBadge, MeetingColor, true},
    {Handset, MeetingColor, true},
    {DndPresenceBadge, DndColor, false},
    {BusyPresence, MeetingColor, false},
    {ShareScreenBadge, DndColor, true},
    {QuietHoursPresence, QuietColor, false},
    {RecentsPresenceBadge, QuietColor, false},
    {PtoPresence, QuietColor, false},
    {Pause, QuietColor, false},
    {Phone, QuietColor, true},
    {GenericDeviceVideoFilled, QuietColor, true},
    {AwayCallingPresence, AwayColor, true},
};
constexpr int kPresenceCount = int(sizeof(kPresences) / sizeof(kPresences[0]));
constexpr int kSizeCount = int(sizeof(kSizes) / sizeof(kSizes[0]));

const SizeRow& rowOf(int size) {
    return size >= 0 && size < kSizeCount ? kSizes[size] : kFallbackSize;
}

int scaled(double value, double scale) {
    return int(value * scale);
}

QColor colorOf(Karvox::Token token, BzThemeUtils::AppThemeType type = BzThemeUtils::Global) {
    return BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(token), type).normal();
}

QPixmap transparentPixmap(const QSize& size) {
    QPixmap pixmap(size.expandedTo(QSize(1, 1)));
    pixmap.fill(Qt::transparent);
    return pixmap;
}

void smooth(QPainter& painter) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

// Keeps what `path` covers of `pixmap` (in device pixels), with smooth
// edges. Filling the path with the picture as a brush costs a fraction of
// clipping to it.
void fillThrough(QPixmap& pixmap, const QPainterPath& path) {
    QPixmap texture = pixmap;
    texture.setDevicePixelRatio(1.0);
    QPixmap result = transparentPixmap(texture.size());
    {
        QPainter painter(&result);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(texture));
        painter.drawPath(path);
    }
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    pixmap.swap(result);
}

} // namespace

// Finished avatars by request. Views ask again for the same picture on every
// overlaysUpdated() and many show the same person; composing is dearer than
// a lookup. Emptied whenever colours or overlays are rendered again.
struct KaPixmapLoader::Cache {
    struct Key {
        QString initials;
        qint64 pixmap;
        qint64 scale;
        QRgb background;
        int size;
        int presence;
        int type;
        int flags;
        bool operator==(const Key& o) const {
            return initials == o.initials && pixmap == o.pixmap && scale == o.scale &&
                   background == o.background && size == o.size && presence == o.presence && type == o.type &&
                   flags == o.flags;
        }
        friend size_t qHash(const Key& k, size_t seed = 0) {
            return qHashMulti(seed, k.initials, k.pixmap, k.scale, k.background, k.size, k.presence, k.type,
                              k.flags);
        }
    };
    static constexpr int kLimit = 256;
    QHash<Key, QPixmap> pictures;
};

KaPixmapLoader::KaPixmapLoader()
    : KaPixmapLoader(nullptr, 1.0) {}

KaPixmapLoader::KaPixmapLoader(QObject* parent, double devicePixelRatio)
    : QObject(parent)
    , m_cache(new Cache)
    , m_devicePixelRatio(devicePixelRatio > 0 ? devicePixelRatio : 1.0) {
    if (!(devicePixelRatio > 0))
        qWarning("KaPixmapLoader: device pixel ratio %g is not positive, using 1", devicePixelRatio);
    initRenderers();
    updateAvatarColors();
    createOverlayPixmaps(m_devicePixelRatio);
}

KaPixmapLoader::~KaPixmapLoader() = default;

qint64 KaPixmapLoader::scaleKey(double scale) {
    return qRound64(scale * 1000);
}

bool KaPixmapLoader::validSize(int size) {
    return size >= 0 && size < kSizeCount;
}

void KaPixmapLoader::initRenderers() {
    for (const char* file : kIconFiles)
        m_renderers.emplace_back(new BzSvgRenderer(QString::fromLatin1(file), this));
}

void KaPixmapLoader::updateAvatarColors() {
    m_cache->pictures.clear();
    m_themeGeneration = BzThemeManager::instance()->generation();
    m_badgeBackground = colorOf(Karvox::avatar_presence_icon_background);
    m_defaultBackground = colorOf(Karvox::avatar_color_avatar_background_default);
    m_initialsColor = colorOf(Karvox::avatar_color_avatar_text_default);
    for (int group = 0; group < ColorGroupCount; ++group) {
        if (group == NoColor) {
            m_presenceColors[group] = {QColor(Qt::transparent), QColor(Qt::transparent)};
            continue;
        }
        m_presenceColors[group] = {colorOf(kGroupTokens[group], BzThemeUtils::Global),
                                   colorOf(kGroupTokens[group], BzThemeUtils::Alternate)};
    }
    m_chatBubbleIcon = colorOf(Karvox::avatar_chat_bubble_icon_normal);
    m_borderColor = colorOf(Karvox::modal_primary_background);
    m_guestBackground = colorOf(Karvox::avatar_color_avatar_background_yellow);
    m_unknownSpeakerBackground = colorOf(Karvox::avatar_color_avatar_background_slate);
}

int KaPixmapLoader::getAvatarPxSize(Size size) {
    return rowOf(size).avatar;
}

QSize KaPixmapLoader::getAvatarSize(Size size, double scale) {
    const int side = scaled(getAvatarPxSize(size), scale);
    if (side > 0)
        return QSize(side, side);
    const int large = scaled(kSizes[KaAvatarEnum::Large].avatar, scale);
    return QSize(large, large);
}

QSize KaPixmapLoader::getOverLaySize(Size size, double scale, Presence) {
    const int side = scaled(rowOf(size).badge, scale);
    return QSize(side, side);
}

KaPixmapLoader::PresenceAdjust KaPixmapLoader::getPresenceAdjust(const KaAvatarConfig& config) {
    const SizeRow& row = rowOf(config.size);
    return {scaled(row.adjustX, config.devicePixelRatio), scaled(row.adjustY, config.devicePixelRatio)};
}

int KaPixmapLoader::getPresenceOffset(const KaAvatarConfig& config) {
    if (!shouldShowPresence(config))
        return 0;
    const double scale = config.devicePixelRatio;
    const int offset = getOverLaySize(config.size, scale, config.presence).width() -
                       getAvatarSize(config.size, scale).width() + getPresenceAdjust(config).x;
    return qMax(0, offset);
}

QRectF KaPixmapLoader::getPresenceRect(const KaAvatarConfig& config) {
    const SizeRow& row = rowOf(config.size);
    const double scale = config.devicePixelRatio;
    return QRectF(scaled(row.notchX, scale), scaled(row.notchY, scale), scaled(row.notchSide, scale),
                  scaled(row.notchSide, scale));
}

bool KaPixmapLoader::isSquareIcon(Presence presence) {
    return presence >= 0 && presence < kPresenceCount && kPresences[presence].square;
}

bool KaPixmapLoader::shouldShowPresence(const KaAvatarConfig& config) {
    return config.presence != KaAvatarEnum::None && !config.hidePresence;
}

QColor KaPixmapLoader::getPrecenceColor(Presence presence, bool alternate) const {
    if (presence < 0 || presence >= kPresenceCount)
        return QColor(Qt::transparent);
    return m_presenceColors[kPresences[presence].color][alternate ? 1 : 0];
}

QPointer<BzSvgRenderer> KaPixmapLoader::getPrecenceRenderer(Presence presence) const {
    if (presence < 0 || presence >= kPresenceCount || kPresences[presence].icon == NoIcon)
        return nullptr;
    return m_renderers[size_t(kPresences[presence].icon)];
}

QFont KaPixmapLoader::getInitialsFont(Size size) const {
    const SizeRow& row = rowOf(size);
    QFont font =
        FontUtils::getFontByPixelSize(FontUtils::Bold, qMax(1, scaled(row.fontPx, m_devicePixelRatio)));
    font.setWeight(QFont::Weight(row.fontWeight));
    return font;
}

QPixmap KaPixmapLoader::getAvatar(KaAvatarConfig config) {
    if (!(config.devicePixelRatio > 0)) {
        qWarning("KaPixmapLoader: device pixel ratio %g is not positive, using 1", config.devicePixelRatio);
        config.devicePixelRatio = 1.0;
    }
    if (!validSize(config.size))
        qWarning("KaPixmapLoader: unknown avatar size %d, using the default sizes", int(config.size));
    if (config.presence < 0 || config.presence >= kPresenceCount) {
        qWarning("KaPixmapLoader: unknown presence %d, showing none", int(config.presence));
        config.presence = KaAvatarEnum::None;
    }
    const int type = config.avatarType;
    if (type < KaAvatarEnum::Unknown || type > KaAvatarEnum::MeetingStepAway)
        qWarning("KaPixmapLoader: unknown avatar type %d, showing the default avatar", type);

    m_devicePixelRatio = config.devicePixelRatio;
    if (shouldRegeneratePresencePixmaps(config))
        createOverlayPixmaps(config.devicePixelRatio);
    if (!config.backgroundColor.isValid())
        config.backgroundColor = m_defaultBackground;

    const Cache::Key key{config.initials,
                         type == KaAvatarEnum::Image ? config.pixmap.cacheKey() : 0,
                         scaleKey(config.devicePixelRatio),
                         config.backgroundColor.rgba(),
                         int(config.size),
                         int(config.presence),
                         type,
                         int(config.transformation) | config.hidePresence << 2 | config.processImage << 3 |
                             config.showBorder << 4 | config.alternatePresenceColors << 5};
    const auto cached = m_cache->pictures.constFind(key);
    if (cached != m_cache->pictures.cend())
        return *cached;
    if (m_cache->pictures.size() >= Cache::kLimit)
        m_cache->pictures.clear();
    const QPixmap made = composeAvatar(config, type);
    m_cache->pictures.insert(key, made);
    return made;
}

QPixmap KaPixmapLoader::composeAvatar(const KaAvatarConfig& config, int type) const {
    const QSize target = getAvatarSize(config.size, config.devicePixelRatio);
    const bool presence = shouldShowPresence(config);
    const int offset = getPresenceOffset(config);
    const bool pretty = config.transformation == KaAvatarEnum::Transformation::Pretty;

    // What the avatar is made of. Whatever is missing (a fixed icon, a
    // picture) falls back to the default initials avatar.
    enum Kind { Initials, Squeezed, Fixed, Picture, RawPicture } kind = Initials;
    QPixmap picture;
    if (type == KaAvatarEnum::LockedIconWithBackground ||
        (type >= KaAvatarEnum::MessageSentBySelf && type <= KaAvatarEnum::MeetingStepAway)) {
        picture = getStaticAvatar(config);
        if (!picture.isNull())
            kind = Fixed;
    } else if (type == KaAvatarEnum::Unknown || type == KaAvatarEnum::InitialsWithBackground ||
               type == KaAvatarEnum::Pair) {
        kind = Squeezed;
    } else if (type == KaAvatarEnum::Image && !config.pixmap.isNull()) {
        picture = config.pixmap;
        picture.setDevicePixelRatio(1.0);
        kind = config.processImage ? Picture : RawPicture;
    }

    // All steps paint into one canvas: a fresh painter per step would cost
    // more than the drawing itself.
    if (kind == RawPicture && !presence) {
        return finishAvatar(config, picture.size(), 0, false, true,
                            [&](QPainter& painter) { painter.drawPixmap(0, 0, picture); });
    }
    const bool round = kind == Initials || kind == Fixed || ((kind == Picture || kind == Squeezed) && pretty);
    return finishAvatar(config, target, offset, presence, round, [&](QPainter& painter) {
        const QRectF avatar(QPointF(0, 0), QSizeF(target));
        switch (kind) {
        case Fixed:
        case RawPicture:
            painter.drawPixmap(0, 0, picture);
            break;
        case Picture:
            if (pretty) {
                // The circle inscribed in the picture, stretched to the
                // avatar when the picture is not square.
                QBrush brush(picture);
                brush.setTransform(QTransform::fromScale(avatar.width() / picture.width(),
                                                         avatar.height() / picture.height()));
                painter.setPen(Qt::NoPen);
                painter.setBrush(brush);
                painter.drawEllipse(avatar);
            } else {
                painter.drawPixmap(avatar, picture, QRectF(picture.rect()));
            }
            break;
        case Squeezed: {
            // Drawn on the canvas widened for the badge, cropped to its
            // ellipse and scaled back to the avatar's width.
            const QRectF wide(0, 0, target.width() + offset, target.height());
            painter.save();
            painter.scale(avatar.width() / wide.width(), 1.0);
            drawInitials(config, painter, wide, pretty);
            painter.restore();
            break;
        }
        case Initials:
            // The circle is the avatar's; the text centres on the wider
            // canvas, so small avatars with presence sit a little right.
            drawInitials(config, painter, avatar, true,
                         QRectF(0, 0, target.width() + offset, target.height()));
            break;
        }
    });
}

template <typename Draw>
QPixmap KaPixmapLoader::finishAvatar(const KaAvatarConfig& config, const QSize& avatar, int offset,
                                     bool presence, bool round, Draw draw) const {
    QImage canvas(QSize(avatar.width() + offset, avatar.height()).expandedTo(QSize(1, 1)),
                  QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                               QPainter::SmoothPixmapTransform);
        draw(painter);
        if (config.showBorder)
            addBorder(config, painter, avatar);
        if (presence) {
            cutoutPresenceNotch(config, painter, canvas.size(), round);
            addPresenceOverlayToPixmap(config, painter);
        }
    }
    QPixmap result = QPixmap::fromImage(std::move(canvas));
    result.setDevicePixelRatio(config.devicePixelRatio);
    return result;
}

void KaPixmapLoader::drawInitials(const KaAvatarConfig& config, QPainter& painter, const QRectF& shape,
                                  bool circle, const QRectF& textRect) const {
    painter.setPen(Qt::NoPen);
    // The badge background shows only through a translucent avatar colour.
    const bool underlay = config.backgroundColor.alpha() < 255;
    for (int layer = underlay ? 0 : 1; layer < 2; ++layer) {
        painter.setBrush(layer == 0 ? m_badgeBackground : config.backgroundColor);
        if (circle)
            painter.drawEllipse(shape);
        else
            painter.drawRect(shape);
    }
    painter.setFont(getInitialsFont(config.size));
    painter.setPen(m_initialsColor);
    painter.drawText(textRect.isEmpty() ? shape : textRect, Qt::AlignCenter, initialsText(config.initials));
}

QString KaPixmapLoader::initialsText(const QString& initials) {
    // Code points, not UTF-16 units: an emoji is one initial.
    const QList<uint> points = initials.toUpper().toUcs4();
    const qsizetype count = points.size() == 2 ? 2 : qMin<qsizetype>(points.size(), 1);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(points.constData()), count);
}

QPixmap KaPixmapLoader::getDefaultAvatar(const KaAvatarConfig& config) const {
    const QSize avatar = getAvatarSize(config.size, config.devicePixelRatio);
    QPixmap canvas = transparentPixmap(avatar + QSize(getPresenceOffset(config), 0));
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::TextAntialiasing | QPainter::Antialiasing |
                           QPainter::SmoothPixmapTransform);
    const QRect all(QPoint(0, 0), canvas.size());
    painter.fillRect(all, m_badgeBackground);
    painter.fillRect(all, config.backgroundColor.isValid() ? config.backgroundColor : m_defaultBackground);
    painter.setFont(getInitialsFont(config.size));
    painter.setPen(m_initialsColor);
    painter.drawText(all, Qt::AlignCenter, initialsText(config.initials));
    return canvas;
}

QPixmap KaPixmapLoader::getStaticAvatar(const KaAvatarConfig& config) const {
    if (!validSize(config.size))
        return QPixmap();
    const auto it = m_overlays.constFind(scaleKey(config.devicePixelRatio));
    if (it == m_overlays.cend())
        return QPixmap();
    return it->statics[size_t(config.size)].value(config.avatarType);
}

QPixmap KaPixmapLoader::getOverlayPixmap(const KaAvatarConfig& config) const {
    if (!validSize(config.size))
        return QPixmap();
    const auto it = m_overlays.constFind(scaleKey(config.devicePixelRatio));
    if (it == m_overlays.cend())
        return QPixmap();
    const PresencePixmaps pair = it->presence[size_t(config.size)].value(config.presence);
    return config.alternatePresenceColors ? pair.alternate : pair.normal;
}

bool KaPixmapLoader::shouldRegeneratePresencePixmaps(const KaAvatarConfig& config) const {
    // Per scale rather than per size map: XSmall's map is empty by design,
    // and asking again for it must not render (and notify) again.
    return !m_overlays.contains(scaleKey(config.devicePixelRatio));
}

void KaPixmapLoader::addRoundedFrameToPixmap(QPixmap& pixmap, const QRectF& circle) {
    QPainterPath path;
    path.addEllipse(circle.isEmpty() ? QRectF(QPointF(0, 0), QSizeF(pixmap.size())) : circle);
    fillThrough(pixmap, path);
}

void KaPixmapLoader::addBorder(const KaAvatarConfig& config, QPainter& painter, const QSize& avatar) const {
    const int width = qMax(1, int(config.devicePixelRatio));
    painter.setPen(QPen(m_borderColor, width));
    painter.setBrush(Qt::NoBrush);
    const qreal half = width / 2.0;
    painter.drawEllipse(QRectF(QPointF(0, 0), QSizeF(avatar)).adjusted(half, half, -half, -half));
}

void KaPixmapLoader::cutoutPresenceNotch(const KaAvatarConfig& config, QPainter& painter, const QSize& canvas,
                                         bool round) {
    // Where the notch overlaps the avatar it is cut away; so is anything
    // outside the avatar's ellipse grown by a pixel, which only a square
    // avatar has.
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    if (isSquareIcon(config.presence))
        painter.drawRoundedRect(getPresenceRect(config), 4.0, 4.0);
    else
        painter.drawEllipse(getPresenceRect(config));
    if (!round) {
        const int grow = int(config.devicePixelRatio);
        QPainterPath outside;
        outside.addRect(QRectF(QPointF(0, 0), QSizeF(canvas)));
        outside.addEllipse(QRectF(0, 0, canvas.width() + grow, canvas.height() + grow));
        painter.drawPath(outside);
    }
    painter.restore();
}

void KaPixmapLoader::addPresenceOverlayToPixmap(const KaAvatarConfig& config, QPainter& painter) const {
    const QPixmap badge = getOverlayPixmap(config);
    if (badge.isNull())
        return;
    const PresenceAdjust at = getPresenceAdjust(config);
    painter.drawPixmap(at.x, at.y, badge);
}

void KaPixmapLoader::createOverlayPixmaps(double scale) {
    renderOverlays(scale);
    notifyOverlaysUpdated();
}

void KaPixmapLoader::renderOverlays(double scale) {
    m_cache->pictures.clear();
    Overlays overlays;
    for (int s = 0; s < kSizeCount; ++s) {
        const auto size = Size(s);
        createStaticAvatarPixmaps(scale, size, overlays);
        // XSmall avatars get their notch but no badge.
        if (size == KaAvatarEnum::XSmall)
            continue;
        const QSize badge = getOverLaySize(size, scale, KaAvatarEnum::None);
        for (int p = 0; p < kPresenceCount; ++p) {
            const auto presence = Presence(p);
            PresencePixmaps pair{transparentPixmap(badge), transparentPixmap(badge)};
            const QPointer<BzSvgRenderer> renderer = getPrecenceRenderer(presence);
            if (renderer) {
                for (int variant = 0; variant < 2; ++variant) {
                    QPainter painter(variant == 0 ? &pair.normal : &pair.alternate);
                    smooth(painter);
                    renderer->draw(&painter, QRectF(QPointF(0, 0), QSizeF(badge)),
                                   getPrecenceColor(presence, variant == 1));
                }
            }
            overlays.presence[size_t(s)].insert(p, pair);
        }
    }
    m_overlays.insert(scaleKey(scale), overlays);
}

void KaPixmapLoader::createStaticAvatarPixmaps(double scale, Size size, Overlays& into) {
    struct StaticRow {
        AvatarType type;
        int icon;
    };
    // The two share rows are cross-assigned on purpose.
    static const StaticRow rows[] = {
        {KaAvatarEnum::IMContentShare, ShareScreen},
        {KaAvatarEnum::IMShareScreen, ContentShare},
        {KaAvatarEnum::LockedIconWithBackground, Private},
        {KaAvatarEnum::MeetingIcon, Meetings},
        {KaAvatarEnum::MeetingRoomWithDevice, GenericDeviceVideo},
        {KaAvatarEnum::MeetingRoomWithoutDevice, NoDevices},
        {KaAvatarEnum::DefaultExConferenceAvatar, Meet},
        {KaAvatarEnum::MeetingStepAway, Coffee},
    };
    QHash<int, QPixmap>& map = into.statics[size_t(size)];
    for (const StaticRow& row : rows)
        map.insert(row.type, createSpaceIconPixmap(size, m_renderers[size_t(row.icon)], scale, QColor(),
                                                   m_initialsColor, 0.25));
    map.insert(KaAvatarEnum::MessageSentBySelf, createSelfChatBubbleAvatar(size, scale));
    map.insert(KaAvatarEnum::DefaultGuestUserAvatar,
               createSpaceIconPixmap(size, m_renderers[ParticipantUnknownRegular], scale, m_guestBackground,
                                     m_initialsColor, 0.2));
    map.insert(KaAvatarEnum::UnknownSpeaker,
               createSpaceIconPixmap(size, m_renderers[ParticipantUnknown], scale, m_unknownSpeakerBackground,
                                     m_initialsColor, 0.25));
}

QPixmap KaPixmapLoader::createSpaceIconPixmap(Size size, const QPointer<BzSvgRenderer>& renderer,
                                              double scale, const QColor& background, const QColor& icon,
                                              double inset) const {
    KaAvatarConfig config;
    config.size = size;
    config.devicePixelRatio = scale;
    config.backgroundColor = background.isValid() ? background : m_defaultBackground;
    QPixmap pixmap = getDefaultAvatar(config);
    addRoundedFrameToPixmap(pixmap);
    if (renderer && renderer->isValid()) {
        const QRectF all(QPointF(0, 0), QSizeF(pixmap.size()));
        const qreal margin = inset * qMin(all.width(), all.height());
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer->draw(&painter, all.adjusted(margin, margin, -margin, -margin), icon);
    }
    return pixmap;
}

QPixmap KaPixmapLoader::createSelfChatBubbleAvatar(Size size, double scale) const {
    QPixmap pixmap = transparentPixmap(getAvatarSize(size, scale));
    pixmap.fill(m_badgeBackground);
    addRoundedFrameToPixmap(pixmap);
    const QRectF all(QPointF(0, 0), QSizeF(pixmap.size()));
    QPainter painter(&pixmap);
    smooth(painter);
    painter.setPen(QPen(m_defaultBackground, scale));
    painter.setBrush(Qt::NoBrush);
    const qreal ring = 0.5 * scale - 0.2 * scale;
    painter.drawEllipse(all.adjusted(ring, ring, -ring, -ring));
    const QPointer<BzSvgRenderer> chat = m_renderers[Chat];
    if (chat) {
        const qreal margin = 0.28 * qMin(all.width(), all.height());
        chat->draw(&painter, all.adjusted(margin, margin, -margin, -margin), m_chatBubbleIcon);
    }
    return pixmap;
}

void KaPixmapLoader::updateForCurrentTheme() {
    if (BzThemeManager::instance()->generation() != m_themeGeneration)
        onThemeChanged();
}

void KaPixmapLoader::onThemeChanged() {
    updateAvatarColors();
    // Every scale in use is rendered again; the stored one first.
    QList<qint64> scales = m_overlays.keys();
    m_overlays.clear();
    renderOverlays(m_devicePixelRatio);
    for (qint64 key : scales) {
        if (!m_overlays.contains(key))
            renderOverlays(key / 1000.0);
    }
    notifyOverlaysUpdated();
}

void KaPixmapLoader::notifyOverlaysUpdated() {
    // Views answer by asking for their avatars again. A render that one of
    // those requests causes is announced once after this round, not from
    // inside it; every scale renders once per theme, so this ends.
    if (m_notifying) {
        m_notifyAgain = true;
        return;
    }
    m_notifying = true;
    do {
        m_notifyAgain = false;
        const QPointer<KaPixmapLoader> alive(this);
        Q_EMIT overlaysUpdated();
        if (!alive)
            return;
    } while (m_notifyAgain);
    m_notifying = false;
}
