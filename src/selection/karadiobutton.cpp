#include "karadiobutton.h"

#include "kaselectionindicator_p.h"

#include <QEvent>

KaRadioButton::KaRadioButton(QWidget* parent)
    : QRadioButton(parent)
    , m_indicator(new KaSelectionIndicator(KaSelectionIndicator::Circle, this)) {
    setObjectName(QStringLiteral("RadioButton"));
}

KaRadioButton::KaRadioButton(const QString& text, QWidget* parent)
    : KaRadioButton(parent) {
    setText(text);
}

KaRadioButton::~KaRadioButton() = default;

QSize KaRadioButton::sizeHint() const {
    return m_indicator->sizeHint(this);
}

void KaRadioButton::onThemeChanged() {
    m_indicator->resolve(this);
    update();
}

void KaRadioButton::paintEvent(QPaintEvent*) {
    m_indicator->paint(this, isChecked(),
                       isChecked() ? KaSelectionIndicator::Dot : KaSelectionIndicator::NoMark);
}

bool KaRadioButton::hitButton(const QPoint& pos) const {
    return rect().contains(pos);
}

void KaRadioButton::changeEvent(QEvent* event) {
    // Another "themeType" may be above the button now.
    if (event->type() == QEvent::ParentChange)
        m_indicator->resolve(this);
    QRadioButton::changeEvent(event);
}
