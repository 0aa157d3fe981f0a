/*
 * middleware.cpp - the core: the serializer contract, the reply envelopes,
 * the format test, the file reader, the node-building and request-reading
 * helpers and the event-name tables.
 */
#include "internal.h"

#include "zk_platform.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>


/* ---- reply envelopes ---- */

namespace {

/* The envelopes are pages of their own, with no record. */
void set_state(mw::Archive &a, const char *state) { a.derived_text("setState", state); }
void walk_empty(mw::Archive &, void *const *) {}
void walk_succeed(mw::Archive &a, void *const *) { set_state(a, "succeed"); }
void walk_failed(mw::Archive &a, void *const *) { set_state(a, "failed"); }
// The caller names the key: the tree keeps a copy of it.
void walk_format_error(mw::Archive &a, void *const *key)
{
    a.derived_text(mw::Name::copied(static_cast<const char *>(key[0])), "format error");
}

constexpr mw::Page envelope(mw::Walk walk) { return mw::Page{walk, mw::kReadOnly, 0, {0, 0}, nullptr, nullptr}; }
constexpr mw::Page kEmpty = envelope(walk_empty);
constexpr mw::Page kSucceed = envelope(walk_succeed);
constexpr mw::Page kFailed = envelope(walk_failed);
constexpr mw::Page kFormatError = envelope(walk_format_error);

} // namespace

int32_t zk_return_get_request_empty_json(char *dst, int32_t dstSize) { return mw::render(nullptr, dst, dstSize, kEmpty); }

int32_t zk_return_set_request_succeed_json(char *dst, int32_t dstSize)
{
    return mw::render(nullptr, dst, dstSize, kSucceed);
}

int32_t zk_return_set_request_faild_json(char *dst, int32_t dstSize) { return mw::render(nullptr, dst, dstSize, kFailed); }

int32_t zk_return_format_error_json(char *dst, int32_t dstSize, const char *key)
{
    return mw::render_one(const_cast<char *>(key), dst, dstSize, kFormatError);
}

int32_t zk_check_format_json(const char *query)
{
    return strstr(query, "format=json") != nullptr ? 1 : 0;
}

char *getJsonBuff(int32_t fd, int32_t length)
{
    if (fd == 0 || length <= 0)
        return nullptr;
    char *buffer = static_cast<char *>(__zk_malloc(static_cast<size_t>(length) + 1, "middleware.c", 112));
    if (buffer == nullptr)
        return nullptr;
    lseek(fd, 0, SEEK_SET);
    ssize_t got = read(fd, buffer, static_cast<size_t>(length));
    (void)got; // a short read is not reported; see the header
    buffer[length] = '\0';
    return buffer;
}

/* ---- node building ---- */

namespace {

/* Hangs a new node under key. Should it not attach (no memory left for the
   key), the node is released instead of being lost, and the caller's later
   additions to the NULL child are no-ops. */
int32_t attach(cJSON *parent, cJSON **outChild, const char *key, cJSON *node)
{
    *outChild = node;
    if (node == nullptr)
        return -1;
    if (!cJSON_AddItemToObject(parent, key, node)) {
        cJSON_Delete(node);
        *outChild = nullptr;
        return -1;
    }
    return 1;
}

} // namespace

int32_t json_set_element_struct(cJSON *parent, cJSON **outChild, const char *key)
{
    return attach(parent, outChild, key, cJSON_CreateObject());
}

int32_t json_set_array_struct(cJSON *parent, cJSON **outArray, const char *key)
{
    return attach(parent, outArray, key, cJSON_CreateArray());
}

/* ---- request reading ---- */

namespace {

/* The first element of object[arrayKey] whose member memberKey satisfies
   `matches`. */
template <typename Match>
cJSON *find_element(cJSON *object, const char *arrayKey, const char *memberKey, Match &&matches)
{
    if (object == nullptr || arrayKey == nullptr || memberKey == nullptr)
        return nullptr;
    cJSON *list = cJSON_GetObjectItem(object, arrayKey);
    if (list == nullptr)
        return nullptr;
    int size = cJSON_GetArraySize(list);
    for (int i = 0; i < size; ++i) {
        cJSON *element = cJSON_GetArrayItem(list, i);
        if (element == nullptr)
            continue;
        cJSON *member = cJSON_GetObjectItem(element, memberKey);
        if (member != nullptr && matches(member))
            return element;
    }
    return nullptr;
}

/* The number readers: -1 for a NULL argument or an absent key; 0 when the
   key is present, with *wrongType telling whether *out was set. */
template <typename T, typename Read>
int32_t read_number(cJSON *object, const char *key, T *out, int32_t *wrongType, Read &&value)
{
    if (object == nullptr || key == nullptr || out == nullptr)
        return -1;
    cJSON *member = cJSON_GetObjectItem(object, key);
    if (member == nullptr)
        return -1;
    if (member->type != cJSON_Number) {
        *wrongType = 1;
        return 0;
    }
    *wrongType = 0;
    *out = value(member);
    return 0;
}

} // namespace

