#pragma once

#include "kapopupenum.h"

#include <QPointer>

class KaButton;
class QQuickItem;
class QWidget;

// Where KaMenu::popupAt() opens a menu: against a widget, a QML item or a
// button (the first one set wins, in that order), on `alignment`'s side,
// with or without an arrow pointing at it.
struct KaMenuPositionConfig {
    QPointer<QWidget> anchorWidget;
    QPointer<QQuickItem> anchorItem;
    QPointer<KaButton> anchorButton;
    KaPopupEnum::Alignment alignment = KaPopupEnum::Bottom;
    bool showArrow = false;
};
