#include "kapintextfield.h"

#include "katextfield.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace {

constexpr int kDefaultDigits = 6;
constexpr int kMaxDigits = 12;

bool allDigits(const QString& text) {
    for (const QChar c : text) {
        if (!c.isDigit())
            return false;
    }
    return true;
}

} // namespace

KaPinTextField::KaPinTextField(QWidget* parent)
    : KaPinTextField(parent, KaTextFieldEnum::Standard, KaTextFieldEnum::Normal) {}

KaPinTextField::KaPinTextField(QWidget* parent, KaTextFieldEnum::Style style, KaTextFieldEnum::Size size)
    : QWidget(parent) {
    setObjectName(QStringLiteral("PinTextField"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    rebuild(kDefaultDigits);
    setStyle(style);
    setSize(size);
}

KaPinTextField::~KaPinTextField() {
    // The boxes go with QWidget's destructor, after this one: unhook them.
    for (KaTextField* box : std::as_const(m_boxes)) {
        box->lineEdit()->removeEventFilter(this);
        disconnect(box->lineEdit(), nullptr, this, nullptr);
    }
}

void KaPinTextField::setStyle(KaTextFieldEnum::Style style) {
    if (style < KaTextFieldEnum::Password || style > KaTextFieldEnum::Pin) {
        qWarning("KaPinTextField::setStyle: unknown style %d ignored", int(style));
        return;
    }
    if (style == m_style)
        return;
    m_style = style;
    applyStyle();
    Q_EMIT styleChanged(style);
}

void KaPinTextField::setSize(KaTextFieldEnum::Size size) {
    if (size < KaTextFieldEnum::SingleCharacter || size > KaTextFieldEnum::Large) {
        qWarning("KaPinTextField::setSize: unknown size %d ignored", int(size));
        return;
    }
    if (size == m_size)
        return;
    m_size = size;
    layout()->setSpacing(size == KaTextFieldEnum::Large ? 12 : 8);
    Q_EMIT sizeChanged(size);
}

void KaPinTextField::setDigitCount(int count) {
    const int clamped = qBound(1, count, kMaxDigits);
    if (clamped != count)
        qWarning("KaPinTextField::setDigitCount: %d boxes clamped to %d", count, clamped);
    if (clamped == digitCount())
        return;
    const QString before = text();
    rebuild(clamped);
    if (!before.isEmpty())
        Q_EMIT textChanged(QString());
    Q_EMIT digitCountChanged(clamped);
}

QString KaPinTextField::text() const {
    QString code;
    for (const KaTextField* box : m_boxes)
        code += box->text();
    return code;
}

void KaPinTextField::setText(const QString& code) {
    if (!allDigits(code) || code.size() > digitCount()) {
        qWarning("KaPinTextField::setText: \"%s\" is not a code of at most %d digits; ignored",
                 qPrintable(code), digitCount());
        return;
    }
    const QString before = text();
    for (int i = 0; i < digitCount(); ++i)
        setDigit(i, code.mid(i, 1));
    changed(before);
}

bool KaPinTextField::isComplete() const {
    for (const KaTextField* box : m_boxes) {
        if (box->text().isEmpty())
            return false;
    }
    return true;
}

KaTextField* KaPinTextField::box(int index) const {
    return index >= 0 && index < m_boxes.size() ? m_boxes.at(index) : nullptr;
}

void KaPinTextField::clear() {
    setText(QString());
}

bool KaPinTextField::eventFilter(QObject* watched, QEvent* event) {
    const int index = indexOf(watched);
    if (index < 0)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn) {
        // Typing replaces the digit that is there.
        m_boxes.at(index)->selectAll();
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Paste)) {
        paste(index);
        return true;
    }
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    switch (key->key()) {
    case Qt::Key_Backspace:
        if (!m_boxes.at(index)->text().isEmpty()) {
            const QString before = text();
            setDigit(index, QString());
            changed(before);
        } else if (index > 0) {
            const QString before = text();
            setDigit(index - 1, QString());
            focusBox(index - 1);
            changed(before);
        }
        return true;
    case Qt::Key_Delete: {
        const QString before = text();
        setDigit(index, QString());
        changed(before);
        return true;
    }
    case Qt::Key_Left:
        focusBox(rtl ? index + 1 : index - 1);
        return true;
    case Qt::Key_Right:
        focusBox(rtl ? index - 1 : index + 1);
        return true;
    case Qt::Key_Home:
        focusBox(0);
        return true;
    case Qt::Key_End:
        focusBox(digitCount() - 1);
        return true;
    default:
        break;
    }
    const QString typed = key->text();
    if (typed.isEmpty() || !typed.at(0).isPrint() ||
        key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false; // Tab, Return, shortcuts: the usual handling
    if (allDigits(typed)) {
        const QString before = text();
        focusBox(fill(index, typed));
        changed(before);
    }
    // Anything else is swallowed: a PIN holds digits only.
    return true;
}

void KaPinTextField::rebuild(int count) {
    // Out of the list before they go: deleting a focused box sends events
    // that the filter would otherwise look up in it.
    const QList<KaTextField*> old = std::exchange(m_boxes, {});
    for (KaTextField* box : old) {
        box->lineEdit()->removeEventFilter(this);
        disconnect(box->lineEdit(), nullptr, this, nullptr);
    }
    qDeleteAll(old);
    auto* row = static_cast<QHBoxLayout*>(layout());
    for (int i = 0; i < count; ++i) {
        auto* box = new KaTextField(this, KaTextFieldEnum::Pin, KaTextFieldEnum::SingleCharacter);
        box->setObjectName(QStringLiteral("PinDigit%1").arg(i + 1));
        QLineEdit* editor = box->lineEdit();
        editor->setAccessibleName(tr("Digit %1 of %2").arg(i + 1).arg(count));
        // Paste goes through the key filter, which knows whole codes.
        editor->setContextMenuPolicy(Qt::NoContextMenu);
        editor->setAcceptDrops(false);
        editor->installEventFilter(this);
        // Input methods bypass key events: keep the last digit they left.
        connect(editor, &QLineEdit::textEdited, this, [this, box](const QString& edited) {
            const int index = int(m_boxes.indexOf(box));
            if (index < 0)
                return;
            const QString last = edited.right(1);
            const QString before = text();
            setDigit(index, allDigits(last) ? last : QString());
            changed(before);
        });
        row->addWidget(box);
        m_boxes.append(box);
    }
    applyStyle();
    for (int i = 1; i < m_boxes.size(); ++i)
        setTabOrder(m_boxes.at(i - 1), m_boxes.at(i));
    updateGeometry();
}

void KaPinTextField::applyStyle() {
    for (KaTextField* box : m_boxes)
        box->lineEdit()->setEchoMode(m_style == KaTextFieldEnum::Password ? QLineEdit::Password
                                                                          : QLineEdit::Normal);
}

int KaPinTextField::indexOf(QObject* editor) const {
    for (int i = 0; i < m_boxes.size(); ++i) {
        if (m_boxes.at(i)->lineEdit() == editor)
            return i;
    }
    return -1;
}

void KaPinTextField::setDigit(int index, const QString& digit) {
    QLineEdit* editor = m_boxes.at(index)->lineEdit();
    if (editor->text() != digit)
        editor->setText(digit);
}

int KaPinTextField::fill(int from, const QString& digits) {
    int at = from;
    for (const QChar digit : digits) {
        if (at >= digitCount())
            break;
        setDigit(at++, QString(digit));
    }
    return qMin(at, digitCount() - 1);
}

void KaPinTextField::paste(int index) {
    QString code = QGuiApplication::clipboard()->text().simplified();
    code.remove(QLatin1Char(' '));
    code.remove(QLatin1Char('-'));
    if (code.isEmpty() || !allDigits(code))
        return;
    const QString before = text();
    focusBox(fill(code.size() == digitCount() ? 0 : index, code));
    changed(before);
}

void KaPinTextField::focusBox(int index) {
    if (KaTextField* target = box(index))
        target->lineEdit()->setFocus(Qt::TabFocusReason);
}

void KaPinTextField::changed(const QString& before) {
    const QString now = text();
    if (now == before)
        return;
    Q_EMIT textChanged(now);
    if (isComplete())
        Q_EMIT completed(now);
}
