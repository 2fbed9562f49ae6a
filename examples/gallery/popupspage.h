#pragma once

#include "gallerypage.h"

#include <kawidgetdata.h>

#include <QList>
#include <QPointer>

class KaLabel;
class KaLabelBase;
class KaPopover;
class PopupPreview;
class KaMoreInfoButton;
class QLabel;
class QPushButton;

// Labels (colour sets, wrapping, Ctrl+C), popovers on every side of an
// anchor, the text popover and the themed tooltip.
class PopupsPage : public GalleryPage {
    Q_OBJECT
public:
    explicit PopupsPage(QWidget* parent = nullptr);

protected:
    void retranslateUi() override;
    void hideEvent(QHideEvent* event) override;

private:
    void addLabelSection();
    void addPopoverSection();
    void addToolTipRow();
    void openPopover(int button);
    KaLabelBase* heading();

    struct LabelSample {
        KaLabel* label;
        const char* text;
    };
    QList<LabelSample> m_samples;
    QList<KaLabelBase*> m_headings;
    KaLabel* m_wrapped = nullptr;
    KaLabel* m_selectable = nullptr;
    KaLabel* m_copied = nullptr;
    QPushButton* m_anchor = nullptr;
    QList<QPushButton*> m_popoverButtons;
    PopupPreview* m_preview = nullptr;
    QPushButton* m_toolTipButton = nullptr;
    QLabel* m_toolTipSample = nullptr;
    KaMoreInfoButton* m_moreInfo = nullptr;
    QPointer<KaPopover> m_popover;
};
