#include "buttonspage.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <kabuttonenum.h>
#include <kaiconbutton.h>
#include <kalabelbase.h>
#include <kaoverlaybutton.h>
#include <kapillbutton.h>
#include <karoundbutton.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QMetaEnum>
#include <QVBoxLayout>

namespace {

const char kContext[] = "ButtonsPage";
const QString kLeadIcon = QStringLiteral(":/Resources/meetings-bold.svg");
const QString kMenuIcon = QStringLiteral(":/Resources/arrow-down-light.svg");
const QString kMenuIconOn = QStringLiteral(":/Resources/arrow-up-light.svg");

struct RegisteredSection {
    const char* title;
    ButtonsPage::SectionFactory factory;
};

std::vector<RegisteredSection>& registeredSections() {
    static std::vector<RegisteredSection> sections;
    return sections;
}

QString translated(const char* source) {
    return QCoreApplication::translate(kContext, source);
}

// A row of buttons that keep their own widths, leading-aligned.
QHBoxLayout* buttonRow() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    return row;
}

QGridLayout* sectionGrid(QWidget* parent) {
    auto* grid = new QGridLayout(parent);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(10);
    return grid;
}

QString enumKey(const QMetaEnum& metaEnum, int value) {
    return QString::fromLatin1(metaEnum.valueToKey(value));
}

} // namespace

ButtonsPage::ButtonsPage(QWidget* parent)
    : GalleryPage(parent) {
    contentLayout()->addStretch(1);
    addSection(QT_TRANSLATE_NOOP("ButtonsPage", "Pill buttons"), createPillShowcase());
    addSection(QT_TRANSLATE_NOOP("ButtonsPage", "Round, icon and overlay buttons"), createIconOnlyButtons());
    addSection(QT_TRANSLATE_NOOP("ButtonsPage", "Every style in every size"), createStyleGrid());
    for (const RegisteredSection& section : registeredSections())
        addSection(section.title, section.factory());
    retranslateUi();
}

void ButtonsPage::registerSection(const char* title, SectionFactory factory) {
    if (factory)
        registeredSections().push_back({title, factory});
}

void ButtonsPage::addSection(const char* title, QWidget* content) {
    if (content)
        insertSection(addLabel(title, nullptr, true), content);
}

