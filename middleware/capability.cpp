/*
 * capability.cpp - the capability documents: what the camera can do, so that
 * a client can build its settings pages. Each capability entry carries its
 * choices as an option list ("<0>Off;<1>On"), split here in place.
 */
#include "streams.h"

#include <cstring>

using mw::add;

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

/* One capability entry under `parent`: {"range": range} when there is a
   range, else one member per option, label: number, in list order (a
   repeated label is kept twice). The option list is tokenized in place: a
   NUL goes over the ';' that ends each token and over each token's '>'. */
void render_entry(cJSON *parent, cap_entry &e, int32_t labelSize)
{
    char name[sizeof e.name + 1];
    copy_field(name, sizeof name, e.name, sizeof e.name);
    cJSON *o = mw::object(parent, name);
    if (e.range[0] != '\0') {
        add(o, "range", e.range);
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
            add(o, label, value);
        p = stop < end ? stop + 1 : end;
    }
}

void render_entries(cJSON *parent, cap_entry *entries, int32_t count, int32_t labelSize)
{
    for (int32_t k = 0; k < count; ++k)
        render_entry(parent, entries[k], labelSize);
}

/* ---- general document: sections ---- */

constexpr int32_t kSectionSlots = 10;

struct cap_group_slot {
    char name[128];
    cJSON *object;
};

/* The object of the first slot that holds one under exactly this name
   (case-sensitive); slots with an empty name never match. */
cJSON *cap_find_group(const cap_group_slot *slots, int32_t slotCount, const char *name)
{
    if (slots == nullptr || name == nullptr || slotCount < 1)
        return nullptr;
    for (int32_t i = 0; i < slotCount; ++i)
        if (slots[i].object != nullptr && slots[i].name[0] != '\0' && strcmp(slots[i].name, name) == 0)
            return slots[i].object;
    return nullptr;
}

/* ---- video ---- */

void add_codec_cap(cJSON *stream, const char *codec, const video_codec_cap &c)
{
    cJSON *o = mw::object(stream, codec);
    add(o, "availableSize", c.availableSize);
    add(o, "defResWidth", c.resolutions[0].width); // the first resolution is the default
    add(o, "defResHeight", c.resolutions[0].height);
    cJSON *list = mw::array(o, "resolution");
    const int32_t size = mw::bounded_count(c.availableSize, 10);
    for (int32_t r = 0; r < size; ++r) {
        const video_resolution_cap &res = c.resolutions[r];
        cJSON *item = mw::append_object(list);
        add(item, "width", res.width);
        add(item, "height", res.height);
        add(item, "framerate", res.framerate);
        add(item, "parityFramerate", res.parityFramerate);
        add(item, "defBitRate", res.defBitRate);
    }
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

int32_t get_cap_common_json(cap_entry *entries, int32_t count, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [entries, count](cJSON *root) {
        if (entries == nullptr)
            return;
        cap_group_slot slots[kSectionSlots];
        memset(slots, 0, sizeof slots);
        int32_t used = 0;
        for (int32_t k = 0; k < count; ++k) {
            cap_entry &e = entries[k];
            if (e.group == nullptr) {
                render_entry(root, e, kLongLabel);
                continue;
            }
            char name[sizeof slots[0].name];
            copy_field(name, sizeof name, e.group->name, sizeof e.group->name);
            cJSON *section = cap_find_group(slots, kSectionSlots, name);
            if (section == nullptr) {
                if (used == kSectionSlots)
                    continue; // no room for an eleventh section
                cJSON *parent = root;
                if (e.group->parentName[0] != '\0') {
                    char parentName[sizeof e.group->parentName];
                    copy_field(parentName, sizeof parentName, e.group->parentName, sizeof e.group->parentName);
                    parent = cap_find_group(slots, kSectionSlots, parentName);
                    if (parent == nullptr)
                        continue; // the parent has not appeared yet
                }
                section = mw::object(parent, name);
                memcpy(slots[used].name, name, sizeof name);
                slots[used].object = section;
                ++used;
            }
            render_entry(section, e, kLongLabel);
        }
    });
}

int32_t get_cap_general_video_json(cap_general_video_record *in, int32_t count, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, count](cJSON *root) {
        render_entries(root, in->entries, mw::bounded_count(count, kVideoEntries), kShortLabel);
        add(root, "streamCount", in->streamCount);
        const mw::Text<32> gopRange("%d~%d", in->gopMin, in->gopMax); // the same range for every stream
        const int32_t streams = mw::bounded_count(in->streamCount, mw::kStreamNameCount);
        for (int32_t s = 0; s < streams; ++s) {
            if (in->streamEnable[s] == 0)
                continue;
            cJSON *o = mw::object(root, mw::kStreamNames[s]);
            add_codec_cap(o, "H264", in->streams[s].h264);
            add_codec_cap(o, "H265", in->streams[s].h265);
            if (in->mjpegSupport[s] != 0)
                add_codec_cap(o, "Mjpeg", in->streams[s].mjpeg);
            mw::add_nonzero_int_array(o, "bitrate", in->bitrates[s], 30);
            mw::add_string(o, "gopRange", gopRange);
        }
    });
}

int32_t get_cap_audio_json(cap_audio_record *in, int32_t count, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, count](cJSON *root) {
        render_entries(root, in->entries, mw::bounded_count(count, kAudioEntries), kShortLabel);
        for (int32_t e = 0; e < 5; ++e) {
            const audio_encoder_cap &enc = in->encoders[e];
            const char *key = encoder_key(enc.encodeType);
            if (key == nullptr)
                continue; // an unknown encoder has no array, so nothing to list
            cJSON *list = mw::array(root, key);
            const int32_t rates = mw::bounded_count(enc.sampleRateCount, 10);
            for (int32_t i = 0; i < rates; ++i) {
                cJSON *item = mw::append_object(list);
                const int32_t code = enc.sampleRates[i];
                if (code >= 0 && code < 5)
                    add(item, kSampleRates[code], code); // an unknown code leaves the object empty
            }
        }
        for (int32_t t = 0; t < 5; ++t) {
            const audio_bitrate_cap &table = in->bitrateTables[t];
            cJSON *list = mw::array(root, kBitrateTables[t]);
            const int32_t rates = mw::bounded_count(table.bitrateCount, 10);
            for (int32_t i = 0; i < rates; ++i) {
                cJSON *item = mw::append_object(list);
                const char *key = bitrate_key(table.bitrates[i]);
                if (key != nullptr)
                    add(item, key, table.bitrates[i]);
            }
        }
    });
}

int32_t get_cap_ptz_json(cap_ptz_record *in, int32_t count, char *dst, int32_t dstSize)
{
    return mw::document(dst, dstSize, [in, count](cJSON *root) {
        render_entries(root, in->entries, mw::bounded_count(count, kPtzEntries), kShortLabel);
        cJSON *list = mw::array(root, "specialPresetList");
        for (int32_t p = 0; p < 21; ++p) {
            const special_preset_entry &preset = in->specialPresets[p];
            if (preset.id <= 0)
                continue;
            cJSON *item = mw::append_object(list);
            add(item, "id", preset.id);
            add(item, "isExist", preset.isExist);
            add(item, "name", preset.name);
        }
    });
}
