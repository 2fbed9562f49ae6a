#include "kasvglabelbase.h"

#include "bzsvgrenderer.h"
#include "bzthemeutils.h"

#include <QPainter>
#include <QStyleOption>

KaSvgLabelBase::KaSvgLabelBase(QWidget* parent, QAccessible::Role role)
    : KaLabelBase(parent, role)
    , m_renderer(new BzSvgRenderer(this)) {
    resolveColor();
}

KaSvgLabelBase::~KaSvgLabelBase() = default;

void KaSvgLabelBase::setSvgIcon(const QString& nameOrPath) {
    if (m_icon == nameOrPath)
        return;
    m_icon = nameOrPath;
    m_renderer->updateIconResource(nameOrPath);
    updateGeometry();
    update();
    Q_EMIT svgIconChanged();
}

void KaSvgLabelBase::setSvgIconColorSet(const QString& colorSetName) {
    if (m_colorSetName == colorSetName)
        return;
    m_colorSetName = colorSetName;
    resolveColor();
    update();
    Q_EMIT svgIconChanged();
}

void KaSvgLabelBase::setSvgIconSize(const QSize& size) {
    const QSize bounded = size.expandedTo(QSize(0, 0));
    if (m_size == bounded)
        return;
    m_size = bounded;
    updateGeometry();
    update();
    Q_EMIT svgIconChanged();
}

QSize KaSvgLabelBase::sizeHint() const {
    const QMargins m = contentsMargins();
    return m_size + QSize(m.left() + m.right() + 2 * margin(), m.top() + m.bottom() + 2 * margin());
}

QSize KaSvgLabelBase::minimumSizeHint() const {
    return sizeHint();
}

void KaSvgLabelBase::onThemeChanged() {
    KaLabelBase::onThemeChanged();
    resolveColor();
    update();
}

void KaSvgLabelBase::resolveColor() {
    m_colorSet = m_colorSetName.isEmpty()
                     ? BzColorSet()
                     : BzThemeUtils::getColorSet(m_colorSetName, BzThemeUtils::getThemeTypeOfWidget(this));
}

void KaSvgLabelBase::paintEvent(QPaintEvent* event) {
    KaLabelBase::paintEvent(event);
    if (!m_renderer->isValid() || !m_colorSet.isValid())
        return;
    QStyleOption option;
    option.initFrom(this);
    QRectF target(QPointF(0, 0), QSizeF(m_size));
    target.moveCenter(QRectF(contentsRect()).center());
    QPainter painter(this);
    m_renderer->draw(&painter, target, m_colorSet.colorFor(option.state));
}
