/*
 * describe.h - one description per page, read three ways.
 *
 * A page is described once, as a generic function over an archive `a` and
 * the page's record `r`, one line a key in emission order:
 *
 *     constexpr auto wiper = [](auto &a, auto &r) {
 *         a("autoWiper", r.autoWiper);
 *         a("status", r.status);
 *     };
 *
 * The same description is run by three archives:
 *   - Out renders: it builds the cJSON tree the serializer prints;
 *   - In applies a set request: it reads the parsed body into a staging copy
 *     of the record and stops at the first member that does not fit;
 *   - Shape describes: it builds the page's JSON Schema.
 *
 * What an archive offers (the same calls on all three):
 *   a(key, field)               a member copied to and from its field. The C
 *                               type picks the number rule and the range; a
 *                               char[N] is a text of at most N-1 bytes.
 *   a.derived(key, value)       a read-only key: a value the page computes
 *                               (a formatted text, a count, a constant, a
 *                               member shown with an offset or through a
 *                               const pointer). A set request may repeat it
 *                               unchanged and nothing else.
 *   a.derived_text(key, p)      the same for a text the library made (no array
 *                               bounds it: a table's name, a scratch text).
 *   a.numbers(key, field)       a member array as a JSON number array, whole.
 *   a.derived_numbers(key, p, n) a computed number array, read-only.
 *   a.object(key, f)            a nested object, filled by f(a).
 *   a.list(key, indexKey, f)    a list filled by f(list); list.item(index, g)
 *                               appends an object holding indexKey: index
 *                               first, then what g(a) adds. In a set request
 *                               an element names its slot by its index key.
 *                               With a nullptr indexKey, list.item(g) appends
 *                               an object and requests match items by place.
 *   a.per_event_type(sel, f)    one object per alarm event type, named by the
 *                               event-name table: every type for a negative
 *                               selector, else the selected one; f(a, type).
 *                               A set request may name any type.
 *   a.when(cond, f)             keys that are printed only while cond holds.
 *
 * Shapes written once for every archive: schedule_list (the weekly
 * "scheduleList").
 *
 * Keys are `Name`s: a string literal, a generated `Key<N>`, or a text from a
 * table of the library's own (`Name::fixed`) or from elsewhere
 * (`Name::copied`).
 *
 * Conditions and loops in a description read the record. While a request is
 * applied that is the staging copy. Which keys are settable:
 *   - a member copied as it stands is settable (a);
 *   - a value the page computes is derived: formatted or joined texts,
 *     constants, a member shown with an offset or scaled, a member behind a
 *     const pointer, a member shown a second time under another key;
 *   - a member that decides what else the page prints (a count that bounds
 *     a list, a switch that adds or drops keys, a selector) is derived too,
 *     so that setting one key never changes another. A test that only tells
 *     an empty slot from a used one (an id of 0, an empty name) is no such
 *     decision: the slot's members stay settable.
 *
 * A set request reads the body by exact key and refuses fractions, numbers
 * out of range and repeated list indices. The exported request readers
 * (get_json_section_type_*, get_json_array_struct_from_index) are the web
 * server's own loose tools: they match keys without regard to case, truncate
 * numbers and let a text index match 0, so In reads members itself.
 *
 * Pages are declared with MW_SETTABLE_PAGE / MW_READ_ONLY_PAGE (internal.h), which
 * give the serializer, the set function and the schema function.
 */
#ifndef MIDDLEWARE_DESCRIBE_H
#define MIDDLEWARE_DESCRIBE_H

#include "middleware.h"

#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace mw {

/* ---- keys ---- */

struct Name {
    const char *text;
    bool lasting; // the text outlives the document: the tree may point at it

    template <size_t N>
    constexpr Name(const char (&literal)[N]) : text(literal), lasting(true) {}
    template <typename K, typename = decltype(static_cast<const char *>(static_cast<const K *>(nullptr)->c_str()))>
    Name(const K &generated) : text(generated.c_str()), lasting(false) {}

    static constexpr Name fixed(const char *t) { return Name(t, true); }
    static constexpr Name copied(const char *t) { return Name(t, false); }

private:
    constexpr Name(const char *t, bool l) : text(t), lasting(l) {}
};

/* ---- number rules and ranges ---- */

