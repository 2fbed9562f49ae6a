#include "kafocusstyle.h"

#include <QStyleOptionFocusRect>

#include "customfocusoverlay.h"

#include <drawutils.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QListView>
#include <QPainter>
#include <QPainterPath>
#include <QScrollArea>
#include <QSet>
#include <QStyleOption>
#include <QTreeView>

#include <algorithm>

namespace {
constexpr int kDefaultFocusMargin = 5;
// Alpha of the outer halo unless the ring is opaque.
constexpr int kHaloAlpha = 77;
} // namespace

// Sits on the scrolling container of the focused widget (a view's viewport
// or a scroll area's content widget). Scrolling moves the item or widget
// without necessarily repainting it, so its focus rectangle would not ask
// for the ring again: each paint of the container re-checks it.
class KaFocusPaintFilter : public QObject {
public:
    enum Kind { ListView, TreeView, ScrollArea };

    KaFocusPaintFilter(KaFocusStyle* style, QWidget* focused, QScrollArea* area, Kind kind, QWidget* watched)
        : QObject(watched)
        , m_style(style)
        , m_focused(focused)
        , m_area(area)
        , m_kind(kind) {
        m_lastPlace = place();
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && m_style && m_focused)
            recheck();
        return QObject::eventFilter(watched, event);
    }

private:
    bool isInView() const {
        switch (m_kind) {
        case ListView:
            return KaFocusStyle::checkFocusedListItemVisibility(static_cast<QListView*>(m_focused.data()));
        case TreeView:
            return KaFocusStyle::checkFocusedTreeViewItemVisibility(
                static_cast<QTreeView*>(m_focused.data()));
        case ScrollArea:
            return KaFocusStyle::checkFocusedWidgetInScrollAreaVisibility(m_focused, m_area);
        }
        return false;
    }

    // Where the focused item or widget is now, in the watched container.
    QRect place() const {
        if (!m_focused)
            return QRect();
        if (m_kind == ScrollArea) {
            const QWidget* content = m_area ? m_area->widget() : nullptr;
            if (!content || !content->isAncestorOf(m_focused))
                return QRect();
            return QRect(m_focused->mapTo(content, QPoint()), m_focused->size());
        }
        const auto* view = static_cast<const QAbstractItemView*>(m_focused.data());
        return view->visualRect(view->currentIndex());
    }

    void recheck() {
        if (!isInView()) {
            m_style->hideOverlayOf(m_focused);
            m_lastPlace = QRect();
            return;
        }
        const QRect now = place();
        if (now == m_lastPlace)
            return;
        m_lastPlace = now;
        // It moved: have it paint again so that its focus rectangle places
        // the ring anew. Not from inside this paint, and only once per move,
        // so this cannot feed itself.
        QPointer<QWidget> target = m_kind == ScrollArea
                                       ? m_focused.data()
                                       : static_cast<QAbstractItemView*>(m_focused.data())->viewport();
        const QRect region = m_kind == ScrollArea ? QRect() : now;
        QMetaObject::invokeMethod(
            this,
            [target, region] {
                if (!target)
                    return;
                if (region.isNull())
                    target->update();
                else
                    target->update(region);
            },
            Qt::QueuedConnection);
    }

    QPointer<KaFocusStyle> m_style;
    QPointer<QWidget> m_focused;
    QPointer<QScrollArea> m_area;
    Kind m_kind;
    QRect m_lastPlace;
};

KaFocusStyle::KaFocusStyle(const std::string& outerToken, const std::string& innerToken, bool opaque,
                           QStyle* baseStyle)
    : QProxyStyle(baseStyle)
    , m_outerToken(outerToken)
    , m_innerToken(innerToken)
    , m_opaque(opaque) {
    if (auto* app = qobject_cast<QApplication*>(QCoreApplication::instance()))
        connect(app, &QApplication::focusChanged, this, &KaFocusStyle::onFocusChanged);
    else
        qWarning("KaFocusStyle: no QApplication, focus changes are not followed");
    connect(this, &KaFocusStyle::updateOverlay, this, &KaFocusStyle::onUpdateOverlay);
}

