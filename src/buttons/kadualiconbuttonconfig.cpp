#include "kadualiconbuttonconfig.h"

KaDualIconButtonConfig::KaDualIconButtonConfig(QObject* parent)
    : IKaDualButtonConfig(KaDualButtonEnum::SecondaryHorizontal, true, parent)
    , m_firstCell(new KaDualIconCellConfig(this))
    , m_secondCell(new KaDualIconCellConfig(this)) {
    updateCells();
}

KaDualIconButtonConfig::~KaDualIconButtonConfig() = default;

void KaDualIconButtonConfig::updateCells() {
    pushTo(m_firstCell, IKaDualCellConfig::Leading);
    pushTo(m_secondCell, IKaDualCellConfig::Trailing);
    Q_EMIT configChanged();
}

IKaDualCellConfig* KaDualIconButtonConfig::leftCellConfig() const {
    return m_firstCell;
}

IKaDualCellConfig* KaDualIconButtonConfig::rightCellConfig() const {
    return m_secondCell;
}

void KaDualIconButtonConfig::setStyle(KaDualButtonEnum::IconButtonStyle style) {
    if (style == m_style)
        return;
    m_style = style;
    setCode(style);
    Q_EMIT styleChanged(style);
    updateCells();
}