KaLabelBase* ButtonsPage::addLabel(const char* source, QWidget* parent, bool heading) {
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

void ButtonsPage::addButtonText(QAbstractButton* button, const char* source) {
    button->setText(translated(source));
    m_buttonTexts.emplace_back(button, source);
}

QWidget* ButtonsPage::createPillShowcase() {
    auto* box = new QWidget;
    QGridLayout* grid = sectionGrid(box);

    // Sizes, each with its leading icon.
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "Sizes"), box), 0, 0);
    QHBoxLayout* sizes = buttonRow();
    const QMetaEnum sizeEnum = QMetaEnum::fromType<KaButtonEnum::Size>();
    for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraSmall; ++size) {
        auto* pill = new KaPillButton(box, KaButtonEnum::Primary, KaButtonEnum::Size(size));
        pill->setText(enumKey(sizeEnum, size));
        pill->setLeftIcon(kLeadIcon);
        sizes->addWidget(pill, 0, Qt::AlignVCenter);
    }
    sizes->addStretch(1);
    grid->addLayout(sizes, 0, 1);

    // Enabled, disabled, checked and unchecked.
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "States"), box), 1, 0);
    QHBoxLayout* states = buttonRow();
    auto* enabled = new KaPillButton(box, KaButtonEnum::Primary, KaButtonEnum::Large);
    addButtonText(enabled, QT_TRANSLATE_NOOP("ButtonsPage", "Enabled"));
    auto* disabled = new KaPillButton(box, KaButtonEnum::Primary, KaButtonEnum::Large);
    addButtonText(disabled, QT_TRANSLATE_NOOP("ButtonsPage", "Disabled"));
    disabled->setEnabled(false);
    auto* checked = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Large);
    addButtonText(checked, QT_TRANSLATE_NOOP("ButtonsPage", "Checked"));
    checked->setLeftIcon(QStringLiteral(":/Resources/alert-bold.svg"));
    checked->setLeftIconOn(QStringLiteral(":/Resources/alert-muted-bold.svg"));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto* unchecked = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Large);
    addButtonText(unchecked, QT_TRANSLATE_NOOP("ButtonsPage", "Unchecked"));
    unchecked->setLeftIcon(QStringLiteral(":/Resources/alert-bold.svg"));
    unchecked->setLeftIconOn(QStringLiteral(":/Resources/alert-muted-bold.svg"));
    unchecked->setCheckable(true);
    auto* ghostChecked = new KaPillButton(box, KaButtonEnum::Ghost, KaButtonEnum::Large);
    addButtonText(ghostChecked, QT_TRANSLATE_NOOP("ButtonsPage", "Ghost, checked"));
    ghostChecked->setCheckable(true);
    ghostChecked->setChecked(true);
    for (QWidget* w :
         {static_cast<QWidget*>(enabled), static_cast<QWidget*>(disabled), static_cast<QWidget*>(checked),
          static_cast<QWidget*>(unchecked), static_cast<QWidget*>(ghostChecked)})
        states->addWidget(w, 0, Qt::AlignVCenter);
    states->addStretch(1);
    grid->addLayout(states, 1, 1);

    // Without icons, with a leading icon, with a menu anchor, with both.
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "Icons"), box), 2, 0);
    QHBoxLayout* icons = buttonRow();
    auto* plain = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Large);
    addButtonText(plain, QT_TRANSLATE_NOOP("ButtonsPage", "No icon"));
    auto* leading = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Large);
    addButtonText(leading, QT_TRANSLATE_NOOP("ButtonsPage", "Share"));
    leading->setLeftIcon(QStringLiteral(":/Resources/share-screen-bold.svg"));
    auto* withMenu = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Large);
    addButtonText(withMenu, QT_TRANSLATE_NOOP("ButtonsPage", "Menu"));
    withMenu->setRightIcon(kMenuIcon);
    withMenu->setRightIconOn(kMenuIconOn);
    auto* menu = new QMenu(withMenu);
    menu->addAction(translated(QT_TRANSLATE_NOOP("ButtonsPage", "First entry")));
    menu->addAction(translated(QT_TRANSLATE_NOOP("ButtonsPage", "Second entry")));
    withMenu->setMenu(menu);
    auto* both = new KaPillButton(box, KaButtonEnum::Primary, KaButtonEnum::Large);
    addButtonText(both, QT_TRANSLATE_NOOP("ButtonsPage", "Start meeting"));
    both->setLeftIcon(kLeadIcon);
    both->setRightIcon(kMenuIcon);
    auto* iconOnly = new KaPillButton(box, KaButtonEnum::Secondary, KaButtonEnum::Large);
    iconOnly->setLeftIcon(QStringLiteral(":/Resources/keyboard-bold.svg"));
    iconOnly->setAccessibleName(translated(QT_TRANSLATE_NOOP("ButtonsPage", "Keyboard")));
    for (QWidget* w :
         {static_cast<QWidget*>(plain), static_cast<QWidget*>(leading), static_cast<QWidget*>(withMenu),
          static_cast<QWidget*>(both), static_cast<QWidget*>(iconOnly)})
        icons->addWidget(w, 0, Qt::AlignVCenter);
    icons->addStretch(1);
    grid->addLayout(icons, 2, 1);

    grid->setColumnStretch(1, 1);
    return box;
}

