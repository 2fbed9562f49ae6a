#include "bzcolorset.h"

#include <QTest>

namespace {
BzColorSet sample() {
    return BzColorSet(QStringLiteral("s"), QColor(1, 0, 0), QColor(2, 0, 0), QColor(3, 0, 0), QColor(4, 0, 0),
                      QColor(5, 0, 0), QColor(6, 0, 0));
}
} // namespace

class TestBzColorSet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void stateRule_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("expected");
        const int on = QStyle::State_Enabled;
        QTest::newRow("disabled beats everything")
            << int(QStyle::State_Sunken | QStyle::State_MouseOver | QStyle::State_On)
            << int(BzColorSet::Disabled);
        QTest::newRow("sunken beats hover")
            << (on | QStyle::State_Sunken | QStyle::State_MouseOver) << int(BzColorSet::Pressed);
        QTest::newRow("hover beats focus")
            << (on | QStyle::State_MouseOver | QStyle::State_HasFocus) << int(BzColorSet::Hovered);
        QTest::newRow("focus beats checked")
            << (on | QStyle::State_HasFocus | QStyle::State_On) << int(BzColorSet::Focused);
        QTest::newRow("on is checked") << (on | QStyle::State_On) << int(BzColorSet::Checked);
        QTest::newRow("selected is checked") << (on | QStyle::State_Selected) << int(BzColorSet::Checked);
        QTest::newRow("plain") << on << int(BzColorSet::Normal);
    }
    void stateRule() {
        QFETCH(int, state);
        QFETCH(int, expected);
        const BzColorSet set = sample();
        QCOMPARE(int(set.stateFor(QStyle::State(state))), expected);
        QCOMPARE(set.colorFor(QStyle::State(state)), set.color(BzColorSet::State(expected)));
    }

    void focusOnlyWhenDistinct() {
        BzColorSet set = sample();
        set.setColor(BzColorSet::Focused, set.normal());
        // Same focus colour as normal: focus is skipped and "on" decides.
        QCOMPARE(set.stateFor(QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_On),
                 BzColorSet::Checked);
        QCOMPARE(set.stateFor(QStyle::State_Enabled | QStyle::State_HasFocus), BzColorSet::Normal);
    }

    void stateNamesRoundTrip() {
        for (int s = 0; s < BzColorSet::StateCount; ++s)
            QCOMPARE(BzColorSet::stateFromName(BzColorSet::stateName(BzColorSet::State(s))),
                     BzColorSet::State(s));
        QCOMPARE(BzColorSet::stateFromName(QStringLiteral("hover")), BzColorSet::StateCount);
        QCOMPARE(BzColorSet::stateFromName(QStringLiteral("Normal")), BzColorSet::StateCount); // case matters
    }

    void outOfRangeState() {
        BzColorSet set = sample();
        QTest::ignoreMessage(QtWarningMsg, "BzColorSet::setColor: state 9 is out of range");
        set.setColor(BzColorSet::State(9), Qt::blue);
        QCOMPARE(set, sample());
        QCOMPARE(set.color(BzColorSet::State(-1)), set.normal());
    }
};

QTEST_APPLESS_MAIN(TestBzColorSet)
#include "tst_bzcolorset.moc"
