#include "kawidgetdata.h"

#include <QTest>

class tst_KaWidgetData : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void negativeTicksClamped() {
        QTest::ignoreMessage(QtWarningMsg, "KaWidgetData: negative dismiss timer ticks -2, using 0");
        KaWidgetData d;
        d.dismissTimerTicks(5).dismissTimerTicks(-2);
        QCOMPARE(d.m_dismissTimerTicks, 0);
    }

    void toArrowPosition_data() {
        QTest::addColumn<int>("arrow");
        QTest::addColumn<KaWidgetData::ArrowPostion>("expected");
        QTest::newRow("up") << int(Qt::UpArrow) << KaWidgetData::ArrowTop;
        QTest::newRow("left") << int(Qt::LeftArrow) << KaWidgetData::ArrowLeft;
        QTest::newRow("right") << int(Qt::RightArrow) << KaWidgetData::ArrowRight;
        QTest::newRow("down") << int(Qt::DownArrow) << KaWidgetData::ArrowBottom;
        QTest::newRow("none") << int(Qt::NoArrow) << KaWidgetData::ArrowNone;
        // Unnamed, but still a value Qt::ArrowType can hold (0..7).
        QTest::newRow("out of range") << 7 << KaWidgetData::ArrowNone;
    }

    void toArrowPosition() {
        QFETCH(int, arrow);
        QFETCH(KaWidgetData::ArrowPostion, expected);
        QCOMPARE(KaWidgetData::toArrowPosition(Qt::ArrowType(arrow)), expected);
    }
};

QTEST_APPLESS_MAIN(tst_KaWidgetData)
#include "tst_kawidgetdata.moc"
