#pragma once

#include "karvex_export.h"

#include <kasvglabelbase.h>

// A label that draws its text, or one icon, on a filled rounded background:
// the face of the counter and icon badges. The modern look is a pill in
// "badge-background" with "badge-text"; the legacy look is the quieter
// secondary badge colours with 4 px corners. Both follow theme switches
// through the base label's record.
class KARVEX_EXPORT KaTextWithBackground : public KaSvgLabelBase {
    Q_OBJECT
    Q_PROPERTY(bool legacyStyling READ legacyStyling WRITE setLegacyStyling NOTIFY legacyStylingChanged)

public:
    explicit KaTextWithBackground(QWidget* parent = nullptr);
    KaTextWithBackground(const QString& text, QWidget* parent = nullptr);
    ~KaTextWithBackground() override;

    bool legacyStyling() const { return m_legacyStyling; }
    void setLegacyStyling(bool legacy);

    // The height of a text badge; an icon badge is as tall as its icon.
    static constexpr int kHeight = 16;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void legacyStylingChanged(bool legacy);

private:
    void applyLook();

    bool m_legacyStyling = false;
};
