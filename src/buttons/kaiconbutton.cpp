#include "kaiconbutton.h"

#include <QEvent>

KaIconButton::KaIconButton(QWidget* parent)
    : IKaButton(parent, new KaIconButtonConfig)
    , m_iconConfig(qobject_cast<KaIconButtonConfig*>(buttonConfig())) {
    m_iconConfig->setParent(this);
    setSvgIconAlignment(BzEnum::AlignCenter);
    connect(this, &QAbstractButton::toggled, this, [this](bool checked) {
        setStyle(checked ? KaIconButtonEnum::ACTIVE : KaIconButtonEnum::INACTIVE);
    });
    connectRefreshSlot();
    updateDefaultAccessibleName();
    refresh();
}

KaIconButton::KaIconButton(QWidget* parent, KaIconButtonEnum::Type type, KaButtonEnum::Size size)
    : KaIconButton(parent) {
    setSize(size);
    setType(type);
}

KaIconButton::~KaIconButton() = default;

void KaIconButton::setType(KaIconButtonEnum::Type type) {
    if (!writeConfig(m_iconConfig.data(), &KaIconButtonConfig::type, &KaIconButtonConfig::setType, type))
        return;
    updateDefaultAccessibleName();
    Q_EMIT typeChanged(type);
    Q_EMIT refreshConfig();
}

KaIconButtonEnum::Type KaIconButton::type() const {
    return m_iconConfig ? m_iconConfig->type() : KaIconButtonEnum::None;
}

void KaIconButton::setStyle(KaIconButtonEnum::Style style) {
    if (!writeConfig(m_iconConfig.data(), &KaIconButtonConfig::style, &KaIconButtonConfig::setStyle, style))
        return;
    Q_EMIT styleChanged(style);
    Q_EMIT refreshConfig();
}

KaIconButtonEnum::Style KaIconButton::style() const {
    return m_iconConfig ? m_iconConfig->style() : KaIconButtonEnum::INACTIVE;
}

void KaIconButton::setSize(KaButtonEnum::Size size) {
    if (!writeConfig(m_iconConfig.data(), &KaIconButtonConfig::size, &KaIconButtonConfig::setSize, size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

KaButtonEnum::Size KaIconButton::size() const {
    return m_iconConfig ? m_iconConfig->size() : KaButtonEnum::Normal;
}

void KaIconButton::refresh() {
    KaIconButtonConfig::Geometry g;
    if (!applyGeometry(m_iconConfig.data(), g))
        return;
    setSvgIconSize(g.svgIconSize);
    setSvgIconVisible(true);
    setAnchorIconVisible(false);
    if (g.fixedHeight > 0) {
        setFixedWidth(g.fixedHeight);
        setFocusBorderRadius(g.fixedHeight / 2.0);
    }
}

void KaIconButton::updateDefaultAccessibleName() {
    QString name;
    switch (type()) {
    case KaIconButtonEnum::Settings:
        name = tr("Settings");
        break;
    case KaIconButtonEnum::Favorite:
        name = tr("Favorite");
        break;
    case KaIconButtonEnum::Attachment:
        name = tr("Attachment");
        break;
    case KaIconButtonEnum::Pen:
        name = tr("Edit");
        break;
    case KaIconButtonEnum::Info:
        name = tr("Info");
        break;
    case KaIconButtonEnum::Dismiss:
        name = tr("Dismiss");
        break;
    default:
        break;
    }
    setDefaultAccessibleName(name);
}

void KaIconButton::changeEvent(QEvent* event) {
    IKaButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        updateDefaultAccessibleName();
}
