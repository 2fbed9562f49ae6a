#include "kamenu.h"

#include "kabutton.h"
#include "kacustomizedseparatoritemdata.h"
#include "kadiscoverabilitybanner.h"
#include "kadiscoverabilitybannerdata.h"
#include "kafocusstyle.h"
#include "kamenuaction.h"
#include "kamenuitem.h"
#include "kamenuitemcontainer.h"
#include "kamenuitemdata.h"
#include "kamenustyle_p.h"
#include "kapillbutton.h"
#include "kapopover.h"
#include "kapopuputils.h"
#include "karvexutils.h"

#include <bzfont.h>
#include <bzthemeutils.h>

#include <QAccessible>
#include <QActionEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QQuickItem>
#include <QScreen>
#include <QStyleOptionMenuItem>
#include <QWidgetAction>

#include <algorithm>

namespace {

// What an action stands for, kept apart from its text (which becomes the
// spoken position text).
const char* const kTitleProperty = "_ka_menu_title";
const char* const kHeaderProperty = "_ka_menu_header";
const char* const kGroupSeparatorProperty = "_ka_menu_group_separator";
const char* const kPopupEntryName = "MenuItemWithPopup";

// Extra room on the anchor's side: the arrow's, or a little air without one.
constexpr int kNoArrowExtra = 5;
constexpr int kVerticalArrowExtra = 15;
constexpr int kHorizontalArrowExtra = 16;
constexpr int kHeaderHeight = 32;

const QString& cssTemplate() {
    static const QString css = QStringLiteral(
        "QMenu{ background-color: $(%1); border-radius:%3; } QMenu::item:selected { background-color: "
        "$(%1.hovered); border-radius:%3; } QMenu::item:disabled { background-color: $(%1.disabled); "
        "border-radius:%3; } QMenu::separator { background:$(%2); height: 1px; margin-top: 4px; "
        "margin-bottom: 4px;} ");
    return css;
}

bool isValidAlignment(KaPopupEnum::Alignment alignment) {
    return alignment >= KaPopupEnum::Top && alignment <= KaPopupEnum::Bottom;
}

KaPopupEnum::Alignment checkedAlignment(KaPopupEnum::Alignment alignment) {
    if (alignment == KaPopupEnum::None)
        return KaPopupEnum::Bottom;
    if (!isValidAlignment(alignment)) {
        qWarning("KaMenu: alignment %d out of range, opening below", int(alignment));
        return KaPopupEnum::Bottom;
    }
    return alignment;
}

bool isBanner(const QAction* action) {
    const auto* menuAction = qobject_cast<const KaMenuAction*>(action);
    return menuAction && menuAction->isDiscoverabilityBanner();
}

bool isGroupSeparator(const QAction* action) {
    return action->property(kGroupSeparatorProperty).toBool();
}

// The top-left of a popup on `alignment`'s side of `anchor` before any
// keeping on screen: what tells whether that side has room.
QPoint unclampedShowPoint(const QRect& anchor, KaPopupEnum::Alignment alignment, const QSize& size,
                          int offset) {
    using namespace KaPopupUtils;
    const int alongX = qRound(size.width() * offset / 100.0);
    const int alongY = qRound(size.height() * offset / 100.0);
    switch (alignment) {
    case KaPopupEnum::Top:
        return QPoint(anchor.center().x() - alongX,
                      anchor.top() - AnchorGap - (size.height() - ShadowMargin));
    case KaPopupEnum::Left:
        return QPoint(anchor.left() - AnchorGap - (size.width() - ShadowMargin),
                      anchor.center().y() - alongY);
    case KaPopupEnum::Right:
        return QPoint(anchor.right() + 1 + AnchorGap - ShadowMargin, anchor.center().y() - alongY);
    default:
        return QPoint(anchor.center().x() - alongX, anchor.bottom() + 1 + AnchorGap - ShadowMargin);
    }
}

enum class Overflow { None, Right, Bottom, Left, Top };

Overflow overflowOf(const QRect& rect, const QRect& area) {
    if (!area.isValid())
        return Overflow::None;
    if (rect.right() > area.right())
        return Overflow::Right;
    if (rect.bottom() > area.bottom())
        return Overflow::Bottom;
    if (rect.left() < area.left())
        return Overflow::Left;
    if (rect.top() < area.top())
        return Overflow::Top;
    return Overflow::None;
}

// Whether `rect` leaves `area` on the side a popup opening towards
// `alignment` grows into.
bool leavesTowards(const QRect& rect, const QRect& area, KaPopupEnum::Alignment alignment) {
    switch (alignment) {
    case KaPopupEnum::Top:
        return rect.top() < area.top();
    case KaPopupEnum::Left:
        return rect.left() < area.left();
    case KaPopupEnum::Right:
        return rect.right() > area.right();
    default:
        return rect.bottom() > area.bottom();
    }
}

} // namespace

