// The laws of set requests, checked for every settable page of the catalog.
// Each page's own schema tells where its keys are, which are read-only and
// what values they take; the laws are checked at every key that way:
//   - posting the rendered document back changes nothing;
//   - a document changed at one settable key (both ends of its range, the
//     longest text) applies, and the next render shows that change alone
//     (and read-only repeats of the same member showing the new value);
//   - every refusal rule names the right key path and leaves the record
//     byte-identical;
//   - seeded random records round-trip too;
//   - running out of memory at any allocation fails cleanly.
#include "catalog.h"
#include "support.h"

#include <cinttypes>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int32_t kBuffer = 4 * 1024 * 1024;
// Pages of 48 event types hold thousands of keys of a few kinds: the laws are
// checked at most at this many keys of a page, spread evenly over it.
constexpr size_t kMostKeysPerPage = 96;

// A live state of a page, compared byte for byte.
struct State {
    const PageOps &page;
    std::vector<unsigned char> bytes;
    explicit State(const PageOps &p) : page(p), bytes(p.stateSize) { p.initial(bytes.data()); }
    std::string render() const
    {
        std::vector<char> out(kBuffer);
        EXPECT_EQ(page.render(const_cast<unsigned char *>(bytes.data()), out.data(), kBuffer), 0);
        return out.data();
    }
    // The set function's result and the reply it wrote.
    int32_t set(const std::string &body, std::string *reply)
    {
        std::vector<char> out(4096, '\0');
        const int32_t rc = page.set(bytes.data(), body.data(), static_cast<int32_t>(body.size()), out.data(), 4096);
        *reply = out.data();
        return rc;
    }
};

cJSON *parse(const std::string &text) { return cJSON_Parse(text.c_str()); }
std::string print(const cJSON *node)
{
    char *text = cJSON_PrintUnformatted(node);
    std::string out = text != nullptr ? text : "";
    cJSON_free(text);
    return out;
}
// The reply naming `key` as the offending member.
std::string format_error(const std::string &key)
{
    std::vector<char> out(4096);
    zk_return_format_error_json(out.data(), 4096, key.c_str());
    return out.data();
}
std::string succeeded()
{
    std::vector<char> out(256);
    zk_return_set_request_succeed_json(out.data(), 256);
    return out.data();
}

// A place in a document: members by key, list elements by position.
struct Step {
    std::string key; // empty: an array element
    int position = 0;
};

// A value of the document, with its schema and its key path as the library
// names it ("a.b[2].c").
struct Leaf {
    std::string path;
    std::vector<Step> steps;
    const cJSON *schema;
    bool readOnly;
};

// An object or list of the document.
struct Container {
    std::string path;
    std::vector<Step> steps;
    bool list;
    std::string indexKey; // lists with an index key
    double highestIndex;
    int count;
};

bool is_true(const cJSON *schema, const char *key) { return cJSON_IsTrue(test::member(schema, key)); }
std::string type_of(const cJSON *schema)
{
    const cJSON *t = test::member(schema, "type");
    return cJSON_IsString(t) ? t->valuestring : "";
}

// Walks a document and its schema together.
class Map {
public:
    Map(const cJSON *doc, const cJSON *schema) { object(doc, schema, "", {}); }
    std::vector<Leaf> leaves;
    std::vector<Container> containers;

private:
    void object(const cJSON *doc, const cJSON *schema, const std::string &path, const std::vector<Step> &steps)
    {
        containers.push_back({path, steps, false, "", 0, 0});
        const cJSON *properties = test::member(schema, "properties");
        for (const cJSON *p = properties != nullptr ? properties->child : nullptr; p != nullptr; p = p->next) {
            const cJSON *value = test::member(doc, p->string);
            if (value == nullptr)
                continue;
            const std::string at = path.empty() ? p->string : path + "." + p->string;
            std::vector<Step> next = steps;
            next.push_back({p->string, 0});
            const std::string type = type_of(p);
            if (type == "object") {
                object(value, p, at, next);
            } else if (type == "array" && cJSON_IsFalse(test::member(p, "items"))) {
                list(value, p, at, next);
            } else if (!cJSON_IsNumber(test::member(p, "const"))) {
                leaves.push_back({at, next, p, is_true(p, "readOnly")});
            }
        }
    }
    void list(const cJSON *doc, const cJSON *schema, const std::string &path, const std::vector<Step> &steps)
    {
        const cJSON *items = test::member(schema, "prefixItems");
        Container c{path, steps, true, "", -1, cJSON_GetArraySize(doc)};
        int position = 0;
        for (const cJSON *e = doc->child; e != nullptr; e = e->next, ++position) {
            const cJSON *item = cJSON_GetArrayItem(items, position);
            std::string label = std::to_string(position);
            const cJSON *properties = test::member(item, "properties");
            for (const cJSON *p = properties != nullptr ? properties->child : nullptr; p != nullptr; p = p->next) {
                const cJSON *index = test::member(p, "const");
                if (cJSON_IsNumber(index)) {
                    c.indexKey = p->string;
                    c.highestIndex = std::max(c.highestIndex, index->valuedouble);
                    label = std::to_string(index->valueint);
                }
            }
            std::vector<Step> next = steps;
            next.push_back({"", position});
            object(e, item, path + "[" + label + "]", next);
        }
        containers.push_back(c);
    }
};

