#pragma once

#include "gallerypage.h"

class KaLabelBase;

// A form drawn in Qt Designer with every widget of the Designer plugin,
// loaded at run time through QUiLoader and the plugin, as a host
// application would load its own forms.
class DesignerFormsPage : public GalleryPage {
    Q_OBJECT
public:
    explicit DesignerFormsPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    KaLabelBase* m_note;
    bool m_loaded = false;
};
