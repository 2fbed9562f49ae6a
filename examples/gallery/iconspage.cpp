#include "iconspage.h"

#include "galleryutils.h"
#include "iconsheet.h"

#include <bzfont.h>
#include <kalabelbase.h>

#include <QDir>
#include <QVBoxLayout>

namespace {
// Icons show the colours of an active interactive icon and of secondary text.
const char kIconTint[] = "interactiveicon-primary-filled-icon-active";
const char kTextTint[] = "label-secondary-text";

// Listed from the compiled-in resources, so the page follows whatever the
// library bundles.
QStringList svgFilesIn(const QString& directory) {
    const QDir dir(directory);
    QStringList paths;
    const QStringList names = dir.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    for (const QString& name : names)
        paths << dir.filePath(name);
    return paths;
}
} // namespace

IconsPage::IconsPage(QWidget* parent)
    : GalleryPage(parent)
    , m_icons(new IconSheet)
    , m_emojis(new IconSheet)
    , m_iconsHeading(GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title))
    , m_iconsNote(GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall))
    , m_emojisHeading(GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title))
    , m_emojisNote(GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall)) {
    m_icons->setTintColorSets({QLatin1String(kIconTint), QLatin1String(kTextTint)});
    m_icons->setImageSizes({16, 32});
    m_icons->setImages(svgFilesIn(QStringLiteral(":/Resources")));
    m_emojis->setImageSizes({32});
    m_emojis->setImages(svgFilesIn(QStringLiteral(":/emojis")));

    GalleryUtils::markAsHeading(m_iconsHeading);
    GalleryUtils::markAsHeading(m_emojisHeading);
    m_iconsNote->setWordWrap(true);
    m_emojisNote->setWordWrap(true);
    contentLayout()->addWidget(m_iconsHeading);
    contentLayout()->addWidget(m_iconsNote);
    contentLayout()->addWidget(m_icons);
    contentLayout()->addSpacing(16);
    contentLayout()->addWidget(m_emojisHeading);
    contentLayout()->addWidget(m_emojisNote);
    contentLayout()->addWidget(m_emojis);
    contentLayout()->addStretch(1);
    retranslateUi();
}

void IconsPage::retranslateUi() {
    setDescription(tr("Icons are monochrome SVG images tinted with a colour set when they are drawn, so "
                      "one file serves every theme."));
    m_iconsHeading->setText(tr("Icons (%1)").arg(m_icons->count()));
    m_iconsNote->setText(tr("At 16 and 32 px, tinted with %1 and with %2.")
                             .arg(QLatin1String(kIconTint), QLatin1String(kTextTint)));
    m_emojisHeading->setText(tr("Emoji (%1)").arg(m_emojis->count()));
    m_icons->setAccessibleName(tr("Icons"));
    m_emojis->setAccessibleName(tr("Emoji"));
    m_emojisNote->setText(m_emojis->count() > 0 ? tr("At 32 px, in their own colours.")
                                                : tr("No emoji images are bundled yet."));
}
