/*
 * catalog.h - the sample catalog: every document the library renders, with a
 * sample record that a working camera could hold. The command-line tool, the
 * contract sweep of the tests and the benchmarks all iterate over it.
 */
#ifndef MIDDLEWARE_CATALOG_H
#define MIDDLEWARE_CATALOG_H

#include "middleware.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

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
};

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

// Every entry, group by group.
std::vector<const CatalogEntry *> catalog_entries();
// The entry rendered by `name`, or nullptr.
const CatalogEntry *catalog_find(const char *name);

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
