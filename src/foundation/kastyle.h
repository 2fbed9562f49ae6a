#pragma once

#include "karvex_export.h"

#include <QProxyStyle>

// Proxy style for menus: space activates the current item and typing
// searches the items. Everything else comes from the base style.
class KARVEX_EXPORT KaStyle : public QProxyStyle {
    Q_OBJECT
public:
    // Takes ownership of `style`; null means the application's style.
    explicit KaStyle(QStyle* style = nullptr);
    explicit KaStyle(const QString& key);

    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;
};
