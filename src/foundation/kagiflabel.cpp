#include "kagiflabel.h"

#include "kaconfig.h"

#include <QEvent>
#include <QImageReader>
#include <QMovie>
#include <QPainter>
#include <QStyle>

KaGifLabel::KaGifLabel(QWidget* parent)
    : KaLabel(parent, QAccessible::Graphic) {}

KaGifLabel::KaGifLabel(const QString& fileName, QWidget* parent)
    : KaGifLabel(parent) {
    setFileName(fileName);
}

KaGifLabel::~KaGifLabel() = default;

void KaGifLabel::setFileName(const QString& fileName) {
    if (fileName == m_fileName)
        return;
    m_fileName = fileName;
    delete m_movie.data();
    if (!fileName.isEmpty()) {
        // QMovie reads resources as ":/…" only.
        const QString path = fileName.startsWith(QLatin1String("qrc:/")) ? fileName.mid(3) : fileName;
        auto* movie = new QMovie(path, QByteArray(), this);
        movie->setCacheMode(QMovie::CacheAll);
        // A readable header is not enough: the first frame must decode.
        if (movie->isValid() && !QImageReader(path).read().isNull() && movie->jumpToFrame(0)) {
            connect(movie, &QMovie::frameChanged, this, [this](int frame) {
                update();
                Q_EMIT frameChanged(frame);
            });
            m_movie = movie;
            updateScaledSize();
        } else {
            qWarning("KaGifLabel: cannot read \"%s\"", qPrintable(fileName));
            delete movie;
        }
    }
    updateGeometry();
    update();
    updatePlayback();
    Q_EMIT fileNameChanged(fileName);
}

void KaGifLabel::setImageSize(const QSize& size) {
    if (size == m_imageSize)
        return;
    m_imageSize = size;
    updateScaledSize();
    updateGeometry();
    update();
    Q_EMIT imageSizeChanged(size);
}

bool KaGifLabel::isPlaying() const {
    return m_movie && m_movie->state() == QMovie::Running;
}

int KaGifLabel::currentFrameNumber() const {
    return m_movie ? m_movie->currentFrameNumber() : -1;
}

QSize KaGifLabel::shownSize() const {
    if (m_imageSize.isValid())
        return m_imageSize;
    if (!m_movie)
        return QSize(0, 0);
    // Frames are decoded at device pixels once a size is set; the file's
    // own size is what the first frame had.
    const QPixmap frame = m_movie->currentPixmap();
    return frame.isNull() ? QSize(0, 0) : frame.size();
}

QSize KaGifLabel::sizeHint() const {
    if (m_fileName.isEmpty())
        return KaLabel::sizeHint();
    const int m = 2 * margin();
    return shownSize() + QSize(m, m);
}

QSize KaGifLabel::minimumSizeHint() const {
    return m_fileName.isEmpty() ? KaLabel::minimumSizeHint() : sizeHint();
}

void KaGifLabel::onReducedMotionChanged() {
    updatePlayback();
}

void KaGifLabel::updatePlayback() {
    if (!m_movie)
        return;
    const bool reduced = KaConfig::reducedMotion();
    if (isVisible() && isEnabled() && !reduced && m_movie->frameCount() != 1) {
        if (m_movie->state() == QMovie::Paused)
            m_movie->setPaused(false);
        else if (m_movie->state() == QMovie::NotRunning)
            m_movie->start();
        return;
    }
    if (reduced) {
        if (m_movie->state() != QMovie::NotRunning)
            m_movie->stop();
        if (m_movie->currentFrameNumber() != 0)
            m_movie->jumpToFrame(0);
    } else if (m_movie->state() == QMovie::Running) {
        // Hidden or disabled: hold the frame, carry on from it later.
        m_movie->setPaused(true);
    }
}

void KaGifLabel::updateScaledSize() {
    if (!m_movie || !m_imageSize.isValid())
        return;
    const qreal ratio = devicePixelRatioF();
    const QSize pixels(int(m_imageSize.width() * ratio), int(m_imageSize.height() * ratio));
    if (m_movie->scaledSize() != pixels)
        m_movie->setScaledSize(pixels);
}

void KaGifLabel::paintEvent(QPaintEvent* event) {
    if (m_fileName.isEmpty()) {
        KaLabel::paintEvent(event);
        return;
    }
    if (!m_movie)
        return; // an empty picture: the warning was given when loading
    QPixmap frame = m_movie->currentPixmap();
    if (frame.isNull())
        return;
    const QSize size = shownSize();
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const QRect target = QStyle::alignedRect(layoutDirection(), alignment(), size, area);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!isEnabled())
        painter.setOpacity(0.4);
    painter.drawPixmap(target, frame, frame.rect());
}

bool KaGifLabel::event(QEvent* event) {
    const bool handled = KaLabel::event(event);
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::EnabledChange:
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
