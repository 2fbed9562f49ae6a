#include "navigationdotswidget.h"

#include "bzthemeutils.h"
#include "kacolortokenutils.h"

#include <QEvent>
#include <QPainter>

namespace {
constexpr int kDotPitch = 14;
constexpr int kHeight = 24;
} // namespace

NavigationDotsWidget::NavigationDotsWidget(int pageCount, QWidget* parent)
    : BzWidget(parent)
    , m_pageCount(pageCount) {
    if (pageCount < 0) {
        qWarning("NavigationDotsWidget: page count %d is negative; using 0", pageCount);
        m_pageCount = 0;
    }
    initialize();
}

NavigationDotsWidget::~NavigationDotsWidget() = default;

void NavigationDotsWidget::initialize() {
    setObjectName(QStringLiteral("NavigationDotsWidget"));
    setFixedSize(qMax(0, m_pageCount * kDotPitch - 2), kHeight);
    resolveColors();
    updateAccessibleName();
}

void NavigationDotsWidget::updateAccessibleName() {
    setAccessibleName(m_pageIndex >= 1 && m_pageIndex <= m_pageCount
                          ? tr("Page %1 of %2").arg(m_pageIndex).arg(m_pageCount)
                          : QString());
}

void NavigationDotsWidget::setPageIndex(int index) {
    if (index == m_pageIndex)
        return;
    m_pageIndex = index;
    updateAccessibleName();
    update();
    Q_EMIT pageIndexChanged(index);
}

void NavigationDotsWidget::onThemeChanged() {
    BzWidget::onThemeChanged();
    resolveColors();
}

void NavigationDotsWidget::changeEvent(QEvent* event) {
    BzWidget::changeEvent(event);
    // Moving under another "themeType" changes the colours.
    if (event->type() == QEvent::ParentChange)
        resolveColors();
}

void NavigationDotsWidget::resolveColors() {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    const QColor cursor =
        BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::spinner_progress_cursor), type)
            .normal();
    const QColor track =
        BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::spinner_progress_track), type)
            .normal();
    if (cursor == m_cursor && track == m_track)
        return;
    m_cursor = cursor;
    m_track = track;
    update();
}

void NavigationDotsWidget::paintEvent(QPaintEvent* event) {
    if (m_pageIndex >= 1 && m_pageIndex <= m_pageCount) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // Page 1 sits on the leading side.
        if (layoutDirection() == Qt::RightToLeft) {
            painter.translate(width(), 0);
            painter.scale(-1, 1);
        }
        const int current = m_pageIndex - 1;
        const int y = height() / 2;
        for (int k = 0; k < m_pageCount; ++k) {
            const int x = 8 + kDotPitch * k;
            const bool isCurrent = k == current;
            // The larger current dot pushes its neighbours apart.
            const int cx = isCurrent ? x - 2 : (k < current ? x - 4 : x);
            const int radius = isCurrent ? 4 : 2;
            const QColor& colour = isCurrent ? m_cursor : m_track;
            painter.setPen(colour);
            painter.setBrush(colour);
            painter.drawEllipse(QPoint(cx, y), radius, radius);
        }
    }
    BzWidget::paintEvent(event);
}
