#pragma once

#include "karvex_export.h"

#include <QSlider>

#include <memory>

// The library's slider: a QSlider (horizontal or vertical, tick marks,
// keyboard steps, Qt's slider role and value for screen readers) painted
// from the slider colour sets: an empty track, the filled part up to the
// handle, and a round handle with the focus ring round it.
class KARVEX_EXPORT KaSlider : public QSlider {
    Q_OBJECT

public:
    explicit KaSlider(QWidget* parent = nullptr);
    explicit KaSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~KaSlider() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    virtual void onThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void resolve();

    struct Colours;
    std::unique_ptr<Colours> m_colours;
};
