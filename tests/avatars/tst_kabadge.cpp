#include "kabadge.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

class tst_KaBadge : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void text_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("padding");
        QTest::newRow("0") << QStringLiteral("0") << QStringLiteral("0") << QStringLiteral("0") << 12;
        QTest::newRow("99") << QStringLiteral("99") << QStringLiteral("99") << QStringLiteral("99") << 12;
        QTest::newRow("100") << QStringLiteral("100") << QStringLiteral("99+") << QStringLiteral("100") << 12;
        QTest::newRow("-3") << QStringLiteral("-3") << QStringLiteral("0") << QStringLiteral("0") << 12;
        // A word leaves the number as it was (0 at start).
        QTest::newRow("word") << QStringLiteral("new") << QStringLiteral("new") << QStringLiteral("0") << 16;
    }

    void text() {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(QString, number);
        QFETCH(int, padding);
        KaBadge badge;
        badge.setText(text);
        QCOMPARE(badge.text(), shown);
        QCOMPARE(badge.getText(), number);
        const int advance = badge.fontMetrics().horizontalAdvance(shown) + padding;
        QCOMPARE(badge.width(), advance + advance % 2);
        QCOMPARE(badge.width() % 2, 0);
        QCOMPARE(badge.maximumWidth(), badge.width());
    }

    void maximumNumber() {
        KaBadge badge;
        QSignalSpy spy(&badge, &KaBadge::maximumNumberChanged);
        badge.setText(QStringLiteral("7"));
        badge.setMaximumNumber(5);
        QCOMPARE(badge.text(), QStringLiteral("5+"));
        QCOMPARE(badge.getText(), QStringLiteral("7"));
        badge.setMaximumNumber(-1);
        QCOMPARE(badge.getMaximumNumber(), 99);
        QCOMPARE(badge.text(), QStringLiteral("7"));
        badge.setMaximumNumber(99);
        QCOMPARE(spy.count(), 2);
    }

    void emptyText() {
        KaBadge badge;
        badge.setText(QStringLiteral("4"));
        QTest::ignoreMessage(QtWarningMsg, "KaBadge: empty text, showing the number 4");
        badge.setText(QString());
        QCOMPARE(badge.text(), QStringLiteral("4"));
        QVERIFY(badge.width() > 0);
    }

    void countIsSpoken() {
        KaBadge badge;
        badge.setText(QStringLiteral("250"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&badge);
        QVERIFY(iface);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("99+"));
    }
};

QTEST_MAIN(tst_KaBadge)
#include "tst_kabadge.moc"
