#include "kastyle.h"

KaStyle::KaStyle(QStyle* style)
    : QProxyStyle(style) {}

KaStyle::KaStyle(const QString& key)
    : QProxyStyle(key) {}

int KaStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                       QStyleHintReturn* returnData) const {
    switch (hint) {
    case SH_Menu_SpaceActivatesItem:
    case SH_Menu_KeyboardSearch:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}
