/*
 * internal.h - the way a page is written.
 *
 * A page is one description over its record (describe.h), declared with
 * MW_SETTABLE_PAGE or MW_READ_ONLY_PAGE at the end of this file; the
 * description gives the serializer, the schema function and, for a page a
 * client may write, the set function. One line a key, in emission order:
 *
 *     MW_READ_ONLY_PAGE(system_model, [](auto &a, auto &r) {
 *         a("devicevEnder", r.devicevEnder);
 *         a("name", r.name);
 *         a("deviceModel", r.deviceModel);
 *     })
 *
 * The member's own C type picks the JSON form: int8/int16/int32/int64
 * signed, uint8/uint16/uint32/uint64 unsigned, float widened to double, char
 * arrays as texts read no further than their array. Pass members, not casts,
 * so that a member's declared type keeps deciding how it prints and what a
 * set request may write into it; a value the page computes is `derived`.
 *
 * Nothing here throws or needs the C++ runtime: the library links against
 * libc and libcjson only.
 */
#ifndef MIDDLEWARE_INTERNAL_H
#define MIDDLEWARE_INTERNAL_H

#include "describe.h"
#include "pages.h"

#include <cstdarg>
#include <cstddef>
#include <cstdint>

namespace mw {

/* ---- nested nodes for the archives ---- */

/* A new object (array) under `key`, made with json_set_element_struct
   (json_set_array_struct). A NULL parent (a root that could not be created)
   makes nothing and yields NULL, into which later additions are no-ops. */
cJSON *object(cJSON *parent, const char *key);
cJSON *array(cJSON *parent, const char *key);

/* A new object appended to `array`; NULL (and nothing left behind) when the
   array is NULL or memory runs out. */
cJSON *append_object(cJSON *array);

/* ---- generated keys ---- */

/* A key formatted into a buffer of N bytes, e.g. Key<16>("preset_%d", i).
   A key longer than N-1 bytes is cut there, as snprintf cuts it. */
template <size_t N>
class Key {
public:
    explicit Key(const char *format, ...) __attribute__((format(printf, 2, 3)));
    operator const char *() const { return text_; }
    const char *c_str() const { return text_; }

private:
    char text_[N];
};

/* A value text formatted the same way, e.g. Text<32>("%0.2f", pan): the
   documents' formatted texts have fixed buffer sizes too. */
template <size_t N>
using Text = Key<N>;

void format_into(char *out, size_t size, const char *format, va_list args);

template <size_t N>
Key<N>::Key(const char *format, ...)
{
    va_list args;
    va_start(args, format);
    format_into(text_, N, format, args);
    va_end(args);
}

/* ---- shared shapes ---- */

/* A polygon's coordinates as text: each value formatted "%d:" and appended,
   trailing colon kept ("10:20:30:40:"), in a 64-byte text cut silently at 63
   characters. */
struct PolygonText {
    char text[64];
};

PolygonText polygon_text(const int32_t *values, size_t count);

} // namespace mw

/* ---- declaring a page ----
 *
 * A page is declared once: its names, its records and arguments, whether a
 * client may write it (and why not), the few rules it adds to the contract,
 * and its description. The declaration gives its serializer
 * <prefix>get_<resource>_json, its schema function
 * <prefix>schema_<resource>_json and, for a page a client may write,
 * <prefix>set_<resource>_json; the prefix is empty or ware_.
 *
 *     MW_SETTABLE_PAGE(ptz_wiper, [](auto &a, auto &r) {
 *         a("autoWiper", r.autoWiper);
 *         a("status", r.status);
 *     })
 *
 *     MW_READ_ONLY_PAGE(system_model, "set at the factory", [](auto &a, auto &r) { ... })
 *
 * The forms, by what the functions take beside the buffer:
 *   MW_SETTABLE_PAGE / MW_READ_ONLY_PAGE            the record <resource>_record
 *   MW_SETTABLE_PAGE_OF / MW_READ_ONLY_PAGE_OF      a record of another type
 *   MW_SETTABLE_PAGE_WITH                           a record and a second one
 *   MW_SETTABLE_PAGE_WITH_TEXT                      a record and a caller's text
 *   MW_READ_ONLY_PAGE_WITH_COUNT                    a record (or entries) and a count
 *   MW_READ_ONLY_ENTRIES_PAGE                       a count and the entries it counts
 *   MW_READ_ONLY_VALUE_PAGE                         one number
 * Each takes `prefix` and `rules` where a page needs them
 * (MW_RULES(shown, accept, flags), see mw::Page) and names its argument
 * ("eventType", "count", ...) when a web server passes one.
 *
 * Every function tests the buffer before it reads a record, so that a refused
 * buffer returns before any record is read. */

