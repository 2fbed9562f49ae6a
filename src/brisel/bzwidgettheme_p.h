#pragma once

#include "bzcolorset.h"
#include "bzcssdata.h"
#include "bzthemeutils.h"

#include <QString>
#include <QStyle>

class QPainter;
class QRectF;
class QWidget;

// The theme state shared by the base widgets that paint themselves: the
// template they were given, the record read from it and the colour sets it
// names, resolved once per theme or configuration change.
class BzWidgetTheme {
public:
    QString css;
    BzCSSData data;
    BzColorSet background;
    BzColorSet border;
    BzColorSet text;

    // Resolves `css` for `widget`. Without `force`, does nothing while neither
    // the theme data nor the widget's theme type moved since the last call.
    // Style sheets are only set for template text the widget cannot paint
    // itself, and only when the resolved text differs from the current one.
    // Returns whether anything was re-resolved.
    bool resolve(QWidget* widget, bool force);
    // Paints background and border for a control in `state`.
    void paintFrame(QPainter* painter, const QRectF& rect, QStyle::State state) const;
    // The radius the frame is painted with for a widget of height `height`.
    qreal radiusFor(qreal height) const;

private:
    quint64 m_generation = 0;
    BzThemeUtils::AppThemeType m_type = BzThemeUtils::Global;
    bool m_resolved = false;
};

// True while BzThemeUtils::refreshWidgetThemes() rewrites the widgets' "css";
// base widgets then skip their own update(): every window is repainted whole.
bool bzThemeRefreshInProgress();