cJSON *locate(cJSON *doc, const std::vector<Step> &steps)
{
    cJSON *node = doc;
    for (const Step &s : steps)
        node = s.key.empty() ? cJSON_GetArrayItem(node, s.position) : const_cast<cJSON *>(test::member(node, s.key.c_str()));
    return node;
}

// A copy of `doc` with the value at `steps` replaced by `value` (owned).
cJSON *with_value(const cJSON *doc, const std::vector<Step> &steps, cJSON *value)
{
    cJSON *copy = cJSON_Duplicate(doc, true);
    const Step &last = steps.back();
    cJSON *parent = locate(copy, std::vector<Step>(steps.begin(), steps.end() - 1));
    if (last.key.empty())
        cJSON_ReplaceItemInArray(parent, last.position, value);
    else
        cJSON_ReplaceItemInObjectCaseSensitive(parent, last.key.c_str(), value);
    return copy;
}

double number_at(const cJSON *schema, const char *key, double otherwise)
{
    const cJSON *v = test::member(schema, key);
    return cJSON_IsNumber(v) ? v->valuedouble : otherwise;
}

// Valid values other than a leaf's own: both ends of an integer range, two
// exact fractions for floating point, the longest text and a short one.
std::vector<cJSON *> valid_values(const Leaf &leaf)
{
    const std::string type = type_of(leaf.schema);
    std::vector<cJSON *> out;
    if (type == "integer") {
        out.push_back(cJSON_CreateNumber(number_at(leaf.schema, "minimum", 0)));
        out.push_back(cJSON_CreateNumber(number_at(leaf.schema, "maximum", 0)));
    } else if (type == "number") {
        out.push_back(cJSON_CreateNumber(0.5));
        out.push_back(cJSON_CreateNumber(-1024.25));
    } else if (type == "string") {
        const size_t longest = static_cast<size_t>(number_at(leaf.schema, "maxLength", 0));
        out.push_back(cJSON_CreateString(std::string(longest, 'W').c_str()));
        if (longest >= 3)
            out.push_back(cJSON_CreateString("Qz7"));
    } else if (type == "array") {
        const cJSON *items = test::member(leaf.schema, "items");
        const int n = static_cast<int>(number_at(leaf.schema, "maxItems", 0));
        for (const char *end : {"minimum", "maximum"}) {
            cJSON *a = cJSON_CreateArray();
            for (int i = 0; i < n; ++i)
                cJSON_AddItemToArray(a, cJSON_CreateNumber(number_at(items, end, 0)));
            out.push_back(a);
        }
    }
    return out;
}

