// The analytics rules built on the region model: four regions with four
// preset polygons each, the size filter, the weekly schedule, and the keys
// each rule adds around them. Also tamper, human detection and the
// installation mode.
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
    for (int d = 0; d < 7; ++d)
        put(in.schedule[d], day(d));
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

TEST(VcaRegionRules, TextWidths)
{
    vca_region_entrance_record e;
    EXPECT_EQ(sizeof e.polygonX, 4u * 64u);
    EXPECT_EQ(sizeof e.presetPolygonY, 4u * 4u * 64u);
    EXPECT_EQ(sizeof e.schedule, 7u * 256u);
    vca_human_detection_record h;
    EXPECT_EQ(sizeof h.humanSchedule, 7u * 256u);
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
    for (int d = 0; d < 7; ++d)
        put(in.schedule[d], day(d));
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
    for (int d = 0; d < 7; ++d)
        put(in.humanSchedule[d], day(d));
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

} // namespace
