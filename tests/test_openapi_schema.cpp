// The schema of every state (tools/openapi/page_schema.cpp) over pages made
// up for the purpose: the sample's schema is widened by the rules a client
// relies on.
#include "openapi.h"

#include <gtest/gtest.h>

#include <string>

namespace {

cJSON *member(const cJSON *o, const char *k) { return cJSON_GetObjectItemCaseSensitive(o, k); }

std::string printed(const cJSON *node)
{
    char *t = cJSON_PrintUnformatted(node);
    std::string s = t != nullptr ? t : "null";
    cJSON_free(t);
    return s;
}

int32_t copy_out(const char *text, char *dst, int32_t n)
{
    if (dst == nullptr || n < 1 || static_cast<int32_t>(strlen(text)) >= n)
        return -1;
    memcpy(dst, text, strlen(text) + 1);
    return 0;
}

// A page whose state is its argument alone; its schema function prints the
// schema of the state as the table below says.
struct Selector {
    int32_t value;
};
const char *current_schema = "";
int32_t (*schema_by_value)(int32_t value, char *dst, int32_t n) = nullptr;

void initial(void *state) { static_cast<Selector *>(state)->value = 1; }
int32_t render(void *, char *dst, int32_t n) { return copy_out("{}", dst, n); }
int32_t schema(void *state, char *dst, int32_t n)
{
    if (schema_by_value != nullptr)
        return schema_by_value(static_cast<Selector *>(state)->value, dst, n);
    return copy_out(current_schema, dst, n);
}
int32_t *argument(void *state) { return &static_cast<Selector *>(state)->value; }

cJSON *widened(const char *sampleSchema)
{
    current_schema = sampleSchema;
    schema_by_value = nullptr;
    static const PageOps ops{sizeof(Selector), initial, render, schema, nullptr};
    const CatalogEntry entry{"get_made_up_json", "a page made up for the test", nullptr, true, &ops};
    return openapi::page_document_schema(entry);
}

const char *kObject = R"({"type":"object","properties":{%s},"required":[%s],"additionalProperties":false})";

std::string object(const std::string &properties, const std::string &required)
{
    std::string out = kObject;
    out.replace(out.find("%s"), 2, properties);
    out.replace(out.find("%s"), 2, required);
    return out;
}

TEST(OpenApiSchema, AListTakesAnyLengthOfElementsShapedLikeAllOfTheSamples)
{
    const std::string element0 =
        object(R"("index":{"type":"integer","const":0},"name":{"type":"string","maxLength":7})", R"("index","name")");
    const std::string element1 = object(
        R"("index":{"type":"integer","const":1},"name":{"type":"string","maxLength":31},"extra":{"type":"integer","minimum":0,"maximum":9})",
        R"("index","name","extra")");
    const std::string sample = object(R"("list":{"type":"array","prefixItems":[)" + element0 + "," + element1 +
                                          R"(],"items":false,"minItems":2,"maxItems":2})",
                                      R"("list")");
    cJSON *s = widened(sample.c_str());
    const cJSON *list = member(member(s, "properties"), "list");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(member(list, "prefixItems"), nullptr);
    EXPECT_EQ(member(list, "minItems"), nullptr);
    EXPECT_EQ(member(list, "maxItems"), nullptr);
    const cJSON *items = member(list, "items");
    ASSERT_TRUE(cJSON_IsObject(items));
    const cJSON *index = member(member(items, "properties"), "index");
    EXPECT_EQ(printed(index), R"({"type":"integer"})") << "any index, not only the sample's";
    EXPECT_EQ(member(member(member(items, "properties"), "name"), "maxLength")->valueint, 31);
    EXPECT_NE(member(member(items, "properties"), "extra"), nullptr) << "a key of either element is allowed";
    EXPECT_EQ(printed(member(items, "required")), R"(["index","name"])") << "only keys both elements require";
    EXPECT_TRUE(cJSON_IsFalse(member(items, "additionalProperties")));
    cJSON_Delete(s);
}

TEST(OpenApiSchema, AWeekKeepsItsSevenDaysInPlace)
{
    std::string days;
    for (int d = 0; d < 7; ++d)
        days += (d ? "," : "") + object(R"("scheduleIndex":{"type":"integer","const":)" + std::to_string(d) +
                                            R"(},"schedule":{"type":"string","maxLength":255})",
                                        R"("scheduleIndex","schedule")");
    const std::string week = R"({"type":"array","prefixItems":[)" + days + R"(],"items":false,"minItems":7,"maxItems":7})";
    const std::string sample = object(R"("scheduleList":)" + week, R"("scheduleList")");
    cJSON *s = widened(sample.c_str());
    const cJSON *list = member(member(s, "properties"), "scheduleList");
    EXPECT_EQ(cJSON_GetArraySize(member(list, "prefixItems")), 7);
    EXPECT_EQ(member(list, "maxItems")->valueint, 7);
    EXPECT_EQ(member(member(member(cJSON_GetArrayItem(member(list, "prefixItems"), 3), "properties"), "scheduleIndex"),
                     "const")
                  ->valueint,
              3);
    cJSON_Delete(s);
}

TEST(OpenApiSchema, NumberedKeysBecomePatternsAndOthersStay)
{
    const std::string sample = object(
        R"("preset_1":{"type":"string"},"preset_2":{"type":"string"},"fish_0_speed_3":{"type":"integer"},"fish_1_speed_0":{"type":"integer"},"mode_1":{"type":"integer"},"h264":{"type":"integer"})",
        R"("preset_1","preset_2","fish_0_speed_3","fish_1_speed_0","mode_1","h264")");
    cJSON *s = widened(sample.c_str());
    const cJSON *patterns = member(s, "patternProperties");
    ASSERT_NE(patterns, nullptr);
    EXPECT_NE(member(patterns, "^preset_-?[0-9]+$"), nullptr);
    EXPECT_NE(member(patterns, "^fish_-?[0-9]+_speed_-?[0-9]+$"), nullptr);
    EXPECT_EQ(cJSON_GetArraySize(patterns), 2);
    EXPECT_EQ(printed(member(s, "required")), R"(["mode_1","h264"])") << "a lone numbered key and others stay";
    EXPECT_NE(member(member(s, "properties"), "mode_1"), nullptr);
    EXPECT_EQ(member(member(s, "properties"), "preset_1"), nullptr);
    cJSON_Delete(s);
}

// The schemas of a selector page: -1 every type, 0..2 one type each; 3 has
// no slot and is refused.
int32_t per_type(int32_t value, char *dst, int32_t n)
{
    const char *names[] = {"motion", "tamper", "audio"};
    const std::string one = object(R"("on":{"type":"integer","minimum":0,"maximum":1})", R"("on")");
    if (value > 2)
        return -1;
    std::string properties, required;
    for (int t = 0; t < 3; ++t) {
        if (value >= 0 && t != value)
            continue;
        properties += std::string(properties.empty() ? "" : ",") + "\"" + names[t] + "\":" + one;
        required += std::string(required.empty() ? "" : ",") + "\"" + names[t] + "\"";
    }
    return copy_out(object(properties, required).c_str(), dst, n);
}

TEST(OpenApiSchema, APerEventTypePageAllowsEveryTypeAndRequiresNone)
{
    schema_by_value = per_type;
    static const PageOps ops{sizeof(Selector), initial, render, schema, nullptr, argument, "eventType", -1, 3};
    const CatalogEntry entry{"get_made_up_json", "made up", nullptr, true, &ops};
    cJSON *s = openapi::page_document_schema(entry);
    schema_by_value = nullptr;
    ASSERT_NE(s, nullptr);
    for (const char *type : {"motion", "tamper", "audio"})
        EXPECT_NE(member(member(s, "properties"), type), nullptr) << type;
    EXPECT_EQ(printed(member(s, "required")), "[]");
    cJSON_Delete(s);
}

// A count page: the list holds `value` elements (0..3), each numbered.
int32_t counted(int32_t value, char *dst, int32_t n)
{
    std::string elements;
    for (int i = 0; i < value; ++i)
        elements += (i ? "," : "") + object(R"("index":{"type":"integer","const":)" + std::to_string(i) +
                                                R"(},"level":{"type":"integer","minimum":)" + std::to_string(-i) +
                                                R"(,"maximum":)" + std::to_string(10 * i) + "}",
                                            R"("index","level")");
    std::string list = R"({"type":"array",)";
    if (value > 0)
        list += R"("prefixItems":[)" + elements + "],";
    list += R"("items":false,"minItems":)" + std::to_string(value) + R"(,"maxItems":)" + std::to_string(value) + "}";
    return copy_out(object(R"("list":)" + list, R"("list")").c_str(), dst, n);
}

TEST(OpenApiSchema, RangesCoverEveryArgumentsSchema)
{
    schema_by_value = counted;
    static const PageOps ops{sizeof(Selector), initial, render, schema, nullptr, argument, "count", 0, 3};
    const CatalogEntry entry{"get_made_up_json", "made up", nullptr, true, &ops};
    cJSON *s = openapi::page_document_schema(entry);
    schema_by_value = nullptr;
    ASSERT_NE(s, nullptr);
    const cJSON *level = member(member(member(member(member(s, "properties"), "list"), "items"), "properties"), "level");
    EXPECT_EQ(member(level, "minimum")->valueint, -2);
    EXPECT_EQ(member(level, "maximum")->valueint, 20);
    cJSON_Delete(s);
}

TEST(OpenApiSchema, ResourceNamesAreThePathsOfThePages)
{
    const struct {
        const char *name, *resource;
    } cases[] = {
        {"get_ptz_presets_json", "ptz_presets"},
        {"ware_get_auto_export_json", "auto_export"},
        {"get_system_date_time_json", "system_date_time"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(openapi::resource_of(c.name), c.resource) << c.name;
}

} // namespace
