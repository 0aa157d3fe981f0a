/*
 * describe.cpp - the three archives of a page description (Out renders,
 * In applies a set request, Shape builds the schema) and the three calls of
 * a page over them, with the tree-building helpers they share.
 */
#include "internal.h"

#include <cfloat>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace mw {

/* ---- tree building ---- */

int32_t print_document(cJSON *root, char *dst, int32_t dstSize)
{
    char *text = cJSON_Print(root);
    cJSON_Delete(root);
    if (text == nullptr)
        return -1;
    if (buffer_usable(dst, dstSize))
        snprintf(dst, static_cast<size_t>(dstSize), "%s", text);
    cJSON_free(text);
    return 0;
}

cJSON *object(cJSON *parent, const char *key)
{
    cJSON *child = nullptr;
    if (parent != nullptr)
        json_set_element_struct(parent, &child, key);
    return child;
}

cJSON *array(cJSON *parent, const char *key)
{
    cJSON *child = nullptr;
    if (parent != nullptr)
        json_set_array_struct(parent, &child, key);
    return child;
}

cJSON *append_object(cJSON *array)
{
    if (array == nullptr)
        return nullptr;
    cJSON *item = cJSON_CreateObject();
    if (item != nullptr && !cJSON_AddItemToArray(array, item)) {
        cJSON_Delete(item);
        return nullptr;
    }
    return item;
}

void format_into(char *out, size_t size, const char *format, va_list args) { vsnprintf(out, size, format, args); }

PolygonText polygon_text(const int32_t *values, size_t count)
{
    PolygonText p;
    memset(p.text, 0, sizeof p.text);
    for (size_t j = 0; j < count; ++j) {
        size_t used = strlen(p.text);
        snprintf(p.text + used, sizeof p.text - used, "%d:", static_cast<int>(values[j]));
    }
    return p;
}

/* An archive that ignores every verb: the base of the three below. */
void Items::indexed(int32_t, Fn<Archive &>) {}
void Items::placed(Fn<Archive &>) {}
void Archive::number(const char *, void *, Num, bool) {}
void Archive::text(const char *, char *, size_t, bool) {}
void Archive::computed_number(const char *, double, bool) {}
void Archive::computed_text(const char *, const char *, size_t) {}
void Archive::number_array(const char *, void *, Num, size_t, bool) {}
void Archive::computed_numbers(const char *, const void *, Num, int32_t) {}
void Archive::nested(const char *, Fn<Archive &>) {}
void Archive::items(const char *, const char *, Fn<Items &>) {}
void Archive::event_types(int32_t, Fn<Archive &, int32_t>) {}
void Archive::only_when(bool, uint8_t, Fn<Archive &>) {}

/* The calls of a description's lines into the archive: one place each
   makes the virtual call, so that a line is a plain call. */
void Items::indexed_item(int32_t index, Fn<Archive &> fill) { indexed(index, fill); }
void Items::placed_item(Fn<Archive &> fill) { placed(fill); }
void Archive::object_member(const char *key, Fn<Archive &> fill) { nested(key, fill); }
void Archive::list_member(const char *key, const char *indexKey, Fn<Items &> fill) { items(key, indexKey, fill); }
void Archive::event_type_members(int32_t selector, Fn<Archive &, int32_t> fill) { event_types(selector, fill); }
void Archive::members_when(bool cond, uint8_t how, Fn<Archive &> fill) { only_when(cond, how, fill); }

