#include "kaemojilabel.h"

#include "kaemojiutils.h"

#include <QAccessibleWidget>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {

// Screen readers read the text as given, not the markup that shows it.
class KaEmojiLabelAccessible : public QAccessibleWidget {
public:
    explicit KaEmojiLabelAccessible(KaEmojiLabel* label)
        : QAccessibleWidget(label, label->accessibleRole()) {}

    QString text(QAccessible::Text t) const override {
        QString value = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && value.isEmpty()) {
            const auto* label = static_cast<const KaEmojiLabel*>(widget());
            value = label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text())
                        ? label->text()
                        : QTextDocumentFragment::fromHtml(label->text()).toPlainText();
        }
        return value;
    }
};

QAccessibleInterface* emojiLabelFactory(const QString&, QObject* object) {
    if (auto* label = qobject_cast<KaEmojiLabel*>(object))
        return new KaEmojiLabelAccessible(label);
    return nullptr;
}

void installFactory() {
    static bool installed = false;
    if (!installed) {
        installed = true;
        QAccessible::installFactory(emojiLabelFactory);
    }
}

constexpr QChar kObjectReplacement(0xFFFC);

} // namespace

KaEmojiLabel::KaEmojiLabel(QWidget* parent)
    : KaLabel(parent) {
    installFactory();
}

KaEmojiLabel::KaEmojiLabel(const QString& text, QWidget* parent)
    : KaLabel(parent) {
    installFactory();
    setText(text);
}

QString KaEmojiLabel::text() const {
    return m_emojiImages > 0 ? m_text : QLabel::text();
}

void KaEmojiLabel::setText(const QString& text) {
    if (text == this->text())
        return;
    m_text = text;
    rebuild();
    Q_EMIT textChanged(text);
}

void KaEmojiLabel::rebuild() {
    m_emojiImages = 0;
    if (m_formatBeforeImages >= 0) {
        setTextFormat(Qt::TextFormat(m_formatBeforeImages));
        m_formatBeforeImages = -1;
    }
    // The one pass plain text pays.
    if (!KaEmojiUtils::mayContainEmoji(m_text)) {
        QLabel::setText(m_text);
        return;
    }
    const QList<KaEmojiUtils::Cluster> clusters = KaEmojiUtils::clusters(m_text);
    const bool rich =
        textFormat() == Qt::RichText || (textFormat() == Qt::AutoText && Qt::mightBeRichText(m_text));
    const int side = fontMetrics().height();
    QString html;
    int done = 0;
    const auto appendText = [&](int from, int to) {
        const QString part = m_text.mid(from, to - from);
        html += rich ? part : part.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    };
    for (const KaEmojiUtils::Cluster& cluster : clusters) {
        const QString path = KaEmojiUtils::imagePath(cluster.key);
        if (path.isEmpty())
            continue;
        appendText(done, cluster.start);
        html +=
            QStringLiteral("<img src=\"qrc%1\" width=\"%2\" height=\"%2\" style=\"vertical-align: middle\">")
                .arg(path)
                .arg(side);
        done = cluster.start + cluster.length;
        ++m_emojiImages;
    }
    if (m_emojiImages == 0) {
        QLabel::setText(m_text);
        return;
    }
    appendText(done, int(m_text.size()));
    if (!rich)
        html = QStringLiteral("<span style=\"white-space: pre-wrap\">%1</span>").arg(html);
    // Shown as markup (KaLabel measures rich text as a document); the
    // caller's format comes back with text that has no pictures.
    if (textFormat() != Qt::RichText) {
        m_formatBeforeImages = int(textFormat());
        setTextFormat(Qt::RichText);
    }
    QLabel::setText(html);
    addImageResources();
}

void KaEmojiLabel::addImageResources() {
    // QLabel's document would decode the SVG at its own size and scale it
    // when painting; hand it the image rendered for this line height and
    // screen instead, cached for every label. A file that does not render
    // becomes an empty picture rather than Qt's broken-image icon.
    auto* document = findChild<QTextDocument*>();
    if (!document)
        return;
    const int side = fontMetrics().height();
    const qreal ratio = devicePixelRatioF();
    for (const KaEmojiUtils::Cluster& cluster : KaEmojiUtils::clusters(m_text)) {
        const QString path = KaEmojiUtils::imagePath(cluster.key);
        if (!path.isEmpty())
            document->addResource(QTextDocument::ImageResource, QUrl(QLatin1String("qrc") + path),
                                  KaEmojiUtils::image(path, QSize(side, side), ratio));
    }
}

QString KaEmojiLabel::selectedOriginalText() const {
    const QString selected = selectedText();
    if (m_emojiImages == 0 || !selected.contains(kObjectReplacement))
        return selected;
    // Each picture is one replacement character in the shown text; count
    // the pictures before the selection to know which emoji come next.
    QTextDocument shown;
    shown.setHtml(QLabel::text());
    const QString plain = shown.toPlainText();
    int image = int(plain.left(selectionStart()).count(kObjectReplacement));
    QStringList sequences;
    for (const KaEmojiUtils::Cluster& cluster : KaEmojiUtils::clusters(m_text)) {
        if (!KaEmojiUtils::imagePath(cluster.key).isEmpty())
            sequences << m_text.mid(cluster.start, cluster.length);
    }
    QString result;
    for (const QChar ch : selected) {
        if (ch == kObjectReplacement && image < sequences.size())
            result += sequences.at(image++);
        else
            result += ch;
    }
    return result;
}

void KaEmojiLabel::keyPressEvent(QKeyEvent* event) {
    if (m_emojiImages > 0 && event->matches(QKeySequence::Copy) && hasSelectedText()) {
        QGuiApplication::clipboard()->setText(selectedOriginalText(), QClipboard::Clipboard);
        event->accept();
        return;
    }
    KaLabel::keyPressEvent(event);
}

void KaEmojiLabel::contextMenuEvent(QContextMenuEvent* event) {
    // QLabel's own menu would copy the pictures as replacement characters.
    if (m_emojiImages == 0 || !(textInteractionFlags() & Qt::TextSelectableByMouse)) {
        KaLabel::contextMenuEvent(event);
        return;
    }
    QMenu menu(this);
    QAction* copy = menu.addAction(tr("&Copy"));
    copy->setEnabled(hasSelectedText());
    connect(copy, &QAction::triggered, this,
            [this] { QGuiApplication::clipboard()->setText(selectedOriginalText(), QClipboard::Clipboard); });
    menu.exec(event->globalPos());
    event->accept();
}

void KaEmojiLabel::changeEvent(QEvent* event) {
    KaLabel::changeEvent(event);
    // The pictures follow the line height.
    if (event->type() == QEvent::FontChange && m_emojiImages > 0)
        rebuild();
}

bool KaEmojiLabel::event(QEvent* event) {
    const bool handled = KaLabel::event(event);
    if (event->type() == QEvent::ScreenChangeInternal && m_emojiImages > 0)
        addImageResources();
    return handled;
}
