#include "bzsvgpushbutton.h"

#include "bzbuttonpainter_p.h"

#include <QPainter>

namespace {

int nonNegative(int value, const char* what) {
    if (value >= 0)
        return value;
    qWarning("BzSvgPushButton: negative %s %d, using 0", what, value);
    return 0;
}

QSize nonNegative(const QSize& size, const char* what) {
    if (size.width() >= 0 && size.height() >= 0)
        return size;
    qWarning("BzSvgPushButton: negative %s %dx%d, clamped", what, size.width(), size.height());
    return size.expandedTo(QSize(0, 0));
}

QPoint nonNegative(const QPoint& point, const char* what) {
    if (point.x() >= 0 && point.y() >= 0)
        return point;
    qWarning("BzSvgPushButton: negative %s (%d, %d), clamped", what, point.x(), point.y());
    return QPoint(qMax(0, point.x()), qMax(0, point.y()));
}

} // namespace

BzSvgPushButton::BzSvgPushButton(QWidget* parent)
    : BzPushButton(parent) {}

BzSvgPushButton::BzSvgPushButton(const QString& text, QWidget* parent)
    : BzPushButton(text, parent) {}

BzSvgPushButton::~BzSvgPushButton() = default;

void BzSvgPushButton::setSvgIcon(const QString& nameOrPath) {
    if (m_icon == nameOrPath)
        return;
    m_icon = nameOrPath;
    m_iconValid = BzButtonPainter::iconAvailable(nameOrPath);
    updateGeometry();
    update();
    basePropertyChanged("svgIcon");
}

void BzSvgPushButton::setSvgIconChecked(const QString& nameOrPath) {
    if (m_iconChecked == nameOrPath)
        return;
    m_iconChecked = nameOrPath;
    m_iconCheckedValid = BzButtonPainter::iconAvailable(nameOrPath);
    updateGeometry();
    update();
    basePropertyChanged("svgIconChecked");
}

void BzSvgPushButton::setSvgIconColorSet(const QString& name) {
    if (m_iconSetName == name)
        return;
    m_iconSetName = name;
    m_iconSet = resolveColorSet(name);
    update();
    basePropertyChanged("svgIconColorSet");
}

void BzSvgPushButton::setSvgIconSize(const QSize& size) {
    const QSize bounded = nonNegative(size, "icon size");
    if (m_iconSize == bounded)
        return;
    m_iconSize = bounded;
    updateGeometry();
    update();
    basePropertyChanged("svgIconSize");
}

void BzSvgPushButton::setSvgIconVisible(bool visible) {
    if (m_iconVisible == visible)
        return;
    m_iconVisible = visible;
    updateGeometry();
    update();
    basePropertyChanged("svgIconVisible");
}

void BzSvgPushButton::setSvgIconAlignment(BzEnum::Alignment alignment) {
    if (alignment < BzEnum::AlignLeft || alignment > BzEnum::AlignCenter) {
        qWarning("BzSvgPushButton: unknown icon alignment %d ignored", int(alignment));
        return;
    }
    if (m_alignment == alignment)
        return;
    m_alignment = alignment;
    updateGeometry();
    update();
    basePropertyChanged("svgIconAlignment");
}

void BzSvgPushButton::setSvgIconTopLeftPadding(const QPoint& padding) {
    const QPoint bounded = nonNegative(padding, "icon padding");
    if (m_topLeftPadding == bounded)
        return;
    m_topLeftPadding = bounded;
    updateGeometry();
    update();
    basePropertyChanged("svgIconTopLeftPadding");
}

void BzSvgPushButton::setSvgIconBottomRightPadding(const QPoint& padding) {
    const QPoint bounded = nonNegative(padding, "icon padding");
    if (m_bottomRightPadding == bounded)
        return;
    m_bottomRightPadding = bounded;
    updateGeometry();
    update();
    basePropertyChanged("svgIconBottomRightPadding");
}

