// The video pages: stream profiles, overlays, frame rates, bit rates, the
// small settings pages and the fisheye stream profiles.
#include "support.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;
using Keys = std::vector<std::string>;

const char *const kNames[] = {"mainStream", "subStream", "thirdStream", "fourthStream", "fifthStream", "sixthStream"};

template <size_t M>
void put(char (&field)[M], const std::string &text)
{
    snprintf(field, M, "%s", text.c_str());
}

#define RENDER(call) test::Json(test::rendered([&](char *d, int32_t n) { return call; }))

// Stream i's fields hold 1000*i + their rank; one is negative (signedness).
video_general_record general(int32_t count)
{
    video_general_record r{};
    r.streamCount = count;
    for (int i = 0; i < 6; ++i) {
        int32_t *fields[] = {r.width, r.height, r.profileGop, r.rateMode, r.framerate, r.bitrate,
                             r.smartStreamEnable, r.smartStreamLevel, r.profile, r.profileCodec, r.rateQuality,
                             r.vbrQuality, r.enable};
        for (int f = 0; f < 13; ++f)
            fields[f][i] = 1000 * i + f + 1;
        r.smartStreamLevel[i] = -r.smartStreamLevel[i];
        put(r.url[i], "/live/ch" + std::to_string(i));
    }
    r.rtspPort = 8554;
    return r;
}

// How many streams a page lists for a stored count: none below 1, and never
// more than the page has names for (six, or five on the frame-rate page).
int listed(int32_t count, int names)
{
    return count < 1 ? 0 : (count < names ? count : names);
}

TEST(VideoStreams, CountPicksTheNamedStreamsAndTheMainStreamHasNoEnable)
{
    for (int32_t count : {0, -2, 3, 5, 6, 7, INT32_MAX}) {
        SCOPED_TRACE("streamCount " + std::to_string(count));
        const Keys names(kNames, kNames + listed(count, 6));
        const video_general_record g = general(count);
        const test::Json gen = RENDER(get_video_general_json(&g, d, n));
        test::expect_members(gen.root(), {O("streamList"), N("rtspPort", 8554)});
        EXPECT_EQ(test::keys(gen["streamList"]), names);
        for (int i = 0; i < listed(count, 6); ++i) {
            const double b = 1000 * i;
            std::vector<test::Expected> want = {
                N("width", b + 1), N("height", b + 2), S("url", "/live/ch" + std::to_string(i)),
                N("profileGop", b + 3), N("rateMode", b + 4), N("framerate", b + 5), N("bitrate", b + 6),
                N("smartStreamEnable", b + 7), N("smartStreamLevel", -(b + 8)), N("profile", b + 9),
                N("profileCodec", b + 10), N("rateQuality", b + 11), N("vbrQuality", b + 12)};
            if (i != 0)
                want.insert(want.begin(), N("enable", b + 13));
            test::expect_members(test::member(gen["streamList"], kNames[i]), want);
        }

        video_advanced_record a{};
        a.streamCount = count;
        const test::Json adv = RENDER(get_video_advanced_json(&a, d, n));
        EXPECT_EQ(test::keys(adv.root()), (Keys{"streamList", "sensorList"}));
        EXPECT_EQ(test::keys(adv["streamList"]), names);
        EXPECT_EQ(cJSON_GetArraySize(adv["sensorList"]), 2);

        // The frame-rate page names five streams only; its count is shown as
        // stored.
        video_framerate_record f{};
        f.streamCount = count;
        for (int32_t &valid : f.streamValid)
            valid = 1;
        const test::Json fr = RENDER(get_video_framerate_json(&f, d, n));
        Keys want = {"streamCount"};
        want.insert(want.end(), kNames, kNames + listed(count, 5));
        EXPECT_EQ(test::keys(fr.root()), want);
        EXPECT_EQ(cJSON_GetNumberValue(fr["streamCount"]), count);
    }
}

