#pragma once

#include "gallerypage.h"

class ButtonsPage : public GalleryPage {
    Q_OBJECT
public:
    explicit ButtonsPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;
};
