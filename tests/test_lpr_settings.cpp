// Plate-recognition settings, overlay layout, plate lists, rule schedules,
// upload status and wildcards.
#include "catalog.h"
#include "support.h"

#include <climits>
#include <cstring>
#include <string>

namespace {

using test::A;
using test::N;
using test::S;

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

/* ---- recognition settings ---- */

// Every read field distinct, a few negative; the unread words hold values
// that must never show.
lpr_settings_record distinct_settings(int32_t version)
{
    lpr_settings_record r{};
    r.reserved0 = 9001; r.reserved1[0] = 9002; r.reserved1[1] = 9003; r.reserved2 = 9004;
    r.reserved3 = 9005; r.reserved4 = 9006; r.reserved5 = 9007;
    r.lprEnable = 1; r.lprWidth = 1920; r.lprHeight = 1080; r.dayNightModeEnable = 3;
    r.effectivePresetsScene = 5; r.lprVersion = version; r.speedDetect = 6;
    put(r.cameraHeight, "4.5m"); r.linePixel1 = 420; r.linePixel2 = 860;
    put(r.lineDistance1, "12.0"); put(r.lineDistance2, "6.5");
    put(r.areaList, "EU,NA"); put(r.noSupportSerialformatList, "ME"); put(r.curArea, "EU");
    r.directionEnable = 7; r.regionEnable = 8; r.roiIdEnable = 9; r.plateColorEnable = 10;
    r.vehicleTypeEnable = 11; r.vehicleColorEnable = 12; r.processMode = 13;
    r.repeatCheckTimeVal = 14; r.repeatCheckTimeUnit = 15; r.confidence = 16;
    r.nightModeEnable = 17; r.nightModeEffectiveTime = 18; r.nightModeStartHour = 19;
    r.nightModeStartMinute = 20; r.nightModeStopHour = 21; r.nightModeStopMinute = 22;
    r.nightModeLevel = -23; r.dayToNight = 24; r.nightToDay = 25; r.country = -26;
    r.encryptionChip = 27; r.areaType = 28; r.whiteLedExternal = 29; r.irLedExternal = 30;
    fill_week(r.schedule, "sched-");
    r.optimalPushMechanism = 31;
    return r;
}

lpr_settings_ext_record distinct_ext()
{
    lpr_settings_ext_record e{};
    e.reserved0 = 8001; e.reserved3 = 8002; e.reserved4 = 8003;
    e.vehicleBrandEnable = 200;    // above 127: a signed byte would print negative
    e.vehicleEnhancement = 250;
    e.inputNo = 33;
    e.detectionMode = 4000000000u; // above INT32_MAX: must print unsigned
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            e.polygons[i].x[j] = 100 * i + j;
            e.polygons[i].y[j] = -(100 * i + 10 + j);
        }
        put(e.polygons[i].name, ("poly" + str(i)).c_str());
    }
    return e;
}

std::string render_settings(const lpr_settings_record &r, const lpr_settings_ext_record &e)
{
    return test::rendered([&](char *dst, int32_t n) { return get_lpr_settings_json(&r, &e, dst, n); });
}

