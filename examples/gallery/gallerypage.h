#pragma once

#include <QWidget>

class KaLabelBase;
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

    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const char* m_titleSource = nullptr;
    KaLabelBase* m_title;
    KaLabelBase* m_description;
    QScrollArea* m_scrollArea;
    QVBoxLayout* m_contentLayout;
};
