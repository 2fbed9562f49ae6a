#include "textinputpage.h"

#include "galleryutils.h"
#include "textfieldssection.h"

#include <bzfont.h>
#include <kaannouncelabel.h>
#include <kaconfig.h>
#include <kaemojilabel.h>
#include <kagiflabel.h>
#include <kamultiplelinklabel.h>
#include <kapillbutton.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

const char kContext[] = "TextInputPage";

QString translated(const char* source) {
    return QCoreApplication::translate(kContext, source);
}

QGridLayout* sectionGrid(QWidget* parent) {
    auto* grid = new QGridLayout(parent);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(14);
    grid->setColumnStretch(2, 1);
    return grid;
}

// Emoji samples: sequences with images, one without (left as text), and
// the states.
const char* const kEmojiTexts[] = {
    QT_TRANSLATE_NOOP("TextInputPage", "Great work \U0001F44D \U0001F389 \u2764\uFE0F"),
    QT_TRANSLATE_NOOP("TextInputPage", "Skin tone \U0001F44D\U0001F3FD, flag \U0001F1EF\U0001F1F5, "
                                       "joined \U0001F3F3\uFE0F\u200D\U0001F308, keycap 1\uFE0F\u20E3"),
    QT_TRANSLATE_NOOP("TextInputPage",
                      "No picture for \U0001F468\u200D\U0001F469\u200D\U0001F467: it stays text"),
};

const char kSelectable[] =
    QT_TRANSLATE_NOOP("TextInputPage", "Select me and press Ctrl+C: \U0001F525 \U0001F4AF");
const char kDisabledEmoji[] = QT_TRANSLATE_NOOP("TextInputPage", "Disabled \U0001F642");

const char kLinks[] = QT_TRANSLATE_NOOP(
    "TextInputPage", "By joining you accept the <a href=\"terms\">Terms</a>, the <a href=\"privacy\">Privacy "
                     "notice</a> and the <a href=\"rules\">House rules</a>.");
const char kDisabledLinks[] =
    QT_TRANSLATE_NOOP("TextInputPage", "Disabled: <a href=\"help\">Help</a> and <a href=\"about\">About</a>");

} // namespace

TextInputPage::TextInputPage(QWidget* parent)
    : GalleryPage(parent) {
    contentLayout()->addStretch(1);
    addSection(QT_TRANSLATE_NOOP("TextInputPage", "Text fields"), new TextFieldsSection);
    addSection(QT_TRANSLATE_NOOP("TextInputPage", "Labels"), createLabelsSection());
    retranslateUi();
}

void TextInputPage::addSection(const char* title, QWidget* content) {
    if (content)
        insertSection(addLabel(title, nullptr, true), content);
}

KaLabelBase* TextInputPage::addLabel(const char* source, QWidget* parent, bool heading) {
    KaLabelBase* label =
        heading
            ? GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Subtitle, parent)
            : GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall, parent);
    if (heading)
        GalleryUtils::markAsHeading(label);
    label->setText(translated(source));
    m_labels.emplace_back(label, source);
    return label;
}

void TextInputPage::addRowCaption(QGridLayout* grid, int row, const char* source) {
    grid->addWidget(addLabel(source, grid->parentWidget(), false), row, 0, Qt::AlignLeading | Qt::AlignTop);
}

