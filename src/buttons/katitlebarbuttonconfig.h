#pragma once

#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "karvex_export.h"

#include <QSize>

// The window buttons of a custom title bar. Minimise and maximise use
// "globalHeader-maxMinButton-*", close uses "globalHeader-closeButton-*"
// (its face turns red on hover). The faces are square-cornered, since the
// buttons sit flush in the header, and transparent until hovered. High
// contrast needs no override: the header sets of the high-contrast theme
// are high-contrast colours already.
//
// Geometry by size, modelled on the round button (glyph instead of icon,
// no text so no font token):
//
//   size    width  height  glyph
//   Large   46     40      12x12
//   Normal  40     32      10x10   (initially)
//   Small   32     28      10x10
//
// Other sizes keep the Geometry defaults (no fixed size).
class KARVEX_EXPORT KaTitleBarButtonConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(Type type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(
        bool windowMaximized READ isWindowMaximized WRITE setWindowMaximized NOTIFY windowMaximizedChanged)
public:
    enum Type { Minimize = 0, Maximize = 1, Close = 2 };
    Q_ENUM(Type)

    // What the glyph shows: a maximise button of a maximised window offers
    // to restore it.
    enum Glyph { MinimizeGlyph = 0, MaximizeGlyph, RestoreGlyph, CloseGlyph };
    Q_ENUM(Glyph)

    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        int fixedWidth = 0;
        QSize glyphSize{10, 10};
        Glyph glyph = CloseGlyph;
    };

    explicit KaTitleBarButtonConfig(QObject* parent = nullptr);
    ~KaTitleBarButtonConfig() override;

    // Colours, fixed policy, no focus (the buttons must not take focus from
    // the window's content) and the height.
    void fillConfig(Config& out) const override;
    // The glyph is the only content.
    void setHasLeftIcon(bool hasIcon) override;
    void setHasRightIcon(bool hasIcon) override;
    // fillConfig() plus width, glyph and its size.
    void fillGeometry(Geometry& out) const;

    Type type() const { return m_type; }
    void setType(Type type);
    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);
    bool isWindowMaximized() const { return m_maximized; }
    void setWindowMaximized(bool maximized);

Q_SIGNALS:
    void typeChanged(KaTitleBarButtonConfig::Type type);
    void sizeChanged(KaButtonEnum::Size size);
    void windowMaximizedChanged(bool maximized);

private:
    Type m_type = Close;
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
    bool m_maximized = false;
};
