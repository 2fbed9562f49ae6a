#pragma once

#include "kabutton.h"
#include "kapillbuttonconfig.h"
#include "karvex_export.h"

// The pill: text with optional icons on both sides, the face's radius half
// its height. Height, font, paddings, icon sizes and spacings come from
// KaPillButtonConfig's size table, so a missing left icon also narrows the
// button. Defaults: style Primary, size Large.
class KARVEX_EXPORT KaPillButton : public KaButton {
    Q_OBJECT
public:
    explicit KaPillButton(QWidget* parent = nullptr);
    KaPillButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size);
    ~KaPillButton() override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();
};