QWidget* TextInputPage::createLabelsSection() {
    auto* box = new QWidget;
    QGridLayout* grid = sectionGrid(box);
    int row = 0;

    // Emoji labels.
    addRowCaption(grid, row, QT_TRANSLATE_NOOP("TextInputPage", "Emoji label"));
    auto* emojiColumn = new QVBoxLayout;
    emojiColumn->setSpacing(6);
    for (const char* source : kEmojiTexts) {
        auto* label = new KaEmojiLabel(box);
        GalleryUtils::followTextScale(label, BzFont::Body);
        emojiColumn->addWidget(label);
        m_widgetTexts.emplace_back(label, source);
    }
    auto* selectable = new KaEmojiLabel(box);
    GalleryUtils::followTextScale(selectable, BzFont::Body);
    selectable->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    selectable->setFocusPolicy(Qt::StrongFocus);
    emojiColumn->addWidget(selectable);
    m_widgetTexts.emplace_back(selectable, kSelectable);
    auto* disabled = new KaEmojiLabel(box);
    GalleryUtils::followTextScale(disabled, BzFont::Body);
    disabled->setEnabled(false);
    emojiColumn->addWidget(disabled);
    m_widgetTexts.emplace_back(disabled, kDisabledEmoji);
    grid->addLayout(emojiColumn, row++, 1);

    // Multiple links: Tab walks the links, Enter or Space activates one.
    addRowCaption(grid, row, QT_TRANSLATE_NOOP("TextInputPage", "Multiple-link label"));
    auto* linkColumn = new QVBoxLayout;
    linkColumn->setSpacing(6);
    m_links = new KaMultipleLinkLabel(box);
    GalleryUtils::followTextScale(m_links, BzFont::Body);
    m_activated = new KaLabel(box);
    GalleryUtils::followTextScale(m_activated, BzFont::CaptionRegular);
    m_activated->setTextColorSetName(QStringLiteral("label-secondary-text"));
    connect(m_links, &QLabel::linkActivated, this, [this](const QString& href) {
        m_lastLink = href;
        m_activated->setText(tr("Activated: %1").arg(href));
    });
    m_disabledLinks = new KaMultipleLinkLabel(box);
    GalleryUtils::followTextScale(m_disabledLinks, BzFont::Body);
    m_disabledLinks->setEnabled(false);
    linkColumn->addWidget(m_links);
    linkColumn->addWidget(m_activated);
    linkColumn->addWidget(m_disabledLinks);
    grid->addLayout(linkColumn, row++, 1);

    // Announce label: screen readers hear every new text.
    addRowCaption(grid, row, QT_TRANSLATE_NOOP("TextInputPage", "Announce label"));
    auto* announceRow = new QHBoxLayout;
    announceRow->setSpacing(12);
    auto* save = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Small);
    m_buttonTexts.emplace_back(save, QT_TRANSLATE_NOOP("TextInputPage", "Save"));
    m_announce = new KaAnnounceLabel(box);
    GalleryUtils::followTextScale(m_announce, BzFont::Body);
    m_announce->setTextColorSetName(QStringLiteral("label-success-text"));
    connect(save, &QAbstractButton::clicked, this, [this] {
        ++m_saves;
        updateAnnounced();
    });
    announceRow->addWidget(save);
    announceRow->addWidget(m_announce);
    announceRow->addStretch(1);
    grid->addLayout(announceRow, row++, 1);

    // Animated images, playing, disabled, and the reduced-motion switch.
    addRowCaption(grid, row, QT_TRANSLATE_NOOP("TextInputPage", "GIF label"));
    auto* gifRow = new QHBoxLayout;
    gifRow->setSpacing(16);
    auto* playing = new KaGifLabel(QStringLiteral(":/gallery/spinner.gif"), box);
    playing->setImageSize(QSize(32, 32));
    m_widgetTexts.emplace_back(playing, QT_TRANSLATE_NOOP("TextInputPage", "Loading"));
    auto* resting = new KaGifLabel(QStringLiteral(":/gallery/spinner.gif"), box);
    resting->setImageSize(QSize(32, 32));
    resting->setEnabled(false);
    m_widgetTexts.emplace_back(resting, QT_TRANSLATE_NOOP("TextInputPage", "Loading (disabled)"));
    auto* reduce = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Small);
    reduce->setCheckable(true);
    reduce->setChecked(KaConfig::reducedMotion());
    m_buttonTexts.emplace_back(reduce, QT_TRANSLATE_NOOP("TextInputPage", "Reduce motion"));
    connect(reduce, &QAbstractButton::toggled, this, [](bool on) { KaConfig::setReducedMotion(on); });
    gifRow->addWidget(playing);
    gifRow->addWidget(resting);
    gifRow->addWidget(reduce, 0, Qt::AlignVCenter);
    gifRow->addStretch(1);
    grid->addLayout(gifRow, row++, 1);
    return box;
}

void TextInputPage::updateAnnounced() {
    if (m_saves == 0)
        m_announce->setText(tr("Not saved yet"));
    else if (m_saves == 1)
        m_announce->setText(tr("Draft saved"));
    else
        m_announce->setText(tr("Draft saved %1 times").arg(m_saves));
}

void TextInputPage::retranslateUi() {
    setDescription(
        tr("Fields and labels for text. Text fields come in every style, size and state; errors "
           "appear under the field and are read out. Emoji labels draw emoji as pictures; link labels let "
           "Tab walk their links; announce labels are read out when they change; GIF labels "
           "animate only while shown and rest when motion is reduced."));
    for (const auto& [label, source] : m_labels) {
        if (label)
            label->setText(translated(source));
    }
    for (const auto& [button, source] : m_buttonTexts) {
        if (button)
            button->setText(translated(source));
    }
    // Every label kind has its own text property.
    for (const auto& [widget, source] : m_widgetTexts) {
        if (widget)
            widget->setProperty("text", translated(source));
    }
    m_links->setText(translated(kLinks));
    m_disabledLinks->setText(translated(kDisabledLinks));
    m_activated->setText(m_lastLink.isEmpty() ? tr("Tab to a link and press Enter")
                                              : tr("Activated: %1").arg(m_lastLink));
    updateAnnounced();
}
