/*
 * page_schema.cpp - the schema of every state a page can be in.
 *
 * A page's schema function describes the document its record renders now:
 * lists with the elements the record holds, the keys this state prints, the
 * one event type the selector picks. A client needs the schema of whatever
 * the camera may send. The page's description, read from the page table,
 * gives the schema of every state as far as it tells (keys printed only
 * sometimes optional, every event type allowed, keys named by texts allowed
 * under any name); that is widened further from the sample and the sample
 * under every value of the page's argument:
 *   - schemas of several states are merged: a key of any of them is allowed,
 *     only keys all of them require stay required, number ranges and text
 *     lengths cover all of them, differing types become a choice;
 *   - a list (an array of elements each with its own schema) takes any
 *     number of elements shaped like the merge of all of them, apart from the
 *     week of a "scheduleList", which always has its seven days.
 */
#include "openapi.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace openapi {

namespace {

constexpr int32_t kBuffer = 4 * 1024 * 1024;
// An argument with no more values than this is swept value by value; a wider
// one (a reported state taking any int32_t) by its ends and the sample's.
constexpr int64_t kSweptValues = 256;

cJSON *member(const cJSON *object, const char *key) { return cJSON_GetObjectItemCaseSensitive(object, key); }

bool has_string(const cJSON *array, const char *text)
{
    const cJSON *s = nullptr;
    cJSON_ArrayForEach(s, array) if (cJSON_IsString(s) && strcmp(s->valuestring, text) == 0) return true;
    return false;
}

// Sets `key` of `object` to `value`, replacing what is there.
void put(cJSON *object, const char *key, cJSON *value)
{
    if (member(object, key) != nullptr)
        cJSON_ReplaceItemInObjectCaseSensitive(object, key, value);
    else
        cJSON_AddItemToObject(object, key, value);
}

const char *type_of(const cJSON *schema)
{
    const cJSON *t = member(schema, "type");
    return cJSON_IsString(t) ? t->valuestring : "";
}

bool is_number_type(const char *t) { return strcmp(t, "integer") == 0 || strcmp(t, "number") == 0; }

// A number schema's low and high ends, a "const" counting as both.
void range_of(const cJSON *schema, double *low, double *high)
{
    const cJSON *c = member(schema, "const");
    const cJSON *min = member(schema, "minimum");
    const cJSON *max = member(schema, "maximum");
    *low = cJSON_IsNumber(c) ? c->valuedouble : cJSON_IsNumber(min) ? min->valuedouble : -INFINITY;
    *high = cJSON_IsNumber(c) ? c->valuedouble : cJSON_IsNumber(max) ? max->valuedouble : INFINITY;
}

cJSON *merge(const cJSON *a, const cJSON *b);

// The choices of a schema that is a choice ("anyOf"), or the schema itself.
void choices_of(const cJSON *schema, std::vector<const cJSON *> &out)
{
    const cJSON *any = member(schema, "anyOf");
    if (cJSON_IsArray(any) && cJSON_GetArraySize(schema) == 1) {
        const cJSON *c = nullptr;
        cJSON_ArrayForEach(c, any) out.push_back(c);
    } else {
        out.push_back(schema);
    }
}

// Two schemas of different kinds: either one. Choices of the same kind are
// merged into one.
cJSON *choice(const cJSON *a, const cJSON *b)
{
    std::vector<const cJSON *> all;
    choices_of(a, all);
    choices_of(b, all);
    std::vector<cJSON *> kept;
    for (const cJSON *c : all) {
        bool merged = false;
        for (cJSON *&k : kept) {
            const char *t1 = type_of(k), *t2 = type_of(c);
            if (strcmp(t1, t2) == 0 || (is_number_type(t1) && is_number_type(t2))) {
                cJSON *m = merge(k, c);
                cJSON_Delete(k);
                k = m;
                merged = true;
                break;
            }
        }
        if (!merged)
            kept.push_back(cJSON_Duplicate(c, true));
    }
    if (kept.size() == 1)
        return kept[0];
    cJSON *out = cJSON_CreateObject();
    cJSON *any = cJSON_AddArrayToObject(out, "anyOf");
    for (cJSON *k : kept)
        cJSON_AddItemToArray(any, k);
    return out;
}

// Every element schema of an array schema: its "prefixItems" and its
// "items" when that is a schema.
void elements_of(const cJSON *schema, std::vector<const cJSON *> &out)
{
    const cJSON *e = nullptr;
    cJSON_ArrayForEach(e, member(schema, "prefixItems")) out.push_back(e);
    const cJSON *items = member(schema, "items");
    if (cJSON_IsObject(items))
        out.push_back(items);
}

cJSON *merge_objects(const cJSON *a, const cJSON *b)
{
    cJSON *out = cJSON_Duplicate(a, true);
    cJSON *properties = member(out, "properties");
    const cJSON *p = nullptr;
    cJSON_ArrayForEach(p, member(b, "properties"))
    {
        const cJSON *mine = member(properties, p->string);
        if (mine == nullptr)
            cJSON_AddItemToObject(properties, p->string, cJSON_Duplicate(p, true));
        else
            put(properties, p->string, merge(mine, p));
    }
    const cJSON *pb = nullptr;
    cJSON_ArrayForEach(pb, member(b, "patternProperties"))
    {
        cJSON *patterns = member(out, "patternProperties");
        if (patterns == nullptr)
            patterns = cJSON_AddObjectToObject(out, "patternProperties");
        const cJSON *mine = member(patterns, pb->string);
        if (mine == nullptr)
            cJSON_AddItemToObject(patterns, pb->string, cJSON_Duplicate(pb, true));
        else
            put(patterns, pb->string, merge(mine, pb));
    }
    cJSON *required = cJSON_CreateArray();
    const cJSON *r = nullptr;
    cJSON_ArrayForEach(r, member(a, "required")) if (has_string(member(b, "required"), r->valuestring))
        cJSON_AddItemToArray(required, cJSON_CreateString(r->valuestring));
    put(out, "required", required);
    return out;
}

cJSON *merge_arrays(const cJSON *a, const cJSON *b)
{
    cJSON *out = cJSON_Duplicate(a, true);
    std::vector<const cJSON *> ea, eb;
    elements_of(a, ea);
    elements_of(b, eb);
    const cJSON *pa = member(a, "prefixItems"), *pb = member(b, "prefixItems");
    if (cJSON_IsArray(pa) && cJSON_IsArray(pb) && cJSON_Compare(pa, pb, true)) {
        // the same fixed elements on both sides (a week's days)
    } else if (!ea.empty() || !eb.empty()) {
        cJSON *items = nullptr;
        for (const std::vector<const cJSON *> *side : {&ea, &eb})
            for (const cJSON *e : *side) {
                cJSON *m = items == nullptr ? cJSON_Duplicate(e, true) : merge(items, e);
                cJSON_Delete(items);
                items = m;
            }
        cJSON_DeleteItemFromObjectCaseSensitive(out, "prefixItems");
        put(out, "items", items);
    }
    const cJSON *minA = member(a, "minItems"), *minB = member(b, "minItems");
    const cJSON *maxA = member(a, "maxItems"), *maxB = member(b, "maxItems");
    if (cJSON_IsNumber(minA) && cJSON_IsNumber(minB))
        put(out, "minItems", cJSON_CreateNumber(std::min(minA->valuedouble, minB->valuedouble)));
    else
        cJSON_DeleteItemFromObjectCaseSensitive(out, "minItems");
    if (cJSON_IsNumber(maxA) && cJSON_IsNumber(maxB))
        put(out, "maxItems", cJSON_CreateNumber(std::max(maxA->valuedouble, maxB->valuedouble)));
    else
        cJSON_DeleteItemFromObjectCaseSensitive(out, "maxItems");
    return out;
}

// A schema every value of `a` or of `b` fits.
cJSON *merge(const cJSON *a, const cJSON *b)
{
    if (cJSON_Compare(a, b, true))
        return cJSON_Duplicate(a, true);
    // An empty schema (the elements of a list the sample holds empty) allows
    // anything already: the other side says what the elements look like.
    if (cJSON_GetArraySize(a) == 0)
        return cJSON_Duplicate(b, true);
    if (cJSON_GetArraySize(b) == 0)
        return cJSON_Duplicate(a, true);
    const char *ta = type_of(a), *tb = type_of(b);
    if (member(a, "anyOf") != nullptr || member(b, "anyOf") != nullptr || strcmp(ta, tb) != 0) {
        if (!(is_number_type(ta) && is_number_type(tb)))
            return choice(a, b);
    }
    cJSON *out = nullptr;
    if (strcmp(ta, "object") == 0) {
        out = merge_objects(a, b);
    } else if (strcmp(ta, "array") == 0) {
        out = merge_arrays(a, b);
    } else if (is_number_type(ta)) {
        out = cJSON_Duplicate(a, true);
        if (strcmp(ta, tb) != 0)
            put(out, "type", cJSON_CreateString("number"));
        double lowA, highA, lowB, highB;
        range_of(a, &lowA, &highA);
        range_of(b, &lowB, &highB);
        cJSON_DeleteItemFromObjectCaseSensitive(out, "const");
        cJSON_DeleteItemFromObjectCaseSensitive(out, "minimum");
        cJSON_DeleteItemFromObjectCaseSensitive(out, "maximum");
        if (std::isfinite(std::min(lowA, lowB)))
            cJSON_AddNumberToObject(out, "minimum", std::min(lowA, lowB));
        if (std::isfinite(std::max(highA, highB)))
            cJSON_AddNumberToObject(out, "maximum", std::max(highA, highB));
    } else if (strcmp(ta, "string") == 0) {
        out = cJSON_Duplicate(a, true);
        const cJSON *ca = member(a, "const"), *cb = member(b, "const");
        if (ca != nullptr && !(cb != nullptr && cJSON_Compare(ca, cb, true)))
            cJSON_DeleteItemFromObjectCaseSensitive(out, "const");
        const cJSON *la = member(a, "maxLength"), *lb = member(b, "maxLength");
        if (cJSON_IsNumber(la) && cJSON_IsNumber(lb))
            put(out, "maxLength", cJSON_CreateNumber(std::max(la->valuedouble, lb->valuedouble)));
        else
            cJSON_DeleteItemFromObjectCaseSensitive(out, "maxLength");
        if (!cJSON_Compare(member(a, "description"), member(b, "description"), true))
            cJSON_DeleteItemFromObjectCaseSensitive(out, "description");
    } else {
        return choice(a, b);
    }
    // A key is read-only only when it is on both sides.
    if (!cJSON_IsTrue(member(b, "readOnly")))
        cJSON_DeleteItemFromObjectCaseSensitive(out, "readOnly");
    return out;
}

// True for the week of a schedule list: seven days, each with its
// "scheduleIndex" 0 to 6, always all of them.
bool is_week(const char *key, const cJSON *schema)
{
    const cJSON *days = member(schema, "prefixItems");
    if (key == nullptr || strcmp(key, "scheduleList") != 0 || cJSON_GetArraySize(days) != 7)
        return false;
    int d = 0;
    const cJSON *day = nullptr;
    cJSON_ArrayForEach(day, days)
    {
        const cJSON *index = member(member(member(day, "properties"), "scheduleIndex"), "const");
        if (!cJSON_IsNumber(index) || index->valueint != d++)
            return false;
    }
    return true;
}

// Opens every list of `schema` (but a week) to any number of elements shaped
// like the merge of the elements the sample's schema lists.
void open_lists(cJSON *schema, const char *key)
{
    if (!cJSON_IsObject(schema))
        return;
    cJSON *p = nullptr;
    cJSON_ArrayForEach(p, member(schema, "properties")) open_lists(p, p->string);
    open_lists(member(schema, "additionalProperties"), nullptr); // members a record's texts name
    cJSON *c = nullptr;
    cJSON_ArrayForEach(c, member(schema, "anyOf")) open_lists(c, key);
    cJSON_ArrayForEach(c, member(schema, "prefixItems")) open_lists(c, nullptr);
    open_lists(member(schema, "items"), nullptr);
    if (strcmp(type_of(schema), "array") != 0 || is_week(key, schema))
        return;
    // A number array lists what the record holds (non-zero rates, the
    // entries of a count): its length too follows the record.
    cJSON_DeleteItemFromObjectCaseSensitive(schema, "minItems");
    cJSON_DeleteItemFromObjectCaseSensitive(schema, "maxItems");
    const cJSON *prefix = member(schema, "prefixItems");
    if (prefix == nullptr && !cJSON_IsFalse(member(schema, "items")))
        return;
    std::vector<const cJSON *> elements;
    elements_of(schema, elements);
    cJSON *items = nullptr;
    std::vector<std::string> indexKeys; // an element's own number: "index", "regionIndex", ...
    for (const cJSON *e : elements) {
        const cJSON *p = nullptr;
        cJSON_ArrayForEach(p, member(e, "properties")) if (member(p, "const") != nullptr &&
                                                           std::find(indexKeys.begin(), indexKeys.end(), p->string) ==
                                                               indexKeys.end()) indexKeys.push_back(p->string);
        cJSON *m = items == nullptr ? cJSON_Duplicate(e, true) : merge(items, e);
        cJSON_Delete(items);
        items = m;
    }
    // The index values the sample's elements carry are not the only ones a
    // list of another length carries: an index key is any whole number.
    for (const std::string &k : indexKeys) {
        cJSON *index = member(member(items, "properties"), k.c_str());
        cJSON_DeleteItemFromObjectCaseSensitive(index, "const");
        cJSON_DeleteItemFromObjectCaseSensitive(index, "minimum");
        cJSON_DeleteItemFromObjectCaseSensitive(index, "maximum");
    }
    cJSON_DeleteItemFromObjectCaseSensitive(schema, "prefixItems");
    // An empty list in the sample says nothing about its elements' shape.
    put(schema, "items", items != nullptr ? items : cJSON_CreateObject());
}

// "preset_3" -> "^preset_-?[0-9]+$", "fish_0_PtzTourStatus_1" ->
// "^fish_-?[0-9]+_PtzTourStatus_-?[0-9]+$": the pattern of a numbered key
// (a number between underscores or after the last one), or "" for others.
std::string numbered_pattern(const char *key)
{
    std::string out = "^";
    bool numbered = false;
    for (const char *c = key; *c != '\0';) {
        const char *digits = c + 1;
        if (*c == '_' && *digits == '-')
            ++digits;
        const char *end = digits;
        while (*c == '_' && *end >= '0' && *end <= '9')
            ++end;
        if (*c == '_' && end > digits && (*end == '\0' || *end == '_')) {
            out += "_-?[0-9]+";
            numbered = true;
            c = end;
            continue;
        }
        if (strchr("\\^$.|?*+()[]{}", *c) != nullptr)
            out += '\\';
        out += *c++;
    }
    return numbered ? out + "$" : "";
}

// Keys numbered by the record (the slots of a table printed as "name_<i>"
// keys) become patterns: any number of them, none required. A key is taken
// for numbered when at least two keys of the object share its pattern.
void number_keys(cJSON *schema)
{
    if (!cJSON_IsObject(schema))
        return;
    cJSON *p = nullptr;
    cJSON_ArrayForEach(p, member(schema, "properties")) number_keys(p);
    cJSON_ArrayForEach(p, member(schema, "anyOf")) number_keys(p);
    cJSON_ArrayForEach(p, member(schema, "prefixItems")) number_keys(p);
    number_keys(member(schema, "items"));
    cJSON *properties = member(schema, "properties");
    if (properties == nullptr)
        return;
    std::vector<std::string> patterns;
    std::vector<int> counts;
    cJSON_ArrayForEach(p, properties)
    {
        const std::string pattern = numbered_pattern(p->string);
        if (pattern.empty())
            continue;
        const auto at = std::find(patterns.begin(), patterns.end(), pattern);
        if (at == patterns.end()) {
            patterns.push_back(pattern);
            counts.push_back(1);
        } else {
            ++counts[static_cast<size_t>(at - patterns.begin())];
        }
    }
    for (size_t i = 0; i < patterns.size(); ++i) {
        if (counts[i] < 2)
            continue;
        cJSON *merged = nullptr;
        for (cJSON *m = properties->child; m != nullptr;) {
            cJSON *next = m->next;
            if (numbered_pattern(m->string) == patterns[i]) {
                cJSON *x = merged == nullptr ? cJSON_Duplicate(m, true) : merge(merged, m);
                cJSON_Delete(merged);
                merged = x;
                cJSON *required = member(schema, "required");
                for (int r = cJSON_GetArraySize(required) - 1; r >= 0; --r)
                    if (strcmp(cJSON_GetArrayItem(required, r)->valuestring, m->string) == 0)
                        cJSON_DeleteItemFromArray(required, r);
                cJSON_Delete(cJSON_DetachItemViaPointer(properties, m));
            }
            m = next;
        }
        cJSON *patternProperties = member(schema, "patternProperties");
        if (patternProperties == nullptr)
            patternProperties = cJSON_AddObjectToObject(schema, "patternProperties");
        cJSON_AddItemToObject(patternProperties, patterns[i].c_str(), merged);
    }
}

/* The schema of a state as the page's description gives it for every state
   shaped like this one (keys printed only sometimes optional, keys named by
   texts allowed under any name); the page's own schema function where the
   catalog cannot reach the description. */
cJSON *schema_of_state(const CatalogEntry &entry, std::vector<unsigned char> &state, std::vector<char> &buffer)
{
    if (entry.inputs != nullptr) {
        std::vector<unsigned char> copy = state; // the capability pages split their texts in place
        return catalog_schema_of_every_state(entry, copy.data());
    }
    if (entry.page->schema(state.data(), buffer.data(), kBuffer) != 0)
        return nullptr;
    return cJSON_Parse(buffer.data());
}

} // namespace

