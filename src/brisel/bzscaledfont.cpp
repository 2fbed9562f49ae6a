#include "bzscaledfont.h"

#include "bzfont.h"

BzScaledFont::BzScaledFont(FontManagerEnum::FontType type, int token, double scale, QObject* parent)
    : QObject(parent)
    , m_type(type)
    , m_token(token)
    , m_font(BzFont(token)) {
    applyScale(scale);
}

void BzScaledFont::applyScale(double scale) {
    if (m_type != FontManagerEnum::Scaled)
        return;
    const int pixelSize = BzFont::scaledPixelSizeOf(m_token, scale);
    // Small scale steps can round to the same size; nothing to tell then.
    if (pixelSize == m_font.pixelSize())
        return;
    m_font.setPixelSize(pixelSize);
    Q_EMIT fontTokenChanged();
}
