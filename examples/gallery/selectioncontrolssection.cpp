#include "selectioncontrolssection.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <kacheckbox.h>
#include <kalabelbase.h>
#include <kaoptionrow.h>
#include <karadiobutton.h>
#include <kaselectiongroup.h>
#include <kaslider.h>

#include <QEvent>
#include <QGridLayout>
#include <QVBoxLayout>

namespace {

const char* const kHeadings[] = {
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Check boxes and radio buttons"),
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Option groups"),
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Sliders"),
};

// Column captions of the state grid, then the states themselves.
const char* const kStates[] = {
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Unchecked"),
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Checked"),
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Partly checked"),
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Disabled"),
    QT_TRANSLATE_NOOP("SelectionControlsSection", "Disabled, checked"),
};

} // namespace

SelectionControlsSection::SelectionControlsSection(QWidget* parent)
    : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);

    column->addWidget(heading());
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(8);
    for (int i = 0; i < int(std::size(kStates)); ++i) {
        auto* box = new KaCheckBox(this);
        box->setTristate(i == 2);
        box->setCheckState(i == 1 || i == 4 ? Qt::Checked : i == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
        box->setEnabled(i < 3);
        m_checkBoxes << box;
        grid->addWidget(box, 0, i);
        if (i == 2)
            continue; // radio buttons have no partial state
        // Not exclusive here, so that each shows its own state.
        auto* radio = new KaRadioButton(this);
        radio->setAutoExclusive(false);
        radio->setChecked(i == 1 || i == 4);
        radio->setEnabled(i < 3);
        m_radios << radio;
        grid->addWidget(radio, 1, i);
    }
    grid->setColumnStretch(int(std::size(kStates)), 1);
    column->addLayout(grid);

    column->addWidget(heading());
    auto* groups = new QHBoxLayout;
    groups->setSpacing(48);
    m_radioGroup = new KaSelectionGroup(KaOptionRow::RadioButton, this);
    for (int i = 0; i < 3; ++i)
        m_radioGroup->addOption(QString());
    m_radioGroup->setCheckedIndex(0);
    m_checkGroup = new KaSelectionGroup(KaOptionRow::CheckBox, this);
    for (int i = 0; i < 3; ++i)
        m_checkGroup->addOption(QString());
    m_checkGroup->option(1)->setChecked(true);
    groups->addWidget(m_radioGroup, 0, Qt::AlignTop);
    groups->addWidget(m_checkGroup, 0, Qt::AlignTop);
    groups->addStretch(1);
    column->addLayout(groups);

    column->addWidget(heading());
    auto* sliders = new QHBoxLayout;
    sliders->setSpacing(32);
    auto* horizontal = new QVBoxLayout;
    horizontal->setSpacing(16);
    for (int i = 0; i < 3; ++i) {
        auto* slider = new KaSlider(Qt::Horizontal, this);
        slider->setRange(0, 100);
        slider->setValue(30 + 20 * i);
        slider->setMinimumWidth(240);
        if (i == 1) {
            slider->setTickPosition(QSlider::TicksBelow);
            slider->setTickInterval(10);
        }
        slider->setEnabled(i != 2);
        m_sliders << slider;
        horizontal->addWidget(slider);
    }
    m_sliderValue =
        GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall, this);
    horizontal->addWidget(m_sliderValue);
    sliders->addLayout(horizontal);
    auto* vertical = new KaSlider(Qt::Vertical, this);
    vertical->setRange(0, 10);
    vertical->setValue(7);
    vertical->setTickPosition(QSlider::TicksBothSides);
    vertical->setTickInterval(1);
    vertical->setMinimumHeight(120);
    m_sliders << vertical;
    sliders->addWidget(vertical);
    sliders->addStretch(1);
    column->addLayout(sliders);
    connect(m_sliders.first(), &QSlider::valueChanged, this, [this] { retranslateUi(); });

    retranslateUi();
}

void SelectionControlsSection::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

KaLabelBase* SelectionControlsSection::heading() {
    KaLabelBase* label = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title, this);
    GalleryUtils::markAsHeading(label);
    m_headings << label;
    return label;
}

void SelectionControlsSection::retranslateUi() {
    for (int i = 0; i < m_headings.size(); ++i)
        m_headings[i]->setText(tr(kHeadings[i]));
    for (int i = 0; i < m_checkBoxes.size(); ++i)
        m_checkBoxes[i]->setText(tr(kStates[i]));
    const int radioStates[] = {0, 1, 3, 4};
    for (int i = 0; i < m_radios.size(); ++i)
        m_radios[i]->setText(tr(kStates[radioStates[i]]));
    m_radioGroup->setTitle(tr("Call quality"));
    const char* const quality[][2] = {
        {QT_TR_NOOP("Automatic"), QT_TR_NOOP("Adjusts to your connection.")},
        {QT_TR_NOOP("Best picture"), QT_TR_NOOP("Uses more data.")},
        {QT_TR_NOOP("Save data"), QT_TR_NOOP("Lower resolution, audio first.")},
    };
    for (int i = 0; i < 3; ++i) {
        m_radioGroup->option(i)->setText(tr(quality[i][0]));
        m_radioGroup->option(i)->setDescription(tr(quality[i][1]));
    }
    m_checkGroup->setTitle(tr("Notify me about"));
    const char* const topics[] = {QT_TR_NOOP("Mentions"), QT_TR_NOOP("Replies"), QT_TR_NOOP("Reactions")};
    for (int i = 0; i < 3; ++i)
        m_checkGroup->option(i)->setText(tr(topics[i]));
    m_checkGroup->selectAllBox()->setText(tr("Select all"));
    const char* const sliderNames[] = {QT_TR_NOOP("Volume"), QT_TR_NOOP("Zoom"), QT_TR_NOOP("Brightness"),
                                       QT_TR_NOOP("Speaker balance")};
    for (int i = 0; i < m_sliders.size(); ++i)
        m_sliders[i]->setAccessibleName(tr(sliderNames[i]));
    m_sliderValue->setText(tr("Volume: %1 %").arg(m_sliders.first()->value()));
}
