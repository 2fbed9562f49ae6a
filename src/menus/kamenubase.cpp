#include "kamenubase.h"

#include <bzscaledfont.h>
#include <bzthemeutils.h>

#include <QEvent>

KaMenuBase::KaMenuBase(QMenu* source)
    : KaMenuBase(nullptr, false) {
    takeActionsFrom(source);
}

KaMenuBase::KaMenuBase(QMenu* source, QWidget* parent)
    : KaMenuBase(parent, false) {
    takeActionsFrom(source);
}

KaMenuBase::KaMenuBase(QWidget* parent, bool)
    : QMenu(parent) {
    init();
}

KaMenuBase::~KaMenuBase() = default;

void KaMenuBase::init() {
    setObjectName(QStringLiteral("KaMenuBase"));
    setAccessibleName(tr("Context menu options, Menu, Use up and down arrow keys to navigate"));
    updateFont();
    connect(this, &KaMenuBase::themeTypeChanged, this, &KaMenuBase::onThemeChanged);
    connectParentThemeType();
    onParentThemeTypeChanged();
}

void KaMenuBase::takeActionsFrom(QMenu* source) {
    if (!source) {
        qWarning("KaMenuBase: no source menu to take actions from");
        return;
    }
    for (QAction* action : source->actions())
        addAction(action);
}

void KaMenuBase::setCSS(const QString& css) {
    m_css = css;
    m_cssData = BzThemeUtils::parseCSS(this, css, BzThemeUtils::getAppWColorSets());
    applyResolvedStyleSheet(m_cssData.styleSheet);
    Q_EMIT cssChanged();
}

void KaMenuBase::setCSS(const BzCSSData& record) {
    setCSS(BzThemeUtils::convertToWCSS(record));
}

void KaMenuBase::applyResolvedStyleSheet(const QString& sheet) {
    if (QWidget::styleSheet() != sheet)
        QWidget::setStyleSheet(sheet);
}

void KaMenuBase::setStyleSheet(const QString& styleSheet) {
    if (m_css.isEmpty())
        m_css = styleSheet;
    QWidget::setStyleSheet(styleSheet);
}

void KaMenuBase::refreshCSS() {
    if (!m_css.isEmpty())
        setCSS(m_css);
}

void KaMenuBase::setThemeType(const QString& themeType) {
    if (m_themeType == themeType)
        return;
    m_themeType = themeType;
    refreshCSS();
    Q_EMIT themeTypeChanged();
}

void KaMenuBase::onThemeChanged() {
    refreshCSS();
    update();
}

void KaMenuBase::onParentThemeTypeChanged() {
    QWidget* parent = parentWidget();
    const QVariant value = parent ? parent->property("themeType") : QVariant();
    if (!value.isValid() || value.toString().isEmpty())
        return;
    setThemeType(value.toString());
}

void KaMenuBase::connectParentThemeType() {
    if (m_parentThemeConnection)
        disconnect(m_parentThemeConnection);
    m_parentThemeConnection = BzThemeUtils::connectParentThemeType(parentWidget(), this);
}

void KaMenuBase::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ParentChange) {
        connectParentThemeType();
        onParentThemeTypeChanged();
    }
    QMenu::changeEvent(event);
}

void KaMenuBase::setFontToken(BzFont::Token token) {
    if (token < BzFont::Body || token >= BzFont::TokenCount) {
        qWarning("KaMenuBase: font token %d out of range, using Body", int(token));
        token = BzFont::Body;
    }
    if (m_fontToken == token)
        return;
    m_fontToken = token;
    updateFont();
    Q_EMIT fontTokenChanged();
}

void KaMenuBase::setFontType(FontManagerEnum::FontType type) {
    if (m_fontType == type)
        return;
    m_fontType = type;
    updateFont();
    Q_EMIT fontTypeChanged();
}

void KaMenuBase::updateFont() {
    if (m_scaledFontConnection)
        disconnect(m_scaledFontConnection);
    m_scaledFont.clear();
    if (m_fontType != FontManagerEnum::None && BzFontManager::exists()) {
        if (BzScaledFont* scaled = BzFontManager::instance()->scaledFont(m_fontType, m_fontToken)) {
            m_scaledFont = scaled;
            QMenu::setFont(scaled->font());
            m_scaledFontConnection = connect(scaled, &BzScaledFont::fontTokenChanged, this, [this] {
                if (m_scaledFont)
                    QMenu::setFont(m_scaledFont->font());
            });
            return;
        }
    }
    QMenu::setFont(BzFont(m_fontToken, false));
}

QAction* KaMenuBase::addAction(const QString& text) {
    QAction* action = QMenu::addAction(text);
    if (!m_firstAction)
        m_firstAction = action;
    return action;
}

void KaMenuBase::addAction(QAction* action) {
    if (!action) {
        qWarning("KaMenuBase: null action ignored");
        return;
    }
    QWidget::addAction(action);
    if (!m_firstAction)
        m_firstAction = action;
}

void KaMenuBase::setFirstAction(QAction* action) {
    m_firstAction = action;
}

void KaMenuBase::popupAt(const QPoint& point) {
    m_popupPoint = point;
    QMenu::popup(point);
    if (m_firstAction && actions().contains(m_firstAction)) {
        setActiveAction(m_firstAction);
        // Highlight the entry without unfolding what it opens.
        if (QMenu* sub = m_firstAction->menu(); sub && sub->isVisible())
            sub->hide();
    } else {
        activateWindow();
    }
}
