// Recent plate reads, the speed radar (configuration, self-test, targets) and
// the plate-attribute alarm rules.
#include "catalog.h"
#include "support.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

using test::A;
using test::N;
using test::S;

std::string str(int i) { return std::to_string(i); }

/* ---- recent plate reads ---- */

lpr_last_data_entry read_entry(int i)
{
    lpr_last_data_entry e{};
    put(e.time, ("2026-11-21 18:4" + str(i) + ":00").c_str());
    put(e.plate, ("PLATE" + str(i)).c_str());
    put(e.path, ("/sd/" + str(i) + ".jpg").c_str());
    put(e.region, ("region" + str(i)).c_str());
    e.direction = -(10 * i + 1);
    e.roiId = 10 * i + 2;
    e.plateLeft = 10 * i + 3;
    e.plateTop = 10 * i + 4;
    e.plateRight = 10 * i + 5;
    e.plateBottom = 10 * i + 6;
    return e;
}

std::vector<test::Expected> read_keys(int i)
{
    return {
        S(("time_" + str(i)).c_str(), "2026-11-21 18:4" + str(i) + ":00"),
        S(("plate_" + str(i)).c_str(), "PLATE" + str(i)),
        S(("path_" + str(i)).c_str(), "/sd/" + str(i) + ".jpg"),
        S(("region_" + str(i)).c_str(), "region" + str(i)),
        N(("direction_" + str(i)).c_str(), -(10 * i + 1)),
        N(("roiId_" + str(i)).c_str(), 10 * i + 2),
        N(("plateLeft_" + str(i)).c_str(), 10 * i + 3),
        N(("plateTop_" + str(i)).c_str(), 10 * i + 4),
        N(("plateRight_" + str(i)).c_str(), 10 * i + 5),
        N(("plateBottom_" + str(i)).c_str(), 10 * i + 6),
    };
}

TEST(LprLastData, CountDecidesHowManyReads)
{
    const lpr_last_data_entry reads[3] = {read_entry(0), read_entry(1), read_entry(2)};
    const struct {
        int32_t count;
        int reads;
    } cases[] = {{0, 0}, {-3, 0}, {INT32_MIN, 0}, {1, 1}, {2, 2}, {3, 3}};
    for (const auto &c : cases) {
        SCOPED_TRACE("count " + str(c.count));
        test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_last_data_json(c.count, reads, dst, n); }));
        std::vector<test::Expected> want;
        for (int i = 0; i < c.reads; ++i)
            for (const test::Expected &e : read_keys(i))
                want.push_back(e);
        test::expect_members(doc.root(), want);
    }
}

/* ---- radar configuration ---- */

// Every read field distinct; the unread words hold values that must not show.
lpr_radar_config_record distinct_radar(int32_t lanes)
{
    lpr_radar_config_record r{};
    r.enable = 1; put(r.height, "5.2"); put(r.angle, "18"); put(r.angleCom, "0.5"); r.lanesNum = lanes;
    put(r.laneWidth, "3.5"); put(r.installLocation, "gantry"); r.speedUnit = 2;
    for (int l = 0; l < 4; ++l) {
        r.laneRegion[l] = 100 + l;
        r.laneDirection[l] = 200 + l;
    }
    r.triggerLine = 540; put(r.triggerDistance, "25.5");
    r.showLicensePlateEnable = 11; r.showDetectionRegionEnable = 12; r.showSpeedEnable = 13;
    r.showDirectionEnable = 14; r.showDistanceEnable = 15; r.showAzimuthEnable = 16; r.showCountingEnable = 17;
    r.fontSize = 24; put(r.fontColor, "#FFFF00");
    r.osdAutoReset = 21; r.osdResetWeekday = 22; r.osdResetHour = 23; r.osdResetMin = 24; r.osdResetSec = 25;
    for (int k = 0; k < 8; ++k)
        r.reserved0[k] = 9000 + k;
    r.maxSpeedAlarmEnable = 31; r.minSpeedAlarmEnable = 32; r.maxSpeedThreshold = 33; r.minSpeedThreshold = -34;
    r.drivingDirAlarmEnable = 35; r.drivingDir = 36; r.radarLevel = 37; r.countAlarm = 38; r.countThreshold = 39;
    r.debug = 40; r.reserved1 = 9100; r.upgrade = 41;
    for (int d = 0; d < 7; ++d)
        put(r.schedule[d], ("radar-" + str(d)).c_str());
    r.exportEnable = 51; r.exportMethod = 52; r.exportWeekday = 53; r.exportResetHour = 54;
    r.exportResetMin = 55; r.exportResetSec = 56; r.exportTimeRange = -57;
    return r;
}

