#pragma once

#include "bzcolorset.h"
#include "bzwidget.h"
#include "karvex_export.h"

// The row of dots of the page navigation: one small dot per page and a
// larger one for the current page. Its width follows the page count it is
// built with (14 px per dot, less the 2 px after the last one); it is always
// 24 px high. The page index is 1-based; 0, or an index beyond the count,
// shows no dots at all. Screen readers read "Page 2 of 5".
class KARVEX_EXPORT NavigationDotsWidget : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(int pageIndex READ pageIndex WRITE setPageIndex NOTIFY pageIndexChanged)
public:
    // A negative count is taken as 0, with a warning.
    explicit NavigationDotsWidget(int pageCount, QWidget* parent = nullptr);
    ~NavigationDotsWidget() override;

    int pageCount() const { return m_pageCount; }
    int pageIndex() const { return m_pageIndex; }
    void setPageIndex(int index);

public Q_SLOTS:
    void onThemeChanged() override;

Q_SIGNALS:
    void pageIndexChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void initialize();
    void resolveColors();
    void updateAccessibleName();

    int m_pageCount = 0;
    int m_pageIndex = 0;
    QColor m_cursor;
    QColor m_track;
};
