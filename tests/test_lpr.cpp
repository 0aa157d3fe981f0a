// Plate recognition: settings, overlay layout, plate lists, rule schedules,
// upload status, wildcards, recent reads, the speed radar and the attribute
// alarm rules. Every record holds values that are all different; the unread
// words hold values that must never show.
#include "catalog.h"
#include "support.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

// Sets a field and returns the member it must give, under the key written.
template <typename T>
test::Expected set(T &field, const char *key, double value)
{
    field = static_cast<T>(value);
    return N(key, value);
}
template <size_t M>
test::Expected set(char (&field)[M], const char *key, const char *text)
{
    put(field, text);
    return S(key, text);
}
#define F(field, value) set(r.field, #field, value)

std::string str(int i) { return std::to_string(i); }

template <size_t M>
void fill_week(char (&days)[7][M], const std::string &prefix)
{
    for (int d = 0; d < 7; ++d)
        snprintf(days[d], M, "%s%d", prefix.c_str(), d);
}

// A seven-day "scheduleList" whose day d holds prefix + d.
void expect_week(const cJSON *list, const std::string &prefix)
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", prefix + str(d))});
}

// Polygon i's X corners are kCorners[i], its Y corners kCorners[3 - i]: a
// colon after every value, the last included, and the widest values fit.
const struct { int32_t corners[4]; const char *text; } kCorners[4] = {
    {{0, -5, 12, 7}, "0:-5:12:7:"},
    {{10, 20, 30, 40}, "10:20:30:40:"},
    {{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN}, "-2147483648:-2147483648:-2147483648:-2147483648:"},
    {{INT32_MAX, 0, -1, 1}, "2147483647:0:-1:1:"},
};

TEST(LprSettings, EveryKeyInOrderPolygonsOnlyForEngineFour)
{
    lpr_settings_record r{};
    r.reserved0 = 9001; r.reserved1[0] = 9002; r.reserved1[1] = 9003; r.reserved2 = 9004;
    r.reserved3 = 9005; r.reserved4 = 9006; r.reserved5 = 9007;
    fill_week(r.schedule, "sched-");
    lpr_settings_ext_record e{};
    e.reserved0 = 8001; e.reserved3 = 8002; e.reserved4 = 8003;
    for (int i = 0; i < 4; ++i) {
        memcpy(e.polygons[i].x, kCorners[i].corners, sizeof kCorners[i].corners);
        memcpy(e.polygons[i].y, kCorners[3 - i].corners, sizeof kCorners[i].corners);
        put(e.polygons[i].name, ("poly" + str(i)).c_str());
    }
    for (int32_t version : {0, 3, 4, 5, -4, 260}) {
        SCOPED_TRACE("lprVersion " + str(version));
        std::vector<test::Expected> want = {
            F(lprVersion, version), F(lprEnable, 1), F(optimalPushMechanism, 31), F(areaList, "EU,NA"),
            F(noSupportSerialformatList, "ME"), F(curArea, "EU"), F(country, -26), F(nightModeEnable, 17),
            F(dayToNight, 24), F(nightToDay, 25), F(nightModeEffectiveTime, 18), F(nightModeStartHour, 19),
            F(nightModeStartMinute, 20), F(nightModeStopHour, 21), F(nightModeStopMinute, 22),
            F(nightModeLevel, -23), set(e.inputNo, "inputNo", 33), F(lprWidth, 1920), F(lprHeight, 1080),
            F(processMode, 13), F(repeatCheckTimeVal, 14), F(repeatCheckTimeUnit, 15), F(dayNightModeEnable, 3),
            F(speedDetect, 6), F(cameraHeight, "4.5m"), F(lineDistance1, "12.0"), F(lineDistance2, "6.5"),
            F(linePixel1, 420), F(linePixel2, 860), F(plateColorEnable, 10), F(vehicleTypeEnable, 11),
            F(vehicleColorEnable, 12), F(roiIdEnable, 9), F(directionEnable, 7), F(regionEnable, 8),
            set(e.vehicleBrandEnable, "vehicleBrandEnable", 200), F(effectivePresetsScene, 5)};
        if (version == 4)
            want.push_back(A("normalPolygonList"));
        for (const test::Expected &m :
             {F(confidence, 16), F(encryptionChip, 27), F(areaType, 28), F(whiteLedExternal, 29),
              F(irLedExternal, 30), set(e.detectionMode, "detectionMode", 4000000000.0),
              set(e.vehicleEnhancement, "vehicleEnhancement", 250), A("scheduleList")})
            want.push_back(m);
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_lpr_settings_json(&r, &e, d, n); }));
        test::expect_members(doc.root(), want);
        expect_week(doc["scheduleList"], "sched-");
        if (version != 4)
            continue;
        ASSERT_EQ(cJSON_GetArraySize(doc["normalPolygonList"]), 4);
        for (int i = 0; i < 4; ++i)
            test::expect_members(test::element(doc["normalPolygonList"], i), {
                N("polygonIndex", i), S("name", "poly" + str(i)), S("polygonX", kCorners[i].text),
                S("polygonY", kCorners[3 - i].text)});
    }
}

