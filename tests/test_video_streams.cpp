// The stream pages: profiles, overlays, frame rates and bit rates.
#include "support.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;

const char *const kNames[] = {"mainStream", "subStream", "thirdStream", "fourthStream", "fifthStream", "sixthStream"};

template <size_t M>
void put(char (&field)[M], const std::string &text)
{
    snprintf(field, M, "%s", text.c_str());
}

// Every read field of stream i holds its own value: 1000*i + the field's rank,
// negative for one field to catch an unsigned slip.
video_general_record distinct_general(int32_t count)
{
    video_general_record r{};
    r.streamCount = count;
    for (int i = 0; i < 6; ++i) {
        const int32_t b = 1000 * i;
        r.width[i] = b + 1;
        r.height[i] = b + 2;
        put(r.url[i], "/live/ch" + std::to_string(i));
        r.profileGop[i] = b + 3;
        r.rateMode[i] = b + 4;
        r.framerate[i] = b + 5;
        r.bitrate[i] = b + 6;
        r.smartStreamEnable[i] = b + 7;
        r.smartStreamLevel[i] = -(b + 8);
        r.profile[i] = b + 9;
        r.profileCodec[i] = b + 10;
        r.rateQuality[i] = b + 11;
        r.vbrQuality[i] = b + 12;
        r.enable[i] = b + 13;
    }
    r.rtspPort = 8554;
    return r;
}

std::vector<test::Expected> general_stream(int i)
{
    const double b = 1000 * i;
    std::vector<test::Expected> want;
    if (i != 0)
        want.push_back(N("enable", b + 13));
    for (const test::Expected &e : std::vector<test::Expected>{
             N("width", b + 1), N("height", b + 2), S("url", "/live/ch" + std::to_string(i)),
             N("profileGop", b + 3), N("rateMode", b + 4), N("framerate", b + 5), N("bitrate", b + 6),
             N("smartStreamEnable", b + 7), N("smartStreamLevel", -(b + 8)), N("profile", b + 9),
             N("profileCodec", b + 10), N("rateQuality", b + 11), N("vbrQuality", b + 12)})
        want.push_back(e);
    return want;
}

TEST(VideoGeneral, EveryStreamKeyByKeyAndTheMainStreamHasNoEnable)
{
    const video_general_record r = distinct_general(6);
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_video_general_json(&r, d, n); }));
    test::expect_members(doc.root(), {O("streamList"), N("rtspPort", 8554)});
    const cJSON *streams = doc["streamList"];
    EXPECT_EQ(test::keys(streams), std::vector<std::string>(kNames, kNames + 6));
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(kNames[i]);
        test::expect_members(test::member(streams, kNames[i]), general_stream(i));
    }
}

TEST(VideoStreams, StreamCountPicksTheNamedStreams)
{
    struct Case {
        int32_t count;
        size_t streams; // objects in "streamList"
    };
    const Case cases[] = {{0, 0}, {1, 1}, {3, 3}, {-2, 0}, {6, 6}};
    for (const Case &c : cases) {
        SCOPED_TRACE("streamCount " + std::to_string(c.count));
        const std::vector<std::string> names(kNames, kNames + c.streams);

        const video_general_record g = distinct_general(c.count);
        test::Json general(test::rendered([&](char *d, int32_t n) { return get_video_general_json(&g, d, n); }));
        EXPECT_EQ(test::keys(general.root()), (std::vector<std::string>{"streamList", "rtspPort"}));
        EXPECT_EQ(test::keys(general["streamList"]), names);

        video_advanced_record a{};
        a.streamCount = c.count;
        test::Json advanced(test::rendered([&](char *d, int32_t n) { return get_video_advanced_json(&a, d, n); }));
        EXPECT_EQ(test::keys(advanced.root()), (std::vector<std::string>{"streamList", "sensorList"}));
        EXPECT_EQ(test::keys(advanced["streamList"]), names);
        EXPECT_EQ(cJSON_GetArraySize(advanced["sensorList"]), 2);
    }
}

TEST(VideoAdvanced, OverlayOfEveryStreamAndBothSensors)
{
    video_advanced_record r{};
    r.streamCount = 2;
    for (int i = 0; i < 6; ++i) {
        const int32_t b = 100 * (i + 1);
        r.enable[i] = b + 1;
        put(r.string[i], "overlay " + std::to_string(i));
        r.dateTimeEnable[i] = b + 2;
        r.fontSize[i] = b + 3;
        put(r.fontColor[i], "#F0000" + std::to_string(i));
        r.backgroundEnable[i] = b + 4;
        put(r.backgroundColor[i], "#0B000" + std::to_string(i));
        r.textPosition[i] = b + 5;
        r.dateTimePosition[i] = b + 6;
        r.dateTimeFormat[i] = -(b + 7);
    }
    r.osdZoomTime[0] = 11;
    r.osdZoomTime[1] = -12;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_video_advanced_json(&r, d, n); }));
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
    const cJSON *sensors = doc["sensorList"];
    ASSERT_EQ(cJSON_GetArraySize(sensors), 2);
    test::expect_members(test::element(sensors, 0), {N("sensorIndex", 0), N("osdZoomTime", 11)});
    test::expect_members(test::element(sensors, 1), {N("sensorIndex", 1), N("osdZoomTime", -12)});
}

