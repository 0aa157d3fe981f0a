// Masks, crop regions, region texts, snapshots, lights and lens: keys and
// their order, unsigned members, one- and zero-based generated names, and
// the lists' lengths.
#include "support.h"

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

struct FlatCase {
    const char *name;
    std::function<int32_t(char *, int32_t)> render;
    std::vector<test::Expected> members;
};

TEST(CameraFlatDocuments, KeysInOrderFromTheirMembers)
{
    static const camera_ptz_record ptz{77, -6};
    static const camera_manual_white_led_settings_record manual{9, 3000000001u, 3000000002u, 3000000003u};
    static const camera_white_led_status_record status{-2};
    static const camera_crop_roi_enable_record crop{-3};
    static const camera_white_led_parameter_record parameter{-4, 5, -6};
    static const camera_lens_record lens{11, 201, 202, {203, 204}, 205};
    static const camera_while_led_record light{-1, 2, -3, 4, -5, 6, -7, 8, -9, 10};
    static const camera_ir_value_record ir{-11, 12, -13, 14, -15, 16, -17};
    const FlatCase cases[] = {
        {"ptz", [](char *d, int32_t n) { return get_camera_ptz_json(&ptz, d, n); }, {N("ptzSpeed", -6)}},
        {"manual white led",
         [](char *d, int32_t n) { return get_camera_manual_white_led_settings_json(&manual, d, n); },
         {N("effectiveGroup", 3000000003.0), N("flashMode", 3000000002.0), N("flashTime", 3000000001.0)}},
        {"white led status", [](char *d, int32_t n) { return get_camera_white_led_status_json(&status, d, n); },
         {N("whiteLedStatus", -2)}},
        {"crop roi enable", [](char *d, int32_t n) { return get_camera_crop_roi_enable_json(&crop, d, n); },
         {N("cropRoiEnable", -3)}},
        {"white led parameter",
         [](char *d, int32_t n) { return get_camera_white_led_parameter_json(&parameter, d, n); },
         {N("alarm", -4), N("number", 5), N("manual", -6)}},
        {"lens", [](char *d, int32_t n) { return get_camera_lens_json(&lens, d, n); },
         {N("lensIrisType", 201), N("lensIrisMode", 202), N("lensZoomPos", 205)}},
        {"while led", [](char *d, int32_t n) { return get_camera_while_led_json(&light, d, n); },
         {N("lightCtrl", -1), N("sensitivity", 2), N("delayTime", -3), N("startHour", 4), N("startMin", -5),
          N("stopHour", 6), N("stopMin", -7), N("brightnessCtrl", 8), N("brightness", -9),
          N("isWhiteLedExternal", 10)}},
        {"ir value", [](char *d, int32_t n) { return get_camera_ir_value_json(&ir, d, n); },
         {N("irSensorValue", -11), N("inlprNight", 12), N("nearIrStrength", -13), N("midIrStrength", 14),
          N("farIrStrength", -15), N("smartIrStrengthWhite", 16), N("smartIrStrengthSupplement", -17)}},
    };
    for (const FlatCase &c : cases) {
        SCOPED_TRACE(c.name);
        test::Json doc(test::rendered(c.render));
        test::expect_members(doc.root(), c.members);
    }
}

std::unique_ptr<camera_mask_record> distinct_masks(int32_t count)
{
    std::unique_ptr<camera_mask_record> r(new camera_mask_record{});
    r->maskEnable[0] = -1;
    r->maskEnable[1] = 2;
    r->maskCount = count;
    r->maskNum = 3;
    r->maskMosaicNum = -4;
    r->maskMaxRatio = 5;
    snprintf(r->maskColorList, sizeof r->maskColorList, "0,1,2");
    r->maskDifferentColor = -6;
    r->calibrationEnable = 7;
    for (int s = 0; s < 2; ++s)
        for (int m = 0; m < 24; ++m) {
            camera_mask_entry &e = r->masks[s][m];
            const int k = 100 * s + m;
            e.reserved0 = -999;
            e.maskType = static_cast<uint8_t>(128 + m);
            e.maskX = 3000000000u + k;
            e.maskY = 1000u + k;
            e.maskWidth = 2000u + k;
            e.maskHeight = 3000u + k;
            e.reserved1 = 888;
            e.isexist = static_cast<uint8_t>(200 + s);
            e.maskShow = static_cast<uint8_t>(10 + s);
            e.maskRatio = -(k + 1);
            e.reserved2 = 777;
            snprintf(e.maskName, sizeof e.maskName, "mask %d of sensor %d", m, s);
        }
    return r;
}

