/*
 * capability.cpp - the capability documents: what the camera can do, so that
 * a client can build its settings pages. Each capability entry carries its
 * choices as an option list ("<0>Off;<1>On"), split here in place.
 */
#include "streams.h"

#include <cstring>

namespace {

/* Labels: 31 characters in the video, audio and PTZ documents, 63 in the
   general one. */
constexpr int32_t kShortLabel = 32;
constexpr int32_t kLongLabel = 64;

constexpr int32_t kVideoEntries = 20;
constexpr int32_t kAudioEntries = 13;
constexpr int32_t kPtzEntries = 9;

/* `text` as a terminated string of at most size-1 characters, read no
   further than its field of `capacity` bytes. */
void copy_field(char *out, size_t size, const char *text, size_t capacity)
{
    size_t length = strnlen(text, capacity);
    if (length > size - 1)
        length = size - 1;
    memcpy(out, text, length);
    out[length] = '\0';
}

bool is_space(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }

/* The decimal number at the start of [p, end), read as atoi reads it:
   leading white space, an optional sign, digits up to the first other
   character; 0 when there are none. A value past the 32-bit range is held
   at the range's end. */
int32_t read_decimal(const char *p, const char *end)
{
    while (p < end && is_space(*p))
        ++p;
    bool negative = false;
    if (p < end && (*p == '+' || *p == '-')) {
        negative = *p == '-';
        ++p;
    }
    const int64_t limit = INT64_C(2147483648);
    int64_t value = 0;
    for (; p < end && *p >= '0' && *p <= '9'; ++p) {
        value = value * 10 + (*p - '0');
        if (value > limit)
            value = limit;
    }
    if (negative)
        return static_cast<int32_t>(-value);
    return static_cast<int32_t>(value < limit ? value : limit - 1);
}

/* Splits one option token of `length` characters in place: "<N>label".
   Writes a NUL over the '>', stores N and the label (at most labelSize-1
   characters, terminated) and returns 1; returns 0, leaving everything as it
   was, for a token without '<' or without a '>' after it. Nothing outside
   the token is read or written. */
int32_t cap_parse_tagged_token(char *token, size_t length, int32_t *outValue, char *outLabel, int32_t labelSize)
{
    if (token == nullptr || outValue == nullptr || outLabel == nullptr || labelSize < 1)
        return 0;
    char *end = token + length;
    char *open = static_cast<char *>(memchr(token, '<', length));
    if (open == nullptr)
        return 0;
    char *close = static_cast<char *>(memchr(open + 1, '>', static_cast<size_t>(end - (open + 1))));
    if (close == nullptr)
        return 0;
    *close = '\0';
    *outValue = read_decimal(open + 1, close);
    copy_field(outLabel, static_cast<size_t>(labelSize), close + 1, static_cast<size_t>(end - (close + 1)));
    return 1;
}

/* One capability entry: {"range": range} when there is a range, else one
   member per option, label: number, in list order (a repeated label is kept
   twice). The option list is tokenized in place: a NUL goes over the ';'
   that ends each token and over each token's '>'. The whole document is
   read-only, so every key is shown as the camera offers it. */
template <typename A>
void capability_entry(A &a, cap_entry &e, int32_t labelSize)
{
    char name[sizeof e.name + 1];
    copy_field(name, sizeof name, e.name, sizeof e.name);
    a.object(mw::Name::copied(name), [&](auto &o) {
        if (e.range[0] != '\0') {
            o.derived("range", e.range);
            return;
        }
        char *p = e.values;
        char *end = static_cast<char *>(memchr(e.values, '\0', sizeof e.values));
        if (end == nullptr)
            end = e.values + sizeof e.values; // a list filling its field ends there
        while (p < end) {
            while (p < end && *p == ';')
                ++p; // a run of separators counts as one
            if (p == end)
                break;
            char *stop = static_cast<char *>(memchr(p, ';', static_cast<size_t>(end - p)));
            if (stop == nullptr)
                stop = end;
            else
                *stop = '\0';
            char label[kLongLabel];
            memset(label, 0, sizeof label);
            int32_t value = 0;
            if (cap_parse_tagged_token(p, static_cast<size_t>(stop - p), &value, label, labelSize))
                o.derived(mw::Name::copied(label), value);
            p = stop < end ? stop + 1 : end;
        }
    });
}

template <typename A>
void capability_entries(A &a, cap_entry *entries, int32_t count, int32_t labelSize)
{
    for (int32_t k = 0; k < count; ++k)
        capability_entry(a, entries[k], labelSize);
}

/* ---- general document: sections ---- */

constexpr int32_t kSectionSlots = 10;

/* A section of the general document: its name, the section it hangs under
   (-1: the root) and the entry that opened it. */
struct cap_section {
    char name[128];
    int32_t parent;
    int32_t openedAt;
};

/* The section index under exactly this name (case-sensitive), or -1; slots
   with an empty name never match. */
int32_t cap_find_section(const cap_section *sections, int32_t used, const char *name)
{
    for (int32_t i = 0; i < used; ++i)
        if (sections[i].name[0] != '\0' && strcmp(sections[i].name, name) == 0)
            return i;
    return -1;
}

/* The sections as the entries open them: at most ten, each on the first
   entry that names it and whose parent section is open by then. */
struct cap_sections {
    cap_section at[kSectionSlots];
    int32_t used;
};

void group_name(char (&out)[128], const cap_group &group) { copy_field(out, sizeof out, group.name, sizeof group.name); }

cap_sections plan_sections(const cap_entry *entries, int32_t count)
{
    cap_sections plan;
    memset(&plan, 0, sizeof plan);
    for (int32_t k = 0; k < count; ++k) {
        const cap_entry &e = entries[k];
        if (e.group == nullptr)
            continue;
        char name[128];
        group_name(name, *e.group);
        if (cap_find_section(plan.at, plan.used, name) >= 0 || plan.used == kSectionSlots)
            continue; // open already, or no room for an eleventh section
        int32_t parent = -1;
        if (e.group->parentName[0] != '\0') {
            char parentName[sizeof e.group->parentName];
            copy_field(parentName, sizeof parentName, e.group->parentName, sizeof e.group->parentName);
            parent = cap_find_section(plan.at, plan.used, parentName);
            if (parent < 0)
                continue; // the parent has not appeared yet
        }
        memcpy(plan.at[plan.used].name, name, sizeof name);
        plan.at[plan.used].parent = parent;
        plan.at[plan.used].openedAt = k;
        ++plan.used;
    }
    return plan;
}

/* The section of entry k: -1 for the root, -2 when the entry is left out
   (its section never opens, or opens later). */
int32_t section_of(const cap_sections &plan, const cap_entry &e, int32_t k)
{
    if (e.group == nullptr)
        return -1;
    char name[128];
    group_name(name, *e.group);
    if (name[0] == '\0') {
        // A section without a name is never found again: each such entry
        // opens one of its own.
        for (int32_t s = 0; s < plan.used; ++s)
            if (plan.at[s].openedAt == k)
                return s;
        return -2;
    }
    const int32_t s = cap_find_section(plan.at, plan.used, name);
    return s >= 0 && plan.at[s].openedAt <= k ? s : -2;
}

/* A section's members in entry order: its own entries, and each child
   section where the entry that opened it stands. */
template <typename A>
void section_members(A &a, const cap_sections &plan, cap_entry *entries, int32_t count, int32_t section)
{
    for (int32_t k = section < 0 ? 0 : plan.at[section].openedAt; k < count; ++k) {
        for (int32_t c = 0; c < plan.used; ++c) {
            if (plan.at[c].parent == section && plan.at[c].openedAt == k)
                a.object(mw::Name::copied(plan.at[c].name),
                         [&](auto &child) { section_members(child, plan, entries, count, c); });
        }
        if (section_of(plan, entries[k], k) == section)
            capability_entry(a, entries[k], kLongLabel);
    }
}

/* ---- video ---- */

template <typename A>
void codec_capability(A &a, const char *codec, const video_codec_cap &c)
{
    a.object(mw::Name::fixed(codec), [&](auto &o) {
        o.derived("availableSize", c.availableSize);
        o.derived("defResWidth", c.resolutions[0].width); // the first resolution is the default
        o.derived("defResHeight", c.resolutions[0].height);
        o.list("resolution", nullptr, [&](auto &l) {
            const int32_t size = mw::bounded_count(c.availableSize, 10);
            for (int32_t r = 0; r < size; ++r) {
                const video_resolution_cap &res = c.resolutions[r];
                l.item([&](auto &item) {
                    item.derived("width", res.width);
                    item.derived("height", res.height);
                    item.derived("framerate", res.framerate);
                    item.derived("parityFramerate", res.parityFramerate);
                    item.derived("defBitRate", res.defBitRate);
                });
            }
        });
    });
}

/* ---- audio ---- */

/* The sample-rate array of an encoder type, or NULL for an unknown type. */
const char *encoder_key(int32_t encodeType)
{
    switch (encodeType) {
    case 1: return "AAC LC Sample";
    case 2: return "G.711 u-Law Sample";
    case 3: return "G.711 a-Law Sample";
    case 4: return "G.722 Sample";
    case 5: return "G.726 Sample";
    default: return nullptr;
    }
}

constexpr const char *kSampleRates[5] = {"8KHz", "16KHz", "32KHz", "44.1KHz", "48KHz"};
constexpr const char *kBitrateTables[5] = {"8KHz Bitrate", "16KHz Bitrate", "32KHz Bitrate", "44.1KHz Bitrate",
                                           "48KHz Bitrate"};

/* The key of a bit rate in kbit/s, or NULL for a rate the encoders lack. */
const char *bitrate_key(int32_t kbps)
{
    switch (kbps) {
    case 16: return "16kbps";
    case 24: return "24kbps";
    case 32: return "32kbps";
    case 48: return "48kbps";
    case 64: return "64kbps";
    case 96: return "96kbps";
    case 128: return "128kbps";
    case 144: return "144kbps";
    case 192: return "192kbps";
    case 256: return "256kbps";
    default: return nullptr;
    }
}

} // namespace