TEST(VideoAdvanced, OverlayOfEveryStreamAndBothSensors)
{
    video_advanced_record r{};
    r.streamCount = 2;
    for (int i = 0; i < 2; ++i) {
        int32_t *fields[] = {r.enable, r.dateTimeEnable, r.fontSize, r.backgroundEnable, r.textPosition,
                             r.dateTimePosition, r.dateTimeFormat};
        for (int f = 0; f < 7; ++f)
            fields[f][i] = (f == 6 ? -1 : 1) * (100 * (i + 1) + f + 1);
        put(r.string[i], "overlay " + std::to_string(i));
        put(r.fontColor[i], "#F0000" + std::to_string(i));
        put(r.backgroundColor[i], "#0B000" + std::to_string(i));
    }
    r.osdZoomTime[0] = 11;
    r.osdZoomTime[1] = -12;
    const test::Json doc = RENDER(get_video_advanced_json(&r, d, n));
    for (int i = 0; i < 2; ++i) {
        SCOPED_TRACE(kNames[i]);
        const double b = 100 * (i + 1);
        const std::string k = std::to_string(i);
        test::expect_members(test::member(doc["streamList"], kNames[i]),
                             {N("enable", b + 1), S("string", "overlay " + k), N("dateTimeEnable", b + 2),
                              N("fontSize", b + 3), S("fontColor", "#F0000" + k), N("backgroundEnable", b + 4),
                              S("backgroundColor", "#0B000" + k), N("textPosition", b + 5),
                              N("dateTimePosition", b + 6), N("dateTimeFormat", -(b + 7))});
    }
    ASSERT_EQ(cJSON_GetArraySize(doc["sensorList"]), 2);
    test::expect_members(test::element(doc["sensorList"], 0), {N("sensorIndex", 0), N("osdZoomTime", 11)});
    test::expect_members(test::element(doc["sensorList"], 1), {N("sensorIndex", 1), N("osdZoomTime", -12)});
}

TEST(VideoFramerate, ValidStreamsWithTheirCodecGroups)
{
    video_framerate_record r{};
    r.streamCount = 4;
    const int32_t valid[] = {1, 0, 7, 1}, mjpeg[] = {0, 1, 1, 0};
    // A size above the ten resolutions lists ten, a negative one none; both
    // are shown as stored.
    const int32_t sizes[4][3] = {{3, 2, 1}, {1, 1, 1}, {0, 10, 4}, {11, -1, 3}};
    for (int i = 0; i < 4; ++i) {
        r.streamValid[i] = valid[i];
        r.mjpegSupport[i] = mjpeg[i];
        video_codec_group_entry *groups[] = {&r.streams[i].h264, &r.streams[i].h265, &r.streams[i].mjpeg};
        for (int g = 0; g < 3; ++g) {
            groups[g]->availableSize = sizes[i][g];
            for (int k = 0; k < 10; ++k) { // width i*1000+g*100+k, height +10, frame rate +20
                const int32_t b = i * 1000 + g * 100 + k;
                groups[g]->resolution[k] = {b, b + 10, b + 20, -1, -2};
            }
        }
    }
    const test::Json doc = RENDER(get_video_framerate_json(&r, d, n));
    // The sub stream is invalid: absent, though still counted.
    test::expect_members(doc.root(), {N("streamCount", 4), O("mainStream"), O("thirdStream"), O("fourthStream")});
    EXPECT_EQ(test::keys(doc["mainStream"]), (Keys{"H264", "H265"}));
    const char *codecs[] = {"H264", "H265", "Mjpeg"};
    for (int i : {0, 2, 3}) {
        for (int g = 0; g < 2 + mjpeg[i]; ++g) {
            SCOPED_TRACE(std::string(kNames[i]) + " " + codecs[g]);
            const cJSON *group = test::member(doc[kNames[i]], codecs[g]);
            test::expect_members(group, {N("availableSize", sizes[i][g]), A("resolution")});
            const cJSON *list = test::member(group, "resolution");
            ASSERT_EQ(cJSON_GetArraySize(list), listed(sizes[i][g], 10));
            for (int k = 0; k < listed(sizes[i][g], 10); ++k) {
                const double b = i * 1000 + g * 100 + k;
                test::expect_members(test::element(list, k),
                                     {N("width", b), N("height", b + 10), N("framerate", b + 20)});
            }
        }
    }
}

TEST(VideoBitInfo, NonZeroSlotsInSlotOrderForAlwaysFiveStreams)
{
    video_bit_info_record r{};
    r.bitrate[0][1] = 2048;
    r.bitrate[0][3] = 1024;
    std::vector<double> full;
    for (int s = 0; s < 30; ++s) {
        r.bitrate[1][s] = 100 + s;
        full.push_back(100 + s);
    }
    r.bitrate[2][29] = 64;
    r.bitrate[3][0] = -5;
    r.bitrate[3][2] = 512; // stream 4: every slot empty
    const test::Json doc = RENDER(get_video_bit_info_json(&r, d, n));
    EXPECT_EQ(test::keys(doc.root()), Keys(kNames, kNames + 5));
    const std::vector<double> want[5] = {{2048, 1024}, full, {64}, {-5, 512}, {}};
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(kNames[i]);
        test::expect_members(doc[kNames[i]], {A("bitrate")});
        std::vector<double> got;
        for (const cJSON *c = test::member(doc[kNames[i]], "bitrate")->child; c != nullptr; c = c->next)
            got.push_back(c->valuedouble);
        EXPECT_EQ(got, want[i]);
    }
}

