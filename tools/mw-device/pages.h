/*
 * The camera's pages: one live state per catalog page, starting from its
 * sample, with the renderings and set requests the routes answer from.
 *
 * What every camera's copy of a page has in common (its catalog entry, group,
 * path and sample state) is held once, in the page table; a camera's Page
 * holds only its locks and a pointer to its state. That pointer names the
 * page's shared sample until the page's first accepted set, which installs a
 * state of the camera's own: an idle camera costs its locks and pointers.
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

// A catalog page as every camera serves it.
struct PageKind {
    const CatalogEntry *entry = nullptr;
    std::string group;
    std::string path; // "/api/ptz_presets"
    std::shared_ptr<const State> sample;
};

struct Page {
    const CatalogEntry *entry = nullptr;
    const PageKind *kind = nullptr;
    // Guards `state`; held only to copy it or to replace it, never across
    // rendering or the disk.
    std::mutex lock;
    // One set request of this page at a time, held from its precondition
    // through its save to its reply: saves of a page land in the order the
    // sets were accepted, and a tag checked under it stays current.
    std::mutex writeLock;
    // The shared sample until the page has a state of its own. A published
    // state is never changed in place, so a reader may render from it after
    // letting go of the lock.
    std::shared_ptr<const State> state;
};

// The page's argument from the query: absent, a whole number, or refused.
struct Selection {
    enum Kind { none, given, bad } kind = none;
    int32_t value = 0;
};

// Builds the page table from the catalog: every page's sample, its path and
// the index (once, at start, before any camera).
void load_pages();
const std::vector<PageKind> &page_kinds();
// The position of the page at `path` in the table, or -1.
int page_index(const std::string &path);

// The index at /api: every page with its path, group and argument.
const std::string &index_document();

// A copy of the page's state, taken under its lock.
State snapshot(Page &page);
// Replaces the page's state under its lock with one of the camera's own.
void publish(Page &page, State state);
// Whether the page still shows the catalog's shared sample.
bool shares_sample(Page &page);

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
