#include "customfocusoverlay.h"
#include "focusringtest.h"
#include "kastyle.h"
#include "testhelpers.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QImage>
#include <QListWidget>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <bzcolorset.h>
#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <memory>

namespace {

const std::string kOuter = "global-focus-outline";
const std::string kInner = "textinput-background";

// A Fusion base whose shortcut-underline hint is fixed: Fusion itself
// always answers yes, which would ring every focus.
class UnderlineHintStyle : public QProxyStyle {
public:
    explicit UnderlineHintStyle(bool underline)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
        , m_underline(underline) {}
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override {
        if (hint == SH_UnderlineShortcut)
            return m_underline ? 1 : 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    bool m_underline;
};

// Focusable and paints nothing, so the style is asked for a ring only when
// a test asks.
class Target : public QWidget {
public:
    explicit Target(QWidget* parent = nullptr, const QRect& geometry = QRect())
        : QWidget(parent) {
        setFocusPolicy(Qt::StrongFocus);
        if (geometry.isValid())
            setGeometry(geometry);
    }
};

// Asks its style for the focus rectangle while focused, as the library's
// own widgets do (Fusion's push buttons draw their own focus instead).
class RingRequester : public Target {
public:
    using Target::Target;

protected:
    void paintEvent(QPaintEvent*) override {
        if (!hasFocus())
            return;
        QStyleOptionFocusRect option;
        option.initFrom(this);
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
};

// Item views leave the option's style object empty; this one names the
// view, so that its "hasCustomRect" applies to the items.
class ViewStyleObjectDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->styleObject = const_cast<QWidget*>(option->widget);
    }
};

// Stands in for the host classes that must never get a ring.
class VoicemailListWidget : public Target {
    Q_OBJECT
public:
    using Target::Target;
};

// Asks `style` for the focus rectangle of `widget`, as a widget's paint does.
void requestRing(const QStyle& style, const QWidget* widget,
                 QStyle::State extra = QStyle::State_KeyboardFocusChange, const QRect& rect = QRect()) {
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    option.state = (option.state & ~QStyle::State_KeyboardFocusChange) | extra;
    if (!rect.isNull())
        option.rect = rect;
    QImage image(widget->size().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, widget);
}

// Runs the queued steps that are pending now (the style's deferred work).
void drainQueued() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

CustomFocusOverlay* overlayIn(const QWidget* root) {
    const auto overlays = root->findChildren<CustomFocusOverlay*>();
    for (CustomFocusOverlay* overlay : overlays) {
        if (overlay->isVisible())
            return overlay;
    }
    return overlays.isEmpty() ? nullptr : overlays.constLast();
}

// Focuses `target` as the keyboard does and asks for its ring.
void ringOn(const QStyle& style, QWidget* target) {
    target->setFocus(Qt::TabFocusReason);
    drainQueued();
    requestRing(style, target);
}

QRect grown(const QRect& rect, int margin) {
    return rect.marginsAdded(QMargins(margin, margin, margin, margin));
}

bool painted(const QImage& image, int x, int y) {
    return qAlpha(image.pixel(x, y)) > 0;
}

QImage render(CustomFocusOverlay* overlay) {
    return overlay->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

QRgb colourOf(const QString& theme, const std::string& set) {
    const auto sets = BzThemeManager::instance()->theme(theme).colorSets();
    return sets.value(QString::fromStdString(set)).normal().rgba();
}

QRgb outerOf(const QString& theme) {
    return colourOf(theme, kOuter);
}

QRgb innerOf(const QString& theme) {
    return colourOf(theme, kInner);
}

// A base style whose every hint is recognisable.
class NumberedHintStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* = nullptr, const QWidget* = nullptr,
                  QStyleHintReturn* = nullptr) const override {
        return 1000 + int(hint);
    }
};

// A base style whose menus neither activate on space nor search by typing.
class PlainMenuStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override {
        if (hint == SH_Menu_SpaceActivatesItem || hint == SH_Menu_KeyboardSearch)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};
} // namespace

