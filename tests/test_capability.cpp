// The capability documents: option lists, sections, and the video, audio and
// PTZ tables.
#include "support.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using test::A;
using test::N;
using test::O;
using test::S;
using Keys = std::vector<std::string>;

template <size_t M>
void put(char (&field)[M], const std::string &text)
{
    snprintf(field, M, "%s", text.c_str());
}

cap_entry entry(const std::string &name, const std::string &values, const cap_group *group = nullptr,
                const char *range = "")
{
    cap_entry e{};
    e.group = group;
    put(e.name, name);
    put(e.values, values);
    put(e.range, range);
    return e;
}

#define RENDER(call) test::Json(test::rendered([&](char *d, int32_t n) { return call; }))

std::unique_ptr<cap_ptz_record> ptz(const std::vector<cap_entry> &entries)
{
    auto r = std::make_unique<cap_ptz_record>();
    for (size_t k = 0; k < entries.size(); ++k)
        r->entries[k] = entries[k];
    return r;
}

TEST(CapOptionList, Tokens)
{
    struct Case {
        const char *what;
        std::string values;
        std::vector<test::Expected> members;
        const char *range;
    };
    const Case cases[] = {
        {"three options", "<0>Off;<1>On;<2>Auto", {N("Off", 0), N("On", 1), N("Auto", 2)}, ""},
        {"a range replaces the options", "<0>Off;<1>On", {S("range", "1~100")}, "1~100"},
        {"runs of separators", ";;<5>A;;;<6>B;", {N("A", 5), N("B", 6)}, ""},
        {"nothing after the bracket", "<7>", {N("", 7)}, ""},
        {"text before the bracket", "xx<3>Three", {N("Three", 3)}, ""},
        {"no opening bracket", "NoBracket;<4>Four", {N("Four", 4)}, ""},
        {"no closing bracket", "<9 NoClose;<1>x", {N("x", 1)}, ""},
        {"closing bracket only before the opening one", "9>Nine<;<2>y", {N("y", 2)}, ""},
        {"closing bracket in the label", "<1>a>b", {N("a>b", 1)}, ""},
        {"a second tag is label", "<1><2>x", {N("<2>x", 1)}, ""},
        {"negative number", "<-12>Minus", {N("Minus", -12)}, ""},
        {"signed and spaced number", "<+3>Plus;< 42>Space", {N("Plus", 3), N("Space", 42)}, ""},
        {"number stops at other text", "<12abc>Mixed;<x5>Lead", {N("Mixed", 12), N("Lead", 0)}, ""},
        {"empty number", "<>Empty", {N("Empty", 0)}, ""},
        {"numbers past 32 bits are held at the range's ends", "<2147483647>Max;<2147483648>Over;<-99999999999>Under",
         {N("Max", 2147483647), N("Over", 2147483647), N("Under", -2147483648.0)}, ""},
        {"repeated label kept twice", "<1>Dup;<2>Dup", {N("Dup", 1), N("Dup", 2)}, ""},
        {"label cut at 31", "<8>" + std::string(40, 'L'), {N(std::string(31, 'L').c_str(), 8)}, ""},
        {"empty list", "", {}, ""},
        {"separators only", ";;;", {}, ""},
        {"only malformed tokens", "abc;<;>;>1<", {}, ""},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        // "past" lies beyond the count and stays out.
        auto r = ptz({entry("opt", c.values, nullptr, c.range), entry("next", "<1>One"), entry("past", "<2>x")});
        const test::Json doc = RENDER(get_cap_ptz_json(r.get(), 2, d, n));
        test::expect_members(doc.root(), {O("opt"), O("next"), A("specialPresetList")});
        test::expect_members(doc["opt"], c.members);
        test::expect_members(doc["next"], {N("One", 1)});
    }
}

TEST(CapOptionList, FieldsFilledToTheirEnd)
{
    auto r = ptz({cap_entry{}, entry("next", "<1>One")});
    memset(r->entries[0].name, 'n', sizeof r->entries[0].name);     // a name without its NUL
    memset(r->entries[0].values, 'v', sizeof r->entries[0].values); // one token filling the whole list
    memcpy(r->entries[0].values + 100, "<77>", 4);
    const test::Json doc = RENDER(get_cap_ptz_json(r.get(), 2, d, n));
    const std::string name(128, 'n');
    test::expect_members(doc.root(), {O(name.c_str()), O("next"), A("specialPresetList")});
    test::expect_members(test::member(doc.root(), name.c_str()), {N(std::string(31, 'v').c_str(), 77)});
}

