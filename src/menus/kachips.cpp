#include "kachips.h"

#include "kacolortokenutils.h"

#include <QKeyEvent>
#include <QPointer>
#include <QStyleOptionButton>

namespace {

const QString kCancelIcon = QStringLiteral("qrc:/Resources/cancel-bold.svg");
constexpr int kHeight = 24;
constexpr int kFontToken = 5;
// Between the text and the cross, and between a leading icon and the text.
constexpr int kAnchorSpacing = 6;
constexpr int kIconSpacing = 4;
// Room at either end of the pill; the cross's offset eats into it on the
// trailing side, so it sits centred in the round end.
constexpr int kEndPadding = 8;

QString name(Karvox::Token token) {
    return KaColorTokenUtils::tokenToString(token);
}

} // namespace

KaChips::KaChips(QWidget* parent, const QVariant& value)
    : BzSvgAnchorButton(parent)
    , m_value(value) {
    setObjectName(QStringLiteral("KaChips"));
    setFixedHeight(kHeight);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setFontToken(kFontToken);

    BzCSSData record;
    record.backgroundColorSet = name(Karvox::button_secondary_background);
    record.borderColorSet = name(Karvox::button_secondary_border);
    record.setBorders(!record.borderColorSet.trimmed().isEmpty());
    record.textColorSet = name(Karvox::button_secondary_text);
    record.borderRadius = -1;
    setCSS(record);

    setAnchorSvgOff(kCancelIcon);
    setAnchorSvgOn(kCancelIcon);
    setAnchorSvgOffset(QPoint(4, 1));
    setAnchorIconSpacing(kAnchorSpacing);
    setSvgIconSpacing(kIconSpacing);
    setAnchorPadding(kEndPadding);
    setTextLeftPadding(kEndPadding);

    setAccessibleDescription(tr("Press Delete to remove"));
    connect(this, &QAbstractButton::clicked, this, &KaChips::dismiss);
}

KaChips::~KaChips() = default;

void KaChips::setDisplayText(const QString& text) {
    setText(text);
    setToolTip(text);
    setAccessibleName(text);
}

bool KaChips::hitButton(const QPoint& pos) const {
    QStyleOptionButton option;
    option.initFrom(this);
    QRect area = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    // The cross sits at the trailing end; measure in left-to-right terms.
    area.setLeft(width() - 2 * anchorPadding() - anchorIconSize().width());
    return QStyle::visualRect(layoutDirection(), rect(), area).contains(pos);
}

void KaChips::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Space:
    case Qt::Key_Delete:
        event->accept();
        dismiss();
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        Q_EMIT keyPressed(event);
        return;
    default:
        break;
    }
    BzSvgAnchorButton::keyPressEvent(event);
}

void KaChips::dismiss() {
    // The owner may delete the chip from dismissed().
    hide();
    Q_EMIT dismissed();
}
