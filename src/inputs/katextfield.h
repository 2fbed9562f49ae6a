#pragma once

#include "karvex_export.h"
#include "katextfieldenum.h"

#include <QPointer>
#include <QWidget>

class QLineEdit;
class KaIconButton;
class KaLabel;
class KaSvgLabel;
class KaTextFieldFrame;

// A one-line text field: a themed frame around a QLineEdit, with optional
// clear button, show/hide button (Password style), search icon (Search
// style), and a message row under the frame for the error text, a hint and
// a character counter.
//
// Frame colours follow the field's state (normal, hovered, error, read-only,
// disabled) from the text-input colour sets; focus shows the library's focus
// ring. Screen readers reach the line edit (lineEdit()): it is named after
// the placeholder unless the host names it, the error text is its
// description and is announced when it appears, and the counter reads
// "12 of 50 characters".
//
// Defaults: style Standard, size Normal, no limit, no clear button (Search
// turns it on).
class KARVEX_EXPORT KaTextField : public QWidget {
    Q_OBJECT
    Q_PROPERTY(KaTextFieldEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaTextFieldEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)
    Q_PROPERTY(
        QString placeholderText READ placeholderText WRITE setPlaceholderText NOTIFY placeholderTextChanged)
    Q_PROPERTY(QString errorText READ errorText WRITE setErrorText NOTIFY errorTextChanged)
    Q_PROPERTY(int characterLimit READ characterLimit WRITE setCharacterLimit NOTIFY characterLimitChanged)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(bool clearButtonEnabled READ isClearButtonEnabled WRITE setClearButtonEnabled NOTIFY
                   clearButtonEnabledChanged)
    Q_PROPERTY(
        bool passwordVisible READ isPasswordVisible WRITE setPasswordVisible NOTIFY passwordVisibleChanged)

public:
    explicit KaTextField(QWidget* parent = nullptr);
    KaTextField(QWidget* parent, KaTextFieldEnum::Style style, KaTextFieldEnum::Size size);
    ~KaTextField() override;

    // Out-of-range values are ignored with a warning; each setter does
    // nothing for the current value.
    void setStyle(KaTextFieldEnum::Style style);
    KaTextFieldEnum::Style style() const { return m_style; }
    void setSize(KaTextFieldEnum::Size size);
    KaTextFieldEnum::Size size() const { return m_size; }

    QString text() const;
    void setText(const QString& text);
    QString placeholderText() const;
    void setPlaceholderText(const QString& text);

    // A non-empty error text puts the field in its error look and shows the
    // text under it (in place of a hint); an empty one clears the error.
    QString errorText() const { return m_errorText; }
    void setErrorText(const QString& text);
    bool hasError() const { return !m_errorText.isEmpty(); }

    // The most characters the field takes, with a "count/limit" counter under
    // it; 0 or a negative value means no limit and no counter.
    int characterLimit() const { return m_limit; }
    void setCharacterLimit(int limit);

    bool isReadOnly() const;
    void setReadOnly(bool readOnly);
    bool isClearButtonEnabled() const { return m_clearEnabled; }
    void setClearButtonEnabled(bool enabled);
    // Password style only: whether the characters are shown.
    bool isPasswordVisible() const { return m_passwordVisible; }
    void setPasswordVisible(bool visible);

    // The editor inside, for validators, completers, input masks and
    // accessibility; the field keeps its echo mode and length limit.
    QLineEdit* lineEdit() const { return m_edit; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void clear();
    void selectAll();
    // Re-reads the colours of the current theme.
    virtual void onThemeChanged();

Q_SIGNALS:
    void styleChanged(KaTextFieldEnum::Style style);
    void sizeChanged(KaTextFieldEnum::Size size);
    void textChanged(const QString& text);
    // Only for changes the user made, as QLineEdit::textEdited.
    void textEdited(const QString& text);
    void returnPressed();
    void editingFinished();
    void placeholderTextChanged();
    void errorTextChanged();
    void characterLimitChanged();
    void readOnlyChanged();
    void clearButtonEnabledChanged();
    void passwordVisibleChanged();

protected:
    // The text under the field when there is no error; KaTextFieldWithHint
    // shows its hint here.
    void setSupportingText(const QString& text);
    // What names the editor for screen readers unless the host named it;
    // call updateAccessibleName() when it changes.
    virtual QString defaultAccessibleName() const;
    void updateAccessibleName();
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void init(KaTextFieldEnum::Style style, KaTextFieldEnum::Size size);
    void applyStyle();
    void applySize();
    void applyColors();
    void updateFrameLook();
    void updateButtons();
    void updateAlignment();
    void updateMessageRow();
    void onTextChanged(const QString& text);

    KaTextFieldFrame* m_frame = nullptr;
    QLineEdit* m_edit = nullptr;
    KaSvgLabel* m_searchIcon = nullptr;
    KaIconButton* m_clearButton = nullptr;
    KaIconButton* m_eyeButton = nullptr;
    QWidget* m_messageRow = nullptr;
    KaLabel* m_message = nullptr;
    KaLabel* m_counter = nullptr;

    KaTextFieldEnum::Style m_style = KaTextFieldEnum::Standard;
    KaTextFieldEnum::Size m_size = KaTextFieldEnum::Normal;
    QString m_errorText;
    QString m_supportingText;
    QString m_defaultAccessibleName;
    int m_limit = 0;
    bool m_clearEnabled = false;
    bool m_passwordVisible = false;
    bool m_limitAnnounced = false;
};
