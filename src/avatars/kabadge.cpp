#include "kabadge.h"

#include "bzfont.h"

#include <QtDebug>

namespace {
constexpr int kDefaultMaximum = 99;
constexpr int kNumberPadding = 12;
constexpr int kWordPadding = 16;
} // namespace

KaBadge::KaBadge(QWidget* parent)
    : KaTextWithBackground(parent) {
    setFontToken(BzFont::Caption, false);
    setText(QStringLiteral("0"));
}

KaBadge::~KaBadge() = default;

void KaBadge::setText(const QString& text) {
    m_source = text;
    showText(text);
}

void KaBadge::showText(const QString& text) {
    bool isNumber = false;
    const int value = text.trimmed().toInt(&isNumber, 10);
    QString shown = text;
    int padding = kWordPadding;
    if (isNumber) {
        m_number = qMax(value, 0);
        shown = m_number <= m_maximumNumber ? QString::number(m_number)
                                            : QString::number(m_maximumNumber) + QLatin1Char('+');
        padding = kNumberPadding;
    } else if (text.isEmpty()) {
        qWarning("KaBadge: empty text, showing the number %d", m_number);
        shown = QString::number(m_number);
        padding = kNumberPadding;
    }
    QLabel::setText(shown);
    int width = fontMetrics().horizontalAdvance(shown) + padding;
    width += width % 2;
    setFixedSize(width, kHeight);
}

QString KaBadge::getText() const {
    return QString::number(m_number);
}

void KaBadge::setMaximumNumber(int maximum) {
    const int cap = maximum < 0 ? kDefaultMaximum : maximum;
    if (cap == m_maximumNumber)
        return;
    m_maximumNumber = cap;
    showText(m_source);
    Q_EMIT maximumNumberChanged(cap);
}
