#include "popupspage.h"

PopupsPage::PopupsPage(QWidget* parent)
    : GalleryPage(parent) {
    retranslateUi();
}

void PopupsPage::retranslateUi() {
    setDescription(tr("Coming soon."));
}
