#include "buttonvariantssection.h"

#include "buttonspage.h"
#include "galleryutils.h"

#include <bzcssdata.h>
#include <bzfont.h>
#include <bzwidget.h>
#include <kadialpadbutton.h>
#include <kadualcombobutton.h>
#include <kadualiconbutton.h>
#include <kaemojipushbutton.h>
#include <kagifbutton.h>
#include <kahyperlinkbutton.h>
#include <kalabelbase.h>
#include <katitlebarbutton.h>

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QMetaEnum>
#include <QVBoxLayout>

namespace {

const char* const kHeadings[] = {
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Dual combo buttons"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Dual icon buttons"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Hyperlink buttons"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Reactions"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Dial pad"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Animated image buttons"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Title bar buttons"),
};

const char* const kColumns[] = {
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Enabled"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Disabled"),
    QT_TRANSLATE_NOOP("ButtonVariantsSection", "Checked"),
};

QString resource(const char* name) {
    return QStringLiteral("qrc:/Resources/%1.svg").arg(QLatin1String(name));
}

KaLabelBase* smallLabel(const QString& text) {
    KaLabelBase* label = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall);
    label->setText(text);
    return label;
}

QHBoxLayout* row(QVBoxLayout* parent) {
    auto* layout = new QHBoxLayout;
    layout->setSpacing(12);
    parent->addLayout(layout);
    return layout;
}

// Appends the section to every buttons page without the page knowing it.
const bool kRegistered = [] {
    ButtonsPage::registerSection(QT_TRANSLATE_NOOP("ButtonsPage", "Button variants"),
                                 [] { return static_cast<QWidget*>(new ButtonVariantsSection); });
    return true;
}();

} // namespace

ButtonVariantsSection::ButtonVariantsSection(QWidget* parent)
    : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    buildDualCombo(layout);
    buildDualIcon(layout);
    buildHyperlinks(layout);
    buildReactions(layout);
    buildDialpad(layout);
    buildAnimated(layout);
    buildTitleBar(layout);
    retranslateUi();
}

ButtonVariantsSection::~ButtonVariantsSection() {
    delete m_sampleWindow.data();
}

KaLabelBase* ButtonVariantsSection::addHeading(QVBoxLayout* layout) {
    KaLabelBase* heading =
        GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::ButtonLarge);
    GalleryUtils::markAsHeading(heading);
    m_headings.append(heading);
    layout->addSpacing(8);
    layout->addWidget(heading);
    return heading;
}

QGridLayout* ButtonVariantsSection::addStateGrid(QVBoxLayout* layout) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(10);
    for (int column = 0; column < 3; ++column) {
        KaLabelBase* label = smallLabel(QString());
        m_columnLabels.append(label);
        grid->addWidget(label, 0, column + 1);
    }
    grid->setColumnStretch(4, 1);
    layout->addLayout(grid);
    return grid;
}

void ButtonVariantsSection::buildDualCombo(QVBoxLayout* layout) {
    addHeading(layout);
    QGridLayout* grid = addStateGrid(layout);
    const QMetaEnum styles = QMetaEnum::fromType<KaDualButtonEnum::Style>();
    for (int i = 0; i < styles.keyCount(); ++i) {
        const auto style = KaDualButtonEnum::Style(styles.value(i));
        grid->addWidget(smallLabel(QString::fromLatin1(styles.key(i))), i + 1, 0);
        for (int column = 0; column < 3; ++column) {
            auto* button = new KaDualComboButton(this, style, KaDualButtonEnum::Large);
            // The asymmetric layout's label cell carries only its icon.
            const bool iconOnly = KaDualButtonCode::cellLayout(style) == 0xC;
            if (iconOnly || KaDualButtonCode::isIconFirst(style))
                button->setLabelIcon(resource("handset-filled"));
            if (iconOnly)
                button->setLabelAccessibleName(tr("Call"));
            button->setCellIcon(resource("generic-device-video-filled"));
            button->setEnabled(column != 1);
            if (column == 2) {
                button->setCheckable(true);
                button->setChecked(true);
            }
            if (column == 0) {
                auto* menu = new QMenu(button);
                menu->addAction(tr("Audio only"));
                menu->addAction(tr("Video"));
                button->setMenu(menu);
            }
            m_combos.append(button);
            grid->addWidget(button, i + 1, column + 1, Qt::AlignLeft);
        }
    }
}

