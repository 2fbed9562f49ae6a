#pragma once

#include "ikadualbuttonconfig.h"
#include "kadualcombocellconfig.h"
#include "kadualiconcellconfig.h"
#include "karvex_export.h"

#include <QPointer>

// A label cell and an icon cell, styled by a KaDualButtonEnum::Style code
// (initially LabelIconSecondary, size Large). The code's cell layout decides
// what the icon cell is: 3 a square icon, 9 and 12 a narrow arrow (in 12 the
// label cell usually carries only its icon). An icon-first code puts the
// icon cell on the leading side; a right-aligned one aligns the label to the
// trailing side.
class KARVEX_EXPORT KaDualComboButtonConfig : public IKaDualButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaDualButtonEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
public:
    explicit KaDualComboButtonConfig(QObject* parent = nullptr);
    ~KaDualComboButtonConfig() override;

    IKaDualCellConfig* leftCellConfig() const override;
    IKaDualCellConfig* rightCellConfig() const override;

    KaDualComboCellConfig* labelCellConfig() const { return m_labelCell; }
    KaDualIconCellConfig* iconCellConfig() const { return m_iconCell; }

    KaDualButtonEnum::Style style() const { return KaDualButtonEnum::Style(code()); }
    void setStyle(KaDualButtonEnum::Style style);

Q_SIGNALS:
    void styleChanged(KaDualButtonEnum::Style style);

private:
    QPointer<KaDualComboCellConfig> m_labelCell;
    QPointer<KaDualIconCellConfig> m_iconCell;
};
