#include "navigationpage.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <bzwidget.h>
#include <kabadgetabview.h>
#include <kalabelbase.h>
#include <kapagenavigation.h>
#include <kapillbutton.h>
#include <katabitem.h>
#include <katabview.h>
#include <katitlebar.h>
#include <katitlebarbutton.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

struct SectionTab {
    const char* text; // NavigationPage context
    const char* icon;
    KaTabEnum::Type type;
};

const SectionTab kSectionTabs[] = {
    {QT_TRANSLATE_NOOP("NavigationPage", "Chat"), "qrc:/Resources/chat-filled.svg", KaTabEnum::SECTION_01},
    {QT_TRANSLATE_NOOP("NavigationPage", "Calls"), "qrc:/Resources/phone-filled.svg", KaTabEnum::SECTION_02},
    {QT_TRANSLATE_NOOP("NavigationPage", "Meetings"), "qrc:/Resources/meetings-bold.svg",
     KaTabEnum::SECTION_03},
    {QT_TRANSLATE_NOOP("NavigationPage", "Mentions"), "qrc:/Resources/mention-bold.svg",
     KaTabEnum::SECTION_04},
};

const KaButtonEnum::Size kSizes[] = {KaButtonEnum::Large, KaButtonEnum::Normal, KaButtonEnum::Small};
const char* const kSizeNames[] = {QT_TRANSLATE_NOOP("NavigationPage", "Large"),
                                  QT_TRANSLATE_NOOP("NavigationPage", "Normal"),
                                  QT_TRANSLATE_NOOP("NavigationPage", "Small")};

const int kPageCounts[] = {1, 5, 12};
constexpr int kOverflowTabs = 12;
constexpr int kClosableTabs = 3;

} // namespace

NavigationPage::NavigationPage(QWidget* parent)
    : GalleryPage(parent) {
    addTabSection();
    addPagerSection();
    addTitleBarSection();
    contentLayout()->addStretch(1);
    retranslateUi();
}

NavigationPage::~NavigationPage() {
    delete m_window.data();
}

KaLabelBase* NavigationPage::heading() {
    KaLabelBase* label = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title);
    GalleryUtils::markAsHeading(label);
    m_headings << label;
    contentLayout()->addWidget(label);
    return label;
}

KaLabelBase* NavigationPage::caption(QWidget* parent) {
    KaLabelBase* label =
        GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall, parent);
    m_captions << label;
    return label;
}

KaTabView* NavigationPage::sectionTabs(int size, int state) {
    auto* view = new KaTabView;
    view->setSize(KaButtonEnum::Size(size));
    view->setState(KaTabEnum::State(state));
    for (const SectionTab& tab : kSectionTabs)
        view->addTab(QString(), QString::fromLatin1(tab.icon), tab.type);
    view->setCurrentIndex(1);
    m_sectionViews << view;
    return view;
}

