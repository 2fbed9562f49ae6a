#include "menuspage.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <bzthemeutils.h>
#include <kachips.h>
#include <kacontextmenu.h>
#include <kacustomizedseparatoritemdata.h>
#include <kadiscoverabilitybannerdata.h>
#include <kalabelbase.h>
#include <kamenu.h>
#include <kamenuaction.h>
#include <kamenuitemdata.h>
#include <kapillbutton.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

struct Side {
    KaPopupEnum::Alignment alignment;
    const char* text;
};

const Side kSides[] = {
    {KaPopupEnum::Top, QT_TRANSLATE_NOOP("MenusPage", "Above")},
    {KaPopupEnum::Bottom, QT_TRANSLATE_NOOP("MenusPage", "Below")},
    {KaPopupEnum::Left, QT_TRANSLATE_NOOP("MenusPage", "Left")},
    {KaPopupEnum::Right, QT_TRANSLATE_NOOP("MenusPage", "Right")},
};

KaMenuItemData entry(const QString& title, const QString& icon = QString()) {
    KaMenuItemData data;
    data.title = title;
    if (!icon.isEmpty())
        data.leftIcon = QStringLiteral("qrc:/Resources/%1.svg").arg(icon);
    return data;
}

const char kContextTemplate[] =
    "QLabel { border: 1px dashed $(separator-primary); border-radius: 8px; color: $(label-secondary-text); }";

} // namespace

MenusPage::MenusPage(QWidget* parent)
    : GalleryPage(parent) {
    addAlignmentSection();
    addStyleSection();
    addRichSection();
    addContextSection();
    addEdgeSection();
    addChipsSection();
    contentLayout()->addStretch(1);
    retranslateUi();
}

KaPillButton* MenusPage::addMenuButton(KaPopupEnum::Alignment alignment, bool arrow, bool rich) {
    auto* button = new KaPillButton(nullptr, KaButtonEnum::Secondary, KaButtonEnum::Normal);
    button->setRightIcon(QStringLiteral("qrc:/Resources/arrow-down-light.svg"));
    m_buttons.push_back({button, alignment, arrow, rich, nullptr});
    return button;
}

void MenusPage::addAlignmentSection() {
    addHeading(QT_TR_NOOP("Menu buttons"));
    auto* column = new QVBoxLayout;
    addCaption(QT_TR_NOOP("A menu opens on the requested side of its button, with or without an arrow."),
               column, true);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    int c = 0;
    for (const Side& side : kSides) {
        for (int arrow = 0; arrow < 2; ++arrow) {
            KaPillButton* button = addMenuButton(side.alignment, arrow == 1, false);
            const char* text = side.text;
            onRetranslate(
                [button, text, arrow] { button->setText(arrow ? tr("%1, arrow").arg(tr(text)) : tr(text)); });
            grid->addWidget(button, arrow, c);
        }
        ++c;
    }
    grid->setColumnStretch(c, 1);
    column->addLayout(grid);
    contentLayout()->addLayout(column);
}

void MenusPage::addStyleSection() {
    addHeading(QT_TR_NOOP("Styles and sizes"));
    auto* column = new QVBoxLayout;
    addCaption(QT_TR_NOOP("Normal menus have slightly rounded entries; circular ones round them more as "
                          "the size grows. Entries are 32, 40 or 50 pixels high."),
               column, true);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    const char* const styles[] = {QT_TR_NOOP("Normal"), QT_TR_NOOP("Circular")};
    const char* const sizes[] = {QT_TR_NOOP("small"), QT_TR_NOOP("medium"), QT_TR_NOOP("large")};
    for (int style = 0; style < 2; ++style) {
        for (int size = 0; size < 3; ++size) {
            KaPillButton* button = addMenuButton(KaPopupEnum::Bottom, false, false);
            m_buttons.back().style = KaMenuEnum::Style(style);
            m_buttons.back().size = KaMenuEnum::Size(size);
            const char* styleText = styles[style];
            const char* sizeText = sizes[size];
            onRetranslate([button, styleText, sizeText] {
                button->setText(tr("%1, %2").arg(tr(styleText), tr(sizeText)));
            });
            grid->addWidget(button, style, size);
        }
    }
    grid->setColumnStretch(3, 1);
    column->addLayout(grid);
    contentLayout()->addLayout(column);
}

