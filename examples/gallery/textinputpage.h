#pragma once

#include "gallerypage.h"

#include <QPointer>

#include <utility>
#include <vector>

class KaAnnounceLabel;
class KaLabel;
class KaLabelBase;
class KaMultipleLinkLabel;
class KaPillButton;
class QAbstractButton;
class QGridLayout;

// Text input and rich labels, one section per group. The labels section
// shows the emoji, multiple-link, announce and animated-image labels in
// their states. A new group adds a create…Section() function and one
// addSection() call in the constructor.
class TextInputPage : public GalleryPage {
    Q_OBJECT
public:
    explicit TextInputPage(QWidget* parent = nullptr);

    // Appends a titled section; the page takes ownership of `content`.
    // `title` is a source text of the "TextInputPage" translation context.
    void addSection(const char* title, QWidget* content);

protected:
    void retranslateUi() override;

private:
    QWidget* createLabelsSection();
    // A caption in the first column of a section's grid, kept translated.
    void addRowCaption(QGridLayout* grid, int row, const char* source);
    KaLabelBase* addLabel(const char* source, QWidget* parent, bool heading);
    void updateAnnounced();

    // Texts set again on a language change.
    std::vector<std::pair<QPointer<KaLabelBase>, const char*>> m_labels;
    std::vector<std::pair<QPointer<QAbstractButton>, const char*>> m_buttonTexts;
    std::vector<std::pair<QPointer<QWidget>, const char*>> m_widgetTexts;
    KaAnnounceLabel* m_announce = nullptr;
    KaMultipleLinkLabel* m_links = nullptr;
    KaMultipleLinkLabel* m_disabledLinks = nullptr;
    KaLabel* m_activated = nullptr;
    QString m_lastLink;
    int m_saves = 0;
};