// The post field table; "lineBreak" marks a wrap and is never listed.
const char *const kPostFields[20] = {
    "time", "licensePlate", "plateType", "vehicleSpeed", "direction", "detectionRegion", "position",
    "deviceName", "deviceID", "lineBreak", "plateColor", "vehicleType", "vehicleColor", "eventType",
    "redLightDuration", "countryRegion", "vehicleBrand", "gps", "imageSource", "plateConfidence"};

std::vector<test::Expected> advanced_members(lpr_advanced_record &r)
{
    r.reserved0 = 777;
    for (int k = 0; k < 20; ++k) // slot k holds 10 + k, so a shifted index shows
        put(r.spaces[k], k == 9 ? "999" : str(10 + k).c_str());
    return {F(osdSort, "0,1,9,7"), F(osdFontSize, 32), F(osdFontColor, "#FFFFFF"), F(osdBkgEnable, 2),
            F(osdBkgColor, "#000000"), F(osdPosition, 3), A("osdSpaceList"), F(osdPositionName, "North gate"),
            F(osdDeviceId, "OSD-ID"), F(snapSeparator, -1), F(snapSort, "0,1,2"), F(snapPosition, "bottom"),
            F(snapDeviceId, "SNAP-ID"), F(snapshotResolution, 4)};
}

std::string render_advanced(const lpr_advanced_record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return get_lpr_advanced_json(&r, dst, n); });
}

TEST(LprAdvanced, EveryKeyInOrderSpaceListSkipsLineBreak)
{
    lpr_advanced_record r{};
    const std::vector<test::Expected> want = advanced_members(r);
    test::Json doc(render_advanced(r));
    test::expect_members(doc.root(), want);
    const cJSON *list = doc["osdSpaceList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 19);
    for (int k = 0, e = 0; k < 20; ++k)
        if (k != 9)
            test::expect_members(test::element(list, e++), {S("fileName", kPostFields[k]), N("spaces", 10 + k)});

    // A text filling its ten bytes without a NUL stops there (the next is "14").
    memcpy(r.spaces[3], "1234567890", 10);
    test::Json cut(render_advanced(r));
    test::expect_members(test::element(cut["osdSpaceList"], 3), {S("fileName", "vehicleSpeed"), N("spaces", 1234567890)});
}

// A spaces text is read the way atoi reads it.
TEST(LprAdvanced, SpacesTextsReadAsLeadingIntegers)
{
    const struct { const char *text; int32_t value; } cases[] = {
        {"  12abc", 12}, {"-7", -7}, {"+3", 3}, {"abc", 0}, {"", 0}, {"\t5", 5}, {"0012", 12}, {"1 2", 1}, {"- 4", 0}};
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string("text '") + c.text + "'");
        lpr_advanced_record r{};
        advanced_members(r);
        put(r.spaces[0], c.text);  // "time", first in the list
        put(r.spaces[19], c.text); // "plateConfidence", last
        test::Json doc(render_advanced(r));
        EXPECT_EQ(cJSON_GetNumberValue(test::member(test::element(doc["osdSpaceList"], 0), "spaces")), c.value);
        EXPECT_EQ(cJSON_GetNumberValue(test::member(test::element(doc["osdSpaceList"], 18), "spaces")), c.value);
    }
}

