#pragma once

#include "kamenubase.h"

#include <QColor>

// The plain right-click menu: text entries in the library's context-menu
// look, Space activating the highlighted entry like Enter, and the focus
// ring around the entry highlighted from the keyboard.
class KARVEX_EXPORT KaContextMenu : public KaMenuBase {
    Q_OBJECT

public:
    explicit KaContextMenu(QMenu* source);
    KaContextMenu(QMenu* source, QWidget* parent);
    explicit KaContextMenu(QWidget* parent = nullptr, bool unused = false);
    ~KaContextMenu() override;

    // Style sheet, font and focus colours for the current theme.
    void setVisualProperties();

public Q_SLOTS:
    void onThemeChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // The highlight was last moved with keys: it carries the focus ring
    // until the mouse really moves.
    bool m_keyboardHighlight = false;
    QPoint m_lastMousePos;
    QColor m_focusOuter;
    QColor m_focusInner;
};
