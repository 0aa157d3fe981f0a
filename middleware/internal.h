/*
 * internal.h - the way a serializer is written.
 *
 * A serializer hands its fill step to `document`, which owns the rest of the
 * contract (buffer test, root object, print, delete, copy into the caller's
 * buffer, free), and fills the root one member a line, in emission order:
 *
 *     int32_t get_system_model_json(const system_model_record *in, char *dst, int32_t dstSize)
 *     {
 *         return mw::document(dst, dstSize, [in](cJSON *root) {
 *             mw::add(root, "devicevEnder", in->devicevEnder);
 *             mw::add(root, "name", in->name);
 *             mw::add(root, "deviceModel", in->deviceModel);
 *         });
 *     }
 *
 * `add` picks the JSON form from the field's own C type: int8/int16/int32/
 * int64 signed, uint8/uint16/uint32/uint64 unsigned, float widened to double,
 * char arrays as strings read no further than their array. Pass fields, not
 * casts, so that a field's declared type keeps deciding how it prints.
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

/* ---- the contract ---- */

/* buffer_usable (the buffer test every serializer starts with) and
   print_document (print, delete the tree, copy at most dstSize-1 bytes and a
   NUL, free the text; -1 when nothing could be printed) are in describe.h. */

/* The serializer contract around a fill step `fill(cJSON *root)`. */
template <typename Fill>
int32_t document(char *dst, int32_t dstSize, Fill &&fill)
{
    if (!buffer_usable(dst, dstSize))
        return -1;
    cJSON *root = cJSON_CreateObject();
    fill(root);
    return print_document(root, dst, dstSize);
}

/* The same without the buffer test, for the serializers that always build and
   print. A size below 1 (or a NULL buffer) copies nothing and still yields 0. */
template <typename Fill>
int32_t document_without_buffer_test(char *dst, int32_t dstSize, Fill &&fill)
{
    cJSON *root = cJSON_CreateObject();
    fill(root);
    return print_document(root, dst, dstSize);
}

/* ---- members: the field's type picks the number rule ---- */

inline void add(cJSON *o, const char *key, int32_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, int16_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, int8_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, int64_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, uint8_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, uint16_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, uint32_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, uint64_t v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, float v) { cJSON_AddNumberToObject(o, key, static_cast<double>(v)); }
inline void add(cJSON *o, const char *key, double v) { cJSON_AddNumberToObject(o, key, v); }

/* A plain `char` has a platform-chosen sign; a record spells its bytes as
   int8_t or uint8_t instead. */
void add(cJSON *o, const char *key, char v) = delete;

/* A text that is meant to end within `capacity` bytes. Should it not, the
   first `capacity` bytes are written, never anything past the array. */
void add_text(cJSON *o, const char *key, const char *text, size_t capacity);

/* A text field: read no further than its array. */
template <size_t N>
inline void add(cJSON *o, const char *key, const char (&text)[N])
{
    add_text(o, key, text, N);
}

/* A text produced by the library itself (a generated or constant text). */
inline void add_string(cJSON *o, const char *key, const char *text) { cJSON_AddStringToObject(o, key, text); }

/* ---- nested nodes ---- */

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

/* "scheduleList": seven objects, day d from 0 to 6, each with
   "scheduleIndex" d and "schedule" the day's text. */
void add_schedule_list(cJSON *parent, const char *firstDay, size_t dayStride);

template <size_t N>
inline void add_schedule_list(cJSON *parent, const char (&days)[7][N])
{
    add_schedule_list(parent, days[0], N);
}

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
 * mw::render_page, mw::apply_page and mw::schema_page. */
#define MW_PAGE_DESCRIPTION_(resource, Record, ...)                                                          \
    namespace {                                                                                              \
    constexpr auto describe_##resource = __VA_ARGS__;                                                        \
    }                                                                                                        \
    int32_t get_##resource##_json(const Record *in, char *dst, int32_t dstSize)                              \
    {                                                                                                        \
        return mw::render_page(dst, dstSize, describe_##resource, *in);                                      \
    }

/* The same for a page over another page's record type (the IoT alarm
   actions read the event records). */
#define MW_READ_ONLY_PAGE_OF(resource, Record, ...)                                                          \
    MW_PAGE_DESCRIPTION_(resource, Record, __VA_ARGS__)                                                      \
    int32_t schema_##resource##_json(const Record *in, char *dst, int32_t dstSize)                           \
    {                                                                                                        \
        return mw::schema_page(dst, dstSize, "get_" #resource "_json", true, describe_##resource, *in);      \
    }

#define MW_SETTABLE_PAGE_OF(resource, Record, ...)                                                           \
    MW_PAGE_DESCRIPTION_(resource, Record, __VA_ARGS__)                                                      \
    int32_t schema_##resource##_json(const Record *in, char *dst, int32_t dstSize)                           \
    {                                                                                                        \
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
