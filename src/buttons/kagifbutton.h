#pragma once

#include "kabutton.h"
#include "kagifbuttonconfig.h"
#include "karvex_export.h"

#include <QPointer>
#include <QString>

class QMovie;

// A button showing an animated image (GIF, or any format QMovie reads) in
// the leading icon's place, with optional text. The animation plays while
// the pointer is over the button (PlayOnHover, the default) or whenever the
// button is shown (PlayAlways); otherwise, and always while the button is
// disabled or when the application asks for reduced motion
// (KaConfig::setReducedMotion), it rests on its first frame. Frames are
// decoded at the size the image is painted at, once, and cached by the movie.
//
// Defaults: style Secondary, size Large, no image, no text (a circle).
// Without text the button needs an accessible name (setAccessibleName).
class KARVEX_EXPORT KaGifButton : public KaButton {
    Q_OBJECT
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName NOTIFY fileNameChanged)
    Q_PROPERTY(PlayMode playMode READ playMode WRITE setPlayMode NOTIFY playModeChanged)
    Q_PROPERTY(QSize imageSize READ imageSize WRITE setImageSize NOTIFY imageSizeChanged)
    Q_PROPERTY(QString text READ text WRITE setText)
public:
    enum PlayMode { PlayOnHover = 0, PlayAlways = 1 };
    Q_ENUM(PlayMode)

    explicit KaGifButton(QWidget* parent = nullptr);
    KaGifButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size);
    ~KaGifButton() override;

    // A file or resource path (":/…" or "qrc:/…"); empty removes the image.
    QString fileName() const { return m_fileName; }
    void setFileName(const QString& fileName);
    PlayMode playMode() const { return m_playMode; }
    void setPlayMode(PlayMode mode);
    // An invalid size uses the configuration's table.
    QSize imageSize() const;
    void setImageSize(const QSize& size);
    // Text beside the image; empty makes an image-only circle.
    void setText(const QString& text);

    // Whether the file loaded as an animation.
    bool hasImage() const;
    bool isPlaying() const;
    int currentFrameNumber() const;
    int frameCount() const;

    KaGifButtonConfig* gifConfig() const;

public Q_SLOTS:
    // KaConfig::setReducedMotion() changed: rest on the first frame or play.
    void onReducedMotionChanged();

Q_SIGNALS:
    void fileNameChanged(const QString& fileName);
    void playModeChanged(KaGifButton::PlayMode mode);
    void imageSizeChanged(const QSize& size);
    // The painted frame changed.
    void frameChanged(int frameNumber);

protected:
    void decorations(Decorations* out) const override;
    void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) override;
    bool event(QEvent* event) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void updatePlayback();
    void updateScaledSize();

    QString m_fileName;
    QPointer<QMovie> m_movie;
    PlayMode m_playMode = PlayOnHover;
    bool m_hovered = false;
    QSize m_imageSize;
    int m_imageSpacing = 0;
};
