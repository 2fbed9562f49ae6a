#include "kacomboboxbase.h"

#include "kafocusstyle.h"
#include "kascrollbarutils.h"

#include <apputils.h>
#include <bzscaledfont.h>
#include <bzthememanager.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QFocusEvent>
#include <QFrame>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTimer>
#include <QToolTip>

namespace {

constexpr int kFocusToolTipDelayMs = 200;
constexpr int kFrameRadius = 6;
// Rows described per pass over the visible part of the list; a list taller
// than this many rows on screen is beyond any real popup.
constexpr int kMaxVisibleRows = 256;

const char kRecordHeader[] = "/*bz-css";

bool isKeyboardFocus() {
    return qApp && qApp->property("isKeyboardFocus").toBool();
}

QString px(int value) {
    return QString::number(value) + QLatin1String("px");
}

// Named by its accessible name like any other control (Qt's own interface
// names a combo box after its current text); the value is the current text,
// and the list is its one child.
class KaComboBoxAccessible : public QAccessibleWidget {
public:
    explicit KaComboBoxAccessible(KaComboBoxBase* combo)
        : QAccessibleWidget(combo, QAccessible::ComboBox) {}

    KaComboBoxBase* combo() const { return static_cast<KaComboBoxBase*>(widget()); }

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(combo()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child->object() == combo()->view() ? 0 : -1;
    }
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Value)
            return combo()->currentText();
        const QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            return combo()->currentText();
        return text;
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.expandable = combo()->showPopupEnabled();
        s.expanded = combo()->isExpanded();
        s.collapsed = !combo()->isExpanded();
        s.editable = combo()->isEditable();
        return s;
    }
    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString& name) override {
        if (name != showMenuAction() && name != pressAction())
            return;
        if (combo()->isExpanded())
            combo()->hidePopup();
        else
            combo()->showPopup();
    }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* combo = qobject_cast<KaComboBoxBase*>(object))
        return new KaComboBoxAccessible(combo);
    return nullptr;
}

} // namespace

KaComboBoxBase::KaComboBoxBase(QWidget* parent)
    : QComboBox(parent) {
    static const bool accessibleFactoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(accessibleFactoryInstalled)
    // The style sheet names the widget by object name.
    if (objectName().isEmpty())
        setObjectName(QStringLiteral("KaComboBoxBase"));
    QComboBox::setFont(BzFont(BzFont::Body, false));
    updateFont();
    // The focus ring follows the frame's corners.
    setProperty("focusBorderRadius", kFrameRadius);

    const BzThemeUtils::AppThemeType type = themeTypeValue();
    m_backgroundColorSet = BzThemeUtils::getColorSet("kv-orbis-combobox-background", type);
    m_borderColorSet = BzThemeUtils::getColorSet("kv-orbis-combobox-border", type);
    m_textColorSet = BzThemeUtils::getColorSet("kv-orbis-combobox-text", type);
    m_arrowColorSet = BzThemeUtils::getColorSet("kv-orbis-combobox-dropdown-arrow", type);

    m_arrowIcon =
        BzSvgIcon(QStringLiteral(":/Resources/arrow-down_8.svg"), m_textColorSet.name(), QSize(12, 12));
    m_arrowIconExpanded =
        BzSvgIcon(QStringLiteral(":/Resources/arrow-up_8.svg"), m_textColorSet.name(), QSize(12, 12));
    m_arrowIconColors = m_textColorSet;
    m_arrowIconExpandedColors = m_textColorSet;

    if (QWidget* popup = view()->window(); popup != window()) {
        popup->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
        popup->setProperty("themeType", m_themeType);
    }
    installViewFilters();
    installEventFilter(this);

    m_focusToolTipTimer = new QTimer(this);
    m_focusToolTipTimer->setSingleShot(true);
    m_focusToolTipTimer->setInterval(kFocusToolTipDelayMs);
    connect(m_focusToolTipTimer, &QTimer::timeout, this, &KaComboBoxBase::showComboToolTip);

    connect(this, &QComboBox::highlighted, this, &KaComboBoxBase::onHighlighted);
    connect(this, &QComboBox::currentTextChanged, this, &KaComboBoxBase::onCurrentTextChanged);
    connect(this, &KaComboBoxBase::themeTypeChanged, this, &KaComboBoxBase::onThemeChanged);
    connectParentThemeType();

    applyCustomCSS();
    setPopupAccessibleDescription(QString());
    // A parent that already carries a theme type is followed from the start.
    onParentThemeTypeChanged();
}

KaComboBoxBase::~KaComboBoxBase() = default;

BzThemeUtils::AppThemeType KaComboBoxBase::themeTypeValue() const {
    return BzThemeUtils::getThemeTypeOfWidget(this);
}

