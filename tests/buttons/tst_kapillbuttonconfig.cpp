#include "kapillbuttonconfig.h"

#include <QSignalSpy>
#include <QTest>

class tst_KaPillButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void geometryBySize_data();
    void geometryBySize();
    void missingIcons_data();
    void missingIcons();
    void leftIconPathDrivesSpacing();
    void widthPolicy_data();
    void widthPolicy();
};

void tst_KaPillButtonConfig::geometryBySize_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("font");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("padding");
    QTest::addColumn<int>("inner");
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("supported");

    QTest::newRow("ExtraLarge") << 0 << 3 << 40 << 20 << 6 << 16 << 32 << QPoint(0, 1) << true;
    QTest::newRow("Large") << 1 << 3 << 32 << 16 << 6 << 12 << 24 << QPoint(2, 1) << true;
    QTest::newRow("Normal") << 2 << 4 << 28 << 16 << 4 << 10 << 20 << QPoint(2, 1) << true;
    QTest::newRow("Small") << 3 << 4 << 28 << 16 << 4 << 10 << 20 << QPoint(2, 1) << true;
    QTest::newRow("ExtraSmall") << 4 << 7 << 24 << 16 << 4 << 8 << 16 << QPoint(0, 0) << true;
    // Not pill sizes: the record defaults, icons hidden.
    QTest::newRow("ExtraExtraSmall") << 5 << 0 << 0 << 12 << 6 << 16 << 0 << QPoint(0, 0) << false;
    QTest::newRow("ExtraExtraExtraSmall") << 6 << 0 << 0 << 12 << 6 << 16 << 0 << QPoint(0, 0) << false;
    QTest::newRow("outside the enumeration") << 7 << 0 << 0 << 12 << 6 << 16 << 0 << QPoint(0, 0) << false;
}

void tst_KaPillButtonConfig::geometryBySize() {
    QFETCH(int, size);
    QFETCH(int, font);
    QFETCH(int, height);
    QFETCH(int, icon);
    QFETCH(int, spacing);
    QFETCH(int, padding);
    QFETCH(int, inner);
    QFETCH(QPoint, offset);
    QFETCH(bool, supported);

    KaPillButtonConfig pill;
    pill.setHasLeftIcon(true);
    pill.setHasRightIcon(true);
    pill.setSize(KaButtonEnum::Size(size));
    KaPillButtonConfig::Geometry g;
    pill.fillGeometry(g);

    QCOMPARE(g.fontToken, font);
    QCOMPARE(g.fixedHeight, height);
    QCOMPARE(g.innerMetric, inner);
    QCOMPARE(g.svgIconSize, QSize(icon, icon));
    QCOMPARE(g.anchorIconSize, QSize(icon, icon));
    QCOMPARE(g.svgIconSpacing, spacing);
    QCOMPARE(g.anchorIconSpacing, spacing);
    QCOMPARE(g.paddingLeft, padding);
    QCOMPARE(g.paddingRight, padding);
    QCOMPARE(g.anchorSvgOffset, offset);
    QCOMPARE(g.svgIconVisible, supported);
    QCOMPARE(g.anchorIconVisible, supported);
    QCOMPARE(g.alignAnchorIconToText, true);
    // The policy is set whatever the size.
    QCOMPARE(g.sizePolicy.verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(g.sizePolicy.horizontalPolicy(), QSizePolicy::Maximum);
}

void tst_KaPillButtonConfig::missingIcons_data() {
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
    QTest::newRow("ExtraLarge, right") << 0 << false << true << QSize(0, 0) << 0 << QSize(20, 20) << 6;
    QTest::newRow("ExtraSmall, left") << 4 << true << false << QSize(16, 16) << 4 << QSize(0, 0) << 0;
}

void tst_KaPillButtonConfig::missingIcons() {
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

void tst_KaPillButtonConfig::leftIconPathDrivesSpacing() {
    KaPillButtonConfig pill;
    pill.setSize(KaButtonEnum::Normal);
    QSignalSpy configSpy(&pill, &IKaButtonConfig::configChanged);
    KaPillButtonConfig::Geometry g;

    pill.setLeftIcon(QStringLiteral("qrc:/Resources/meet-bold.svg"));
    pill.fillGeometry(g);
    QCOMPARE(g.svgIconSpacing, 4);
    QCOMPARE(g.svgIconSize, QSize(16, 16));

    pill.setLeftIcon(QString());
    pill.fillGeometry(g);
    QCOMPARE(g.svgIconSpacing, 0);
    QCOMPARE(g.svgIconSize, QSize(0, 0));
    QCOMPARE(g.svgIconVisible, false);
    QCOMPARE(configSpy.count(), 2);
}

void tst_KaPillButtonConfig::widthPolicy_data() {
    QTest::addColumn<int>("policy");
    QTest::newRow("Expanding") << int(QSizePolicy::Expanding);
    QTest::newRow("Preferred") << int(QSizePolicy::Preferred);
    QTest::newRow("Maximum again") << int(QSizePolicy::Maximum);
}

void tst_KaPillButtonConfig::widthPolicy() {
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

QTEST_GUILESS_MAIN(tst_KaPillButtonConfig)
#include "tst_kapillbuttonconfig.moc"
