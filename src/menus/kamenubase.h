#pragma once

#include "karvex_export.h"

#include <bzcssdata.h>
#include <bzfont.h>
#include <bzfontmanager.h>

#include <QMenu>
#include <QPoint>
#include <QPointer>
#include <QString>

class BzScaledFont;

// A QMenu that takes its look from a style-sheet template resolved against
// the current theme ("$(set)" colour references), follows a parent's
// "themeType", and remembers a first action that popupAt() highlights, so
// that keyboard users land on an entry instead of on the bare menu.
class KARVEX_EXPORT KaMenuBase : public QMenu {
    Q_OBJECT
    Q_PROPERTY(QString styleSheet READ styleSheet WRITE setStyleSheet NOTIFY cssChanged)
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY themeTypeChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont)
    Q_PROPERTY(BzFont::Token fontToken READ fontToken WRITE setFontToken NOTIFY fontTokenChanged)
    Q_PROPERTY(FontManagerEnum::FontType fontType READ fontType WRITE setFontType NOTIFY fontTypeChanged)

public:
    // A parentless menu that takes over `source`'s actions.
    explicit KaMenuBase(QMenu* source);
    KaMenuBase(QMenu* source, QWidget* parent);
    explicit KaMenuBase(QWidget* parent = nullptr, bool unused = false);
    ~KaMenuBase() override;

    // Resolves the template for this menu's theme and applies it. Kept, so
    // that a theme change resolves it again.
    void setCSS(const QString& css);
    void setCSS(const BzCSSData& record);
    QString getCSS() const { return m_css; }
    BzCSSData getWCSS() const { return m_cssData; }
    // A plain Qt style sheet; the first one also becomes the template.
    void setStyleSheet(const QString& styleSheet);

    QString themeType() const { return m_themeType; }
    void setThemeType(const QString& themeType);

    BzFont::Token fontToken() const { return m_fontToken; }
    void setFontToken(BzFont::Token token);
    FontManagerEnum::FontType fontType() const { return m_fontType; }
    void setFontType(FontManagerEnum::FontType type);

    using QMenu::addAction;
    QAction* addAction(const QString& text);
    void addAction(QAction* action);

    // Null forgets the first action.
    void setFirstAction(QAction* action);
    QAction* getFirstAction() const { return m_firstAction; }

    // Opens at the global `point`, the first action highlighted (a sub-menu
    // of it stays folded); without one the window itself is activated.
    void popupAt(const QPoint& point);
    QPoint lastPopupPoint() const { return m_popupPoint; }

public Q_SLOTS:
    void refreshCSS();
    virtual void onThemeChanged();
    void onParentThemeTypeChanged();

Q_SIGNALS:
    void cssChanged();
    void themeTypeChanged();
    void fontTokenChanged();
    void fontTypeChanged();

protected:
    // Re-reads the font of the token and type, following the text scale for
    // scaled fonts.
    void updateFont();
    // Where setCSS() puts the resolved text; KaMenu paints from colour sets
    // and keeps Qt's style-sheet engine away from its entry widgets.
    virtual void applyResolvedStyleSheet(const QString& sheet);
    void changeEvent(QEvent* event) override;

private:
    void init();
    void takeActionsFrom(QMenu* source);
    void connectParentThemeType();

    QString m_css;
    BzCSSData m_cssData;
    QString m_themeType = QStringLiteral("global");
    BzFont::Token m_fontToken = BzFont::Body;
    FontManagerEnum::FontType m_fontType = FontManagerEnum::None;
    QPointer<BzScaledFont> m_scaledFont;
    QMetaObject::Connection m_scaledFontConnection;
    QMetaObject::Connection m_parentThemeConnection;
    QPoint m_popupPoint;
    QPointer<QAction> m_firstAction;
};
