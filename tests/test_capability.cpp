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

template <size_t M>
void put(char (&field)[M], const std::string &text)
{
    snprintf(field, M, "%s", text.c_str());
}

cap_entry entry(const char *name, const std::string &values, const cap_group *group = nullptr,
                const char *range = "")
{
    cap_entry e{};
    e.group = group;
    put(e.name, name);
    put(e.values, values);
    put(e.range, range);
    return e;
}

// The single entry "opt" of a PTZ document whose values are `values`.
std::string ptz_with(const std::string &values)
{
    auto r = std::make_unique<cap_ptz_record>();
    *r = cap_ptz_record{};
    r->entries[0] = entry("opt", values);
    return test::rendered([&](char *d, int32_t n) { return get_cap_ptz_json(r.get(), 1, d, n); });
}

TEST(CapOptionList, Tokens)
{
    const std::string long40(40, 'L');
    struct Case {
        const char *what;
        std::string values;
        std::vector<test::Expected> members;
    };
    const Case cases[] = {
        {"three options", "<0>Off;<1>On;<2>Auto", {N("Off", 0), N("On", 1), N("Auto", 2)}},
        {"runs of separators", ";;<5>A;;;<6>B;", {N("A", 5), N("B", 6)}},
        {"nothing after the bracket", "<7>", {N("", 7)}},
        {"text before the bracket", "xx<3>Three", {N("Three", 3)}},
        {"no opening bracket", "NoBracket;<4>Four", {N("Four", 4)}},
        {"no closing bracket", "<9 NoClose;<1>x", {N("x", 1)}},
        {"closing bracket only before the opening one", "9>Nine<;<2>y", {N("y", 2)}},
        {"closing bracket in the label", "<1>a>b", {N("a>b", 1)}},
        {"a second tag is label", "<1><2>x", {N("<2>x", 1)}},
        {"negative number", "<-12>Minus", {N("Minus", -12)}},
        {"signed and spaced number", "<+3>Plus;< 42>Space", {N("Plus", 3), N("Space", 42)}},
        {"number stops at other text", "<12abc>Mixed;<x5>Lead", {N("Mixed", 12), N("Lead", 0)}},
        {"empty number", "<>Empty", {N("Empty", 0)}},
        {"repeated label kept twice", "<1>Dup;<2>Dup", {N("Dup", 1), N("Dup", 2)}},
        {"label cut at 31", "<8>" + long40, {N(std::string(31, 'L').c_str(), 8)}},
        {"empty list", "", {}},
        {"separators only", ";;;", {}},
        {"only malformed tokens", "abc;<;>;>1<", {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        test::Json doc(ptz_with(c.values));
        test::expect_members(doc.root(), {O("opt"), A("specialPresetList")});
        test::expect_members(doc["opt"], c.members);
    }
}

TEST(CapOptionList, RangeReplacesTheOptions)
{
    auto r = std::make_unique<cap_ptz_record>();
    *r = cap_ptz_record{};
    r->entries[0] = entry("tiltSpeed", "<0>Off;<1>On", nullptr, "1~100");
    r->entries[1] = entry("zoom", "<0>Off;<1>On");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_cap_ptz_json(r.get(), 2, d, n); }));
    test::expect_members(doc.root(), {O("tiltSpeed"), O("zoom"), A("specialPresetList")});
    test::expect_members(doc["tiltSpeed"], {S("range", "1~100")});
    test::expect_members(doc["zoom"], {N("Off", 0), N("On", 1)});
}

TEST(CapOptionList, FieldsFilledToTheirEnd)
{
    auto r = std::make_unique<cap_ptz_record>();
    *r = cap_ptz_record{};
    cap_entry &e = r->entries[0];
    memset(e.name, 'n', sizeof e.name);       // a name without its NUL
    memset(e.values, 'v', sizeof e.values);   // one token filling the whole list
    memcpy(e.values + 100, "<77>", 4);
    r->entries[1] = entry("next", "<1>One");
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_cap_ptz_json(r.get(), 2, d, n); }));
    test::expect_members(doc.root(), {O(std::string(128, 'n').c_str()), O("next"), A("specialPresetList")});
    test::expect_members(test::member(doc.root(), std::string(128, 'n').c_str()),
                         {N(std::string(31, 'v').c_str(), 77)});
}

