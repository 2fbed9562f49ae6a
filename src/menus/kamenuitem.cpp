#include "kamenuitem.h"

#include "kabadge.h"
#include "kadiscoverabilitylabel.h"
#include "kaemojilabel.h"
#include "kamenuitemdata.h"
#include "kasvglabel.h"

#include <bzfont.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace {

const QString kTickIcon = QStringLiteral("qrc:/Resources/check-regular.svg");
const QString kChevron = QStringLiteral("qrc:/Resources/arrow-%1-bold.svg");
constexpr int kSubTextMaximumWidth = 264;

// Parts along the row, in layout order; the title column sits at Column.
enum Part : int { InfoIcon = 0, LeftText, Column, Badge, Discoverability, ActionIcon };

QString partName(Part part) {
    switch (part) {
    case InfoIcon:
        return QStringLiteral("leftIcon");
    case LeftText:
        return QStringLiteral("leftText");
    case Column:
        return QStringLiteral("title");
    case Badge:
        return QStringLiteral("badge");
    case Discoverability:
        return QStringLiteral("discoverabilityLabel");
    case ActionIcon:
        return QStringLiteral("actionIcon");
    }
    return QString();
}

// One menu item for screen readers, whatever parts it shows: the parts are
// pictures and texts the name and description already carry, so they are
// left out of the tree.
class KaMenuItemAccessible : public QAccessibleWidget {
public:
    explicit KaMenuItemAccessible(KaMenuItem* item)
        : QAccessibleWidget(item, QAccessible::MenuItem) {}

    KaMenuItem* item() const { return static_cast<KaMenuItem*>(widget()); }

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) {
            const QString name = widget()->accessibleName();
            return name.isEmpty() ? item()->title() : name;
        }
        if (t == QAccessible::Description) {
            const QString description = widget()->accessibleDescription();
            return description.isEmpty() ? item()->subText() : description;
        }
        return QAccessibleWidget::text(t);
    }

    QAccessible::State state() const override {
        QAccessible::State st = QAccessibleWidget::state();
        st.focusable = false;
        st.checkable = item()->isCheckable();
        st.checked = item()->isCheckable() && item()->isChecked();
        st.hotTracked = item()->isHoverState();
        return st;
    }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* item = qobject_cast<KaMenuItem*>(object); item && item->isWidgetType())
        return new KaMenuItemAccessible(item);
    return nullptr;
}

// Clamps an enumeration value into its table, with a warning.
template <typename Enum> Enum clampEnum(Enum value, const char* what) {
    const QMetaEnum meta = QMetaEnum::fromType<Enum>();
    if (meta.valueToKey(int(value)))
        return value;
    const int low = meta.value(0);
    const int high = meta.value(meta.keyCount() - 1);
    const int clamped = qBound(low, int(value), high);
    qWarning("KaMenuItem: %d is not a %s; using %d", int(value), what, clamped);
    return Enum(clamped);
}

