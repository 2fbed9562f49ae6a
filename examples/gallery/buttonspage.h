#pragma once

#include "gallerypage.h"

#include <QPointer>

#include <utility>
#include <vector>

class KaLabelBase;
class QAbstractButton;
class QGridLayout;

// The configuration-driven buttons: pill sizes and states, round, icon and
// overlay buttons, then every KaButtonEnum style in every pill size.
//
// Other button families add their own sections without touching this file:
// either call addSection() on a page, or register a factory once (for
// example from a static initialiser in their own source file) with
// registerSection(); registered sections are appended, in registration
// order, to every ButtonsPage built afterwards.
class ButtonsPage : public GalleryPage {
    Q_OBJECT
public:
    using SectionFactory = QWidget* (*)();

    explicit ButtonsPage(QWidget* parent = nullptr);

    // Appends a titled section; the page takes ownership of `content`.
    // `title` is a source text of the "ButtonsPage" translation context.
    void addSection(const char* title, QWidget* content);
    static void registerSection(const char* title, SectionFactory factory);

protected:
    void retranslateUi() override;

private:
    QWidget* createPillShowcase();
    QWidget* createIconOnlyButtons();
    QWidget* createStyleGrid();
    KaLabelBase* addLabel(const char* source, QWidget* parent, bool heading = false);
    void addButtonText(QAbstractButton* button, const char* source);

    // Texts set again on a language change.
    std::vector<std::pair<QPointer<KaLabelBase>, const char*>> m_labels;
    std::vector<std::pair<QPointer<QAbstractButton>, const char*>> m_buttonTexts;
};