// A section header: one line of text in the theme's secondary text colour.
// Painted directly: a header is not focusable and has no parts.
class KaMenuHeader : public QWidget {
    Q_OBJECT
public:
    KaMenuHeader(const QString& text, const QString& colorSet, QWidget* parent = nullptr)
        : QWidget(parent)
        , m_text(text)
        , m_colorSet(colorSet.isEmpty() ? QStringLiteral("listitem-textsecondary") : colorSet) {
        setObjectName(QStringLiteral("KaMenuHeader"));
        setFont(BzFont(BzFont::Caption));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAccessibleName(text);
        onThemeChanged();
    }
    void setPaddings(int left, int right) {
        m_left = std::max(0, left);
        m_right = std::max(0, right);
    }
    void setWrap(bool wrap) { m_wrap = wrap; }
    QSize sizeHint() const override {
        const QFontMetrics metrics(font());
        return QSize(metrics.horizontalAdvance(m_text) + m_left + m_right + 24, kHeaderHeight);
    }

public Q_SLOTS:
    void onThemeChanged() {
        m_color = BzThemeUtils::getColorSet(m_colorSet, BzThemeUtils::getThemeTypeOfWidget(this)).normal();
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(m_color);
        // Lined up with the entries' titles, which sit 12 px in.
        const QRect area = rect().adjusted(12 + m_left, 0, -12 - m_right, 0);
        const Qt::Alignment align =
            QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
        if (m_wrap)
            painter.drawText(area, int(align) | Qt::TextWordWrap, m_text);
        else
            painter.drawText(area, int(align),
                             painter.fontMetrics().elidedText(m_text, Qt::ElideRight, area.width()));
    }

private:
    QString m_text;
    QString m_colorSet;
    QColor m_color;
    int m_left = 0;
    int m_right = 0;
    bool m_wrap = false;
};

KaMenu::KaMenu(QWidget* parent)
    : KaMenuBase(parent, false) {
    setObjectName(QStringLiteral("KaMenu"));
    setSeparatorsCollapsible(false);
    connect(this, &QMenu::aboutToHide, this, &KaMenu::resetAlignment);
    connect(this, &QMenu::hovered, this, &KaMenu::markHovered);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    m_menuStyle = new KaMenuStyle(this);
    QWidget::setStyle(m_menuStyle);
    setContentsMargins(Margin, Margin, Margin, Margin);
    m_spareAction = new QAction(this);
    refresh();
}

KaMenu::~KaMenu() {
    // Sub-menus die in QWidget's destructor, when this is no KaMenu any more.
    for (const QMetaObject::Connection& connection : std::as_const(m_subMenuConnections))
        disconnect(connection);
    // The style dies with the menu, but the widget must not be left
    // pointing at it while QWidget tears down.
    QWidget::setStyle(nullptr);
}

// ---- building

KaMenuAction* KaMenu::addEntry(const KaMenuItemData& record) {
    auto* action = new KaMenuAction(this);
    auto* item = new KaMenuItem();
    item->setStyle(m_style);
    item->setSize(m_size);
    item->applyData(record);
    action->setDefaultWidget(item);
    action->applyData(record);
    action->setProperty(kTitleProperty,
                        record.accessibleName.isEmpty() ? record.title : record.accessibleName);
    KaMenuBase::addAction(action);
    if (record.firstAction)
        setFirstAction(action);
    return action;
}

KaMenuAction* KaMenu::addMenuItem(const KaMenuItemData& record) {
    return addEntry(record);
}

