// The camera image pages: every key in its place, unsigned members, the
// weekly task texts and their 31-character slot cut, one- and zero-based
// indexes and generated names, list lengths, conditional keys, fisheye
// presets keyed by id and the capability groups selected by code.
#include "support.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

// Sets a member and expects it next, under the key of the same name.
template <typename T>
void put(std::vector<test::Expected> &expected, const char *key, T &member, double value)
{
    member = static_cast<T>(value);
    expected.push_back(N(key, value));
}
template <size_t Size>
void put(std::vector<test::Expected> &expected, const char *key, char (&member)[Size], const char *value)
{
    snprintf(member, Size, "%s", value);
    expected.push_back(S(key, value));
}
#define PUT(m, v) put(expected, #m, r.m, v)

template <typename Record>
std::string render(int32_t (*serialize)(const Record *, char *, int32_t), const Record &r)
{
    return test::rendered([&](char *d, int32_t n) { return serialize(&r, d, n); });
}

// uint8 members above 127 and uint32 members above 2^31 show a signedness
// slip; int32 members are negative.
TEST(CameraSetting, RootMembersInEmissionOrder)
{
    std::unique_ptr<camera_setting_record> owned(new camera_setting_record{});
    camera_setting_record &r = *owned;
    r.reserved0 = 99, r.reserved1 = 98;
    r.hasLprNightModeInEffect = -256; // any non-zero value, its low byte 0 too
    std::vector<test::Expected> expected;
    PUT(powerlineFreq, 200), PUT(brightness, 131), PUT(colorSaturation, 133), PUT(sharpness, 134), PUT(contrast, 132);
    PUT(whiteBalanceMode, 135), PUT(whiteBalanceRedGain, 136), PUT(whiteBalanceBlueGain, 255), PUT(doorMode, 137);
    PUT(digitalImageStabilisation, 138), PUT(dayToNight, 4000000001.0), PUT(nightToDay, 4000000002.0);
    PUT(dayNightSensitivity, -1), PUT(d2nSensitivity, 4000000003.0), PUT(n2dSensitivity, 4000000004.0);
    PUT(sensorMode, 3000000000.0), PUT(distortCorrect, 139), PUT(fovAdjust, 3000000001.0), PUT(irBlanceMode, 140);
    PUT(enblur, 141), PUT(deblur, 142), PUT(defogMode, 143), PUT(antiFogIntensity, 144), PUT(exposureMode, 145);
    PUT(exposureTime, 146), PUT(exposureGain, 147), PUT(ledMode, -2), PUT(nfLevel, 148), PUT(dnr2Level, 149);
    PUT(focusMode, -3), PUT(aspectRatio, 150), PUT(zoomLimit, 151), PUT(smartIrMode, 152), PUT(nearViewIrLevel, 153);
    PUT(middleViewIrLevel, 154), PUT(farViewIrLevel, 155), PUT(dnSwitchRefocus, 156), PUT(smokedDomeCover, -4);
    PUT(whiteLedLevel, 157), PUT(mirrorCorridor, 158), PUT(imageRotation, 159), PUT(irCutFilter, -5);
    PUT(iricrDayHour, -6), PUT(iricrDayMinute, -7), PUT(iricrNightHour, -8), PUT(iricrNightMinute, -9);
    PUT(iricrGpinStatus, -10), PUT(iricrGpinNumber, -11), PUT(pirDuration, -12), PUT(pirSensitivity, -13);
    PUT(scheduleMode, 160), PUT(blcRegion, 161), PUT(blcExclusive, 162), PUT(blcRegionArea, "10:20:300:400");
    PUT(wdrMode, -14), PUT(wdrStartHour, -15), PUT(wdrStartMinute, -16), PUT(wdrStopHour, -17);
    PUT(wdrStopMinute, -18), PUT(wdrLevel, 163), PUT(wdrAflevel, 164), PUT(hlcMode, 165), PUT(hlcLevel, 166);
    PUT(dayEnhancementMode, 167), PUT(nightEnhancementMode, 168), PUT(lprNightModeInEffect, -19);
    PUT(mediaUrl, "/live/main"), PUT(mediaWidth, -20), PUT(mediaHeight, -21), PUT(lprNight, -22), PUT(inlprNight, -23);
    PUT(fishDisplayMode, -24), PUT(fishCorrectMode, -25), PUT(dayNightMode, -26), PUT(irSupplemen, -27);
    PUT(irisType, -28), PUT(irisMode, -29);
    for (const char *list : {"whiteBalanceTaskdayList", "exposureTaskdayList", "blcWdrHlcTaskdayList"})
        expected.push_back(A(list));
    expected.push_back(S("dnScheduleTaskday", ""));
    test::Json doc(render(get_camera_setting_json, r));
    test::expect_members(doc.root(), expected);
    for (const char *odd : {"irBlanceMode", "irSupplemen", "wdrAflevel", "enblur", "inlprNight"})
        EXPECT_NE(test::member(doc.root(), odd), nullptr) << odd << " keeps its spelling";
}

