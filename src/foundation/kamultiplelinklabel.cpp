#include "kamultiplelinklabel.h"

#include "kacolortokenutils.h"
#include "kafocusstyle.h"
#include "karvexutils.h"

#include <bzthemeutils.h>

#include <QAbstractTextDocumentLayout>
#include <QAccessibleWidget>
#include <QHash>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

namespace {

// One link as a child of the label for screen readers.
class LinkAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    LinkAccessible(KaMultipleLinkLabel* label, int index)
        : m_label(label)
        , m_index(index) {}

    bool isValid() const override { return m_label && m_index < m_label->linkCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_label ? m_label->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_label); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Link; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text t) const override {
        if (!isValid())
            return QString();
        switch (t) {
        case QAccessible::Name:
            return m_label->linkText(m_index);
        case QAccessible::Description:
            return m_label->linkPositionText(m_index);
        case QAccessible::Value:
            return m_label->linkHref(m_index);
        default:
            return QString();
        }
    }

    QAccessible::State state() const override {
        QAccessible::State s;
        if (!isValid()) {
            s.invalid = true;
            return s;
        }
        s.focusable = m_label->isEnabled();
        s.focused = m_label->hasFocus() && m_label->currentLink() == m_index;
        s.linked = true;
        s.invisible = !m_label->isVisible();
        s.disabled = !m_label->isEnabled();
        return s;
    }

    QRect rect() const override {
        if (!isValid())
            return QRect();
        const QRect r = m_label->linkRect(m_index);
        return QRect(m_label->mapToGlobal(r.topLeft()), r.size());
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == pressAction())
            m_label->activateLink(m_index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<KaMultipleLinkLabel> m_label;
    int m_index;
};

class MultipleLinkLabelAccessible : public QAccessibleWidget {
public:
    explicit MultipleLinkLabelAccessible(KaMultipleLinkLabel* label)
        : QAccessibleWidget(label, label->accessibleRole()) {}

    ~MultipleLinkLabelAccessible() override {
        for (QAccessible::Id id : std::as_const(m_children))
            QAccessible::deleteAccessibleInterface(id);
    }

    KaMultipleLinkLabel* label() const { return static_cast<KaMultipleLinkLabel*>(widget()); }

    QString text(QAccessible::Text t) const override {
        QString value = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && value.isEmpty()) {
            QTextDocument document;
            document.setHtml(label()->text());
            value = document.toPlainText();
        }
        return value;
    }

    int childCount() const override { return label()->linkCount(); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto it = m_children.constFind(index);
        if (it != m_children.constEnd())
            return QAccessible::accessibleInterface(*it);
        auto* link = new LinkAccessible(label(), index);
        m_children.insert(index, QAccessible::registerAccessibleInterface(link));
        return link;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        for (auto it = m_children.constBegin(); it != m_children.constEnd(); ++it) {
            if (QAccessible::accessibleInterface(it.value()) == child)
                return it.key();
        }
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const int index = label()->linkAt(label()->mapFromGlobal(QPoint(x, y)));
        return index >= 0 ? child(index) : nullptr;
    }

private:
    mutable QHash<int, QAccessible::Id> m_children;
};

QAccessibleInterface* linkLabelFactory(const QString&, QObject* object) {
    if (auto* label = qobject_cast<KaMultipleLinkLabel*>(object))
        return new MultipleLinkLabelAccessible(label);
    return nullptr;
}

} // namespace

KaMultipleLinkLabel::KaMultipleLinkLabel(QWidget* parent)
    : KaLabel(parent)
    , m_document(new QTextDocument(this)) {
    static bool factoryInstalled = false;
    if (!factoryInstalled) {
        factoryInstalled = true;
        QAccessible::installFactory(linkLabelFactory);
    }
    m_document->setDocumentMargin(0);
    m_document->setDefaultFont(font());
    setMouseTracking(true);
    // The focus ring goes around the current link, a little outside it.
    setProperty("hasCustomRect", true);
    setProperty("focusMargin", 2);
    setProperty("focusBorderRadius", 2.0);
    connect(this, &KaLabelBase::cssChanged, this, &KaMultipleLinkLabel::refreshColours);
    refreshColours();
    rebuild();
}

