#pragma once

#include "gallerypage.h"

class QQuickWidget;

// A menu described in QML: a Qt Quick button whose click pops a native menu
// built from QmlKaMenuData (items, a sub-menu, a header, a tip banner and
// rows of a KaMenuListModel).
class QmlMenusPage : public GalleryPage {
    Q_OBJECT
public:
    explicit QmlMenusPage(QWidget* parent = nullptr);

public Q_SLOTS:
    // Hands the theme's colours to the QML scene, which cannot look them up.
    void onThemeChanged();

protected:
    void retranslateUi() override;
    void changeEvent(QEvent* event) override;

private:
    QQuickWidget* m_view;
};
