/*
 * support.h - what the tests share: rendering into a large buffer, parsing
 * the result, and comparing an object's members with an expectation written
 * as a table, key by key, in order.
 */
#ifndef MIDDLEWARE_TEST_SUPPORT_H
#define MIDDLEWARE_TEST_SUPPORT_H

#include "middleware.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace test {

constexpr int32_t kLargeBuffer = 4 * 1024 * 1024;

// Calls `serialize(dst, dstSize)` with a large buffer; the text it wrote.
// A non-zero return fails the test.
template <typename Serialize>
std::string rendered(Serialize &&serialize)
{
    std::vector<char> buffer(kLargeBuffer, '\0');
    int32_t rc = serialize(buffer.data(), kLargeBuffer);
    EXPECT_EQ(rc, 0);
    return std::string(buffer.data());
}

// A parsed document, deleted with the object.
class Json {
public:
    explicit Json(const std::string &text);
    ~Json();
    Json(const Json &) = delete;
    Json &operator=(const Json &) = delete;
    const cJSON *root() const { return root_; }
    // The member under key (exact, case-sensitive), or nullptr.
    const cJSON *operator[](const char *key) const;

private:
    cJSON *root_;
};

// The member under key in object, compared exactly (cJSON's own lookup
// ignores case), or nullptr.
const cJSON *member(const cJSON *object, const char *key);
// Element i of an array, or nullptr.
const cJSON *element(const cJSON *array, int i);
// The keys of an object, in order.
std::vector<std::string> keys(const cJSON *object);

// One expected member: its key, its JSON type and its value.
struct Expected {
    enum class Kind { Number, String, Object, Array };
    std::string key;
    Kind kind;
    double number = 0;
    std::string text;
};
inline Expected N(const char *key, double value) { return {key, Expected::Kind::Number, value, {}}; }
inline Expected S(const char *key, const std::string &value) { return {key, Expected::Kind::String, 0, value}; }
inline Expected O(const char *key) { return {key, Expected::Kind::Object, 0, {}}; }
inline Expected A(const char *key) { return {key, Expected::Kind::Array, 0, {}}; }

// Checks that `object` holds exactly these members, in this order, with these
// types and values (objects and arrays: type only). Reports every mismatch.
void expect_members(const cJSON *object, const std::vector<Expected> &expected);

} // namespace test

#endif /* MIDDLEWARE_TEST_SUPPORT_H */
