#include "kabuttonconfig.h"

#include "kaconfig.h"
#include "kasizetable_p.h"

using KaSizeTable::name;

namespace {

void setColors(KaButtonConfigRecord::Colors& out, Karvox::Token background, Karvox::Token text) {
    out.backgroundColorSet = name(background);
    out.textColorSet = name(text);
}

void setColors(KaButtonConfigRecord::Colors& out, Karvox::Token background, Karvox::Token border,
               Karvox::Token text) {
    setColors(out, background, text);
    out.setBorderColorSet(name(border));
}

// Step one: the table, without the high-contrast override.
void fillTable(KaButtonConfigRecord::Colors& out, int style, bool active) {
    using namespace Karvox;
    switch (style) {
    case KaButtonEnum::Primary:
        setColors(out, button_primary_background, button_primary_text);
        break;
    case KaButtonEnum::Secondary:
        if (active)
            setColors(out, button_secondary_active_background, button_secondary_active_border,
                      button_secondary_active_text);
        else
            setColors(out, button_secondary_background, button_secondary_border, button_secondary_text);
        break;
    case KaButtonEnum::Ghost:
        if (active)
            setColors(out, button_ghost_active_background, button_ghost_active_text);
        else
            setColors(out, button_ghost_background, button_ghost_text);
        break;
    case KaButtonEnum::CancelGhost:
        setColors(out, button_cancel_ghost_background, button_cancel_ghost_text);
        break;
    case KaButtonEnum::MessageGhost:
        setColors(out, button_message_ghost_background, button_message_ghost_text);
        break;
    case KaButtonEnum::Join:
        setColors(out, button_join_fill_background, button_join_fill_text);
        break;
    case KaButtonEnum::OutlineJoin:
        setColors(out, button_join_outline_background, button_join_outline_border, button_join_outline_text);
        break;
    case KaButtonEnum::Cancel:
        setColors(out, button_cancel_fill_background, button_cancel_fill_text);
        break;
    case KaButtonEnum::OutlineCancel:
        setColors(out, button_cancel_outline_background, button_cancel_outline_border,
                  button_cancel_outline_text);
        break;
    case KaButtonEnum::Message:
        setColors(out, button_message_fill_background, button_message_fill_text);
        break;
    case KaButtonEnum::DarkThemePrimary:
        setColors(out, sharewindow_control_button_primary_background,
                  sharewindow_control_button_primary_text);
        break;
    case KaButtonEnum::DarkThemeSecondary:
        setColors(out, sharewindow_control_button_secondary_background,
                  sharewindow_control_button_secondary_border, sharewindow_control_button_secondary_text);
        break;
    case KaButtonEnum::DarkThemeSecondaryActive:
        setColors(out, sharewindow_control_button_active_background, sharewindow_control_button_active_border,
                  sharewindow_control_button_active_text);
        break;
    case KaButtonEnum::GlobalHeaderDeviceActive:
        setColors(out, globalHeader_buttonDevice_background, globalHeader_buttonDevice_text_active);
        break;
    case KaButtonEnum::GlobalHeaderDeviceInactive:
        setColors(out, globalHeader_buttonDevice_background, globalHeader_buttonDevice_text_inactive);
        break;
    case KaButtonEnum::GlobalHeaderIcon:
        setColors(out, globalHeader_buttonIcon_background, globalHeader_buttonIcon_icon);
        break;
    case KaButtonEnum::GlobalHeaderSearchCancel:
        setColors(out, globalHeader_searchCancelButton_background, globalHeader_searchCancelButton_border,
                  globalHeader_searchCancelButton_text);
        break;
    case KaButtonEnum::Inverted:
        setColors(out, button_layout_background, button_layout_border, button_layout_text);
        break;
    // The teaching looks belong to the coach marks and are named as such.
    case KaButtonEnum::TeachingPrimary:
        out.backgroundColorSet = QStringLiteral("coachmarkteaching-button-primary-background");
        out.textColorSet = QStringLiteral("coachmarkteaching-button-primary-text");
        break;
    case KaButtonEnum::TeachingSecondary:
        out.backgroundColorSet = QStringLiteral("coachmarkteaching-button-secondary-background");
        out.setBorderColorSet(QStringLiteral("coachmarkteaching-button-secondary-border"));
        out.textColorSet = QStringLiteral("coachmarkteaching-button-secondary-text");
        break;
    default:
        break;
    }
}

} // namespace

KaButtonConfig::KaButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaButtonConfig::~KaButtonConfig() = default;

KaButtonConfigRecord::Colors KaButtonConfig::colorsFor(int style, int state) {
    Config::Colors colors;
    const bool active = state == KaButtonEnum::Active;
    fillTable(colors, style, active);
    // Active secondary and ghost buttons keep their active colours so that the
    // selection stays visible; everything else takes the bordered primary look.
    const bool keepsOwnColors = active && (style == KaButtonEnum::Secondary || style == KaButtonEnum::Ghost);
    if (KaConfig::highContrast && !keepsOwnColors) {
        colors.setBorderColorSet(name(Karvox::button_primary_border));
        colors.textColorSet = name(Karvox::button_primary_text);
        colors.backgroundColorSet = name(Karvox::button_primary_background);
    }
    return colors;
}

void KaButtonConfig::fillConfig(Config& out) const {
    out = Config();
    out.colors = colorsFor(m_style, m_state);
    out.acceleratorType = m_customValue;
}

void KaButtonConfig::setCustomValue(int value) {
    store(m_customValue, value);
}

void KaButtonConfig::setStyle(KaButtonEnum::Style style) {
    m_style = style;
    Q_EMIT styleChanged(style);
    notifyConfigChanged();
}

void KaButtonConfig::setSize(KaButtonEnum::Size size) {
    store(m_size, size, &KaButtonConfig::sizeChanged);
}

void KaButtonConfig::setState(KaButtonEnum::State state) {
    store(m_state, state, &KaButtonConfig::stateChanged);
}

void KaButtonConfig::setChecked(bool checked) {
    const KaButtonEnum::State state = checked ? KaButtonEnum::Active : KaButtonEnum::Inactive;
    if (state != m_state) {
        m_state = state;
        Q_EMIT stateChanged(state);
    }
    notifyConfigChanged();
}

void KaButtonConfig::setWidthSizePolicy(QSizePolicy::Policy policy) {
    if (policy != m_widthSizePolicy) {
        m_widthSizePolicy = policy;
        Q_EMIT widthSizePolicyChanged(policy);
    }
    notifyConfigChanged();
}
