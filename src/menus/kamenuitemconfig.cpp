#include "kamenuitemconfig.h"

#include "kasizetable_p.h"

namespace {

// Height of a one-line entry and the room above and below its title.
struct Row {
    int height;
    int vertical;
};

const KaSizeTable::Entry<Row> kRows[] = {
    {KaMenuEnum::Small, {32, 4}},
    {KaMenuEnum::Medium, {40, 8}},
    {KaMenuEnum::Large, {50, 8}},
};
// Title over sub-text: the same at every size.
const Row kTwoLines{50, 3};

template <typename T> bool store(T& field, const T& value) {
    if (field == value)
        return false;
    field = value;
    return true;
}

} // namespace

KaMenuItemConfig::KaMenuItemConfig() = default;

bool KaMenuItemConfig::setStyle(KaMenuEnum::Style style) {
    return store(m_style, style);
}

bool KaMenuItemConfig::setSize(KaMenuEnum::Size size) {
    return store(m_size, size);
}

bool KaMenuItemConfig::setHasSubText(bool on) {
    return store(m_subText, on);
}

bool KaMenuItemConfig::setTitleFontToken(int token) {
    return store(m_titleFontToken, token);
}

bool KaMenuItemConfig::setTitleColorSet(const QString& name) {
    return store(m_titleColorSet, name);
}

bool KaMenuItemConfig::setLeftTextColorSet(const QString& name) {
    return store(m_leftTextColorSet, name);
}

bool KaMenuItemConfig::setInfoIconColorSet(const QString& name) {
    return store(m_infoIconColorSet, name);
}

bool KaMenuItemConfig::setActionIconColorSet(const QString& name) {
    return store(m_actionIconColorSet, name);
}

bool KaMenuItemConfig::setDefaultMinimumWidth(int width) {
    return store(m_minimumWidth, width);
}

bool KaMenuItemConfig::setDefaultMaximumWidth(int width) {
    return store(m_maximumWidth, width);
}

bool KaMenuItemConfig::setDisabled(bool on) {
    return store(m_disabled, on);
}

bool KaMenuItemConfig::setHovered(bool on) {
    return store(m_hovered, on);
}

bool KaMenuItemConfig::setAlert(bool on) {
    return store(m_alert, on);
}

bool KaMenuItemConfig::setMarked(bool on) {
    return store(m_marked, on);
}

KaMenuItemConfig::State KaMenuItemConfig::state() const {
    // Disabled wins over everything; a marked entry keeps its tick colour
    // while hovered.
    if (m_disabled)
        return State::Disabled;
    if (m_marked)
        return State::Checked;
    if (m_hovered)
        return State::Hovered;
    return State::Normal;
}

QString KaMenuItemConfig::stateName(State state) {
    switch (state) {
    case State::Hovered:
        return QStringLiteral("hovered");
    case State::Disabled:
        return QStringLiteral("disabled");
    case State::Checked:
        return QStringLiteral("checked");
    case State::Normal:
        break;
    }
    return QStringLiteral("normal");
}

KaMenuItemConfig::Layout KaMenuItemConfig::layout() const {
    using KaSizeTable::name;
    Layout out;
    const Row* found = KaSizeTable::find(kRows, int(m_size));
    const Row row = m_subText ? kTwoLines : (found ? *found : kRows[1].row);
    out.fixedHeight = row.height;
    out.innerMargins = QMargins(0, row.vertical, 0, row.vertical);
    out.titleFontToken = m_titleFontToken;
    out.state = state();
    if (!m_titleColorSet.trimmed().isEmpty())
        out.titleColorSet = m_titleColorSet;
    else
        out.titleColorSet = name(m_alert ? Karvox::listitem_textmissed : Karvox::listitem_textprimary);
    out.subTextColorSet = name(Karvox::listitem_textsecondary);
    out.leftTextColorSet =
        m_leftTextColorSet.trimmed().isEmpty() ? name(Karvox::listitem_textsecondary) : m_leftTextColorSet;
    if (m_marked)
        out.infoIconColorSet = name(Karvox::listitem_tick);
    else if (!m_infoIconColorSet.trimmed().isEmpty())
        out.infoIconColorSet = m_infoIconColorSet;
    else
        out.infoIconColorSet = name(Karvox::listitem_icon);
    out.actionIconColorSet =
        m_actionIconColorSet.trimmed().isEmpty() ? name(Karvox::listitem_icon) : m_actionIconColorSet;
    out.minimumWidth = m_minimumWidth;
    out.maximumWidth = m_maximumWidth;
    return out;
}
