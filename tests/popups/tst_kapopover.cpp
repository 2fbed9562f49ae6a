#include "accessibilityrecorder.h"
#include "kacontrolhandle.h"
#include "kalabel.h"
#include "kamoreinfobutton.h"
#include "kapopover.h"
#include "kapopuputils.h"
#include "katooltip.h"
#include "kawidgetdata.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWidget>
#include <bzthememanager.h>
#include <drawutils.h>
#include <karvexutils.h>
#include <memory>

using namespace KaPopupUtils;
using Side = KaPopupEnum::Alignment;

Q_DECLARE_METATYPE(KaPopupEnum::Alignment)

namespace {

QRect screenArea() {
    return QGuiApplication::primaryScreen()->availableGeometry();
}

const QString kLongText = QStringLiteral(
    "This is a long explanation that cannot possibly fit on one line of a popover, so it has to wrap "
    "over several lines before the bubble gets wider than the design allows.");

QString css(const char* set, BzThemeUtils::AppThemeType type = BzThemeUtils::Global) {
    return BzThemeUtils::colorToCss(BzThemeUtils::getColorSet(set, type).normal());
}

// The arrow's tip row or column in global coordinates for a popup at `p`
// of `size` on `side`, and the anchor row or column it must keep
// AnchorGap free pixels from.
void checkTipGap(Side side, const QPoint& p, const QSize& size, const QRect& anchor) {
    switch (side) {
    case KaPopupEnum::Top:
        QCOMPARE(p.y() + size.height() - 1 - ShadowMargin, anchor.top() - AnchorGap - 1);
        break;
    case KaPopupEnum::Left:
        QCOMPARE(p.x() + size.width() - 1 - ShadowMargin, anchor.left() - AnchorGap - 1);
        break;
    case KaPopupEnum::Right:
        QCOMPARE(p.x() + ShadowMargin, anchor.right() + 1 + AnchorGap);
        break;
    default:
        QCOMPARE(p.y() + ShadowMargin, anchor.bottom() + 1 + AnchorGap);
        break;
    }
}

QImage render(const Bubble& bubble, qreal dpr) {
    QImage image(DrawUtils::toDevicePixels(QSizeF(bubble.size), dpr), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintBubble(&painter, bubble);
    return image;
}

// Colour of the logical pixel (x, y): every device pixel under it must agree.
QColor logicalPixel(const QImage& image, int x, int y) {
    const int dpr = qRound(image.devicePixelRatio());
    const QColor first = image.pixelColor(x * dpr, y * dpr);
    for (int dy = 0; dy < dpr; ++dy)
        for (int dx = 0; dx < dpr; ++dx)
            if (image.pixelColor(x * dpr + dx, y * dpr + dy) != first)
                return QColor(); // blurred across the logical pixel
    return first;
}

int alphaAt(const QImage& image, int x, int y) {
    const int dpr = qRound(image.devicePixelRatio());
    return qAlpha(image.pixel(x * dpr, y * dpr));
}

// A handle whose anchor, a `T`, is already deleted.
template <typename T> KaControlHandle deadHandle() {
    auto* anchor = new T;
    const KaControlHandle handle(anchor);
    delete anchor;
    return handle;
}

class MoveCounter : public QObject {
public:
    int moves = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Move)
            ++moves;
        return false;
    }
};

} // namespace

// A window with an anchor button in the middle of the screen and a second
// button to move focus and clicks to.
class Fixture {
public:
    Fixture() {
        window.setGeometry(QRect(screenArea().center() - QPoint(150, 100), QSize(300, 200)));
        anchor.setGeometry(130, 90, 40, 20);
        other.setGeometry(10, 10, 60, 20);
        window.show();
    }
    bool ready() { return QTest::qWaitForWindowExposed(&window); }
    QPointer<KaPopover> show(const QString& text, const KaWidgetData& data = KaWidgetData()) {
        return KaPopover::createAndShowTextPopover(&anchor, &window, text, data);
    }
    std::unique_ptr<KaPopover> open(const KaWidgetData& data = KaWidgetData(), QWidget* content = nullptr) {
        auto popover = std::make_unique<KaPopover>(&anchor, &window, data);
        popover->setContentWidget(content ? content : new KaLabel(QStringLiteral("x")));
        popover->popup();
        return popover;
    }

    QWidget window;
    QPushButton anchor{QStringLiteral("anchor"), &window};
    QPushButton other{QStringLiteral("other"), &window};
};

