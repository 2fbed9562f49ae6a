#pragma once

#include "karvex_export.h"

#include <QPointer>
#include <QProxyStyle>
#include <QRect>

#include <string>

class CustomFocusOverlay;
class QColor;
class QListView;
class QRectF;
class QScrollArea;
class QTreeView;

// Draws the library's keyboard focus ring for every widget painted through
// it. The base style's focus rectangle is replaced by a transparent
// CustomFocusOverlay lying a few pixels outside the focused widget, so the
// ring looks the same everywhere and is never clipped by the widget itself.
//
// Widgets steer the ring with dynamic properties: "focusBorderRadius"
// (double, default half the smaller side), "focusMargin" (int, default 5),
// "rectangularCornerMask" (1 top-left, 2 top-right, 4 bottom-left,
// 8 bottom-right), "alwaysShowFocusRectWhenFocused" (bool), and
// "hasCustomRect" on the option's style object (bool: ring the option's
// rectangle, e.g. the current item of a view, instead of the whole widget).
// The application's "isKeyboardFocus" (bool) declares keyboard navigation.
//
// List and tree views hold the ring themselves, around the current item, and
// hide it while that item is scrolled out of view; inside a scroll area the
// ring lives on the viewport and follows the scrolled widget. Qt's item views
// leave the option's style object empty, so a delegate that wants the item
// ringed puts the view there and the view carries "hasCustomRect".
//
// The ring takes the normal colour of the outer and the inner colour set;
// the usual pair is "global-focus-outline" and "textinput-background".
class KARVEX_EXPORT KaFocusStyle : public QProxyStyle {
    Q_OBJECT
public:
    // Takes ownership of `baseStyle`; null means the platform's default style.
    KaFocusStyle(const std::string& outerToken, const std::string& innerToken, bool opaque,
                 QStyle* baseStyle);
    ~KaFocusStyle() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;

    // The three-band ring over the whole of `rect`: a 4 px halo in `outer`
    // (alpha 77 unless `opaque`), a solid 2 px line in `outer` and a 2 px
    // line in `inner` inside it. `corners` uses the bits of
    // "rectangularCornerMask"; a set bit makes that corner square.
    static void drawFocusOutline(QPainter* painter, const QRect& rect, const QColor& outer,
                                 const QColor& inner, bool opaque, int radius, unsigned char corners);

    // What a painted widget calls at the end of its paintEvent() while it has
    // focus: asks whatever style it has for its focus rectangle, which under
    // this style shows the ring around the whole widget, or around `part`
    // (widget coordinates) when the widget sets "hasCustomRect".
    static void requestRing(QWidget* widget, QPainter* painter, const QRect& part = QRect());

Q_SIGNALS:
    // `customFocusRect` is in the widget's coordinates; null means the whole widget.
    void updateOverlay(const QWidget* widget, const QRect& customFocusRect);

public Q_SLOTS:
    void onFocusChanged(QWidget* old, QWidget* now);
    virtual void onUpdateOverlay(const QWidget* widget, const QRect& customFocusRect);

protected:
    // A closed path around `rect` stroked with `width`, centred on the
    // rectangle's edges; corners are quadratic curves of `radius` unless
    // their bit is set in `corners`.
    static void drawOutline(QPainter* painter, const QRectF& rect, const QColor& color, int radius, int width,
                            unsigned char corners);

private:
    friend class KaFocusPaintFilter;

    static QWidget* getFocusOverlayParent(QWidget* widget);
    void installPaintEventFilter(QWidget* widget, QWidget* overlayParent);
    static bool shouldNotDrawOutlineForClass(const QWidget* widget);
    static bool shouldNotDrawOutlineForObject(const QWidget* widget);
    static bool checkFocusedListItemVisibility(const QListView* view);
    static bool checkFocusedTreeViewItemVisibility(const QTreeView* view);
    static bool checkFocusedWidgetInScrollAreaVisibility(const QWidget* widget, const QScrollArea* area);
    // Hides the ring when it currently belongs to `widget`.
    void hideOverlayOf(const QWidget* widget);

    std::string m_outerToken;
    std::string m_innerToken;
    bool m_opaque = false;
    QPointer<CustomFocusOverlay> m_overlay;
    // The widget the current overlay was created for.
    QPointer<QWidget> m_overlayOwner;
    QPointer<QObject> m_paintFilter;
};
