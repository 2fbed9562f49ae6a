#include "qmlkadiscoverabilitybannerdata.h"

#include "kadiscoverabilitybanner.h"

QmlKaDiscoverabilityBannerData::QmlKaDiscoverabilityBannerData(QObject* parent)
    : QObject(parent)
    , m_width(KaDiscoverabilityBanner::DefaultWidth) {}

QmlKaDiscoverabilityBannerData::~QmlKaDiscoverabilityBannerData() = default;

void QmlKaDiscoverabilityBannerData::setBannerText(const QString& text) {
    if (text == m_text)
        return;
    m_text = text;
    Q_EMIT bannerTextChanged();
}

void QmlKaDiscoverabilityBannerData::setBannerType(KaDiscoverabilityEnum::DiscoverabilityLabelType type) {
    if (type < KaDiscoverabilityEnum::NewFeature || type > KaDiscoverabilityEnum::TipShortcut) {
        qWarning("QmlKaDiscoverabilityBannerData::setBannerType: %d is not a banner kind; ignored",
                 int(type));
        return;
    }
    if (type == m_type)
        return;
    m_type = type;
    Q_EMIT bannerTypeChanged();
}

void QmlKaDiscoverabilityBannerData::setBannerWidth(int width) {
    if (width < KaDiscoverabilityBanner::MinimumWidth) {
        qWarning("QmlKaDiscoverabilityBannerData::setBannerWidth: %d is too narrow; using %d", width,
                 KaDiscoverabilityBanner::MinimumWidth);
        width = KaDiscoverabilityBanner::MinimumWidth;
    }
    if (width == m_width)
        return;
    m_width = width;
    Q_EMIT bannerWidthChanged();
}

KaDiscoverabilityBanner* QmlKaDiscoverabilityBannerData::createBanner(QWidget* parent) const {
    auto* banner = new KaDiscoverabilityBanner(parent, m_type);
    banner->setBannerWidth(m_width);
    banner->setBannerText(m_text);
    auto* self = const_cast<QmlKaDiscoverabilityBannerData*>(this);
    connect(banner, &KaDiscoverabilityBanner::dismissed, self, &QmlKaDiscoverabilityBannerData::dismissed);
    connect(self, &QmlKaDiscoverabilityBannerData::bannerTextChanged, banner,
            [banner, self] { banner->setBannerText(self->bannerText()); });
    connect(self, &QmlKaDiscoverabilityBannerData::bannerWidthChanged, banner,
            [banner, self] { banner->setBannerWidth(self->bannerWidth()); });
    return banner;
}