void MenusPage::addRichSection() {
    addHeading(QT_TR_NOOP("Every kind of entry"));
    auto* column = new QVBoxLayout;
    addCaption(QT_TR_NOOP("Icons, sub-texts, badges, \"new\" labels, a tip, headers, separators, sub-menus, "
                          "checkable, disabled and alert entries, and an entry with a popover."),
               column, true);
    auto* row = new QHBoxLayout;
    KaPillButton* rich = addMenuButton(KaPopupEnum::Bottom, true, true);
    onRetranslate([rich] { rich->setText(tr("Conversation options")); });
    row->addWidget(rich);
    row->addStretch(1);
    column->addLayout(row);
    contentLayout()->addLayout(column);
}

void MenusPage::addContextSection() {
    addHeading(QT_TR_NOOP("Right-click menu"));
    auto* area = new QLabel;
    GalleryUtils::followTextScale(area, BzFont::Body);
    area->setObjectName(QStringLiteral("contextMenuArea"));
    area->setAlignment(Qt::AlignCenter);
    area->setMinimumHeight(64);
    area->setFocusPolicy(Qt::StrongFocus);
    BzThemeUtils::setWidgetCSS(area, QString::fromLatin1(kContextTemplate));
    area->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(area, &QWidget::customContextMenuRequested, this, [this, area](const QPoint& point) {
        auto* menu = new KaContextMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(tr("Copy"));
        menu->addAction(tr("Paste"));
        menu->addSeparator();
        menu->addAction(tr("Select all"));
        menu->popupAt(area->mapToGlobal(point));
    });
    onRetranslate([area] {
        area->setText(tr("Right-click here (or press the menu key)"));
        area->setAccessibleName(tr("Right-click area"));
    });
    m_contextArea = area;
    contentLayout()->addWidget(area);
}

void MenusPage::addEdgeSection() {
    addHeading(QT_TR_NOOP("Near the edges"));
    auto* column = new QVBoxLayout;
    addCaption(QT_TR_NOOP("Each button asks for the side towards its edge of the window; near a screen edge "
                          "the menu flips to the other side."),
               column, true);
    auto* grid = new QGridLayout;
    const struct {
        KaPopupEnum::Alignment alignment;
        int row;
        int column;
        Qt::Alignment align;
        const char* text;
    } corners[] = {
        {KaPopupEnum::Top, 0, 0, Qt::AlignLeft, QT_TR_NOOP("Top left, above")},
        {KaPopupEnum::Right, 0, 2, Qt::AlignRight, QT_TR_NOOP("Top right, to the right")},
        {KaPopupEnum::Left, 1, 0, Qt::AlignLeft, QT_TR_NOOP("Bottom left, to the left")},
        {KaPopupEnum::Bottom, 1, 2, Qt::AlignRight, QT_TR_NOOP("Bottom right, below")},
    };
    for (const auto& corner : corners) {
        KaPillButton* button = addMenuButton(corner.alignment, true, false);
        const char* text = corner.text;
        onRetranslate([button, text] { button->setText(tr(text)); });
        grid->addWidget(button, corner.row, corner.column, corner.align);
    }
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(24);
    column->addLayout(grid);
    contentLayout()->addLayout(column);
}

void MenusPage::addChipsSection() {
    addHeading(QT_TR_NOOP("Chips"));
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    const char* const names[] = {QT_TR_NOOP("Design"), QT_TR_NOOP("Engineering"), QT_TR_NOOP("Sales"),
                                 QT_TR_NOOP("A rather long team name that is elided")};
    for (int i = 0; i < 4; ++i) {
        auto* chip = new KaChips(nullptr, i);
        const char* name = names[i];
        onRetranslate([chip, name] { chip->setDisplayText(tr(name)); });
        row->addWidget(chip);
    }
    row->addStretch(1);
    contentLayout()->addLayout(row);
}

KaMenu* MenusPage::buildSimpleMenu() {
    auto* menu = new KaMenu(this);
    menu->addMenuItem(entry(tr("Mark as read"), QStringLiteral("unread-filled")));
    menu->addMenuItem(entry(tr("Mute"), QStringLiteral("alert-muted-bold")));
    menu->addSeparator();
    menu->addMenuItem(entry(tr("Hide"), QStringLiteral("hide-bold")));
    return menu;
}

