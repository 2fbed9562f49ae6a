#pragma once

#include "gallerypage.h"

#include <QList>

class KaLabelBase;

// The base layer's text building blocks: themed labels in the label colour
// sets and on a few backgrounds, and every font token.
class FoundationPage : public GalleryPage {
    Q_OBJECT
public:
    explicit FoundationPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    void addColorSetSection();
    void addFontSection();
    void updateFontSizes();

    KaLabelBase* m_colorSetsHeading = nullptr;
    KaLabelBase* m_fontsHeading = nullptr;
    KaLabelBase* m_fontsNote = nullptr;
    QList<KaLabelBase*> m_colorSamples;
    QList<KaLabelBase*> m_colorSetNames;
    QList<KaLabelBase*> m_fontSizes;
    QList<KaLabelBase*> m_fontSamples;
};
