#include "apputils.h"

#include <QGuiApplication>
#include <QWidget>

namespace AppUtils {

bool isRTLLayoutDirection() {
    return QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

bool isRTLLayoutDirection(const QWidget* widget) {
    if (!widget)
        return isRTLLayoutDirection();
    return widget->layoutDirection() == Qt::RightToLeft;
}

} // namespace AppUtils
