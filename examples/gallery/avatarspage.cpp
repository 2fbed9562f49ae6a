#include "avatarspage.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <bzthemeutils.h>
#include <kaalertbadge.h>
#include <kaalerticonbadge.h>
#include <kaavatarview.h>
#include <kabadge.h>
#include <kaiconbadge.h>
#include <kapixmaploader.h>
#include <karoundbadgebutton.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QPainter>
#include <QVBoxLayout>

namespace {

const KaAvatarEnum::AvatarType kFixedTypes[] = {
    KaAvatarEnum::LockedIconWithBackground,
    KaAvatarEnum::MessageSentBySelf,
    KaAvatarEnum::DefaultExConferenceAvatar,
    KaAvatarEnum::DefaultGuestUserAvatar,
    KaAvatarEnum::MeetingIcon,
    KaAvatarEnum::IMShareScreen,
    KaAvatarEnum::IMContentShare,
    KaAvatarEnum::MeetingRoomWithDevice,
    KaAvatarEnum::MeetingRoomWithoutDevice,
    KaAvatarEnum::UnknownSpeaker,
    KaAvatarEnum::MeetingStepAway,
};

// Initials in several scripts; the two-letter ones draw both letters.
const char* const kInitials[] = {
    "ak", "abc", "\xC3\xA9l", "\xD0\xB1\xD0\xB4", "\xCE\xB1\xCE\xB2", "\xD8\xB3\xD8\xB9", "\xF0\x9F\x98\x80"};

const char* const kCounts[] = {"0", "7", "99", "100", QT_TRANSLATE_NOOP("AvatarsPage", "new")};

// A sample picture in theme colours, so that it reads in every theme.
QPixmap samplePicture(const QSize& size) {
    QPixmap picture(size);
    picture.fill(BzThemeUtils::getColorSet(QStringLiteral("avatar-color-avatar-background-cobalt")).normal());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        BzThemeUtils::getColorSet(QStringLiteral("avatar-color-avatar-background-gold")).normal());
    const int side = qMin(size.width(), size.height());
    painter.drawEllipse(QRect(size.width() / 2 - side / 4, side / 8, side / 2, side / 2));
    painter.setBrush(
        BzThemeUtils::getColorSet(QStringLiteral("avatar-color-avatar-background-mint")).normal());
    painter.drawRect(QRect(0, side * 3 / 4, size.width(), side));
    return picture;
}

QString keyOf(const QMetaEnum& meta, int value) {
    return QString::fromLatin1(meta.valueToKey(value));
}

QHBoxLayout* row(int spacing = 12) {
    auto* layout = new QHBoxLayout;
    layout->setSpacing(spacing);
    return layout;
}

} // namespace

AvatarsPage::AvatarsPage(QWidget* parent)
    : GalleryPage(parent)
    , m_loader(new KaPixmapLoader(this, devicePixelRatioF())) {
    addSizesSection();
    addPresenceSection();
    addInitialsSection();
    addBadgesSection();
    addButtonsSection();
    contentLayout()->addStretch(1);
    retranslateUi();
}

KaLabelBase* AvatarsPage::heading() {
    KaLabelBase* label = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title);
    GalleryUtils::markAsHeading(label);
    m_headings << label;
    contentLayout()->addWidget(label);
    return label;
}

KaLabelBase* AvatarsPage::caption(QGridLayout* grid, int row, int column) {
    KaLabelBase* label =
        GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::CaptionRegular);
    grid->addWidget(label, row, column, Qt::AlignLeading | Qt::AlignVCenter);
    m_captions << label;
    return label;
}