// Values the leaf must refuse, each with what it breaks.
std::vector<std::pair<cJSON *, const char *>> invalid_values(const Leaf &leaf, const cJSON *current)
{
    const std::string type = type_of(leaf.schema);
    std::vector<std::pair<cJSON *, const char *>> out;
    if (leaf.readOnly) {
        if (cJSON_IsNumber(current))
            out.push_back({cJSON_CreateNumber(current->valuedouble + 1), "another value of a read-only key"});
        else if (cJSON_IsString(current))
            out.push_back({cJSON_CreateString((std::string(current->valuestring) + "x").c_str()),
                           "another value of a read-only key"});
        return out;
    }
    if (type == "integer") {
        const double low = number_at(leaf.schema, "minimum", 0), high = number_at(leaf.schema, "maximum", 0);
        out.push_back({cJSON_CreateString("7"), "a string for an integer"});
        out.push_back({cJSON_CreateNumber(low + 0.5), "a fraction for an integer"});
        out.push_back({cJSON_CreateNumber(high < 9e15 ? high + 1 : 1e20), "above the type's range"});
        out.push_back({cJSON_CreateNumber(low > -9e15 ? low - 1 : -1e20), "below the type's range"});
        out.push_back({cJSON_CreateNull(), "null for an integer"});
    } else if (type == "number") {
        out.push_back({cJSON_CreateTrue(), "true for a number"});
        out.push_back({cJSON_CreateNumber(number_at(leaf.schema, "maximum", 0) * 4), "above the type's range"});
    } else if (type == "string") {
        const size_t longest = static_cast<size_t>(number_at(leaf.schema, "maxLength", 0));
        out.push_back({cJSON_CreateNumber(7), "a number for a text"});
        out.push_back({cJSON_CreateString(std::string(longest + 1, 'W').c_str()), "a text one byte too long"});
    } else if (type == "array") {
        out.push_back({cJSON_CreateObject(), "an object for a number array"});
        cJSON *longer = cJSON_Duplicate(current, true);
        cJSON_AddItemToArray(longer, cJSON_CreateNumber(0));
        out.push_back({longer, "one number too many"});
    }
    return out;
}

// Up to `most` indices spread over [0, n): every one when there are few.
std::vector<size_t> spread(size_t n, size_t most)
{
    std::vector<size_t> picked;
    for (size_t k = 0; k < std::min(n, most); ++k)
        picked.push_back(n <= most ? k : k * (n - 1) / (most - 1));
    return picked;
}

std::vector<const CatalogEntry *> settable_pages()
{
    std::vector<const CatalogEntry *> out;
    for (const CatalogEntry *e : catalog_entries())
        if (e->page != nullptr && e->page->set != nullptr)
            out.push_back(e);
    return out;
}

class SetLaws : public ::testing::TestWithParam<const CatalogEntry *> {
protected:
    void SetUp() override
    {
        State state(page());
        text_ = state.render();
        doc_ = parse(text_);
        std::vector<char> out(kBuffer);
        ASSERT_EQ(page().schema(state.bytes.data(), out.data(), kBuffer), 0);
        schema_ = parse(out.data());
        ASSERT_NE(doc_, nullptr);
        ASSERT_NE(schema_, nullptr);
        map_ = new Map(doc_, schema_);
    }
    void TearDown() override
    {
        delete map_;
        cJSON_Delete(doc_);
        cJSON_Delete(schema_);
    }
    const PageOps &page() const { return *GetParam()->page; }
    // Posts `body` to a fresh state: it must be refused at `path`, the state
    // left as it was.
    void expect_refused(const std::string &body, const std::string &path, const std::string &why)
    {
        State state(page());
        const std::vector<unsigned char> before = state.bytes;
        std::string reply;
        EXPECT_EQ(state.set(body, &reply), -1) << why << " at " << path;
        EXPECT_EQ(reply, format_error(path)) << why;
        EXPECT_TRUE(state.bytes == before) << why << " at " << path << ": the record changed";
    }
    std::string text_;
    cJSON *doc_ = nullptr;
    cJSON *schema_ = nullptr;
    Map *map_ = nullptr;
};

TEST_P(SetLaws, OwnDocumentChangesNothing)
{
    State state(page());
    const std::vector<unsigned char> before = state.bytes;
    std::string reply;
    ASSERT_EQ(state.set(text_, &reply), 0) << reply;
    EXPECT_EQ(reply, succeeded());
    EXPECT_TRUE(state.bytes == before) << "posting the page's own document changed the record";
    EXPECT_EQ(state.render(), text_);
}