KaMenuAction* KaMenu::addMenuItemWithPopup(const KaMenuItemData& record) {
    KaMenuAction* action = addEntry(record);
    if (QWidget* entry = action->defaultWidget()) {
        entry->setObjectName(QLatin1String(kPopupEntryName));
        entry->installEventFilter(this);
    }
    return action;
}

void KaMenu::attachSubMenu(KaMenuAction* action, KaMenu* menu) {
    if (!menu) {
        qWarning("KaMenu: null sub-menu ignored");
        return;
    }
    if (!menu->parent())
        menu->setParent(this, menu->windowFlags());
    menu->setStyle(m_style);
    menu->setSize(m_size);
    connect(this, &KaMenu::styleChanged, menu, qOverload<KaMenuEnum::Style>(&KaMenu::setStyle));
    connect(this, &KaMenu::sizeChanged, menu, &KaMenu::setSize);
    action->setMenu(menu);
    action->setActionIconVisible(true);
    // Without its sub-menu the entry is a plain one again.
    QPointer<KaMenuAction> guarded(action);
    m_subMenuConnections << connect(menu, &QObject::destroyed, this, [this, guarded] {
        if (guarded)
            guarded->setActionIconVisible(false);
        scheduleAccessibleUpdate();
    });
}

KaMenuAction* KaMenu::addMenu(const KaMenuItemData& record, KaMenu* menu) {
    KaMenuAction* action = addEntry(record);
    attachSubMenu(action, menu);
    return action;
}

KaMenuAction* KaMenu::addMenuItemInMenu(const KaMenuItemData& record, KaMenu* menu) {
    return addMenu(record, menu);
}

QAction* KaMenu::addMenu(const QString& title, KaMenu* menu) {
    KaMenuItemData record;
    record.title = title;
    return addMenu(record, menu);
}

QWidgetAction* KaMenu::addMenu(QWidget* widget, KaMenu* menu, bool enabled) {
    QWidgetAction* action = addCustomMenuItem(widget, enabled, false);
    if (!action)
        return nullptr;
    if (!menu) {
        qWarning("KaMenu: null sub-menu ignored");
        return action;
    }
    if (!menu->parent())
        menu->setParent(this, menu->windowFlags());
    action->setMenu(menu);
    return action;
}

QWidgetAction* KaMenu::addCustomMenuItem(QWidget* widget, bool enabled, bool firstAction) {
    if (!widget) {
        qWarning("KaMenu: null entry widget ignored");
        return nullptr;
    }
    auto* action = new KaMenuAction(this);
    auto* container = new KaMenuItemContainer();
    container->setWidget(widget);
    action->setDefaultWidget(container);
    action->setEnabled(enabled);
    action->setProperty(kTitleProperty, widget->accessibleName());
    connect(container, &KaMenuItemContainer::hovered, this, [this, action] {
        if (action->isEnabled())
            setActiveAction(action);
    });
    KaMenuBase::addAction(action);
    if (firstAction)
        setFirstAction(action);
    return action;
}

KaMenuAction* KaMenu::addContextMenu(const KaMenuItemData& record, KaMenuBase* menu) {
    KaMenuAction* action = addEntry(record);
    QWidget* entry = action->defaultWidget();
    if (!menu || !entry) {
        qWarning("KaMenu: null context menu ignored");
        return action;
    }
    entry->setContextMenuPolicy(Qt::CustomContextMenu);
    QPointer<KaMenuBase> guarded(menu);
    connect(entry, &QWidget::customContextMenuRequested, menu, [guarded, entry](const QPoint& point) {
        if (guarded)
            guarded->popupAt(entry->mapToGlobal(point));
    });
    connect(menu, &QMenu::aboutToHide, this, &QWidget::hide);
    return action;
}

QWidgetAction* KaMenu::addDiscoverabilityBanner(const KaDiscoverabilityBannerData& record) {
    auto* action = new KaMenuAction(this);
    auto* banner = new KaDiscoverabilityBanner(nullptr, record.type);
    banner->setFixedWidth(std::max(1, record.width));
    banner->setBannerText(record.text);
    action->setDiscoverabilityBanner(true);
    // The banner keeps its own width on the entries' leading side, in both
    // layout directions.
    auto* holder = new QWidget;
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(banner);
    layout->addStretch(1);
    action->setDefaultWidget(holder);
    KaMenuBase::addAction(action);
    QAction* separator = addGroupSeparator();
    QPointer<QAction> guardedSeparator(separator);
    connect(banner, &KaDiscoverabilityBanner::dismissed, action, [action, guardedSeparator] {
        action->setVisible(false);
        if (guardedSeparator)
            guardedSeparator->setVisible(false);
    });
    return action;
}

