#include "focuspage.h"

#include "galleryutils.h"

#include <bzcolorset.h>
#include <bzcssdata.h>
#include <bzfont.h>
#include <bzthemeutils.h>
#include <bzwidget.h>
#include <drawutils.h>
#include <kalabelbase.h>

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QListWidget>
#include <QPainter>
#include <QScrollArea>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

// A themed shape that takes focus and asks its style for the focus
// rectangle, as the library's own controls do.
class FocusSample : public QWidget {
    Q_OBJECT
public:
    // `radius` -1 means half the height.
    FocusSample(const QString& background, const QString& border, const QString& text, int radius,
                DrawUtils::Corners squareCorners = {}, QWidget* parent = nullptr)
        : QWidget(parent)
        , m_backgroundName(background)
        , m_borderName(border)
        , m_textName(text)
        , m_radius(radius)
        , m_squareCorners(squareCorners) {
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        GalleryUtils::followTextScale(this, BzFont::Button);
        onThemeChanged();
    }

    void setText(const QString& text) {
        m_text = text;
        setAccessibleName(text);
        update();
    }

public Q_SLOTS:
    void onThemeChanged() {
        const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
        m_background = BzThemeUtils::getColorSet(m_backgroundName, type);
        m_border = m_borderName.isEmpty() ? BzColorSet() : BzThemeUtils::getColorSet(m_borderName, type);
        m_textColors = BzThemeUtils::getColorSet(m_textName, type);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        const qreal radius = m_radius < 0 ? height() / 2.0 : m_radius;
        DrawUtils::drawRoundedRect(&painter, QRectF(rect()), radius, m_background.colorFor(option.state),
                                   m_border.colorFor(option.state), 1, m_squareCorners);
        if (!m_text.isEmpty()) {
            painter.setPen(m_textColors.colorFor(option.state));
            painter.drawText(rect(), Qt::AlignCenter, m_text);
        }
        if (hasFocus()) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
        }
    }

    void changeEvent(QEvent* event) override {
        // Another parent may carry another "themeType".
        if (event->type() == QEvent::ParentChange)
            onThemeChanged();
        QWidget::changeEvent(event);
    }

private:
    QString m_backgroundName;
    QString m_borderName;
    QString m_textName;
    BzColorSet m_background;
    BzColorSet m_border;
    BzColorSet m_textColors;
    QString m_text;
    int m_radius;
    DrawUtils::Corners m_squareCorners;
};

// Item views leave the option's style object empty. Naming the view there
// lets its "hasCustomRect" put the ring around the current item.
class CurrentItemRingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->styleObject = const_cast<QWidget*>(option->widget);
    }
};

// Sets "isKeyboardFocus" on the application while the user walks with Tab.
class KeyboardFocusTracker : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
                qApp->setProperty("isKeyboardFocus", true);
        } else if (event->type() == QEvent::MouseButtonPress) {
            qApp->setProperty("isKeyboardFocus", false);
        }
        return QObject::eventFilter(watched, event);
    }
};

const char kListTemplate[] = R"(
QListWidget { background: $(panel-secondary-background); border: 1px solid $(separator-primary);
              border-radius: 6px; color: $(listitem-textprimary); padding: 4px; }
QListWidget::item { padding: 0 10px; color: $(listitem-textprimary); }
QListWidget::item:hover { background: $(listitem-background.hovered); color: $(listitem-textprimary.hovered); }
QListWidget::item:selected { background: $(listitem-background.checked); color: $(listitem-textprimary.checked); }
QScrollBar:vertical { background: $(scrollbar-track-background); width: 10px; border: none; margin: 0; }
QScrollBar::handle:vertical { background: $(scrollbar-thumb-background); border-radius: 3px; margin: 2px;
                              min-height: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; border: none; background: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
)";

constexpr int kListRows = 12;
constexpr int kScrolledButtons = 8;

BzCSSData frameRecord() {
    BzCSSData record;
    record.borderColorSet = QStringLiteral("separator-primary");
    record.setBorders(true);
    record.borderRadius = 8;
    record.setSwitch(BzCSSData::PaintBackground, 0);
    record.setSwitch(BzCSSData::FollowState, 0);
    return record;
}

} // namespace

