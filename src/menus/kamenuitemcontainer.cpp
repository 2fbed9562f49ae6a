#include "kamenuitemcontainer.h"

#include <QEvent>
#include <QHBoxLayout>

KaMenuItemContainer::KaMenuItemContainer(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this)) {
    setObjectName(QStringLiteral("KaMenuItemContainer"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    // The menu draws the keyboard focus on its active entry.
    setFocusPolicy(Qt::NoFocus);
}

KaMenuItemContainer::~KaMenuItemContainer() = default;

void KaMenuItemContainer::setWidget(QWidget* widget) {
    if (widget == m_widget)
        return;
    if (m_widget) {
        m_widget->removeEventFilter(this);
        delete m_widget.data();
    }
    m_widget = widget;
    if (!widget)
        return;
    m_layout->addWidget(widget);
    widget->installEventFilter(this);
    widget->show();
}

void KaMenuItemContainer::onHover() {
    Q_EMIT hovered();
}

bool KaMenuItemContainer::event(QEvent* event) {
    if (event->type() == QEvent::Enter)
        onHover();
    return QWidget::event(event);
}

bool KaMenuItemContainer::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_widget && event->type() == QEvent::Enter)
        onHover();
    return QWidget::eventFilter(watched, event);
}