QWidget* ButtonsPage::createIconOnlyButtons() {
    auto* box = new QWidget;
    QGridLayout* grid = sectionGrid(box);

    // Round: every size, then a few styles and a disabled one.
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "Round"), box), 0, 0);
    QHBoxLayout* round = buttonRow();
    for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraExtraExtraSmall; ++size) {
        auto* button = new KaRoundButton(box, KaButtonEnum::Primary, KaButtonEnum::Size(size));
        button->setLeftIcon(QStringLiteral(":/Resources/phone-filled.svg"));
        button->setAccessibleName(translated(QT_TRANSLATE_NOOP("ButtonsPage", "Call")));
        round->addWidget(button, 0, Qt::AlignVCenter);
    }
    const struct {
        KaButtonEnum::Style style;
        const char* icon;
        const char* name;
        bool enabled;
    } roundStyles[] = {
        {KaButtonEnum::Secondary, ":/Resources/generic-device-video-bold.svg",
         QT_TRANSLATE_NOOP("ButtonsPage", "Camera"), true},
        {KaButtonEnum::Join, ":/Resources/handset-filled.svg", QT_TRANSLATE_NOOP("ButtonsPage", "Answer"),
         true},
        {KaButtonEnum::Cancel, ":/Resources/disconnect-filled.svg", QT_TRANSLATE_NOOP("ButtonsPage", "Leave"),
         true},
        {KaButtonEnum::Primary, ":/Resources/share-screen-bold.svg",
         QT_TRANSLATE_NOOP("ButtonsPage", "Share screen"), false},
    };
    for (const auto& entry : roundStyles) {
        auto* button = new KaRoundButton(box, entry.style, KaButtonEnum::Normal);
        button->setLeftIcon(QLatin1String(entry.icon));
        button->setAccessibleName(translated(entry.name));
        button->setEnabled(entry.enabled);
        round->addWidget(button, 0, Qt::AlignVCenter);
    }
    round->addStretch(1);
    grid->addLayout(round, 0, 1);

    // Icon buttons: the colour families; the favourite toggles to active.
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "Icon"), box), 1, 0);
    QHBoxLayout* iconRow = buttonRow();
    const struct {
        KaIconButtonEnum::Type type;
        const char* icon;
        bool active;
    } iconButtons[] = {
        {KaIconButtonEnum::Settings, ":/Resources/call-forward-settings-filled.svg", false},
        {KaIconButtonEnum::Settings, ":/Resources/call-forward-settings-filled.svg", true},
        {KaIconButtonEnum::Favorite, ":/Resources/sparkle-filled.svg", false},
        {KaIconButtonEnum::Favorite, ":/Resources/sparkle-filled.svg", true},
        {KaIconButtonEnum::Attachment, ":/Resources/pop-out-regular.svg", false},
        {KaIconButtonEnum::Attachment, ":/Resources/pop-out-regular.svg", true},
        {KaIconButtonEnum::Info, ":/Resources/info-badge-filled.svg", false},
        {KaIconButtonEnum::Dismiss, ":/Resources/cancel-bold.svg", false},
    };
    for (const auto& entry : iconButtons) {
        auto* button = new KaIconButton(box, entry.type, KaButtonEnum::Large);
        button->setLeftIcon(QLatin1String(entry.icon));
        button->setCheckable(true);
        button->setChecked(entry.active);
        iconRow->addWidget(button, 0, Qt::AlignVCenter);
    }
    for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraExtraExtraSmall; ++size) {
        auto* button = new KaIconButton(box, KaIconButtonEnum::Dismiss, KaButtonEnum::Size(size));
        button->setLeftIcon(QStringLiteral(":/Resources/cancel-bold.svg"));
        iconRow->addWidget(button, 0, Qt::AlignVCenter);
    }
    iconRow->addStretch(1);
    grid->addLayout(iconRow, 1, 1);

    // Overlay buttons: both arrows in every size.
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "Overlay"), box), 2, 0);
    QHBoxLayout* overlays = buttonRow();
    for (int type = KaOverlayButtonEnum::ExpandAreaOverlay; type <= KaOverlayButtonEnum::CollapseAreaOverlay;
         ++type) {
        for (int size = KaOverlayButtonEnum::ExtraLarge; size >= KaOverlayButtonEnum::Micro; --size)
            overlays->addWidget(
                new KaOverlayButton(box, KaOverlayButtonEnum::Type(type), KaOverlayButtonEnum::Size(size)), 0,
                Qt::AlignVCenter);
        if (type == KaOverlayButtonEnum::ExpandAreaOverlay)
            overlays->addSpacing(16);
    }
    overlays->addStretch(1);
    grid->addLayout(overlays, 2, 1);

    grid->setColumnStretch(1, 1);
    return box;
}