TEST(VideoSmallPages, KeysInOrderWithTheirNumberRules)
{
    const sensor_config_record sensors{{3, -1}};
    const test::Json a = RENDER(get_sensor_config_json(&sensors, d, n));
    test::expect_members(a.root(), {A("sensorList")});
    ASSERT_EQ(cJSON_GetArraySize(a["sensorList"]), 2);
    test::expect_members(test::element(a["sensorList"], 0), {N("sensorIndex", 0), N("outputMode", 3)});
    test::expect_members(test::element(a["sensorList"], 1), {N("sensorIndex", 1), N("outputMode", -1)});

    const video_fisheye_ptz_osd_record osd{11, 22, 33, -44};
    const test::Json b = RENDER(get_video_fisheye_ptz_osd_json(&osd, d, n));
    test::expect_members(b.root(), {N("presetStatus", 11), N("patrolStatus", 22), N("autoscanStatus", 33),
                                    N("zoomStatus", -44)});

    video_ts_multicast_record mc{};
    mc.enable = 200;
    put(mc.addr, "239.1.2.3");
    mc.port = 4000000000u; // above the signed range
    const test::Json c = RENDER(get_video_ts_multicast_json(&mc, d, n));
    test::expect_members(c.root(), {N("enable", 200), S("addr", "239.1.2.3"), N("port", 4000000000.0)});

    const video_fish_dewarping_record dw{360, 2};
    const test::Json e = RENDER(get_video_fish_dewarping_json(&dw, d, n));
    test::expect_members(e.root(), {N("viewField", 360), N("correctModel", 2)});
}

TEST(Playvideo, UsedSlotsKeepTheirNumbers)
{
    for (const std::vector<int> &slots : {std::vector<int>{}, {3, 499}, {0, 250, 498, 499}}) {
        auto config = std::make_unique<playvideo_config_record>();
        auto files = std::make_unique<playvideo_filename_record>();
        for (int s : slots) {
            put(config->videos[s].name, "clip" + std::to_string(s));
            put(config->videos[s].speed, std::to_string(s) + "x");
            put(files->name[s], "file" + std::to_string(s));
        }
        config->mode = 1;
        config->interval = 2;
        config->cyclicIndex = 3;
        config->playIndex = -4;
        put(config->nfsPath, "10.0.0.5:/clips");
        put(config->nasPath, "//nas/clips");
        const test::Json doc = RENDER(get_playvideo_config_json(config.get(), d, n));
        test::expect_members(doc.root(), {N("mode", 1), N("cyclicIndex", 3), N("playIndex", -4), N("interval", 2),
                                          S("nfsPath", "10.0.0.5:/clips"), S("nasPath", "//nas/clips"),
                                          A("videoList")});
        const test::Json names = RENDER(get_playvideo_filename_json(files.get(), d, n));
        test::expect_members(names.root(), {A("videoList")});
        ASSERT_EQ(cJSON_GetArraySize(doc["videoList"]), static_cast<int>(slots.size()));
        ASSERT_EQ(cJSON_GetArraySize(names["videoList"]), static_cast<int>(slots.size()));
        for (size_t k = 0; k < slots.size(); ++k) {
            const std::string s = std::to_string(slots[k]);
            test::expect_members(test::element(doc["videoList"], static_cast<int>(k)),
                                 {N("index", slots[k]), S("name", "clip" + s), S("speed", s + "x")});
            test::expect_members(test::element(names["videoList"], static_cast<int>(k)),
                                 {N("index", slots[k]), S("name", "file" + s)});
        }
    }
}

TEST(Dehumidifying, FanModeTemperatureTextAndFan)
{
    const std::pair<double, const char *> cases[] = {
        {23.5, "23.50"}, {-7.126, "-7.13"}, {0, "0.00"}, {41.999, "42.00"}};
    for (const auto &c : cases) {
        dehumidifying_info_record info{};
        info.fanWorkingMode = 3;
        const dehumidifying_status_record status{c.first, 5, 250};
        const test::Json doc = RENDER(get_dehumidifying_info_json(&info, &status, d, n));
        test::expect_members(doc.root(), {N("fanWorkingMode", 3), S("temperature", c.second), N("fan", 250)});
    }
    // A refused buffer is detected before either record is read.
    char buffer[4] = {'x', 'x', 'x', 'x'};
    EXPECT_EQ(get_dehumidifying_info_json(nullptr, nullptr, buffer, 0), -1);
    EXPECT_EQ(get_dehumidifying_info_json(nullptr, nullptr, nullptr, 100), -1);
    EXPECT_EQ(buffer[0], 'x');
}