void KaComboBoxBase::setCSS(const QString& css) {
    m_css = css;
    if (!m_applyingCustomCSS)
        m_appliedKey.clear();
    const BzThemeUtils::AppThemeType type = themeTypeValue();
    const BzCSSData parsed = BzThemeUtils::parseCSS(this, css, BzThemeUtils::getAppWColorSets());
    for (int i = 0; i < BzCSSData::SwitchCount; ++i)
        m_cssSwitches[size_t(i)] = parsed.switches[size_t(i)] != 0;
    if (!parsed.backgroundColorSet.isEmpty())
        m_backgroundColorSet = BzThemeUtils::getColorSet(parsed.backgroundColorSet, type);
    if (!parsed.borderColorSet.isEmpty())
        m_borderColorSet = BzThemeUtils::getColorSet(parsed.borderColorSet, type);
    if (!parsed.textColorSet.isEmpty())
        m_textColorSet = BzThemeUtils::getColorSet(parsed.textColorSet, type);
    m_cssData = parsed;

    // A record is painted through Qt's style-sheet engine: its colour sets
    // become a rule for this widget, its extra text follows as it is.
    const QString sheet =
        css.startsWith(QLatin1String(kRecordHeader)) ? buildFrameSheet(parsed) : parsed.styleSheet;
    if (QWidget::styleSheet() != sheet)
        QWidget::setStyleSheet(sheet);

    // Text colours go through the palette, so that the placeholder can
    // take its own colour when the label is drawn.
    QPalette palette = this->palette();
    const QColor text = m_textColorSet.normal();
    const QColor disabled = m_textColorSet.disabled();
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        palette.setColor(QPalette::Active, role, text);
        palette.setColor(QPalette::Inactive, role, text);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    const BzColorSet placeholder = BzThemeUtils::getColorSet("combobox-placeholder-text", type);
    palette.setColor(QPalette::Active, QPalette::PlaceholderText, placeholder.normal());
    palette.setColor(QPalette::Inactive, QPalette::PlaceholderText, placeholder.normal());
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, placeholder.disabled());
    if (palette != this->palette())
        setPalette(palette);

    Q_EMIT cssChanged();
    connect(this, &QObject::objectNameChanged, this, &KaComboBoxBase::refreshCSS, Qt::UniqueConnection);
}

void KaComboBoxBase::setCSS(const BzCSSData& record) {
    setCSS(BzThemeUtils::convertToWCSS(record));
}

QString KaComboBoxBase::buildFrameSheet(const BzCSSData& record) const {
    const QString selector = QLatin1String("KaComboBoxBase#") + objectName();
    const auto& sw = record.switches;
    const bool background = sw[BzCSSData::PaintBackground] != 0 && m_backgroundColorSet.isValid();
    const bool border = record.hasAnyBorder() && m_borderColorSet.isValid();
    const auto colour = [](const BzColorSet& set, BzColorSet::State state) {
        return BzThemeUtils::colorToCss(set.color(state));
    };
    const auto stateRule = [&](const char* pseudo, BzColorSet::State state) -> QString {
        QString rule = selector + QLatin1String(pseudo) + QLatin1String(" {");
        if (background)
            rule +=
                QLatin1String("background-color: ") + colour(m_backgroundColorSet, state) + QLatin1Char(';');
        if (border)
            rule += QLatin1String("border-color: ") + colour(m_borderColorSet, state) + QLatin1Char(';');
        return rule + QLatin1Char('}');
    };
    QString sheet = selector + QLatin1String(" {");
    const int radius = record.borderRadius > 0 ? record.borderRadius : kFrameRadius;
    sheet += QLatin1String("border-radius: ") + px(radius) + QLatin1Char(';');
    if (border) {
        const auto width = [&](BzCSSData::Switch s) {
            return px(sw[s] != 0 ? record.borderWidth : 0);
        };
        sheet += QLatin1String("border-style: solid; border-width: ") + width(BzCSSData::BorderTop) +
                 QLatin1Char(' ') + width(BzCSSData::BorderRight) + QLatin1Char(' ') +
                 width(BzCSSData::BorderBottom) + QLatin1Char(' ') + width(BzCSSData::BorderLeft) +
                 QLatin1Char(';');
    } else {
        sheet += QLatin1String("border: none;");
    }
    sheet += QLatin1Char('}');
    sheet += stateRule("", BzColorSet::Normal);
    sheet += stateRule(":hover", BzColorSet::Hovered);
    sheet += stateRule(":focus", BzColorSet::Focused);
    sheet += stateRule(":disabled", BzColorSet::Disabled);
    if (record.extraCSS.contains(QLatin1String("$(")))
        sheet += BzThemeUtils::resolveTemplate(record.extraCSS, themeTypeValue());
    else
        sheet += record.extraCSS;
    return sheet;
}