std::string render_radar(const lpr_radar_config_record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return get_lpr_radar_config_json(&r, dst, n); });
}

TEST(LprRadarConfig, EveryKeyInOrder)
{
    test::Json doc(render_radar(distinct_radar(3)));
    test::expect_members(doc.root(), {
        N("enable", 1), S("height", "5.2"), S("angle", "18"), S("angleCom", "0.5"), N("lanesNum", 3),
        S("laneWidth", "3.5"), S("installLocation", "gantry"), N("speedUnit", 2), A("laneMatchRoiList"),
        A("laneDirection"), N("triggerLine", 540), S("triggerDistance", "25.5"), N("showSpeedEnable", 13),
        N("showDirectionEnable", 14), N("showDistanceEnable", 15), N("showAzimuthEnable", 16),
        N("showCountingEnable", 17), N("showLicensePlateEnable", 11), N("showDetectionRegionEnable", 12),
        N("fontSize", 24), S("fontColor", "#FFFF00"), N("osdAutoReset", 21), N("osdResetWeekday", 22),
        N("osdResetHour", 23), N("osdResetMin", 24), N("osdResetSec", 25), N("maxSpeedAlarmEnable", 31),
        N("minSpeedAlarmEnable", 32), N("maxSpeedThreshold", 33), N("minSpeedThreshold", -34),
        N("drivingDirAlarmEnable", 35), N("drivingDir", 36), N("countAlarm", 38), N("countThreshold", 39),
        N("radarLevel", 37), N("debug", 40), N("upgrade", 41), N("exportEnable", 51), N("exportMethod", 52),
        N("exportWeekday", 53), N("exportResetHour", 54), N("exportResetMin", 55), N("exportResetSec", 56),
        N("exportTimeRange", -57), A("scheduleList"),
    });
    const cJSON *week = doc["scheduleList"];
    ASSERT_EQ(cJSON_GetArraySize(week), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(week, d), {N("scheduleIndex", d), S("schedule", "radar-" + str(d))});
}

// The words the lane list reads, in record order from laneRegion on.
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
constexpr double kTriggerDistanceFirstWord = 0x352E3532; // "25.5": bytes 32 35 2E 35, low byte first
#endif

TEST(LprRadarConfig, LaneListsByLaneCount)
{
    const struct {
        int32_t lanes;
        std::vector<double> regions; // laneMatchRoiList, index 0 up
        int directions;              // laneDirection objects
    } cases[] = {
        {0, {}, 0},
        {-1, {}, 0},
        {INT32_MIN, {}, 0},
        {1, {100}, 1},
        {3, {100, 101, 102}, 3},
        {4, {100, 101, 102, 103}, 4},
        {5, {100, 101, 102, 103, 540}, 4}, // lane 4 is triggerLine
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
        {6, {100, 101, 102, 103, 540, kTriggerDistanceFirstWord}, 4},
#endif
    };
    for (const auto &c : cases) {
        SCOPED_TRACE("lanesNum " + str(c.lanes));
        test::Json doc(render_radar(distinct_radar(c.lanes)));
        const cJSON *regions = doc["laneMatchRoiList"];
        const cJSON *directions = doc["laneDirection"];
        ASSERT_TRUE(cJSON_IsArray(regions));
        ASSERT_TRUE(cJSON_IsArray(directions));
        ASSERT_EQ(cJSON_GetArraySize(regions), static_cast<int>(c.regions.size()));
        for (size_t l = 0; l < c.regions.size(); ++l)
            test::expect_members(test::element(regions, static_cast<int>(l)),
                                 {N("index", static_cast<double>(l)), N("region", c.regions[l])});
        ASSERT_EQ(cJSON_GetArraySize(directions), c.directions);
        for (int l = 0; l < c.directions; ++l)
            test::expect_members(test::element(directions, l), {N("index", l), N("direction", 200 + l)});
    }
}

