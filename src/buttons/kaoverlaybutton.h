#pragma once

#include "ikabutton.h"
#include "kaoverlaybuttonconfig.h"
#include "kaoverlaybuttonenum.h"
#include "karvex_export.h"

// The round button on the edge of a collapsible area: a bordered face with
// an arrow that points the way the area will move, following the
// application's layout direction. The face is a circle of the configuration's
// height; a None overlay shows nothing of its own.
//
// The accessible name defaults to "Expand" or "Collapse" until the host sets
// one with setAccessibleName().
//
// Defaults: type ExpandAreaOverlay, size Normal.
class KARVEX_EXPORT KaOverlayButton : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(KaOverlayButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(KaOverlayButtonEnum::Type type READ type WRITE setType NOTIFY typeChanged)

public:
    explicit KaOverlayButton(QWidget* parent = nullptr);
    KaOverlayButton(QWidget* parent, KaOverlayButtonEnum::Type type, KaOverlayButtonEnum::Size size);
    ~KaOverlayButton() override;

    // Each does nothing for the current value.
    void setSize(KaOverlayButtonEnum::Size size);
    KaOverlayButtonEnum::Size size() const;
    void setType(KaOverlayButtonEnum::Type type);
    KaOverlayButtonEnum::Type type() const;

Q_SIGNALS:
    void sizeChanged(KaOverlayButtonEnum::Size size);
    void typeChanged(KaOverlayButtonEnum::Type type);

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void updateDefaultAccessibleName();

    QPointer<KaOverlayButtonConfig> m_overlayConfig;
};
