#pragma once

#include "ikadualbutton.h"
#include "kadualbuttonenum.h"
#include "kadualcombobuttonconfig.h"
#include "karvex_export.h"

#include <QString>

class KaDualCellButton;

// A label cell (text with an optional leading icon) and an icon cell side by
// side, styled by a KaDualButtonEnum::Style code: icon-first codes put the
// icon cell on the leading side, right-aligned codes move the label to the
// trailing side of its cell, and arrow layouts turn the icon cell into a
// narrow drop-down arrow. The label cell is the main cell (checkable), the
// icon cell opens the menu.
//
// Accessibility: the label cell's name is its text (or labelAccessibleName
// when set, for a label cell that shows only an icon); the icon cell's name
// is iconAccessibleName, "More options" unless set.
class KARVEX_EXPORT KaDualComboButton : public IKaDualButton {
    Q_OBJECT
    Q_PROPERTY(KaDualButtonEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString labelIcon READ labelIcon WRITE setLabelIcon NOTIFY labelIconChanged)
    Q_PROPERTY(QString cellIcon READ cellIcon WRITE setCellIcon NOTIFY cellIconChanged)
    Q_PROPERTY(QString labelAccessibleName READ labelAccessibleName WRITE setLabelAccessibleName NOTIFY
                   labelAccessibleNameChanged)
    Q_PROPERTY(QString iconAccessibleName READ iconAccessibleName WRITE setIconAccessibleName NOTIFY
                   iconAccessibleNameChanged)
public:
    // LabelIconSecondary, Large.
    explicit KaDualComboButton(QWidget* parent = nullptr);
    KaDualComboButton(QWidget* parent, KaDualButtonEnum::Style style, KaDualButtonEnum::Size size);
    ~KaDualComboButton() override;

    KaDualButtonEnum::Style style() const;
    void setStyle(KaDualButtonEnum::Style style);

    QString text() const;
    void setText(const QString& text);
    // The label cell's leading icon.
    QString labelIcon() const;
    void setLabelIcon(const QString& path);
    // The icon cell's icon; an arrow layout shows its arrow instead.
    QString cellIcon() const;
    void setCellIcon(const QString& path);

    QString labelAccessibleName() const { return m_labelAccessibleName; }
    void setLabelAccessibleName(const QString& name);
    QString iconAccessibleName() const { return m_iconAccessibleName; }
    void setIconAccessibleName(const QString& name);

    KaDualCellButton* labelCell() const { return mainCell(); }
    KaDualCellButton* iconCell() const { return menuCell(); }
    KaDualComboButtonConfig* comboConfig() const { return m_comboConfig; }

Q_SIGNALS:
    void styleChanged(KaDualButtonEnum::Style style);
    void textChanged(const QString& text);
    void labelIconChanged(const QString& path);
    void cellIconChanged(const QString& path);
    void labelAccessibleNameChanged(const QString& name);
    void iconAccessibleNameChanged(const QString& name);
    // A click (mouse or keyboard) on the label cell and on the icon cell.
    void labelClicked();
    void iconClicked();

private:
    explicit KaDualComboButton(QWidget* parent, KaDualComboButtonConfig* config);

    KaDualComboButtonConfig* m_comboConfig;
    QString m_labelAccessibleName;
    QString m_iconAccessibleName;
};
