#include "kamenuitemcontainer.h"

#include <QEnterEvent>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

class tst_KaMenuItemContainer : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Entering the container or the wrapped widget reports hovering.
    void hover() {
        KaMenuItemContainer container;
        auto* label = new QLabel(QStringLiteral("Custom"));
        container.setWidget(label);
        QCOMPARE(label->parentWidget(), &container);
        QSignalSpy spy(&container, &KaMenuItemContainer::hovered);
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(label, &enter);
        QCOMPARE(spy.count(), 1);
        QCoreApplication::sendEvent(&container, &enter);
        QCOMPARE(spy.count(), 2);
    }

    // A new widget replaces (and deletes) the old one, which is no longer
    // watched; null empties the container.
    void replace() {
        KaMenuItemContainer container;
        QPointer<QLabel> first = new QLabel(QStringLiteral("First"));
        container.setWidget(first);
        auto* second = new QLabel(QStringLiteral("Second"));
        container.setWidget(second);
        QVERIFY(first.isNull());
        QCOMPARE(container.widget(), second);
        container.setWidget(nullptr);
        QVERIFY(!container.widget());
        QCOMPARE(container.focusPolicy(), Qt::NoFocus);
    }
};

QTEST_MAIN(tst_KaMenuItemContainer)
#include "tst_kamenuitemcontainer.moc"
