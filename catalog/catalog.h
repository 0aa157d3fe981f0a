/*
 * catalog.h - the sample catalog: every document the library renders, with a
 * sample record that a working camera could hold. The command-line tool, the
 * contract sweep of the tests and the benchmarks all iterate over it.
 */
#ifndef MIDDLEWARE_CATALOG_H
#define MIDDLEWARE_CATALOG_H

#include "middleware.h"
#include "pages.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

// A live page: the state a web server holds for it (its record, or its
// records and argument) and the calls over that state. States are plain
// bytes: copied with memcpy, compared with memcmp.
struct PageOps {
    size_t stateSize;              // bytes of one state
    void (*initial)(void *state);  // writes the catalog's sample into `state`
    int32_t (*render)(void *state, char *dst, int32_t dstSize);
    int32_t (*schema)(void *state, char *dst, int32_t dstSize);
    // The set function over the state; nullptr for a read-only page.
    int32_t (*set)(void *state, const char *body, int32_t bodySize, char *dst, int32_t dstSize);
    // The page's selector or integer argument inside the state (the event
    // type of a per-event-type page, a count), or nullptr; and its name.
    int32_t *(*argument)(void *state) = nullptr;
    const char *argumentName = nullptr;
    // The values the argument may take, both ends included (the page refuses
    // or lists nothing for others).
    int32_t argumentMin = 0, argumentMax = 0;
};

struct CatalogEntry {
    const char *name;        // the exported function that renders it
    const char *description; // one line: what the document is
    // Renders the sample into dst exactly as the web server would call the
    // function. The sample record is built once and reused, so repeated calls
    // measure the serializer alone.
    int32_t (*render)(char *dst, int32_t dstSize);
    // False for the few serializers that never test their buffer (they print
    // and copy nothing for a size below 1, returning 0).
    bool testsBuffer = true;
    // The page behind the document; nullptr for the reply envelopes.
    const PageOps *page = nullptr;
    // A state as the page's inputs, in the order its functions take them
    // (records and arguments), for the page table's own calls. It brings a
    // count to what the web server would pass, so it may change the state.
    void (*inputs)(void *state, void **out) = nullptr;
};

// The page's row in the library's page table (its identity as the page
// declares it); nullptr for the reply envelopes.
const mw::PageRow *catalog_row(const CatalogEntry &entry);
// Why a client cannot write the page (a few words, from its declaration);
// nullptr when it can, and for the reply envelopes.
const char *catalog_read_only(const CatalogEntry &entry);
// The page rendered from a state through the page table (what the library's
// serializer renders, by the table's own description); -1 when the page
// refuses it.
int32_t catalog_render_by_table(const CatalogEntry &entry, void *state, char *dst, int32_t dstSize);
// The JSON Schema of every document the page can render, from its
// description, with the state deciding which optional keys and list
// elements it shows; nullptr for the reply envelopes.
cJSON *catalog_schema_of_every_state(const CatalogEntry &entry, void *state);

// A sample record made once by `Make` and kept.
template <typename R, R (*Make)()>
const R &kept()
{
    static const R r = Make();
    return r;
}

// The page of a serializer over one record: its state is the record. A
// read-only page has no set function.
template <typename R, const R &(*Sample)(), int32_t (*Get)(const R *, char *, int32_t),
          int32_t (*Schema)(const R *, char *, int32_t)>
struct ReadOnlyRecordPage {
    static void initial(void *state) { memcpy(state, &Sample(), sizeof(R)); }
    static int32_t render(void *state, char *dst, int32_t n) { return Get(static_cast<const R *>(state), dst, n); }
    static int32_t schema(void *state, char *dst, int32_t n) { return Schema(static_cast<const R *>(state), dst, n); }
    static int32_t sample(char *dst, int32_t n) { return Get(&Sample(), dst, n); }
    static void inputs(void *state, void **out) { out[0] = state; }
    static constexpr PageOps ops{sizeof(R), initial, render, schema, nullptr};
};

template <typename R, const R &(*Sample)(), int32_t (*Get)(const R *, char *, int32_t),
          int32_t (*Schema)(const R *, char *, int32_t), int32_t (*Set)(R *, const char *, int32_t, char *, int32_t)>
struct RecordPage : ReadOnlyRecordPage<R, Sample, Get, Schema> {
    using Base = ReadOnlyRecordPage<R, Sample, Get, Schema>;
    static int32_t set(void *state, const char *body, int32_t size, char *dst, int32_t n)
    {
        return Set(static_cast<R *>(state), body, size, dst, n);
    }
    static constexpr PageOps ops{sizeof(R), Base::initial, Base::render, Base::schema, set};
};

