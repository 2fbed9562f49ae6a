#include "textinputpage.h"

#include "textfieldssection.h"

#include <QVBoxLayout>

TextInputPage::TextInputPage(QWidget* parent)
    : GalleryPage(parent) {
    m_fields = new TextFieldsSection;
    contentLayout()->addWidget(m_fields);
    contentLayout()->addStretch(1);
    retranslateUi();
}

void TextInputPage::retranslateUi() {
    setDescription(tr("Text fields in every style, size and state, PIN entry, and multi-line text. Errors "
                      "appear under the field and are read out; links in the browser only report "
                      "themselves."));
}