class tst_KaFocusStyle : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        qApp->setProperty("isKeyboardFocus", QVariant());
        m_window = std::make_unique<QWidget>();
    }

    void cleanup() {
        m_window.reset();
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        qApp->setProperty("isKeyboardFocus", QVariant());
        // Back to a plain style; this deletes any focus style a test installed.
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        drainQueued();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void keyboardFlags_data() {
        QTest::addColumn<bool>("keyboardState");
        QTest::addColumn<bool>("underlineHint");
        QTest::addColumn<bool>("always");
        QTest::addColumn<bool>("appKeyboard");
        QTest::addColumn<bool>("ringed");

        QTest::newRow("mouse focus") << false << false << false << false << false;
        QTest::newRow("keyboard focus change") << true << false << false << false << true;
        QTest::newRow("base style underlines shortcuts") << false << true << false << false << true;
        QTest::newRow("always show when focused") << false << false << true << false << true;
        QTest::newRow("application declares keyboard") << false << false << false << true << true;
        QTest::newRow("all") << true << true << true << true << true;
    }

    void keyboardFlags() {
        QFETCH(bool, keyboardState);
        QFETCH(bool, underlineHint);
        QFETCH(bool, always);
        QFETCH(bool, appKeyboard);
        QFETCH(bool, ringed);

        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(underlineHint));
        auto* target = new Target(m_window.get(), QRect(40, 40, 80, 30));
        if (always)
            target->setProperty("alwaysShowFocusRectWhenFocused", true);
        qApp->setProperty("isKeyboardFocus", appKeyboard);
        showWindow();
        target->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(overlayIn(m_window.get()));
        CustomFocusOverlay* overlay = overlayIn(m_window.get());
        QVERIFY(!overlay->isVisible());

        QSignalSpy spy(&style, &KaFocusStyle::updateOverlay);
        requestRing(style, target, keyboardState ? QStyle::State_KeyboardFocusChange : QStyle::State_None);
        // The update is deferred, never emitted from inside the paint.
        QCOMPARE(spy.count(), 0);
        drainQueued();
        QCOMPARE(spy.count(), ringed ? 1 : 0);
        QCOMPARE(overlay->isVisible(), ringed);
    }

    void excluded_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("objectName");
        QTest::addColumn<bool>("ringed");

        QTest::newRow("ordinary") << 0 << QStringLiteral("okButton") << true;
        QTest::newRow("excluded name") << 0 << QStringLiteral("MoreInfoButtonPopupText") << false;
        // Exact names only.
        QTest::newRow("name differs in case") << 0 << QStringLiteral("moreInfoButtonPopupText") << true;
        QTest::newRow("VoicemailListWidget") << 1 << QString() << false;
        QTest::newRow("QCalendarView") << 4 << QString() << false;
    }

    void excluded() {
        QFETCH(int, kind);
        QFETCH(QString, objectName);
        QFETCH(bool, ringed);

        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(false));
        QWidget* target = nullptr;
        switch (kind) {
        case 0:
            target = new Target(m_window.get());
            break;
        case 1:
            target = new VoicemailListWidget(m_window.get());
            break;
        case 4: {
            auto* calendar = new QCalendarWidget(m_window.get());
            calendar->setGeometry(10, 10, 300, 250);
            target = calendar->findChild<QTableView*>();
            QVERIFY(target);
            QCOMPARE(target->metaObject()->className(), "QCalendarView");
            break;
        }
        }
        if (kind != 4)
            target->setGeometry(40, 40, 80, 30);
        target->setObjectName(objectName);
        // Every flag asks for a ring.
        target->setProperty("alwaysShowFocusRectWhenFocused", true);
        qApp->setProperty("isKeyboardFocus", true);
        showAndFocus(target);

        QSignalSpy spy(&style, &KaFocusStyle::updateOverlay);
        requestRing(style, target);
        drainQueued();
        QCOMPARE(spy.count(), ringed ? 1 : 0);
        CustomFocusOverlay* overlay = overlayIn(m_window.get());
        QCOMPARE(overlay && overlay->isVisible(), ringed);
    }

    void geometry_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QVariant>("margin");
        QTest::addColumn<QVariant>("radius");
        QTest::addColumn<QVariant>("mask");
        QTest::addColumn<int>("expectedMargin");
        QTest::addColumn<double>("expectedRadius");
        QTest::addColumn<int>("expectedMask");

        const QVariant none;
        QTest::newRow("defaults") << QSize(80, 30) << none << none << none << 5 << 20.0 << 0;
        QTest::newRow("margin 0") << QSize(80, 30) << QVariant(0) << none << none << 0 << 15.0 << 0;
        QTest::newRow("margin 0, odd size") << QSize(81, 31) << QVariant(0) << none << none << 0 << 15.5 << 0;
        QTest::newRow("tall widget") << QSize(24, 60) << none << none << none << 5 << 17.0 << 0;
        QTest::newRow("border radius 4") << QSize(80, 30) << none << QVariant(4.0) << none << 5 << 9.0 << 0;
        QTest::newRow("border radius 0")
            << QSize(80, 30) << QVariant(0) << QVariant(0.0) << none << 0 << 0.0 << 0;
        QTest::newRow("negative border radius")
            << QSize(80, 30) << none << QVariant(-6.0) << none << 5 << 5.0 << 0;
        QTest::newRow("corner mask") << QSize(80, 30) << none << none << QVariant(5u) << 5 << 20.0 << 5;
    }

    void geometry() {
        QFETCH(QSize, size);
        QFETCH(QVariant, margin);
        QFETCH(QVariant, radius);
        QFETCH(QVariant, mask);
        QFETCH(int, expectedMargin);
        QFETCH(double, expectedRadius);
        QFETCH(int, expectedMask);

        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(false));
        // Nested, so that the position goes through more than one parent.
        auto* panel = new QWidget(m_window.get());
        panel->setGeometry(30, 20, 300, 200);
        auto* target = new Target(panel, QRect(QPoint(25, 35), size));
        target->setProperty("focusMargin", margin);
        target->setProperty("focusBorderRadius", radius);
        target->setProperty("rectangularCornerMask", mask);
        showWindow();
        ringOn(style, target);

        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
        CustomFocusOverlay* overlay = overlayIn(m_window.get());
        QCOMPARE(overlay->parentWidget(), m_window.get());
        QCOMPARE(overlay->geometry(),
                 grown(QRect(target->mapTo(m_window.get(), QPoint()), size), expectedMargin));
        QCOMPARE(overlay->getRadius(), expectedRadius);
        QCOMPARE(int(overlay->rectangularCornerMask()), expectedMask);
    }

    void customRect() {
        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(false));
        auto* target = new Target(m_window.get(), QRect(50, 60, 200, 100));
        showAndFocus(target);

        // Without "hasCustomRect" the option's rectangle is ignored.
        const QRect part(10, 20, 60, 24);
        requestRing(style, target, QStyle::State_KeyboardFocusChange, part);
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
        CustomFocusOverlay* overlay = overlayIn(m_window.get());
        QCOMPARE(overlay->geometry(), grown(target->geometry(), 5));

        target->setProperty("hasCustomRect", true);
        requestRing(style, target, QStyle::State_KeyboardFocusChange, part);
        QTRY_COMPARE(overlay->geometry(), grown(part.translated(target->pos()), 5));
        QCOMPARE(overlay->getRadius(), 12.0 + 5);
    }

    void otherPrimitivesPassThrough() {
        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(false));
        auto* target = new Target(m_window.get(), QRect(10, 10, 60, 30));
        showAndFocus(target);

        QSignalSpy spy(&style, &KaFocusStyle::updateOverlay);
        QStyleOptionFrame frame;
        frame.initFrom(target);
        frame.state |= QStyle::State_KeyboardFocusChange;
        QImage image(60, 30, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        style.drawPrimitive(QStyle::PE_Frame, &frame, &painter, target);
        // A focus rectangle without a widget cannot be placed: the base draws it.
        QStyleOptionFocusRect focus;
        focus.initFrom(target);
        focus.state |= QStyle::State_KeyboardFocusChange;
        style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, nullptr);
        painter.end();
        drainQueued();
        QCOMPARE(spy.count(), 0);
        // The base style painted the frame itself.
        QVERIFY(painted(image, 0, 15));
    }

    void haloAlpha_data() {
        QTest::addColumn<bool>("opaque");
        QTest::addColumn<int>("haloAlpha");
        QTest::newRow("translucent") << false << 77;
        QTest::newRow("opaque") << true << 255;
    }

    void haloAlpha() {
        QFETCH(bool, opaque);
        QFETCH(int, haloAlpha);

        const QColor outer(10, 100, 200);
        const QColor inner(250, 240, 230);
        QImage image(60, 40, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        KaFocusStyle::drawFocusOutline(&painter, image.rect(), outer, inner, opaque, 0, 0);
        painter.end();

        // Across the left edge at mid height: halo, solid outer line, inner line.
        const int y = 20;
        QCOMPARE(qAlpha(image.pixel(0, y)), haloAlpha);
        QVERIFY(BzTest::near(image.pixelColor(0, y), outer)); // give or take rounding
        QCOMPARE(image.pixel(1, y), outer.rgba());
        QCOMPARE(image.pixel(2, y), outer.rgba());
        QCOMPARE(image.pixel(3, y), inner.rgba());
        QCOMPARE(image.pixel(4, y), inner.rgba());
        QCOMPARE(qAlpha(image.pixel(5, y)), 0);
        // The right and top edges too.
        QCOMPARE(qAlpha(image.pixel(59, y)), haloAlpha);
        QCOMPARE(image.pixel(30, 4), inner.rgba());

        // A translucent outer colour still gets a solid line.
        image.fill(Qt::transparent);
        painter.begin(&image);
        KaFocusStyle::drawFocusOutline(&painter, image.rect(), QColor(10, 100, 200, 40), inner, opaque, 0, 0);
        painter.end();
        QCOMPARE(qAlpha(image.pixel(1, y)), 255);
        QCOMPARE(qAlpha(image.pixel(0, y)), opaque ? 40 : 77);
    }

    void cornerMask_data() {
        QTest::addColumn<int>("mask");
        for (int mask : {0, 1, 2, 4, 8, 6, 9, 15})
            QTest::addRow("mask %d", mask) << mask;
    }

    void cornerMask() {
        QFETCH(int, mask);

        QImage image(80, 40, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        KaFocusStyle::drawFocusOutline(&painter, image.rect(), QColor(0, 90, 200), QColor(255, 255, 255),
                                       false, 20, static_cast<unsigned char>(mask));
        painter.end();

        const int w = image.width();
        const int h = image.height();
        // One pixel in from each corner: on the ring when the corner is square,
        // well outside the curve when it is rounded.
        QCOMPARE(painted(image, 1, 1), bool(mask & 1));
        QCOMPARE(painted(image, w - 2, 1), bool(mask & 2));
        QCOMPARE(painted(image, 1, h - 2), bool(mask & 4));
        QCOMPARE(painted(image, w - 2, h - 2), bool(mask & 8));
        // The straight parts are there whatever the mask.
        QVERIFY(painted(image, w / 2, 1));
        QVERIFY(painted(image, 1, h / 2));
        QVERIFY(!painted(image, w / 2, h / 2));
    }

    void focusedWidgetDeletedBeforeDeferredStep() {
        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(false));
        auto* keep = new Target(m_window.get(), QRect(10, 10, 60, 30));
        showAndFocus(keep);
        QVERIFY(overlayIn(m_window.get()));

        auto* doomed = new Target(m_window.get(), QRect(100, 10, 60, 30));
        doomed->show();
        doomed->setFocus(Qt::TabFocusReason);
        requestRing(style, doomed);
        delete doomed;
        drainQueued();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        // The old ring went, no new one was made for the deleted widget.
        QVERIFY(m_window->findChildren<CustomFocusOverlay*>().isEmpty());
        // And the style still works.
        ringOn(style, keep);
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
        QCOMPARE(overlayIn(m_window.get())->geometry(), grown(keep->geometry(), 5));
    }

    void styleDeletedWithPendingSteps() {
        auto* style = new KaFocusStyle(kOuter, kInner, false, new UnderlineHintStyle(false));
        auto* target = new Target(m_window.get(), QRect(10, 10, 60, 30));
        auto* other = new Target(m_window.get(), QRect(100, 10, 60, 30));
        showWindow();
        ringOn(*style, target);
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));

        // A focus change and a ring request still queued when the style goes.
        other->setFocus(Qt::TabFocusReason);
        requestRing(*style, other);
        delete style;
        drainQueued();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // The style took its ring with it and made no new one.
        QVERIFY(m_window->findChildren<CustomFocusOverlay*>().isEmpty());
    }

    void overlayParentDeleted() {
        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(false));
        auto* list = new QListWidget(m_window.get());
        list->addItems({QStringLiteral("one"), QStringLiteral("two")});
        list->setGeometry(10, 10, 150, 100);
        auto* other = new Target(m_window.get(), QRect(200, 10, 60, 30));
        showAndFocus(list);
        QVERIFY(list->findChild<CustomFocusOverlay*>());
        QSignalSpy spy(&style, &KaFocusStyle::updateOverlay);
        requestRing(style, list);
        // The view and its ring go before the queued update runs.
        delete list;
        drainQueued();
        QCOMPARE(spy.count(), 0);

        ringOn(style, other);
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
    }

    void focusMoveHidesRing() {
        KaFocusStyle style(kOuter, kInner, false, new UnderlineHintStyle(false));
        auto* first = new Target(m_window.get(), QRect(10, 10, 60, 30));
        auto* second = new Target(m_window.get(), QRect(100, 10, 60, 30));
        showWindow();
        ringOn(style, first);
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
        QPointer<CustomFocusOverlay> old = overlayIn(m_window.get());

        second->setFocus(Qt::TabFocusReason);
        // Hidden at once, replaced later.
        QVERIFY(!old->isVisible());
        // A late request from the widget that lost focus places nothing.
        requestRing(style, first);
        drainQueued();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(old.isNull());
        QCOMPARE(m_window->findChildren<CustomFocusOverlay*>().size(), 1);
        QVERIFY(!overlayIn(m_window.get())->isVisible());

        requestRing(style, second);
        QTRY_VERIFY(overlayIn(m_window.get())->isVisible());
        QCOMPARE(overlayIn(m_window.get())->geometry(), grown(second->geometry(), 5));
    }

    // The real path: widgets painted by the application style, focus moved
    // by Tab. Mouse focus is keyboardFlags' "mouse focus".
    void tabRingsThroughApplicationStyle() {
        QApplication::setStyle(new KaFocusStyle(kOuter, kInner, false, new UnderlineHintStyle(false)));
        auto* first = new RingRequester(m_window.get(), QRect(20, 20, 100, 32));
        auto* second = new RingRequester(m_window.get(), QRect(20, 80, 100, 32));
        showWindow();
        first->setFocus(Qt::OtherFocusReason);
        drainQueued();
        QTest::keyClick(m_window.get(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), second);
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
        QCOMPARE(overlayIn(m_window.get())->geometry(), grown(second->geometry(), 5));
    }

    // In a list view; tree views take the same path (and collapsing is
    // collapsedTreeItemHidesRing).
    void itemScrolledOutHidesRing() {
        QStandardItemModel model;
        for (int i = 0; i < 200; ++i)
            model.appendRow(new QStandardItem(QStringLiteral("Item %1").arg(i)));
        auto* view = new QListView(m_window.get());
        view->setProperty("focusMargin", 0);
        focusItem(view, &model, model.index(2, 0));
        // Inside the view, around the current item.
        QTRY_VERIFY(FocusRingTest::visibleRing(*view));
        CustomFocusOverlay* overlay = overlayIn(view);
        const QRect itemInView = view->visualRect(model.index(2, 0)).translated(view->viewport()->pos());
        QTRY_COMPARE(overlay->geometry().topLeft(), itemInView.topLeft());
        QCOMPARE(overlay->height(), itemInView.height());

        view->scrollToBottom();
        QTRY_VERIFY(!overlay->isVisible());
        // Scrolling back brings it back, at the item's place.
        view->scrollToTop();
        QTRY_VERIFY(overlay->isVisible());
        QTRY_COMPARE(overlay->geometry().topLeft(), itemInView.topLeft());

        // Scrolled by one row: the ring follows the item.
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->singleStep());
        const QRect moved = view->visualRect(model.index(2, 0)).translated(view->viewport()->pos());
        QVERIFY(moved.top() < itemInView.top());
        QTRY_COMPARE(overlay->geometry().topLeft(), moved.topLeft());
        QVERIFY(overlay->isVisible());
    }

    void collapsedTreeItemHidesRing() {
        QStandardItemModel model;
        auto* parentItem = new QStandardItem(QStringLiteral("Parent"));
        for (int i = 0; i < 3; ++i)
            parentItem->appendRow(new QStandardItem(QStringLiteral("Child %1").arg(i)));
        model.appendRow(parentItem);
        auto* tree = new QTreeView(m_window.get());
        tree->setHeaderHidden(true);
        const QModelIndex child = model.index(1, 0, model.index(0, 0));
        focusItem(tree, &model, child);
        QTRY_VERIFY(FocusRingTest::visibleRing(*tree));
        CustomFocusOverlay* overlay = overlayIn(tree);

        // Collapsing hides the row without moving the current index.
        tree->collapse(model.index(0, 0));
        QCOMPARE(tree->currentIndex(), child);
        QTRY_VERIFY(!overlay->isVisible());
        tree->expand(model.index(0, 0));
        QTRY_VERIFY(overlay->isVisible());
    }

    void widgetScrolledOutOfScrollArea() {
        QApplication::setStyle(new KaFocusStyle(kOuter, kInner, false, new UnderlineHintStyle(false)));
        auto* area = new QScrollArea(m_window.get());
        area->setGeometry(20, 20, 240, 200);
        auto* content = new QWidget;
        auto* layout = new QVBoxLayout(content);
        QList<RingRequester*> buttons;
        for (int i = 0; i < 30; ++i) {
            buttons << new RingRequester;
            buttons.constLast()->setFixedHeight(30);
            layout->addWidget(buttons.constLast());
        }
        area->setWidgetResizable(true);
        area->setWidget(content);
        showWindow();
        RingRequester* button = buttons.at(1);
        // setFocus() is no key press: the window sets no keyboard flag.
        qApp->setProperty("isKeyboardFocus", true);
        button->setFocus(Qt::TabFocusReason);

        // The ring lives on the viewport, clipped like the content.
        QTRY_VERIFY(FocusRingTest::visibleRing(*area->viewport()));
        CustomFocusOverlay* overlay = overlayIn(area->viewport());
        QCOMPARE(overlay->parentWidget(), area->viewport());
        const auto inViewport = [&] {
            return QRect(button->mapTo(area->viewport(), QPoint()), button->size());
        };
        QCOMPARE(overlay->geometry(), grown(inViewport(), 5));

        area->ensureWidgetVisible(buttons.constLast());
        QTRY_VERIFY(!overlay->isVisible());
        area->ensureWidgetVisible(button);
        QTRY_VERIFY(overlay->isVisible());
        QTRY_COMPARE(overlay->geometry(), grown(inViewport(), 5));

        // Partly scrolled: the ring follows the widget.
        area->verticalScrollBar()->setValue(area->verticalScrollBar()->value() + 20);
        QTRY_COMPARE(overlay->geometry(), grown(inViewport(), 5));
        QVERIFY(overlay->isVisible());
    }

    // CustomFocusOverlay: the ring itself, in the colours of each theme.
    void colorsOfEachTheme_data() {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<bool>("opaque");
        // The halo itself: haloAlpha; here the flag reaches it.
        QTest::newRow("light") << QStringLiteral("light") << false;
        QTest::newRow("dark, opaque") << QStringLiteral("dark") << true;
        QTest::newRow("highContrast") << QStringLiteral("highContrast") << false;
    }

    void colorsOfEachTheme() {
        QFETCH(QString, theme);
        QFETCH(bool, opaque);
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(theme));

        CustomFocusOverlay overlay(kOuter, kInner, opaque);
        QCOMPARE(overlay.objectName(), QStringLiteral("CustomFocusOverlay"));
        overlay.resize(60, 30);
        const QImage image = render(&overlay);
        const QRgb outer = outerOf(theme);
        const QRgb inner = innerOf(theme);
        // The normal colours of the two sets differ in every theme, so the
        // bands tell them apart.
        QVERIFY(outer != inner);
        QCOMPARE(image.pixel(2, 15), outer);
        QCOMPARE(image.pixel(4, 15), inner);
        QCOMPARE(qAlpha(image.pixel(0, 15)), opaque ? 255 : 77);
        QCOMPARE(qAlpha(image.pixel(30, 15)), 0);
    }

    void themeChangeReresolves() {
        QWidget window;
        window.resize(200, 100);
        auto* overlay = new CustomFocusOverlay(kOuter, kInner, false, &window);
        overlay->setGeometry(10, 10, 60, 30);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("light")));

        // The theme switch queues onThemeChanged() on every widget.
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark")));
        QTRY_COMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("dark")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("dark")));

        // Switching without the refresh leaves the colours until told.
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(QStringLiteral("highContrast"),
                                                            BzThemeManager::DataOnly));
        QCoreApplication::processEvents();
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("dark")));
        overlay->onThemeChanged();
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("highContrast")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("highContrast")));
    }

    void followsThemeTypeOfParent() {
        QWidget lightParent;
        QWidget darkParent;
        darkParent.setProperty("themeType", QStringLiteral("dark"));

        auto* overlay = new CustomFocusOverlay(kOuter, kInner, false, &darkParent);
        overlay->resize(60, 30);
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("dark")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("dark")));

        overlay->setParent(&lightParent);
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("light")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("light")));
    }

    void radiusAndCornerMask_data() {
        QTest::addColumn<double>("radius");
        QTest::addColumn<int>("mask");
        QTest::addColumn<bool>("topLeftPainted");
        QTest::addColumn<bool>("bottomRightPainted");

        QTest::newRow("square") << 0.0 << 0 << true << true;
        // Every corner's bit: cornerMask.
        QTest::newRow("rounded, top-left square") << 15.0 << 1 << true << false;
    }

    void radiusAndCornerMask() {
        QFETCH(double, radius);
        QFETCH(int, mask);
        QFETCH(bool, topLeftPainted);
        QFETCH(bool, bottomRightPainted);

        CustomFocusOverlay overlay(kOuter, kInner, false);
        overlay.resize(80, 40);
        overlay.setRadius(radius);
        overlay.setRectangularCornerMask(static_cast<unsigned char>(mask));
        QCOMPARE(overlay.getRadius(), radius);
        const QImage image = render(&overlay);
        QCOMPARE(qAlpha(image.pixel(1, 1)) > 0, topLeftPainted);
        QCOMPARE(qAlpha(image.pixel(78, 38)) > 0, bottomRightPainted);
        QVERIFY(qAlpha(image.pixel(40, 2)) > 0);
    }

    void mouseGoesThrough() {
        QWidget window;
        window.resize(200, 100);
        auto* button = new QPushButton(QStringLiteral("Below"), &window);
        button->setGeometry(20, 20, 100, 40);
        auto* overlay = new CustomFocusOverlay(kOuter, kInner, false, &window);
        overlay->setGeometry(button->geometry().marginsAdded(QMargins(5, 5, 5, 5)));
        overlay->show();
        overlay->raise();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.childAt(button->geometry().center()), button);

        QSignalSpy clicked(button, &QPushButton::clicked);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        QCOMPARE(clicked.count(), 1);
        // Never takes focus either.
        QVERIFY(!overlay->hasFocus());
        QCOMPARE(overlay->focusPolicy(), Qt::NoFocus);
    }

    // KaStyle.
    void hints_data() {
        QTest::addColumn<int>("hint");
        QTest::addColumn<int>("expected");
        QTest::newRow("space activates item") << int(QStyle::SH_Menu_SpaceActivatesItem) << 1;
        QTest::newRow("keyboard search") << int(QStyle::SH_Menu_KeyboardSearch) << 1;
        for (QStyle::StyleHint hint : {QStyle::SH_Menu_AllowActiveAndDisabled, QStyle::SH_Menu_Scrollable,
                                       QStyle::SH_Menu_SubMenuPopupDelay, QStyle::SH_Menu_MouseTracking,
                                       QStyle::SH_ToolTip_WakeUpDelay, QStyle::SH_ComboBox_Popup}) {
            QTest::addRow("hint %d", int(hint)) << int(hint) << 1000 + int(hint);
        }
    }

    void hints() {
        QFETCH(int, hint);
        QFETCH(int, expected);
        KaStyle style(new NumberedHintStyle);
        QCOMPARE(style.styleHint(QStyle::StyleHint(hint)), expected);
    }

    // Over a base that says no: menuKeys. Without a base, the application's.
    void overridesWhateverTheBase() {
        KaStyle overApplication;
        QVERIFY(overApplication.baseStyle());
        QCOMPARE(overApplication.styleHint(QStyle::SH_Menu_KeyboardSearch), 1);
        QCOMPARE(overApplication.styleHint(QStyle::SH_Menu_SubMenuPopupDelay),
                 overApplication.baseStyle()->styleHint(QStyle::SH_Menu_SubMenuPopupDelay));
    }

    // Same menu, same keys: only the style decides. Banana is active; space
    // triggers it, typing "c" moves to Cherry.
    void menuKeys_data() {
        QTest::addColumn<bool>("useKaStyle");
        QTest::addColumn<int>("key");
        QTest::newRow("space, plain") << false << int(Qt::Key_Space);
        QTest::newRow("space, KaStyle") << true << int(Qt::Key_Space);
        QTest::newRow("search, plain") << false << int(Qt::Key_C);
        QTest::newRow("search, KaStyle") << true << int(Qt::Key_C);
    }

    void menuKeys() {
        QFETCH(bool, useKaStyle);
        QFETCH(int, key);
        std::unique_ptr<QStyle> style(useKaStyle ? static_cast<QStyle*>(new KaStyle(new PlainMenuStyle))
                                                 : new PlainMenuStyle);
        QMenu menu;
        menu.setStyle(style.get());
        menu.addAction(QStringLiteral("Apple"));
        QAction* banana = menu.addAction(QStringLiteral("Banana"));
        QAction* cherry = menu.addAction(QStringLiteral("Cherry"));
        QSignalSpy triggered(banana, &QAction::triggered);
        menu.popup(QPoint(10, 10));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.setActiveAction(banana);
        QTest::keyClick(&menu, Qt::Key(key));
        if (key == Qt::Key_Space)
            QCOMPARE(triggered.count(), useKaStyle ? 1 : 0);
        else
            QCOMPARE(menu.activeAction(), useKaStyle ? cherry : banana);
    }

private:
    std::unique_ptr<QWidget> m_window;

    void showWindow(const QSize& size = QSize(400, 300)) {
        m_window->resize(size);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    // The application's focus style, `view` showing `model` with the ring
    // around its items, `item` current and the view focused by the keyboard.
    void focusItem(QAbstractItemView* view, QAbstractItemModel* model, const QModelIndex& item) {
        QApplication::setStyle(new KaFocusStyle(kOuter, kInner, false, new UnderlineHintStyle(false)));
        view->setModel(model);
        view->setItemDelegate(new ViewStyleObjectDelegate(view));
        view->setGeometry(20, 20, 200, 150);
        view->setProperty("hasCustomRect", true);
        if (auto* tree = qobject_cast<QTreeView*>(view))
            tree->expandAll();
        showWindow();
        view->setCurrentIndex(item);
        view->setFocus(Qt::TabFocusReason);
    }

    // Shows the window and focuses `target` as the keyboard does.
    void showAndFocus(QWidget* target) {
        showWindow();
        target->setFocus(Qt::TabFocusReason);
        drainQueued();
    }
};

QTEST_MAIN(tst_KaFocusStyle)
#include "tst_kafocusstyle.moc"
