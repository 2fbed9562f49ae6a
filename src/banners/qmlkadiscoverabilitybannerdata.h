#pragma once

#include "kadiscoverabilityenum.h"
#include "karvex_export.h"

#include <QObject>
#include <QString>

class KaDiscoverabilityBanner;
class QWidget;

// What a tip banner shows, as QML describes it: its text, kind and width.
// Menus turn it into a KaDiscoverabilityBanner with createBanner(); the
// banner's dismissal comes back as dismissed().
class KARVEX_EXPORT QmlKaDiscoverabilityBannerData : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString bannerText READ bannerText WRITE setBannerText NOTIFY bannerTextChanged)
    Q_PROPERTY(KaDiscoverabilityEnum::DiscoverabilityLabelType bannerType READ bannerType WRITE setBannerType
                   NOTIFY bannerTypeChanged)
    Q_PROPERTY(int bannerWidth READ bannerWidth WRITE setBannerWidth NOTIFY bannerWidthChanged)

public:
    explicit QmlKaDiscoverabilityBannerData(QObject* parent = nullptr);
    ~QmlKaDiscoverabilityBannerData() override;

    QString bannerText() const { return m_text; }
    void setBannerText(const QString& text);
    // Only the banner kinds (NewFeature, TipHelp, TipShortcut); anything
    // else is ignored with a warning.
    KaDiscoverabilityEnum::DiscoverabilityLabelType bannerType() const { return m_type; }
    void setBannerType(KaDiscoverabilityEnum::DiscoverabilityLabelType type);
    // At least KaDiscoverabilityBanner::MinimumWidth; narrower values are
    // raised to it with a warning.
    int bannerWidth() const { return m_width; }
    void setBannerWidth(int width);

    // A banner showing this description, owned by `parent`. Later text and
    // width changes reach it while both live (its kind is fixed); its
    // dismissal emits dismissed().
    KaDiscoverabilityBanner* createBanner(QWidget* parent) const;

Q_SIGNALS:
    void bannerTextChanged();
    void bannerTypeChanged();
    void bannerWidthChanged();
    void dismissed();

private:
    QString m_text;
    KaDiscoverabilityEnum::DiscoverabilityLabelType m_type = KaDiscoverabilityEnum::NewFeature;
    int m_width;
};
