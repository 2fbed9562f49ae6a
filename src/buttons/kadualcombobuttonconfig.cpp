#include "kadualcombobuttonconfig.h"

KaDualComboButtonConfig::KaDualComboButtonConfig(QObject* parent)
    : IKaDualButtonConfig(KaDualButtonEnum::LabelIconSecondary, false, parent)
    , m_labelCell(new KaDualComboCellConfig(this))
    , m_iconCell(new KaDualIconCellConfig(this)) {
    updateCells();
}

KaDualComboButtonConfig::~KaDualComboButtonConfig() = default;

IKaDualCellConfig* KaDualComboButtonConfig::leftCellConfig() const {
    if (isIconFirst())
        return m_iconCell;
    return m_labelCell;
}

IKaDualCellConfig* KaDualComboButtonConfig::rightCellConfig() const {
    if (isIconFirst())
        return m_labelCell;
    return m_iconCell;
}

void KaDualComboButtonConfig::setStyle(KaDualButtonEnum::Style style) {
    if (!changeCode(style))
        return;
    Q_EMIT styleChanged(style);
    updateCells();
}
