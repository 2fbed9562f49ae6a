#pragma once

#include "bzwidget.h"
#include "karoundbutton.h"
#include "karvex_export.h"
#include "navigationdotswidget.h"

#include <QPointer>

// A pager strip: a round "previous" button, a row of dots with the current
// page enlarged, and a round "next" button. The page index is 1-based. The
// strip only reports clicks on its arrows; the host moves to the page and
// calls setPageIndex(), which enables the arrows for the new position and
// has screen readers announce it.
//
// The children are built by setPageCount(), and built afresh on every call:
// hold the button pointers only as the QPointers the getters return.
class KARVEX_EXPORT KaPageNavigation : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(int pageCount READ pageCount WRITE setPageCount NOTIFY pageCountChanged)
    Q_PROPERTY(int pageIndex READ pageIndex WRITE setPageIndex NOTIFY pageIndexChanged)
public:
    explicit KaPageNavigation(QWidget* parent = nullptr);
    ~KaPageNavigation() override;

    int pageCount() const { return m_pageCount; }
    // Stores the count and rebuilds the buttons and dots. A negative count
    // is taken as 0, with a warning.
    void setPageCount(int count);
    int pageIndex() const { return m_pageIndex; }
    // Moves to page `index` (1-based): the dots follow, "next" is disabled on
    // the last page and "previous" on the first, and screen readers hear
    // "You are currently viewing page N.". Always announces, even for the
    // current page. A negative index is taken as 0 (no page), with a warning.
    void setPageIndex(int index);

    QPointer<KaRoundButton> getNavigateNextButton() const { return m_next; }
    QPointer<KaRoundButton> getNavigatePreviousButton() const { return m_previous; }
    NavigationDotsWidget* dotsWidget() const { return m_dots; }
    // Accessible name and description of the arrows; they read "Next page"
    // and "Previous page" until set. Kept when the children are rebuilt.
    void setNavigateNextAccessibity(const QString& name, const QString& description);
    void setNavigatePreviousAccessibity(const QString& name, const QString& description);

Q_SIGNALS:
    void navigatePreviousButtonClicked();
    void navigateNextButtonClicked();
    void pageCountChanged(int count);
    void pageIndexChanged(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void initialize();
    void clearChildren();
    KaRoundButton* createArrow(const char* objectName, void (KaPageNavigation::*clicked)());
    void updateArrowIcons();
    void updateArrows();
    void applyAccessibility();

    int m_pageCount = 0;
    int m_pageIndex = 0;
    QPointer<KaRoundButton> m_previous;
    QPointer<KaRoundButton> m_next;
    QPointer<NavigationDotsWidget> m_dots;

    struct Accessibility {
        QString name;
        QString description;
        bool set = false;
    };
    Accessibility m_nextAccessibility;
    Accessibility m_previousAccessibility;
    // Clicks being forwarded: a slot may rebuild the children meanwhile.
    int m_forwarding = 0;
};