void notifyState(QWidget* widget, void (*mark)(QAccessible::State&)) {
    QAccessible::State changed;
    mark(changed);
    QAccessibleStateChangeEvent event(widget, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

KaMenuItem::KaMenuItem(QWidget* parent)
    : BzWidget(parent)
    , m_config(std::make_shared<KaMenuItemConfig>()) {
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    setObjectName(QStringLiteral("KaMenuItem"));
    // The menu draws the keyboard focus on its active entry.
    setFocusPolicy(Qt::NoFocus);
    setMinimumWidth(m_config->defaultMinimumWidth());

    m_outer = new QHBoxLayout(this);
    m_inner = new QVBoxLayout;
    m_title = new KaEmojiLabel(this);
    m_title->setObjectName(partName(Column));
    // As wide as the text asks, up to the entry's maximum width; beyond it
    // the title is elided.
    m_title->setElideMode(Qt::ElideRight);
    m_title->setMinimumWidth(1);
    m_inner->addWidget(m_title);
    m_outer->addLayout(m_inner, 1);

    onLayoutDirectionChanged();
    refresh();
}

KaMenuItem::KaMenuItem(const QString& title, QWidget* parent)
    : KaMenuItem(parent) {
    setTitle(title);
}

KaMenuItem::~KaMenuItem() = default;

void KaMenuItem::applyData(const KaMenuItemData& record) {
    if (!record.objectName.isEmpty())
        setObjectName(record.objectName);
    setAccessibleName(record.accessibleName);
    setToolTip(record.tooltip);
    setTitle(record.title);
    setSubText(record.subText);
    setLeftText(record.leftText);
    setLeftTextColorSet(record.leftTextColorSet);
    setInfoIcon(record.leftIcon);
    setInfoIconColorSet(record.leftIconColorSet);
    if (!record.rightIcon.isEmpty())
        setActionIcon(record.rightIcon);
    setActionIconColorSet(record.rightIconColorSet);
    setActionIconTooltip(record.rightIconTooltip);
    setBadgeText(record.badgeText);
    setDiscoverabilityLabel(record.showDiscoverabilityLabel, record.labelType);
    setCheckable(record.checkable);
    setChecked(record.checked);
    setAlert(record.isAlert);
    setDisabledState(!record.enabled);
    setDefaultMiniWidth(record.minimumWidth);
    setDefaultMaxWidth(record.maximumWidth);
    setPopupText(record.popupText);
    setPopupDirection(record.popupDirection);
}

template <typename Setter, typename Value> void KaMenuItem::writeConfig(Setter setter, const Value& value) {
    if (((*m_config).*setter)(value))
        refresh();
}

QString KaMenuItem::title() const {
    return m_title->text();
}

void KaMenuItem::setTitle(const QString& title) {
    if (title == m_title->text())
        return;
    m_title->setText(title);
    Q_EMIT titleChanged();
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void KaMenuItem::setSubText(const QString& text) {
    if (text == m_subTextValue)
        return;
    m_subTextValue = text;
    if (!text.isEmpty() || m_subText) {
        KaEmojiLabel* label = ensureSubText();
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
    writeConfig(&KaMenuItemConfig::setHasSubText, !text.isEmpty());
    Q_EMIT subTextChanged();
}

void KaMenuItem::setLeftText(const QString& text) {
    if (text == m_leftTextValue)
        return;
    m_leftTextValue = text;
    if (!text.isEmpty() || m_leftText) {
        KaLabelBase* label = ensureLeftText();
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
    Q_EMIT leftTextChanged();
}

void KaMenuItem::setLeftPixmap(const QPixmap& pixmap) {
    if (pixmap.cacheKey() == m_leftPixmap.cacheKey())
        return;
    m_leftPixmap = pixmap;
    updateInfoIcon();
}

void KaMenuItem::setInfoIcon(const QString& path) {
    if (path == m_infoIconPath)
        return;
    m_infoIconPath = path;
    updateInfoIcon();
    Q_EMIT infoIconChanged();
}

void KaMenuItem::setActionIcon(const QString& path) {
    if (path == m_actionIconPath)
        return;
    m_actionIconPath = path;
    if (path.isEmpty())
        onLayoutDirectionChanged();
    else
        m_actionIconVisible = true;
    updateActionIcon();
    Q_EMIT actionIconChanged();
}

void KaMenuItem::setInfoIconColorSet(const QString& name) {
    writeConfig(&KaMenuItemConfig::setInfoIconColorSet, name);
}

void KaMenuItem::setActionIconColorSet(const QString& name) {
    writeConfig(&KaMenuItemConfig::setActionIconColorSet, name);
}

void KaMenuItem::setActionIconTooltip(const QString& tooltip) {
    if (tooltip == m_actionIconTooltip)
        return;
    m_actionIconTooltip = tooltip;
    if (m_actionIcon)
        m_actionIcon->setToolTip(tooltip);
}

void KaMenuItem::setActionIconVisible(bool visible) {
    if (visible == m_actionIconVisible)
        return;
    m_actionIconVisible = visible;
    updateActionIcon();
}

bool KaMenuItem::isActionIconVisible() const {
    return m_actionIconVisible;
}

void KaMenuItem::setBadgeText(const QString& text) {
    if (text == m_badgeTextValue)
        return;
    m_badgeTextValue = text;
    if (!text.isEmpty() || m_badge) {
        KaBadge* badge = ensureBadge();
        if (!text.isEmpty())
            badge->setText(text);
        badge->setVisible(!text.isEmpty());
    }
    Q_EMIT badgeTextChanged();
}

void KaMenuItem::setDiscoverabilityLabel(bool show, KaDiscoverabilityEnum::DiscoverabilityLabelType type) {
    m_discoverabilityShown = show;
    if (!show && !m_discoverability)
        return;
    KaDiscoverabilityLabel* label = ensureDiscoverabilityLabel();
    if (show)
        label->setLabelType(type);
    label->setVisible(show);
}

bool KaMenuItem::isAlert() const {
    return m_config->isAlert();
}

void KaMenuItem::setAlert(bool alert) {
    if (alert == m_config->isAlert())
        return;
    writeConfig(&KaMenuItemConfig::setAlert, alert);
    Q_EMIT alertChanged();
}

bool KaMenuItem::isDisabledState() const {
    return m_config->isDisabled();
}

void KaMenuItem::setDisabledState(bool disabled) {
    writeConfig(&KaMenuItemConfig::setDisabled, disabled);
    // The parts paint their disabled colours while disabled.
    if (isEnabled() == disabled)
        setEnabled(!disabled);
}

bool KaMenuItem::isHoverState() const {
    return m_config->isHovered();
}

void KaMenuItem::setHoverState(bool hovered) {
    if (hovered == m_config->isHovered())
        return;
    writeConfig(&KaMenuItemConfig::setHovered, hovered);
    notifyState(this, [](QAccessible::State& s) { s.hotTracked = true; });
}

void KaMenuItem::setCheckable(bool checkable) {
    if (checkable == m_checkable)
        return;
    m_checkable = checkable;
    writeConfig(&KaMenuItemConfig::setMarked, m_checkable && m_checked);
    updateInfoIcon();
    Q_EMIT checkableChanged();
}

void KaMenuItem::setChecked(bool checked) {
    if (checked == m_checked)
        return;
    m_checked = checked;
    writeConfig(&KaMenuItemConfig::setMarked, m_checkable && m_checked);
    updateInfoIcon();
    Q_EMIT checkedChanged();
    notifyState(this, [](QAccessible::State& s) { s.checked = true; });
}

QString KaMenuItem::getTitleColorSet() const {
    return m_config->titleColorSet();
}

void KaMenuItem::setTitleColorSet(const QString& name) {
    writeConfig(&KaMenuItemConfig::setTitleColorSet, name);
}

QString KaMenuItem::leftTextColorSet() const {
    return m_config->leftTextColorSet();
}

void KaMenuItem::setLeftTextColorSet(const QString& name) {
    writeConfig(&KaMenuItemConfig::setLeftTextColorSet, name);
}

int KaMenuItem::getTitleFontToken() const {
    return m_config->titleFontToken();
}

void KaMenuItem::setTitleFontToken(int token) {
    if (token < 0 || token >= BzFont::TokenCount) {
        qWarning("KaMenuItem: %d is not a font token; ignored", token);
        return;
    }
    writeConfig(&KaMenuItemConfig::setTitleFontToken, token);
}

int KaMenuItem::defaultMiniWidth() const {
    return m_config->defaultMinimumWidth();
}

void KaMenuItem::setDefaultMiniWidth(int width) {
    if (width < 0) {
        qWarning("KaMenuItem: negative minimum width %d; ignored", width);
        return;
    }
    writeConfig(&KaMenuItemConfig::setDefaultMinimumWidth, width);
}

int KaMenuItem::defaultMaxWidth() const {
    return m_config->defaultMaximumWidth();
}

void KaMenuItem::setDefaultMaxWidth(int width) {
    if (width < 0) {
        qWarning("KaMenuItem: negative maximum width %d; ignored", width);
        return;
    }
    writeConfig(&KaMenuItemConfig::setDefaultMaximumWidth, width);
}

KaMenuEnum::Size KaMenuItem::size() const {
    return m_config->size();
}

void KaMenuItem::setSize(KaMenuEnum::Size size) {
    size = clampEnum(size, "KaMenuEnum::Size");
    if (size == m_config->size())
        return;
    writeConfig(&KaMenuItemConfig::setSize, size);
    Q_EMIT sizeChanged();
}

KaMenuEnum::Style KaMenuItem::style() const {
    return m_config->style();
}

void KaMenuItem::setStyle(KaMenuEnum::Style style) {
    style = clampEnum(style, "KaMenuEnum::Style");
    if (style == m_config->style())
        return;
    writeConfig(&KaMenuItemConfig::setStyle, style);
    Q_EMIT styleChanged();
}

void KaMenuItem::setPopupText(const QString& text) {
    m_popupText = text;
}

void KaMenuItem::setPopupOffset(const QPoint& offset) {
    m_popupOffset = offset;
}

void KaMenuItem::setPopupDirection(KaWidgetData::ArrowPostion direction) {
    if (direction > KaWidgetData::ArrowNone) {
        qWarning("KaMenuItem: %d is not an arrow position; ignored", int(direction));
        return;
    }
    m_popupDirection = direction;
}

void KaMenuItem::setObjectNames(const QString& name, unsigned index) {
    setObjectName(name);
    m_partPrefix = name;
    m_partSuffix = QString::number(index);
    nameParts();
}

void KaMenuItem::nameParts() {
    const auto rename = [this](QWidget* part, Part which) {
        if (!part)
            return;
        part->setObjectName(
            m_partPrefix.isEmpty()
                ? partName(which)
                : QStringLiteral("%1_%2_%3").arg(m_partPrefix, partName(which), m_partSuffix));
    };
    rename(m_infoIcon, InfoIcon);
    rename(m_leftText, LeftText);
    rename(m_title, Column);
    rename(m_subText, Column);
    if (m_subText)
        m_subText->setObjectName(
            m_subText->objectName().replace(partName(Column), QStringLiteral("subText")));
    rename(m_badge, Badge);
    rename(m_discoverability, Discoverability);
    rename(m_actionIcon, ActionIcon);
}

void KaMenuItem::refresh() {
    const KaMenuItemConfig::Layout l = m_config->layout();
    m_title->setFontToken(l.titleFontToken, false);
    m_title->setTextColorSetName(l.titleColorSet);
    if (m_subText) {
        m_subText->setFontToken(l.subTextFontToken, false);
        m_subText->setTextColorSetName(l.subTextColorSet);
    }
    if (m_leftText) {
        m_leftText->setFontToken(l.leftTextFontToken, false);
        BzCSSData record;
        record.textColorSet = l.leftTextColorSet;
        m_leftText->setCSS(record);
    }
    if (m_infoIcon) {
        m_infoIcon->setSvgIconColorSet(l.infoIconColorSet);
        m_infoIcon->setSvgIconSize(l.iconSize);
        m_infoIcon->setFixedSize(l.iconSize);
    }
    if (m_actionIcon) {
        m_actionIcon->setSvgIconColorSet(l.actionIconColorSet);
        m_actionIcon->setSvgIconSize(l.iconSize);
        m_actionIcon->setFixedSize(l.iconSize);
    }
    m_outer->setContentsMargins(l.outerMargins);
    m_outer->setSpacing(l.outerSpacing);
    m_inner->setContentsMargins(l.innerMargins);
    m_inner->setSpacing(l.innerSpacing);
    setFixedHeight(l.fixedHeight);
    setMinimumWidth(l.minimumWidth);
    setMaximumWidth(qMax(l.minimumWidth, l.maximumWidth));
}

// The entry's side, not the text's: a plain-text label would otherwise align
// Latin text left in a right-to-left menu, as QLabel does.
static Qt::Alignment leadingSide(const QWidget* item) {
    return (item->layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
           Qt::AlignVCenter;
}

void KaMenuItem::onLayoutDirectionChanged() {
    m_title->setAlignment(leadingSide(this));
    if (m_subText)
        m_subText->setAlignment(leadingSide(this));
    // Our own chevrons point to the trailing side; a custom icon stays.
    static const QRegularExpression ownArrow(QStringLiteral("(arrow-left-|arrow-right-)"));
    if (!m_actionIconPath.isEmpty() && !m_actionIconPath.contains(ownArrow))
        return;
    const QString chevron =
        kChevron.arg(layoutDirection() == Qt::RightToLeft ? QStringLiteral("left") : QStringLiteral("right"));
    if (chevron == m_actionIconPath)
        return;
    m_actionIconPath = chevron;
    if (m_actionIcon)
        m_actionIcon->setSvgIcon(chevron);
    Q_EMIT actionIconChanged();
}

void KaMenuItem::onHover() {
    Q_EMIT hovered();
}

bool KaMenuItem::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
        onHover();
        break;
    case QEvent::LayoutDirectionChange:
        onLayoutDirectionChanged();
        break;
    case QEvent::EnabledChange:
        writeConfig(&KaMenuItemConfig::setDisabled, !isEnabled());
        break;
    default:
        break;
    }
    return BzWidget::event(event);
}

void KaMenuItem::updateInfoIcon() {
    const bool marked = m_checkable && m_checked;
    // An unchecked checkable entry keeps the place of the tick empty.
    const bool shown = marked || m_checkable || !m_infoIconPath.isEmpty() || !m_leftPixmap.isNull();
    if (!shown && !m_infoIcon)
        return;
    KaSvgLabel* icon = ensureInfoIcon();
    const bool pixmap = !marked && !m_leftPixmap.isNull();
    icon->setSvgIcon(marked ? kTickIcon : (pixmap ? QString() : m_infoIconPath));
    if (pixmap)
        icon->setPixmap(m_leftPixmap);
    else
        icon->clear();
    icon->setVisible(shown);
}

void KaMenuItem::updateActionIcon() {
    if (!m_actionIconVisible && !m_actionIcon)
        return;
    KaSvgLabel* icon = ensureActionIcon();
    icon->setSvgIcon(m_actionIconPath);
    icon->setVisible(m_actionIconVisible);
}

int KaMenuItem::insertIndexFor(int part) const {
    // The row holds the parts that exist, in their fixed order; the title
    // column always does.
    const bool exists[] = {bool(m_infoIcon), bool(m_leftText),        true,
                           bool(m_badge),    bool(m_discoverability), bool(m_actionIcon)};
    int index = 0;
    for (int which = 0; which < part; ++which)
        index += exists[which] ? 1 : 0;
    return index;
}

KaSvgLabel* KaMenuItem::ensureInfoIcon() {
    if (m_infoIcon)
        return m_infoIcon;
    auto* icon = new KaSvgLabel(this);
    m_outer->insertWidget(insertIndexFor(InfoIcon), icon);
    m_infoIcon = icon;
    nameParts();
    refresh();
    return icon;
}

KaLabelBase* KaMenuItem::ensureLeftText() {
    if (m_leftText)
        return m_leftText;
    auto* label = new KaLabelBase(this);
    label->setAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_outer->insertWidget(insertIndexFor(LeftText), label);
    m_leftText = label;
    nameParts();
    refresh();
    return label;
}

KaEmojiLabel* KaMenuItem::ensureSubText() {
    if (m_subText)
        return m_subText;
    auto* label = new KaEmojiLabel(this);
    label->setAlignment(leadingSide(this));
    label->setWordWrap(false);
    label->setElideMode(Qt::ElideRight);
    label->setMinimumWidth(1);
    label->setMaximumWidth(kSubTextMaximumWidth);
    // Aligned, so that its maximum width does not cap the title's.
    m_inner->addWidget(label, 0, Qt::AlignLeading);
    m_subText = label;
    nameParts();
    refresh();
    return label;
}

KaBadge* KaMenuItem::ensureBadge() {
    if (m_badge)
        return m_badge;
    auto* badge = new KaBadge(this);
    m_outer->insertWidget(insertIndexFor(Badge), badge, 0, Qt::AlignVCenter);
    m_badge = badge;
    nameParts();
    return badge;
}

KaDiscoverabilityLabel* KaMenuItem::ensureDiscoverabilityLabel() {
    if (m_discoverability)
        return m_discoverability;
    auto* label = new KaDiscoverabilityLabel(this);
    m_outer->insertWidget(insertIndexFor(Discoverability), label, 0, Qt::AlignVCenter);
    m_discoverability = label;
    nameParts();
    return label;
}

KaSvgLabel* KaMenuItem::ensureActionIcon() {
    if (m_actionIcon)
        return m_actionIcon;
    auto* icon = new KaSvgLabel(this);
    icon->setToolTip(m_actionIconTooltip);
    m_outer->insertWidget(insertIndexFor(ActionIcon), icon);
    m_actionIcon = icon;
    nameParts();
    refresh();
    return icon;
}
