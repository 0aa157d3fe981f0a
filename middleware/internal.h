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
 * A page is declared once with its description (describe.h); the macro gives
 * its serializer get_<resource>_json, its schema function
 * schema_<resource>_json and, for a page a client may write,
 * set_<resource>_json. The record is <resource>_record.
 *
 *     MW_SETTABLE_PAGE(ptz_wiper, [](auto &a, auto &r) {
 *         a("autoWiper", r.autoWiper);
 *         a("status", r.status);
 *     })
 *
 * Pages with other argument lists write the three functions with
 * mw::render_page, mw::apply_page and mw::schema_page. Each tests the buffer
 * before it dereferences a record, so that a refused buffer returns before
 * any record is read. */
#define MW_PAGE_DESCRIPTION_(resource, Record, ...)                                                          \
    namespace {                                                                                              \
    constexpr auto describe_##resource = __VA_ARGS__;                                                        \
    }                                                                                                        \
    int32_t get_##resource##_json(const Record *in, char *dst, int32_t dstSize)                              \
    {                                                                                                        \
        if (!mw::buffer_usable(dst, dstSize))                                                                \
            return -1;                                                                                       \
        return mw::render_page(dst, dstSize, describe_##resource, *in);                                      \
    }

/* The same for a page over another page's record type (the IoT alarm
   actions read the event records). */
#define MW_READ_ONLY_PAGE_OF(resource, Record, ...)                                                          \
    MW_PAGE_DESCRIPTION_(resource, Record, __VA_ARGS__)                                                      \
    int32_t schema_##resource##_json(const Record *in, char *dst, int32_t dstSize)                           \
    {                                                                                                        \
        if (!mw::buffer_usable(dst, dstSize))                                                                \
            return -1;                                                                                       \
        return mw::schema_page(dst, dstSize, "get_" #resource "_json", true, describe_##resource, *in);      \
    }

#define MW_SETTABLE_PAGE_OF(resource, Record, ...)                                                           \
    MW_PAGE_DESCRIPTION_(resource, Record, __VA_ARGS__)                                                      \
    int32_t schema_##resource##_json(const Record *in, char *dst, int32_t dstSize)                           \
    {                                                                                                        \
        if (!mw::buffer_usable(dst, dstSize))                                                                \
            return -1;                                                                                       \
        return mw::schema_page(dst, dstSize, "get_" #resource "_json", false, describe_##resource, *in);     \
    }                                                                                                        \
    int32_t set_##resource##_json(Record *record, const char *body, int32_t bodySize, char *dst,             \
                                  int32_t dstSize)                                                           \
    {                                                                                                        \
        return mw::apply_page(describe_##resource, record, body, bodySize, dst, dstSize);                    \
    }

#define MW_READ_ONLY_PAGE(resource, ...) MW_READ_ONLY_PAGE_OF(resource, resource##_record, __VA_ARGS__)
#define MW_SETTABLE_PAGE(resource, ...) MW_SETTABLE_PAGE_OF(resource, resource##_record, __VA_ARGS__)

#endif /* MIDDLEWARE_INTERNAL_H */