TEST_P(SetLaws, EachKeyTakesItsValuesAndChangesNothingElse)
{
    std::vector<const Leaf *> settable;
    for (const Leaf &l : map_->leaves)
        if (!l.readOnly)
            settable.push_back(&l);
    ASSERT_FALSE(settable.empty()) << "a settable page without a settable key";
    for (size_t i : spread(settable.size(), kMostKeysPerPage)) {
        const Leaf &leaf = *settable[i];
        for (cJSON *value : valid_values(leaf)) {
            cJSON *changed = with_value(doc_, leaf.steps, value);
            State state(page());
            std::string reply;
            ASSERT_EQ(state.set(print(changed), &reply), 0) << leaf.path << ": " << reply;
            cJSON *after = parse(state.render());
            // A read-only key that shows the same member a second time (the
            // first target's address repeated on the root) follows it: it
            // may change, and only to the value set.
            cJSON *expected = cJSON_Duplicate(changed, true);
            for (const Leaf &other : map_->leaves) {
                const cJSON *now = locate(after, other.steps);
                if (other.readOnly && now != nullptr && !cJSON_Compare(now, locate(changed, other.steps), true) &&
                    cJSON_Compare(now, value, true)) {
                    cJSON *repeated = with_value(expected, other.steps, cJSON_Duplicate(value, true));
                    cJSON_Delete(expected);
                    expected = repeated;
                }
            }
            EXPECT_TRUE(cJSON_Compare(after, expected, true))
                << leaf.path << " set to " << print(value) << " rendered\n" << print(after);
            cJSON_Delete(expected);
            cJSON_Delete(after);
            cJSON_Delete(changed);
        }
    }
}

TEST_P(SetLaws, BadValuesAreRefusedAtTheirKey)
{
    for (size_t i : spread(map_->leaves.size(), kMostKeysPerPage)) {
        const Leaf &leaf = map_->leaves[i];
        for (auto &[value, why] : invalid_values(leaf, locate(doc_, leaf.steps))) {
            cJSON *changed = with_value(doc_, leaf.steps, value);
            expect_refused(print(changed), leaf.path, why);
            cJSON_Delete(changed);
        }
    }
}

TEST_P(SetLaws, TheFirstOffenderInDocumentOrderIsNamed)
{
    std::vector<const Leaf *> settable;
    for (const Leaf &l : map_->leaves)
        if (!l.readOnly && type_of(l.schema) != "array")
            settable.push_back(&l);
    if (settable.size() < 2)
        GTEST_SKIP() << "fewer than two settable values";
    cJSON *changed = with_value(doc_, settable.back()->steps, cJSON_CreateObject());
    cJSON *both = with_value(changed, settable.front()->steps, cJSON_CreateObject());
    expect_refused(print(both), settable.front()->path, "two wrong types");
    cJSON_Delete(changed);
    cJSON_Delete(both);
}

TEST_P(SetLaws, UnknownKeysAndBadListElementsAreRefused)
{
    for (size_t i : spread(map_->containers.size(), kMostKeysPerPage)) {
        const Container &c = map_->containers[i];
        if (!c.steps.empty() && !c.steps.back().key.empty()) {
            // An object or list under a key given as a number or a text.
            for (cJSON *wrong : {cJSON_CreateNumber(5), cJSON_CreateString("x")}) {
                cJSON *replaced = with_value(doc_, c.steps, wrong);
                expect_refused(print(replaced), c.path, c.list ? "a scalar for a list" : "a scalar for an object");
                cJSON_Delete(replaced);
            }
        }
        cJSON *copy = cJSON_Duplicate(doc_, true);
        cJSON *node = locate(copy, c.steps);
        if (!c.list) {
            cJSON_AddNumberToObject(node, "zzNoSuchKey", 1);
            expect_refused(print(copy), c.path.empty() ? "zzNoSuchKey" : c.path + ".zzNoSuchKey", "an unknown key");
            cJSON_Delete(copy);
            continue;
        }
        if (c.indexKey.empty() && c.count == 0) {
            // An empty list does not show whether its elements carry an index
            // key: any element is refused, named under the list.
            cJSON_AddItemToArray(node, cJSON_CreateObject());
            State state(page());
            const std::vector<unsigned char> before = state.bytes;
            std::string reply;
            EXPECT_EQ(state.set(print(copy), &reply), -1) << c.path << ": an element in an empty list";
            EXPECT_TRUE(reply.find("\"" + c.path + ".") == 3 || reply.find("\"" + c.path + "[") == 3) << reply;
            EXPECT_TRUE(state.bytes == before) << c.path << ": the record changed";
            cJSON_Delete(copy);
            continue;
        }
        if (c.indexKey.empty()) {
            // Items matched by place: an element that is not an object.
            cJSON *scalar = cJSON_Duplicate(doc_, true);
            cJSON_ReplaceItemInArray(locate(scalar, c.steps), 0, cJSON_CreateNumber(1));
            expect_refused(print(scalar), c.path + "[0]", "a number for a list element");
            cJSON_Delete(scalar);
            // One more than the page has.
            cJSON_AddItemToArray(node, cJSON_CreateObject());
            expect_refused(print(copy), c.path + "[" + std::to_string(c.count) + "]", "an element past the list");
            cJSON_Delete(copy);
            continue;
        }
        const std::string past = std::to_string(static_cast<long long>(c.highestIndex) + 1);
        cJSON *extra = cJSON_CreateObject();
        cJSON_AddNumberToObject(extra, c.indexKey.c_str(), c.highestIndex + 1);
        cJSON_AddItemToArray(node, extra);
        expect_refused(print(copy), c.path + "[" + past + "]", "an index no slot has");
        cJSON_Delete(copy);
        if (c.count == 0)
            continue;
        copy = cJSON_Duplicate(doc_, true);
        node = locate(copy, c.steps);
        cJSON *first = cJSON_GetArrayItem(node, 0);
        cJSON_AddItemToArray(node, cJSON_Duplicate(first, true));
        const std::string index = std::to_string(test::member(first, c.indexKey.c_str())->valueint);
        expect_refused(print(copy), c.path + "[" + index + "]", "a repeated index");
        cJSON_DeleteItemFromObjectCaseSensitive(first, c.indexKey.c_str());
        expect_refused(print(copy), c.path + "." + c.indexKey, "an element without its index");
        cJSON_DeleteItemFromArray(node, c.count);
        cJSON_AddStringToObject(first, c.indexKey.c_str(), "0");
        expect_refused(print(copy), c.path + "." + c.indexKey, "a text for an index");
        cJSON_Delete(copy);
    }
}