TEST(LprLists, ThreeListsPrintSwitchDirectionAndWeekAlike)
{
    using List = int32_t (*)(const lpr_list_settings_record *, const lpr_list_direction_record *, char *, int32_t);
    lpr_list_settings_record r{};
    r.enable = -2;
    fill_week(r.schedule, "list-");
    const lpr_list_direction_record dir{41, 42};
    std::string first;
    for (List list : {get_lpr_black_settings_json, get_lpr_white_settings_json, get_lpr_visitor_settings_json}) {
        const std::string text = test::rendered([&](char *dst, int32_t n) { return list(&r, &dir, dst, n); });
        test::Json doc(text);
        test::expect_members(doc.root(), {N("enable", -2), N("detectionDirection", 42), A("scheduleList")});
        expect_week(doc["scheduleList"], "list-");
        if (first.empty())
            first = text;
        EXPECT_EQ(text, first);
    }
}

TEST(LprListSchedule, TwentyEightKeysRuleMajor)
{
    lpr_list_sche_record r{};
    std::vector<test::Expected> want;
    for (int rule = 0; rule < 4; ++rule)
        for (int d = 0; d < 7; ++d) {
            const std::string text = "task r" + str(rule) + " d" + str(d);
            put(r.ruleTaskday[rule][d], text.c_str());
            want.push_back(S(("ruleTaskday_" + str(rule) + "_" + str(d)).c_str(), text));
        }
    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_list_sche_json(&r, dst, n); }));
    test::expect_members(doc.root(), want);
}

TEST(LprUploadStatusAndWildcards, AllSlotsEnabledOrNot)
{
    const lpr_upload_status_record status{-1};
    test::Json up(test::rendered([&](char *dst, int32_t n) { return get_lpr_upload_status_json(&status, dst, n); }));
    test::expect_members(up.root(), {N("lprUploadStatus", -1)});

    lpr_wildcards_record r{};
    r.filter = -3;
    for (int i = 0; i < 30; ++i) {
        r.enable[i] = i % 3 == 0 ? 1 : 0;
        r.characterCount[i] = 100 + i;
        put(r.format[i], ("AA9-" + str(i)).c_str());
    }
    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_wildcards_json(&r, dst, n); }));
    test::expect_members(doc.root(), {N("filter", -3), A("filterList")});
    ASSERT_EQ(cJSON_GetArraySize(doc["filterList"]), 30);
    for (int i = 0; i < 30; ++i)
        test::expect_members(test::element(doc["filterList"], i), {
            N("index", i), N("enable", i % 3 == 0 ? 1 : 0), N("characterCount", 100 + i), S("format", "AA9-" + str(i))});
}

TEST(LprLastData, CountDecidesHowManyReadsKeysNumberedFromZero)
{
    lpr_last_data_entry reads[3] = {};
    for (int i = 0; i < 3; ++i) {
        lpr_last_data_entry &e = reads[i];
        put(e.time, ("2026-11-21 18:4" + str(i)).c_str()); put(e.plate, ("PLATE" + str(i)).c_str());
        put(e.path, ("/sd/" + str(i) + ".jpg").c_str()); put(e.region, ("region" + str(i)).c_str());
        e.direction = -(10 * i + 1); e.roiId = 10 * i + 2; e.plateLeft = 10 * i + 3; e.plateTop = 10 * i + 4;
        e.plateRight = 10 * i + 5; e.plateBottom = 10 * i + 6;
    }
    const char *numbers[6] = {"direction_", "roiId_", "plateLeft_", "plateTop_", "plateRight_", "plateBottom_"};
    for (int32_t count : {0, -3, INT32_MIN, 1, 3}) {
        SCOPED_TRACE("count " + str(count));
        test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_last_data_json(count, reads, dst, n); }));
        std::vector<test::Expected> want;
        for (int i = 0; i < count; ++i) {
            want.push_back(S(("time_" + str(i)).c_str(), "2026-11-21 18:4" + str(i)));
            want.push_back(S(("plate_" + str(i)).c_str(), "PLATE" + str(i)));
            want.push_back(S(("path_" + str(i)).c_str(), "/sd/" + str(i) + ".jpg"));
            want.push_back(S(("region_" + str(i)).c_str(), "region" + str(i)));
            for (int k = 0; k < 6; ++k)
                want.push_back(N((numbers[k] + str(i)).c_str(), k == 0 ? -(10 * i + 1) : 10 * i + 1 + k));
        }
        test::expect_members(doc.root(), want);
    }
}

