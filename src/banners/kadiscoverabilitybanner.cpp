#include "kadiscoverabilitybanner.h"

#include "kacolortokenutils.h"
#include "kaconfig.h"
#include "kalabel.h"
#include "kasvglabel.h"

#include <bzfont.h>
#include <bzfontmanager.h>
#include <bzsvgpushbutton.h>
#include <bzthemeutils.h>

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QTextDocument>
#include <QtMath>

namespace {

// The room the text leaves in a banner: margins, icon, cross and spacings.
constexpr int kTextAllowance = 72;

bool isBannerKind(int type) {
    return type >= KaDiscoverabilityEnum::NewFeature && type <= KaDiscoverabilityEnum::TipShortcut;
}

// A group named by its tip, so a screen reader says what the tip is about
// before walking into it.
class DiscoverabilityBannerAccessible : public QAccessibleWidget {
public:
    explicit DiscoverabilityBannerAccessible(KaDiscoverabilityBanner* banner)
        : QAccessibleWidget(banner, QAccessible::Grouping) {}

    QString text(QAccessible::Text t) const override {
        const QString own = QAccessibleWidget::text(t);
        if (t != QAccessible::Name || !own.isEmpty())
            return own;
        const auto* banner = static_cast<const KaDiscoverabilityBanner*>(widget());
        if (banner->type() == KaDiscoverabilityEnum::NewFeature)
            return KaConfig::discoverabilityCaption() + QLatin1Char(' ') + banner->bannerText();
        return banner->bannerText();
    }
};

QAccessibleInterface* bannerFactory(const QString&, QObject* object) {
    if (auto* banner = qobject_cast<KaDiscoverabilityBanner*>(object))
        return new DiscoverabilityBannerAccessible(banner);
    return nullptr;
}

} // namespace

KaDiscoverabilityBanner::KaDiscoverabilityBanner(QWidget* parent,
                                                 KaDiscoverabilityEnum::DiscoverabilityLabelType type)
    : BzWidget(parent)
    , m_icon(new KaSvgLabel(this))
    , m_text(new KaLabel(this))
    , m_dismiss(new BzSvgPushButton(this))
    , m_layout(new QHBoxLayout(this))
    , m_type(type) {
    static bool factoryInstalled = false;
    if (!factoryInstalled) {
        factoryInstalled = true;
        QAccessible::installFactory(bannerFactory);
    }
    if (!isBannerKind(type)) {
        qWarning("KaDiscoverabilityBanner: %d is not a banner kind; shown as a new-feature tip", int(type));
        m_type = KaDiscoverabilityEnum::NewFeature;
    }
    initialize();
    connect(BzFontManager::instance(), &BzFontManager::textScaleChanged, this, [this] {
        m_text->setFontToken(BzFont::BodySmall, true);
        updateText();
    });
}

KaDiscoverabilityBanner::~KaDiscoverabilityBanner() = default;

QString KaDiscoverabilityBanner::getIconName(int type) {
    switch (type) {
    case KaDiscoverabilityEnum::TipHelp:
        return QStringLiteral("qrc:/Resources/video-effect-filled.svg");
    case KaDiscoverabilityEnum::TipShortcut:
        return QStringLiteral("qrc:/Resources/keyboard-bold.svg");
    default:
        return QStringLiteral("qrc:/Resources/sparkle-filled.svg");
    }
}

QString KaDiscoverabilityBanner::getIconColour(int type) {
    switch (type) {
    case KaDiscoverabilityEnum::TipHelp:
        return KaColorTokenUtils::tokenToString(Karvox::newFeature_banner_helpTipIcon);
    case KaDiscoverabilityEnum::TipShortcut:
        return KaColorTokenUtils::tokenToString(Karvox::newFeature_banner_shortcutTipIcon);
    default:
        return KaColorTokenUtils::tokenToString(Karvox::newFeature_banner_newFeatureIcon);
    }
}

