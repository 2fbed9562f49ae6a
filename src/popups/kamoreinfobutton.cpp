#include "kamoreinfobutton.h"

#include "kapopover.h"
#include "kawidgetdata.h"

namespace {
KaWidgetData::ArrowPostion arrowFor(KaPopupEnum::Alignment side) {
    // The arrow sits on the popover's edge facing the button.
    switch (side) {
    case KaPopupEnum::Top:
        return KaWidgetData::ArrowBottom;
    case KaPopupEnum::Left:
        return KaWidgetData::ArrowRight;
    case KaPopupEnum::Right:
        return KaWidgetData::ArrowLeft;
    case KaPopupEnum::Bottom:
    case KaPopupEnum::None:
    default:
        return KaWidgetData::ArrowTop;
    }
}
} // namespace

KaMoreInfoButton::KaMoreInfoButton(QWidget* parent)
    : KaIconButton(parent, KaIconButtonEnum::Info, KaButtonEnum::Normal) {
    init();
}

KaMoreInfoButton::KaMoreInfoButton(const QString& infoText, QWidget* parent)
    : KaMoreInfoButton(parent) {
    setInfoText(infoText);
}

KaMoreInfoButton::~KaMoreInfoButton() {
    if (m_popover)
        m_popover->dismiss();
}

void KaMoreInfoButton::init() {
    setObjectName(QStringLiteral("KaMoreInfoButton"));
    setLeftIcon(QStringLiteral("qrc:/Resources/info-badge-filled.svg"));
    setAccessibleName(tr("More information"));
    connect(this, &QAbstractButton::clicked, this, &KaMoreInfoButton::togglePopup);
}

void KaMoreInfoButton::setInfoText(const QString& text) {
    if (m_infoText == text)
        return;
    m_infoText = text;
    setAccessibleDescription(text);
    Q_EMIT infoTextChanged();
}

void KaMoreInfoButton::setPopupDirection(KaPopupEnum::Alignment direction) {
    if (direction < KaPopupEnum::None || direction > KaPopupEnum::Bottom) {
        qWarning("KaMoreInfoButton::setPopupDirection: %d is not a side, ignored", int(direction));
        return;
    }
    if (m_direction == direction)
        return;
    m_direction = direction;
    Q_EMIT popupDirectionChanged();
}

bool KaMoreInfoButton::isPopupVisible() const {
    return m_popover && m_popover->isVisible();
}

void KaMoreInfoButton::togglePopup() {
    if (isPopupVisible())
        hidePopup();
    else
        showPopup();
}

void KaMoreInfoButton::showPopup() {
    if (m_infoText.isEmpty() || isPopupVisible())
        return;
    KaWidgetData request;
    request.arrowPostion(arrowFor(m_direction));
    m_popover = KaPopover::createAndShowTextPopover(this, window(), m_infoText, request);
    if (!m_popover)
        return;
    if (QWidget* text = m_popover->contentWidget())
        text->setObjectName(QLatin1String(PopupTextObjectName));
    connect(m_popover, &QObject::destroyed, this, &KaMoreInfoButton::popupHidden);
    // The popover announces the text as it opens: a second announcement
    // from the button would read it twice, and Qt's Linux bridge drops
    // value changes from a button.
    Q_EMIT popupShown();
}

void KaMoreInfoButton::hidePopup() {
    if (m_popover)
        m_popover->dismiss();
}