void ButtonVariantsSection::buildDualIcon(QVBoxLayout* layout) {
    addHeading(layout);
    QGridLayout* grid = addStateGrid(layout);
    const QMetaEnum styles = QMetaEnum::fromType<KaDualButtonEnum::IconButtonStyle>();
    for (int i = 0; i < styles.keyCount(); ++i) {
        const auto style = KaDualButtonEnum::IconButtonStyle(styles.value(i));
        grid->addWidget(smallLabel(QString::fromLatin1(styles.key(i))), i + 1, 0);
        for (int column = 0; column < 3; ++column) {
            auto* button = new KaDualIconButton(this, style, KaDualButtonEnum::Large);
            button->setFirstIcon(resource("phone-filled"));
            button->setSecondIcon(resource("chat-filled"));
            button->setFirstAccessibleName(tr("Call"));
            button->setSecondAccessibleName(tr("Chat"));
            button->setEnabled(column != 1);
            if (column == 2) {
                button->setCheckable(true);
                button->setChecked(true);
            }
            grid->addWidget(button, i + 1, column + 1, Qt::AlignLeft);
        }
    }
}

void ButtonVariantsSection::buildHyperlinks(QVBoxLayout* layout) {
    addHeading(layout);
    QHBoxLayout* sizes = row(layout);
    for (KaButtonEnum::Size size :
         {KaButtonEnum::ExtraLarge, KaButtonEnum::Large, KaButtonEnum::Normal, KaButtonEnum::ExtraSmall}) {
        auto* link = new KaHyperlinkButton(this);
        link->setSize(size);
        m_links.append(link);
        sizes->addWidget(link);
    }
    sizes->addStretch(1);

    QHBoxLayout* variants = row(layout);
    auto* withIcon = new KaHyperlinkButton(this);
    withIcon->setLeftIcon(resource("pop-out-regular"));
    auto* underlined = new KaHyperlinkButton(this);
    underlined->setAlwaysUnderline(true);
    auto* disabled = new KaHyperlinkButton(this);
    disabled->setEnabled(false);
    for (KaHyperlinkButton* link : {withIcon, underlined, disabled}) {
        m_links.append(link);
        variants->addWidget(link);
    }
    variants->addStretch(1);
}

void ButtonVariantsSection::buildReactions(QVBoxLayout* layout) {
    addHeading(layout);
    struct Reaction {
        const char* codePoint;
        int count;
        bool reacted;
        bool enabled;
    };
    const Reaction reactions[] = {
        {"1f44d", 3, false, true},  {"2764", 12, true, true},  {"1f60a", 0, false, true},
        {"1f389", 1, false, false}, {"1f525", 2, true, false},
    };
    QHBoxLayout* states = row(layout);
    for (const Reaction& reaction : reactions) {
        auto* button = new KaEmojiPushButton(QString::fromLatin1(reaction.codePoint), reaction.count, this);
        button->setChecked(reaction.reacted);
        button->setEnabled(reaction.enabled);
        states->addWidget(button);
    }
    states->addStretch(1);

    QHBoxLayout* sizes = row(layout);
    for (KaButtonEnum::Size size : {KaButtonEnum::ExtraLarge, KaButtonEnum::Large, KaButtonEnum::Normal,
                                    KaButtonEnum::Small, KaButtonEnum::ExtraSmall}) {
        auto* button = new KaEmojiPushButton(QStringLiteral("1f64f"), 5, this);
        button->setSize(size);
        sizes->addWidget(button);
    }
    sizes->addStretch(1);
}

void ButtonVariantsSection::buildDialpad(QVBoxLayout* layout) {
    addHeading(layout);
    QHBoxLayout* line = row(layout);
    auto* pad = new QGridLayout;
    pad->setSpacing(12);
    const char* const keys = "123456789*0#";
    KaLabelBase* entered = smallLabel(QString());
    for (int i = 0; i < 12; ++i) {
        auto* key = new KaDialpadButton(QString(QLatin1Char(keys[i])), this);
        key->setSpecial(keys[i] == '*' || keys[i] == '#');
        connect(key, &KaDialpadButton::characterEntered, entered,
                [entered](const QString& character) { entered->setText(entered->text() + character); });
        pad->addWidget(key, i / 3, i % 3);
    }
    line->addLayout(pad);

    auto* others = new QVBoxLayout;
    others->setSpacing(12);
    auto* disabled = new KaDialpadButton(QStringLiteral("5"), this);
    disabled->setEnabled(false);
    auto* large = new KaDialpadButton(QStringLiteral("7"), this);
    large->setSize(KaButtonEnum::ExtraLarge);
    auto* small = new KaDialpadButton(QStringLiteral("9"), this);
    small->setSize(KaButtonEnum::Small);
    others->addWidget(disabled);
    others->addWidget(large);
    others->addWidget(small);
    others->addWidget(entered);
    others->addStretch(1);
    line->addLayout(others);
    line->addStretch(1);
}