void KaComboBoxBase::refreshCSS() {
    setCSS(m_css);
}

void KaComboBoxBase::setStyleSheet(const QString& styleSheet) {
    if (m_css.isEmpty())
        m_css = styleSheet;
    QWidget::setStyleSheet(styleSheet);
}

void KaComboBoxBase::setThemeType(const QString& themeType) {
    if (m_themeType == themeType)
        return;
    m_themeType = themeType;
    if (QWidget* popup = view()->window(); popup != window())
        popup->setProperty("themeType", m_themeType);
    refreshCSS();
    Q_EMIT themeTypeChanged();
}

void KaComboBoxBase::setFontToken(BzFont::Token token, bool scaled) {
    m_fontToken = token;
    QComboBox::setFont(BzFont(token, scaled));
    updateFont();
}

void KaComboBoxBase::setFontType(FontManagerEnum::FontType type) {
    if (m_fontType == type)
        return;
    m_fontType = type;
    updateFont();
}

void KaComboBoxBase::updateFont() {
    if (m_scaledFontConnection)
        disconnect(m_scaledFontConnection);
    m_scaledFont.clear();
    if (m_fontType == FontManagerEnum::None || !BzFontManager::exists())
        return;
    BzScaledFont* scaled = BzFontManager::instance()->scaledFont(m_fontType, m_fontToken);
    if (!scaled)
        return;
    m_scaledFont = scaled;
    QComboBox::setFont(scaled->font());
    m_scaledFontConnection = connect(scaled, &BzScaledFont::fontTokenChanged, this, [this] {
        if (m_scaledFont)
            QComboBox::setFont(m_scaledFont->font());
    });
}

void KaComboBoxBase::setSvgDropdownIcon(const QString& path) {
    m_arrowIcon.setPath(path);
    Q_EMIT svgDropdownIconChanged(path);
    applyCustomCSS();
}

void KaComboBoxBase::setSvgDropDownIconExpanded(const QString& path) {
    m_arrowIconExpanded.setPath(path);
    Q_EMIT svgDropdownIconExpandedChanged(path);
    applyCustomCSS();
}

void KaComboBoxBase::setSvgDropdownIconSize(const QSize& size) {
    if (m_arrowIcon.size() == size && m_arrowIconExpanded.size() == size)
        return;
    if (!size.isValid() || size.isEmpty()) {
        qWarning("KaComboBoxBase::setSvgDropdownIconSize: empty size %dx%d ignored", size.width(),
                 size.height());
        return;
    }
    m_arrowIcon.setSize(size);
    m_arrowIconExpanded.setSize(size);
    Q_EMIT svgDropdownIconSizeChanged(size);
    applyCustomCSS();
    update();
}

void KaComboBoxBase::setSvgDropdownIconPaddingRight(int padding) {
    if (m_iconPadding == padding)
        return;
    if (padding < 0) {
        qWarning("KaComboBoxBase::setSvgDropdownIconPaddingRight: negative padding %d ignored", padding);
        return;
    }
    m_iconPadding = padding;
    Q_EMIT svgDropdownIconPaddingChanged(padding);
    applyCustomCSS();
}

void KaComboBoxBase::setItemViewBorderRadius(int radius) {
    if (m_itemViewBorderRadius == radius)
        return;
    m_itemViewBorderRadius = radius;
    applyCustomCSS();
}

void KaComboBoxBase::setItemViewDropdownOffset(const QPoint& offset) {
    if (m_dropdownOffset == offset)
        return;
    m_dropdownOffset = offset;
    applyCustomCSS();
}

void KaComboBoxBase::setLeftPadding(double padding) {
    const int value = int(padding);
    if (m_leftPadding == value)
        return;
    m_leftPadding = value;
    applyCustomCSS();
}

void KaComboBoxBase::setEditable(bool editable) {
    if (isEditable() == editable)
        return;
    QComboBox::setEditable(editable);
    // The style-sheet engine gives the new editor the application's font.
    if (QLineEdit* edit = lineEdit())
        edit->setFont(font());
    applyCustomCSS();
}

void KaComboBoxBase::setPopupBackgroundColor(const QString& colorSetName) {
    m_popupBackgroundColor = colorSetName;
}

void KaComboBoxBase::setSelectedBackgroundColor(const QString& colorSetName) {
    m_selectedBackgroundColor = colorSetName;
}

void KaComboBoxBase::setOpenedUpwards(bool upwards) {
    m_openedUpwards = upwards;
}

void KaComboBoxBase::setShowPopupEnabled(bool enabled) {
    m_showPopupEnabled = enabled;
}

