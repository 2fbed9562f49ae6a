#include "selectionpage.h"

#include "comboboxessection.h"

#include <QVBoxLayout>

SelectionPage::SelectionPage(QWidget* parent)
    : GalleryPage(parent) {
    // One section per group; each adds itself above the closing stretch.
    m_comboBoxes = new ComboBoxesSection;
    contentLayout()->addWidget(m_comboBoxes);
    contentLayout()->addStretch(1);
    retranslateUi();
}

void SelectionPage::retranslateUi() {
    setDescription(
        tr("Combo boxes in both styles and sizes, editable or not, with a placeholder, with rows too "
           "long for the list and with 10,000 rows. Return, Enter and Alt+Down open the list; Space "
           "picks a row."));
}
