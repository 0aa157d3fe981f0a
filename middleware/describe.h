/*
 * describe.h - one description per page, read three ways.
 *
 * A page is described once, as a generic function over an archive `a` and
 * the page's record `r`, one line a key in emission order:
 *
 *     [](auto &a, auto &r) {
 *         a("autoWiper", r.autoWiper);
 *         a("status", r.status);
 *     }
 *
 * The description is compiled once, against the one interface below
 * (Archive), whose work per member is out of line. Three archives implement
 * it (describe.cpp):
 *   - Out renders: it builds the cJSON tree the serializer prints;
 *   - In applies a set request: it reads the parsed body into a staging copy
 *     of the record and stops at the first member that does not fit;
 *   - Shape describes: it builds the page's JSON Schema, of the document
 *     the record renders now or of every document the page can render.
 *
 * The verbs of an archive:
 *   a(key, field)               a member copied to and from its field. The C
 *                               type picks the number rule and the range; a
 *                               char[N] is a text of at most N-1 bytes. A
 *                               member behind a const pointer is shown and
 *                               compared like a derived key.
 *   a.derived(key, value)       a read-only key: a value the page computes
 *                               (a formatted text, a count, a constant, a
 *                               member shown with an offset). A set request
 *                               may repeat it unchanged and nothing else.
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
 *   a.when(cond, f)             keys that are printed only while cond holds
 *                               (their values readable whatever it is); no
 *                               schema requires them.
 *   a.when_held(cond, f)        the same for values that can be read only
 *                               while cond holds (behind a pointer).
 *   a.listed_if(cond, f)        keys printed only while cond holds, which the
 *                               schema of the state at hand requires when they
 *                               print (a stream past the count, an encoder a
 *                               stream does not offer).
 *   a.writes()                  true while a request is applied (for a member
 *                               that must be copied back by hand).
 *
 * Shapes written once for every page: schedule_list (the weekly
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
 *     constants, a member shown with an offset or scaled, a member shown a
 *     second time under another key;
 *   - a member that decides what else the page prints (a count that bounds
 *     a list, a switch that adds or drops keys, a selector) is derived too,
 *     so that setting one key never changes another. A test that only tells
 *     an empty slot from a used one (an id of 0, an empty name) is no such
 *     decision: the slot's members stay settable.
 *   - a key the page prints only in some states is written under a.when (or
 *     a.when_held), so that the schema of every state describes it and
 *     leaves it optional.
 *
 * A set request reads the body by exact key and refuses fractions, numbers
 * out of range and repeated list indices. The exported request readers
 * (get_json_section_type_*, get_json_array_struct_from_index) are the web
 * server's own loose tools: they match keys without regard to case, truncate
 * numbers and let a text index match 0, so In reads members itself.
 *
 * Pages are declared with the page macros of internal.h, which state a page's
 * identity once and give its serializer, schema function and set function.
 */
#ifndef MIDDLEWARE_DESCRIBE_H
#define MIDDLEWARE_DESCRIBE_H

#include "middleware.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace mw {

/* ---- keys ---- */

struct Name {
    const char *text;
    /* The text may not outlive the call (a generated key): the tree keeps a
       copy. Literals and the library's tables leave it false, the cheaper
       value to pass at each of the page's lines. */
    bool copy;
    /* The key is named by a text from elsewhere (a record's option label, a
       platform module's name): the schema of every state allows any key
       there. */
    bool named;

    template <size_t N>
    constexpr Name(const char (&literal)[N]) : text(literal), copy(false), named(false) {}
    template <typename K, typename = decltype(static_cast<const char *>(static_cast<const K *>(nullptr)->c_str()))>
    Name(const K &generated) : text(generated.c_str()), copy(true), named(false) {}

    static constexpr Name fixed(const char *t) { return Name(t, false); }
    static constexpr Name copied(const char *t) { return Name(t, true); }

private:
    constexpr Name(const char *t, bool elsewhere) : text(t), copy(elsewhere), named(elsewhere) {}
};

/* ---- number kinds ---- */

template <typename T>
constexpr bool is_number_v = std::is_arithmetic<T>::value && !std::is_same<T, char>::value &&
                             !std::is_same<T, bool>::value;

/* A member's C type, which picks its number rule (signed, unsigned or
   floating) and the range a set request may write. */
enum class Num : uint8_t { i8, u8, i16, u16, i32, u32, i64, u64, f32, f64 };

template <typename T>
constexpr Num num_of()
{
    static_assert(is_number_v<T>, "a number member");
    if (std::is_floating_point<T>::value)
        return sizeof(T) == sizeof(float) ? Num::f32 : Num::f64;
    constexpr bool s = std::is_signed<T>::value;
    switch (sizeof(T)) {
    case 1: return s ? Num::i8 : Num::u8;
    case 2: return s ? Num::i16 : Num::u16;
    case 4: return s ? Num::i32 : Num::u32;
    default: return s ? Num::i64 : Num::u64;
    }
}

