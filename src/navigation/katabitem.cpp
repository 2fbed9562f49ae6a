#include "katabitem.h"

#include "kacolortokenutils.h"
#include "katabview.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QPainter>

namespace {

const QString kCloseIcon = QStringLiteral("qrc:/Resources/cancel-bold.svg");

template <typename Enum> bool isKnown(Enum value, const char* what) {
    if (QMetaEnum::fromType<Enum>().valueToKey(int(value)))
        return true;
    qWarning("KaTabItem: %d is not a %s; ignored", int(value), what);
    return false;
}

QString closeAction() {
    return KaTabItem::tr("Close");
}

// A page tab: selectable, selected while it is the current tab, and placed
// among its view's tabs so screen readers can say "2 of 5".
class KaTabItemAccessible : public QAccessibleWidget {
public:
    explicit KaTabItemAccessible(KaTabItem* tab)
        : QAccessibleWidget(tab, QAccessible::PageTab) {}

    KaTabItem* tab() const { return static_cast<KaTabItem*>(widget()); }

    QAccessibleInterface* parent() const override {
        if (KaTabView* view = KaTabView::viewOf(tab()))
            return QAccessible::queryAccessibleInterface(view);
        return QAccessibleWidget::parent();
    }

    QAccessible::State state() const override {
        QAccessible::State st = QAccessibleWidget::state();
        st.selectable = true;
        st.selected = tab()->isSelected();
        // Only the selected tab is a Tab stop, but every tab takes focus
        // from the arrow keys.
        st.focusable = true;
        return st;
    }

    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) {
            const QString name = widget()->accessibleName();
            return name.isEmpty() ? tab()->text() : name;
        }
        if (t == QAccessible::Description) {
            const QString description = widget()->accessibleDescription();
            if (!description.isEmpty() || tab()->position() < 1)
                return description;
            return KaTabItem::tr("%1 of %2").arg(tab()->position()).arg(tab()->positionCount());
        }
        return QAccessibleWidget::text(t);
    }

    QStringList actionNames() const override {
        QStringList names;
        if (!widget()->isEnabled())
            return names;
        names << pressAction();
        if (tab()->showsClose())
            names << closeAction();
        return names;
    }

    void doAction(const QString& action) override {
        if (!widget()->isEnabled())
            return;
        if (action == pressAction())
            Q_EMIT tab()->activated();
        else if (action == closeAction() && tab()->showsClose())
            Q_EMIT tab()->closeRequested();
    }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* tab = qobject_cast<KaTabItem*>(object); tab && tab->isWidgetType())
        return new KaTabItemAccessible(tab);
    return nullptr;
}

} // namespace

KaTabItem::KaTabItem(QWidget* parent)
    : IKaButton(parent, new KaTabItemConfig) {
    buttonConfig()->setParent(this);
    // Installed after the button factory, so asked first.
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    setAnchorSvgOff(kCloseIcon);
    setAnchorSvgOn(kCloseIcon);
    setAlignAnchorIconToText(false);
    setAnchorPadding(0);
    connectRefreshSlot();
    connect(this, &QAbstractButton::clicked, this, &KaTabItem::onClicked);
    connect(this, &BzSvgAnchorButton::anchorClicked, this, [this] {
        if (showsClose())
            Q_EMIT closeRequested();
    });
    refresh();
}

KaTabItem::KaTabItem(const QString& text, const QString& icon, QWidget* parent)
    : KaTabItem(parent) {
    setText(text);
    setLeftIcon(icon);
}

KaTabItem::~KaTabItem() = default;

KaTabItemConfig* KaTabItem::tabConfig() const {
    return qobject_cast<KaTabItemConfig*>(buttonConfig());
}

void KaTabItem::setText(const QString& text) {
    if (text == m_text)
        return;
    m_text = text;
    Q_EMIT textChanged(text);
    Q_EMIT refreshConfig();
    updateGeometry();
}

KaTabEnum::Type KaTabItem::type() const {
    const KaTabItemConfig* config = tabConfig();
    return config ? config->type() : KaTabEnum::NONE;
}

void KaTabItem::setType(KaTabEnum::Type type) {
    if (!isKnown(type, "KaTabEnum::Type") ||
        !writeConfig(tabConfig(), &KaTabItemConfig::type, &KaTabItemConfig::setType, type))
        return;
    Q_EMIT typeChanged(type);
    Q_EMIT refreshConfig();
}

KaTabEnum::Style KaTabItem::style() const {
    const KaTabItemConfig* config = tabConfig();
    return config ? config->style() : KaTabEnum::INACTIVE;
}

