#include "selectionpage.h"

#include "comboboxessection.h"
#include "selectioncontrolssection.h"

#include <QVBoxLayout>

SelectionPage::SelectionPage(QWidget* parent)
    : GalleryPage(parent) {
    contentLayout()->addWidget(new SelectionControlsSection);
    contentLayout()->addWidget(new ComboBoxesSection);
    contentLayout()->addStretch(1);
    retranslateUi();
}

void SelectionPage::retranslateUi() {
    setDescription(
        tr("Check boxes, radio buttons, option groups and sliders in every state; the whole row of "
           "an option is its click target. Combo boxes in both styles and sizes, editable or not, "
           "with a placeholder, with rows too long for the list and with 10,000 rows. Return, "
           "Enter and Alt+Down open the list; Space picks a row."));
}