inline bool is_integral(Num kind) { return kind < Num::f32; }

/* ---- a callable passed down without a copy ---- */

/* A reference to a caller's lambda, called with `Args`: the archive calls
   back into the description without being a template itself. */
template <typename... Args>
class Fn {
public:
    template <typename F>
    Fn(F &f) : object_(const_cast<void *>(static_cast<const void *>(&f))), call_(&invoke<F>) {}
    void operator()(Args... args) const { call_(object_, args...); }

private:
    template <typename F>
    static void invoke(void *object, Args... args) { (*static_cast<F *>(object))(args...); }

    void *object_;
    void (*call_)(void *, Args...);
};

/* ---- the archive ---- */

class Archive;

/* A list's elements, as the description appends them. */
class Items {
public:
    template <typename G>
    void item(int32_t index, G &&fill) { indexed_item(index, Fn<Archive &>(fill)); }
    template <typename G>
    void item(G &&fill) { placed_item(Fn<Archive &>(fill)); }

    virtual void indexed(int32_t index, Fn<Archive &> fill);
    virtual void placed(Fn<Archive &> fill);

protected:
    Items() = default;
    ~Items() = default;

private:
    void indexed_item(int32_t index, Fn<Archive &> fill);
    void placed_item(Fn<Archive &> fill);
};

#define MW_INLINE_ inline __attribute__((always_inline))
#define MW_OUT_OF_LINE_ __attribute__((noinline))

class Archive {
public:
    /* The verbs. Each line of a description becomes one call of a small
       function made once per member type (or array size) with the key alone;
       a generated key first tells the archive to keep a copy of it. */
    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    MW_INLINE_ void operator()(Name key, T &field) { number_member<std::remove_const_t<T>, !std::is_const<T>::value>(key_of(key), &field); }
    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    MW_INLINE_ void operator()(Name key, const T &field) { number_member<T, false>(key_of(key), &field); }
    template <size_t N>
    MW_INLINE_ void operator()(Name key, char (&text)[N]) { text_member<N, true>(key_of(key), text); }
    template <size_t N>
    MW_INLINE_ void operator()(Name key, const char (&text)[N]) { text_member<N, false>(key_of(key), text); }

    template <typename T, typename = std::enable_if_t<is_number_v<T>>>
    MW_INLINE_ void derived(Name key, T value) { derived_member<T>(key_of(key), value); }
    template <size_t N>
    MW_INLINE_ void derived(Name key, const char (&text)[N]) { derived_text_member<N>(key_of(key), text); }
    template <typename K, typename = decltype(static_cast<const K *>(nullptr)->c_str())>
    MW_INLINE_ void derived(Name key, const K &text) { derived_text_member<SIZE_MAX>(key_of(key), text.c_str()); }
    MW_INLINE_ void derived_text(Name key, const char *text) { derived_text_member<SIZE_MAX>(key_of(key), text); }

    template <typename T, size_t N>
    MW_INLINE_ void numbers(Name key, T (&values)[N])
    {
        array_member<std::remove_const_t<T>, N, !std::is_const<T>::value>(key_of(key), values);
    }
    template <typename T>
    MW_INLINE_ void derived_numbers(Name key, const T *values, int32_t count)
    {
        derived_array_member<T>(key_of(key), values, count);
    }

    template <typename F>
    MW_INLINE_ void object(Name key, F &&fill) { object_member(key_of(key), Fn<Archive &>(fill)); }
    template <typename F>
    MW_INLINE_ void list(Name key, const char *indexKey, F &&fill)
    {
        list_member(key_of(key), indexKey, Fn<Items &>(fill));
    }
    template <typename F>
    MW_INLINE_ void per_event_type(int32_t selector, F &&fill) { event_type_members(selector, Fn<Archive &, int32_t>(fill)); }
    template <typename F>
    MW_INLINE_ void when(bool cond, F &&fill) { members_when(cond, kReadable | kOptional, Fn<Archive &>(fill)); }
    template <typename F>
    MW_INLINE_ void when_held(bool cond, F &&fill) { members_when(cond, kOptional, Fn<Archive &>(fill)); }
    template <typename F>
    MW_INLINE_ void listed_if(bool cond, F &&fill) { members_when(cond, kReadable, Fn<Archive &>(fill)); }

    /* How keys printed only while a condition holds are described. */
    enum When : uint8_t {
        kReadable = 1, // their values can be read whatever the condition: every state describes them
        kOptional = 2, // the schema of the state at hand does not require them either
    };

