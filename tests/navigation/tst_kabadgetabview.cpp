#include "kabadge.h"
#include "kabadgetabview.h"

#include <buttontestutils.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

class tst_KaBadgeTabView : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void badgesJoinTheName_data() {
        QTest::addColumn<QString>("badge"); // "count N", "word W", "icon", "none"
        QTest::addColumn<QString>("name");
        QTest::newRow("count") << QStringLiteral("count 3") << QStringLiteral("Chat, 3");
        QTest::newRow("count over the cap") << QStringLiteral("count 120") << QStringLiteral("Chat, 120");
        QTest::newRow("word") << QStringLiteral("word New") << QStringLiteral("Chat, New");
        QTest::newRow("icon") << QStringLiteral("icon") << QStringLiteral("Chat, mention");
        QTest::newRow("cleared") << QStringLiteral("none") << QStringLiteral("Chat");
    }
    void badgesJoinTheName() {
        QFETCH(QString, badge);
        QFETCH(QString, name);
        KaBadgeTabView view;
        view.addTab(QStringLiteral("Chat"));
        KaBadgeTab* tab = view.badgeTabAt(0);
        QVERIFY(tab);
        const int plainWidth = tab->sizeHint().width();
        const QString kind = badge.section(QLatin1Char(' '), 0, 0);
        const QString value = badge.section(QLatin1Char(' '), 1);
        if (kind == QLatin1String("count")) {
            view.setCount(0, value.toInt());
        } else if (kind == QLatin1String("word")) {
            tab->setBadgeText(value);
        } else if (kind == QLatin1String("icon")) {
            view.setIconBadge(0, IconBadgeMention);
        } else {
            view.setCount(0, 5);
            view.clearBadge(0);
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(tab)->text(QAccessible::Name), name);
        QCOMPARE(tab->badge() != nullptr, kind != QLatin1String("none"));
        // The tab makes room for its badge.
        QCOMPARE(tab->sizeHint().width() > plainWidth, kind != QLatin1String("none"));
        // A host's own name wins over the badge's.
        tab->setAccessibleName(QStringLiteral("Chat (unread)"));
        view.setCount(0, 9);
        QCOMPARE(QAccessible::queryAccessibleInterface(tab)->text(QAccessible::Name),
                 QStringLiteral("Chat (unread)"));
    }

    void counterIsReusedAndSignalled() {
        KaBadgeTab tab(QStringLiteral("Calls"), QString());
        QSignalSpy counts(&tab, &KaBadgeTab::countChanged);
        tab.setCount(2);
        QWidget* counter = tab.badge();
        tab.setCount(7);
        QCOMPARE(tab.badge(), counter);
        QCOMPARE(static_cast<KaBadge*>(counter)->number(), 7);
        tab.setCount(7);
        tab.setCount(-4); // none
        QCOMPARE(counts.count(), 3);
        QVERIFY(!tab.badge());
    }

    void badgeFollowsTheme() {
        KaBadgeTabView view;
        view.addTab(QStringLiteral("Chat"));
        view.setCount(0, 3);
        view.resize(view.sizeHint());
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QWidget* badge = view.badgeTabAt(0)->badge();
        const QPoint edge = badge->mapTo(&view, QPoint(2, badge->height() / 2));
        QCOMPARE(rendered(&view).pixelColor(edge), colorOf("badge-background"));
        switchTheme("dark");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&view).pixelColor(edge), colorOf("badge-background", BzThemeUtils::Dark));
    }

    void badInput() {
        KaBadgeTabView view;
        view.addTab(QStringLiteral("Chat"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setCount: no tab 4 ignored"));
        view.setCount(4, 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("unknown icon badge 99 ignored"));
        view.setIconBadge(0, KaIconBadgeType(99));
        QVERIFY(!view.badgeTabAt(0)->badge());
        view.removeTab(0);
        QVERIFY(!view.badgeTabAt(0));
    }
};

QTEST_MAIN(tst_KaBadgeTabView)
#include "tst_kabadgetabview.moc"
