#include "katextbrowser.h"

#include "karvoxtoken.h"
#include "katextarea_p.h"

#include <QEvent>
#include <QTextDocument>

namespace {

KaTextAreaLook::Tokens browserTokens() {
    // Content on the page's own background: no fill, a quiet border.
    KaTextAreaLook::Tokens tokens;
    tokens.border = Karvox::separator_primary;
    tokens.text = Karvox::label_primary_text;
    tokens.link = Karvox::button_hyperlink_text;
    return tokens;
}

} // namespace

KaTextBrowser::KaTextBrowser(QWidget* parent)
    : QTextBrowser(parent)
    , m_look(new KaTextAreaLook(this, browserTokens())) {
    setViewportMargins(1, 1, 1, 1);
    setObjectName(QStringLiteral("TextBrowser"));
    setOpenLinks(false);
    setOpenExternalLinks(false);
    // Queued: the document is still being filled when it reports a change.
    connect(
        document(), &QTextDocument::contentsChanged, this, [this] { m_look->recolourLinks(); },
        Qt::QueuedConnection);
}

KaTextBrowser::~KaTextBrowser() = default;

void KaTextBrowser::onThemeChanged() {
    m_look->apply();
}

bool KaTextBrowser::event(QEvent* event) {
    if (event->type() == QEvent::Paint) {
        m_look->paintFrame();
        return true;
    }
    return QTextBrowser::event(event);
}

void KaTextBrowser::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ParentChange)
        m_look->apply();
    QTextBrowser::changeEvent(event);
}