void KaComboBoxBase::setComboBoxAnimationEnabled(bool enabled) {
    m_animateComboBox = enabled;
}

void KaComboBoxBase::setPopupItemIconSize(int size) {
    m_popupItemIconSize = size;
}

void KaComboBoxBase::setPopupAccessibleName(const QString& name) {
    view()->setAccessibleName(name);
}

void KaComboBoxBase::setPopupAccessibleDescription(const QString& description) {
    view()->setAccessibleDescription(tr("Expanded") + QLatin1Char(' ') + description);
}

void KaComboBoxBase::updateStyle() {
    m_arrowIcon.setColorSetName(m_textColorSet.name());
    m_arrowIconExpanded.setColorSetName(m_textColorSet.name());
    m_arrowIconColors = m_textColorSet;
    m_arrowIconExpandedColors = m_textColorSet;
    applyCustomCSS();
}

void KaComboBoxBase::setCssSwitch(int index, bool on) {
    if (index >= 0 && index < BzCSSData::SwitchCount)
        m_cssSwitches[size_t(index)] = on;
}

int KaComboBoxBase::dropDownWidth() const {
    return m_arrowIcon.size().width() + 2 * m_iconPadding;
}

void KaComboBoxBase::applyCustomCSS() {
    // Shown and hidden lists ask again; an unchanged look costs nothing.
    const QString key = objectName() + QLatin1Char('/') + m_themeType + QLatin1Char('/') +
                        QString::number(BzThemeManager::instance()->generation()) + QLatin1Char('/') +
                        m_backgroundColorSet.name() + QLatin1Char('/') + m_borderColorSet.name() +
                        QLatin1Char('/') + m_textColorSet.name() + QLatin1Char('/') + m_popupBackgroundColor +
                        QLatin1Char('/') + m_selectedBackgroundColor + QLatin1Char('/') +
                        QString::number(m_leftPadding) + QLatin1Char('/') + QString::number(m_iconPadding) +
                        QLatin1Char('/') + QString::number(m_arrowIcon.size().width()) + QLatin1Char('x') +
                        QString::number(m_arrowIcon.size().height()) + QLatin1Char('/') +
                        QString::number(m_itemViewBorderRadius) + QLatin1Char('/') +
                        QLatin1Char(m_cssSwitches[0] ? '1' : '0') + QLatin1Char(m_cssSwitches[1] ? '1' : '0');
    if (key == m_appliedKey) {
        update();
        return;
    }
    m_appliedKey = key;
    const QString name = objectName();
    const QSize iconSize = m_arrowIcon.size();
    QString sheet;
    sheet.reserve(400);
    sheet += QLatin1String("KaComboBoxBase#") + name + QLatin1String(" {");
    sheet += QLatin1String("combobox-popup: 0;");
    sheet += QLatin1String("padding-left: ") + QString::number(m_leftPadding) + QLatin1String("px;");
    sheet += QLatin1String("padding-right: 4px;");
    sheet += QLatin1String("}");
    sheet += QLatin1String("KaComboBoxBase::drop-down {");
    sheet += QLatin1String("background-color: transparent; ");
    sheet += QLatin1String("width: ") + QString::number(dropDownWidth()) + QLatin1String("px;");
    sheet += QLatin1String("padding-left: ") + QString::number(m_iconPadding) + QLatin1String("px;");
    sheet += QLatin1String("padding-right: ") + QString::number(m_iconPadding) + QLatin1String("px;");
    sheet += QLatin1String("}");
    sheet += QLatin1String("KaComboBoxBase#") + name + QLatin1String("::down-arrow {");
    sheet += QLatin1String("width: ") + QString::number(iconSize.width()) + QLatin1String("px;");
    // Kept without a colon: the arrow is painted by the widget itself.
    sheet += QLatin1String("height ") + QString::number(iconSize.height()) + QLatin1String("px; ");
    sheet += QLatin1String("}");

    if (QAbstractItemView* list = view()) {
        const BzThemeUtils::AppThemeType type = themeTypeValue();
        list->setObjectName(QStringLiteral("orbisAstractItemView"));
        const QColor popupBackground = m_popupBackgroundColor.isEmpty()
                                           ? m_backgroundColorSet.normal()
                                           : BzThemeUtils::getColorSet(m_popupBackgroundColor, type).normal();
        QString viewSheet;
        viewSheet.reserve(1200);
        viewSheet += QLatin1String("QAbstractItemView#orbisAstractItemView {");
        viewSheet += QLatin1String("background-color: ") + BzThemeUtils::colorToCss(popupBackground) +
                     QLatin1Char(';');
        if (!m_selectedBackgroundColor.isEmpty())
            viewSheet += QLatin1String("selection-background-color: ") +
                         BzThemeUtils::colorToCss(
                             BzThemeUtils::getColorSet(m_selectedBackgroundColor, type).normal()) +
                         QLatin1Char(';');
        viewSheet +=
            QLatin1String("border-radius: ") + QString::number(m_itemViewBorderRadius) + QLatin1String("px;");
        viewSheet += QLatin1String("border: ") + QString::number(1) + QLatin1String("px solid ") +
                     BzThemeUtils::colorToCss(m_borderColorSet.normal()) + QLatin1Char(';');
        viewSheet +=
            QLatin1String("color: ") + BzThemeUtils::colorToCss(m_textColorSet.normal()) + QLatin1Char(';');
        viewSheet += QLatin1String("}");
        viewSheet += KaScrollbarUtils::getScrollBarStyleSheet(KaScrollbarEnum::Normal, type, Qt::Vertical);
        // Re-polishing a list costs as much as restyling the combo itself:
        // a closed list takes its new look when it opens next.
        m_pendingViewSheet = viewSheet;
        if (list->isVisible() || list->styleSheet().isEmpty())
            applyViewSheet();
    }

    BzCSSData record;
    record.backgroundColorSet = m_backgroundColorSet.name();
    record.borderColorSet = m_borderColorSet.name();
    record.textColorSet = m_textColorSet.name();
    for (int i = 0; i < BzCSSData::SwitchCount; ++i)
        record.switches[size_t(i)] = m_cssSwitches[size_t(i)] ? 1 : 0;
    record.borderRadius = kFrameRadius;
    record.extraCSS = sheet;
    m_applyingCustomCSS = true;
    setCSS(record);
    m_applyingCustomCSS = false;
    update();
}

