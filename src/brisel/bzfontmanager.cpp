#include "bzfontmanager.h"

#include "bzfont.h"
#include "bzscaledfont.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <cmath>

namespace {
BzFontManager* s_instance = nullptr;
} // namespace

BzFontManager::BzFontManager(QObject* parent)
    : QObject(parent) {}

BzFontManager::~BzFontManager() {
    if (s_instance == this)
        s_instance = nullptr;
}

BzFontManager* BzFontManager::instance() {
    if (!s_instance)
        s_instance = new BzFontManager(QCoreApplication::instance());
    return s_instance;
}

bool BzFontManager::exists() {
    return s_instance != nullptr;
}

void BzFontManager::setTextScale(double scale) {
    if (!std::isfinite(scale)) {
        qWarning("BzFontManager: ignoring a text scale that is not a finite number");
        return;
    }
    if (scale < MinTextScale || scale > MaxTextScale) {
        const double clamped = qBound(MinTextScale, scale, MaxTextScale);
        qWarning("BzFontManager: text scale %g is out of range, using %g", scale, clamped);
        scale = clamped;
    }
    if (qFuzzyCompare(scale, m_textScale))
        return;
    m_textScale = scale;
    for (BzScaledFont* font : std::as_const(m_fonts))
        font->applyScale(m_textScale);
    Q_EMIT textScaleChanged(m_textScale);
}

BzScaledFont* BzFontManager::scaledFont(FontManagerEnum::FontType type, int token) {
    if (type == FontManagerEnum::None)
        return nullptr;
    if (type != FontManagerEnum::Scaled && type != FontManagerEnum::Fixed) {
        qWarning("BzFontManager: unknown font type %d", int(type));
        return nullptr;
    }
    // Key by the clamped token so that every out-of-range request shares one
    // object; the clamping itself warns.
    const int clamped = BzFont(token).token();
    const QPair<int, int> key(int(type), clamped);
    BzScaledFont* font = m_fonts.value(key);
    if (!font) {
        font = new BzScaledFont(type, clamped, m_textScale, this);
        m_fonts.insert(key, font);
    }
    return font;
}

QFont BzFontManager::font(FontManagerEnum::FontType type, int token) {
    if (BzScaledFont* scaled = scaledFont(type, token))
        return scaled->font();
    return BzFont(token);
}
