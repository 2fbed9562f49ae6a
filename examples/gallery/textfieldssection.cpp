#include "textfieldssection.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <kalabelbase.h>
#include <kapintextfield.h>
#include <katextbrowser.h>
#include <katextedit.h>
#include <katextfield.h>
#include <katextfieldwithhint.h>

#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QUrl>
#include <QVBoxLayout>

namespace {

struct FieldSpec {
    KaTextFieldEnum::Style style;
    KaTextFieldEnum::Size size;
    const char* placeholder; // source text in the TextFieldsSection context
};

// One row per style, one column per size.
const FieldSpec kGrid[] = {
    {KaTextFieldEnum::Standard, KaTextFieldEnum::Normal, QT_TRANSLATE_NOOP("TextFieldsSection", "Standard")},
    {KaTextFieldEnum::Standard, KaTextFieldEnum::Large,
     QT_TRANSLATE_NOOP("TextFieldsSection", "Standard, large")},
    {KaTextFieldEnum::Search, KaTextFieldEnum::Normal, QT_TRANSLATE_NOOP("TextFieldsSection", "Search")},
    {KaTextFieldEnum::Search, KaTextFieldEnum::Large,
     QT_TRANSLATE_NOOP("TextFieldsSection", "Search, large")},
    {KaTextFieldEnum::Password, KaTextFieldEnum::Normal, QT_TRANSLATE_NOOP("TextFieldsSection", "Password")},
    {KaTextFieldEnum::Password, KaTextFieldEnum::Large,
     QT_TRANSLATE_NOOP("TextFieldsSection", "Password, large")},
};

// The page gives the section its title; these head its parts after the first.
const char* const kHeadings[] = {
    QT_TRANSLATE_NOOP("TextFieldsSection", "States"),
    QT_TRANSLATE_NOOP("TextFieldsSection", "PIN entry"),
    QT_TRANSLATE_NOOP("TextFieldsSection", "Multi-line text"),
};

const char* const kCaptions[] = {
    QT_TRANSLATE_NOOP("TextFieldsSection", "Error"),
    QT_TRANSLATE_NOOP("TextFieldsSection", "Character limit"),
    QT_TRANSLATE_NOOP("TextFieldsSection", "Read-only"),
    QT_TRANSLATE_NOOP("TextFieldsSection", "Disabled"),
};

} // namespace

