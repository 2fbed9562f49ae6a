#include "kaalertbanner.h"

#include "kacolortokenutils.h"
#include "kaconfig.h"
#include "kafocusstyle.h"
#include "kalabel.h"
#include "kapillbutton.h"
#include "kasvglabel.h"

#include <bzfontmanager.h>
#include <bzsvgpushbutton.h>

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QPainter>
#include <QTextDocumentFragment>

namespace {

struct TypeLook {
    const char* icon;
    Karvox::Token text;
    Karvox::Token background;
};

const TypeLook kLooks[] = {
    {"qrc:/Resources/error-legacy-badge-filled.svg", Karvox::banner_style_error_text,
     Karvox::banner_style_error_background},
    {"qrc:/Resources/warning-badge-filled.svg", Karvox::banner_style_issue_text,
     Karvox::banner_style_issue_background},
    {"qrc:/Resources/check-circle-badge-filled.svg", Karvox::banner_style_success_text,
     Karvox::banner_style_success_background},
    {"qrc:/Resources/info-badge-filled.svg", Karvox::banner_style_announcement_text,
     Karvox::banner_style_announcement_background},
    {"qrc:/Resources/call-forward-settings-filled.svg", Karvox::banner_style_announcement_text,
     Karvox::banner_style_announcement_background},
    {"qrc:/Resources/away-calling-presence-filled.svg", Karvox::banner_style_announcement_text,
     Karvox::banner_style_announcement_background},
    {"qrc:/Resources/room-lights-regular.svg", Karvox::banner_style_transient_text,
     Karvox::banner_style_transient_background},
};
constexpr int kTypeCount = int(sizeof(kLooks) / sizeof(kLooks[0]));

const TypeLook* lookOf(int type) {
    return type >= 0 && type < kTypeCount ? &kLooks[type] : nullptr;
}

constexpr int kWrappedRadius = 8;
constexpr int kLineRadius = 14;
constexpr int kMinimumWrapWidth = 120;

// The text label takes keyboard focus (to read and copy the message), so it
// asks the style for the library's focus ring like every other focusable
// widget does.
class BannerText : public KaLabel {
public:
    using KaLabel::KaLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        KaLabel::paintEvent(event);
        if (!hasFocus())
            return;
        QPainter painter(this);
        KaFocusStyle::requestRing(this, &painter);
    }
};

// Screen readers hear the banner as an alert named by its message.
class AlertBannerAccessible : public QAccessibleWidget {
public:
    explicit AlertBannerAccessible(KaAlertBanner* banner)
        : QAccessibleWidget(banner, QAccessible::AlertMessage) {}

    QString text(QAccessible::Text t) const override {
        QString value = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && value.isEmpty()) {
            const auto* label = widget()->findChild<QLabel*>(QStringLiteral("alertBannerText"));
            if (label)
                value = label->accessibleName().isEmpty()
                            ? QTextDocumentFragment::fromHtml(label->text()).toPlainText()
                            : label->accessibleName();
        }
        return value;
    }
};

QAccessibleInterface* bannerFactory(const QString&, QObject* object) {
    if (auto* banner = qobject_cast<KaAlertBanner*>(object))
        return new AlertBannerAccessible(banner);
    return nullptr;
}

KaButton* createButton(QWidget* parent, const char* name) {
    auto* button = new KaPillButton(parent, KaButtonEnum::Secondary, KaButtonEnum::ExtraSmall);
    button->setObjectName(QLatin1String(name));
    button->setCheckable(true);
    button->setChecked(true);
    button->hide();
    return button;
}

} // namespace

