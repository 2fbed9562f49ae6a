#include "popupspage.h"

#include "galleryutils.h"
#include "popuppreview.h"

#include <bzfont.h>
#include <bzthemeutils.h>
#include <kalabel.h>
#include <kamoreinfobutton.h>
#include <kapopover.h>
#include <katooltip.h>

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct ColorSample {
    const char* text; // source text in the PopupsPage context
    const char* set;
};

const ColorSample kColorSamples[] = {
    {QT_TRANSLATE_NOOP("PopupsPage", "Primary text (the default)"), "label-primary-text"},
    {QT_TRANSLATE_NOOP("PopupsPage", "Secondary text"), "label-secondary-text"},
    {QT_TRANSLATE_NOOP("PopupsPage", "Success text"), "label-success-text"},
    {QT_TRANSLATE_NOOP("PopupsPage", "Warning text"), "label-warning-text"},
    {QT_TRANSLATE_NOOP("PopupsPage", "Error text"), "label-error-text"},
};

// The popover buttons, in order: arrow position and whether it shows a
// header or the long text.
struct PopoverButton {
    const char* text;
    KaWidgetData::ArrowPostion arrow;
    bool header;
    bool longText;
};

const PopoverButton kPopoverButtons[] = {
    {QT_TRANSLATE_NOOP("PopupsPage", "Above"), KaWidgetData::ArrowBottom, false, false},
    {QT_TRANSLATE_NOOP("PopupsPage", "Below"), KaWidgetData::ArrowTop, false, false},
    {QT_TRANSLATE_NOOP("PopupsPage", "Left"), KaWidgetData::ArrowRight, false, false},
    {QT_TRANSLATE_NOOP("PopupsPage", "Right"), KaWidgetData::ArrowLeft, false, false},
    {QT_TRANSLATE_NOOP("PopupsPage", "No arrow"), KaWidgetData::ArrowNone, false, false},
    {QT_TRANSLATE_NOOP("PopupsPage", "Text popover"), KaWidgetData::ArrowTop, false, true},
    {QT_TRANSLATE_NOOP("PopupsPage", "With header"), KaWidgetData::ArrowBottom, true, true},
};

// Plain push buttons until the library's own buttons arrive; themed so that
// they do not glare on the dark themes.
const char kButtonTemplate[] = R"(
QPushButton { background: $(button-secondary-background); color: $(button-secondary-text);
              border: 1px solid $(button-secondary-border); border-radius: 4px; padding: 4px 12px; }
QPushButton:hover { background: $(button-secondary-background.hovered); }
QPushButton:pressed { background: $(button-secondary-background.pressed); }
)";

QPushButton* createButton() {
    auto* button = new QPushButton;
    GalleryUtils::followTextScale(button, BzFont::Button);
    BzThemeUtils::setWidgetCSS(button, QString::fromLatin1(kButtonTemplate));
    return button;
}

KaLabel* createKaLabel(int fontToken, QWidget* parent = nullptr) {
    auto* label = new KaLabel(parent);
    GalleryUtils::followTextScale(label, fontToken);
    return label;
}

} // namespace

PopupsPage::PopupsPage(QWidget* parent)
    : GalleryPage(parent) {
    addLabelSection();
    addPopoverSection();
    contentLayout()->addStretch(1);
    retranslateUi();
}

KaLabelBase* PopupsPage::heading() {
    KaLabelBase* label = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title);
    GalleryUtils::markAsHeading(label);
    m_headings << label;
    contentLayout()->addWidget(label);
    return label;
}

void PopupsPage::addLabelSection() {
    heading();
    auto* row = new QHBoxLayout;
    row->setSpacing(20);
    for (const ColorSample& sample : kColorSamples) {
        KaLabel* label = createKaLabel(BzFont::Body);
        if (qstrcmp(sample.set, "label-primary-text") != 0)
            label->setTextColorSetName(QLatin1String(sample.set));
        m_samples << LabelSample{label, sample.text};
        row->addWidget(label);
    }
    row->addStretch(1);
    contentLayout()->addLayout(row);

    m_wrapped = createKaLabel(BzFont::BodySmall);
    m_wrapped->setTextColorSetName(QStringLiteral("label-secondary-text"));
    m_wrapped->setWordWrap(true);
    m_wrapped->setMaximumWidth(420);

    m_selectable = createKaLabel(BzFont::Body);
    m_selectable->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_selectable->setFocusPolicy(Qt::StrongFocus);
    m_copied = createKaLabel(BzFont::CaptionRegular);
    m_copied->setTextColorSetName(QStringLiteral("label-success-text"));
    auto* copyColumn = new QVBoxLayout;
    copyColumn->setSpacing(2);
    copyColumn->addWidget(m_selectable);
    copyColumn->addWidget(m_copied);
    auto* secondRow = new QHBoxLayout;
    secondRow->setSpacing(32);
    secondRow->addWidget(m_wrapped, 0, Qt::AlignTop);
    secondRow->addLayout(copyColumn);
    secondRow->addStretch(1);
    contentLayout()->addLayout(secondRow);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        const QString text = QGuiApplication::clipboard()->text();
        m_copied->setText(text.isEmpty() ? QString() : tr("Copied: \u201c%1\u201d").arg(text));
    });
    contentLayout()->addSpacing(8);
}

