#include "kagifbutton.h"

#include "kaconfig.h"

#include <QEvent>
#include <QMovie>
#include <QPainter>

namespace {

QString moviePath(const QString& fileName) {
    // QMovie reads resources as ":/…" only.
    if (fileName.startsWith(QLatin1String("qrc:/")))
        return fileName.mid(3);
    return fileName;
}

} // namespace

KaGifButton::KaGifButton(QWidget* parent)
    : KaButton(parent, new KaGifButtonConfig) {
    {
        const ConfigWrite write(this);
        if (KaButtonConfig* config = kaButtonConfig())
            config->setStyle(KaButtonEnum::Secondary);
    }
    connectRefreshSlot();
    refresh();
}

KaGifButton::KaGifButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size)
    : KaGifButton(parent) {
    setSize(size);
    setStyle(style);
}

KaGifButton::~KaGifButton() = default;

KaGifButtonConfig* KaGifButton::gifConfig() const {
    return qobject_cast<KaGifButtonConfig*>(buttonConfig());
}

void KaGifButton::setFileName(const QString& fileName) {
    if (fileName == m_fileName)
        return;
    m_fileName = fileName;
    if (m_movie)
        delete m_movie.data();
    if (!fileName.isEmpty()) {
        auto* movie = new QMovie(moviePath(fileName), QByteArray(), this);
        if (movie->isValid()) {
            movie->setCacheMode(QMovie::CacheAll);
            connect(movie, &QMovie::frameChanged, this, [this](int frame) {
                update();
                Q_EMIT frameChanged(frame);
            });
            m_movie = movie;
        } else {
            qWarning("KaGifButton: cannot read \"%s\"", qPrintable(fileName));
            delete movie;
        }
    }
    if (KaGifButtonConfig* config = gifConfig()) {
        const ConfigWrite write(this);
        config->setHasLeftIcon(hasImage());
    }
    Q_EMIT fileNameChanged(fileName);
    Q_EMIT refreshConfig();
    updateGeometry();
    updatePlayback();
}

void KaGifButton::setPlayMode(PlayMode mode) {
    if (mode == m_playMode)
        return;
    m_playMode = mode;
    Q_EMIT playModeChanged(mode);
    updatePlayback();
}

QSize KaGifButton::imageSize() const {
    const KaGifButtonConfig* config = gifConfig();
    return config ? config->imageSize() : QSize();
}

void KaGifButton::setImageSize(const QSize& size) {
    if (!writeConfig(gifConfig(), &KaGifButtonConfig::imageSize, &KaGifButtonConfig::setImageSize, size))
        return;
    Q_EMIT imageSizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

void KaGifButton::setText(const QString& text) {
    if (text == QAbstractButton::text())
        return;
    IKaButton::setText(text);
    if (KaGifButtonConfig* config = gifConfig()) {
        const ConfigWrite write(this);
        config->setImageOnly(text.isEmpty());
    }
    Q_EMIT refreshConfig();
    updateGeometry();
}

bool KaGifButton::hasImage() const {
    return m_movie != nullptr;
}

bool KaGifButton::isPlaying() const {
    return m_movie && m_movie->state() == QMovie::Running;
}

int KaGifButton::currentFrameNumber() const {
    return m_movie ? m_movie->currentFrameNumber() : -1;
}

int KaGifButton::frameCount() const {
    return m_movie ? m_movie->frameCount() : 0;
}

void KaGifButton::updatePlayback() {
    if (!m_movie)
        return;
    const bool play = isEnabled() && isVisible() && !KaConfig::reducedMotion() &&
                      (m_playMode == PlayAlways || (m_playMode == PlayOnHover && m_hovered));
    if (play) {
        if (m_movie->state() == QMovie::Paused)
            m_movie->setPaused(false);
        else if (m_movie->state() == QMovie::NotRunning)
            m_movie->start();
        return;
    }
    // At rest the button shows the first frame, not wherever it stopped.
    if (m_movie->state() != QMovie::NotRunning)
        m_movie->stop();
    if (m_movie->currentFrameNumber() != 0)
        m_movie->jumpToFrame(0);
}

void KaGifButton::onReducedMotionChanged() {
    updatePlayback();
}

void KaGifButton::updateScaledSize() {
    if (!m_movie || m_imageSize.isEmpty())
        return;
    const qreal ratio = devicePixelRatioF();
    const QSize pixels(int(m_imageSize.width() * ratio), int(m_imageSize.height() * ratio));
    // Frames decoded before a change keep their size; painting scales them.
    if (m_movie->scaledSize() != pixels)
        m_movie->setScaledSize(pixels);
}

void KaGifButton::refresh() {
    KaGifButtonConfig::Geometry g;
    if (!applyGeometry(gifConfig(), g))
        return;
    setFixedOrFreeWidth(g.fixedWidth);
    setTextLeftPadding(g.paddingLeft);
    setTextRightPadding(g.paddingRight);
    if (g.fixedHeight > 0)
        setFocusBorderRadius(g.fixedHeight / 2.0);
    if (g.svgIconSize != m_imageSize || g.svgIconSpacing != m_imageSpacing) {
        m_imageSize = g.svgIconSize;
        m_imageSpacing = g.svgIconSpacing;
        updateGeometry();
        update();
    }
    updateScaledSize();
}

bool KaGifButton::event(QEvent* event) {
    const bool handled = KaButton::event(event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::HoverEnter:
        m_hovered = true;
        updatePlayback();
        break;
    case QEvent::Leave:
    case QEvent::HoverLeave:
        m_hovered = false;
        updatePlayback();
        break;
    case QEvent::EnabledChange:
    case QEvent::Show:
    case QEvent::Hide:
        updatePlayback();
        break;
    case QEvent::ScreenChangeInternal:
        updateScaledSize();
        break;
    default:
        break;
    }
    return handled;
}

void KaGifButton::decorations(Decorations* out) const {
    KaButton::decorations(out);
    if (!m_movie || m_imageSize.isEmpty())
        return;
    out->icon = m_imageSize;
    out->iconSpacing = m_imageSpacing;
    out->iconAlignment = BzEnum::AlignLeft;
}

void KaGifButton::paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) {
    KaButton::paintDecorations(painter, geometry, state);
    if (!m_movie || geometry.icon.isEmpty())
        return;
    QPixmap frame = m_movie->currentPixmap();
    if (frame.isNull())
        return;
    frame.setDevicePixelRatio(devicePixelRatioF());
    painter->save();
    if (!(state & QStyle::State_Enabled))
        painter->setOpacity(0.4);
    painter->drawPixmap(QRectF(geometry.icon), frame, QRectF(frame.rect()));
    painter->restore();
}