TEST_P(SetLaws, MalformedBodiesAreRefusedAsTheBody)
{
    const std::string cut = text_.substr(0, text_.size() / 2);
    const struct {
        std::string body;
        const char *why;
    } cases[] = {
        {"", "an empty body"},
        {cut, "a body cut short"},
        {"[" + text_ + "]", "an array"},
        {"17", "a number"},
        {text_ + " {}", "text after the object"},
        {"{\"a\": 1,}", "not JSON"},
    };
    for (const auto &c : cases)
        expect_refused(c.body, "body", c.why);
    // A body need not end with a NUL: only bodySize bytes are read.
    State state(page());
    std::string reply;
    std::string unterminated = text_ + "garbage past the size";
    std::vector<char> out(256);
    EXPECT_EQ(page().set(state.bytes.data(), unterminated.data(), static_cast<int32_t>(text_.size()), out.data(), 256), 0);
    // The buffer test comes first: nothing is read or written.
    const std::vector<unsigned char> before = state.bytes;
    EXPECT_EQ(page().set(state.bytes.data(), "{\"zz\": 1}", 9, nullptr, 256), -1);
    char untouched[4] = {'u', 'u', 'u', 'u'};
    EXPECT_EQ(page().set(state.bytes.data(), "{\"zz\": 1}", 9, untouched, 0), -1);
    EXPECT_EQ(untouched[0], 'u');
    EXPECT_EQ(page().set(state.bytes.data(), nullptr, 4, out.data(), 256), -1);
    EXPECT_EQ(std::string(out.data()), format_error("body"));
    EXPECT_TRUE(state.bytes == before);
}

// Random documents within the contract: every settable value drawn at random
// (integers in their type's range, texts of printable ASCII that fit), posted,
// then posted back unchanged.
TEST_P(SetLaws, SeededRandomRecordsRoundTrip)
{
    const uint32_t seed = static_cast<uint32_t>(std::hash<std::string>{}(GetParam()->name));
    for (uint32_t run = 0; run < 3; ++run) {
        std::mt19937_64 random(seed + run);
        SCOPED_TRACE("seed " + std::to_string(seed + run));
        cJSON *doc = cJSON_Duplicate(doc_, true);
        for (const Leaf &leaf : map_->leaves) {
            if (leaf.readOnly)
                continue;
            const std::string type = type_of(leaf.schema);
            cJSON *value = nullptr;
            if (type == "integer") {
                // 64-bit members keep to what a double prints exactly.
                const double low = std::max(number_at(leaf.schema, "minimum", 0), -1e15);
                const double high = std::min(number_at(leaf.schema, "maximum", 0), 1e15);
                value = cJSON_CreateNumber(std::floor(low + (high - low) * std::uniform_real_distribution<>(0, 1)(random)));
            } else if (type == "number") {
                value = cJSON_CreateNumber(static_cast<double>(static_cast<int32_t>(random() % 2000001) - 1000000) / 64);
            } else if (type == "string") {
                const size_t longest = static_cast<size_t>(number_at(leaf.schema, "maxLength", 0));
                std::string text(longest == 0 ? 0 : 1 + random() % longest, ' ');
                for (char &ch : text)
                    ch = static_cast<char>(' ' + random() % 95);
                value = cJSON_CreateString(text.c_str());
            }
            if (value != nullptr) {
                cJSON *next = with_value(doc, leaf.steps, value);
                cJSON_Delete(doc);
                doc = next;
            }
        }
        State state(page());
        std::string reply;
        ASSERT_EQ(state.set(print(doc), &reply), 0) << reply;
        const std::string rendered = state.render();
        const std::vector<unsigned char> before = state.bytes;
        ASSERT_EQ(state.set(rendered, &reply), 0) << reply;
        EXPECT_TRUE(state.bytes == before) << "a random record did not round-trip";
        cJSON_Delete(doc);
    }
}

