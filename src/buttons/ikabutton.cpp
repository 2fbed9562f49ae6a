#include "ikabutton.h"

#include "bzthemeutils.h"
#include "kadualcombobutton.h"
#include "kadualiconbutton.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPalette>
#include <QShowEvent>

namespace {

// The menu cell of a dual button opens the dual button's menu.
bool opensParentMenu(const IKaButton* b) {
    if (const auto* combo = qobject_cast<const KaDualComboButton*>(b->parentWidget()))
        return combo->menu() && combo->iconCell() == b;
    if (const auto* dual = qobject_cast<const KaDualIconButton*>(b->parentWidget()))
        return dual->menu() && dual->secondCell() == b;
    return false;
}

// A push button that reports its checkable and checked states and, with a
// menu, that it opens one.
class IKaButtonAccessible : public QAccessibleWidget {
public:
    explicit IKaButtonAccessible(IKaButton* button)
        : QAccessibleWidget(button, QAccessible::Button) {}

    IKaButton* button() const { return static_cast<IKaButton*>(widget()); }

    // Qt's Linux bridge drops the checkable state, so only the role can tell
    // a screen reader that an unchecked toggle is one; Qt gives checkable
    // push buttons the same role.
    QAccessible::Role role() const override {
        return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QAccessible::State state() const override {
        QAccessible::State st = QAccessibleWidget::state();
        const IKaButton* b = button();
        if (b->isCheckable()) {
            st.checkable = true;
            st.checked = b->isChecked();
        }
        st.pressed = b->isDown();
        if (!b->actions().isEmpty() || opensParentMenu(b))
            st.hasPopup = true;
        return st;
    }

    QString text(QAccessible::Text t) const override {
        QString str;
        if (t == QAccessible::Name) {
            str = widget()->accessibleName();
            if (str.isEmpty())
                str = stripMnemonic(button()->text());
        } else {
            str = QAccessibleWidget::text(t);
        }
        return str;
    }

    QStringList actionNames() const override {
        QStringList names;
        if (widget()->isEnabled())
            names << (button()->isCheckable() ? toggleAction() : pressAction());
        return names + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& actionName) override {
        if (!widget()->isEnabled())
            return;
        if (actionName == pressAction() || actionName == toggleAction())
            button()->click();
        else
            QAccessibleWidget::doAction(actionName);
    }

private:
    // "&Save" reads "Save", "R&&D" reads "R&D".
    static QString stripMnemonic(const QString& text) {
        QString out;
        out.reserve(text.size());
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text.at(i) == QLatin1Char('&')) {
                if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('&'))
                    out += text.at(++i);
                continue;
            }
            out += text.at(i);
        }
        return out;
    }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* button = qobject_cast<IKaButton*>(object); button && button->isWidgetType())
        return new IKaButtonAccessible(button);
    return nullptr;
}

} // namespace

IKaButton::IKaButton(QWidget* parent, IKaButtonConfig* config)
    : BzSvgAnchorButton(parent)
    , m_config(config) {
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    if (!config)
        return;
    // Someone may change the configuration directly; that refreshes too.
    if (config->m_owner)
        qWarning("IKaButton: the configuration already belongs to another button; it now follows this one");
    config->m_owner = this;
    syncIcons();
}

IKaButton::~IKaButton() {
    if (m_config && m_config->m_owner == this)
        m_config->m_owner = nullptr;
}

void IKaButton::connectRefreshSlot() {
    static const QMetaMethod signal = QMetaMethod::fromSignal(&IKaButton::refreshConfig);
    // Called from the concrete constructor: metaObject() is the concrete class.
    const QMetaObject* meta = metaObject();
    const int slot = meta->indexOfSlot("refresh()");
    if (slot < 0) {
        qWarning("%s: no refresh() slot to connect refreshConfig() to", meta->className());
        return;
    }
    connect(this, signal, this, meta->method(slot));
}

void IKaButton::basePropertyChanged(const char* property) {
    // The base button names the property; emit the change signal declared
    // for it here, if any.
    const QMetaObject* meta = metaObject();
    const int index = meta->indexOfProperty(property);
    if (index < 0)
        return;
    const QMetaMethod notify = meta->property(index).notifySignal();
    if (notify.isValid())
        notify.invoke(this, Qt::DirectConnection);
}

void IKaButton::onConfigChanged() {
    if (m_configWrites == 0)
        Q_EMIT refreshConfig();
}

void IKaButton::syncIcons() {
    if (!m_config)
        return;
    // The configuration decides which path each state shows (a later
    // setRightIcon() overwrites the checked anchor, for one).
    setSvgIcon(m_config->svgIcon());
    setSvgIconChecked(m_config->svgIconChecked());
    setAnchorSvgOff(m_config->anchorSvgOff());
    setAnchorSvgOn(m_config->anchorSvgOn());
}

void IKaButton::setLeftIcon(const QString& path) {
    if (!m_config || path == m_config->leftIcon())
        return;
    {
        const ConfigWrite write(this);
        m_config->setLeftIcon(path);
    }
    Q_EMIT leftIconChanged();
    Q_EMIT refreshConfig();
}

void IKaButton::setLeftIconOn(const QString& path) {
    if (!m_config || path == m_config->leftIconOn())
        return;
    {
        const ConfigWrite write(this);
        m_config->setLeftIconOn(path);
    }
    Q_EMIT leftIconOnChanged();
    Q_EMIT refreshConfig();
}

