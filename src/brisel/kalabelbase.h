#pragma once

#include "brisel_export.h"
#include "bzcssdata.h"

#include <QAccessible>
#include <QLabel>

#include <memory>

class BzWidgetTheme;

// The base layer's themed label. Its look comes from a CSS record or a
// style-sheet template: the text colour set drives the palette, background
// and border are painted from their colour sets, and the whole look is
// re-resolved whenever "css" is written (a theme refresh does that) or
// onThemeChanged() runs.
class BRISEL_EXPORT KaLabelBase : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString css READ getCSS WRITE setCSS NOTIFY cssChanged)
    Q_PROPERTY(int fontToken READ fontToken NOTIFY fontTokenChanged)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode NOTIFY elideModeChanged)

public:
    explicit KaLabelBase(QWidget* parent = nullptr, QAccessible::Role role = QAccessible::StaticText,
                         Qt::WindowFlags flags = {});
    KaLabelBase(const QString& text, QWidget* parent = nullptr,
                QAccessible::Role role = QAccessible::StaticText, Qt::WindowFlags flags = {});
    ~KaLabelBase() override;

    void setCSS(const QString& css);
    void setCSS(const BzCSSData& record);
    QString getCSS() const;
    BzCSSData getWCSS() const;
    // The colour set names resolved for the current theme.
    QString textColorSetName() const;

    int fontToken() const { return m_fontToken; }
    void setFontToken(int token, bool scaled);

    Qt::TextElideMode elideMode() const { return m_elideMode; }
    void setElideMode(Qt::TextElideMode mode);
    // The text as it fits the label's width with the elide mode (plain text).
    QString getElidedText() const;
    QString getElidedText(int width) const;

    // Left/Up and Right/Down move the focus to the previous/next widget, so a
    // row of focusable labels can be walked with the arrow keys.
    void enableArrowNavigate(bool enable = true);
    bool isArrowNavigateEnabled() const { return m_arrowNavigate; }

    QAccessible::Role accessibleRole() const { return m_role; }
    void setAccessibleRole(QAccessible::Role role);

public Q_SLOTS:
    virtual void onThemeChanged();

Q_SIGNALS:
    void cssChanged();
    void fontTokenChanged();
    void elideModeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void init(QAccessible::Role role);
    void themeApplied(bool changed);
    bool paintsPlainText() const;
    void updatePalette();

    std::unique_ptr<BzWidgetTheme> m_theme;
    QAccessible::Role m_role = QAccessible::StaticText;
    Qt::TextElideMode m_elideMode = Qt::ElideNone;
    int m_fontToken = -1;
    bool m_arrowNavigate = false;
    bool m_settingPalette = false;
    bool m_paletteApplied = false;
    mutable bool m_elidedValid = false;
    mutable int m_elidedWidth = 0;
    mutable QString m_elidedSource;
    mutable QString m_elided;
};
