#include "qmlmenuspage.h"

#include <bzthemeutils.h>
#include <karvextypes.h>

#include <QEvent>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QVBoxLayout>

QmlMenusPage::QmlMenusPage(QWidget* parent)
    : GalleryPage(parent) {
    // What a host does once before loading QML; the installed module would
    // serve as well.
    KarvexTypes::registerQmlTypes();
    // A flat button needs no GPU; the software renderer also works where
    // OpenGL does not (offscreen screenshots, a virtual X server), while a
    // failed OpenGL set-up leaves the view's accessibility pointing at a
    // dead scene window.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    m_view = new QQuickWidget(this);
    m_view->setObjectName(QStringLiteral("qmlMenusView"));
    m_view->setResizeMode(QQuickWidget::SizeRootObjectToView);
    m_view->setClearColor(Qt::transparent);
    m_view->setAttribute(Qt::WA_AlwaysStackOnTop);
    m_view->setSource(QUrl(QStringLiteral("qrc:/gallery/qmlmenus.qml")));
    m_view->setFixedHeight(56);
    m_view->setFocusPolicy(Qt::StrongFocus);
    contentLayout()->addWidget(m_view);
    contentLayout()->addStretch(1);
    retranslateUi();
    onThemeChanged();
}

void QmlMenusPage::onThemeChanged() {
    QQuickItem* root = m_view->rootObject();
    if (!root)
        return;
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    root->setProperty("buttonColor", BzThemeUtils::getColorSet("button-primary-background", type).normal());
    root->setProperty("buttonTextColor", BzThemeUtils::getColorSet("button-primary-text", type).normal());
    root->setProperty("focusColor", BzThemeUtils::getColorSet("label-primary-text", type).normal());
    root->setProperty("mirrored", layoutDirection() == Qt::RightToLeft);
}

void QmlMenusPage::changeEvent(QEvent* event) {
    GalleryPage::changeEvent(event);
    // Qt Quick mirrors only when told to.
    if (event->type() == QEvent::LayoutDirectionChange) {
        if (QQuickItem* root = m_view->rootObject())
            root->setProperty("mirrored", layoutDirection() == Qt::RightToLeft);
    }
}

void QmlMenusPage::retranslateUi() {
    setDescription(tr("A menu described in QML with QmlKaMenuData and shown as a native menu: items, a "
                      "sub-menu, a tip banner, a section header and rows of a KaMenuListModel. Click "
                      "the button to open it."));
    m_view->setAccessibleName(tr("QML menu demo"));
    if (QQuickItem* root = m_view->rootObject()) {
        root->setProperty("buttonText", tr("Open menu"));
        //: %1 is the title of the chosen menu entry.
        root->setProperty("choiceText", tr("Chosen: %1"));
    }
}