// cJSON allocates through hooks; these fail every allocation after the first
// `budget` ones.
long budget = 0;
void *failing_malloc(size_t size) { return budget-- > 0 ? malloc(size) : nullptr; }

TEST_P(SetLaws, RunningOutOfMemoryAnywhereFailsCleanly)
{
    // Two requests: the page's own document (every value read and written),
    // and one refused at a read-only key, which builds the current document
    // to compare with.
    std::vector<std::string> bodies = {text_};
    for (const Leaf &leaf : map_->leaves) {
        if (leaf.readOnly && (type_of(leaf.schema) == "string" || type_of(leaf.schema) == "integer")) {
            const cJSON *now = locate(doc_, leaf.steps);
            cJSON *changed = with_value(doc_, leaf.steps, cJSON_IsString(now) ? cJSON_CreateString("zz") : cJSON_CreateNumber(now->valuedouble + 1));
            bodies.push_back(print(changed));
            cJSON_Delete(changed);
            break;
        }
    }
    cJSON_Hooks hooks{failing_malloc, free};
    for (const std::string &body : bodies) {
        State state(page());
        std::string reply;
        cJSON_InitHooks(&hooks);
        budget = 1L << 40;
        state.set(body, &reply);
        const long needed = (1L << 40) - budget;
        // Every allocation point in turn is the one that fails.
        for (long allowed = 0; allowed < needed; ++allowed) {
            State fresh(page());
            const std::vector<unsigned char> before = fresh.bytes;
            budget = allowed;
            ASSERT_EQ(fresh.set(body, &reply), -1) << allowed << " of " << needed << " allocations";
            ASSERT_TRUE(fresh.bytes == before) << allowed << " allocations: a failed set changed the record";
        }
        cJSON_InitHooks(nullptr);
        EXPECT_GT(needed, 0);
    }
}

// A text that fills its array cannot be posted to a settable key (which holds
// at most one byte less), but it can be repeated under a read-only key: the
// request compares it with what the page shows now, read no further than the
// array. Posting the document back without its settable texts changes
// nothing; changing one byte of a read-only text is refused at that key.
TEST_P(SetLaws, ReadOnlyTextsThatFillTheirArraysAreComparedWhole)
{
    State state(page());
    catalog_fill_texts(*GetParam(), state.bytes.data());
    const std::string rendered = state.render();
    std::vector<char> out(kBuffer);
    ASSERT_EQ(page().schema(state.bytes.data(), out.data(), kBuffer), 0);
    cJSON *doc = parse(rendered), *schema = parse(out.data());
    Map map(doc, schema);
    std::vector<const Leaf *> readOnlyTexts;
    cJSON *body = cJSON_Duplicate(doc, true);
    for (const Leaf &leaf : map.leaves) {
        if (type_of(leaf.schema) != "string")
            continue;
        if (leaf.readOnly) {
            readOnlyTexts.push_back(&leaf);
        } else {
            cJSON *parent = locate(body, std::vector<Step>(leaf.steps.begin(), leaf.steps.end() - 1));
            cJSON_DeleteItemFromObjectCaseSensitive(parent, leaf.steps.back().key.c_str());
        }
    }
    if (readOnlyTexts.empty()) {
        cJSON_Delete(body), cJSON_Delete(doc), cJSON_Delete(schema);
        GTEST_SKIP() << "no read-only text key";
    }
    const std::vector<unsigned char> before = state.bytes;
    std::string reply;
    EXPECT_EQ(state.set(print(body), &reply), 0) << reply;
    EXPECT_TRUE(state.bytes == before) << "posting the read-only texts back changed the record";
    for (size_t i : spread(readOnlyTexts.size(), kMostKeysPerPage)) {
        const Leaf &leaf = *readOnlyTexts[i];
        std::string text = locate(doc, leaf.steps)->valuestring;
        if (text.empty())
            continue;
        text.back() = text.back() == '#' ? '%' : '#';
        cJSON *changed = with_value(body, leaf.steps, cJSON_CreateString(text.c_str()));
        EXPECT_EQ(state.set(print(changed), &reply), -1) << leaf.path;
        EXPECT_EQ(reply, format_error(leaf.path));
        EXPECT_TRUE(state.bytes == before) << leaf.path << ": a refused request changed the record";
        cJSON_Delete(changed);
    }
    cJSON_Delete(body), cJSON_Delete(doc), cJSON_Delete(schema);
}

