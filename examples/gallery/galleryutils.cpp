#include "galleryutils.h"

#include <bzcssdata.h>
#include <bzfont.h>
#include <bzfontmanager.h>
#include <bzscaledfont.h>
#include <bzthemeutils.h>
#include <kalabelbase.h>

#include <QScrollArea>
#include <QScrollBar>

namespace {
// Scroll bars get their own template: a template on the scroll area would
// cascade into every label of the page and fight with their palettes.
const char kScrollBarTemplate[] = R"(
QScrollBar { background: $(scrollbar-track-background); border: none; margin: 0; }
QScrollBar:vertical { width: 10px; }
QScrollBar:horizontal { height: 10px; }
QScrollBar::handle { background: $(scrollbar-thumb-background); border-radius: 3px; margin: 2px; }
QScrollBar::handle:hover { background: $(scrollbar-thumb-background.hovered); }
QScrollBar::handle:pressed { background: $(scrollbar-thumb-background.pressed); }
QScrollBar::handle:vertical { min-height: 24px; }
QScrollBar::handle:horizontal { min-width: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; background: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
)";
} // namespace

namespace GalleryUtils {

KaLabelBase* createLabel(const QString& textColorSet, int fontToken, QWidget* parent) {
    auto* label = new KaLabelBase(parent);
    BzCSSData record;
    record.textColorSet = textColorSet;
    label->setCSS(record);
    followTextScale(label, fontToken);
    return label;
}

void followTextScale(QWidget* widget, int fontToken) {
    BzFontManager* manager = BzFontManager::instance();
    if (auto* label = qobject_cast<KaLabelBase*>(widget)) {
        // Going through the label keeps its fontToken property right.
        label->setFontToken(fontToken, true);
        QObject::connect(manager, &BzFontManager::textScaleChanged, label,
                         [label, fontToken] { label->setFontToken(fontToken, true); });
        return;
    }
    BzScaledFont* scaled = manager->scaledFont(FontManagerEnum::Scaled, fontToken);
    widget->setFont(scaled->font());
    QObject::connect(scaled, &BzScaledFont::fontTokenChanged, widget,
                     [widget, scaled] { widget->setFont(scaled->font()); });
}

void alignLabelsToLayoutDirection(QWidget* root) {
    const auto labels = root->findChildren<KaLabelBase*>();
    for (KaLabelBase* label : labels) {
        const Qt::Alignment side =
            label->layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
        const Qt::Alignment vertical = label->alignment() & Qt::AlignVertical_Mask;
        label->setAlignment(side | Qt::AlignAbsolute | vertical);
    }
}

void styleScrollArea(QScrollArea* area) {
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->viewport()->setAutoFillBackground(false);
    BzThemeUtils::setWidgetCSS(area->verticalScrollBar(), QString::fromLatin1(kScrollBarTemplate));
    BzThemeUtils::setWidgetCSS(area->horizontalScrollBar(), QString::fromLatin1(kScrollBarTemplate));
}

} // namespace GalleryUtils
