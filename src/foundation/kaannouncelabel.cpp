#include "kaannouncelabel.h"

#include "karvexutils.h"

#include <QTextDocumentFragment>

KaAnnounceLabel::KaAnnounceLabel(QWidget* parent)
    : KaLabel(parent) {}

KaAnnounceLabel::KaAnnounceLabel(const QString& text, QWidget* parent)
    : KaLabel(text, parent) {}

void KaAnnounceLabel::setText(const QString& text) {
    if (text == QLabel::text())
        return;
    QLabel::setText(text);
    Q_EMIT textChanged(text);
    const bool rich =
        textFormat() == Qt::RichText || (textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
    const QString spoken = rich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    // Text set before the label shows (or while it is hidden) is read when
    // users reach it, not out of nowhere.
    if (isVisible() && !spoken.trimmed().isEmpty())
        KarvexUtils::announce(this, spoken);
}
