#include "buttontestutils.h"
#include "kaiconbuttonconfig.h"

#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

class tst_KaIconButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void colours_data() {
        QTest::addColumn<int>("type");
        const QMetaEnum types = QMetaEnum::fromType<KaIconButtonEnum::Type>();
        for (int i = 0; i < types.keyCount(); ++i)
            QTest::newRow(types.key(i)) << types.value(i);
        QTest::newRow("outside the enumeration") << 7;
    }

    // A typed icon sits on the container background and differs between ACTIVE
    // and INACTIVE; None (or an unknown type) shows nothing. High contrast adds
    // the primary border to every icon button and changes nothing else.
    void colours() {
        QFETCH(int, type);
        const bool typed = type > KaIconButtonEnum::None && type <= KaIconButtonEnum::Dismiss;
        KaIconButtonConfig config;
        config.setType(KaIconButtonEnum::Type(type));
        KaButtonConfigRecord active;
        KaButtonConfigRecord inactive;
        {
            const ButtonTest::HighContrastScope off(false);
            config.setStyle(KaIconButtonEnum::ACTIVE);
            config.fillConfig(active);
            config.setStyle(KaIconButtonEnum::INACTIVE);
            config.fillConfig(inactive);
        }
        for (const KaButtonConfigRecord& record : {active, inactive}) {
            QCOMPARE(record.colors.textColorSet.isEmpty(), !typed);
            QCOMPARE(record.colors.backgroundColorSet,
                     typed ? QStringLiteral("interactiveicon-container-background") : QString());
            QVERIFY(!record.colors.hasAnyBorder());
        }
        QCOMPARE(active.colors.textColorSet != inactive.colors.textColorSet, typed);

        const ButtonTest::HighContrastScope on(true);
        KaButtonConfigRecord record;
        config.fillConfig(record);
        QCOMPARE(record.colors.textColorSet, inactive.colors.textColorSet);
        QCOMPARE(record.colors.backgroundColorSet, inactive.colors.backgroundColorSet);
        QCOMPARE(record.colors.borderColorSet, QStringLiteral("button-primary-border"));
        QCOMPARE(record.colors.hasBorder, (std::array<bool, 4>{{true, true, true, true}}));
    }

    void setterNotifications() {
        KaIconButtonConfig config;
        QSignalSpy configSpy(&config, &IKaButtonConfig::configChanged);
        config.setType(KaIconButtonEnum::None); // the initial values
        config.setStyle(KaIconButtonEnum::INACTIVE);
        config.setSize(KaButtonEnum::Normal);
        QCOMPARE(configSpy.count(), 0);
        config.setType(KaIconButtonEnum::Favorite);
        QCOMPARE(configSpy.count(), 1);
        // The custom value is not an icon button's: no accelerator type.
        config.setCustomValue(5);
        KaButtonConfigRecord record;
        config.fillConfig(record);
        QCOMPARE(record.acceleratorType, 0);
    }
};

QTEST_GUILESS_MAIN(tst_KaIconButtonConfig)
#include "tst_kaiconbuttonconfig.moc"
