#pragma once

#include "karvex_export.h"

#include <QCheckBox>

#include <memory>

class KaSelectionIndicator;

// The library's check box: a QCheckBox (tri-state included) painted from the
// check-box colour sets, with the whole widget as its click area and the
// focus ring round the box. Screen readers get Qt's check-box role and its
// checked, mixed and disabled states.
class KARVEX_EXPORT KaCheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit KaCheckBox(QWidget* parent = nullptr);
    explicit KaCheckBox(const QString& text, QWidget* parent = nullptr);
    ~KaCheckBox() override;

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
