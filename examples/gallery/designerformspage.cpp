#include "designerformspage.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <kaavatarview.h>
#include <kalabelbase.h>
#include <kapixmaploader.h>

#include <QFile>
#include <QUiLoader>
#include <QVBoxLayout>

DesignerFormsPage::DesignerFormsPage(QWidget* parent)
    : GalleryPage(parent)
    , m_note(GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall)) {
    m_note->setWordWrap(true);
    contentLayout()->addWidget(m_note);

    QUiLoader loader;
    // The plugin as built next to the gallery; an installed one is found in
    // Qt's own plugin folder.
#ifdef KARVEX_GALLERY_DESIGNER_PLUGIN_DIR
    loader.addPluginPath(QStringLiteral(KARVEX_GALLERY_DESIGNER_PLUGIN_DIR));
#endif
    // Without the plugin the loader would fall back to plain Qt widgets,
    // which would show nothing of the library.
    if (loader.availableWidgets().contains(QStringLiteral("KaRoundButton"))) {
        loader.setLanguageChangeEnabled(true);
        QFile form(QStringLiteral(":/gallery/allwidgets.ui"));
        if (form.open(QIODevice::ReadOnly)) {
            if (QWidget* widget = loader.load(&form, this)) {
                // Forms cannot name the avatar factory; the host hands it
                // to the avatar views after loading.
                auto* avatars = new KaPixmapLoader(this, devicePixelRatioF());
                for (KaAvatarView* view : widget->findChildren<KaAvatarView*>())
                    view->setPixmapLoader(avatars);
                contentLayout()->addWidget(widget);
                m_loaded = true;
            }
        }
    }
    contentLayout()->addStretch(1);
    retranslateUi();
}

void DesignerFormsPage::retranslateUi() {
    setDescription(tr("A form drawn in Qt Designer with every widget of the \"Karvex\" section of its widget "
                      "box, loaded while the gallery runs. Forms compiled by uic look the same."));
    m_note->setText(m_loaded ? tr("Loaded through QUiLoader and the Designer plugin.")
                             : tr("The Designer plugin was not found, so the form is not shown. Build it "
                                  "with KARVEX_BUILD_DESIGNER_PLUGIN=ON or install it into Qt's plugin "
                                  "folder."));
}
