#pragma once

#include "kadiscoverabilityenum.h"
#include "karvex_export.h"

#include <bzwidget.h>

class BzSvgPushButton;
class KaLabel;
class KaSvgLabel;
class QHBoxLayout;

// A tip: an icon of its kind ("bannerIcon"), rich text ("bannerText") and a
// dismiss cross ("dismissButton") on the tip background, 300 wide unless
// told otherwise. Its height follows the text (setBannerText). New-feature
// tips lead with the shared "new" caption in the accent colour.
//
//   kind         icon                  icon colour set
//   NewFeature   sparkle               newFeature-banner-newFeatureIcon
//   TipHelp      video effect          newFeature-banner-helpTipIcon
//   TipShortcut  keyboard              newFeature-banner-shortcutTipIcon
//   (other)      as NewFeature, with a warning
class KARVEX_EXPORT KaDiscoverabilityBanner : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(QString bannerText READ bannerText WRITE setBannerText NOTIFY bannerTextChanged)
    Q_PROPERTY(int bannerWidth READ bannerWidth WRITE setBannerWidth NOTIFY bannerWidthChanged)

public:
    static constexpr int DefaultWidth = 300;
    // Narrower banners are widened to this, with a warning.
    static constexpr int MinimumWidth = 120;

    explicit KaDiscoverabilityBanner(
        QWidget* parent = nullptr,
        KaDiscoverabilityEnum::DiscoverabilityLabelType type = KaDiscoverabilityEnum::NewFeature);
    ~KaDiscoverabilityBanner() override;

    KaDiscoverabilityEnum::DiscoverabilityLabelType type() const { return m_type; }
    static QString getIconName(int type);
    static QString getIconColour(int type);

    // Sets the text and fits the banner's height to it.
    void setBannerText(const QString& text);
    QString bannerText() const { return m_bannerText; }
    // The rich text shown for `text`.
    QString getDisplayText(const QString& text) const;

    void setBannerWidth(int width);
    int bannerWidth() const { return m_width; }

    // The banner height for a text document `documentHeight` high: its line
    // height of 14 becomes 19, plus the margins.
    static int heightForDocument(qreal documentHeight);

public Q_SLOTS:
    // Re-reads the caption and its accent colour.
    void onThemeChanged() override;

Q_SIGNALS:
    // After the banner hid itself.
    void dismissed();
    void bannerTextChanged();
    void bannerWidthChanged();

private:
    void initialize();
    void applyRecord();
    void onDismissed();
    void updateText();

    KaSvgLabel* m_icon;
    KaLabel* m_text;
    BzSvgPushButton* m_dismiss;
    QHBoxLayout* m_layout;
    KaDiscoverabilityEnum::DiscoverabilityLabelType m_type;
    QString m_bannerText;
    int m_width = DefaultWidth;
};
