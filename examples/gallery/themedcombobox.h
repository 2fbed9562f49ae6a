#pragma once

#include <QColor>
#include <QComboBox>

// A combo box themed by a style-sheet template whose drop-down arrow is a
// library icon tinted with "combobox-icon" (a template can only name image
// files, which would not follow the theme).
class ThemedComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit ThemedComboBox(QWidget* parent = nullptr);

public Q_SLOTS:
    // Queued by the theme refresh: picks up the new arrow colours.
    void onThemeChanged();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void applyTemplate();

    QColor m_arrow;
    QColor m_arrowDisabled;
};
