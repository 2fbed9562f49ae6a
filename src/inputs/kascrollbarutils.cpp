#include "kascrollbarutils.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

namespace KaScrollbarUtils {

namespace {

// The thumb's shortest length per minimum size.
constexpr int kShortThumb[] = {24, 40};

// %1 orientation, %2 the bar's extent ("width" of a vertical bar), %3 the
// thumb's length property, %4 its shortest length.
const char kRules[] =
    "QScrollBar:%1{background:$(scrollbar-track-background);%2:10px;margin:0px;border:none;}"
    "QScrollBar::handle:%1{background:$(scrollbar-thumb-background);min-%3:%4px;"
    "border-radius:3px;margin:2px;}"
    "QScrollBar::handle:%1:hover{background:$(scrollbar-thumb-background.hovered);}"
    "QScrollBar::handle:%1:pressed{background:$(scrollbar-thumb-background.pressed);}"
    "QScrollBar::add-line:%1,QScrollBar::sub-line:%1{%3:0px;border:none;background:none;}"
    "QScrollBar::add-page:%1,QScrollBar::sub-page:%1{background:none;}";

} // namespace

QString getScrollBarTemplate(KaScrollbarEnum::MinimumSize minimumSize, Qt::Orientations orientations) {
    int size = int(minimumSize);
    if (size != KaScrollbarEnum::Small && size != KaScrollbarEnum::Normal) {
        qWarning("KaScrollbarUtils: unknown minimum size %d, using Normal", size);
        size = KaScrollbarEnum::Normal;
    }
    const QString shortThumb = QString::number(kShortThumb[size]);
    QString out;
    if (orientations & Qt::Vertical)
        out += QString::fromLatin1(kRules).arg(QLatin1String("vertical"), QLatin1String("width"),
                                               QLatin1String("height"), shortThumb);
    if (orientations & Qt::Horizontal)
        out += QString::fromLatin1(kRules).arg(QLatin1String("horizontal"), QLatin1String("height"),
                                               QLatin1String("width"), shortThumb);
    return out;
}

QString getScrollBarStyleSheet(KaScrollbarEnum::MinimumSize minimumSize, BzThemeUtils::AppThemeType type,
                               Qt::Orientations orientations) {
    return BzThemeUtils::resolveTemplate(getScrollBarTemplate(minimumSize, orientations), type);
}

void applyScrollBarStyle(QAbstractScrollArea* area, KaScrollbarEnum::MinimumSize minimumSize) {
    if (!area) {
        qWarning("KaScrollbarUtils::applyScrollBarStyle: null scroll area ignored");
        return;
    }
    BzThemeUtils::setWidgetCSS(area->verticalScrollBar(), getScrollBarTemplate(minimumSize, Qt::Vertical));
    BzThemeUtils::setWidgetCSS(area->horizontalScrollBar(),
                               getScrollBarTemplate(minimumSize, Qt::Horizontal));
}

} // namespace KaScrollbarUtils
