#pragma once

#include "ikabuttonconfig.h"
#include "kabuttonenum.h"
#include "karvex_export.h"
#include "katabenum.h"

#include <QSize>

// The look of one tab. Style ACTIVE is the selected tab ("tab-active-*"
// sets), INACTIVE the others ("tab-inactive-*"); the selected tab also gets
// an indicator bar in "tab-default". State EXPANDED shows icon and text,
// COLLAPSED only the icon on a square face. The type names the host's
// section and does not change the look; a tab of type NONE (no section,
// a tab the user opened) may carry a close cross.
//
// Geometry by size:
//
//   size     font token  height  icon   spacing  padding  close cross
//   Large    3           40      20x20  8        16       16x16
//   Normal   4           32      16x16  6        12       12x12   (initially)
//   Small    7           28      16x16  4        8        12x12
//
// Other sizes keep the Geometry defaults (free height, 16x16 icon).
class KARVEX_EXPORT KaTabItemConfig : public IKaButtonConfig {
    Q_OBJECT
    Q_PROPERTY(KaTabEnum::Type type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(KaTabEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaTabEnum::State state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(bool closable READ isClosable WRITE setClosable NOTIFY closableChanged)
public:
    struct KARVEX_EXPORT Geometry : KaButtonConfigRecord {
        QSize svgIconSize{16, 16};
        int svgIconSpacing = 0;
        // Between text, trailing widget and close cross.
        int spacing = 6;
        int padding = 12;
        QSize closeIconSize{12, 12};
        bool svgIconVisible = false;
        bool textVisible = true;
        bool closeVisible = false;
        // Width of the square face of a collapsed tab; 0 leaves it free.
        int fixedWidth = 0;
        int radius = 4;
        // Height of the selection bar; 0 for an unselected tab.
        int indicatorHeight = 0;
    };

    explicit KaTabItemConfig(QObject* parent = nullptr);
    ~KaTabItemConfig() override;

    // Colours, policies, font and height.
    void fillConfig(Config& out) const override;
    void setHasLeftIcon(bool hasIcon) override;
    // The trailing icon is the close cross, which closable decides.
    void setHasRightIcon(bool hasIcon) override;
    // fillConfig() plus icons, paddings and the indicator.
    void fillGeometry(Geometry& out) const;

    bool hasLeftIcon() const { return m_hasLeftIcon; }
    KaTabEnum::Type type() const { return m_type; }
    void setType(KaTabEnum::Type type);
    KaTabEnum::Style style() const { return m_style; }
    void setStyle(KaTabEnum::Style style);
    KaTabEnum::State state() const { return m_state; }
    void setState(KaTabEnum::State state);
    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);
    // Asked for a close cross; only a tab of type NONE shows one.
    bool isClosable() const { return m_closable; }
    void setClosable(bool closable);
    bool showsClose() const { return m_closable && m_type == KaTabEnum::NONE; }

Q_SIGNALS:
    void typeChanged(KaTabEnum::Type type);
    void styleChanged(KaTabEnum::Style style);
    void stateChanged(KaTabEnum::State state);
    void sizeChanged(KaButtonEnum::Size size);
    void closableChanged(bool closable);

private:
    KaTabEnum::Type m_type = KaTabEnum::NONE;
    KaTabEnum::Style m_style = KaTabEnum::INACTIVE;
    KaTabEnum::State m_state = KaTabEnum::EXPANDED;
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
    bool m_hasLeftIcon = false;
    bool m_closable = false;
};