#define MW_UNPAREN_(...) __VA_ARGS__
#define MW_RULES(shown, accept, flags) (shown, accept, flags)
#define MW_NO_RULES MW_RULES(nullptr, nullptr, 0)
#define MW_SHOWN_(shown, accept, flags) shown
#define MW_ACCEPT_(shown, accept, flags) accept
#define MW_FLAGS_(shown, accept, flags) flags

/* The page object: the description, compiled once, and what the page is;
   in the tools' build, its row of the page table too. */
#define MW_PAGE_OBJECT_(prefix, resource, reason, argument, rules, arity, sizes, Types, ...)                  \
    namespace {                                                                                              \
    constexpr auto describe_##resource = __VA_ARGS__;                                                        \
    static_assert(arity <= mw::kMaxInputs, "a page takes at most mw::kMaxInputs inputs");                   \
    void walk_##resource(mw::Archive &a, void *const *inputs)                                                \
    {                                                                                                        \
        mw::walk_with<MW_UNPAREN_ Types>(describe_##resource, a, inputs, std::make_index_sequence<arity>{});  \
    }                                                                                                        \
    constexpr mw::Page page_##resource = {                                                                   \
        walk_##resource,                                                                                     \
        static_cast<uint8_t>(MW_FLAGS_ rules | ((reason) != nullptr ? mw::kReadOnly : 0)),                   \
        arity,                                                                                               \
        {MW_UNPAREN_ sizes},                                                                                 \
        MW_SHOWN_ rules,                                                                                     \
        MW_ACCEPT_ rules};                                                                                   \
    }                                                                                                        \
    MW_PAGE_ROW_(prefix, resource, reason, argument)

#ifdef MW_PAGE_TABLE
/* The tools' build: each page enrolled in the page table (pages.h) instead
   of its exported functions. */
#define MW_PAGE_ROW_(prefix, resource, reason, argument)                                                      \
    namespace {                                                                                              \
    mw::PageRow row_##resource{&page_##resource,       #prefix "get_" #resource "_json",                     \
                               #prefix "schema_" #resource "_json", nullptr, reason, argument, nullptr};    \
    const bool enrolled_##resource = mw::enroll(row_##resource);                                             \
    }
#define MW_PAGE_FUNCTIONS_(prefix, resource, Params, Inputs)
#define MW_SET_FUNCTION_(prefix, resource, Params, Inputs)                                                    \
    namespace {                                                                                              \
    const bool settable_##resource = (row_##resource.setName = #prefix "set_" #resource "_json", true);      \
    }
