#include "kaoptionrow.h"

#include "kacheckbox.h"
#include "kacolortokenutils.h"
#include "kalabel.h"
#include "karadiobutton.h"
#include "kaselectionindicator_p.h"

#include <bzfont.h>

#include <QMouseEvent>
#include <QVBoxLayout>

KaOptionRow::KaOptionRow(QWidget* parent)
    : KaOptionRow(CheckBox, QString(), QString(), parent) {}

KaOptionRow::KaOptionRow(Kind kind, const QString& text, const QString& description, QWidget* parent)
    : QWidget(parent) {
    if (kind != CheckBox && kind != RadioButton) {
        qWarning("KaOptionRow: unknown kind %d, using CheckBox", int(kind));
        kind = CheckBox;
    }
    m_kind = kind;
    m_button = kind == CheckBox ? static_cast<QAbstractButton*>(new KaCheckBox(text, this))
                                : static_cast<QAbstractButton*>(new KaRadioButton(text, this));
    m_description = new KaLabel(this);
    m_description->setFontToken(BzFont::BodySmall, false);
    m_description->setTextColorSetName(
        KaColorTokenUtils::tokenToString(Karvox::radio_group_description_color));
    m_description->setWordWrap(true);
    // Under the title, not under the indicator.
    const int indent = KaSelectionIndicator::kIndicator + KaSelectionIndicator::kSpacing;
    // A spacing item, not a margin: box layouts mirror it right to left.
    auto* secondLine = new QHBoxLayout;
    secondLine->addSpacing(indent);
    secondLine->addWidget(m_description, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_button);
    column->addLayout(secondLine);
    setFocusProxy(m_button);
    setDescription(description);
    connect(m_button, &QAbstractButton::toggled, this, &KaOptionRow::toggled);
}

QString KaOptionRow::text() const {
    return m_button->text();
}

void KaOptionRow::setText(const QString& text) {
    if (text == m_button->text())
        return;
    m_button->setText(text);
    Q_EMIT textChanged();
}

QString KaOptionRow::description() const {
    return m_description->text();
}

void KaOptionRow::setDescription(const QString& text) {
    if (text == m_description->text() && !text.isEmpty())
        return;
    m_description->setText(text);
    m_description->setVisible(!text.isEmpty());
    m_button->setAccessibleDescription(text);
    Q_EMIT descriptionChanged();
}

bool KaOptionRow::isChecked() const {
    return m_button->isChecked();
}

void KaOptionRow::setChecked(bool checked) {
    m_button->setChecked(checked);
}

void KaOptionRow::mouseReleaseEvent(QMouseEvent* event) {
    // A click on the secondary line or the gaps toggles like one on the button.
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && isEnabled()) {
        m_button->setFocus(Qt::MouseFocusReason);
        m_button->click();
        return;
    }
    QWidget::mouseReleaseEvent(event);
}
