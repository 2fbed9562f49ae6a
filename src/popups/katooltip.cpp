#include "katooltip.h"

#include "kacolortokenutils.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPointer>
#include <QToolTip>
#include <QWidget>

namespace {

const char kTemplate[] = "QToolTip { color: %1; background-color: %2;border: 1px solid %3; }";
// Qt's tooltip window.
const char kTipObjectName[] = "qtooltip_label";
// Remembers which widget a tooltip belongs to, for onThemeChanged().
QPointer<QWidget> g_anchor;

QString reference(Karvox::Token token) {
    return QStringLiteral("$(") + KaColorTokenUtils::tokenToString(token) + QLatin1Char(')');
}

} // namespace

KaToolTip::KaToolTip(QObject* parent)
    : QObject(parent) {
    setObjectName(QStringLiteral("KaToolTip"));
}

KaToolTip* KaToolTip::instance() {
    static QPointer<KaToolTip> tip;
    if (!tip)
        tip = new KaToolTip(qApp);
    return tip;
}

QString KaToolTip::styleSheetTemplate() {
    return QString::fromLatin1(kTemplate).arg(reference(Karvox::label_primary_text),
                                              reference(Karvox::popover_primary_background),
                                              reference(Karvox::modal_primary_border));
}

QString KaToolTip::styleSheetText(BzThemeUtils::AppThemeType type) {
    auto color = [type](Karvox::Token token) {
        return BzThemeUtils::colorToCss(
            BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(token), type).normal());
    };
    return QString::fromLatin1(kTemplate).arg(color(Karvox::label_primary_text),
                                              color(Karvox::popover_primary_background),
                                              color(Karvox::modal_primary_border));
}

QWidget* KaToolTip::toolTipWidget() {
    if (!QToolTip::isVisible())
        return nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* w : windows) {
        if (w->objectName() == QLatin1String(kTipObjectName) && w->isVisible())
            return w;
    }
    return nullptr;
}

void KaToolTip::style(QWidget* tip, const QWidget* anchor) {
    if (!tip)
        return;
    // The tooltip window has no parent: hand it the anchor's theme type so
    // the template resolves against the same theme as the anchor.
    tip->setProperty("themeType",
                     BzThemeUtils::themeTypeToString(anchor ? BzThemeUtils::getThemeTypeOfWidget(anchor)
                                                            : BzThemeUtils::Global));
    const QSize before = tip->size();
    BzThemeUtils::setWidgetCSS(tip, styleSheetTemplate());
    // The border changes the size QToolTip measured; keep the top-left.
    tip->adjustSize();
    if (tip->size() != before)
        tip->update();
}

void KaToolTip::showText(const QPoint& globalPos, const QString& text, QWidget* widget, const QRect& rect,
                         int msecShowTime) {
    QToolTip::showText(globalPos, text, widget, rect, msecShowTime);
    g_anchor = widget;
    if (!text.isEmpty())
        style(toolTipWidget(), widget);
}

void KaToolTip::hideText() {
    QToolTip::hideText();
}

bool KaToolTip::isVisible() {
    return QToolTip::isVisible();
}

QString KaToolTip::text() {
    return QToolTip::text();
}

void KaToolTip::installOn(QWidget* widget) {
    if (!widget) {
        qWarning("KaToolTip: installOn() without a widget");
        return;
    }
    widget->installEventFilter(instance());
}

void KaToolTip::removeFrom(QWidget* widget) {
    if (widget)
        widget->removeEventFilter(instance());
}

void KaToolTip::onThemeChanged() {
    style(toolTipWidget(), g_anchor);
}

bool KaToolTip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget && !widget->toolTip().isEmpty()) {
            const auto* help = static_cast<QHelpEvent*>(event);
            showText(help->globalPos(), widget->toolTip(), widget, QRect(), widget->toolTipDuration());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
