#include "katabitemconfig.h"

#include "kasizetable_p.h"

using KaSizeTable::name;

namespace {

struct TabRow {
    KaSizeTable::TextRow text;
    int close;
};

const KaSizeTable::Entry<TabRow> kTabs[] = {
    {KaButtonEnum::Large, {{3, 40, 20, 8, 16, 32}, 16}},
    {KaButtonEnum::Normal, {{4, 32, 16, 6, 12, 24}, 12}},
    {KaButtonEnum::Small, {{7, 28, 16, 4, 8, 20}, 12}},
};

constexpr int kIndicatorHeight = 2;

} // namespace

KaTabItemConfig::KaTabItemConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaTabItemConfig::~KaTabItemConfig() = default;

void KaTabItemConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    const bool active = m_style == KaTabEnum::ACTIVE;
    out.colors.backgroundColorSet = name(active ? tab_active_background : tab_inactive_background);
    out.colors.textColorSet = name(active ? tab_active_text : tab_inactive_text);
    out.sizePolicy = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::TabWidget);
    // Only the selected tab is a Tab stop; the arrow keys move between tabs.
    out.focusPolicy = active ? Qt::TabFocus : Qt::NoFocus;
    if (const TabRow* row = KaSizeTable::find(kTabs, m_size))
        KaSizeTable::applyText(out, row->text);
}

void KaTabItemConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    const bool collapsed = m_state == KaTabEnum::COLLAPSED;
    out.textVisible = !collapsed;
    out.svgIconVisible = m_hasLeftIcon;
    out.closeVisible = showsClose() && !collapsed;
    out.indicatorHeight = m_style == KaTabEnum::ACTIVE ? kIndicatorHeight : 0;
    const TabRow* row = KaSizeTable::find(kTabs, m_size);
    if (!row)
        return;
    out.svgIconSize = QSize(row->text.icon, row->text.icon);
    // Spacing only separates an icon from text beside it.
    out.svgIconSpacing = m_hasLeftIcon && !collapsed ? row->text.spacing : 0;
    out.spacing = row->text.spacing;
    out.padding = row->text.padding;
    out.closeIconSize = QSize(row->close, row->close);
    if (collapsed)
        out.fixedWidth = row->text.height;
}

void KaTabItemConfig::setHasLeftIcon(bool hasIcon) {
    store(m_hasLeftIcon, hasIcon);
}

void KaTabItemConfig::setHasRightIcon(bool) {}

void KaTabItemConfig::setType(KaTabEnum::Type type) {
    store(m_type, type, &KaTabItemConfig::typeChanged);
}

void KaTabItemConfig::setStyle(KaTabEnum::Style style) {
    store(m_style, style, &KaTabItemConfig::styleChanged);
}

void KaTabItemConfig::setState(KaTabEnum::State state) {
    store(m_state, state, &KaTabItemConfig::stateChanged);
}

void KaTabItemConfig::setSize(KaButtonEnum::Size size) {
    store(m_size, size, &KaTabItemConfig::sizeChanged);
}

void KaTabItemConfig::setClosable(bool closable) {
    store(m_closable, closable, &KaTabItemConfig::closableChanged);
}
