#include "katabview.h"

#include "karoundbutton.h"
#include "katabitem.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QWheelEvent>

namespace {

constexpr int kTabSpacing = 4;
constexpr int kArrowSpacing = 4;
constexpr int kWheelStep = 40;

// A page tab list whose children are the tabs themselves, in order, so that
// screen readers count "2 of 5" from the tree; the scroll arrows are a mouse
// affordance, the arrow keys do the same.
class KaTabViewAccessible : public QAccessibleWidget {
public:
    explicit KaTabViewAccessible(KaTabView* view)
        : QAccessibleWidget(view, QAccessible::PageTabList) {}

    KaTabView* view() const { return static_cast<KaTabView*>(widget()); }

    int childCount() const override { return view()->count(); }

    QAccessibleInterface* child(int index) const override {
        KaTabItem* tab = view()->tabAt(index);
        return tab ? QAccessible::queryAccessibleInterface(tab) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        if (!child)
            return -1;
        return view()->indexOf(qobject_cast<const KaTabItem*>(child->object()));
    }

    QString text(QAccessible::Text t) const override {
        const QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            return KaTabView::tr("Tabs");
        return text;
    }

    QAccessible::State state() const override {
        QAccessible::State st = QAccessibleWidget::state();
        // A focused tab means a focused list.
        const QWidget* focus = QApplication::focusWidget();
        if (focus && view()->isAncestorOf(focus))
            st.focused = true;
        return st;
    }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* view = qobject_cast<KaTabView*>(object); view && view->isWidgetType())
        return new KaTabViewAccessible(view);
    return nullptr;
}

} // namespace

KaTabView::KaTabView(QWidget* parent)
    : BzWidget(parent) {
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    m_viewport = new QWidget(this);
    m_viewport->setObjectName(QStringLiteral("tabViewport"));
    m_strip = new QWidget(m_viewport);
    m_strip->setObjectName(QStringLiteral("tabStrip"));
    auto* row = new QHBoxLayout(m_strip);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kTabSpacing);
    row->setSizeConstraint(QLayout::SetFixedSize);
    m_strip->installEventFilter(this);

    const auto arrow = [this](const char* name, const QString& text) {
        auto* button = new KaRoundButton(this, KaButtonEnum::Ghost, KaButtonEnum::ExtraExtraSmall);
        button->setObjectName(QLatin1String(name));
        button->setFocusPolicy(Qt::NoFocus);
        button->setAccessibleName(text);
        button->setToolTip(text);
        button->hide();
        return button;
    };
    m_back = arrow("scrollBackButton", tr("Scroll tabs back"));
    m_forward = arrow("scrollForwardButton", tr("Scroll tabs forward"));
    connect(m_back, &QAbstractButton::clicked, this, [this] { scrollBy(-m_viewport->width() * 3 / 4); });
    connect(m_forward, &QAbstractButton::clicked, this, [this] { scrollBy(m_viewport->width() * 3 / 4); });
    updateArrowIcons();
}

KaTabView::~KaTabView() = default;

KaTabView* KaTabView::viewOf(const KaTabItem* tab) {
    for (QWidget* w = tab ? tab->parentWidget() : nullptr; w; w = w->parentWidget()) {
        if (auto* view = qobject_cast<KaTabView*>(w))
            return view->indexOf(tab) >= 0 ? view : nullptr;
    }
    return nullptr;
}

KaTabItem* KaTabView::createTab() {
    return new KaTabItem;
}

int KaTabView::addTab(const QString& text, const QString& icon, KaTabEnum::Type type) {
    return insertTab(count(), text, icon, type);
}

int KaTabView::insertTab(int index, const QString& text, const QString& icon, KaTabEnum::Type type) {
    if (index < 0 || index > count())
        index = count();
    KaTabItem* tab = createTab();
    if (!tab) {
        qWarning("KaTabView: createTab() returned no tab");
        return -1;
    }
    tab->setText(text);
    tab->setLeftIcon(icon);
    tab->setType(type);
    tab->setSize(m_size);
    tab->setState(m_state);
    tab->setClosable(m_closable);
    tab->setSelected(false);
    static_cast<QHBoxLayout*>(m_strip->layout())->insertWidget(index, tab);
    tab->installEventFilter(this);
    connect(tab, &KaTabItem::activated, this, &KaTabView::onTabActivated);
    connect(tab, &KaTabItem::closeRequested, this, &KaTabView::onTabCloseRequested);
    m_tabs.insert(index, tab);
    const bool shifted = m_current >= index;
    if (shifted)
        ++m_current;
    updatePositions();
    Q_EMIT countChanged(count());
    if (m_current < 0)
        setCurrentIndex(index);
    else if (shifted)
        Q_EMIT currentChanged(m_current);
    relayout();
    return index;
}

