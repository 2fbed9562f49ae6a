#pragma once

#include "ikabutton.h"
#include "kabuttonconfig.h"
#include "kabuttonenum.h"
#include "karvex_export.h"

#include <QMenu>
#include <QPointer>
#include <QSizePolicy>

#include <cstddef>

class KaMenu;

// The standard button: style, size and width policy of KaButtonEnum, kept in
// a KaButtonConfig, the checked state driving the configuration's state
// (checked is Active), and an optional menu that opens on press.
//
// style() and size() are the look's, not QWidget's; use QWidget::size() and
// QWidget::style() for those.
class KARVEX_EXPORT KaButton : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(KaButtonEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QString leftIcon READ leftIcon WRITE setLeftIcon NOTIFY leftIconChanged)
    Q_PROPERTY(QString leftIconOn READ leftIconOn WRITE setLeftIconOn NOTIFY leftIconOnChanged)
    Q_PROPERTY(QString rightIcon READ rightIcon WRITE setRightIcon NOTIFY rightIconChanged)
    Q_PROPERTY(QString rightIconOn READ rightIconOn WRITE setRightIconOn NOTIFY rightIconOnChanged)
    Q_PROPERTY(QSizePolicy::Policy widthSizePolicy READ widthSizePolicy WRITE setWidthSizePolicy NOTIFY
                   widthSizePolicyChanged)

public:
    ~KaButton() override;

    // Always notifies and refreshes, even for the current style: re-applying
    // a style is the cheap way to refresh a button.
    void setStyle(KaButtonEnum::Style style);
    KaButtonEnum::Style style() const;
    // Does nothing for the current size.
    void setSize(KaButtonEnum::Size size);
    KaButtonEnum::Size size() const;
    // Always refreshes; widthSizePolicyChanged() only on a change.
    void setWidthSizePolicy(QSizePolicy::Policy policy);
    QSizePolicy::Policy widthSizePolicy() const;

    // Attaches a menu that opens when the button is pressed: a KaMenu with
    // KaMenu::popup() against the anchor KaMenu::popupWith() stored (below
    // the button without one), any other QMenu below the button. The
    // first live menu stays: a second call is ignored until that menu is
    // destroyed. KaMenu is a QMenu; the conversion happens where the caller
    // has the class complete.
    template <typename Menu = KaMenu> void setMenu(Menu* menu) { attachMenu(static_cast<QMenu*>(menu)); }
    void setMenu(std::nullptr_t) {}
    QMenu* attachedMenu() const { return m_menu; }

    KaButtonConfig* kaButtonConfig() const { return m_buttonConfig; }

Q_SIGNALS:
    void styleChanged(KaButtonEnum::Style style);
    void sizeChanged(KaButtonEnum::Size size);
    void widthSizePolicyChanged(QSizePolicy::Policy policy);

protected:
    KaButton(QWidget* parent, IKaButtonConfig* config);

private Q_SLOTS:
    void onToggled(bool checked);

private:
    void attachMenu(QMenu* menu);
    void popupMenu();

    QPointer<KaButtonConfig> m_buttonConfig;
    QPointer<QMenu> m_menu;
};
