#pragma once

#include <QMainWindow>
#include <QStringList>

#include <vector>

class BzWidget;
class GalleryPage;
class KaLabelBase;
class KaSudoTranslator;
class QCheckBox;
class QListWidget;
class QStackedWidget;
class ThemedComboBox;

// The gallery's main window: a header with the theme, direction, language
// and text size controls, the page list on the leading side and the
// current page. Pages are created when first shown.
class GalleryWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit GalleryWindow(QWidget* parent = nullptr);
    ~GalleryWindow() override;

    QStringList pageIds() const;
    QString currentPageId() const;
    // The page on show; null before the first one is created.
    GalleryPage* currentPage() const;
    // Returns false for an unknown id.
    bool showPage(const QString& id);

    // Switches to a registered theme; returns false for an unknown name.
    bool applyTheme(const QString& name);
    // Registers the theme file at `path` and switches to it. On failure the
    // status bar shows what was wrong and the theme stays as it was.
    bool loadThemeFromFile(const QString& path);
    void setRightToLeft(bool on);
    bool isRightToLeft() const;
    void setPseudoTranslation(bool on);
    bool isPseudoTranslation() const { return m_translator != nullptr; }
    void setTextScalePercent(int percent);
    int textScalePercent() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildHeader(BzWidget* header);
    void fillThemeCombo();
    void syncThemeCombo();
    void onThemeActivated(int index);
    void loadThemeFile();
    void applyRightToLeft(bool on);
    void applyPseudoTranslation(bool on);
    void showPageAt(int index);
    GalleryPage* ensurePage(int index);
    void showStatus(const QString& message, bool warning);
    void retranslateUi();
    void updatePageListWidth();

    KaLabelBase* m_appTitle = nullptr;
    KaLabelBase* m_themeLabel = nullptr;
    KaLabelBase* m_textScaleLabel = nullptr;
    ThemedComboBox* m_themeCombo = nullptr;
    QCheckBox* m_rtlCheck = nullptr;
    QCheckBox* m_pseudoCheck = nullptr;
    ThemedComboBox* m_textScale = nullptr;
    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_stack = nullptr;
    std::vector<GalleryPage*> m_pages;
    KaSudoTranslator* m_translator = nullptr;
};
