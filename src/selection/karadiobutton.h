#pragma once

#include "karvex_export.h"

#include <QRadioButton>

#include <memory>

class KaSelectionIndicator;

// The library's check box: a QRadioButton (tri-state included) painted from the
// check-box colour sets, with the whole widget as its click area and the
// focus ring round the box. Screen readers get Qt's check-box role and its
// checked, mixed and disabled states.
class KARVEX_EXPORT KaRadioButton : public QRadioButton {
    Q_OBJECT

public:
    explicit KaRadioButton(QWidget* parent = nullptr);
    explicit KaRadioButton(const QString& text, QWidget* parent = nullptr);
    ~KaRadioButton() override;

    QSize sizeHint() const override;

public Q_SLOTS:
    // Re-reads the colours of the current theme.
    virtual void onThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& pos) const override;
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<KaSelectionIndicator> m_indicator;
};
