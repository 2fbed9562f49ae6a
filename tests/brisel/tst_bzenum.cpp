#include "bzenum.h"

#include <QGuiApplication>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

class tst_BzEnum : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void keysAreRegistered();
    void horAlignFollowsDirection_data();
    void horAlignFollowsDirection();
    void horAlignFromWidget();
    void alignmentToQt_data();
    void alignmentToQt();
    void unknownValuesWarn();
};

void tst_BzEnum::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_BzEnum::cleanup() {
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_BzEnum::keysAreRegistered() {
    // Designer and QML read these by key name.
    const QMetaEnum alignment = QMetaEnum::fromType<BzEnum::Alignment>();
    QCOMPARE(alignment.keyCount(), 5);
    QCOMPARE(alignment.keyToValue("AlignBottom"), int(BzEnum::AlignBottom));
    QCOMPARE(alignment.valueToKey(BzEnum::AlignCenter), "AlignCenter");
    const QMetaEnum hor = QMetaEnum::fromType<BzEnum::HorAlign>();
    QCOMPARE(hor.keyCount(), 3);
    QCOMPARE(hor.keyToValue("Right"), int(BzEnum::Right));
}

void tst_BzEnum::horAlignFollowsDirection_data() {
    QTest::addColumn<int>("align");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("expected");

    const int abs = Qt::AlignAbsolute;
    QTest::newRow("left ltr") << int(BzEnum::Left) << Qt::LeftToRight << int(Qt::AlignLeft) + abs;
    QTest::newRow("left rtl") << int(BzEnum::Left) << Qt::RightToLeft << int(Qt::AlignRight) + abs;
    QTest::newRow("right ltr") << int(BzEnum::Right) << Qt::LeftToRight << int(Qt::AlignRight) + abs;
    QTest::newRow("right rtl") << int(BzEnum::Right) << Qt::RightToLeft << int(Qt::AlignLeft) + abs;
    QTest::newRow("center ltr") << int(BzEnum::Center) << Qt::LeftToRight << int(Qt::AlignHCenter);
    QTest::newRow("center rtl") << int(BzEnum::Center) << Qt::RightToLeft << int(Qt::AlignHCenter);
}

void tst_BzEnum::horAlignFollowsDirection() {
    QFETCH(int, align);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, expected);

    QCOMPARE(int(BzEnum::toQtAlignment(BzEnum::HorAlign(align), direction)), expected);
}

void tst_BzEnum::horAlignFromWidget() {
    QWidget widget;
    QCOMPARE(BzEnum::toQtAlignment(BzEnum::Left, &widget), Qt::AlignLeft | Qt::AlignAbsolute);
    widget.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(BzEnum::toQtAlignment(BzEnum::Left, &widget), Qt::AlignRight | Qt::AlignAbsolute);

    QCOMPARE(BzEnum::toQtAlignment(BzEnum::Left, nullptr), Qt::AlignLeft | Qt::AlignAbsolute);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(BzEnum::toQtAlignment(BzEnum::Left, nullptr), Qt::AlignRight | Qt::AlignAbsolute);
}

void tst_BzEnum::alignmentToQt_data() {
    QTest::addColumn<int>("align");
    QTest::addColumn<int>("expected");

    QTest::newRow("left") << int(BzEnum::AlignLeft) << int(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("right") << int(BzEnum::AlignRight) << int(Qt::AlignRight | Qt::AlignVCenter);
    QTest::newRow("top") << int(BzEnum::AlignTop) << int(Qt::AlignTop | Qt::AlignHCenter);
    QTest::newRow("bottom") << int(BzEnum::AlignBottom) << int(Qt::AlignBottom | Qt::AlignHCenter);
    QTest::newRow("center") << int(BzEnum::AlignCenter) << int(Qt::AlignCenter);
}

void tst_BzEnum::alignmentToQt() {
    QFETCH(int, align);
    QFETCH(int, expected);
    QCOMPARE(int(BzEnum::toQtAlignment(BzEnum::Alignment(align))), expected);
}

void tst_BzEnum::unknownValuesWarn() {
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown horizontal alignment 9")));
    QCOMPARE(BzEnum::toQtAlignment(BzEnum::HorAlign(9), Qt::RightToLeft), Qt::AlignRight | Qt::AlignAbsolute);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown alignment 9")));
    QCOMPARE(BzEnum::toQtAlignment(BzEnum::Alignment(9)), Qt::Alignment(Qt::AlignCenter));
}

QTEST_MAIN(tst_BzEnum)
#include "tst_bzenum.moc"
