// The analytics rules. Those built on the region model: four regions with
// four preset polygons each, the size filter, the weekly schedule, and the
// keys each rule adds around them. Tamper, human detection and the
// installation mode. People counting lines, crossing lines (with their
// "x1;y1;x2;y2" texts and the cut) and face detection.
#include "support.h"

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

// A record whose every byte is 0xA5: a member the serializer reads without
// the test having set it shows up as -1515870811 or as a text of 0xA5 bytes.
template <typename T>
T poisoned()
{
    T r;
    memset(static_cast<void *>(&r), 0xA5, sizeof r);
    return r;
}

template <size_t N>
void put(char (&field)[N], const std::string &text)
{
    snprintf(field, N, "%s", text.c_str());
}

// Distinct texts for every polygon and day. Region 3 is left undrawn and
// day 6 has no schedule: both must still be emitted, as empty strings.
std::string polygon_x(int r) { return r == 3 ? "" : "x" + std::to_string(r) + ":10:20:"; }
std::string polygon_y(int r) { return r == 3 ? "" : "y" + std::to_string(r) + ":30:40:"; }
std::string preset_x(int r, int p) { return "px" + std::to_string(r) + "." + std::to_string(p); }
std::string preset_y(int r, int p) { return "py" + std::to_string(r) + "." + std::to_string(p); }
std::string day(int d) { return d == 6 ? "" : "day" + std::to_string(d) + " 08:00-18:00"; }

template <size_t N>
void fill_schedule(char (&days)[7][N])
{
    for (int d = 0; d < 7; ++d)
        put(days[d], day(d));
}

template <typename Rule>
void fill_region_model(Rule &in)
{
    for (int r = 0; r < 4; ++r) {
        put(in.polygonX[r], polygon_x(r));
        put(in.polygonY[r], polygon_y(r));
        for (int p = 0; p < 4; ++p) {
            put(in.presetPolygonX[r][p], preset_x(r, p));
            put(in.presetPolygonY[r][p], preset_y(r, p));
        }
    }
    fill_schedule(in.schedule);
    in.scene = -9;
}

template <typename Rule>
void fill_size_filter(Rule &in)
{
    in.minX = 201;
    in.minY = 202;
    in.minWidth = 203;
    in.minHeight = 204;
    in.maxX = 205;
    in.maxY = 206;
    in.maxWidth = 207;
    in.maxHeight = 208;
}

const std::vector<test::Expected> kSizeFilter = {
    N("minX", 201), N("minY", 202), N("minWidth", 203), N("minHeight", 204),
    N("maxX", 205), N("maxY", 206), N("maxWidth", 207), N("maxHeight", 208),
};

// Per-region values: the first array of a rule holds a disabled region (0)
// in slot 1, the others distinct numbers, one of them negative.
const int32_t kFirst[4] = {11, 0, 13, -14};
const int32_t kSecond[4] = {21, 22, 23, 24};
const int32_t kThird[4] = {31, 32, 33, 34};
const int32_t kFourth[4] = {41, 42, 43, 44};
const int32_t kFifth[4] = {51, 52, 53, 54};
const int32_t kSixth[4] = {61, 62, 63, 64};
const int32_t kSeventh[4] = {71, 72, 73, 74};
const int32_t *const kPerRegion[7] = {kFirst, kSecond, kThird, kFourth, kFifth, kSixth, kSeventh};

void fill_per_region(int32_t (&a)[4], int k)
{
    for (int r = 0; r < 4; ++r)
        a[r] = kPerRegion[k][r];
}

std::vector<test::Expected> concat(std::vector<test::Expected> a, const std::vector<test::Expected> &b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

void expect_schedule_list(const cJSON *list)
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d) {
        SCOPED_TRACE("day " + std::to_string(d));
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", day(d))});
    }
}

