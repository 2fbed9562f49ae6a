#pragma once

#include "kabadge.h"
#include "kaiconbadge.h"
#include "karoundbutton.h"
#include "karvex_export.h"

#include <QPointer>

// A round button with a counter or an icon badge at its upper trailing
// corner. Defaults: style Join, size ExtraSmall. The badge is part of the
// button's accessible name: give the button its own name with
// setAccessibleLabel() and screen readers hear "Calls, 7".
class KARVEX_EXPORT KaRoundBadgeButton : public KaRoundButton {
    Q_OBJECT
    Q_PROPERTY(QString badgeText READ badgeText WRITE setBadgeText NOTIFY badgeChanged)

public:
    explicit KaRoundBadgeButton(QWidget* parent = nullptr);
    KaRoundBadgeButton(QWidget* parent, KaButtonEnum::Style style, KaButtonEnum::Size size);
    ~KaRoundBadgeButton() override;

    // Shows a counter badge (KaBadge rules: capped numbers, or a word); an
    // empty text hides it.
    void setBadgeText(const QString& text);
    // What the counter shows ("99+"); empty without one.
    QString badgeText() const;
    // Shows an icon badge instead of the counter.
    void setIconBadge(KaIconBadgeType type);
    void clearBadge();

    KaBadge* counterBadge() const { return m_counter; }
    KaIconBadge* iconBadge() const { return m_icon; }

    // The button's own accessible name, read before the badge.
    void setAccessibleLabel(const QString& label);
    QString accessibleLabel() const { return m_label; }

Q_SIGNALS:
    void badgeChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void placeBadge();
    void updateName();

    QPointer<KaBadge> m_counter;
    QPointer<KaIconBadge> m_icon;
    QString m_label;
};
