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
    connect(this, &IKaButton::refreshConfig, this, &KaIconButton::refresh);
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
    if (!m_iconConfig || type == m_iconConfig->type())
        return;
    {
        const ConfigWrite write(this);
        m_iconConfig->setType(type);
    }
    updateDefaultAccessibleName();
    Q_EMIT typeChanged(type);
    Q_EMIT refreshConfig();
}

KaIconButtonEnum::Type KaIconButton::type() const {
    return m_iconConfig ? m_iconConfig->type() : KaIconButtonEnum::None;
}

void KaIconButton::setStyle(KaIconButtonEnum::Style style) {
    if (!m_iconConfig || style == m_iconConfig->style())
        return;
    {
        const ConfigWrite write(this);
        m_iconConfig->setStyle(style);
    }
    Q_EMIT styleChanged(style);
    Q_EMIT refreshConfig();
}

KaIconButtonEnum::Style KaIconButton::style() const {
    return m_iconConfig ? m_iconConfig->style() : KaIconButtonEnum::INACTIVE;
}

void KaIconButton::setSize(KaButtonEnum::Size size) {
    if (!m_iconConfig || size == m_iconConfig->size())
        return;
    {
        const ConfigWrite write(this);
        m_iconConfig->setSize(size);
    }
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

KaButtonEnum::Size KaIconButton::size() const {
    return m_iconConfig ? m_iconConfig->size() : KaButtonEnum::Normal;
}

void KaIconButton::refresh() {
    if (!m_iconConfig)
        return;
    KaIconButtonConfig::Geometry g;
    m_iconConfig->fillGeometry(g);
    applyColors(g.colors, QString());
    IKaButton::refresh(g);
    setSvgIconSize(g.svgIconSize);
    setSvgIconVisible(true);
    setAnchorIconVisible(false);
    if (g.fixedHeight > 0) {
        setFixedWidth(g.fixedHeight);
        setFocusRadius(g.fixedHeight / 2.0);
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