KaAlertBanner::KaAlertBanner(QWidget* parent, KaAlertBannerType type, KaAlertBannerTextAlignment alignment)
    : BzWidget(parent)
    , m_icon(new KaSvgLabel(this))
    , m_text(new BannerText(this))
    , m_primary(createButton(this, "primaryBannerButton"))
    , m_secondary(createButton(this, "secondaryBannerButton"))
    , m_dismiss(new BzSvgPushButton(this))
    , m_layout(new QHBoxLayout(this)) {
    static bool factoryInstalled = false;
    if (!factoryInstalled) {
        factoryInstalled = true;
        QAccessible::installFactory(bannerFactory);
    }
    if (alignment < TopAligned || alignment > CenteredContent) {
        qWarning("KaAlertBanner: unknown text alignment %d, using the top alignment", int(alignment));
        alignment = TopAligned;
    }
    m_alignment = alignment;

    setObjectName(QStringLiteral("KaAlertBanner"));
    setFocusPolicy(Qt::StrongFocus);
    // The frame stays one pixel clear of the edges.
    setFrameInset(1);

    m_icon->setObjectName(QStringLiteral("alertBannerIcon"));
    m_icon->setFixedSize(16, 20);
    m_icon->setSvgIconSize(QSize(16, 16));
    m_icon->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    m_text->setObjectName(QStringLiteral("alertBannerText"));
    m_text->setFocusPolicy(Qt::StrongFocus);
    m_text->setFontToken(BzFont::BodySmall, true);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeading);

    m_dismiss->setObjectName(QStringLiteral("dismissButton"));
    m_dismiss->setFocusPolicy(Qt::StrongFocus);
    m_dismiss->setFixedSize(24, 24);
    m_dismiss->setSvgIcon(QStringLiteral("qrc:/Resources/cancel-bold.svg"));
    m_dismiss->setSvgIconSize(QSize(16, 16));
    m_dismiss->setSvgIconAlignment(BzEnum::AlignCenter);
    m_dismiss->setProperty("focusBorderRadius", 4.0);
    m_dismiss->setAccessibleName(tr("Dismiss"));

    m_layout->setObjectName(QStringLiteral("alertBannerLayout"));
    m_layout->setSpacing(8);
    setIconAndTextAlignment();
    applyBannerStyle();
    setAlertType(type);

    connect(m_primary, &QAbstractButton::clicked, this, &KaAlertBanner::alerBannerButtonClicked);
    connect(m_secondary, &QAbstractButton::clicked, this, &KaAlertBanner::secondaryAlertBannerButtonClicked);
    connect(m_dismiss, &QAbstractButton::clicked, this, &KaAlertBanner::dismissed);
    connect(m_text, &QLabel::linkActivated, this, &KaAlertBanner::bannerLinkClicked);
    connect(BzFontManager::instance(), &BzFontManager::textScaleChanged, this,
            [this] { m_text->setFontToken(m_textToken, true); });
}

KaAlertBanner::~KaAlertBanner() = default;

QString KaAlertBanner::iconForType(int type) {
    const TypeLook* look = lookOf(type);
    return look ? QLatin1String(look->icon) : QString();
}

QString KaAlertBanner::textTokenForType(int type) {
    const TypeLook* look = lookOf(type);
    return look ? KaColorTokenUtils::tokenToString(look->text) : QString();
}

QString KaAlertBanner::backgroundTokenForType(int type) {
    const TypeLook* look = lookOf(type);
    return look ? KaColorTokenUtils::tokenToString(look->background) : QString();
}

void KaAlertBanner::setIconAndTextAlignment() {
    switch (m_alignment) {
    case TopAligned:
    case TopAlignedAlt:
        m_layout->addWidget(m_icon, 0, Qt::AlignTop);
        m_layout->addWidget(m_text, 1, Qt::AlignTop);
        m_layout->addWidget(m_primary, 0, Qt::AlignTop);
        m_layout->addWidget(m_secondary, 0, Qt::AlignTop);
        m_layout->addWidget(m_dismiss, 0, Qt::AlignVCenter);
        break;
    case Centered:
        m_layout->addWidget(m_icon, 0, Qt::AlignRight);
        m_layout->addWidget(m_text, 0, Qt::AlignLeft);
        m_layout->addWidget(m_primary, 0, Qt::AlignLeft);
        m_layout->addWidget(m_secondary, 0, Qt::AlignLeft);
        m_layout->addWidget(m_dismiss, 0, Qt::AlignRight);
        m_layout->setAlignment(Qt::AlignCenter);
        break;
    case CenteredContent:
        m_layout->addStretch();
        m_layout->addWidget(m_icon, 0, Qt::AlignRight);
        m_layout->addWidget(m_text, 0, Qt::AlignLeft);
        m_layout->addWidget(m_primary, 0, Qt::AlignLeft);
        m_layout->addWidget(m_secondary, 0, Qt::AlignLeft);
        m_layout->addStretch();
        m_layout->addWidget(m_dismiss, 0, Qt::AlignRight);
        m_layout->setAlignment(Qt::AlignVCenter);
        break;
    }
}

