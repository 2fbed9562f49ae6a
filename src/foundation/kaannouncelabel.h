#pragma once

#include "kalabel.h"

// A KaLabel for status texts ("Saved", "3 results"): every change of its
// text is read out by screen readers through KarvexUtils::announce, so
// users hear it without moving to the label. Setting the same text again,
// clearing it, or changing it while the label is hidden announces nothing.
class KARVEX_EXPORT KaAnnounceLabel : public KaLabel {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    explicit KaAnnounceLabel(QWidget* parent = nullptr);
    explicit KaAnnounceLabel(const QString& text, QWidget* parent = nullptr);

    void setText(const QString& text);

Q_SIGNALS:
    void textChanged(const QString& text);
};