template <typename T>
constexpr bool is_number_v = std::is_arithmetic<T>::value && !std::is_same<T, char>::value &&
                             !std::is_same<T, bool>::value;

/* The values a member's C type holds, as doubles: the schema states them and
   a set request is checked against them. The 64-bit ends are the last doubles
   inside the type. */
template <typename T>
struct Range {
    static constexpr bool integral = std::is_integral<T>::value;
    static constexpr double low()
    {
        if (!integral)
            return sizeof(T) == sizeof(float) ? -static_cast<double>(FLT_MAX) : -DBL_MAX;
        return static_cast<double>(std::numeric_limits<T>::min());
    }
    static constexpr double high()
    {
        if (!integral)
            return sizeof(T) == sizeof(float) ? static_cast<double>(FLT_MAX) : DBL_MAX;
        if (sizeof(T) == 8)
            return std::is_signed<T>::value ? 9223372036854774784.0 : 18446744073709549568.0;
        return static_cast<double>(std::numeric_limits<T>::max());
    }
};

/* ---- rendering: Out ---- */

void out_number(cJSON *o, Name key, double value);
/* A text read no further than `capacity` bytes (a field without its NUL is
   written up to its end). */
void out_text(cJSON *o, Name key, const char *text, size_t capacity);
cJSON *out_object(cJSON *o, Name key);
cJSON *out_array(cJSON *o, Name key);
cJSON *out_append_object(cJSON *array);
void out_append_number(cJSON *array, double value);

class Out {
public:
    explicit Out(cJSON *o) : o_(o) {}

    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    void operator()(Name key, const T &field) { out_number(o_, key, static_cast<double>(field)); }
    template <size_t N>
    void operator()(Name key, const char (&text)[N]) { out_text(o_, key, text, N); }

    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    void derived(Name key, T value) { out_number(o_, key, static_cast<double>(value)); }
    template <size_t N>
    void derived(Name key, const char (&text)[N]) { out_text(o_, key, text, N); }
    void derived_text(Name key, const char *text) { out_text(o_, key, text, SIZE_MAX); }
    template <typename K, typename = decltype(static_cast<const K *>(nullptr)->c_str())>
    void derived(Name key, const K &text) { out_text(o_, key, text.c_str(), SIZE_MAX); }

    template <typename T, size_t N>
    void numbers(Name key, const T (&values)[N])
    {
        cJSON *list = out_array(o_, key);
        for (size_t i = 0; i < N; ++i)
            out_append_number(list, static_cast<double>(values[i]));
    }
    template <typename T>
    void derived_numbers(Name key, const T *values, int32_t count)
    {
        cJSON *list = out_array(o_, key);
        for (int32_t i = 0; i < count; ++i)
            out_append_number(list, static_cast<double>(values[i]));
    }

    template <typename F>
    void object(Name key, F &&fill)
    {
        Out sub(out_object(o_, key));
        fill(sub);
    }

    class List {
    public:
        List(cJSON *array, const char *indexKey) : array_(array), indexKey_(indexKey) {}
        template <typename G>
        void item(int32_t index, G &&fill)
        {
            Out sub(out_append_object(array_));
            out_number(sub.o_, Name::fixed(indexKey_), static_cast<double>(index));
            fill(sub);
        }
        template <typename G>
        void item(G &&fill)
        {
            Out sub(out_append_object(array_));
            fill(sub);
        }

    private:
        cJSON *array_;
        const char *indexKey_;
    };

    template <typename F>
    void list(Name key, const char *indexKey, F &&fill)
    {
        List l(out_array(o_, key), indexKey);
        fill(l);
    }

    template <typename F>
    void per_event_type(int32_t selector, F &&fill)
    {
        if (selector >= 0) {
            Out sub(out_object(o_, Name::fixed(getAlarmEventTypeString(selector))));
            fill(sub, selector);
            return;
        }
        for (int32_t type = 0; type <= kLastAlarmEventType; ++type) {
            Out sub(out_object(o_, Name::fixed(getAlarmEventTypeString(type))));
            fill(sub, type);
        }
    }

    template <typename F>
    void when(bool cond, F &&fill)
    {
        if (cond)
            fill(*this);
    }

    static constexpr int32_t kLastAlarmEventType = 47;

private:
    cJSON *o_;
};

