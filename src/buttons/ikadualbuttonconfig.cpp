#include "ikadualbuttonconfig.h"

IKaDualButtonConfig::IKaDualButtonConfig(int code, bool iconButtonCodes, QObject* parent)
    : QObject(parent)
    , m_code(code)
    , m_iconButtonCodes(iconButtonCodes) {}

IKaDualButtonConfig::~IKaDualButtonConfig() = default;

KaDualButtonCode::ColorScheme IKaDualButtonConfig::colorScheme() const {
    return KaDualButtonCode::colorScheme(m_code);
}

int IKaDualButtonConfig::cellLayout() const {
    return KaDualButtonCode::cellLayout(m_code);
}

bool IKaDualButtonConfig::isIconFirst() const {
    return !m_iconButtonCodes && KaDualButtonCode::isIconFirst(m_code);
}

bool IKaDualButtonConfig::isSplit() const {
    return !m_iconButtonCodes || KaDualButtonCode::isIconFirst(m_code);
}

bool IKaDualButtonConfig::isAlignedRight() const {
    return KaDualButtonCode::isAlignedRight(m_code);
}

bool IKaDualButtonConfig::isVertical() const {
    return KaDualButtonCode::isVertical(m_code);
}

void IKaDualButtonConfig::setSize(KaDualButtonEnum::Size size) {
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged(size);
    updateCells();
}

void IKaDualButtonConfig::setChecked(bool checked) {
    if (checked == m_checked)
        return;
    m_checked = checked;
    Q_EMIT checkedChanged(checked);
    updateCells();
}

bool IKaDualButtonConfig::changeCode(int code) {
    if (code == m_code)
        return false;
    m_code = code;
    return true;
}

void IKaDualButtonConfig::updateCells() {
    pushTo(leftCellConfig(), IKaDualCellConfig::Leading);
    pushTo(rightCellConfig(), IKaDualCellConfig::Trailing);
    Q_EMIT configChanged();
}

void IKaDualButtonConfig::pushTo(IKaDualCellConfig* cell, IKaDualCellConfig::Position position) const {
    if (!cell)
        return;
    IKaDualCellConfig::Placement placement;
    placement.code = m_code;
    placement.position = position;
    placement.split = isSplit();
    placement.state = m_checked ? KaButtonEnum::Active : KaButtonEnum::Inactive;
    cell->setSize(m_size);
    cell->setPlacement(placement);
}
