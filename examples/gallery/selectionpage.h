#pragma once

#include "gallerypage.h"

// Check boxes, radio buttons, option groups, sliders and combo boxes.
class SelectionPage : public GalleryPage {
    Q_OBJECT
public:
    explicit SelectionPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;
};
