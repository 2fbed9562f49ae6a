#include "kacontrolhandle.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTest>
#include <QWidget>

namespace {
// A handle whose anchor, a `T`, is already deleted.
template <typename T> KaControlHandle deadHandle() {
    auto* anchor = new T;
    const KaControlHandle handle(anchor);
    delete anchor;
    return handle;
}
} // namespace

class tst_KaControlHandle : public QObject {
    Q_OBJECT
private Q_SLOTS:
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

QTEST_MAIN(tst_KaControlHandle)
#include "tst_kacontrolhandle.moc"