namespace {

/* ---- numbers by kind ---- */

struct Bounds {
    double low, high;
};

/* The values a member's C type holds, as doubles: the schema states them and
   a set request is checked against them. The 64-bit ends are the last doubles
   inside the type. */
constexpr Bounds kBounds[] = {
    {-128.0, 127.0},
    {0.0, 255.0},
    {-32768.0, 32767.0},
    {0.0, 65535.0},
    {-2147483648.0, 2147483647.0},
    {0.0, 4294967295.0},
    {-9223372036854775808.0, 9223372036854774784.0},
    {0.0, 18446744073709549568.0},
    {-static_cast<double>(FLT_MAX), static_cast<double>(FLT_MAX)},
    {-DBL_MAX, DBL_MAX},
};

const Bounds &bounds(Num kind) { return kBounds[static_cast<int>(kind)]; }

constexpr size_t kWidths[] = {1, 1, 2, 2, 4, 4, 8, 8, 4, 8};

const void *at(const void *values, Num kind, size_t i)
{
    return static_cast<const unsigned char *>(values) + i * kWidths[static_cast<int>(kind)];
}

template <typename T>
T read_as(const void *p)
{
    T v;
    memcpy(&v, p, sizeof v);
    return v;
}

double load(const void *p, Num kind)
{
    switch (kind) {
    case Num::i8: return read_as<int8_t>(p);
    case Num::u8: return read_as<uint8_t>(p);
    case Num::i16: return read_as<int16_t>(p);
    case Num::u16: return read_as<uint16_t>(p);
    case Num::i32: return read_as<int32_t>(p);
    case Num::u32: return read_as<uint32_t>(p);
    case Num::i64: return static_cast<double>(read_as<int64_t>(p));
    case Num::u64: return static_cast<double>(read_as<uint64_t>(p));
    case Num::f32: return read_as<float>(p);
    case Num::f64: break;
    }
    return read_as<double>(p);
}

template <typename T>
void write_as(void *p, double d)
{
    const T v = static_cast<T>(d);
    memcpy(p, &v, sizeof v);
}

/* A value already checked against the kind's bounds. */
void store(void *p, Num kind, double d)
{
    switch (kind) {
    case Num::i8: return write_as<int8_t>(p, d);
    case Num::u8: return write_as<uint8_t>(p, d);
    case Num::i16: return write_as<int16_t>(p, d);
    case Num::u16: return write_as<uint16_t>(p, d);
    case Num::i32: return write_as<int32_t>(p, d);
    case Num::u32: return write_as<uint32_t>(p, d);
    case Num::i64: return write_as<int64_t>(p, d);
    case Num::u64: return write_as<uint64_t>(p, d);
    case Num::f32: return write_as<float>(p, d);
    case Num::f64: break;
    }
    write_as<double>(p, d);
}

/* Marks a member of a set request that a key of the page has read. cJSON
   keeps a node's kind in the low byte of its type and two flags above it;
   this bit is free, and the parsed request is ours until the call returns. */
constexpr int kRead = 1 << 13;

void attach(cJSON *o, const char *key, bool copy, cJSON *item)
{
    if (item == nullptr)
        return;
    const bool added = copy ? cJSON_AddItemToObject(o, key, item) : cJSON_AddItemToObjectCS(o, key, item);
    if (!added)
        cJSON_Delete(item);
}

/* Exactly integral: below 2^53 the cast back tells; above, every double is. */
bool integral(double d)
{
    if (d > 9007199254740992.0 || d < -9007199254740992.0)
        return true;
    return static_cast<double>(static_cast<int64_t>(d)) == d;
}

/* The member under `key` (exact case) in object; nullptr when absent. */
cJSON *member(const cJSON *object, const char *key)
{
    for (cJSON *c = object != nullptr ? object->child : nullptr; c != nullptr; c = c->next)
        if (c->string != nullptr && strcmp(c->string, key) == 0)
            return c;
    return nullptr;
}

/* A child added to an object or array, or deleted when it cannot be. */
cJSON *add_child(cJSON *parent, const char *key, cJSON *child)
{
    if (child == nullptr)
        return nullptr;
    const bool added = key != nullptr ? cJSON_AddItemToObject(parent, key, child) : cJSON_AddItemToArray(parent, child);
    if (!added) {
        cJSON_Delete(child);
        return nullptr;
    }
    return child;
}

/* ==== rendering: Out ==== */

void out_number(cJSON *o, const char *key, bool copy, double value)
{
    if (o != nullptr)
        attach(o, key, copy, cJSON_CreateNumber(value));
}

/* A text read no further than `capacity` bytes (a field without its NUL is
   written up to its end). */
void out_text(cJSON *o, const char *key, bool copy, const char *text, size_t capacity)
{
    if (o == nullptr)
        return;
    if (capacity == SIZE_MAX || memchr(text, '\0', capacity) != nullptr) {
        attach(o, key, copy, cJSON_CreateString(text));
        return;
    }
    char *owned = static_cast<char *>(cJSON_malloc(capacity + 1));
    if (owned == nullptr)
        return;
    memcpy(owned, text, capacity);
    owned[capacity] = '\0';
    attach(o, key, copy, cJSON_CreateString(owned));
    cJSON_free(owned);
}

void out_append_number(cJSON *list, double value)
{
    if (list != nullptr)
        add_child(list, nullptr, cJSON_CreateNumber(value));
}

class Out final : public Archive {
public:
    explicit Out(cJSON *o) : o_(o) {}

    void number(const char *key, void *field, Num kind, bool) override
    {
        out_number(o_, key, copy_key(), load(field, kind));
    }
    void text(const char *key, char *field, size_t capacity, bool) override
    {
        out_text(o_, key, copy_key(), field, capacity);
    }
    void computed_number(const char *key, double value, bool) override { out_number(o_, key, copy_key(), value); }
    void computed_text(const char *key, const char *text, size_t capacity) override
    {
        out_text(o_, key, copy_key(), text, capacity);
    }
    void number_array(const char *key, void *values, Num kind, size_t count, bool) override
    {
        copy_key(); // the array's key is copied anyway
        cJSON *list = mw::array(o_, key);
        for (size_t i = 0; i < count; ++i)
            out_append_number(list, load(at(values, kind, i), kind));
    }
    void computed_numbers(const char *key, const void *values, Num kind, int32_t count) override
    {
        copy_key();
        cJSON *list = mw::array(o_, key);
        for (int32_t i = 0; i < count; ++i)
            out_append_number(list, load(at(values, kind, static_cast<size_t>(i)), kind));
    }
    void nested(const char *key, Fn<Archive &> fill) override
    {
        copy_key();
        Out sub(mw::object(o_, key));
        fill(sub);
    }
    void items(const char *key, const char *indexKey, Fn<Items &> fill) override
    {
        copy_key();
        List l(mw::array(o_, key), indexKey);
        fill(l);
    }
    void event_types(int32_t selector, Fn<Archive &, int32_t> fill) override
    {
        for (int32_t type = selector >= 0 ? selector : 0; type <= (selector >= 0 ? selector : kLastAlarmEventType);
             ++type) {
            Out sub(mw::object(o_, getAlarmEventTypeString(type)));
            fill(sub, type);
        }
    }
    void only_when(bool cond, uint8_t, Fn<Archive &> fill) override
    {
        if (cond)
            fill(*this);
    }

private:
    class List final : public Items {
    public:
        List(cJSON *array, const char *indexKey) : array_(array), indexKey_(indexKey) {}
        void indexed(int32_t index, Fn<Archive &> fill) override
        {
            Out sub(append_object(array_));
            out_number(sub.o_, indexKey_, false, static_cast<double>(index));
            fill(sub);
        }
        void placed(Fn<Archive &> fill) override
        {
            Out sub(append_object(array_));
            fill(sub);
        }

