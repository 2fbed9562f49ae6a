#include "kapillbuttonconfig.h"

#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

class tst_KaPillButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void iconsOnlyAtPillSizes_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("pillSize");
        const QMetaEnum sizes = QMetaEnum::fromType<KaButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i) << (sizes.value(i) <= KaButtonEnum::ExtraSmall);
        QTest::newRow("outside the enumeration") << 7 << false;
    }

    // Sizes below ExtraSmall are not pill sizes: no height, icons hidden even
    // when present. The width policy and icon alignment hold for every size.
    void iconsOnlyAtPillSizes() {
        QFETCH(int, size);
        QFETCH(bool, pillSize);
        KaPillButtonConfig pill;
        pill.setHasLeftIcon(true);
        pill.setHasRightIcon(true);
        pill.setSize(KaButtonEnum::Size(size));
        KaPillButtonConfig::Geometry g;
        pill.fillGeometry(g);
        QCOMPARE(g.fixedHeight > 0, pillSize);
        QCOMPARE(g.svgIconVisible, pillSize);
        QCOMPARE(g.anchorIconVisible, pillSize);
        if (pillSize) {
            QCOMPARE(g.anchorIconSize, g.svgIconSize);
            QVERIFY(g.fontToken != 0);
        }
        QVERIFY(g.alignAnchorIconToText);
        QCOMPARE(g.sizePolicy.verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(g.sizePolicy.horizontalPolicy(), QSizePolicy::Maximum);
    }

    void missingIcons_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("left");
        QTest::addColumn<bool>("right");
        QTest::addColumn<QSize>("leftSize");
        QTest::addColumn<int>("leftSpacing");
        QTest::addColumn<QSize>("rightSize");
        QTest::addColumn<int>("rightSpacing");

        QTest::newRow("Large, none") << 1 << false << false << QSize(0, 0) << 0 << QSize(0, 0) << 0;
        QTest::newRow("Large, left") << 1 << true << false << QSize(16, 16) << 6 << QSize(0, 0) << 0;
        QTest::newRow("Large, right") << 1 << false << true << QSize(0, 0) << 0 << QSize(16, 16) << 6;
    }

    void missingIcons() {
        QFETCH(int, size);
        QFETCH(bool, left);
        QFETCH(bool, right);
        QFETCH(QSize, leftSize);
        QFETCH(int, leftSpacing);
        QFETCH(QSize, rightSize);
        QFETCH(int, rightSpacing);

        KaPillButtonConfig pill;
        pill.setSize(KaButtonEnum::Size(size));
        pill.setHasLeftIcon(left);
        pill.setHasRightIcon(right);
        KaPillButtonConfig::Geometry g;
        pill.fillGeometry(g);
        QCOMPARE(g.svgIconSize, leftSize);
        QCOMPARE(g.svgIconSpacing, leftSpacing);
        QCOMPARE(g.anchorIconSize, rightSize);
        QCOMPARE(g.anchorIconSpacing, rightSpacing);
        QCOMPARE(g.svgIconVisible, left);
        QCOMPARE(g.anchorIconVisible, right);
    }

    void leftIconPathDrivesSpacing() {
        KaPillButtonConfig pill;
        pill.setSize(KaButtonEnum::Normal);
        QSignalSpy configSpy(&pill, &IKaButtonConfig::configChanged);
        KaPillButtonConfig::Geometry g;

        const QString icon = QStringLiteral("qrc:/Resources/meet-bold.svg");
        pill.setLeftIcon(icon);
        QVERIFY(pill.hasLeftIcon());
        QCOMPARE(pill.svgIcon(), icon);
        pill.fillGeometry(g);
        QCOMPARE(g.svgIconSpacing, 4);
        QCOMPARE(g.svgIconSize, QSize(16, 16));

        pill.setLeftIcon(icon); // same path: nothing
        pill.setLeftIcon(QString());
        QVERIFY(!pill.hasLeftIcon());
        pill.fillGeometry(g);
        QCOMPARE(g.svgIconSpacing, 0);
        QCOMPARE(g.svgIconSize, QSize(0, 0));
        QCOMPARE(g.svgIconVisible, false);
        // One refresh per real change, although the flag changed as well.
        QCOMPARE(configSpy.count(), 2);
    }

    void widthPolicy_data() {
        QTest::addColumn<int>("policy");
        QTest::newRow("Expanding") << int(QSizePolicy::Expanding);
        QTest::newRow("Maximum again") << int(QSizePolicy::Maximum);
    }

    void widthPolicy() {
        QFETCH(int, policy);
        KaPillButtonConfig pill;
        QSignalSpy configSpy(&pill, &IKaButtonConfig::configChanged);
        QSignalSpy policySpy(&pill, &KaButtonConfig::widthSizePolicyChanged);
        pill.setWidthSizePolicy(QSizePolicy::Policy(policy));
        // Always a refresh; the property signal only on a change.
        QCOMPARE(configSpy.count(), 1);
        QCOMPARE(policySpy.count(), policy == QSizePolicy::Maximum ? 0 : 1);
        KaPillButtonConfig::Geometry g;
        pill.fillGeometry(g);
        QCOMPARE(int(g.sizePolicy.horizontalPolicy()), policy);
        QCOMPARE(g.sizePolicy.verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(g.sizePolicy.controlType(), QSizePolicy::DefaultType);
    }
};

QTEST_GUILESS_MAIN(tst_KaPillButtonConfig)
#include "tst_kapillbuttonconfig.moc"
