#include "kapopover.h"

#include "kalabel.h"
#include "karvexutils.h"

#include <bzfont.h>
#include <bzthemeutils.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace {

// A step away from the anchor on the side a popup opens on.
QPoint outwards(KaPopupEnum::Alignment side, int distance) {
    switch (KaPopupUtils::effectiveAlignment(side)) {
    case KaPopupEnum::Top:
        return QPoint(0, -distance);
    case KaPopupEnum::Left:
        return QPoint(-distance, 0);
    case KaPopupEnum::Right:
        return QPoint(distance, 0);
    default:
        return QPoint(0, distance);
    }
}

// Its text doubles as its value: Qt's Linux bridge passes value changes,
// and so announcements, on only from objects that have a value.
class KaPopoverAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit KaPopoverAccessible(KaPopover* popover)
        : QAccessibleWidget(popover) {}

    const KaPopover* popover() const { return static_cast<const KaPopover*>(object()); }

    QAccessible::Role role() const override {
        return popover()->data().m_shouldTakeFocus ? QAccessible::Dialog : QAccessible::ToolTip;
    }

    QString text(QAccessible::Text t) const override {
        const QString own = QAccessibleWidget::text(t);
        if (!own.isEmpty() || (t != QAccessible::Name && t != QAccessible::Description))
            return own;
        const QString header = popover()->data().m_headerText;
        if (t == QAccessible::Name)
            return header.isEmpty() ? popover()->announcementText() : header;
        return header.isEmpty() ? QString() : popover()->announcementText();
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return popover()->announcementText(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return QVariant(); }
    QVariant minimumValue() const override { return QVariant(); }
    QVariant minimumStepSize() const override { return QVariant(); }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* popover = qobject_cast<KaPopover*>(object))
        return new KaPopoverAccessible(popover);
    return nullptr;
}

void sendAccessibleEvent(QObject* object, QAccessible::Event type) {
    QAccessibleEvent event(object, type);
    QAccessible::updateAccessibility(&event);
}

QPoint clampedInto(const QRect& area, const QPoint& p, const QSize& size) {
    if (!area.isValid())
        return p;
    return QPoint(std::max(area.left(), std::min(p.x(), area.right() - size.width() + 1)),
                  std::max(area.top(), std::min(p.y(), area.bottom() - size.height() + 1)));
}

} // namespace

KaPopover::KaPopover(const KaControlHandle& anchor, QWidget* parent, const KaWidgetData& data)
    : QWidget(parent)
    , m_data(data)
    , m_anchor(anchor)
    , m_layout(new QVBoxLayout(this)) {
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    setObjectName(QStringLiteral("KaPopover"));
    m_layout->setSpacing(8);
    m_dismissTimer.setInterval(DismissTickMs);
    connect(&m_dismissTimer, &QTimer::timeout, this, &KaPopover::onDismissTick);
    connect(qApp, &QApplication::focusChanged, this, &KaPopover::onFocusChanged);
    applyData();
}

KaPopover::KaPopover(QWidget* source, QWidget* parent, const KaWidgetData& data)
    : KaPopover(KaControlHandle(source), parent, data) {}

KaPopover::~KaPopover() {
    watchAnchor(false);
}

KaPopover* KaPopover::create(QWidget* content, QWidget* source, QWidget* parent, const KaWidgetData& data) {
    return create(content, KaControlHandle(source), parent, data);
}

KaPopover* KaPopover::create(QWidget* content, const KaControlHandle& anchor, QWidget* parent,
                             const KaWidgetData& data) {
    auto* popover = new KaPopover(anchor, parent, data);
    popover->setAttribute(Qt::WA_DeleteOnClose);
    popover->setContentWidget(content);
    return popover;
}

KaPopover* KaPopover::createAndShow(QWidget* content, QWidget* source, QWidget* parent,
                                    const KaWidgetData& data) {
    return createAndShow(content, KaControlHandle(source), parent, data);
}

KaPopover* KaPopover::createAndShow(QWidget* content, const KaControlHandle& anchor, QWidget* parent,
                                    const KaWidgetData& data) {
    KaPopover* popover = create(content, anchor, parent, data);
    popover->popup();
    return popover;
}

