#pragma once

#include "kaavatarconfig.h"
#include "karvex_export.h"

#include <QColor>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QRectF>
#include <QSize>

#include <array>
#include <memory>
#include <vector>

class BzSvgRenderer;
class QFont;
class QPainter;

// Makes every avatar picture of the library: cropped to a circle, scaled to
// its size class, optionally framed, with a notch at the lower right and the
// presence badge in it. One loader is shared by many KaAvatarViews.
//
// Geometry by size (logical pixels; each length is multiplied by the
// config's devicePixelRatio and truncated):
//
//   size     avatar  badge  badge at      notch x, y, side  initials
//   XSmall   24      14     13, 11        12, 10, 16        12 px, 600
//   Small    32      14     21, 19        20, 18, 16        16 px, 600
//   Medium   48      16     35, 33        34, 32, 18        16 px, 400
//   XMedium  64      18     45, 43        44, 42, 22        20 px, 600
//   Large    72      20     49.5, 50.5    48, 49, 24        20 px, 600
//   XLarge   88      26     58, 59        56, 57, 32        40 px, 600
//   XXLarge  124     36     82.5, 83.5    80, 81, 44        40 px, 600
//
// The badges of the three small sizes stick out past the circle, so their
// canvas is widened by 3 px. XSmall gets a notch but no badge picture.
//
// Badges and fixed-icon avatars are rendered once per theme and scale and
// copied out; overlaysUpdated() tells the views to ask again. A rendered
// scale stays rendered until the theme changes, so a request never renders
// twice for the same scale (an XSmall request, whose badge map is empty by
// design, included), and a request made while overlaysUpdated() is being
// delivered never delivers it again from inside: the views would otherwise
// ask, render and notify each other in a loop.
class KARVEX_EXPORT KaPixmapLoader : public QObject {
    Q_OBJECT
public:
    struct PresencePixmaps {
        QPixmap normal;
        QPixmap alternate;
    };
    struct PresenceAdjust {
        int x = 0;
        int y = 0;
    };

    KaPixmapLoader();
    KaPixmapLoader(QObject* parent, double devicePixelRatio);
    ~KaPixmapLoader() override;

    // The only way to build an avatar. Out-of-range sizes, presences and
    // types warn and fall back to the defaults of the tables.
    QPixmap getAvatar(KaAvatarConfig config);

    // The scale of the last request (or of construction).
    double devicePixelRatio() const { return m_devicePixelRatio; }

    // Renders again only when the theme data moved since the last render:
    // every view of a shared loader calls this on a theme switch, and the
    // first one does the work for all.
    void updateForCurrentTheme();

public Q_SLOTS:
    // Re-reads the theme colours and renders the overlays of every scale in
    // use, then sends overlaysUpdated() once.
    void onThemeChanged();

Q_SIGNALS:
    void overlaysUpdated();

private:
    struct Cache;
    struct Overlays {
        std::array<QHash<int, PresencePixmaps>, 7> presence;
        std::array<QHash<int, QPixmap>, 7> statics;
    };

    static int getAvatarPxSize(KaAvatarEnum::Size size);
    static QSize getAvatarSize(KaAvatarEnum::Size size, double scale);
    static QSize getOverLaySize(KaAvatarEnum::Size size, double scale, KaAvatarEnum::Presence presence);
    static PresenceAdjust getPresenceAdjust(const KaAvatarConfig& config);
    static int getPresenceOffset(const KaAvatarConfig& config);
    static QRectF getPresenceRect(const KaAvatarConfig& config);
    static bool isSquareIcon(KaAvatarEnum::Presence presence);
    static bool shouldShowPresence(const KaAvatarConfig& config);
    QColor getPrecenceColor(KaAvatarEnum::Presence presence, bool alternate) const;
    QPointer<BzSvgRenderer> getPrecenceRenderer(KaAvatarEnum::Presence presence) const;
    QFont getInitialsFont(KaAvatarEnum::Size size) const;

    QPixmap composeAvatar(const KaAvatarConfig& config, int type) const;
    QPixmap getDefaultAvatar(const KaAvatarConfig& config) const;
    QPixmap getStaticAvatar(const KaAvatarConfig& config) const;
    QPixmap getOverlayPixmap(const KaAvatarConfig& config) const;
    bool shouldRegeneratePresencePixmaps(const KaAvatarConfig& config) const;
    static void addRoundedFrameToPixmap(QPixmap& pixmap, const QRectF& circle = QRectF());
    void addBorder(const KaAvatarConfig& config, QPainter& painter, const QSize& avatar) const;
    static void cutoutPresenceNotch(const KaAvatarConfig& config, QPainter& painter, const QSize& canvas,
                                    bool round);
    void addPresenceOverlayToPixmap(const KaAvatarConfig& config, QPainter& painter) const;
    // Paints `draw` and the finishing steps (ring, notch, badge) into one
    // canvas of `avatar` widened by `offset`.
    template <typename Draw>
    QPixmap finishAvatar(const KaAvatarConfig& config, const QSize& avatar, int offset, bool presence,
                         bool round, Draw draw) const;
    void drawInitials(const KaAvatarConfig& config, QPainter& painter, const QRectF& shape, bool circle,
                      const QRectF& textRect = QRectF()) const;
    static QString initialsText(const QString& initials);

    void createOverlayPixmaps(double scale);
    void renderOverlays(double scale);
    void createStaticAvatarPixmaps(double scale, KaAvatarEnum::Size size, Overlays& into);
    QPixmap createSpaceIconPixmap(KaAvatarEnum::Size size, const QPointer<BzSvgRenderer>& renderer,
                                  double scale, const QColor& background, const QColor& icon,
                                  double inset) const;
    QPixmap createSelfChatBubbleAvatar(KaAvatarEnum::Size size, double scale) const;
    void initRenderers();
    void updateAvatarColors();
    void notifyOverlaysUpdated();

    static qint64 scaleKey(double scale);
    static bool validSize(int size);

    std::unique_ptr<Cache> m_cache;
    // Keyed by scaleKey(): the scales rendered for the current theme.
    QMap<qint64, Overlays> m_overlays;
    std::vector<QPointer<BzSvgRenderer>> m_renderers;
    double m_devicePixelRatio = 1.0;

    QColor m_badgeBackground;
    QColor m_defaultBackground;
    QColor m_initialsColor;
    // Indexed by the colour group of a presence, then normal/alternate.
    std::array<std::array<QColor, 2>, 6> m_presenceColors;
    QColor m_chatBubbleIcon;
    QColor m_borderColor;
    QColor m_guestBackground;
    QColor m_unknownSpeakerBackground;

    quint64 m_themeGeneration = 0;
    bool m_notifying = false;
    bool m_notifyAgain = false;
};
