#pragma once

#include "bzcolorset.h"
#include "ikabutton.h"
#include "kabuttonenum.h"
#include "kadialpadbuttonconfig.h"
#include "karvex_export.h"

#include <QFont>
#include <QString>
#include <QTimer>

// A dial-pad key: a round button showing its character with the letters of
// a phone keypad below it. A click (mouse, Space, or typing the character
// while the key has focus) emits characterEntered() with the character.
// Holding the key for longPressInterval milliseconds emits the alternate
// character instead (0 gives "+") and the release then emits nothing more.
//
// setCharacter() also sets the keypad's letters and alternate character for
// that key (2 "ABC" ... 9 "WXYZ", 0 "+" with alternate "+"); setLetters()
// and setAlternateCharacter() override them afterwards.
//
// Accessible name: the character followed by its letters, e.g. "2 ABC".
class KARVEX_EXPORT KaDialpadButton : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(QString character READ character WRITE setCharacter NOTIFY characterChanged)
    Q_PROPERTY(QString letters READ letters WRITE setLetters NOTIFY lettersChanged)
    Q_PROPERTY(QString alternateCharacter READ alternateCharacter WRITE setAlternateCharacter NOTIFY
                   alternateCharacterChanged)
    Q_PROPERTY(int longPressInterval READ longPressInterval WRITE setLongPressInterval NOTIFY
                   longPressIntervalChanged)
    Q_PROPERTY(bool special READ isSpecial WRITE setSpecial NOTIFY specialChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
public:
    // Key "1", size Normal.
    explicit KaDialpadButton(QWidget* parent = nullptr);
    KaDialpadButton(const QString& character, QWidget* parent = nullptr);
    ~KaDialpadButton() override;

    QString character() const { return m_character; }
    void setCharacter(const QString& character);
    QString letters() const { return m_letters; }
    void setLetters(const QString& letters);
    // Empty: a long press is an ordinary press.
    QString alternateCharacter() const { return m_alternate; }
    void setAlternateCharacter(const QString& character);
    // Milliseconds; at least 1.
    int longPressInterval() const { return m_longPress.interval(); }
    void setLongPressInterval(int milliseconds);
    bool isSpecial() const;
    void setSpecial(bool special);
    KaButtonEnum::Size size() const;
    void setSize(KaButtonEnum::Size size);

    KaDialpadButtonConfig* dialpadConfig() const;

    // The keypad letters of `character` ("" where a key has none).
    static QString keypadLetters(const QString& character);

Q_SIGNALS:
    void characterEntered(const QString& character);
    // The alternate character was entered by holding the key.
    void longPressed();

    void characterChanged(const QString& character);
    void lettersChanged(const QString& letters);
    void alternateCharacterChanged(const QString& character);
    void longPressIntervalChanged(int milliseconds);
    void specialChanged(bool special);
    void sizeChanged(KaButtonEnum::Size size);

protected:
    void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) override;
    void themeResolved() override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void updateAccessibleName();
    void onPressed();
    void onLongPress();
    void onClicked();

    QString m_character;
    QString m_letters;
    QString m_alternate;
    QTimer m_longPress;
    // The running press already entered the alternate character.
    bool m_longPressFired = false;
    QString m_lettersSetName;
    BzColorSet m_lettersSet;
    QFont m_lettersFont;
    int m_gap = 0;
};