KaFocusStyle::~KaFocusStyle() {
    // A ring left behind by a replaced style would never move again.
    delete m_overlay.data();
    delete m_paintFilter.data();
}

void KaFocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (element != PE_FrameFocusRect || !option || !widget) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    if (shouldNotDrawOutlineForClass(widget) || shouldNotDrawOutlineForObject(widget))
        return;

    if (qstyleoption_cast<const QStyleOptionFocusRect*>(option)) {
        const bool always = widget->property("alwaysShowFocusRectWhenFocused").toBool();
        const QCoreApplication* app = QCoreApplication::instance();
        const bool keyboard = app && app->property("isKeyboardFocus").toBool();
        if (!(option->state & State_KeyboardFocusChange) &&
            !baseStyle()->styleHint(SH_UnderlineShortcut, option, widget) && !always && !keyboard)
            return;
    }

    QRect rect;
    if (option->styleObject && option->styleObject->property("hasCustomRect").toBool()) {
        rect = option->rect;
        if (painter) {
            // Item views paint their items on the viewport: the ring is
            // placed in the coordinates of `widget` itself.
            rect = painter->worldTransform().mapRect(rect);
            QPaintDevice* device = painter->device();
            if (device && device->devType() == QInternal::Widget) {
                auto* painted = static_cast<QWidget*>(device);
                if (painted != widget && widget->isAncestorOf(painted))
                    rect.translate(painted->mapTo(widget, QPoint()));
            }
        }
    }

    // Nothing is painted here. The ring is another widget, which must not be
    // moved or shown from inside this paint.
    QPointer<KaFocusStyle> self(const_cast<KaFocusStyle*>(this));
    QPointer<const QWidget> target(widget);
    QMetaObject::invokeMethod(
        self.data(),
        [self, target, rect] {
            if (self && target)
                Q_EMIT self->updateOverlay(target, rect);
        },
        Qt::QueuedConnection);
}

void KaFocusStyle::onFocusChanged(QWidget*, QWidget* now) {
    if (m_overlay)
        m_overlay->hide();
    if (!now)
        return;

    // Deferred: the widget may still be mid-construction or be deleted
    // right after taking focus.
    QPointer<KaFocusStyle> self(this);
    QPointer<QWidget> focused(now);
    QMetaObject::invokeMethod(
        this,
        [self, focused] {
            if (!self)
                return;
            if (self->m_overlay)
                self->m_overlay->deleteLater();
            self->m_overlay = nullptr;
            self->m_overlayOwner = nullptr;
            if (!focused)
                return;
            QWidget* parent = getFocusOverlayParent(focused);
            if (!parent)
                return;
            auto* overlay =
                new CustomFocusOverlay(self->m_outerToken, self->m_innerToken, self->m_opaque, parent);
            self->m_overlay = overlay;
            self->m_overlayOwner = focused;
            overlay->raise();
            delete self->m_paintFilter.data();
            self->installPaintEventFilter(focused, parent);
        },
        Qt::QueuedConnection);
}