QAction* KaMenu::addGroupSeparator() {
    auto* action = new QAction(this);
    action->setSeparator(true);
    action->setProperty(kGroupSeparatorProperty, true);
    QWidget::addAction(action);
    return action;
}

QWidgetAction* KaMenu::addSeparator(const QString& text) {
    KaCustomizedSeparatorItemData record;
    record.text = text;
    record.itemHeight = kHeaderHeight;
    return addSeparator(record);
}

QWidgetAction* KaMenu::addSeparator(const KaCustomizedSeparatorItemData& record) {
    auto* header = new KaMenuHeader(record.text, record.textColorSetName);
    header->setPaddings(record.leftPadding, record.rightPadding);
    header->setWrap(record.autoWrap);
    header->setFixedHeight(std::max(1, record.itemHeight));
    header->setMaximumWidth(std::max(1, record.maximumWidth));
    if (!record.objectName.isEmpty())
        header->setObjectName(record.objectName);
    auto* action = new QWidgetAction(this);
    action->setDefaultWidget(header);
    action->setText(record.text);
    action->setProperty(kHeaderProperty, record.text);
    // Headers are read, never chosen.
    action->setEnabled(false);
    QWidget::addAction(action);
    return action;
}

void KaMenu::actionEvent(QActionEvent* event) {
    KaMenuBase::actionEvent(event);
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved)
        scheduleAccessibleUpdate();
}

// ---- accessibility

void KaMenu::scheduleAccessibleUpdate() {
    // One pass for a whole batch of additions: every entry's count changes
    // with each one.
    if (m_accessibleUpdatePending)
        return;
    m_accessibleUpdatePending = true;
    QMetaObject::invokeMethod(
        this, [this] { updateAccessibleName(); }, Qt::QueuedConnection);
}

void KaMenu::updateAccessibleName() {
    m_accessibleUpdatePending = false;
    m_sectionHeaders.clear();
    struct Entry {
        QAction* action;
        QString label;
    };
    QList<Entry> section;
    const auto flush = [&] {
        const QString count = QString::number(section.size());
        for (int i = 0; i < section.size(); ++i) {
            const Entry& e = section.at(i);
            const QString position = QString::number(i + 1);
            e.action->setText(e.action->menu()
                                  ? tr("%1, %2 of %3").arg(e.label, position, count)
                                  : tr("%1, %2, %3 of %4").arg(e.label, tr("Menu Item"), position, count));
        }
        section.clear();
    };
    QString header;
    const QList<QAction*> all = actions();
    for (int i = 0; i < all.size(); ++i) {
        QAction* action = all.at(i);
        const QVariant headerText = action->property(kHeaderProperty);
        if (headerText.isValid()) {
            flush();
            header = headerText.toString();
            m_sectionHeaders.append(i);
            continue;
        }
        if (action->isSeparator() || isBanner(action))
            continue;
        QVariant title = action->property(kTitleProperty);
        if (!title.isValid()) {
            // A plain action added through QMenu: its text is its title.
            title = action->text();
            action->setProperty(kTitleProperty, title);
        }
        const QString label =
            header.isEmpty() ? title.toString() : header + QStringLiteral(", ") + title.toString();
        section.append({action, label});
    }
    flush();
}

// ---- pop-up

void KaMenu::applyAlignment(KaPopupEnum::Alignment alignment) {
    const bool vertical = alignment == KaPopupEnum::Top || alignment == KaPopupEnum::Bottom;
    const int extra = !m_showArrow ? kNoArrowExtra : vertical ? kVerticalArrowExtra : kHorizontalArrowExtra;
    QMargins margins(Margin, Margin, Margin, Margin);
    switch (alignment) {
    case KaPopupEnum::Top:
        margins.setBottom(margins.bottom() + extra);
        break;
    case KaPopupEnum::Left:
        margins.setRight(margins.right() + extra);
        break;
    case KaPopupEnum::Right:
        margins.setLeft(margins.left() + extra);
        break;
    default:
        margins.setTop(margins.top() + extra);
        break;
    }
    m_alignment = alignment;
    if (contentsMargins() != margins)
        setContentsMargins(margins);
}

