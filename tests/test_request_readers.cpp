// The request readers, row by row: NULL arguments, absent key, wrong type,
// success, and the empty-string and integer-array cases.
#include "support.h"

#include <cstring>

namespace {

// A parsed request, deleted with the fixture.
class Request : public ::testing::Test {
protected:
    void parse(const char *text)
    {
        cJSON_Delete(root_);
        root_ = cJSON_Parse(text);
        ASSERT_NE(root_, nullptr) << text;
    }
    void TearDown() override { cJSON_Delete(root_); }
    cJSON *root_ = nullptr;
};

constexpr int32_t kUnset = -77;

// ---- int and double ----

TEST_F(Request, IntRows)
{
    parse(R"({"n": 42, "neg": -7, "f": 3.9, "s": "5", "a": [1], "o": {}, "t": true, "z": null})");
    const struct {
        const char *key;
        int32_t rc;
        int32_t flag;
        int32_t out;
    } rows[] = {
        {"n", 0, 0, 42},
        {"N", 0, 0, 42}, // keys compare case-insensitively
        {"neg", 0, 0, -7},
        {"f", 0, 0, 3},  // the double cut toward zero
        {"s", 0, 1, kUnset},
        {"a", 0, 1, kUnset},
        {"o", 0, 1, kUnset},
        {"t", 0, 1, kUnset},
        {"z", 0, 1, kUnset},
        {"absent", -1, kUnset, kUnset},
    };
    for (const auto &row : rows) {
        int32_t out = kUnset, flag = kUnset;
        EXPECT_EQ(get_json_section_type_int(root_, row.key, &out, &flag), row.rc) << row.key;
        EXPECT_EQ(flag, row.flag) << row.key;
        EXPECT_EQ(out, row.out) << row.key;
    }
}

TEST_F(Request, DoubleRows)
{
    parse(R"({"d": 2.75, "i": -3, "s": "2.75"})");
    const struct {
        const char *key;
        int32_t rc;
        int32_t flag;
        double out;
    } rows[] = {
        {"d", 0, 0, 2.75},
        {"i", 0, 0, -3.0},
        {"s", 0, 1, -1.5},
        {"absent", -1, kUnset, -1.5},
    };
    for (const auto &row : rows) {
        double out = -1.5;
        int32_t flag = kUnset;
        EXPECT_EQ(get_json_section_type_double(root_, row.key, &out, &flag), row.rc) << row.key;
        EXPECT_EQ(flag, row.flag) << row.key;
        EXPECT_EQ(out, row.out) << row.key;
    }
}

TEST_F(Request, NumberReadersRefuseNullArguments)
{
    parse(R"({"n": 1})");
    int32_t out = kUnset, flag = kUnset;
    double d = 0;
    EXPECT_EQ(get_json_section_type_int(nullptr, "n", &out, &flag), -1);
    EXPECT_EQ(get_json_section_type_int(root_, nullptr, &out, &flag), -1);
    EXPECT_EQ(get_json_section_type_int(root_, "n", nullptr, &flag), -1);
    EXPECT_EQ(get_json_section_type_double(root_, "n", nullptr, &flag), -1);
    EXPECT_EQ(get_json_section_type_double(nullptr, "n", &d, &flag), -1);
    EXPECT_EQ(flag, kUnset);
    EXPECT_EQ(out, kUnset);
}

// ---- string ----

TEST_F(Request, StringRows)
{
    parse(R"({"name": "Gate North", "empty": "", "seven": 7, "list": ["a"], "long": "abcdefghijklmnopqrst"})");
    const struct {
        const char *key;
        int32_t rc;
        int32_t flag;
        const char *out;
    } rows[] = {
        {"name", 1, 0, "Gate North"},
        {"empty", 0, kUnset, ""},     // flag untouched, out emptied
        {"seven", 1, 1, ""},          // wrong type: out emptied, flag set
        {"list", 1, 1, ""},
        {"long", 1, 0, "abcdefghijklmno"}, // cut to the 16-byte buffer
        {"absent", -1, kUnset, "unchanged"},
    };
    for (const auto &row : rows) {
        char out[16] = "unchanged";
        int32_t flag = kUnset;
        EXPECT_EQ(get_json_section_type_string(root_, row.key, out, sizeof out, &flag), row.rc) << row.key;
        EXPECT_EQ(flag, row.flag) << row.key;
        EXPECT_STREQ(out, row.out) << row.key;
    }
}

TEST_F(Request, StringNodeWithoutText)
{
    // A string node whose text is missing (only a hand-built tree can hold one).
    parse("{}");
    cJSON *node = cJSON_CreateString("x");
    cJSON_free(node->valuestring);
    node->valuestring = nullptr;
    cJSON_AddItemToObject(root_, "broken", node);
    char out[8] = "keep";
    int32_t flag = kUnset;
    EXPECT_EQ(get_json_section_type_string(root_, "broken", out, sizeof out, &flag), -1);
    EXPECT_STREQ(out, "keep");
    EXPECT_EQ(flag, kUnset);
}

TEST_F(Request, StringReaderRefusesNullArguments)
{
    parse(R"({"s": "x"})");
    char out[8] = "keep";
    int32_t flag = kUnset;
    EXPECT_EQ(get_json_section_type_string(nullptr, "s", out, sizeof out, &flag), -1);
    EXPECT_EQ(get_json_section_type_string(root_, nullptr, out, sizeof out, &flag), -1);
    EXPECT_EQ(get_json_section_type_string(root_, "s", nullptr, 8, &flag), -1);
    EXPECT_STREQ(out, "keep");
    EXPECT_EQ(flag, kUnset);
}

// ---- integer array ----

TEST_F(Request, IntArrayRows)
{
    parse(R"({"mixed": [1, 2, "x"], "nums": [5, -6, 7.8], "empty": [], "notArray": {"a": 1}, "n": 4})");
    const struct {
        const char *key;
        int32_t max;
        int32_t rc;
        int32_t flag;
        int32_t out[3];
    } rows[] = {
        {"mixed", 2, 1, 0, {1, 2, kUnset}},        // the string lies past max: never read
        {"mixed", 3, -1, 1, {1, 2, kUnset}},       // stops at the string, keeps what it stored
        {"nums", 3, 1, 0, {5, -6, 7}},
        {"nums", 1, 1, 0, {5, kUnset, kUnset}},
        {"nums", 0, 1, 0, {kUnset, kUnset, kUnset}},
        {"empty", 3, 1, 0, {kUnset, kUnset, kUnset}},
        {"notArray", 3, -1, 1, {kUnset, kUnset, kUnset}},
        {"n", 3, -1, 1, {kUnset, kUnset, kUnset}},
        {"absent", 3, -1, 1, {kUnset, kUnset, kUnset}},
    };
    for (const auto &row : rows) {
        int32_t out[3] = {kUnset, kUnset, kUnset};
        int32_t flag = kUnset;
        EXPECT_EQ(get_json_section_type_int_array(root_, row.key, out, row.max, &flag), row.rc)
            << row.key << " max " << row.max;
        EXPECT_EQ(flag, row.flag) << row.key << " max " << row.max;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(out[i], row.out[i]) << row.key << " max " << row.max << " [" << i << "]";
    }
}

TEST_F(Request, IntArrayRefusesNullArgumentsWithoutTheFlag)
{
    parse(R"({"a": [1]})");
    int32_t out[1] = {kUnset};
    int32_t flag = kUnset;
    EXPECT_EQ(get_json_section_type_int_array(nullptr, "a", out, 1, &flag), -1);
    EXPECT_EQ(get_json_section_type_int_array(root_, nullptr, out, 1, &flag), -1);
    EXPECT_EQ(get_json_section_type_int_array(root_, "a", nullptr, 1, &flag), -1);
    EXPECT_EQ(flag, kUnset);
    EXPECT_EQ(out[0], kUnset);
}

// ---- element finders and member lookup ----

TEST_F(Request, FindByIndex)
{
    parse(R"({"list": [{"id": "text"}, {"other": 1}, {"id": 2, "tag": "first"}, {"id": 2, "tag": "second"}],
              "byKey": {"a": {"id": 9}}, "empty": []})");
    const struct {
        const char *arrayKey;
        const char *memberKey;
        int32_t index;
        int position; // -1: no match
    } rows[] = {
        {"list", "id", 0, 0},     // a present member that is not a number counts as 0
        {"list", "id", 2, 2},     // the first match in array order
        {"list", "id", 1, -1},    // an element without the member is skipped
        {"list", "ID", 2, 2},     // member keys compare case-insensitively
        {"empty", "id", 0, -1},
        {"absent", "id", 0, -1},
    };
    for (const auto &row : rows) {
        cJSON *found = get_json_array_struct_from_index(root_, row.arrayKey, row.memberKey, row.index);
        if (row.position < 0)
            EXPECT_EQ(found, nullptr) << row.arrayKey << "/" << row.memberKey << " " << row.index;
        else
            EXPECT_EQ(found, cJSON_GetArrayItem(test::member(root_, row.arrayKey), row.position))
                << row.arrayKey << "/" << row.memberKey << " " << row.index;
    }
    // An object under the key is walked like an array.
    EXPECT_EQ(get_json_array_struct_from_index(root_, "byKey", "id", 9),
              test::member(test::member(root_, "byKey"), "a"));
    EXPECT_EQ(get_json_array_struct_from_index(nullptr, "list", "id", 2), nullptr);
    EXPECT_EQ(get_json_array_struct_from_index(root_, nullptr, "id", 2), nullptr);
    EXPECT_EQ(get_json_array_struct_from_index(root_, "list", nullptr, 2), nullptr);
}

