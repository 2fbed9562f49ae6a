#include "katextedit.h"

#include "karvoxtoken.h"
#include "katextarea_p.h"

#include <QEvent>

namespace {

KaTextAreaLook::Tokens editTokens() {
    KaTextAreaLook::Tokens tokens;
    tokens.background = Karvox::textinput_background;
    tokens.border = Karvox::textinput_border;
    tokens.text = Karvox::textinput_text;
    tokens.placeholder = Karvox::textinput_placeholder_text;
    tokens.link = Karvox::button_hyperlink_text;
    return tokens;
}

} // namespace

KaTextEdit::KaTextEdit(QWidget* parent)
    : QTextEdit(parent)
    , m_look(new KaTextAreaLook(this, editTokens())) {
    setViewportMargins(1, 1, 1, 1);
    setObjectName(QStringLiteral("TextEdit"));
}

KaTextEdit::KaTextEdit(const QString& text, QWidget* parent)
    : KaTextEdit(parent) {
    setText(text);
}

KaTextEdit::~KaTextEdit() = default;

void KaTextEdit::onThemeChanged() {
    m_look->apply();
}

bool KaTextEdit::event(QEvent* event) {
    // The area's own paint event is its frame; the viewport paints the text.
    if (event->type() == QEvent::Paint) {
        m_look->paintFrame();
        return true;
    }
    return QTextEdit::event(event);
}

void KaTextEdit::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ParentChange)
        m_look->apply();
    QTextEdit::changeEvent(event);
}