    private:
        cJSON *array_;
        const char *indexKey_;
    };

    cJSON *o_;
};

cJSON *render_tree(const Page &page, void *const *inputs)
{
    cJSON *root = cJSON_CreateObject();
    Out out(root);
    page.walk(out, inputs);
    return root;
}

/* ==== applying a set request: In ==== */

/* A list's elements by their index key, sorted: an element is found by a
   binary search, and a repeated index in one pass. */
struct Slot {
    int32_t index;
    int32_t place;
    cJSON *element;
};

struct ListIndex {
    Slot *slots = nullptr;
    int32_t count = 0;
    ListIndex() = default;
    ListIndex(const ListIndex &) = delete;
    ListIndex &operator=(const ListIndex &) = delete;
    ~ListIndex() { cJSON_free(slots); }

    cJSON *find(int32_t index) const
    {
        int32_t low = 0, high = count;
        while (low < high) {
            const int32_t mid = low + (high - low) / 2;
            if (slots[mid].index < index)
                low = mid + 1;
            else
                high = mid;
        }
        return low < count && slots[low].index == index ? slots[low].element : nullptr;
    }
};

int by_index_then_place(const void *a, const void *b)
{
    const Slot &x = *static_cast<const Slot *>(a), &y = *static_cast<const Slot *>(b);
    if (x.index != y.index)
        return x.index < y.index ? -1 : 1;
    return x.place < y.place ? -1 : (x.place > y.place ? 1 : 0);
}

/* What one set request carries through its description: the refusal (the
   first one stops the walk), the path to where the walk stands, and the
   current document, built only when a read-only key must be compared with
   it. */
class Session {
public:
    Session(const Page &page, void *const *current) : page_(page), current_inputs_(current) {}
    ~Session() { cJSON_Delete(current_); }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    bool failed() const { return failed_; }
    const char *refused_key() const { return error_; }

    cJSON *take(cJSON *object, const char *key);
    void refuse(const char *key);

    static bool number_fits(const cJSON *v, double low, double high, bool integral, double *out);
    static bool text_fits(const cJSON *v, size_t capacity);
    static void copy_text(char *field, size_t capacity, const cJSON *v);
    void check_derived(cJSON *given, const char *key, const cJSON &computed);

    size_t enter(const char *key);
    size_t enter_item(const char *indexKey, int32_t index);
    void leave(size_t mark) { depth_ = mark; }

