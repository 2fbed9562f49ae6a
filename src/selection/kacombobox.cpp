#include "kacombobox.h"

#include "kacolortokenutils.h"
#include "kacomboboxdelegate.h"
#include "karvoxtoken.h"

#include <bzthemeutils.h>

#include <QAbstractItemView>
#include <QWheelEvent>

namespace {

bool isKnownStyle(int style) {
    return style == KaComboBoxEnum::Outline || style == KaComboBoxEnum::Filled;
}

bool isKnownSize(int size) {
    return size == KaComboBoxEnum::Normal || size == KaComboBoxEnum::Large;
}

} // namespace

KaComboBox::KaComboBox(QWidget* parent)
    : KaComboBoxBase(parent) {
    init();
    applyStyle();
    applySize();
}

KaComboBox::KaComboBox(QWidget* parent, KaComboBoxEnum::Style style, KaComboBoxEnum::Size size)
    : KaComboBoxBase(parent) {
    init();
    applyStyle();
    applySize();
    setStyle(style);
    setSize(size);
}

void KaComboBox::init() {
    setObjectName(QStringLiteral("KaComboBox"));
    setSvgDropdownIcon(QStringLiteral(":/Resources/arrow-down-light.svg"));
    setSvgDropDownIconExpanded(QStringLiteral(":/Resources/arrow-up-light.svg"));
    setItemViewBorderRadius(0);
    view()->setProperty("focusBorderRadius", 8);
}

KaComboBoxConfig KaComboBox::getStyle(KaComboBoxEnum::Style style) const {
    const QString text = KaColorTokenUtils::tokenToString(Karvox::combobox_text);
    const QString background = KaColorTokenUtils::tokenToString(Karvox::combobox_background);
    const QString border = style == KaComboBoxEnum::Filled
                               ? background
                               : KaColorTokenUtils::tokenToString(Karvox::combobox_border);
    return KaComboBoxConfig(text, background, border);
}

void KaComboBox::setStyle(KaComboBoxEnum::Style style) {
    if (!isKnownStyle(style)) {
        qWarning("KaComboBox::setStyle: unknown style %d ignored", int(style));
        return;
    }
    if (m_style == style)
        return;
    m_style = style;
    applyStyle();
    Q_EMIT styleChanged(style);
}

void KaComboBox::setSize(KaComboBoxEnum::Size size) {
    if (!isKnownSize(size)) {
        qWarning("KaComboBox::setSize: unknown size %d ignored", int(size));
        return;
    }
    if (m_size == size)
        return;
    m_size = size;
    applySize();
    Q_EMIT sizeChanged(size);
}

void KaComboBox::applyStyle() {
    const KaComboBoxConfig config = getStyle(m_style);
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    m_textColorSet = BzThemeUtils::getColorSet(config.textColorSet, type);
    m_backgroundColorSet = BzThemeUtils::getColorSet(config.backgroundColorSet, type);
    m_borderColorSet = BzThemeUtils::getColorSet(config.borderColorSet, type);
    setCssSwitch(0, config.firstSwitch);
    setCssSwitch(1, config.secondSwitch != 0);
    updateStyle();
}

void KaComboBox::applySize() {
    switch (m_size) {
    case KaComboBoxEnum::Normal:
        setFixedHeight(28);
        setFontToken(BzFont::BodySmall, false);
        setSvgDropdownIconSize(QSize(12, 12));
        break;
    case KaComboBoxEnum::Large:
        setFixedHeight(32);
        setFontToken(BzFont::Body, false);
        setSvgDropdownIconSize(QSize(18, 18));
        break;
    }
}

void KaComboBox::onThemeChanged() {
    applyStyle();
}

void KaComboBox::applyCustomCSS() {
    KaComboBoxBase::applyCustomCSS();
    if (auto* delegate = qobject_cast<KaComboBoxDelegate*>(itemDelegate()))
        delegate->setThemeType(BzThemeUtils::getThemeTypeOfWidget(this));
}

void KaComboBox::wheelEvent(QWheelEvent* event) {
    // Scrolling a form must not change a choice on the way.
    event->ignore();
}