/* ---- applying a set request: In ---- */

/* What one set request carries through its description: the refusal (the
   first one stops the walk), the path to where the walk stands, and the
   current document, built only when a read-only key must be compared with
   it. */
class Session {
public:
    Session(cJSON *(*current)(const void *), const void *context) : build_current_(current), context_(context) {}
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    bool failed() const { return failed_; }
    const char *refused_key() const { return error_; }

    /* The member under exactly `key`, marked as read; nullptr when absent or
       after a refusal. */
    cJSON *take(cJSON *object, Name key);
    /* Refuses the request at the path plus `key` (nullptr: the path itself). */
    void refuse(const char *key);

    /* A number member: integral when the type is, within [low, high]. */
    bool number_fits(const cJSON *v, double low, double high, bool integral, double *out);
    /* A text member fitting `capacity` bytes with its NUL; copied with the
       rest of the field zeroed. */
    bool text_fits(const cJSON *v, size_t capacity);
    static void copy_text(char *field, size_t capacity, const cJSON *v);
    /* A read-only key: accepted when equal to the value computed now or to
       what the current document holds at the same place. */
    void check_derived(cJSON *given, const char *key, const cJSON &computed);

    /* Path steps: a member, or a list element with its index (or place). */
    size_t enter(const char *key);
    size_t enter_item(const char *indexKey, int32_t index);
    void leave(size_t mark) { depth_ = mark; }

    /* A list's elements: objects with a distinct integral index each (when
       the list has an index key). */
    bool check_list(cJSON *array, const char *indexKey);
    /* The element holding `index`, or at place `index` for a list without
       an index key; marked as matched. */
    cJSON *element(cJSON *array, const char *indexKey, int32_t index);
    /* Refuses the first element no item matched: its index is out of range. */
    void refuse_unmatched(cJSON *array, const char *indexKey);
    /* Refuses the first member of `object` that no key of the page read. */
    void refuse_unread(cJSON *object);

private:
    struct Step {
        const char *key;      // nullptr for a list element
        const char *indexKey; // a list element's index key (nullptr: by place)
        int32_t index;
    };
    static constexpr size_t kMaxDepth = 16;

    const cJSON *current_at(const char *key);
    void write_path(char *out, size_t size, const char *key) const;

    cJSON *last_object_ = nullptr; // where take() found its last member
    cJSON *last_found_ = nullptr;
    cJSON *(*build_current_)(const void *);
    const void *context_;
    cJSON *current_ = nullptr;
    bool current_built_ = false;
    bool failed_ = false;
    Step steps_[kMaxDepth];
    size_t depth_ = 0;
    char error_[512] = {0};
};