// "detectionInfoList": every region, with "regionIndex", then the rule's own
// keys (the k-th key carrying kPerRegion[k][r]), the polygon and the four
// preset polygons.
void expect_detection_info_list(const cJSON *list, const std::vector<const char *> &regionKeys)
{
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    for (int r = 0; r < 4; ++r) {
        SCOPED_TRACE("region " + std::to_string(r));
        const cJSON *region = test::element(list, r);
        std::vector<test::Expected> want = {N("regionIndex", r)};
        for (size_t k = 0; k < regionKeys.size(); ++k)
            want.push_back(N(regionKeys[k], kPerRegion[k][r]));
        want.push_back(S("polygonX", polygon_x(r)));
        want.push_back(S("polygonY", polygon_y(r)));
        want.push_back(A("presetPolygonList"));
        test::expect_members(region, want);

        const cJSON *presets = test::member(region, "presetPolygonList");
        ASSERT_EQ(cJSON_GetArraySize(presets), 4);
        for (int p = 0; p < 4; ++p)
            test::expect_members(test::element(presets, p), {N("presetPolygonIndex", p),
                                                             S("presetPolygonX", preset_x(r, p)),
                                                             S("presetPolygonY", preset_y(r, p))});
    }
}

struct RegionRuleCase {
    const char *name;
    std::function<std::string()> render;
    std::vector<test::Expected> rootBeforeRegions; // root keys before "detectionInfoList"
    std::vector<const char *> regionKeys;          // between "regionIndex" and "polygonX"
};

template <typename Rule, typename Serialize>
std::function<std::string()> renderer(std::function<void(Rule &)> fill, Serialize serialize)
{
    return [fill, serialize] {
        Rule in = poisoned<Rule>();
        fill_region_model(in);
        fill_size_filter(in);
        fill(in);
        return test::rendered([&](char *dst, int32_t n) { return serialize(&in, dst, n); });
    };
}

std::vector<RegionRuleCase> region_rule_cases()
{
    return {
        {"region entrance",
         renderer<vca_region_entrance_record>(
             [](vca_region_entrance_record &in) {
                 in.intrusionEnterSens = -5;
                 in.intrusionEnterTracking = 77;
                 fill_per_region(in.regionEnable, 0);
                 fill_per_region(in.detectionObject, 1);
             },
             get_vca_region_entrance_json),
         concat({N("intrusionEnterSens", -5), N("intrusionEnterTracking", 77), N("scene", -9)}, kSizeFilter),
         {"regionEnable", "detectionObject"}},
        {"region exit",
         renderer<vca_region_exit_record>(
             [](vca_region_exit_record &in) {
                 in.intrusionExitSens = -5;
                 in.intrusionExitTracking = 77;
                 fill_per_region(in.regionEnable, 0);
                 fill_per_region(in.detectionObject, 1);
             },
             get_vca_region_exit_json),
         concat({N("intrusionExitSens", -5), N("intrusionExitTracking", 77), N("scene", -9)}, kSizeFilter),
         {"regionEnable", "detectionObject"}},
        {"advanced motion",
         renderer<vca_advanced_motion_record>(
             [](vca_advanced_motion_record &in) {
                 in.advancedMotionSens = -5;
                 in.advancedMotionTracking = 77;
                 in.ignoreShortLived = 66;
                 fill_per_region(in.advancedMotionEnable, 0);
                 fill_per_region(in.advancedMotionDetectionObject, 1);
             },
             get_vca_advanced_motion_json),
         concat({N("advancedMotionSens", -5), N("advancedMotionTracking", 77), N("scene", -9),
                 N("ignoreShortLived", 66)},
                kSizeFilter),
         {"advancedMotionEnable", "advancedMotionDetectionObject"}},
        {"loitering",
         renderer<vca_loitering_record>(
             [](vca_loitering_record &in) {
                 // The word where the other rules keep a sensitivity is not
                 // read: it stays poisoned, and no sensitivity key appears.
                 in.loiteringTracking = 77;
                 fill_per_region(in.loiteringEnable, 0);
                 fill_per_region(in.loiteringDetectionObject, 1);
                 fill_per_region(in.minLoiteringTime, 2);
             },
             get_vca_loitering_json),
         concat({N("loiteringTracking", 77), N("scene", -9)}, kSizeFilter),
         {"loiteringEnable", "loiteringDetectionObject", "minLoiteringTime"}},
        {"object left or removed",
         renderer<vca_left_remove_record>(
             [](vca_left_remove_record &in) {
                 in.leftRemoveSens = -5;
                 in.leftRemoveTracking = 77;
                 in.minTime = 88;
                 fill_per_region(in.leftEnable, 0);
                 fill_per_region(in.removeEnable, 1);
             },
             get_vca_left_remove_json),
         concat({N("leftRemoveSens", -5), N("leftRemoveTracking", 77), N("scene", -9), N("minTime", 88)},
                kSizeFilter),
         {"leftEnable", "removeEnable"}},
        {"regional people",
         renderer<vca_region_people_record>(
             [](vca_region_people_record &in) {
                 in.regionPeopleCountingSens = -5;
                 fill_per_region(in.regionEnable, 0);
                 fill_per_region(in.maxStayEnable, 1);
                 fill_per_region(in.minStayEnable, 2);
                 fill_per_region(in.maxStayTimeEnable, 3);
                 fill_per_region(in.maxStay, 4);
                 fill_per_region(in.minStay, 5);
                 fill_per_region(in.maxStayTime, 6);
             },
             get_vca_region_people_json),
         concat({N("regionPeopleCountingSens", -5), N("scene", -9)}, kSizeFilter),
         {"regionEnable", "maxStayEnable", "minStayEnable", "maxStayTimeEnable", "maxStay", "minStay",
          "maxStayTime"}},
    };
}

