#pragma once

#include "ikadualbutton.h"
#include "kadualbuttonenum.h"
#include "kadualiconbuttonconfig.h"
#include "karvex_export.h"

#include <QString>

class KaDualCellButton;

// Two icon cells, styled by a KaDualButtonEnum::IconButtonStyle code: side
// by side or stacked (vertical codes), split into two separate-looking
// halves or joined, and for the asymmetric codes a square plus a narrow
// drop-down arrow. The first cell is the main cell (checkable), the second
// opens the menu.
//
// Icon cells show no text, so each has a settable accessible name.
class KARVEX_EXPORT KaDualIconButton : public IKaDualButton {
    Q_OBJECT
    Q_PROPERTY(KaDualButtonEnum::IconButtonStyle style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(QString firstIcon READ firstIcon WRITE setFirstIcon NOTIFY firstIconChanged)
    Q_PROPERTY(QString secondIcon READ secondIcon WRITE setSecondIcon NOTIFY secondIconChanged)
    Q_PROPERTY(QString firstAccessibleName READ firstAccessibleName WRITE setFirstAccessibleName NOTIFY
                   firstAccessibleNameChanged)
    Q_PROPERTY(QString secondAccessibleName READ secondAccessibleName WRITE setSecondAccessibleName NOTIFY
                   secondAccessibleNameChanged)
public:
    // SecondaryHorizontal, Large.
    explicit KaDualIconButton(QWidget* parent = nullptr);
    KaDualIconButton(QWidget* parent, KaDualButtonEnum::IconButtonStyle style, KaDualButtonEnum::Size size);
    ~KaDualIconButton() override;

    KaDualButtonEnum::IconButtonStyle style() const;
    void setStyle(KaDualButtonEnum::IconButtonStyle style);

    QString firstIcon() const;
    void setFirstIcon(const QString& path);
    // An asymmetric code shows its arrow instead.
    QString secondIcon() const;
    void setSecondIcon(const QString& path);

    QString firstAccessibleName() const;
    void setFirstAccessibleName(const QString& name);
    QString secondAccessibleName() const;
    void setSecondAccessibleName(const QString& name);

    KaDualCellButton* firstCell() const { return mainCell(); }
    KaDualCellButton* secondCell() const { return menuCell(); }
    KaDualIconButtonConfig* iconButtonConfig() const { return m_iconConfig; }

Q_SIGNALS:
    void styleChanged(KaDualButtonEnum::IconButtonStyle style);
    void firstIconChanged(const QString& path);
    void secondIconChanged(const QString& path);
    void firstAccessibleNameChanged(const QString& name);
    void secondAccessibleNameChanged(const QString& name);
    void firstClicked();
    void secondClicked();

private:
    explicit KaDualIconButton(QWidget* parent, KaDualIconButtonConfig* config);

    KaDualIconButtonConfig* m_iconConfig;
};