TEST(LprRadarConfig, LaneListStopsAtTheRecordsLastWord)
{
    // From laneRegion to the end the record holds 513 words: 4 lane
    // regions, triggerLine, 8 of triggerDistance, 7 switches, fontSize, 8 of
    // fontColor, 5 reset words, 8 unread, 10 alarm and radar words, 1
    // unread, upgrade, 448 of schedule, 7 export words and 4 lane directions.
    test::Json doc(render_radar(distinct_radar(INT32_MAX)));
    const cJSON *regions = doc["laneMatchRoiList"];
    ASSERT_EQ(cJSON_GetArraySize(regions), 513);
    test::expect_members(test::element(regions, 512), {N("index", 512), N("region", 203)}); // laneDirection[3]
    test::expect_members(test::element(regions, 508), {N("index", 508), N("region", -57)}); // exportTimeRange
    EXPECT_EQ(cJSON_GetArraySize(doc["laneDirection"]), 4);
}

/* ---- radar self-test and targets ---- */

TEST(LprRadarTest, ValueIsTheArgument)
{
    for (int32_t state : {0, 1, 7, -1, INT32_MIN, INT32_MAX}) {
        SCOPED_TRACE("radarTest " + str(state));
        test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_radar_test_json(state, dst, n); }));
        test::expect_members(doc.root(), {N("radarTest", state)});
    }
}

TEST(LprRadarDetect, TargetsByCount)
{
    lpr_radar_detect_entry targets[3] = {};
    for (int i = 0; i < 3; ++i) {
        targets[i].id = -(i + 1);
        put(targets[i].speed, ("s" + str(i)).c_str());
        put(targets[i].xpos, ("x" + str(i)).c_str());
        put(targets[i].distance, ("d" + str(i)).c_str());
        put(targets[i].direction, ("dir" + str(i)).c_str());
    }
    for (int32_t count : {0, -2, 1, 3}) {
        SCOPED_TRACE("count " + str(count));
        test::Json doc(
            test::rendered([&](char *dst, int32_t n) { return get_lpr_radar_detect_data_json(count, targets, dst, n); }));
        test::expect_members(doc.root(), {A("radarDetectData")});
        const cJSON *list = doc["radarDetectData"];
        const int want = count > 0 ? count : 0;
        ASSERT_EQ(cJSON_GetArraySize(list), want);
        for (int i = 0; i < want; ++i)
            test::expect_members(test::element(list, i),
                                 {N("id", -(i + 1)), S("speed", "s" + str(i)), S("xpos", "x" + str(i)),
                                  S("distance", "d" + str(i)), S("direction", "dir" + str(i))});
    }
}

/* ---- plate-attribute rules ---- */

TEST(LprAttrEvent, RulesTriggersAndSchedules)
{
    // Bytes above 127 show a signed slip; every field of every rule differs.
    lpr_attr_event_entry rules[4];
    for (int r = 0; r < 4; ++r)
        rules[r] = lpr_attr_event_entry{static_cast<uint8_t>(200 + r), static_cast<uint8_t>(210 + r),
                                        static_cast<uint8_t>(220 + r), -(r + 1), 30 + r, 40 + r, 50 + r};
    lpr_attr_schedule schedule{};
    for (int r = 0; r < 4; ++r)
        for (int d = 0; d < 7; ++d)
            snprintf(schedule.schedule[r][d], sizeof schedule.schedule[r][d], "rule%d day%d", r, d);

    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_attr_event_json(rules, &schedule, dst, n); }));
    test::expect_members(doc.root(), {A("enableList"), A("alarmTriggerList"), A("scheduleList")});

    const cJSON *enables = doc["enableList"];
    const cJSON *triggers = doc["alarmTriggerList"];
    const cJSON *schedules = doc["scheduleList"];
    ASSERT_EQ(cJSON_GetArraySize(enables), 4);
    ASSERT_EQ(cJSON_GetArraySize(triggers), 4);
    ASSERT_EQ(cJSON_GetArraySize(schedules), 4);
    for (int r = 0; r < 4; ++r) {
        SCOPED_TRACE("rule " + str(r));
        test::expect_members(test::element(enables, r), {N("index", r), N("enable", 200 + r)});
        test::expect_members(test::element(triggers, r),
                             {N("index", r), N("noPlate", 210 + r), N("plateColor", 30 + r), N("vehicleType", 40 + r),
                              N("vehicleColor", 50 + r), N("detectRegion", -(r + 1)), N("direction", 220 + r)});
        const cJSON *rule = test::element(schedules, r);
        test::expect_members(rule, {N("index", r), A("LprAttrList")});
        const cJSON *days = test::member(rule, "LprAttrList");
        ASSERT_EQ(cJSON_GetArraySize(days), 7);
        for (int d = 0; d < 7; ++d)
            test::expect_members(test::element(days, d),
                                 {N("scheduleIndex", d), S("schedule", "rule" + str(r) + " day" + str(d))});
    }
}

} // namespace
