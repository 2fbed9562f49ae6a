#include "katitlebarbuttonconfig.h"

#include "kacolortokenutils.h"

namespace {

bool barRow(int size, int& width, int& height, int& glyph) {
    switch (size) {
    case KaButtonEnum::Large:
        width = 46;
        height = 40;
        glyph = 12;
        return true;
    case KaButtonEnum::Normal:
        width = 40;
        height = 32;
        glyph = 10;
        return true;
    case KaButtonEnum::Small:
        width = 32;
        height = 28;
        glyph = 10;
        return true;
    default:
        return false;
    }
}

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
    out.colors.backgroundColorSet = KaColorTokenUtils::tokenToString(
        close ? globalHeader_closeButton_background : globalHeader_maxMinButton_background);
    out.colors.textColorSet = KaColorTokenUtils::tokenToString(close ? globalHeader_closeButton_text
                                                                     : globalHeader_maxMinButton_text);
    out.colors.squareCorners = true;
    int width = 0;
    int height = 0;
    int glyph = 0;
    if (barRow(m_size, width, height, glyph))
        out.fixedHeight = height;
}

void KaTitleBarButtonConfig::fillGeometry(Geometry& out) const {
    Config base;
    fillConfig(base);
    out = Geometry();
    static_cast<Config&>(out) = base;
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
    int width = 0;
    int height = 0;
    int glyph = 0;
    if (!barRow(m_size, width, height, glyph))
        return;
    out.fixedWidth = width;
    out.glyphSize = QSize(glyph, glyph);
}

void KaTitleBarButtonConfig::setHasLeftIcon(bool) {}

void KaTitleBarButtonConfig::setHasRightIcon(bool) {}

void KaTitleBarButtonConfig::setType(Type type) {
    if (type == m_type)
        return;
    m_type = type;
    Q_EMIT typeChanged(type);
    Q_EMIT configChanged();
}

void KaTitleBarButtonConfig::setSize(KaButtonEnum::Size size) {
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged(size);
    Q_EMIT configChanged();
}

void KaTitleBarButtonConfig::setWindowMaximized(bool maximized) {
    if (maximized == m_maximized)
        return;
    m_maximized = maximized;
    Q_EMIT windowMaximizedChanged(maximized);
    Q_EMIT configChanged();
}
