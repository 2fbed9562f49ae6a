#pragma once

#include "kabutton.h"
#include "karoundbuttonconfig.h"
#include "karvex_export.h"

// A circle with one centred icon and no text: the diameter and icon size come
// from KaRoundButtonConfig's size table. There is no anchor icon; the
// configuration refuses a right icon with a warning. Without text, give the
// button an accessible name (QWidget::setAccessibleName) so screen readers
// can tell what it does. Defaults: style Primary, size Small.
class KARVEX_EXPORT KaRoundButton : public KaButton {
    Q_OBJECT
public:
    explicit KaRoundButton(QWidget* parent = nullptr);
    KaRoundButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size);
    ~KaRoundButton() override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();
};