// Each list reads its own array and numbers its days 0..6; a day joins its
// non-empty slots in slot order, each as "slot;" cut at 31 characters.
TEST(CameraSetting, TaskListsJoinTheirOwnSlots)
{
    std::unique_ptr<camera_setting_record> r(new camera_setting_record{});
    const std::string b30(30, 'b'), c31 = std::string(30, 'c') + "C", d255(255, 'd');
    const struct {
        char *slot;
        std::string text;
    } slots[] = {{r->whiteBalanceTaskday[0][0], "wb"}, {r->whiteBalanceTaskday[4][0], "A"},
                 {r->whiteBalanceTaskday[4][3], std::string(40, 'B')}, {r->whiteBalanceTaskday[4][9], "C"},
                 {r->exposureTaskday[0][0], b30}, {r->exposureTaskday[1][0], c31}, {r->exposureTaskday[2][0], d255},
                 {r->exposureTaskday[3][1], "08:00-12:00,2"}, {r->blcWdrHlcTaskday[6][9], "blc"},
                 {r->dnScheduleTaskday[0], "dn0"}, {r->dnScheduleTaskday[7], "dn7"}};
    for (const auto &s : slots)
        snprintf(s.slot, 256, "%s", s.text.c_str());
    snprintf(r->whiteBalanceTaskday[4][5], 256, "_hidden"); // text after an empty first byte is not a task
    r->whiteBalanceTaskday[4][5][0] = '\0';
    test::Json doc(render(get_camera_setting_json, *r));
    const struct {
        const char *key, *index;
        std::string days[7];
    } lists[] = {
        {"whiteBalanceTaskdayList", "whiteBalanceIndex", {"wb;", "", "", "", "A;" + std::string(31, 'B') + "C;"}},
        {"exposureTaskdayList", "exposureIndex", {b30 + ";", c31, d255.substr(0, 31), "08:00-12:00,2;"}},
        {"blcWdrHlcTaskdayList", "blcWdrHlcIndex", {"", "", "", "", "", "", "blc;"}},
    };
    for (const auto &l : lists) {
        ASSERT_EQ(cJSON_GetArraySize(doc[l.key]), 7) << l.key;
        for (int d = 0; d < 7; ++d)
            test::expect_members(test::element(doc[l.key], d), {N(l.index, d), S("taskday", l.days[d])});
    }
    EXPECT_STREQ(doc["dnScheduleTaskday"]->valuestring, "dn0;dn7;");
    EXPECT_EQ(test::member(doc.root(), "lprNightModeInEffect"), nullptr); // not flagged
    EXPECT_EQ(test::keys(doc.root()).size(), 80u);
}

camera_day_night_profile profile(uint8_t first)
{
    camera_day_night_profile p{};
    p.reserved0[0] = p.reserved0[1] = p.reserved1 = 250;
    uint8_t *fields[] = {&p.exposureLevel, &p.minShutter, &p.maxShutter, &p.limitGain, &p.irCutInterval,
                         &p.irCutStatus, &p.irLedStatus, &p.colorMode, &p.whiteLedStatus};
    for (uint8_t *f : fields)
        *f = first++;
    return p;
}