    bool check_list(cJSON *array, const char *indexKey, ListIndex &index);
    void refuse_unmatched(cJSON *array, const char *indexKey);
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
    const Page &page_;
    void *const *current_inputs_;
    cJSON *current_ = nullptr;
    bool current_built_ = false;
    bool failed_ = false;
    Step steps_[kMaxDepth];
    size_t depth_ = 0;
    char error_[512] = {0};
};

cJSON *Session::take(cJSON *object, const char *key)
{
    if (failed_ || object == nullptr)
        return nullptr;
    // Requests mostly follow the document's order: look after the last
    // member found first.
    cJSON *start = (object == last_object_ && last_found_ != nullptr && last_found_->next != nullptr)
                       ? last_found_->next
                       : object->child;
    for (int pass = 0; pass < 2; ++pass) {
        cJSON *stop = pass == 0 ? nullptr : start;
        for (cJSON *c = pass == 0 ? start : object->child; c != stop; c = c->next) {
            if (c->string != nullptr && strcmp(c->string, key) == 0) {
                c->type |= kRead;
                last_object_ = object;
                last_found_ = c;
                return c;
            }
        }
        if (start == object->child)
            break;
    }
    return nullptr;
}

void Session::refuse(const char *key)
{
    if (failed_)
        return;
    failed_ = true;
    write_path(error_, sizeof error_, key);
}

void Session::write_path(char *out, size_t size, const char *key) const
{
    size_t used = 0;
    auto append = [&](const char *format, auto value) {
        if (used >= size)
            return;
        const int n = snprintf(out + used, size - used, format, value);
        used += n > 0 ? static_cast<size_t>(n) : 0;
    };
    for (size_t i = 0; i < depth_; ++i) {
        if (steps_[i].key == nullptr)
            append("[%d]", static_cast<int>(steps_[i].index));
        else
            append(used == 0 ? "%s" : ".%s", steps_[i].key);
    }
    if (key != nullptr)
        append(used == 0 ? "%s" : ".%s", key);
}

bool Session::number_fits(const cJSON *v, double low, double high, bool integralOnly, double *out)
{
    if (!cJSON_IsNumber(v))
        return false;
    const double d = v->valuedouble;
    if (!(d >= low && d <= high)) // NaN fails too
        return false;
    if (integralOnly && !integral(d))
        return false;
    *out = d;
    return true;
}

bool Session::text_fits(const cJSON *v, size_t capacity)
{
    return cJSON_IsString(v) && v->valuestring != nullptr && strlen(v->valuestring) < capacity;
}

void Session::copy_text(char *field, size_t capacity, const cJSON *v)
{
    const size_t length = strlen(v->valuestring);
    memcpy(field, v->valuestring, length);
    memset(field + length, 0, capacity - length);
}

void Session::check_derived(cJSON *given, const char *key, const cJSON &computed)
{
    if (failed_)
        return;
    if (cJSON_Compare(given, &computed, true))
        return;
    const cJSON *now = current_at(key);
    if (now != nullptr && cJSON_Compare(given, now, true))
        return;
    refuse(key);
}

const cJSON *Session::current_at(const char *key)
{
    if (!current_built_) {
        current_built_ = true;
        current_ = render_tree(page_, current_inputs_);
    }
    const cJSON *node = current_;
    for (size_t i = 0; i < depth_ && node != nullptr; ++i) {
        const Step &step = steps_[i];
        if (step.key != nullptr) {
            node = member(node, step.key);
        } else if (step.indexKey == nullptr) {
            node = cJSON_GetArrayItem(node, step.index);
        } else {
            const cJSON *found = nullptr;
            for (const cJSON *e = node->child; e != nullptr && found == nullptr; e = e->next) {
                const cJSON *index = member(e, step.indexKey);
                if (cJSON_IsNumber(index) && index->valuedouble == static_cast<double>(step.index))
                    found = e;
            }
            node = found;
        }
    }
    return node != nullptr ? member(node, key) : nullptr;
}

size_t Session::enter(const char *key)
{
    const size_t mark = depth_;
    if (depth_ < kMaxDepth)
        steps_[depth_++] = Step{key, nullptr, 0};
    return mark;
}

size_t Session::enter_item(const char *indexKey, int32_t index)
{
    const size_t mark = depth_;
    if (depth_ < kMaxDepth)
        steps_[depth_++] = Step{nullptr, indexKey, index};
    return mark;
}

bool Session::check_list(cJSON *array, const char *indexKey, ListIndex &index)
{
    if (failed_)
        return false;
    const int32_t size = cJSON_GetArraySize(array);
    if (indexKey != nullptr && size > 0) {
        index.slots = static_cast<Slot *>(cJSON_malloc(static_cast<size_t>(size) * sizeof(Slot)));
        if (index.slots == nullptr) {
            refuse(nullptr);
            return false;
        }
    }
    // The first element that is not an object, or has no integral index of
    // its own: only the elements before it are looked at for repeats.
    int32_t place = 0, bad = -1;
    for (cJSON *e = array->child; e != nullptr && bad < 0; e = e->next, ++place) {
        double value = 0;
        if (!cJSON_IsObject(e) ||
            (indexKey != nullptr && !number_fits(member(e, indexKey), INT32_MIN, INT32_MAX, true, &value)))
            bad = place;
        else if (indexKey != nullptr)
            index.slots[index.count++] = Slot{static_cast<int32_t>(value), place, e};
    }
    // The first element, in document order, that repeats an earlier index.
    if (index.count > 1)
        qsort(index.slots, static_cast<size_t>(index.count), sizeof(Slot), by_index_then_place);
    int32_t repeat = -1, repeated = 0;
    for (int32_t i = 1; i < index.count; ++i) {
        if (index.slots[i].index == index.slots[i - 1].index &&
            (i < 2 || index.slots[i - 2].index != index.slots[i].index) &&
            (repeat < 0 || index.slots[i].place < repeat)) {
            repeat = index.slots[i].place;
            repeated = index.slots[i].index;
        }
    }
    if (repeat >= 0) {
        const size_t mark = enter_item(indexKey, repeated);
        refuse(nullptr);
        leave(mark);
        return false;
    }
    if (bad >= 0) {
        if (indexKey != nullptr) {
            refuse(indexKey);
        } else {
            const size_t mark = enter_item(nullptr, bad);
            refuse(nullptr);
            leave(mark);
        }
        return false;
    }
    return true;
}

void Session::refuse_unmatched(cJSON *array, const char *indexKey)
{
    if (failed_)
        return;
    int32_t place = 0;
    for (cJSON *e = array->child; e != nullptr; e = e->next, ++place) {
        if ((e->type & kRead) != 0)
            continue;
        // No slot of the page holds this index (or place): out of range.
        const int32_t index = indexKey != nullptr ? static_cast<int32_t>(member(e, indexKey)->valuedouble) : place;
        const size_t mark = enter_item(indexKey, index);
        refuse(nullptr);
        leave(mark);
        return;
    }
}

void Session::refuse_unread(cJSON *object)
{
    if (failed_ || object == nullptr)
        return;
    for (cJSON *c = object->child; c != nullptr; c = c->next) {
        if ((c->type & kRead) == 0) {
            refuse(c->string);
            return;
        }
    }
}

class In final : public Archive {
public:
    In(Session &s, cJSON *o) : Archive(true), s_(s), o_(o) {}

