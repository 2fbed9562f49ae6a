#pragma once

#include "gallerypage.h"

#include <QList>

class KaLabelBase;
class QListWidget;

// The keyboard focus ring on widgets of several shapes, in a list view and
// in a scroll area. Tab walks through them.
class FocusPage : public GalleryPage {
    Q_OBJECT
public:
    explicit FocusPage(QWidget* parent = nullptr);

    // Keeps the application's "isKeyboardFocus" in step with how focus
    // moves: set by Tab and Shift+Tab, cleared by a mouse press. Call once.
    static void followKeyboardNavigation();

protected:
    void retranslateUi() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Row {
        QWidget* sample;
        KaLabelBase* title;
        KaLabelBase* note;
    };
    void addRow(QWidget* sample);
    bool isScreenshotMode() const;

    QList<Row> m_rows;
    QList<QWidget*> m_scrolledButtons;
    QListWidget* m_list = nullptr;
    KaLabelBase* m_hint = nullptr;
    bool m_windowWasActive = false;
};
