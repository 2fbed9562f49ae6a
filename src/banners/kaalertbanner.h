#pragma once

#include "karvex_export.h"

#include <bzfont.h>
#include <bzwidget.h>

#include <QMargins>
#include <QMetaObject>
#include <QPointer>

class KaButton;
class KaLabel;
class KaSvgLabel;
class BzSvgPushButton;
class QHBoxLayout;

// An inline message strip: a rounded, tinted rectangle with a status icon, a
// text, up to two buttons and a dismiss cross. The type picks the icon and
// the colours, the style mode wrapping, font and margins, and the text
// alignment (fixed at construction) how the children are laid out.
//
// Children and their object names, in layout order: "alertBannerIcon",
// "alertBannerText", "primaryBannerButton", "secondaryBannerButton",
// "dismissButton"; the layout is "alertBannerLayout". Both buttons start
// hidden; show them with setButtonVisible() / setSecondaryButtonVisible().
class KARVEX_EXPORT KaAlertBanner : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(KaAlertBannerType alertType READ getType WRITE setAlertType NOTIFY alertTypeChanged)
    Q_PROPERTY(BannerStyleMode bannerStyleMode READ bannerStyleMode WRITE setBannerStyleMode NOTIFY
                   bannerStyleModeChanged)
    Q_PROPERTY(KaAlertBannerTextAlignment textAlignment READ textAlignment CONSTANT)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(bool hideOnDismiss READ hideOnDismiss WRITE setHideOnDismiss NOTIFY hideOnDismissChanged)

public:
    // Icon, text colour and background colour:
    //   Error           error badge        banner-style-error-*
    //   Issue           warning badge      banner-style-issue-*
    //   Success         check badge        banner-style-success-*
    //   Announcement    info badge         banner-style-announcement-*
    //   CallForwarding  call forwarding    banner-style-announcement-*
    //   Away            away presence      banner-style-announcement-*
    //   Transient       room lights        banner-style-transient-*
    // Any other value shows no icon and paints no background.
    enum KaAlertBannerType : int {
        Error = 0,
        Issue = 1,
        Success = 2,
        Announcement = 3,
        CallForwarding = 4,
        Away = 5,
        Transient = 6
    };
    Q_ENUM(KaAlertBannerType)

    //   mode        text     wrap  font        margins (l, t, r, b)  corners
    //   Wrapping    top      on    BodySmall   4, 4, 4, 4            8
    //   SingleLine  centred  off   Control     4, 6, 4, 6            14
    //   Compact     centred  off   Control     4, 3, 8, 3            14
    enum BannerStyleMode : int { Wrapping = 0, SingleLine = 1, Compact = 2 };
    Q_ENUM(BannerStyleMode)

    // TopAligned and TopAlignedAlt: icon, text and buttons at the top, the
    // dismiss cross centred vertically. Centered: the row centred as a whole.
    // CenteredContent: icon, text and buttons centred between two stretches,
    // the cross at the trailing edge.
    enum KaAlertBannerTextAlignment : int {
        TopAligned = 0,
        TopAlignedAlt = 1,
        Centered = 2,
        CenteredContent = 3
    };
    Q_ENUM(KaAlertBannerTextAlignment)

    explicit KaAlertBanner(QWidget* parent = nullptr, KaAlertBannerType type = Announcement,
                           KaAlertBannerTextAlignment alignment = TopAligned);
    ~KaAlertBanner() override;

    // A value outside the enumeration is kept (with a warning): no icon, no
    // colours. The same type again does nothing.
    void setAlertType(KaAlertBannerType type);
    KaAlertBannerType getType() const { return m_type; }
    // The colour-set name the background is painted with; empty for an
    // unknown type.
    QString backgroundToken() const { return m_backgroundToken; }
    // Icon and text colour-set name of a type; empty strings for unknown ones.
    static QString iconForType(int type);
    static QString textTokenForType(int type);
    static QString backgroundTokenForType(int type);

    // Other values are ignored with a warning.
    void setBannerStyleMode(BannerStyleMode mode);
    BannerStyleMode bannerStyleMode() const { return m_styleMode; }
    KaAlertBannerTextAlignment textAlignment() const { return m_alignment; }

    // The text's accessible name is `accessibleName`, or the text itself
    // when that is null.
    void setText(const QString& text, const QString& accessibleName = QString());
    QString text() const;
    // Rich text with selectable text and links that open by mouse and
    // keyboard (bannerLinkClicked()).
    void enableRichText();

    // The icon's fixed height is 16 + `adjustment` (to line it up with
    // larger fonts).
    void setIconFixedHeightAdjustment(int adjustment);
    void setLayoutContentMargins(const QMargins& margins);
    void setTextFontToken(BzFont::Token token);

    void setAccessibleName(const QString& name);
    void setSecondaryAccessibleName(const QString& name);
    void setDismissButtonAccessibleName(const QString& name);

    void setButtonText(const QString& text);
    void setButtonVisible(bool visible);
    void setButtonCheckable(bool checkable);
    void setButtonChecked(bool checked);
    void setButtonFocusPolicy(Qt::FocusPolicy policy);
    void setButtonAlignment(Qt::Alignment alignment);
    void setSecondaryButtonText(const QString& text);
    void setSecondaryButtonVisible(bool visible);
    void setSecondaryButtonCheckable(bool checkable);
    void setSecondaryButtonChecked(bool checked);
    void setSecondaryButtonFocusPolicy(Qt::FocusPolicy policy);
    void setSecondaryButtonAlignment(Qt::Alignment alignment);
    void setDismissButtonVisible(bool visible);
    void setDismissButtonFocusPolicy(Qt::FocusPolicy policy);

    // Whether the dismiss cross also hides the banner (off by default).
    void setHideOnDismiss(bool hide);
    bool hideOnDismiss() const { return m_hideOnDismiss; }

public Q_SLOTS:
    void onThemeChanged() override;

Q_SIGNALS:
    void bannerLinkClicked(const QString& link);
    void alerBannerButtonClicked();
    void secondaryAlertBannerButtonClicked();
    void dismissed();
    void alertTypeChanged();
    void bannerStyleModeChanged();
    void textChanged();
    void hideOnDismissChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setIconAndTextAlignment();
    void applyBannerStyle();
    void applyColours();
    void setChildAlignment(QWidget* child, Qt::Alignment alignment);

    KaSvgLabel* m_icon;
    KaLabel* m_text;
    KaButton* m_primary;
    KaButton* m_secondary;
    BzSvgPushButton* m_dismiss;
    QHBoxLayout* m_layout;
    KaAlertBannerType m_type = KaAlertBannerType(-1);
    QString m_backgroundToken;
    BannerStyleMode m_styleMode = Wrapping;
    KaAlertBannerTextAlignment m_alignment = TopAligned;
    int m_textToken = BzFont::BodySmall;
    QMetaObject::Connection m_hideConnection;
    bool m_hideOnDismiss = false;
};
