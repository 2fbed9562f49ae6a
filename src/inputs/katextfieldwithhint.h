#pragma once

#include "katextfield.h"

class KaLabel;

// A text field with a label above it and a hint below. An error text takes
// the hint's place until it is cleared. The label names the editor for
// screen readers (the placeholder does while there is no label).
class KARVEX_EXPORT KaTextFieldWithHint : public KaTextField {
    Q_OBJECT
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText NOTIFY labelTextChanged)
    Q_PROPERTY(QString hintText READ hintText WRITE setHintText NOTIFY hintTextChanged)

public:
    explicit KaTextFieldWithHint(QWidget* parent = nullptr);
    KaTextFieldWithHint(QWidget* parent, KaTextFieldEnum::Style style, KaTextFieldEnum::Size size);

    QString labelText() const { return m_labelText; }
    void setLabelText(const QString& text);
    QString hintText() const { return m_hintText; }
    void setHintText(const QString& text);

Q_SIGNALS:
    void labelTextChanged();
    void hintTextChanged();

protected:
    QString defaultAccessibleName() const override;

private:
    void init();

    KaLabel* m_label = nullptr;
    QString m_labelText;
    QString m_hintText;
};