void KaMenu::updateMenuPos() {
    if (!m_handle.isValid())
        return;
    const QRect anchor = m_handle.globalRect();
    const QScreen* screen = m_handle.screen();
    const QRect area = screen ? screen->availableGeometry() : QRect();
    QSize hint = sizeHint();
    auto rectAt = [&](KaPopupEnum::Alignment side) {
        return QRect(unclampedShowPoint(anchor, side, hint, int(m_popOffset)), hint);
    };

    // Flip once to the opposite side when the requested one has no room.
    QRect rect = rectAt(m_alignment);
    if (area.isValid() && leavesTowards(rect, area, m_alignment) && m_alignment == m_requestedAlignment) {
        const KaPopupEnum::Alignment flipped = KaPopupUtils::oppositeAlignment(m_alignment);
        applyAlignment(flipped);
        hint = sizeHint();
        rect = rectAt(flipped);
    }

    // Above or below: slide the arrow along the edge instead of leaving the
    // screen on the left.
    const bool vertical = m_alignment == KaPopupEnum::Top || m_alignment == KaPopupEnum::Bottom;
    const int distance = anchor.center().x() - area.left();
    if (vertical && overflowOf(rect, area) == Overflow::Left && distance != 0 && hint.width() > 0) {
        const int offset = (distance - 1) * 100 / hint.width();
        if (offset >= 0 && offset < 100) {
            m_popOffset = unsigned(offset);
            rect = rectAt(m_alignment);
        }
    }
    // Still off screen: below the anchor as a last resort.
    if (area.isValid() && !area.contains(rect) && hint.width() > 0 && hint.height() <= area.height() &&
        hint.width() <= area.width() && overflowOf(rect, area) != Overflow::None) {
        if (m_alignment != KaPopupEnum::Bottom && leavesTowards(rect, area, m_alignment)) {
            applyAlignment(KaPopupEnum::Bottom);
            hint = sizeHint();
        }
        const int offset = (distance - 2) * 100 / hint.width();
        if (vertical && offset >= 0 && offset < 100)
            m_popOffset = unsigned(offset);
    }

    KaPopupEnum::Alignment shown = m_alignment;
    const QPoint point = KaPopupUtils::calculateShowPoint(m_handle, m_alignment, hint.width(), hint.height(),
                                                          int(m_popOffset), &shown);
    if (shown != m_alignment)
        applyAlignment(shown);
    KaMenuBase::popupAt(point);
    updateCurrentActionState();
}

void KaMenu::popupAt(const QPoint& globalPoint) {
    m_handle = KaControlHandle();
    applyAlignment(m_requestedAlignment);
    KaMenuBase::popupAt(globalPoint);
    updateCurrentActionState();
}

void KaMenu::popupAt(const KaMenuPositionConfig& config) {
    if (config.anchorWidget)
        popupAt(config.anchorWidget.data(), config.alignment, config.showArrow);
    else if (config.anchorItem)
        popupAt(config.anchorItem.data(), config.alignment, config.showArrow);
    else if (config.anchorButton)
        popupAt(static_cast<QWidget*>(config.anchorButton.data()), config.alignment, config.showArrow);
    else
        qWarning("Unable to do KaMenu::popAt null item.");
}

void KaMenu::popupAt(QWidget* widget, KaPopupEnum::Alignment alignment, bool showArrow) {
    if (!widget) {
        qWarning("Unable to do KaMenu::popAt null item.");
        return;
    }
    m_handle = KaControlHandle(widget);
    m_requestedAlignment = checkedAlignment(alignment);
    m_showArrow = showArrow;
    popup();
}

void KaMenu::popupAt(QQuickItem* item, KaPopupEnum::Alignment alignment, bool showArrow) {
    if (!item) {
        qWarning("Unable to do KaMenu::popAt null item.");
        return;
    }
    m_handle = KaControlHandle(item);
    m_requestedAlignment = checkedAlignment(alignment);
    m_showArrow = showArrow;
    popup();
}