std::vector<test::Expected> radar_members(lpr_radar_config_record &r, int32_t lanes)
{
    for (int l = 0; l < 4; ++l) {
        r.laneRegion[l] = 100 + l;
        r.laneDirection[l] = 200 + l;
    }
    for (int k = 0; k < 8; ++k)
        r.reserved0[k] = 9000 + k;
    r.reserved1 = 9100;
    fill_week(r.schedule, "radar-");
    return {F(enable, 1), F(height, "5.2"), F(angle, "18"), F(angleCom, "0.5"), F(lanesNum, lanes),
            F(laneWidth, "3.5"), F(installLocation, "gantry"), F(speedUnit, 2), A("laneMatchRoiList"),
            A("laneDirection"), F(triggerLine, 540), F(triggerDistance, "25.5"), F(showSpeedEnable, 13),
            F(showDirectionEnable, 14), F(showDistanceEnable, 15), F(showAzimuthEnable, 16),
            F(showCountingEnable, 17), F(showLicensePlateEnable, 11), F(showDetectionRegionEnable, 12),
            F(fontSize, 24), F(fontColor, "#FFFF00"), F(osdAutoReset, 21), F(osdResetWeekday, 22),
            F(osdResetHour, 23), F(osdResetMin, 24), F(osdResetSec, 25), F(maxSpeedAlarmEnable, 31),
            F(minSpeedAlarmEnable, 32), F(maxSpeedThreshold, 33), F(minSpeedThreshold, -34),
            F(drivingDirAlarmEnable, 35), F(drivingDir, 36), F(countAlarm, 38), F(countThreshold, 39),
            F(radarLevel, 37), F(debug, 40), F(upgrade, 41), F(exportEnable, 51), F(exportMethod, 52),
            F(exportWeekday, 53), F(exportResetHour, 54), F(exportResetMin, 55), F(exportResetSec, 56),
            F(exportTimeRange, -57), A("scheduleList")};
}

std::string render_radar(int32_t lanes, std::vector<test::Expected> *want = nullptr)
{
    lpr_radar_config_record r{};
    std::vector<test::Expected> members = radar_members(r, lanes);
    if (want)
        *want = members;
    return test::rendered([&](char *dst, int32_t n) { return get_lpr_radar_config_json(&r, dst, n); });
}

TEST(LprRadarConfig, EveryKeyInOrder)
{
    std::vector<test::Expected> want;
    test::Json doc(render_radar(3, &want));
    test::expect_members(doc.root(), want);
    expect_week(doc["scheduleList"], "radar-");
}

// The region list has no cap of its own and reads on past the four lane
// regions into the words that follow; the direction list stops at four.
TEST(LprRadarConfig, LaneListsByLaneCount)
{
    const struct { int32_t lanes; std::vector<double> regions; int directions; } cases[] = {
        {0, {}, 0}, {-1, {}, 0}, {INT32_MIN, {}, 0}, {1, {100}, 1}, {4, {100, 101, 102, 103}, 4},
        {5, {100, 101, 102, 103, 540}, 4}, // lane 4 reads triggerLine
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
        {6, {100, 101, 102, 103, 540, 0x352E3532}, 4}, // then "25.5" as a word, low byte first
#endif
    };
    for (const auto &c : cases) {
        SCOPED_TRACE("lanesNum " + str(c.lanes));
        test::Json doc(render_radar(c.lanes));
        ASSERT_EQ(cJSON_GetArraySize(doc["laneMatchRoiList"]), int(c.regions.size()));
        for (size_t l = 0; l < c.regions.size(); ++l)
            test::expect_members(test::element(doc["laneMatchRoiList"], int(l)),
                                 {N("index", double(l)), N("region", c.regions[l])});
        ASSERT_EQ(cJSON_GetArraySize(doc["laneDirection"]), c.directions);
        for (int l = 0; l < c.directions; ++l)
            test::expect_members(test::element(doc["laneDirection"], l), {N("index", l), N("direction", 200 + l)});
    }
    // It does stop at the record's last word: 513 words from laneRegion on,
    // the last being laneDirection[3], exportTimeRange four before it.
    test::Json doc(render_radar(INT32_MAX));
    ASSERT_EQ(cJSON_GetArraySize(doc["laneMatchRoiList"]), 513);
    test::expect_members(test::element(doc["laneMatchRoiList"], 512), {N("index", 512), N("region", 203)});
    test::expect_members(test::element(doc["laneMatchRoiList"], 508), {N("index", 508), N("region", -57)});
}