std::vector<test::Expected> settings_members(int32_t version, bool polygons)
{
    std::vector<test::Expected> m = {
        N("lprVersion", version), N("lprEnable", 1), N("optimalPushMechanism", 31), S("areaList", "EU,NA"),
        S("noSupportSerialformatList", "ME"), S("curArea", "EU"), N("country", -26), N("nightModeEnable", 17),
        N("dayToNight", 24), N("nightToDay", 25), N("nightModeEffectiveTime", 18), N("nightModeStartHour", 19),
        N("nightModeStartMinute", 20), N("nightModeStopHour", 21), N("nightModeStopMinute", 22),
        N("nightModeLevel", -23), N("inputNo", 33), N("lprWidth", 1920), N("lprHeight", 1080),
        N("processMode", 13), N("repeatCheckTimeVal", 14), N("repeatCheckTimeUnit", 15),
        N("dayNightModeEnable", 3), N("speedDetect", 6), S("cameraHeight", "4.5m"), S("lineDistance1", "12.0"),
        S("lineDistance2", "6.5"), N("linePixel1", 420), N("linePixel2", 860), N("plateColorEnable", 10),
        N("vehicleTypeEnable", 11), N("vehicleColorEnable", 12), N("roiIdEnable", 9), N("directionEnable", 7),
        N("regionEnable", 8), N("vehicleBrandEnable", 200), N("effectivePresetsScene", 5),
    };
    if (polygons)
        m.push_back(A("normalPolygonList"));
    for (const test::Expected &e :
         {N("confidence", 16), N("encryptionChip", 27), N("areaType", 28), N("whiteLedExternal", 29),
          N("irLedExternal", 30), N("detectionMode", 4000000000.0), N("vehicleEnhancement", 250), A("scheduleList")})
        m.push_back(e);
    return m;
}

