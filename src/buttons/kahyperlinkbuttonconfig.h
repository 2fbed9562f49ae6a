#pragma once

#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "karvex_export.h"

#include <QSize>

// A button that reads as a text link: link-coloured text on a face that only
// shows on hover and press ("button-hyperlink-*"), underlined while hovered
// or always. High contrast needs no override: the theme's own hyperlink sets
// are high-contrast colours already, and the primary look would stop it
// reading as a link.
//
// Geometry by size, modelled on the pill rows with link-tight paddings; the
// leading icon's size and spacing apply only while it is present:
//
//   size           font token  height  icon   spacing  padding  inner
//   ExtraLarge     3           40      20x20  6        8        32
//   Large          3           32      16x16  6        6        24
//   Normal, Small  4           28      16x16  4        4        20   (Normal initially)
//   ExtraSmall     7           24      16x16  4        2        16
//
// The face is a rounded rectangle of radius 4 rather than a pill, so that
// the hover face hugs a word. The two smallest sizes keep the Geometry
// defaults.
class KARVEX_EXPORT KaHyperlinkButtonConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(
        bool alwaysUnderline READ alwaysUnderline WRITE setAlwaysUnderline NOTIFY alwaysUnderlineChanged)
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize svgIconSize{12, 12};
        int svgIconSpacing = 6;
        int paddingLeft = 4;
        int paddingRight = 4;
        int borderRadius = 4;
        bool svgIconVisible = false;
    };

    explicit KaHyperlinkButtonConfig(QObject* parent = nullptr);
    ~KaHyperlinkButtonConfig() override;

    // Colours, size policy, height, font token and accelerator type.
    void fillConfig(Config& out) const override;
    void setHasLeftIcon(bool hasIcon) override;
    void setHasRightIcon(bool hasIcon) override;
    void setCustomValue(int value) override;
    // fillConfig() plus icon and paddings.
    void fillGeometry(Geometry& out) const;

    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);
    // Underlined in every state, not only while hovered; fillConfig() reports
    // it as colors.underlineText.
    bool alwaysUnderline() const { return m_alwaysUnderline; }
    void setAlwaysUnderline(bool always);
    bool hasLeftIcon() const { return m_hasLeftIcon; }

Q_SIGNALS:
    void sizeChanged(KaButtonEnum::Size size);
    void alwaysUnderlineChanged(bool always);

private:
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
    bool m_alwaysUnderline = false;
    bool m_hasLeftIcon = false;
    int m_customValue = 0;
};
