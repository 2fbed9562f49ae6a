#pragma once

#include "gallerypage.h"

#include <QList>
#include <QPointer>

class KaBadgeTabView;
class KaLabelBase;
class KaPageNavigation;
class KaPillButton;
class KaTabView;
class KaTitleBar;
class QWidget;

// Tab views in every size and state (selected, collapsed, closable,
// overflowing, disabled), page navigation with 1, 5 and 12 pages, and the
// title bar of a frameless window, in a preview and in a real window.
class NavigationPage : public GalleryPage {
    Q_OBJECT
public:
    explicit NavigationPage(QWidget* parent = nullptr);
    ~NavigationPage() override;

protected:
    void retranslateUi() override;

private:
    KaLabelBase* heading();
    KaLabelBase* caption(QWidget* parent = nullptr);
    KaTabView* sectionTabs(int size, int state);
    void addTabSection();
    void addPagerSection();
    void addTitleBarSection();
    void addClosableTab();
    void showPage(int pager, int page);

    struct Pager {
        KaPageNavigation* navigation;
        KaLabelBase* label;
    };
    QList<KaLabelBase*> m_headings;
    QList<KaLabelBase*> m_captions;
    QList<KaTabView*> m_sectionViews;
    KaTabView* m_closable = nullptr;
    KaTabView* m_overflow = nullptr;
    KaBadgeTabView* m_badges = nullptr;
    KaLabelBase* m_badgeCaption = nullptr;
    KaPillButton* m_addTab = nullptr;
    int m_openedTabs = 0;
    QList<Pager> m_pagers;
    KaTitleBar* m_previewBar = nullptr;
    KaPillButton* m_openWindow = nullptr;
    QPointer<QWidget> m_window;
    KaTitleBar* m_windowBar = nullptr;
    KaLabelBase* m_windowText = nullptr;
};
