// Plate-recognition settings, overlay layout, plate lists, rule schedules,
// upload status and wildcards.
#include "support.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

using test::A;
using test::N;
using test::S;

template <size_t M>
void put(char (&field)[M], const char *text)
{
    snprintf(field, M, "%s", text);
}

// A seven-day "scheduleList" whose day d holds prefix + d.
void expect_week(const cJSON *list, const std::string &prefix)
{
    ASSERT_TRUE(cJSON_IsArray(list));
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d) {
        SCOPED_TRACE("day " + std::to_string(d));
        test::expect_members(test::element(list, d),
                             {N("scheduleIndex", d), S("schedule", prefix + std::to_string(d))});
    }
}

template <size_t M>
void fill_week(char (&days)[7][M], const std::string &prefix)
{
    for (int d = 0; d < 7; ++d)
        snprintf(days[d], M, "%s%d", prefix.c_str(), d);
}

/* ---- recognition settings ---- */

// Every read field distinct, a few negative, so that a swapped or
// sign-slipped field shows.
lpr_settings_record distinct_settings(int32_t version)
{
    lpr_settings_record r{};
    r.reserved0 = 9001;
    r.lprEnable = 1;
    r.lprWidth = 1920;
    r.lprHeight = 1080;
    r.dayNightModeEnable = 3;
    r.reserved1[0] = 9002;
    r.reserved1[1] = 9003;
    r.effectivePresetsScene = 5;
    r.reserved2 = 9004;
    r.lprVersion = version;
    r.speedDetect = 6;
    put(r.cameraHeight, "4.5m");
    r.linePixel1 = 420;
    r.linePixel2 = 860;
    put(r.lineDistance1, "12.0");
    put(r.lineDistance2, "6.5");
    put(r.areaList, "EU,NA");
    put(r.noSupportSerialformatList, "ME");
    put(r.curArea, "EU");
    r.directionEnable = 7;
    r.regionEnable = 8;
    r.roiIdEnable = 9;
    r.plateColorEnable = 10;
    r.vehicleTypeEnable = 11;
    r.vehicleColorEnable = 12;
    r.processMode = 13;
    r.repeatCheckTimeVal = 14;
    r.repeatCheckTimeUnit = 15;
    r.reserved3 = 9005;
    r.confidence = 16;
    r.nightModeEnable = 17;
    r.nightModeEffectiveTime = 18;
    r.nightModeStartHour = 19;
    r.nightModeStartMinute = 20;
    r.nightModeStopHour = 21;
    r.nightModeStopMinute = 22;
    r.nightModeLevel = -23;
    r.reserved4 = 9006;
    r.dayToNight = 24;
    r.nightToDay = 25;
    r.reserved5 = 9007;
    r.country = -26;
    r.encryptionChip = 27;
    r.areaType = 28;
    r.whiteLedExternal = 29;
    r.irLedExternal = 30;
    fill_week(r.schedule, "sched-");
    r.optimalPushMechanism = 31;
    return r;
}

lpr_settings_ext_record distinct_ext()
{
    lpr_settings_ext_record e{};
    e.reserved0 = 8001;
    e.vehicleBrandEnable = 200;   // above 127: a signed byte would print negative
    e.vehicleEnhancement = 250;
    e.inputNo = 33;
    e.reserved3 = 8002;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            e.polygons[i].x[j] = 100 * i + j;
            e.polygons[i].y[j] = -(100 * i + 10 + j);
        }
        snprintf(e.polygons[i].name, sizeof e.polygons[i].name, "poly%d", i);
    }
    e.reserved4 = 8003;
    e.detectionMode = 4000000000u; // above INT32_MAX: must print unsigned
    return e;
}

std::string render_settings(const lpr_settings_record &r, const lpr_settings_ext_record &e)
{
    return test::rendered([&](char *dst, int32_t n) { return get_lpr_settings_json(&r, &e, dst, n); });
}

