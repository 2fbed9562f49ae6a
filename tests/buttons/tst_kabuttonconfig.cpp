#include "buttontestutils.h"
#include "kapillbuttonconfig.h"
#include "karoundbuttonconfig.h"

#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

using Colors = KaButtonConfigRecord::Colors;
using ButtonTest::HighContrastScope;

std::array<bool, 4> allSides(bool on) {
    return {{on, on, on, on}};
}

KaButtonConfigRecord colourRecord(KaButtonConfig& config, int style, int state) {
    config.setStyle(KaButtonEnum::Style(style));
    config.setState(KaButtonEnum::State(state));
    KaButtonConfigRecord record;
    config.fillConfig(record);
    return record;
}

// Every named style in both states, and styles past the named ones.
void addStyleRows() {
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("state");
    const QMetaEnum styles = QMetaEnum::fromType<KaButtonEnum::Style>();
    for (int i = 0; i < styles.keyCount(); ++i) {
        QTest::addRow("%s Active", styles.key(i)) << styles.value(i) << int(KaButtonEnum::Active);
        QTest::addRow("%s Inactive", styles.key(i)) << styles.value(i) << int(KaButtonEnum::Inactive);
    }
    QTest::newRow("outside the table") << 20 << int(KaButtonEnum::Active);
    QTest::newRow("highest unnamed style") << 31 << int(KaButtonEnum::Inactive);
}

} // namespace