class tst_KaPopover : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_recording = std::make_unique<AccessibilityRecorder::RecordingScope>(); }

    void init() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        AccessibilityRecorder::clear();
        f = std::make_unique<Fixture>();
        QVERIFY(f->ready());
    }

    // Popovers still open are closed before their window goes; those that
    // closed themselves are deleted later. The tooltip is hidden.
    void cleanup() {
        for (KaPopover* popover : f->window.findChildren<KaPopover*>())
            popover->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        f.reset();
        KaToolTip::hideText();
        QTRY_VERIFY(!KaToolTip::isVisible());
    }

    void placement_data() {
        QTest::addColumn<int>("arrow");
        QTest::addColumn<KaPopupEnum::Alignment>("side");
        QTest::newRow("arrow top: below") << int(KaWidgetData::ArrowTop) << KaPopupEnum::Bottom;
        QTest::newRow("arrow left: right of it") << int(KaWidgetData::ArrowLeft) << KaPopupEnum::Right;
        QTest::newRow("arrow right: left of it") << int(KaWidgetData::ArrowRight) << KaPopupEnum::Left;
        QTest::newRow("arrow bottom: above") << int(KaWidgetData::ArrowBottom) << KaPopupEnum::Top;
        QTest::newRow("no arrow: below") << int(KaWidgetData::ArrowNone) << KaPopupEnum::Bottom;
    }

    void placement() {
        QFETCH(int, arrow);
        QFETCH(KaPopupEnum::Alignment, side);
        const auto position = KaWidgetData::ArrowPostion(arrow);
        const bool none = position == KaWidgetData::ArrowNone;
        QCOMPARE(KaPopover::toAlignment(position), none ? KaPopupEnum::None : side);
        QPointer<KaPopover> popover = f->show(QStringLiteral("Hello"), KaWidgetData().arrowPostion(position));
        QVERIFY(popover->isVisible());
        QCOMPARE(popover->arrowPosition(), position);
        QCOMPARE(popover->shownAlignment(), side);
        const QRect anchor(f->anchor.mapToGlobal(QPoint(0, 0)), f->anchor.size());
        const QRect body = popover->bodyRect().translated(popover->pos());
        // Without an arrow the body itself comes up to the gap.
        const int gap = KaPopupUtils::AnchorGap + (none ? 0 : KaPopupUtils::ArrowLength);
        if (side == KaPopupEnum::Right)
            QCOMPARE(body.left(), anchor.right() + 1 + gap);
        else if (side == KaPopupEnum::Left)
            QCOMPARE(body.right(), anchor.left() - 1 - gap);
        else if (side == KaPopupEnum::Top)
            QCOMPARE(body.bottom(), anchor.top() - 1 - gap);
        else
            QCOMPARE(body.top(), anchor.bottom() + 1 + gap);
        // Centred on the anchor along that edge.
        const bool beside = side == KaPopupEnum::Left || side == KaPopupEnum::Right;
        QVERIFY(qAbs(beside ? body.center().y() - anchor.center().y()
                            : body.center().x() - anchor.center().x()) <= 1);
        popover->close();
        QTRY_VERIFY(popover.isNull());
    }

    void flipsAtScreenEdge() {
        QWidget window;
        window.setGeometry(screenArea().left() + 100, screenArea().bottom() - 40, 200, 40);
        QPushButton anchor(QStringLiteral("a"), &window);
        anchor.setGeometry(10, 10, 40, 20);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QPointer<KaPopover> popover = KaPopover::createAndShowTextPopover(
            &anchor, &window, kLongText, KaWidgetData().arrowPostion(KaWidgetData::ArrowTop));
        QCOMPARE(popover->alignment(), KaPopupEnum::Bottom);
        QCOMPARE(popover->shownAlignment(), KaPopupEnum::Top);
        QVERIFY(screenArea().contains(popover->geometry()));
        const QRect body = popover->bodyRect().translated(popover->pos());
        QCOMPARE(body.bottom(), anchor.mapToGlobal(QPoint(0, 0)).y() - 1 - KaPopupUtils::AnchorGap -
                                    KaPopupUtils::ArrowLength);
        // The arrow band moved to the edge that faces the anchor.
        QCOMPARE(popover->bodyRect(), KaPopupUtils::bodyRect(popover->size(), KaPopupEnum::Top, true));
    }

    void alignmentAlongEdge_data() {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<int>("arrow");
        QTest::newRow("start, below") << int(KaWidgetData::AlignStart) << int(KaWidgetData::ArrowTop);
        QTest::newRow("end, below") << int(KaWidgetData::AlignEnd) << int(KaWidgetData::ArrowTop);
        QTest::newRow("start, beside") << int(KaWidgetData::AlignStart) << int(KaWidgetData::ArrowLeft);
        QTest::newRow("end, beside") << int(KaWidgetData::AlignEnd) << int(KaWidgetData::ArrowLeft);
    }
    void alignmentAlongEdge() {
        QFETCH(int, alignment);
        QFETCH(int, arrow);
        const KaWidgetData data = KaWidgetData()
                                      .alignment(KaWidgetData::Alignment(alignment))
                                      .arrowPostion(KaWidgetData::ArrowPostion(arrow));
        QPointer<KaPopover> popover = f->show(kLongText, data);
        const QRect anchor(f->anchor.mapToGlobal(QPoint(0, 0)), f->anchor.size());
        const QRect body = popover->bodyRect().translated(popover->pos());
        const bool start = alignment == KaWidgetData::AlignStart;
        if (arrow == KaWidgetData::ArrowTop)
            QCOMPARE(start ? body.left() : body.right(), start ? anchor.left() : anchor.right());
        else
            QCOMPARE(start ? body.top() : body.bottom(), start ? anchor.top() : anchor.bottom());
    }

    void offsetMoves() {
        QCOMPARE(f->open(KaWidgetData().offset(QPoint(5, -7)))->pos(), f->open()->pos() + QPoint(5, -7));
    }

    void fitInMainWindow() {
        f->anchor.move(250, 90); // near the window's right edge
        const KaWidgetData data = KaWidgetData().arrowPostion(KaWidgetData::ArrowBottom);
        const QString wide = QStringLiteral("A fairly wide popover text");
        QVERIFY(!f->window.geometry().contains(f->open(data, new KaLabel(wide))->geometry()));
        const auto fitted = f->open(KaWidgetData(data).fitInMainWindowGeometry(true), new KaLabel(wide));
        QCOMPARE(fitted->geometry().right(), f->window.geometry().right());
    }

    void setArrowPosition() {
        const auto owner = f->open();
        KaPopover& popover = *owner;
        QSignalSpy spy(&popover, &KaPopover::arrowPositionChanged);
        const QPoint below = popover.pos();
        popover.setArrowPosition(KaWidgetData::ArrowBottom);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(popover.shownAlignment(), KaPopupEnum::Top);
        QVERIFY(popover.pos().y() < below.y());
        popover.setArrowPosition(KaWidgetData::ArrowBottom);
        QCOMPARE(spy.count(), 1);
        QTest::ignoreMessage(QtWarningMsg, "KaPopover: unknown arrow position 7, using ArrowNone");
        popover.setArrowPosition(KaWidgetData::ArrowPostion(7));
        QCOMPARE(popover.arrowPosition(), KaWidgetData::ArrowNone);
        QCOMPARE(KaPopover::toAlignment(KaWidgetData::ArrowPostion(9)), KaPopupEnum::None);
        QCOMPARE(spy.count(), 2);
    }

    void textPopoverWraps() {
        QPointer<KaPopover> popover = f->show(kLongText);
        auto* label = qobject_cast<KaLabel*>(popover->contentWidget());
        QVERIFY(label);
        QVERIFY(label->wordWrap());
        QCOMPARE(popover->bodyRect().width(), KaWidgetData::maxPopoverWidth);
        const int line = label->fontMetrics().height();
        QVERIFY2(label->height() >= 3 * line, qPrintable(QString::number(label->height())));
        // Every wrapped line is shown: the label got the height its width needs.
        QCOMPARE(label->height(), label->heightForWidth(label->width()));
        QVERIFY(popover->bodyRect().contains(label->geometry()));

        // Wider side popovers keep the same body width.
        QPointer<KaPopover> side = f->show(kLongText, KaWidgetData().arrowPostion(KaWidgetData::ArrowLeft));
        QCOMPARE(side->bodyRect().width(), KaWidgetData::maxPopoverWidth);
    }

    void shortTextStaysNarrow() {
        QPointer<KaPopover> popover = f->show(QStringLiteral("Hi"));
        auto* label = qobject_cast<KaLabel*>(popover->contentWidget());
        QVERIFY(popover->bodyRect().width() < KaWidgetData::maxPopoverWidth / 2);
        QCOMPARE(label->height(), label->sizeHint().height());
    }

    void headerText() {
        QPointer<KaPopover> popover =
            f->show(QStringLiteral("Body"), KaWidgetData().headerText(QStringLiteral("Title")));
        QVERIFY(popover->headerLabel());
        QCOMPARE(popover->headerLabel()->text(), QStringLiteral("Title"));
        QVERIFY(popover->headerLabel()->geometry().bottom() < popover->contentWidget()->geometry().top());
        QVERIFY(popover->headerLabel()->font().pixelSize() > popover->contentWidget()->font().pixelSize());

        KaPopover bare(&f->anchor, &f->window);
        QCOMPARE(bare.headerLabel(), nullptr);
    }

    void accessibleOpening_data() {
        QTest::addColumn<bool>("takeFocus");
        QTest::addColumn<bool>("form");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<QStringList>("announced");
        const QStringList text{QStringLiteral("Title, Body")};
        QTest::newRow("read-only, takes focus") << true << false << QAccessible::Dialog << text;
        QTest::newRow("leaves focus alone") << false << false << QAccessible::ToolTip << text;
        // The screen reader reads the focused field instead.
        QTest::newRow("form") << true << true << QAccessible::Dialog << QStringList();
    }
    void accessibleOpening() {
        QFETCH(bool, takeFocus);
        QFETCH(bool, form);
        QFETCH(QAccessible::Role, role);
        QFETCH(QStringList, announced);
        QWidget* content = form ? static_cast<QWidget*>(new QLineEdit) : new QLabel(QStringLiteral("Body"));
        QPointer<KaPopover> popover = KaPopover::createAndShow(
            content, &f->anchor, &f->window,
            KaWidgetData().headerText(QStringLiteral("Title")).shouldTakeFocus(takeFocus));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(popover.data());
        QCOMPARE(iface->role(), role);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Title"));

        using AccessibilityRecorder::eventsOfType;
        QCOMPARE(
            eventsOfType(takeFocus ? QAccessible::DialogStart : QAccessible::PopupMenuStart, popover).size(),
            1);
        const int focusEvents = eventsOfType(QAccessible::Focus, popover).size() +
                                eventsOfType(QAccessible::Focus, content).size();
        QCOMPARE(focusEvents > 0, takeFocus);
        if (takeFocus)
            QCOMPARE(eventsOfType(QAccessible::Focus).last().object, form ? content : popover.data());
        QCOMPARE(AccessibilityRecorder::announcements(popover), announced);
        // Qt's Linux bridge forwards value changes only from objects with a value.
        QVERIFY(iface->valueInterface());

        popover->close();
        QCOMPARE(eventsOfType(takeFocus ? QAccessible::DialogEnd : QAccessible::PopupMenuEnd, popover).size(),
                 1);
    }

    void autoDismiss_data() {
        QTest::addColumn<bool>("autoDismiss");
        QTest::addColumn<bool>("escape"); // or a click outside
        QTest::newRow("click, auto dismiss") << true << false;
        QTest::newRow("click, stays") << false << false;
        QTest::newRow("escape, auto dismiss") << true << true;
        QTest::newRow("escape, stays") << false << true;
    }
    void autoDismiss() {
        QFETCH(bool, autoDismiss);
        QFETCH(bool, escape);
        QPointer<KaPopover> popover = f->show(
            QStringLiteral("x"), KaWidgetData().autoDismiss(autoDismiss).dismissWithParentFocused(false));
        QSignalSpy dismissed(popover.data(), &KaPopover::dismissed);
        // Clicks inside or on the anchor never dismiss.
        QTest::mouseClick(popover.data(), Qt::LeftButton, {}, popover->bodyRect().center());
        QTest::mouseClick(&f->anchor, Qt::LeftButton);
        QVERIFY(popover->isVisible());
        if (escape)
            QTest::keyClick(popover.data(), Qt::Key_Escape);
        else
            QTest::mouseClick(&f->other, Qt::LeftButton);
        if (autoDismiss) {
            QCOMPARE(dismissed.count(), 1);
            QTRY_VERIFY(popover.isNull());
        } else {
            QVERIFY(popover->isVisible());
            QCOMPARE(dismissed.count(), 0);
        }
    }

    void timedDismissal() {
        QElapsedTimer clock;
        clock.start();
        QPointer<KaPopover> popover = f->show(QStringLiteral("x"), KaWidgetData().dismissTimerTicks(3));
        QSignalSpy dismissed(popover.data(), &KaPopover::dismissed);
        QVERIFY(dismissed.wait(5000));
        QVERIFY(clock.elapsed() >= 3 * KaPopover::DismissTickMs - 20);
        QTRY_VERIFY(popover.isNull());

        // Without ticks it stays.
        QPointer<KaPopover> lasting = f->show(QStringLiteral("x"));
        QSignalSpy none(lasting.data(), &KaPopover::dismissed);
        QVERIFY(!none.wait(5 * KaPopover::DismissTickMs));
        QVERIFY(lasting->isVisible());
    }

    void dismissWithParentFocused_data() {
        QTest::addColumn<bool>("dismissWithParentFocused");
        QTest::addColumn<bool>("skipDeep");
        QTest::addColumn<bool>("focusParentItself");
        QTest::addColumn<bool>("dismissed");
        QTest::newRow("focus into the parent's window") << true << false << false << true;
        QTest::newRow("focus onto the parent") << true << false << true << true;
        QTest::newRow("shallow, focus into the window") << true << true << false << false;
        QTest::newRow("shallow, focus onto the parent") << true << true << true << true;
        QTest::newRow("off") << false << false << true << false;
    }
    void dismissWithParentFocused() {
        QFETCH(bool, dismissWithParentFocused);
        QFETCH(bool, skipDeep);
        QFETCH(bool, focusParentItself);
        QFETCH(bool, dismissed);
        f->window.setFocusPolicy(Qt::StrongFocus);
        const KaWidgetData data =
            KaWidgetData().dismissWithParentFocused(dismissWithParentFocused).skipDeepFocusCheck(skipDeep);
        QPointer<KaPopover> popover = f->show(QStringLiteral("x"), data);
        QSignalSpy spy(popover.data(), &KaPopover::dismissed);
        QWidget* target = focusParentItself ? &f->window : static_cast<QWidget*>(&f->other);
        f->window.activateWindow();
        target->setFocus(Qt::OtherFocusReason);
        QTRY_COMPARE(QApplication::focusWidget(), target);
        QCOMPARE(spy.count(), dismissed ? 1 : 0);
    }

    void sourceMove_data() {
        QTest::addColumn<bool>("dismissOnMove");
        QTest::addColumn<bool>("moveWithSource");
        QTest::newRow("dismiss") << true << false;
        QTest::newRow("follow") << false << true;
        QTest::newRow("neither") << false << false;
        QTest::newRow("both: dismiss wins") << true << true;
    }
    void sourceMove() {
        QFETCH(bool, dismissOnMove);
        QFETCH(bool, moveWithSource);
        QPointer<KaPopover> popover =
            f->show(QStringLiteral("x"),
                    KaWidgetData().dismissPopupOnSourceMove(dismissOnMove).moveWithSource(moveWithSource));
        QSignalSpy spy(popover.data(), &KaPopover::dismissed);
        // Counts the window's move events: once one has arrived, the popover has
        // seen it too, so "nothing happened" below is a real observation.
        MoveCounter windowMoves;
        f->window.installEventFilter(&windowMoves);
        const QPoint before = popover->pos();

        // Other widgets moving is no concern of the popover.
        f->other.move(f->other.pos() + QPoint(5, 5));
        f->window.move(f->window.pos() + QPoint(-30, 20));
        QTRY_VERIFY(windowMoves.moves > 0);
        if (dismissOnMove) {
            QTRY_COMPARE(spy.count(), 1);
            QTRY_VERIFY(popover.isNull());
            return;
        }
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(popover->pos(), moveWithSource ? before + QPoint(-30, 20) : before);

        // Moving the anchor inside its window counts as well (delivered at once).
        f->anchor.move(f->anchor.pos() + QPoint(10, 0));
        QCOMPARE(popover->pos().x(), moveWithSource ? before.x() - 30 + 10 : before.x());
        QCOMPARE(spy.count(), 0);
    }

    void focusSourceOnClose_data() {
        QTest::addColumn<bool>("focusSource");
        QTest::newRow("focus returns") << true;
        QTest::newRow("focus stays away") << false;
    }
    void focusSourceOnClose() {
        QFETCH(bool, focusSource);
        // The window would give focus back to its own focus widget anyway.
        f->window.activateWindow();
        f->other.setFocus();
        QTRY_VERIFY(f->other.hasFocus());
        QPointer<KaPopover> popover =
            f->show(QStringLiteral("x"), KaWidgetData().activateOnShow(true).focusSourceOnClose(focusSource));
        QTRY_VERIFY(popover->isActiveWindow());
        QTRY_COMPARE(QApplication::focusWidget(), popover.data());
        QTest::keyClick(popover.data(), Qt::Key_Escape);
        QTRY_VERIFY(popover.isNull());
        f->window.activateWindow();
        QTRY_VERIFY(f->window.isActiveWindow());
        QCOMPARE(f->anchor.hasFocus(), focusSource);
        QCOMPARE(f->other.hasFocus(), !focusSource);
    }

    void noFocusWhenNotTaking() {
        f->other.setFocus();
        QTRY_VERIFY(f->other.hasFocus());
        QPointer<KaPopover> popover = f->show(QStringLiteral("x"), KaWidgetData().shouldTakeFocus(false));
        QVERIFY(!popover->hasFocus());
        QVERIFY(f->other.hasFocus());
    }

    void transparentBackground() {
        const KaPopupUtils::PopupColors colors = KaPopupUtils::popupColors();

        const auto bubble = f->open(KaWidgetData(), new QWidget);
        QVERIFY(bubble->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(qAlpha(bubble->grab().toImage().pixel(0, 0)), 0);

        const auto owner = f->open(KaWidgetData().shouldHaveTransparentBackground(false), new QWidget);
        KaPopover& opaque = *owner;
        QVERIFY(!opaque.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(opaque.bodyRect(), opaque.rect());
        const QImage opaqueImage = opaque.grab().toImage();
        QCOMPARE(opaqueImage.pixelColor(0, 0), colors.border);
        QCOMPARE(opaqueImage.pixelColor(opaque.width() / 2, opaque.height() / 2), colors.background);
        // No shadow band: the window's edge sits where the body's would.
        const QRect anchor(f->anchor.mapToGlobal(QPoint(0, 0)), f->anchor.size());
        QCOMPARE(opaque.geometry().top(), anchor.bottom() + 1 + KaPopupUtils::AnchorGap);
    }

    void reverseColors() {
        QPointer<KaPopover> popover = f->show(QStringLiteral("x"), KaWidgetData().setReverseColor(true));
        const QColor alternate = KaPopupUtils::popupColors(BzThemeUtils::Alternate).background;
        QVERIFY(alternate != KaPopupUtils::popupColors().background);
        const QImage image = popover->grab().toImage();
        const QPoint centre = popover->bodyRect().center();
        QCOMPARE(image.pixelColor(centre.x(), popover->bodyRect().bottom() - 3), alternate);
        // The text follows: dark-theme text on the dark bubble.
        auto* label = qobject_cast<KaLabel*>(popover->contentWidget());
        QCOMPARE(label->palette().color(QPalette::WindowText),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Alternate).normal());

        // A theme switch re-resolves through onThemeChanged().
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QTRY_COMPARE(popover->grab().toImage().pixelColor(centre.x(), popover->bodyRect().bottom() - 3),
                     KaPopupUtils::popupColors(BzThemeUtils::Light).background);
    }

    void anchorDeletedWhileShown() {
        auto* window = new QWidget;
        window->setGeometry(QRect(screenArea().center(), QSize(100, 60)));
        auto* anchor = new QPushButton(window);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        KaPopover popover(anchor, nullptr, KaWidgetData().moveWithSource(true));
        popover.setContentWidget(new KaLabel(QStringLiteral("x")));
        popover.popup();
        const QPoint where = popover.pos();
        delete window;
        popover.updatePosition();
        QCOMPARE(popover.pos(), where);
        popover.update();
        QVERIFY(!popover.grab().isNull());
        popover.hide();
        QTest::ignoreMessage(QtWarningMsg, "KaPopover: the anchor is gone, not showing");
        popover.popup();
        QVERIFY(!popover.isVisible());
    }

    // A window that goes while its popover is open takes the popover along.
    void windowDeletedWithPopoverOpen_data() {
        QTest::addColumn<bool>("moveWithSource");
        QTest::newRow("stays put") << false;
        QTest::newRow("moves with the anchor") << true;
    }
    void windowDeletedWithPopoverOpen() {
        QFETCH(bool, moveWithSource);
        auto* window = new QWidget;
        window->setGeometry(QRect(screenArea().center(), QSize(100, 60)));
        auto* anchor = new QPushButton(window);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QPointer<KaPopover> popover = KaPopover::createAndShowTextPopover(
            anchor, window, QStringLiteral("x"), KaWidgetData().moveWithSource(moveWithSource));
        QVERIFY(popover && popover->isVisible());
        delete window;
        QVERIFY(popover.isNull());
    }

    // KaWidgetData.
    void negativeTicksClamped() {
        QTest::ignoreMessage(QtWarningMsg, "KaWidgetData: negative dismiss timer ticks -2, using 0");
        KaWidgetData d;
        d.dismissTimerTicks(5).dismissTimerTicks(-2);
        QCOMPARE(d.m_dismissTimerTicks, 0);
    }

    void toArrowPosition_data() {
        QTest::addColumn<int>("arrow");
        QTest::addColumn<KaWidgetData::ArrowPostion>("expected");
        QTest::newRow("up") << int(Qt::UpArrow) << KaWidgetData::ArrowTop;
        QTest::newRow("left") << int(Qt::LeftArrow) << KaWidgetData::ArrowLeft;
        QTest::newRow("right") << int(Qt::RightArrow) << KaWidgetData::ArrowRight;
        QTest::newRow("down") << int(Qt::DownArrow) << KaWidgetData::ArrowBottom;
        QTest::newRow("none") << int(Qt::NoArrow) << KaWidgetData::ArrowNone;
        // Unnamed, but still a value Qt::ArrowType can hold (0..7).
        QTest::newRow("out of range") << 7 << KaWidgetData::ArrowNone;
    }

    void toArrowPosition() {
        QFETCH(int, arrow);
        QFETCH(KaWidgetData::ArrowPostion, expected);
        QCOMPARE(KaWidgetData::toArrowPosition(Qt::ArrowType(arrow)), expected);
    }

    // KaMoreInfoButton, which opens a text popover.
    void clickTogglesPopover() {
        QWidget window;
        window.resize(400, 300);
        KaMoreInfoButton button(QStringLiteral("Calls are recorded for training."), &window);
        button.move(180, 130);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy shown(&button, &KaMoreInfoButton::popupShown);
        QSignalSpy hidden(&button, &KaMoreInfoButton::popupHidden);

        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(shown.count(), 1);
        QVERIFY(button.isPopupVisible());
        QWidget* text = button.popover()->contentWidget();
        QVERIFY(text);
        // The focus ring must never surround the popover's text.
        QCOMPARE(text->objectName(), QStringLiteral("MoreInfoButtonPopupText"));

        button.hidePopup();
        QTRY_COMPARE(hidden.count(), 1);
        QVERIFY(!button.isPopupVisible());
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(shown.count(), 2);
        QTest::mouseClick(&button, Qt::LeftButton); // a second click closes it
        QTRY_VERIFY(!button.isPopupVisible());
    }

    void popoverSideFollowsDirection_data() {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("expected");
        QTest::newRow("none opens below") << int(KaPopupEnum::None) << int(KaPopupEnum::Bottom);
        QTest::newRow("left") << int(KaPopupEnum::Left) << int(KaPopupEnum::Left);
    }

    void popoverSideFollowsDirection() {
        QFETCH(int, direction);
        QFETCH(int, expected);
        QWidget window;
        window.resize(600, 500);
        KaMoreInfoButton button(QStringLiteral("Short"), &window);
        button.move(280, 230);
        button.setPopupDirection(KaPopupEnum::Alignment(direction));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        button.showPopup();
        QVERIFY(button.popover());
        QCOMPARE(int(button.popover()->alignment()), expected);
        button.hidePopup();
    }

    void emptyTextOpensNothing() {
        KaMoreInfoButton button;
        QSignalSpy shown(&button, &KaMoreInfoButton::popupShown);
        button.showPopup();
        QCOMPARE(shown.count(), 0);
        QVERIFY(!button.popover());
    }

    void badDirectionIgnored() {
        KaMoreInfoButton button;
        QSignalSpy changed(&button, &KaMoreInfoButton::popupDirectionChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a side")));
        button.setPopupDirection(KaPopupEnum::Alignment(9));
        QCOMPARE(button.popupDirection(), KaPopupEnum::None);
        button.setPopupDirection(KaPopupEnum::Left);
        button.setPopupDirection(KaPopupEnum::Left);
        QCOMPARE(changed.count(), 1);
    }

    void accessibility() {
        const AccessibilityRecorder::RecordingScope recording;
        QWidget window;
        window.resize(400, 300);
        KaMoreInfoButton button(QStringLiteral("Details"), &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QVERIFY(!iface->text(QAccessible::Name).isEmpty());
        QCOMPARE(iface->text(QAccessible::Description), QStringLiteral("Details"));

        // Read out once, by the popover: Qt's Linux bridge drops value changes
        // from objects without a value, such as the button.
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(AccessibilityRecorder::announcements(), QStringList{QStringLiteral("Details")});
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged).first().object,
                 button.popover());
        QVERIFY(QAccessible::queryAccessibleInterface(button.popover())->valueInterface());
        button.hidePopup();
    }

    void deletingButtonClosesPopover() {
        QWidget window;
        window.resize(400, 300);
        auto* button = new KaMoreInfoButton(QStringLiteral("Bye"), &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        button->showPopup();
        QPointer<KaPopover> popover = button->popover();
        QVERIFY(popover);
        delete button;
        QTRY_VERIFY(!popover || !popover->isVisible());
    }

    // KaToolTip.
    void styleSheetText_data() {
        QTest::addColumn<BzThemeUtils::AppThemeType>("type");
        QTest::newRow("light") << BzThemeUtils::Light;
        QTest::newRow("dark") << BzThemeUtils::Dark;
    }

    // The text is the template resolved for the theme type and names the
    // tooltip's three colours.
    void styleSheetText() {
        QFETCH(BzThemeUtils::AppThemeType, type);
        const QString text = KaToolTip::styleSheetText(type);
        QCOMPARE(text, BzThemeUtils::resolveTemplate(KaToolTip::styleSheetTemplate(), type));
        for (const char* set : {"label-primary-text", "popover-primary-background", "modal-primary-border"})
            QVERIFY2(text.contains(css(set, type)), set);
        if (type == BzThemeUtils::Light)
            QVERIFY(text != KaToolTip::styleSheetText(BzThemeUtils::Dark));
    }

    void showAndHide() {
        QWidget anchor;
        QVERIFY(!KaToolTip::isVisible());
        QCOMPARE(KaToolTip::toolTipWidget(), nullptr);
        KaToolTip::showText(screenArea().center(), QStringLiteral("Tip text"), &anchor);
        QVERIFY(KaToolTip::isVisible());
        QCOMPARE(KaToolTip::text(), QStringLiteral("Tip text"));
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        QCOMPARE(tip->styleSheet(), KaToolTip::styleSheetText());
        KaToolTip::hideText();
        QTRY_VERIFY(!KaToolTip::isVisible());
        // An empty text hides as well.
        KaToolTip::showText(screenArea().center(), QStringLiteral("again"), &anchor);
        QVERIFY(KaToolTip::isVisible());
        KaToolTip::showText(screenArea().center(), QString(), &anchor);
        QTRY_VERIFY(!KaToolTip::isVisible());
    }

    void paintsThemeColours() {
        KaToolTip::showText(screenArea().center(), QStringLiteral("Tip text that is long enough"), nullptr);
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        const QImage image = tip->grab().toImage();
        QCOMPARE(image.pixelColor(0, image.height() / 2),
                 BzThemeUtils::getColorSet("modal-primary-border").normal());
        QCOMPARE(image.pixelColor(2, 2), BzThemeUtils::getColorSet("popover-primary-background").normal());
        // Somewhere the text shows in its own colour.
        const QColor text = BzThemeUtils::getColorSet("label-primary-text").normal();
        bool found = false;
        for (int y = 0; y < image.height() && !found; ++y)
            for (int x = 0; x < image.width() && !found; ++x)
                found = image.pixelColor(x, y) == text;
        QVERIFY(found);
    }

    void followsAnchorThemeType() {
        QWidget host;
        host.setProperty("themeType", QStringLiteral("dark"));
        QWidget anchor(&host);
        KaToolTip::showText(screenArea().center(), QStringLiteral("Tip"), &anchor);
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        QCOMPARE(tip->styleSheet(), KaToolTip::styleSheetText(BzThemeUtils::Dark));
    }

    void themeSwitchRestyles() {
        QWidget anchor;
        KaToolTip::showText(screenArea().center(), QStringLiteral("Tip"), &anchor, QRect(), 60000);
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"), BzThemeManager::DataOnly);
        KarvexUtils::updateSolvaneThemes();
        QTRY_COMPARE(tip->styleSheet(), KaToolTip::styleSheetText(BzThemeUtils::Dark));
        QVERIFY(KaToolTip::isVisible());
    }

    void installOn() {
        QPushButton button(QStringLiteral("b"));
        button.setToolTip(QStringLiteral("From the widget"));
        KaToolTip::installOn(&button);
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), screenArea().center());
        QApplication::sendEvent(&button, &help);
        QVERIFY(KaToolTip::isVisible());
        QCOMPARE(KaToolTip::text(), QStringLiteral("From the widget"));
        QCOMPARE(KaToolTip::toolTipWidget()->styleSheet(), KaToolTip::styleSheetText());

        KaToolTip::hideText();
        QTRY_VERIFY(!KaToolTip::isVisible());
        KaToolTip::removeFrom(&button);
        QApplication::sendEvent(&button, &help);
        // Qt's own tooltip, unthemed.
        QVERIFY(KaToolTip::isVisible());
        QVERIFY(KaToolTip::toolTipWidget()->styleSheet().isEmpty());
    }

    // KaPopupUtils. The margins and opposite sides are tables; what they
    // place is checked below, by the show point and the bubble's pixels.
    void showPointInTheOpen_data() {
        QTest::addColumn<Side>("side");
        QTest::addColumn<int>("offset");
        for (Side side : {KaPopupEnum::Top, KaPopupEnum::Left, KaPopupEnum::Right, KaPopupEnum::Bottom}) {
            const char* name = QMetaEnum::fromType<Side>().valueToKey(side);
            for (int offset : {0, 25, 50, 100})
                QTest::addRow("%s, %d%%", name, offset) << side << offset;
        }
    }
    void showPointInTheOpen() {
        QFETCH(Side, side);
        QFETCH(int, offset);
        const QRect area = screenArea();
        QWidget anchor;
        anchor.setGeometry(QRect(area.center() - QPoint(20, 10), QSize(40, 20)));
        const QSize size(120, 60);

        Side shown = KaPopupEnum::None;
        const QPoint p =
            calculateShowPoint(KaControlHandle(&anchor), side, size.width(), size.height(), offset, &shown);
        QCOMPARE(shown, side);
        const QRect r = anchor.geometry();
        checkTipGap(side, p, size, r);
        // The tip sits `offset` percent along its edge, on the anchor's centre line.
        if (side == KaPopupEnum::Top || side == KaPopupEnum::Bottom)
            QCOMPARE(p.x() + qRound(size.width() * offset / 100.0), r.center().x());
        else
            QCOMPARE(p.y() + qRound(size.height() * offset / 100.0), r.center().y());
        QCOMPARE(anchorPoint(KaControlHandle(&anchor), side),
                 side == KaPopupEnum::Top      ? QPoint(r.center().x(), r.top())
                 : side == KaPopupEnum::Bottom ? QPoint(r.center().x(), r.bottom())
                 : side == KaPopupEnum::Left   ? QPoint(r.left(), r.center().y())
                                               : QPoint(r.right(), r.center().y()));
    }

    void showPointNearEdges_data() {
        QTest::addColumn<Side>("side");
        QTest::addColumn<QRect>("anchor"); // relative to the screen's top-left
        QTest::addColumn<QSize>("size");
        QTest::addColumn<Side>("shown");
        const QRect area = screenArea();
        const int w = area.width();
        const int h = area.height();
        QTest::newRow("below, at the bottom edge: above")
            << KaPopupEnum::Bottom << QRect(w / 2, h - 30, 40, 20) << QSize(200, 120) << KaPopupEnum::Top;
        QTest::newRow("above, at the top edge: below")
            << KaPopupEnum::Top << QRect(w / 2, 10, 40, 20) << QSize(200, 120) << KaPopupEnum::Bottom;
        QTest::newRow("right, at the right edge: left")
            << KaPopupEnum::Right << QRect(w - 50, h / 2, 40, 20) << QSize(200, 120) << KaPopupEnum::Left;
        QTest::newRow("left, at the left edge: right")
            << KaPopupEnum::Left << QRect(10, h / 2, 40, 20) << QSize(200, 120) << KaPopupEnum::Right;
        QTest::newRow("below, at the right edge: slides left")
            << KaPopupEnum::Bottom << QRect(w - 30, h / 2, 20, 20) << QSize(200, 120) << KaPopupEnum::Bottom;
        QTest::newRow("below, at the left edge: slides right")
            << KaPopupEnum::Bottom << QRect(0, h / 2, 20, 20) << QSize(200, 120) << KaPopupEnum::Bottom;
        QTest::newRow("left, at the bottom edge: slides up")
            << KaPopupEnum::Left << QRect(w / 2, h - 20, 40, 20) << QSize(200, 120) << KaPopupEnum::Left;
        QTest::newRow("above, fits nowhere: the roomier side")
            << KaPopupEnum::Top << QRect(w / 2, h / 2 - 40, 40, 20) << QSize(200, h - 100)
            << KaPopupEnum::Bottom;
        QTest::newRow("below, fits nowhere, roomier already")
            << KaPopupEnum::Bottom << QRect(w / 2, h / 2 - 40, 40, 20) << QSize(200, h - 100)
            << KaPopupEnum::Bottom;
        QTest::newRow("larger than the screen") << KaPopupEnum::Right << QRect(w / 2 - 60, h / 2, 40, 20)
                                                << QSize(w + 50, h + 50) << KaPopupEnum::Right;
    }
    void showPointNearEdges() {
        QFETCH(Side, side);
        QFETCH(QRect, anchor);
        QFETCH(QSize, size);
        QFETCH(Side, shown);
        const QRect area = screenArea();
        QWidget widget;
        widget.setGeometry(anchor.translated(area.topLeft()));
        const QRect r = widget.geometry();

        Side used = KaPopupEnum::None;
        const QPoint p =
            calculateShowPoint(KaControlHandle(&widget), side, size.width(), size.height(), 50, &used);
        QCOMPARE(used, shown);
        const QRect popup(p, size);
        if (size.width() <= area.width() && size.height() <= area.height()) {
            QVERIFY(area.contains(popup));
        } else {
            QCOMPARE(p, area.topLeft());
            return;
        }
        // Never over the anchor on the side it opened on.
        const bool fitsSomewhere = size.height() < area.height() - 100;
        if (fitsSomewhere)
            checkTipGap(used, p, size, r);
        if (used == KaPopupEnum::Bottom)
            QVERIFY(popup.top() > r.bottom() - ShadowMargin || !fitsSomewhere);
        // Slid along the edge only as far as the screen demands.
        if (used == KaPopupEnum::Top || used == KaPopupEnum::Bottom) {
            if (r.right() > area.right() - size.width() / 2)
                QCOMPARE(popup.right(), area.right());
            else if (r.left() < area.left() + size.width() / 2)
                QCOMPARE(popup.left(), area.left());
        } else if (r.bottom() > area.bottom() - size.height() / 2) {
            QCOMPARE(popup.bottom(), area.bottom());
        }
    }

    void showPointNoneIsBottom() {
        const KaControlHandle handle(screenArea().center());
        Side shown = KaPopupEnum::Top;
        const QPoint none = calculateShowPoint(handle, KaPopupEnum::None, 100, 50, 50, &shown);
        QCOMPARE(shown, KaPopupEnum::Bottom);
        QCOMPARE(none, calculateShowPoint(handle, KaPopupEnum::Bottom, 100, 50, 50));
    }

    void showPointWithoutAnchor() {
        auto* widget = new QWidget;
        widget->setGeometry(100, 100, 40, 20);
        const KaControlHandle handle(widget);
        delete widget;
        QTest::ignoreMessage(QtWarningMsg, "KaPopupUtils: cannot place a popup without a live anchor");
        Side shown = KaPopupEnum::None;
        QCOMPARE(calculateShowPoint(handle, KaPopupEnum::Left, 100, 50, 50, &shown), QPoint());
        QCOMPARE(shown, KaPopupEnum::Left);
        QCOMPARE(anchorPoint(handle, KaPopupEnum::Left), QPoint());
    }

    void showPointClampsOffset() {
        const KaControlHandle handle(screenArea().center());
        QTest::ignoreMessage(QtWarningMsg, "KaPopupUtils: arrow offset 150% out of range, clamped");
        QCOMPARE(calculateShowPoint(handle, KaPopupEnum::Bottom, 100, 50, 150),
                 calculateShowPoint(handle, KaPopupEnum::Bottom, 100, 50, 100));
        QTest::ignoreMessage(QtWarningMsg, "KaPopupUtils: arrow offset -1% out of range, clamped");
        QCOMPARE(calculateShowPoint(handle, KaPopupEnum::Bottom, 100, 50, -1),
                 calculateShowPoint(handle, KaPopupEnum::Bottom, 100, 50, 0));
    }

    void colorsFollowTheme() {
        const PopupColors light = popupColors();
        QCOMPARE(light.background, BzThemeUtils::getColorSet("popover-primary-background").normal());
        QCOMPARE(light.border, BzThemeUtils::getColorSet("modal-primary-border").normal());
        QVERIFY(light.shadow.alpha() > 0);
        QVERIFY(light.shadow.alpha() <
                BzThemeUtils::getColorSet("overlayFade-meetings-background").normal().alpha());
        QCOMPARE(popupColors(BzThemeUtils::Dark).background,
                 BzThemeUtils::getColorSet("popover-primary-background", BzThemeUtils::Dark).normal());
        // The cache must not outlive a theme switch.
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(popupColors().background, popupColors(BzThemeUtils::Dark).background);
        QVERIFY(popupColors().background != light.background);
        QCOMPARE(popupColors(BzThemeUtils::Alternate).background, light.background);
    }

    void bubblePixels_data() {
        QTest::addColumn<Side>("side");
        QTest::addColumn<bool>("arrow");
        QTest::addColumn<qreal>("dpr");
        for (qreal dpr : {1.0, 2.0}) {
            for (Side side : {KaPopupEnum::Top, KaPopupEnum::Left, KaPopupEnum::Right, KaPopupEnum::Bottom}) {
                const char* name = QMetaEnum::fromType<Side>().valueToKey(side);
                QTest::addRow("%s, arrow, dpr %g", name, dpr) << side << true << dpr;
                QTest::addRow("%s, no arrow, dpr %g", name, dpr) << side << false << dpr;
            }
        }
    }
    void bubblePixels() {
        QFETCH(Side, side);
        QFETCH(bool, arrow);
        QFETCH(qreal, dpr);
        Bubble bubble;
        bubble.size = QSize(200, 120);
        bubble.alignment = side;
        bubble.arrow = arrow;
        bubble.colors = popupColors();
        const QImage image = render(bubble, dpr);
        const QRect body = bodyRect(bubble.size, side, arrow);

        QCOMPARE(logicalPixel(image, body.center().x(), body.center().y()), bubble.colors.background);
        // Outside the bubble and its shadow nothing is painted.
        QCOMPARE(alphaAt(image, 0, 0), 0);
        QCOMPARE(alphaAt(image, 199, 0), 0);
        QCOMPARE(alphaAt(image, 0, 119), 0);

        // A crisp one-pixel border on a side without arrow, shadow beyond it.
        const bool arrowOnLeft = arrow && side == KaPopupEnum::Right;
        const int x = arrowOnLeft ? body.right() : body.left();
        const int outside = arrowOnLeft ? x + 1 : x - 1;
        QCOMPARE(logicalPixel(image, x, body.center().y()), bubble.colors.border);
        QCOMPARE(logicalPixel(image, x + (arrowOnLeft ? -1 : 1), body.center().y()),
                 bubble.colors.background);
        QVERIFY(alphaAt(image, outside, body.center().y()) < 128);

        // Just inside the tip the arrow is solid; the same distance from the
        // body further along the edge is (almost) empty.
        const auto tipAt = [side](int in) { // `in` pixels in from the tip's edge
            return side == KaPopupEnum::Top     ? QPoint(100, 119 - in)
                   : side == KaPopupEnum::Left  ? QPoint(199 - in, 60)
                   : side == KaPopupEnum::Right ? QPoint(in, 60)
                                                : QPoint(100, in);
        };
        const QPoint tip = tipAt(ShadowMargin + 3);
        const bool vertical = side == KaPopupEnum::Top || side == KaPopupEnum::Bottom;
        const QPoint aside = vertical ? QPoint(body.left() + 20, tip.y()) : QPoint(tip.x(), body.top() + 15);
        if (arrow) {
            QCOMPARE(alphaAt(image, tip.x(), tip.y()), 255);
            QVERIFY(alphaAt(image, aside.x(), aside.y()) < 64);
        } else {
            // Without an arrow the body's edge comes right up to where the tip
            // would be, so both open at the same distance from the anchor.
            const QPoint edge = tipAt(ShadowMargin);
            QCOMPARE(logicalPixel(image, edge.x(), edge.y()), bubble.colors.border);
        }
    }

    void arrowFollowsAnchorPoint() {
        QWidget window;
        window.setGeometry(100, 100, 200, 120);
        const int row = ShadowMargin + 3;
        // Alpha along the row just inside the tip.
        const auto draw = [&window](const QPoint& anchor, int offset) {
            QImage image(200, 120, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            drawPopup(&window, &painter, KaPopupEnum::Bottom, anchor, offset, QPixmap(), true, window.size());
            return [image](int x) {
                return qAlpha(image.pixel(x, row));
            };
        };
        // The anchor is 50 px into the window: the tip goes there, not to the
        // 50% the offset asks for.
        const auto anchored = draw(QPoint(150, 90), 50);
        QCOMPARE(anchored(50), 255);
        QVERIFY(anchored(100) < 64);
        // Without an anchor point the offset decides.
        const auto byOffset = draw(QPoint(), 75);
        QCOMPARE(byOffset(150), 255);
        QVERIFY(byOffset(50) < 64);
        // An anchor far outside keeps the arrow on the body's straight edge.
        QCOMPARE(draw(QPoint(-400, 90), 50)(ShadowMargin + BodyRadius + ArrowBase / 2), 255);
    }

    void smallBodyArrow() {
        // A body narrower than the arrow: without a fixed size the arrow shrinks
        // to the straight part of the edge, with one it keeps its full base.
        Bubble bubble;
        bubble.size = QSize(2 * ShadowMargin + 2 * BodyRadius + 6, 80);
        bubble.alignment = KaPopupEnum::Bottom;
        bubble.colors = popupColors();
        const QImage small = render(bubble, 1);
        bubble.fixedArrowSize = true;
        const QImage fixed = render(bubble, 1);
        const int row = ShadowMargin + 2;
        auto opaqueIn = [](const QImage& image) {
            int count = 0;
            for (int x = 0; x < image.width(); ++x)
                count += qAlpha(image.pixel(x, row)) > 200;
            return count;
        };
        QVERIFY(opaqueIn(small) < opaqueIn(fixed));
        QVERIFY(opaqueIn(fixed) >= ArrowBase / 4);
    }

    void coverImage() {
        const QColor coverColor = BzThemeUtils::getColorSet("label-error-text").normal();
        QPixmap cover(100, 50);
        cover.fill(coverColor);
        Bubble bubble;
        bubble.size = QSize(200, 200);
        bubble.alignment = KaPopupEnum::Top;
        bubble.cover = cover;
        bubble.colors = popupColors();
        const QRect body = bodyRect(bubble.size, KaPopupEnum::Top, true);
        const int coverH = coverHeight(cover, body.width());
        QCOMPARE(coverH, body.width() / 2);
        for (qreal dpr : {1.0, 2.0}) {
            const QImage image = render(bubble, dpr);
            QCOMPARE(logicalPixel(image, body.center().x(), body.top() + 5), coverColor);
            QCOMPARE(logicalPixel(image, body.center().x(), body.top() + coverH + 5),
                     bubble.colors.background);
            // The border is drawn over the cover.
            QCOMPARE(logicalPixel(image, body.left(), body.top() + coverH / 2), bubble.colors.border);
            // The rounded corner clips it.
            QVERIFY(alphaAt(image, body.left(), body.top()) < 128);
        }
        QCOMPARE(coverHeight(QPixmap(), 100), 0);
    }

    // KaControlHandle, what the popups are placed against.
    void empty() {
        const KaControlHandle handle;
        QCOMPARE(handle.kind(), KaControlHandle::Empty);
        QVERIFY(!handle.isValid());
        QVERIFY(handle.globalRect().isNull());
        QCOMPARE(handle.screen(), nullptr);
    }

    void widget() {
        QWidget window;
        window.setGeometry(120, 80, 300, 200);
        QWidget child(&window);
        child.setGeometry(10, 20, 40, 30);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        const KaControlHandle handle(&child);
        QCOMPARE(handle.kind(), KaControlHandle::Widget);
        QVERIFY(handle.isValid());
        QCOMPARE(handle.globalRect(), QRect(child.mapToGlobal(QPoint(0, 0)), QSize(40, 30)));
        QCOMPARE(handle.screen(), QGuiApplication::primaryScreen());
        QCOMPARE(handle.widget(), &child);
        QCOMPARE(handle.button(), nullptr);
        QCOMPARE(handle.quickItem(), nullptr);
    }

    void point() {
        const KaControlHandle handle(QPoint(300, 200));
        QCOMPARE(handle.kind(), KaControlHandle::Point);
        QVERIFY(handle.isValid());
        QCOMPARE(handle.globalRect(), QRect(300, 200, 1, 1));
        QCOMPARE(handle.screen(), QGuiApplication::primaryScreen());
        // Off every screen: still a screen to keep the popup on.
        QCOMPARE(KaControlHandle(QPoint(-5000, -5000)).screen(), QGuiApplication::primaryScreen());
    }

    void quickItem() {
        QQuickWindow window;
        window.setGeometry(100, 50, 300, 200);
        QQuickItem item(window.contentItem());
        item.setPosition(QPointF(10, 20));
        item.setSize(QSizeF(60, 25));

        const KaControlHandle handle(&item);
        QCOMPARE(handle.kind(), KaControlHandle::QuickItem);
        QCOMPARE(handle.quickItem(), &item);
        QCOMPARE(handle.widget(), nullptr);
        QCOMPARE(handle.globalRect(), QRect(110, 70, 60, 25));
        QVERIFY(handle.screen());
    }

    void anchorDeleted_data() {
        QTest::addColumn<int>("kind");
        QTest::newRow("widget") << int(KaControlHandle::Widget);
        QTest::newRow("button") << int(KaControlHandle::Button);
        QTest::newRow("quick item") << int(KaControlHandle::QuickItem);
    }

    void anchorDeleted() {
        QFETCH(int, kind);
        const KaControlHandle handle = kind == KaControlHandle::Widget   ? deadHandle<QWidget>()
                                       : kind == KaControlHandle::Button ? deadHandle<QPushButton>()
                                                                         : deadHandle<QQuickItem>();
        QCOMPARE(int(handle.kind()), kind);
        QVERIFY(!handle.isValid());
        QVERIFY(handle.globalRect().isNull());
        QCOMPARE(handle.screen(), nullptr);
        QCOMPARE(handle.widget(), nullptr);
        QCOMPARE(handle.button(), nullptr);
        QCOMPARE(handle.quickItem(), nullptr);
        // A copy taken after the deletion knows too.
        const KaControlHandle copy = handle;
        QVERIFY(!copy.isValid());
    }

private:
    std::unique_ptr<AccessibilityRecorder::RecordingScope> m_recording;
    std::unique_ptr<Fixture> f;
};

QTEST_MAIN(tst_KaPopover)
#include "tst_kapopover.moc"
