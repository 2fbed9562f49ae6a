#include "kacontextmenuutils.h"

namespace KaContextMenuUtils {

QString styleSheet() {
    // Entries are inset from the frame, so that the rounded highlight and
    // the focus ring keep clear of the menu's own rounded border.
    static const QString sheet = QStringLiteral(
        "QMenu { background-color: $(popover-primary-background); border: 1px solid $(modal-primary-border);"
        " border-radius: 10px; padding: 6px; }"
        " QMenu::item { color: $(listitem-textprimary); background-color: transparent;"
        " padding: 6px 24px 6px 12px; border-radius: 6px; margin: 1px 2px; }"
        " QMenu::item:selected { background-color: $(listitem-background.hovered); }"
        " QMenu::item:disabled { color: $(listitem-textprimary.disabled); }"
        " QMenu::separator { height: 1px; background: $(separator-primary); margin: 4px 8px; }"
        " QMenu::right-arrow { width: 8px; height: 8px; }");
    return sheet;
}

} // namespace KaContextMenuUtils