void KaAlertBanner::applyBannerStyle() {
    const bool wrap = m_styleMode == Wrapping;
    m_text->setAlignment((wrap ? Qt::AlignTop : Qt::AlignVCenter) | Qt::AlignLeading);
    m_text->setWordWrap(wrap);
    m_textToken = wrap ? BzFont::BodySmall : BzFont::Control;
    m_text->setFontToken(m_textToken, true);
    // Wrapped text keeps a readable column however wide the buttons get.
    m_text->setMinimumWidth(wrap ? kMinimumWrapWidth : 0);
    if (m_alignment == TopAligned || m_alignment == TopAlignedAlt) {
        // One line is centred on the row; wrapped text starts at the top.
        const Qt::Alignment vertical = wrap ? Qt::AlignTop : Qt::AlignVCenter;
        for (QWidget* child : {static_cast<QWidget*>(m_icon), static_cast<QWidget*>(m_text),
                               static_cast<QWidget*>(m_primary), static_cast<QWidget*>(m_secondary)})
            m_layout->setAlignment(child, vertical);
    }
    switch (m_styleMode) {
    case Wrapping:
        m_layout->setContentsMargins(4, 4, 4, 4);
        break;
    case SingleLine:
        m_layout->setContentsMargins(4, 6, 4, 6);
        break;
    case Compact:
        m_layout->setContentsMargins(4, 3, 8, 3);
        break;
    }
    applyColours();
}

void KaAlertBanner::setBannerStyleMode(BannerStyleMode mode) {
    if (mode < Wrapping || mode > Compact) {
        qWarning("KaAlertBanner::setBannerStyleMode: unknown style mode %d ignored", int(mode));
        return;
    }
    if (mode == m_styleMode)
        return;
    m_styleMode = mode;
    applyBannerStyle();
    setAlertType(m_type);
    Q_EMIT bannerStyleModeChanged();
}

void KaAlertBanner::setAlertType(KaAlertBannerType type) {
    if (type == m_type)
        return;
    if (!lookOf(type))
        qWarning("KaAlertBanner::setAlertType: unknown type %d shows no icon and no colours", int(type));
    m_type = type;
    m_backgroundToken = backgroundTokenForType(type);
    m_icon->setSvgIcon(iconForType(type));
    applyColours();
    update();
    Q_EMIT alertTypeChanged();
}

// The children sit on the banner's tint: transparent, in the type's text
// colour. The banner's own record carries the tint and its corner radius.
void KaAlertBanner::applyColours() {
    const QString textToken = textTokenForType(m_type);
    BzCSSData child;
    child.backgroundColorSet = BzThemeUtils::transparentColourSet().name();
    child.textColorSet = textToken;
    m_icon->setCSS(child);
    m_icon->setSvgIconColorSet(textToken);
    m_text->setCSS(child);
    m_dismiss->setCSS(child);
    m_primary->setStyle(KaButtonEnum::Secondary);
    m_secondary->setStyle(KaButtonEnum::Secondary);

    BzCSSData own;
    own.backgroundColorSet = m_backgroundToken;
    own.borderRadius = m_styleMode == Wrapping ? kWrappedRadius : kLineRadius;
    // The tint is the colour set's first colour whatever the banner's state.
    own.setSwitch(BzCSSData::FollowState, 0);
    // High-contrast tints may match the window; an outline keeps the strip visible.
    if (KaConfig::highContrast && !textToken.isEmpty()) {
        own.borderColorSet = textToken;
        own.setBorders(true);
    }
    setCSS(own);
    setProperty("focusBorderRadius", double(own.borderRadius + 1));
}

void KaAlertBanner::onThemeChanged() {
    // The high-contrast flag may have changed with the theme.
    applyColours();
    BzWidget::onThemeChanged();
}

