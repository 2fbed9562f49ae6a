#pragma once

#include <QList>
#include <QWidget>

class KaLabelBase;
class KaPinTextField;
class KaTextBrowser;
class KaTextEdit;
class KaTextField;
class KaTextFieldWithHint;

// Text fields in every style, size and state, the PIN field, and the
// multi-line editor and browser: the editing half of the text input page.
class TextFieldsSection : public QWidget {
    Q_OBJECT
public:
    explicit TextFieldsSection(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslateUi();
    KaLabelBase* heading();
    KaLabelBase* caption();

    struct Field {
        KaTextField* field;
        const char* placeholder;
    };
    QList<Field> m_fields;
    QList<KaLabelBase*> m_headings;
    QList<KaLabelBase*> m_captions;
    KaTextField* m_error = nullptr;
    KaTextField* m_limited = nullptr;
    KaTextField* m_readOnly = nullptr;
    KaTextFieldWithHint* m_withHint = nullptr;
    KaTextFieldWithHint* m_withHintError = nullptr;
    KaPinTextField* m_pin = nullptr;
    KaPinTextField* m_pinHidden = nullptr;
    KaLabelBase* m_pinResult = nullptr;
    KaTextEdit* m_edit = nullptr;
    KaTextBrowser* m_browser = nullptr;
    KaLabelBase* m_linkResult = nullptr;
};
