#pragma once

#include "ikabutton.h"
#include "kabuttonenum.h"
#include "kaemojipushbuttonconfig.h"
#include "karvex_export.h"

#include <QPixmap>
#include <QString>

// A reaction button: the emoji image ":/emojis/<codePoint>.svg" and, when
// count is above zero, the count beside it. It is checkable; checked means
// the user reacted, which the configuration paints in the accent colours.
// The image keeps its own colours (a disabled button shows it faded).
//
// Accessible name: emojiName (by default the emoji character itself, which
// screen readers speak by name), followed by ", <count>" when counted.
class KARVEX_EXPORT KaEmojiPushButton : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(QString codePoint READ codePoint WRITE setCodePoint NOTIFY codePointChanged)
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY countChanged)
    Q_PROPERTY(QString emojiName READ emojiName WRITE setEmojiName NOTIFY emojiNameChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
public:
    // Thumbs up, no count, size Normal, checkable.
    explicit KaEmojiPushButton(QWidget* parent = nullptr);
    KaEmojiPushButton(const QString& codePoint, int count, QWidget* parent = nullptr);
    ~KaEmojiPushButton() override;

    // Lower-case hexadecimal without "U+", e.g. "1f44d"; upper case and a
    // "U+" prefix are accepted and normalised.
    QString codePoint() const { return m_codePoint; }
    void setCodePoint(const QString& codePoint);
    // Values below zero count as zero; zero hides the count.
    int count() const { return m_count; }
    void setCount(int count);
    // Empty: the emoji character.
    QString emojiName() const { return m_emojiName; }
    void setEmojiName(const QString& name);
    KaButtonEnum::Size size() const;
    void setSize(KaButtonEnum::Size size);

    // Whether ":/emojis/<codePoint>.svg" exists and renders.
    bool hasImage() const { return m_imageValid; }
    KaEmojiPushButtonConfig* emojiConfig() const;

Q_SIGNALS:
    void codePointChanged(const QString& codePoint);
    void countChanged(int count);
    void emojiNameChanged(const QString& name);
    void sizeChanged(KaButtonEnum::Size size);

protected:
    void decorations(Decorations* out) const override;
    void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void updateAccessibleName();
    void onToggled(bool checked);

    QString m_codePoint;
    QString m_emojiName;
    int m_count = 0;
    bool m_imageValid = false;
    QSize m_emojiSize{16, 16};
    int m_spacing = 0;
    // Rendered once per code point, size and pixel ratio.
    QPixmap m_image;
};
