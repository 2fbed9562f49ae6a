#include "bzfont.h"

#include "bzfontmanager.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QtGlobal>

#include <cmath>
#include <map>
#include <utility>

namespace {

struct TokenStyle {
    int pixelSize;
    QFont::Weight weight;
};

// Indexed by BzFont::Token; keep in step with the table in bzfont.h.
constexpr TokenStyle kTokenStyles[BzFont::TokenCount] = {
    {14, QFont::Normal},   // Body
    {16, QFont::DemiBold}, // Subtitle
    {20, QFont::DemiBold}, // Title
    {14, QFont::DemiBold}, // ButtonLarge
    {13, QFont::DemiBold}, // Button
    {12, QFont::Medium},   // Control
    {13, QFont::Normal},   // BodySmall
    {11, QFont::DemiBold}, // Caption
    {24, QFont::Bold},     // Headline
    {11, QFont::Normal},   // CaptionRegular
    {28, QFont::Bold},     // Display
};

const char* const kFallbackFamily = "Inter";

int clampedToken(int token) {
    if (token >= 0 && token < BzFont::TokenCount)
        return token;
    const int clamped = qBound(0, token, int(BzFont::TokenCount) - 1);
    qWarning("BzFont: font token %d is out of range, using %d", token, clamped);
    return clamped;
}

} // namespace

BzFont::BzFont(int token, bool scaled) {
    m_token = clampedToken(token);
    // Without a manager nobody can have changed the scale from 1.
    const double scale = (scaled && BzFontManager::exists()) ? BzFontManager::instance()->textScale() : 1.0;
    // One font per token and scale, built once: every copy shares it, so a
    // widget holding a token's font costs no font data of its own.
    static std::map<std::pair<int, double>, QFont> built;
    auto it = built.find({m_token, scale});
    if (it == built.end()) {
        QFont font(family());
        font.setPixelSize(scaledPixelSizeOf(m_token, scale));
        font.setWeight(kTokenStyles[m_token].weight);
        it = built.emplace(std::make_pair(m_token, scale), font).first;
    }
    QFont::operator=(it->second);
}

int BzFont::pixelSizeOf(int token) {
    return kTokenStyles[clampedToken(token)].pixelSize;
}

QFont::Weight BzFont::weightOf(int token) {
    return kTokenStyles[clampedToken(token)].weight;
}

int BzFont::scaledPixelSizeOf(int token, double scale) {
    const int base = pixelSizeOf(token);
    if (!std::isfinite(scale) || scale <= 0.0)
        return base;
    return qMax(1, int(std::lround(base * scale)));
}

QString BzFont::family() {
    // GUI thread only, so a plain static is enough.
    static QString registeredFamily;
    static bool attempted = false;
    if (attempted)
        return registeredFamily.isEmpty() ? QString::fromLatin1(kFallbackFamily) : registeredFamily;
    // The font database needs a GUI application; try again once there is one.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return QString::fromLatin1(kFallbackFamily);
    attempted = true;

    static const char* const files[] = {
        ":/brisel/fonts/Inter-Regular.otf",
        ":/brisel/fonts/Inter-Medium.otf",
        ":/brisel/fonts/Inter-SemiBold.otf",
        ":/brisel/fonts/Inter-Bold.otf",
    };
    for (const char* file : files) {
        const int id = QFontDatabase::addApplicationFont(QString::fromLatin1(file));
        if (id < 0) {
            qWarning("BzFont: cannot register the bundled font %s", file);
            continue;
        }
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        if (registeredFamily.isEmpty() && !families.isEmpty())
            registeredFamily = families.constFirst();
    }
    return registeredFamily.isEmpty() ? QString::fromLatin1(kFallbackFamily) : registeredFamily;
}
