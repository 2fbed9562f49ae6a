#pragma once

#include "gallerypage.h"

class TextFieldsSection;

// Text fields, the PIN field, multi-line text and the rich labels.
class TextInputPage : public GalleryPage {
    Q_OBJECT
public:
    explicit TextInputPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    TextFieldsSection* m_fields = nullptr;
};
