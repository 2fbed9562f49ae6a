#pragma once

#include "kaiconbutton.h"
#include "kapopupenum.h"
#include "karvex_export.h"

#include <QPointer>

class KaPopover;

// An "i" icon button that explains something in a text popover: a click
// opens the popover against the button (a second click closes it) and reads
// the text out to screen readers.
class KARVEX_EXPORT KaMoreInfoButton : public KaIconButton {
    Q_OBJECT
    Q_PROPERTY(QString infoText READ infoText WRITE setInfoText NOTIFY infoTextChanged)
    Q_PROPERTY(KaPopupEnum::Alignment popupDirection READ popupDirection WRITE setPopupDirection NOTIFY
                   popupDirectionChanged)

public:
    // Object name of the popover's text, which the focus ring leaves alone.
    static constexpr const char* PopupTextObjectName = "MoreInfoButtonPopupText";

    explicit KaMoreInfoButton(QWidget* parent = nullptr);
    KaMoreInfoButton(const QString& infoText, QWidget* parent = nullptr);
    ~KaMoreInfoButton() override;

    QString infoText() const { return m_infoText; }
    void setInfoText(const QString& text);
    // The side of the button the popover opens on; None lets it choose.
    KaPopupEnum::Alignment popupDirection() const { return m_direction; }
    void setPopupDirection(KaPopupEnum::Alignment direction);

    // The open popover, or null.
    KaPopover* popover() const { return m_popover; }
    bool isPopupVisible() const;

public Q_SLOTS:
    void showPopup();
    void hidePopup();

Q_SIGNALS:
    void infoTextChanged();
    void popupDirectionChanged();
    void popupShown();
    void popupHidden();

private:
    void init();
    void togglePopup();

    QString m_infoText;
    KaPopupEnum::Alignment m_direction = KaPopupEnum::None;
    QPointer<KaPopover> m_popover;
};