    bool writes() const { return writes_; }

    /* What each archive does with a verb. `key` stays valid for the call;
       copy_key() tells whether the tree must keep a copy of it (and forgets
       it, so that it holds for one key). */
    virtual void number(const char *key, void *field, Num kind, bool writable);
    virtual void text(const char *key, char *field, size_t capacity, bool writable);
    virtual void computed_number(const char *key, double value, bool integral);
    /* capacity: the array holding the text (SIZE_MAX: NUL-terminated). */
    virtual void computed_text(const char *key, const char *text, size_t capacity);
    virtual void number_array(const char *key, void *values, Num kind, size_t count, bool writable);
    virtual void computed_numbers(const char *key, const void *values, Num kind, int32_t count);
    virtual void nested(const char *key, Fn<Archive &> fill);
    virtual void items(const char *key, const char *indexKey, Fn<Items &> fill);
    virtual void event_types(int32_t selector, Fn<Archive &, int32_t> fill);
    /* how: When flags. */
    virtual void only_when(bool cond, uint8_t how, Fn<Archive &> fill);

protected:
    explicit Archive(bool writes = false) : writes_(writes) {}
    ~Archive() = default;

    bool copy_key()
    {
        const bool copy = copy_;
        copy_ = false;
        return copy;
    }
    /* Whether a text from elsewhere named the key (and forgets it). */
    bool named_key()
    {
        const bool named = named_;
        named_ = false;
        return named;
    }

private:
    MW_INLINE_ const char *key_of(Name key)
    {
        if (key.copy)
            copy_ = true;
        if (key.named)
            named_ = true;
        return key.text;
    }
    template <typename T, bool Writable>
    MW_OUT_OF_LINE_ void number_member(const char *key, const T *field)
    {
        number(key, const_cast<T *>(field), num_of<T>(), Writable);
    }
    template <size_t N, bool Writable>
    MW_OUT_OF_LINE_ void text_member(const char *key, const char *field)
    {
        text(key, const_cast<char *>(field), N, Writable);
    }
    template <typename T>
    MW_OUT_OF_LINE_ void derived_member(const char *key, T value)
    {
        computed_number(key, static_cast<double>(value), std::is_integral<T>::value);
    }
    template <size_t N>
    MW_OUT_OF_LINE_ void derived_text_member(const char *key, const char *text)
    {
        computed_text(key, text, N);
    }
    template <typename T, size_t N, bool Writable>
    MW_OUT_OF_LINE_ void array_member(const char *key, const T *values)
    {
        number_array(key, const_cast<T *>(values), num_of<T>(), N, Writable);
    }
    template <typename T>
    MW_OUT_OF_LINE_ void derived_array_member(const char *key, const T *values, int32_t count)
    {
        computed_numbers(key, values, num_of<T>(), count);
    }
    void object_member(const char *key, Fn<Archive &> fill);
    void list_member(const char *key, const char *indexKey, Fn<Items &> fill);
    void event_type_members(int32_t selector, Fn<Archive &, int32_t> fill);
    void members_when(bool cond, uint8_t how, Fn<Archive &> fill);

    bool writes_;
    bool copy_ = false;
    bool named_ = false;
};

/* The alarm event types of the event-name table: 0..47. */
constexpr int32_t kLastAlarmEventType = 47;

/* A record whose eventType selects a type of the event-name table (or every
   type, when negative). */
template <typename Record>
bool names_an_event_type(void *const *inputs)
{
    return static_cast<const Record *>(inputs[0])->eventType <= kLastAlarmEventType;
}

/* ---- shapes written once for every page ---- */

/* "scheduleList": seven objects, day d from 0 to 6, each with
   "scheduleIndex" d and "schedule" the day's text. */
template <typename Days>
void schedule_list(Archive &a, Days &days)
{
    a.list("scheduleList", "scheduleIndex", [&](auto &l) {
        for (int32_t d = 0; d < 7; ++d)
            l.item(d, [&](auto &day) { day("schedule", days[d]); });
    });
}

/* ---- a page ---- */

/* Runs a page's description over its inputs: its records (staging copies
   while a request is applied) and arguments. */
using Walk = void (*)(Archive &a, void *const *inputs);

/* The most inputs a page's functions take (records and arguments). */
constexpr size_t kMaxInputs = 4;

/* What a page is to its three functions: its description, whether a client
   may write it, the records a set request stages, and the rules a few pages
   add to the contract. Its names, its argument and why it is read-only are
   stated beside it and kept in the tools' page table (pages.h). */