void KaMenu::popupWith(KaButton* button, KaPopupEnum::Alignment alignment, bool showArrow) {
    if (!button) {
        qWarning("Unable to do KaMenu::popAt null button.");
        return;
    }
    m_handle = KaControlHandle(static_cast<QAbstractButton*>(button));
    m_requestedAlignment = checkedAlignment(alignment);
    m_showArrow = showArrow;
    button->setMenu(this);
}

void KaMenu::popup() {
    if (m_handle.kind() == KaControlHandle::Empty) {
        popupAt(lastPopupPoint());
        return;
    }
    if (!m_handle.isValid()) {
        qWarning("KaMenu: the anchor is gone, the menu stays closed");
        return;
    }
    applyAlignment(m_requestedAlignment);
    updateMenuPos();
}

void KaMenu::resetAlignment() {
    hideEntryPopover(nullptr);
    m_popOffset = m_requestedPopOffset;
    applyAlignment(m_requestedAlignment);
}

// ---- look

void KaMenu::setStyle(KaMenuEnum::Style style) {
    if (style != KaMenuEnum::Normal && style != KaMenuEnum::Circular) {
        qWarning("KaMenu: style %d out of range, using Normal", int(style));
        style = KaMenuEnum::Normal;
    }
    if (m_style == style)
        return;
    m_style = style;
    for (QAction* action : actions())
        if (auto* menuAction = qobject_cast<KaMenuAction*>(action); menuAction && menuAction->menuItem())
            menuAction->menuItem()->setStyle(style);
    Q_EMIT styleChanged(style);
    refresh();
}

void KaMenu::setSize(KaMenuEnum::Size size) {
    if (size < KaMenuEnum::Small || size > KaMenuEnum::Large) {
        qWarning("KaMenu: size %d out of range, using Medium", int(size));
        size = KaMenuEnum::Medium;
    }
    if (m_size == size)
        return;
    m_size = size;
    for (QAction* action : actions())
        if (auto* menuAction = qobject_cast<KaMenuAction*>(action); menuAction && menuAction->menuItem())
            menuAction->menuItem()->setSize(size);
    Q_EMIT sizeChanged(size);
    refresh();
}

int KaMenu::radius() const {
    switch (m_style) {
    case KaMenuEnum::Normal:
        return 8;
    case KaMenuEnum::Circular:
        switch (m_size) {
        case KaMenuEnum::Small:
            return 16;
        case KaMenuEnum::Medium:
            return 20;
        case KaMenuEnum::Large:
            return 25;
        }
        break;
    }
    return 0;
}

void KaMenu::enableSeparatorSecondary(bool enable) {
    if (m_separatorSecondary == enable)
        return;
    m_separatorSecondary = enable;
    refresh();
}

void KaMenu::setPopOffset(unsigned offset) {
    if (offset >= 100)
        return;
    m_popOffset = offset;
    m_requestedPopOffset = offset;
}

void KaMenu::setFocusAction(KaMenuAction* action) {
    if (m_focusAction == action)
        return;
    m_focusAction = action;
    update();
}

QAction* KaMenu::focusAction() const {
    return m_focusAction;
}

void KaMenu::setIsFocusCustomizedWidget(bool customized) {
    m_focusCustomizedWidget = customized;
}

void KaMenu::setFirstAction(QAction* action) {
    if (auto* previous = qobject_cast<KaMenuAction*>(getFirstAction()); previous && previous != action)
        previous->setFirstAction(false);
    KaMenuBase::setFirstAction(action);
    if (auto* menuAction = qobject_cast<KaMenuAction*>(action))
        menuAction->setFirstAction(true);
}

void KaMenu::setCoverImage(const QPixmap& cover) {
    m_cover = cover;
    update();
}

void KaMenu::refresh() {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    const BzColorSet background = BzThemeUtils::getColorSet("listitem-background", type);
    m_colors.hovered = background.hovered();
    m_colors.disabled = background.disabled();
    m_colors.separator =
        BzThemeUtils::getColorSet(m_separatorSecondary ? "separator-secondary" : "separator-primary", type)
            .normal();
    m_colors.header = BzThemeUtils::getColorSet("listitem-textsecondary", type).normal();
    m_colors.text = BzThemeUtils::getColorSet("listitem-textprimary", type).normal();
    m_colors.focusOuter = BzThemeUtils::getColorSet("global-focus-outline", type).normal();
    m_colors.focusInner = BzThemeUtils::getColorSet("textinput-background", type).normal();
    setCSS(cssTemplate().arg(QStringLiteral("listitem-background"),
                             m_separatorSecondary ? QStringLiteral("separator-secondary")
                                                  : QStringLiteral("separator-primary"),
                             QString::number(radius())));
    update();
}