TEST(VcaRegionRules, DocumentsFollowTheRegionModel)
{
    for (const RegionRuleCase &c : region_rule_cases()) {
        SCOPED_TRACE(c.name);
        test::Json doc(c.render());
        test::expect_members(doc.root(), concat(c.rootBeforeRegions, {A("detectionInfoList"), A("scheduleList")}));
        expect_detection_info_list(doc["detectionInfoList"], c.regionKeys);
        expect_schedule_list(doc["scheduleList"]);
    }
}

// Region exit is the entrance layout behind eleven more leading words; the
// web server fills both from the same rule table.
TEST(VcaRegionRules, ExitStandsElevenWordsBehindEntrance)
{
    const size_t shift = 11 * sizeof(int32_t);
    struct Place {
        const char *member;
        size_t entrance, exit;
    };
    const Place places[] = {
        {"regionEnable", offsetof(vca_region_entrance_record, regionEnable),
         offsetof(vca_region_exit_record, regionEnable)},
        {"detectionObject", offsetof(vca_region_entrance_record, detectionObject),
         offsetof(vca_region_exit_record, detectionObject)},
        {"minX", offsetof(vca_region_entrance_record, minX), offsetof(vca_region_exit_record, minX)},
        {"polygonX", offsetof(vca_region_entrance_record, polygonX), offsetof(vca_region_exit_record, polygonX)},
        {"scene", offsetof(vca_region_entrance_record, scene), offsetof(vca_region_exit_record, scene)},
        {"schedule", offsetof(vca_region_entrance_record, schedule), offsetof(vca_region_exit_record, schedule)},
    };
    EXPECT_EQ(offsetof(vca_region_entrance_record, regionEnable), 2 * sizeof(int32_t));
    for (const Place &p : places)
        EXPECT_EQ(p.exit, p.entrance + shift) << p.member;
    EXPECT_EQ(sizeof(vca_region_exit_record), sizeof(vca_region_entrance_record) + shift);
}

TEST(VcaRules, InstallationKeepsItsCapital)
{
    vca_install_mode_record in{};
    in.Installation = -2;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_vca_install_mode_json(&in, d, n); }));
    test::expect_members(doc.root(), {N("Installation", -2)});
}

TEST(VcaRules, Tamper)
{
    vca_tamper_record in = poisoned<vca_tamper_record>();
    in.tamperEnable = 3;
    in.tamperSens = -4;
    fill_schedule(in.schedule);
    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_vca_tamper_json(&in, dst, n); }));
    test::expect_members(doc.root(), {N("tamperEnable", 3), N("tamperSens", -4), A("scheduleList")});
    expect_schedule_list(doc["scheduleList"]);
}

