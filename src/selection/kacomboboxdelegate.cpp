#include "kacomboboxdelegate.h"

#include "kacolortokenutils.h"
#include "kafocusstyle.h"
#include "karvoxtoken.h"

#include <apputils.h>
#include <bzsvgrenderer.h>
#include <bzthememanager.h>

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

namespace {
constexpr int kMinimumRowHeight = 40;
constexpr int kInset = 5;
constexpr int kTextMargin = 12;
constexpr int kIconGap = 24;
} // namespace

// Rows of a list share a few sizes and colours: their rounded fill is drawn
// once and blitted after.
QPixmap KaComboBoxDelegate::rowBackground(const QSize& size, const QColor& colour, qreal ratio) const {
    const QString key = QStringLiteral("KaComboBoxDelegate/%1x%2/%3/%4/%5")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(m_itemRadius)
                            .arg(colour.rgba(), 0, 16)
                            .arg(ratio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(QSize(int(size.width() * ratio), int(size.height() * ratio)));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(0, 0), QSizeF(size)), m_itemRadius, m_itemRadius);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPath(path.simplified());
    p.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

KaComboBoxDelegate::KaComboBoxDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
    , m_textColorSetName(KaColorTokenUtils::tokenToString(Karvox::combobox_text))
    , m_backgroundColorSetName(KaColorTokenUtils::tokenToString(Karvox::combobox_background))
    , m_checkIcon(new BzSvgRenderer(this))
    , m_comboBox(qobject_cast<QComboBox*>(parent)) {
    m_checkIcon->loadIconResource(QStringLiteral("check-regular"));
}

void KaComboBoxDelegate::setDrawIcon(bool drawIcon) {
    m_drawIcon = drawIcon;
}

void KaComboBoxDelegate::setFont(const BzFont& font) {
    m_font = font;
}

void KaComboBoxDelegate::setIconResource(const QString& resource) {
    m_iconResource = resource;
}

void KaComboBoxDelegate::setItemIconSize(const QSize& size) {
    m_itemIconSize = size;
}

void KaComboBoxDelegate::setItemRadius(int radius) {
    m_itemRadius = radius;
}

void KaComboBoxDelegate::setThemeType(BzThemeUtils::AppThemeType type) {
    m_themeType = type;
}

void KaComboBoxDelegate::resolveColours() const {
    const quint64 generation = BzThemeManager::instance()->generation();
    if (m_resolvedGeneration == generation && m_resolvedType == int(m_themeType))
        return;
    m_resolvedGeneration = generation;
    m_resolvedType = int(m_themeType);
    m_textColors = BzThemeUtils::getColorSet(m_textColorSetName, m_themeType);
    m_backgroundColors = BzThemeUtils::getColorSet(m_backgroundColorSetName, m_themeType);
    m_iconColors =
        BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::combobox_icon), m_themeType);
}

bool KaComboBoxDelegate::isSelected(const QModelIndex& index) const {
    return m_comboBox && index.isValid() && m_comboBox->currentIndex() == index.row();
}

QSize KaComboBoxDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    // Views ask for the same rows' sizes again and again (each visual rect),
    // and measuring a text shapes it every time. Plain text rows are kept.
    QString key;
    const bool plainRow = index.isValid() && !index.data(Qt::DecorationRole).isValid() &&
                          !index.data(Qt::SizeHintRole).isValid() && !index.data(Qt::FontRole).isValid();
    if (plainRow) {
        key = index.data(Qt::DisplayRole).toString() + QChar(0x1f) + option.font.key() + QChar(0x1f) +
              QString::number(int(option.features));
        if (const QSize* cached = m_sizeHints.object(key))
            return *cached;
    }
    QSize hint = QStyledItemDelegate::sizeHint(option, index);
    hint.setHeight(std::max(hint.height(), kMinimumRowHeight));
    if (plainRow)
        m_sizeHints.insert(key, new QSize(hint));
    return hint;
}

void KaComboBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    resolveColours();
    const QRect r = option.rect;
    const QRect inset = r.adjusted(kInset, kInset, -kInset, -kInset);

    painter->drawPixmap(inset.topLeft(),
                        rowBackground(inset.size(), m_backgroundColors.colorFor(option.state),
                                      painter->device()->devicePixelRatioF()));

    if (auto* widget = const_cast<QWidget*>(option.widget)) {
        // The focus ring reads it to ring the row instead of the view.
        if (m_customRectWidget != widget) {
            m_customRectWidget = widget;
            widget->setProperty("hasCustomRect", true);
        }
        // The state is checked first: reading an application property on
        // every row of every paint is not free.
        if ((option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_KeyboardFocusChange) &&
            qApp->property("isKeyboardFocus").toBool()) {
            const int shift = AppUtils::isRTLLayoutDirection() ? widget->width() - r.width() - 1 : 1;
            KaFocusStyle::requestRing(widget, painter, inset.adjusted(shift + 1, 1, shift - 1, -1));
        }
    }

    painter->save();
    painter->setFont(m_font);
    painter->setRenderHint(QPainter::Antialiasing);

    const bool rtl = option.direction == Qt::RightToLeft;
    const bool mark = m_drawIcon && isSelected(index);
    const int trailing = mark ? kIconGap + m_itemIconSize.width() : kTextMargin;
    QRect textRect =
        rtl ? r.adjusted(trailing, 0, -kTextMargin, 0) : r.adjusted(kTextMargin, 0, -trailing, 0);
    if (!m_drawIcon) {
        if (rtl)
            textRect.setLeft(r.left());
        else
            textRect.setRight(r.right());
    }
    const QString text = index.model() ? index.data(Qt::DisplayRole).toString() : QString();
    const QString elided = painter->fontMetrics().elidedText(text, Qt::ElideRight, textRect.width());
    painter->setPen(m_textColors.colorFor(option.state));
    painter->drawText(
        textRect, int(QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter)), elided);

    if (mark) {
        const int top = r.top() + (r.height() - m_itemIconSize.height()) / 2;
        const int x = rtl ? r.left() + kTextMargin : r.right() - kTextMargin - m_itemIconSize.width();
        if (!m_iconResource.isEmpty())
            m_checkIcon->updateIconResource(m_iconResource);
        m_checkIcon->draw(painter, QRectF(QPointF(x, top), QSizeF(m_itemIconSize)),
                          m_iconColors.colorFor(option.state), 1.0);
    }
    painter->restore();
}
