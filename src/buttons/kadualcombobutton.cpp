#include "kadualcombobutton.h"

#include "kadualcellbutton.h"

KaDualComboButton::KaDualComboButton(QWidget* parent)
    : KaDualComboButton(parent, new KaDualComboButtonConfig) {}

KaDualComboButton::KaDualComboButton(QWidget* parent, KaDualButtonEnum::Style style,
                                     KaDualButtonEnum::Size size)
    : KaDualComboButton(parent) {
    setSize(size);
    setStyle(style);
}

KaDualComboButton::KaDualComboButton(QWidget* parent, KaDualComboButtonConfig* config)
    : IKaDualButton(parent, config)
    , m_comboConfig(config)
    , m_iconAccessibleName(tr("More options")) {
    auto* label = new KaDualCellButton(config->labelCellConfig(), this);
    auto* icon = new KaDualCellButton(config->iconCellConfig(), this);
    icon->setAccessibleName(m_iconAccessibleName);
    connect(label, &QAbstractButton::clicked, this, &KaDualComboButton::labelClicked);
    // Connected before the base class's menu connection: the click is
    // reported before the menu opens.
    connect(icon, &QAbstractButton::clicked, this, &KaDualComboButton::iconClicked);
    connect(config, &KaDualComboButtonConfig::styleChanged, this, &KaDualComboButton::styleChanged);
    setCells(label, icon);
}

KaDualComboButton::~KaDualComboButton() = default;

KaDualButtonEnum::Style KaDualComboButton::style() const {
    return m_comboConfig->style();
}

void KaDualComboButton::setStyle(KaDualButtonEnum::Style style) {
    m_comboConfig->setStyle(style);
}

QString KaDualComboButton::text() const {
    return labelCell()->text();
}

void KaDualComboButton::setText(const QString& text) {
    if (text == labelCell()->text())
        return;
    labelCell()->setText(text);
    labelCell()->updateGeometry();
    updateGeometry();
    Q_EMIT textChanged(text);
}

QString KaDualComboButton::labelIcon() const {
    return labelCell()->leftIcon();
}

void KaDualComboButton::setLabelIcon(const QString& path) {
    if (path == labelIcon())
        return;
    labelCell()->setLeftIcon(path);
    Q_EMIT labelIconChanged(path);
}

QString KaDualComboButton::cellIcon() const {
    return iconCell()->leftIcon();
}

void KaDualComboButton::setCellIcon(const QString& path) {
    if (path == cellIcon())
        return;
    iconCell()->setLeftIcon(path);
    Q_EMIT cellIconChanged(path);
}

void KaDualComboButton::setLabelAccessibleName(const QString& name) {
    if (name == m_labelAccessibleName)
        return;
    m_labelAccessibleName = name;
    // Empty falls back to the cell's text.
    labelCell()->setAccessibleName(name);
    Q_EMIT labelAccessibleNameChanged(name);
}

void KaDualComboButton::setIconAccessibleName(const QString& name) {
    if (name == m_iconAccessibleName)
        return;
    m_iconAccessibleName = name;
    iconCell()->setAccessibleName(name);
    Q_EMIT iconAccessibleNameChanged(name);
}
