#include "kacheckbox.h"

#include "kaselectionindicator_p.h"

#include <QEvent>

KaCheckBox::KaCheckBox(QWidget* parent)
    : QCheckBox(parent)
    , m_indicator(new KaSelectionIndicator(KaSelectionIndicator::Box, this)) {
    setObjectName(QStringLiteral("CheckBox"));
}

KaCheckBox::KaCheckBox(const QString& text, QWidget* parent)
    : KaCheckBox(parent) {
    setText(text);
}

KaCheckBox::~KaCheckBox() = default;

QSize KaCheckBox::sizeHint() const {
    return m_indicator->sizeHint(this);
}

void KaCheckBox::onThemeChanged() {
    m_indicator->resolve(this);
    update();
}

void KaCheckBox::paintEvent(QPaintEvent*) {
    const Qt::CheckState state = checkState();
    const KaSelectionIndicator::Mark mark = state == Qt::Checked            ? KaSelectionIndicator::Check
                                            : state == Qt::PartiallyChecked ? KaSelectionIndicator::Dash
                                                                            : KaSelectionIndicator::NoMark;
    m_indicator->paint(this, state != Qt::Unchecked, mark);
}

bool KaCheckBox::hitButton(const QPoint& pos) const {
    return rect().contains(pos);
}

void KaCheckBox::changeEvent(QEvent* event) {
    // Another "themeType" may be above the box now.
    if (event->type() == QEvent::ParentChange)
        m_indicator->resolve(this);
    QCheckBox::changeEvent(event);
}