void KaComboBoxBase::applyViewSheet() {
    QAbstractItemView* list = view();
    if (!list || m_pendingViewSheet.isEmpty())
        return;
    if (list->styleSheet() != m_pendingViewSheet) {
        list->setStyleSheet(m_pendingViewSheet);
        list->style()->unpolish(list);
        list->style()->polish(list);
    }
    m_pendingViewSheet.clear();
}

void KaComboBoxBase::installViewFilters() {
    QAbstractItemView* list = view();
    if (!list || m_filteredView == list)
        return;
    m_filteredView = list;
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    list->setProperty("focusBorderRadius", 8);
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &KaComboBoxBase::updateVisibleRowTexts);
}

void KaComboBoxBase::onThemeChanged() {
    const BzThemeUtils::AppThemeType type = themeTypeValue();
    if (!m_arrowIcon.colorSetName().isEmpty())
        m_arrowIconColors = BzThemeUtils::getColorSet(m_arrowIcon.colorSetName(), type);
    if (!m_arrowIconExpanded.colorSetName().isEmpty())
        m_arrowIconExpandedColors = BzThemeUtils::getColorSet(m_arrowIconExpanded.colorSetName(), type);
    if (QWidget* popup = view()->window(); popup != window())
        popup->setProperty("themeType", m_themeType);
    applyCustomCSS();
}

void KaComboBoxBase::onParentThemeTypeChanged() {
    QWidget* parent = parentWidget();
    QVariant value = parent ? parent->property("themeType") : QVariant();
    if (!value.isValid() || value.toString().isEmpty()) {
        QWidget* top = window();
        value = top && top != this ? top->property("themeType") : QVariant();
    }
    if (!value.isValid() || value.toString().isEmpty())
        return;
    const QString theme = value.toString();
    if (BzThemeUtils::stringToThemeType(theme) == BzThemeUtils::stringToThemeType(m_themeType))
        return;
    m_themeType = theme;
    if (QWidget* popup = view()->window(); popup != window())
        popup->setProperty("themeType", m_themeType);
    refreshCSS();
    Q_EMIT themeTypeChanged();
}

void KaComboBoxBase::connectParentThemeType() {
    if (m_parentThemeConnection)
        disconnect(m_parentThemeConnection);
    m_parentThemeConnection = BzThemeUtils::connectParentThemeType(parentWidget(), this);
}

void KaComboBoxBase::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange && lineEdit())
        lineEdit()->setFont(font());
    if (event->type() == QEvent::ParentChange) {
        connectParentThemeType();
        onParentThemeTypeChanged();
    }
    QComboBox::changeEvent(event);
}

void KaComboBoxBase::showEvent(QShowEvent* event) {
    applyCustomCSS();
    QComboBox::showEvent(event);
}

QSize KaComboBoxBase::sizeHint() const {
    QSize hint = QComboBox::sizeHint();
    if (sizeAdjustPolicy() != QComboBox::AdjustToContents || !model() || !itemDelegate())
        return hint;
    QStyleOptionViewItem option;
    option.initFrom(view());
    int widest = 0;
    const int rows = model()->rowCount(rootModelIndex());
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model()->index(row, modelColumn(), rootModelIndex());
        widest = std::max(widest, itemDelegate()->sizeHint(option, index).width());
    }
    hint.setWidth(std::max(hint.width(), widest + 4));
    return hint;
}

