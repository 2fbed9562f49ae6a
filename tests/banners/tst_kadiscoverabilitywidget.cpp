#include "buttontestutils.h"
#include "kadiscoverabilitylabel.h"
#include "kadiscoverabilitywidget.h"

#include <QSignalSpy>

using namespace ButtonTest;
using Type = KaDiscoverabilityEnum::DiscoverabilityLabelType;

class tst_KaDiscoverabilityWidget : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void otherTypesChangeNothing_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("IconTag") << int(KaDiscoverabilityEnum::IconTag);
        QTest::newRow("IconWithTextTag") << int(KaDiscoverabilityEnum::IconWithTextTag);
        QTest::newRow("NewFeature") << int(KaDiscoverabilityEnum::NewFeature);
        QTest::newRow("out of range") << -5;
    }

    void otherTypesChangeNothing() {
        QFETCH(int, type);
        KaDiscoverabilityWidget widget;
        widget.resize(120, 40);
        widget.setBadgeType(KaDiscoverabilityEnum::IconWithBorder);
        const QRect before = widget.badge()->geometry();
        QSignalSpy spy(&widget, &KaDiscoverabilityWidget::badgeTypeChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a badge look")));
        widget.setBadgeType(Type(type));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(widget.badgeType(), KaDiscoverabilityEnum::IconWithBorder);
        QCOMPARE(widget.badge()->labelType(), KaDiscoverabilityEnum::IconWithBorder);
        QCOMPARE(widget.badge()->geometry(), before);
    }

    // The badge's right edge meets the widget's at the top, above the widget's
    // other children, and stays there when the widget is resized.
    void pinnedToTopRight() {
        QWidget window;
        auto* widget = new KaDiscoverabilityWidget(&window);
        auto* content = new QWidget(widget);
        content->setGeometry(0, 0, 120, 40);
        widget->setGeometry(10, 10, 120, 40);
        QVERIFY(shown(window));
        QSignalSpy spy(widget, &KaDiscoverabilityWidget::badgeTypeChanged);
        widget->setBadgeType(KaDiscoverabilityEnum::IconWithBorder);
        QCOMPARE(spy.count(), 1);
        auto* badge = widget->findChild<KaDiscoverabilityLabel*>(QStringLiteral("discoverabilityBadge"));
        QCOMPARE(badge->labelType(), KaDiscoverabilityEnum::IconWithBorder);
        QVERIFY(!badge->isVisible());
        widget->showDiscoverabilityBadge(true);
        QVERIFY(badge->isVisible());
        QCOMPARE(badge->geometry(), QRect(120 - 18, 0, 18, 18));
        QVERIFY(badge->isAncestorOf(widget->childAt(115, 5)) || widget->childAt(115, 5) == badge);
        widget->resize(200, 40);
        QCOMPARE(badge->geometry().topRight(), QPoint(199, 0));
        widget->showDiscoverabilityBadge(false);
        QVERIFY(!badge->isVisible());
    }

    void deletedBadge() {
        KaDiscoverabilityWidget widget;
        delete widget.badge();
        QVERIFY(!widget.badge());
        widget.setBadgeType(KaDiscoverabilityEnum::IconWithBorder);
        widget.showDiscoverabilityBadge(true);
        widget.resize(50, 50);
        QVERIFY(widget.isBadgeShown());
    }
};

QTEST_MAIN(tst_KaDiscoverabilityWidget)
#include "tst_kadiscoverabilitywidget.moc"
