#include "fontutils.h"

#include "bzfont.h"

#include <QtGlobal>

namespace FontUtils {

QFont getFontByPixelSize(int pixelSize, QFont::Weight weight) {
    if (pixelSize < 1) {
        qWarning("FontUtils: pixel size %d is too small, using 1", pixelSize);
        pixelSize = 1;
    }
    QFont font(BzFont::family());
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

QFont getFontByPixelSize(FontFamily family, int pixelSize) {
    static const QFont::Weight weights[] = {QFont::Light, QFont::Normal, QFont::Medium, QFont::DemiBold,
                                            QFont::Bold};
    int index = int(family);
    if (index < Light || index > Bold) {
        qWarning("FontUtils: unknown font family %d, using Regular", index);
        index = Regular;
    }
    return getFontByPixelSize(pixelSize, weights[index]);
}

} // namespace FontUtils