/* The capability pages: what the camera offers, never written by a client.
   The serializers take the entry count beside the record. */

MW_READ_ONLY_PAGE_WITH_COUNT(cap_common, cap_entry, "what the camera offers",
                             [](auto &a, cap_entry *entries, int32_t count) {
    if (entries == nullptr)
        return;
    const cap_sections plan = plan_sections(entries, count);
    section_members(a, plan, entries, count, -1);
})

MW_READ_ONLY_PAGE_WITH_COUNT(cap_general_video, cap_general_video_record, "what the camera offers",
                             [](auto &a, cap_general_video_record *in, int32_t count) {
    capability_entries(a, in->entries, mw::bounded_count(count, kVideoEntries), kShortLabel);
    a.derived("streamCount", in->streamCount);
    const mw::Text<32> gopRange("%d~%d", in->gopMin, in->gopMax); // the same range for every stream
    const int32_t streams = mw::bounded_count(in->streamCount, mw::kStreamNameCount);
    for (int32_t s = 0; s < mw::kStreamNameCount; ++s) {
        // Streams past the count, and disabled ones, are left out.
        a.listed_if(s < streams && in->streamEnable[s] != 0, [&](auto &stream) {
            stream.object(mw::Name::fixed(mw::kStreamNames[s]), [&](auto &o) {
                codec_capability(o, "H264", in->streams[s].h264);
                codec_capability(o, "H265", in->streams[s].h265);
                o.listed_if(in->mjpegSupport[s] != 0, [&](auto &m) { codec_capability(m, "Mjpeg", in->streams[s].mjpeg); });
                const mw::NonzeroValues rates = mw::nonzero_values(in->bitrates[s]);
                o.derived_numbers("bitrate", rates.values, rates.count);
                o.derived("gopRange", gopRange);
            });
        });
    }
})

