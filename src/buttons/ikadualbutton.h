#pragma once

#include "ikadualbuttonconfig.h"
#include "kadualbuttonenum.h"
#include "kadualcellbutton.h"
#include "karvex_export.h"

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QMenu;

// Base of the two-cell buttons: a frameless container laying out two
// KaDualCellButtons as its configuration decodes the style code (which cell
// leads, side by side or stacked). Each cell is a push button of its own,
// so keyboard focus, clicks and accessibility (name, push-button role,
// checked state) work per cell.
//
// One cell is the main cell: it carries the checked state when the button
// is checkable. The other is the menu cell: clicking it, or Alt+Down / F4 on
// either cell, opens the attached menu below the button (right-aligned in
// right-to-left layouts) and keeps the menu cell pressed while it is open.
class KARVEX_EXPORT IKaDualButton : public QWidget {
    Q_OBJECT
    Q_PROPERTY(KaDualButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable NOTIFY checkableChanged)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY toggled)
public:
    ~IKaDualButton() override;

    KaDualButtonEnum::Size size() const;
    void setSize(KaDualButtonEnum::Size size);
    bool isCheckable() const;
    void setCheckable(bool checkable);
    bool isChecked() const;
    void setChecked(bool checked);

    // Not owned. A null menu detaches the current one.
    void setMenu(QMenu* menu);
    QMenu* menu() const;

    // The cells in screen order before mirroring: the leading one is left
    // (right in right-to-left) or on top.
    KaDualCellButton* leadingCell() const;
    KaDualCellButton* trailingCell() const;
    bool isVertical() const;

    IKaDualButtonConfig* dualButtonConfig() const { return m_config; }

public Q_SLOTS:
    // Opens the attached menu, if any.
    void showMenu();
    // The cells follow the theme by themselves; this re-applies the layout.
    void onThemeChanged();

Q_SIGNALS:
    void sizeChanged(KaDualButtonEnum::Size size);
    void checkableChanged(bool checkable);
    void toggled(bool checked);

protected:
    // Takes ownership of `config` (it becomes the button's child).
    IKaDualButton(QWidget* parent, IKaDualButtonConfig* config);

    // Called once by the concrete button after creating its two cells.
    void setCells(KaDualCellButton* mainCell, KaDualCellButton* menuCell);
    KaDualCellButton* mainCell() const { return m_mainCell; }
    KaDualCellButton* menuCell() const { return m_menuCell; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    // Arranges the cells for the current code.
    void refresh();

private:
    KaDualCellButton* cellFor(const IKaDualCellConfig* config) const;
    void onMainToggled(bool checked);
    void onMenuHidden();

    QPointer<IKaDualButtonConfig> m_config;
    QBoxLayout* m_layout = nullptr;
    QPointer<KaDualCellButton> m_mainCell;
    QPointer<KaDualCellButton> m_menuCell;
    QPointer<QMenu> m_menu;
};
