#pragma once

#include "kacontrolhandle.h"
#include "kapopupenum.h"
#include "karvex_export.h"

#include <bzthemeutils.h>

#include <QColor>
#include <QMargins>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>

class QPainter;
class QWidget;

// Geometry and painting of popup bubbles (menus, popovers, tooltips).
//
// A popup window is translucent and larger than the bubble it shows: a band
// of ShadowMargin around the body holds the soft shadow, and on the side that
// faces the anchor a further ArrowLength holds the arrow. The arrow's tip
// (or, without an arrow, the body's edge) lies ShadowMargin inside the
// window and AnchorGap away from the anchor. All sizes are logical pixels.
//
// KaPopupEnum::None places and paints like Bottom: below the anchor.
namespace KaPopupUtils {

constexpr int ShadowMargin = 8;
constexpr int ArrowLength = 8;
constexpr int ArrowBase = 16;
constexpr int BodyRadius = 8;
constexpr int BorderWidth = 1;
constexpr int AnchorGap = 2;
constexpr int ShadowRadius = 6;
constexpr int ShadowOffsetY = 2;
// Arrow position along the edge, in percent: the middle.
constexpr int DefaultOffset = 50;

// The colours a bubble is painted with.
struct PopupColors {
    QColor background;
    QColor border;
    QColor shadow;
};

// Colour sets: body "popover-primary-background", border
// "modal-primary-border", shadow a translucent "overlayFade-meetings-background".
// Resolved once per theme generation and theme type, so painting code may
// call this freely.
KARVEX_EXPORT PopupColors popupColors(BzThemeUtils::AppThemeType type = BzThemeUtils::Global);

// None becomes Bottom; other values pass through.
KARVEX_EXPORT KaPopupEnum::Alignment effectiveAlignment(KaPopupEnum::Alignment alignment);
KARVEX_EXPORT KaPopupEnum::Alignment oppositeAlignment(KaPopupEnum::Alignment alignment);

// Space between the window's edges and the bubble's body. Content laid out
// inside a popup adds its own padding to these.
KARVEX_EXPORT QMargins bodyMargins(KaPopupEnum::Alignment alignment, bool arrow);
KARVEX_EXPORT QRect bodyRect(const QSize& windowSize, KaPopupEnum::Alignment alignment, bool arrow);

// The point of the anchor's edge that faces a popup on `alignment`'s side,
// in global coordinates: what drawPopup() aims the arrow at. Null for an
// invalid handle.
KARVEX_EXPORT QPoint anchorPoint(const KaControlHandle& handle, KaPopupEnum::Alignment alignment);

// The global top-left of a width x height popup window on `alignment`'s side
// of the anchor, with the arrow tip `offset` percent along the facing edge
// and pointing at the anchor's centre line. The popup stays on the anchor's
// screen: when it does not fit on the requested side it goes to the
// opposite one (if that fits, or has more room), then it is shifted inside
// the screen. `shownAlignment`, when given, receives the side actually used.
// An invalid handle gives a null point (with a warning).
KARVEX_EXPORT QPoint calculateShowPoint(const KaControlHandle& handle, KaPopupEnum::Alignment alignment,
                                        int width, int height, int offset = DefaultOffset,
                                        KaPopupEnum::Alignment* shownAlignment = nullptr);

// Logical height of `cover` scaled to `bodyWidth`, aspect ratio kept.
KARVEX_EXPORT int coverHeight(const QPixmap& cover, int bodyWidth);

// Everything paintBubble() needs.
struct Bubble {
    QSize size;
    KaPopupEnum::Alignment alignment = KaPopupEnum::Bottom;
    bool arrow = true;
    // The arrow tip's position along its edge in local pixels; negative
    // puts it in the middle. Kept where the arrow meets the straight part of
    // the edge.
    int arrowAt = -1;
    // Without it a small body gets a smaller arrow that fits its edge.
    bool fixedArrowSize = false;
    // Drawn across the top of the body, scaled to its width.
    QPixmap cover;
    PopupColors colors;
};
KARVEX_EXPORT void paintBubble(QPainter* painter, const Bubble& bubble);

// The bubble of `widget` over (0, 0, size): body, border, shadow, cover and,
// with `arrowFlag`, an arrow on `alignment`'s side pointing at the global
// `anchorPoint` (a null point puts the tip `offset` percent along the edge).
// Colours follow the widget's theme type.
KARVEX_EXPORT void drawPopup(QWidget* widget, QPainter* painter, KaPopupEnum::Alignment alignment,
                             const QPoint& anchorPoint, int offset, const QPixmap& coverPixmap,
                             bool arrowFlag, const QSize& size);

} // namespace KaPopupUtils