TEST(CameraDayNight, ProfilesInEmissionOrder)
{
    // The IR-cut interval is reported plus one, in signed arithmetic: 255 gives 256.
    camera_setting_day_night_record r{profile(10), profile(251), -1, 3, -5};
    test::Json doc(render(get_camera_setting_day_night_json, r));
    test::expect_members(doc.root(), {
        N("dayExposureLevel", 10), N("dayMinShutter", 11), N("dayMaxShutter", 12), N("dayLimitGain", 13),
        N("dayIrCutInterval", 15), N("dayIrCutStatus", 15), N("dayIrLedStatus", 16), N("dayWhiteLedStatus", 18),
        N("dayColorMode", 17), N("nightExposureLevel", 251), N("nightMinShutter", 252),
        N("nightMaxShutter", 253), N("nightLimitGain", 254), N("nightIrCutInterval", 256),
        N("nightIrCutStatus", 0), N("nightIrLedStatus", 1), N("nightWhiteLedStatus", 3), N("nightColorMode", 2),
        N("isSupportWhiteledGroup", -1), N("dayWhiteledGroup", 3), N("nightWhiteledGroup", -5),
    });
}

TEST(CameraDayNightSchedule, FiveEntriesEmptyOnesIncluded)
{
    const std::string texts[5] = {"06:00-18:00", "", "", "18:00-23:59", std::string(255, 's')};
    camera_day_night_schedule_record r{};
    for (int i = 0; i < 5; ++i)
        snprintf(r.schedule[i], 256, "%s", texts[i].c_str());
    test::Json doc(render(get_camera_day_night_schedule_json, r));
    test::expect_members(doc.root(), {A("dayNightSchedule")});
    ASSERT_EQ(cJSON_GetArraySize(doc["dayNightSchedule"]), 5);
    for (int i = 0; i < 5; ++i)
        test::expect_members(test::element(doc["dayNightSchedule"], i), {N("index", i), S("schedule", texts[i])});
}

// Sensor i's mode m is slot k = 3 i + m: its values are built from k, so that
// a wrong sensor, mode or array shows (uint8 values above 127), and it
// carries one row of level and time cases.
TEST(CameraSensorImage, RootAndSensorsInEmissionOrder)
{
    const struct {
        uint8_t level[3]; // brightness, contrast, saturation: percentages rounded half up
        double percent[3], time;
        const char *text; // two decimals
    } slots[6] = {
        {{0, 128, 255}, {0, 50, 100}, 33.333, "33.33"},
        {{1, 2, 3}, {0, 1, 1}, 12.346, "12.35"},
        {{64, 127, 191}, {25, 50, 75}, -1.5, "-1.50"},
        {{200, 254, 4}, {78, 100, 2}, 8, "8.00"},
        {{5, 6, 7}, {2, 2, 3}, 99.999, "100.00"},
        {{250, 251, 252}, {98, 98, 99}, 1e30, "1000000000000000019884624838656"}, // 31 characters: full
    };
    camera_sensor_image_record r{};
    std::vector<test::Expected> expected;
    PUT(powerlineFreq, 200), PUT(imageMode, 201), PUT(trafficScene, 202), PUT(digitalStabilisation, 203);
    PUT(flashIntensity, 204), PUT(parityFlashing, 205), PUT(flashOffsetFirst, -100);
    PUT(flashOffsetSecond, -200), PUT(flashAeExpTimeFirst, -3000), PUT(flashAeExpTimeSecond, -4000);
    expected.push_back(A("sensorList"));
    r.irisMode[0] = -7, r.irisMode[1] = 8;
    for (int i = 0; i < 2; ++i) {
        camera_sensor_image_entry &s = r.sensors[i];
        s.reserved0 = -99, s.daynight = uint8_t(250 + i);
        for (int m = 0; m < 3; ++m) {
            const int k = 3 * i + m;
            s.maxshutterDay[m] = 1.25 + k, s.maxshutterNight[m] = slots[k].time;
            s.manualExposetimeDay[m] = 0.5 + k, s.manualExposetimeNight[m] = 2.75 + k;
            s.limitGainlevelDay[m] = uint8_t(130 + k), s.limitGainlevelNight[m] = uint8_t(150 + k);
            s.strobelightDay[m] = uint8_t(170 + k), s.strobelightNight[m] = uint8_t(190 + k);
            s.manualGainlevelDay[m] = uint8_t(210 + k), s.manualGainlevelNight[m] = uint8_t(230 + k);
            s.targetBrightnessDay[m] = -(k + 1), s.targetBrightnessNight[m] = -(1000 + k);
            s.brightness[m] = slots[k].level[0], s.contrast[m] = slots[k].level[1];
            s.saturation[m] = slots[k].level[2];
        }
    }
    test::Json doc(render(get_camera_sensor_image_json, r));
    test::expect_members(doc.root(), expected);
    ASSERT_EQ(cJSON_GetArraySize(doc["sensorList"]), 2);
    const char *modes[3] = {"normal", "odd", "even"};
    for (int i = 0; i < 2; ++i) {
        const cJSON *sensor = test::element(doc["sensorList"], i);
        test::expect_members(sensor, {N("sensorIndex", i), N("irisMode", i ? 8 : -7), N("daynight", 250 + i),
                                      N("strobelightDay", 170 + 3 * i), N("strobelightNight", 190 + 3 * i),
                                      test::O("normal"), test::O("odd"), test::O("even")});
        for (int m = 0; m < 3; ++m) {
            SCOPED_TRACE(std::string("sensor ") + std::to_string(i) + " " + modes[m]);
            const int k = 3 * i + m;
            test::expect_members(test::member(sensor, modes[m]), {
                S("maxshutterDay", std::to_string(1 + k) + ".25"), S("maxshutterNight", slots[k].text),
                N("limitGainlevelDay", 130 + k), N("limitGainlevelNight", 150 + k),
                N("targetBrightnessDay", -(k + 1)), N("targetBrightnessNight", -(1000 + k)),
                S("manualExposetimeDay", std::to_string(k) + ".50"),
                S("manualExposetimeNight", std::to_string(2 + k) + ".75"), N("manualGainlevelDay", 210 + k),
                N("manualGainlevelNight", 230 + k), N("brightness", slots[k].percent[0]),
                N("contrast", slots[k].percent[1]), N("saturation", slots[k].percent[2]),
            });
        }
    }
}

