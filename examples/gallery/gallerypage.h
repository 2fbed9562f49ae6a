#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class KaLabelBase;
class QBoxLayout;
class QScrollArea;
class QVBoxLayout;

// Base of every gallery page: a title, a short description and a scrolling
// content area that the page fills. Pages re-set their texts in
// retranslateUi(), which runs again whenever the language changes.
class GalleryPage : public QWidget {
    Q_OBJECT
public:
    explicit GalleryPage(QWidget* parent = nullptr);

    // The registry's title source text ("GalleryPages" context).
    void setTitleSource(const char* title);
    // How much wider and taller the content is than the area showing it;
    // empty when it fits without scrolling.
    QSize overflow() const;

    // Pop-up windows the screenshot run pictures too: how many there are,
    // a file name part for each, and opening number `index`, which returns
    // the windows it opened (a menu and any open sub-menu). The run closes
    // them again.
    virtual int screenshotPopupCount() const { return 0; }
    virtual QString screenshotPopupName(int) const { return QString(); }
    virtual QList<QWidget*> openScreenshotPopup(int) { return {}; }

protected:
    QVBoxLayout* contentLayout() const { return m_contentLayout; }
    // Adds `heading` over `content` as one section, above the closing
    // stretch of the content layout; pages that take sections one by one
    // call it from their own addSection().
    void insertSection(QWidget* heading, QWidget* content);
    QScrollArea* scrollArea() const { return m_scrollArea; }
    void setDescription(const QString& text);
    // Sets every user-visible text; call it at the end of the constructor.
    virtual void retranslateUi() = 0;
    // Runs `apply` from every later applyTexts(), the page's own
    // retranslateUi() calls that.
    void onRetranslate(std::function<void()> apply);
    void applyTexts();
    // A section heading, and a caption added to `layout`; both translated
    // in the page's own context.
    KaLabelBase* addHeading(const char* source);
    KaLabelBase* addCaption(const char* source, QBoxLayout* layout, bool wrap = false);

    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const char* m_titleSource = nullptr;
    KaLabelBase* m_title;
    KaLabelBase* m_description;
    QScrollArea* m_scrollArea;
    QVBoxLayout* m_contentLayout;
    std::vector<std::function<void()>> m_texts;
};