// Group g of stream i offers `size` resolutions whose values tell where they
// came from: width s*1000+g*100+r, height +10, frame rate +20.
void fill_group(video_codec_group_entry &group, int i, int g, int32_t size)
{
    group.availableSize = size;
    for (int r = 0; r < 10; ++r) {
        const int32_t b = i * 1000 + g * 100 + r;
        group.resolution[r] = {b, b + 10, b + 20, -1, -2};
    }
}

void expect_group(const cJSON *stream, const char *codec, int i, int g, int32_t size)
{
    SCOPED_TRACE(codec);
    const cJSON *group = test::member(stream, codec);
    test::expect_members(group, {N("availableSize", size), A("resolution")});
    const cJSON *list = test::member(group, "resolution");
    ASSERT_EQ(cJSON_GetArraySize(list), size);
    for (int r = 0; r < size; ++r) {
        const double b = i * 1000 + g * 100 + r;
        test::expect_members(test::element(list, r), {N("width", b), N("height", b + 10), N("framerate", b + 20)});
    }
}

TEST(VideoFramerate, ValidStreamsWithTheirCodecGroups)
{
    video_framerate_record r{};
    r.streamCount = 4;
    const int32_t valid[] = {1, 0, 7, 1, 1, 1};
    const int32_t mjpeg[] = {0, 1, 1, 0, 1, 1};
    const int32_t sizes[4][3] = {{3, 2, 1}, {1, 1, 1}, {0, 10, 4}, {2, 1, 3}};
    for (int i = 0; i < 6; ++i) {
        r.streamValid[i] = valid[i];
        r.mjpegSupport[i] = mjpeg[i];
    }
    for (int i = 0; i < 4; ++i) {
        fill_group(r.streams[i].h264, i, 0, sizes[i][0]);
        fill_group(r.streams[i].h265, i, 1, sizes[i][1]);
        fill_group(r.streams[i].mjpeg, i, 2, sizes[i][2]);
    }
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_video_framerate_json(&r, d, n); }));
    // The sub stream is invalid: absent, though still counted.
    test::expect_members(doc.root(),
                         {N("streamCount", 4), O("mainStream"), O("thirdStream"), O("fourthStream")});

    const cJSON *main = doc["mainStream"];
    EXPECT_EQ(test::keys(main), (std::vector<std::string>{"H264", "H265"}));
    expect_group(main, "H264", 0, 0, 3);
    expect_group(main, "H265", 0, 1, 2);

    const cJSON *third = doc["thirdStream"];
    EXPECT_EQ(test::keys(third), (std::vector<std::string>{"H264", "H265", "Mjpeg"}));
    expect_group(third, "H264", 2, 0, 0); // no resolution: "resolution": []
    expect_group(third, "H265", 2, 1, 10);
    expect_group(third, "Mjpeg", 2, 2, 4);

    EXPECT_EQ(test::keys(doc["fourthStream"]), (std::vector<std::string>{"H264", "H265"}));
}

TEST(VideoFramerate, CountReachesTheFifthStreamAtMost)
{
    struct Case {
        int32_t count;
        size_t streams;
    };
    const Case cases[] = {{0, 0}, {-1, 0}, {2, 2}, {5, 5}};
    for (const Case &c : cases) {
        video_framerate_record r{};
        r.streamCount = c.count;
        for (int i = 0; i < 6; ++i)
            r.streamValid[i] = 1;
        test::Json doc(test::rendered([&](char *d, int32_t n) { return get_video_framerate_json(&r, d, n); }));
        std::vector<std::string> want = {"streamCount"};
        want.insert(want.end(), kNames, kNames + c.streams);
        EXPECT_EQ(test::keys(doc.root()), want) << "streamCount " << c.count;
        EXPECT_EQ(cJSON_GetNumberValue(doc["streamCount"]), c.count);
    }
}

std::vector<double> numbers(const cJSON *array)
{
    std::vector<double> out;
    for (const cJSON *c = array != nullptr ? array->child : nullptr; c != nullptr; c = c->next) {
        EXPECT_TRUE(cJSON_IsNumber(c));
        out.push_back(c->valuedouble);
    }
    return out;
}

TEST(VideoBitInfo, NonZeroSlotsInSlotOrderForAlwaysFiveStreams)
{
    video_bit_info_record r{};
    r.bitrate[0][1] = 2048;
    r.bitrate[0][3] = 1024;
    for (int s = 0; s < 30; ++s)
        r.bitrate[1][s] = 100 + s; // every slot used
    r.bitrate[2][29] = 64;         // only the last slot
    r.bitrate[3][0] = -5;          // a signed value stays signed
    r.bitrate[3][2] = 512;
    // stream 4: every slot empty
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_video_bit_info_json(&r, d, n); }));
    EXPECT_EQ(test::keys(doc.root()), std::vector<std::string>(kNames, kNames + 5));

    std::vector<double> full;
    for (int s = 0; s < 30; ++s)
        full.push_back(100 + s);
    const std::vector<double> want[5] = {{2048, 1024}, full, {64}, {-5, 512}, {}};
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(kNames[i]);
        const cJSON *stream = doc[kNames[i]];
        test::expect_members(stream, {A("bitrate")});
        EXPECT_EQ(numbers(test::member(stream, "bitrate")), want[i]);
    }
}

} // namespace
