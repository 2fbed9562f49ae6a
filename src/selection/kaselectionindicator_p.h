#pragma once

#include <bzcolorset.h>

#include <QAbstractButton>
#include <QRect>

class QPainter;

// What check boxes and radio buttons share: colour sets resolved per theme
// for the checked and unchecked look, the indicator-then-text layout
// (mirrored right to left), and the painting of both parts. Only the
// indicator's shape differs.
class KaSelectionIndicator {
public:
    enum Shape { Box, Circle };
    enum Mark { NoMark, Check, Dash, Dot };

    // Sets `button` up for the indicator (hover tracking, the ring round the
    // indicator) and resolves its colours.
    KaSelectionIndicator(Shape shape, QAbstractButton* button);

    // Resolves the colour sets for `button`'s theme type.
    void resolve(const QAbstractButton* button);

    QSize sizeHint(const QAbstractButton* button) const;
    QRect indicatorRect(const QAbstractButton* button) const;
    // Paints indicator, mark and text; asks the focus style for a ring
    // around the indicator when the button has focus.
    void paint(QAbstractButton* button, bool on, Mark mark) const;

    static constexpr int kIndicator = 16;
    static constexpr int kSpacing = 8;

private:
    struct Sets {
        BzColorSet background;
        BzColorSet border;
        BzColorSet mark;
        BzColorSet text;
    };
    Shape m_shape;
    Sets m_on;
    Sets m_off;
};
