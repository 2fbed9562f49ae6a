#include "kaavatarenum.h"
#include "kacomboboxenum.h"
#include "kascrollbarenum.h"
#include "katabenum.h"
#include "katextfieldenum.h"

#include "metaenumtable.h"

#include <QTest>

// Holders of the tabs, text fields, avatars, combo boxes and scroll bars.
class tst_KaWidgetEnums : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void keysAndValues_data();
    void keysAndValues() { MetaEnumTable::verifyRow(); }
    void holders();
    void tabSections();
};

void tst_KaWidgetEnums::keysAndValues_data() {
    using namespace MetaEnumTable;
    addColumns();
    addRow<KaTabEnum::Type>("KaTabEnum::Type",
                            {{"SECTION_01", 0},  {"SECTION_02", 1},  {"SECTION_03", 2},  {"SECTION_04", 3},
                             {"SECTION_05", 4},  {"SECTION_06", 5},  {"SECTION_07", 6},  {"SECTION_08", 7},
                             {"SECTION_09", 8},  {"SECTION_10", 9},  {"SECTION_11", 10}, {"SECTION_12", 11},
                             {"SECTION_13", 12}, {"SECTION_14", 13}, {"SECTION_15", 14}, {"SECTION_16", 15},
                             {"SECTION_17", 16}, {"SECTION_18", 17}, {"SECTION_19", 18}, {"SECTION_20", 19},
                             {"SECTION_21", 20}, {"NONE", 21}});
    addRow<KaTabEnum::Style>("KaTabEnum::Style", {{"ACTIVE", 0}, {"INACTIVE", 1}});
    addRow<KaTabEnum::State>("KaTabEnum::State", {{"EXPANDED", 0}, {"COLLAPSED", 1}});
    addRow<KaTextFieldEnum::Style>("KaTextFieldEnum::Style",
                                   {{"Password", 0}, {"Search", 1}, {"Standard", 2}, {"Pin", 3}});
    addRow<KaTextFieldEnum::Size>("KaTextFieldEnum::Size",
                                  {{"SingleCharacter", 0}, {"Normal", 1}, {"Large", 2}});
    addRow<KaAvatarEnum::Transformation>("KaAvatarEnum::Transformation", {{"None", 0}, {"Pretty", 1}}, true);
    addRow<KaAvatarEnum::Size>("KaAvatarEnum::Size", {{"XSmall", 0},
                                                      {"Small", 1},
                                                      {"Medium", 2},
                                                      {"XMedium", 3},
                                                      {"Large", 4},
                                                      {"XLarge", 5},
                                                      {"XXLarge", 6}});
    addRow<KaAvatarEnum::Presence>("KaAvatarEnum::Presence", {{"None", 0},
                                                              {"Active", 1},
                                                              {"Meeting", 2},
                                                              {"CalendarMeeting", 3},
                                                              {"Call", 4},
                                                              {"Dnd", 5},
                                                              {"Busy", 6},
                                                              {"Sharing", 7},
                                                              {"QuietHours", 8},
                                                              {"Inactive", 9},
                                                              {"OOO", 10},
                                                              {"Hold", 11},
                                                              {"JoinMeetingByMobile", 12},
                                                              {"JoinMeetingByPersonalDevice", 13},
                                                              {"Away", 14}});
    addRow<KaAvatarEnum::AvatarType>("KaAvatarEnum::AvatarType", {{"Unknown", 0},
                                                                  {"Image", 1},
                                                                  {"InitialsWithBackground", 2},
                                                                  {"LockedIconWithBackground", 3},
                                                                  {"Pair", 4},
                                                                  {"DefaultAvatar", 5},
                                                                  {"MessageSentBySelf", 6},
                                                                  {"DefaultExConferenceAvatar", 7},
                                                                  {"DefaultGuestUserAvatar", 8},
                                                                  {"MeetingIcon", 9},
                                                                  {"IMShareScreen", 10},
                                                                  {"IMContentShare", 11},
                                                                  {"MeetingRoomWithDevice", 12},
                                                                  {"MeetingRoomWithoutDevice", 13},
                                                                  {"UnknownSpeaker", 14},
                                                                  {"MeetingStepAway", 15}});
    addRow<KaComboBoxEnum::Style>("KaComboBoxEnum::Style", {{"Outline", 0}, {"Filled", 1}});
    addRow<KaComboBoxEnum::Size>("KaComboBoxEnum::Size", {{"Normal", 0}, {"Large", 1}});
    addRow<KaScrollbarEnum::MinimumSize>("KaScrollbarEnum::MinimumSize", {{"Small", 0}, {"Normal", 1}});
}

void tst_KaWidgetEnums::holders() {
    MetaEnumTable::verifyBareHolder(KaTabEnum::staticMetaObject, "KaTabEnum", 3);
    MetaEnumTable::verifyBareHolder(KaTextFieldEnum::staticMetaObject, "KaTextFieldEnum", 2);
    MetaEnumTable::verifyBareHolder(KaAvatarEnum::staticMetaObject, "KaAvatarEnum", 4);
    MetaEnumTable::verifyBareHolder(KaComboBoxEnum::staticMetaObject, "KaComboBoxEnum", 2);
    MetaEnumTable::verifyBareHolder(KaScrollbarEnum::staticMetaObject, "KaScrollbarEnum", 1);
}

// The host maps its sections by number: keys and values must line up
// without gaps, with NONE right after the last section.
void tst_KaWidgetEnums::tabSections() {
    const QMetaEnum type = QMetaEnum::fromType<KaTabEnum::Type>();
    for (int section = 1; section <= 21; ++section) {
        const QByteArray key = "SECTION_" + QByteArray::number(section).rightJustified(2, '0');
        bool ok = false;
        QCOMPARE(type.keyToValue(key.constData(), &ok), section - 1);
        QVERIFY(ok);
    }
    QCOMPARE(type.keyToValue("NONE"), int(KaTabEnum::NONE));
    QCOMPARE(int(KaTabEnum::NONE), int(KaTabEnum::SECTION_21) + 1);
}

QTEST_GUILESS_MAIN(tst_KaWidgetEnums)
#include "tst_kawidgetenums.moc"
