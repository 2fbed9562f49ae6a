#pragma once

#include "bzwidget.h"
#include "kabuttonenum.h"
#include "karvex_export.h"
#include "katabenum.h"

#include <QList>
#include <QPointer>

class KaRoundButton;
class KaTabItem;

// A row of tabs (KaTabItem) with one current tab. Clicking a tab, or the
// arrow keys, Home and End on the focused tab, make it current and emit
// currentChanged(). Only the current tab is a Tab stop. When the tabs do
// not fit, arrow buttons at both ends scroll the row, as does the mouse
// wheel; the current tab is scrolled into view. With tabsClosable, tabs of
// type NONE show a close cross; a click on it (or Delete on the focused
// tab) emits tabCloseRequested(), and the host removes the tab.
//
// Screen readers get a page tab list whose children are the tabs, each
// with its position ("2 of 5") and selected state.
//
// Subclasses make richer tabs (a badge beside the text) by overriding
// createTab(); see KaTabItem::setTrailingWidget().
class KARVEX_EXPORT KaTabView : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool tabsClosable READ tabsClosable WRITE setTabsClosable NOTIFY tabsClosableChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(KaTabEnum::State state READ state WRITE setState NOTIFY stateChanged)
public:
    explicit KaTabView(QWidget* parent = nullptr);
    ~KaTabView() override;

    // Adds a tab and returns its index. The first tab becomes current.
    int addTab(const QString& text, const QString& icon = QString(), KaTabEnum::Type type = KaTabEnum::NONE);
    // An index outside 0..count() appends.
    int insertTab(int index, const QString& text, const QString& icon = QString(),
                  KaTabEnum::Type type = KaTabEnum::NONE);
    // Removes and deletes the tab. When it was current, the tab that takes
    // its place (or the one before, for the last) becomes current. A bad
    // index is ignored with a warning.
    void removeTab(int index);
    void clear();

    int count() const { return int(m_tabs.size()); }
    // The tab at `index`, null outside the range.
    KaTabItem* tabAt(int index) const;
    int indexOf(const KaTabItem* tab) const;
    // -1 while there are no tabs.
    int currentIndex() const { return m_current; }
    // A bad index is ignored with a warning.
    void setCurrentIndex(int index);

    bool tabsClosable() const { return m_closable; }
    void setTabsClosable(bool closable);
    // Size and state of every tab, present and future.
    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);
    KaTabEnum::State state() const { return m_state; }
    void setState(KaTabEnum::State state);

    // Whether the tabs overflow and the scroll arrows show.
    bool isScrollable() const;
    // Scrolls so the tab at `index` is fully visible.
    void ensureVisible(int index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The view a tab belongs to, if any.
    static KaTabView* viewOf(const KaTabItem* tab);

Q_SIGNALS:
    void currentChanged(int index);
    void tabCloseRequested(int index);
    void countChanged(int count);
    void tabsClosableChanged(bool closable);
    void sizeChanged(KaButtonEnum::Size size);
    void stateChanged(KaTabEnum::State state);

protected:
    // Makes the tab widget for insertTab(); the view sets its text, icon,
    // type, size, state and closable flag afterwards.
    virtual KaTabItem* createTab();

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void onTabActivated();
    void onTabCloseRequested();
    void updatePositions();
    void relayout();
    void scrollBy(int delta);
    void setOffset(int offset);
    int stripWidth() const;
    int logicalLeft(const KaTabItem* tab) const;
    bool moveFocusBy(int key);
    void updateArrowIcons();

    QList<KaTabItem*> m_tabs;
    QWidget* m_viewport = nullptr;
    QWidget* m_strip = nullptr;
    KaRoundButton* m_back = nullptr;
    KaRoundButton* m_forward = nullptr;
    int m_current = -1;
    int m_offset = 0;
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
    KaTabEnum::State m_state = KaTabEnum::EXPANDED;
    bool m_closable = false;
};