    void number(const char *key, void *field, Num kind, bool writable) override
    {
        if (!writable) {
            computed_number(key, load(field, kind), is_integral(kind));
            return;
        }
        cJSON *v = s_.take(o_, key);
        double d = 0;
        if (v == nullptr)
            return;
        if (!Session::number_fits(v, bounds(kind).low, bounds(kind).high, is_integral(kind), &d)) {
            s_.refuse(key);
            return;
        }
        store(field, kind, d);
    }
    void text(const char *key, char *field, size_t capacity, bool writable) override
    {
        if (!writable) {
            computed_text(key, field, capacity);
            return;
        }
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        if (!Session::text_fits(v, capacity)) {
            s_.refuse(key);
            return;
        }
        Session::copy_text(field, capacity, v);
    }
    void computed_number(const char *key, double value, bool) override
    {
        if (cJSON *v = s_.take(o_, key)) {
            cJSON computed{};
            computed.type = cJSON_Number;
            computed.valuedouble = value;
            s_.check_derived(v, key, computed);
        }
    }
    void computed_text(const char *key, const char *text, size_t capacity) override;
    void number_array(const char *key, void *values, Num kind, size_t count, bool writable) override
    {
        if (!writable) {
            computed_numbers(key, values, kind, static_cast<int32_t>(count));
            return;
        }
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        // Every element is checked before any is written.
        bool fits = cJSON_IsArray(v) && cJSON_GetArraySize(v) == static_cast<int>(count);
        double d = 0;
        for (cJSON *e = fits ? v->child : nullptr; fits && e != nullptr; e = e->next)
            fits = Session::number_fits(e, bounds(kind).low, bounds(kind).high, is_integral(kind), &d);
        if (!fits) {
            s_.refuse(key);
            return;
        }
        size_t i = 0;
        for (cJSON *e = v->child; e != nullptr; e = e->next, ++i)
            store(const_cast<void *>(at(values, kind, i)), kind, e->valuedouble);
    }
    void computed_numbers(const char *key, const void *values, Num kind, int32_t count) override
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        bool same = cJSON_IsArray(v) && cJSON_GetArraySize(v) == count;
        int32_t i = 0;
        for (cJSON *e = same ? v->child : nullptr; same && e != nullptr; e = e->next, ++i)
            same = cJSON_IsNumber(e) && e->valuedouble == load(at(values, kind, static_cast<size_t>(i)), kind);
        if (!same)
            s_.refuse(key);
    }
    void nested(const char *key, Fn<Archive &> fill) override
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        if (!cJSON_IsObject(v)) {
            s_.refuse(key);
            return;
        }
        const size_t mark = s_.enter(key);
        In sub(s_, v);
        fill(sub);
        sub.finish();
        s_.leave(mark);
    }
    void items(const char *key, const char *indexKey, Fn<Items &> fill) override
    {
        cJSON *v = s_.take(o_, key);
        if (v == nullptr)
            return;
        if (!cJSON_IsArray(v)) {
            s_.refuse(key);
            return;
        }
        const size_t mark = s_.enter(key);
        ListIndex index;
        if (s_.check_list(v, indexKey, index)) {
            List l(s_, v, indexKey, index);
            fill(l);
            s_.refuse_unmatched(v, indexKey);
        }
        s_.leave(mark);
    }
    /* Any event type named in the request, whatever the record selects. */
    void event_types(int32_t, Fn<Archive &, int32_t> fill) override
    {
        for (int32_t type = 0; type <= kLastAlarmEventType && !s_.failed(); ++type) {
            auto one = [&](Archive &sub) { fill(sub, type); };
            nested(getAlarmEventTypeString(type), Fn<Archive &>(one));
        }
    }
    void only_when(bool cond, uint8_t, Fn<Archive &> fill) override
    {
        if (cond)
            fill(*this);
    }

    /* Refuses a member that no key of the page read. */
    void finish() { s_.refuse_unread(o_); }

private:
    class List final : public Items {
    public:
        List(Session &s, cJSON *array, const char *indexKey, const ListIndex &index)
            : s_(s), next_(array->child), indexKey_(indexKey), index_(index)
        {
        }
        void indexed(int32_t index, Fn<Archive &> fill) override { apply(index_.find(index), index, fill); }
        /* The elements of a list without an index key, taken in turn. */
        void placed(Fn<Archive &> fill) override
        {
            cJSON *element = next_;
            if (next_ != nullptr)
                next_ = next_->next;
            apply(element, place_++, fill);
        }

    private:
        void apply(cJSON *element, int32_t index, Fn<Archive &> &fill)
        {
            if (element == nullptr || s_.failed())
                return;
            element->type |= kRead;
            const size_t mark = s_.enter_item(indexKey_, index);
            In sub(s_, element);
            if (indexKey_ != nullptr)
                s_.take(element, indexKey_);
            fill(sub);
            sub.finish();
            s_.leave(mark);
        }
        Session &s_;
        cJSON *next_;
        const char *indexKey_;
        const ListIndex &index_;
        int32_t place_ = 0;
    };

    Session &s_;
    cJSON *o_;
};

void In::computed_text(const char *key, const char *text, size_t capacity)
{
    cJSON *v = s_.take(o_, key);
    if (v == nullptr)
        return;
    char *owned = nullptr;
    if (capacity != SIZE_MAX && memchr(text, '\0', capacity) == nullptr) {
        // A text that fills its array: compared as what the page shows.
        owned = static_cast<char *>(cJSON_malloc(capacity + 1));
        if (owned == nullptr) {
            s_.refuse(key);
            return;
        }
        memcpy(owned, text, capacity);
        owned[capacity] = '\0';
        text = owned;
    }
    cJSON computed{};
    computed.type = cJSON_String;
    computed.valuestring = const_cast<char *>(text);
    s_.check_derived(v, key, computed);
    if (owned != nullptr)
        cJSON_free(owned);
}

bool only_blank(const char *p, const char *end)
{
    for (; p < end; ++p)
        if (*p != ' ' && *p != '\t' && *p != '\r' && *p != '\n' && *p != '\0')
            return false;
    return true;
}

