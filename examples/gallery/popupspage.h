#pragma once

#include "gallerypage.h"

class PopupsPage : public GalleryPage {
    Q_OBJECT
public:
    explicit PopupsPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;
};
