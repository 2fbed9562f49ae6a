#pragma once

#include "kamenuenum.h"
#include "karvex_export.h"

#include <QMargins>
#include <QSize>
#include <QString>

// The configuration of one menu entry: what its style, size and state are,
// and the measurements and colour-set names that follow from them. The
// entry compares every setter's value with the configuration, stores it
// only on a change and then rebuilds itself from layout().
//
// Heights and the title column's vertical margins:
//   no sub-text, Small    32   4 / 4
//   no sub-text, Medium   40   8 / 8
//   no sub-text, Large    50   8 / 8
//   with a sub-text       50   3 / 3
class KARVEX_EXPORT KaMenuItemConfig {
public:
    // Names of the states the colour sets are read in.
    enum class State : int { Normal = 0, Hovered, Disabled, Checked };

    // Everything the entry applies when it rebuilds.
    struct Layout {
        int fixedHeight = 40;
        QMargins outerMargins{12, 0, 12, 0};
        QMargins innerMargins{0, 8, 0, 8};
        int outerSpacing = 12;
        int innerSpacing = 0;
        QSize iconSize{16, 16};
        int titleFontToken = 0;
        int subTextFontToken = 6;
        int leftTextFontToken = 4;
        QString titleColorSet;
        QString subTextColorSet;
        QString leftTextColorSet;
        QString infoIconColorSet;
        QString actionIconColorSet;
        State state = State::Normal;
        int minimumWidth = 264;
        int maximumWidth = 720;
    };

    KaMenuItemConfig();

    KaMenuEnum::Style style() const { return m_style; }
    bool setStyle(KaMenuEnum::Style style);
    KaMenuEnum::Size size() const { return m_size; }
    bool setSize(KaMenuEnum::Size size);
    bool hasSubText() const { return m_subText; }
    bool setHasSubText(bool on);
    int titleFontToken() const { return m_titleFontToken; }
    bool setTitleFontToken(int token);
    // Empty: the list's primary text (error text for an alert entry).
    QString titleColorSet() const { return m_titleColorSet; }
    bool setTitleColorSet(const QString& name);
    // Empty: the list's secondary text.
    QString leftTextColorSet() const { return m_leftTextColorSet; }
    bool setLeftTextColorSet(const QString& name);
    // Empty: the list's icon colour (the tick colour while marked).
    QString infoIconColorSet() const { return m_infoIconColorSet; }
    bool setInfoIconColorSet(const QString& name);
    QString actionIconColorSet() const { return m_actionIconColorSet; }
    bool setActionIconColorSet(const QString& name);
    int defaultMinimumWidth() const { return m_minimumWidth; }
    bool setDefaultMinimumWidth(int width);
    int defaultMaximumWidth() const { return m_maximumWidth; }
    bool setDefaultMaximumWidth(int width);
    bool isDisabled() const { return m_disabled; }
    bool setDisabled(bool on);
    bool isHovered() const { return m_hovered; }
    bool setHovered(bool on);
    bool isAlert() const { return m_alert; }
    bool setAlert(bool on);
    // A checkable entry that is checked shows a tick.
    bool isMarked() const { return m_marked; }
    bool setMarked(bool on);

    State state() const;
    static QString stateName(State state);
    Layout layout() const;

private:
    KaMenuEnum::Style m_style = KaMenuEnum::Normal;
    KaMenuEnum::Size m_size = KaMenuEnum::Medium;
    bool m_subText = false;
    int m_titleFontToken = 0;
    QString m_titleColorSet;
    QString m_leftTextColorSet;
    QString m_infoIconColorSet;
    QString m_actionIconColorSet;
    int m_minimumWidth = 264;
    int m_maximumWidth = 720;
    bool m_disabled = false;
    bool m_hovered = false;
    bool m_alert = false;
    bool m_marked = false;
};
