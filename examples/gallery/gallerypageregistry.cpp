#include "gallerypageregistry.h"

#include "avatarspage.h"
#include "bannerspage.h"
#include "buttonspage.h"
#include "designerformspage.h"
#include "focuspage.h"
#include "foundationpage.h"
#include "iconspage.h"
#include "menuspage.h"
#include "navigationpage.h"
#include "popupspage.h"
#include "qmlmenuspage.h"
#include "selectionpage.h"
#include "textinputpage.h"
#include "tokenspage.h"

#include <QCoreApplication>

namespace {
template <typename Page> GalleryPage* create() {
    return new Page;
}
} // namespace

const std::vector<GalleryPageRegistry::Entry>& GalleryPageRegistry::entries() {
    static const std::vector<Entry> pages = {
        {QStringLiteral("foundation"), QT_TRANSLATE_NOOP("GalleryPages", "Foundation"),
         &create<FoundationPage>},
        {QStringLiteral("focus"), QT_TRANSLATE_NOOP("GalleryPages", "Focus ring"), &create<FocusPage>},
        {QStringLiteral("popups"), QT_TRANSLATE_NOOP("GalleryPages", "Labels and popups"),
         &create<PopupsPage>},
        {QStringLiteral("buttons"), QT_TRANSLATE_NOOP("GalleryPages", "Buttons"), &create<ButtonsPage>},
        {QStringLiteral("textinput"), QT_TRANSLATE_NOOP("GalleryPages", "Text input"),
         &create<TextInputPage>},
        {QStringLiteral("navigation"), QT_TRANSLATE_NOOP("GalleryPages", "Navigation"),
         &create<NavigationPage>},
        {QStringLiteral("selection"), QT_TRANSLATE_NOOP("GalleryPages", "Selection"), &create<SelectionPage>},
        {QStringLiteral("avatars"), QT_TRANSLATE_NOOP("GalleryPages", "Avatars and badges"),
         &create<AvatarsPage>},
        {QStringLiteral("banners"), QT_TRANSLATE_NOOP("GalleryPages", "Banners and feedback"),
         &create<BannersPage>},
        {QStringLiteral("menus"), QT_TRANSLATE_NOOP("GalleryPages", "Menus"), &create<MenusPage>},
        {QStringLiteral("qmlmenus"), QT_TRANSLATE_NOOP("GalleryPages", "QML menus"), &create<QmlMenusPage>},
        {QStringLiteral("designer"), QT_TRANSLATE_NOOP("GalleryPages", "Designer forms"),
         &create<DesignerFormsPage>},
        {QStringLiteral("icons"), QT_TRANSLATE_NOOP("GalleryPages", "Icons"), &create<IconsPage>},
        {QStringLiteral("tokens"), QT_TRANSLATE_NOOP("GalleryPages", "Colour tokens"), &create<TokensPage>},
    };
    return pages;
}

int GalleryPageRegistry::indexOf(const QString& id) {
    const auto& pages = entries();
    for (size_t i = 0; i < pages.size(); ++i) {
        if (pages[i].id == id)
            return int(i);
    }
    return -1;
}

QString GalleryPageRegistry::title(const Entry& entry) {
    return QCoreApplication::translate("GalleryPages", entry.title);
}
