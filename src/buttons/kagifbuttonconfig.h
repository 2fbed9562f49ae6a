#pragma once

#include "kapillbuttonconfig.h"
#include "karvex_export.h"

#include <QSize>

// The look of a button showing an animated image: the pill's colours and
// size rows, with the image in the leading icon's place (setHasLeftIcon
// tells whether an image is loaded). Animated images are pictures, not
// glyphs, so they are drawn larger than the pill's icons:
//
//   size           image   (pill height, font, spacing and padding unchanged)
//   ExtraLarge     24x24
//   Large          20x20
//   Normal, Small  16x16
//   ExtraSmall     14x14
//
// setImageSize() replaces the table's value. An image-only button (no
// text) is a circle: the width is fixed to the height and the paddings
// centre the image. The two smallest sizes keep the pill's defaults.
class KARVEX_EXPORT KaGifButtonConfig : public KaPillButtonConfig {
    Q_OBJECT
    Q_PROPERTY(QSize imageSize READ imageSize WRITE setImageSize NOTIFY imageSizeChanged)
    Q_PROPERTY(bool imageOnly READ isImageOnly WRITE setImageOnly NOTIFY imageOnlyChanged)
public:
    struct KARVEX_EXPORT Geometry : KaPillButtonConfig::Geometry {
        // 0: the width follows the content.
        int fixedWidth = 0;
    };

    explicit KaGifButtonConfig(QObject* parent = nullptr);
    ~KaGifButtonConfig() override;

    // The pill record with the image in svgIconSize.
    void fillGeometry(Geometry& out) const;

    // An invalid size (the default) uses the table.
    QSize imageSize() const { return m_imageSize; }
    void setImageSize(const QSize& size);
    bool isImageOnly() const { return m_imageOnly; }
    void setImageOnly(bool imageOnly);

Q_SIGNALS:
    void imageSizeChanged(const QSize& size);
    void imageOnlyChanged(bool imageOnly);

private:
    QSize m_imageSize;
    bool m_imageOnly = true;
};
