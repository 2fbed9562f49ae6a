#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class KaDialpadButton;
class KaDualComboButton;
class KaDualIconButton;
class KaEmojiPushButton;
class KaGifButton;
class KaHyperlinkButton;
class KaLabelBase;
class KaTitleBarButton;
class QGridLayout;
class QVBoxLayout;

// The button variants on one section of the buttons page: dual combo and
// dual icon buttons in every style, hyperlink, reaction, dial-pad, animated
// image and title-bar buttons, each enabled, disabled and (where it can be)
// checked. The title-bar buttons act on a small sample window, not on the
// gallery.
class ButtonVariantsSection : public QWidget {
    Q_OBJECT
public:
    explicit ButtonVariantsSection(QWidget* parent = nullptr);
    ~ButtonVariantsSection() override;

    void retranslateUi();

protected:
    void changeEvent(QEvent* event) override;

private:
    KaLabelBase* addHeading(QVBoxLayout* layout);
    QGridLayout* addStateGrid(QVBoxLayout* layout);
    void buildDualCombo(QVBoxLayout* layout);
    void buildDualIcon(QVBoxLayout* layout);
    void buildHyperlinks(QVBoxLayout* layout);
    void buildReactions(QVBoxLayout* layout);
    void buildDialpad(QVBoxLayout* layout);
    void buildAnimated(QVBoxLayout* layout);
    void buildTitleBar(QVBoxLayout* layout);
    void showSampleWindow();

    QList<KaLabelBase*> m_headings;
    QList<KaLabelBase*> m_columnLabels;
    QList<KaDualComboButton*> m_combos;
    QList<KaHyperlinkButton*> m_links;
    QList<KaGifButton*> m_gifs;
    KaHyperlinkButton* m_openSample = nullptr;
    QList<KaTitleBarButton*> m_titleBarButtons;
    QPointer<QWidget> m_sampleWindow;
};
