#pragma once

#include "kacontrolhandle.h"
#include "kapopupenum.h"
#include "kapopuputils.h"
#include "karvex_export.h"
#include "kawidgetdata.h"

#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class KaLabel;
class QVBoxLayout;

// A frameless popup window drawn as a bubble (KaPopupUtils) whose arrow
// points at an anchor, with an optional header and one content widget.
// Placement and behaviour come from a KaWidgetData record:
//  - the arrow position picks the side (ArrowTop opens below the anchor,
//    ArrowLeft to its right, ArrowRight to its left, ArrowBottom above it,
//    ArrowNone below it without an arrow), the alignment where along the
//    edge the popover lies, and offset moves the result;
//  - the popover flips to the other side when it does not fit on the
//    anchor's screen and stays inside that screen (or, with
//    fitInMainWindowGeometry, inside the anchor's window);
//  - autoDismiss closes it on a click outside it and its anchor, on Escape
//    and when the application goes inactive; dismissTimerTicks closes it
//    after that many DismissTickMs ticks without the mouse over it;
//    dismissWithParentFocused closes it when the focus moves into its
//    parent's window (with skipDeepFocusCheck only onto the parent itself);
//    dismissPopupOnSourceMove when the anchor or its window moves;
//  - moveWithSource follows the anchor instead; shouldTakeFocus,
//    activateOnShow, selfReactivate and focusSourceOnClose steer focus and
//    activation; showOnSourceScreen puts the window on the anchor's screen;
//  - shouldHaveTransparentBackground off gives a plain opaque rectangle
//    without shadow and arrow; setReverseColor paints the popover and its
//    labels in the alternate (light/dark counterpart) theme.
// Screen readers see a dialog (or, when it leaves focus where it was, a tool
// tip) named after its header or text. Opening sends a dialog or popup start
// event, a focus event for whatever took focus and, unless focus went into
// the content (which the screen reader then reads), announces the text.
class KARVEX_EXPORT KaPopover : public QWidget {
    Q_OBJECT
    Q_PROPERTY(KaWidgetData::ArrowPostion arrowPosition READ arrowPosition WRITE setArrowPosition NOTIFY
                   arrowPositionChanged)
    Q_PROPERTY(QPixmap coverImage READ coverImage WRITE setCoverImage NOTIFY coverImageChanged)

public:
    // One tick of timed dismissal (KaWidgetData::dismissTimerTicks).
    static constexpr int DismissTickMs = 100;
    // Space between the bubble's body and its content.
    static constexpr int Padding = 12;

    explicit KaPopover(const KaControlHandle& anchor, QWidget* parent = nullptr,
                       const KaWidgetData& data = KaWidgetData());
    KaPopover(QWidget* source, QWidget* parent, const KaWidgetData& data = KaWidgetData());
    ~KaPopover() override;

    // A hidden popover around `content` (which it adopts), deleted when it
    // closes. `source` may be a widget or a button; `anchor` also a QML
    // item or a point.
    static KaPopover* create(QWidget* content, QWidget* source, QWidget* parent,
                             const KaWidgetData& data = KaWidgetData());
    static KaPopover* create(QWidget* content, const KaControlHandle& anchor, QWidget* parent,
                             const KaWidgetData& data = KaWidgetData());
    // The same, placed and shown.
    static KaPopover* createAndShow(QWidget* content, QWidget* source, QWidget* parent,
                                    const KaWidgetData& data = KaWidgetData());
    static KaPopover* createAndShow(QWidget* content, const KaControlHandle& anchor, QWidget* parent,
                                    const KaWidgetData& data = KaWidgetData());
    // A shown popover with `text` in a KaLabel that wraps so that the
    // bubble is at most KaWidgetData::maxPopoverWidth wide.
    static KaPopover* createAndShowTextPopover(QWidget* anchor, QWidget* parent, const QString& text,
                                               const KaWidgetData& data = KaWidgetData());

    // ArrowTop gives Bottom, ArrowLeft Right, ArrowRight Left, ArrowBottom
    // Top, anything else None: the popup lies opposite its arrow.
    static KaPopupEnum::Alignment toAlignment(KaWidgetData::ArrowPostion position);

    const KaWidgetData& data() const { return m_data; }
    KaControlHandle anchor() const { return m_anchor; }

    // Adopts `content`; a previous content widget is deleted.
    void setContentWidget(QWidget* content);
    QWidget* contentWidget() const { return m_content; }
    // The header label; null without header text.
    KaLabel* headerLabel() const { return m_header; }

    void setArrowPosition(KaWidgetData::ArrowPostion position);
    KaWidgetData::ArrowPostion arrowPosition() const { return m_data.m_arrowPostion; }
    // The side requested through the arrow position and the side in use
    // after the last placement (which may have flipped).
    KaPopupEnum::Alignment alignment() const { return toAlignment(m_data.m_arrowPostion); }
    KaPopupEnum::Alignment shownAlignment() const { return m_shownAlignment; }

    void setCoverImage(const QPixmap& cover);
    QPixmap coverImage() const { return m_cover; }

    // The bubble's body in widget coordinates.
    QRect bodyRect() const;

    // Places the popover against its anchor and shows it.
    void popup();
    // Recomputes size and position; does nothing once the anchor is gone.
    void updatePosition();
    // Closes the popover (and so deletes one made by the factories).
    void dismiss();

    // What opening announces: the header and the text content (or the
    // content's accessible name), comma-separated.
    QString announcementText() const;

public Q_SLOTS:
    void onThemeChanged();

Q_SIGNALS:
    void arrowPositionChanged();
    void coverImageChanged();
    // Emitted before the popover closes itself or is dismissed.
    void dismissed();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void applyData();
    void applyMargins();
    QSize preferredSize();
    void watchAnchor(bool on);
    void onFocusChanged(QWidget* old, QWidget* now);
    void onDismissTick();
    bool isInside(const QObject* object) const;
    bool isOnAnchor(const QObject* object) const;
    bool isAnchorOrItsWindow(const QObject* object) const;

    KaWidgetData m_data;
    KaControlHandle m_anchor;
    QPointer<QWidget> m_content;
    KaLabel* m_header = nullptr;
    QVBoxLayout* m_layout;
    KaPopupEnum::Alignment m_shownAlignment = KaPopupEnum::Bottom;
    KaPopupUtils::PopupColors m_colors;
    QPixmap m_cover;
    QTimer m_dismissTimer;
    int m_coverHeight = 0;
    int m_ticksLeft = 0;
    bool m_watching = false;
    bool m_placing = false;
};