KaMultipleLinkLabel::KaMultipleLinkLabel(const QString& text, QWidget* parent)
    : KaMultipleLinkLabel(parent) {
    setText(text);
}

KaMultipleLinkLabel::~KaMultipleLinkLabel() = default;

void KaMultipleLinkLabel::setText(const QString& text) {
    if (text == m_text)
        return;
    m_text = text;
    rebuild();
    Q_EMIT textChanged(text);
}

void KaMultipleLinkLabel::rebuild() {
    if (Qt::mightBeRichText(m_text))
        m_document->setHtml(m_text);
    else
        m_document->setPlainText(m_text);
    m_links.clear();
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat format = fragment.charFormat();
            if (!format.isAnchor() || format.anchorHref().isEmpty())
                continue;
            // Formatting inside a link splits it into fragments.
            if (!m_links.isEmpty() && m_links.last().href == format.anchorHref() &&
                m_links.last().end == fragment.position()) {
                m_links.last().end += fragment.length();
                m_links.last().text += fragment.text();
                continue;
            }
            m_links.append({format.anchorHref(), fragment.text(), fragment.position(),
                            fragment.position() + fragment.length()});
        }
    }
    for (Link& link : m_links)
        link.text = link.text.trimmed();
    m_hovered = -1;
    m_pressed = -1;
    const int current = m_links.isEmpty() ? -1 : qBound(0, m_current, int(m_links.size()) - 1);
    if (current != m_current) {
        m_current = current;
        Q_EMIT currentLinkChanged(current);
    }
    setFocusPolicy(m_links.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    if (QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    updateGeometry();
    update();
}

void KaMultipleLinkLabel::refreshColours() {
    // Resolved when the look or the theme changes, never while painting.
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    m_textColours = BzThemeUtils::getColorSet(textColorSetName(), type);
    m_linkColours =
        BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::hyperlink_accent_text), type);
    update();
}

QString KaMultipleLinkLabel::linkText(int index) const {
    return index >= 0 && index < m_links.size() ? m_links.at(index).text : QString();
}

QString KaMultipleLinkLabel::linkHref(int index) const {
    return index >= 0 && index < m_links.size() ? m_links.at(index).href : QString();
}

QString KaMultipleLinkLabel::linkPositionText(int index) const {
    return tr("link %1 of %2").arg(index + 1).arg(m_links.size());
}

