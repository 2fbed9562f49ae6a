#pragma once

#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "karvex_export.h"

#include <QSizePolicy>

// The standard button look: style, size and state of KaButtonEnum and the
// colour table shared by the pill and round buttons. Abstract: the variants
// decide what the icon flags mean.
//
// Setters and what they announce:
//   setStyle            always styleChanged() and configChanged(), even for
//                       the current style, so that re-applying a style is a
//                       cheap way to refresh the button
//   setSize, setState   only on a change: sizeChanged()/stateChanged() and
//                       configChanged()
//   setChecked          writes the state (checked is Active, unchecked
//                       Inactive) and always sends configChanged(); this is
//                       what the button's toggled() drives
//   setWidthSizePolicy  always configChanged(); widthSizePolicyChanged() on a
//                       change
class KARVEX_EXPORT KaButtonConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaButtonEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(KaButtonEnum::State state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(QSizePolicy::Policy widthSizePolicy READ widthSizePolicy WRITE setWidthSizePolicy NOTIFY
                   widthSizePolicyChanged)
public:
    explicit KaButtonConfig(QObject* parent = nullptr);
    ~KaButtonConfig() override;

    // The colour part of the style table (with the high-contrast override)
    // and the accelerator type; geometry is left at the record defaults.
    void fillConfig(Config& out) const override;
    void setCustomValue(int value) override;
    int customValue() const { return m_customValue; }

    KaButtonEnum::Style style() const { return m_style; }
    void setStyle(KaButtonEnum::Style style);
    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);
    KaButtonEnum::State state() const { return m_state; }
    void setState(KaButtonEnum::State state);
    bool isChecked() const { return m_state == KaButtonEnum::Active; }
    void setChecked(bool checked);
    QSizePolicy::Policy widthSizePolicy() const { return m_widthSizePolicy; }
    void setWidthSizePolicy(QSizePolicy::Policy policy);

    // The colour sets of `style` in `state`, the high-contrast override
    // included: with KaConfig::highContrast set, every button but an Active
    // Secondary or Ghost one takes the bordered primary look. A style outside
    // the table gives empty names (or that primary look in high contrast).
    // Public so that looks built on this table (dual-button cells) share it.
    static Config::Colors colorsFor(int style, int state);

Q_SIGNALS:
    void styleChanged(KaButtonEnum::Style style);
    void sizeChanged(KaButtonEnum::Size size);
    void stateChanged(KaButtonEnum::State state);
    void widthSizePolicyChanged(QSizePolicy::Policy policy);

protected:
    KaButtonEnum::Style m_style = KaButtonEnum::Primary;
    KaButtonEnum::Size m_size = KaButtonEnum::Large;
    KaButtonEnum::State m_state = KaButtonEnum::Inactive;
    QSizePolicy::Policy m_widthSizePolicy = QSizePolicy::Maximum;
    int m_customValue = 0;
};