QWidget* ButtonsPage::createStyleGrid() {
    auto* box = new QWidget;
    QGridLayout* grid = sectionGrid(box);
    grid->setVerticalSpacing(8);
    grid->setHorizontalSpacing(12);

    const QMetaEnum styleEnum = QMetaEnum::fromType<KaButtonEnum::Style>();
    const QMetaEnum sizeEnum = QMetaEnum::fromType<KaButtonEnum::Size>();
    const int firstSize = KaButtonEnum::ExtraLarge;
    const int lastSize = KaButtonEnum::ExtraSmall;
    const int disabledColumn = lastSize - firstSize + 2;

    for (int size = firstSize; size <= lastSize; ++size) {
        KaLabelBase* header =
            GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Caption, box);
        header->setText(enumKey(sizeEnum, size));
        grid->addWidget(header, 0, size - firstSize + 1);
    }
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "Disabled"), box), 0, disabledColumn);
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "Checked"), box), 0, disabledColumn + 1);
    grid->addWidget(addLabel(QT_TRANSLATE_NOOP("ButtonsPage", "With icons"), box), 0, disabledColumn + 2);

    for (int i = 0; i < styleEnum.keyCount(); ++i) {
        const auto style = KaButtonEnum::Style(styleEnum.value(i));
        const int row = i + 1;
        KaLabelBase* name =
            GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::BodySmall, box);
        name->setText(QString::fromLatin1(styleEnum.key(i)));
        grid->addWidget(name, row, 0);

        for (int size = firstSize; size <= lastSize; ++size) {
            auto* pill = new KaPillButton(box, style, KaButtonEnum::Size(size));
            addButtonText(pill, QT_TRANSLATE_NOOP("ButtonsPage", "Send"));
            grid->addWidget(pill, row, size - firstSize + 1, Qt::AlignLeading | Qt::AlignVCenter);
        }
        auto* disabled = new KaPillButton(box, style, KaButtonEnum::Large);
        addButtonText(disabled, QT_TRANSLATE_NOOP("ButtonsPage", "Send"));
        disabled->setEnabled(false);
        grid->addWidget(disabled, row, disabledColumn, Qt::AlignLeading | Qt::AlignVCenter);

        auto* checked = new KaPillButton(box, style, KaButtonEnum::Large);
        addButtonText(checked, QT_TRANSLATE_NOOP("ButtonsPage", "Send"));
        checked->setCheckable(true);
        checked->setChecked(true);
        grid->addWidget(checked, row, disabledColumn + 1, Qt::AlignLeading | Qt::AlignVCenter);

        auto* icons = new KaPillButton(box, style, KaButtonEnum::Large);
        addButtonText(icons, QT_TRANSLATE_NOOP("ButtonsPage", "Send"));
        icons->setLeftIcon(kLeadIcon);
        icons->setRightIcon(kMenuIcon);
        grid->addWidget(icons, row, disabledColumn + 2, Qt::AlignLeading | Qt::AlignVCenter);
    }
    grid->setColumnStretch(disabledColumn + 3, 1);
    return box;
}

void ButtonsPage::retranslateUi() {
    setDescription(tr("Buttons take their look from a configuration: a style and a size pick colour "
                      "tokens, height, font, paddings and icon sizes. Checking a button makes its "
                      "configuration active."));
    for (const auto& [label, source] : m_labels) {
        if (label)
            label->setText(translated(source));
    }
    for (const auto& [button, source] : m_buttonTexts) {
        if (button)
            button->setText(translated(source));
    }
}
