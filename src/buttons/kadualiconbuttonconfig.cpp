#include "kadualiconbuttonconfig.h"

KaDualIconButtonConfig::KaDualIconButtonConfig(QObject* parent)
    : IKaDualButtonConfig(KaDualButtonEnum::SecondaryHorizontal, true, parent)
    , m_firstCell(new KaDualIconCellConfig(this))
    , m_secondCell(new KaDualIconCellConfig(this)) {
    updateCells();
}

KaDualIconButtonConfig::~KaDualIconButtonConfig() = default;

IKaDualCellConfig* KaDualIconButtonConfig::leftCellConfig() const {
    return m_firstCell;
}

IKaDualCellConfig* KaDualIconButtonConfig::rightCellConfig() const {
    return m_secondCell;
}

void KaDualIconButtonConfig::setStyle(KaDualButtonEnum::IconButtonStyle style) {
    if (!changeCode(style))
        return;
    Q_EMIT styleChanged(style);
    updateCells();
}
