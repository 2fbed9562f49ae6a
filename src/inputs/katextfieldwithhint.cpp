#include "katextfieldwithhint.h"

#include "kacolortokenutils.h"
#include "kalabel.h"

#include <bzfont.h>

#include <QBoxLayout>
#include <QLineEdit>

KaTextFieldWithHint::KaTextFieldWithHint(QWidget* parent)
    : KaTextField(parent) {
    init();
}

KaTextFieldWithHint::KaTextFieldWithHint(QWidget* parent, KaTextFieldEnum::Style style,
                                         KaTextFieldEnum::Size size)
    : KaTextField(parent, style, size) {
    init();
}

void KaTextFieldWithHint::init() {
    setObjectName(QStringLiteral("TextFieldWithHint"));
    m_label = new KaLabel(this);
    m_label->setFontToken(BzFont::Button, false);
    m_label->setTextColorSetName(KaColorTokenUtils::tokenToString(Karvox::label_primary_text));
    m_label->setBuddy(lineEdit());
    m_label->hide();
    static_cast<QBoxLayout*>(layout())->insertWidget(0, m_label);
}

void KaTextFieldWithHint::setLabelText(const QString& text) {
    if (text == m_labelText)
        return;
    m_labelText = text;
    m_label->setText(text);
    m_label->setVisible(!text.isEmpty());
    updateAccessibleName();
    updateGeometry();
    Q_EMIT labelTextChanged();
}

void KaTextFieldWithHint::setHintText(const QString& text) {
    if (text == m_hintText)
        return;
    m_hintText = text;
    setSupportingText(text);
    Q_EMIT hintTextChanged();
}

QString KaTextFieldWithHint::defaultAccessibleName() const {
    return m_labelText.isEmpty() ? KaTextField::defaultAccessibleName() : m_labelText;
}