// ---- fisheye stream profiles ----

const char *const kModes[] = {"1OMode", "1PMode", "2PMode", "4RMode", "1O3RMode", "1P3RMode", "1O1P3RMode"};

TEST(FisheyeGeneral, LensSettingsThenModesWithGapsAndOneBasedRates)
{
    // Stream j of mode m: values that tell m and j apart, the 32-bit ones above the signed range.
    fisheye_stream_entry s[7][5];
    const char letters[] = {'B', 'M', 'H', 'b', 'B'};
    const double profiles[] = {0, 1, 2, 2, 0};
    for (int m = 0; m < 7; ++m)
        for (int j = 0; j < 5; ++j)
            s[m][j] = {99, uint8_t(10 * m + j + 1), uint8_t(m + 2), uint8_t(20 + j), uint8_t(j + 3), letters[j],
                       uint8_t(40 + m), 3000000000u + 1000 * m + j, uint32_t(1000 * m + j + 7),
                       uint32_t(5000 + 100 * m + j), uint8_t(200 + j), uint8_t(j % 2), 4000000000u - j};
    const fisheye_event_stream_entry e1o{7, 1, 0, 30, 4096};
    const fisheye_event_stream_entry e4r{7, 0, 29, 12, 3000000001u};
    video_fisheye_video_general_record r{};
    r.powerlineFreq = 60;
    r.correctModel = 1;
    r.displayModel = 2;
    r.installModel = 3;
    r.viewField = -4;
    r.mode1O = {{&s[0][0], &s[0][1]}, &e1o};
    r.mode1P = {{nullptr, &s[1][1]}, nullptr};
    r.mode2P = {{nullptr, nullptr}, nullptr}; // no stream at all: an empty list
    r.mode4R = {{&s[3][0], &s[3][1], &s[3][2], &s[3][3]}, &e4r};
    r.mode1O3R = {{nullptr, nullptr, nullptr, &s[4][3]}, nullptr};
    r.mode1P3R = {{&s[5][0], &s[5][1], &s[5][2], &s[5][3]}, nullptr};
    r.mode1O1P3R = {{&s[6][0], &s[6][1], nullptr, &s[6][3], &s[6][4]}, nullptr};
    const test::Json doc = RENDER(get_video_fisheye_video_general_json(&r, d, n));
    std::vector<test::Expected> root = {N("correctModel", 1), N("displayModel", 2), N("installModel", 3),
                                        N("viewField", -4), N("powerlineFreq", 60)};
    for (const char *mode : kModes)
        root.push_back(O(mode));
    test::expect_members(doc.root(), root);

    const std::vector<int> slots[7] = {{0, 1}, {1}, {}, {0, 1, 2, 3}, {3}, {0, 1, 2, 3}, {0, 1, 3, 4}};
    for (int m = 0; m < 7; ++m) {
        const cJSON *list = test::member(doc[kModes[m]], "streamList");
        ASSERT_EQ(cJSON_GetArraySize(list), static_cast<int>(slots[m].size())) << kModes[m];
        for (size_t k = 0; k < slots[m].size(); ++k) {
            const int j = slots[m][k];
            SCOPED_TRACE(std::string(kModes[m]) + " slot " + std::to_string(j));
            std::vector<test::Expected> want = {
                N("streamIndex", j), N("bitrate", 5000 + 100 * m + j), N("profileCodec", m + 2),
                N("width", 3000000000.0 + 1000 * m + j), N("height", 1000 * m + j + 7), N("framerate", 20 + j + 1),
                N("profile", profiles[j]), N("profileGop", 40 + m), N("rateMode", j + 3), N("vbrQuality", 200 + j),
                N("smartStreamLevel", 4000000000.0 - j), N("smartStreamEnable", j % 2)};
            if (j != 0)
                want.insert(want.begin() + 1, N("enable", 10 * m + j + 1));
            test::expect_members(test::element(list, static_cast<int>(k)), want);
        }
    }
    // Event streams: members before the list, frame rate one-based.
    test::expect_members(doc["1OMode"], {N("eventEnable", 1), N("eventBitrate", 4096), N("eventFramerate", 1),
                                         N("eventGop", 30), A("streamList")});
    test::expect_members(doc["4RMode"], {N("eventEnable", 0), N("eventBitrate", 3000000001.0),
                                         N("eventFramerate", 30), N("eventGop", 12), A("streamList")});
    test::expect_members(doc["1PMode"], {A("streamList")});
    test::expect_members(doc["2PMode"], {A("streamList")});
}

} // namespace
