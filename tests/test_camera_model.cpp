// Model flags with their conditional keys, fisheye presets keyed by id, and
// the capability groups selected by code.
#include "support.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::N;
using test::S;

camera_model_general_record distinct_model(int32_t vcaSupport, int32_t lprSupport)
{
    camera_model_general_record r{};
    r.ioSupport = -1;
    r.audioSupport = 2;
    r.fisheyeSupport = -3;
    r.vcaSupport = vcaSupport;
    r.audioAlarmSupport = 5;
    r.ledSupport = -6;
    r.ledGroupSupport = 7;
    r.ptzSupport = -8;
    r.ptzMaxZoomTimes = 9;
    r.realPtzSupport = -10;
    r.vcaType = 11;
    r.lprSupport = lprSupport;
    r.lprVersion = 13;
    r.isSpeedDm = -14;
    r.lessAlarmInterface = 15;
    r.lessDeviceInterface = -16;
    r.iotSupport = 17;
    r.faceSupport = -18;
    return r;
}

TEST(CameraModelGeneral, ConditionalKeysFollowTheirFlags)
{
    struct Case {
        int32_t vca;
        int32_t lpr;
    } cases[] = {{1, 1}, {0, 0}, {-4, 0}, {0, 12}, {INT32_MIN, -1}};
    for (const Case &c : cases) {
        SCOPED_TRACE("vcaSupport " + std::to_string(c.vca) + ", lprSupport " + std::to_string(c.lpr));
        const camera_model_general_record r = distinct_model(c.vca, c.lpr);
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_model_general_json(&r, d, n); }));
        std::vector<test::Expected> expected = {
            N("ioSupport", -1), N("audioSupport", 2), N("fisheyeSupport", -3), N("vcaSupport", c.vca),
            N("audioAlarmSupport", 5), N("ledSupport", -6), N("ledGroupSupport", 7), N("ptzSupport", -8),
            N("ptzMaxZoomTimes", 9), N("realPtzSupport", -10),
        };
        if (c.vca != 0)
            expected.push_back(N("vcaType", 11));
        expected.push_back(N("lprSupport", c.lpr));
        if (c.lpr != 0)
            expected.push_back(N("lprVersion", 13));
        for (const test::Expected &e : {N("faceSupport", -18), N("iotSupport", 17), N("isSpeedDm", -14),
                                        N("lessAlarmInterface", 15), N("lessDeviceInterface", -16)})
            expected.push_back(e);
        test::expect_members(doc.root(), expected);
        EXPECT_EQ(test::keys(doc.root()).size(), 16u + (c.vca != 0) + (c.lpr != 0));
    }
}

std::unique_ptr<camera_fish_presets_record> no_presets()
{
    return std::unique_ptr<camera_fish_presets_record>(new camera_fish_presets_record{});
}

void set_preset(ptz_preset_entry &e, int32_t id, int32_t leading, double first, double second, const char *name)
{
    e.id = id;
    e.leadingNumber = leading;
    e.firstCoordinate = first;
    e.secondCoordinate = second;
    e.reserved0 = 55;
    e.reserved1 = 66;
    snprintf(e.name, sizeof e.name, "%s", name);
}

TEST(CameraFishPresets, EmptySlotsGiveNoKeys)
{
    auto r = no_presets();
    r->entries[4].leadingNumber = 9; // an empty slot keeps whatever else it holds
    snprintf(r->entries[4].name, sizeof r->entries[4].name, "stale");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_fish_presets_json(r.get(), d, n); }));
    test::expect_members(doc.root(), {});
}

TEST(CameraFishPresets, OneKeyPerUsedSlotInSlotOrder)
{
    auto r = no_presets();
    set_preset(r->entries[0], 3, 2, 10.5, 20.25, "Till");
    set_preset(r->entries[7], 1, -4, -0.125, 359.0, "Door");
    set_preset(r->entries[150], -6, 0, 0, 0, "");
    set_preset(r->entries[299], 300, 7, 1.0 / 3, 2.0 / 3, "Last slot");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_fish_presets_json(r.get(), d, n); }));
    test::expect_members(doc.root(), {
        S("preset_3", "2:10.500000:20.250000:Till"),
        S("preset_1", "-4:-0.125000:359.000000:Door"),
        S("preset_-6", "0:0.000000:0.000000:"),
        S("preset_300", "7:0.333333:0.666667:Last slot"),
    });
}

TEST(CameraFishPresets, RepeatedIdsGiveRepeatedKeys)
{
    auto r = no_presets();
    set_preset(r->entries[2], 8, 1, 1, 1, "first");
    set_preset(r->entries[3], 8, 2, 2, 2, "second");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_fish_presets_json(r.get(), d, n); }));
    test::expect_members(doc.root(), {
        S("preset_8", "1:1.000000:1.000000:first"),
        S("preset_8", "2:2.000000:2.000000:second"),
    });
}