TEST(CameraMask, RootSensorsAndMasksInOrder)
{
    auto r = distinct_masks(2);
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_mask_json(r.get(), d, n); }));
    test::expect_members(doc.root(), {
        N("calibrationEnable", 7), N("maskNum", 3), N("maskMosaicNum", -4), N("maskMaxRatio", 5),
        S("maskColorList", "0,1,2"), N("maskDifferentColor", -6), A("sensorList"),
    });
    const cJSON *sensors = doc["sensorList"];
    ASSERT_EQ(cJSON_GetArraySize(sensors), 2);
    const double enable[2] = {-1, 2};
    for (int s = 0; s < 2; ++s) {
        const cJSON *sensor = test::element(sensors, s);
        test::expect_members(sensor, {N("sensorIndex", s), N("maskEnable", enable[s]), A("maskList")});
        const cJSON *masks = test::member(sensor, "maskList");
        ASSERT_EQ(cJSON_GetArraySize(masks), 2);
        for (int m = 0; m < 2; ++m) {
            SCOPED_TRACE("sensor " + std::to_string(s) + " mask " + std::to_string(m));
            const int k = 100 * s + m;
            test::expect_members(test::element(masks, m), {
                N("index", m), N("maskX", 3000000000.0 + k), N("maskY", 1000 + k), N("maskWidth", 2000 + k),
                N("maskHeight", 3000 + k), N("maskType", 128 + m), N("maskShow", 10 + s),
                N("maskRatio", -(k + 1)), N("isexist", 200 + s),
                S("maskName", "mask " + std::to_string(m) + " of sensor " + std::to_string(s)),
            });
        }
    }
}

TEST(CameraMask, CountSetsTheLengthOfBothLists)
{
    struct Case {
        int32_t count;
        int listed;
    } cases[] = {{0, 0}, {-1, 0}, {INT32_MIN, 0}, {1, 1}, {23, 23}, {24, 24}, {25, 24}, {INT32_MAX, 24}};
    for (const Case &c : cases) {
        auto r = distinct_masks(c.count);
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_mask_json(r.get(), d, n); }));
        for (int s = 0; s < 2; ++s) {
            const cJSON *masks = test::member(test::element(doc["sensorList"], s), "maskList");
            ASSERT_TRUE(cJSON_IsArray(masks)) << "count " << c.count;
            ASSERT_EQ(cJSON_GetArraySize(masks), c.listed) << "count " << c.count << ", sensor " << s;
            if (c.listed > 0) {
                EXPECT_EQ(test::member(test::element(masks, c.listed - 1), "index")->valuedouble, c.listed - 1);
            }
        }
    }
}

TEST(CameraSnapshot, SettingsTargetsAndSchedule)
{
    camera_snapshot_settings_record r{};
    r.timingSnapshotEnable = 201;
    r.intervalValue = 4000000000u;
    r.intervalUnit = 2;
    r.saveIntoStorage = 3;
    r.storageFilenameType = 4;
    snprintf(r.storageBaseFilename, sizeof r.storageBaseFilename, "gate");
    r.uploadViaHttp = 5;
    for (int t = 0; t < 3; ++t) {
        r.targets[t].enable = static_cast<uint8_t>(250 + t);
        snprintf(r.targets[t].url, sizeof r.targets[t].url, "http://10.0.0.%d/up", t + 1);
        snprintf(r.targets[t].user, sizeof r.targets[t].user, "user%d", t);
        snprintf(r.targets[t].password, sizeof r.targets[t].password, "pw%d", t);
    }
    r.uploadViaFtp = 6;
    r.uploadViaSmtp = 7;
    for (int d = 0; d < 7; ++d)
        snprintf(r.schedule[d], sizeof r.schedule[d], "day %d", d);
    r.schedule[3][0] = '\0';
    test::Json doc(
        test::rendered([&](char *d, int32_t n) { return get_camera_snapshot_settings_json(&r, d, n); }));
    test::expect_members(doc.root(), {
        N("timingSnapshotEnable", 201), N("intervalValue", 4000000000.0), N("intervalUnit", 2),
        N("saveIntoStorage", 3), N("storageFilenameType", 4), S("storageBaseFilename", "gate"),
        N("uploadViaFtp", 6), N("uploadViaSmtp", 7), N("uploadViaHttp", 5), A("notifyList"), A("scheduleList"),
    });
    const cJSON *notify = doc["notifyList"];
    ASSERT_EQ(cJSON_GetArraySize(notify), 3);
    for (int t = 0; t < 3; ++t)
        test::expect_members(test::element(notify, t), {
            N("index", t), N("enable", 250 + t), S("url", "http://10.0.0." + std::to_string(t + 1) + "/up"),
            S("user", "user" + std::to_string(t)), S("password", "pw" + std::to_string(t)),
        });
    const cJSON *schedule = doc["scheduleList"];
    ASSERT_EQ(cJSON_GetArraySize(schedule), 7);
    for (int d = 0; d < 7; ++d)
        test::expect_members(test::element(schedule, d),
                             {N("scheduleIndex", d), S("schedule", d == 3 ? "" : "day " + std::to_string(d))});
}

