#pragma once

#include "gallerypage.h"

// Selection controls, one section per group: check boxes, radio buttons,
// option groups and sliders, then combo boxes.
class SelectionPage : public GalleryPage {
    Q_OBJECT
public:
    explicit SelectionPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;
};
