#pragma once

#include "bzcolorset.h"
#include "ikabutton.h"
#include "ikadualcellconfig.h"
#include "karvex_export.h"

#include <QPointer>

#include <array>

// One half of a dual button: an IKaButton driven by an IKaDualCellConfig.
// The dual button owns the cell's configuration (through its own
// configuration) and lays two cells out next to each other.
//
// The base button paints text, icons and focus; the cell paints the face
// itself because only one side of it is rounded and, for the trailing cell,
// one side has no border. The record handed to the base button therefore
// names the text colours only. Face, border and separator sets are resolved
// here on theme and configuration changes.
class KARVEX_EXPORT KaDualCellButton : public IKaButton {
    Q_OBJECT
public:
    // `config` must outlive no one: the cell holds it in a guarded pointer.
    explicit KaDualCellButton(IKaDualCellConfig* config, QWidget* parent = nullptr);
    ~KaDualCellButton() override;

    IKaDualCellConfig* cellConfig() const { return m_cellConfig; }
    // The corners the focus ring keeps square (the "rectangularCornerMask"
    // bits), already mirrored for the layout direction.
    int squareCorners() const { return m_squareCorners; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void themeResolved() override;

private Q_SLOTS:
    void refresh();

private:
    QPointer<IKaDualCellConfig> m_cellConfig;
    QString m_separatorName;
    bool m_vertical = false;
    int m_squareCorners = 0;
    BzColorSet m_separator;
};
