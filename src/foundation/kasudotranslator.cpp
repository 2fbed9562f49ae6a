#include "kasudotranslator.h"

KaSudoTranslator::KaSudoTranslator(QObject* parent)
    : QTranslator(parent) {}

QString KaSudoTranslator::translate(const char* context, const char* sourceText, const char* disambiguation,
                                    int n) const {
    Q_UNUSED(context)
    Q_UNUSED(disambiguation)
    Q_UNUSED(n)
    const QString text = QString::fromUtf8(sourceText);
    return text + QLatin1Char(' ') + text;
}

bool KaSudoTranslator::isEmpty() const {
    return false;
}