class In {
public:
    In(Session &s, cJSON *o) : s_(s), o_(o) {}

    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    void operator()(Name key, T &field)
    {
        cJSON *v = s_.take(o_, key);
        double d = 0;
        if (v == nullptr)
            return;
        if (!s_.number_fits(v, Range<T>::low(), Range<T>::high(), Range<T>::integral, &d)) {
            s_.refuse(key.text);
            return;
        }
        field = static_cast<T>(d);
    }
    template <size_t N>
    void operator()(Name key, char (&text)[N])
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        if (!s_.text_fits(v, N)) {
            s_.refuse(key.text);
            return;
        }
        Session::copy_text(text, N, v);
    }
    /* A member the page cannot write (behind a const pointer) is a derived
       key of its description. */
    template <typename T>
    void operator()(Name key, const T &field) = delete;

    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    void derived(Name key, T value)
    {
        if (cJSON *v = s_.take(o_, key)) {
            cJSON computed{};
            computed.type = cJSON_Number;
            computed.valuedouble = static_cast<double>(value);
            s_.check_derived(v, key.text, computed);
        }
    }
    template <size_t N>
    void derived(Name key, const char (&text)[N]) { check_text(key, text, N); }
    template <typename K, typename = decltype(static_cast<const K *>(nullptr)->c_str())>
    void derived(Name key, const K &text) { check_text(key, text.c_str(), SIZE_MAX); }
    void derived_text(Name key, const char *text) { check_text(key, text, SIZE_MAX); }

    template <typename T, size_t N>
    void numbers(Name key, T (&values)[N])
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        double d[N];
        bool fits = cJSON_IsArray(v) && cJSON_GetArraySize(v) == static_cast<int>(N);
        size_t i = 0;
        for (cJSON *e = fits ? v->child : nullptr; fits && e != nullptr; e = e->next, ++i)
            fits = s_.number_fits(e, Range<T>::low(), Range<T>::high(), Range<T>::integral, &d[i]);
        if (!fits) {
            s_.refuse(key.text);
            return;
        }
        for (i = 0; i < N; ++i)
            values[i] = static_cast<T>(d[i]);
    }
    template <typename T>
    void derived_numbers(Name key, const T *values, int32_t count)
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        bool same = cJSON_IsArray(v) && cJSON_GetArraySize(v) == count;
        int32_t i = 0;
        for (cJSON *e = same ? v->child : nullptr; same && e != nullptr; e = e->next, ++i)
            same = cJSON_IsNumber(e) && e->valuedouble == static_cast<double>(values[i]);
        if (!same)
            s_.refuse(key.text);
    }

    template <typename F>
    void object(Name key, F &&fill)
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        if (!cJSON_IsObject(v)) {
            s_.refuse(key.text);
            return;
        }
        const size_t mark = s_.enter(key.text);
        In sub(s_, v);
        fill(sub);
        sub.finish();
        s_.leave(mark);
    }

    class List {
    public:
        List(Session &s, cJSON *array, const char *indexKey) : s_(s), array_(array), indexKey_(indexKey) {}
        template <typename G>
        void item(int32_t index, G &&fill)
        {
            apply(s_.element(array_, indexKey_, index), index, fill);
        }
        template <typename G>
        void item(G &&fill)
        {
            const int32_t place = place_++;
            apply(s_.element(array_, nullptr, place), place, fill);
        }

    private:
        template <typename G>
        void apply(cJSON *element, int32_t index, G &fill)
        {
            if (element == nullptr)
                return;
            const size_t mark = s_.enter_item(indexKey_, index);
            In sub(s_, element);
            if (indexKey_ != nullptr)
                s_.take(element, Name::fixed(indexKey_));
            fill(sub);
            sub.finish();
            s_.leave(mark);
        }
        Session &s_;
        cJSON *array_;
        const char *indexKey_;
        int32_t place_ = 0;
    };

    template <typename F>
    void list(Name key, const char *indexKey, F &&fill)
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        if (!cJSON_IsArray(v)) {
            s_.refuse(key.text);
            return;
        }
        const size_t mark = s_.enter(key.text);
        if (s_.check_list(v, indexKey)) {
            List l(s_, v, indexKey);
            fill(l);
            s_.refuse_unmatched(v, indexKey);
        }
        s_.leave(mark);
    }

    /* Any event type named in the request, whatever the record selects. */
    template <typename F>
    void per_event_type(int32_t, F &&fill)
    {
        for (int32_t type = 0; type <= Out::kLastAlarmEventType && !s_.failed(); ++type)
            object(Name::fixed(getAlarmEventTypeString(type)), [&](In &sub) { fill(sub, type); });
    }

    template <typename F>
    void when(bool cond, F &&fill)
    {
        if (cond)
            fill(*this);
    }

    /* Refuses a member that no key of the page read. */
    void finish() { s_.refuse_unread(o_); }

private:
    void check_text(Name key, const char *text, size_t capacity);

    Session &s_;
    cJSON *o_;
};

/* ---- the schema: Shape ---- */

class Shape {
public:
    /* Fills the object schema `object` (made by object_schema). */
    Shape(cJSON *object, bool readOnly);

    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    void operator()(Name key, const T &)
    {
        number(property(key, false), Range<T>::integral, Range<T>::low(), Range<T>::high());
    }
    template <size_t N>
    void operator()(Name key, const char (&)[N]) { text(property(key, false), N); }

    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    void derived(Name key, T)
    {
        kind(property(key, true), std::is_integral<T>::value ? "integer" : "number");
    }
    template <size_t N>
    void derived(Name key, const char (&)[N]) { kind(property(key, true), "string"); }
    template <typename K, typename = decltype(static_cast<const K *>(nullptr)->c_str())>
    void derived(Name key, const K &) { kind(property(key, true), "string"); }
    void derived_text(Name key, const char *) { kind(property(key, true), "string"); }