TEST(LprSettings, EveryKeyInOrderFromBothRecords)
{
    test::Json doc(render_settings(distinct_settings(4), distinct_ext()));
    test::expect_members(doc.root(), settings_members(4, true));
    expect_week(doc["scheduleList"], "sched-");

    const cJSON *list = doc["normalPolygonList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    const char *xs[4] = {"0:1:2:3:", "100:101:102:103:", "200:201:202:203:", "300:301:302:303:"};
    const char *ys[4] = {"-10:-11:-12:-13:", "-110:-111:-112:-113:", "-210:-211:-212:-213:", "-310:-311:-312:-313:"};
    for (int i = 0; i < 4; ++i)
        test::expect_members(test::element(list, i), {N("polygonIndex", i), S("name", "poly" + str(i)),
                                                      S("polygonX", xs[i]), S("polygonY", ys[i])});
}

TEST(LprSettings, PolygonListOnlyForEngineFour)
{
    const struct {
        int32_t version;
        bool polygons;
    } cases[] = {{0, false}, {3, false}, {4, true}, {5, false}, {-4, false}, {260, false}};
    for (const auto &c : cases) {
        SCOPED_TRACE("lprVersion " + str(c.version));
        test::Json doc(render_settings(distinct_settings(c.version), distinct_ext()));
        test::expect_members(doc.root(), settings_members(c.version, c.polygons));
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
        {{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN}, "-2147483648:-2147483648:-2147483648:-2147483648:"},
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

lpr_advanced_record distinct_advanced()
{
    lpr_advanced_record r{};
    r.snapSeparator = -1; put(r.snapSort, "0,1,2"); put(r.snapPosition, "bottom"); put(r.snapDeviceId, "SNAP-ID");
    put(r.osdSort, "0,1,9,7"); put(r.osdPositionName, "North gate"); put(r.osdDeviceId, "OSD-ID");
    r.osdFontSize = 32; put(r.osdFontColor, "#FFFFFF"); r.osdBkgEnable = 2; put(r.osdBkgColor, "#000000");
    r.osdPosition = 3; r.reserved0 = 777; r.snapshotResolution = 4;
    // spaces[k] = 10 + k, so a shifted index shows; the line-break marker's
    // slot holds a value that must never appear.
    for (int k = 0; k < 20; ++k)
        put(r.spaces[k], str(10 + k).c_str());
    put(r.spaces[9], "999");
    return r;
}

std::string render_advanced(const lpr_advanced_record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return get_lpr_advanced_json(&r, dst, n); });
}

TEST(LprAdvanced, EveryKeyInOrder)
{
    test::Json doc(render_advanced(distinct_advanced()));
    test::expect_members(doc.root(), {S("osdSort", "0,1,9,7"), N("osdFontSize", 32), S("osdFontColor", "#FFFFFF"),
                                      N("osdBkgEnable", 2), S("osdBkgColor", "#000000"), N("osdPosition", 3),
                                      A("osdSpaceList"), S("osdPositionName", "North gate"),
                                      S("osdDeviceId", "OSD-ID"), N("snapSeparator", -1), S("snapSort", "0,1,2"),
                                      S("snapPosition", "bottom"), S("snapDeviceId", "SNAP-ID"),
                                      N("snapshotResolution", 4)});
}

TEST(LprAdvanced, SpaceListSkipsTheLineBreakMarker)
{
    // The report fields other than the line-break marker, with the table
    // slot each one reads.
    const struct {
        const char *name;
        int slot;
    } fields[19] = {
        {"time", 0},           {"licensePlate", 1},  {"plateType", 2},    {"vehicleSpeed", 3},
        {"direction", 4},      {"detectionRegion", 5}, {"position", 6},   {"deviceName", 7},
        {"deviceID", 8},       {"plateColor", 10},   {"vehicleType", 11}, {"vehicleColor", 12},
        {"eventType", 13},     {"redLightDuration", 14}, {"countryRegion", 15}, {"vehicleBrand", 16},
        {"gps", 17},           {"imageSource", 18},  {"plateConfidence", 19},
    };
    test::Json doc(render_advanced(distinct_advanced()));
    const cJSON *list = doc["osdSpaceList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 19);
    for (int e = 0; e < 19; ++e)
        test::expect_members(test::element(list, e), {S("fileName", fields[e].name), N("spaces", 10 + fields[e].slot)});
}

TEST(LprAdvanced, SpacesTextsReadAsLeadingIntegers)
{
    const struct {
        const char *text;
        int32_t value;
    } cases[] = {
        {"  12abc", 12}, {"-7", -7}, {"+3", 3}, {"abc", 0}, {"", 0},
        {"\t5", 5}, {"0012", 12}, {"1 2", 1}, {"- 4", 0}, {"-0", 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string("text '") + c.text + "'");
        lpr_advanced_record r = distinct_advanced();
        put(r.spaces[0], c.text);  // "time", first in the list
        put(r.spaces[19], c.text); // "plateConfidence", last
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
    test::expect_members(test::element(doc["osdSpaceList"], 3), {S("fileName", "vehicleSpeed"), N("spaces", 1234567890)});
}

/* ---- plate lists ---- */

TEST(LprLists, ThreeListsPrintSwitchDirectionAndWeekAlike)
{
    using List = int32_t (*)(const lpr_list_settings_record *, const lpr_list_direction_record *, char *, int32_t);
    const List lists[] = {get_lpr_black_settings_json, get_lpr_white_settings_json, get_lpr_visitor_settings_json};
    lpr_list_settings_record r{};
    r.enable = -2;
    fill_week(r.schedule, "list-");
    const lpr_list_direction_record dir{41, 42};
    std::string first;
    for (List list : lists) {
        const std::string text = test::rendered([&](char *dst, int32_t n) { return list(&r, &dir, dst, n); });
        test::Json doc(text);
        test::expect_members(doc.root(), {N("enable", -2), N("detectionDirection", 42), A("scheduleList")});
        expect_week(doc["scheduleList"], "list-");
        if (first.empty())
            first = text;
        EXPECT_EQ(text, first);
    }
}

/* ---- rule schedules, upload status, wildcards ---- */

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
    EXPECT_EQ(test::keys(doc.root()).back(), "ruleTaskday_3_6");
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
        put(r.format[i], ("AA9-" + str(i)).c_str());
    }
    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_lpr_wildcards_json(&r, dst, n); }));
    test::expect_members(doc.root(), {N("filter", -3), A("filterList")});
    const cJSON *list = doc["filterList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 30);
    for (int i = 0; i < 30; ++i)
        test::expect_members(test::element(list, i), {N("index", i), N("enable", i % 3 == 0 ? 1 : 0),
                                                      N("characterCount", 100 + i), S("format", "AA9-" + str(i))});
}

} // namespace
