#include "kaconfig.h"

#include <QTest>

class tst_KaConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void offUntilSet();
    void setterWritesFlag_data();
    void setterWritesFlag();
};

// Must run first: nothing has touched the flag yet.
void tst_KaConfig::offUntilSet() {
    QCOMPARE(KaConfig::highContrast, false);
}

void tst_KaConfig::setterWritesFlag_data() {
    QTest::addColumn<bool>("initial");
    QTest::addColumn<bool>("value");
    QTest::newRow("off to on") << false << true;
    QTest::newRow("on to off") << true << false;
    QTest::newRow("on again") << true << true;
    QTest::newRow("off again") << false << false;
}

void tst_KaConfig::setterWritesFlag() {
    QFETCH(bool, initial);
    QFETCH(bool, value);
    KaConfig::setIsHighContrast(initial);
    QCOMPARE(KaConfig::highContrast, initial);
    KaConfig::setIsHighContrast(value);
    // Read through the exported variable, as components do.
    const bool* flag = &KaConfig::highContrast;
    QCOMPARE(*flag, value);
}

QTEST_GUILESS_MAIN(tst_KaConfig)
#include "tst_kaconfig.moc"
