#include "kadualiconbutton.h"

#include "kadualcellbutton.h"

KaDualIconButton::KaDualIconButton(QWidget* parent)
    : KaDualIconButton(parent, new KaDualIconButtonConfig) {}

KaDualIconButton::KaDualIconButton(QWidget* parent, KaDualButtonEnum::IconButtonStyle style,
                                   KaDualButtonEnum::Size size)
    : KaDualIconButton(parent) {
    setSize(size);
    setStyle(style);
}

KaDualIconButton::KaDualIconButton(QWidget* parent, KaDualIconButtonConfig* config)
    : IKaDualButton(parent, config)
    , m_iconConfig(config) {
    auto* first = new KaDualCellButton(config->leftCellConfig(), this);
    auto* second = new KaDualCellButton(config->rightCellConfig(), this);
    connect(first, &QAbstractButton::clicked, this, &KaDualIconButton::firstClicked);
    connect(second, &QAbstractButton::clicked, this, &KaDualIconButton::secondClicked);
    connect(config, &KaDualIconButtonConfig::styleChanged, this, &KaDualIconButton::styleChanged);
    setCells(first, second);
}

KaDualIconButton::~KaDualIconButton() = default;

KaDualButtonEnum::IconButtonStyle KaDualIconButton::style() const {
    return m_iconConfig->style();
}

void KaDualIconButton::setStyle(KaDualButtonEnum::IconButtonStyle style) {
    m_iconConfig->setStyle(style);
}

QString KaDualIconButton::firstIcon() const {
    return firstCell()->leftIcon();
}

void KaDualIconButton::setFirstIcon(const QString& path) {
    if (path == firstIcon())
        return;
    firstCell()->setLeftIcon(path);
    Q_EMIT firstIconChanged(path);
}

QString KaDualIconButton::secondIcon() const {
    return secondCell()->leftIcon();
}

void KaDualIconButton::setSecondIcon(const QString& path) {
    if (path == secondIcon())
        return;
    secondCell()->setLeftIcon(path);
    Q_EMIT secondIconChanged(path);
}

QString KaDualIconButton::firstAccessibleName() const {
    return firstCell()->accessibleName();
}

void KaDualIconButton::setFirstAccessibleName(const QString& name) {
    if (name == firstAccessibleName())
        return;
    firstCell()->setAccessibleName(name);
    Q_EMIT firstAccessibleNameChanged(name);
}

QString KaDualIconButton::secondAccessibleName() const {
    return secondCell()->accessibleName();
}

void KaDualIconButton::setSecondAccessibleName(const QString& name) {
    if (name == secondAccessibleName())
        return;
    secondCell()->setAccessibleName(name);
    Q_EMIT secondAccessibleNameChanged(name);
}