void NavigationPage::addTabSection() {
    heading();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    for (int row = 0; row < int(std::size(kSizes)); ++row) {
        grid->addWidget(caption(), row, 0, Qt::AlignVCenter);
        grid->addWidget(sectionTabs(kSizes[row], KaTabEnum::EXPANDED), row, 1, Qt::AlignLeft);
        grid->addWidget(sectionTabs(kSizes[row], KaTabEnum::COLLAPSED), row, 2, Qt::AlignLeft);
    }
    grid->setColumnStretch(3, 1);
    contentLayout()->addLayout(grid);

    // Tabs the user opened close; the section tab in front does not.
    contentLayout()->addWidget(caption());
    auto* closableRow = new QHBoxLayout;
    m_closable = new KaTabView;
    m_closable->setTabsClosable(true);
    m_closable->addTab(QString(), QString::fromLatin1(kSectionTabs[0].icon), kSectionTabs[0].type);
    for (int i = 0; i < kClosableTabs; ++i)
        addClosableTab();
    m_closable->setCurrentIndex(1);
    connect(m_closable, &KaTabView::tabCloseRequested, m_closable, &KaTabView::removeTab);
    m_addTab = new KaPillButton(nullptr, KaButtonEnum::Secondary, KaButtonEnum::Normal);
    connect(m_addTab, &QAbstractButton::clicked, this, &NavigationPage::addClosableTab);
    closableRow->addWidget(m_closable);
    closableRow->addWidget(m_addTab);
    closableRow->addStretch(1);
    contentLayout()->addLayout(closableRow);

    contentLayout()->addWidget(caption());
    m_overflow = new KaTabView;
    for (int i = 0; i < kOverflowTabs; ++i)
        m_overflow->addTab(QString());
    m_overflow->setCurrentIndex(0);
    m_overflow->setFixedWidth(380);
    contentLayout()->addWidget(m_overflow);

    // Outside m_captions, whose order the pager captions rely on.
    m_badgeCaption = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall);
    contentLayout()->addWidget(m_badgeCaption);
    m_badges = new KaBadgeTabView;
    for (const SectionTab& tab : kSectionTabs)
        m_badges->addTab(QString(), QString::fromLatin1(tab.icon), tab.type);
    m_badges->setCount(0, 3);
    m_badges->setCount(1, 120);
    m_badges->badgeTabAt(2)->setBadgeText(QStringLiteral("New"));
    m_badges->setIconBadge(3, IconBadgeMention);
    contentLayout()->addWidget(m_badges, 0, Qt::AlignLeft);

    contentLayout()->addWidget(caption());
    KaTabView* disabled = sectionTabs(KaButtonEnum::Normal, KaTabEnum::EXPANDED);
    disabled->setEnabled(false);
    contentLayout()->addWidget(disabled, 0, Qt::AlignLeft);
}

void NavigationPage::addClosableTab() {
    ++m_openedTabs;
    const int index = m_closable->addTab(tr("Draft %1").arg(m_openedTabs));
    m_closable->setCurrentIndex(index);
}

void NavigationPage::addPagerSection() {
    contentLayout()->addSpacing(8);
    heading();
    auto* row = new QHBoxLayout;
    row->setSpacing(48);
    for (int i = 0; i < int(std::size(kPageCounts)); ++i) {
        auto* column = new QVBoxLayout;
        column->setSpacing(6);
        auto* navigation = new KaPageNavigation;
        navigation->setPageCount(kPageCounts[i]);
        Pager pager{navigation, caption()};
        m_pagers << pager;
        connect(navigation, &KaPageNavigation::navigatePreviousButtonClicked, this,
                [this, i] { showPage(i, m_pagers[i].navigation->pageIndex() - 1); });
        connect(navigation, &KaPageNavigation::navigateNextButtonClicked, this,
                [this, i] { showPage(i, m_pagers[i].navigation->pageIndex() + 1); });
        column->addWidget(navigation, 0, Qt::AlignLeft);
        column->addWidget(pager.label);
        row->addLayout(column);
    }
    row->addStretch(1);
    contentLayout()->addLayout(row);
    // Start in the middle so both arrows show their enabled look.
    showPage(0, 1);
    showPage(1, 3);
    showPage(2, 12);
}

void NavigationPage::showPage(int pager, int page) {
    KaPageNavigation* navigation = m_pagers[pager].navigation;
    page = qBound(1, page, navigation->pageCount());
    navigation->setPageIndex(page);
    m_pagers[pager].label->setText(tr("Page %1 of %2").arg(page).arg(navigation->pageCount()));
}