void KaComboBoxBase::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
    if (currentIndex() < 0 && !placeholderText().isEmpty()) {
        // The style sheet engine draws the label with Text, others with ButtonText.
        option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
        option.palette.setBrush(QPalette::Text, option.palette.placeholderText());
        option.currentText = placeholderText();
    }
    const QRect editRect =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        painter.fontMetrics().elidedText(option.currentText, Qt::ElideRight, editRect.width());
    style()->drawControl(QStyle::CE_ComboBoxLabel, &option, &painter, this);
    drawDropdownIcon(&painter, option);
    if ((option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_KeyboardFocusChange) &&
        isKeyboardFocus()) {
        KaFocusStyle::requestRing(this, &painter);
    }
}

void KaComboBoxBase::drawDropdownIcon(QPainter* painter, const QStyleOptionComboBox& option) {
    const BzSvgIcon& icon = m_expanded ? m_arrowIconExpanded : m_arrowIcon;
    const BzColorSet& colours = m_expanded ? m_arrowIconExpandedColors : m_arrowIconColors;
    const QSize size = icon.size();
    const int x = AppUtils::isRTLLayoutDirection(this) ? 2 * m_iconPadding : width() - dropDownWidth();
    const int y = (height() - size.height()) / 2;
    icon.paint(painter, QRectF(QPointF(x, y), QSizeF(size)), colours.colorFor(option.state));
}

void KaComboBoxBase::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        QRect area = rect();
        if (m_showPopupEnabled) {
            if (AppUtils::isRTLLayoutDirection(this))
                area.setLeft(dropDownWidth());
            else
                area.setRight(width() - dropDownWidth() - 1);
        }
        if (area.contains(event->position().toPoint()))
            Q_EMIT contentAreaClicked(event);
    }
    if (m_showPopupEnabled)
        QComboBox::mousePressEvent(event);
    else
        event->accept();
}

bool KaComboBoxBase::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this)
        return filterOwnEvent(event);
    QAbstractItemView* list = view();
    if (list && watched == list)
        return filterViewEvent(event);
    if (list && watched == list->viewport() && event->type() == QEvent::ToolTip) {
        // Describe the row under the pointer before the view reads its tooltip.
        const auto* help = static_cast<QHelpEvent*>(event);
        updateRowTexts(list->indexAt(help->pos()).row());
    }
    return QComboBox::eventFilter(watched, event);
}

bool KaComboBoxBase::filterOwnEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (!(key->modifiers() & Qt::AltModifier) || !m_showPopupEnabled)
            return false;
        // Accepted, the key arrives as a key press: Alt+Down opens the list
        // through QComboBox, Alt+Up below.
        if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Up) {
            key->accept();
            return true;
        }
        return false;
    }
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Up && (key->modifiers() & Qt::AltModifier)) {
            // QComboBox would move to the previous row instead.
            showPopup();
            return true;
        }
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && !isEditable()) {
            showPopup();
            return true;
        }
        return false;
    }
    case QEvent::FocusIn:
        m_focusToolTipTimer->start();
        return false;
    case QEvent::FocusOut:
        m_focusToolTipTimer->stop();
        if (QToolTip::isVisible())
            QToolTip::hideText();
        return false;
    default:
        return false;
    }
}

bool KaComboBoxBase::filterViewEvent(QEvent* event) {
    QAbstractItemView* list = view();
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        m_expanded = list->isVisible();
        applyCustomCSS();
        return false;
    case QEvent::ShortcutOverride: {
        auto* key = static_cast<QKeyEvent*>(event);
        if ((key->modifiers() & Qt::AltModifier) &&
            (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            // The key press that follows reaches the list and closes it
            // there; closing now would hand it to the combo, which opens
            // the list again.
            key->accept();
            return true;
        }
        return false;
    }
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (!m_showPopupEnabled) {
            Q_EMIT contentAreaClicked(nullptr);
            return false;
        }
        if ((key->modifiers() & Qt::AltModifier) &&
            (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            hidePopup();
            return true;
        }
        switch (key->key()) {
        case Qt::Key_Space: {
            const int row = list->currentIndex().isValid() ? list->currentIndex().row() : m_highlightedIndex;
            if (row >= 0 && row < count()) {
                setCurrentIndex(row);
                Q_EMIT activated(row);
                Q_EMIT textActivated(itemText(row));
            }
            hidePopup();
            return true;
        }
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            hidePopup();
            focusNextPrevChild(key->key() == Qt::Key_Tab);
            return true;
        default:
            return false;
        }
    }
    default:
        return false;
    }
}