// The members before and after the polygon list, which are the same for
// every engine version.
std::vector<test::Expected> settings_members(int32_t version, bool polygons)
{
    std::vector<test::Expected> m = {
        N("lprVersion", version),
        N("lprEnable", 1),
        N("optimalPushMechanism", 31),
        S("areaList", "EU,NA"),
        S("noSupportSerialformatList", "ME"),
        S("curArea", "EU"),
        N("country", -26),
        N("nightModeEnable", 17),
        N("dayToNight", 24),
        N("nightToDay", 25),
        N("nightModeEffectiveTime", 18),
        N("nightModeStartHour", 19),
        N("nightModeStartMinute", 20),
        N("nightModeStopHour", 21),
        N("nightModeStopMinute", 22),
        N("nightModeLevel", -23),
        N("inputNo", 33),
        N("lprWidth", 1920),
        N("lprHeight", 1080),
        N("processMode", 13),
        N("repeatCheckTimeVal", 14),
        N("repeatCheckTimeUnit", 15),
        N("dayNightModeEnable", 3),
        N("speedDetect", 6),
        S("cameraHeight", "4.5m"),
        S("lineDistance1", "12.0"),
        S("lineDistance2", "6.5"),
        N("linePixel1", 420),
        N("linePixel2", 860),
        N("plateColorEnable", 10),
        N("vehicleTypeEnable", 11),
        N("vehicleColorEnable", 12),
        N("roiIdEnable", 9),
        N("directionEnable", 7),
        N("regionEnable", 8),
        N("vehicleBrandEnable", 200),
        N("effectivePresetsScene", 5),
    };
    if (polygons)
        m.push_back(A("normalPolygonList"));
    for (const test::Expected &e : {N("confidence", 16), N("encryptionChip", 27), N("areaType", 28),
                                    N("whiteLedExternal", 29), N("irLedExternal", 30),
                                    N("detectionMode", 4000000000.0), N("vehicleEnhancement", 250),
                                    A("scheduleList")})
        m.push_back(e);
    return m;
}

TEST(LprSettings, EveryKeyInOrderFromBothRecords)
{
    const lpr_settings_record r = distinct_settings(4);
    const lpr_settings_ext_record e = distinct_ext();
    test::Json doc(render_settings(r, e));
    test::expect_members(doc.root(), settings_members(4, true));
    expect_week(doc["scheduleList"], "sched-");
}

TEST(LprSettings, PolygonListOnlyForEngineFour)
{
    const struct {
        int32_t version;
        bool polygons;
    } cases[] = {{0, false}, {3, false}, {4, true}, {5, false}, {-4, false}, {260, false}};
    const lpr_settings_ext_record e = distinct_ext();
    for (const auto &c : cases) {
        SCOPED_TRACE("lprVersion " + std::to_string(c.version));
        test::Json doc(render_settings(distinct_settings(c.version), e));
        test::expect_members(doc.root(), settings_members(c.version, c.polygons));
    }
}

TEST(LprSettings, PolygonsCarryIndexNameAndCornerTexts)
{
    test::Json doc(render_settings(distinct_settings(4), distinct_ext()));
    const cJSON *list = doc["normalPolygonList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    const char *xs[4] = {"0:1:2:3:", "100:101:102:103:", "200:201:202:203:", "300:301:302:303:"};
    const char *ys[4] = {"-10:-11:-12:-13:", "-110:-111:-112:-113:", "-210:-211:-212:-213:",
                         "-310:-311:-312:-313:"};
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE("polygon " + std::to_string(i));
        test::expect_members(test::element(list, i), {N("polygonIndex", i), S("name", "poly" + std::to_string(i)),
                                                      S("polygonX", xs[i]), S("polygonY", ys[i])});
    }
}

TEST(LprSettings, PolygonTextKeepsTrailingColonAndWidestValues)
{
    const struct {
        int32_t corners[4];
        const char *text;
    } cases[] = {
        {{0, -5, 12, 7}, "0:-5:12:7:"},
        {{10, 20, 30, 40}, "10:20:30:40:"},
        {{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN},
         "-2147483648:-2147483648:-2147483648:-2147483648:"},
        {{INT32_MAX, 0, -1, 1}, "2147483647:0:-1:1:"},
    };
    for (const auto &c : cases) {
        lpr_settings_ext_record e = distinct_ext();
        memcpy(e.polygons[2].x, c.corners, sizeof c.corners);
        memcpy(e.polygons[2].y, c.corners, sizeof c.corners);
        test::Json doc(render_settings(distinct_settings(4), e));
        const cJSON *polygon = test::element(doc["normalPolygonList"], 2);
        EXPECT_STREQ(cJSON_GetStringValue(test::member(polygon, "polygonX")), c.text);
        EXPECT_STREQ(cJSON_GetStringValue(test::member(polygon, "polygonY")), c.text);
    }
}