TextFieldsSection::TextFieldsSection(QWidget* parent)
    : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    for (int i = 0; i < int(std::size(kGrid)); ++i) {
        auto* field = new KaTextField(this, kGrid[i].style, kGrid[i].size);
        m_fields << Field{field, kGrid[i].placeholder};
        grid->addWidget(field, i / 2, i % 2, Qt::AlignTop);
    }
    m_fields.at(2).field->setText(QStringLiteral("Quarterly report"));
    m_fields.at(4).field->setText(QStringLiteral("correct horse"));
    m_fields.at(5).field->setText(QStringLiteral("battery staple"));
    m_fields.at(5).field->setPasswordVisible(true);
    column->addLayout(grid);

    column->addWidget(heading());
    auto* states = new QGridLayout;
    states->setHorizontalSpacing(16);
    states->setVerticalSpacing(4);
    m_error = new KaTextField(this);
    m_error->setText(QStringLiteral("kim@example"));
    m_limited = new KaTextField(this);
    m_limited->setCharacterLimit(40);
    m_readOnly = new KaTextField(this);
    m_readOnly->setReadOnly(true);
    auto* disabled = new KaTextField(this);
    disabled->setEnabled(false);
    m_fields << Field{disabled, QT_TRANSLATE_NOOP("TextFieldsSection", "Not available")};
    const QList<KaTextField*> stateFields = {m_error, m_limited, m_readOnly, disabled};
    for (int i = 0; i < stateFields.size(); ++i) {
        states->addWidget(caption(), 0, i);
        states->addWidget(stateFields.at(i), 1, i, Qt::AlignTop);
    }
    column->addLayout(states);

    auto* hints = new QHBoxLayout;
    hints->setSpacing(16);
    m_withHint = new KaTextFieldWithHint(this, KaTextFieldEnum::Standard, KaTextFieldEnum::Large);
    m_withHintError = new KaTextFieldWithHint(this);
    m_withHintError->setCharacterLimit(20);
    m_withHintError->setText(QStringLiteral("Kim"));
    hints->addWidget(m_withHint, 1, Qt::AlignTop);
    hints->addWidget(m_withHintError, 1, Qt::AlignTop);
    column->addLayout(hints);

    column->addWidget(heading());
    auto* pins = new QHBoxLayout;
    pins->setSpacing(32);
    m_pin = new KaPinTextField(this);
    m_pinHidden = new KaPinTextField(this, KaTextFieldEnum::Password, KaTextFieldEnum::Normal);
    m_pinHidden->setDigitCount(4);
    m_pinHidden->setText(QStringLiteral("2580"));
    pins->addWidget(m_pin);
    pins->addWidget(m_pinHidden);
    pins->addStretch(1);
    column->addLayout(pins);
    m_pinResult = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall, this);
    column->addWidget(m_pinResult);
    connect(m_pin, &KaPinTextField::completed, this,
            [this](const QString& code) { m_pinResult->setText(tr("Code entered: %1").arg(code)); });

    column->addWidget(heading());
    auto* areas = new QHBoxLayout;
    areas->setSpacing(16);
    m_edit = new KaTextEdit(this);
    m_edit->setMinimumHeight(120);
    m_browser = new KaTextBrowser(this);
    m_browser->setMinimumHeight(120);
    areas->addWidget(m_edit, 1);
    areas->addWidget(m_browser, 1);
    column->addLayout(areas);
    m_linkResult = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall, this);
    column->addWidget(m_linkResult);
    connect(m_browser, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& url) { m_linkResult->setText(tr("Link activated: %1").arg(url.toString())); });

    retranslateUi();
}

void TextFieldsSection::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

KaLabelBase* TextFieldsSection::heading() {
    KaLabelBase* label =
        GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Button, this);
    GalleryUtils::markAsHeading(label);
    m_headings << label;
    return label;
}

KaLabelBase* TextFieldsSection::caption() {
    KaLabelBase* label =
        GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Caption, this);
    m_captions << label;
    return label;
}

void TextFieldsSection::retranslateUi() {
    for (int i = 0; i < m_headings.size(); ++i)
        m_headings[i]->setText(tr(kHeadings[i]));
    for (int i = 0; i < m_captions.size(); ++i)
        m_captions[i]->setText(tr(kCaptions[i]));
    for (const Field& field : m_fields)
        field.field->setPlaceholderText(tr(field.placeholder));
    m_error->setPlaceholderText(tr("Email address"));
    m_error->setErrorText(tr("Enter an address like name@example.com."));
    m_limited->setPlaceholderText(tr("Status message"));
    m_readOnly->setText(tr("Meeting ID 2658 115 4040"));
    m_readOnly->lineEdit()->setAccessibleName(tr("Meeting ID"));
    m_withHint->setLabelText(tr("Display name"));
    m_withHint->setPlaceholderText(tr("How others see you"));
    m_withHint->setHintText(tr("Shown beside your messages and in meetings."));
    m_withHintError->setLabelText(tr("Team name"));
    m_withHintError->setHintText(tr("At least four characters."));
    m_withHintError->setErrorText(tr("Team names need at least four characters."));
    m_pin->setAccessibleName(tr("Verification code"));
    m_pinHidden->setAccessibleName(tr("Device PIN"));
    m_edit->setPlaceholderText(tr("Write a note for the meeting…"));
    m_edit->setAccessibleName(tr("Meeting note"));
    m_browser->setAccessibleName(tr("Release notes"));
    m_browser->setHtml(tr("<p><b>What's new</b></p><p>Text fields show errors under the field and read them "
                          "out. See the <a href=\"guide:fields\">field guide</a> or the "
                          "<a href=\"guide:pin\">PIN entry notes</a>. Links never open by themselves: the "
                          "view only reports them.</p>"));
}
