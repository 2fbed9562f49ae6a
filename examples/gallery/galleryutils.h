#pragma once

#include <QString>

class KaLabelBase;
class QAbstractItemView;
class QScrollArea;
class QWidget;

// Small helpers the gallery pages share.
namespace GalleryUtils {

// A themed label in the text colour set `textColorSet`, with the font of
// `fontToken` following the text scale.
KaLabelBase* createLabel(const QString& textColorSet, int fontToken, QWidget* parent = nullptr);

// Gives `widget` the scaled font of `fontToken` and keeps it in step with
// later changes of the text scale.
void followTextScale(QWidget* widget, int fontToken);

// QLabel aligns plain text by the text's own direction, so Latin text stays
// on the left in a right-to-left layout. Gives every themed label under
// `root` the leading side of its layout direction instead.
void alignLabelsToLayoutDirection(QWidget* root);

// Tells screen readers that `label` heads the content after it, so they can
// list and jump between sections. Call before the label is first shown.
void markAsHeading(QWidget* label);

// Qt reports a view's current item as focused even while focus is
// elsewhere, which screen readers take for a second focus. Makes `view`
// keep a current item only while it has focus and restore it on return.
void keepCurrentItemWithFocus(QAbstractItemView* view);

// A frameless scroll area that shows its parent's background and has
// themed scroll bars.
void styleScrollArea(QScrollArea* area);

} // namespace GalleryUtils
