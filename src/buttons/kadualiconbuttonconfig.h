#pragma once

#include "ikadualbuttonconfig.h"
#include "kadualiconcellconfig.h"
#include "karvex_export.h"

#include <QPointer>

// Two icon cells, styled by a KaDualButtonEnum::IconButtonStyle code
// (initially SecondaryHorizontal, size Large): layout 2 gives two squares,
// layout 4 ("Asym") a square and a narrow arrow. Vertical codes stack the
// cells; the split bit decides whether they look like two buttons.
class KARVEX_EXPORT KaDualIconButtonConfig : public IKaDualButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaDualButtonEnum::IconButtonStyle style READ style WRITE setStyle NOTIFY styleChanged)
public:
    explicit KaDualIconButtonConfig(QObject* parent = nullptr);
    ~KaDualIconButtonConfig() override;

    IKaDualCellConfig* leftCellConfig() const override;
    IKaDualCellConfig* rightCellConfig() const override;

    KaDualButtonEnum::IconButtonStyle style() const { return KaDualButtonEnum::IconButtonStyle(code()); }
    void setStyle(KaDualButtonEnum::IconButtonStyle style);

Q_SIGNALS:
    void styleChanged(KaDualButtonEnum::IconButtonStyle style);

private:
    QPointer<KaDualIconCellConfig> m_firstCell;
    QPointer<KaDualIconCellConfig> m_secondCell;
};
