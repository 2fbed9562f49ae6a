#pragma once

#include "brisel_export.h"

#include <QFont>
#include <QHash>
#include <QObject>
#include <QPair>

class BzScaledFont;

namespace FontManagerEnum {
Q_NAMESPACE_EXPORT(BRISEL_EXPORT)

// How a widget takes its font from the manager. Fixed fonts keep their table
// size whatever the text scale; None means the widget keeps its own font.
enum FontType : int { None = 0, Scaled = 1, Fixed = 2 };
Q_ENUM_NS(FontType)
} // namespace FontManagerEnum

// Owner of the process-wide text scale and of the shared scaled fonts.
// GUI thread only. Created by the first instance() call and parented to the
// application object, so it goes away with it.
class BRISEL_EXPORT BzFontManager : public QObject {
    Q_OBJECT
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged)
public:
    static constexpr double MinTextScale = 0.5;
    static constexpr double MaxTextScale = 3.0;

    static BzFontManager* instance();
    // Whether instance() has been called; widgets use it to avoid creating
    // the manager just to ask whether it has anything for them.
    static bool exists();

    ~BzFontManager() override;

    double textScale() const { return m_textScale; }
    // Clamped to [MinTextScale, MaxTextScale].
    void setTextScale(double scale);

    // The shared font for (type, token); the same object for every caller.
    // Returns nullptr for FontManagerEnum::None. The manager owns the object.
    BzScaledFont* scaledFont(FontManagerEnum::FontType type, int token);
    // The current font for (type, token); for None the unscaled table font.
    Q_INVOKABLE QFont font(FontManagerEnum::FontType type, int token);

Q_SIGNALS:
    void textScaleChanged(double scale);

private:
    explicit BzFontManager(QObject* parent = nullptr);

    double m_textScale = 1.0;
    QHash<QPair<int, int>, BzScaledFont*> m_fonts;
};