void ButtonVariantsSection::buildAnimated(QVBoxLayout* layout) {
    addHeading(layout);
    QHBoxLayout* line = row(layout);
    const QString image = QStringLiteral(":/gallery/spinner.gif");
    auto* always = new KaGifButton(this, KaButtonEnum::Secondary, KaButtonEnum::ExtraLarge);
    always->setFileName(image);
    always->setPlayMode(KaGifButton::PlayAlways);
    auto* onHover = new KaGifButton(this, KaButtonEnum::Secondary, KaButtonEnum::Large);
    onHover->setFileName(image);
    auto* ghost = new KaGifButton(this, KaButtonEnum::Ghost, KaButtonEnum::Large);
    ghost->setFileName(image);
    ghost->setPlayMode(KaGifButton::PlayAlways);
    auto* disabled = new KaGifButton(this, KaButtonEnum::Primary, KaButtonEnum::Large);
    disabled->setFileName(image);
    disabled->setPlayMode(KaGifButton::PlayAlways);
    disabled->setEnabled(false);
    for (KaGifButton* button : {always, onHover, ghost, disabled}) {
        m_gifs.append(button);
        line->addWidget(button);
    }
    line->addStretch(1);
}

void ButtonVariantsSection::buildTitleBar(QVBoxLayout* layout) {
    addHeading(layout);
    auto* header = new BzWidget(this);
    BzCSSData record;
    record.backgroundColorSet = QStringLiteral("globalHeader-container-background");
    header->setCSS(record);
    auto* bar = new QHBoxLayout(header);
    bar->setContentsMargins(8, 0, 0, 0);
    bar->setSpacing(0);
    bar->addStretch(1);
    for (auto type : {KaTitleBarButtonConfig::Minimize, KaTitleBarButtonConfig::Maximize,
                      KaTitleBarButtonConfig::Close}) {
        auto* button = new KaTitleBarButton(type, header);
        m_titleBarButtons.append(button);
        bar->addWidget(button);
    }
    auto* disabled = new KaTitleBarButton(KaTitleBarButtonConfig::Close, header);
    disabled->setEnabled(false);
    bar->insertWidget(0, disabled);
    layout->addWidget(header);

    m_openSample = new KaHyperlinkButton(this);
    connect(m_openSample, &QAbstractButton::clicked, this, &ButtonVariantsSection::showSampleWindow);
    QHBoxLayout* line = row(layout);
    line->addWidget(m_openSample);
    line->addStretch(1);

    // The buttons above act on the sample window: closing the gallery from
    // its own demonstration would surprise.
    m_sampleWindow = new QWidget;
    m_sampleWindow->resize(360, 200);
    for (KaTitleBarButton* button : m_titleBarButtons)
        button->setTargetWindow(m_sampleWindow);
}

void ButtonVariantsSection::showSampleWindow() {
    if (!m_sampleWindow)
        return;
    m_sampleWindow->setWindowTitle(tr("Sample window"));
    m_sampleWindow->setLayoutDirection(layoutDirection());
    m_sampleWindow->showNormal();
    m_sampleWindow->raise();
}

void ButtonVariantsSection::retranslateUi() {
    for (int i = 0; i < m_headings.size() && i < int(std::size(kHeadings)); ++i)
        m_headings[i]->setText(tr(kHeadings[i]));
    for (int i = 0; i < m_columnLabels.size(); ++i)
        m_columnLabels[i]->setText(tr(kColumns[i % 3]));
    for (KaDualComboButton* combo : m_combos) {
        if (KaDualButtonCode::cellLayout(combo->style()) != 0xC)
            combo->setText(tr("Join"));
    }
    const QStringList linkTexts = {tr("Learn more"),   tr("Learn more"),           tr("Learn more"),
                                   tr("Learn more"),   tr("Open in a new window"), tr("Always underlined"),
                                   tr("Disabled link")};
    for (int i = 0; i < m_links.size() && i < linkTexts.size(); ++i)
        m_links[i]->setText(linkTexts[i]);
    if (!m_gifs.isEmpty()) {
        m_gifs[0]->setAccessibleName(tr("Working"));
        m_gifs[1]->setText(tr("Hover to play"));
        m_gifs[2]->setText(tr("Always playing"));
        m_gifs[3]->setText(tr("Disabled"));
    }
    m_openSample->setText(tr("Open the sample window the title bar buttons act on"));
}

void ButtonVariantsSection::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