void KaMultipleLinkLabel::layoutFor(int width) const {
    QTextOption option = m_document->defaultTextOption();
    option.setWrapMode(wordWrap() ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    // Like QLabel: the text's own direction orders it, the layout direction
    // decides which side it is aligned to.
    option.setAlignment(QStyle::visualAlignment(layoutDirection(), alignment() & Qt::AlignHorizontal_Mask) |
                        Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    if (option.wrapMode() != m_document->defaultTextOption().wrapMode() ||
        option.alignment() != m_document->defaultTextOption().alignment() ||
        option.textDirection() != m_document->defaultTextOption().textDirection())
        m_document->setDefaultTextOption(option);
    if (m_document->textWidth() != width)
        m_document->setTextWidth(width);
}

QPointF KaMultipleLinkLabel::documentOffset() const {
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    layoutFor(area.width());
    const qreal height = m_document->size().height();
    qreal y = area.top();
    if (alignment() & Qt::AlignVCenter)
        y += (area.height() - height) / 2;
    else if (alignment() & Qt::AlignBottom)
        y += area.height() - height;
    return QPointF(area.left(), y);
}

QList<QRectF> KaMultipleLinkLabel::linkRectsInDocument(int index) const {
    QList<QRectF> rects;
    if (index < 0 || index >= m_links.size())
        return rects;
    const Link& link = m_links.at(index);
    for (QTextBlock block = m_document->findBlock(link.start); block.isValid() && block.position() < link.end;
         block = block.next()) {
        const QTextLayout* layout = block.layout();
        const QPointF origin = layout->position();
        for (int i = 0; i < layout->lineCount(); ++i) {
            const QTextLine line = layout->lineAt(i);
            const int lineStart = block.position() + line.textStart();
            const int lineEnd = lineStart + line.textLength();
            const int from = qMax(lineStart, link.start);
            const int to = qMin(lineEnd, link.end);
            if (from >= to)
                continue;
            const qreal x1 = line.cursorToX(from - block.position());
            const qreal x2 = line.cursorToX(to - block.position());
            rects.append(
                QRectF(QPointF(qMin(x1, x2), line.y()), QPointF(qMax(x1, x2), line.y() + line.height()))
                    .translated(origin));
        }
    }
    return rects;
}

QRect KaMultipleLinkLabel::linkRect(int index) const {
    const QList<QRectF> rects = linkRectsInDocument(index);
    if (rects.isEmpty())
        return QRect();
    return rects.first().translated(documentOffset()).toAlignedRect();
}

int KaMultipleLinkLabel::linkAt(const QPoint& pos) const {
    const QPointF offset = documentOffset();
    for (int i = 0; i < m_links.size(); ++i) {
        for (const QRectF& rect : linkRectsInDocument(i)) {
            if (rect.translated(offset).contains(pos))
                return i;
        }
    }
    return -1;
}

void KaMultipleLinkLabel::setCurrentLink(int index) {
    if (index < 0 || index >= m_links.size() || index == m_current)
        return;
    m_current = index;
    update();
    Q_EMIT currentLinkChanged(index);
    if (hasFocus())
        announceCurrent();
}

void KaMultipleLinkLabel::activateLink(int index) {
    if (index < 0 || index >= m_links.size())
        return;
    Q_EMIT linkActivated(m_links.at(index).href);
}

void KaMultipleLinkLabel::announceCurrent() {
    if (m_current < 0)
        return;
    KarvexUtils::announce(this, tr("%1, %2").arg(linkText(m_current), linkPositionText(m_current)));
    if (QAccessible::isActive()) {
        if (QAccessibleInterface* label = QAccessible::queryAccessibleInterface(this)) {
            if (QAccessibleInterface* link = label->child(m_current)) {
                QAccessibleEvent event(link, QAccessible::Focus);
                QAccessible::updateAccessibility(&event);
            }
        }
    }
}

QSize KaMultipleLinkLabel::sizeHint() const {
    const int m = 2 * margin();
    const QMargins frame = contentsMargins();
    const int extra = m + frame.left() + frame.right();
    layoutFor(-1);
    int width = int(std::ceil(m_document->idealWidth())) + extra + 1;
    if (wordWrap())
        width = qMin(width, maximumWidth());
    const int height = heightForWidth(width);
    return QSize(width, height);
}

QSize KaMultipleLinkLabel::minimumSizeHint() const {
    if (!wordWrap())
        return sizeHint();
    const int m = 2 * margin();
    return QSize(fontMetrics().averageCharWidth() * 8 + m, fontMetrics().height() + m);
}

bool KaMultipleLinkLabel::hasHeightForWidth() const {
    return wordWrap();
}

int KaMultipleLinkLabel::heightForWidth(int width) const {
    const QMargins frame = contentsMargins();
    const int m = 2 * margin();
    layoutFor(width - m - frame.left() - frame.right());
    return int(std::ceil(m_document->size().height())) + m + frame.top() + frame.bottom();
}

void KaMultipleLinkLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPointF offset = documentOffset();
    const bool enabled = isEnabled();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette();
    context.palette.setColor(QPalette::Text, enabled ? m_textColours.normal() : m_textColours.disabled());
    for (int i = 0; i < m_links.size(); ++i) {
        QColor colour = m_linkColours.normal();
        if (!enabled)
            colour = m_linkColours.disabled();
        else if (i == m_pressed && i == m_hovered)
            colour = m_linkColours.pressed();
        else if (i == m_hovered)
            colour = m_linkColours.hovered();
        QAbstractTextDocumentLayout::Selection selection;
        selection.cursor = QTextCursor(m_document);
        selection.cursor.setPosition(m_links.at(i).start);
        selection.cursor.setPosition(m_links.at(i).end, QTextCursor::KeepAnchor);
        selection.format.setForeground(colour);
        selection.format.setFontUnderline(true);
        context.selections.append(selection);
    }
    painter.translate(offset);
    m_document->documentLayout()->draw(&painter, context);
    painter.translate(-offset);

    if (hasFocus() && m_current >= 0)
        KaFocusStyle::requestRing(this, &painter, linkRect(m_current));
}

void KaMultipleLinkLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_current >= 0 && !event->isAutoRepeat()) {
            activateLink(m_current);
            event->accept();
            return;
        }
        break;
    default:
        break;
    }
    KaLabel::keyPressEvent(event);
}

