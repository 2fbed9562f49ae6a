#pragma once

#include "kalabel.h"

#include <QPointer>

#include <QMovie>

// A label showing an animated image (GIF, or any format QMovie reads) from a
// file or resource. It animates only while it is shown and enabled, and
// rests on the first frame when the application asks for reduced motion
// (KaConfig::setReducedMotion). The text is the picture's description:
// screen readers read it, and it is shown instead while no file is set.
// A file that cannot be read leaves an empty picture and one warning.
class KARVEX_EXPORT KaGifLabel : public KaLabel {
    Q_OBJECT
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName NOTIFY fileNameChanged)
    Q_PROPERTY(QSize imageSize READ imageSize WRITE setImageSize NOTIFY imageSizeChanged)

public:
    explicit KaGifLabel(QWidget* parent = nullptr);
    explicit KaGifLabel(const QString& fileName, QWidget* parent = nullptr);
    ~KaGifLabel() override;

    // A file or resource path (":/…" or "qrc:/…"); empty removes the image.
    QString fileName() const { return m_fileName; }
    void setFileName(const QString& fileName);
    // The size the image is painted at; invalid means the file's own size.
    QSize imageSize() const { return m_imageSize; }
    void setImageSize(const QSize& size);

    // Whether the file loaded as an animation.
    bool hasImage() const { return m_movie != nullptr; }
    bool isPlaying() const;
    int currentFrameNumber() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void onReducedMotionChanged();

Q_SIGNALS:
    void fileNameChanged(const QString& fileName);
    void imageSizeChanged(const QSize& size);
    // The painted frame changed.
    void frameChanged(int frameNumber);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QSize shownSize() const;
    void updatePlayback();
    void updateScaledSize();

    QString m_fileName;
    QSize m_imageSize;
    QPointer<QMovie> m_movie;
};