// A record kept by value, for the table below.
template <typename Record>
std::function<int32_t(char *, int32_t)> call(int32_t (*serialize)(const Record *, char *, int32_t),
                                             const typename std::common_type<Record>::type &r)
{
    return [serialize, r](char *d, int32_t n) { return serialize(&r, d, n); };
}

TEST(CameraFlatDocuments, KeysInOrderFromTheirMembers)
{
    const struct {
        std::function<int32_t(char *, int32_t)> render;
        std::vector<test::Expected> members;
    } cases[] = {
        {call(get_camera_ptz_json, {77, -6}), {N("ptzSpeed", -6)}},
        {call(get_camera_manual_white_led_settings_json, {9, 3000000001u, 3000000002u, 3000000003u}),
         {N("effectiveGroup", 3000000003.0), N("flashMode", 3000000002.0), N("flashTime", 3000000001.0)}},
        {call(get_camera_white_led_status_json, {-2}), {N("whiteLedStatus", -2)}},
        {call(get_camera_crop_roi_enable_json, {-3}), {N("cropRoiEnable", -3)}},
        {call(get_camera_white_led_parameter_json, {-4, 5, -6}), {N("alarm", -4), N("number", 5), N("manual", -6)}},
        {call(get_camera_lens_json, {11, 201, 202, {203, 204}, 205}),
         {N("lensIrisType", 201), N("lensIrisMode", 202), N("lensZoomPos", 205)}},
        {call(get_camera_while_led_json, {-1, 2, -3, 4, -5, 6, -7, 8, -9, 10}),
         {N("lightCtrl", -1), N("sensitivity", 2), N("delayTime", -3), N("startHour", 4), N("startMin", -5),
          N("stopHour", 6), N("stopMin", -7), N("brightnessCtrl", 8), N("brightness", -9),
          N("isWhiteLedExternal", 10)}},
        {call(get_camera_ir_value_json, {-11, 12, -13, 14, -15, 16, -17}),
         {N("irSensorValue", -11), N("inlprNight", 12), N("nearIrStrength", -13), N("midIrStrength", 14),
          N("farIrStrength", -15), N("smartIrStrengthWhite", 16), N("smartIrStrengthSupplement", -17)}},
        {call(get_camera_fish_view_field_json, {-360}), {N("fisheyeViewField", -360)}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.members.front().key);
        test::Json doc(test::rendered(c.render));
        test::expect_members(doc.root(), c.members);
    }
}

