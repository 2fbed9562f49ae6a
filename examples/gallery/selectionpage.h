#pragma once

#include "gallerypage.h"

class ComboBoxesSection;

// Selection controls, one section per group of controls.
class SelectionPage : public GalleryPage {
    Q_OBJECT
public:
    explicit SelectionPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    ComboBoxesSection* m_comboBoxes = nullptr;
};
