#pragma once

#include "karvex_export.h"
#include "katextfieldenum.h"

#include <QList>
#include <QWidget>

class KaTextField;

// A one-time code entry: a row of single-digit boxes. Typing a digit fills
// the box and moves on, Backspace in an empty box goes back and clears the
// one before, Left and Right move between boxes, and pasting a whole code
// (spaces and dashes ignored) fills the boxes from the current one, or from
// the first when it is exactly as long as the field. Anything but digits
// is refused. completed() reports the code whenever an edit leaves every
// box filled. Screen readers hear each box as "Digit 2 of 6".
//
// Style Password hides the digits; size Large spaces the boxes wider.
class KARVEX_EXPORT KaPinTextField : public QWidget {
    Q_OBJECT
    Q_PROPERTY(KaTextFieldEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaTextFieldEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(int digitCount READ digitCount WRITE setDigitCount NOTIFY digitCountChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)

public:
    explicit KaPinTextField(QWidget* parent = nullptr);
    KaPinTextField(QWidget* parent, KaTextFieldEnum::Style style, KaTextFieldEnum::Size size);
    ~KaPinTextField() override;

    // Out-of-range values are ignored with a warning.
    void setStyle(KaTextFieldEnum::Style style);
    KaTextFieldEnum::Style style() const { return m_style; }
    void setSize(KaTextFieldEnum::Size size);
    KaTextFieldEnum::Size size() const { return m_size; }

    // Between 1 and 12 boxes (clamped with a warning); changing the count
    // clears the code.
    int digitCount() const { return int(m_boxes.size()); }
    void setDigitCount(int count);

    // The digits entered so far, without gaps. setText() replaces the whole
    // code; text with anything but digits, or longer than the field, is
    // ignored with a warning.
    QString text() const;
    void setText(const QString& code);
    bool isComplete() const;

    // The box for digit `index` (from 0), or null.
    KaTextField* box(int index) const;

public Q_SLOTS:
    void clear();

Q_SIGNALS:
    void styleChanged(KaTextFieldEnum::Style style);
    void sizeChanged(KaTextFieldEnum::Size size);
    void digitCountChanged(int count);
    void textChanged(const QString& text);
    void completed(const QString& code);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void rebuild(int count);
    void applyStyle();
    int indexOf(QObject* editor) const;
    void setDigit(int index, const QString& digit);
    // Fills boxes from `from` with `digits`; returns the box after the last.
    int fill(int from, const QString& digits);
    void paste(int index);
    void focusBox(int index);
    void changed(const QString& before);

    QList<KaTextField*> m_boxes;
    KaTextFieldEnum::Style m_style = KaTextFieldEnum::Standard;
    KaTextFieldEnum::Size m_size = KaTextFieldEnum::Normal;
};