struct Page {
    Walk walk;
    uint8_t flags; // PageFlags
    /* How many inputs the description takes, and the bytes of the records
       among them that a set request stages (the first ones). */
    uint8_t arity;
    uint32_t sizes[kMaxInputs];
    /* Whether the record can be shown at all; nullptr: always. */
    bool (*shown)(void *const *inputs);
    /* A last look at a staged request before it is kept: nullptr, or false
       with the refused key's path written into `path`. */
    bool (*accept)(void *const *before, void *const *staged, char *path, size_t size);
};

enum PageFlags : uint8_t {
    /* A client cannot write the page: its schema marks every key read-only. */
    kReadOnly = 1,
    /* The serializer prints whatever buffer it is given: a size below 1 (or
       a NULL buffer) copies nothing and still yields 0. */
    kPrintsAnyBuffer = 2,
    /* A record that is not shown renders nothing and answers 0 (its schema
       is still printed). */
    kQuietWhenHidden = 4,
    /* A record that is not shown cannot be written either. */
    kSetOnlyWhenShown = 8,
};

inline bool buffer_usable(const char *dst, int32_t dstSize) { return dst != nullptr && dstSize >= 1; }

/* The three calls of a page, over its inputs; `title` is the serializer's
   name. The page comes last, so that an exported function that passes its
   own arguments on reduces to a jump. */
int32_t render(void *const *inputs, char *dst, int32_t dstSize, const Page &page);
int32_t render_one(void *input, char *dst, int32_t dstSize, const Page &page);
int32_t render_two(void *first, void *second, char *dst, int32_t dstSize, const Page &page);
int32_t schema(void *const *inputs, char *dst, int32_t dstSize, const Page &page, const char *title);
int32_t schema_one(void *input, char *dst, int32_t dstSize, const Page &page, const char *title);
int32_t schema_two(void *first, void *second, char *dst, int32_t dstSize, const Page &page, const char *title);
int32_t apply(void *const *inputs, const char *body, int32_t bodySize, char *dst, int32_t dstSize, const Page &page);
int32_t apply_one(void *input, const char *body, int32_t bodySize, char *dst, int32_t dstSize, const Page &page);
int32_t apply_two(void *first, void *second, const char *body, int32_t bodySize, char *dst, int32_t dstSize,
                  const Page &page);

/* The schema of every document the page can render, as far as its
   description tells it from these records: keys under a.when described and
   optional (under a.when_held only while they print), every event type
   allowed, keys that records' texts name allowed under any name. Its lists
   hold the elements the records hold now, for a caller to widen. nullptr
   when memory runs out, or for records the page cannot show. */
cJSON *schema_of_every_state(const Page &page, const char *title, void *const *inputs);

/* A page's inputs as the description's untyped pointers. */
template <typename T>
void *input(const T *p) { return const_cast<void *>(static_cast<const void *>(p)); }
inline void *input(int32_t &value) { return &value; }

/* The three calls from an exported function's own arguments. */
template <typename A>
MW_INLINE_ int32_t render_page(A &a, char *dst, int32_t dstSize, const Page &page)
{
    return render_one(input(a), dst, dstSize, page);
}
template <typename A, typename B>
MW_INLINE_ int32_t render_page(A &a, B &b, char *dst, int32_t dstSize, const Page &page)
{
    return render_two(input(a), input(b), dst, dstSize, page);
}
template <typename A>
MW_INLINE_ int32_t schema_page(A &a, char *dst, int32_t dstSize, const Page &page, const char *title)
{
    return schema_one(input(a), dst, dstSize, page, title);
}
template <typename A, typename B>
MW_INLINE_ int32_t schema_page(A &a, B &b, char *dst, int32_t dstSize, const Page &page, const char *title)
{
    return schema_two(input(a), input(b), dst, dstSize, page, title);
}
template <typename A>
MW_INLINE_ int32_t apply_page(A &a, const char *body, int32_t bodySize, char *dst, int32_t dstSize, const Page &page)
{
    return apply_one(input(a), body, bodySize, dst, dstSize, page);
}
template <typename A, typename B>
MW_INLINE_ int32_t apply_page(A &a, B &b, const char *body, int32_t bodySize, char *dst, int32_t dstSize,
                              const Page &page)
{
    return apply_two(input(a), input(b), body, bodySize, dst, dstSize, page);
}

/* The description's typed arguments from its untyped inputs. */
template <typename T>
struct Arg {
    static T &of(void *p) { return *static_cast<T *>(p); }
};
template <typename T>
struct Arg<T *> {
    static T *of(void *p) { return static_cast<T *>(p); }
};

template <typename... A, typename D, size_t... I>
void walk_with(const D &describe, Archive &a, void *const *inputs, std::index_sequence<I...>)
{
    describe(a, Arg<A>::of(inputs[I])...);
}

} // namespace mw

#endif /* MIDDLEWARE_DESCRIBE_H */
