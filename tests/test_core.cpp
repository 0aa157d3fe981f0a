// The serializer contract as the reply envelopes show it, the format test and
// the file reader.
#include "support.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

// The test program stands in for the platform allocator, so that it can see
// what the library asks of it and make it fail. It takes precedence over the
// host stand-in library.
namespace {
struct AllocatorLog {
    size_t size = 0;
    std::string file;
    int32_t line = 0;
    int calls = 0;
    bool fail = false;
} allocator;
} // namespace

extern "C" void *__zk_malloc(size_t size, const char *sourceFile, int32_t line)
{
    allocator.size = size;
    allocator.file = sourceFile;
    allocator.line = line;
    ++allocator.calls;
    return allocator.fail ? nullptr : malloc(size);
}

namespace {

// ---- reply envelopes: the formatted style of the whole library ----

struct EnvelopeCase {
    const char *name;
    int32_t (*render)(char *, int32_t);
    const char *text;
};

int32_t format_error_device_name(char *dst, int32_t n) { return zk_return_format_error_json(dst, n, "deviceName"); }

TEST(Envelopes, ExactText)
{
    // One member a line, indented by a tab, a tab between the colon and the value.
    const EnvelopeCase cases[] = {
        {"empty", zk_return_get_request_empty_json, "{\n}"},
        {"succeed", zk_return_set_request_succeed_json, "{\n\t\"setState\":\t\"succeed\"\n}"},
        {"failed", zk_return_set_request_faild_json, "{\n\t\"setState\":\t\"failed\"\n}"},
        {"format error", format_error_device_name, "{\n\t\"deviceName\":\t\"format error\"\n}"},
    };
    for (const EnvelopeCase &c : cases)
        EXPECT_EQ(test::rendered(c.render), c.text) << c.name;
}

TEST(Envelopes, FormatErrorNamesTheCallersKey)
{
    const std::string text =
        test::rendered([](char *dst, int32_t n) { return zk_return_format_error_json(dst, n, "ptzSpeed"); });
    test::Json doc(text);
    test::expect_members(doc.root(), {test::S("ptzSpeed", "format error")});
}

TEST(Envelopes, CutToTheBuffer)
{
    // Nine bytes hold the first eight characters and the NUL.
    char buffer[16];
    memset(buffer, 'x', sizeof buffer);
    ASSERT_EQ(zk_return_set_request_faild_json(buffer, 9), 0);
    EXPECT_STREQ(buffer, "{\n\t\"setS");
    EXPECT_EQ(buffer[9], 'x');
}

TEST(Envelopes, RefusedBuffers)
{
    char buffer[8] = "keep";
    EXPECT_EQ(zk_return_set_request_succeed_json(nullptr, 64), -1);
    EXPECT_EQ(zk_return_set_request_succeed_json(buffer, 0), -1);
    EXPECT_EQ(zk_return_format_error_json(buffer, -5, "deviceName"), -1);
    EXPECT_STREQ(buffer, "keep");
}

// ---- the format test ----

TEST(FormatTest, SubstringAnywhereCaseSensitive)
{
    const struct {
        const char *query;
        int32_t expected;
    } cases[] = {
        {"a=1&format=json", 1},
        {"format=json", 1},
        {"format=json&a=1", 1},
        {"xformat=jsonp", 1}, // inside a longer word matches too
        {"format=JSON", 0},
        {"Format=json", 0},
        {"format=jso", 0},
        {"format = json", 0},
        {"", 0},
    };
    for (const auto &c : cases)
        EXPECT_EQ(zk_check_format_json(c.query), c.expected) << "\"" << c.query << "\"";
}

// ---- the file reader ----

class FileReader : public ::testing::Test {
protected:
    void SetUp() override
    {
        allocator = AllocatorLog{};
        file_ = tmpfile();
        ASSERT_NE(file_, nullptr);
        fd_ = fileno(file_);
        ASSERT_EQ(write(fd_, "0123456789", 10), 10); // the position is now at the end
    }
    void TearDown() override { fclose(file_); }
    FILE *file_ = nullptr;
    int fd_ = -1;
};

TEST_F(FileReader, ReadsFromTheStartWhereverThePositionStood)
{
    char *text = getJsonBuff(fd_, 10);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(memcmp(text, "0123456789", 11), 0); // ten bytes and the NUL
    EXPECT_EQ(allocator.size, 11u);
    EXPECT_EQ(allocator.file, "middleware.c");
    EXPECT_EQ(allocator.line, 112);
    free(text);
}

TEST_F(FileReader, ReadsOnlyTheLengthAsked)
{
    ASSERT_EQ(lseek(fd_, 4, SEEK_SET), 4);
    char *text = getJsonBuff(fd_, 4);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, "0123");
    free(text);
}

TEST_F(FileReader, RefusedArguments)
{
    EXPECT_EQ(getJsonBuff(0, 10), nullptr);   // descriptor 0 means "no file"
    EXPECT_EQ(getJsonBuff(fd_, 0), nullptr);
    EXPECT_EQ(getJsonBuff(fd_, -1), nullptr); // cannot describe a buffer
    EXPECT_EQ(allocator.calls, 0);
}

TEST_F(FileReader, FailedAllocation)
{
    allocator.fail = true;
    EXPECT_EQ(getJsonBuff(fd_, 10), nullptr);
    EXPECT_EQ(allocator.calls, 1);
}

// ---- node building ----

TEST(NodeBuilding, ChildHangsUnderItsKeyInOrder)
{
    cJSON *root = cJSON_CreateObject();
    cJSON *object = nullptr;
    cJSON *list = nullptr;
    EXPECT_EQ(json_set_element_struct(root, &object, "first"), 1);
    EXPECT_EQ(json_set_array_struct(root, &list, "second"), 1);
    ASSERT_NE(object, nullptr);
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(cJSON_IsObject(object));
    EXPECT_TRUE(cJSON_IsArray(list));
    EXPECT_EQ(test::member(root, "first"), object);
    EXPECT_EQ(test::member(root, "second"), list);
    EXPECT_EQ(test::keys(root), (std::vector<std::string>{"first", "second"}));
    cJSON_Delete(root);
}

TEST(NodeBuilding, ANodeThatCannotAttachIsReleased)
{
    // No parent to own it: nothing may be left behind (the sanitizer build
    // reports the leak otherwise), and the caller gets a NULL child.
    cJSON *child = reinterpret_cast<cJSON *>(&child);
    EXPECT_EQ(json_set_element_struct(nullptr, &child, "orphan"), -1);
    EXPECT_EQ(child, nullptr);
    child = reinterpret_cast<cJSON *>(&child);
    EXPECT_EQ(json_set_array_struct(nullptr, &child, "orphan"), -1);
    EXPECT_EQ(child, nullptr);
}

} // namespace
