// The analytics configuration with its slot-indexed keys, and the three
// alarm-status documents.
#include "support.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

template <typename T>
T poisoned()
{
    T r;
    memset(static_cast<void *>(&r), 0xA5, sizeof r);
    return r;
}

// ---- configuration ----

// The value of slot s of the array with this base: distinct across arrays and
// slots, negative for the white-LED group so that a signed slip shows.
int32_t slot_value(int32_t base, int s) { return base < 0 ? base - s : base + s; }

template <size_t N>
void fill_slots(int32_t (&a)[N], int32_t base)
{
    static_assert(N == 13, "an action array has 13 slots");
    for (int s = 0; s < 13; ++s)
        a[s] = slot_value(base, s);
}

struct SlotKey {
    const char *name; // the key without its "_%d"
    int32_t base;
};

// One loop over the slots: its keys alternate within each slot.
void append_loop(std::vector<test::Expected> &want, const std::vector<SlotKey> &loop)
{
    for (int s = 0; s < 13; ++s)
        for (const SlotKey &k : loop)
            want.push_back(N((std::string(k.name) + "_" + std::to_string(s)).c_str(), slot_value(k.base, s)));
}

TEST(VcaConfiguration, SlotKeysGroupedByLoop)
{
    vca_configuration_record in = poisoned<vca_configuration_record>();
    in.vcaId = 7;
    snprintf(in.vcaName, sizeof in.vcaName, "%s", "Dock");
    in.vcaEnable = 1;
    in.vcaPeriodic = 2;
    in.vcaWeekdays = 62;
    in.vcaStartTime = 480;
    in.vcaDuration = -600;
    in.triggerBootEnable = 3;
    in.triggerScheduleEnable = 4;
    in.uploadType = 5;
    in.uploadPostAlarm = 6;
    in.emailFileType = 8;
    in.emailPostAlarm = 9;
    snprintf(in.email, sizeof in.email, "%s", "guard@example.com");
    snprintf(in.emailSubject, sizeof in.emailSubject, "%s", "Alarm");
    snprintf(in.emailInformation, sizeof in.emailInformation, "%s", "Dock door");
    in.emailUpload = 10;
    in.httpPostAlarm = 11;
    in.httpInterval = 12;

    fill_slots(in.uploadEnable, 100);
    fill_slots(in.uploadFileType, 200);
    fill_slots(in.emailEnable, 300);
    fill_slots(in.httpEnable, 400);
    fill_slots(in.recordEnable, 500);
    fill_slots(in.recordFileType, 600);
    fill_slots(in.gpoutEnable, 700);
    fill_slots(in.nasEnable, 800);
    fill_slots(in.nasFileType, 900);
    fill_slots(in.sipEnable, 1000);
    fill_slots(in.audioEnable, 1100);
    fill_slots(in.whitelightEnable, 1200);
    fill_slots(in.recordSecond, 1300);
    fill_slots(in.prerecordSecond, 1400);
    fill_slots(in.snapShot, 1500);
    fill_slots(in.snapShotInterval, 1600);
    fill_slots(in.snapShotIntervalUnit, 1700);
    fill_slots(in.triggerDuration, 1800);
    fill_slots(in.audioInterval, 1900);
    fill_slots(in.emailInterval, 2000);
    fill_slots(in.whiteledFlashMode, -2100);
    fill_slots(in.whiteledFlashTime, -2200);
    fill_slots(in.whiteledAlwaysTime, -2300);
    fill_slots(in.whiteledEffectMode, -2400);
    fill_slots(in.whiteledEffectValue, -2500);
    fill_slots(in.whiteledStartHour, -2600);
    fill_slots(in.whiteledStartMinute, -2700);
    fill_slots(in.whiteledStopHour, -2800);
    fill_slots(in.whiteledStopMinute, -2900);
    fill_slots(in.whiteledGroup, -3000);

    std::vector<test::Expected> want = {
        N("vcaId", 7),         S("vcaName", "Dock"),         N("vcaEnable", 1),
        N("vcaPeriodic", 2),   N("vcaWeekdays", 62),         N("vcaStartTime", 480),
        N("vcaDuration", -600), N("triggerBootEnable", 3),   N("triggerScheduleEnable", 4),
    };
    append_loop(want, {{"uploadEnable", 100}});
    append_loop(want, {{"uploadFileType", 200}});
    want.push_back(N("uploadType", 5));
    want.push_back(N("uploadPostAlarm", 6));
    append_loop(want, {{"emailEnable", 300}});
    want.push_back(N("emailFileType", 8));
    want.push_back(N("emailPostAlarm", 9));
    want.push_back(S("email", "guard@example.com"));
    want.push_back(S("emailSubject", "Alarm"));
    want.push_back(S("emailInformation", "Dock door"));
    want.push_back(N("emailUpload", 10));
    append_loop(want, {{"httpEnable", 400}});
    want.push_back(N("httpPostAlarm", 11));
    want.push_back(N("httpInterval", 12));
    append_loop(want, {{"recordEnable", 500}, {"recordFileType", 600}});
    append_loop(want, {{"gpoutEnable", 700}});
    append_loop(want, {{"nasEnable", 800}, {"nasFileType", 900}});
    append_loop(want, {{"sipEnable", 1000}});
    append_loop(want, {{"audioEnable", 1100}});
    append_loop(want, {{"whitelightEnable", 1200}});
    append_loop(want, {
                          {"recordSecond", 1300},         {"prerecordSecond", 1400},
                          {"snapShot", 1500},             {"snapShotInterval", 1600},
                          {"snapShotIntervalUnit", 1700}, {"triggerDuration", 1800},
                          {"audioInterval", 1900},        {"emailInterval", 2000},
                          {"whiteledFlashMode", -2100},   {"whiteledFlashTime", -2200},
                          {"whiteledAlwaysTime", -2300},  {"whiteledEffectMode", -2400},
                          {"whiteledEffectValue", -2500}, {"whiteledStartHour", -2600},
                          {"whiteledStartMinute", -2700}, {"whiteledStopHour", -2800},
                          {"whiteledStopMinute", -2900},  {"whiteledGroup", -3000},
                      });

    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_vca_configuration_json(&in, d, n); }));
    test::expect_members(doc.root(), want);
    // 9 identity keys, 30 slot formats of 13 keys, 10 plain keys in between.
    EXPECT_EQ(test::keys(doc.root()).size(), 9u + 30u * 13u + 10u);
}

