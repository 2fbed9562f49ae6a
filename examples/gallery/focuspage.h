#pragma once

#include "gallerypage.h"

class FocusPage : public GalleryPage {
    Q_OBJECT
public:
    explicit FocusPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;
};