TEST(VcaRules, HumanDetectionHasSevenFlatScheduleKeys)
{
    vca_human_detection_record in = poisoned<vca_human_detection_record>();
    in.humanEnable = 1;
    in.humanShowTrackEnable = 2;
    in.humanSens = -3;
    in.humanTracking = 4;
    fill_schedule(in.humanSchedule);
    test::Json doc(test::rendered([&](char *dst, int32_t n) { return get_vca_human_detection_json(&in, dst, n); }));
    test::expect_members(doc.root(), {
                                         N("humanEnable", 1),
                                         N("humanShowTrackEnable", 2),
                                         N("humanSens", -3),
                                         N("humanTracking", 4),
                                         S("humanSchedule_0", day(0)),
                                         S("humanSchedule_1", day(1)),
                                         S("humanSchedule_2", day(2)),
                                         S("humanSchedule_3", day(3)),
                                         S("humanSchedule_4", day(4)),
                                         S("humanSchedule_5", day(5)),
                                         S("humanSchedule_6", ""),
                                     });
}

// ---- people counting ----

// Line l of the array with this base holds base + l (negative bases count
// down), so every per-line value is distinct.
int32_t line_value(int32_t base, int l) { return base < 0 ? base - l : base + l; }

TEST(VcaCounting, TotalsLinesAndPresetLines)
{
    vca_counting_record in = poisoned<vca_counting_record>();
    in.showOsdEnable = 1;
    in.osdType = 2;
    in.osdFontSize = 3;
    in.osdTextPosition = 4;
    put(in.osdFontColor, "#00FF00");
    in.alarmTriggerEnable = 5;
    in.peopleCountingSens = -6;
    in.scene = 7;
    in.countTriggerType = 8;
    in.allLineInAlarmEnable = 9;
    in.allLineOutAlarmEnable = 10;
    in.allLineCapacityAlarmEnable = 11;
    in.allLineSumAlarmEnable = 12;
    in.allLineInAlarmThresholds = 13;
    in.allLineOutAlarmThresholds = 14;
    in.allLineCapacityAlarmThresholds = 15;
    in.allLineSumAlarmThresholds = 16;
    fill_size_filter(in);
    fill_schedule(in.schedule);

    // The per-line arrays in record order, each with its own base.
    struct Fill {
        int32_t *values;
        int32_t base;
    };
    const Fill fills[] = {
        {in.lineEnable, 100},           {in.lineInAlarmEnable, 200},           {in.lineOutAlarmEnable, 300},
        {in.lineCapacityAlarmEnable, 400}, {in.lineSumAlarmEnable, 500},       {in.lineInAlarmThresholds, 600},
        {in.lineOutAlarmThresholds, 700}, {in.lineCapacityAlarmThresholds, 800}, {in.lineSumAlarmThresholds, 900},
        {in.lineAutoResetEnable, 1000}, {in.lineAutoResetWeekday, 1100},       {in.lineAutoResetHour, 1200},
        {in.lineAutoResetMin, 1300},    {in.lineAutoResetSec, 1400},           {in.lineDirection, -1500},
        {in.lineShowCountingEnable, 1600},
    };
    for (const Fill &f : fills)
        for (int l = 0; l < 4; ++l)
            f.values[l] = line_value(f.base, l);
    for (int l = 0; l < 4; ++l) {
        put(in.countLine[l], "line" + std::to_string(l));
        for (int p = 0; p < 4; ++p) {
            in.presetDirection[l][p] = 10 * l + p;
            put(in.presetCountLine[l][p], "preset" + std::to_string(l) + "." + std::to_string(p));
        }
    }

    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_vca_counting_json(&in, d, n); }));
    test::expect_members(doc.root(), concat(concat({N("peopleCountingSens", -6), N("scene", 7),
                                                    N("showOsdEnable", 1), N("osdType", 2), N("osdFontSize", 3),
                                                    N("osdTextPosition", 4), S("osdFontColor", "#00FF00"),
                                                    N("alarmTriggerEnable", 5), N("countTriggerType", 8),
                                                    N("allLineInAlarmEnable", 9), N("allLineOutAlarmEnanble", 10),
                                                    N("allLineCapacityAlarmEnable", 11),
                                                    N("allLineSumAlarmEnable", 12),
                                                    N("allLineInAlarmThresholds", 13),
                                                    N("allLineOutAlarmThresholds", 14),
                                                    N("allLineCapacityAlarmThresholds", 15),
                                                    N("allLineSumAlarmThresholds", 16)},
                                                   kSizeFilter),
                                            {A("crossedLine"), A("scheduleList")}));

    // Emission order of a line: "lineShowCountingEnable" after the
    // thresholds, though it is stored after the directions.
    struct Key {
        const char *key;
        int32_t base;
    };
    const Key perLine[] = {
        {"lineEnable", 100},           {"lineInAlarmEnable", 200},           {"lineOutAlarmEnable", 300},
        {"lineCapacityAlarmEnable", 400}, {"lineSumAlarmEnable", 500},       {"lineInAlarmThresholds", 600},
        {"lineOutAlarmThresholds", 700}, {"lineCapacityAlarmThresholds", 800}, {"lineSumAlarmThresholds", 900},
        {"lineShowCountingEnable", 1600}, {"lineAutoResetEnable", 1000},     {"lineAutoResetWeekday", 1100},
        {"lineAutoResetHour", 1200},   {"lineAutoResetMin", 1300},           {"lineAutoResetSec", 1400},
        {"lineDirection", -1500},
    };
    const cJSON *lines = doc["crossedLine"];
    ASSERT_EQ(cJSON_GetArraySize(lines), 4);
    for (int l = 0; l < 4; ++l) {
        SCOPED_TRACE("line " + std::to_string(l));
        std::vector<test::Expected> want = {N("lineIndex", l)};
        for (const Key &k : perLine)
            want.push_back(N(k.key, line_value(k.base, l)));
        want.push_back(S("countLine", "line" + std::to_string(l)));
        want.push_back(A("presetLineList"));
        test::expect_members(test::element(lines, l), want);

        const cJSON *presets = test::member(test::element(lines, l), "presetLineList");
        ASSERT_EQ(cJSON_GetArraySize(presets), 4);
        for (int p = 0; p < 4; ++p)
            test::expect_members(test::element(presets, p),
                                 {N("presetLineIndex", p), N("presetDirection", 10 * l + p),
                                  S("presetCountLine", "preset" + std::to_string(l) + "." + std::to_string(p))});
    }
    expect_schedule_list(doc["scheduleList"]);
}

