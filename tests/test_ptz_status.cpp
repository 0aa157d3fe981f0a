// The PTZ status documents: panel flags, housing climate, presets, limits
// and preset list, run states, auto-home, tracked people and zoom positions.
#include "support.h"

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

TEST(PtzPanelStatus, EveryFlagUnderItsOwnKey)
{
    const ptz_panel_status_record r{11, 12, 13, 14, 15, 16, 17, 18};
    test::Json doc(render(get_ptz_panel_status_json, r));
    test::expect_members(doc.root(), {N("irisMode", 11), N("onePatrol", 12), N("autoHome", 13),
                                      N("manualDefog", 14), N("manualWiper", 15), N("lightMode", 16),
                                      N("3DPosition", 17), N("manualTrack", 18)});
}

TEST(PtzStatus, TemperatureTextAndUnsignedStates)
{
    struct Case {
        double temperature;
        const char *text;
    };
    const Case cases[] = {
        {23.5, "23.500000&#176;C"},
        {-5, "-5.000000&#176;C"},
        {0, "0.000000&#176;C"},
        {41.25, "41.250000&#176;C"},
    };
    for (const Case &c : cases) {
        const ptz_status_record r{c.temperature, 200, 255};
        test::Json doc(render(get_ptz_status_json, r));
        test::expect_members(doc.root(), {S("temperature", c.text), N("heater", 200), N("fan", 255)});
    }
}

// ---- presets ----

ptz_preset_entry preset(int32_t id, int32_t leading, double first, double second, const char *name)
{
    ptz_preset_entry e{};
    e.firstCoordinate = first;
    e.secondCoordinate = second;
    e.leadingNumber = leading;
    e.reserved0 = 77;
    e.id = id;
    e.reserved1 = 88;
    snprintf(e.name, sizeof e.name, "%s", name);
    return e;
}

TEST(PtzPresets, EmptySlotsLeaveAnEmptyList)
{
    auto r = std::make_unique<ptz_presets_record>();
    test::Json doc(render(get_ptz_presets_json, *r));
    test::expect_members(doc.root(), {A("presetInfoList")});
    EXPECT_EQ(cJSON_GetArraySize(doc["presetInfoList"]), 0);
}

