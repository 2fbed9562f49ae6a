#include "bzsvganchorbutton.h"

#include "bzbuttonpainter_p.h"

#include <QAction>
#include <QActionEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace {

int nonNegative(int value, const char* what) {
    if (value >= 0)
        return value;
    qWarning("BzSvgAnchorButton: negative %s %d, using 0", what, value);
    return 0;
}

} // namespace

BzSvgAnchorButton::BzSvgAnchorButton(QWidget* parent)
    : BzSvgPushButton(parent) {}

BzSvgAnchorButton::BzSvgAnchorButton(const QString& text, QWidget* parent)
    : BzSvgPushButton(text, parent) {}

BzSvgAnchorButton::~BzSvgAnchorButton() = default;

void BzSvgAnchorButton::setAnchorSvgOn(const QString& nameOrPath) {
    if (m_on == nameOrPath)
        return;
    m_on = nameOrPath;
    m_onValid = BzButtonPainter::iconAvailable(nameOrPath);
    updateGeometry();
    update();
    basePropertyChanged("anchorSvgOn");
}

void BzSvgAnchorButton::setAnchorSvgOff(const QString& nameOrPath) {
    if (m_off == nameOrPath)
        return;
    m_off = nameOrPath;
    m_offValid = BzButtonPainter::iconAvailable(nameOrPath);
    updateGeometry();
    update();
    basePropertyChanged("anchorSvgOff");
}

void BzSvgAnchorButton::setAnchorIconSize(const QSize& size) {
    QSize bounded = size;
    if (size.width() < 0 || size.height() < 0) {
        qWarning("BzSvgAnchorButton: negative anchor size %dx%d, clamped", size.width(), size.height());
        bounded = size.expandedTo(QSize(0, 0));
    }
    if (m_size == bounded)
        return;
    m_size = bounded;
    updateGeometry();
    update();
    basePropertyChanged("anchorIconSize");
}

void BzSvgAnchorButton::setAnchorSvgColorSet(const QString& name) {
    if (m_setName == name)
        return;
    m_setName = name;
    m_set = resolveColorSet(name);
    update();
    basePropertyChanged("anchorSvgColorSet");
}

void BzSvgAnchorButton::setAnchorPadding(int padding) {
    padding = nonNegative(padding, "anchor padding");
    if (m_padding == padding)
        return;
    m_padding = padding;
    updateGeometry();
    update();
    basePropertyChanged("anchorPadding");
}

void BzSvgAnchorButton::setAnchorSvgOffset(const QPoint& offset) {
    if (m_offset == offset)
        return;
    m_offset = offset;
    update();
    basePropertyChanged("anchorSvgOffset");
}

void BzSvgAnchorButton::setLeftAnchor(bool leading) {
    if (m_leading == leading)
        return;
    m_leading = leading;
    update();
    basePropertyChanged("isLeftAnchor");
}

void BzSvgAnchorButton::setAlignAnchorIconToText(bool follow) {
    if (m_followsText == follow)
        return;
    m_followsText = follow;
    update();
    basePropertyChanged("alignAnchorIconToText");
}

void BzSvgAnchorButton::setAnchorIconVisible(bool visible) {
    if (m_visible == visible)
        return;
    m_visible = visible;
    updateGeometry();
    update();
    basePropertyChanged("anchorIconVisible");
}

void BzSvgAnchorButton::setAnchorIconSpacing(int spacing) {
    spacing = nonNegative(spacing, "anchor spacing");
    if (m_spacing == spacing)
        return;
    m_spacing = spacing;
    updateGeometry();
    update();
    basePropertyChanged("anchorIconSpacing");
}

bool BzSvgAnchorButton::hasAnchor() const {
    return m_visible && !m_size.isEmpty() && (m_onValid || m_offValid);
}

bool BzSvgAnchorButton::isAnchorOn() const {
    if (isChecked())
        return true;
    const auto list = actions();
    for (const QAction* action : list) {
        if (const QMenu* m = action->menu<QMenu*>(); m && m->isVisible())
            return true;
    }
    return false;
}

QString BzSvgAnchorButton::currentAnchor() const {
    if (isAnchorOn() ? m_onValid : !m_offValid)
        return m_on;
    return m_off;
}

QRect BzSvgAnchorButton::anchorIconRect() const {
    return hasAnchor() ? contentGeometry().anchor : QRect();
}

void BzSvgAnchorButton::decorations(Decorations* out) const {
    BzSvgPushButton::decorations(out);
    if (!hasAnchor())
        return;
    out->anchor = m_size;
    out->anchorSpacing = m_spacing;
    out->anchorPadding = m_padding;
    out->anchorLeading = m_leading;
    out->anchorFollowsText = m_followsText;
    out->anchorOffset = m_offset;
}

void BzSvgAnchorButton::paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) {
    BzSvgPushButton::paintDecorations(painter, geometry, state);
    if (hasAnchor())
        BzButtonPainter::drawIcon(painter, currentAnchor(), geometry.anchor,
                                  stateColor(setOrText(m_set), state));
}

void BzSvgAnchorButton::themeResolved() {
    BzSvgPushButton::themeResolved();
    m_set = resolveColorSet(m_setName);
}

void BzSvgAnchorButton::mousePressEvent(QMouseEvent* event) {
    m_pressedOnAnchor =
        event->button() == Qt::LeftButton && anchorIconRect().contains(event->position().toPoint());
    BzSvgPushButton::mousePressEvent(event);
}

void BzSvgAnchorButton::mouseReleaseEvent(QMouseEvent* event) {
    const bool onAnchor = m_pressedOnAnchor && event->button() == Qt::LeftButton &&
                          anchorIconRect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton)
        m_pressedOnAnchor = false;
    // clicked() handlers may delete or hide the button.
    const QPointer<BzSvgAnchorButton> self(this);
    BzSvgPushButton::mouseReleaseEvent(event);
    if (onAnchor && self)
        Q_EMIT anchorClicked();
}

void BzSvgAnchorButton::actionEvent(QActionEvent* event) {
    // An attached menu turns the anchor on while it is open: repaint when it
    // shows or hides.
    if (QMenu* m = event->action()->menu<QMenu*>()) {
        if (event->type() == QEvent::ActionAdded)
            m->installEventFilter(this);
        else if (event->type() == QEvent::ActionRemoved)
            m->removeEventFilter(this);
    }
    BzSvgPushButton::actionEvent(event);
}

bool BzSvgAnchorButton::eventFilter(QObject* watched, QEvent* event) {
    if ((event->type() == QEvent::Show || event->type() == QEvent::Hide) && qobject_cast<QMenu*>(watched))
        update();
    return BzSvgPushButton::eventFilter(watched, event);
}
