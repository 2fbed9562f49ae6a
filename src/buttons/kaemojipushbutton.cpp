#include "kaemojipushbutton.h"

#include "kaemojiutils.h"

#include <QPainter>

namespace {

QString normalised(QString codePoint) {
    codePoint = codePoint.trimmed().toLower();
    if (codePoint.startsWith(QLatin1String("u+")))
        codePoint.remove(0, 2);
    return codePoint;
}

// The pixel ratio the painter really paints at: while rendering into an
// image the device is that image, otherwise the widget.
qreal paintRatio(const QPainter* painter, const QWidget* widget) {
    const QPaintDevice* device = painter->device();
    return device ? device->devicePixelRatio() : widget->devicePixelRatio();
}

} // namespace

KaEmojiPushButton::KaEmojiPushButton(QWidget* parent)
    : KaEmojiPushButton(QStringLiteral("1f44d"), 0, parent) {}

KaEmojiPushButton::KaEmojiPushButton(const QString& codePoint, int count, QWidget* parent)
    : IKaButton(parent, new KaEmojiPushButtonConfig) {
    buttonConfig()->setParent(this);
    setCheckable(true);
    connect(this, &QAbstractButton::toggled, this, &KaEmojiPushButton::onToggled);
    connectRefreshSlot();
    setCodePoint(codePoint);
    setCount(count);
    refresh();
    updateAccessibleName();
}

KaEmojiPushButton::~KaEmojiPushButton() = default;

KaEmojiPushButtonConfig* KaEmojiPushButton::emojiConfig() const {
    return qobject_cast<KaEmojiPushButtonConfig*>(buttonConfig());
}

void KaEmojiPushButton::setCodePoint(const QString& codePoint) {
    const QString value = normalised(codePoint);
    if (value == m_codePoint)
        return;
    m_codePoint = value;
    const QString path = value.isEmpty() ? QString() : KaEmojiUtils::imagePath(value);
    m_imageValid = !path.isEmpty() && KaEmojiUtils::isImageValid(path);
    m_image = QPixmap();
    updateGeometry();
    update();
    updateAccessibleName();
    Q_EMIT codePointChanged(value);
}

void KaEmojiPushButton::setCount(int count) {
    count = qMax(0, count);
    if (count == m_count)
        return;
    m_count = count;
    setText(count > 0 ? QString::number(count) : QString());
    if (KaEmojiPushButtonConfig* config = emojiConfig()) {
        const ConfigWrite write(this);
        config->setHasRightIcon(count > 0);
    }
    updateAccessibleName();
    Q_EMIT countChanged(count);
    Q_EMIT refreshConfig();
    updateGeometry();
}

void KaEmojiPushButton::setEmojiName(const QString& name) {
    if (name == m_emojiName)
        return;
    m_emojiName = name;
    updateAccessibleName();
    Q_EMIT emojiNameChanged(name);
}

KaButtonEnum::Size KaEmojiPushButton::size() const {
    const KaEmojiPushButtonConfig* config = emojiConfig();
    return config ? config->size() : KaButtonEnum::Normal;
}

void KaEmojiPushButton::setSize(KaButtonEnum::Size size) {
    if (!writeConfig(emojiConfig(), &KaEmojiPushButtonConfig::size, &KaEmojiPushButtonConfig::setSize, size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

void KaEmojiPushButton::onToggled(bool checked) {
    KaEmojiPushButtonConfig* config = emojiConfig();
    if (!config)
        return;
    {
        const ConfigWrite write(this);
        config->setReacted(checked);
    }
    Q_EMIT refreshConfig();
}

void KaEmojiPushButton::updateAccessibleName() {
    QString name = m_emojiName;
    if (name.isEmpty()) {
        bool ok = false;
        const uint ucs4 = m_codePoint.toUInt(&ok, 16);
        if (ok && QChar::isPrint(char32_t(ucs4)))
            name = QString::fromUcs4(reinterpret_cast<const char32_t*>(&ucs4), 1);
    }
    if (m_count > 0)
        name = tr("%1, %2").arg(name).arg(m_count);
    if (name != accessibleName())
        setAccessibleName(name);
}

void KaEmojiPushButton::refresh() {
    KaEmojiPushButtonConfig::Geometry g;
    if (!applyGeometry(emojiConfig(), g))
        return;
    setFixedOrFreeWidth(g.fixedWidth);
    setTextLeftPadding(g.paddingLeft);
    setTextRightPadding(g.paddingRight);
    if (g.emojiSize != m_emojiSize || g.spacing != m_spacing) {
        m_emojiSize = g.emojiSize;
        m_spacing = g.spacing;
        m_image = QPixmap();
        updateGeometry();
    }
    if (g.fixedHeight > 0)
        setFocusBorderRadius(g.fixedHeight / 2.0);
    update();
}

void KaEmojiPushButton::decorations(Decorations* out) const {
    IKaButton::decorations(out);
    if (!m_imageValid || m_emojiSize.isEmpty())
        return;
    // The emoji takes the leading icon's place, so the base layout puts the
    // count beside it.
    out->icon = m_emojiSize;
    out->iconSpacing = m_spacing;
    out->iconAlignment = BzEnum::AlignLeft;
}

void KaEmojiPushButton::paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) {
    IKaButton::paintDecorations(painter, geometry, state);
    if (!m_imageValid || geometry.icon.isEmpty())
        return;
    const qreal ratio = paintRatio(painter, this);
    if (m_image.isNull() || m_image.devicePixelRatio() != ratio)
        m_image = KaEmojiUtils::image(KaEmojiUtils::imagePath(m_codePoint), m_emojiSize, ratio);
    painter->save();
    if (!(state & QStyle::State_Enabled))
        painter->setOpacity(0.4);
    painter->drawPixmap(geometry.icon.topLeft(), m_image);
    painter->restore();
}