void KaMenu::onThemeChanged() {
    refresh();
}

void KaMenu::applyResolvedStyleSheet(const QString& sheet) {
    // The menu paints from the same colour sets (refresh()) through its own
    // style: a Qt style sheet here would cascade into every entry widget
    // and re-polish each of them.
    m_resolvedSheet = sheet;
}

KaPopover* KaMenu::entryPopover() const {
    return m_popover;
}

// ---- painting

void KaMenu::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QPoint anchor =
        m_showArrow && m_handle.isValid() ? KaPopupUtils::anchorPoint(m_handle, m_alignment) : QPoint();
    KaPopupUtils::drawPopup(this, &painter, m_alignment, anchor, int(m_popOffset), m_cover, m_showArrow,
                            size());

    const QRect body = KaPopupUtils::bodyRect(size(), m_alignment, m_showArrow).adjusted(1, 1, -1, -1);
    QStyleOptionMenuItem option;
    for (QAction* action : actions()) {
        if (!action->isVisible())
            continue;
        QRect geometry = actionGeometry(action);
        if (geometry.isEmpty())
            continue;
        if (action->isSeparator()) {
            if (!isGroupSeparator(action))
                geometry.adjust(-10, 0, 9, 0);
            if (!geometry.intersects(event->rect()))
                continue;
            initStyleOption(&option, action);
            option.rect = geometry;
            painter.save();
            painter.setClipRect(body);
            m_menuStyle->drawControl(QStyle::CE_MenuItem, &option, &painter, this);
            painter.restore();
            continue;
        }
        if (!geometry.intersects(event->rect()) || isBanner(action) ||
            action->property(kHeaderProperty).isValid())
            continue;
        auto* widgetAction = qobject_cast<QWidgetAction*>(action);
        QWidget* widget = widgetAction ? widgetAction->defaultWidget() : nullptr;
        initStyleOption(&option, action);
        if (widgetAction && !widget)
            continue;
        option.rect = widget ? widget->geometry().adjusted(1, 1, -1, -1) : geometry;
        if (widget) {
            // The entry draws its own texts and icons.
            option.text.clear();
            option.icon = QIcon();
        }
        m_menuStyle->drawControl(QStyle::CE_MenuItem, &option, &painter, this);
        if ((option.state & QStyle::State_Selected) && action == m_focusAction)
            KaFocusStyle::drawFocusOutline(&painter, option.rect, m_colors.focusOuter, m_colors.focusInner,
                                           BzThemeUtils::isHighContrastEnabled(), radius(), 0);
    }
}

// ---- input

void KaMenu::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        Q_EMIT cancelled();
        KaMenuBase::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
        if (m_focusCustomizedWidget)
            QWidget::focusNextPrevChild(event->key() == Qt::Key_Tab);
        event->accept();
        return;
    }
    KaMenuBase::keyPressEvent(event);
    // The entry reached with the keyboard carries the focus ring.
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        setFocusAction(qobject_cast<KaMenuAction*>(activeAction()));
        break;
    default:
        break;
    }
}

bool KaMenu::focusNextPrevChild(bool next) {
    if (m_focusCustomizedWidget)
        return QWidget::focusNextPrevChild(next);
    return true;
}

void KaMenu::mouseMoveEvent(QMouseEvent* event) {
    // Only a real move hands the highlight back to the mouse; a window
    // appearing under a still pointer also sends moves.
    const QPoint position = event->globalPosition().toPoint();
    if (position != m_lastMousePos)
        setFocusAction(nullptr);
    m_lastMousePos = position;
    KaMenuBase::mouseMoveEvent(event);
}

