#pragma once

#include "kalabel.h"

// A KaLabel that draws emoji as pictures. Every emoji sequence (a flag, a
// skin tone, a zero-width-joiner family, a keycap) that has an image under
// ":/emojis/" is drawn as that one image, as tall as the font's line; the
// others stay text and are never split. text() is always the text as
// given, and selections copy as that text.
//
// Text without emoji costs what a KaLabel costs: one pass over the text
// decides, and nothing else is created. Set the text through this class
// (setText or the "text" property): QLabel::setText on a base pointer shows
// the text without pictures.
class KARVEX_EXPORT KaEmojiLabel : public KaLabel {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    explicit KaEmojiLabel(QWidget* parent = nullptr);
    explicit KaEmojiLabel(const QString& text, QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);

    // Whether any emoji of the text is drawn as an image.
    bool hasEmojiImages() const { return m_emojiImages > 0; }

Q_SIGNALS:
    void textChanged(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void rebuild();
    void addImageResources();
    QString selectedOriginalText() const;

    QString m_text;
    // Images in the shown text; 0 means QLabel shows m_text as it is.
    int m_emojiImages = 0;
    // The caller's text format while pictures force rich text, else -1.
    int m_formatBeforeImages = -1;
};
