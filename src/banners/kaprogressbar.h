#pragma once

#include "karvex_export.h"

#include <QBasicTimer>
#include <QColor>
#include <QWidget>

// A thin themed progress bar: a track ("spinner-progress-track") and a fill
// ("spinner-progress-cursor") growing from the leading edge. Indeterminate
// bars sweep a segment instead, and only while visible.
//
// Screen readers get a progress bar with the value and range; value changes
// are announced when they cross a tenth of the range (and at both ends),
// not on every step.
class KARVEX_EXPORT KaProgressBar : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum NOTIFY rangeChanged)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum NOTIFY rangeChanged)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(bool indeterminate READ isIndeterminate WRITE setIndeterminate NOTIFY indeterminateChanged)
    Q_PROPERTY(BarSize barSize READ barSize WRITE setBarSize NOTIFY barSizeChanged)

public:
    // Track thickness: Small 2, Medium 4, Large 6 pixels.
    enum BarSize : int { Small = 0, Medium = 1, Large = 2 };
    Q_ENUM(BarSize)

    explicit KaProgressBar(QWidget* parent = nullptr);
    ~KaProgressBar() override;

    int minimum() const { return m_minimum; }
    int maximum() const { return m_maximum; }
    // A maximum below the minimum is raised to it, with a warning. The
    // value is clamped into the new range.
    void setRange(int minimum, int maximum);
    void setMinimum(int minimum);
    void setMaximum(int maximum);
    int value() const { return m_value; }
    // Values outside the range are clamped, with a warning.
    void setValue(int value);
    // Back to the minimum.
    void reset();

    bool isIndeterminate() const { return m_indeterminate; }
    void setIndeterminate(bool indeterminate);

    BarSize barSize() const { return m_barSize; }
    // Other values are ignored with a warning.
    void setBarSize(BarSize size);
    static int thicknessOf(BarSize size);

    // Between 0 and 1; 0 for an empty range.
    qreal fraction() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void onThemeChanged();
    // Under reduced motion the indeterminate segment rests in the middle.
    void onReducedMotionChanged();

Q_SIGNALS:
    void rangeChanged();
    void valueChanged(int value);
    void indeterminateChanged();
    void barSizeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void resolveColours();
    void updateTimer();
    // The tenth of the range the value is in; announcements happen when it moves.
    int announcedStep() const;
    void announceIfStepped();

    QBasicTimer m_timer;
    QColor m_track;
    QColor m_fill;
    int m_minimum = 0;
    int m_maximum = 100;
    int m_value = 0;
    int m_lastStep = 0;
    qreal m_phase = 0;
    BarSize m_barSize = Medium;
    bool m_indeterminate = false;
};
