#pragma once

#include "karvex_export.h"

#include <bzthemeutils.h>

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

class QWidget;

// Themed tooltips on top of QToolTip. The tooltip window gets the style
// sheet "QToolTip { color: %1; background-color: %2;border: 1px solid %3; }"
// with %1 the colour set "label-primary-text", %2 "popover-primary-background"
// and %3 "modal-primary-border" of the anchor widget's theme type, the same
// colours as popovers. The sheet is a base-layer template on the tooltip
// window, so a theme refresh re-resolves it like any other widget's.
class KARVEX_EXPORT KaToolTip : public QObject {
    Q_OBJECT

public:
    static KaToolTip* instance();

    // The template with $(set) references, as handed to the base layer.
    static QString styleSheetTemplate();
    // The style sheet text with the colours of `type` filled in.
    static QString styleSheetText(BzThemeUtils::AppThemeType type = BzThemeUtils::Global);

    // Like QToolTip::showText, themed. An empty text hides the tooltip.
    static void showText(const QPoint& globalPos, const QString& text, QWidget* widget = nullptr,
                         const QRect& rect = QRect(), int msecShowTime = -1);
    static void hideText();
    static bool isVisible();
    static QString text();
    // The tooltip window while one is shown, else null.
    static QWidget* toolTipWidget();

    // Shows `widget`'s own toolTip() through showText() instead of the
    // unthemed default. Stops when the widget is deleted.
    static void installOn(QWidget* widget);
    static void removeFrom(QWidget* widget);

public Q_SLOTS:
    // Re-themes a tooltip that is showing.
    void onThemeChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit KaToolTip(QObject* parent = nullptr);
    static void style(QWidget* tip, const QWidget* anchor);
};