void KaMenu::markHovered(QAction* action) {
    if (m_hoveredAction != action) {
        if (auto* previous = qobject_cast<KaMenuAction*>(m_hoveredAction.data()))
            previous->onHover(false);
        m_hoveredAction = action;
    }
    auto* current = qobject_cast<KaMenuAction*>(action);
    if (current)
        current->onHover(true);
    QWidget* entry = current ? current->defaultWidget() : nullptr;
    if (entry && entry->objectName() == QLatin1String(kPopupEntryName))
        showEntryPopover(entry);
    else
        hideEntryPopover(nullptr);
}

void KaMenu::updateCurrentActionState() {
    if (QAction* active = activeAction())
        markHovered(active);
}

bool KaMenu::eventFilter(QObject* watched, QEvent* event) {
    auto* entry = qobject_cast<QWidget*>(watched);
    if (entry && entry->objectName() == QLatin1String(kPopupEntryName)) {
        switch (event->type()) {
        case QEvent::Enter:
        case QEvent::FocusIn:
            showEntryPopover(entry);
            break;
        case QEvent::Leave:
        case QEvent::FocusOut:
            hideEntryPopover(entry);
            break;
        default:
            break;
        }
    }
    return KaMenuBase::eventFilter(watched, event);
}

void KaMenu::showEntryPopover(QWidget* entry) {
    if (!entry || !isVisible())
        return;
    if (m_popover && m_popoverOwner == entry)
        return;
    hideEntryPopover(nullptr);
    auto* item = qobject_cast<KaMenuItem*>(entry);
    const QString text = item ? item->popupText() : QString();
    if (text.isEmpty())
        return;

    // An invisible anchor at the entry's trailing end.
    auto* anchor = new KaPillButton(entry);
    anchor->setObjectName(QStringLiteral("MenuItemPopupAnchor"));
    anchor->hide();
    anchor->setFixedSize(1, entry->height());
    anchor->move(entry->contentsRect().width() - anchor->width(), 0);

    // updateTooltipProperties: beside the entry, on its trailing side unless
    // asked for the other; the left side only while there is room.
    KaWidgetData::ArrowPostion direction = item->getPopupDirection();
    const KaPopupEnum::Alignment side =
        direction == KaWidgetData::ArrowLeft ? KaPopupEnum::Right : KaPopupEnum::Left;
    const QSize estimate(KaWidgetData::maxPopoverWidth, entry->height());
    const QPoint point = KaPopupUtils::calculateShowPoint(KaControlHandle(static_cast<QWidget*>(anchor)),
                                                          side, estimate.width(), estimate.height());
    const QScreen* screen = entry->screen();
    if (direction == KaWidgetData::ArrowRight && screen) {
        const QRect raw(unclampedShowPoint(QRect(anchor->mapToGlobal(QPoint(0, 0)), anchor->QWidget::size()),
                                           side, estimate, KaPopupUtils::DefaultOffset),
                        estimate);
        if (raw.left() < screen->availableGeometry().left() || point.x() < screen->availableGeometry().left())
            direction = KaWidgetData::ArrowLeft;
    }
    if (direction != KaWidgetData::ArrowLeft && direction != KaWidgetData::ArrowRight)
        direction = KaWidgetData::ArrowLeft;
    KaWidgetData record;
    record.arrowPostion(direction).shouldTakeFocus(false).autoDismiss(false).focusSourceOnClose(false).offset(
        item->popupOffset());
    m_popover = KaPopover::createAndShowTextPopover(anchor, this, text, record);
    m_popoverOwner = entry;
    // The anchor goes with the popover.
    if (m_popover)
        connect(m_popover, &QObject::destroyed, anchor, &QObject::deleteLater);
    else
        anchor->deleteLater();
}

void KaMenu::hideEntryPopover(QWidget* entry) {
    if (entry && m_popoverOwner != entry)
        return;
    if (m_popover)
        m_popover->dismiss();
    m_popover = nullptr;
    m_popoverOwner = nullptr;
}

// ---- show / hide

void KaMenu::showEvent(QShowEvent* event) {
    if (m_accessibleUpdatePending)
        updateAccessibleName();
    KaMenuBase::showEvent(event);
    if (!accessibleName().isEmpty() && QAccessible::isActive())
        KarvexUtils::announce(this, accessibleName());
}

void KaMenu::hideEvent(QHideEvent* event) {
    hideEntryPopover(nullptr);
    setFocusAction(nullptr);
    KaMenuBase::hideEvent(event);
}

#include "kamenu.moc"