MW_READ_ONLY_PAGE_WITH_COUNT(cap_audio, cap_audio_record, "what the camera offers",
                             [](auto &a, cap_audio_record *in, int32_t count) {
    capability_entries(a, in->entries, mw::bounded_count(count, kAudioEntries), kShortLabel);
    for (int32_t e = 0; e < 5; ++e) {
        const audio_encoder_cap &enc = in->encoders[e];
        const char *key = encoder_key(enc.encodeType);
        if (key == nullptr)
            continue; // an unknown encoder has no array, so nothing to list
        a.list(mw::Name::copied(key), nullptr, [&](auto &l) { // the encoder's type names the list
            const int32_t rates = mw::bounded_count(enc.sampleRateCount, 10);
            for (int32_t i = 0; i < rates; ++i) {
                const int32_t code = enc.sampleRates[i];
                l.item([&](auto &item) {
                    if (code >= 0 && code < 5)
                        item.derived(mw::Name::copied(kSampleRates[code]), code); // the code names the key; an unknown code: {}
                });
            }
        });
    }
    for (int32_t t = 0; t < 5; ++t) {
        const audio_bitrate_cap &table = in->bitrateTables[t];
        a.list(mw::Name::fixed(kBitrateTables[t]), nullptr, [&](auto &l) {
            const int32_t rates = mw::bounded_count(table.bitrateCount, 10);
            for (int32_t i = 0; i < rates; ++i) {
                const char *key = bitrate_key(table.bitrates[i]);
                l.item([&](auto &item) {
                    if (key != nullptr)
                        item.derived(mw::Name::copied(key), table.bitrates[i]); // the rate names the key
                });
            }
        });
    }
})

MW_READ_ONLY_PAGE_WITH_COUNT(cap_ptz, cap_ptz_record, "what the camera offers",
                             [](auto &a, cap_ptz_record *in, int32_t count) {
    capability_entries(a, in->entries, mw::bounded_count(count, kPtzEntries), kShortLabel);
    a.list("specialPresetList", nullptr, [&](auto &l) {
        for (int32_t p = 0; p < 21; ++p) {
            const special_preset_entry &preset = in->specialPresets[p];
            if (preset.id <= 0)
                continue;
            l.item([&](auto &item) {
                item.derived("id", preset.id);
                item.derived("isExist", preset.isExist);
                item.derived("name", preset.name);
            });
        }
    });
})