// The page of a serializer over its record and a second block the firmware
// keeps apart (a week schedule, a polygon table): the state holds both.
template <typename R1, const R1 &(*Sample1)(), typename R2, const R2 &(*Sample2)(),
          int32_t (*Get)(const R1 *, const R2 *, char *, int32_t),
          int32_t (*Schema)(const R1 *, const R2 *, char *, int32_t),
          int32_t (*Set)(R1 *, R2 *, const char *, int32_t, char *, int32_t)>
struct PairPage {
    struct State {
        R1 first;
        R2 second;
    };
    static State &of(void *state) { return *static_cast<State *>(state); }
    static void initial(void *state)
    {
        memcpy(&of(state).first, &Sample1(), sizeof(R1));
        memcpy(&of(state).second, &Sample2(), sizeof(R2));
    }
    static int32_t render(void *state, char *dst, int32_t n) { return Get(&of(state).first, &of(state).second, dst, n); }
    static int32_t schema(void *state, char *dst, int32_t n)
    {
        return Schema(&of(state).first, &of(state).second, dst, n);
    }
    static int32_t set(void *state, const char *body, int32_t size, char *dst, int32_t n)
    {
        return Set(&of(state).first, &of(state).second, body, size, dst, n);
    }
    static int32_t sample(char *dst, int32_t n) { return Get(&Sample1(), &Sample2(), dst, n); }
    static void inputs(void *state, void **out)
    {
        out[0] = &of(state).first;
        out[1] = &of(state).second;
    }
    static constexpr PageOps ops{sizeof(State), initial, render, schema, set};
};

// A catalog entry for a page type with `ops` and `sample` (RecordPage, or a
// page type of a group's own for other argument lists).
template <typename Page>
constexpr CatalogEntry page_entry(const char *name, const char *description)
{
    return CatalogEntry{name, description, Page::sample, true, &Page::ops, Page::inputs};
}

// The entries of single-record pages, by resource name: a settable one, and
// a read-only one.
#define MW_SETTABLE_ENTRY(resource, description, sample)                                                      \
    page_entry<RecordPage<resource##_record, sample, get_##resource##_json, schema_##resource##_json,          \
                          set_##resource##_json>>("get_" #resource "_json", description)
#define MW_READ_ONLY_ENTRY(resource, description, sample)                                                     \
    page_entry<ReadOnlyRecordPage<resource##_record, sample, get_##resource##_json, schema_##resource##_json>>( \
        "get_" #resource "_json", description)

struct CatalogGroup {
    const char *name;
    const CatalogEntry *entries;
    size_t count;
};

template <size_t N>
constexpr CatalogGroup catalog_group(const char *name, const CatalogEntry (&entries)[N])
{
    return CatalogGroup{name, entries, N};
}

// One group per serializer family, in catalog/<group>.cpp.
extern const CatalogGroup catalog_core;
extern const CatalogGroup catalog_system;
extern const CatalogGroup catalog_network;
extern const CatalogGroup catalog_audio_storage;
extern const CatalogGroup catalog_traffic;
extern const CatalogGroup catalog_ptz;
extern const CatalogGroup catalog_camera;
extern const CatalogGroup catalog_video;
extern const CatalogGroup catalog_event_actions;
extern const CatalogGroup catalog_event_sources;
extern const CatalogGroup catalog_iot_devices;
extern const CatalogGroup catalog_iot_actions;
extern const CatalogGroup catalog_capability;
extern const CatalogGroup catalog_vca;
extern const CatalogGroup catalog_lpr;

// The groups, in catalog order.
std::vector<const CatalogGroup *> catalog_groups();
// Every entry, group by group.
std::vector<const CatalogEntry *> catalog_entries();
// The entry rendered by `name`, or nullptr.
const CatalogEntry *catalog_find(const char *name);
// Fills every text the page shows from `state` to its whole array, without a
// NUL, each member with a byte of its own (texts inside the state only).
void catalog_fill_texts(const CatalogEntry &entry, void *state);

// A sample record too large to copy or to build on the stack (the alarm
// action records hold 48 event types, the audio one 48 x 7 schedule texts):
// `Fill` fills it in place, once, in static storage.
template <typename Record, void (*Fill)(Record &)>
const Record &sample_in_place()
{
    static Record r{};
    static const bool filled = (Fill(r), true);
    (void)filled;
    return r;
}

// Writes `text` into a record's char array, cut to fit with its NUL.
template <size_t N>
inline void put(char (&field)[N], const char *text)
{
    snprintf(field, N, "%s", text);
}

#endif /* MIDDLEWARE_CATALOG_H */