// ---- alarm states ----

TEST(VcaAlarmStatus, RuleStatesThenFourLines)
{
    vca_alarm_status_record in = poisoned<vca_alarm_status_record>();
    in.regionEntranceStatus = 1;
    in.regionExitAlarmStatus = 2;
    in.advancedMotionAlarmStatus = 3;
    in.tamperAlarmStatus = 4;
    in.loiteringAlarmStatus = 5;
    in.lineAlarmStatus[0] = 60;
    in.lineAlarmStatus[1] = 0;
    in.lineAlarmStatus[2] = 62;
    in.lineAlarmStatus[3] = -63;
    in.peopleCountingStatus = 7;
    in.currentCounterAlarmStatus = 8;
    in.humanAlarmStatus = 9;
    in.currentInCount = 10;
    in.currentOutCount = 11;
    in.currentSumCount = 12;
    in.currentCapacityCount = -13;
    in.objectLeftAlarmStatus = 14;
    in.objectRemoveAlarmStatus = 15;
    in.vehicleCountingStatus = 16;
    in.currentVehicleAlarm = 17;
    in.vehicleInCount = 18;
    in.vehicleOutCount = 19;
    in.vehicleSumCount = 20;
    in.vehicleCapacityCount = 21;
    in.regionalPeopleStatus = 22;

    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_vca_alarm_status_json(&in, d, n); }));
    test::expect_members(doc.root(), {
                                         N("regionEntranceStatus", 1),
                                         N("regionExitAlarmStatus", 2),
                                         N("advancedMotionAlarmStatus", 3),
                                         N("tamperAlarmStatus", 4),
                                         N("loiteringAlarmStatus", 5),
                                         N("peopleCountingStatus", 7),
                                         N("currentCounterAlarmStatus", 8),
                                         N("humanAlarmStatus", 9),
                                         N("currentInCount", 10),
                                         N("currentOutCount", 11),
                                         N("currentSumCount", 12),
                                         N("currentCapacityCount", -13),
                                         N("objectLeftAlarmStatus", 14),
                                         N("objectRemoveAlarmStatus", 15),
                                         N("vehicleCountingStatus", 16),
                                         N("currentVehicleAlarm", 17),
                                         N("vehicleInCount", 18),
                                         N("vehicleOutCount", 19),
                                         N("vehicleSumCount", 20),
                                         N("vehicleCapacityCount", 21),
                                         N("regionalPeopleStatus", 22),
                                         A("lineCrossAlarmList"),
                                     });
    const cJSON *lines = doc["lineCrossAlarmList"];
    ASSERT_EQ(cJSON_GetArraySize(lines), 4);
    const int32_t status[4] = {60, 0, 62, -63};
    for (int l = 0; l < 4; ++l)
        test::expect_members(test::element(lines, l), {N("lineIndex", l), N("alarmStatus", status[l])});
}

