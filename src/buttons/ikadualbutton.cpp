#include "ikadualbutton.h"

#include "kadualcellbutton.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QMenu>

IKaDualButton::IKaDualButton(QWidget* parent, IKaDualButtonConfig* config)
    : QWidget(parent)
    , m_config(config)
    , m_layout(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    if (config) {
        config->setParent(this);
        connect(config, &IKaDualButtonConfig::configChanged, this, &IKaDualButton::refresh);
        connect(config, &IKaDualButtonConfig::sizeChanged, this, &IKaDualButton::sizeChanged);
    }
}

IKaDualButton::~IKaDualButton() = default;

void IKaDualButton::setCells(KaDualCellButton* mainCell, KaDualCellButton* menuCell) {
    m_mainCell = mainCell;
    m_menuCell = menuCell;
    for (KaDualCellButton* cell : {mainCell, menuCell}) {
        if (cell)
            cell->installEventFilter(this);
    }
    if (mainCell)
        connect(mainCell, &QAbstractButton::toggled, this, &IKaDualButton::onMainToggled);
    if (menuCell)
        connect(menuCell, &QAbstractButton::clicked, this, &IKaDualButton::showMenu);
    refresh();
}

KaDualButtonEnum::Size IKaDualButton::size() const {
    return m_config ? m_config->size() : KaDualButtonEnum::Large;
}

void IKaDualButton::setSize(KaDualButtonEnum::Size size) {
    if (!m_config || size == m_config->size())
        return;
    // The configuration announces the change; sizeChanged() is forwarded.
    m_config->setSize(size);
    updateGeometry();
}

bool IKaDualButton::isCheckable() const {
    return m_mainCell && m_mainCell->isCheckable();
}

void IKaDualButton::setCheckable(bool checkable) {
    if (!m_mainCell || checkable == m_mainCell->isCheckable())
        return;
    // Unchecking on the way out sends toggled(false) first.
    if (!checkable)
        m_mainCell->setChecked(false);
    m_mainCell->setCheckable(checkable);
    Q_EMIT checkableChanged(checkable);
}

bool IKaDualButton::isChecked() const {
    return m_mainCell && m_mainCell->isChecked();
}

void IKaDualButton::setChecked(bool checked) {
    // QAbstractButton ignores it for a button that is not checkable.
    if (m_mainCell)
        m_mainCell->setChecked(checked);
}

void IKaDualButton::onMainToggled(bool checked) {
    if (m_config)
        m_config->setChecked(checked);
    Q_EMIT toggled(checked);
}

void IKaDualButton::setMenu(QMenu* menu) {
    if (menu == m_menu)
        return;
    if (m_menu)
        disconnect(m_menu, nullptr, this, nullptr);
    m_menu = menu;
    if (menu)
        connect(menu, &QMenu::aboutToHide, this, &IKaDualButton::onMenuHidden);
}

QMenu* IKaDualButton::menu() const {
    return m_menu;
}

void IKaDualButton::showMenu() {
    if (!m_menu || m_menu->isVisible())
        return;
    if (m_menuCell)
        m_menuCell->setDown(true);
    // A press on the cell while the menu is open closes the menu rather than
    // reopening it at once.
    m_menu->setNoReplayFor(m_menuCell);
    const QSize menuSize = m_menu->sizeHint();
    const QPoint local = layoutDirection() == Qt::RightToLeft ? QPoint(width() - menuSize.width(), height())
                                                              : QPoint(0, height());
    m_menu->popup(mapToGlobal(local));
}

void IKaDualButton::onMenuHidden() {
    if (m_menuCell)
        m_menuCell->setDown(false);
}

KaDualCellButton* IKaDualButton::cellFor(const IKaDualCellConfig* config) const {
    for (KaDualCellButton* cell : {m_mainCell.data(), m_menuCell.data()}) {
        if (cell && config && cell->cellConfig() == config)
            return cell;
    }
    return nullptr;
}

KaDualCellButton* IKaDualButton::leadingCell() const {
    return m_config ? cellFor(m_config->leftCellConfig()) : nullptr;
}

KaDualCellButton* IKaDualButton::trailingCell() const {
    return m_config ? cellFor(m_config->rightCellConfig()) : nullptr;
}

bool IKaDualButton::isVertical() const {
    return m_config && m_config->isVertical();
}

void IKaDualButton::onThemeChanged() {
    refresh();
}

void IKaDualButton::refresh() {
    KaDualCellButton* leading = leadingCell();
    KaDualCellButton* trailing = trailingCell();
    if (!leading || !trailing)
        return;
    const bool vertical = isVertical();
    const QBoxLayout::Direction direction = vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (m_layout->direction() != direction)
        m_layout->setDirection(direction);

    const bool ordered = m_layout->count() == 2 && m_layout->itemAt(0)->widget() == leading &&
                         m_layout->itemAt(1)->widget() == trailing;
    if (!ordered) {
        m_layout->removeWidget(leading);
        m_layout->removeWidget(trailing);
        m_layout->addWidget(leading);
        m_layout->addWidget(trailing);
        setTabOrder(leading, trailing);
    }
    // Stacked cells of different widths share one centre line.
    const Qt::Alignment alignment = vertical ? Qt::AlignHCenter : Qt::Alignment();
    m_layout->setAlignment(leading, alignment);
    m_layout->setAlignment(trailing, alignment);
    setSizePolicy(vertical ? QSizePolicy::Fixed : QSizePolicy::Maximum, QSizePolicy::Fixed);
    updateGeometry();
}

bool IKaDualButton::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && m_menu && (watched == m_mainCell || watched == m_menuCell)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool altDown = key->key() == Qt::Key_Down && key->modifiers() == Qt::AltModifier;
        if (altDown || (key->key() == Qt::Key_F4 && key->modifiers() == Qt::NoModifier)) {
            showMenu();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
