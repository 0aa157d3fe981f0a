#include "catalog.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// The serializers split the option lists in place, so every render works on
// a fresh copy of its sample.

void set_entry(cap_entry &e, const cap_group *group, const char *name, const char *values, const char *range = "")
{
    e.group = group;
    put(e.name, name);
    put(e.values, values);
    put(e.range, range);
}

// General capabilities of a bullet camera, in sections: image (with its
// exposure and white-balance subsections), network and events.
const cap_group kImage{"", "image"};
const cap_group kExposure{"image", "exposure"};
const cap_group kWhiteBalance{"image", "whiteBalance"};
const cap_group kNetwork{"", "network"};
const cap_group kEvent{"", "event"};

std::vector<cap_entry> sample_common()
{
    std::vector<cap_entry> e(11);
    set_entry(e[0], nullptr, "language", "<0>English;<1>Deutsch;<2>Francais;<3>Espanol");
    set_entry(e[1], &kImage, "mirror", "<0>Off;<1>Horizontal;<2>Vertical;<3>Both");
    set_entry(e[2], &kImage, "brightness", "", "0~100");
    set_entry(e[3], &kExposure, "exposureMode", "<0>Auto;<1>Manual;<2>Shutter Priority;<3>Iris Priority");
    set_entry(e[4], &kExposure, "shutter", "<0>1/25;<1>1/50;<2>1/100;<3>1/250;<4>1/1000;<5>1/10000");
    set_entry(e[5], &kWhiteBalance, "whiteBalanceMode", "<0>Auto;<1>Indoor;<2>Outdoor;<3>Manual");
    set_entry(e[6], &kNetwork, "ipVersion", "<0>IPv4;<1>IPv6;<2>Dual Stack");
    set_entry(e[7], &kNetwork, "mtu", "", "576~1500");
    set_entry(e[8], &kEvent, "motionSensitivity", "<1>Low;<2>Medium;<3>High");
    set_entry(e[9], &kImage, "dayNightMode", "<0>Auto;<1>Day;<2>Night;<3>Schedule");
    set_entry(e[10], nullptr, "timeFormat", "<0>24-hour;<1>12-hour");
    return e;
}

void set_codec(video_codec_cap &c, std::initializer_list<video_resolution_cap> resolutions)
{
    c.availableSize = static_cast<int32_t>(resolutions.size());
    int32_t r = 0;
    for (const video_resolution_cap &res : resolutions)
        c.resolutions[r++] = res;
}

cap_general_video_record sample_video()
{
    cap_general_video_record r{};
    set_entry(r.entries[0], nullptr, "profileCodec", "<0>H.264;<1>H.265;<2>MJPEG");
    set_entry(r.entries[1], nullptr, "profile", "<0>Baseline;<1>Main;<2>High");
    set_entry(r.entries[2], nullptr, "rateMode", "<0>CBR;<1>VBR");
    set_entry(r.entries[3], nullptr, "vbrQuality", "<0>Lowest;<1>Lower;<2>Low;<3>Medium;<4>High;<5>Highest");
    set_entry(r.entries[4], nullptr, "smartStreamLevel", "", "1~5");
    r.streamCount = 3;
    r.streamEnable[0] = 1;
    r.streamEnable[1] = 1;
    r.streamEnable[2] = 1;
    r.mjpegSupport[2] = 1;
    const int32_t main[] = {1024, 2048, 3072, 4096, 6144, 8192};
    const int32_t sub[] = {256, 512, 768, 1024, 2048};
    const int32_t third[] = {256, 512, 1024};
    for (int i = 0; i < 6; ++i)
        r.bitrates[0][i] = main[i];
    for (int i = 0; i < 5; ++i)
        r.bitrates[1][i] = sub[i];
    for (int i = 0; i < 3; ++i)
        r.bitrates[2][i] = third[i];
    r.gopMin = 1;
    r.gopMax = 250;
    set_codec(r.streams[0].h264, {{2560, 1440, 25, 4096, 25}, {1920, 1080, 30, 4096, 30}, {1280, 720, 30, 2048, 30}});
    set_codec(r.streams[0].h265, {{2560, 1440, 25, 3072, 25}, {1920, 1080, 30, 2048, 30}});
    set_codec(r.streams[1].h264, {{704, 576, 25, 1024, 25}, {640, 360, 30, 768, 30}});
    set_codec(r.streams[1].h265, {{704, 576, 25, 768, 25}, {640, 360, 30, 512, 30}});
    set_codec(r.streams[2].h264, {{640, 360, 15, 512, 15}});
    set_codec(r.streams[2].h265, {{640, 360, 15, 384, 15}});
    set_codec(r.streams[2].mjpeg, {{640, 360, 12, 2048, 12}, {352, 288, 15, 1024, 15}});
    return r;
}

cap_audio_record sample_audio()
{
    cap_audio_record r{};
    set_entry(r.entries[0], nullptr, "audioInput", "<0>Mic In;<1>Line In");
    set_entry(r.entries[1], nullptr, "audioEncode", "<1>AAC LC;<2>G.711 u-Law;<3>G.711 a-Law;<4>G.722;<5>G.726");
    set_entry(r.entries[2], nullptr, "inputVolume", "", "0~100");
    set_entry(r.entries[3], nullptr, "noiseReduction", "<0>Off;<1>On");
    r.encoders[0] = {1, 4, {0, 1, 3, 4}};
    r.encoders[1] = {2, 1, {0}};
    r.encoders[2] = {3, 1, {0}};
    r.encoders[3] = {4, 1, {1}};
    r.encoders[4] = {5, 1, {0}};
    r.bitrateTables[0] = {0, 3, {16, 24, 32}};
    r.bitrateTables[1] = {0, 3, {32, 48, 64}};
    r.bitrateTables[2] = {0, 3, {64, 96, 128}};
    r.bitrateTables[3] = {0, 4, {96, 128, 144, 192}};
    r.bitrateTables[4] = {0, 3, {128, 192, 256}};
    return r;
}

