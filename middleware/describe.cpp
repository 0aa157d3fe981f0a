/*
 * describe.cpp - what the three archives of a page description do beyond
 * their templates: adding members to the tree, checking a set request's
 * values and keeping its path, and building schema nodes.
 */
#include "internal.h"

#include <cstdio>
#include <cstring>

namespace mw {

namespace {

/* Marks a member of a set request that a key of the page has read. cJSON
   keeps a node's kind in the low byte of its type and two flags above it;
   this bit is free, and the parsed request is ours until the call returns. */
constexpr int kRead = 1 << 13;

void attach(cJSON *o, Name key, cJSON *item)
{
    if (item == nullptr)
        return;
    const bool added = key.lasting ? cJSON_AddItemToObjectCS(o, key.text, item)
                                   : cJSON_AddItemToObject(o, key.text, item);
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

} // namespace

/* ---- rendering ---- */

void out_number(cJSON *o, Name key, double value)
{
    if (o != nullptr)
        attach(o, key, cJSON_CreateNumber(value));
}

void out_text(cJSON *o, Name key, const char *text, size_t capacity)
{
    if (o == nullptr)
        return;
    if (capacity == SIZE_MAX || memchr(text, '\0', capacity) != nullptr) {
        attach(o, key, cJSON_CreateString(text));
        return;
    }
    // A field without its NUL: what the array holds and no more.
    char *copy = static_cast<char *>(cJSON_malloc(capacity + 1));
    if (copy == nullptr)
        return;
    memcpy(copy, text, capacity);
    copy[capacity] = '\0';
    attach(o, key, cJSON_CreateString(copy));
    cJSON_free(copy);
}

cJSON *out_object(cJSON *o, Name key) { return object(o, key.text); }

cJSON *out_array(cJSON *o, Name key) { return array(o, key.text); }

cJSON *out_append_object(cJSON *list) { return append_object(list); }

void out_append_number(cJSON *list, double value)
{
    if (list != nullptr)
        add_child(list, nullptr, cJSON_CreateNumber(value));
}

/* ---- applying a set request ---- */

Session::~Session() { cJSON_Delete(current_); }

cJSON *Session::take(cJSON *object, Name key)
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
            if (c->string != nullptr && strcmp(c->string, key.text) == 0) {
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
        current_ = build_current_ != nullptr ? build_current_(context_) : nullptr;
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

bool Session::check_list(cJSON *array, const char *indexKey)
{
    if (failed_)
        return false;
    int32_t place = 0;
    for (cJSON *e = array->child; e != nullptr; e = e->next, ++place) {
        if (indexKey == nullptr) {
            if (!cJSON_IsObject(e)) {
                const size_t mark = enter_item(nullptr, place);
                refuse(nullptr);
                leave(mark);
                return false;
            }
            continue;
        }
        // Each element names its slot with an integral index of its own.
        double index = 0;
        if (!cJSON_IsObject(e) || !number_fits(member(e, indexKey), INT32_MIN, INT32_MAX, true, &index)) {
            refuse(indexKey);
            return false;
        }
        for (cJSON *earlier = array->child; earlier != e; earlier = earlier->next) {
            if (member(earlier, indexKey)->valuedouble == index) {
                const size_t mark = enter_item(indexKey, static_cast<int32_t>(index));
                refuse(nullptr);
                leave(mark);
                return false;
            }
        }
    }
    return true;
}

cJSON *Session::element(cJSON *array, const char *indexKey, int32_t index)
{
    if (failed_)
        return nullptr;
    cJSON *found = nullptr;
    if (indexKey == nullptr) {
        found = cJSON_GetArrayItem(array, index);
    } else {
        for (cJSON *e = array->child; e != nullptr && found == nullptr; e = e->next)
            if (member(e, indexKey)->valuedouble == static_cast<double>(index))
                found = e;
    }
    if (found != nullptr)
        found->type |= kRead;
    return found;
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

void In::check_text(Name key, const char *text, size_t capacity)
{
    cJSON *v = s_.take(o_, key);
    if (v == nullptr)
        return;
    char *owned = nullptr;
    if (capacity != SIZE_MAX && memchr(text, '\0', capacity) == nullptr) {
        owned = static_cast<char *>(cJSON_malloc(capacity + 1));
        if (owned == nullptr) {
            s_.refuse(key.text);
            return;
        }
        memcpy(owned, text, capacity);
        owned[capacity] = '\0';
        text = owned;
    }
    cJSON computed{};
    computed.type = cJSON_String;
    computed.valuestring = const_cast<char *>(text);
    s_.check_derived(v, key.text, computed);
    if (owned != nullptr)
        cJSON_free(owned);
}

namespace {

bool only_blank(const char *p, const char *end)
{
    for (; p < end; ++p)
        if (*p != ' ' && *p != '\t' && *p != '\r' && *p != '\n' && *p != '\0')
            return false;
    return true;
}

} // namespace

int32_t apply_request(const char *body, int32_t bodySize, char *dst, int32_t dstSize, Staged *records, size_t count,
                      void (*walk)(Session &, cJSON *, const Staged *, const void *),
                      cJSON *(*current)(const void *), const void *context)
{
    if (!buffer_usable(dst, dstSize))
        return -1;
    if (records == nullptr) {
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

    bool staged = true;
    for (size_t i = 0; i < count; ++i) {
        records[i].copy = staged ? cJSON_malloc(records[i].size) : nullptr;
        if (records[i].copy == nullptr)
            staged = false;
        else
            memcpy(records[i].copy, records[i].record, records[i].size);
    }
    int32_t rc = -1;
    if (!staged) {
        zk_return_set_request_faild_json(dst, dstSize);
    } else {
        Session session(current, context);
        walk(session, root, records, context);
        if (session.failed()) {
            zk_return_format_error_json(dst, dstSize, session.refused_key());
        } else if (zk_return_set_request_succeed_json(dst, dstSize) == 0) {
            // Only a request that was answered changes the record.
            for (size_t i = 0; i < count; ++i)
                memcpy(records[i].record, records[i].copy, records[i].size);
            rc = 0;
        }
    }
    for (size_t i = 0; i < count; ++i)
        if (records[i].copy != nullptr)
            cJSON_free(records[i].copy);
    cJSON_Delete(root);
    return rc;
}

/* ---- the schema ---- */

Shape::Shape(cJSON *object, bool readOnly)
    : properties_(member(object, "properties")), required_(member(object, "required")), readOnly_(readOnly)
{
}

cJSON *Shape::property(Name key, bool derived)
{
    if (properties_ == nullptr)
        return nullptr;
    cJSON *schema = add_child(properties_, key.text, cJSON_CreateObject());
    if (schema == nullptr)
        return nullptr;
    if (!optional_ && required_ != nullptr)
        add_child(required_, nullptr, cJSON_CreateString(key.text));
    if (derived || readOnly_)
        cJSON_AddTrueToObject(schema, "readOnly");
    return schema;
}

void Shape::kind(cJSON *schema, const char *type)
{
    if (schema != nullptr)
        cJSON_AddStringToObject(schema, "type", type);
}

void Shape::number(cJSON *schema, bool integralOnly, double low, double high)
{
    if (schema == nullptr)
        return;
    kind(schema, integralOnly ? "integer" : "number");
    cJSON_AddNumberToObject(schema, "minimum", low);
    cJSON_AddNumberToObject(schema, "maximum", high);
}

void Shape::text(cJSON *schema, size_t capacity)
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

cJSON *Shape::number_array(cJSON *schema, int32_t count)
{
    if (schema == nullptr)
        return nullptr;
    kind(schema, "array");
    cJSON_AddNumberToObject(schema, "minItems", count);
    cJSON_AddNumberToObject(schema, "maxItems", count);
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

cJSON *Shape::list_schema(cJSON *schema)
{
    if (schema == nullptr)
        return nullptr;
    kind(schema, "array");
    cJSON *items = add_child(schema, "prefixItems", cJSON_CreateArray());
    cJSON_AddFalseToObject(schema, "items");
    return items;
}

void Shape::close_list(cJSON *schema)
{
    const int count = cJSON_GetArraySize(member(schema, "prefixItems"));
    // An empty list allows no element at all; its schema has no items to
    // list (an empty "prefixItems" is not a valid schema).
    if (count == 0)
        cJSON_DeleteItemFromObjectCaseSensitive(schema, "prefixItems");
    cJSON_AddNumberToObject(schema, "minItems", count);
    cJSON_AddNumberToObject(schema, "maxItems", count);
}

cJSON *Shape::list_item(cJSON *prefixItems, const char *indexKey, int32_t index, bool readOnly)
{
    if (prefixItems == nullptr)
        return nullptr;
    cJSON *item = object_schema(add_child(prefixItems, nullptr, cJSON_CreateObject()));
    if (item != nullptr && indexKey != nullptr) {
        Shape shape(item, readOnly);
        cJSON *schema = shape.property(Name::copied(indexKey), false);
        kind(schema, "integer");
        cJSON_AddNumberToObject(schema, "const", index);
    }
    return item;
}

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

} // namespace mw