KaPopover* KaPopover::createAndShowTextPopover(QWidget* anchor, QWidget* parent, const QString& text,
                                               const KaWidgetData& data) {
    auto* label = new KaLabel(text);
    label->setObjectName(QStringLiteral("KaPopoverText"));
    label->setFontToken(BzFont::BodySmall, true);
    label->setWordWrap(true);
    // Mouse selection only: keyboard selection would show a text cursor.
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMaximumWidth(KaWidgetData::maxPopoverWidth - 2 * Padding);
    return createAndShow(label, KaControlHandle(anchor), parent, data);
}

KaPopupEnum::Alignment KaPopover::toAlignment(KaWidgetData::ArrowPostion position) {
    switch (position) {
    case KaWidgetData::ArrowTop:
        return KaPopupEnum::Bottom;
    case KaWidgetData::ArrowLeft:
        return KaPopupEnum::Right;
    case KaWidgetData::ArrowRight:
        return KaPopupEnum::Left;
    case KaWidgetData::ArrowBottom:
        return KaPopupEnum::Top;
    default:
        return KaPopupEnum::None;
    }
}

void KaPopover::applyData() {
    Qt::WindowFlags flags = Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;
    if (!m_data.m_shouldTakeFocus)
        flags |= Qt::WindowDoesNotAcceptFocus;
    setWindowFlags(flags);
    setAttribute(Qt::WA_ShowWithoutActivating, !m_data.m_activateOnShow);
    setAttribute(Qt::WA_TranslucentBackground, m_data.m_shouldHaveTransparentBackground);
    setFocusPolicy(m_data.m_shouldTakeFocus ? Qt::StrongFocus : Qt::NoFocus);
    // The labels inside follow the popover's theme type through this.
    if (m_data.m_setReverseColor)
        setProperty("themeType", BzThemeUtils::themeTypeToString(BzThemeUtils::Alternate));

    if (!m_data.m_headerText.isEmpty()) {
        m_header = new KaLabel(m_data.m_headerText, this);
        m_header->setObjectName(QStringLiteral("KaPopoverHeader"));
        m_header->setFontToken(BzFont::Subtitle, true);
        m_header->setWordWrap(true);
        m_header->setMaximumWidth(KaWidgetData::maxPopoverWidth - 2 * Padding);
        m_layout->insertWidget(0, m_header);
    }
    m_shownAlignment = KaPopupUtils::effectiveAlignment(alignment());
    applyMargins();
    onThemeChanged();
}

void KaPopover::applyMargins() {
    QMargins margins(Padding, Padding, Padding, Padding);
    if (m_data.m_shouldHaveTransparentBackground)
        margins += KaPopupUtils::bodyMargins(m_shownAlignment, arrowPosition() != KaWidgetData::ArrowNone);
    margins.setTop(margins.top() + m_coverHeight);
    if (m_layout->contentsMargins() != margins)
        m_layout->setContentsMargins(margins);
}

QSize KaPopover::preferredSize() {
    m_layout->activate();
    QSize size = sizeHint();
    if (hasHeightForWidth())
        size.setHeight(heightForWidth(size.width()));
    return size.expandedTo(minimumSizeHint());
}

QRect KaPopover::bodyRect() const {
    if (!m_data.m_shouldHaveTransparentBackground)
        return rect();
    return KaPopupUtils::bodyRect(size(), m_shownAlignment, arrowPosition() != KaWidgetData::ArrowNone);
}

void KaPopover::setContentWidget(QWidget* content) {
    if (m_content == content)
        return;
    if (m_content) {
        m_layout->removeWidget(m_content);
        m_content->deleteLater();
    }
    m_content = content;
    if (content)
        m_layout->addWidget(content);
    if (isVisible())
        updatePosition();
}

void KaPopover::setArrowPosition(KaWidgetData::ArrowPostion position) {
    if (position > KaWidgetData::ArrowNone) {
        qWarning("KaPopover: unknown arrow position %d, using ArrowNone", int(position));
        position = KaWidgetData::ArrowNone;
    }
    if (m_data.m_arrowPostion == position)
        return;
    m_data.m_arrowPostion = position;
    m_shownAlignment = KaPopupUtils::effectiveAlignment(alignment());
    applyMargins();
    if (isVisible())
        updatePosition();
    update();
    Q_EMIT arrowPositionChanged();
}