// A speed dome: preset numbers reserved for its own functions.
cap_ptz_record sample_ptz()
{
    cap_ptz_record r{};
    set_entry(r.entries[0], nullptr, "panSpeed", "", "1~8");
    set_entry(r.entries[1], nullptr, "parkAction", "<0>None;<1>Preset;<2>Patrol;<3>Auto Scan;<4>Pattern");
    set_entry(r.entries[2], nullptr, "powerOffMemory", "<0>Off;<30>30 s;<60>60 s;<300>300 s");
    set_entry(r.entries[3], nullptr, "patrolCount", "", "1~8");
    const special_preset_entry presets[] = {
        {33, 1, "Auto flip"}, {34, 1, "Back to origin"}, {92, 1, "Set left limit"},
        {93, 1, "Set right limit"}, {95, 1, "Main menu"}, {99, 0, "Start auto scan"},
    };
    for (size_t i = 0; i < sizeof presets / sizeof presets[0]; ++i)
        r.specialPresets[i * 3] = presets[i]; // spread over the table as the dome keeps them
    return r;
}

// A capability page's state: the record (or the entry list of the general
// document) and the entry count the web server passes beside it, the page's
// argument.
template <typename Record>
struct CapabilityState {
    int32_t count;
    Record record;
};

struct CommonEntries {
    cap_entry entries[11];
};

const CapabilityState<CommonEntries> &common_state()
{
    static const CapabilityState<CommonEntries> state = [] {
        CapabilityState<CommonEntries> c{};
        const std::vector<cap_entry> e = sample_common();
        c.count = static_cast<int32_t>(e.size());
        std::copy(e.begin(), e.end(), c.record.entries);
        return c;
    }();
    return state;
}

template <typename Record, Record (*Make)(), int32_t Count>
const CapabilityState<Record> &record_state()
{
    static const CapabilityState<Record> state{Count, Make()};
    return state;
}

// The serializer and the schema function over a state: the general document
// takes the entries' array, the others their record.
template <typename Record>
Record *data_of(CapabilityState<Record> &s) { return &s.record; }
cap_entry *data_of(CapabilityState<CommonEntries> &s) { return s.record.entries; }

// The count passed beside it: the records bound their own entry lists; the
// general document's entries are the caller's array, so the web server passes
// no more than it holds.
template <typename Record>
int32_t count_of(const CapabilityState<Record> &s) { return s.count; }
int32_t count_of(const CapabilityState<CommonEntries> &s)
{
    constexpr int32_t held = static_cast<int32_t>(sizeof s.record.entries / sizeof s.record.entries[0]);
    return s.count < held ? s.count : held;
}

// The serializers split the option lists in place, so every call works on a
// copy of the state and the state itself is never changed.
template <typename Record, const CapabilityState<Record> &(*Sample)(), typename Data,
          int32_t (*Get)(Data *, int32_t, char *, int32_t), int32_t (*Schema)(Data *, int32_t, char *, int32_t)>
struct CapabilityPage {
    using State = CapabilityState<Record>;
    static void initial(void *state) { memcpy(state, &Sample(), sizeof(State)); }
    template <int32_t (*Call)(Data *, int32_t, char *, int32_t)>
    static int32_t on_copy(const void *state, char *dst, int32_t n)
    {
        std::unique_ptr<State> copy(new State(*static_cast<const State *>(state)));
        return Call(data_of(*copy), count_of(*copy), dst, n);
    }
    static int32_t render(void *state, char *dst, int32_t n) { return on_copy<Get>(state, dst, n); }
    static int32_t schema(void *state, char *dst, int32_t n) { return on_copy<Schema>(state, dst, n); }
    static int32_t *count(void *state) { return &static_cast<State *>(state)->count; }
    static int32_t sample(char *dst, int32_t n) { return on_copy<Get>(&Sample(), dst, n); }
    static void inputs(void *state, void **out)
    {
        State &s = *static_cast<State *>(state);
        s.count = count_of(s);
        out[0] = data_of(s);
        out[1] = &s.count;
    }
    // Up to the entries the record (or the general document's array) holds.
    static constexpr int32_t kHeld = sizeof(State::record.entries) / sizeof(cap_entry);
    static constexpr PageOps ops{sizeof(State), initial, render, schema, nullptr, count, "count", 0, kHeld};
};

const CatalogEntry entries[] = {
    page_entry<CapabilityPage<CommonEntries, common_state, cap_entry, get_cap_common_json, schema_cap_common_json>>(
        "get_cap_common_json", "general capabilities, grouped into nested sections"),
    page_entry<CapabilityPage<cap_general_video_record, record_state<cap_general_video_record, sample_video, 5>,
                              cap_general_video_record, get_cap_general_video_json, schema_cap_general_video_json>>(
        "get_cap_general_video_json", "encoder capabilities: codecs, resolutions, bit rates per stream"),
    page_entry<CapabilityPage<cap_audio_record, record_state<cap_audio_record, sample_audio, 4>, cap_audio_record,
                              get_cap_audio_json, schema_cap_audio_json>>(
        "get_cap_audio_json", "audio capabilities: encoders, sample rates and bit rates"),
    page_entry<CapabilityPage<cap_ptz_record, record_state<cap_ptz_record, sample_ptz, 4>, cap_ptz_record,
                              get_cap_ptz_json, schema_cap_ptz_json>>(
        "get_cap_ptz_json", "PTZ capabilities and the dome's reserved preset numbers"),
};

} // namespace

const CatalogGroup catalog_capability = catalog_group("capability", entries);
