#include "focuspage.h"

FocusPage::FocusPage(QWidget* parent)
    : GalleryPage(parent) {
    retranslateUi();
}

void FocusPage::retranslateUi() {
    setDescription(tr("Coming soon."));
}