TEST(CapOptionList, SerializingSplitsTheListInPlace)
{
    auto r = std::make_unique<cap_ptz_record>();
    *r = cap_ptz_record{};
    r->entries[0] = entry("opt", "<0>Off;<1>On");
    test::Json first(test::rendered([&](char *d, int32_t n) { return get_cap_ptz_json(r.get(), 1, d, n); }));
    test::expect_members(first["opt"], {N("Off", 0), N("On", 1)});
    // The first call left NULs over the first token's '>' and over the ';',
    // so the list now ends inside its first token, which has lost its '>'.
    EXPECT_EQ(memcmp(r->entries[0].values, "<0\0Off\0<1\0On", 13), 0);
    test::Json second(test::rendered([&](char *d, int32_t n) { return get_cap_ptz_json(r.get(), 1, d, n); }));
    test::expect_members(second["opt"], {});
}

TEST(CapOptionList, RefusedBufferLeavesTheListAlone)
{
    auto r = std::make_unique<cap_ptz_record>();
    *r = cap_ptz_record{};
    r->entries[0] = entry("opt", "<0>Off;<1>On");
    char one[1];
    EXPECT_EQ(get_cap_ptz_json(r.get(), 1, nullptr, 100), -1);
    EXPECT_EQ(get_cap_ptz_json(r.get(), 1, one, 0), -1);
    EXPECT_STREQ(r->entries[0].values, "<0>Off;<1>On");
}

TEST(CapPtz, UsedSpecialPresetsAndTheEntryCount)
{
    auto r = std::make_unique<cap_ptz_record>();
    *r = cap_ptz_record{};
    for (int k = 0; k < 9; ++k)
        r->entries[k] = entry(("e" + std::to_string(k)).c_str(), "<" + std::to_string(k) + ">v");
    const int32_t ids[21] = {0, 33, -1, 0, 92, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 120};
    for (int p = 0; p < 21; ++p) {
        r->specialPresets[p].id = ids[p];
        r->specialPresets[p].isExist = p % 2;
        put(r->specialPresets[p].name, "preset " + std::to_string(p));
    }
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_cap_ptz_json(r.get(), 3, d, n); }));
    test::expect_members(doc.root(), {O("e0"), O("e1"), O("e2"), A("specialPresetList")});
    const cJSON *list = doc["specialPresetList"];
    ASSERT_EQ(cJSON_GetArraySize(list), 3);
    test::expect_members(test::element(list, 0), {N("id", 33), N("isExist", 1), S("name", "preset 1")});
    test::expect_members(test::element(list, 1), {N("id", 92), N("isExist", 0), S("name", "preset 4")});
    test::expect_members(test::element(list, 2), {N("id", 120), N("isExist", 0), S("name", "preset 20")});
}

// ---- general document: sections ----

std::string common(std::vector<cap_entry> &entries)
{
    return test::rendered([&](char *d, int32_t n) {
        return get_cap_common_json(entries.data(), static_cast<int32_t>(entries.size()), d, n);
    });
}

TEST(CapCommon, SectionsNestByParentInFirstUseOrder)
{
    const cap_group image{"", "image"};
    const cap_group exposure{"image", "exposure"};
    const cap_group orphan{"missing", "orphan"};
    const cap_group early{"late", "early"}; // its parent comes after it
    const cap_group late{"", "late"};
    const cap_group iris{"exposure", "iris"};
    std::vector<cap_entry> e = {
        entry("language", "<0>English"),
        entry("mirror", "<1>On", &image),
        entry("shutter", "<2>Fast", &exposure),
        entry("flip", "<3>Up", &image),
        entry("lost", "<4>x", &orphan),
        entry("tooEarly", "<5>x", &early),
        entry("after", "<6>Late", &late),
        entry("irisMode", "<7>Auto", &iris),
        entry("stillEarly", "<8>Now", &early), // the parent exists now
        entry("gain", "<9>High", &exposure),
    };
    test::Json doc(common(e));
    test::expect_members(doc.root(), {O("language"), O("image"), O("late")});
    test::expect_members(doc["language"], {N("English", 0)});
    const cJSON *img = doc["image"];
    test::expect_members(img, {O("mirror"), O("exposure"), O("flip")});
    test::expect_members(test::member(img, "mirror"), {N("On", 1)});
    test::expect_members(test::member(img, "flip"), {N("Up", 3)});
    const cJSON *exp = test::member(img, "exposure");
    test::expect_members(exp, {O("shutter"), O("iris"), O("gain")});
    test::expect_members(test::member(exp, "iris"), {O("irisMode")});
    test::expect_members(test::member(test::member(exp, "iris"), "irisMode"), {N("Auto", 7)});
    const cJSON *lateSection = doc["late"];
    test::expect_members(lateSection, {O("after"), O("early")});
    test::expect_members(test::member(lateSection, "early"), {O("stillEarly")});
}

