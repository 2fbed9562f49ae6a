#include "kacontrolhandle.h"
#include "kapopuputils.h"

#include <QGuiApplication>
#include <QImage>
#include <QMetaEnum>
#include <QPainter>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <bzthememanager.h>
#include <drawutils.h>

using namespace KaPopupUtils;
using Side = KaPopupEnum::Alignment;

Q_DECLARE_METATYPE(KaPopupEnum::Alignment)

namespace {

QRect screenArea() {
    return QGuiApplication::primaryScreen()->availableGeometry();
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
} // namespace

class tst_KaPopupUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    // The margins and opposite sides are tables; what they place is checked
    // below, by the show point and the bubble's pixels.
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
};

QTEST_MAIN(tst_KaPopupUtils)
#include "tst_kapopuputils.moc"
