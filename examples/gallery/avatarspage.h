#pragma once

#include "gallerypage.h"

#include <QList>

class KaLabelBase;
class KaPixmapLoader;
class QGridLayout;
class QLabel;

// Avatars of every size and type, every presence in normal and alternate
// colours, initials in several scripts, and every badge: counters, icons,
// alert badges and the round badge button.
class AvatarsPage : public GalleryPage {
    Q_OBJECT
public:
    explicit AvatarsPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    void addSizesSection();
    void addPresenceSection();
    void addInitialsSection();
    void addBadgesSection();
    void addButtonsSection();
    void renderAlternateRow();
    KaLabelBase* heading();
    KaLabelBase* caption(QGridLayout* grid, int row, int column);

    KaPixmapLoader* m_loader;
    QList<KaLabelBase*> m_headings;
    QList<KaLabelBase*> m_captions;
    QList<QLabel*> m_alternate;
};