// Mask m of sensor s holds values built from k = 100 s + m; the count is
// compared as a signed number and sets the length of both lists.
TEST(CameraMask, RootSensorsAndMasksInOrder)
{
    for (int32_t count : {2, 0, -1, INT32_MIN, 24}) {
        SCOPED_TRACE("count " + std::to_string(count));
        const int listed = count > 0 ? count : 0;
        std::unique_ptr<camera_mask_record> r(new camera_mask_record{{-1, 2}, count, 3, -4, 5, "0,1,2", -6, 7, {}});
        for (int s = 0; s < 2; ++s)
            for (int m = 0; m < 24; ++m) {
                const uint32_t k = 100 * s + m;
                r->masks[s][m] = camera_mask_entry{-999, uint8_t(128 + m), 3000000000u + k, 3100000000u + k,
                                                   3200000000u + k, 3300000000u + k, 888, uint8_t(200 + s),
                                                   uint8_t(210 + s), -int32_t(k + 1), 777, {}};
                snprintf(r->masks[s][m].maskName, 128, "mask %d of sensor %d", m, s);
            }
        test::Json doc(render(get_camera_mask_json, *r));
        test::expect_members(doc.root(), {N("calibrationEnable", 7), N("maskNum", 3), N("maskMosaicNum", -4),
                                          N("maskMaxRatio", 5), S("maskColorList", "0,1,2"),
                                          N("maskDifferentColor", -6), A("sensorList")});
        ASSERT_EQ(cJSON_GetArraySize(doc["sensorList"]), 2);
        for (int s = 0; s < 2; ++s) {
            const cJSON *sensor = test::element(doc["sensorList"], s);
            test::expect_members(sensor, {N("sensorIndex", s), N("maskEnable", s ? 2 : -1), A("maskList")});
            ASSERT_EQ(cJSON_GetArraySize(test::member(sensor, "maskList")), listed) << "sensor " << s;
            for (int m = 0; m < listed; ++m) {
                const double k = 100 * s + m;
                test::expect_members(test::element(test::member(sensor, "maskList"), m), {
                    N("index", m), N("maskX", 3000000000.0 + k), N("maskY", 3100000000.0 + k),
                    N("maskWidth", 3200000000.0 + k), N("maskHeight", 3300000000.0 + k), N("maskType", 128 + m),
                    N("maskShow", 210 + s), N("maskRatio", -(k + 1)), N("isexist", 200 + s),
                    S("maskName", "mask " + std::to_string(m) + " of sensor " + std::to_string(s)),
                });
            }
        }
    }
}

// The seven-day "scheduleList" is the shared shape; here only its ends.
TEST(CameraSnapshot, SettingsTargetsAndSchedule)
{
    std::unique_ptr<camera_snapshot_settings_record> r(new camera_snapshot_settings_record{
        201, 4000000000u, 202, 203, 204, "gate", 205,
        {{250, "http://10.0.0.1/up", "user0", "pw0"}, {251, "http://10.0.0.2/up", "user1", "pw1"},
         {252, "http://10.0.0.3/up", "user2", "pw2"}},
        206, 207, {"sunday", "", "", "", "", "", "saturday"}});
    test::Json doc(render(get_camera_snapshot_settings_json, *r));
    test::expect_members(doc.root(), {
        N("timingSnapshotEnable", 201), N("intervalValue", 4000000000.0), N("intervalUnit", 202),
        N("saveIntoStorage", 203), N("storageFilenameType", 204), S("storageBaseFilename", "gate"),
        N("uploadViaFtp", 206), N("uploadViaSmtp", 207), N("uploadViaHttp", 205), A("notifyList"),
        A("scheduleList"),
    });
    ASSERT_EQ(cJSON_GetArraySize(doc["notifyList"]), 3);
    for (int t = 0; t < 3; ++t)
        test::expect_members(test::element(doc["notifyList"], t), {
            N("index", t), N("enable", 250 + t), S("url", "http://10.0.0." + std::to_string(t + 1) + "/up"),
            S("user", "user" + std::to_string(t)), S("password", "pw" + std::to_string(t)),
        });
    ASSERT_EQ(cJSON_GetArraySize(doc["scheduleList"]), 7);
    test::expect_members(test::element(doc["scheduleList"], 0), {N("scheduleIndex", 0), S("schedule", "sunday")});
    test::expect_members(test::element(doc["scheduleList"], 6), {N("scheduleIndex", 6), S("schedule", "saturday")});
}

