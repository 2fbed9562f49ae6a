#include "tokenspage.h"

#include "galleryutils.h"
#include "tokenswatchview.h"

#include <bzfont.h>
#include <bzthememanager.h>
#include <kalabelbase.h>

#include <QVBoxLayout>

TokensPage::TokensPage(QWidget* parent)
    : GalleryPage(parent)
    , m_summary(GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall))
    , m_view(new TokenSwatchView) {
    m_summary->setWordWrap(true);
    contentLayout()->addWidget(m_summary);
    contentLayout()->addWidget(m_view);
    contentLayout()->addStretch(1);
    connect(m_view, &TokenSwatchView::colorsResolved, this, &TokensPage::updateSummary);
    retranslateUi();
}

void TokensPage::updateSummary() {
    m_summary->setText(tr("The theme \"%1\" defines %2 of %3 tokens. Each row shows the normal colour, the "
                          "name, and the normal, hovered, pressed, disabled, focused and checked colours. "
                          "Hover a row for the values.")
                           .arg(BzThemeManager::instance()->currentThemeName())
                           .arg(m_view->definedCount())
                           .arg(m_view->tokenCount()));
}

void TokensPage::retranslateUi() {
    m_view->setAccessibleName(tr("Colour tokens"));
    setDescription(tr("Components ask for their colours by token; a theme gives every token a colour for "
                      "each interaction state."));
    updateSummary();
}