// Rows are sizes; columns initials, initials with presence, a square and a
// wide picture, then every fixed-icon type.
void AvatarsPage::addSizesSection() {
    heading();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    const QMetaEnum sizes = QMetaEnum::fromType<KaAvatarEnum::Size>();
    const QMetaEnum types = QMetaEnum::fromType<KaAvatarEnum::AvatarType>();
    const QPixmap square = samplePicture(QSize(128, 128));
    const QPixmap wide = samplePicture(QSize(200, 110));
    for (int s = 0; s < sizes.keyCount(); ++s) {
        const auto size = KaAvatarEnum::Size(sizes.value(s));
        caption(grid, s, 0)->setText(keyOf(sizes, size));
        int column = 1;
        const auto add = [&](KaAvatarView* view, const QString& name) {
            view->setTooltip(name);
            grid->addWidget(view, s, column++, Qt::AlignCenter);
        };
        auto* initials = new KaAvatarView(nullptr, m_loader, KaAvatarEnum::None, size);
        initials->setAvatarInitials(QStringLiteral("ak"));
        add(initials, QStringLiteral("Alex Kim"));
        auto* present = new KaAvatarView(nullptr, m_loader, KaAvatarEnum::Active, size);
        present->setAvatarInitials(QStringLiteral("JD"));
        add(present, QStringLiteral("Jo Dale"));
        add(new KaAvatarView(nullptr, m_loader, square, KaAvatarEnum::None, size),
            QStringLiteral("Square picture"));
        add(new KaAvatarView(nullptr, m_loader, wide, KaAvatarEnum::Busy, size),
            QStringLiteral("Wide picture"));
        for (KaAvatarEnum::AvatarType type : kFixedTypes) {
            auto* view = new KaAvatarView(nullptr, m_loader, KaAvatarEnum::None, size);
            view->setAvatarType(type);
            add(view, keyOf(types, type));
        }
    }
    grid->setColumnStretch(grid->columnCount(), 1);
    contentLayout()->addLayout(grid);
}

// Every presence at Large, in normal and alternate colours. The view shows
// normal colours; the alternate row is the loader's picture on a label.
void AvatarsPage::addPresenceSection() {
    heading();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    const QMetaEnum presences = QMetaEnum::fromType<KaAvatarEnum::Presence>();
    caption(grid, 0, 0);
    caption(grid, 1, 0);
    for (int p = 1; p < presences.keyCount(); ++p) {
        const auto presence = KaAvatarEnum::Presence(presences.value(p));
        auto* view = new KaAvatarView(nullptr, m_loader, presence, KaAvatarEnum::Large);
        view->setAvatarInitials(QStringLiteral("RM"));
        view->setTooltip(keyOf(presences, presence));
        grid->addWidget(view, 0, p, Qt::AlignCenter);
        auto* alternate = new QLabel;
        alternate->setProperty("presence", int(presence));
        alternate->setAccessibleName(keyOf(presences, presence));
        m_alternate << alternate;
        grid->addWidget(alternate, 1, p, Qt::AlignCenter);
    }
    grid->setColumnStretch(grid->columnCount(), 1);
    contentLayout()->addLayout(grid);
    renderAlternateRow();
    connect(m_loader, &KaPixmapLoader::overlaysUpdated, this, &AvatarsPage::renderAlternateRow);
}

void AvatarsPage::renderAlternateRow() {
    for (QLabel* label : std::as_const(m_alternate)) {
        KaAvatarConfig config;
        config.size = KaAvatarEnum::Large;
        config.presence = KaAvatarEnum::Presence(label->property("presence").toInt());
        config.initials = QStringLiteral("RM");
        config.alternatePresenceColors = true;
        config.devicePixelRatio = label->devicePixelRatioF();
        const QPixmap picture = m_loader->getAvatar(config);
        label->setPixmap(picture);
        label->setFixedSize((picture.deviceIndependentSize()).toSize());
    }
}

void AvatarsPage::addInitialsSection() {
    heading();
    auto* layout = row();
    for (const char* initials : kInitials) {
        auto* view = new KaAvatarView(nullptr, m_loader, KaAvatarEnum::Dnd, KaAvatarEnum::XMedium);
        view->setAvatarInitials(QString::fromUtf8(initials));
        layout->addWidget(view);
    }
    auto* colored = new KaAvatarView(nullptr, m_loader, KaAvatarEnum::None, KaAvatarEnum::XMedium);
    colored->setAvatarInitials(QStringLiteral("LV"));
    colored->setAvatarColor(
        BzThemeUtils::getColorSet(QStringLiteral("avatar-color-avatar-background-violet")).normal());
    colored->setTooltip(QStringLiteral("Lee Vance"));
    // A host colour is a plain colour: pick it again when the theme changes.
    connect(m_loader, &KaPixmapLoader::overlaysUpdated, colored, [colored] {
        colored->setAvatarColor(
            BzThemeUtils::getColorSet(QStringLiteral("avatar-color-avatar-background-violet")).normal());
    });
    layout->addWidget(colored);
    layout->addStretch(1);
    contentLayout()->addLayout(layout);
}

