#include "buttonspage.h"

ButtonsPage::ButtonsPage(QWidget* parent)
    : GalleryPage(parent) {
    retranslateUi();
}

void ButtonsPage::retranslateUi() {
    setDescription(tr("Coming soon."));
}