TEST(CapCommon, TenSectionsAtMost)
{
    cap_group groups[12];
    std::vector<cap_entry> e;
    for (int g = 0; g < 12; ++g) {
        groups[g] = cap_group{};
        put(groups[g].name, "s" + std::to_string(g));
        e.push_back(entry(("in" + std::to_string(g)).c_str(), "<" + std::to_string(g) + ">v", &groups[g]));
    }
    e.push_back(entry("again", "<99>v", &groups[9])); // an existing section still takes entries
    test::Json doc(common(e));
    std::vector<std::string> want;
    for (int g = 0; g < 10; ++g)
        want.push_back("s" + std::to_string(g));
    EXPECT_EQ(test::keys(doc.root()), want);
    test::expect_members(doc["s0"], {O("in0")});
    test::expect_members(doc["s9"], {O("in9"), O("again")});
}

TEST(CapCommon, SectionNamesCompareExactly)
{
    const cap_group upper{"", "Video"};
    const cap_group lower{"", "video"};
    cap_group longName{};
    memset(longName.name, 'g', sizeof longName.name); // 128 characters, no NUL: 127 are used
    std::vector<cap_entry> e = {entry("a", "<1>x", &upper), entry("b", "<2>x", &lower), entry("c", "<3>x", &upper),
                                entry("d", "<4>x", &longName), entry("f", "<5>x", &longName)};
    test::Json doc(common(e));
    const std::string g127(127, 'g');
    EXPECT_EQ(test::keys(doc.root()), (std::vector<std::string>{"Video", "video", g127}));
    test::expect_members(doc["Video"], {O("a"), O("c")});
    test::expect_members(doc["video"], {O("b")});
    test::expect_members(test::member(doc.root(), g127.c_str()), {O("d"), O("f")});
}

TEST(CapCommon, LabelsKeepSixtyThreeCharacters)
{
    std::vector<cap_entry> e = {entry("opt", "<4>" + std::string(70, 'q'))};
    test::Json doc(common(e));
    test::expect_members(doc["opt"], {N(std::string(63, 'q').c_str(), 4)});
}

TEST(CapCommon, NoEntries)
{
    char buffer[64];
    ASSERT_EQ(get_cap_common_json(nullptr, 5, buffer, sizeof buffer), 0);
    test::Json a(buffer);
    EXPECT_TRUE(test::keys(a.root()).empty());
    std::vector<cap_entry> e = {entry("x", "<1>y")};
    ASSERT_EQ(get_cap_common_json(e.data(), 0, buffer, sizeof buffer), 0);
    test::Json b(buffer);
    EXPECT_TRUE(test::keys(b.root()).empty());
}

// ---- video ----

void fill_codec(video_codec_cap &c, int s, int g, int32_t size)
{
    c.availableSize = size;
    for (int r = 0; r < 10; ++r) {
        const int32_t b = s * 10000 + g * 1000 + r * 10;
        c.resolutions[r] = {b + 1, b + 2, b + 3, b + 4, b + 5};
    }
}

void expect_codec(const cJSON *stream, const char *codec, int s, int g, int32_t size)
{
    SCOPED_TRACE(codec);
    const double base = s * 10000 + g * 1000;
    const cJSON *c = test::member(stream, codec);
    test::expect_members(c, {N("availableSize", size), N("defResWidth", base + 1), N("defResHeight", base + 2),
                             A("resolution")});
    const cJSON *list = test::member(c, "resolution");
    ASSERT_EQ(cJSON_GetArraySize(list), size);
    for (int r = 0; r < size; ++r) {
        const double b = base + r * 10;
        test::expect_members(test::element(list, r), {N("width", b + 1), N("height", b + 2), N("framerate", b + 3),
                                                      N("parityFramerate", b + 5), N("defBitRate", b + 4)});
    }
}

std::vector<double> numbers(const cJSON *array)
{
    std::vector<double> out;
    for (const cJSON *c = array != nullptr ? array->child : nullptr; c != nullptr; c = c->next)
        out.push_back(c->valuedouble);
    return out;
}