FocusPage::FocusPage(QWidget* parent)
    : GalleryPage(parent) {
    m_hint = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall);
    m_hint->setWordWrap(true);
    contentLayout()->addWidget(m_hint);
    contentLayout()->addSpacing(8);

    auto* rectangle =
        new FocusSample(QStringLiteral("panel-secondary-background"), QStringLiteral("separator-primary"),
                        QStringLiteral("label-primary-text"), 0);
    rectangle->setFixedSize(160, 56);
    rectangle->setProperty("focusBorderRadius", 0.0);
    addRow(rectangle);

    auto* pill = new FocusSample(QStringLiteral("button-primary-background"), QString(),
                                 QStringLiteral("button-primary-text"), -1);
    pill->setFixedSize(140, 36);
    addRow(pill);

    auto* circle = new FocusSample(QStringLiteral("button-primary-background"), QString(),
                                   QStringLiteral("button-primary-text"), -1);
    circle->setFixedSize(44, 44);
    addRow(circle);

    auto* inset = new FocusSample(QStringLiteral("textinput-background"), QStringLiteral("textinput-border"),
                                  QStringLiteral("label-secondary-text"), 6);
    inset->setFixedSize(200, 40);
    inset->setProperty("focusBorderRadius", 6.0);
    inset->setProperty("focusMargin", 0);
    addRow(inset);

    const DrawUtils::Corners bottomSquare = DrawUtils::BottomLeft | DrawUtils::BottomRight;
    auto* tab =
        new FocusSample(QStringLiteral("panel-secondary-background"), QStringLiteral("separator-primary"),
                        QStringLiteral("label-primary-text"), 12, bottomSquare);
    tab->setFixedSize(140, 44);
    tab->setProperty("focusBorderRadius", 12.0);
    tab->setProperty("rectangularCornerMask", uint(bottomSquare));
    addRow(tab);

    m_list = new QListWidget;
    m_list->setItemDelegate(new CurrentItemRingDelegate(m_list));
    BzThemeUtils::setWidgetCSS(m_list, QString::fromLatin1(kListTemplate));
    GalleryUtils::followTextScale(m_list, BzFont::Body);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setFixedSize(240, 156);
    for (int i = 0; i < kListRows; ++i) {
        auto* item = new QListWidgetItem(m_list);
        item->setSizeHint(QSize(0, 34));
    }
    m_list->setCurrentRow(0);
    GalleryUtils::keepCurrentItemWithFocus(m_list);
    // Inside the item, which leaves no room around it.
    m_list->setProperty("hasCustomRect", true);
    m_list->setProperty("focusMargin", 0);
    m_list->setProperty("focusBorderRadius", 6.0);
    addRow(m_list);

    auto* frame = new BzWidget;
    frame->setCSS(frameRecord());
    frame->setFixedSize(240, 156);
    auto* area = new QScrollArea;
    GalleryUtils::styleScrollArea(area);
    // Tab goes straight to the buttons; the area itself draws no focus.
    area->setFocusPolicy(Qt::NoFocus);
    auto* buttons = new BzWidget;
    auto* buttonLayout = new QVBoxLayout(buttons);
    // Room for the ring inside the clipping viewport.
    buttonLayout->setContentsMargins(12, 10, 12, 10);
    buttonLayout->setSpacing(12);
    for (int i = 0; i < kScrolledButtons; ++i) {
        auto* button = new FocusSample(QStringLiteral("button-primary-background"), QString(),
                                       QStringLiteral("button-primary-text"), -1);
        button->setFixedHeight(32);
        buttonLayout->addWidget(button);
        m_scrolledButtons << button;
    }
    area->setWidget(buttons);
    buttons->setAutoFillBackground(false);
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->setContentsMargins(1, 1, 1, 1);
    frameLayout->addWidget(area);
    addRow(frame);
    // A scroll area only scrolls itself to a widget that Tab reaches from
    // within it; coming from outside, neither this area nor the page would.
    connect(qApp, &QApplication::focusChanged, this, [this, area, frame](QWidget*, QWidget* now) {
        if (!now || !m_scrolledButtons.contains(now))
            return;
        area->ensureWidgetVisible(now, 12, 10);
        scrollArea()->ensureWidgetVisible(frame, 0, 12);
    });

    contentLayout()->addStretch(1);
    retranslateUi();
}

