#include "bannerspage.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <kaalertbanner.h>
#include <kadiscoverabilitybanner.h>
#include <kadiscoverabilitylabel.h>
#include <kadiscoverabilitywidget.h>
#include <kalabel.h>
#include <kapillbutton.h>
#include <kaprogressbar.h>
#include <kaspinner.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMetaEnum>
#include <QVBoxLayout>

namespace {

struct TypeSample {
    KaAlertBanner::KaAlertBannerType type;
    const char* text;
};

const TypeSample kTypes[] = {
    {KaAlertBanner::Error, QT_TRANSLATE_NOOP("BannersPage", "Your message could not be sent.")},
    {KaAlertBanner::Issue, QT_TRANSLATE_NOOP("BannersPage", "Your connection is unstable.")},
    {KaAlertBanner::Success, QT_TRANSLATE_NOOP("BannersPage", "Your settings were saved.")},
    {KaAlertBanner::Announcement, QT_TRANSLATE_NOOP("BannersPage", "A new version is ready to install.")},
    {KaAlertBanner::CallForwarding, QT_TRANSLATE_NOOP("BannersPage", "Calls are forwarded to your mobile.")},
    {KaAlertBanner::Away, QT_TRANSLATE_NOOP("BannersPage", "You are shown as away.")},
    {KaAlertBanner::Transient, QT_TRANSLATE_NOOP("BannersPage", "The room lights were turned on.")},
};

const char kLongText[] = QT_TRANSLATE_NOOP(
    "BannersPage",
    "This banner wraps a long message over several lines instead of widening the window, and "
    "keeps its icon and buttons lined up with the first line. <a href=\"details\">Learn more</a>");

// Two thirds of the width. A maximum width would not do: a vertical layout
// asks for the height at its own width, and wrapped text would be clipped.
void addPartWidth(QBoxLayout* layout, QWidget* widget) {
    auto* row = new QHBoxLayout;
    row->addWidget(widget, 2);
    row->addStretch(1);
    layout->addLayout(row);
}

} // namespace

BannersPage::BannersPage(QWidget* parent)
    : GalleryPage(parent) {
    addAlertSection();
    addDiscoverabilitySection();
    addProgressSection();
    contentLayout()->addStretch(1);
    retranslateUi();
}