cJSON *get_json_array_struct_from_index(cJSON *object, const char *arrayKey, const char *memberKey,
                                        int32_t index)
{
    return find_element(object, arrayKey, memberKey,
                        [index](const cJSON *member) { return member->valueint == index; });
}

cJSON *get_json_array_struct_from_string(cJSON *object, const char *arrayKey, const char *memberKey,
                                         const char *value)
{
    return find_element(object, arrayKey, memberKey,
                        [value](const cJSON *member) { return strcmp(member->valuestring, value) == 0; });
}

cJSON *get_json_object(cJSON *object, const char *key)
{
    if (object == nullptr || key == nullptr)
        return nullptr;
    return cJSON_GetObjectItem(object, key);
}

int32_t get_json_section_type_int(cJSON *object, const char *key, int32_t *out, int32_t *wrongType)
{
    return read_number(object, key, out, wrongType, [](const cJSON *m) { return static_cast<int32_t>(m->valueint); });
}

int32_t get_json_section_type_double(cJSON *object, const char *key, double *out, int32_t *wrongType)
{
    return read_number(object, key, out, wrongType, [](const cJSON *m) { return m->valuedouble; });
}

int32_t get_json_section_type_string(cJSON *object, const char *key, char *out, int32_t outSize,
                                     int32_t *wrongType)
{
    if (object == nullptr || key == nullptr || out == nullptr)
        return -1;
    cJSON *member = cJSON_GetObjectItem(object, key);
    if (member == nullptr)
        return -1;
    if (member->type != cJSON_String) {
        out[0] = '\0';
        *wrongType = 1;
        return 1;
    }
    if (member->valuestring == nullptr)
        return -1;
    if (member->valuestring[0] == '\0') {
        out[0] = '\0';
        return 0;
    }
    *wrongType = 0;
    snprintf(out, static_cast<size_t>(outSize), "%s", member->valuestring);
    return 1;
}

int32_t get_json_section_type_int_array(cJSON *object, const char *key, int32_t *out, int32_t max,
                                        int32_t *wrongType)
{
    if (object == nullptr || key == nullptr || out == nullptr)
        return -1;
    cJSON *list = cJSON_GetObjectItem(object, key);
    if (list == nullptr || list->type != cJSON_Array) {
        *wrongType = 1;
        return -1;
    }
    int size = cJSON_GetArraySize(list);
    for (int32_t i = 0; i < size && i < max; ++i) {
        cJSON *element = cJSON_GetArrayItem(list, i);
        if (element == nullptr || element->type != cJSON_Number) {
            *wrongType = 1;
            return -1;
        }
        out[i] = element->valueint;
    }
    *wrongType = 0;
    return 1;
}

/* ---- event names ---- */

namespace {

/* Alarm event types as the JSON documents name them. The odd spellings are
   the documents' own: "douput" for the digital outputs, "nouser2"/"nouser3"
   as placeholders, "vcaLinecrossing" without a digit. */
const char *const alarm_event_names[48] = {
    "motion",            "networkLost",      "audioIn",          "dinput",
    "tamper",            "parkingViolation", "ipConflict",       "dinputExtra",
    "irRect",            "vcaIntrusionEnter", "vcaIntrusionExit", "vcaLoitering",
    "vcaAdvancedMotion", "vcaLinecrossing",  "vcaCounter",       "vcaHuman",
    "vcaCtd",            "vcaFace",          "vcaRadar",         "face",
    "vcaLinecrossing2",  "vcaLinecrossing3", "vcaLinecrossing4", "objectLeftRemove",
    "lprBlack",          "lprWhite",         "lprVisitor",       "anr",
    "motionSub",         "motionThird",      "motionFourth",     "motionFifth",
    "recordFailed",      "sdFull",           "sdUninit",         "sdError",
    "noSd",              "dinputThird",      "dinputFourth",     "regionalPeople1",
    "helmet",            "lprattr",          "lprviolation",     "vehicleCounter",
    "douput",            "douputExtra",      "nouser2",          "nouser3",
};

const char *const vca_event_names[11] = {
    "vcaIntrusionEnter", "vcaIntrusionExit", "vcaAdvancedMotion", "tamperDefocus",
    "lineCrossing",      "objectLoitering",  "humanDetection",    "peopleCountLine",
    "objectLeftRemoved", "peopleCountRgn",   "vehicleCountLine",
};

template <size_t N>
const char *name_at(const char *const (&table)[N], int32_t index)
{
    if (index < 0 || index > static_cast<int32_t>(N) - 1)
        return nullptr;
    return table[index];
}

} // namespace

const char *getAlarmEventTypeString(int32_t index) { return name_at(alarm_event_names, index); }

const char *getVcaEventTypeString(int32_t index) { return name_at(vca_event_names, index); }
