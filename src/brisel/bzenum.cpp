#include "bzenum.h"

#include "apputils.h"

#include <QtGlobal>

namespace BzEnum {

Qt::Alignment toQtAlignment(HorAlign align, Qt::LayoutDirection direction) {
    const bool rtl = direction == Qt::RightToLeft;
    switch (align) {
    case Left:
        return (rtl ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
    case Right:
        return (rtl ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignAbsolute;
    case Center:
        return Qt::AlignHCenter;
    }
    qWarning("BzEnum: unknown horizontal alignment %d, using Left", int(align));
    return toQtAlignment(Left, direction);
}

Qt::Alignment toQtAlignment(HorAlign align, const QWidget* widget) {
    return toQtAlignment(align, AppUtils::isRTLLayoutDirection(widget) ? Qt::RightToLeft : Qt::LeftToRight);
}

Qt::Alignment toQtAlignment(Alignment align) {
    switch (align) {
    case AlignLeft:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case AlignRight:
        return Qt::AlignRight | Qt::AlignVCenter;
    case AlignTop:
        return Qt::AlignTop | Qt::AlignHCenter;
    case AlignBottom:
        return Qt::AlignBottom | Qt::AlignHCenter;
    case AlignCenter:
        return Qt::AlignCenter;
    }
    qWarning("BzEnum: unknown alignment %d, using AlignCenter", int(align));
    return Qt::AlignCenter;
}

} // namespace BzEnum