void BannersPage::addAlertSection() {
    addHeading(QT_TR_NOOP("Alert banners"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    const QMetaEnum modes = QMetaEnum::fromType<KaAlertBanner::BannerStyleMode>();
    // Every type in each style mode: the wrapping mode with both buttons,
    // the single-line mode with one, the compact mode without.
    for (int column = 0; column < modes.keyCount(); ++column) {
        auto* header = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Caption);
        header->setText(QString::fromLatin1(modes.key(column)));
        grid->addWidget(header, 0, column);
    }
    int row = 1;
    for (const TypeSample& sample : kTypes) {
        for (int column = 0; column < modes.keyCount(); ++column) {
            auto* banner = new KaAlertBanner(nullptr, sample.type);
            banner->setBannerStyleMode(KaAlertBanner::BannerStyleMode(modes.value(column)));
            banner->setButtonVisible(column < 2);
            banner->setSecondaryButtonVisible(column == 0);
            const char* text = sample.text;
            onRetranslate([banner, text] {
                banner->setText(tr(text));
                banner->setButtonText(tr("Retry"));
                banner->setSecondaryButtonText(tr("Details"));
                banner->setDismissButtonAccessibleName(tr("Dismiss: %1").arg(tr(text)));
            });
            grid->addWidget(banner, row, column, Qt::AlignTop);
        }
        ++row;
    }
    // Room for wrapped text next to two buttons, even in long translations.
    grid->setColumnMinimumWidth(0, 320);
    contentLayout()->addLayout(grid);

    // Long rich text with a link, and the layouts that centre the content.
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    addCaption(QT_TR_NOOP("Wrapping text with a link; dismissing hides it"), column);
    auto* wrapped = new KaAlertBanner(nullptr, KaAlertBanner::Announcement);
    wrapped->enableRichText();
    wrapped->setHideOnDismiss(true);
    wrapped->setButtonVisible(true);
    onRetranslate([wrapped] {
        wrapped->setText(tr(kLongText),
                         tr("This banner wraps a long message over several lines. Learn more"));
        wrapped->setButtonText(tr("Update"));
    });
    addPartWidth(column, wrapped);

    const struct {
        KaAlertBanner::KaAlertBannerTextAlignment alignment;
        KaAlertBanner::KaAlertBannerType type;
        const char* caption;
    } layouts[] = {
        {KaAlertBanner::Centered, KaAlertBanner::Success, QT_TR_NOOP("Centred row")},
        {KaAlertBanner::CenteredContent, KaAlertBanner::Transient, QT_TR_NOOP("Centred content")},
    };
    for (const auto& entry : layouts) {
        addCaption(entry.caption, column);
        auto* banner = new KaAlertBanner(nullptr, entry.type, entry.alignment);
        banner->setBannerStyleMode(KaAlertBanner::SingleLine);
        banner->setButtonVisible(true);
        onRetranslate([banner] {
            banner->setText(tr("You are presenting to everyone in the room."));
            banner->setButtonText(tr("Stop"));
        });
        addPartWidth(column, banner);
    }
    contentLayout()->addLayout(column);
}

void BannersPage::addDiscoverabilitySection() {
    addHeading(QT_TR_NOOP("New features and tips"));
    auto* tags = new QHBoxLayout;
    tags->setSpacing(16);
    for (int type = KaDiscoverabilityEnum::IconWithTextTag; type <= KaDiscoverabilityEnum::IconBadge;
         ++type) {
        auto* label = new KaDiscoverabilityLabel;
        label->setLabelType(KaDiscoverabilityEnum::DiscoverabilityLabelType(type));
        tags->addWidget(label, 0, Qt::AlignVCenter);
    }
    // Badges pinned to the corner of a host widget.
    for (auto type : {KaDiscoverabilityEnum::IconBadge, KaDiscoverabilityEnum::IconWithBorder}) {
        auto* host = new KaDiscoverabilityWidget;
        host->setFixedSize(112, 40);
        auto* button = new KaPillButton(host, KaButtonEnum::Secondary, KaButtonEnum::Normal);
        button->setGeometry(0, 8, 100, 28);
        onRetranslate([button] { button->setText(tr("Reactions")); });
        host->setBadgeType(type);
        host->showDiscoverabilityBadge(true);
        tags->addWidget(host);
    }
    tags->addStretch(1);
    contentLayout()->addLayout(tags);

    const struct {
        KaDiscoverabilityEnum::DiscoverabilityLabelType type;
        const char* text;
    } tips[] = {
        {KaDiscoverabilityEnum::NewFeature,
         QT_TR_NOOP("Pin a chat to keep it at the top of your list, however busy the day gets.")},
        {KaDiscoverabilityEnum::TipHelp, QT_TR_NOOP("Blur your background from the video settings.")},
        {KaDiscoverabilityEnum::TipShortcut, QT_TR_NOOP("Press Ctrl+Shift+M to mute or unmute.")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    for (const auto& tip : tips) {
        auto* banner = new KaDiscoverabilityBanner(nullptr, tip.type);
        const char* text = tip.text;
        onRetranslate([banner, text] { banner->setBannerText(tr(text)); });
        row->addWidget(banner, 0, Qt::AlignTop);
    }
    row->addStretch(1);
    contentLayout()->addLayout(row);
}

void BannersPage::addProgressSection() {
    addHeading(QT_TR_NOOP("Progress and busy indicators"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    const QMetaEnum sizes = QMetaEnum::fromType<KaProgressBar::BarSize>();
    const int values[] = {30, 65, 100};
    for (int i = 0; i < sizes.keyCount(); ++i) {
        auto* name = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Caption);
        name->setText(QString::fromLatin1(sizes.key(i)));
        grid->addWidget(name, i, 0);
        auto* bar = new KaProgressBar;
        bar->setBarSize(KaProgressBar::BarSize(sizes.value(i)));
        bar->setValue(values[i]);
        bar->setFixedWidth(240);
        onRetranslate([bar] { bar->setAccessibleName(tr("Upload")); });
        grid->addWidget(bar, i, 1);
    }
    const int last = sizes.keyCount();
    auto* busy = new KaProgressBar;
    busy->setIndeterminate(true);
    busy->setFixedWidth(240);
    onRetranslate([busy] { busy->setAccessibleName(tr("Preparing")); });
    auto* busyName = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Caption);
    onRetranslate([busyName] { busyName->setText(tr("Indeterminate")); });
    grid->addWidget(busyName, last, 0);
    grid->addWidget(busy, last, 1);
    auto* disabled = new KaProgressBar;
    disabled->setValue(50);
    disabled->setEnabled(false);
    disabled->setFixedWidth(240);
    onRetranslate([disabled] { disabled->setAccessibleName(tr("Paused download")); });
    auto* disabledName = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Caption);
    onRetranslate([disabledName] { disabledName->setText(tr("Disabled")); });
    grid->addWidget(disabledName, last + 1, 0);
    grid->addWidget(disabled, last + 1, 1);
    grid->setColumnStretch(2, 1);
    contentLayout()->addLayout(grid);

    auto* spinners = new QHBoxLayout;
    spinners->setSpacing(24);
    const QMetaEnum spinnerSizes = QMetaEnum::fromType<KaSpinner::SpinnerSize>();
    for (int i = 0; i < spinnerSizes.keyCount(); ++i)
        spinners->addWidget(new KaSpinner(nullptr, KaSpinner::SpinnerSize(spinnerSizes.value(i))), 0,
                            Qt::AlignVCenter);
    spinners->addStretch(1);
    contentLayout()->addLayout(spinners);
}

void BannersPage::retranslateUi() {
    setDescription(
        tr("Alert banners tell about a state in every type, style mode and layout; tags, badges and "
           "tips point at what is new; progress bars and spinners show work in progress. Every "
           "colour comes from the theme's banner, new-feature and spinner colour sets."));
    applyTexts();
}
