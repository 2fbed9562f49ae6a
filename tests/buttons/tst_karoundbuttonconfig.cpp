#include "karoundbuttonconfig.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {
const char kRefusal[] = "Setting the right icon on the KaRoundButtonConfig is not supported!";
}

class tst_KaRoundButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void startsSmall() {
        KaRoundButtonConfig round;
        QCOMPARE(round.size(), KaButtonEnum::Small);
        QCOMPARE(round.hasLeftIcon(), false);
        KaRoundButtonConfig::Geometry g;
        round.fillGeometry(g);
        QCOMPARE(g.fixedHeight, 32);
        QCOMPARE(g.sizePolicy.horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(g.sizePolicy.verticalPolicy(), QSizePolicy::Fixed);
    }

    void refusesRightIcon_data() {
        QTest::addColumn<bool>("value");
        QTest::newRow("true") << true;
    }

    void refusesRightIcon() {
        QFETCH(bool, value);
        KaRoundButtonConfig round;
        round.setHasLeftIcon(true);
        QSignalSpy configSpy(&round, &IKaButtonConfig::configChanged);
        KaRoundButtonConfig::Geometry before;
        round.fillGeometry(before);

        QTest::ignoreMessage(QtWarningMsg, kRefusal);
        round.setHasRightIcon(value);

        QCOMPARE(configSpy.count(), 0);
        QCOMPARE(round.hasLeftIcon(), true);
        KaRoundButtonConfig::Geometry after;
        round.fillGeometry(after);
        QCOMPARE(after.colors, before.colors);
        QCOMPARE(after.svgIconSize, before.svgIconSize);
    }

    void rightIconPathWarnsOnce() {
        KaRoundButtonConfig round;
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        QTest::ignoreMessage(QtWarningMsg, kRefusal);
        round.setRightIcon(QStringLiteral("qrc:/Resources/phone-filled.svg"));
        // The same path again does not reach the configuration a second time.
        round.setRightIcon(QStringLiteral("qrc:/Resources/phone-filled.svg"));
        QCOMPARE(round.rightIcon(), QStringLiteral("qrc:/Resources/phone-filled.svg"));
    }
};

QTEST_GUILESS_MAIN(tst_KaRoundButtonConfig)
#include "tst_karoundbuttonconfig.moc"