void FocusPage::addRow(QWidget* sample) {
    Row row{sample, GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Subtitle),
            GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall)};
    GalleryUtils::markAsHeading(row.title);
    row.note->setWordWrap(true);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(row.title);
    texts->addWidget(row.note);
    texts->addStretch(1);

    auto* line = new QHBoxLayout;
    line->setSpacing(28);
    // A fixed column, with room for the ring on every side.
    auto* cell = new QVBoxLayout;
    cell->setContentsMargins(8, 8, 8, 8);
    cell->addWidget(sample, 0, Qt::AlignLeading | Qt::AlignTop);
    auto* column = new QWidget;
    column->setFixedWidth(260);
    column->setLayout(cell);
    line->addWidget(column);
    line->addLayout(texts, 1);
    contentLayout()->addLayout(line);
    m_rows << row;
}

void FocusPage::retranslateUi() {
    setDescription(tr("The focus style draws one ring around whichever widget has keyboard focus: a soft "
                      "halo and a solid line in \"global-focus-outline\", with an inner line in "
                      "\"textinput-background\". Widgets shape it with dynamic properties."));
    m_hint->setText(tr("Press Tab and Shift+Tab to walk through the samples below."));

    const QStringList titles = {
        tr("Rectangular frame"),     tr("Pill-shaped button"), tr("Circle"),      tr("Ring on the edge"),
        tr("Square bottom corners"), tr("List view"),          tr("Scroll area"),
    };
    const QStringList notes = {
        tr("\"focusBorderRadius\" 0: square corners, 5 px outside the frame (the default \"focusMargin\")."),
        tr("No radius set: the ring takes half the smaller side, so it stays a pill."),
        tr("A square widget with the default radius gets a round ring."),
        tr("\"focusMargin\" 0: the ring lies on the widget's own edge, for places without room around it."),
        tr("\"rectangularCornerMask\" 12: bottom-left (4) and bottom-right (8) corners stay square."),
        tr("\"hasCustomRect\": the ring surrounds the current item inside the view. The arrow keys move "
           "it; scrolled out of view, it hides."),
        tr("The ring is clipped by the scroll area and follows the button as the content scrolls; "
           "scrolled out of view, it hides."),
    };
    for (int i = 0; i < m_rows.size(); ++i) {
        m_rows[i].title->setText(titles.value(i));
        m_rows[i].note->setText(notes.value(i));
    }

    static_cast<FocusSample*>(m_rows[0].sample)->setText(tr("Frame"));
    static_cast<FocusSample*>(m_rows[1].sample)->setText(tr("Send"));
    static_cast<FocusSample*>(m_rows[2].sample)->setText(tr("OK"));
    static_cast<FocusSample*>(m_rows[3].sample)->setText(tr("Search"));
    static_cast<FocusSample*>(m_rows[4].sample)->setText(tr("Tab"));
    m_list->setAccessibleName(tr("Conversations"));
    for (int i = 0; i < m_list->count(); ++i)
        m_list->item(i)->setText(tr("Conversation %1").arg(i + 1));
    for (int i = 0; i < m_scrolledButtons.size(); ++i)
        static_cast<FocusSample*>(m_scrolledButtons[i])->setText(tr("Button %1").arg(i + 1));
}

bool FocusPage::isScreenshotMode() const {
    // The screenshot runner lays the window out without mapping it.
    return window()->testAttribute(Qt::WA_DontShowOnScreen);
}

void FocusPage::showEvent(QShowEvent* event) {
    GalleryPage::showEvent(event);
    if (!isScreenshotMode())
        return;
    // Screenshots are taken without input: focus the first sample as Tab
    // would, and have it paint once so that it asks for its ring.
    m_windowWasActive = window()->isActiveWindow();
    qApp->setProperty("isKeyboardFocus", true);
    QApplication::setActiveWindow(window());
    m_rows.constFirst().sample->setFocus(Qt::TabFocusReason);
    m_rows.constFirst().sample->grab();
}

void FocusPage::hideEvent(QHideEvent* event) {
    if (isScreenshotMode()) {
        // Leave the other pages' screenshots as they were.
        if (QWidget* focused = QApplication::focusWidget())
            focused->clearFocus();
        qApp->setProperty("isKeyboardFocus", QVariant());
        if (!m_windowWasActive)
            QApplication::setActiveWindow(nullptr);
    }
    GalleryPage::hideEvent(event);
}

void FocusPage::followKeyboardNavigation() {
    static QObject* tracker = nullptr;
    if (tracker)
        return;
    tracker = new KeyboardFocusTracker(qApp);
    qApp->installEventFilter(tracker);
}

#include "focuspage.moc"
