// The PTZ documents: live status, presets and run states, and the
// configuration pages down to the control state and auto tracking.
#include "support.h"

#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

using test::A;
using test::N;
using test::S;

namespace {

template <typename Record, typename Fn>
std::string render(Fn fn, const Record &r)
{
    return test::rendered([&](char *dst, int32_t n) { return fn(&r, dst, n); });
}

// "scheduleList": day d from 0 with its own text.
void expect_week(const cJSON *list, const char (&days)[7][256])
{
    ASSERT_EQ(cJSON_GetArraySize(list), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(list, d), {N("scheduleIndex", d), S("schedule", days[d])});
}

void fill_week(char (&days)[7][256])
{
    for (int d = 0; d < 7; ++d)
        snprintf(days[d], sizeof days[d], "day%d %02d:00-%02d:00", d, d, d + 10);
}

// Pages of plain members. Unsigned fields hold values above INT32_MAX,
// unread members values that must appear nowhere.
TEST(PtzFlatDocuments, KeysTypesAndOrder)
{
    const ptz_limit_settings limits{-5, 1, 2, 4294967295u, 3, 4000000000u};
    const struct {
        const char *what;
        std::string text;
        std::vector<test::Expected> want;
    } cases[] = {
        {"panel", render(get_ptz_panel_status_json, ptz_panel_status_record{11, 12, 13, 14, 15, 16, 17, 18}),
         {N("irisMode", 11), N("onePatrol", 12), N("autoHome", 13), N("manualDefog", 14), N("manualWiper", 15),
          N("lightMode", 16), N("3DPosition", 17), N("manualTrack", 18)}},
        // The temperature text keeps six decimals and the degree sign as an HTML entity.
        {"status", render(get_ptz_status_json, ptz_status_record{23.5, 200, 255}),
         {S("temperature", "23.500000&#176;C"), N("heater", 200), N("fan", 255)}},
        {"cold", render(get_ptz_status_json, ptz_status_record{-5, 1, 0}),
         {S("temperature", "-5.000000&#176;C"), N("heater", 1), N("fan", 0)}},
        {"auto home", render(get_ptz_auto_home_json, ptz_auto_home_record{-9, 1, 4294967295u, 7, -8, 180}),
         {N("enable", 1), N("latencyTime", 180), N("mode", 4294967295.0), N("modeNumber", 7)}},
        {"rs485", render(get_ptz_rs485_json, ptz_rs485_record{-1, 9600, 8, 2, 3, 4}),
         {N("baudrate", 9600), N("dataBit", 8), N("stopBit", 2), N("checkBit", 3), N("flowCtrl", 4)}},
        {"wiper", render(get_ptz_wiper_json, ptz_wiper_record{1, -2}), {N("autoWiper", 1), N("status", -2)}},
        {"basic",
         render(get_ptz_basic_json, ptz_basic_record{1, 2, 3, -100, 4294967295u, 4000000000u, 201, 255, 3000000000u,
                                                     9, -101, 10, 11, -12, 200, 13, -102, 14, 15}),
         {N("zoomStatus", 1), N("tiltStatus", 2), N("presetStatus", 3), N("patrolStatus", 11),
          N("patternStatus", -12), N("autoscanStatus", 10), N("presetFreezing", 255), N("presetSpeed", 3000000000.0),
          N("manualSpeed", 9), N("patrolRecovering", 200), N("patrolRecoveryTime", 13),
          N("focusMode", 4294967295.0), N("focusDistance", 4000000000.0), N("resumeTime", 14),
          N("autoScanEnbale", 15)}},
        {"limit", render(get_ptz_limit_json, ptz_limit_record{&limits, 5, -6}),
         {N("mode", 4294967295.0), N("manualLimitEnable", 1), N("manualLimitStatus", 3), N("manualLimited", 5),
          N("scanLimitEnable", 2), N("scanLimitStatus", 4000000000.0), N("scanLimited", -6)}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        test::Json doc(c.text);
        test::expect_members(doc.root(), c.want);
    }
}

TEST(PtzPresets, UsedSlotsInSlotOrderWithTheirTexts)
{
    auto r = std::make_unique<ptz_presets_record>();
    test::Json empty(render(get_ptz_presets_json, *r));
    test::expect_members(empty.root(), {A("presetInfoList")});
    EXPECT_EQ(cJSON_GetArraySize(empty["presetInfoList"]), 0);

    const struct {
        int slot;
        ptz_preset_entry entry;
        std::string text;
    } used[] = {
        {0, {12.5, -3.25, 1, 77, 1, 88, "Gate"}, "1:12.500000:-3.250000:Gate"},
        // 71 characters before the name leave room for 56 of its 67.
        {3, {-1e20, 1e20, INT32_MIN, 0, 4, 0, "nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn"},
         "-2147483648:-100000000000000000000.000000:100000000000000000000.000000:" + std::string(56, 'n')},
        {5, {-0.5, 7, 40, 0, 6, 0, ""}, "40:-0.500000:7.000000:" + std::string(68, 'x')},
        {299, {359.125, 90, -7, 0, -2, 0, "Last slot"}, "-7:359.125000:90.000000:Last slot"},
    };
    for (const auto &u : used)
        r->entries[u.slot] = u.entry;
    // Slot 5's name fills its array without a NUL, and so do the bytes after it.
    char *name = reinterpret_cast<char *>(&r->entries[5]) + offsetof(ptz_preset_entry, name);
    memset(name, 'x', sizeof(ptz_preset_entry) - offsetof(ptz_preset_entry, name));
    test::Json doc(render(get_ptz_presets_json, *r));
    const cJSON *list = doc["presetInfoList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    for (int i = 0; i < 4; ++i)
        test::expect_members(test::element(list, i), {N("id", used[i].entry.id), S("preset", used[i].text)});
}

TEST(PtzOthers, PositionFlagSecondAndFourLimitEntries)
{
    const ptz_others_record r{1, -15, 92, 3, 4, 6, "1,2,5,300", 5, {21, 22, -23, 24}};
    test::Json doc(render(get_ptz_others_json, r));
    test::expect_members(doc.root(), {N("limitingFlag", 1), N("pos3dEnable", 6), N("inittilePos", -15),
                                      N("limittilePos", 92), N("trackEnable", 3), N("trackManualEnable", 4),
                                      S("presetId", "1,2,5,300"), N("curposinPreset", 5), A("presetLimitList")});
    const cJSON *list = doc["presetLimitList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    for (int i = 0; i < 4; ++i)
        test::expect_members(test::element(list, i), {N("index", i), N("presetIsLimit", r.presetIsLimit[i])});

    test::Json zoom(render(get_ptz_zoom_pos_json, ptz_zoom_pos_record{{-31, 2410}}));
    test::expect_members(zoom.root(), {A("zoomposList")});
    ASSERT_EQ(cJSON_GetArraySize(zoom["zoomposList"]), 2);
    test::expect_members(test::element(zoom["zoomposList"], 0), {N("index", 0), N("zoompos", -31)});
    test::expect_members(test::element(zoom["zoomposList"], 1), {N("index", 1), N("zoompos", 2410)});
}

// Fisheye views and tours count from 0, the unit's tours and patterns from 1.
TEST(PtzRunStatus, KeySchemesAndIndexBases)
{
    ptz_run_status_record r{};
    for (int i = 0; i < 6; ++i) {
        r.fishPtzRunStatus[i] = 100 + i;
        for (int j = 0; j < 8; ++j)
            r.fishPtzTourStatus[i][j] = 1000 + 10 * i + j;
    }
    r.ptzRunStatus = -1;
    for (int i = 0; i < 8; ++i)
        r.ptzTourStatus[i] = 10 + i;
    for (int i = 0; i < 4; ++i)
        r.ptzPatternStatus[i] = 20 + i;
    test::Json unit(render(get_ptz_run_status_json, r));
    test::expect_members(unit.root(),
                         {N("ptzRunStatus", -1), N("ptzTourStatus_1", 10), N("ptzTourStatus_2", 11),
                          N("ptzTourStatus_3", 12), N("ptzTourStatus_4", 13), N("ptzTourStatus_5", 14),
                          N("ptzTourStatus_6", 15), N("ptzTourStatus_7", 16), N("ptzTourStatus_8", 17),
                          N("ptzPatternStatus_1", 20), N("ptzPatternStatus_2", 21), N("ptzPatternStatus_3", 22),
                          N("ptzPatternStatus_4", 23)});
    std::vector<test::Expected> fish;
    for (int i = 0; i < 6; ++i)
        fish.push_back(N(("fish_" + std::to_string(i) + "_PtzRunStatus").c_str(), 100 + i));
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 8; ++j)
            fish.push_back(N(("fish_" + std::to_string(i) + "_PtzTourStatus_" + std::to_string(j)).c_str(),
                             1000 + 10 * i + j));
    for (int32_t flag : {1, -1}) {
        r.isFisheye = flag;
        test::Json doc(render(get_ptz_run_status_json, r));
        test::expect_members(doc.root(), fish);
    }
}

TEST(PtzTrackPoint, FirstPersonNumPeopleFromTheParallelArrays)
{
    auto r = std::make_unique<ptz_track_point_record>();
    r->frameWidth = 1920;
    r->frameHeight = 1080;
    int32_t *const columns[6] = {r->id, r->type, r->startX, r->startY, r->stopX, r->stopY};
    for (int c = 0; c < 6; ++c)
        for (int p = 0; p < 3; ++p) // a third, stale person is never reported
            columns[c][p] = (c < 5 ? 100 : -100) * (c + 1) - p;
    for (int32_t count : {2, 0, -1, INT32_MIN}) {
        r->personNum = count;
        test::Json doc(render(get_ptz_track_point_json, *r));
        test::expect_members(doc.root(), {N("personNum", count), A("personList")});
        const cJSON *list = doc["personList"];
        ASSERT_EQ(cJSON_GetArraySize(list), count > 0 ? count : 0) << "personNum " << count;
        for (int p = 0; p < cJSON_GetArraySize(list); ++p)
            test::expect_members(test::element(list, p),
                                 {N("id", 100 - p), N("type", 200 - p), N("startX", 300 - p), N("startY", 400 - p),
                                  N("stopX", 500 - p), N("stopY", -600 - p)});
    }
}

TEST(PtzScheduledTasks, SettingsThenSevenDays)
{
    ptz_scheduled_tasks_record tasks{1, 300, {}};
    fill_week(tasks.schedule);
    test::Json doc(render(get_ptz_scheduled_tasks_json, tasks));
    test::expect_members(doc.root(), {N("enable", 1), N("recoveryTime", 300), A("scheduleList")});
    expect_week(doc["scheduleList"], tasks.schedule);

    ptz_auto_tracking_record r{1, 250, -3, 120, 4, 5, 6, 207, "0,0,1920,1080", 8, {}};
    fill_week(r.schedule);
    test::Json tracking(render(get_ptz_auto_tracking_json, r));
    test::expect_members(tracking.root(),
                         {N("trackEnable", 1), N("showAutoEnable", 4), N("reportMotion", 250), N("sensitivity", -3),
                          N("maxTime", 120), N("object", 207), N("zoomMode", 5), N("zoomNumber", 6),
                          N("zoomState", 8), S("trackMap", "0,0,1920,1080"), A("scheduleList")});
    expect_week(tracking["scheduleList"], r.schedule);
}

// ---- the control state: only the first group that applies ----

struct ControlFixture {
    // Two stops in use; the third is beyond the count.
    ptz_tour_info tour{99, 2, {{-1, 10, 20, 30}, {-1, 11, 21, 31}, {-1, 12, 22, 32}}, 4};
    double position[3] = {12.5, -45.25, 3.14159};
    int32_t threeD = 7;
    int32_t dehumidify = -8;
    ptz_pattern_info pattern{1, 99, 7, 98, -2};
};

TEST(PtzControl, FirstFilledGroupWins)
{
    ControlFixture f;
    const std::vector<test::Expected> tour = {N("ptzTourPoint", 3), N("ptzTourStatus", 4), A("tourPresetInfo")};
    const std::vector<test::Expected> position = {S("ptzPanPos", "12.50"), S("ptzTiltPos", "-45.25"),
                                                  S("ptzZoomPos", "3.14")};
    const std::vector<test::Expected> pattern = {N("ptzPatternPoint", 2), N("ptzPatternIsRecord", 1),
                                                 N("ptzPatternPatStatus", 1), N("ptzPatternPlayStatus", -2)};
    const struct {
        const char *what;
        ptz_control_record record;
        std::vector<test::Expected> want;
    } cases[] = {
        {"everything set", {3, &f.tour, &f, f.position, &f.threeD, &f.dehumidify, 2, &f.pattern}, tour},
        {"tour point 0", {0, &f.tour, nullptr, f.position, &f.threeD, nullptr, 2, &f.pattern}, position},
        {"negative tour point", {-3, &f.tour, nullptr, f.position, nullptr, nullptr, 0, nullptr}, position},
        {"tour point without a tour", {3, nullptr, nullptr, f.position, nullptr, nullptr, 0, nullptr}, position},
        {"3D after position", {0, nullptr, nullptr, nullptr, &f.threeD, &f.dehumidify, 2, &f.pattern},
         {N("ptz3dPositionEnable", 7)}},
        {"dehumidifier", {0, nullptr, nullptr, nullptr, nullptr, &f.dehumidify, 2, &f.pattern},
         {N("ptzDehumidifyEnable", -8)}},
        {"pattern", {0, nullptr, nullptr, nullptr, nullptr, nullptr, 2, &f.pattern}, pattern},
        {"pattern point 0", {0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &f.pattern}, {}},
        {"pattern point without a pattern", {0, nullptr, nullptr, nullptr, nullptr, nullptr, 2, nullptr}, {}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        test::Json doc(render(get_ptz_control_json, c.record));
        test::expect_members(doc.root(), c.want);
    }
}

TEST(PtzControl, TourStopsUpToTheCountAndPatternStatusZeroOrOne)
{
    ControlFixture f;
    for (int32_t count : {0, -1, 2}) {
        f.tour.tourPointCount = count;
        test::Json doc(render(get_ptz_control_json, ptz_control_record{3, &f.tour, nullptr, nullptr, nullptr,
                                                                       nullptr, 0, nullptr}));
        const cJSON *list = doc["tourPresetInfo"];
        ASSERT_TRUE(cJSON_IsArray(list));
        ASSERT_EQ(cJSON_GetArraySize(list), count > 0 ? count : 0) << "count " << count;
        for (int p = 0; p < cJSON_GetArraySize(list); ++p)
            test::expect_members(test::element(list, p), {N("ptzTourPresetPoint", 10 + p),
                                                          N("ptzTourPresetSpeed", 20 + p),
                                                          N("ptzTourPresetTime", 30 + p)});
    }
    for (int32_t patStatus : {0, -3}) {
        f.pattern.patStatus = patStatus;
        test::Json doc(render(get_ptz_control_json, ptz_control_record{0, nullptr, nullptr, nullptr, nullptr,
                                                                       nullptr, 5, &f.pattern}));
        const cJSON *status = doc["ptzPatternPatStatus"];
        ASSERT_TRUE(cJSON_IsNumber(status));
        EXPECT_EQ(status->valuedouble, patStatus != 0 ? 1 : 0);
    }
}

} // namespace