    template <typename T, size_t N>
    void numbers(Name key, const T (&)[N])
    {
        cJSON *items = number_array(property(key, false), N);
        number(items, Range<T>::integral, Range<T>::low(), Range<T>::high());
    }
    template <typename T>
    void derived_numbers(Name key, const T *, int32_t count)
    {
        cJSON *items = number_array(property(key, true), count);
        kind(items, std::is_integral<T>::value ? "integer" : "number");
    }

    template <typename F>
    void object(Name key, F &&fill)
    {
        Shape sub(object_schema(property(key, false)), readOnly_);
        fill(sub);
    }

    class List {
    public:
        List(cJSON *array, const char *indexKey, bool readOnly) : array_(array), indexKey_(indexKey), readOnly_(readOnly) {}
        template <typename G>
        void item(int32_t index, G &&fill)
        {
            Shape sub(Shape::list_item(array_, indexKey_, index, readOnly_), readOnly_);
            fill(sub);
        }
        template <typename G>
        void item(G &&fill)
        {
            Shape sub(Shape::list_item(array_, nullptr, 0, readOnly_), readOnly_);
            fill(sub);
        }

    private:
        cJSON *array_;
        const char *indexKey_;
        bool readOnly_;
    };

    template <typename F>
    void list(Name key, const char *indexKey, F &&fill)
    {
        cJSON *schema = property(key, false);
        List l(list_schema(schema), indexKey, readOnly_);
        fill(l);
        close_list(schema);
    }

    template <typename F>
    void per_event_type(int32_t selector, F &&fill)
    {
        if (selector >= 0) {
            Shape sub(object_schema(property(Name::fixed(getAlarmEventTypeString(selector)), false)), readOnly_);
            fill(sub, selector);
            return;
        }
        for (int32_t type = 0; type <= Out::kLastAlarmEventType; ++type) {
            Shape sub(object_schema(property(Name::fixed(getAlarmEventTypeString(type)), false)), readOnly_);
            fill(sub, type);
        }
    }

    template <typename F>
    void when(bool cond, F &&fill)
    {
        if (!cond)
            return;
        const bool saved = optional_;
        optional_ = true;
        fill(*this);
        optional_ = saved;
    }

    /* The schema object of an object member: type, properties, required,
       no additional properties. */
    static cJSON *object_schema(cJSON *schema);

private:
    cJSON *property(Name key, bool derived);
    static void kind(cJSON *schema, const char *type);
    static void number(cJSON *schema, bool integral, double low, double high);
    static void text(cJSON *schema, size_t capacity);
    static cJSON *number_array(cJSON *schema, int32_t count);
    static cJSON *list_schema(cJSON *schema);
    static void close_list(cJSON *schema);
    static cJSON *list_item(cJSON *prefixItems, const char *indexKey, int32_t index, bool readOnly);

    cJSON *properties_;
    cJSON *required_;
    bool readOnly_;
    bool optional_ = false;
};

/* ---- shapes written once for every archive ---- */

/* "scheduleList": seven objects, day d from 0 to 6, each with
   "scheduleIndex" d and "schedule" the day's text. */
template <typename A, typename Days>
void schedule_list(A &a, Days &days)
{
    a.list("scheduleList", "scheduleIndex", [&](auto &l) {
        for (int32_t d = 0; d < 7; ++d)
            l.item(d, [&](auto &day) { day("schedule", days[d]); });
    });
}

/* ---- the three calls of a page ---- */

int32_t print_document(cJSON *root, char *dst, int32_t dstSize);
inline bool buffer_usable(const char *dst, int32_t dstSize) { return dst != nullptr && dstSize >= 1; }

/* The serializer: buffer test, the tree from the description, print. */
template <typename D, typename... R>
int32_t render_page(char *dst, int32_t dstSize, const D &describe, R &...records)
{
    if (!buffer_usable(dst, dstSize))
        return -1;
    cJSON *root = cJSON_CreateObject();
    Out out(root);
    describe(out, records...);
    return print_document(root, dst, dstSize);
}

/* The same without the buffer test, for the two serializers that always
   build and print: a size below 1 (or a NULL buffer) copies nothing and
   still yields 0. */
