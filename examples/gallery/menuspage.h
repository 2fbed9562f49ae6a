#pragma once

#include "gallerypage.h"

#include <kamenuenum.h>
#include <kapopupenum.h>

#include <QList>
#include <QPointer>

#include <functional>
#include <vector>

class KaLabelBase;
class KaMenu;
class KaPillButton;
class QBoxLayout;

// Menu buttons opening on every side of their anchor with and without an
// arrow, menus in every style and size, a menu with every kind of entry, the right-click menu, menus near
// the edges that flip to stay on screen, and a row of chips.
class MenusPage : public GalleryPage {
    Q_OBJECT
public:
    explicit MenusPage(QWidget* parent = nullptr);

    int screenshotPopupCount() const override;
    QString screenshotPopupName(int index) const override;
    QList<QWidget*> openScreenshotPopup(int index) override;

protected:
    void retranslateUi() override;

private:
    struct MenuButton {
        KaPillButton* button;
        KaPopupEnum::Alignment alignment;
        bool arrow;
        bool rich;
        QPointer<KaMenu> menu;
        KaMenuEnum::Style style = KaMenuEnum::Normal;
        KaMenuEnum::Size size = KaMenuEnum::Medium;
    };

    void addAlignmentSection();
    void addStyleSection();
    void addRichSection();
    void addContextSection();
    void addEdgeSection();
    void addChipsSection();
    KaPillButton* addMenuButton(KaPopupEnum::Alignment alignment, bool arrow, bool rich);
    // Menus hold their texts: they are built again for a new language.
    void rebuildMenus();
    KaMenu* buildSimpleMenu();
    KaMenu* buildRichMenu();

    std::vector<MenuButton> m_buttons;
    QWidget* m_contextArea = nullptr;
};