void KaDiscoverabilityBanner::initialize() {
    setObjectName(QStringLiteral("KaDiscoverabilityBanner"));
    setFixedWidth(m_width);
    applyRecord();

    BzCSSData transparent;
    transparent.backgroundColorSet = BzThemeUtils::transparentColourSet().name();
    const QString textToken = KaColorTokenUtils::tokenToString(Karvox::newFeature_banner_text);

    m_icon->setObjectName(QStringLiteral("bannerIcon"));
    m_icon->setFixedSize(16, 20);
    m_icon->setContentsMargins(0, 4, 0, 0);
    m_icon->setSvgIcon(getIconName(m_type));
    m_icon->setSvgIconSize(QSize(16, 16));
    m_icon->setSvgIconColorSet(getIconColour(m_type));
    m_icon->setCSS(transparent);

    m_text->setObjectName(QStringLiteral("bannerText"));
    m_text->setTextColorSetName(textToken);
    m_text->setFontToken(BzFont::BodySmall, true);
    m_text->setTextFormat(Qt::RichText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeading);

    m_dismiss->setObjectName(QStringLiteral("dismissButton"));
    m_dismiss->setFixedSize(16, 16);
    m_dismiss->setSvgIcon(QStringLiteral("qrc:/Resources/cancel-bold.svg"));
    m_dismiss->setSvgIconSize(QSize(12, 12));
    m_dismiss->setSvgIconAlignment(BzEnum::AlignCenter);
    m_dismiss->setProperty("focusBorderRadius", 4.0);
    m_dismiss->setAccessibleName(tr("Dismiss"));
    transparent.textColorSet = textToken;
    m_dismiss->setCSS(transparent);

    m_layout->setObjectName(QStringLiteral("bannerLayout"));
    m_layout->setContentsMargins(8, 8, 8, 8);
    m_layout->setSpacing(8);
    m_layout->addWidget(m_icon, 0, Qt::AlignTop);
    m_layout->addWidget(m_text, 1, Qt::AlignTop);
    m_layout->addWidget(m_dismiss, 0, Qt::AlignTop);

    connect(m_dismiss, &QAbstractButton::clicked, this, &KaDiscoverabilityBanner::onDismissed);
    updateText();
}

void KaDiscoverabilityBanner::applyRecord() {
    BzCSSData record;
    record.backgroundColorSet = KaColorTokenUtils::tokenToString(Karvox::newFeature_banner_background);
    record.borderRadius = 8;
    record.setSwitch(BzCSSData::FollowState, 0);
    // High contrast paints the tip like the window; an outline keeps it apart.
    if (KaConfig::highContrast) {
        record.borderColorSet = KaColorTokenUtils::tokenToString(Karvox::newFeature_banner_text);
        record.setBorders(true);
    }
    setCSS(record);
}

QString KaDiscoverabilityBanner::getDisplayText(const QString& text) const {
    if (m_type != KaDiscoverabilityEnum::NewFeature)
        return text;
    const QColor accent =
        BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::newFeature_banner_newFeatureIcon),
                                  BzThemeUtils::Global)
            .normal();
    return QStringLiteral("<span style=\"color: %1; font-weight: bold;\">%2</span> %3")
        .arg(accent.name(), KaConfig::discoverabilityCaption().toHtmlEscaped(), text);
}

int KaDiscoverabilityBanner::heightForDocument(qreal documentHeight) {
    return int(std::round((documentHeight - 8) / 14 * 19 + 16));
}

void KaDiscoverabilityBanner::setBannerText(const QString& text) {
    const bool changed = text != m_bannerText;
    m_bannerText = text;
    updateText();
    if (changed)
        Q_EMIT bannerTextChanged();
}

void KaDiscoverabilityBanner::updateText() {
    const int textWidth = m_width - kTextAllowance;
    m_text->setText(getDisplayText(m_bannerText));
    m_text->setFixedWidth(textWidth);

    QTextDocument document;
    document.setDefaultFont(m_text->font());
    document.setPlainText(m_type == KaDiscoverabilityEnum::NewFeature
                              ? KaConfig::discoverabilityCaption() + QLatin1Char(' ') + m_bannerText
                              : m_bannerText);
    document.setTextWidth(textWidth);
    setFixedHeight(heightForDocument(document.size().height()));
}

void KaDiscoverabilityBanner::setBannerWidth(int width) {
    if (width < MinimumWidth) {
        qWarning("KaDiscoverabilityBanner::setBannerWidth: %d is too narrow; using %d", width, MinimumWidth);
        width = MinimumWidth;
    }
    if (width == m_width)
        return;
    m_width = width;
    setFixedWidth(width);
    updateText();
    Q_EMIT bannerWidthChanged();
}

void KaDiscoverabilityBanner::onThemeChanged() {
    applyRecord();
    BzWidget::onThemeChanged();
    updateText();
}

void KaDiscoverabilityBanner::onDismissed() {
    hide();
    Q_EMIT dismissed();
}
