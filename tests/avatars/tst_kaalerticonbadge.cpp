#include "buttontestutils.h"
#include "kaalerticonbadge.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

class tst_KaAlertIconBadge : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void squareWithIcon() {
        QWidget window;
        KaAlertIconBadge badge(&window, KaBadgeEnum::Important);
        QVERIFY(shown(window));
        QCOMPARE(badge.maximumSize(), QSize(20, 20));
        QCOMPARE(badge.svgIconRect(), QRect(4, 4, 12, 12));
        QCOMPARE(QAccessible::queryAccessibleInterface(&badge)->text(QAccessible::Name),
                 QStringLiteral("important"));
        const char* const face = "alertbadge-important-background";
        QVERIFY(BzTest::near(pixelAt(&badge, QPoint(10, 2)), colorOf(face)));

        QSignalSpy spy(&badge, &KaAlertIconBadge::styleChanged);
        badge.setStyle(KaBadgeEnum::AlertGeneral);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(badge.leftIcon(), QStringLiteral("qrc:/Resources/blocked-bold.svg"));
        QCOMPARE(QAccessible::queryAccessibleInterface(&badge)->text(QAccessible::Name),
                 QStringLiteral("blocked"));

        const char* const blocked = "alertbadge-blocked-background";
        const QColor light = colorOf(blocked);
        switchTheme("dark");
        QVERIFY(colorOf(blocked) != light);
        QTRY_VERIFY(BzTest::near(pixelAt(&badge, QPoint(10, 2)), colorOf(blocked)));
    }

    void unknownStyle() {
        QTest::ignoreMessage(QtWarningMsg, "KaAlertBadgeConfig: unknown badge style 5, using DefaultBadge");
        KaAlertIconBadge badge(nullptr, KaBadgeEnum::Style(5));
        QCOMPARE(badge.style(), KaBadgeEnum::DefaultBadge);
        QVERIFY(badge.leftIcon().isEmpty());
        QCOMPARE(badge.maximumSize(), QSize(20, 20));
    }
};

QTEST_MAIN(tst_KaAlertIconBadge)
#include "tst_kaalerticonbadge.moc"