void KaAlertBanner::setText(const QString& text, const QString& accessibleName) {
    const bool changed = m_text->text() != text;
    m_text->setText(text);
    m_text->setAccessibleName(accessibleName.isNull() ? text : accessibleName);
    if (changed)
        Q_EMIT textChanged();
}

QString KaAlertBanner::text() const {
    return m_text->text();
}

void KaAlertBanner::enableRichText() {
    m_text->setTextFormat(Qt::RichText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse |
                                    Qt::LinksAccessibleByKeyboard);
    m_text->setOpenExternalLinks(false);
}

void KaAlertBanner::setIconFixedHeightAdjustment(int adjustment) {
    m_icon->setFixedHeight(qMax(0, 16 + adjustment));
}

void KaAlertBanner::setLayoutContentMargins(const QMargins& margins) {
    m_layout->setContentsMargins(margins);
}

void KaAlertBanner::setTextFontToken(BzFont::Token token) {
    if (token < 0 || token >= BzFont::TokenCount) {
        qWarning("KaAlertBanner::setTextFontToken: unknown font token %d ignored", int(token));
        return;
    }
    m_textToken = token;
    m_text->setFontToken(token, true);
}

void KaAlertBanner::setAccessibleName(const QString& name) {
    m_primary->setAccessibleName(name);
}

void KaAlertBanner::setSecondaryAccessibleName(const QString& name) {
    m_secondary->setAccessibleName(name);
}

void KaAlertBanner::setDismissButtonAccessibleName(const QString& name) {
    m_dismiss->setAccessibleName(name);
}

void KaAlertBanner::setChildAlignment(QWidget* child, Qt::Alignment alignment) {
    m_layout->setAlignment(child, alignment);
}

void KaAlertBanner::setButtonText(const QString& text) {
    m_primary->setText(text);
}

void KaAlertBanner::setButtonVisible(bool visible) {
    m_primary->setVisible(visible);
}

void KaAlertBanner::setButtonCheckable(bool checkable) {
    m_primary->setCheckable(checkable);
}

void KaAlertBanner::setButtonChecked(bool checked) {
    m_primary->setChecked(checked);
}

void KaAlertBanner::setButtonFocusPolicy(Qt::FocusPolicy policy) {
    m_primary->setFocusPolicy(policy);
}

void KaAlertBanner::setButtonAlignment(Qt::Alignment alignment) {
    setChildAlignment(m_primary, alignment);
}

void KaAlertBanner::setSecondaryButtonText(const QString& text) {
    m_secondary->setText(text);
}

void KaAlertBanner::setSecondaryButtonVisible(bool visible) {
    m_secondary->setVisible(visible);
}

void KaAlertBanner::setSecondaryButtonCheckable(bool checkable) {
    m_secondary->setCheckable(checkable);
}

void KaAlertBanner::setSecondaryButtonChecked(bool checked) {
    m_secondary->setChecked(checked);
}

void KaAlertBanner::setSecondaryButtonFocusPolicy(Qt::FocusPolicy policy) {
    m_secondary->setFocusPolicy(policy);
}

void KaAlertBanner::setSecondaryButtonAlignment(Qt::Alignment alignment) {
    setChildAlignment(m_secondary, alignment);
}

void KaAlertBanner::setDismissButtonVisible(bool visible) {
    m_dismiss->setVisible(visible);
}

void KaAlertBanner::setDismissButtonFocusPolicy(Qt::FocusPolicy policy) {
    m_dismiss->setFocusPolicy(policy);
}

void KaAlertBanner::setHideOnDismiss(bool hide) {
    if (hide == m_hideOnDismiss)
        return;
    m_hideOnDismiss = hide;
    if (hide)
        m_hideConnection = connect(m_dismiss, &QAbstractButton::clicked, this, &QWidget::hide);
    else
        disconnect(m_hideConnection);
    Q_EMIT hideOnDismissChanged();
}

void KaAlertBanner::paintEvent(QPaintEvent* event) {
    BzWidget::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    KaFocusStyle::requestRing(this, &painter);
}