/* ==== the schema: Shape ==== */

class Shape final : public Archive {
public:
    /* Fills the object schema `object` (made by object_schema). With
       `everyState`, the schema of every document the page can render from
       records shaped like these: keys under a.when are described whether or
       not they print now (under a.when_held only while they do) and are
       optional, every event type is allowed and none is required, and a key a record's text names
       may be any key. Its lists still hold the elements the records hold
       now. */
    Shape(cJSON *object, bool readOnly, bool everyState)
        : properties_(member(object, "properties")), required_(member(object, "required")), object_(object),
          readOnly_(readOnly), every_(everyState)
    {
    }

    void number(const char *key, void *, Num kind, bool writable) override
    {
        number_schema(property(key, !writable), kind);
    }
    void text(const char *key, char *, size_t capacity, bool writable) override
    {
        text_schema(property(key, !writable), capacity);
    }
    void computed_number(const char *key, double, bool integral) override
    {
        kind(property(key, true), integral ? "integer" : "number");
    }
    void computed_text(const char *key, const char *, size_t) override { kind(property(key, true), "string"); }
    void number_array(const char *key, void *, Num kind, size_t count, bool writable) override
    {
        number_schema(number_list(property(key, !writable), static_cast<int32_t>(count), true), kind);
    }
    void computed_numbers(const char *key, const void *, Num kind, int32_t count) override
    {
        this->kind(number_list(property(key, true), count, true), is_integral(kind) ? "integer" : "number");
    }
    void nested(const char *key, Fn<Archive &> fill) override
    {
        Shape sub(object_schema(property(key, false)), readOnly_, every_);
        fill(sub);
    }
    void items(const char *key, const char *indexKey, Fn<Items &> fill) override
    {
        cJSON *schema = property(key, false);
        List l(*this, list_schema(schema), indexKey);
        fill(l);
        close_list(schema);
    }
    void event_types(int32_t selector, Fn<Archive &, int32_t> fill) override
    {
        const bool one = selector >= 0 && !every_;
        const bool saved = optional_;
        optional_ = optional_ || every_;
        for (int32_t type = one ? selector : 0; type <= (one ? selector : kLastAlarmEventType); ++type) {
            Shape sub(object_schema(property(getAlarmEventTypeString(type), false)), readOnly_, every_);
            fill(sub, type);
        }
        optional_ = saved;
    }
    void only_when(bool cond, uint8_t how, Fn<Archive &> fill) override
    {
        if (!cond && !(every_ && (how & kReadable) != 0))
            return;
        const bool saved = optional_;
        optional_ = optional_ || every_ || (how & kOptional) != 0;
        fill(*this);
        optional_ = saved;
    }

    /* The schema object of an object member: type, properties, required,
       no additional properties. */
    static cJSON *object_schema(cJSON *schema);

private:
    class List final : public Items {
    public:
        List(const Shape &owner, cJSON *elements, const char *indexKey)
            : owner_(owner), elements_(elements), indexKey_(indexKey)
        {
        }
        void indexed(int32_t index, Fn<Archive &> fill) override { add(index, fill); }
        void placed(Fn<Archive &> fill) override { add(0, fill); }

    private:
        void add(int32_t index, Fn<Archive &> &fill);
        const Shape &owner_;
        cJSON *elements_;
        const char *indexKey_;
    };

    cJSON *property(const char *key, bool derived);
    cJSON *other_property(bool derived);
    static void kind(cJSON *schema, const char *type);
    static void number_schema(cJSON *schema, Num kind);
    static void text_schema(cJSON *schema, size_t capacity);
    static cJSON *number_list(cJSON *schema, int32_t count, bool counted);
    cJSON *list_schema(cJSON *schema) const;
    void close_list(cJSON *schema) const;

    cJSON *properties_;
    cJSON *required_;
    cJSON *object_;
    bool readOnly_;
    bool every_;
    bool optional_ = false;
};

cJSON *Shape::property(const char *key, bool derived)
{
    copy_key();
    const bool named = named_key();
    if (properties_ == nullptr)
        return nullptr;
    if (every_ && named)
        return other_property(derived);
    cJSON *schema = add_child(properties_, key, cJSON_CreateObject());
    if (schema == nullptr)
        return nullptr;
    if (!optional_ && required_ != nullptr)
        add_child(required_, nullptr, cJSON_CreateString(key));
    if (derived || readOnly_)
        cJSON_AddTrueToObject(schema, "readOnly");
    return schema;
}

/* For every state, a key the record's texts name (an option's label, a
   section's name) is no fixed property: its value is one of the shapes
   gathered under "additionalProperties". */
cJSON *Shape::other_property(bool derived)
{
    cJSON *others = member(object_, "additionalProperties");
    if (!cJSON_IsObject(others)) {
        cJSON_DeleteItemFromObjectCaseSensitive(object_, "additionalProperties");
        others = add_child(object_, "additionalProperties", cJSON_CreateObject());
        add_child(others, "anyOf", cJSON_CreateArray());
    }
    cJSON *schema = add_child(member(others, "anyOf"), nullptr, cJSON_CreateObject());
    if (schema != nullptr && (derived || readOnly_))
        cJSON_AddTrueToObject(schema, "readOnly");
    return schema;
}

