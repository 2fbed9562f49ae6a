#pragma once

#include "gallerypage.h"

class IconSheet;
class KaLabelBase;

// Every bundled icon, tinted with the theme's icon and text colours, and the
// emoji images in their own colours.
class IconsPage : public GalleryPage {
    Q_OBJECT
public:
    explicit IconsPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    IconSheet* m_icons;
    IconSheet* m_emojis;
    KaLabelBase* m_iconsHeading;
    KaLabelBase* m_iconsNote;
    KaLabelBase* m_emojisHeading;
    KaLabelBase* m_emojisNote;
};
