#include "gallerywindow.h"

#include "gallerypage.h"
#include "gallerypageregistry.h"
#include "galleryutils.h"
#include "themedcombobox.h"

#include <bzcssdata.h>
#include <bzfont.h>
#include <bzfontmanager.h>
#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <bzwidget.h>
#include <kaconfig.h>
#include <kalabelbase.h>
#include <kasudotranslator.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {

// Built-in themes first, with readable names; loaded themes follow by name.
struct BuiltInTheme {
    const char* name;
    const char* title; // source text in the GalleryWindow context
};
const BuiltInTheme kBuiltInThemes[] = {
    {"light", QT_TRANSLATE_NOOP("GalleryWindow", "Light")},
    {"dark", QT_TRANSLATE_NOOP("GalleryWindow", "Dark")},
    {"highContrast", QT_TRANSLATE_NOOP("GalleryWindow", "High contrast")},
};

// Text sizes offered, in percent.
const int kTextScales[] = {75, 90, 100, 110, 125, 150, 175, 200};

// Marks the combo box entry that opens the file dialog instead of a theme.
constexpr int kLoadFileRole = Qt::UserRole + 1;

const char kCheckTemplate[] = R"(
QCheckBox { color: $(checkbox-unchecked-text); spacing: 6px; }
QCheckBox:checked { color: $(checkbox-checked-text); }
QCheckBox::indicator { width: 14px; height: 14px; border-radius: 3px;
                       border: 1px solid $(checkbox-unchecked-border); background: $(checkbox-unchecked-background); }
QCheckBox::indicator:hover { border-color: $(checkbox-unchecked-border.hovered); }
QCheckBox::indicator:checked { border-color: $(checkbox-checked-border); background: $(checkbox-checked-border); }
QCheckBox::indicator:checked:hover { background: $(checkbox-checked-border.hovered); }
)";

const char kPageListTemplate[] = R"(
QListWidget { background: $(panel-secondary-background); border: none; outline: 0; padding: 8px 0;
              color: $(listitem-textprimary); selection-color: $(listitem-textprimary.checked);
              selection-background-color: $(listitem-background.checked); }
QListWidget::item { padding: 8px 12px; margin: 1px 8px; border-radius: 6px; color: $(listitem-textprimary); }
QListWidget::item:hover { background: $(listitem-background.hovered); color: $(listitem-textprimary.hovered); }
QListWidget::item:selected { background: $(listitem-background.checked); color: $(listitem-textprimary.checked); }
)";

const char kStatusTemplate[] = R"(
QStatusBar { background: $(panel-secondary-background); color: $(label-secondary-text); }
QStatusBar::item { border: none; }
)";

const char kStatusWarningTemplate[] = R"(
QStatusBar { background: $(panel-secondary-background); color: $(label-warning-text); }
QStatusBar::item { border: none; }
)";

// Collects the warnings the library prints while a theme file is loaded, so
// the status bar can say what was wrong with it. They still reach the log.
QStringList* s_captured = nullptr;
QtMessageHandler s_previousHandler = nullptr;

void captureMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (s_captured && type != QtDebugMsg && type != QtInfoMsg)
        s_captured->append(message);
    if (s_previousHandler)
        s_previousHandler(type, context, message);
}

