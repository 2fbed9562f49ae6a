#pragma once

#include "gallerypage.h"

#include <functional>
#include <vector>

class KaLabelBase;
class QBoxLayout;

// Alert banners of every type, style mode and layout, with and without
// buttons and links; the "new" tags and badges and the three tip kinds;
// progress bars and spinners in every size.
class BannersPage : public GalleryPage {
    Q_OBJECT
public:
    explicit BannersPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;

private:
    void addAlertSection();
    void addDiscoverabilitySection();
    void addProgressSection();
};