void KaTabView::removeTab(int index) {
    if (index < 0 || index >= count()) {
        qWarning("KaTabView: no tab at index %d (count %d)", index, count());
        return;
    }
    KaTabItem* tab = m_tabs.takeAt(index);
    const bool hadFocus = tab->hasFocus();
    if (focusProxy() == tab)
        setFocusProxy(nullptr);
    tab->removeEventFilter(this);
    tab->disconnect(this);
    // The tab may be delivering the click that asked for this.
    m_strip->layout()->removeWidget(tab);
    tab->hide();
    tab->deleteLater();
    updatePositions();
    Q_EMIT countChanged(count());

    if (index < m_current) {
        --m_current;
        Q_EMIT currentChanged(m_current);
    } else if (index == m_current) {
        m_current = -1;
        setCurrentIndex(qMin(index, count() - 1));
        if (m_current < 0)
            Q_EMIT currentChanged(-1);
        if (hadFocus && m_current >= 0)
            m_tabs.at(m_current)->setFocus(Qt::OtherFocusReason);
    }
    relayout();
}

void KaTabView::clear() {
    while (count() > 0)
        removeTab(count() - 1);
}

KaTabItem* KaTabView::tabAt(int index) const {
    return index >= 0 && index < count() ? m_tabs.at(index) : nullptr;
}

int KaTabView::indexOf(const KaTabItem* tab) const {
    return int(m_tabs.indexOf(const_cast<KaTabItem*>(tab)));
}

void KaTabView::setCurrentIndex(int index) {
    if (index == m_current)
        return;
    if (index < 0 || index >= count()) {
        qWarning("KaTabView: no tab at index %d (count %d)", index, count());
        return;
    }
    if (KaTabItem* old = tabAt(m_current))
        old->setSelected(false);
    m_current = index;
    KaTabItem* tab = m_tabs.at(index);
    tab->setSelected(true);
    setFocusProxy(tab);
    ensureVisible(index);
    Q_EMIT currentChanged(index);
}

void KaTabView::setTabsClosable(bool closable) {
    if (closable == m_closable)
        return;
    m_closable = closable;
    for (KaTabItem* tab : std::as_const(m_tabs))
        tab->setClosable(closable);
    Q_EMIT tabsClosableChanged(closable);
}

void KaTabView::setSize(KaButtonEnum::Size size) {
    if (size == m_size || !QMetaEnum::fromType<KaButtonEnum::Size>().valueToKey(size)) {
        if (size != m_size)
            qWarning("KaTabView: %d is not a KaButtonEnum::Size; ignored", int(size));
        return;
    }
    m_size = size;
    for (KaTabItem* tab : std::as_const(m_tabs))
        tab->setSize(size);
    updateGeometry();
    Q_EMIT sizeChanged(size);
}

void KaTabView::setState(KaTabEnum::State state) {
    if (state == m_state || !QMetaEnum::fromType<KaTabEnum::State>().valueToKey(state)) {
        if (state != m_state)
            qWarning("KaTabView: %d is not a KaTabEnum::State; ignored", int(state));
        return;
    }
    m_state = state;
    for (KaTabItem* tab : std::as_const(m_tabs))
        tab->setState(state);
    updateGeometry();
    Q_EMIT stateChanged(state);
}

void KaTabView::onTabActivated() {
    const int index = indexOf(qobject_cast<KaTabItem*>(sender()));
    if (index >= 0)
        setCurrentIndex(index);
}

void KaTabView::onTabCloseRequested() {
    const int index = indexOf(qobject_cast<KaTabItem*>(sender()));
    if (index >= 0)
        Q_EMIT tabCloseRequested(index);
}

void KaTabView::updatePositions() {
    for (int i = 0; i < count(); ++i)
        m_tabs.at(i)->setPosition(i + 1, count());
}

int KaTabView::stripWidth() const {
    return m_strip->sizeHint().width();
}

QSize KaTabView::sizeHint() const {
    const QSize strip = m_strip->sizeHint();
    return QSize(strip.width(), qMax(strip.height(), m_back->sizeHint().height()));
}

QSize KaTabView::minimumSizeHint() const {
    // Room for the arrows and a little of one tab.
    const int arrows = 2 * (m_back->width() + kArrowSpacing);
    return QSize(qMin(stripWidth(), arrows + 48), sizeHint().height());
}