TEST(PtzPresets, UsedSlotsInSlotOrderWithTheirTexts)
{
    auto r = std::make_unique<ptz_presets_record>();
    r->entries[0] = preset(1, 1, 12.5, -3.25, "Gate");
    r->entries[5] = preset(6, 40, -0.5, 7, "Ramp");
    r->entries[299] = preset(-2, -7, 359.125, 90, "Last slot");
    test::Json doc(render(get_ptz_presets_json, *r));
    const cJSON *list = doc["presetInfoList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 3);
    test::expect_members(test::element(list, 0), {N("id", 1), S("preset", "1:12.500000:-3.250000:Gate")});
    test::expect_members(test::element(list, 1), {N("id", 6), S("preset", "40:-0.500000:7.000000:Ramp")});
    test::expect_members(test::element(list, 2), {N("id", -2), S("preset", "-7:359.125000:90.000000:Last slot")});
}

TEST(PtzPresets, PresetTextIsCutAt127Characters)
{
    auto r = std::make_unique<ptz_presets_record>();
    const std::string name(67, 'n');
    r->entries[3] = preset(4, INT32_MIN, -1e20, 1e20, name.c_str());
    test::Json doc(render(get_ptz_presets_json, *r));
    // 71 characters before the name leave room for 56 of its 67.
    const std::string head = "-2147483648:-100000000000000000000.000000:100000000000000000000.000000:";
    ASSERT_EQ(head.size(), 71u);
    const cJSON *text = test::member(test::element(doc["presetInfoList"], 0), "preset");
    ASSERT_TRUE(cJSON_IsString(text));
    EXPECT_EQ(std::string(text->valuestring), head + std::string(56, 'n'));
}

TEST(PtzPresets, NameWithoutNulIsReadNoFurtherThanItsArray)
{
    auto r = std::make_unique<ptz_presets_record>();
    r->entries[0] = preset(9, 2, 0, 0, "");
    memset(r->entries[0].name, 'x', sizeof r->entries[0].name);
    r->entries[1].firstCoordinate = 1; // the bytes right after the name
    test::Json doc(render(get_ptz_presets_json, *r));
    const cJSON *text = test::member(test::element(doc["presetInfoList"], 0), "preset");
    ASSERT_TRUE(cJSON_IsString(text));
    EXPECT_EQ(std::string(text->valuestring), "2:0.000000:0.000000:" + std::string(68, 'x'));
}

// ---- limits and preset list ----

TEST(PtzOthers, PositionFlagSecondAndFourLimitEntries)
{
    ptz_others_record r{};
    r.limitingFlag = 1;
    r.inittilePos = -15;
    r.limittilePos = 92;
    r.trackEnable = 3;
    r.trackManualEnable = 4;
    r.pos3dEnable = 6;
    snprintf(r.presetId, sizeof r.presetId, "%s", "1,2,5,300");
    r.curposinPreset = 5;
    const int32_t limits[4] = {21, 22, -23, 24};
    for (int i = 0; i < 4; ++i)
        r.presetIsLimit[i] = limits[i];
    test::Json doc(render(get_ptz_others_json, r));
    test::expect_members(doc.root(), {N("limitingFlag", 1), N("pos3dEnable", 6), N("inittilePos", -15),
                                      N("limittilePos", 92), N("trackEnable", 3), N("trackManualEnable", 4),
                                      S("presetId", "1,2,5,300"), N("curposinPreset", 5), A("presetLimitList")});
    const cJSON *list = doc["presetLimitList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 4);
    for (int i = 0; i < 4; ++i)
        test::expect_members(test::element(list, i), {N("index", i), N("presetIsLimit", limits[i])});
}

// ---- run states ----

TEST(PtzRunStatus, FisheyeKeysCountFromZero)
{
    for (int32_t flag : {1, -1, 7}) {
        ptz_run_status_record r{};
        r.isFisheye = flag;
        for (int i = 0; i < 6; ++i) {
            r.fishPtzRunStatus[i] = 100 + i;
            for (int j = 0; j < 8; ++j)
                r.fishPtzTourStatus[i][j] = 1000 + 10 * i + j;
        }
        r.ptzRunStatus = 5;
        r.ptzTourStatus[0] = 6;
        std::vector<test::Expected> want;
        for (int i = 0; i < 6; ++i)
            want.push_back(N(("fish_" + std::to_string(i) + "_PtzRunStatus").c_str(), 100 + i));
        for (int i = 0; i < 6; ++i)
            for (int j = 0; j < 8; ++j)
                want.push_back(N(("fish_" + std::to_string(i) + "_PtzTourStatus_" + std::to_string(j)).c_str(),
                                 1000 + 10 * i + j));
        ASSERT_EQ(want.size(), 54u);
        test::Json doc(render(get_ptz_run_status_json, r));
        test::expect_members(doc.root(), want);
    }
}

TEST(PtzRunStatus, UnitKeysCountFromOne)
{
    ptz_run_status_record r{};
    r.fishPtzRunStatus[0] = 99;
    r.ptzRunStatus = -1;
    for (int i = 0; i < 8; ++i)
        r.ptzTourStatus[i] = 10 + i;
    for (int i = 0; i < 4; ++i)
        r.ptzPatternStatus[i] = 20 + i;
    test::Json doc(render(get_ptz_run_status_json, r));
    test::expect_members(doc.root(),
                         {N("ptzRunStatus", -1), N("ptzTourStatus_1", 10), N("ptzTourStatus_2", 11),
                          N("ptzTourStatus_3", 12), N("ptzTourStatus_4", 13), N("ptzTourStatus_5", 14),
                          N("ptzTourStatus_6", 15), N("ptzTourStatus_7", 16), N("ptzTourStatus_8", 17),
                          N("ptzPatternStatus_1", 20), N("ptzPatternStatus_2", 21), N("ptzPatternStatus_3", 22),
                          N("ptzPatternStatus_4", 23)});
}

// ---- auto-home, tracking, zoom ----

TEST(PtzAutoHome, LatencyBeforeModeAndModeUnsigned)
{
    const ptz_auto_home_record r{-9, 1, 4294967295u, 7, -8, 180};
    test::Json doc(render(get_ptz_auto_home_json, r));
    test::expect_members(doc.root(),
                         {N("enable", 1), N("latencyTime", 180), N("mode", 4294967295.0), N("modeNumber", 7)});
}

TEST(PtzTrackPoint, NoOneTrackedForZeroOrNegativeCount)
{
    for (int32_t count : {0, -1, INT32_MIN}) {
        auto r = std::make_unique<ptz_track_point_record>();
        r->personNum = count;
        r->id[0] = 5;
        test::Json doc(render(get_ptz_track_point_json, *r));
        test::expect_members(doc.root(), {N("personNum", count), A("personList")});
        EXPECT_EQ(cJSON_GetArraySize(doc["personList"]), 0) << "personNum " << count;
    }
}

TEST(PtzTrackPoint, FirstPersonNumPeopleFromTheParallelArrays)
{
    auto r = std::make_unique<ptz_track_point_record>();
    r->frameWidth = 1920;
    r->frameHeight = 1080;
    r->personNum = 2;
    for (int p = 0; p < 3; ++p) { // the third is stale and not reported
        r->id[p] = 100 + p;
        r->type[p] = 200 + p;
        r->startX[p] = 300 + p;
        r->startY[p] = 400 + p;
        r->stopX[p] = 500 + p;
        r->stopY[p] = -600 - p;
    }
    test::Json doc(render(get_ptz_track_point_json, *r));
    test::expect_members(doc.root(), {N("personNum", 2), A("personList")});
    const cJSON *list = doc["personList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 2);
    for (int p = 0; p < 2; ++p)
        test::expect_members(test::element(list, p),
                             {N("id", 100 + p), N("type", 200 + p), N("startX", 300 + p), N("startY", 400 + p),
                              N("stopX", 500 + p), N("stopY", -600 - p)});
}

TEST(PtzZoomPos, TwoIndexedPositions)
{
    const ptz_zoom_pos_record r{{-31, 2410}};
    test::Json doc(render(get_ptz_zoom_pos_json, r));
    test::expect_members(doc.root(), {A("zoomposList")});
    const cJSON *list = doc["zoomposList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 2);
    test::expect_members(test::element(list, 0), {N("index", 0), N("zoompos", -31)});
    test::expect_members(test::element(list, 1), {N("index", 1), N("zoompos", 2410)});
}

} // namespace
