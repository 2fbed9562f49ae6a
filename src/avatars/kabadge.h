#pragma once

#include "karvex_export.h"
#include "katextwithbackground.h"

// A counter pill: a number up to a cap (99 unless set), beyond it the cap
// and "+", or any short word. The width is the text's advance plus 12 for a
// number and 16 for a word, rounded up to an even number so that the text
// centres on whole pixels.
class KARVEX_EXPORT KaBadge : public KaTextWithBackground {
    Q_OBJECT
    Q_PROPERTY(int maximumNumber READ getMaximumNumber WRITE setMaximumNumber NOTIFY maximumNumberChanged)

public:
    explicit KaBadge(QWidget* parent = nullptr);
    ~KaBadge() override;

    // A base-10 integer shows as a count (negative counts as 0); anything
    // else is shown as it is and leaves the number alone.
    void setText(const QString& text);
    // The last number, uncapped, in decimal.
    QString getText() const;
    int number() const { return m_number; }

    // A negative cap means the default, 99.
    void setMaximumNumber(int maximum);
    int getMaximumNumber() const { return m_maximumNumber; }

Q_SIGNALS:
    void maximumNumberChanged(int maximum);

private:
    void showText(const QString& text);

    QString m_source;
    int m_number = 0;
    int m_maximumNumber = 99;
};