void KaPopover::setCoverImage(const QPixmap& cover) {
    if (m_cover.cacheKey() == cover.cacheKey())
        return;
    m_cover = cover;
    if (isVisible())
        updatePosition();
    update();
    Q_EMIT coverImageChanged();
}

void KaPopover::popup() {
    if (!m_anchor.isValid()) {
        qWarning("KaPopover: the anchor is gone, not showing");
        return;
    }
    updatePosition();
    show();
}

void KaPopover::updatePosition() {
    if (!m_anchor.isValid() || m_placing)
        return;
    m_placing = true;
    const bool arrow = arrowPosition() != KaWidgetData::ArrowNone;
    const KaPopupEnum::Alignment requested = KaPopupUtils::effectiveAlignment(alignment());

    // The size does not depend on the side: flipping only moves the arrow
    // band to the opposite edge.
    m_shownAlignment = requested;
    m_coverHeight = 0;
    applyMargins();
    QSize size = preferredSize();
    if (!m_cover.isNull()) {
        // The cover spans the body's width, so its height is known only now.
        const QMargins band = m_data.m_shouldHaveTransparentBackground
                                  ? KaPopupUtils::bodyMargins(requested, arrow)
                                  : QMargins();
        m_coverHeight = KaPopupUtils::coverHeight(m_cover, size.width() - band.left() - band.right());
        applyMargins();
        size = preferredSize();
    }
    resize(size);

    KaPopupEnum::Alignment shown = requested;
    QPoint p = KaPopupUtils::calculateShowPoint(m_anchor, requested, size.width(), size.height(),
                                                KaPopupUtils::DefaultOffset, &shown);
    const QRect anchorRect = m_anchor.globalRect();
    const bool vertical = shown == KaPopupEnum::Top || shown == KaPopupEnum::Bottom;
    const int margin = m_data.m_shouldHaveTransparentBackground ? KaPopupUtils::ShadowMargin : 0;
    if (m_data.m_alignment == KaWidgetData::AlignStart) {
        if (vertical)
            p.setX(anchorRect.left() - margin);
        else
            p.setY(anchorRect.top() - margin);
    } else if (m_data.m_alignment == KaWidgetData::AlignEnd) {
        if (vertical)
            p.setX(anchorRect.right() + 1 + margin - size.width());
        else
            p.setY(anchorRect.bottom() + 1 + margin - size.height());
    }
    // Without the transparent band the window's edge is the body's edge.
    if (!m_data.m_shouldHaveTransparentBackground)
        p += outwards(shown, KaPopupUtils::ShadowMargin);
    p += m_data.m_offset;

    QScreen* screen = m_anchor.screen();
    QRect area = screen ? screen->availableGeometry() : QRect();
    if (m_data.m_fitInMainWindowGeometry) {
        QWidget* source = m_anchor.widget();
        if (source && source->window())
            area = source->window()->geometry();
        else if (QQuickItem* item = m_anchor.quickItem(); item && item->window())
            area = item->window()->geometry();
    }
    p = clampedInto(area, p, size);

    if (m_data.m_showOnSourceScreen && screen && windowHandle() == nullptr)
        QWidget::create();
    if (m_data.m_showOnSourceScreen && screen && windowHandle() && windowHandle()->screen() != screen)
        windowHandle()->setScreen(screen);

    if (shown != m_shownAlignment) {
        m_shownAlignment = shown;
        applyMargins();
    }
    move(p);
    update();
    m_placing = false;
}

void KaPopover::dismiss() {
    if (!isVisible())
        return;
    Q_EMIT dismissed();
    close();
}

void KaPopover::onThemeChanged() {
    const KaPopupUtils::PopupColors colors =
        KaPopupUtils::popupColors(BzThemeUtils::getThemeTypeOfWidget(this));
    if (colors.background == m_colors.background && colors.border == m_colors.border &&
        colors.shadow == m_colors.shadow)
        return;
    m_colors = colors;
    update();
}

