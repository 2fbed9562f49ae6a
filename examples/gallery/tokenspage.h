#pragma once

#include "gallerypage.h"

class KaLabelBase;
class TokenSwatchView;

// Every colour token with its colours in the current theme.
class TokensPage : public GalleryPage {
    Q_OBJECT
public:
    explicit TokensPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    void updateSummary();

    KaLabelBase* m_summary;
    TokenSwatchView* m_view;
};
