/*
 * The camera's pages: one live state per catalog page, starting from its
 * sample, with the renderings and set requests the routes answer from.
 */
#pragma once

#include "catalog.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace device {

using State = std::vector<unsigned char>;

struct Page {
    const CatalogEntry *entry = nullptr;
    std::string group;
    std::string path; // "/api/ptz_presets"
    // Guards `state`; held only to copy it or to replace it, never across
    // rendering or the disk.
    std::mutex lock;
    // One set request of this page at a time, held from its precondition
    // through its save to its reply: saves of a page land in the order the
    // sets were accepted, and a tag checked under it stays current.
    std::mutex writeLock;
    State state;
};

// The page's argument from the query: absent, a whole number, or refused.
struct Selection {
    enum Kind { none, given, bad } kind = none;
    int32_t value = 0;
};

// Builds every catalog page from its sample (once, at start).
void load_pages();
const std::vector<std::unique_ptr<Page>> &all_pages();
Page *find_page(const std::string &path);

// The index at /api: every page with its path, group and argument.
const std::string &index_document();

// A copy of the page's state, taken under its lock.
State snapshot(Page &page);
// Replaces the page's state under its lock.
void publish(Page &page, State state);

enum class Rendered { ok, bad_argument, failed };
// Renders the page's document (or its schema) from `state`, a copy the call
// may change (the capability pages split their texts in place), with the
// argument asked for. A selector the page has no slot for is a bad argument.
Rendered render(const Page &page, State state, const Selection &selection, bool schema, std::string *out);

// Applies a set request to `state` with the argument asked for; the page's
// selector is left as it was. Returns true when accepted; `answer` is the
// library's reply envelope either way.
bool apply(const Page &page, State &state, const Selection &selection, const std::string &body,
           std::string *answer);

// The library's reply envelopes.
std::string format_error(const char *key);
std::string set_failed();

} // namespace device
