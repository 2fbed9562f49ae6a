#pragma once

#include "kaavatarconfig.h"
#include "kaavatarenum.h"
#include "kapixmaploader.h"
#include "karvex_export.h"

#include <kalabelbase.h>

#include <QPointer>

// Shows one avatar made by a shared KaPixmapLoader and sizes itself to it.
// Every property change asks the loader again; so does every
// overlaysUpdated() (a theme switch) and a move to a screen of another
// scale. The view never owns the loader and survives its deletion (it keeps
// its last picture). Mouse clicks and Return, Enter and Space emit clicked().
//
// Screen readers hear the tooltip text, or else the initials, followed by
// the presence ("Alex Kim, in a meeting"), unless the host set an
// accessible name of its own.
class KARVEX_EXPORT KaAvatarView : public KaLabelBase {
    Q_OBJECT
    Q_PROPERTY(KaAvatarEnum::Presence presence READ presence WRITE setPresence NOTIFY presenceChanged)
    Q_PROPERTY(KaAvatarEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QPixmap avatarPixmap READ avatarPixmap WRITE setAvatarPixmap NOTIFY avatarPixmapChanged)
    Q_PROPERTY(QColor avatarColor READ avatarColor WRITE setAvatarColor NOTIFY avatarColorChanged)
    Q_PROPERTY(
        QString avatarInitials READ avatarInitials WRITE setAvatarInitials NOTIFY avatarInitialsChanged)

public:
    explicit KaAvatarView(QWidget* parent = nullptr);
    KaAvatarView(QWidget* parent, KaPixmapLoader* loader);
    KaAvatarView(QWidget* parent, KaPixmapLoader* loader, KaAvatarEnum::Presence presence,
                 KaAvatarEnum::Size size);
    KaAvatarView(QWidget* parent, KaPixmapLoader* loader, const QPixmap& pixmap,
                 KaAvatarEnum::Presence presence, KaAvatarEnum::Size size);
    ~KaAvatarView() override;

    // Asks the loader at once and again whenever its overlays change.
    void setPixmapLoader(KaPixmapLoader* loader);
    KaPixmapLoader* pixmapLoader() const { return m_loader; }

    KaAvatarEnum::Presence presence() const { return m_presence; }
    void setPresence(KaAvatarEnum::Presence presence);
    // QWidget::size() gives the widget's size; this is the avatar's class.
    KaAvatarEnum::Size size() const { return m_size; }
    void setSize(KaAvatarEnum::Size size);
    KaAvatarEnum::AvatarType avatarType() const { return m_avatarType; }
    void setAvatarType(KaAvatarEnum::AvatarType type);
    QColor avatarColor() const { return m_avatarColor; }
    void setAvatarColor(const QColor& color);
    QString avatarInitials() const { return m_avatarInitials; }
    void setAvatarInitials(const QString& initials);
    // A null picture shows the initials avatar (type DefaultAvatar), any
    // other the picture (type Image).
    QPixmap avatarPixmap() const { return m_avatarPixmap; }
    void setAvatarPixmap(const QPixmap& pixmap);
    // Shown on hover at the cursor; also the accessible name.
    void setTooltip(const QString& text);
    QString tooltip() const { return m_tooltip; }

    // The request the view hands to the loader.
    KaAvatarConfig avatarConfig() const { return m_config; }

public Q_SLOTS:
    void onThemeChanged() override;

Q_SIGNALS:
    void presenceChanged(KaAvatarEnum::Presence presence);
    void sizeChanged(KaAvatarEnum::Size size);
    void avatarPixmapChanged(const QPixmap& pixmap);
    void avatarColorChanged(const QColor& color);
    // Carries a pixmap loaded from a file named like the initials (normally
    // null), as it always has.
    void avatarInitialsChanged(const QPixmap& pixmap);
    void clicked();

protected:
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void updateAvatar();
    void updateAccessibleName();

    KaAvatarEnum::Presence m_presence = KaAvatarEnum::None;
    KaAvatarEnum::Size m_size = KaAvatarEnum::XSmall;
    KaAvatarEnum::AvatarType m_avatarType = KaAvatarEnum::DefaultAvatar;
    QPointer<KaPixmapLoader> m_loader;
    QPixmap m_avatarPixmap;
    KaAvatarConfig m_config;
    QString m_avatarInitials;
    QString m_tooltip;
    QColor m_avatarColor;
    QString m_defaultAccessibleName;
    bool m_pressed = false;
    bool m_deferUpdates = false;
};
