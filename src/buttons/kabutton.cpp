#include "kabutton.h"

#include "kamenu.h"

#include <QAction>
#include <QMetaEnum>
#include <QMetaMethod>

KaButton::KaButton(QWidget* parent, IKaButtonConfig* config)
    : IKaButton(parent, config)
    , m_buttonConfig(qobject_cast<KaButtonConfig*>(config)) {
    if (config)
        config->setParent(this);
    // By meta-method, not member pointer: no slot object in every button.
    static const QMetaMethod toggled = QMetaMethod::fromSignal(&QAbstractButton::toggled);
    static const QMetaMethod handler =
        staticMetaObject.method(staticMetaObject.indexOfSlot("onToggled(bool)"));
    connect(this, toggled, this, handler);
    setCheckable(false);
    Q_EMIT refreshConfig();
}

KaButton::~KaButton() = default;

void KaButton::onToggled(bool checked) {
    if (!m_buttonConfig)
        return;
    {
        const ConfigWrite write(this);
        m_buttonConfig->setState(checked ? KaButtonEnum::Active : KaButtonEnum::Inactive);
    }
    Q_EMIT refreshConfig();
}

void KaButton::setStyle(KaButtonEnum::Style style) {
    if (!m_buttonConfig)
        return;
    if (!QMetaEnum::fromType<KaButtonEnum::Style>().valueToKey(style)) {
        qWarning("%s: %d is not a key of Style, ignored", metaObject()->className(), int(style));
        return;
    }
    {
        const ConfigWrite write(this);
        m_buttonConfig->setStyle(style);
    }
    Q_EMIT styleChanged(style);
    Q_EMIT refreshConfig();
}

KaButtonEnum::Style KaButton::style() const {
    return m_buttonConfig ? m_buttonConfig->style() : KaButtonEnum::Primary;
}

void KaButton::setSize(KaButtonEnum::Size size) {
    if (!writeConfig(m_buttonConfig.data(), &KaButtonConfig::size, &KaButtonConfig::setSize, size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

KaButtonEnum::Size KaButton::size() const {
    return m_buttonConfig ? m_buttonConfig->size() : KaButtonEnum::Large;
}

void KaButton::setWidthSizePolicy(QSizePolicy::Policy policy) {
    if (!m_buttonConfig)
        return;
    const bool changed = policy != m_buttonConfig->widthSizePolicy();
    {
        const ConfigWrite write(this);
        m_buttonConfig->setWidthSizePolicy(policy);
    }
    if (changed)
        Q_EMIT widthSizePolicyChanged(policy);
    Q_EMIT refreshConfig();
}

QSizePolicy::Policy KaButton::widthSizePolicy() const {
    return m_buttonConfig ? m_buttonConfig->widthSizePolicy() : QSizePolicy::Maximum;
}

void KaButton::attachMenu(QMenu* menu) {
    if (m_menu || !menu)
        return;
    m_menu = menu;
    // The base button watches the menu action's menu to show the "on" anchor
    // while it is open.
    addAction(menu->menuAction());
    connect(this, &QAbstractButton::pressed, this, &KaButton::popupMenu, Qt::UniqueConnection);
}

void KaButton::popupMenu() {
    if (!m_menu)
        return;
    setDown(true);
    // The press that opened the menu must not land on this button again
    // when the menu closes on a click over it.
    m_menu->setNoReplayFor(this);
    if (auto* menu = qobject_cast<KaMenu*>(m_menu.data())) {
        // A KaMenu opens against the anchor popupWith() gave it, or below
        // this button.
        if (menu->hasAnchor())
            menu->popup();
        else
            menu->popupAt(this, KaPopupEnum::Bottom);
        setDown(false);
        return;
    }
    // Below the button, aligned to its leading edge; QMenu keeps it on screen.
    const QRect global(mapToGlobal(QPoint(0, 0)), QWidget::size());
    const int menuWidth = m_menu->sizeHint().width();
    const int x = layoutDirection() == Qt::RightToLeft ? global.right() + 1 - menuWidth : global.left();
    m_menu->popup(QPoint(x, global.bottom() + 1));
    setDown(false);
}
