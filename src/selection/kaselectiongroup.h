#pragma once

#include "kaoptionrow.h"
#include "karvex_export.h"

#include <QList>
#include <QWidget>

class QButtonGroup;
class KaCheckBox;
class KaLabel;

// A titled group of options. As radio buttons the options are exclusive
// and the arrow keys move the choice, as Qt's radio buttons do. As check
// boxes a "Select all" box above them checks or clears every option and
// shows the partial state while only some are checked. Screen readers find
// the group under its title.
class KARVEX_EXPORT KaSelectionGroup : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(int checkedIndex READ checkedIndex WRITE setCheckedIndex NOTIFY checkedIndexChanged)

public:
    explicit KaSelectionGroup(KaOptionRow::Kind kind = KaOptionRow::RadioButton, QWidget* parent = nullptr);

    KaOptionRow::Kind kind() const { return m_kind; }
    QString title() const;
    void setTitle(const QString& title);

    // Appends an option; returns its row.
    KaOptionRow* addOption(const QString& text, const QString& description = QString());
    int count() const { return int(m_rows.size()); }
    KaOptionRow* option(int index) const;

    // Radio groups: the chosen option, -1 for none. An index out of range
    // is ignored with a warning. Check-box groups: the first checked one.
    int checkedIndex() const;
    void setCheckedIndex(int index);
    // Check-box groups: the "Select all" box (null in radio groups), whose
    // text the host may change.
    KaCheckBox* selectAllBox() const { return m_selectAll; }

Q_SIGNALS:
    void titleChanged();
    void checkedIndexChanged(int index);
    // Any option toggled.
    void selectionChanged();

private:
    void onOptionToggled();
    void onSelectAllClicked();

    KaOptionRow::Kind m_kind;
    KaLabel* m_title = nullptr;
    KaCheckBox* m_selectAll = nullptr;
    QButtonGroup* m_group = nullptr;
    QList<KaOptionRow*> m_rows;
    int m_lastChecked = -1;
    bool m_settingAll = false;
};