void KaFocusStyle::onUpdateOverlay(const QWidget* widget, const QRect& customFocusRect) {
    if (!m_overlay || !widget || !widget->isVisible() || !widget->hasFocus())
        return;

    const QSize size = customFocusRect.isNull() ? widget->size() : customFocusRect.size();
    double radius = std::min(size.width(), size.height()) / 2.0;
    const QVariant radiusProperty = widget->property("focusBorderRadius");
    if (radiusProperty.isValid())
        radius = std::max(0.0, radiusProperty.toDouble());
    const QVariant marginProperty = widget->property("focusMargin");
    const int margin = marginProperty.isValid() ? marginProperty.toInt() : kDefaultFocusMargin;

    // The ring follows the widget's own shape at a distance of `margin`.
    m_overlay->resize(size.grownBy(QMargins(margin, margin, margin, margin)));
    m_overlay->setRadius(radius + margin);
    const QVariant maskProperty = widget->property("rectangularCornerMask");
    m_overlay->setRectangularCornerMask(
        maskProperty.isValid() ? static_cast<unsigned char>(maskProperty.toUInt()) : 0);

    QWidget* overlayParent = m_overlay->parentWidget();
    if (!overlayParent)
        return;
    const QPoint topLeft = customFocusRect.isNull() ? QPoint() : customFocusRect.topLeft();
    QPoint global;
    if (const QWidget* parent = widget->parentWidget())
        global = parent->mapToGlobal(customFocusRect.isNull() ? widget->pos() : widget->mapToParent(topLeft));
    else
        global = widget->mapToGlobal(topLeft);
    m_overlay->move(overlayParent->mapFromGlobal(global) - QPoint(margin, margin));
    m_overlay->show();
}

void KaFocusStyle::drawFocusOutline(QPainter* painter, const QRect& rect, const QColor& outer,
                                    const QColor& inner, bool opaque, int radius, unsigned char corners) {
    if (!painter)
        return;
    QColor halo = outer;
    if (!opaque)
        halo.setAlpha(kHaloAlpha);
    QColor line = outer;
    line.setAlpha(255);
    painter->setRenderHint(QPainter::Antialiasing, true);

    // Pens are centred on the path, so the 4 px halo around r1 reaches the
    // overlay's edge and the inner line ends 5 px inside it.
    const QRectF r1 = QRectF(rect).adjusted(2, 2, -2, -2);
    drawOutline(painter, r1, halo, radius - 2, 4, corners);
    drawOutline(painter, r1, line, radius - 3, 2, corners);
    const QRectF r2 = r1.adjusted(2, 2, -2, -2);
    drawOutline(painter, r2, inner, radius - 5, 2, corners);
}

void KaFocusStyle::drawOutline(QPainter* painter, const QRectF& rect, const QColor& color, int radius,
                               int width, unsigned char corners) {
    if (!painter || rect.isEmpty())
        return;
    // Larger radii would make the curves of neighbouring corners cross.
    const qreal r = std::clamp(qreal(radius), qreal(0), std::min(rect.width(), rect.height()) / 2);
    const auto square = [corners, r](DrawUtils::Corner corner) {
        return r <= 0 || (corners & corner) != 0;
    };
    const qreal left = rect.left();
    const qreal top = rect.top();
    const qreal right = rect.right();
    const qreal bottom = rect.bottom();

    // Clockwise from the top-left corner.
    QPainterPath path;
    if (square(DrawUtils::TopLeft)) {
        path.moveTo(left, top);
    } else {
        path.moveTo(left, top + r);
        path.quadTo(left, top, left + r, top);
    }
    if (square(DrawUtils::TopRight)) {
        path.lineTo(right, top);
    } else {
        path.lineTo(right - r, top);
        path.quadTo(right, top, right, top + r);
    }
    if (square(DrawUtils::BottomRight)) {
        path.lineTo(right, bottom);
    } else {
        path.lineTo(right, bottom - r);
        path.quadTo(right, bottom, right - r, bottom);
    }
    if (square(DrawUtils::BottomLeft)) {
        path.lineTo(left, bottom);
    } else {
        path.lineTo(left + r, bottom);
        path.quadTo(left, bottom, left, bottom - r);
    }
    path.closeSubpath();

    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->drawPath(path);
    painter->restore();
}

void KaFocusStyle::requestRing(QWidget* widget, QPainter* painter, const QRect& part) {
    if (!widget || !painter)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    if (!part.isNull()) {
        option.rect = part;
        option.styleObject = widget;
    }
    widget->style()->drawPrimitive(PE_FrameFocusRect, &option, painter, widget);
}

