#include "buttontestutils.h"
#include "kaiconbadge.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QTest>

using namespace ButtonTest;

namespace {
// Whether any pixel of the badge is painted in `color`.
bool paintsIn(QWidget* widget, const QColor& color) {
    const QImage image = rendered(widget);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() == 255 && BzTest::near(image.pixelColor(x, y), color, 1))
                return true;
    return false;
}
} // namespace

class tst_KaIconBadge : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void iconInItsColour_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("color");
        QTest::newRow("warning") << int(IconBadgeWarning) << QStringLiteral("label-warning-text");
        QTest::newRow("unread") << int(IconBadgeUnread) << QStringLiteral("badge-background");
    }

    // A 14-pixel icon in the type's colour, in every theme.
    void iconInItsColour() {
        QFETCH(int, type);
        QFETCH(QString, color);
        const QByteArray name = color.toLatin1();
        QWidget window;
        KaIconBadge badge(&window, KaIconBadgeType(type));
        QVERIFY(shown(window));
        QCOMPARE(badge.maximumSize(), QSize(14, 14));
        QCOMPARE(badge.svgIconSize(), QSize(14, 14));
        QVERIFY(paintsIn(&badge, colorOf(name.constData())));
        QVERIFY(!QAccessible::queryAccessibleInterface(&badge)->text(QAccessible::Name).isEmpty());

        const QColor light = colorOf(name.constData());
        switchTheme("dark");
        QVERIFY(colorOf(name.constData()) != light);
        QTRY_VERIFY(paintsIn(&badge, colorOf(name.constData())));
    }

    void unknownType() {
        QTest::ignoreMessage(QtWarningMsg, "KaIconBadge: unknown icon badge type 11, showing no icon");
        KaIconBadge badge(nullptr, KaIconBadgeType(11));
        QCOMPARE(badge.maximumSize(), QSize(14, 14));
        QVERIFY(badge.svgIcon().isEmpty());
        const QImage image = rendered(&badge);
        QCOMPARE(image, BzTest::canvas(QSize(14, 14)));
    }
};

QTEST_MAIN(tst_KaIconBadge)
#include "tst_kaiconbadge.moc"
