#pragma once

#include "ikabutton.h"
#include "kabuttonenum.h"
#include "kaiconbuttonconfig.h"
#include "kaiconbuttonenum.h"
#include "karvex_export.h"

// An icon without text on the interactive-icon container: give it the icon
// with setLeftIcon() (and setLeftIconOn() for the checked look). The type
// picks the icon's colour family, the style whether it shows its active
// colour; a checkable icon button is ACTIVE while checked. Side length and
// icon size come from KaIconButtonConfig's size table.
//
// The accessible name defaults to the type's name ("Settings", "Favorite",
// ...) until the host sets one with setAccessibleName().
//
// Defaults: type None (no colours), style INACTIVE, size Normal.
class KARVEX_EXPORT KaIconButton : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(KaIconButtonEnum::Type type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(KaIconButtonEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QString icon READ leftIcon WRITE setLeftIcon NOTIFY leftIconChanged)
    Q_PROPERTY(QString iconOn READ leftIconOn WRITE setLeftIconOn NOTIFY leftIconOnChanged)

public:
    explicit KaIconButton(QWidget* parent = nullptr);
    KaIconButton(QWidget* parent, KaIconButtonEnum::Type type, KaButtonEnum::Size size);
    ~KaIconButton() override;

    // Each does nothing for the current value.
    void setType(KaIconButtonEnum::Type type);
    KaIconButtonEnum::Type type() const;
    void setStyle(KaIconButtonEnum::Style style);
    KaIconButtonEnum::Style style() const;
    void setSize(KaButtonEnum::Size size);
    KaButtonEnum::Size size() const;

Q_SIGNALS:
    void typeChanged(KaIconButtonEnum::Type type);
    void styleChanged(KaIconButtonEnum::Style style);
    void sizeChanged(KaButtonEnum::Size size);

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void updateDefaultAccessibleName();

    QPointer<KaIconButtonConfig> m_iconConfig;
};
