#pragma once

#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "kaiconbuttonenum.h"
#include "karvex_export.h"

#include <QSize>

// The icon-only button: a square icon on the interactive-icon container.
// The icon colour goes into textColorSet and depends on the type's family
// and on the style (ACTIVE or not); type None gets no colours at all. With
// high contrast every icon button also gets the primary border.
//
// The icon flags and the custom value keep the interface's do-nothing
// behaviour: the button shows exactly one icon and no text.
//
// Square geometry by size, modelled on the round button (the height is also
// the width; no font token, since there is no text):
//
//   size                  side  icon
//   ExtraLarge            40    24x24
//   Large                 32    20x20
//   Normal                28    16x16   (the initial size)
//   Small                 24    16x16
//   ExtraSmall            20    12x12
//   ExtraExtraSmall       16    12x12
//   ExtraExtraExtraSmall  12    8x8
//
// A size outside the table keeps the record defaults (free height, 12x12).
class KARVEX_EXPORT KaIconButtonConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaIconButtonEnum::Type type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(KaIconButtonEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize svgIconSize{12, 12};
    };

    explicit KaIconButtonConfig(QObject* parent = nullptr);
    ~KaIconButtonConfig() override;

    // Colours, the fixed policy and the side length.
    void fillConfig(Config& out) const override;
    void setHasLeftIcon(bool hasIcon) override;
    void setHasRightIcon(bool hasIcon) override;
    // fillConfig() plus the icon size.
    void fillGeometry(Geometry& out) const;

    QSizePolicy sizePolicy() const { return m_sizePolicy; }
    KaIconButtonEnum::Type type() const { return m_type; }
    void setType(KaIconButtonEnum::Type type);
    KaIconButtonEnum::Style style() const { return m_style; }
    void setStyle(KaIconButtonEnum::Style style);
    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);

Q_SIGNALS:
    void typeChanged(KaIconButtonEnum::Type type);
    void styleChanged(KaIconButtonEnum::Style style);
    void sizeChanged(KaButtonEnum::Size size);

private:
    QSizePolicy m_sizePolicy{QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::DefaultType};
    KaIconButtonEnum::Type m_type = KaIconButtonEnum::None;
    KaIconButtonEnum::Style m_style = KaIconButtonEnum::INACTIVE;
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
};