void NavigationPage::addTitleBarSection() {
    contentLayout()->addSpacing(8);
    heading();
    contentLayout()->addWidget(caption());

    // The demo window; the preview's buttons act on it too.
    m_window = new QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint);
    m_window->setObjectName(QStringLiteral("framelessDemoWindow"));
    m_window->resize(480, 280);
    auto* body = new BzWidget(m_window);
    BzCSSData look;
    look.backgroundColorSet = QStringLiteral("panel-primary-background");
    body->setCSS(look);
    auto* windowLayout = new QVBoxLayout(m_window);
    windowLayout->setContentsMargins(0, 0, 0, 0);
    windowLayout->setSpacing(0);
    m_windowBar = new KaTitleBar;
    windowLayout->addWidget(m_windowBar);
    windowLayout->addWidget(body, 1);
    auto* bodyLayout = new QVBoxLayout(body);
    bodyLayout->setContentsMargins(24, 24, 24, 24);
    m_windowText = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Body);
    m_windowText->setWordWrap(true);
    bodyLayout->addWidget(m_windowText);
    bodyLayout->addStretch(1);

    m_previewBar = new KaTitleBar;
    m_previewBar->setTargetWindow(m_window);
    m_previewBar->setFixedWidth(480);
    contentLayout()->addWidget(m_previewBar);

    m_openWindow = new KaPillButton(nullptr, KaButtonEnum::Primary, KaButtonEnum::Normal);
    connect(m_openWindow, &QAbstractButton::clicked, this, [this] {
        if (!m_window)
            return;
        m_window->setLayoutDirection(layoutDirection());
        m_window->showNormal();
        m_window->raise();
        m_window->activateWindow();
    });
    contentLayout()->addWidget(m_openWindow, 0, Qt::AlignLeft);
}

void NavigationPage::retranslateUi() {
    setDescription(tr("Tab views in every size, expanded and collapsed, with closable and overflowing tabs; "
                      "the page navigation strip; and the title bar of a frameless window. Arrow keys, Home "
                      "and End move between tabs."));
    const char* headings[] = {QT_TR_NOOP("Tabs"), QT_TR_NOOP("Page navigation"), QT_TR_NOOP("Title bar")};
    for (int i = 0; i < m_headings.size(); ++i)
        m_headings[i]->setText(tr(headings[i]));
    const char* captions[] = {kSizeNames[0], kSizeNames[1], kSizeNames[2],
                              QT_TR_NOOP("Closable tabs (the section tab in front stays)"),
                              QT_TR_NOOP("Overflowing: the arrows and the mouse wheel scroll"),
                              QT_TR_NOOP("Disabled"),
                              // Pager captions are set by showPage().
                              nullptr, nullptr, nullptr,
                              QT_TR_NOOP("A preview of the title bar; its buttons act on the demo window.")};
    for (int i = 0; i < m_captions.size() && i < int(std::size(captions)); ++i) {
        if (captions[i])
            m_captions[i]->setText(tr(captions[i]));
    }
    for (KaTabView* view : std::as_const(m_sectionViews)) {
        for (int i = 0; i < view->count() && i < int(std::size(kSectionTabs)); ++i)
            view->tabAt(i)->setText(tr(kSectionTabs[i].text));
    }
    m_closable->tabAt(0)->setText(tr(kSectionTabs[0].text));
    m_closable->setAccessibleName(tr("Drafts"));
    for (int i = 0; i < m_overflow->count(); ++i)
        m_overflow->tabAt(i)->setText(tr("Channel %1").arg(i + 1));
    m_overflow->setAccessibleName(tr("Channels"));
    m_badgeCaption->setText(tr("With badges: a count, a count over the cap, a word and an icon"));
    for (int i = 0; i < m_badges->count(); ++i)
        m_badges->tabAt(i)->setText(tr(kSectionTabs[i].text));
    m_badges->badgeTabAt(2)->setBadgeText(tr("New"));
    m_badges->setAccessibleName(tr("Sections with news"));
    m_addTab->setText(tr("Add tab"));
    for (int i = 0; i < m_pagers.size(); ++i)
        showPage(i, m_pagers[i].navigation->pageIndex());
    m_openWindow->setText(tr("Open a frameless window"));
    if (m_window)
        m_window->setWindowTitle(tr("Karvex demo window"));
    m_previewBar->setTitle(tr("Karvex demo window (preview)"));
    m_windowText->setText(tr("Drag the title bar to move this window, double-click it to maximise, and use "
                             "its buttons to minimise, maximise or close it."));
}
