// The small video pages: sensors, fisheye PTZ status, multicast, dewarping,
// playback and the dehumidifier.
#include "support.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::S;

template <size_t M>
void put(char (&field)[M], const std::string &text)
{
    snprintf(field, M, "%s", text.c_str());
}

TEST(SensorConfig, BothSensorsInOrder)
{
    const sensor_config_record r{{3, -1}};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_sensor_config_json(&r, d, n); }));
    test::expect_members(doc.root(), {A("sensorList")});
    const cJSON *list = doc["sensorList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 2);
    test::expect_members(test::element(list, 0), {N("sensorIndex", 0), N("outputMode", 3)});
    test::expect_members(test::element(list, 1), {N("sensorIndex", 1), N("outputMode", -1)});
}

TEST(SensorConfig, NeverRefusesItsBuffer)
{
    const sensor_config_record r{{1, 2}};
    char untouched[8];
    memset(untouched, 'x', sizeof untouched);
    EXPECT_EQ(get_sensor_config_json(&r, untouched, 0), 0);
    EXPECT_EQ(untouched[0], 'x');
    EXPECT_EQ(get_sensor_config_json(&r, nullptr, 0), 0);
    EXPECT_EQ(get_sensor_config_json(&r, nullptr, 100), 0);
}

TEST(VideoSmallPages, KeysInOrderWithTheirNumberRules)
{
    const video_fisheye_ptz_osd_record osd{11, 22, 33, -44};
    test::Json a(test::rendered([&](char *d, int32_t n) { return get_video_fisheye_ptz_osd_json(&osd, d, n); }));
    test::expect_members(a.root(), {N("presetStatus", 11), N("patrolStatus", 22), N("autoscanStatus", 33),
                                    N("zoomStatus", -44)});

    video_ts_multicast_record mc{};
    mc.enable = 200;
    put(mc.addr, "239.1.2.3");
    mc.port = 4000000000u; // unsigned: above the signed range
    test::Json b(test::rendered([&](char *d, int32_t n) { return get_video_ts_multicast_json(&mc, d, n); }));
    test::expect_members(b.root(), {N("enable", 200), S("addr", "239.1.2.3"), N("port", 4000000000.0)});

    const video_fish_dewarping_record dw{360, 2};
    test::Json c(test::rendered([&](char *d, int32_t n) { return get_video_fish_dewarping_json(&dw, d, n); }));
    test::expect_members(c.root(), {N("viewField", 360), N("correctModel", 2)});
}

// The playback page and the file-name page with names in the given slots.
struct Playback {
    playvideo_config_record config{};
    playvideo_filename_record files{};
    explicit Playback(const std::vector<int> &slots)
    {
        for (int s : slots) {
            put(config.videos[s].name, "clip" + std::to_string(s) + ".mp4");
            put(config.videos[s].speed, std::to_string(s % 4 + 1) + "x");
            config.videos[s].reserved = 77;
            put(files.name[s], "file" + std::to_string(s) + ".mp4");
        }
    }
};

TEST(Playvideo, UsedSlotsKeepTheirNumbers)
{
    struct Case {
        std::vector<int> slots;
    };
    const Case cases[] = {{{}}, {{3, 499}}, {{0, 1, 2}}, {{0, 250, 498, 499}}};
    for (const Case &c : cases) {
        auto p = std::make_unique<Playback>(c.slots);
        p->config.mode = 1;
        p->config.interval = 2;
        p->config.cyclicIndex = 3;
        p->config.playIndex = -4;
        put(p->config.nfsPath, "10.0.0.5:/clips");
        put(p->config.nasPath, "//nas/clips");

        test::Json config(test::rendered([&](char *d, int32_t n) { return get_playvideo_config_json(&p->config, d, n); }));
        test::expect_members(config.root(), {N("mode", 1), N("cyclicIndex", 3), N("playIndex", -4), N("interval", 2),
                                             S("nfsPath", "10.0.0.5:/clips"), S("nasPath", "//nas/clips"),
                                             A("videoList")});
        test::Json files(test::rendered([&](char *d, int32_t n) { return get_playvideo_filename_json(&p->files, d, n); }));
        test::expect_members(files.root(), {A("videoList")});

        const cJSON *list = config["videoList"];
        const cJSON *names = files["videoList"];
        ASSERT_EQ(cJSON_GetArraySize(list), static_cast<int>(c.slots.size()));
        ASSERT_EQ(cJSON_GetArraySize(names), static_cast<int>(c.slots.size()));
        for (size_t k = 0; k < c.slots.size(); ++k) {
            const int s = c.slots[k];
            SCOPED_TRACE("slot " + std::to_string(s));
            test::expect_members(test::element(list, static_cast<int>(k)),
                                 {N("index", s), S("name", "clip" + std::to_string(s) + ".mp4"),
                                  S("speed", std::to_string(s % 4 + 1) + "x")});
            test::expect_members(test::element(names, static_cast<int>(k)),
                                 {N("index", s), S("name", "file" + std::to_string(s) + ".mp4")});
        }
    }
}

TEST(Dehumidifying, FanModeTemperatureTextAndFan)
{
    struct Case {
        double temperature;
        const char *text;
    };
    const Case cases[] = {{23.5, "23.50"}, {-7.126, "-7.13"}, {0, "0.00"}, {41.999, "42.00"}, {100.004, "100.00"}};
    for (const Case &c : cases) {
        dehumidifying_info_record info{};
        info.reserved[0] = 9;
        info.fanWorkingMode = 3;
        dehumidifying_status_record status{};
        status.temperature = c.temperature;
        status.reserved = 5;
        status.fan = 250;
        test::Json doc(test::rendered(
            [&](char *d, int32_t n) { return get_dehumidifying_info_json(&info, &status, d, n); }));
        test::expect_members(doc.root(), {N("fanWorkingMode", 3), S("temperature", c.text), N("fan", 250)});
    }
}

TEST(Dehumidifying, RefusedBufferReadsNeitherRecord)
{
    char buffer[4] = {'x', 'x', 'x', 'x'};
    EXPECT_EQ(get_dehumidifying_info_json(nullptr, nullptr, buffer, 0), -1);
    EXPECT_EQ(get_dehumidifying_info_json(nullptr, nullptr, nullptr, 100), -1);
    EXPECT_EQ(buffer[0], 'x');
}

} // namespace
