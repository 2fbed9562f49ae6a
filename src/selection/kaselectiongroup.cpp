#include "kaselectiongroup.h"

#include "kacheckbox.h"
#include "kacolortokenutils.h"
#include "kalabel.h"

#include <bzfont.h>

#include <QButtonGroup>
#include <QVBoxLayout>

KaSelectionGroup::KaSelectionGroup(KaOptionRow::Kind kind, QWidget* parent)
    : QWidget(parent) {
    if (kind != KaOptionRow::CheckBox && kind != KaOptionRow::RadioButton) {
        qWarning("KaSelectionGroup: unknown kind %d, using RadioButton", int(kind));
        kind = KaOptionRow::RadioButton;
    }
    m_kind = kind;
    setObjectName(QStringLiteral("SelectionGroup"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    m_title = new KaLabel(this);
    m_title->setFontToken(BzFont::Button, false);
    m_title->hide();
    column->addWidget(m_title);
    if (kind == KaOptionRow::RadioButton) {
        m_group = new QButtonGroup(this);
        m_group->setExclusive(true);
    } else {
        m_selectAll = new KaCheckBox(tr("Select all"), this);
        m_selectAll->setTristate(true);
        column->addWidget(m_selectAll);
        connect(m_selectAll, &QAbstractButton::clicked, this, &KaSelectionGroup::onSelectAllClicked);
    }
}

QString KaSelectionGroup::title() const {
    return m_title->text();
}

void KaSelectionGroup::setTitle(const QString& title) {
    if (title == m_title->text())
        return;
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
    setAccessibleName(title);
    Q_EMIT titleChanged();
}

KaOptionRow* KaSelectionGroup::addOption(const QString& text, const QString& description) {
    auto* row = new KaOptionRow(m_kind, text, description, this);
    if (m_selectAll) {
        // Indented under "Select all", on the leading side in either direction.
        auto* indented = new QHBoxLayout;
        indented->addSpacing(24);
        indented->addWidget(row, 1);
        static_cast<QVBoxLayout*>(layout())->addLayout(indented);
    } else {
        layout()->addWidget(row);
    }
    m_rows.append(row);
    if (m_group)
        m_group->addButton(row->button(), int(m_rows.size()) - 1);
    connect(row, &KaOptionRow::toggled, this, &KaSelectionGroup::onOptionToggled);
    onOptionToggled();
    return row;
}

KaOptionRow* KaSelectionGroup::option(int index) const {
    return index >= 0 && index < m_rows.size() ? m_rows.at(index) : nullptr;
}

int KaSelectionGroup::checkedIndex() const {
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i)->isChecked())
            return i;
    }
    return -1;
}

void KaSelectionGroup::setCheckedIndex(int index) {
    if (index < -1 || index >= m_rows.size()) {
        qWarning("KaSelectionGroup::setCheckedIndex: no option %d ignored", index);
        return;
    }
    if (index == checkedIndex())
        return;
    if (index >= 0) {
        m_rows.at(index)->setChecked(true);
        return;
    }
    // Qt keeps one radio button checked in an exclusive group.
    if (m_group)
        m_group->setExclusive(false);
    for (KaOptionRow* row : m_rows)
        row->setChecked(false);
    if (m_group)
        m_group->setExclusive(true);
}

void KaSelectionGroup::onOptionToggled() {
    if (m_settingAll)
        return;
    if (m_selectAll) {
        int checked = 0;
        for (const KaOptionRow* row : m_rows)
            checked += row->isChecked();
        const Qt::CheckState state = checked == 0                    ? Qt::Unchecked
                                     : checked == int(m_rows.size()) ? Qt::Checked
                                                                     : Qt::PartiallyChecked;
        m_selectAll->setCheckState(state);
        m_selectAll->setEnabled(!m_rows.isEmpty());
    }
    const int index = checkedIndex();
    if (index != m_lastChecked) {
        m_lastChecked = index;
        Q_EMIT checkedIndexChanged(index);
    }
    Q_EMIT selectionChanged();
}

void KaSelectionGroup::onSelectAllClicked() {
    // The user never picks the partial state: from it, or from nothing, a
    // click checks every option; from all, it clears them.
    const bool all = m_selectAll->checkState() != Qt::Unchecked;
    m_settingAll = true;
    for (KaOptionRow* row : m_rows)
        row->setChecked(all);
    m_settingAll = false;
    onOptionToggled();
}
