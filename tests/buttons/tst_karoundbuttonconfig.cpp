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
    void startsSmall();
    void geometryBySize_data();
    void geometryBySize();
    void refusesRightIcon_data();
    void refusesRightIcon();
    void rightIconPathWarnsOnce();
};

void tst_KaRoundButtonConfig::startsSmall() {
    KaRoundButtonConfig round;
    QCOMPARE(round.size(), KaButtonEnum::Small);
    QCOMPARE(round.hasLeftIcon(), false);
    KaRoundButtonConfig::Geometry g;
    round.fillGeometry(g);
    QCOMPARE(g.fixedHeight, 32);
    QCOMPARE(g.sizePolicy.horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(g.sizePolicy.verticalPolicy(), QSizePolicy::Fixed);
}

void tst_KaRoundButtonConfig::geometryBySize_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<int>("icon");
    QTest::newRow("ExtraLarge") << 0 << 64 << 32;
    QTest::newRow("Large") << 1 << 52 << 28;
    QTest::newRow("Normal") << 2 << 40 << 20;
    QTest::newRow("Small") << 3 << 32 << 16;
    QTest::newRow("ExtraSmall") << 4 << 28 << 16;
    QTest::newRow("ExtraExtraSmall") << 5 << 24 << 13;
    QTest::newRow("ExtraExtraExtraSmall") << 6 << 16 << 8;
    QTest::newRow("outside the enumeration") << 7 << 0 << 12;
}

void tst_KaRoundButtonConfig::geometryBySize() {
    QFETCH(int, size);
    QFETCH(int, diameter);
    QFETCH(int, icon);
    KaRoundButtonConfig round;
    round.setSize(KaButtonEnum::Size(size));
    KaRoundButtonConfig::Geometry g;
    round.fillGeometry(g);
    QCOMPARE(g.fixedHeight, diameter);
    QCOMPARE(g.svgIconSize, QSize(icon, icon));
    // No text, so no font token.
    QCOMPARE(g.fontToken, 0);
    QCOMPARE(g.sizePolicy, round.sizePolicy());
}

void tst_KaRoundButtonConfig::refusesRightIcon_data() {
    QTest::addColumn<bool>("value");
    QTest::newRow("true") << true;
    QTest::newRow("false") << false;
}

void tst_KaRoundButtonConfig::refusesRightIcon() {
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

void tst_KaRoundButtonConfig::rightIconPathWarnsOnce() {
    KaRoundButtonConfig round;
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QTest::ignoreMessage(QtWarningMsg, kRefusal);
    round.setRightIcon(QStringLiteral("qrc:/Resources/phone-filled.svg"));
    // The same path again does not reach the configuration a second time.
    round.setRightIcon(QStringLiteral("qrc:/Resources/phone-filled.svg"));
    QCOMPARE(round.rightIcon(), QStringLiteral("qrc:/Resources/phone-filled.svg"));
}

QTEST_GUILESS_MAIN(tst_KaRoundButtonConfig)
#include "tst_karoundbuttonconfig.moc"