class tst_KaButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sharedColours_data() { addStyleRows(); }

    // The pill and the round button share one table; the border is drawn exactly
    // when the style names a border colour; unknown styles give nothing.
    void sharedColours() {
        QFETCH(int, style);
        QFETCH(int, state);
        const HighContrastScope normal(false);

        KaPillButtonConfig pill;
        const KaButtonConfigRecord record = colourRecord(pill, style, state);
        const bool named = QMetaEnum::fromType<KaButtonEnum::Style>().valueToKey(style) != nullptr;
        QCOMPARE(record.colors.backgroundColorSet.isEmpty(), !named);
        QCOMPARE(record.colors.textColorSet.isEmpty(), !named);
        QVERIFY(record.colors.iconColorSet.isEmpty());
        QCOMPARE(record.colors.hasBorder, allSides(!record.colors.borderColorSet.isEmpty()));

        KaRoundButtonConfig round;
        QCOMPARE(colourRecord(round, style, state).colors, record.colors);
        KaPillButtonConfig::Geometry pillGeometry;
        pill.fillGeometry(pillGeometry);
        QCOMPARE(pillGeometry.colors, record.colors);
        KaRoundButtonConfig::Geometry roundGeometry;
        round.fillGeometry(roundGeometry);
        QCOMPARE(roundGeometry.colors, record.colors);
    }

    void highContrast_data() { addStyleRows(); }

    // High contrast gives every button the bordered primary look, except an
    // Active Secondary or Ghost one, which keeps its own (active) colours.
    void highContrast() {
        QFETCH(int, style);
        QFETCH(int, state);
        const bool keepsOwn = state == KaButtonEnum::Active &&
                              (style == KaButtonEnum::Secondary || style == KaButtonEnum::Ghost);

        KaPillButtonConfig pill;
        const KaButtonConfigRecord normal = [&] {
            const HighContrastScope off(false);
            return colourRecord(pill, style, state);
        }();
        const HighContrastScope on(true);
        const KaButtonConfigRecord record = colourRecord(pill, style, state);

        if (keepsOwn) {
            QCOMPARE(record.colors, normal.colors);
            QVERIFY(record.colors.backgroundColorSet.contains(QLatin1String("-active-")));
        } else {
            QCOMPARE(record.colors.backgroundColorSet, QStringLiteral("button-primary-background"));
            QCOMPARE(record.colors.borderColorSet, QStringLiteral("button-primary-border"));
            QCOMPARE(record.colors.textColorSet, QStringLiteral("button-primary-text"));
            QCOMPARE(record.colors.hasBorder, allSides(true));
        }
        KaRoundButtonConfig round;
        QCOMPARE(colourRecord(round, style, state).colors, record.colors);
    }

    void blankBorderIsNoBorder_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("drawn");
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("spaces") << QStringLiteral("   ") << false;
        QTest::newRow("tab and newline") << QStringLiteral("\t\n") << false;
        QTest::newRow("name") << QStringLiteral("button-secondary-border") << true;
        QTest::newRow("padded name") << QStringLiteral(" button-layout-border ") << true;
    }

    void blankBorderIsNoBorder() {
        QFETCH(QString, name);
        QFETCH(bool, drawn);
        Colors colors;
        colors.hasBorder = allSides(!drawn);
        colors.setBorderColorSet(name);
        QCOMPARE(colors.hasBorder, allSides(drawn));
        QCOMPARE(colors.hasAnyBorder(), drawn);
    }

    void setStyleAlwaysNotifies() {
        KaPillButtonConfig pill;
        QSignalSpy styleSpy(&pill, &KaButtonConfig::styleChanged);
        QSignalSpy configSpy(&pill, &IKaButtonConfig::configChanged);

        pill.setStyle(KaButtonEnum::Primary); // the current style
        pill.setStyle(KaButtonEnum::Primary);
        pill.setStyle(KaButtonEnum::Ghost);
        QCOMPARE(styleSpy.count(), 3);
        QCOMPARE(configSpy.count(), 3);
        QCOMPARE(styleSpy.at(0).at(0).value<KaButtonEnum::Style>(), KaButtonEnum::Primary);
        QCOMPARE(styleSpy.at(2).at(0).value<KaButtonEnum::Style>(), KaButtonEnum::Ghost);
        QCOMPARE(pill.style(), KaButtonEnum::Ghost);
    }

    void setSizeNotifiesOnlyOnChange_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("notifications");
        // The pill starts Large; the round button shares the setter.
        QTest::newRow("same") << int(KaButtonEnum::Large) << 0;
        QTest::newRow("other") << int(KaButtonEnum::Small) << 1;
    }

    void setSizeNotifiesOnlyOnChange() {
        QFETCH(int, size);
        QFETCH(int, notifications);
        const auto config = std::make_unique<KaPillButtonConfig>();
        QSignalSpy sizeSpy(config.get(), &KaButtonConfig::sizeChanged);
        QSignalSpy configSpy(config.get(), &IKaButtonConfig::configChanged);

        config->setSize(KaButtonEnum::Size(size));
        config->setSize(KaButtonEnum::Size(size)); // never repeats
        QCOMPARE(sizeSpy.count(), notifications);
        QCOMPARE(configSpy.count(), notifications);
        QCOMPARE(int(config->size()), size);
        if (notifications)
            QCOMPARE(sizeSpy.at(0).at(0).value<KaButtonEnum::Size>(), KaButtonEnum::Size(size));
    }

    void checkedDrivesState_data() {
        QTest::addColumn<QList<bool>>("toggles");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("stateSignals");
        QTest::newRow("checked") << QList<bool>{true} << int(KaButtonEnum::Active) << 1;
        QTest::newRow("checked, unchecked") << QList<bool>{true, false} << int(KaButtonEnum::Inactive) << 2;
        QTest::newRow("unchecked only") << QList<bool>{false} << int(KaButtonEnum::Inactive) << 0;
    }

    void checkedDrivesState() {
        QFETCH(QList<bool>, toggles);
        QFETCH(int, state);
        QFETCH(int, stateSignals);
        const HighContrastScope normal(false);
        KaPillButtonConfig pill;
        pill.setStyle(KaButtonEnum::Secondary);
        QSignalSpy stateSpy(&pill, &KaButtonConfig::stateChanged);
        QSignalSpy configSpy(&pill, &IKaButtonConfig::configChanged);

        for (bool checked : toggles)
            pill.setChecked(checked);
        QCOMPARE(int(pill.state()), state);
        QCOMPARE(pill.isChecked(), state == KaButtonEnum::Active);
        QCOMPARE(stateSpy.count(), stateSignals);
        // Every toggle asks for a refresh.
        QCOMPARE(configSpy.count(), toggles.size());

        KaButtonConfigRecord record;
        pill.fillConfig(record);
        QCOMPARE(record.colors, KaButtonConfig::colorsFor(KaButtonEnum::Secondary, state));
        QVERIFY(KaButtonConfig::colorsFor(KaButtonEnum::Secondary, KaButtonEnum::Active) !=
                KaButtonConfig::colorsFor(KaButtonEnum::Secondary, KaButtonEnum::Inactive));
    }

    void rightIconOrder_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("off");
        QTest::addColumn<QString>("on");
        QTest::addColumn<bool>("hasRightIcon");
        QTest::newRow("plain") << QStringList{QStringLiteral("right=a")} << QStringLiteral("a")
                               << QStringLiteral("a") << true;
        QTest::newRow("plain, then on") << QStringList{QStringLiteral("right=a"), QStringLiteral("on=b")}
                                        << QStringLiteral("a") << QStringLiteral("b") << true;
        QTest::newRow("on, then plain") << QStringList{QStringLiteral("on=b"), QStringLiteral("right=a")}
                                        << QStringLiteral("a") << QStringLiteral("a") << true;
        QTest::newRow("on only") << QStringList{QStringLiteral("on=b")} << QStringLiteral("")
                                 << QStringLiteral("b") << false;
        QTest::newRow("plain, on, plain again")
            << QStringList{QStringLiteral("right=a"), QStringLiteral("on=b"), QStringLiteral("right=c")}
            << QStringLiteral("c") << QStringLiteral("c") << true;
        QTest::newRow("plain, cleared") << QStringList{QStringLiteral("right=a"), QStringLiteral("right=")}
                                        << QStringLiteral("") << QStringLiteral("") << false;
    }

    void rightIconOrder() {
        QFETCH(QStringList, steps);
        QFETCH(QString, off);
        QFETCH(QString, on);
        QFETCH(bool, hasRightIcon);
        KaPillButtonConfig pill;
        for (const QString& step : steps) {
            const QString path = step.section(QLatin1Char('='), 1);
            if (step.startsWith(QLatin1String("right=")))
                pill.setRightIcon(path);
            else
                pill.setRightIconOn(path);
        }
        QCOMPARE(pill.anchorSvgOff(), off);
        QCOMPARE(pill.anchorSvgOn(), on);
        QCOMPARE(pill.hasRightIcon(), hasRightIcon);
        KaPillButtonConfig::Geometry geometry;
        pill.fillGeometry(geometry);
        QCOMPARE(geometry.anchorIconVisible, hasRightIcon);
    }
};

QTEST_GUILESS_MAIN(tst_KaButtonConfig)
#include "tst_kabuttonconfig.moc"