TEST(CameraRoiSettings, TwentyKeysForRegionsOneToFive)
{
    camera_roi_settings_record r{};
    r.reserved0 = -1;
    for (int i = 0; i < 6; ++i)
        r.regions[i] = camera_crop_roi_entry{static_cast<uint8_t>(10 + i), static_cast<uint8_t>(200 + i),
                                             static_cast<uint8_t>(30 + i), 99, 4000000000u + i};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_roi_settings_json(&r, d, n); }));
    std::vector<test::Expected> expected;
    for (int i = 1; i <= 5; ++i) {
        const std::string n = std::to_string(i);
        expected.push_back(N(("cropRoiExist_" + n).c_str(), 10 + i));
        expected.push_back(N(("cropRoiLeft_" + n).c_str(), 200 + i));
        expected.push_back(N(("cropRoiTop_" + n).c_str(), 30 + i));
        expected.push_back(N(("cropRoiType_" + n).c_str(), 4000000000.0 + i));
    }
    test::expect_members(doc.root(), expected);
}

TEST(CameraCropRoiTrack, RegionPairsThenAreaSchedules)
{
    std::unique_ptr<camera_crop_roi_track_record> r(new camera_crop_roi_track_record{});
    for (int i = 0; i < 6; ++i) {
        r->enable[i] = -(i + 1);
        r->zoom[i] = 10 * i;
    }
    for (int a = 0; a < 4; ++a)
        for (int k = 0; k < 7; ++k)
            snprintf(r->areaSchedule[a][k], 256, "area index %d, day %d", a, k);
    r->areaSchedule[2][5][0] = '\0';
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_crop_roi_track_json(r.get(), d, n); }));
    std::vector<test::Expected> expected;
    for (int i = 1; i <= 5; ++i) {
        expected.push_back(N(("enable_" + std::to_string(i)).c_str(), -(i + 1)));
        expected.push_back(N(("zoom_" + std::to_string(i)).c_str(), 10 * i));
    }
    for (int a = 0; a < 4; ++a)
        for (int k = 0; k < 7; ++k) {
            const std::string key = "area_" + std::to_string(a + 1) + "_CommSche_" + std::to_string(k);
            const std::string text =
                a == 2 && k == 5 ? "" : "area index " + std::to_string(a) + ", day " + std::to_string(k);
            expected.push_back(S(key.c_str(), text));
        }
    ASSERT_EQ(expected.size(), 38u);
    test::expect_members(doc.root(), expected);
    EXPECT_EQ(test::keys(doc.root())[10], "area_1_CommSche_0");
    EXPECT_EQ(test::keys(doc.root())[37], "area_4_CommSche_6");
}

TEST(CameraRoiInfo, FiveListsOfRegionTexts)
{
    std::unique_ptr<camera_roi_info_record> r(new camera_roi_info_record{});
    r->enable = -1;
    r->reserved0 = 5;
    for (int e = 0; e < 39; ++e)
        snprintf(r->roiInfo[e], 64, "text %d", e);
    r->roiInfo[9][0] = '\0';
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_camera_roi_info_json(r.get(), d, n); }));
    test::expect_members(doc.root(), {N("enable", -1), A("mainList"), A("subList"), A("thirdList"),
                                      A("fourthList"), A("fifthList")});
    struct List {
        const char *key;
        int first;
        int count;
    } lists[] = {{"mainList", 0, 8}, {"subList", 8, 8}, {"thirdList", 16, 8}, {"fourthList", 24, 8},
                 {"fifthList", 32, 7}};
    int total = 0;
    for (const List &l : lists) {
        const cJSON *list = doc[l.key];
        ASSERT_EQ(cJSON_GetArraySize(list), l.count) << l.key;
        for (int i = 0; i < l.count; ++i) {
            const int e = l.first + i;
            test::expect_members(test::element(list, i),
                                 {N("index", i), S("roiInfo", e == 9 ? "" : "text " + std::to_string(e))});
        }
        total += cJSON_GetArraySize(list);
    }
    EXPECT_EQ(total, 39);
    EXPECT_EQ(test::member(test::element(doc["fifthList"], 6), "index")->valuedouble, 6);
}

} // namespace