/* The shapes gathered for keys the texts name, each once. */
void settle_other_properties(cJSON *node)
{
    for (cJSON *c = node != nullptr ? node->child : nullptr; c != nullptr; c = c->next)
        settle_other_properties(c);
    cJSON *anyOf = member(member(node, "additionalProperties"), "anyOf");
    if (anyOf == nullptr)
        return;
    for (cJSON *e = anyOf->child; e != nullptr;) {
        cJSON *next = e->next;
        for (cJSON *earlier = anyOf->child; earlier != e; earlier = earlier->next) {
            if (cJSON_Compare(earlier, e, true)) {
                cJSON_Delete(cJSON_DetachItemViaPointer(anyOf, e));
                break;
            }
        }
        e = next;
    }
}

void Shape::kind(cJSON *schema, const char *type)
{
    if (schema != nullptr)
        cJSON_AddStringToObject(schema, "type", type);
}

void Shape::number_schema(cJSON *schema, Num kind)
{
    if (schema == nullptr)
        return;
    Shape::kind(schema, is_integral(kind) ? "integer" : "number");
    cJSON_AddNumberToObject(schema, "minimum", bounds(kind).low);
    cJSON_AddNumberToObject(schema, "maximum", bounds(kind).high);
}

void Shape::text_schema(cJSON *schema, size_t capacity)
{
    if (schema == nullptr)
        return;
    kind(schema, "string");
    // JSON Schema counts characters; the camera's field counts bytes, so a
    // text of this many characters may still be refused when it is not ASCII.
    cJSON_AddNumberToObject(schema, "maxLength", static_cast<double>(capacity - 1));
    char note[64];
    snprintf(note, sizeof note, "at most %zu bytes of UTF-8", capacity - 1);
    cJSON_AddStringToObject(schema, "description", note);
}

/* A number array's schema; its length stated when `counted`. */
cJSON *Shape::number_list(cJSON *schema, int32_t count, bool counted)
{
    if (schema == nullptr)
        return nullptr;
    kind(schema, "array");
    if (counted) {
        cJSON_AddNumberToObject(schema, "minItems", count);
        cJSON_AddNumberToObject(schema, "maxItems", count);
    }
    return add_child(schema, "items", cJSON_CreateObject());
}

cJSON *Shape::object_schema(cJSON *schema)
{
    if (schema == nullptr)
        return nullptr;
    kind(schema, "object");
    add_child(schema, "properties", cJSON_CreateObject());
    add_child(schema, "required", cJSON_CreateArray());
    cJSON_AddFalseToObject(schema, "additionalProperties");
    return schema;
}

/* The elements' schemas, as "prefixItems": the list the record holds now. */
cJSON *Shape::list_schema(cJSON *schema) const
{
    if (schema == nullptr)
        return nullptr;
    kind(schema, "array");
    cJSON *items = add_child(schema, "prefixItems", cJSON_CreateArray());
    cJSON_AddFalseToObject(schema, "items");
    return items;
}

void Shape::close_list(cJSON *schema) const
{
    const int count = cJSON_GetArraySize(member(schema, "prefixItems"));
    // An empty list allows no element at all; its schema has no items to
    // list (an empty "prefixItems" is not a valid schema).
    if (count == 0)
        cJSON_DeleteItemFromObjectCaseSensitive(schema, "prefixItems");
    cJSON_AddNumberToObject(schema, "minItems", count);
    cJSON_AddNumberToObject(schema, "maxItems", count);
}

void Shape::List::add(int32_t index, Fn<Archive &> &fill)
{
    if (elements_ == nullptr)
        return;
    cJSON *item = object_schema(add_child(elements_, nullptr, cJSON_CreateObject()));
    Shape shape(item, owner_.readOnly_, owner_.every_);
    if (item != nullptr && indexKey_ != nullptr) {
        cJSON *schema = shape.property(indexKey_, false);
        kind(schema, "integer");
        cJSON_AddNumberToObject(schema, "const", index);
    }
    fill(shape);
}

/* The root of a page's schema (draft 2020-12), titled with the serializer's
   name; nullptr when memory runs out. */
cJSON *schema_root(const char *title, bool readOnly)
{
    cJSON *root = cJSON_CreateObject();
    if (root == nullptr)
        return nullptr;
    cJSON_AddStringToObject(root, "$schema", "https://json-schema.org/draft/2020-12/schema");
    cJSON_AddStringToObject(root, "title", title);
    cJSON_AddStringToObject(root, "description",
                            readOnly ? "A status page: every key is read-only."
                                     : "Keys marked readOnly are computed by the camera: a set request may repeat "
                                       "them unchanged, and sets every other key it names.");
    return Shape::object_schema(root);
}

cJSON *schema_tree(const Page &page, const char *title, void *const *inputs, bool everyState)
{
    const bool readOnly = (page.flags & kReadOnly) != 0;
    cJSON *root = schema_root(title, readOnly);
    if (root != nullptr) {
        Shape shape(root, readOnly, everyState);
        page.walk(shape, inputs);
    }
    return root;
}

size_t staged_records(const Page &page)
{
    size_t n = 0;
    while (n < kMaxInputs && page.sizes[n] != 0)
        ++n;
    return n;
}

} // namespace

/* ==== the three calls of a page ==== */

int32_t render(void *const *inputs, char *dst, int32_t dstSize, const Page &page)
{
    if ((page.flags & kPrintsAnyBuffer) == 0 && !buffer_usable(dst, dstSize))
        return -1;
    if (page.shown != nullptr && !page.shown(inputs))
        return (page.flags & kQuietWhenHidden) != 0 ? 0 : -1;
    return print_document(render_tree(page, inputs), dst, dstSize);
}