bool KaPopover::event(QEvent* event) {
    const bool result = QWidget::event(event);
    switch (event->type()) {
    case QEvent::LayoutRequest:
        // The content's size changed while shown: fit around it again. A
        // request that changes nothing must not re-place the popover (it
        // would follow a source that moved without moveWithSource).
        if (isVisible() && !m_placing && preferredSize() != size())
            updatePosition();
        break;
    case QEvent::WindowDeactivate:
        if (m_data.m_selfReactivate && m_data.m_shouldTakeFocus && isVisible()) {
            // Only take activation back from nothing (a transient window
            // closing), never from another window the user chose.
            QTimer::singleShot(0, this, [this] {
                if (isVisible() && !QApplication::activeWindow())
                    activateWindow();
            });
        }
        break;
    case QEvent::ParentChange:
    case QEvent::DynamicPropertyChange:
        onThemeChanged();
        break;
    default:
        break;
    }
    return result;
}

bool KaPopover::isInside(const QObject* object) const {
    if (const auto* widget = qobject_cast<const QWidget*>(object))
        return widget == this || isAncestorOf(widget);
    if (const auto* window = qobject_cast<const QWindow*>(object))
        return window == windowHandle();
    return false;
}

bool KaPopover::isOnAnchor(const QObject* object) const {
    const auto* widget = qobject_cast<const QWidget*>(object);
    QWidget* source = m_anchor.widget();
    return widget && source && (widget == source || source->isAncestorOf(widget));
}

bool KaPopover::isAnchorOrItsWindow(const QObject* object) const {
    QWidget* source = m_anchor.widget();
    return source && (object == source || object == source->window());
}

bool KaPopover::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
        if (m_data.m_autoDismiss && isVisible() && !isInside(watched) && !isOnAnchor(watched)) {
            // Widget windows pass the press on to the widget under the
            // mouse; wait for that to know whether it hit the anchor.
            if (qobject_cast<QWindow*>(watched) && watched->inherits("QWidgetWindow"))
                break;
            dismiss();
        }
        break;
    case QEvent::ApplicationStateChange:
        if (m_data.m_autoDismiss && isVisible() &&
            QGuiApplication::applicationState() != Qt::ApplicationActive)
            dismiss();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        // The application-wide filter sees every widget move; only the
        // anchor and its window count.
        if (isVisible() && isAnchorOrItsWindow(watched)) {
            if (m_data.m_dismissPopupOnSourceMove)
                dismiss();
            else if (m_data.m_moveWithSource)
                updatePosition();
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void KaPopover::watchAnchor(bool on) {
    if (on == m_watching)
        return;
    m_watching = on;
    if (on && m_data.m_autoDismiss)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
    if (!m_data.m_dismissPopupOnSourceMove && !m_data.m_moveWithSource)
        return;

    if (QWidget* source = m_anchor.widget()) {
        for (QWidget* w : {source, source->window()}) {
            if (on)
                w->installEventFilter(this);
            else
                w->removeEventFilter(this);
        }
    } else if (QQuickItem* item = m_anchor.quickItem()) {
        if (!on) {
            disconnect(item, nullptr, this, nullptr);
            if (item->window())
                disconnect(item->window(), nullptr, this, nullptr);
            return;
        }
        auto moved = [this] {
            if (!isVisible())
                return;
            if (m_data.m_dismissPopupOnSourceMove)
                dismiss();
            else
                updatePosition();
        };
        connect(item, &QQuickItem::xChanged, this, moved);
        connect(item, &QQuickItem::yChanged, this, moved);
        if (QQuickWindow* window = item->window()) {
            connect(window, &QWindow::xChanged, this, moved);
            connect(window, &QWindow::yChanged, this, moved);
        }
    }
}

void KaPopover::onFocusChanged(QWidget* /*old*/, QWidget* now) {
    if (!isVisible() || !now || !m_data.m_dismissWithParentFocused || isInside(now))
        return;
    QWidget* owner = parentWidget() ? parentWidget() : m_anchor.widget();
    if (!owner)
        return;
    const bool hit = m_data.m_skipDeepFocusCheck ? now == owner : owner->window() == now->window();
    if (hit)
        dismiss();
}

void KaPopover::onDismissTick() {
    if (underMouse()) {
        // Reading: start counting again once the mouse leaves.
        m_ticksLeft = m_data.m_dismissTimerTicks;
        return;
    }
    if (--m_ticksLeft <= 0) {
        m_dismissTimer.stop();
        dismiss();
    }
}

QString KaPopover::announcementText() const {
    QStringList parts;
    if (!m_data.m_headerText.isEmpty())
        parts << m_data.m_headerText;
    if (const auto* label = qobject_cast<const QLabel*>(m_content.data()))
        parts << label->text();
    else if (m_content && !m_content->accessibleName().isEmpty())
        parts << m_content->accessibleName();
    return parts.join(QLatin1String(", "));
}

void KaPopover::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    watchAnchor(true);
    if (m_data.m_dismissTimerTicks > 0) {
        m_ticksLeft = m_data.m_dismissTimerTicks;
        m_dismissTimer.start();
    }
    if (m_data.m_activateOnShow) {
        raise();
        activateWindow();
    }
    sendAccessibleEvent(this,
                        m_data.m_shouldTakeFocus ? QAccessible::DialogStart : QAccessible::PopupMenuStart);
    QWidget* focusTarget = nullptr;
    if (m_data.m_shouldTakeFocus) {
        // Content that takes Tab focus (a form, a button) gets it; read-only
        // content leaves it on the popover, where Escape still works.
        focusTarget = m_content && (m_content->focusPolicy() & Qt::TabFocus) ? m_content.data() : this;
        focusTarget->setFocus(Qt::PopupFocusReason);
        // A window that is not active yet takes focus without telling
        // assistive technology; tell it where focus went.
        if (QApplication::focusWidget() != focusTarget)
            sendAccessibleEvent(focusTarget, QAccessible::Focus);
    }
    // Focused content is read by the screen reader itself; anything else
    // would go unread.
    const QString text = announcementText();
    if (!text.isEmpty() && (!focusTarget || focusTarget == this))
        KarvexUtils::announce(this, text);
}

