#pragma once

#include <QList>
#include <QWidget>

class KaComboBox;
class KaLabelBase;

// Combo boxes in both styles and sizes, editable, with a placeholder, with
// rows too long for the list (they get tooltips) and with 10,000 rows: the
// combo-box section of the selection page.
class ComboBoxesSection : public QWidget {
    Q_OBJECT
public:
    explicit ComboBoxesSection(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslateUi();
    KaComboBox* addCombo(int row, int column, const char* caption);

    KaLabelBase* m_heading = nullptr;
    struct Entry {
        KaComboBox* combo;
        KaLabelBase* caption;
        const char* source;
    };
    QList<Entry> m_entries;
    KaComboBox* m_placeholder = nullptr;
    KaComboBox* m_clickOnly = nullptr;
    KaLabelBase* m_clickResult = nullptr;
    int m_clicks = 0;
};
