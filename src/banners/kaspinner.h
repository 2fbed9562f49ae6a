#pragma once

#include "karvex_export.h"

#include <QBasicTimer>
#include <QColor>
#include <QWidget>

// A busy indicator: a ring ("spinner-loading-track") with a turning arc
// ("spinner-loading-cursor"). It turns only while visible and repaints only
// its own square. Screen readers get a busy progress bar named "Loading"
// unless given another name, announced each time the spinner is shown.
class KARVEX_EXPORT KaSpinner : public QWidget {
    Q_OBJECT
    Q_PROPERTY(SpinnerSize spinnerSize READ spinnerSize WRITE setSpinnerSize NOTIFY spinnerSizeChanged)

public:
    //   size        diameter  stroke
    //   Small       16        2
    //   Medium      24        3
    //   Large       32        3
    //   ExtraLarge  48        4
    enum SpinnerSize : int { Small = 0, Medium = 1, Large = 2, ExtraLarge = 3 };
    Q_ENUM(SpinnerSize)

    explicit KaSpinner(QWidget* parent = nullptr, SpinnerSize size = Medium);
    ~KaSpinner() override;

    SpinnerSize spinnerSize() const { return m_size; }
    // Other values are ignored with a warning.
    void setSpinnerSize(SpinnerSize size);
    static int diameterOf(SpinnerSize size);
    static int strokeOf(SpinnerSize size);

    // Whether the arc is turning now.
    bool isSpinning() const { return m_timer.isActive(); }

    QSize sizeHint() const override;

public Q_SLOTS:
    void onThemeChanged();
    // Under reduced motion the arc rests where it is.
    void onReducedMotionChanged();

Q_SIGNALS:
    void spinnerSizeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void resolveColours();
    void updateTimer();

    QBasicTimer m_timer;
    QColor m_track;
    QColor m_arc;
    int m_angle = 0;
    SpinnerSize m_size = Medium;
};
