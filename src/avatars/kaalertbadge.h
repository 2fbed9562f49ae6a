#pragma once

#include "kaalertbadgeconfig.h"
#include "kabutton.h"
#include "karvex_export.h"

// A compact, non-interactive marker with text: the colours and the leading
// icon of its KaBadgeEnum::Style (see KaAlertBadgeConfig). Screen readers
// read its text.
class KARVEX_EXPORT KaAlertBadge : public KaButton {
    Q_OBJECT
    Q_PROPERTY(KaBadgeEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)

public:
    explicit KaAlertBadge(QWidget* parent = nullptr);
    KaAlertBadge(const QString& text, KaBadgeEnum::Style style, QWidget* parent = nullptr);
    ~KaAlertBadge() override;

    // Also puts the style's icon in front of the text. An unknown style
    // warns and uses DefaultBadge.
    void setStyle(KaBadgeEnum::Style style);
    KaBadgeEnum::Style style() const;
    // Replaces the style's icon until the next style change.
    void setIconPath(const QString& path);

Q_SIGNALS:
    void styleChanged(KaBadgeEnum::Style style);

protected Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    QPointer<KaAlertBadgeConfig> m_config;
};