#else
#define MW_PAGE_ROW_(prefix, resource, reason, argument)
#define MW_PAGE_FUNCTIONS_(prefix, resource, Params, Inputs)                                                  \
    int32_t prefix##get_##resource##_json(MW_UNPAREN_ Params, char *dst, int32_t dstSize)                     \
    {                                                                                                        \
        return mw::render_page(MW_UNPAREN_ Inputs, dst, dstSize, page_##resource);                          \
    }                                                                                                        \
    int32_t prefix##schema_##resource##_json(MW_UNPAREN_ Params, char *dst, int32_t dstSize)                  \
    {                                                                                                        \
        return mw::schema_page(MW_UNPAREN_ Inputs, dst, dstSize, page_##resource, #prefix "get_" #resource "_json"); \
    }
#define MW_SET_FUNCTION_(prefix, resource, Params, Inputs)                                                    \
    int32_t prefix##set_##resource##_json(MW_UNPAREN_ Params, const char *body, int32_t bodySize, char *dst,  \
                                          int32_t dstSize)                                                   \
    {                                                                                                        \
        return mw::apply_page(MW_UNPAREN_ Inputs, body, bodySize, dst, dstSize, page_##resource);            \
    }
#endif

/* One record. */
#define MW_RECORD_PAGE_(prefix, resource, Record, reason, argument, rules, ...)                               \
    MW_PAGE_OBJECT_(prefix, resource, reason, argument, rules, 1, (sizeof(Record), 0), (Record), __VA_ARGS__) \
    MW_PAGE_FUNCTIONS_(prefix, resource, (const Record *in), (in))
#define MW_SETTABLE_RECORD_PAGE(prefix, resource, Record, argument, rules, ...)                               \
    MW_RECORD_PAGE_(prefix, resource, Record, nullptr, argument, rules, __VA_ARGS__)                          \
    MW_SET_FUNCTION_(prefix, resource, (Record *record), (record))
#define MW_READ_ONLY_RECORD_PAGE(prefix, resource, Record, reason, argument, rules, ...)                      \
    MW_RECORD_PAGE_(prefix, resource, Record, reason, argument, rules, __VA_ARGS__)

#define MW_SETTABLE_PAGE_OF(resource, Record, ...)                                                            \
    MW_SETTABLE_RECORD_PAGE(, resource, Record, nullptr, MW_NO_RULES, __VA_ARGS__)
#define MW_READ_ONLY_PAGE_OF(resource, Record, reason, ...)                                                   \
    MW_READ_ONLY_RECORD_PAGE(, resource, Record, reason, nullptr, MW_NO_RULES, __VA_ARGS__)
#define MW_SETTABLE_PAGE(resource, ...) MW_SETTABLE_PAGE_OF(resource, resource##_record, __VA_ARGS__)
#define MW_READ_ONLY_PAGE(resource, reason, ...) MW_READ_ONLY_PAGE_OF(resource, resource##_record, reason, __VA_ARGS__)

/* A record whose leading eventType selects the alarm event type shown (every
   type when negative); a selector past the event-name table cannot be shown
   or described. A set request takes whatever types it names. */
#define MW_EVENT_TYPE_PAGE(resource, ...)                                                                     \
    MW_SETTABLE_RECORD_PAGE(, resource, resource##_record, "eventType",                                       \
                            MW_RULES(mw::names_an_event_type<resource##_record>, nullptr, 0), __VA_ARGS__)

/* A record and a second one the firmware keeps apart (a week schedule, a
   polygon table, an extension, a status). */
#define MW_SETTABLE_PAGE_WITH(prefix, resource, Record, Second, rules, ...)                                   \
    MW_PAGE_OBJECT_(prefix, resource, nullptr, nullptr, rules, 2, (sizeof(Record), sizeof(Second)),           \
                    (Record, Second), __VA_ARGS__)                                                           \
    MW_PAGE_FUNCTIONS_(prefix, resource, (const Record *in, const Second *second), (in, second))              \
    MW_SET_FUNCTION_(prefix, resource, (Record *record, Second *second), (record, second))

/* A record and a caller's text, shown as it is. */
#define MW_SETTABLE_PAGE_WITH_TEXT(prefix, resource, Record, text, ...)                                       \
    MW_PAGE_OBJECT_(prefix, resource, nullptr, nullptr, MW_NO_RULES, 2, (sizeof(Record), 0),                 \
                    (Record, const char *), __VA_ARGS__)                                                     \
    MW_PAGE_FUNCTIONS_(prefix, resource, (const Record *in, const char *text), (in, text))                    \
    MW_SET_FUNCTION_(prefix, resource, (Record *record, const char *text), (record, text))

/* A record the serializer may change (its texts are split in place), or the
   entries themselves, and the count of entries beside it. */
#define MW_READ_ONLY_PAGE_WITH_COUNT(resource, Record, reason, ...)                                           \
    MW_PAGE_OBJECT_(, resource, reason, "count", MW_NO_RULES, 2, (0, 0), (Record *, int32_t), __VA_ARGS__)   \
    MW_PAGE_FUNCTIONS_(, resource, (Record *in, int32_t count), (in, count))

/* A count and the entries it counts. */
#define MW_READ_ONLY_ENTRIES_PAGE(resource, Entry, reason, ...)                                               \
    MW_PAGE_OBJECT_(, resource, reason, "count", MW_NO_RULES, 2, (0, 0), (int32_t, const Entry *),           \
                    __VA_ARGS__)                                                                             \
    MW_PAGE_FUNCTIONS_(, resource, (int32_t count, const Entry *entries), (count, entries))

/* One number, named by `argument`. */
#define MW_READ_ONLY_VALUE_PAGE(resource, argument, reason, ...)                                              \
    MW_PAGE_OBJECT_(, resource, reason, #argument, MW_NO_RULES, 1, (0, 0), (int32_t), __VA_ARGS__)           \
    MW_PAGE_FUNCTIONS_(, resource, (int32_t argument), (argument))

#endif /* MIDDLEWARE_INTERNAL_H */
