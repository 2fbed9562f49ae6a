#include "buttontestutils.h"
#include "kadualcombobuttonconfig.h"
#include "kadualiconbuttonconfig.h"
#include "kaiconbuttonconfig.h"
#include "kaoverlaybuttonconfig.h"
#include "kapillbuttonconfig.h"
#include "karoundbuttonconfig.h"

#include <QMetaEnum>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <memory>

namespace {

using Colors = KaButtonConfigRecord::Colors;
using ButtonTest::HighContrastScope;

// What a configuration (or the one pointed to) fills in.
template <typename Config, typename... Direction>
typename Config::Geometry geometryOf(const Config& config, Direction... direction) {
    typename Config::Geometry g;
    config.fillGeometry(g, direction...);
    return g;
}

template <typename Config> typename Config::Geometry geometryOf(const Config* config) {
    return geometryOf(*config);
}

KaButtonConfigRecord recordOf(const IKaButtonConfig& config) {
    KaButtonConfigRecord record;
    config.fillConfig(record);
    return record;
}

std::array<bool, 4> allSides(bool on) {
    return {{on, on, on, on}};
}

KaButtonConfigRecord colourRecord(KaButtonConfig& config, int style, int state) {
    config.setStyle(KaButtonEnum::Style(style));
    config.setState(KaButtonEnum::State(state));
    const KaButtonConfigRecord record = recordOf(config);
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

const char kRefusal[] = "Setting the right icon on the KaRoundButtonConfig is not supported!";

using Sides = std::array<bool, 4>; // top, right, bottom, left
using Cell = IKaDualCellConfig;

const QString kSeparator = QStringLiteral("button-group-separator-background");

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
        const auto pillGeometry = geometryOf(pill);
        QCOMPARE(pillGeometry.colors, record.colors);
        const auto roundGeometry = geometryOf(round);
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
        QTest::newRow("spaces") << "   " << false;
        QTest::newRow("tab and newline") << "\t\n" << false;
        QTest::newRow("name") << "button-secondary-border" << true;
        QTest::newRow("padded name") << " button-layout-border " << true;
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

        const KaButtonConfigRecord record = recordOf(pill);
        QCOMPARE(record.colors, KaButtonConfig::colorsFor(KaButtonEnum::Secondary, state));
        QVERIFY(KaButtonConfig::colorsFor(KaButtonEnum::Secondary, KaButtonEnum::Active) !=
                KaButtonConfig::colorsFor(KaButtonEnum::Secondary, KaButtonEnum::Inactive));
    }

