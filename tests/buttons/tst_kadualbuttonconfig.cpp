#include "buttontestutils.h"
#include "kadualcombobuttonconfig.h"
#include "kadualiconbuttonconfig.h"

#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

namespace {

using Sides = std::array<bool, 4>; // top, right, bottom, left
using Cell = IKaDualCellConfig;

using ButtonTest::HighContrastScope;

Cell::Geometry geometryOf(const Cell* cell) {
    Cell::Geometry g;
    cell->fillGeometry(g);
    return g;
}

const QString kSeparator = QStringLiteral("button-group-separator-background");

} // namespace

class tst_KaDualButtonConfig : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { KaConfig::setIsHighContrast(false); }

    void comboStyleDecoding_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("iconFirst");
        QTest::addColumn<bool>("arrow");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("bordered");

        const QString secondary = QStringLiteral("button-secondary-background");
        QTest::newRow("LabelIconSecondary") << 0x33 << false << false << secondary << true;
        QTest::newRow("LabelIconPrimary")
            << 0x32 << false << false << QStringLiteral("button-primary-background") << false;
        QTest::newRow("IconLabelSecondary") << 0x133 << true << false << secondary << true;
        QTest::newRow("LabelArrowSecondary") << 0x93 << false << true << secondary << true;
        QTest::newRow("LabelArrowGreen")
            << 0x97 << false << true << QStringLiteral("button-join-fill-background") << false;
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
        // widget, in tst_kadualcombobutton's decodesCode.
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
        // The cells' sizes: through the widget, in tst_kadualiconbutton's arrangement.
    }

    void cellGeometryBySize_data() {
        QTest::addColumn<int>("size");
        const QMetaEnum sizes = QMetaEnum::fromType<KaDualButtonEnum::Size>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            QTest::newRow(sizes.key(i)) << sizes.value(i);
    }

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

QTEST_GUILESS_MAIN(tst_KaDualButtonConfig)
#include "tst_kadualbuttonconfig.moc"
