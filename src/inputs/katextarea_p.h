#pragma once

#include <bzcolorset.h>

#include <QTextEdit>

// The look shared by the multi-line text widgets: colours resolved per theme
// into the palette, the library's scroll bars, and a rounded frame painted
// under the transparent viewport, with the focus ring around it.
class KaTextAreaLook {
public:
    struct Tokens {
        int background = -1; // Karvox::Token; -1: nothing painted
        int border = -1;
        int text = -1;
        int placeholder = -1;
        int link = -1;
    };

    explicit KaTextAreaLook(QTextEdit* area, const Tokens& tokens);

    // Resolves the colour sets for the area's theme type and applies them.
    void apply();
    // Paints the frame; call from the area's own paint of its frame.
    void paintFrame();
    // Links take the theme's link colour: Qt's HTML reader gives them the
    // application palette's colour once, when the text is set. Call after
    // the content changed (the browser does it for every change).
    void recolourLinks();

private:
    QTextEdit* m_area;
    Tokens m_tokens;
    BzColorSet m_background;
    BzColorSet m_border;
    QColor m_link;
    bool m_recolouring = false;
};