vca_all_alarm_status_record distinct_all_alarms()
{
    vca_all_alarm_status_record in = poisoned<vca_all_alarm_status_record>();
    in.motionAlarmStatus = 1;
    in.inputAlarmStatus[0] = 20;
    in.inputAlarmStatus[1] = 21;
    in.inputAlarmStatus[2] = 0;
    in.inputAlarmStatus[3] = 23;
    in.outputAlarmStatus[0] = 30;
    in.outputAlarmStatus[1] = -31;
    in.audioAlarmStatus = 4;
    in.netlostEnable = 5;
    in.networkLostAlarmStatus = 6;
    in.ipconflictEnable = 7;
    in.ipConflictAlarmStatus = 8;
    in.recordFailedEnable = 9;
    in.recordFailedAlarmStatus = 10;
    in.sdFullEnable = 11;
    in.sdFullAlarmStatus = 12;
    in.sdUninitEnable = 13;
    in.sdUninitAlarmStatus = 14;
    in.sdErrorEnable = 15;
    in.sdErrorAlarmStatus = 16;
    in.noSdEnable = 17;
    in.noSdAlarmStatus = 18;
    in.tamperEnable = 19;
    in.tamperAlarmStatus = -20;
    in.subMotionAlarmStatus = 41;
    in.thirdMotionAlarmStatus = 42;
    in.fourthMotionAlarmStatus = 43;
    in.fifthMotionAlarmStatus = 44;
    in.alarmArea = 45;
    in.lprBlackStatus = 46;
    in.lprWhiteStatus = 47;
    in.lprVisitorStatus = 48;
    in.lprAttrStatus = -49;
    return in;
}

TEST(VcaAlarmStatus, OtherAlarmsWithInputsAndOutputs)
{
    const vca_all_alarm_status_record in = distinct_all_alarms();
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_vca_all_alarm_status_json(&in, d, n); }));
    test::expect_members(doc.root(), {
                                         N("motionAlarmStatus", 1),
                                         N("audioAlarmStatus", 4),
                                         N("networkLostAlarmStatus", 6),
                                         N("ipConflictAlarmStatus", 8),
                                         N("recordFailedAlarmStatus", 10),
                                         N("sdFullAlarmStatus", 12),
                                         N("sdUninitAlarmStatus", 14),
                                         N("sdErrorAlarmStatus", 16),
                                         N("noSdAlarmStatus", 18),
                                         N("subMotionAlarmStatus", 41),
                                         N("thirdMotionAlarmStatus", 42),
                                         N("fourthMotionAlarmStatus", 43),
                                         N("fifthMotionAlarmStatus", 44),
                                         N("alarmArea", 45),
                                         N("lprBlackStatus", 46),
                                         N("lprWhiteStatus", 47),
                                         N("lprVisitorStatus", 48),
                                         N("lprAttrStatus", -49),
                                         A("inputAlarmList"),
                                         A("outputAlarmList"),
                                     });
    const cJSON *inputs = doc["inputAlarmList"];
    ASSERT_EQ(cJSON_GetArraySize(inputs), 4);
    const int32_t input[4] = {20, 21, 0, 23};
    for (int i = 0; i < 4; ++i)
        test::expect_members(test::element(inputs, i), {N("inputAlarmIndex", i), N("status", input[i])});
    // The output counter starts again at 0.
    const cJSON *outputs = doc["outputAlarmList"];
    ASSERT_EQ(cJSON_GetArraySize(outputs), 2);
    test::expect_members(test::element(outputs, 0), {N("outputAlarmIndex", 0), N("status", 30)});
    test::expect_members(test::element(outputs, 1), {N("outputAlarmIndex", 1), N("status", -31)});
}

TEST(VcaAlarmStatus, ExceptionAlarmsSwitchThenState)
{
    const vca_all_alarm_status_record in = distinct_all_alarms();
    test::Json doc(
        test::rendered([&](char *d, int32_t n) { return get_vca_exception_alarm_status_json(&in, d, n); }));
    test::expect_members(doc.root(), {
                                         N("netlostEnable", 5),
                                         N("networkLostAlarmStatus", 6),
                                         N("ipconflictEnable", 7),
                                         N("ipconflictAlarmStatus", 8),
                                         N("recordFailedEnable", 9),
                                         N("recordFailedAlarmStatus", 10),
                                         N("sdFullEnable", 11),
                                         N("sdFullAlarmStatus", 12),
                                         N("sdUninitEnable", 13),
                                         N("sdUninitAlarmStatus", 14),
                                         N("sdErrorEnable", 15),
                                         N("sdErrorAlarmStatus", 16),
                                         N("noSdEnable", 17),
                                         N("noSdAlarmStatus", 18),
                                         N("tamperEnable", 19),
                                         N("tamperAlarmStatus", -20),
                                     });
}

} // namespace
