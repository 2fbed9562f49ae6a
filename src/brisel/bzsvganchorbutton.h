#pragma once

#include "brisel_export.h"
#include "bzsvgpushbutton.h"

#include <QPoint>
#include <QSize>

// A BzSvgPushButton with a second, trailing "anchor" icon: a drop-down
// arrow, a cancel cross. The anchor shows its "on" icon while the button is
// checked or a menu attached to it is open.
//
// The anchor either follows the text (alignAnchorIconToText, the default) or
// sits at the trailing edge, anchorPadding pixels in. isLeftAnchor moves it to
// the leading side instead. Everything mirrors in right-to-left layouts,
// anchorSvgOffset's x included.
class BRISEL_EXPORT BzSvgAnchorButton : public BzSvgPushButton {
    Q_OBJECT
    Q_PROPERTY(QString anchorSvgOn READ anchorSvgOn WRITE setAnchorSvgOn)
    Q_PROPERTY(QString anchorSvgOff READ anchorSvgOff WRITE setAnchorSvgOff)
    Q_PROPERTY(QSize anchorIconSize READ anchorIconSize WRITE setAnchorIconSize)
    Q_PROPERTY(QString anchorSvgColorSet READ anchorSvgColorSet WRITE setAnchorSvgColorSet)
    Q_PROPERTY(int anchorPadding READ anchorPadding WRITE setAnchorPadding)
    Q_PROPERTY(QPoint anchorSvgOffset READ anchorSvgOffset WRITE setAnchorSvgOffset)
    Q_PROPERTY(bool isLeftAnchor READ isLeftAnchor WRITE setLeftAnchor)
    Q_PROPERTY(bool alignAnchorIconToText READ alignAnchorIconToText WRITE setAlignAnchorIconToText)
    Q_PROPERTY(bool anchorIconVisible READ isAnchorIconVisible WRITE setAnchorIconVisible)
    Q_PROPERTY(int anchorIconSpacing READ anchorIconSpacing WRITE setAnchorIconSpacing)

public:
    explicit BzSvgAnchorButton(QWidget* parent = nullptr);
    explicit BzSvgAnchorButton(const QString& text, QWidget* parent = nullptr);
    ~BzSvgAnchorButton() override;

    // Shown while on (checked or menu open); empty: anchorSvgOff.
    QString anchorSvgOn() const { return m_on; }
    void setAnchorSvgOn(const QString& nameOrPath);
    // Shown otherwise; empty: anchorSvgOn.
    QString anchorSvgOff() const { return m_off; }
    void setAnchorSvgOff(const QString& nameOrPath);
    QSize anchorIconSize() const { return m_size; }
    void setAnchorIconSize(const QSize& size);
    // Empty (the default): the text colour set.
    QString anchorSvgColorSet() const { return m_setName; }
    void setAnchorSvgColorSet(const QString& name);
    // Room between the anchor and the button's edge.
    int anchorPadding() const { return m_padding; }
    void setAnchorPadding(int padding);
    // Moves the painted icon (and its click area) without changing the layout.
    QPoint anchorSvgOffset() const { return m_offset; }
    void setAnchorSvgOffset(const QPoint& offset);
    bool isLeftAnchor() const { return m_leading; }
    void setLeftAnchor(bool leading);
    bool alignAnchorIconToText() const { return m_followsText; }
    void setAlignAnchorIconToText(bool follow);
    bool isAnchorIconVisible() const { return m_visible; }
    void setAnchorIconVisible(bool visible);
    // Between the anchor and the text (or the leading icon).
    int anchorIconSpacing() const { return m_spacing; }
    void setAnchorIconSpacing(int spacing);

    // Where the anchor is painted at the current size; empty when none.
    QRect anchorIconRect() const;
    // Checked or an attached menu is open.
    bool isAnchorOn() const;

Q_SIGNALS:
    // A left-button press and release both inside anchorIconRect().
    void anchorClicked();

protected:
    void decorations(Decorations* out) const override;
    void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) override;
    void themeResolved() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool hasAnchor() const;
    QString currentAnchor() const;

    QString m_on;
    QString m_off;
    bool m_onValid = false;
    bool m_offValid = false;
    QSize m_size{12, 12};
    QString m_setName;
    BzColorSet m_set;
    int m_padding = 0;
    QPoint m_offset;
    bool m_leading = false;
    bool m_followsText = true;
    bool m_visible = true;
    int m_spacing = 6;
    bool m_pressedOnAnchor = false;
};
