// The fisheye stream profiles: lens settings and the seven display modes.
#include "support.h"

#include <string>
#include <vector>

namespace {

using test::A;
using test::N;

const char *const kModes[] = {"1OMode", "1PMode", "2PMode", "4RMode", "1O3RMode", "1P3RMode", "1O1P3RMode"};

TEST(FisheyeGeneral, AllSlotsEmptyGivesSevenBareModes)
{
    video_fisheye_video_general_record r{};
    r.powerlineFreq = 60;
    r.correctModel = 1;
    r.displayModel = 2;
    r.installModel = 3;
    r.viewField = -4;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_video_fisheye_video_general_json(&r, d, n); }));
    std::vector<std::string> keys = {"correctModel", "displayModel", "installModel", "viewField", "powerlineFreq"};
    keys.insert(keys.end(), kModes, kModes + 7);
    EXPECT_EQ(test::keys(doc.root()), keys);
    test::expect_members(doc.root(), {N("correctModel", 1), N("displayModel", 2), N("installModel", 3),
                                      N("viewField", -4), N("powerlineFreq", 60), test::O("1OMode"),
                                      test::O("1PMode"), test::O("2PMode"), test::O("4RMode"), test::O("1O3RMode"),
                                      test::O("1P3RMode"), test::O("1O1P3RMode")});
    for (const char *mode : kModes) {
        SCOPED_TRACE(mode);
        const cJSON *m = doc[mode];
        test::expect_members(m, {A("streamList")});
        EXPECT_EQ(cJSON_GetArraySize(test::member(m, "streamList")), 0);
    }
}

// A stream whose values tell its mode m and slot j apart.
fisheye_stream_entry stream(int m, int j, char profile)
{
    fisheye_stream_entry s{};
    s.reserved = 99;
    s.enable = static_cast<uint8_t>(10 * m + j + 1);
    s.profileCodec = static_cast<uint8_t>(m + 2);
    s.framerate = static_cast<uint8_t>(20 + j);
    s.rateMode = static_cast<uint8_t>(j + 3);
    s.profile = profile;
    s.profileGop = static_cast<uint8_t>(40 + m);
    s.width = 3000000000u + 1000 * m + j; // above the signed range
    s.height = 1000 * m + j + 7;
    s.bitrate = 5000 + 100 * m + j;
    s.vbrQuality = static_cast<uint8_t>(200 + j);
    s.smartStreamEnable = static_cast<uint8_t>(j % 2);
    s.smartStreamLevel = 4000000000u - j;
    return s;
}

std::vector<test::Expected> stream_members(int m, int j, double profile)
{
    std::vector<test::Expected> want = {N("streamIndex", j)};
    if (j != 0)
        want.push_back(N("enable", 10 * m + j + 1));
    for (const test::Expected &e : std::vector<test::Expected>{
             N("bitrate", 5000 + 100 * m + j), N("profileCodec", m + 2), N("width", 3000000000.0 + 1000 * m + j),
             N("height", 1000 * m + j + 7), N("framerate", 20 + j + 1), N("profile", profile),
             N("profileGop", 40 + m), N("rateMode", j + 3), N("vbrQuality", 200 + j),
             N("smartStreamLevel", 4000000000.0 - j), N("smartStreamEnable", j % 2)})
        want.push_back(e);
    return want;
}

TEST(FisheyeGeneral, StreamsKeyByKeyWithGapsAndOneBasedRates)
{
    fisheye_stream_entry s[7][5];
    const char letters[] = {'B', 'M', 'H', 'b', 'B'};
    const double profiles[] = {0, 1, 2, 2, 0};
    for (int m = 0; m < 7; ++m)
        for (int j = 0; j < 5; ++j)
            s[m][j] = stream(m, j, letters[j]);
    const fisheye_event_stream_entry e1o{7, 1, 0, 30, 4096};
    const fisheye_event_stream_entry e4r{7, 0, 29, 12, 3000000001u};

    video_fisheye_video_general_record r{};
    r.mode1O = {{&s[0][0], &s[0][1]}, &e1o};
    r.mode1P = {{nullptr, &s[1][1]}, nullptr};
    r.mode2P = {{&s[2][0], nullptr}, nullptr};
    r.mode4R = {{&s[3][0], &s[3][1], &s[3][2], &s[3][3]}, &e4r};
    r.mode1O3R = {{nullptr, nullptr, nullptr, &s[4][3]}, nullptr};
    r.mode1P3R = {{&s[5][0], &s[5][1], &s[5][2], &s[5][3]}, nullptr};
    r.mode1O1P3R = {{&s[6][0], &s[6][1], nullptr, &s[6][3], &s[6][4]}, nullptr};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_video_fisheye_video_general_json(&r, d, n); }));

    const std::vector<int> slots[7] = {{0, 1}, {1}, {0}, {0, 1, 2, 3}, {3}, {0, 1, 2, 3}, {0, 1, 3, 4}};
    for (int m = 0; m < 7; ++m) {
        SCOPED_TRACE(kModes[m]);
        const cJSON *list = test::member(doc[kModes[m]], "streamList");
        ASSERT_EQ(cJSON_GetArraySize(list), static_cast<int>(slots[m].size()));
        for (size_t k = 0; k < slots[m].size(); ++k) {
            const int j = slots[m][k];
            SCOPED_TRACE("slot " + std::to_string(j));
            test::expect_members(test::element(list, static_cast<int>(k)), stream_members(m, j, profiles[j]));
        }
    }
    // Event streams: members before the list, frame rate one-based.
    test::expect_members(doc["1OMode"], {N("eventEnable", 1), N("eventBitrate", 4096), N("eventFramerate", 1),
                                         N("eventGop", 30), A("streamList")});
    test::expect_members(doc["4RMode"], {N("eventEnable", 0), N("eventBitrate", 3000000001.0),
                                         N("eventFramerate", 30), N("eventGop", 12), A("streamList")});
    test::expect_members(doc["1PMode"], {A("streamList")});
}

} // namespace
