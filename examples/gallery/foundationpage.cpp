#include "foundationpage.h"

#include "galleryutils.h"

#include <bzcssdata.h>
#include <bzfont.h>
#include <bzfontmanager.h>
#include <kalabelbase.h>

#include <QGridLayout>
#include <QMetaEnum>
#include <QVBoxLayout>

namespace {

struct ColorSample {
    const char* text; // source text in the FoundationPage context
    const char* background;
    const char* border;
    const char* textSet;
    int radius;
};

// Plain label colour sets first, then records that also paint a frame.
const ColorSample kColorSamples[] = {
    {QT_TRANSLATE_NOOP("FoundationPage", "Primary text"), "", "", "label-primary-text", 0},
    {QT_TRANSLATE_NOOP("FoundationPage", "Secondary text"), "", "", "label-secondary-text", 0},
    {QT_TRANSLATE_NOOP("FoundationPage", "Success text"), "", "", "label-success-text", 0},
    {QT_TRANSLATE_NOOP("FoundationPage", "Warning text"), "", "", "label-warning-text", 0},
    {QT_TRANSLATE_NOOP("FoundationPage", "Error text"), "", "", "label-error-text", 0},
    {QT_TRANSLATE_NOOP("FoundationPage", "Disabled text"), "", "", "label-common-disabled-text", 0},
    {QT_TRANSLATE_NOOP("FoundationPage", "On a secondary panel"), "panel-secondary-background",
     "separator-primary", "label-primary-text", 8},
    {QT_TRANSLATE_NOOP("FoundationPage", "Primary button colours"), "button-primary-background", "",
     "button-primary-text", -1},
    {QT_TRANSLATE_NOOP("FoundationPage", "Important badge"), "alertbadge-important-background", "",
     "alertbadge-important-text", -1},
};

QString describe(const ColorSample& sample) {
    QStringList parts;
    if (*sample.background)
        parts << FoundationPage::tr("background: %1").arg(QLatin1String(sample.background));
    if (*sample.border)
        parts << FoundationPage::tr("border: %1").arg(QLatin1String(sample.border));
    parts << FoundationPage::tr("text: %1").arg(QLatin1String(sample.textSet));
    return parts.join(QLatin1String(", "));
}

QString weightName(QFont::Weight weight) {
    switch (weight) {
    case QFont::Medium:
        return FoundationPage::tr("Medium");
    case QFont::DemiBold:
        return FoundationPage::tr("SemiBold");
    case QFont::Bold:
        return FoundationPage::tr("Bold");
    default:
        return FoundationPage::tr("Regular");
    }
}

QGridLayout* createGrid() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(10);
    return grid;
}

} // namespace

FoundationPage::FoundationPage(QWidget* parent)
    : GalleryPage(parent) {
    addColorSetSection();
    addFontSection();
    contentLayout()->addStretch(1);
    connect(BzFontManager::instance(), &BzFontManager::textScaleChanged, this,
            &FoundationPage::updateFontSizes);
    retranslateUi();
}

void FoundationPage::addColorSetSection() {
    m_colorSetsHeading = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title);
    GalleryUtils::markAsHeading(m_colorSetsHeading);
    contentLayout()->addWidget(m_colorSetsHeading);

    QGridLayout* grid = createGrid();
    int row = 0;
    for (const ColorSample& sample : kColorSamples) {
        KaLabelBase* label = GalleryUtils::createLabel(QString(), BzFont::Body);
        BzCSSData record;
        record.backgroundColorSet = QLatin1String(sample.background);
        record.borderColorSet = QLatin1String(sample.border);
        record.textColorSet = QLatin1String(sample.textSet);
        record.setBorders(*sample.border != '\0');
        record.borderRadius = sample.radius;
        label->setCSS(record);
        if (*sample.background)
            label->setContentsMargins(12, 6, 12, 6);
        m_colorSamples << label;

        KaLabelBase* name =
            GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::CaptionRegular);
        name->setWordWrap(true);
        m_colorSetNames << name;
        name->setTextInteractionFlags(Qt::TextSelectableByMouse);

        grid->addWidget(label, row, 0, Qt::AlignLeading | Qt::AlignVCenter);
        grid->addWidget(name, row, 1);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    contentLayout()->addLayout(grid);
    contentLayout()->addSpacing(16);
}

void FoundationPage::addFontSection() {
    m_fontsHeading = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title);
    m_fontsNote = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall);
    m_fontsNote->setWordWrap(true);
    GalleryUtils::markAsHeading(m_fontsHeading);
    contentLayout()->addWidget(m_fontsHeading);
    contentLayout()->addWidget(m_fontsNote);

    const QMetaEnum tokens = QMetaEnum::fromType<BzFont::Token>();
    QGridLayout* grid = createGrid();
    for (int token = 0; token < BzFont::TokenCount; ++token) {
        KaLabelBase* name = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Caption);
        name->setText(QStringLiteral("%1  %2").arg(token).arg(QLatin1String(tokens.valueToKey(token))));
        KaLabelBase* size =
            GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::CaptionRegular);
        KaLabelBase* sample = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), token);
        // Elided rather than widening the page when the text grows.
        sample->setElideMode(Qt::ElideRight);
        sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        m_fontSizes << size;
        m_fontSamples << sample;
        grid->addWidget(name, token, 0, Qt::AlignLeading | Qt::AlignVCenter);
        grid->addWidget(size, token, 1, Qt::AlignLeading | Qt::AlignVCenter);
        grid->addWidget(sample, token, 2);
    }
    grid->setColumnStretch(2, 1);
    contentLayout()->addLayout(grid);
}

void FoundationPage::updateFontSizes() {
    const double scale = BzFontManager::instance()->textScale();
    for (int token = 0; token < m_fontSizes.size(); ++token) {
        m_fontSizes[token]->setText(tr("%1 px, %2")
                                        .arg(BzFont::scaledPixelSizeOf(token, scale))
                                        .arg(weightName(BzFont::weightOf(token))));
    }
}

void FoundationPage::retranslateUi() {
    setDescription(tr("Themed labels take their colours from named colour sets of the current theme, and "
                      "their fonts from the font tokens, scaled with the text size."));
    m_colorSetsHeading->setText(tr("Colour sets"));
    for (int i = 0; i < m_colorSamples.size(); ++i)
        m_colorSamples[i]->setText(tr(kColorSamples[i].text));
    for (int i = 0; i < m_colorSetNames.size(); ++i)
        m_colorSetNames[i]->setText(describe(kColorSamples[i]));

    m_fontsHeading->setText(tr("Font tokens"));
    m_fontsNote->setText(tr("Every token with its pixel size at the current text size and its weight."));
    for (KaLabelBase* sample : std::as_const(m_fontSamples))
        sample->setText(tr("The quick brown fox jumps over the lazy dog"));
    updateFontSizes();
}