// Slot 0 is never reported; the keys carry the slot number 1..5.
TEST(CameraRoiSettings, TwentyKeysForRegionsOneToFive)
{
    camera_roi_settings_record r{-1, {}};
    std::vector<test::Expected> expected;
    for (int i = 0; i < 6; ++i) {
        r.regions[i] = camera_crop_roi_entry{uint8_t(130 + i), uint8_t(200 + i), uint8_t(230 + i), 99, 4000000000u + i};
        const std::string n = std::to_string(i);
        if (i > 0)
            expected.insert(expected.end(), {N(("cropRoiExist_" + n).c_str(), 130 + i),
                                             N(("cropRoiLeft_" + n).c_str(), 200 + i),
                                             N(("cropRoiTop_" + n).c_str(), 230 + i),
                                             N(("cropRoiType_" + n).c_str(), 4000000000.0 + i)});
    }
    test::Json doc(render(get_camera_roi_settings_json, r));
    test::expect_members(doc.root(), expected);
}

// Regions 1..5, then area schedules keyed by a one-based area and a
// zero-based day.
TEST(CameraCropRoiTrack, RegionPairsThenAreaSchedules)
{
    std::unique_ptr<camera_crop_roi_track_record> r(new camera_crop_roi_track_record{});
    std::vector<test::Expected> expected;
    for (int i = 0; i < 6; ++i) {
        r->enable[i] = -(i + 1), r->zoom[i] = 10 * i;
        if (i > 0)
            expected.insert(expected.end(), {N(("enable_" + std::to_string(i)).c_str(), -(i + 1)),
                                             N(("zoom_" + std::to_string(i)).c_str(), 10 * i)});
    }
    for (int a = 0; a < 4; ++a)
        for (int k = 0; k < 7; ++k) {
            const std::string text = "area index " + std::to_string(a) + ", day " + std::to_string(k);
            snprintf(r->areaSchedule[a][k], 256, "%s", text.c_str());
            expected.push_back(S(("area_" + std::to_string(a + 1) + "_CommSche_" + std::to_string(k)).c_str(), text));
        }
    test::Json doc(render(get_camera_crop_roi_track_json, *r));
    test::expect_members(doc.root(), expected);
}

TEST(CameraRoiInfo, FiveListsOfRegionTexts)
{
    std::unique_ptr<camera_roi_info_record> r(new camera_roi_info_record{});
    r->enable = -1, r->reserved0 = 5;
    for (int e = 0; e < 39; ++e)
        snprintf(r->roiInfo[e], 64, "text %d", e);
    test::Json doc(render(get_camera_roi_info_json, *r));
    test::expect_members(doc.root(), {N("enable", -1), A("mainList"), A("subList"), A("thirdList"),
                                      A("fourthList"), A("fifthList")});
    const struct {
        const char *key;
        int first, count;
    } lists[] = {{"mainList", 0, 8}, {"subList", 8, 8}, {"thirdList", 16, 8}, {"fourthList", 24, 8},
                 {"fifthList", 32, 7}};
    for (const auto &l : lists) {
        ASSERT_EQ(cJSON_GetArraySize(doc[l.key]), l.count) << l.key;
        for (int i = 0; i < l.count; ++i)
            test::expect_members(test::element(doc[l.key], i),
                                 {N("index", i), S("roiInfo", "text " + std::to_string(l.first + i))});
    }
}

TEST(CameraModelGeneral, ConditionalKeysFollowTheirFlags)
{
    const std::pair<int32_t, int32_t> flags[] = {{1, 1}, {0, 0}, {-4, 0}, {0, 12}, {INT32_MIN, -1}};
    for (const auto &[vca, lpr] : flags) {
        SCOPED_TRACE("vcaSupport " + std::to_string(vca) + ", lprSupport " + std::to_string(lpr));
        const camera_model_general_record r{-1, 2, -3, vca, 5, -6, 7, -8, 9, -10, 11, lpr, 13, -14, 15, -16, 17, -18};
        test::Json doc(render(get_camera_model_general_json, r));
        std::vector<test::Expected> expected = {
            N("ioSupport", -1), N("audioSupport", 2), N("fisheyeSupport", -3), N("vcaSupport", vca),
            N("audioAlarmSupport", 5), N("ledSupport", -6), N("ledGroupSupport", 7), N("ptzSupport", -8),
            N("ptzMaxZoomTimes", 9), N("realPtzSupport", -10),
        };
        if (vca != 0)
            expected.push_back(N("vcaType", 11));
        expected.push_back(N("lprSupport", lpr));
        if (lpr != 0)
            expected.push_back(N("lprVersion", 13));
        expected.insert(expected.end(), {N("faceSupport", -18), N("iotSupport", 17), N("isSpeedDm", -14),
                                         N("lessAlarmInterface", 15), N("lessDeviceInterface", -16)});
        test::expect_members(doc.root(), expected);
    }
}