    void rightIconOrder_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("off");
        QTest::addColumn<QString>("on");
        QTest::addColumn<bool>("hasRightIcon");
        QTest::newRow("plain") << QStringList{"right=a"} << "a"
                               << "a" << true;
        QTest::newRow("plain, then on") << QStringList{"right=a", "on=b"} << "a"
                                        << "b" << true;
        QTest::newRow("on, then plain") << QStringList{"on=b", "right=a"} << "a"
                                        << "a" << true;
        QTest::newRow("on only") << QStringList{"on=b"} << ""
                                 << "b" << false;
        QTest::newRow("plain, on, plain again") << QStringList{"right=a", "on=b", "right=c"} << "c"
                                                << "c" << true;
        QTest::newRow("plain, cleared") << QStringList{"right=a", "right="} << ""
                                        << "" << false;
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
        const auto geometry = geometryOf(pill);
        QCOMPARE(geometry.anchorIconVisible, hasRightIcon);
    }

    // KaPillButtonConfig.
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
        const auto g = geometryOf(pill);
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
        QTest::addColumn<bool>("left");
        QTest::addColumn<bool>("right");
        QTest::newRow("none") << false << false;
        QTest::newRow("left") << true << false;
        QTest::newRow("right") << false << true;
    }

    // Large: a present icon is 16 px with 6 px spacing; a missing one takes none.
    void missingIcons() {
        QFETCH(bool, left);
        QFETCH(bool, right);
        KaPillButtonConfig pill;
        pill.setHasLeftIcon(left);
        pill.setHasRightIcon(right);
        const auto g = geometryOf(pill);
        QCOMPARE(g.svgIconSize, left ? QSize(16, 16) : QSize(0, 0));
        QCOMPARE(g.svgIconSpacing, left ? 6 : 0);
        QCOMPARE(g.anchorIconSize, right ? QSize(16, 16) : QSize(0, 0));
        QCOMPARE(g.anchorIconSpacing, right ? 6 : 0);
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
        const auto g = geometryOf(pill);
        QCOMPARE(int(g.sizePolicy.horizontalPolicy()), policy);
        QCOMPARE(g.sizePolicy.verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(g.sizePolicy.controlType(), QSizePolicy::DefaultType);
    }

    // KaRoundButtonConfig.
    void startsSmall() {
        KaRoundButtonConfig round;
        QCOMPARE(round.size(), KaButtonEnum::Small);
        QCOMPARE(round.hasLeftIcon(), false);
        const auto g = geometryOf(round);
        QCOMPARE(g.fixedHeight, 32);
        QCOMPARE(g.sizePolicy.horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(g.sizePolicy.verticalPolicy(), QSizePolicy::Fixed);
    }

    void refusesRightIcon() {
        KaRoundButtonConfig round;
        round.setHasLeftIcon(true);
        QSignalSpy configSpy(&round, &IKaButtonConfig::configChanged);
        const auto before = geometryOf(round);

        QTest::ignoreMessage(QtWarningMsg, kRefusal);
        round.setHasRightIcon(true);

        QCOMPARE(configSpy.count(), 0);
        QCOMPARE(round.hasLeftIcon(), true);
        const auto after = geometryOf(round);
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

    // KaIconButtonConfig.
    void iconColours_data() {
        QTest::addColumn<int>("type");
        const QMetaEnum types = QMetaEnum::fromType<KaIconButtonEnum::Type>();
        for (int i = 0; i < types.keyCount(); ++i)
            QTest::newRow(types.key(i)) << types.value(i);
        QTest::newRow("outside the enumeration") << 7;
    }

    // A typed icon sits on the container background and differs between ACTIVE
    // and INACTIVE; None (or an unknown type) shows nothing. High contrast adds
    // the primary border to every icon button and changes nothing else.
    void iconColours() {
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
        const KaButtonConfigRecord record = recordOf(config);
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
        const KaButtonConfigRecord record = recordOf(config);
        QCOMPARE(record.acceleratorType, 0);
    }

    // KaOverlayButtonConfig.
    void overlayColours_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("coloured");
        QTest::newRow("None") << 0 << false;
        QTest::newRow("ExpandAreaOverlay") << 1 << true;
        QTest::newRow("CollapseAreaOverlay") << 2 << true;
        QTest::newRow("outside the enumeration") << 3 << false;
    }

    void overlayColours() {
        QFETCH(int, type);
        QFETCH(bool, coloured);
        KaOverlayButtonConfig config;
        config.setType(KaOverlayButtonEnum::Type(type));
        const KaButtonConfigRecord record = recordOf(config);
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
        const auto micro = geometryOf(config, Qt::LeftToRight);
        config.setSize(KaOverlayButtonEnum::ExtraLarge);
        const auto large = geometryOf(config, Qt::LeftToRight);
        QVERIFY(micro.fixedHeight < large.fixedHeight);
    }

    // The dual buttons' configurations.
    void comboStyleDecoding_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("iconFirst");
        QTest::addColumn<bool>("arrow");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("bordered");

        const QString secondary = QStringLiteral("button-secondary-background");
        QTest::newRow("LabelIconSecondary") << 0x33 << false << false << secondary << true;
        QTest::newRow("LabelIconPrimary") << 0x32 << false << false << "button-primary-background" << false;
        QTest::newRow("IconLabelSecondary") << 0x133 << true << false << secondary << true;
        QTest::newRow("LabelArrowSecondary") << 0x93 << false << true << secondary << true;
        QTest::newRow("LabelArrowGreen") << 0x97 << false << true << "button-join-fill-background" << false;
    }

    void comboStyleDecoding() {
        QFETCH(int, style);
        QFETCH(bool, iconFirst);
        QFETCH(bool, arrow);
        QFETCH(QString, background);
        QFETCH(bool, bordered);

        KaDualComboButtonConfig config;
        config.setStyle(KaDualButtonEnum::Style(style));
        QCOMPARE(config.isIconFirst(), iconFirst);
        QVERIFY(config.isSplit());
        QVERIFY(!config.isVertical());

        Cell* left = config.leftCellConfig();
        Cell* right = config.rightCellConfig();
        QVERIFY(left && right);
        QCOMPARE(left->cellType(), int(iconFirst ? Cell::IconCell : Cell::LabelCell));
        QCOMPARE(right->cellType(), int(iconFirst ? Cell::LabelCell : Cell::IconCell));
        QCOMPARE(left->placement().position, Cell::Leading);
        QCOMPARE(right->placement().position, Cell::Trailing);
        QCOMPARE(left->placement().code, style);
        QCOMPARE(right->isArrowCell(), arrow);
        QVERIFY(!left->isArrowCell());

        const Cell::Geometry lg = geometryOf(left);
        const Cell::Geometry rg = geometryOf(right);
        QCOMPARE(lg.colors.backgroundColorSet, background);
        QCOMPARE(rg.colors.backgroundColorSet, background);
        // The leading cell draws the shared edge: with its border, or with the
        // separator colour when the scheme has none.
        QCOMPARE(lg.colors.hasBorder, (Sides{{bordered, bordered, bordered, bordered}}));
        QCOMPARE(rg.colors.hasBorder, (Sides{{bordered, bordered, bordered, false}}));
        QCOMPARE(lg.separatorColorSet, bordered ? QString() : kSeparator);
        QVERIFY(rg.separatorColorSet.isEmpty());
        QCOMPARE(lg.roundStart, true);
        QCOMPARE(lg.roundEnd, false);
        QCOMPARE(rg.roundStart, false);
        QCOMPARE(rg.roundEnd, true);
        // Label alignment and the icon cell's size and arrow: through the
        // widget, in tst_buttons' decodesCode.
    }

    void iconStyleDecoding_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("split");
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<bool>("arrow");
        QTest::addColumn<QString>("background");

        const QString secondary = QStringLiteral("button-secondary-background");
        const QString inverted = QStringLiteral("button-layout-background");
        QTest::newRow("SecondaryHorizontal") << 0x123 << true << false << false << secondary;
        QTest::newRow("SecondaryVertical") << 0x523 << true << true << false << secondary;
        QTest::newRow("AsymSecondaryHorizontal") << 0x143 << true << false << true << secondary;
        QTest::newRow("AsymIconInvertedVertical") << 0x545 << true << true << true << inverted;
        QTest::newRow("AsymSecondaryHorizontalWithoutSplit") << 0x43 << false << false << true << secondary;
    }

    void iconStyleDecoding() {
        QFETCH(int, style);
        QFETCH(bool, split);
        QFETCH(bool, vertical);
        QFETCH(bool, arrow);
        QFETCH(QString, background);

        KaDualIconButtonConfig config;
        config.setStyle(KaDualButtonEnum::IconButtonStyle(style));
        QCOMPARE(config.isSplit(), split);
        QCOMPARE(config.isVertical(), vertical);
        // The icon-button bit splits; it never reorders the cells.
        QVERIFY(!config.isIconFirst());

        Cell* first = config.leftCellConfig();
        Cell* second = config.rightCellConfig();
        QCOMPARE(first->cellType(), int(Cell::IconCell));
        QCOMPARE(second->cellType(), int(Cell::IconCell));
        QCOMPARE(second->isArrowCell(), arrow);
        QCOMPARE(second->placement().split, split);

        const Cell::Geometry fg = geometryOf(first);
        const Cell::Geometry sg = geometryOf(second);
        QCOMPARE(fg.colors.backgroundColorSet, background);
        QCOMPARE(fg.vertical, vertical);
        QCOMPARE(sg.vertical, vertical);

        // Every icon scheme has a border; the shared edge is the start side of
        // the second cell and, without a split, not drawn by the first either.
        Sides firstSides{{true, true, true, true}};
        Sides secondSides{{true, true, true, true}};
        secondSides[vertical ? 0 : 3] = false;
        if (!split)
            firstSides[vertical ? 2 : 1] = false;
        QCOMPARE(fg.colors.hasBorder, firstSides);
        QCOMPARE(sg.colors.hasBorder, secondSides);
        // The cells' sizes: through the widget, in tst_buttons' arrangement.
    }

    void cellGeometryBySize_data() { ButtonTest::addEnumRows<KaDualButtonEnum::Size>("size"); }

    // Both cells are as tall as each other; the arrow cell's paddings and icon
    // make up its length; the label cell never gets narrower than a square.
    void cellGeometryBySize() {
        QFETCH(int, size);
        KaDualComboButtonConfig config;
        config.setStyle(KaDualButtonEnum::LabelArrowSecondary);
        config.setSize(KaDualButtonEnum::Size(size));
        config.labelCellConfig()->setHasLeftIcon(true);

        const Cell::Geometry label = geometryOf(config.labelCellConfig());
        QVERIFY(label.fontToken != 0);
        QVERIFY(label.fixedHeight > 0);
        QCOMPARE(label.paddingLeft, label.paddingRight);
        QCOMPARE(label.minimumWidth, 32);

        const Cell::Geometry arrow = geometryOf(config.iconCellConfig());
        QCOMPARE(arrow.fixedHeight, label.fixedHeight);
        QVERIFY(arrow.fixedWidth < arrow.fixedHeight);
        QCOMPARE(arrow.fontToken, 0);
        QCOMPARE(arrow.paddingLeft + arrow.svgIconSize.width() + arrow.paddingRight, arrow.fixedWidth);
        QCOMPARE(arrow.arrowIcon, KaDualIconCellConfig::arrowIconPath());
    }

    void checkedDrivesCells_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("unchecked");
        QTest::addColumn<QString>("checked");
        QTest::newRow("secondary") << 0x33 << QStringLiteral("button-secondary-background")
                                   << QStringLiteral("button-secondary-active-background");
        QTest::newRow("always active") << 0xC4 << QStringLiteral("button-secondary-active-background")
                                       << QStringLiteral("button-secondary-active-background");
        QTest::newRow("green ignores it") << 0x97 << QStringLiteral("button-join-fill-background")
                                          << QStringLiteral("button-join-fill-background");
    }

    void checkedDrivesCells() {
        QFETCH(int, style);
        QFETCH(QString, unchecked);
        QFETCH(QString, checked);
        KaDualComboButtonConfig config;
        config.setStyle(KaDualButtonEnum::Style(style));
        QSignalSpy checkedSpy(&config, &IKaDualButtonConfig::checkedChanged);

        config.setChecked(true);
        config.setChecked(true);
        QCOMPARE(checkedSpy.count(), 1);
        for (Cell* cell : {config.leftCellConfig(), config.rightCellConfig()}) {
            QCOMPARE(cell->placement().state, KaButtonEnum::Active);
            QCOMPARE(geometryOf(cell).colors.backgroundColorSet, checked);
        }
        config.setChecked(false);
        for (Cell* cell : {config.leftCellConfig(), config.rightCellConfig()})
            QCOMPARE(geometryOf(cell).colors.backgroundColorSet, unchecked);
    }

    void highContrastCells() {
        const HighContrastScope on(true);
        KaDualComboButtonConfig config;

        config.setStyle(KaDualButtonEnum::LabelIconPrimary);
        Cell::Geometry lg = geometryOf(config.leftCellConfig());
        QCOMPARE(lg.colors.borderColorSet, QStringLiteral("button-primary-border"));
        // The border now draws the split, so no separator colour.
        QVERIFY(lg.separatorColorSet.isEmpty());
        QCOMPARE(geometryOf(config.rightCellConfig()).colors.hasBorder, (Sides{{true, true, true, false}}));

        // An always-active secondary keeps its own colours, as standard buttons do.
        config.setStyle(KaDualButtonEnum::AsymIconArrowSecondaryActive);
        lg = geometryOf(config.leftCellConfig());
        QCOMPARE(lg.colors.backgroundColorSet, QStringLiteral("button-secondary-active-background"));
        QCOMPARE(lg.colors.borderColorSet, QStringLiteral("button-secondary-active-border"));
    }

    void setStyleAndSizeReachCells() {
        KaDualIconButtonConfig config;
        QCOMPARE(config.style(), KaDualButtonEnum::SecondaryHorizontal);
        QCOMPARE(config.size(), KaDualButtonEnum::Large);
        QSignalSpy styleSpy(&config, &KaDualIconButtonConfig::styleChanged);
        QSignalSpy configSpy(&config, &IKaDualButtonConfig::configChanged);
        QSignalSpy cellSpy(config.rightCellConfig(), &IKaButtonConfig::configChanged);

        config.setStyle(KaDualButtonEnum::SecondaryHorizontal);
        config.setSize(KaDualButtonEnum::Large);
        QCOMPARE(styleSpy.count(), 0);
        QCOMPARE(configSpy.count(), 0);
        QCOMPARE(cellSpy.count(), 0);

        config.setStyle(KaDualButtonEnum::AsymSecondaryHorizontal);
        QCOMPARE(styleSpy.count(), 1);
        QCOMPARE(configSpy.count(), 1);
        QCOMPARE(cellSpy.count(), 1);
        config.setSize(KaDualButtonEnum::Normal);
        QCOMPARE(config.rightCellConfig()->size(), KaDualButtonEnum::Normal);
        QCOMPARE(config.leftCellConfig()->size(), KaDualButtonEnum::Normal);
        QCOMPARE(geometryOf(config.rightCellConfig()).fixedWidth, 20);
    }

    void destroyedCellIsNull() {
        KaDualComboButtonConfig config;
        delete config.labelCellConfig();
        QVERIFY(!config.leftCellConfig());
        QVERIFY(config.rightCellConfig());
        // Still usable: the surviving cell keeps following the button.
        config.setSize(KaDualButtonEnum::ExtraLarge);
        QCOMPARE(config.iconCellConfig()->size(), KaDualButtonEnum::ExtraLarge);
    }

    void iconFlags() {
        KaDualIconButtonConfig config;
        Cell* first = config.leftCellConfig();
        QSignalSpy cellSpy(first, &IKaButtonConfig::configChanged);
        first->setHasLeftIcon(true);
        first->setHasLeftIcon(true);
        QCOMPARE(cellSpy.count(), 1);

        Cell::Geometry g = geometryOf(first);
        QCOMPARE(g.svgIconVisible, true);
        QCOMPARE(g.svgIconSize, QSize(16, 16));
        QCOMPARE(g.anchorIconVisible, false);
        QCOMPARE(g.fixedWidth, 32);

        // An anchor arrow beside the icon frees the width.
        first->setHasRightIcon(true);
        g = geometryOf(first);
        QCOMPARE(g.anchorIconVisible, true);
        QCOMPARE(g.anchorIconSize, QSize(12, 12));
        QCOMPARE(g.fixedWidth, 0);
        QCOMPARE(g.minimumWidth, 32);
        QCOMPARE(cellSpy.count(), 2);
    }
};

QTEST_MAIN(tst_KaButtonConfig)
#include "tst_kabuttonconfig.moc"