std::string entry_name(const ::testing::TestParamInfo<const CatalogEntry *> &info) { return info.param->name; }

INSTANTIATE_TEST_SUITE_P(Catalog, SetLaws, ::testing::ValuesIn(settable_pages()), entry_name);

// Every page's schema, settable or not.
std::vector<const CatalogEntry *> described_pages()
{
    std::vector<const CatalogEntry *> out;
    for (const CatalogEntry *e : catalog_entries())
        if (e->page != nullptr)
            out.push_back(e);
    return out;
}

class SchemaLaws : public ::testing::TestWithParam<const CatalogEntry *> {
protected:
    const PageOps &page() const { return *GetParam()->page; }
    int32_t schema(State &state, char *dst, int32_t size) { return page().schema(state.bytes.data(), dst, size); }
};

TEST_P(SchemaLaws, UnusableBuffersAreRefusedUntouched)
{
    State state(page());
    char byte = 'x';
    EXPECT_EQ(schema(state, nullptr, kBuffer), -1);
    EXPECT_EQ(schema(state, &byte, 0), -1);
    EXPECT_EQ(schema(state, &byte, -1), -1);
    EXPECT_EQ(byte, 'x');
}

TEST_P(SchemaLaws, ReadOnlyPagesMarkEveryKey)
{
    State state(page());
    std::vector<char> out(kBuffer);
    ASSERT_EQ(schema(state, out.data(), kBuffer), 0);
    cJSON *doc = parse(state.render());
    cJSON *described = parse(out.data());
    ASSERT_NE(described, nullptr);
    const Map map(doc, described);
    EXPECT_FALSE(map.leaves.empty());
    size_t readOnly = 0;
    for (const Leaf &leaf : map.leaves)
        readOnly += leaf.readOnly ? 1 : 0;
    if (page().set == nullptr)
        EXPECT_EQ(readOnly, map.leaves.size()) << "a status page's keys are all read-only";
    else
        EXPECT_LT(readOnly, map.leaves.size()) << "a configuration page has a key a client can set";
    cJSON_Delete(doc);
    cJSON_Delete(described);
}

TEST_P(SchemaLaws, RunningOutOfMemoryAnywhereFailsCleanly)
{
    State state(page());
    std::vector<char> out(kBuffer);
    cJSON_Hooks hooks{failing_malloc, free};
    cJSON_InitHooks(&hooks);
    budget = 1L << 40;
    const int32_t rc = schema(state, out.data(), kBuffer);
    const long needed = (1L << 40) - budget;
    // Every allocation point in turn is the one that fails; nothing leaks
    // (the sanitizer build checks that) and the buffer is not written.
    for (long allowed = 0; allowed < needed; ++allowed) {
        out[0] = 'x';
        budget = allowed;
        ASSERT_EQ(schema(state, out.data(), kBuffer), -1) << allowed << " of " << needed << " allocations";
        ASSERT_EQ(out[0], 'x') << allowed << " allocations: a failed call wrote into the buffer";
    }
    cJSON_InitHooks(nullptr);
    EXPECT_EQ(rc, 0);
    EXPECT_GT(needed, 0);
}

INSTANTIATE_TEST_SUITE_P(Catalog, SchemaLaws, ::testing::ValuesIn(described_pages()), entry_name);

} // namespace
