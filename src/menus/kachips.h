#pragma once

#include "karvex_export.h"

#include <bzsvganchorbutton.h>

#include <QVariant>

class QKeyEvent;

// A removable chip: a small pill with a text and a cancel cross at its
// trailing end, carrying a value of any type. Only the cross is clickable;
// a click on it, Space, Backspace or Delete hides the chip and emits
// dismissed(). Left and Right are handed to the owner through keyPressed()
// so it can move the focus along a row of chips.
//
//   auto* chip = new KaChips(row, QVariant::fromValue(contactId));
//   chip->setDisplayText(name);
//   connect(chip, &KaChips::dismissed, row, [=] { removeContact(chip->getChipValue()); });
class KARVEX_EXPORT KaChips : public BzSvgAnchorButton {
    Q_OBJECT

public:
    explicit KaChips(QWidget* parent = nullptr, const QVariant& value = QVariant());
    ~KaChips() override;

    QVariant getChipValue() const { return m_value; }
    // The text and the same tool tip, so a long, elided text can be read in
    // full; screen readers hear it as the chip's name.
    void setDisplayText(const QString& text);

Q_SIGNALS:
    void dismissed();
    // Left or Right was pressed on the chip; nothing else handled it.
    void keyPressed(QKeyEvent* event);

protected:
    bool hitButton(const QPoint& pos) const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void dismiss();

    QVariant m_value;
};
