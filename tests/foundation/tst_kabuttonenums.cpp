#include "kabadgeenum.h"
#include "kabuttonenum.h"
#include "kadualcellenum.h"
#include "kaiconbuttonenum.h"
#include "kaoverlaybuttonenum.h"

#include "metaenumtable.h"

#include <QTest>

// Holders of the button family: KaButtonEnum, KaIconButtonEnum, KaBadgeEnum,
// KaOverlayButtonEnum and the empty KaDualCellEnum.
class tst_KaButtonEnums : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void keysAndValues_data();
    void keysAndValues() { MetaEnumTable::verifyRow(); }
    void holders();
    void byNameThroughVariant();
};

void tst_KaButtonEnums::keysAndValues_data() {
    using namespace MetaEnumTable;
    addColumns();
    addRow<KaButtonEnum::Style>("KaButtonEnum::Style", {{"Primary", 0},
                                                        {"Secondary", 1},
                                                        {"Ghost", 2},
                                                        {"CancelGhost", 3},
                                                        {"MessageGhost", 4},
                                                        {"Join", 5},
                                                        {"OutlineJoin", 6},
                                                        {"Cancel", 7},
                                                        {"OutlineCancel", 8},
                                                        {"Message", 9},
                                                        {"DarkThemePrimary", 10},
                                                        {"DarkThemeSecondary", 11},
                                                        {"DarkThemeSecondaryActive", 12},
                                                        {"GlobalHeaderDeviceActive", 13},
                                                        {"GlobalHeaderDeviceInactive", 14},
                                                        {"GlobalHeaderIcon", 15},
                                                        {"GlobalHeaderSearchCancel", 16},
                                                        {"Inverted", 17},
                                                        {"TeachingPrimary", 18},
                                                        {"TeachingSecondary", 19}});
    addRow<KaButtonEnum::Size>("KaButtonEnum::Size", {{"ExtraLarge", 0},
                                                      {"Large", 1},
                                                      {"Normal", 2},
                                                      {"Small", 3},
                                                      {"ExtraSmall", 4},
                                                      {"ExtraExtraSmall", 5},
                                                      {"ExtraExtraExtraSmall", 6}});
    addRow<KaButtonEnum::State>("KaButtonEnum::State", {{"Active", 0}, {"Inactive", 1}});
    addRow<KaIconButtonEnum::Style>("KaIconButtonEnum::Style", {{"ACTIVE", 0}, {"INACTIVE", 1}});
    addRow<KaIconButtonEnum::Type>("KaIconButtonEnum::Type", {{"None", 0},
                                                              {"Settings", 1},
                                                              {"Favorite", 2},
                                                              {"Attachment", 3},
                                                              {"Pen", 4},
                                                              {"Info", 5},
                                                              {"Dismiss", 6}});
    addRow<KaBadgeEnum::Style>("KaBadgeEnum::Style", {{"DefaultBadge", 0},
                                                      {"Announcement", 1},
                                                      {"AlertWarning", 2},
                                                      {"Important", 3},
                                                      {"AlertGeneral", 4}});
    addRow<KaOverlayButtonEnum::Type>("KaOverlayButtonEnum::Type",
                                      {{"None", 0}, {"ExpandAreaOverlay", 1}, {"CollapseAreaOverlay", 2}});
    addRow<KaOverlayButtonEnum::Size>(
        "KaOverlayButtonEnum::Size",
        {{"Micro", 0}, {"ExtraSmall", 1}, {"Small", 2}, {"Normal", 3}, {"Large", 4}, {"ExtraLarge", 5}});
}

void tst_KaButtonEnums::holders() {
    MetaEnumTable::verifyBareHolder(KaButtonEnum::staticMetaObject, "KaButtonEnum", 3);
    MetaEnumTable::verifyBareHolder(KaIconButtonEnum::staticMetaObject, "KaIconButtonEnum", 2);
    MetaEnumTable::verifyBareHolder(KaBadgeEnum::staticMetaObject, "KaBadgeEnum", 1);
    MetaEnumTable::verifyBareHolder(KaOverlayButtonEnum::staticMetaObject, "KaOverlayButtonEnum", 2);
    MetaEnumTable::verifyBareHolder(KaDualCellEnum::staticMetaObject, "KaDualCellEnum", 0);
    QCOMPARE(KaDualCellEnum::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

// Designer and QML hand enumeration values around as variants and strings.
void tst_KaButtonEnums::byNameThroughVariant() {
    QCOMPARE(QVariant::fromValue(KaButtonEnum::GlobalHeaderSearchCancel).toString(),
             QStringLiteral("GlobalHeaderSearchCancel"));
    QVariant fromName(QStringLiteral("ExtraExtraExtraSmall"));
    QVERIFY(fromName.convert(QMetaType::fromType<KaButtonEnum::Size>()));
    QCOMPARE(fromName.value<KaButtonEnum::Size>(), KaButtonEnum::ExtraExtraExtraSmall);
    QVariant unknown(QStringLiteral("Huge"));
    QVERIFY(!unknown.convert(QMetaType::fromType<KaButtonEnum::Size>()));
}

QTEST_GUILESS_MAIN(tst_KaButtonEnums)
#include "tst_kabuttonenums.moc"