void KaPopover::hideEvent(QHideEvent* event) {
    sendAccessibleEvent(this, m_data.m_shouldTakeFocus ? QAccessible::DialogEnd : QAccessible::PopupMenuEnd);
    m_dismissTimer.stop();
    watchAnchor(false);
    if (m_data.m_focusSourceOnClose) {
        // Only hand focus back when it was ours; a click elsewhere that
        // dismissed us has already chosen where focus goes.
        QWidget* focus = QApplication::focusWidget();
        QWidget* source = m_anchor.widget();
        if (source && (!focus || isInside(focus)) && source->isVisible())
            source->setFocus(Qt::PopupFocusReason);
    }
    QWidget::hideEvent(event);
}

void KaPopover::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_data.m_autoDismiss) {
        dismiss();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void KaPopover::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (!m_data.m_shouldHaveTransparentBackground) {
        // An opaque window shows no shadow or arrow: a plain framed body.
        painter.fillRect(rect(), m_colors.background);
        painter.setPen(QPen(m_colors.border, KaPopupUtils::BorderWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
        const int coverH = KaPopupUtils::coverHeight(m_cover, width());
        if (coverH > 0)
            painter.drawPixmap(QRect(0, 0, width(), coverH), m_cover);
        return;
    }
    KaPopupUtils::Bubble bubble;
    bubble.size = size();
    bubble.alignment = m_shownAlignment;
    bubble.arrow = arrowPosition() != KaWidgetData::ArrowNone;
    bubble.fixedArrowSize = m_data.m_fixedArrowSize;
    bubble.cover = m_cover;
    bubble.colors = m_colors;
    if (bubble.arrow && m_anchor.isValid()) {
        const QPoint local = mapFromGlobal(KaPopupUtils::anchorPoint(m_anchor, m_shownAlignment));
        const bool vertical = m_shownAlignment == KaPopupEnum::Top || m_shownAlignment == KaPopupEnum::Bottom;
        bubble.arrowAt = std::max(0, vertical ? local.x() : local.y());
    }
    KaPopupUtils::paintBubble(&painter, bubble);
}