QWidget* KaFocusStyle::getFocusOverlayParent(QWidget* widget) {
    if (!widget)
        return nullptr;
    // The ring goes around the current item, inside the view.
    if (qobject_cast<QListView*>(widget) || qobject_cast<QTreeView*>(widget))
        return widget;
    if (widget->isWindow())
        return widget;
    // Inside a scroll area the ring lives on the viewport: it is clipped
    // like the content and never covers the scroll bars.
    for (QWidget* ancestor = widget->parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        if (ancestor->isWindow())
            return ancestor;
        const auto* area = qobject_cast<QAbstractScrollArea*>(ancestor->parentWidget());
        if (area && area->viewport() == ancestor)
            return ancestor;
    }
    return widget->window();
}

void KaFocusStyle::installPaintEventFilter(QWidget* widget, QWidget* overlayParent) {
    if (!widget || !overlayParent)
        return;
    if (auto* list = qobject_cast<QListView*>(widget)) {
        m_paintFilter =
            new KaFocusPaintFilter(this, list, nullptr, KaFocusPaintFilter::ListView, list->viewport());
        return;
    }
    if (auto* tree = qobject_cast<QTreeView*>(widget)) {
        m_paintFilter =
            new KaFocusPaintFilter(this, tree, nullptr, KaFocusPaintFilter::TreeView, tree->viewport());
        return;
    }
    // Only a scroll area's viewport can hold the ring of scrolled content
    // (see getFocusOverlayParent); elsewhere nothing scrolls under the ring.
    auto* area = qobject_cast<QScrollArea*>(overlayParent->parentWidget());
    if (!area || area->viewport() != overlayParent || !area->widget() ||
        !area->widget()->isAncestorOf(widget))
        return;
    m_paintFilter =
        new KaFocusPaintFilter(this, widget, area, KaFocusPaintFilter::ScrollArea, area->widget());
}

bool KaFocusStyle::shouldNotDrawOutlineForClass(const QWidget* widget) {
    // Lists that draw their own current-item highlight.
    static const QSet<QString> excluded = {
        QStringLiteral("VoicemailListWidget"),
        QStringLiteral("QCalendarView"),
        QStringLiteral("SingleNumberReachListWidget"),
        QStringLiteral("CallHistoryActiveCallsList"),
    };
    return widget && excluded.contains(QString::fromLatin1(widget->metaObject()->className()));
}

bool KaFocusStyle::shouldNotDrawOutlineForObject(const QWidget* widget) {
    static const QSet<QString> excluded = {
        QStringLiteral("countryCodeComboBox"),     QStringLiteral("captionsListWidget"),
        QStringLiteral("hightlightsListWidget"),   QStringLiteral("callHistoryListView"),
        QStringLiteral("MoreInfoButtonPopupText"),
    };
    return widget && excluded.contains(widget->objectName());
}

bool KaFocusStyle::checkFocusedListItemVisibility(const QListView* view) {
    if (!view)
        return false;
    const QModelIndex current = view->currentIndex();
    if (!current.isValid() || view->isRowHidden(current.row()))
        return false;
    return view->visualRect(current).intersects(view->viewport()->rect());
}

bool KaFocusStyle::checkFocusedTreeViewItemVisibility(const QTreeView* view) {
    if (!view)
        return false;
    const QModelIndex current = view->currentIndex();
    if (!current.isValid())
        return false;
    // Empty for rows under a collapsed parent or hidden rows.
    const QRect rect = view->visualRect(current);
    return !rect.isEmpty() && rect.intersects(view->viewport()->rect());
}

bool KaFocusStyle::checkFocusedWidgetInScrollAreaVisibility(const QWidget* widget, const QScrollArea* area) {
    if (!widget || !area || !widget->isVisible())
        return false;
    const QWidget* viewport = area->viewport();
    if (!viewport->isAncestorOf(widget))
        return false;
    return QRect(widget->mapTo(viewport, QPoint()), widget->size()).intersects(viewport->rect());
}

void KaFocusStyle::hideOverlayOf(const QWidget* widget) {
    if (m_overlay && widget && m_overlayOwner == widget)
        m_overlay->hide();
}