bool KaTabView::isScrollable() const {
    return stripWidth() > width();
}

void KaTabView::relayout() {
    const int stripW = stripWidth();
    const QSize stripSize(stripW, m_strip->sizeHint().height());
    if (m_strip->size() != stripSize)
        m_strip->resize(stripSize);
    const bool scrollable = stripW > width();
    const int arrowW = m_back->width();
    const int inset = scrollable ? arrowW + kArrowSpacing : 0;
    m_viewport->setGeometry(QStyle::visualRect(layoutDirection(), rect(),
                                               QRect(inset, 0, qMax(0, width() - 2 * inset), height())));
    const int arrowY = (height() - m_back->height()) / 2;
    m_back->move(
        QStyle::visualRect(layoutDirection(), rect(), QRect(QPoint(0, arrowY), m_back->QWidget::size()))
            .topLeft());
    m_forward->move(QStyle::visualRect(layoutDirection(), rect(),
                                       QRect(QPoint(width() - arrowW, arrowY), m_forward->QWidget::size()))
                        .topLeft());
    m_back->setVisible(scrollable);
    m_forward->setVisible(scrollable);
    setOffset(scrollable ? m_offset : 0);
}

void KaTabView::setOffset(int offset) {
    const int viewportW = m_viewport->width();
    m_offset = qBound(0, offset, qMax(0, stripWidth() - viewportW));
    const int y = (m_viewport->height() - m_strip->height()) / 2;
    // The leading edge of the row sits at the viewport's leading edge.
    const int x = layoutDirection() == Qt::RightToLeft ? viewportW - m_strip->width() + m_offset : -m_offset;
    m_strip->move(x, y);
    m_back->setEnabled(m_offset > 0);
    m_forward->setEnabled(m_offset < stripWidth() - viewportW);
}

void KaTabView::scrollBy(int delta) {
    setOffset(m_offset + delta);
}

int KaTabView::logicalLeft(const KaTabItem* tab) const {
    return layoutDirection() == Qt::RightToLeft ? m_strip->width() - tab->x() - tab->width() : tab->x();
}

void KaTabView::ensureVisible(int index) {
    KaTabItem* tab = tabAt(index);
    if (!tab)
        return;
    // The strip lays its tabs out on its own schedule; make it current.
    m_strip->layout()->activate();
    const int left = logicalLeft(tab);
    const int right = left + tab->width();
    const int viewportW = m_viewport->width();
    if (left < m_offset)
        setOffset(left);
    else if (right > m_offset + viewportW)
        setOffset(right - viewportW);
}

bool KaTabView::moveFocusBy(int key) {
    int index = m_current;
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    switch (key) {
    case Qt::Key_Left:
        index += rtl ? 1 : -1;
        break;
    case Qt::Key_Right:
        index += rtl ? -1 : 1;
        break;
    case Qt::Key_Home:
        index = 0;
        break;
    case Qt::Key_End:
        index = count() - 1;
        break;
    default:
        return false;
    }
    if (index >= 0 && index < count() && index != m_current) {
        setCurrentIndex(index);
        m_tabs.at(index)->setFocus(Qt::TabFocusReason);
    }
    return true;
}

bool KaTabView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_strip) {
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
            updateGeometry();
            relayout();
        }
    } else if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if ((key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && moveFocusBy(key->key()))
            return true;
    }
    return BzWidget::eventFilter(watched, event);
}

void KaTabView::resizeEvent(QResizeEvent* event) {
    BzWidget::resizeEvent(event);
    relayout();
    ensureVisible(m_current);
}

void KaTabView::wheelEvent(QWheelEvent* event) {
    if (!isScrollable()) {
        event->ignore();
        return;
    }
    const QPoint delta = event->angleDelta();
    const int steps = (qAbs(delta.x()) > qAbs(delta.y()) ? -delta.x() : -delta.y()) / 120;
    scrollBy(steps * kWheelStep);
    event->accept();
}

void KaTabView::updateArrowIcons() {
    // The back arrow points to the leading side.
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    const QString left = QStringLiteral("qrc:/Resources/arrow-left-bold.svg");
    const QString right = QStringLiteral("qrc:/Resources/arrow-right-bold.svg");
    m_back->setLeftIcon(rtl ? right : left);
    m_forward->setLeftIcon(rtl ? left : right);
}

void KaTabView::changeEvent(QEvent* event) {
    BzWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        updateArrowIcons();
        relayout();
    }
}
