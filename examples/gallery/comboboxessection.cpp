#include "comboboxessection.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <kacombobox.h>
#include <kacomboboxdelegate.h>
#include <kalabelbase.h>

#include <QEvent>
#include <QGridLayout>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

constexpr int kComboWidth = 220;
constexpr int kManyRows = 10000;

} // namespace

ComboBoxesSection::ComboBoxesSection(QWidget* parent)
    : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    m_heading = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title, this);
    GalleryUtils::markAsHeading(m_heading);
    column->addWidget(m_heading);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(3, 1);
    column->addLayout(grid);

    const QStringList rooms = {QStringLiteral("Harbour"), QStringLiteral("Lighthouse"),
                               QStringLiteral("Orchard"), QStringLiteral("Quarry"), QStringLiteral("Meadow")};
    KaComboBox* outline = addCombo(0, 0, QT_TRANSLATE_NOOP("ComboBoxesSection", "Outline"));
    KaComboBox* outlineLarge = addCombo(0, 1, QT_TRANSLATE_NOOP("ComboBoxesSection", "Outline, large"));
    KaComboBox* filled = addCombo(0, 2, QT_TRANSLATE_NOOP("ComboBoxesSection", "Filled"));
    KaComboBox* filledLarge = addCombo(2, 0, QT_TRANSLATE_NOOP("ComboBoxesSection", "Filled, large"));
    outlineLarge->setSize(KaComboBoxEnum::Large);
    filled->setStyle(KaComboBoxEnum::Filled);
    filledLarge->setStyle(KaComboBoxEnum::Filled);
    filledLarge->setSize(KaComboBoxEnum::Large);
    for (KaComboBox* combo : {outline, outlineLarge, filled, filledLarge})
        combo->addItems(rooms);
    filled->setCurrentIndex(2);

    KaComboBox* editable = addCombo(2, 1, QT_TRANSLATE_NOOP("ComboBoxesSection", "Editable"));
    editable->setEditable(true);
    editable->addItems(rooms);

    m_placeholder = addCombo(2, 2, QT_TRANSLATE_NOOP("ComboBoxesSection", "With a placeholder"));
    m_placeholder->addItems(rooms);
    m_placeholder->setCurrentIndex(-1);

    KaComboBox* longRows = addCombo(4, 0, QT_TRANSLATE_NOOP("ComboBoxesSection", "Long rows (tooltips)"));
    longRows->addItems(
        {QStringLiteral("Weekly planning with the design, research and engineering teams"),
         QStringLiteral("Short"),
         QStringLiteral("Quarterly review of the customer support backlog and its escalations")});
    longRows->setItemData(1, QStringLiteral("Short: fifteen minutes, no agenda, standing only"),
                          Qt::WhatsThisRole);

    KaComboBox* many = addCombo(4, 1, QT_TRANSLATE_NOOP("ComboBoxesSection", "10,000 rows"));
    auto* model = new QStandardItemModel(0, 1, many);
    for (int i = 1; i <= kManyRows; ++i)
        model->appendRow(new QStandardItem(QStringLiteral("Row %1").arg(i)));
    many->setModel(model);

    KaComboBox* disabled = addCombo(4, 2, QT_TRANSLATE_NOOP("ComboBoxesSection", "Disabled"));
    disabled->addItems(rooms);
    disabled->setEnabled(false);

    m_clickOnly = addCombo(6, 0, QT_TRANSLATE_NOOP("ComboBoxesSection", "Without a list (click target)"));
    m_clickOnly->addItem(QStringLiteral("Pick on the next page"));
    m_clickOnly->setShowPopupEnabled(false);
    m_clickResult =
        GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall, this);
    grid->addWidget(m_clickResult, 8, 0, 1, 3);
    connect(m_clickOnly, &KaComboBoxBase::contentAreaClicked, this, [this] {
        ++m_clicks;
        retranslateUi();
    });

    KaComboBox* upwards = addCombo(6, 1, QT_TRANSLATE_NOOP("ComboBoxesSection", "Opens upwards"));
    upwards->addItems(rooms);
    upwards->setOpenedUpwards(true);

    retranslateUi();
}

KaComboBox* ComboBoxesSection::addCombo(int row, int column, const char* caption) {
    auto* grid = static_cast<QGridLayout*>(layout()->itemAt(1)->layout());
    KaLabelBase* label =
        GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Caption, this);
    auto* combo = new KaComboBox(this);
    combo->setFixedWidth(kComboWidth);
    auto* delegate = new KaComboBoxDelegate(combo);
    delegate->setDrawIcon(true);
    combo->setItemDelegate(delegate);
    combo->setPopupItemIconSize(18);
    combo->setFontType(FontManagerEnum::Scaled); // follows the gallery's text size
    grid->addWidget(label, row, column);
    grid->addWidget(combo, row + 1, column, Qt::AlignTop);
    m_entries << Entry{combo, label, caption};
    return combo;
}

void ComboBoxesSection::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void ComboBoxesSection::retranslateUi() {
    m_heading->setText(tr("Combo boxes"));
    for (const Entry& entry : m_entries) {
        entry.caption->setText(tr(entry.source));
        entry.combo->setAccessibleName(tr(entry.source));
    }
    m_placeholder->setPlaceholderText(tr("Choose a room"));
    m_clickResult->setText(m_clicks == 0 ? tr("Not clicked yet.") : tr("Clicked %n time(s).", "", m_clicks));
}
