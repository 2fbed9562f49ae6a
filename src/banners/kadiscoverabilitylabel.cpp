#include "kadiscoverabilitylabel.h"

#include "kacolortokenutils.h"
#include "kaconfig.h"
#include "kalabel.h"
#include "kasvglabel.h"

#include <bzfont.h>
#include <bzfontmanager.h>
#include <bzthemeutils.h>

#include <QAccessibleWidget>
#include <QHBoxLayout>

namespace {

bool isTag(int type) {
    return type == KaDiscoverabilityEnum::IconWithTextTag || type == KaDiscoverabilityEnum::IconTag;
}

constexpr int kTagRadius = 4;

// Read as one piece of text: the caption, whichever look shows it.
class DiscoverabilityLabelAccessible : public QAccessibleWidget {
public:
    explicit DiscoverabilityLabelAccessible(QWidget* label)
        : QAccessibleWidget(label, QAccessible::StaticText) {}

    QString text(QAccessible::Text t) const override {
        const QString own = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && own.isEmpty())
            return KaConfig::discoverabilityCaption();
        return own;
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
};

QAccessibleInterface* labelFactory(const QString&, QObject* object) {
    if (auto* label = qobject_cast<KaDiscoverabilityLabel*>(object))
        return new DiscoverabilityLabelAccessible(label);
    return nullptr;
}

} // namespace

KaDiscoverabilityLabel::KaDiscoverabilityLabel(QWidget* parent)
    : BzWidget(parent)
    , m_icon(new KaSvgLabel(this))
    , m_text(new KaLabel(this)) {
    static bool factoryInstalled = false;
    if (!factoryInstalled) {
        factoryInstalled = true;
        QAccessible::installFactory(labelFactory);
    }
    setObjectName(QStringLiteral("KaDiscoverabilityLabel"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);

    m_icon->setObjectName(QStringLiteral("icon"));
    m_icon->setFixedSize(18, 18);
    m_icon->setSvgIcon(QStringLiteral("qrc:/Resources/sparkle-filled.svg"));
    m_icon->setSvgIconSize(QSize(14, 14));
    m_icon->setAlignment(Qt::AlignCenter);
    BzCSSData transparent;
    transparent.backgroundColorSet = BzThemeUtils::transparentColourSet().name();
    m_icon->setCSS(transparent);

    m_text->setObjectName(QStringLiteral("tagText"));
    m_text->setFontToken(BzFont::Caption, true);

    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(2);
    layout->addWidget(m_icon, 0, Qt::AlignVCenter);
    layout->addWidget(m_text, 0, Qt::AlignVCenter);
    initialize();
    connect(BzFontManager::instance(), &BzFontManager::textScaleChanged, this, [this] {
        m_text->setFontToken(BzFont::Caption, true);
        adjustSize();
    });
}

KaDiscoverabilityLabel::~KaDiscoverabilityLabel() = default;

int KaDiscoverabilityLabel::getSize(int type) {
    return isTag(type) ? 24 : 18;
}

void KaDiscoverabilityLabel::setLabelType(KaDiscoverabilityEnum::DiscoverabilityLabelType type) {
    if (type == m_type)
        return;
    if (type < KaDiscoverabilityEnum::IconWithTextTag || type > KaDiscoverabilityEnum::IconBadge)
        qWarning("KaDiscoverabilityLabel::setLabelType: %d is not a label look; drawn as a badge", int(type));
    m_type = type;
    initialize();
    Q_EMIT labelTypeChanged();
}

void KaDiscoverabilityLabel::onThemeChanged() {
    initialize();
    BzWidget::onThemeChanged();
}

void KaDiscoverabilityLabel::initialize() {
    using namespace KaDiscoverabilityEnum;
    const auto name = [](Karvox::Token token) {
        return KaColorTokenUtils::tokenToString(token);
    };
    BzCSSData record;
    switch (m_type) {
    case IconWithTextTag:
    case IconTag:
        record.backgroundColorSet = name(Karvox::newFeature_tag_background);
        record.borderColorSet = KaConfig::discoverabilityTagBorder || KaConfig::highContrast
                                    ? name(Karvox::newFeature_tag_border)
                                    : BzThemeUtils::transparentColourSet().name();
        break;
    case IconWithBorder:
        record.backgroundColorSet = name(Karvox::newFeature_badgeWithBorder_background);
        record.borderColorSet = name(Karvox::newFeature_badgeWithBorder_border);
        break;
    case IconBadge:
        record.backgroundColorSet = name(Karvox::newFeature_badge_background);
        record.borderColorSet = name(Karvox::newFeature_badge_border);
        break;
    default:
        record.backgroundColorSet = name(Karvox::newFeature_badge_background);
        record.borderColorSet = name(Karvox::newFeature_banner_newFeatureIcon);
        break;
    }
    record.setBorders(true);
    record.setSwitch(BzCSSData::FollowState, 0);
    const bool tag = isTag(m_type);
    record.borderRadius = tag ? kTagRadius : -1;
    setCSS(record);

    // On the light tag the badge's white would vanish: tags draw icon and
    // caption in the accent the tips use for their icon.
    const QString content =
        tag ? name(Karvox::newFeature_banner_newFeatureIcon) : name(Karvox::newFeature_badge_text);
    m_icon->setSvgIconColorSet(content);
    m_text->setTextColorSetName(m_type == IconWithTextTag ? content : name(Karvox::newFeature_badge_text));
    m_text->setText(KaConfig::discoverabilityCaption());
    m_text->setVisible(m_type == IconWithTextTag);

    const int height = getSize(m_type);
    const int inset = (height - m_icon->height()) / 2;
    layout()->setContentsMargins(inset, inset, m_type == IconWithTextTag ? 8 : inset, inset);
    setFixedHeight(height);
    adjustSize();
}
