#include "kalabel.h"

#include "kacolortokenutils.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTextDocument>

KaLabel::KaLabel(QWidget* parent)
    : KaLabelBase(parent) {
    init();
}

KaLabel::KaLabel(QWidget* parent, QAccessible::Role role, Qt::WindowFlags flags)
    : KaLabelBase(parent, role, flags) {
    init();
}

KaLabel::KaLabel(const QString& text, QWidget* parent, QAccessible::Role role, Qt::WindowFlags flags)
    : KaLabelBase(text, parent, role, flags) {
    init();
}

void KaLabel::init() {
    m_autoResize = true;
    setTextColorSetName(KaColorTokenUtils::tokenToString(Karvox::label_primary_text));
}

void KaLabel::setTextColorSetName(const QString& name) {
    BzCSSData record;
    record.textColorSet = name;
    setCSS(record);
}

void KaLabel::setAutoResize(bool autoResize) {
    if (m_autoResize == autoResize)
        return;
    m_autoResize = autoResize;
    updateGeometry();
}

QSize KaLabel::sizeHint() const {
    const QSize base = QLabel::sizeHint();
    if (!m_autoResize)
        return base;

    int textWidth = 0;
    if (textFormat() == Qt::RichText) {
        QTextDocument document;
        document.setDefaultFont(font());
        document.setHtml(text());
        textWidth = int(document.size().width());
    } else {
        textWidth = QFontMetrics(font()).boundingRect(text()).width();
    }
    // The extra pixel keeps antialiased glyph edges from being clipped.
    const int w = textWidth + 2 * margin() + 1;
    if (!wordWrap())
        return QSize(w, base.height());
    if (w >= maximumWidth())
        return QSize(maximumWidth(), base.height());
    // Unbounded wrapping text: let QLabel pick its own proportions.
    if (maximumWidth() == QWIDGETSIZE_MAX)
        return base;
    return QSize(w, base.height());
}

void KaLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_C && event->modifiers() == Qt::ControlModifier && hasSelectedText()) {
        QGuiApplication::clipboard()->setText(selectedText(), QClipboard::Clipboard);
        event->accept();
        return;
    }
    KaLabelBase::keyPressEvent(event);
}