void IKaButton::setRightIcon(const QString& path) {
    if (!m_config || path == m_config->rightIcon())
        return;
    {
        const ConfigWrite write(this);
        m_config->setRightIcon(path);
    }
    Q_EMIT rightIconChanged();
    Q_EMIT refreshConfig();
}

void IKaButton::setRightIconOn(const QString& path) {
    if (!m_config || path == m_config->rightIconOn())
        return;
    {
        const ConfigWrite write(this);
        m_config->setRightIconOn(path);
    }
    Q_EMIT rightIconOnChanged();
    Q_EMIT refreshConfig();
}

QString IKaButton::leftIcon() const {
    return m_config ? m_config->leftIcon() : QString();
}

QString IKaButton::leftIconOn() const {
    return m_config ? m_config->leftIconOn() : QString();
}

QString IKaButton::rightIcon() const {
    return m_config ? m_config->rightIcon() : QString();
}

QString IKaButton::rightIconOn() const {
    return m_config ? m_config->rightIconOn() : QString();
}

void IKaButton::setText(const QString& text) {
    QAbstractButton::setText(text);
}

void IKaButton::applyAcceleratorType(const AcceleratorType& type) {
    if (getAcceleratorType() == int(type) || !m_config)
        return;
    {
        const ConfigWrite write(this);
        m_config->setCustomValue(int(type));
    }
    Q_EMIT refreshConfig();
}

void IKaButton::applyTooltipStyle() {
    const QPalette palette = QApplication::palette();
    const QString sheet = QStringLiteral("QToolTip { color: %1; background-color: %2;}")
                              .arg(palette.color(QPalette::ToolTipText).name(QColor::HexRgb),
                                   palette.color(QPalette::ToolTipBase).name(QColor::HexRgb));
    if (sheet == m_tooltipStyleSheet)
        return;
    m_tooltipStyleSheet = sheet;
    Q_EMIT refreshConfig();
}

void IKaButton::onThemeChanged() {
    BzSvgAnchorButton::onThemeChanged();
    Q_EMIT refreshConfig();
}

void IKaButton::refresh(const Config& config) {
    setSizePolicy(config.sizePolicy);
    setFocusPolicy(config.focusPolicy);
    if (config.fixedHeight > 0) {
        setFixedHeight(config.fixedHeight);
    } else {
        setMinimumHeight(0);
        setMaximumHeight(QWIDGETSIZE_MAX);
    }
    setFontToken(config.fontToken, false);
    // Only touch the font for the link look, so that the others do not set
    // a font twice on every refresh.
    if (config.colors.underlineText || font().underline()) {
        QFont underlined = font();
        underlined.setUnderline(config.colors.underlineText);
        setFont(underlined);
    }
    setAcceleratorType(config.acceleratorType);
    // Both compare with the stored value: geometry and repaint only on a change.
    setLayoutMode(config.layoutMode);
    setInnerMetric(config.innerMetric);
}

void IKaButton::applyColors(const Config::Colors& colors, const QString& styleSheet, int radius) {
    using Side = KaButtonConfigRecord;
    BzCSSData record;
    record.backgroundColorSet = colors.backgroundColorSet;
    record.borderColorSet = colors.borderColorSet;
    record.textColorSet = colors.textColorSet;
    // The record names sides in left-to-right terms.
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    record.setSwitch(BzCSSData::BorderTop, colors.hasBorder[Side::BorderTop]);
    record.setSwitch(BzCSSData::BorderBottom, colors.hasBorder[Side::BorderBottom]);
    record.setSwitch(BzCSSData::BorderLeft,
                     colors.hasBorder[mirrored ? Side::BorderRight : Side::BorderLeft]);
    record.setSwitch(BzCSSData::BorderRight,
                     colors.hasBorder[mirrored ? Side::BorderLeft : Side::BorderRight]);
    record.setSwitch(BzCSSData::PaintBackground, colors.paintBackground);
    record.setSwitch(BzCSSData::FollowState, !colors.fixedColors);
    record.borderRadius = colors.squareCorners ? 0 : radius;
    record.extraCSS = styleSheet + m_tooltipStyleSheet;

    // Equal records cost nothing: the base button keeps the applied one.
    setCSS(record);
    setSvgIconColorSet(colors.iconColorSet);
    setAnchorSvgColorSet(colors.iconColorSet);
}

void IKaButton::setDefaultAccessibleName(const QString& name) {
    // A name the host set (anything but our last default) wins.
    const QString current = accessibleName();
    if (!current.isEmpty() && current != m_defaultAccessibleName)
        return;
    m_defaultAccessibleName = name;
    if (current != name)
        setAccessibleName(name);
}

void IKaButton::showEvent(QShowEvent* event) {
    BzSvgAnchorButton::showEvent(event);
    Q_EMIT onVisibilityChanged(true);
    if (!event->spontaneous())
        Q_EMIT refreshConfig();
}

void IKaButton::hideEvent(QHideEvent* event) {
    BzSvgAnchorButton::hideEvent(event);
    Q_EMIT onVisibilityChanged(false);
}

void IKaButton::changeEvent(QEvent* event) {
    BzSvgAnchorButton::changeEvent(event);
    // Borders are mirrored and some icons follow the direction.
    if (event->type() == QEvent::LayoutDirectionChange)
        Q_EMIT refreshConfig();
}
