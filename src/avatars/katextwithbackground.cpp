#include "katextwithbackground.h"

#include "kacolortokenutils.h"

KaTextWithBackground::KaTextWithBackground(QWidget* parent)
    : KaSvgLabelBase(parent, QAccessible::StaticText) {
    setAlignment(Qt::AlignCenter);
    setSvgIconColorSet(QString());
    applyLook();
}

KaTextWithBackground::KaTextWithBackground(const QString& text, QWidget* parent)
    : KaTextWithBackground(parent) {
    setText(text);
}

KaTextWithBackground::~KaTextWithBackground() = default;

void KaTextWithBackground::setLegacyStyling(bool legacy) {
    if (m_legacyStyling == legacy)
        return;
    m_legacyStyling = legacy;
    applyLook();
    Q_EMIT legacyStylingChanged(legacy);
}

void KaTextWithBackground::applyLook() {
    BzCSSData look;
    look.backgroundColorSet = KaColorTokenUtils::tokenToString(
        m_legacyStyling ? Karvox::badge_secondary_background : Karvox::badge_background);
    look.textColorSet =
        KaColorTokenUtils::tokenToString(m_legacyStyling ? Karvox::badge_secondary_text : Karvox::badge_text);
    look.borderRadius = m_legacyStyling ? 4 : -1;
    // A badge is a marker: it keeps its colours under the mouse.
    look.setSwitch(BzCSSData::FollowState, 0);
    setCSS(look);
}

QSize KaTextWithBackground::sizeHint() const {
    if (text().isEmpty())
        return KaSvgLabelBase::sizeHint();
    return QSize(fontMetrics().horizontalAdvance(text()) + 12, kHeight);
}

QSize KaTextWithBackground::minimumSizeHint() const {
    return sizeHint();
}
