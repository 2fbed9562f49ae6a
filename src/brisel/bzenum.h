#pragma once

#include "brisel_export.h"

#include <QObject>

class QWidget;

namespace BzEnum {
Q_NAMESPACE_EXPORT(BRISEL_EXPORT)

// Where an icon sits relative to the text or inside its box.
enum Alignment : int { AlignLeft, AlignRight, AlignTop, AlignBottom, AlignCenter };
Q_ENUM_NS(Alignment)

// Horizontal text alignment. Left and Right are the leading and trailing
// sides: in a right-to-left layout Left puts the text on the right.
enum HorAlign : int { Left, Center, Right };
Q_ENUM_NS(HorAlign)

// The visual horizontal alignment for `align` under `direction`. Left and
// Right come back with Qt::AlignAbsolute so that painters and styles do not
// mirror them a second time.
BRISEL_EXPORT Qt::Alignment toQtAlignment(HorAlign align, Qt::LayoutDirection direction);
// The same for the widget's own direction (the application's for null).
BRISEL_EXPORT Qt::Alignment toQtAlignment(HorAlign align, const QWidget* widget);
// Alignment of a box inside its area: the named edge, centred on the other
// axis.
BRISEL_EXPORT Qt::Alignment toQtAlignment(Alignment align);

} // namespace BzEnum