TEST(CapOptionList, SerializingSplitsTheListInPlaceButARefusedCallDoesNot)
{
    auto r = ptz({entry("opt", "<0>Off;<1>On")});
    EXPECT_EQ(get_cap_ptz_json(r.get(), 1, nullptr, 100), -1);
    char one[1];
    EXPECT_EQ(get_cap_ptz_json(r.get(), 1, one, 0), -1);
    EXPECT_STREQ(r->entries[0].values, "<0>Off;<1>On");

    const test::Json first = RENDER(get_cap_ptz_json(r.get(), 1, d, n));
    test::expect_members(first["opt"], {N("Off", 0), N("On", 1)});
    // NULs now stand over each '>' and over the ';', so the list ends inside
    // its first token, which has lost its '>'.
    EXPECT_EQ(memcmp(r->entries[0].values, "<0\0Off\0<1\0On", 13), 0);
    const test::Json second = RENDER(get_cap_ptz_json(r.get(), 1, d, n));
    test::expect_members(second["opt"], {});
}

TEST(CapPtz, UsedSpecialPresets)
{
    auto r = ptz({});
    int32_t ids[21] = {0, 33, -1, 0, 92};
    ids[20] = 120;
    for (int p = 0; p < 21; ++p) {
        r->specialPresets[p] = {ids[p], p % 2, {}};
        put(r->specialPresets[p].name, "preset " + std::to_string(p));
    }
    const test::Json doc = RENDER(get_cap_ptz_json(r.get(), 0, d, n));
    test::expect_members(doc.root(), {A("specialPresetList")});
    const cJSON *list = doc["specialPresetList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 3);
    test::expect_members(test::element(list, 0), {N("id", 33), N("isExist", 1), S("name", "preset 1")});
    test::expect_members(test::element(list, 1), {N("id", 92), N("isExist", 0), S("name", "preset 4")});
    test::expect_members(test::element(list, 2), {N("id", 120), N("isExist", 0), S("name", "preset 20")});
}

// ---- general document: sections ----

TEST(CapCommon, SectionsNestByParentInFirstUseOrder)
{
    const cap_group image{"", "image"}, exposure{"image", "exposure"}, orphan{"missing", "orphan"};
    const cap_group early{"late", "early"}, late{"", "late"}, iris{"exposure", "iris"};
    std::vector<cap_entry> e = {
        entry("language", "<0>" + std::string(70, 'q')), // labels keep 63 characters here
        entry("mirror", "<1>On", &image),
        entry("shutter", "<2>Fast", &exposure),
        entry("flip", "<3>Up", &image),
        entry("lost", "<4>x", &orphan),
        entry("tooEarly", "<5>x", &early), // its parent comes after it
        entry("after", "<6>Late", &late),
        entry("irisMode", "<7>Auto", &iris),
        entry("stillEarly", "<8>Now", &early), // the parent exists now
        entry("gain", "<9>High", &exposure),
    };
    const test::Json doc = RENDER(get_cap_common_json(e.data(), static_cast<int32_t>(e.size()), d, n));
    test::expect_members(doc.root(), {O("language"), O("image"), O("late")});
    test::expect_members(doc["language"], {N(std::string(63, 'q').c_str(), 0)});
    const cJSON *img = doc["image"];
    test::expect_members(img, {O("mirror"), O("exposure"), O("flip")});
    const cJSON *exp = test::member(img, "exposure");
    test::expect_members(exp, {O("shutter"), O("iris"), O("gain")});
    test::expect_members(test::member(exp, "iris"), {O("irisMode")});
    test::expect_members(test::member(test::member(exp, "iris"), "irisMode"), {N("Auto", 7)});
    test::expect_members(doc["late"], {O("after"), O("early")});
    test::expect_members(test::member(doc["late"], "early"), {O("stillEarly")});
}

TEST(CapCommon, TenSectionsAtMostWithExactNames)
{
    cap_group groups[12] = {{"", "Video"}, {"", "video"}};
    memset(groups[2].name, 'g', sizeof groups[2].name); // no NUL: 127 characters are used
    std::vector<cap_entry> e;
    for (int g = 0; g < 12; ++g) {
        if (g > 2)
            put(groups[g].name, "s" + std::to_string(g));
        e.push_back(entry("in" + std::to_string(g), "<" + std::to_string(g) + ">v", &groups[g]));
    }
    // Existing sections still take entries once the table is full.
    e.push_back(entry("again", "<1>x", &groups[0]));
    e.push_back(entry("more", "<2>x", &groups[2]));
    const test::Json doc = RENDER(get_cap_common_json(e.data(), static_cast<int32_t>(e.size()), d, n));
    const std::string g127(127, 'g');
    EXPECT_EQ(test::keys(doc.root()), (Keys{"Video", "video", g127, "s3", "s4", "s5", "s6", "s7", "s8", "s9"}));
    test::expect_members(doc["Video"], {O("in0"), O("again")});
    test::expect_members(doc["video"], {O("in1")});
    test::expect_members(test::member(doc.root(), g127.c_str()), {O("in2"), O("more")});
    test::expect_members(doc["s9"], {O("in9")});
    const test::Json none = RENDER(get_cap_common_json(nullptr, 5, d, n)); // no entry list at all
    EXPECT_TRUE(test::keys(none.root()).empty());
}

// A section is found by a non-empty name only: every entry of a section
// without a name opens one of its own, and each takes a slot of the ten.
TEST(CapCommon, UnnamedSectionsAreNeverFoundAgain)
{
    const cap_group unnamed{"", ""}, named{"", "named"}, child{"named", "child"};
    std::vector<cap_entry> e = {
        entry("first", "<1>A", &unnamed), entry("inNamed", "<2>B", &named), entry("second", "<3>C", &unnamed),
        entry("inChild", "<4>D", &child),
    };
    // Four sections so far (the child one under "named"); six more fill the
    // table, and the next one has no room.
    for (int k = 0; k < 6; ++k)
        e.push_back(entry("filler" + std::to_string(k), "<5>E", &unnamed));
    e.push_back(entry("noRoom", "<6>F", &unnamed));
    const test::Json doc = RENDER(get_cap_common_json(e.data(), static_cast<int32_t>(e.size()), d, n));
    const Keys keys = test::keys(doc.root());
    ASSERT_EQ(keys.size(), 9u);
    EXPECT_EQ(keys[0], "");
    EXPECT_EQ(keys[1], "named");
    EXPECT_EQ(keys[2], "");
    const cJSON *first = doc.root()->child;
    test::expect_members(first, {O("first")});
    test::expect_members(first->next, {O("inNamed"), O("child")});
    test::expect_members(first->next->next, {O("second")});
    test::expect_members(test::member(doc["named"], "child"), {O("inChild")});
    test::expect_members(doc.root()->child->next->next->next, {O("filler0")});
    for (const cJSON *c = doc.root()->child; c != nullptr; c = c->next)
        EXPECT_EQ(test::member(c, "noRoom"), nullptr);
}

// ---- video ----

TEST(CapVideo, EnabledStreamsWithCodecsBitratesAndGopRange)
{
    auto r = std::make_unique<cap_general_video_record>();
    r->entries[0] = entry("rateMode", "<0>CBR;<1>VBR");
    r->entries[1] = entry("unused", "<0>x"); // past the count
    r->streamCount = 6; // the sixth stream has a name here
    const int32_t enable[6] = {1, 0, 5, 1, 1, 1}, mjpeg[6] = {0, 1, 1, 0, 1, 1};
    const int32_t sizes[6][3] = {{2, 1, 3}, {2, 1, 3}, {2, 1, 3}, {0, 10, 3}};
    for (int s = 0; s < 6; ++s) {
        r->streamEnable[s] = enable[s];
        r->mjpegSupport[s] = mjpeg[s];
        video_codec_cap *codecs[] = {&r->streams[s].h264, &r->streams[s].h265, &r->streams[s].mjpeg};
        for (int g = 0; g < 3; ++g) {
            codecs[g]->availableSize = sizes[s][g];
            for (int k = 0; k < 10; ++k) {
                const int32_t b = s * 10000 + g * 1000 + k * 10;
                codecs[g]->resolutions[k] = {b + 1, b + 2, b + 3, b + 4, b + 5};
            }
        }
    }
    r->bitrates[0][0] = 8192;
    r->bitrates[0][5] = 1024;
    r->bitrates[0][29] = 512;
    r->bitrates[2][1] = 256; // stream 3: every slot empty
    r->gopMin = -5;
    r->gopMax = 300;
    const test::Json doc = RENDER(get_cap_general_video_json(r.get(), 1, d, n));
    test::expect_members(doc.root(), {O("rateMode"), N("streamCount", 6), O("mainStream"), O("thirdStream"),
                                      O("fourthStream"), O("fifthStream"), O("sixthStream")});
    test::expect_members(doc["rateMode"], {N("CBR", 0), N("VBR", 1)});
    const char *names[] = {"mainStream", "subStream", "thirdStream", "fourthStream"};
    const char *codecs[] = {"H264", "H265", "Mjpeg"};
    const std::vector<double> bitrates[] = {{8192, 1024, 512}, {}, {256}, {}};
    for (int s : {0, 2, 3}) {
        const cJSON *stream = doc[names[s]];
        std::vector<test::Expected> want = {O("H264"), O("H265"), A("bitrate"), S("gopRange", "-5~300")};
        if (mjpeg[s])
            want.insert(want.begin() + 2, O("Mjpeg"));
        test::expect_members(stream, want);
        std::vector<double> got;
        for (const cJSON *c = test::member(stream, "bitrate")->child; c != nullptr; c = c->next)
            got.push_back(c->valuedouble);
        EXPECT_EQ(got, bitrates[s]) << names[s];
        for (int g = 0; g < 2 + mjpeg[s]; ++g) {
            SCOPED_TRACE(std::string(names[s]) + " " + codecs[g]);
            const double base = s * 10000 + g * 1000;
            const cJSON *c = test::member(stream, codecs[g]);
            test::expect_members(c, {N("availableSize", sizes[s][g]), N("defResWidth", base + 1),
                                     N("defResHeight", base + 2), A("resolution")});
            const cJSON *list = test::member(c, "resolution");
            ASSERT_EQ(cJSON_GetArraySize(list), sizes[s][g]);
            for (int k = 0; k < sizes[s][g]; ++k) {
                const double b = base + k * 10;
                test::expect_members(test::element(list, k), {N("width", b + 1), N("height", b + 2),
                                                              N("framerate", b + 3), N("parityFramerate", b + 5),
                                                              N("defBitRate", b + 4)});
            }
        }
    }
}

// ---- audio ----

TEST(CapAudio, SampleRatesPerEncoderThenBitratesPerRate)
{
    auto r = std::make_unique<cap_audio_record>();
    r->entries[0] = entry("audioInput", "<0>Mic;<1>Line");
    r->encoders[0] = {3, 2, {4, 0}};
    r->encoders[1] = {6, 3, {0, 1, 2}}; // unknown type: no array
    r->encoders[2] = {1, 7, {0, 1, 2, 3, 4, 5, -1, 2}};
    r->encoders[3] = {5, 0, {1}};
    r->encoders[4] = {2, 1, {2, 3}};
    r->bitrateTables[0] = {999, 3, {16, 20, 256}};
    r->bitrateTables[1] = {0, 10, {16, 24, 32, 48, 64, 96, 128, 144, 192, 256}};
    r->bitrateTables[2] = {0, 0, {64}};
    r->bitrateTables[3] = {0, 2, {-16, 0}};
    r->bitrateTables[4] = {0, 1, {192, 256}};
    const test::Json doc = RENDER(get_cap_audio_json(r.get(), 1, d, n));
    test::expect_members(doc.root(), {O("audioInput"), A("G.711 a-Law Sample"), A("AAC LC Sample"),
                                      A("G.726 Sample"), A("G.711 u-Law Sample"), A("8KHz Bitrate"),
                                      A("16KHz Bitrate"), A("32KHz Bitrate"), A("44.1KHz Bitrate"),
                                      A("48KHz Bitrate")});
    const std::pair<const char *, std::vector<std::vector<test::Expected>>> lists[] = {
        {"G.711 a-Law Sample", {{N("48KHz", 4)}, {N("8KHz", 0)}}},
        {"AAC LC Sample",
         {{N("8KHz", 0)}, {N("16KHz", 1)}, {N("32KHz", 2)}, {N("44.1KHz", 3)}, {N("48KHz", 4)}, {}, {}}},
        {"G.726 Sample", {}},
        {"G.711 u-Law Sample", {{N("32KHz", 2)}}},
        {"8KHz Bitrate", {{N("16kbps", 16)}, {}, {N("256kbps", 256)}}},
        {"16KHz Bitrate",
         {{N("16kbps", 16)}, {N("24kbps", 24)}, {N("32kbps", 32)}, {N("48kbps", 48)}, {N("64kbps", 64)},
          {N("96kbps", 96)}, {N("128kbps", 128)}, {N("144kbps", 144)}, {N("192kbps", 192)}, {N("256kbps", 256)}}},
        {"32KHz Bitrate", {}},
        {"44.1KHz Bitrate", {{}, {}}},
        {"48KHz Bitrate", {{N("192kbps", 192)}}},
    };
    for (const auto &list : lists) {
        SCOPED_TRACE(list.first);
        ASSERT_EQ(cJSON_GetArraySize(doc[list.first]), static_cast<int>(list.second.size()));
        for (size_t i = 0; i < list.second.size(); ++i)
            test::expect_members(test::element(doc[list.first], static_cast<int>(i)), list.second[i]);
    }
}

} // namespace