void KaTabItem::setStyle(KaTabEnum::Style style) {
    if (!isKnown(style, "KaTabEnum::Style") ||
        !writeConfig(tabConfig(), &KaTabItemConfig::style, &KaTabItemConfig::setStyle, style))
        return;
    Q_EMIT styleChanged(style);
    Q_EMIT refreshConfig();
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

KaTabEnum::State KaTabItem::state() const {
    const KaTabItemConfig* config = tabConfig();
    return config ? config->state() : KaTabEnum::EXPANDED;
}

void KaTabItem::setState(KaTabEnum::State state) {
    if (!isKnown(state, "KaTabEnum::State") ||
        !writeConfig(tabConfig(), &KaTabItemConfig::state, &KaTabItemConfig::setState, state))
        return;
    Q_EMIT stateChanged(state);
    Q_EMIT refreshConfig();
    updateGeometry();
}

KaButtonEnum::Size KaTabItem::size() const {
    const KaTabItemConfig* config = tabConfig();
    return config ? config->size() : KaButtonEnum::Normal;
}

void KaTabItem::setSize(KaButtonEnum::Size size) {
    if (!isKnown(size, "KaButtonEnum::Size") ||
        !writeConfig(tabConfig(), &KaTabItemConfig::size, &KaTabItemConfig::setSize, size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

bool KaTabItem::isClosable() const {
    const KaTabItemConfig* config = tabConfig();
    return config && config->isClosable();
}

bool KaTabItem::showsClose() const {
    const KaTabItemConfig* config = tabConfig();
    return config && config->showsClose() && config->state() == KaTabEnum::EXPANDED;
}

void KaTabItem::setClosable(bool closable) {
    if (!writeConfig(tabConfig(), &KaTabItemConfig::isClosable, &KaTabItemConfig::setClosable, closable))
        return;
    Q_EMIT closableChanged(closable);
    Q_EMIT refreshConfig();
    updateGeometry();
}

void KaTabItem::setTrailingWidget(QWidget* widget) {
    if (widget == m_trailing)
        return;
    delete m_trailing.data();
    m_trailing = widget;
    if (widget) {
        widget->setParent(this);
        widget->show();
    }
    refresh();
}

void KaTabItem::setPosition(int position, int count) {
    if (position == m_position && count == m_positionCount)
        return;
    m_position = position;
    m_positionCount = count;
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void KaTabItem::refresh() {
    const KaTabItemConfig* config = tabConfig();
    KaTabItemConfig::Geometry g;
    if (!config)
        return;
    config->fillGeometry(g);
    applyColors(g.colors, QString(), g.radius);
    IKaButton::refresh(g);

    QAbstractButton::setText(g.textVisible ? m_text : QString());
    setToolTip(g.textVisible ? QString() : m_text);
    setSvgIconVisible(g.svgIconVisible);
    setSvgIconSize(g.svgIconSize);
    setSvgIconSpacing(g.svgIconSpacing);
    setSvgIconAlignment(g.textVisible ? BzEnum::AlignLeft : BzEnum::AlignCenter);
    setAnchorIconVisible(g.closeVisible);
    setAnchorIconSize(g.closeIconSize);

    // Order along the tab: icon, text, trailing widget, close cross.
    const int reserve = m_trailing ? m_trailing->sizeHint().width() + g.spacing : 0;
    setAnchorIconSpacing(g.spacing + (g.closeVisible ? reserve : 0));
    setTextLeftPadding(g.padding);
    setTextRightPadding(g.padding + (g.closeVisible ? 0 : reserve));
    m_padding = g.padding;
    m_spacing = g.spacing;
    setFixedOrFreeWidth(g.fixedWidth);
    setFocusBorderRadius(g.radius);
    if (g.indicatorHeight != m_indicatorHeight) {
        m_indicatorHeight = g.indicatorHeight;
        update();
    }
    placeTrailingWidget();
}

void KaTabItem::placeTrailingWidget() {
    if (!m_trailing)
        return;
    const QSize hint = m_trailing->sizeHint();
    int right = width() - m_padding;
    if (showsClose()) {
        // anchorIconRect() is mirrored already; measure in left-to-right terms.
        const QRect anchor = QStyle::visualRect(layoutDirection(), rect(), anchorIconRect());
        right = anchor.left() - m_spacing;
    }
    const QRect box(right - hint.width(), (height() - hint.height()) / 2, hint.width(), hint.height());
    m_trailing->setGeometry(QStyle::visualRect(layoutDirection(), rect(), box));
    m_trailing->setVisible(state() == KaTabEnum::EXPANDED);
}

void KaTabItem::onClicked() {
    if (m_pressOnClose)
        return;
    Q_EMIT activated();
}

void KaTabItem::mousePressEvent(QMouseEvent* event) {
    m_pressOnClose = showsClose() && event->button() == Qt::LeftButton &&
                     anchorIconRect().contains(event->position().toPoint());
    IKaButton::mousePressEvent(event);
}

void KaTabItem::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier && showsClose()) {
        Q_EMIT closeRequested();
        return;
    }
    m_pressOnClose = false;
    IKaButton::keyPressEvent(event);
}

void KaTabItem::resizeEvent(QResizeEvent* event) {
    IKaButton::resizeEvent(event);
    placeTrailingWidget();
}

bool KaTabItem::event(QEvent* event) {
    const bool result = IKaButton::event(event);
    // The trailing widget asked for another size (a badge's count grew).
    if (event->type() == QEvent::LayoutRequest && m_trailing) {
        refresh();
        updateGeometry();
    }
    return result;
}

void KaTabItem::themeResolved() {
    IKaButton::themeResolved();
    m_indicatorSet = resolveColorSet(KaColorTokenUtils::tokenToString(Karvox::tab_default));
}

void KaTabItem::paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) {
    IKaButton::paintDecorations(painter, geometry, state);
    if (m_indicatorHeight <= 0)
        return;
    // A bar along the bottom, inset by the corner radius so it sits on the
    // face's straight edge.
    const qreal inset = borderRadius();
    const QRectF bar(inset, height() - m_indicatorHeight, width() - 2 * inset, m_indicatorHeight);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(stateColor(m_indicatorSet, state));
    painter->drawRoundedRect(bar, m_indicatorHeight / 2.0, m_indicatorHeight / 2.0);
    painter->restore();
}
