#pragma once

#include "bzenum.h"
#include "ikabuttonconfig.h"
#include "kaoverlaybuttonenum.h"
#include "karvex_export.h"

#include <QSize>
#include <QString>

// The overlay button that expands or collapses an area: a bordered face with
// an arrow that follows the application's layout direction, the two types
// pointing opposite ways. A None overlay gets no colours and no arrow. The
// icon flags and the custom value keep the interface's do-nothing behaviour.
//
// Geometry by size (the icon is centred in the face):
//
//   size        height  icon
//   Micro       20      12x12
//   ExtraSmall  24      13x13
//   Small       28      16x16
//   Normal      28      16x16   (the initial size)
//   Large       32      16x16
//   ExtraLarge  40      20x20
//
// A size outside the table keeps the record defaults.
class KARVEX_EXPORT KaOverlayButtonConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaOverlayButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(KaOverlayButtonEnum::Type type READ type WRITE setType NOTIFY typeChanged)
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QString svgIcon;
        QSize svgIconSize{12, 12};
        BzEnum::Alignment svgIconAlignment = BzEnum::AlignCenter;
    };

    explicit KaOverlayButtonConfig(QObject* parent = nullptr);
    ~KaOverlayButtonConfig() override;

    // Colours and the fixed height.
    void fillConfig(Config& out) const override;
    void setHasLeftIcon(bool hasIcon) override;
    void setHasRightIcon(bool hasIcon) override;
    // fillConfig() plus the arrow for the application's layout direction.
    void fillGeometry(Geometry& out) const;
    void fillGeometry(Geometry& out, Qt::LayoutDirection direction) const;

    // The arrow resource of `type` in a layout of `direction`; empty for None.
    static QString arrowIcon(KaOverlayButtonEnum::Type type, Qt::LayoutDirection direction);

    KaOverlayButtonEnum::Size size() const { return m_size; }
    void setSize(KaOverlayButtonEnum::Size size);
    KaOverlayButtonEnum::Type type() const { return m_type; }
    void setType(KaOverlayButtonEnum::Type type);

Q_SIGNALS:
    void sizeChanged(KaOverlayButtonEnum::Size size);
    void typeChanged(KaOverlayButtonEnum::Type type);

private:
    KaOverlayButtonEnum::Size m_size = KaOverlayButtonEnum::Normal;
    KaOverlayButtonEnum::Type m_type = KaOverlayButtonEnum::None;
};