void PopupsPage::addPopoverSection() {
    heading();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    for (int i = 0; i < int(std::size(kPopoverButtons)); ++i) {
        QPushButton* button = createButton();
        connect(button, &QPushButton::clicked, this, [this, i] { openPopover(i); });
        m_popoverButtons << button;
        buttons->addWidget(button);
    }
    // The anchor sits apart from the buttons with room on every side, so
    // each popover can open where it was asked to.
    m_anchor = createButton();
    m_anchor->setMinimumWidth(100);
    buttons->addStretch(1);
    buttons->addWidget(m_anchor);
    buttons->addSpacing(80);
    contentLayout()->addLayout(buttons);

    addToolTipRow();

    m_preview = new PopupPreview;
    contentLayout()->addWidget(m_preview, 0, Qt::AlignLeading);
}

void PopupsPage::addToolTipRow() {
    m_toolTipButton = createButton();
    KaToolTip::installOn(m_toolTipButton);

    // What the tooltip looks like, for screenshots: the same sheet on a label.
    m_toolTipSample = new QLabel;
    m_toolTipSample->setMargin(4);
    GalleryUtils::followTextScale(m_toolTipSample, BzFont::BodySmall);
    QString sheet = KaToolTip::styleSheetTemplate();
    sheet.replace(QLatin1String("QToolTip"), QLatin1String("QLabel"));
    BzThemeUtils::setWidgetCSS(m_toolTipSample, sheet);

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_toolTipButton);
    row->addWidget(m_toolTipSample);
    m_moreInfo = new KaMoreInfoButton;
    row->addSpacing(24);
    row->addWidget(m_moreInfo);
    row->addStretch(1);
    contentLayout()->addLayout(row);
}

void PopupsPage::openPopover(int button) {
    if (m_popover)
        m_popover->close();
    const PopoverButton& entry = kPopoverButtons[button];
    KaWidgetData request;
    request.arrowPostion(entry.arrow);
    if (entry.header)
        request.headerText(tr("Did you know?"));
    const QString text = entry.longText
                             ? tr("A text popover wraps its text so that the bubble never gets wider than "
                                  "306 pixels, however long the text is.")
                             : tr("Opened from the anchor");
    m_popover = KaPopover::createAndShowTextPopover(m_anchor, window(), text, request);
}

void PopupsPage::hideEvent(QHideEvent* event) {
    // A popover belongs to this page; it should not linger over another one.
    if (m_popover)
        m_popover->close();
    GalleryPage::hideEvent(event);
}

void PopupsPage::retranslateUi() {
    setDescription(tr("The themed label, popovers on every side of an anchor, and tooltips. The buttons open "
                      "real popovers against the anchor; the pictures show every side with and without an "
                      "arrow."));
    const char* headings[] = {QT_TR_NOOP("Labels"), QT_TR_NOOP("Popovers and tooltips")};
    for (int i = 0; i < m_headings.size(); ++i)
        m_headings[i]->setText(tr(headings[i]));
    for (const LabelSample& sample : m_samples)
        sample.label->setText(tr(sample.text));
    m_wrapped->setText(tr("A label with word wrap and a maximum width of 420 pixels breaks its text over as "
                          "many lines as it needs instead of widening the page."));
    m_selectable->setText(tr("Select part of this text and press Ctrl+C to copy it."));
    for (int i = 0; i < m_popoverButtons.size(); ++i)
        m_popoverButtons[i]->setText(tr(kPopoverButtons[i].text));
    m_anchor->setText(tr("Anchor"));
    m_preview->setAccessibleName(tr("Popover previews"));
    m_preview->retranslateUi();
    m_toolTipButton->setText(tr("Hover for a tooltip"));
    m_toolTipButton->setToolTip(tr("Tooltips take the popover colours of the theme."));
    m_toolTipSample->setText(tr("Tooltips take the popover colours of the theme."));
    m_moreInfo->setInfoText(
        tr("A more-info button explains a setting in a text popover and reads the text out "
           "to screen readers."));
}