TEST(CapVideo, EnabledStreamsWithCodecsBitratesAndGopRange)
{
    auto r = std::make_unique<cap_general_video_record>();
    *r = cap_general_video_record{};
    r->entries[0] = entry("rateMode", "<0>CBR;<1>VBR");
    r->entries[1] = entry("smartStream", "", nullptr, "1~5");
    r->entries[2] = entry("unused", "<0>x"); // past the count
    r->streamCount = 4;
    const int32_t enable[6] = {1, 0, 5, 1, 1, 1};
    const int32_t mjpeg[6] = {0, 1, 1, 0, 1, 1};
    for (int s = 0; s < 6; ++s) {
        r->streamEnable[s] = enable[s];
        r->mjpegSupport[s] = mjpeg[s];
        fill_codec(r->streams[s].h264, s, 1, 2);
        fill_codec(r->streams[s].h265, s, 2, 1);
        fill_codec(r->streams[s].mjpeg, s, 3, 3);
    }
    r->streams[3].h264.availableSize = 0;
    r->streams[3].h265.availableSize = 10;
    r->bitrates[0][0] = 8192;
    r->bitrates[0][5] = 1024;
    r->bitrates[0][29] = 512;
    r->bitrates[2][1] = 256; // stream 3: every slot empty
    r->gopMin = -5;
    r->gopMax = 300;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_cap_general_video_json(r.get(), 2, d, n); }));
    test::expect_members(doc.root(), {O("rateMode"), O("smartStream"), N("streamCount", 4), O("mainStream"),
                                      O("thirdStream"), O("fourthStream")});
    test::expect_members(doc["rateMode"], {N("CBR", 0), N("VBR", 1)});
    test::expect_members(doc["smartStream"], {S("range", "1~5")});

    const cJSON *main = doc["mainStream"];
    test::expect_members(main, {O("H264"), O("H265"), A("bitrate"), S("gopRange", "-5~300")});
    expect_codec(main, "H264", 0, 1, 2);
    expect_codec(main, "H265", 0, 2, 1);
    EXPECT_EQ(numbers(test::member(main, "bitrate")), (std::vector<double>{8192, 1024, 512}));

    const cJSON *third = doc["thirdStream"];
    test::expect_members(third, {O("H264"), O("H265"), O("Mjpeg"), A("bitrate"), S("gopRange", "-5~300")});
    expect_codec(third, "Mjpeg", 2, 3, 3);
    EXPECT_EQ(numbers(test::member(third, "bitrate")), (std::vector<double>{256}));

    const cJSON *fourth = doc["fourthStream"];
    expect_codec(fourth, "H264", 3, 1, 0);
    expect_codec(fourth, "H265", 3, 2, 10);
    EXPECT_EQ(numbers(test::member(fourth, "bitrate")), std::vector<double>{});
}

TEST(CapVideo, StreamCountReachesTheSixthStream)
{
    auto r = std::make_unique<cap_general_video_record>();
    *r = cap_general_video_record{};
    r->streamCount = 6;
    for (int s = 0; s < 6; ++s)
        r->streamEnable[s] = 1;
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_cap_general_video_json(r.get(), 0, d, n); }));
    EXPECT_EQ(test::keys(doc.root()), (std::vector<std::string>{"streamCount", "mainStream", "subStream", "thirdStream",
                                                                 "fourthStream", "fifthStream", "sixthStream"}));
}

// ---- audio ----

TEST(CapAudio, SampleRatesPerEncoderThenBitratesPerRate)
{
    auto r = std::make_unique<cap_audio_record>();
    *r = cap_audio_record{};
    r->entries[0] = entry("audioInput", "<0>Mic;<1>Line");
    r->encoders[0] = {3, 2, {4, 0}};
    r->encoders[1] = {6, 3, {0, 1, 2}};  // unknown type: no array
    r->encoders[2] = {1, 7, {0, 1, 2, 3, 4, 5, -1, 2}};
    r->encoders[3] = {5, 0, {1}};
    r->encoders[4] = {2, 1, {2, 3}};
    r->bitrateTables[0] = {999, 3, {16, 20, 256}};
    r->bitrateTables[1] = {0, 10, {16, 24, 32, 48, 64, 96, 128, 144, 192, 256}};
    r->bitrateTables[2] = {0, 0, {64}};
    r->bitrateTables[3] = {0, 2, {-16, 0}};
    r->bitrateTables[4] = {0, 1, {192, 256}};
    test::Json doc(test::rendered([&](char *d, int32_t n) { return get_cap_audio_json(r.get(), 1, d, n); }));
    test::expect_members(doc.root(), {O("audioInput"), A("G.711 a-Law Sample"), A("AAC LC Sample"),
                                      A("G.726 Sample"), A("G.711 u-Law Sample"), A("8KHz Bitrate"),
                                      A("16KHz Bitrate"), A("32KHz Bitrate"), A("44.1KHz Bitrate"),
                                      A("48KHz Bitrate")});

    struct ListCase {
        const char *key;
        std::vector<std::vector<test::Expected>> objects;
    };
    const ListCase lists[] = {
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
    for (const ListCase &c : lists) {
        SCOPED_TRACE(c.key);
        const cJSON *list = doc[c.key];
        ASSERT_EQ(cJSON_GetArraySize(list), static_cast<int>(c.objects.size()));
        for (size_t i = 0; i < c.objects.size(); ++i)
            test::expect_members(test::element(list, static_cast<int>(i)), c.objects[i]);
    }
}

} // namespace