void KaMultipleLinkLabel::focusInEvent(QFocusEvent* event) {
    KaLabel::focusInEvent(event);
    if (m_links.isEmpty())
        return;
    // Tab enters at the first link, Shift+Tab at the last; a click or the
    // window coming back keeps the current one.
    int target = qMax(0, m_current);
    if (event->reason() == Qt::TabFocusReason)
        target = 0;
    else if (event->reason() == Qt::BacktabFocusReason)
        target = int(m_links.size()) - 1;
    if (target != m_current) {
        m_current = target;
        Q_EMIT currentLinkChanged(target);
    }
    // A click announces the link it lands on when it is released.
    if (event->reason() != Qt::MouseFocusReason)
        announceCurrent();
    update();
}

void KaMultipleLinkLabel::focusOutEvent(QFocusEvent* event) {
    KaLabel::focusOutEvent(event);
    update();
}

bool KaMultipleLinkLabel::focusNextPrevChild(bool next) {
    // Tab moves between the links first, then on to the next widget.
    if (hasFocus() && m_current >= 0) {
        const int target = m_current + (next ? 1 : -1);
        if (target >= 0 && target < m_links.size()) {
            setCurrentLink(target);
            return true;
        }
    }
    return KaLabel::focusNextPrevChild(next);
}

void KaMultipleLinkLabel::setHovered(int index) {
    if (index == m_hovered)
        return;
    m_hovered = index;
    if (index >= 0)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
    update();
    Q_EMIT linkHovered(linkHref(index));
}

void KaMultipleLinkLabel::mouseMoveEvent(QMouseEvent* event) {
    setHovered(linkAt(event->position().toPoint()));
    KaLabel::mouseMoveEvent(event);
}

void KaMultipleLinkLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_pressed = linkAt(event->position().toPoint());
        if (m_pressed >= 0) {
            update();
            event->accept();
            return;
        }
    }
    KaLabel::mousePressEvent(event);
}

void KaMultipleLinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    const int pressed = m_pressed;
    m_pressed = -1;
    if (event->button() == Qt::LeftButton && pressed >= 0) {
        update();
        if (linkAt(event->position().toPoint()) == pressed) {
            setCurrentLink(pressed);
            activateLink(pressed);
        }
        event->accept();
        return;
    }
    KaLabel::mouseReleaseEvent(event);
}

void KaMultipleLinkLabel::leaveEvent(QEvent* event) {
    setHovered(-1);
    KaLabel::leaveEvent(event);
}

void KaMultipleLinkLabel::changeEvent(QEvent* event) {
    KaLabel::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
        m_document->setDefaultFont(font());
        updateGeometry();
        break;
    case QEvent::ParentChange:
        refreshColours();
        break;
    case QEvent::LayoutDirectionChange:
        update();
        break;
    default:
        break;
    }
}
