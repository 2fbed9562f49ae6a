#include "apputils.h"
#include "bzenum.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

class tst_BzEnum : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void horAlignFollowsDirection_data() {
        QTest::addColumn<int>("align");
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<int>("expected");
        const int abs = Qt::AlignAbsolute;
        QTest::newRow("left ltr") << int(BzEnum::Left) << false << (int(Qt::AlignLeft) | abs);
        QTest::newRow("left rtl") << int(BzEnum::Left) << true << (int(Qt::AlignRight) | abs);
        QTest::newRow("right ltr") << int(BzEnum::Right) << false << (int(Qt::AlignRight) | abs);
        QTest::newRow("right rtl") << int(BzEnum::Right) << true << (int(Qt::AlignLeft) | abs);
        QTest::newRow("center rtl") << int(BzEnum::Center) << true << int(Qt::AlignHCenter);
    }
    void horAlignFollowsDirection() {
        QFETCH(int, align);
        QFETCH(bool, rtl);
        QFETCH(int, expected);
        const BzEnum::HorAlign a = BzEnum::HorAlign(align);
        const Qt::LayoutDirection direction = rtl ? Qt::RightToLeft : Qt::LeftToRight;
        QCOMPARE(int(BzEnum::toQtAlignment(a, direction)), expected);
        // A widget's direction, or without one the application's, decides.
        QWidget widget;
        widget.setLayoutDirection(direction);
        QCOMPARE(int(BzEnum::toQtAlignment(a, &widget)), expected);
        QGuiApplication::setLayoutDirection(direction);
        QCOMPARE(int(BzEnum::toQtAlignment(a, nullptr)), expected);
    }

    void alignmentToQt() {
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::AlignLeft), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::AlignBottom), Qt::AlignBottom | Qt::AlignHCenter);
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::AlignCenter), Qt::Alignment(Qt::AlignCenter));
    }

    void unknownValuesWarn() {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("unknown horizontal alignment 9")));
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::HorAlign(9), Qt::RightToLeft),
                 Qt::AlignRight | Qt::AlignAbsolute);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown alignment 9")));
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::Alignment(9)), Qt::Alignment(Qt::AlignCenter));
    }

    // AppUtils: which direction a widget, or the application, lays out in.
    void rightToLeftOfWidgetOrApplication() {
        QWidget parent;
        QWidget* child = new QWidget(&parent);
        QVERIFY(!AppUtils::isRTLLayoutDirection());
        QVERIFY(!AppUtils::isRTLLayoutDirection(child));
        // A widget's own (or inherited) direction wins over the application's, both ways.
        parent.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(AppUtils::isRTLLayoutDirection(child));
        QVERIFY(!AppUtils::isRTLLayoutDirection());
        QWidget ltr;
        ltr.setLayoutDirection(Qt::LeftToRight);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(!AppUtils::isRTLLayoutDirection(&ltr));
        QVERIFY(AppUtils::isRTLLayoutDirection(nullptr));
    }
};

QTEST_MAIN(tst_BzEnum)
#include "tst_bzenum.moc"
