#pragma once

#include "karvex_export.h"

#include <QTranslator>

// Pseudo-translation for testing a host: every text comes back doubled
// ("Save" gives "Save Save"), so texts that bypass translation show up once
// and layouts get to handle longer strings. Install it with
// QCoreApplication::installTranslator; it answers every lookup, so
// translators consulted after it are never asked.
class KARVEX_EXPORT KaSudoTranslator : public QTranslator {
    Q_OBJECT
public:
    explicit KaSudoTranslator(QObject* parent = nullptr);

    // The source text, a space and the source text again; never null.
    QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                      int n = -1) const override;
    // Never empty: there is nothing to load.
    bool isEmpty() const override;
};
