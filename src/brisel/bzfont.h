#pragma once

#include "brisel_export.h"

#include <QFont>
#include <QObject>

// A font chosen by design token. Every token names a pixel size and a weight
// of the library's UI family (Inter, bundled and registered on first use):
//
//   token                 px  weight
//   0  Body               14  Regular    default text, large inputs
//   1  Subtitle           16  SemiBold
//   2  Title              20  SemiBold
//   3  ButtonLarge        14  SemiBold   extra-large and large buttons
//   4  Button             13  SemiBold   normal and small buttons, menu left text
//   5  Control            12  Medium     chips, banners on one line
//   6  BodySmall          13  Regular    menus, combo boxes, wrapped banners
//   7  Caption            11  SemiBold   extra-small buttons, counters
//   8  Headline           24  Bold
//   9  CaptionRegular     11  Regular
//   10 Display            28  Bold
//
// An out-of-range token is clamped into the table with a warning.
class BRISEL_EXPORT BzFont : public QFont {
    Q_GADGET
public:
    enum Token {
        Body = 0,
        Subtitle,
        Title,
        ButtonLarge,
        Button,
        Control,
        BodySmall,
        Caption,
        Headline,
        CaptionRegular,
        Display,
        TokenCount
    };
    Q_ENUM(Token)

    // With `scaled` the pixel size follows the process-wide text scale of
    // BzFontManager at the time of construction.
    BzFont(int token = Body, bool scaled = false);

    int token() const { return m_token; }
    static int pixelSizeOf(int token);
    static QFont::Weight weightOf(int token);
    // The pixel size of `token` at text scale `scale`: rounded, at least 1.
    static int scaledPixelSizeOf(int token, double scale);
    // The family name of the bundled UI font (registers it on first call).
    static QString family();

private:
    int m_token = Body;
};