void BzSvgPushButton::setSvgIconSpacing(int spacing) {
    spacing = nonNegative(spacing, "icon spacing");
    if (m_spacing == spacing)
        return;
    m_spacing = spacing;
    updateGeometry();
    update();
    basePropertyChanged("svgIconSpacing");
}

struct BzSvgPushButton::Inner {
    QString icon;
    QString setName;
    BzColorSet set;
    QSize size{16, 16};
    bool valid = false;
};

BzSvgPushButton::Inner& BzSvgPushButton::inner() {
    if (!m_inner)
        m_inner.reset(new Inner);
    return *m_inner;
}

QString BzSvgPushButton::innerSvgIcon() const {
    return m_inner ? m_inner->icon : QString();
}

QString BzSvgPushButton::innerSvgIconColorSet() const {
    return m_inner ? m_inner->setName : QString();
}

QSize BzSvgPushButton::innerSvgIconSize() const {
    return m_inner ? m_inner->size : Inner().size;
}

void BzSvgPushButton::setInnerSvgIcon(const QString& nameOrPath) {
    if (innerSvgIcon() == nameOrPath)
        return;
    inner().icon = nameOrPath;
    m_inner->valid = BzButtonPainter::iconAvailable(nameOrPath);
    update();
    basePropertyChanged("innerSvgIcon");
}

void BzSvgPushButton::setInnerSvgIconColorSet(const QString& name) {
    if (innerSvgIconColorSet() == name)
        return;
    inner().setName = name;
    m_inner->set = resolveColorSet(name);
    update();
    basePropertyChanged("innerSvgIconColorSet");
}

void BzSvgPushButton::setInnerSvgIconSize(const QSize& size) {
    const QSize bounded = nonNegative(size, "inner icon size");
    if (innerSvgIconSize() == bounded)
        return;
    inner().size = bounded;
    update();
    basePropertyChanged("innerSvgIconSize");
}

QRect BzSvgPushButton::svgIconRect() const {
    return currentIcon().isEmpty() ? QRect() : contentGeometry().icon;
}

QString BzSvgPushButton::currentIcon() const {
    if (!m_iconVisible || m_iconSize.isEmpty())
        return QString();
    if (isChecked() && m_iconCheckedValid)
        return m_iconChecked;
    return m_iconValid ? m_icon : QString();
}

const BzColorSet& BzSvgPushButton::setOrText(const BzColorSet& set) const {
    return set.isValid() ? set : textColorSet();
}

void BzSvgPushButton::decorations(Decorations* out) const {
    BzPushButton::decorations(out);
    // Checking may swap the icon but must not move the text: reserve the
    // box whenever either icon loads.
    if (!m_iconVisible || m_iconSize.isEmpty() || !(m_iconValid || m_iconCheckedValid))
        return;
    out->icon = m_iconSize;
    out->iconTopLeftPadding = m_topLeftPadding;
    out->iconBottomRightPadding = m_bottomRightPadding;
    out->iconAlignment = m_alignment;
    out->iconSpacing = m_spacing;
}

void BzSvgPushButton::paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) {
    BzPushButton::paintDecorations(painter, geometry, state);
    const QString icon = currentIcon();
    if (!icon.isEmpty())
        BzButtonPainter::drawIcon(painter, icon, geometry.icon, stateColor(setOrText(m_iconSet), state));
    if (m_inner && m_inner->valid && !m_inner->size.isEmpty()) {
        const QSize size = m_inner->size;
        const QRect box(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
        BzButtonPainter::drawIcon(painter, m_inner->icon, box, stateColor(setOrText(m_inner->set), state));
    }
}

void BzSvgPushButton::themeResolved() {
    BzPushButton::themeResolved();
    m_iconSet = resolveColorSet(m_iconSetName);
    if (m_inner)
        m_inner->set = resolveColorSet(m_inner->setName);
}
