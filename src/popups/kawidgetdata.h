#pragma once

#include "karvex_export.h"

#include <QMetaType>
#include <QObject>
#include <QPoint>
#include <QString>

// How a caller wants a popup (popover, menu-entry tooltip, more-info popover)
// placed and how it should behave. A plain copyable record: every setter
// stores one option and returns the record, so a request is one chained
// expression, e.g.
//
//   KaPopover::createAndShow(content, button, window,
//                            KaWidgetData().arrowPostion(KaWidgetData::ArrowLeft).autoDismiss(false));
//
// There are no getters; the popup reads the public fields directly.
class KARVEX_EXPORT KaWidgetData {
    Q_GADGET

public:
    // Where the popup lies along the edge of its source, on the side the
    // arrow position picks.
    enum Alignment : quint8 {
        // Leading edges line up (left for popups above or below, top for
        // popups beside the source).
        AlignStart = 0,
        // Centred on the source; the arrow sits in the middle of its edge.
        AlignCenter = 1,
        // Trailing edges line up.
        AlignEnd = 2,
    };
    Q_ENUM(Alignment)

    // The side of the popup that carries the arrow; the popup lies on the
    // opposite side of its source.
    enum ArrowPostion : quint8 {
        ArrowTop = 0,
        ArrowLeft = 1,
        ArrowRight = 2,
        ArrowBottom = 3,
        ArrowNone = 4,
    };
    Q_ENUM(ArrowPostion)

    // The widest a text popover gets, in pixels.
    static const int maxPopoverWidth = 306;

    KaWidgetData() = default;
    KaWidgetData(const KaWidgetData&) = default;
    KaWidgetData(KaWidgetData&&) = default;
    KaWidgetData& operator=(const KaWidgetData&) = default;
    KaWidgetData& operator=(KaWidgetData&&) = default;
    ~KaWidgetData() = default;

    KaWidgetData& alignment(Alignment value);
    KaWidgetData& arrowPostion(ArrowPostion value);
    KaWidgetData& autoDismiss(bool value);
    KaWidgetData& dismissTimerTicks(int value);
    KaWidgetData& dismissWithParentFocused(bool value);
    KaWidgetData& dismissPopupOnSourceMove(bool value);
    KaWidgetData& activateOnShow(bool value);
    KaWidgetData& fitInMainWindowGeometry(bool value);
    KaWidgetData& focusSourceOnClose(bool value);
    KaWidgetData& selfReactivate(bool value);
    KaWidgetData& showOnSourceScreen(bool value);
    KaWidgetData& shouldTakeFocus(bool value);
    KaWidgetData& skipDeepFocusCheck(bool value);
    KaWidgetData& shouldHaveTransparentBackground(bool value);
    KaWidgetData& moveWithSource(bool value);
    KaWidgetData& setReverseColor(bool value);
    KaWidgetData& fixedArrowSize(bool value);
    KaWidgetData& offset(const QPoint& value);
    KaWidgetData& headerText(const QString& value);

    // Qt::UpArrow gives ArrowTop, LeftArrow ArrowLeft, RightArrow ArrowRight,
    // DownArrow ArrowBottom; NoArrow and anything else ArrowNone.
    static ArrowPostion toArrowPosition(Qt::ArrowType arrow);

    // The fields, in this order, named like their setters with an m_ prefix.
    Alignment m_alignment = AlignCenter;
    ArrowPostion m_arrowPostion = ArrowTop;
    bool m_autoDismiss = true;
    // Timed dismissal: the popover closes after this many ticks of
    // KaPopover::DismissTickMs each; 0 turns it off.
    int m_dismissTimerTicks = 0;
    bool m_dismissWithParentFocused = true;
    bool m_dismissPopupOnSourceMove = false;
    bool m_activateOnShow = false;
    bool m_fitInMainWindowGeometry = false;
    bool m_focusSourceOnClose = true;
    bool m_selfReactivate = true;
    bool m_showOnSourceScreen = false;
    bool m_shouldTakeFocus = true;
    bool m_skipDeepFocusCheck = false;
    bool m_shouldHaveTransparentBackground = true;
    bool m_moveWithSource = false;
    bool m_setReverseColor = false;
    bool m_fixedArrowSize = false;
    QPoint m_offset;
    QString m_headerText;
};

Q_DECLARE_METATYPE(KaWidgetData)