cJSON *page_document_schema(const CatalogEntry &entry)
{
    if (entry.page == nullptr)
        return nullptr;
    const PageOps &ops = *entry.page;
    std::vector<char> buffer(kBuffer);
    std::vector<unsigned char> sample(ops.stateSize);
    ops.initial(sample.data());
    cJSON *merged = schema_of_state(entry, sample, buffer);
    if (merged == nullptr)
        return nullptr;
    open_lists(merged, nullptr);
    number_keys(merged);
    if (ops.argument != nullptr) {
        std::vector<int64_t> values;
        const int64_t low = ops.argumentMin, high = ops.argumentMax;
        if (high - low < kSweptValues) {
            for (int64_t v = low; v <= high; ++v)
                values.push_back(v);
        } else {
            values = {low, high};
        }
        for (int64_t v : values) {
            std::vector<unsigned char> state = sample;
            *ops.argument(state.data()) = static_cast<int32_t>(v);
            cJSON *other = schema_of_state(entry, state, buffer);
            if (other == nullptr)
                continue;
            open_lists(other, nullptr);
            number_keys(other);
            cJSON *m = merge(merged, other);
            cJSON_Delete(merged);
            cJSON_Delete(other);
            merged = m;
        }
    }
    return merged;
}

} // namespace openapi