/* ---- overlay and caption layout ---- */

// The report fields other than the line-break marker, in report order.
const char *const kSpacedFields[19] = {
    "time",       "licensePlate", "plateType",   "vehicleSpeed",    "direction",     "detectionRegion", "position",
    "deviceName", "deviceID",     "plateColor",  "vehicleType",     "vehicleColor",  "eventType",
    "redLightDuration", "countryRegion", "vehicleBrand", "gps", "imageSource", "plateConfidence",
};

lpr_advanced_record distinct_advanced()
{
    lpr_advanced_record r{};
    r.snapSeparator = -1;
    put(r.snapSort, "0,1,2");
    put(r.snapPosition, "bottom");
    put(r.snapDeviceId, "SNAP-ID");
    put(r.osdSort, "0,1,9,7");
    put(r.osdPositionName, "North gate");
    put(r.osdDeviceId, "OSD-ID");
    r.osdFontSize = 32;
    put(r.osdFontColor, "#FFFFFF");
    r.osdBkgEnable = 2;
    put(r.osdBkgColor, "#000000");
    r.osdPosition = 3;
    r.reserved0 = 777;
    // spaces[k] = 10 + k, so a shifted index shows; the marker's own slot
    // holds a value that must never appear.
    for (int k = 0; k < 20; ++k)
        snprintf(r.spaces[k], sizeof r.spaces[k], "%d", 10 + k);
    put(r.spaces[9], "999");
    r.snapshotResolution = 4;
    return r;
}

std::string render_advanced(const lpr_advanced_record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return get_lpr_advanced_json(&r, dst, n); });
}

TEST(LprAdvanced, EveryKeyInOrder)
{
    test::Json doc(render_advanced(distinct_advanced()));
    test::expect_members(doc.root(), {
                                         S("osdSort", "0,1,9,7"),
                                         N("osdFontSize", 32),
                                         S("osdFontColor", "#FFFFFF"),
                                         N("osdBkgEnable", 2),
                                         S("osdBkgColor", "#000000"),
                                         N("osdPosition", 3),
                                         A("osdSpaceList"),
                                         S("osdPositionName", "North gate"),
                                         S("osdDeviceId", "OSD-ID"),
                                         N("snapSeparator", -1),
                                         S("snapSort", "0,1,2"),
                                         S("snapPosition", "bottom"),
                                         S("snapDeviceId", "SNAP-ID"),
                                         N("snapshotResolution", 4),
                                     });
}