void KaComboBoxBase::showPopup() {
    if (!m_showPopupEnabled)
        return;
    m_expanded = true;
    resetRowTexts();
    updateRowTexts(currentIndex());
    applyViewSheet();

    const bool animate = QApplication::isEffectEnabled(Qt::UI_AnimateCombo);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, m_animateComboBox);
    QComboBox::showPopup();
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, animate);

    // Select the current row even when the view's current index already
    // pointed at it; a row already current and selected needs nothing.
    QAbstractItemView* list = view();
    const QModelIndex viewIndex = list->currentIndex();
    const bool selected = viewIndex.isValid() && viewIndex.row() == currentIndex() &&
                          list->selectionModel() && list->selectionModel()->isSelected(viewIndex);
    if (!selected) {
        list->setCurrentIndex(QModelIndex());
        setCurrentIndex(currentIndex());
        list->setCurrentIndex(viewIndex);
    }

    if (auto* container = findChild<QFrame*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QPoint pos = container->pos();
        if (!m_openedUpwards) {
            container->move(pos + m_dropdownOffset);
        } else if (pos.y() < mapToGlobal(QPoint(0, 0)).y()) {
            container->move(pos.x(), pos.y() - m_dropdownOffset.y());
        } else {
            container->move(pos.x(), pos.y() - m_dropdownOffset.y() - height() - container->height());
        }
    }
    updateVisibleRowTexts();
}

void KaComboBoxBase::hidePopup() {
    m_expanded = false;
    Q_EMIT dropDownCollapsed();
    QComboBox::hidePopup();
}

void KaComboBoxBase::onHighlighted(int index) {
    m_highlightedIndex = index;
    QAbstractItemView* list = view();
    if (!list->isVisible() || !isKeyboardFocus())
        return;
    if (QToolTip::isVisible())
        QToolTip::hideText();
    updateRowTexts(index);
    const QModelIndex modelIndex = model()->index(index, modelColumn(), rootModelIndex());
    const QString tip = modelIndex.data(Qt::ToolTipRole).toString();
    if (tip.isEmpty())
        return;
    const QRect row = list->visualRect(modelIndex);
    QToolTip::showText(list->viewport()->mapToGlobal(QPoint(6, row.top() + row.height() / 2 + 4)), tip, list);
}

void KaComboBoxBase::onCurrentTextChanged(const QString& text) {
    if (isEditable() || !isVisible())
        return;
    QString tip = itemData(currentIndex(), Qt::WhatsThisRole).toString();
    if (tip.isEmpty()) {
        const QFontMetrics metrics(font());
        const int room = width() - (2 * m_iconPadding + 8) - m_leftPadding - dropDownWidth();
        if (metrics.horizontalAdvance(text) > room)
            tip = wrapText(text, width(), metrics);
    }
    setToolTip(tip);
    showComboToolTip();
}

void KaComboBoxBase::showComboToolTip() {
    if (!toolTip().isEmpty() && hasFocus() && !underMouse()) {
        QToolTip::showText(mapToGlobal(QPoint(6, height() / 2 + 4)), toolTip(), this);
    } else if (QToolTip::isVisible()) {
        QToolTip::hideText();
    }
}

QString KaComboBoxBase::wrapText(const QString& text, int width, const QFontMetrics& metrics) {
    QString wrapped;
    qsizetype pos = 0;
    const qsizetype length = text.size();
    while (pos < length) {
        // The longest prefix of the rest that fits, at least one character;
        // advances grow with the prefix, so it is found by bisection.
        qsizetype fits = 1;
        qsizetype tooLong = length - pos + 1;
        if (metrics.horizontalAdvance(text.mid(pos)) <= width)
            fits = length - pos;
        else
            while (tooLong - fits > 1) {
                const qsizetype middle = (fits + tooLong) / 2;
                if (metrics.horizontalAdvance(text.mid(pos, middle)) <= width)
                    fits = middle;
                else
                    tooLong = middle;
            }
        const qsizetype end = pos + fits;
        if (end >= length) {
            wrapped += text.mid(pos);
            break;
        }
        qsizetype cut = text.lastIndexOf(QLatin1Char(' '), end);
        if (cut <= pos)
            cut = end;
        wrapped += text.mid(pos, cut - pos);
        wrapped += QLatin1Char('\n');
        pos = cut + 1;
    }
    return wrapped;
}