KaMenu* MenusPage::buildRichMenu() {
    auto* menu = new KaMenu(this);
    KaDiscoverabilityBannerData tip;
    tip.text = tr("Pin the conversations you use most, so they stay on top.");
    tip.width = 300;
    menu->addDiscoverabilityBanner(tip);

    menu->addSeparator(tr("Conversation"));
    KaMenuItemData call = entry(tr("Call"), QStringLiteral("handset-filled"));
    call.subText = tr("Audio only");
    call.firstAction = true;
    menu->addMenuItem(call);
    KaMenuItemData meet = entry(tr("Meet"), QStringLiteral("meet-bold"));
    meet.subText = tr("Start a video meeting");
    meet.showDiscoverabilityLabel = true;
    menu->addMenuItem(meet);
    KaMenuItemData mentions = entry(tr("Mentions"), QStringLiteral("mention-bold"));
    mentions.badgeText = QStringLiteral("3");
    menu->addMenuItem(mentions);
    KaMenuItemData forward = entry(tr("Forward"), QStringLiteral("share-screen-bold"));
    forward.popupText = tr("Sends a copy of the whole conversation.");
    menu->addMenuItemWithPopup(forward);
    menu->addGroupSeparator();

    menu->addSeparator(tr("Notifications"));
    KaMenuItemData all = entry(tr("All messages"));
    all.checkable = true;
    all.checked = true;
    menu->addMenuItem(all);
    KaMenuItemData mentionsOnly = entry(tr("Mentions only"));
    mentionsOnly.checkable = true;
    menu->addMenuItem(mentionsOnly);
    auto* more = new KaMenu(menu);
    more->addMenuItem(entry(tr("For an hour")));
    more->addMenuItem(entry(tr("Until tomorrow")));
    more->addMenuItem(entry(tr("Until I turn it back on")));
    menu->addMenu(entry(tr("Snooze"), QStringLiteral("coffee-bold")), more);
    menu->addSeparator();

    KaMenuItemData archived = entry(tr("Move to archive"), QStringLiteral("private-bold"));
    archived.enabled = false;
    menu->addMenuItem(archived);
    KaMenuItemData leave = entry(tr("Leave conversation"), QStringLiteral("blocked-bold"));
    leave.isAlert = true;
    menu->addMenuItem(leave);
    return menu;
}

void MenusPage::rebuildMenus() {
    for (MenuButton& b : m_buttons) {
        delete b.menu;
        b.menu = b.rich ? buildRichMenu() : buildSimpleMenu();
        b.menu->setStyle(b.style);
        b.menu->setSize(b.size);
        b.menu->popupWith(b.button, b.alignment, b.arrow);
    }
}

void MenusPage::retranslateUi() {
    setDescription(tr("Menus drawn as popup bubbles: entries with icons, sub-texts, badges and popovers, "
                      "section headers read out per section, and placement that keeps the menu on screen."));
    applyTexts();
    rebuildMenus();
}

int MenusPage::screenshotPopupCount() const {
    return 5;
}

QString MenusPage::screenshotPopupName(int index) const {
    switch (index) {
    case 0:
        return QStringLiteral("rich-menu");
    case 1:
        return QStringLiteral("menu-above-arrow");
    case 2:
        return QStringLiteral("menu-right-arrow");
    case 3:
        return QStringLiteral("menu-circular-large");
    default:
        return QStringLiteral("context-menu");
    }
}

QList<QWidget*> MenusPage::openScreenshotPopup(int index) {
    const auto find = [this](KaPopupEnum::Alignment alignment, bool arrow, bool rich,
                             KaMenuEnum::Style style = KaMenuEnum::Normal,
                             KaMenuEnum::Size size = KaMenuEnum::Medium) -> const MenuButton* {
        for (const MenuButton& b : m_buttons)
            if (b.alignment == alignment && b.arrow == arrow && b.rich == rich && b.style == style &&
                b.size == size)
                return &b;
        return nullptr;
    };
    const MenuButton* b = nullptr;
    switch (index) {
    case 0:
        b = find(KaPopupEnum::Bottom, true, true);
        break;
    case 1:
        b = find(KaPopupEnum::Top, true, false);
        break;
    case 2:
        b = find(KaPopupEnum::Right, true, false);
        break;
    case 3:
        b = find(KaPopupEnum::Bottom, false, false, KaMenuEnum::Circular, KaMenuEnum::Large);
        break;
    default: {
        auto* menu = new KaContextMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(tr("Copy"));
        menu->addAction(tr("Paste"));
        menu->addSeparator();
        menu->addAction(tr("Select all"));
        menu->popupAt(m_contextArea->mapToGlobal(m_contextArea->rect().center()));
        return {menu};
    }
    }
    if (!b || !b->menu)
        return {};
    b->menu->popup();
    QList<QWidget*> windows{b->menu};
    if (index == 3 && !b->menu->actions().isEmpty()) {
        // The highlight shows the style's corner radius.
        b->menu->setActiveAction(b->menu->actions().constFirst());
    }
    if (index == 0) {
        // Unfold the sub-menu too.
        for (QAction* action : b->menu->actions()) {
            if (auto* sub = qobject_cast<KaMenu*>(action->menu())) {
                b->menu->setActiveAction(action);
                windows << sub;
                break;
            }
        }
    }
    return windows;
}