void AvatarsPage::addBadgesSection() {
    heading();
    auto* counters = row(8);
    for (bool legacy : {false, true}) {
        for (const char* count : kCounts) {
            auto* badge = new KaBadge;
            badge->setLegacyStyling(legacy);
            badge->setProperty("source", QByteArray(count));
            counters->addWidget(badge, 0, Qt::AlignVCenter);
        }
        counters->addSpacing(24);
    }
    counters->addStretch(1);
    contentLayout()->addLayout(counters);

    auto* icons = row(10);
    for (int type = IconBadgeAlert; type <= IconBadgeSparkle; ++type)
        icons->addWidget(new KaIconBadge(nullptr, KaIconBadgeType(type)));
    icons->addStretch(1);
    contentLayout()->addLayout(icons);

    auto* alerts = row(8);
    const QMetaEnum styles = QMetaEnum::fromType<KaBadgeEnum::Style>();
    for (int s = 0; s < styles.keyCount(); ++s)
        alerts->addWidget(new KaAlertBadge(keyOf(styles, s), KaBadgeEnum::Style(s)));
    alerts->addSpacing(16);
    for (int s = KaBadgeEnum::Announcement; s < styles.keyCount(); ++s)
        alerts->addWidget(new KaAlertIconBadge(nullptr, KaBadgeEnum::Style(s)));
    alerts->addStretch(1);
    contentLayout()->addLayout(alerts);
}

void AvatarsPage::addButtonsSection() {
    heading();
    auto* layout = row(16);
    const KaButtonEnum::Size sizes[] = {KaButtonEnum::ExtraSmall, KaButtonEnum::Small, KaButtonEnum::Normal,
                                        KaButtonEnum::Large};
    int i = 0;
    for (KaButtonEnum::Size size : sizes) {
        auto* button =
            new KaRoundBadgeButton(nullptr, i % 2 ? KaButtonEnum::Secondary : KaButtonEnum::Join, size);
        button->setLeftIcon(QStringLiteral("qrc:/Resources/handset-filled.svg"));
        button->setProperty("count", QByteArray(kCounts[i]));
        if (i == 3)
            button->setIconBadge(IconBadgeMention);
        layout->addWidget(button, 0, Qt::AlignVCenter);
        ++i;
    }
    auto* plain = new KaRoundBadgeButton;
    plain->setLeftIcon(QStringLiteral("qrc:/Resources/chat-filled.svg"));
    plain->setBadgeText(QStringLiteral("1"));
    plain->setDisabled(true);
    layout->addWidget(plain, 0, Qt::AlignVCenter);
    layout->addStretch(1);
    contentLayout()->addLayout(layout);
}

void AvatarsPage::retranslateUi() {
    setDescription(
        tr("Avatars come from one shared loader: pictures cropped to circles, initials, fixed icons, "
           "and a presence badge in a notch. Badges count, mark and warn."));
    const char* headings[] = {QT_TR_NOOP("Sizes and types"), QT_TR_NOOP("Presence"), QT_TR_NOOP("Initials"),
                              QT_TR_NOOP("Badges"), QT_TR_NOOP("Round badge buttons")};
    for (int i = 0; i < m_headings.size(); ++i)
        m_headings[i]->setText(tr(headings[i]));
    const int last = m_captions.size();
    m_captions[last - 2]->setText(tr("Normal"));
    m_captions[last - 1]->setText(tr("Alternate"));
    for (KaBadge* badge : findChildren<KaBadge*>()) {
        const QByteArray source = badge->property("source").toByteArray();
        // Counts stay numbers; only the word is translated.
        bool number = false;
        source.toInt(&number);
        if (!source.isEmpty())
            badge->setText(number ? QString::fromLatin1(source) : tr(source.constData()));
    }
    for (KaRoundBadgeButton* button : findChildren<KaRoundBadgeButton*>()) {
        const QByteArray count = button->property("count").toByteArray();
        if (!count.isEmpty() && !button->iconBadge())
            button->setBadgeText(QString::fromLatin1(count));
        button->setAccessibleLabel(button->isEnabled() ? tr("Calls") : tr("Messages"));
    }
}
