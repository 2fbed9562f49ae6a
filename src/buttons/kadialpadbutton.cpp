#include "kadialpadbutton.h"

#include "bzfont.h"

#include <QKeyEvent>
#include <QPainter>

KaDialpadButton::KaDialpadButton(QWidget* parent)
    : KaDialpadButton(QStringLiteral("1"), parent) {}

KaDialpadButton::KaDialpadButton(const QString& character, QWidget* parent)
    : IKaButton(parent, new KaDialpadButtonConfig) {
    buttonConfig()->setParent(this);
    m_longPress.setSingleShot(true);
    m_longPress.setInterval(600);
    connect(&m_longPress, &QTimer::timeout, this, &KaDialpadButton::onLongPress);
    connect(this, &QAbstractButton::pressed, this, &KaDialpadButton::onPressed);
    connect(this, &QAbstractButton::released, &m_longPress, &QTimer::stop);
    connect(this, &QAbstractButton::clicked, this, &KaDialpadButton::onClicked);
    connectRefreshSlot();
    // Holding the key must not repeat clicks.
    setAutoRepeat(false);
    setCharacter(character);
    refresh();
}

KaDialpadButton::~KaDialpadButton() = default;

KaDialpadButtonConfig* KaDialpadButton::dialpadConfig() const {
    return qobject_cast<KaDialpadButtonConfig*>(buttonConfig());
}

QString KaDialpadButton::keypadLetters(const QString& character) {
    static const char* const letters[] = {"+", "", "ABC", "DEF", "GHI", "JKL", "MNO", "PQRS", "TUV", "WXYZ"};
    if (character.size() != 1 || !character.at(0).isDigit())
        return QString();
    const int digit = character.at(0).digitValue();
    return digit >= 0 && digit <= 9 ? QString::fromLatin1(letters[digit]) : QString();
}

void KaDialpadButton::setCharacter(const QString& character) {
    if (character == m_character)
        return;
    m_character = character;
    setLetters(keypadLetters(character));
    setAlternateCharacter(character == QLatin1String("0") ? QStringLiteral("+") : QString());
    updateAccessibleName();
    update();
    Q_EMIT characterChanged(character);
}

void KaDialpadButton::setLetters(const QString& letters) {
    if (letters == m_letters)
        return;
    m_letters = letters;
    updateAccessibleName();
    update();
    Q_EMIT lettersChanged(letters);
}

void KaDialpadButton::setAlternateCharacter(const QString& character) {
    if (character == m_alternate)
        return;
    m_alternate = character;
    Q_EMIT alternateCharacterChanged(character);
}

void KaDialpadButton::setLongPressInterval(int milliseconds) {
    milliseconds = qMax(1, milliseconds);
    if (milliseconds == m_longPress.interval())
        return;
    m_longPress.setInterval(milliseconds);
    Q_EMIT longPressIntervalChanged(milliseconds);
}

bool KaDialpadButton::isSpecial() const {
    const KaDialpadButtonConfig* config = dialpadConfig();
    return config && config->isSpecial();
}

void KaDialpadButton::setSpecial(bool special) {
    if (!writeConfig(dialpadConfig(), &KaDialpadButtonConfig::isSpecial, &KaDialpadButtonConfig::setSpecial,
                     special))
        return;
    Q_EMIT specialChanged(special);
    Q_EMIT refreshConfig();
}

KaButtonEnum::Size KaDialpadButton::size() const {
    const KaDialpadButtonConfig* config = dialpadConfig();
    return config ? config->size() : KaButtonEnum::Normal;
}

void KaDialpadButton::setSize(KaButtonEnum::Size size) {
    if (!writeConfig(dialpadConfig(), &KaDialpadButtonConfig::size, &KaDialpadButtonConfig::setSize, size))
        return;
    Q_EMIT sizeChanged(size);
    Q_EMIT refreshConfig();
    updateGeometry();
}

void KaDialpadButton::updateAccessibleName() {
    const QString name = m_letters.isEmpty() ? m_character : m_character + QLatin1Char(' ') + m_letters;
    if (name != accessibleName())
        setAccessibleName(name);
}

void KaDialpadButton::onPressed() {
    m_longPressFired = false;
    if (!m_alternate.isEmpty())
        m_longPress.start();
}

void KaDialpadButton::onLongPress() {
    if (!isDown() || m_alternate.isEmpty())
        return;
    m_longPressFired = true;
    Q_EMIT characterEntered(m_alternate);
    Q_EMIT longPressed();
}

void KaDialpadButton::onClicked() {
    if (m_longPressFired) {
        m_longPressFired = false;
        return;
    }
    Q_EMIT characterEntered(m_character);
}

void KaDialpadButton::keyPressEvent(QKeyEvent* event) {
    // Typing the key's own character presses it, like a real keypad.
    if (!m_character.isEmpty() && event->text() == m_character && !event->isAutoRepeat()) {
        animateClick();
        event->accept();
        return;
    }
    IKaButton::keyPressEvent(event);
}

void KaDialpadButton::refresh() {
    KaDialpadButtonConfig::Geometry g;
    if (!applyGeometry(dialpadConfig(), g))
        return;
    // A circle: the width follows the diameter.
    setFixedOrFreeWidth(g.fixedHeight);
    if (g.fixedHeight > 0)
        setFocusBorderRadius(g.fixedHeight / 2.0);
    const QFont lettersFont = BzFont(g.lettersFontToken);
    if (g.lettersColorSet != m_lettersSetName || lettersFont != m_lettersFont || g.gap != m_gap) {
        m_lettersSetName = g.lettersColorSet;
        m_lettersSet = resolveColorSet(m_lettersSetName);
        m_lettersFont = lettersFont;
        m_gap = g.gap;
        update();
    }
}

void KaDialpadButton::themeResolved() {
    IKaButton::themeResolved();
    m_lettersSet = resolveColorSet(m_lettersSetName);
}

void KaDialpadButton::paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) {
    IKaButton::paintDecorations(painter, geometry, state);
    if (m_character.isEmpty())
        return;
    // Digit and letters form one block centred in the circle; a key without
    // letters centres its digit alone.
    const QFontMetrics digitMetrics(font());
    const QFontMetrics lettersMetrics(m_lettersFont);
    const bool withLetters = !m_letters.isEmpty();
    const int blockHeight = digitMetrics.height() + (withLetters ? m_gap + lettersMetrics.height() : 0);
    const int top = (height() - blockHeight) / 2;

    painter->save();
    painter->setFont(font());
    painter->setPen(stateColor(textColorSet(), state));
    painter->drawText(QRect(0, top, width(), digitMetrics.height()), Qt::AlignCenter, m_character);
    if (withLetters) {
        painter->setFont(m_lettersFont);
        painter->setPen(stateColor(m_lettersSet.isValid() ? m_lettersSet : textColorSet(), state));
        painter->drawText(QRect(0, top + digitMetrics.height() + m_gap, width(), lettersMetrics.height()),
                          Qt::AlignCenter, m_letters);
    }
    painter->restore();
}
