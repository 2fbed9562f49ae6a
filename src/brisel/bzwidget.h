#pragma once

#include "brisel_export.h"
#include "bzcssdata.h"

#include <QWidget>

#include <memory>

class BzWidgetTheme;

// A plain container that paints its own background and border from the
// colour sets of its CSS record (no style sheet involved), and follows
// theme changes.
class BRISEL_EXPORT BzWidget : public QWidget {
    Q_OBJECT
    // Writing "css" always re-resolves it against the current theme, even
    // with the same text: that is how a theme refresh reaches the widget.
    Q_PROPERTY(QString css READ getCSS WRITE setCSS NOTIFY cssChanged)
    Q_PROPERTY(int fontToken READ fontToken WRITE setFontToken NOTIFY fontTokenChanged)

public:
    explicit BzWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~BzWidget() override;

    void setCSS(const QString& css);
    void setCSS(const BzCSSData& record);
    QString getCSS() const;
    BzCSSData getWCSS() const;

    int fontToken() const { return m_fontToken; }
    void setFontToken(int token, bool scaled = false);

    // Pixels the painted frame keeps clear on every side (0 by default).
    int frameInset() const { return m_frameInset; }
    void setFrameInset(int pixels);

public Q_SLOTS:
    virtual void onThemeChanged();

Q_SIGNALS:
    void cssChanged();
    void fontTokenChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void themeApplied(bool changed);
    std::unique_ptr<BzWidgetTheme> m_theme;
    int m_fontToken = -1;
    int m_frameInset = 0;
};