int32_t schema(void *const *inputs, char *dst, int32_t dstSize, const Page &page, const char *title)
{
    if (!buffer_usable(dst, dstSize))
        return -1;
    if (page.shown != nullptr && (page.flags & kQuietWhenHidden) == 0 && !page.shown(inputs))
        return -1;
    return print_document(schema_tree(page, title, inputs, false), dst, dstSize);
}

cJSON *schema_of_every_state(const Page &page, const char *title, void *const *inputs)
{
    if (page.shown != nullptr && (page.flags & kQuietWhenHidden) == 0 && !page.shown(inputs))
        return nullptr;
    cJSON *root = schema_tree(page, title, inputs, true);
    settle_other_properties(root);
    return root;
}

int32_t render_one(void *input, char *dst, int32_t dstSize, const Page &page)
{
    void *const inputs[1] = {input};
    return render(inputs, dst, dstSize, page);
}

int32_t render_two(void *first, void *second, char *dst, int32_t dstSize, const Page &page)
{
    void *const inputs[2] = {first, second};
    return render(inputs, dst, dstSize, page);
}

int32_t schema_one(void *input, char *dst, int32_t dstSize, const Page &page, const char *title)
{
    void *const inputs[1] = {input};
    return schema(inputs, dst, dstSize, page, title);
}

int32_t schema_two(void *first, void *second, char *dst, int32_t dstSize, const Page &page, const char *title)
{
    void *const inputs[2] = {first, second};
    return schema(inputs, dst, dstSize, page, title);
}

int32_t apply_one(void *input, const char *body, int32_t bodySize, char *dst, int32_t dstSize, const Page &page)
{
    void *const inputs[1] = {input};
    return apply(inputs, body, bodySize, dst, dstSize, page);
}

int32_t apply_two(void *first, void *second, const char *body, int32_t bodySize, char *dst, int32_t dstSize,
                  const Page &page)
{
    void *const inputs[2] = {first, second};
    return apply(inputs, body, bodySize, dst, dstSize, page);
}

int32_t apply(void *const *inputs, const char *body, int32_t bodySize, char *dst, int32_t dstSize, const Page &page)
{
    if (!buffer_usable(dst, dstSize))
        return -1;
    const size_t count = staged_records(page);
    bool usable = true;
    for (size_t i = 0; i < count; ++i)
        usable = usable && inputs[i] != nullptr;
    if (usable && (page.flags & kSetOnlyWhenShown) != 0 && page.shown != nullptr)
        usable = page.shown(inputs);
    if (!usable) {
        zk_return_set_request_faild_json(dst, dstSize);
        return -1;
    }
    cJSON *root = nullptr;
    if (body != nullptr && bodySize > 0) {
        const char *end = nullptr;
        root = cJSON_ParseWithLengthOpts(body, static_cast<size_t>(bodySize), &end, false);
        if (root != nullptr && !only_blank(end, body + bodySize)) {
            cJSON_Delete(root);
            root = nullptr;
        }
    }
    if (!cJSON_IsObject(root)) {
        cJSON_Delete(root);
        zk_return_format_error_json(dst, dstSize, "body");
        return -1;
    }

    // The request is applied to copies of the records; the other inputs (a
    // caller's text) are passed as they are.
    void *staged[kMaxInputs] = {};
    for (size_t i = 0; i < page.arity && i < kMaxInputs; ++i)
        staged[i] = inputs[i];
    bool copied = true;
    for (size_t i = 0; i < count; ++i) {
        staged[i] = copied ? cJSON_malloc(page.sizes[i]) : nullptr;
        if (staged[i] == nullptr)
            copied = false;
        else
            memcpy(staged[i], inputs[i], page.sizes[i]);
    }
    int32_t rc = -1;
    if (!copied) {
        zk_return_set_request_faild_json(dst, dstSize);
    } else {
        Session session(page, inputs);
        In in(session, root);
        page.walk(in, staged);
        in.finish();
        char path[128];
        if (session.failed()) {
            zk_return_format_error_json(dst, dstSize, session.refused_key());
        } else if (page.accept != nullptr && !page.accept(inputs, staged, path, sizeof path)) {
            zk_return_format_error_json(dst, dstSize, path);
        } else {
            // The success envelope as zk_return_set_request_succeed_json
            // prints it, without building it again for every request.
            snprintf(dst, static_cast<size_t>(dstSize), "%s", "{\n\t\"setState\":\t\"succeed\"\n}");
            for (size_t i = 0; i < count; ++i)
                memcpy(inputs[i], staged[i], page.sizes[i]);
            rc = 0;
        }
    }
    for (size_t i = 0; i < count; ++i)
        if (staged[i] != nullptr)
            cJSON_free(staged[i]);
    cJSON_Delete(root);
    return rc;
}

} // namespace mw

#ifdef MW_PAGE_TABLE
namespace mw {

namespace {
PageRow *rows = nullptr;
} // namespace

bool enroll(PageRow &row)
{
    row.next = rows;
    rows = &row;
    return true;
}

const PageRow *page_rows() { return rows; }

const PageRow *find_page(const char *serializer)
{
    for (const PageRow *row = rows; row != nullptr; row = row->next)
        if (strcmp(row->name, serializer) == 0)
            return row;
    return nullptr;
}

} // namespace mw
#endif
