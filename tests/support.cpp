#include "support.h"

#include <cstring>
#include <sstream>

namespace test {

Json::Json(const std::string &text) : root_(cJSON_Parse(text.c_str()))
{
    EXPECT_NE(root_, nullptr) << "not JSON:\n" << text;
}

Json::~Json() { cJSON_Delete(root_); }

const cJSON *Json::operator[](const char *key) const { return member(root_, key); }

const cJSON *member(const cJSON *object, const char *key)
{
    if (object == nullptr)
        return nullptr;
    for (const cJSON *child = object->child; child != nullptr; child = child->next)
        if (child->string != nullptr && strcmp(child->string, key) == 0)
            return child;
    return nullptr;
}

const cJSON *element(const cJSON *array, int i)
{
    if (array == nullptr || !cJSON_IsArray(array))
        return nullptr;
    return cJSON_GetArrayItem(array, i);
}

std::vector<std::string> keys(const cJSON *object)
{
    std::vector<std::string> out;
    if (object != nullptr)
        for (const cJSON *child = object->child; child != nullptr; child = child->next)
            out.push_back(child->string != nullptr ? child->string : "");
    return out;
}

namespace {

const char *kind_name(Expected::Kind kind)
{
    switch (kind) {
    case Expected::Kind::Number: return "number";
    case Expected::Kind::String: return "string";
    case Expected::Kind::Object: return "object";
    case Expected::Kind::Array: return "array";
    }
    return "?";
}

bool has_kind(const cJSON *node, Expected::Kind kind)
{
    switch (kind) {
    case Expected::Kind::Number: return cJSON_IsNumber(node);
    case Expected::Kind::String: return cJSON_IsString(node);
    case Expected::Kind::Object: return cJSON_IsObject(node);
    case Expected::Kind::Array: return cJSON_IsArray(node);
    }
    return false;
}

} // namespace

void expect_members(const cJSON *object, const std::vector<Expected> &expected)
{
    ASSERT_NE(object, nullptr);
    ASSERT_TRUE(cJSON_IsObject(object));
    const cJSON *child = object->child;
    size_t place = 0;
    for (const Expected &want : expected) {
        ++place;
        if (child == nullptr) {
            ADD_FAILURE() << "member " << place << " \"" << want.key << "\" is missing (the object ends early)";
            return;
        }
        const std::string got = child->string != nullptr ? child->string : "";
        EXPECT_EQ(got, want.key) << "member " << place;
        if (!has_kind(child, want.kind)) {
            ADD_FAILURE() << "member " << place << " \"" << want.key << "\" is not a " << kind_name(want.kind);
        } else if (want.kind == Expected::Kind::Number) {
            EXPECT_EQ(child->valuedouble, want.number) << "member " << place << " \"" << want.key << "\"";
        } else if (want.kind == Expected::Kind::String) {
            EXPECT_EQ(std::string(child->valuestring), want.text) << "member " << place << " \"" << want.key << "\"";
        }
        child = child->next;
    }
    size_t extra = 0;
    std::ostringstream names;
    for (; child != nullptr; child = child->next, ++extra)
        names << " \"" << (child->string != nullptr ? child->string : "") << "\"";
    EXPECT_EQ(extra, 0u) << "unexpected members after the last expected one:" << names.str();
}

} // namespace test