TEST(LprAdvanced, SpaceListSkipsTheLineBreakMarker)
{
    test::Json doc(render_advanced(distinct_advanced()));
    const cJSON *list = doc["osdSpaceList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 19);
    for (int e = 0; e < 19; ++e) {
        const int k = e < 9 ? e : e + 1; // the table slot behind element e
        SCOPED_TRACE(kSpacedFields[e]);
        test::expect_members(test::element(list, e), {S("fileName", kSpacedFields[e]), N("spaces", 10 + k)});
    }
}

TEST(LprAdvanced, SpacesTextsReadAsLeadingIntegers)
{
    const struct {
        const char *text;
        int32_t value;
    } cases[] = {
        {"  12abc", 12}, {"-7", -7},  {"+3", 3}, {"abc", 0},  {"", 0},
        {"\t5", 5},      {"0012", 12}, {"1 2", 1}, {"- 4", 0}, {"-0", 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string("text '") + c.text + "'");
        lpr_advanced_record r = distinct_advanced();
        put(r.spaces[0], c.text);   // "time", first in the list
        put(r.spaces[19], c.text);  // "plateConfidence", last
        test::Json doc(render_advanced(r));
        const cJSON *list = doc["osdSpaceList"];
        EXPECT_EQ(cJSON_GetNumberValue(test::member(test::element(list, 0), "spaces")), c.value);
        EXPECT_EQ(cJSON_GetNumberValue(test::member(test::element(list, 18), "spaces")), c.value);
    }
}

TEST(LprAdvanced, FullSpacesTextStopsAtItsOwnBytes)
{
    lpr_advanced_record r = distinct_advanced();
    memcpy(r.spaces[3], "1234567890", 10); // no NUL; the next text is "14"
    test::Json doc(render_advanced(r));
    const cJSON *speed = test::element(doc["osdSpaceList"], 3);
    EXPECT_STREQ(cJSON_GetStringValue(test::member(speed, "fileName")), "vehicleSpeed");
    EXPECT_EQ(cJSON_GetNumberValue(test::member(speed, "spaces")), 1234567890);
}

/* ---- plate lists ---- */

using ListSerializer = int32_t (*)(const lpr_list_settings_record *, const lpr_list_direction_record *, char *,
                                   int32_t);

const struct {
    const char *name;
    ListSerializer serialize;
} kLists[] = {
    {"black", get_lpr_black_settings_json},
    {"white", get_lpr_white_settings_json},
    {"visitor", get_lpr_visitor_settings_json},
};

TEST(LprLists, SwitchDirectionAndWeek)
{
    lpr_list_settings_record r{};
    r.enable = -2;
    fill_week(r.schedule, "list-");
    const lpr_list_direction_record dir{41, 42};
    for (const auto &list : kLists) {
        SCOPED_TRACE(list.name);
        test::Json doc(test::rendered([&](char *dst, int32_t n) { return list.serialize(&r, &dir, dst, n); }));
        test::expect_members(doc.root(), {N("enable", -2), N("detectionDirection", 42), A("scheduleList")});
        expect_week(doc["scheduleList"], "list-");
    }
}

TEST(LprLists, ThreeListsPrintTheSameBytes)
{
    lpr_list_settings_record r{};
    r.enable = 1;
    fill_week(r.schedule, "0800-1800 #");
    const lpr_list_direction_record dir{0, 2};
    const std::string black =
        test::rendered([&](char *dst, int32_t n) { return get_lpr_black_settings_json(&r, &dir, dst, n); });
    EXPECT_EQ(test::rendered([&](char *dst, int32_t n) { return get_lpr_white_settings_json(&r, &dir, dst, n); }),
              black);
    EXPECT_EQ(test::rendered([&](char *dst, int32_t n) { return get_lpr_visitor_settings_json(&r, &dir, dst, n); }),
              black);
}

/* ---- rule schedules, upload status, wildcards ---- */

TEST(LprListSchedule, TwentyEightKeysRuleMajor)
{
    lpr_list_sche_record r{};
    for (int rule = 0; rule < 4; ++rule)
        for (int d = 0; d < 7; ++d)
            snprintf(r.ruleTaskday[rule][d], sizeof r.ruleTaskday[rule][d], "task r%d d%d", rule, d);
    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_list_sche_json(&r, dst, n); }));
    std::vector<test::Expected> want;
    for (int rule = 0; rule < 4; ++rule)
        for (int d = 0; d < 7; ++d)
            want.push_back(S(("ruleTaskday_" + std::to_string(rule) + "_" + std::to_string(d)).c_str(),
                             "task r" + std::to_string(rule) + " d" + std::to_string(d)));
    test::expect_members(doc.root(), want);
    const std::vector<std::string> keys = test::keys(doc.root());
    ASSERT_EQ(keys.size(), 28u);
    EXPECT_EQ(keys.front(), "ruleTaskday_0_0");
    EXPECT_EQ(keys.back(), "ruleTaskday_3_6");
}

TEST(LprUploadStatus, OneSignedNumber)
{
    for (int32_t status : {0, 1, -1}) {
        const lpr_upload_status_record r{status};
        test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_upload_status_json(&r, dst, n); }));
        test::expect_members(doc.root(), {N("lprUploadStatus", status)});
    }
}

TEST(LprWildcards, AllThirtySlotsEnabledOrNot)
{
    lpr_wildcards_record r{};
    r.filter = -3;
    for (int i = 0; i < 30; ++i) {
        r.enable[i] = i % 3 == 0 ? 1 : 0;
        r.characterCount[i] = 100 + i;
        snprintf(r.format[i], sizeof r.format[i], "AA9%02d", i);
    }
    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_wildcards_json(&r, dst, n); }));
    test::expect_members(doc.root(), {N("filter", -3), A("filterList")});
    const cJSON *list = doc["filterList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 30);
    for (int i = 0; i < 30; ++i) {
        char format[8];
        snprintf(format, sizeof format, "AA9%02d", i);
        SCOPED_TRACE("slot " + std::to_string(i));
        test::expect_members(test::element(list, i), {N("index", i), N("enable", i % 3 == 0 ? 1 : 0),
                                                      N("characterCount", 100 + i), S("format", format)});
    }
}

} // namespace