template <typename D, typename... R>
int32_t render_page_unchecked(char *dst, int32_t dstSize, const D &describe, R &...records)
{
    cJSON *root = cJSON_CreateObject();
    Out out(root);
    describe(out, records...);
    return print_document(root, dst, dstSize);
}

/* The root of a page's schema (draft 2020-12), titled with the serializer's
   name; nullptr when memory runs out. */
cJSON *schema_root(const char *title, bool readOnly);

/* The schema of the document the records render now, printed like a
   document. A read-only page marks every key readOnly. */
template <typename D, typename... R>
int32_t schema_page(char *dst, int32_t dstSize, const char *title, bool readOnly, const D &describe, R &...records)
{
    if (!buffer_usable(dst, dstSize))
        return -1;
    cJSON *root = schema_root(title, readOnly);
    if (root != nullptr) {
        Shape shape(root, readOnly);
        describe(shape, records...);
    }
    return print_document(root, dst, dstSize);
}

/* The record(s) of a set request: the caller's, and the staging copies the
   request is applied to. */
struct Staged {
    void *record;
    void *copy;
    size_t size;
};

/* Everything of a set request but the walk itself: buffer test, parsing,
   staging copies, the reply, and copying back on success. `walk` runs the
   description over the copies; `current` renders the records as they are. */
int32_t apply_request(const char *body, int32_t bodySize, char *dst, int32_t dstSize, Staged *records, size_t count,
                      void (*walk)(Session &, cJSON *, const Staged *, const void *),
                      cJSON *(*current)(const void *), const void *context);

template <typename D, typename... R>
struct PageCall {
    const D *describe;
    Staged *records;
};

template <typename D, typename R1>
int32_t apply_page(const D &describe, R1 *r1, const char *body, int32_t bodySize, char *dst, int32_t dstSize)
{
    if (r1 == nullptr)
        return apply_request(body, bodySize, dst, dstSize, nullptr, 0, nullptr, nullptr, nullptr);
    Staged staged[1] = {{r1, nullptr, sizeof(R1)}};
    PageCall<D, R1> call{&describe, staged};
    auto walk = [](Session &s, cJSON *root, const Staged *st, const void *c) {
        In in(s, root);
        (*static_cast<const PageCall<D, R1> *>(c)->describe)(in, *static_cast<R1 *>(st[0].copy));
        in.finish();
    };
    auto current = [](const void *c) -> cJSON * {
        const PageCall<D, R1> *p = static_cast<const PageCall<D, R1> *>(c);
        cJSON *root = cJSON_CreateObject();
        Out out(root);
        (*p->describe)(out, *static_cast<const R1 *>(p->records[0].record));
        return root;
    };
    return apply_request(body, bodySize, dst, dstSize, staged, 1, walk, current, &call);
}

template <typename D, typename R1, typename R2>
int32_t apply_page(const D &describe, R1 *r1, R2 *r2, const char *body, int32_t bodySize, char *dst,
                   int32_t dstSize)
{
    if (r1 == nullptr || r2 == nullptr)
        return apply_request(body, bodySize, dst, dstSize, nullptr, 0, nullptr, nullptr, nullptr);
    Staged staged[2] = {{r1, nullptr, sizeof(R1)}, {r2, nullptr, sizeof(R2)}};
    PageCall<D, R1, R2> call{&describe, staged};
    auto walk = [](Session &s, cJSON *root, const Staged *st, const void *c) {
        In in(s, root);
        (*static_cast<const PageCall<D, R1, R2> *>(c)->describe)(in, *static_cast<R1 *>(st[0].copy),
                                                                 *static_cast<R2 *>(st[1].copy));
        in.finish();
    };
    auto current = [](const void *c) -> cJSON * {
        const PageCall<D, R1, R2> *p = static_cast<const PageCall<D, R1, R2> *>(c);
        cJSON *root = cJSON_CreateObject();
        Out out(root);
        (*p->describe)(out, *static_cast<const R1 *>(p->records[0].record),
                       *static_cast<const R2 *>(p->records[1].record));
        return root;
    };
    return apply_request(body, bodySize, dst, dstSize, staged, 2, walk, current, &call);
}

} // namespace mw

#endif /* MIDDLEWARE_DESCRIBE_H */
