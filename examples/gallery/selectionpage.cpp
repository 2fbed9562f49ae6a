#include "selectionpage.h"

#include "selectioncontrolssection.h"

#include <QVBoxLayout>

SelectionPage::SelectionPage(QWidget* parent)
    : GalleryPage(parent) {
    contentLayout()->addWidget(new SelectionControlsSection);
    contentLayout()->addStretch(1);
    retranslateUi();
}

void SelectionPage::retranslateUi() {
    setDescription(tr("Check boxes, radio buttons, option groups and sliders in every state. The whole row "
                      "of an option is its click target."));
}