BzCSSData headerRecord() {
    BzCSSData record;
    record.backgroundColorSet = QStringLiteral("panel-secondary-background");
    record.borderColorSet = QStringLiteral("separator-primary");
    record.setSwitch(BzCSSData::BorderBottom, 1);
    record.setSwitch(BzCSSData::FollowState, 0);
    return record;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : QMainWindow(parent) {
    // The root paints the window background; everything on it is transparent.
    auto* root = new BzWidget;
    BzCSSData rootRecord;
    rootRecord.backgroundColorSet = QStringLiteral("panel-primary-background");
    rootRecord.textColorSet = QStringLiteral("label-primary-text");
    rootRecord.setSwitch(BzCSSData::FollowState, 0);
    root->setCSS(rootRecord);
    setCentralWidget(root);

    auto* header = new BzWidget;
    header->setCSS(headerRecord());
    buildHeader(header);

    // The side bar: the application's name over the page list.
    auto* sideBar = new BzWidget;
    BzCSSData sideRecord;
    sideRecord.backgroundColorSet = QStringLiteral("panel-secondary-background");
    sideRecord.setSwitch(BzCSSData::FollowState, 0);
    sideBar->setCSS(sideRecord);
    m_appTitle = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Subtitle);
    m_appTitle->setWordWrap(true);

    m_pageList = new QListWidget;
    BzThemeUtils::setWidgetCSS(m_pageList, QString::fromLatin1(kPageListTemplate));
    GalleryUtils::followTextScale(m_pageList, BzFont::Body);
    m_pageList->setFrameShape(QFrame::NoFrame);
    m_pageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pageList->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    // A widget rather than a style-sheet border, so it moves to the other
    // side of the list in right-to-left layouts.
    auto* divider = new BzWidget;
    BzCSSData dividerRecord;
    dividerRecord.backgroundColorSet = QStringLiteral("separator-primary");
    dividerRecord.setSwitch(BzCSSData::FollowState, 0);
    divider->setCSS(dividerRecord);
    divider->setFixedWidth(1);

    m_stack = new QStackedWidget;
    for (const auto& entry : GalleryPageRegistry::entries()) {
        auto* item = new QListWidgetItem(GalleryPageRegistry::title(entry), m_pageList);
        item->setData(Qt::UserRole, entry.id);
        // Placeholder until the page is first shown.
        m_stack->addWidget(new QWidget);
        m_pages.push_back(nullptr);
    }
    connect(m_pageList, &QListWidget::currentRowChanged, this, &GalleryWindow::showPageAt);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    auto* sideLayout = new QVBoxLayout(sideBar);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->setSpacing(0);
    auto* titleRow = new QHBoxLayout;
    titleRow->setContentsMargins(20, 16, 20, 4);
    titleRow->addWidget(m_appTitle);
    sideLayout->addLayout(titleRow);
    sideLayout->addWidget(m_pageList, 1);
    body->addWidget(sideBar);
    body->addWidget(divider);
    body->addWidget(m_stack, 1);

    auto* layout = new QVBoxLayout(root);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addLayout(body, 1);

    BzThemeUtils::setWidgetCSS(statusBar(), QString::fromLatin1(kStatusTemplate));
    GalleryUtils::followTextScale(statusBar(), BzFont::CaptionRegular);
    statusBar()->setSizeGripEnabled(false);
    connect(statusBar(), &QStatusBar::messageChanged, this, [this](const QString& message) {
        if (message.isEmpty())
            BzThemeUtils::setWidgetCSS(statusBar(), QString::fromLatin1(kStatusTemplate));
    });

    BzThemeManager* themes = BzThemeManager::instance();
    connect(themes, &BzThemeManager::themeRegistered, this, &GalleryWindow::fillThemeCombo);
    connect(themes, &BzThemeManager::currentThemeChanged, this, &GalleryWindow::syncThemeCombo);
    connect(BzFontManager::instance(), &BzFontManager::textScaleChanged, this,
            &GalleryWindow::updatePageListWidth);

    retranslateUi();
    m_pageList->setCurrentRow(0);
    // The selection marks the page on show.
    GalleryUtils::keepCurrentItemWithFocus(m_pageList);
}

GalleryWindow::~GalleryWindow() = default;

void GalleryWindow::buildHeader(BzWidget* header) {
    m_themeLabel = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall);
    m_textScaleLabel = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall);

    m_themeCombo = new ThemedComboBox;
    // Sized for the usual theme names rather than the longest entry, so the
    // header keeps fitting when texts grow; the popup shows entries whole.
    m_themeCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_themeCombo->setMinimumContentsLength(14);
    GalleryUtils::followTextScale(m_themeCombo, BzFont::BodySmall);
    m_themeLabel->setBuddy(m_themeCombo);
    connect(m_themeCombo, qOverload<int>(&QComboBox::activated), this, &GalleryWindow::onThemeActivated);

    m_rtlCheck = new QCheckBox;
    BzThemeUtils::setWidgetCSS(m_rtlCheck, QString::fromLatin1(kCheckTemplate));
    GalleryUtils::followTextScale(m_rtlCheck, BzFont::BodySmall);
    connect(m_rtlCheck, &QCheckBox::toggled, this, &GalleryWindow::applyRightToLeft);

    m_pseudoCheck = new QCheckBox;
    BzThemeUtils::setWidgetCSS(m_pseudoCheck, QString::fromLatin1(kCheckTemplate));
    GalleryUtils::followTextScale(m_pseudoCheck, BzFont::BodySmall);
    connect(m_pseudoCheck, &QCheckBox::toggled, this, &GalleryWindow::applyPseudoTranslation);

    m_textScale = new ThemedComboBox;
    m_textScale->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    GalleryUtils::followTextScale(m_textScale, BzFont::BodySmall);
    for (int percent : kTextScales)
        m_textScale->addItem(QString(), percent);
    m_textScale->setCurrentIndex(m_textScale->findData(100));
    m_textScaleLabel->setBuddy(m_textScale);
    connect(m_textScale, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        BzFontManager::instance()->setTextScale(m_textScale->itemData(index).toInt() / 100.0);
    });

    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(20, 10, 20, 10);
    layout->setSpacing(8);
    layout->addStretch(1);
    layout->addWidget(m_themeLabel);
    layout->addWidget(m_themeCombo);
    layout->addSpacing(12);
    layout->addWidget(m_rtlCheck);
    layout->addSpacing(12);
    layout->addWidget(m_pseudoCheck);
    layout->addSpacing(12);
    layout->addWidget(m_textScaleLabel);
    layout->addWidget(m_textScale);
}

