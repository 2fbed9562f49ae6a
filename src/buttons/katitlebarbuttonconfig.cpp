#include "katitlebarbuttonconfig.h"

#include "kasizetable_p.h"

using KaSizeTable::name;

namespace {

struct BarRow {
    int width;
    int height;
    int glyph;
};

const KaSizeTable::Entry<BarRow> kBars[] = {
    {KaButtonEnum::Large, {46, 40, 12}},
    {KaButtonEnum::Normal, {40, 32, 10}},
    {KaButtonEnum::Small, {32, 28, 10}},
};

} // namespace

KaTitleBarButtonConfig::KaTitleBarButtonConfig(QObject* parent)
    : IKaButtonConfig(parent) {}

KaTitleBarButtonConfig::~KaTitleBarButtonConfig() = default;

void KaTitleBarButtonConfig::fillConfig(Config& out) const {
    using namespace Karvox;
    out = Config();
    out.sizePolicy = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::PushButton);
    out.focusPolicy = Qt::NoFocus;
    const bool close = m_type == Close;
    out.colors.backgroundColorSet =
        name(close ? globalHeader_closeButton_background : globalHeader_maxMinButton_background);
    out.colors.textColorSet = name(close ? globalHeader_closeButton_text : globalHeader_maxMinButton_text);
    out.colors.squareCorners = true;
    if (const BarRow* row = KaSizeTable::find(kBars, m_size))
        out.fixedHeight = row->height;
}

void KaTitleBarButtonConfig::fillGeometry(Geometry& out) const {
    KaSizeTable::start(out, *this);
    switch (m_type) {
    case Minimize:
        out.glyph = MinimizeGlyph;
        break;
    case Maximize:
        out.glyph = m_maximized ? RestoreGlyph : MaximizeGlyph;
        break;
    case Close:
        out.glyph = CloseGlyph;
        break;
    }
    if (const BarRow* row = KaSizeTable::find(kBars, m_size)) {
        out.fixedWidth = row->width;
        out.glyphSize = QSize(row->glyph, row->glyph);
    }
}

void KaTitleBarButtonConfig::setHasLeftIcon(bool) {}

void KaTitleBarButtonConfig::setHasRightIcon(bool) {}

void KaTitleBarButtonConfig::setType(Type type) {
    store(m_type, type, &KaTitleBarButtonConfig::typeChanged);
}

void KaTitleBarButtonConfig::setSize(KaButtonEnum::Size size) {
    store(m_size, size, &KaTitleBarButtonConfig::sizeChanged);
}

void KaTitleBarButtonConfig::setWindowMaximized(bool maximized) {
    store(m_maximized, maximized, &KaTitleBarButtonConfig::windowMaximizedChanged);
}
