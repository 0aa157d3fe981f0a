// People counting lines, crossing lines and face detection: the per-line and
// per-preset lists, the line texts and their cut, and the fixed list sizes.
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

template <size_t N>
void put(char (&field)[N], const std::string &text)
{
    snprintf(field, N, "%s", text.c_str());
}

std::string day(int d) { return "day" + std::to_string(d); }

template <size_t N>
void fill_schedule(char (&days)[7][N])
{
    for (int d = 0; d < 7; ++d)
        put(days[d], day(d));
}

void expect_schedule_list(const cJSON *list)
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", day(d))});
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

std::vector<test::Expected> concat(std::vector<test::Expected> a, const std::vector<test::Expected> &b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
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