// ---- line crossing ----

struct LineCase {
    int32_t points[4];
    const char *text;
};

// The end points as "x1;y1;x2;y2" in a 32-byte text.
const LineCase kLineTexts[] = {
    {{100, 200, -1, 0}, "100;200;-1;0"},
    {{0, 0, 0, 0}, "0;0;0;0"},
    {{1920, 1080, 7, 65536}, "1920;1080;7;65536"},
    // 47 characters in full, cut to the first 31.
    {{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN}, "-2147483648;-2147483648;-214748"},
};

TEST(VcaLineCrossing, LinesAndPresetLinesAsText)
{
    vca_line_crossing_record in = poisoned<vca_line_crossing_record>();
    in.lineCrossingSens = -1;
    in.lineCrossingTracking = 2;
    in.scene = 3;
    fill_size_filter(in);
    fill_schedule(in.schedule);
    for (int l = 0; l < 4; ++l) {
        in.lineCrossingEnable[l] = 10 + l;
        in.lineCrossingDetectionObject[l] = 20 + l;
        in.lines[l].direction = -(30 + l);
        for (int i = 0; i < 4; ++i)
            in.lines[l].crossedLine[i] = kLineTexts[l].points[i];
        for (int p = 0; p < 4; ++p) {
            in.lines[l].presetDirection[p] = 40 + 4 * l + p;
            // Preset p of line l draws the points of case (l + p + 1) % 4.
            for (int i = 0; i < 4; ++i)
                in.lines[l].presetCrossedLine[p][i] = kLineTexts[(l + p + 1) % 4].points[i];
        }
    }

    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_vca_all_linecrossing_json(&in, d, n); }));
    test::expect_members(doc.root(),
                         concat(concat({N("lineCrossingSens", -1), N("lineCrossingTracking", 2), N("scene", 3)},
                                       kSizeFilter),
                                {A("detectionInfoList"), A("scheduleList")}));
    const cJSON *lines = doc["detectionInfoList"];
    ASSERT_EQ(cJSON_GetArraySize(lines), 4);
    for (int l = 0; l < 4; ++l) {
        SCOPED_TRACE("line " + std::to_string(l));
        test::expect_members(test::element(lines, l),
                             {N("lineIndex", l), N("lineCrossingEnable", 10 + l),
                              N("lineCrossingDetectionObject", 20 + l), N("direction", -(30 + l)),
                              S("crossedLine", kLineTexts[l].text), A("presetLineList")});
        const cJSON *presets = test::member(test::element(lines, l), "presetLineList");
        ASSERT_EQ(cJSON_GetArraySize(presets), 4);
        for (int p = 0; p < 4; ++p)
            test::expect_members(test::element(presets, p),
                                 {N("presetLineIndex", p), N("presetDirection", 40 + 4 * l + p),
                                  S("presetCrossedLine", kLineTexts[(l + p + 1) % 4].text)});
    }
    expect_schedule_list(doc["scheduleList"]);
}

