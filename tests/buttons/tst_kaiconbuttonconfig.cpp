#include "kaconfig.h"
#include "kaiconbuttonconfig.h"

#include <QSignalSpy>
#include <QTest>

namespace {
struct HighContrastScope {
    explicit HighContrastScope(bool on)
        : previous(KaConfig::highContrast) {
        KaConfig::setIsHighContrast(on);
    }
    ~HighContrastScope() { KaConfig::setIsHighContrast(previous); }
    bool previous;
};
} // namespace

class tst_KaIconButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void colours_data();
    void colours();
    void geometryBySize_data();
    void geometryBySize();
    void setterNotifications();
};

void tst_KaIconButtonConfig::colours_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("icon");

    const QString primaryActive = QStringLiteral("interactiveicon-primary-filled-icon-active");
    const QString primaryInactive = QStringLiteral("interactiveicon-primary-filled-icon-inactive");
    QTest::newRow("None ACTIVE") << 0 << 0 << QString();
    QTest::newRow("None INACTIVE") << 0 << 1 << QString();
    for (int type : {1, 4, 5, 6}) {
        QTest::addRow("type %d ACTIVE", type) << type << 0 << primaryActive;
        QTest::addRow("type %d INACTIVE", type) << type << 1 << primaryInactive;
    }
    QTest::newRow("Favorite ACTIVE") << 2 << 0
                                     << QStringLiteral(
                                            "interactiveicon-tertiary-filled-favorite-icon-active");
    QTest::newRow("Favorite INACTIVE")
        << 2 << 1 << QStringLiteral("interactiveicon-tertiary-filled-icon-inactive");
    QTest::newRow("Attachment ACTIVE")
        << 3 << 0 << QStringLiteral("interactiveicon-primary-outline-icon-active");
    QTest::newRow("Attachment INACTIVE")
        << 3 << 1 << QStringLiteral("interactiveicon-primary-outline-icon-inactive");
    QTest::newRow("outside the enumeration") << 7 << 0 << QString();
}

void tst_KaIconButtonConfig::colours() {
    QFETCH(int, type);
    QFETCH(int, style);
    QFETCH(QString, icon);
    const QString container =
        icon.isEmpty() ? QString() : QStringLiteral("interactiveicon-container-background");

    KaIconButtonConfig config;
    config.setType(KaIconButtonEnum::Type(type));
    config.setStyle(KaIconButtonEnum::Style(style));
    KaButtonConfigRecord record;
    {
        const HighContrastScope off(false);
        config.fillConfig(record);
    }
    QCOMPARE(record.colors.textColorSet, icon);
    QCOMPARE(record.colors.backgroundColorSet, container);
    QVERIFY(record.colors.borderColorSet.isEmpty());
    QVERIFY(!record.colors.hasAnyBorder());

    // High contrast adds the primary border to every icon button and changes
    // nothing else.
    const HighContrastScope on(true);
    config.fillConfig(record);
    QCOMPARE(record.colors.textColorSet, icon);
    QCOMPARE(record.colors.backgroundColorSet, container);
    QCOMPARE(record.colors.borderColorSet, QStringLiteral("button-primary-border"));
    QCOMPARE(record.colors.hasBorder, (std::array<bool, 4>{{true, true, true, true}}));
}

void tst_KaIconButtonConfig::geometryBySize_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("icon");
    QTest::newRow("ExtraLarge") << 0 << 40 << 24;
    QTest::newRow("Large") << 1 << 32 << 20;
    QTest::newRow("Normal") << 2 << 28 << 16;
    QTest::newRow("Small") << 3 << 24 << 16;
    QTest::newRow("ExtraSmall") << 4 << 20 << 12;
    QTest::newRow("ExtraExtraSmall") << 5 << 16 << 12;
    QTest::newRow("ExtraExtraExtraSmall") << 6 << 12 << 8;
    QTest::newRow("outside the enumeration") << 7 << 0 << 12;
}

void tst_KaIconButtonConfig::geometryBySize() {
    QFETCH(int, size);
    QFETCH(int, side);
    QFETCH(int, icon);
    KaIconButtonConfig config;
    config.setSize(KaButtonEnum::Size(size));
    KaIconButtonConfig::Geometry g;
    config.fillGeometry(g);
    QCOMPARE(g.fixedHeight, side);
    QCOMPARE(g.svgIconSize, QSize(icon, icon));
    QCOMPARE(g.fontToken, 0);
    QCOMPARE(g.sizePolicy, QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::DefaultType));
}

void tst_KaIconButtonConfig::setterNotifications() {
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

QTEST_GUILESS_MAIN(tst_KaIconButtonConfig)
#include "tst_kaiconbuttonconfig.moc"