void KaComboBoxBase::resetRowTexts() {
    QAbstractItemModel* rows = model();
    const int n = rows ? rows->rowCount(rootModelIndex()) : 0;
    // What every row's texts depend on besides the row's own data: while
    // it stays the same, rows described before keep their texts.
    const RowTextsKey key{rows,    rootModelIndex(), modelColumn(),       currentIndex(), n,
                          width(), font(),           m_popupItemIconSize, dropDownWidth()};
    if (key == m_rowTextsKey && m_rowTextsDone.size() == size_t(n))
        return;
    m_rowTextsKey = key;
    m_rowTextsDone.assign(size_t(n), false);
    if (!rows)
        return;
    connect(rows, &QAbstractItemModel::modelReset, this, &KaComboBoxBase::onModelRowsChanged,
            Qt::UniqueConnection);
    connect(rows, &QAbstractItemModel::layoutChanged, this, &KaComboBoxBase::onModelRowsChanged,
            Qt::UniqueConnection);
    connect(rows, &QAbstractItemModel::rowsInserted, this, &KaComboBoxBase::onModelRowsChanged,
            Qt::UniqueConnection);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &KaComboBoxBase::onModelRowsChanged,
            Qt::UniqueConnection);
    connect(rows, &QAbstractItemModel::rowsMoved, this, &KaComboBoxBase::onModelRowsChanged,
            Qt::UniqueConnection);
    connect(rows, &QAbstractItemModel::dataChanged, this, &KaComboBoxBase::onModelDataChanged,
            Qt::UniqueConnection);
}

void KaComboBoxBase::onModelDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight) {
    if (m_writingRowTexts || sender() != model() || topLeft.parent() != rootModelIndex())
        return;
    // A row's own texts changed: it is described again when next seen.
    const int last = std::min(bottomRight.row(), int(m_rowTextsDone.size()) - 1);
    for (int row = std::max(0, topLeft.row()); row <= last; ++row)
        m_rowTextsDone[size_t(row)] = false;
    if (m_expanded)
        updateVisibleRowTexts();
}

void KaComboBoxBase::onModelRowsChanged() {
    if (sender() != model())
        return;
    // Positions and counts changed: every row is described again as it is
    // seen. The view lays itself out first.
    m_rowTextsKey = RowTextsKey();
    if (!m_expanded)
        return;
    resetRowTexts();
    QMetaObject::invokeMethod(this, &KaComboBoxBase::updateVisibleRowTexts, Qt::QueuedConnection);
}

void KaComboBoxBase::updateVisibleRowTexts() {
    QAbstractItemView* list = view();
    if (!m_expanded || !list || !list->isVisible() || m_rowTextsDone.empty())
        return;
    const QRect area = list->viewport()->rect();
    int first = list->indexAt(area.topLeft() + QPoint(1, 1)).row();
    int last = list->indexAt(area.bottomLeft() + QPoint(1, -1)).row();
    if (first < 0)
        first = 0;
    if (last < 0)
        last = int(m_rowTextsDone.size()) - 1;
    last = std::min(last, first + kMaxVisibleRows);
    for (int row = first; row <= last; ++row)
        updateRowTexts(row);
}

void KaComboBoxBase::updateRowTexts(int row) {
    if (row < 0 || size_t(row) >= m_rowTextsDone.size() || m_rowTextsDone[size_t(row)])
        return;
    m_rowTextsDone[size_t(row)] = true;
    QAbstractItemModel* rows = model();
    const QModelIndex index = rows->index(row, modelColumn(), rootModelIndex());
    if (!index.isValid())
        return;
    const int n = int(m_rowTextsDone.size());
    const QString state = row == currentIndex() ? tr("Selected") : tr("Not selected");
    const QFontMetrics metrics(font());
    const QString whatsThis = index.data(Qt::WhatsThisRole).toString();
    QString tip;
    QString description;
    if (!whatsThis.isEmpty()) {
        if (metrics.horizontalAdvance(whatsThis) > width() - dropDownWidth())
            tip = wrapText(whatsThis, width(), metrics);
        description =
            tr("%1 %2, %3 of %4").arg(whatsThis, state, QString::number(row + 1), QString::number(n));
    } else {
        const QString text = index.data(Qt::DisplayRole).toString();
        const int room = width() - 24 - (row == currentIndex() ? m_popupItemIconSize : 0);
        if (metrics.horizontalAdvance(text) > room)
            tip = wrapText(text, width(), metrics);
        description = tr("%1, %2 of %3").arg(state, QString::number(row + 1), QString::number(n));
    }
    m_writingRowTexts = true;
    if (!tip.isEmpty() && index.data(Qt::ToolTipRole).toString() != tip)
        rows->setData(index, tip, Qt::ToolTipRole);
    if (index.data(Qt::AccessibleDescriptionRole).toString() != description)
        rows->setData(index, description, Qt::AccessibleDescriptionRole);
    m_writingRowTexts = false;
}