TEST(CameraFishPresets, ValueIsCutAt127Characters)
{
    const std::string longName(67, 'n');
    struct Case {
        int32_t leading;
        double first;
        double second;
        std::string text;
    } cases[] = {
        // 20 characters before the name: the whole name fits.
        {1, 0, 0, "1:0.000000:0.000000:" + longName},
        // 69 characters before the name: 58 of its 67 fit.
        {123456789, 1e20, -1e20,
         "123456789:100000000000000000000.000000:-100000000000000000000.000000:" + std::string(58, 'n')},
    };
    for (const Case &c : cases) {
        auto r = no_presets();
        set_preset(r->entries[0], 1, c.leading, c.first, c.second, longName.c_str());
        test::Json doc(
            test::rendered([&](char *d, int32_t n) { return get_camera_fish_presets_json(r.get(), d, n); }));
        test::expect_members(doc.root(), {S("preset_1", c.text)});
    }
}

TEST(CameraFishPresets, NameIsReadNoFurtherThanItsArray)
{
    auto r = no_presets();
    set_preset(r->entries[0], 2, 1, 0, 0, "");
    memset(r->entries[0].name, 'x', sizeof r->entries[0].name); // no NUL
    set_preset(r->entries[1], 3, 1, 0, 0, "next");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_fish_presets_json(r.get(), d, n); }));
    test::expect_members(doc.root(), {
        S("preset_2", "1:0.000000:0.000000:" + std::string(68, 'x')),
        S("preset_3", "1:0.000000:0.000000:next"),
    });
}

TEST(CameraFishViewField, OneKey)
{
    const camera_fish_view_field_record r{-360};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_fish_view_field_json(&r, d, n); }));
    test::expect_members(doc.root(), {N("fisheyeViewField", -360)});
}

// The capability values in declaration order hold -1, -2, ... -63, so every
// key shows which member it came from.
camera_all_capability_record numbered_capabilities(int32_t group)
{
    int32_t values[64];
    values[0] = group;
    for (int i = 1; i < 64; ++i)
        values[i] = -i;
    static_assert(sizeof(camera_all_capability_record) == sizeof values, "64 int32 members");
    camera_all_capability_record r;
    memcpy(&r, values, sizeof r);
    return r;
}

TEST(CameraAllCapability, EachGroupReportsItsOwnKeys)
{
    struct Case {
        int32_t group;
        std::vector<test::Expected> members;
    } cases[] = {
        {100, {N("ptzControl", -1), N("whiteLed", -2), N("manualTrack", -3), N("liveAutoTracking", -4),
               N("dehumidifying", -5), N("3dPosition", -6), N("oneTouch", -7), N("autohome", -8),
               N("preset", -9), N("patrol", -10), N("pattern", -11)}},
        {101, {N("zcontrol", -12), N("zslider", -13), N("focus", -14), N("lensInitialization", -15),
               N("auxiliaryFocus", -16), N("autoirisAlwaysOpen", -17), N("autoirisClickable", -18)}},
        {102, {N("basic", -19), N("manualSpeed", -20), N("patrolRecorvery", -21), N("miniFocusDistance", -22),
               N("autohome", -8), N("ptzLimits", -23), N("topAndBottomLimit", -24), N("initialPosition", -25),
               N("privacyMask", -26), N("scheduledTask", -27), N("tiltScan", -28), N("panoramaScan", -29),
               N("autoTracking", -4), N("configClear", -30), N("clearInitialPosition", -31), N("rs485", -32),
               N("status", -33), N("heater", -34)}},
        {103, {N("lpr", -35), N("confidenceLevel", -36), N("dayNightDetection", -37), N("speedDetection", -38),
               N("regionFeatures", -39)}},
        {104, {N("audio", -40), N("smartIrMode", -41), N("smartIrModeAuto", -42), N("smartIrModeViewLevel", -43),
               N("smartIrModeMiddleLevel", -44), N("smartIrModeWhiteLevel", -45), N("localDisplayVideo", -46),
               N("smokedDomecover", -47), N("keepAspectRatio", -48), N("zoomLimit", -49),
               N("lensDistortCorrect", -50)}},
        {105, {N("digitalImageStabilisation", -51), N("focusMode", -52), N("lensType", -53),
               N("reduceVideoStuttering", -54)}},
        {106, {N("dayNightWhiteLed", -2), N("dayNightSliderRange_1_10", -55), N("dayNightSliderRange_1_100", -56),
               N("dayNightSliderDefult_20_60", -57)}},
        {107, {N("imageMask", -58)}},
        {108, {N("audioEvent", -59), N("alarmInputEvent", -61), N("alarmOutputEvent", -61), N("vca", -62)}},
        {109, {N("streamPreset", -63)}},
        {99, {}},
        {110, {}},
        {0, {}},
        {-100, {}},
        {INT32_MIN, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE("group " + std::to_string(c.group));
        const camera_all_capability_record r = numbered_capabilities(c.group);
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_all_capability_json(&r, d, n); }));
        test::expect_members(doc.root(), c.members);
    }
}

TEST(CameraAllCapability, AlarmInputKeyCarriesTheOutputFlag)
{
    camera_all_capability_record r = numbered_capabilities(108);
    r.alarmInputEvent = 1;
    r.alarmOutputEvent = 0;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_all_capability_json(&r, d, n); }));
    EXPECT_EQ(test::member(doc.root(), "alarmInputEvent")->valuedouble, 0);
    EXPECT_EQ(test::member(doc.root(), "alarmOutputEvent")->valuedouble, 0);
}

} // namespace