QStringList GalleryWindow::pageIds() const {
    QStringList ids;
    for (const auto& entry : GalleryPageRegistry::entries())
        ids << entry.id;
    return ids;
}

QString GalleryWindow::currentPageId() const {
    const int index = m_stack->currentIndex();
    return index < 0 ? QString() : GalleryPageRegistry::entries()[size_t(index)].id;
}

GalleryPage* GalleryWindow::currentPage() const {
    const int index = m_stack->currentIndex();
    return index < 0 ? nullptr : m_pages[size_t(index)];
}

bool GalleryWindow::showPage(const QString& id) {
    const int index = GalleryPageRegistry::indexOf(id);
    if (index < 0)
        return false;
    m_pageList->setCurrentRow(index);
    return true;
}

void GalleryWindow::showPageAt(int index) {
    if (index < 0 || index >= int(m_pages.size()))
        return;
    m_stack->setCurrentWidget(ensurePage(index));
}

GalleryPage* GalleryWindow::ensurePage(int index) {
    if (!m_pages[size_t(index)]) {
        const auto& entry = GalleryPageRegistry::entries()[size_t(index)];
        GalleryPage* page = entry.create();
        page->setTitleSource(entry.title);
        QWidget* placeholder = m_stack->widget(index);
        m_stack->insertWidget(index, page);
        m_stack->removeWidget(placeholder);
        delete placeholder;
        m_pages[size_t(index)] = page;
    }
    return m_pages[size_t(index)];
}

bool GalleryWindow::applyTheme(const QString& name) {
    BzThemeManager* themes = BzThemeManager::instance();
    if (!themes->hasTheme(name))
        return false;
    // Components read the flag while they re-theme, so it goes first;
    // setCurrentTheme() then refreshes every widget.
    const bool highContrast = name == QLatin1String("highContrast") || themes->theme(name).isHighContrast();
    KaConfig::setIsHighContrast(highContrast);
    themes->setCurrentTheme(name);
    syncThemeCombo();
    return true;
}

void GalleryWindow::fillThemeCombo() {
    const QSignalBlocker blocker(m_themeCombo);
    m_themeCombo->clear();
    QStringList builtIn;
    for (const BuiltInTheme& theme : kBuiltInThemes) {
        builtIn << QLatin1String(theme.name);
        m_themeCombo->addItem(tr(theme.title), QLatin1String(theme.name));
    }
    QStringList loaded = BzThemeManager::instance()->themeNames();
    loaded.sort(Qt::CaseInsensitive);
    for (const QString& name : std::as_const(loaded)) {
        if (!builtIn.contains(name))
            m_themeCombo->addItem(name, name);
    }
    m_themeCombo->insertSeparator(m_themeCombo->count());
    m_themeCombo->addItem(tr("Load theme file…"));
    m_themeCombo->setItemData(m_themeCombo->count() - 1, true, kLoadFileRole);
    syncThemeCombo();
}

void GalleryWindow::syncThemeCombo() {
    const QSignalBlocker blocker(m_themeCombo);
    const int index = m_themeCombo->findData(BzThemeManager::instance()->currentThemeName());
    if (index >= 0)
        m_themeCombo->setCurrentIndex(index);
}

void GalleryWindow::onThemeActivated(int index) {
    if (m_themeCombo->itemData(index, kLoadFileRole).toBool()) {
        // The entry is an action, not a state: show the current theme again.
        syncThemeCombo();
        loadThemeFile();
        return;
    }
    applyTheme(m_themeCombo->itemData(index).toString());
}

