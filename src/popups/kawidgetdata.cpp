#include "kawidgetdata.h"

KaWidgetData& KaWidgetData::alignment(Alignment value) {
    m_alignment = value;
    return *this;
}

KaWidgetData& KaWidgetData::arrowPostion(ArrowPostion value) {
    m_arrowPostion = value;
    return *this;
}

KaWidgetData& KaWidgetData::autoDismiss(bool value) {
    m_autoDismiss = value;
    return *this;
}

KaWidgetData& KaWidgetData::dismissTimerTicks(int value) {
    if (value < 0) {
        qWarning("KaWidgetData: negative dismiss timer ticks %d, using 0", value);
        value = 0;
    }
    m_dismissTimerTicks = value;
    return *this;
}

KaWidgetData& KaWidgetData::dismissWithParentFocused(bool value) {
    m_dismissWithParentFocused = value;
    return *this;
}

KaWidgetData& KaWidgetData::dismissPopupOnSourceMove(bool value) {
    m_dismissPopupOnSourceMove = value;
    return *this;
}

KaWidgetData& KaWidgetData::activateOnShow(bool value) {
    m_activateOnShow = value;
    return *this;
}

KaWidgetData& KaWidgetData::fitInMainWindowGeometry(bool value) {
    m_fitInMainWindowGeometry = value;
    return *this;
}

KaWidgetData& KaWidgetData::focusSourceOnClose(bool value) {
    m_focusSourceOnClose = value;
    return *this;
}

KaWidgetData& KaWidgetData::selfReactivate(bool value) {
    m_selfReactivate = value;
    return *this;
}

KaWidgetData& KaWidgetData::showOnSourceScreen(bool value) {
    m_showOnSourceScreen = value;
    return *this;
}

KaWidgetData& KaWidgetData::shouldTakeFocus(bool value) {
    m_shouldTakeFocus = value;
    return *this;
}

KaWidgetData& KaWidgetData::skipDeepFocusCheck(bool value) {
    m_skipDeepFocusCheck = value;
    return *this;
}

KaWidgetData& KaWidgetData::shouldHaveTransparentBackground(bool value) {
    m_shouldHaveTransparentBackground = value;
    return *this;
}

KaWidgetData& KaWidgetData::moveWithSource(bool value) {
    m_moveWithSource = value;
    return *this;
}

KaWidgetData& KaWidgetData::setReverseColor(bool value) {
    m_setReverseColor = value;
    return *this;
}

KaWidgetData& KaWidgetData::fixedArrowSize(bool value) {
    m_fixedArrowSize = value;
    return *this;
}

KaWidgetData& KaWidgetData::offset(const QPoint& value) {
    m_offset = value;
    return *this;
}

KaWidgetData& KaWidgetData::headerText(const QString& value) {
    m_headerText = value;
    return *this;
}

KaWidgetData::ArrowPostion KaWidgetData::toArrowPosition(Qt::ArrowType arrow) {
    switch (arrow) {
    case Qt::UpArrow:
        return ArrowTop;
    case Qt::LeftArrow:
        return ArrowLeft;
    case Qt::RightArrow:
        return ArrowRight;
    case Qt::DownArrow:
        return ArrowBottom;
    default:
        return ArrowNone;
    }
}
