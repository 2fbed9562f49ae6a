#include "kaoverlaybuttonconfig.h"

#include <QSignalSpy>
#include <QTest>

class tst_KaOverlayButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void colours_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("coloured");
        QTest::newRow("None") << 0 << false;
        QTest::newRow("ExpandAreaOverlay") << 1 << true;
        QTest::newRow("CollapseAreaOverlay") << 2 << true;
        QTest::newRow("outside the enumeration") << 3 << false;
    }

    void colours() {
        QFETCH(int, type);
        QFETCH(bool, coloured);
        KaOverlayButtonConfig config;
        config.setType(KaOverlayButtonEnum::Type(type));
        KaButtonConfigRecord record;
        config.fillConfig(record);
        if (coloured) {
            QCOMPARE(record.colors.backgroundColorSet, QStringLiteral("button-overlay-background"));
            QCOMPARE(record.colors.borderColorSet, QStringLiteral("button-overlay-border"));
            QCOMPARE(record.colors.textColorSet, QStringLiteral("button-overlay-text"));
            QVERIFY(record.colors.hasAnyBorder());
        } else {
            QCOMPARE(record.colors, KaButtonConfigRecord::Colors());
        }
    }

    void sizeNotifiesOnlyOnChange() {
        KaOverlayButtonConfig config;
        QSignalSpy sizeSpy(&config, &KaOverlayButtonConfig::sizeChanged);
        config.setSize(config.size());
        QCOMPARE(sizeSpy.count(), 0);
        config.setSize(KaOverlayButtonEnum::Micro);
        config.setSize(KaOverlayButtonEnum::Micro);
        QCOMPARE(sizeSpy.count(), 1);
        KaOverlayButtonConfig::Geometry micro;
        config.fillGeometry(micro, Qt::LeftToRight);
        config.setSize(KaOverlayButtonEnum::ExtraLarge);
        KaOverlayButtonConfig::Geometry large;
        config.fillGeometry(large, Qt::LeftToRight);
        QVERIFY(micro.fixedHeight < large.fixedHeight);
    }
};

QTEST_MAIN(tst_KaOverlayButtonConfig)
#include "tst_kaoverlaybuttonconfig.moc"
