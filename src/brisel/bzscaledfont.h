#pragma once

#include "brisel_export.h"
#include "bzfontmanager.h"

#include <QFont>
#include <QObject>

// One font of the token table as handed out by BzFontManager::scaledFont().
// Widgets set font() and connect fontTokenChanged() to follow later changes
// of the text scale. Only BzFontManager creates these.
class BRISEL_EXPORT BzScaledFont : public QObject {
    Q_OBJECT
    Q_PROPERTY(QFont font READ font NOTIFY fontTokenChanged)
    Q_PROPERTY(int token READ token CONSTANT)
    Q_PROPERTY(FontManagerEnum::FontType type READ type CONSTANT)
public:
    QFont font() const { return m_font; }
    int token() const { return m_token; }
    FontManagerEnum::FontType type() const { return m_type; }

Q_SIGNALS:
    // The font changed because the text scale did (Scaled fonts only).
    void fontTokenChanged();

private:
    friend class BzFontManager;
    BzScaledFont(FontManagerEnum::FontType type, int token, double scale, QObject* parent);
    void applyScale(double scale);

    FontManagerEnum::FontType m_type;
    int m_token;
    QFont m_font;
};