TEST(LprRadarTestAndTargets, ValueIsTheArgumentTargetsByCount)
{
    for (int32_t state : {0, -1, INT32_MAX}) {
        test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_radar_test_json(state, dst, n); }));
        test::expect_members(doc.root(), {N("radarTest", state)});
    }
    lpr_radar_detect_entry targets[3] = {};
    for (int i = 0; i < 3; ++i) {
        targets[i].id = -(i + 1);
        put(targets[i].speed, ("s" + str(i)).c_str()); put(targets[i].xpos, ("x" + str(i)).c_str());
        put(targets[i].distance, ("d" + str(i)).c_str()); put(targets[i].direction, ("dir" + str(i)).c_str());
    }
    for (int32_t count : {0, -2, 1, 3}) {
        SCOPED_TRACE("count " + str(count));
        test::Json doc(
            test::rendered([&](char *dst, int32_t n) { return get_lpr_radar_detect_data_json(count, targets, dst, n); }));
        test::expect_members(doc.root(), {A("radarDetectData")});
        ASSERT_EQ(cJSON_GetArraySize(doc["radarDetectData"]), count > 0 ? count : 0);
        for (int i = 0; i < count; ++i)
            test::expect_members(test::element(doc["radarDetectData"], i),
                                 {N("id", -(i + 1)), S("speed", "s" + str(i)), S("xpos", "x" + str(i)),
                                  S("distance", "d" + str(i)), S("direction", "dir" + str(i))});
    }
}

TEST(LprAttrEvent, RulesTriggersAndSchedules)
{
    lpr_attr_event_entry rules[4];
    for (int r = 0; r < 4; ++r) // the bytes above 127
        rules[r] = lpr_attr_event_entry{uint8_t(200 + r), uint8_t(210 + r), uint8_t(220 + r), -(r + 1), 30 + r,
                                        40 + r, 50 + r};
    lpr_attr_schedule schedule{};
    for (int r = 0; r < 4; ++r)
        fill_week(schedule.schedule[r], "rule" + str(r) + " day");

    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_attr_event_json(rules, &schedule, dst, n); }));
    test::expect_members(doc.root(), {A("enableList"), A("alarmTriggerList"), A("scheduleList")});
    ASSERT_EQ(cJSON_GetArraySize(doc["enableList"]), 4);
    ASSERT_EQ(cJSON_GetArraySize(doc["alarmTriggerList"]), 4);
    ASSERT_EQ(cJSON_GetArraySize(doc["scheduleList"]), 4);
    for (int r = 0; r < 4; ++r) {
        SCOPED_TRACE("rule " + str(r));
        test::expect_members(test::element(doc["enableList"], r), {N("index", r), N("enable", 200 + r)});
        test::expect_members(test::element(doc["alarmTriggerList"], r),
                             {N("index", r), N("noPlate", 210 + r), N("plateColor", 30 + r), N("vehicleType", 40 + r),
                              N("vehicleColor", 50 + r), N("detectRegion", -(r + 1)), N("direction", 220 + r)});
        const cJSON *rule = test::element(doc["scheduleList"], r);
        test::expect_members(rule, {N("index", r), A("LprAttrList")});
        expect_week(test::member(rule, "LprAttrList"), "rule" + str(r) + " day");
    }
}

} // namespace