// ---- face detection ----

TEST(VcaFaceDetection, FourShieldRegionsAndThreeCaptureSettings)
{
    vca_face_detection_record in = poisoned<vca_face_detection_record>();
    in.mosaicModeStatus = 1;
    in.faceEnable = 2;
    in.faceMinPixel = 3;
    in.captureMode = 4;
    in.snapshotInterval = 5;
    in.poseRoll = -6;
    in.posePitch = 7;
    in.poseYaw = 8;
    in.blurlimit = 9;
    in.snapshotType = 10;
    in.snapshotBackground = 11;
    for (int k = 0; k < 3; ++k) {
        in.captureQuality[k] = 20 + k;
        in.snapshotMaxPush[k] = 30 + k;
    }
    in.postEnable = 12;
    in.postType = 13;
    for (int s = 0; s < 4; ++s) {
        in.shieldRegionEnable[s] = 40 + s;
        put(in.shieldPolygonX[s], "sx" + std::to_string(s));
        put(in.shieldPolygonY[s], "sy" + std::to_string(s));
    }
    in.attributeEnable = 14;
    in.attributeType = 15;
    in.mosaicEnable = 16;
    put(in.polygonX, "10:20:30:40:");
    put(in.polygonY, "50:60:70:80:");
    fill_schedule(in.schedule);

    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_vca_face_detection_json(&in, d, n); }));
    test::expect_members(doc.root(), {
                                         N("mosaicModeStatus", 1),
                                         N("faceEnable", 2),
                                         N("faceMinPixel", 3),
                                         N("captureMode", 4),
                                         N("snapshotInterval", 5),
                                         N("poseRoll", -6),
                                         N("posePitch", 7),
                                         N("poseYaw", 8),
                                         N("blurlimit", 9),
                                         N("snapshotType", 10),
                                         N("snapshotBackground", 11),
                                         N("postEnable", 12),
                                         N("postType", 13),
                                         N("attributeEnable", 14),
                                         N("attributeType", 15),
                                         N("mosaicEnable", 16),
                                         S("polygonX", "10:20:30:40:"),
                                         S("polygonY", "50:60:70:80:"),
                                         A("shieldRegionList"),
                                         A("captureSettingsList"),
                                         A("scheduleList"),
                                     });
    const cJSON *shields = doc["shieldRegionList"];
    ASSERT_EQ(cJSON_GetArraySize(shields), 4);
    for (int s = 0; s < 4; ++s)
        test::expect_members(test::element(shields, s),
                             {N("shieldIndex", s), N("shieldRegionEnable", 40 + s),
                              S("polygonX", "sx" + std::to_string(s)), S("polygonY", "sy" + std::to_string(s))});
    const cJSON *captures = doc["captureSettingsList"];
    ASSERT_EQ(cJSON_GetArraySize(captures), 3);
    for (int k = 0; k < 3; ++k)
        test::expect_members(test::element(captures, k),
                             {N("captureIndex", k), N("captureQuality", 20 + k), N("snapshotMaxPush", 30 + k)});
    expect_schedule_list(doc["scheduleList"]);
}

} // namespace