// Each used slot is a root key "preset_<id>" in slot order, its value
// "leading:first:second:name" cut at 127 characters.
TEST(CameraFishPresets, OneKeyPerUsedSlotInSlotOrder)
{
    struct Slot {
        int slot, id, leading;
        double first, second;
        std::string name; // 68 characters or more: the whole array, no NUL
    };
    const std::string n67(67, 'n');
    const struct {
        const char *what;
        std::vector<Slot> slots;
        std::vector<test::Expected> members;
    } cases[] = {
        {"no used slot", {{4, 0, 9, 1, 1, "stale"}}, {}},
        {"slot order, not id order",
         {{0, 3, 2, 10.5, 20.25, "Till"}, {7, 1, -4, -0.125, 359.0, "Door"}, {150, -6, 0, 0, 0, ""},
          {299, 300, 7, 1.0 / 3, 2.0 / 3, "Last slot"}},
         {S("preset_3", "2:10.500000:20.250000:Till"), S("preset_1", "-4:-0.125000:359.000000:Door"),
          S("preset_-6", "0:0.000000:0.000000:"), S("preset_300", "7:0.333333:0.666667:Last slot")}},
        {"repeated ids", {{2, 8, 1, 1, 1, "first"}, {3, 8, 2, 2, 2, "second"}},
         {S("preset_8", "1:1.000000:1.000000:first"), S("preset_8", "2:2.000000:2.000000:second")}},
        {"whole name fits", {{0, 1, 1, 0, 0, n67}}, {S("preset_1", "1:0.000000:0.000000:" + n67)}},
        {"cut at 127",
         {{0, 1, 123456789, 1e20, -1e20, n67}},
         {S("preset_1",
            "123456789:100000000000000000000.000000:-100000000000000000000.000000:" + std::string(58, 'n'))}},
        {"name read no further than its array",
         {{0, 2, 1, 0, 0, std::string(80, 'x')}, {1, 3, 1, 0, 0, "next"}},
         {S("preset_2", "1:0.000000:0.000000:" + std::string(68, 'x')), S("preset_3", "1:0.000000:0.000000:next")}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        std::unique_ptr<camera_fish_presets_record> r(new camera_fish_presets_record{});
        for (const Slot &s : c.slots) {
            ptz_preset_entry &e = r->entries[s.slot];
            e = ptz_preset_entry{s.first, s.second, s.leading, 55, s.id, 66, {}};
            memcpy(e.name, s.name.data(), std::min(s.name.size(), sizeof e.name));
        }
        test::Json doc(render(get_camera_fish_presets_json, *r));
        test::expect_members(doc.root(), c.members);
    }
}

// The capability values in declaration order hold -1, -2, ... -63, so every
// key shows which member it came from.
TEST(CameraAllCapability, EachGroupReportsItsOwnKeys)
{
    const struct {
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
        // Both alarm keys carry the output flag: -60 is never reported.
        {108, {N("audioEvent", -59), N("alarmInputEvent", -61), N("alarmOutputEvent", -61), N("vca", -62)}},
        {109, {N("streamPreset", -63)}},
        {99, {}}, {110, {}}, {0, {}}, {INT32_MIN, {}},
    };
    int32_t values[64];
    static_assert(sizeof(camera_all_capability_record) == sizeof values, "64 int32 members");
    for (int i = 1; i < 64; ++i)
        values[i] = -i;
    for (const auto &c : cases) {
        SCOPED_TRACE("group " + std::to_string(c.group));
        values[0] = c.group;
        camera_all_capability_record r;
        memcpy(&r, values, sizeof r);
        test::Json doc(render(get_camera_all_capability_json, r));
        test::expect_members(doc.root(), c.members);
    }
}

} // namespace