void GalleryWindow::loadThemeFile() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Load theme file"), QString(),
                                                      tr("Theme files (*.json);;All files (*)"));
    if (!path.isEmpty())
        loadThemeFromFile(path);
}

bool GalleryWindow::loadThemeFromFile(const QString& path) {
    QStringList warnings;
    s_captured = &warnings;
    s_previousHandler = qInstallMessageHandler(captureMessage);
    const QString name = BzThemeManager::instance()->loadThemeFile(path);
    qInstallMessageHandler(s_previousHandler);
    s_captured = nullptr;

    const QString fileName = QFileInfo(path).fileName();
    if (name.isEmpty()) {
        showStatus(
            warnings.isEmpty()
                ? tr("Could not load the theme file %1.").arg(fileName)
                : tr("Could not load the theme file %1: %2").arg(fileName, warnings.join(QLatin1String(" "))),
            true);
        return false;
    }
    applyTheme(name);
    showStatus(tr("Loaded the theme \"%1\" from %2.").arg(name, fileName), false);
    return true;
}

void GalleryWindow::showStatus(const QString& message, bool warning) {
    BzThemeUtils::setWidgetCSS(statusBar(),
                               QString::fromLatin1(warning ? kStatusWarningTemplate : kStatusTemplate));
    statusBar()->showMessage(message, warning ? 20000 : 8000);
}

void GalleryWindow::setRightToLeft(bool on) {
    m_rtlCheck->setChecked(on);
}

bool GalleryWindow::isRightToLeft() const {
    return m_rtlCheck->isChecked();
}

void GalleryWindow::applyRightToLeft(bool on) {
    QGuiApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
}

void GalleryWindow::setPseudoTranslation(bool on) {
    m_pseudoCheck->setChecked(on);
}

void GalleryWindow::applyPseudoTranslation(bool on) {
    // Installing or removing a translator sends QEvent::LanguageChange to
    // every widget; changeEvent() and the pages' retranslateUi() do the rest.
    if (on && !m_translator) {
        m_translator = new KaSudoTranslator(this);
        QCoreApplication::installTranslator(m_translator);
    } else if (!on && m_translator) {
        QCoreApplication::removeTranslator(m_translator);
        delete m_translator;
        m_translator = nullptr;
    }
}

void GalleryWindow::setTextScalePercent(int percent) {
    int index = m_textScale->findData(percent);
    if (index < 0) {
        // Any size from the command line gets an entry of its own, in order.
        index = 0;
        while (index < m_textScale->count() && m_textScale->itemData(index).toInt() < percent)
            ++index;
        m_textScale->insertItem(index, QString(), percent);
        retranslateUi();
    }
    m_textScale->setCurrentIndex(index);
}

int GalleryWindow::textScalePercent() const {
    return m_textScale->currentData().toInt();
}

void GalleryWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    else if (event->type() == QEvent::LayoutDirectionChange)
        GalleryUtils::alignLabelsToLayoutDirection(this);
    QMainWindow::changeEvent(event);
}

void GalleryWindow::retranslateUi() {
    setWindowTitle(tr("Karvex Gallery"));
    m_appTitle->setText(tr("Karvex Gallery"));
    m_themeLabel->setText(tr("Theme"));
    m_rtlCheck->setText(tr("Right to left"));
    m_pseudoCheck->setText(tr("Pseudo-translation"));
    m_textScaleLabel->setText(tr("Text size"));
    // Combo boxes are otherwise read by their current value.
    m_themeCombo->setAccessibleName(m_themeLabel->text());
    m_textScale->setAccessibleName(m_textScaleLabel->text());
    m_pageList->setAccessibleName(tr("Pages"));
    for (int i = 0; i < m_textScale->count(); ++i)
        m_textScale->setItemText(i, tr("%1 %").arg(m_textScale->itemData(i).toInt()));
    fillThemeCombo();

    const auto& entries = GalleryPageRegistry::entries();
    for (int row = 0; row < m_pageList->count(); ++row)
        m_pageList->item(row)->setText(GalleryPageRegistry::title(entries[size_t(row)]));
    updatePageListWidth();
}

void GalleryWindow::updatePageListWidth() {
    // Wide enough for the longest title, which grows with pseudo-translation
    // and the text size.
    const int padding = 2 * 8 + 2 * 12 + 8;
    const int width = qMax(180, m_pageList->sizeHintForColumn(0) + padding);
    m_pageList->setFixedWidth(width);
    m_appTitle->setFixedWidth(width - 40);
}
