#include "kacontextmenu.h"

#include "kacontextmenuutils.h"
#include "kafocusstyle.h"

#include <bzthemeutils.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionMenuItem>

KaContextMenu::KaContextMenu(QMenu* source)
    : KaMenuBase(source) {
    setVisualProperties();
}

KaContextMenu::KaContextMenu(QMenu* source, QWidget* parent)
    : KaMenuBase(source, parent) {
    setVisualProperties();
}

KaContextMenu::KaContextMenu(QWidget* parent, bool unused)
    : KaMenuBase(parent, unused) {
    setVisualProperties();
}

KaContextMenu::~KaContextMenu() = default;

void KaContextMenu::setVisualProperties() {
    setCSS(KaContextMenuUtils::styleSheet());
    setFontToken(BzFont::BodySmall);
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    m_focusOuter = BzThemeUtils::getColorSet("global-focus-outline", type).normal();
    m_focusInner = BzThemeUtils::getColorSet("textinput-background", type).normal();
}

void KaContextMenu::onThemeChanged() {
    setVisualProperties();
    update();
}

void KaContextMenu::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, event->modifiers());
        QMenu::keyPressEvent(&enter);
        event->setAccepted(enter.isAccepted());
        return;
    }
    // Moving the highlight with keys is a keyboard focus change: the ring
    // follows it until the mouse takes over.
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down || event->key() == Qt::Key_Home ||
        event->key() == Qt::Key_End)
        m_keyboardHighlight = true;
    QMenu::keyPressEvent(event);
}

void KaContextMenu::mouseMoveEvent(QMouseEvent* event) {
    if (m_keyboardHighlight && event->position().toPoint() != m_lastMousePos)
        m_keyboardHighlight = false;
    m_lastMousePos = event->position().toPoint();
    QMenu::mouseMoveEvent(event);
}

void KaContextMenu::paintEvent(QPaintEvent* event) {
    QMenu::paintEvent(event);
    QAction* active = activeAction();
    if (!active)
        return;
    QStyleOptionMenuItem option;
    initStyleOption(&option, active);
    if (!(option.state & QStyle::State_KeyboardFocusChange) && !m_keyboardHighlight &&
        !qApp->property("isKeyboardFocus").toBool())
        return;
    QPainter painter(this);
    KaFocusStyle::drawFocusOutline(&painter, actionGeometry(active), m_focusOuter, m_focusInner,
                                   BzThemeUtils::isHighContrastEnabled(), KaContextMenuUtils::Radius, 0);
}
