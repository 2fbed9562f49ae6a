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
    Q_EMIT svgIconChanged();
}

void BzSvgPushButton::setSvgIconChecked(const QString& nameOrPath) {
    if (m_iconChecked == nameOrPath)
        return;
    m_iconChecked = nameOrPath;
    m_iconCheckedValid = BzButtonPainter::iconAvailable(nameOrPath);
    updateGeometry();
    update();
    Q_EMIT svgIconCheckedChanged();
}

void BzSvgPushButton::setSvgIconColorSet(const QString& name) {
    if (m_iconSetName == name)
        return;
    m_iconSetName = name;
    m_iconSet = resolveColorSet(name);
    update();
    Q_EMIT svgIconColorSetChanged();
}

void BzSvgPushButton::setSvgIconSize(const QSize& size) {
    const QSize bounded = nonNegative(size, "icon size");
    if (m_iconSize == bounded)
        return;
    m_iconSize = bounded;
    updateGeometry();
    update();
    Q_EMIT svgIconSizeChanged();
}

void BzSvgPushButton::setSvgIconVisible(bool visible) {
    if (m_iconVisible == visible)
        return;
    m_iconVisible = visible;
    updateGeometry();
    update();
    Q_EMIT svgIconVisibleChanged();
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
    Q_EMIT svgIconAlignmentChanged();
}

void BzSvgPushButton::setSvgIconTopLeftPadding(const QPoint& padding) {
    const QPoint bounded = nonNegative(padding, "icon padding");
    if (m_topLeftPadding == bounded)
        return;
    m_topLeftPadding = bounded;
    updateGeometry();
    update();
    Q_EMIT svgIconTopLeftPaddingChanged();
}

void BzSvgPushButton::setSvgIconBottomRightPadding(const QPoint& padding) {
    const QPoint bounded = nonNegative(padding, "icon padding");
    if (m_bottomRightPadding == bounded)
        return;
    m_bottomRightPadding = bounded;
    updateGeometry();
    update();
    Q_EMIT svgIconBottomRightPaddingChanged();
}

void BzSvgPushButton::setSvgIconSpacing(int spacing) {
    spacing = nonNegative(spacing, "icon spacing");
    if (m_spacing == spacing)
        return;
    m_spacing = spacing;
    updateGeometry();
    update();
    Q_EMIT svgIconSpacingChanged();
}

void BzSvgPushButton::setInnerSvgIcon(const QString& nameOrPath) {
    if (m_innerIcon == nameOrPath)
        return;
    m_innerIcon = nameOrPath;
    m_innerValid = BzButtonPainter::iconAvailable(nameOrPath);
    update();
    Q_EMIT innerSvgIconChanged();
}

void BzSvgPushButton::setInnerSvgIconColorSet(const QString& name) {
    if (m_innerSetName == name)
        return;
    m_innerSetName = name;
    m_innerSet = resolveColorSet(name);
    update();
    Q_EMIT innerSvgIconColorSetChanged();
}

void BzSvgPushButton::setInnerSvgIconSize(const QSize& size) {
    const QSize bounded = nonNegative(size, "inner icon size");
    if (m_innerSize == bounded)
        return;
    m_innerSize = bounded;
    update();
    Q_EMIT innerSvgIconSizeChanged();
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
    if (m_innerValid && !m_innerSize.isEmpty()) {
        const QRect box(QPoint((width() - m_innerSize.width()) / 2, (height() - m_innerSize.height()) / 2),
                        m_innerSize);
        BzButtonPainter::drawIcon(painter, m_innerIcon, box, stateColor(setOrText(m_innerSet), state));
    }
}

void BzSvgPushButton::themeResolved() {
    BzPushButton::themeResolved();
    m_iconSet = resolveColorSet(m_iconSetName);
    m_innerSet = resolveColorSet(m_innerSetName);
}
