#pragma once

#include <QList>
#include <QWidget>

class KaCheckBox;
class KaLabelBase;
class KaRadioButton;
class KaSelectionGroup;
class KaSlider;

// Check boxes, radio buttons, option groups and sliders in every state.
class SelectionControlsSection : public QWidget {
    Q_OBJECT
public:
    explicit SelectionControlsSection(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslateUi();
    KaLabelBase* heading();

    QList<KaLabelBase*> m_headings;
    QList<KaCheckBox*> m_checkBoxes;
    QList<KaRadioButton*> m_radios;
    KaSelectionGroup* m_radioGroup = nullptr;
    KaSelectionGroup* m_checkGroup = nullptr;
    QList<KaSlider*> m_sliders;
    KaLabelBase* m_sliderValue = nullptr;
};
