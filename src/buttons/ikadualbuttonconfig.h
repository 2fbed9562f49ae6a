#pragma once

#include "ikadualcellconfig.h"
#include "kadualbuttonenum.h"
#include "karvex_export.h"

#include <QObject>

// The configuration of a two-cell button. It holds the bit-composed style
// code (KaDualButtonCode decodes it), the size and the checked state, owns
// the two cell configurations and pushes all three into them after every
// change (updateCells); each cell then fills its own record.
//
// The 0x100 bit of a code reads differently for the two code families: in a
// KaDualButtonEnum::Style it puts the icon cell first, in an IconButtonStyle
// it splits the two icon cells into separate-looking halves (the only
// unsplit style is AsymSecondaryHorizontalWithoutSplit). Label styles are
// always split.
//
// A checked button paints both cells in their scheme's active colours.
class KARVEX_EXPORT IKaDualButtonConfig : public QObject {
    Q_OBJECT
    Q_PROPERTY(KaDualButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY checkedChanged)
public:
    ~IKaDualButtonConfig() override;

    // Pushes code, size and state into both cells, then configChanged().
    virtual void updateCells();
    // The leading and trailing cell (top and bottom when vertical); null
    // once a cell has been destroyed.
    virtual IKaDualCellConfig* leftCellConfig() const = 0;
    virtual IKaDualCellConfig* rightCellConfig() const = 0;

    int code() const { return m_code; }
    KaDualButtonCode::ColorScheme colorScheme() const;
    int cellLayout() const;
    bool isIconFirst() const;
    bool isSplit() const;
    bool isAlignedRight() const;
    bool isVertical() const;

    KaDualButtonEnum::Size size() const { return m_size; }
    void setSize(KaDualButtonEnum::Size size);
    bool isChecked() const { return m_checked; }
    void setChecked(bool checked);

Q_SIGNALS:
    void configChanged();
    void sizeChanged(KaDualButtonEnum::Size size);
    void checkedChanged(bool checked);

protected:
    // `iconButtonCodes`: the codes are IconButtonStyle values.
    IKaDualButtonConfig(int code, bool iconButtonCodes, QObject* parent);

    // Stores a style code; false when it is the current one.
    bool changeCode(int code);
    // Hands the button's state to `cell` placed at `position`; null is ignored.
    void pushTo(IKaDualCellConfig* cell, IKaDualCellConfig::Position position) const;

private:
    int m_code;
    bool m_iconButtonCodes;
    KaDualButtonEnum::Size m_size = KaDualButtonEnum::Large;
    bool m_checked = false;
};
