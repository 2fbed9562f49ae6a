#pragma once

#include "brisel_export.h"
#include "bzpushbutton.h"

#include <QPoint>
#include <QSize>

#include <memory>

// A push button with a leading SVG icon tinted with a colour set, and an
// optional "inner" icon painted centred in the button (for buttons that show
// an icon only). Icon colour sets default to the text colour set.
class BRISEL_EXPORT BzSvgPushButton : public BzPushButton {
    Q_OBJECT
    Q_PROPERTY(QString svgIcon READ svgIcon WRITE setSvgIcon)
    Q_PROPERTY(QString svgIconChecked READ svgIconChecked WRITE setSvgIconChecked)
    Q_PROPERTY(QString svgIconColorSet READ svgIconColorSet WRITE setSvgIconColorSet)
    Q_PROPERTY(QSize svgIconSize READ svgIconSize WRITE setSvgIconSize)
    Q_PROPERTY(bool svgIconVisible READ isSvgIconVisible WRITE setSvgIconVisible)
    Q_PROPERTY(BzEnum::Alignment svgIconAlignment READ svgIconAlignment WRITE setSvgIconAlignment)
    Q_PROPERTY(QPoint svgIconTopLeftPadding READ svgIconTopLeftPadding WRITE setSvgIconTopLeftPadding)
    Q_PROPERTY(
        QPoint svgIconBottomRightPadding READ svgIconBottomRightPadding WRITE setSvgIconBottomRightPadding)
    Q_PROPERTY(int svgIconSpacing READ svgIconSpacing WRITE setSvgIconSpacing)
    Q_PROPERTY(QString innerSvgIcon READ innerSvgIcon WRITE setInnerSvgIcon)
    Q_PROPERTY(QString innerSvgIconColorSet READ innerSvgIconColorSet WRITE setInnerSvgIconColorSet)
    Q_PROPERTY(QSize innerSvgIconSize READ innerSvgIconSize WRITE setInnerSvgIconSize)

public:
    explicit BzSvgPushButton(QWidget* parent = nullptr);
    explicit BzSvgPushButton(const QString& text, QWidget* parent = nullptr);
    ~BzSvgPushButton() override;

    // Icons are bare names ("check-regular"), ":/…", "qrc:/…" or file paths.
    QString svgIcon() const { return m_icon; }
    void setSvgIcon(const QString& nameOrPath);
    // Shown instead of svgIcon while the button is checked; empty: svgIcon.
    QString svgIconChecked() const { return m_iconChecked; }
    void setSvgIconChecked(const QString& nameOrPath);
    // Empty (the default): the text colour set.
    QString svgIconColorSet() const { return m_iconSetName; }
    void setSvgIconColorSet(const QString& name);
    QSize svgIconSize() const { return m_iconSize; }
    void setSvgIconSize(const QSize& size);
    bool isSvgIconVisible() const { return m_iconVisible; }
    void setSvgIconVisible(bool visible);
    // Left/Right: before/after the text (leading/trailing, mirrored in
    // right-to-left); Top/Bottom: above/below it; Center: centred in the
    // button, the text laid out as if there were no icon.
    BzEnum::Alignment svgIconAlignment() const { return m_alignment; }
    void setSvgIconAlignment(BzEnum::Alignment alignment);
    // Extra room around the icon: x is the leading/trailing side, y top/bottom.
    QPoint svgIconTopLeftPadding() const { return m_topLeftPadding; }
    void setSvgIconTopLeftPadding(const QPoint& padding);
    QPoint svgIconBottomRightPadding() const { return m_bottomRightPadding; }
    void setSvgIconBottomRightPadding(const QPoint& padding);
    // Between icon and text.
    int svgIconSpacing() const { return m_spacing; }
    void setSvgIconSpacing(int spacing);

    QString innerSvgIcon() const;
    void setInnerSvgIcon(const QString& nameOrPath);
    // Empty (the default): the text colour set.
    QString innerSvgIconColorSet() const;
    void setInnerSvgIconColorSet(const QString& name);
    QSize innerSvgIconSize() const;
    void setInnerSvgIconSize(const QSize& size);

    // Where the leading icon is painted at the current size; empty when none.
    QRect svgIconRect() const;

Q_SIGNALS:

protected:
    void decorations(Decorations* out) const override;
    void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) override;
    void themeResolved() override;
    // `set`, or the text colour set when `set` is not valid.
    const BzColorSet& setOrText(const BzColorSet& set) const;

private:
    // The icon to paint now (the checked one while checked); empty if none loads.
    QString currentIcon() const;

    QString m_icon;
    QString m_iconChecked;
    bool m_iconValid = false;
    bool m_iconCheckedValid = false;
    QString m_iconSetName;
    BzColorSet m_iconSet;
    QSize m_iconSize{16, 16};
    bool m_iconVisible = true;
    BzEnum::Alignment m_alignment = BzEnum::AlignLeft;
    QPoint m_topLeftPadding;
    QPoint m_bottomRightPadding;
    int m_spacing = 6;
    // The centred icon; most buttons never set one.
    struct Inner;
    Inner& inner();
    std::unique_ptr<Inner> m_inner;
};
