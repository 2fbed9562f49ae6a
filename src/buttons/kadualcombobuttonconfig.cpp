#include "kadualcombobuttonconfig.h"

KaDualComboButtonConfig::KaDualComboButtonConfig(QObject* parent)
    : IKaDualButtonConfig(KaDualButtonEnum::LabelIconSecondary, false, parent)
    , m_labelCell(new KaDualComboCellConfig(this))
    , m_iconCell(new KaDualIconCellConfig(this)) {
    updateCells();
}

KaDualComboButtonConfig::~KaDualComboButtonConfig() = default;

void KaDualComboButtonConfig::updateCells() {
    pushTo(leftCellConfig(), IKaDualCellConfig::Leading);
    pushTo(rightCellConfig(), IKaDualCellConfig::Trailing);
    Q_EMIT configChanged();
}

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
    if (style == m_style)
        return;
    m_style = style;
    setCode(style);
    Q_EMIT styleChanged(style);
    updateCells();
}