TEST_F(Request, FindByString)
{
    parse(R"({"users": [{"name": "guest"}, {"level": 1}, {"name": "admin", "n": 1}, {"name": "admin", "n": 2}],
              "empty": []})");
    cJSON *users = cJSON_GetObjectItem(root_, "users");
    EXPECT_EQ(get_json_array_struct_from_string(root_, "users", "name", "admin"), cJSON_GetArrayItem(users, 2));
    EXPECT_EQ(get_json_array_struct_from_string(root_, "users", "name", "guest"), cJSON_GetArrayItem(users, 0));
    EXPECT_EQ(get_json_array_struct_from_string(root_, "users", "name", "Admin"), nullptr); // exact text
    EXPECT_EQ(get_json_array_struct_from_string(root_, "empty", "name", "admin"), nullptr);
    EXPECT_EQ(get_json_array_struct_from_string(root_, "absent", "name", "admin"), nullptr);
    EXPECT_EQ(get_json_array_struct_from_string(nullptr, "users", "name", "admin"), nullptr);
    EXPECT_EQ(get_json_array_struct_from_string(root_, "users", nullptr, "admin"), nullptr);
}

TEST_F(Request, MemberLookup)
{
    parse(R"({"port": 80})");
    EXPECT_EQ(get_json_object(root_, "port"), root_->child);
    EXPECT_EQ(get_json_object(root_, "PORT"), root_->child);
    EXPECT_EQ(get_json_object(root_, "absent"), nullptr);
    EXPECT_EQ(get_json_object(nullptr, "port"), nullptr);
    EXPECT_EQ(get_json_object(root_, nullptr), nullptr);
}

} // namespace
