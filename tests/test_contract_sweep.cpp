// The serializer contract, checked for every document of the catalog: the
// buffer test, the size-1 buffer, truncation to an exact prefix with a NUL
// and nothing written past the buffer, and output that parses as JSON.
#include "catalog.h"
#include "support.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr unsigned char kUntouched = 0x5A;
constexpr size_t kGuard = 32;

class ContractSweep : public ::testing::TestWithParam<const CatalogEntry *> {
protected:
    std::string reference()
    {
        std::vector<char> buffer(test::kLargeBuffer, '\0');
        EXPECT_EQ(GetParam()->render(buffer.data(), test::kLargeBuffer), 0);
        EXPECT_LT(strlen(buffer.data()), static_cast<size_t>(test::kLargeBuffer) - 1) << "document fills the buffer";
        return buffer.data();
    }
    // What a refused buffer must return: -1, or 0 for the serializers that
    // never test their buffer.
    int32_t refused() const { return GetParam()->testsBuffer ? -1 : 0; }
};

TEST_P(ContractSweep, DocumentIsAJsonObject)
{
    const std::string text = reference();
    ASSERT_FALSE(text.empty());
    test::Json doc(text);
    ASSERT_NE(doc.root(), nullptr);
    EXPECT_TRUE(cJSON_IsObject(doc.root()));
    EXPECT_EQ(text.front(), '{');
    EXPECT_EQ(text.back(), '}');
}

TEST_P(ContractSweep, RepeatedCallsGiveTheSameText)
{
    EXPECT_EQ(reference(), reference());
}

TEST_P(ContractSweep, UnusableBuffersAreLeftUntouched)
{
    EXPECT_EQ(GetParam()->render(nullptr, 100), refused());
    for (int32_t size : {0, -1, -100, INT32_MIN}) {
        std::vector<unsigned char> buffer(kGuard, kUntouched);
        EXPECT_EQ(GetParam()->render(reinterpret_cast<char *>(buffer.data()), size), refused()) << "size " << size;
        for (size_t i = 0; i < buffer.size(); ++i)
            ASSERT_EQ(buffer[i], kUntouched) << "size " << size << ", byte " << i;
    }
}

TEST_P(ContractSweep, SizeOneHoldsOnlyTheNul)
{
    std::vector<unsigned char> buffer(kGuard, kUntouched);
    ASSERT_EQ(GetParam()->render(reinterpret_cast<char *>(buffer.data()), 1), 0);
    EXPECT_EQ(buffer[0], 0);
    for (size_t i = 1; i < buffer.size(); ++i)
        ASSERT_EQ(buffer[i], kUntouched) << "byte " << i;
}

TEST_P(ContractSweep, TruncationGivesAnExactPrefix)
{
    const std::string text = reference();
    const size_t length = text.size();
    // Every small size, then sizes spread over the whole document, then the
    // sizes around its exact length.
    std::vector<size_t> sizes;
    for (size_t s = 2; s <= 48 && s <= length + 2; ++s)
        sizes.push_back(s);
    for (size_t k = 1; k < 40; ++k)
        sizes.push_back(2 + (length * k) / 40);
    for (size_t s : {length, length + 1, length + 2})
        sizes.push_back(s);

    for (size_t size : sizes) {
        std::vector<unsigned char> buffer(size + kGuard, kUntouched);
        ASSERT_EQ(GetParam()->render(reinterpret_cast<char *>(buffer.data()), static_cast<int32_t>(size)), 0)
            << "size " << size;
        const size_t kept = std::min(length, size - 1);
        ASSERT_EQ(memcmp(buffer.data(), text.data(), kept), 0) << "size " << size;
        ASSERT_EQ(buffer[kept], 0) << "size " << size;
        for (size_t i = kept + 1; i < buffer.size(); ++i)
            ASSERT_EQ(buffer[i], kUntouched) << "size " << size << ": byte " << i << " was written";
    }
}

// cJSON allocates through hooks; these fail every allocation after the first
// `budget` ones.
long budget = 0;
void *failing_malloc(size_t size) { return budget-- > 0 ? malloc(size) : nullptr; }

TEST_P(ContractSweep, RunningOutOfMemoryFailsCleanly)
{
    // However early memory runs out, the call either fails without touching
    // the buffer or succeeds; nothing leaks (the sanitizer build checks that).
    std::vector<char> buffer(test::kLargeBuffer);
    cJSON_Hooks hooks{failing_malloc, free};
    cJSON_InitHooks(&hooks);
    budget = 1L << 40;
    GetParam()->render(buffer.data(), test::kLargeBuffer);
    const long needed = (1L << 40) - budget;
    std::vector<long> budgets;
    for (long b = 0; b < 24 && b < needed; ++b)
        budgets.push_back(b);
    for (long k = 1; k < 24; ++k)
        budgets.push_back(needed * k / 24);
    for (long allowed : budgets) {
        buffer[0] = 'x';
        budget = allowed;
        int32_t rc = GetParam()->render(buffer.data(), test::kLargeBuffer);
        if (rc == -1)
            EXPECT_EQ(buffer[0], 'x') << allowed << " allocations: a failed call wrote into the buffer";
        else
            EXPECT_EQ(rc, 0) << allowed << " allocations";
    }
    cJSON_InitHooks(nullptr);
    EXPECT_GT(needed, 0);
}

std::string entry_name(const ::testing::TestParamInfo<const CatalogEntry *> &info) { return info.param->name; }

INSTANTIATE_TEST_SUITE_P(Catalog, ContractSweep, ::testing::ValuesIn(catalog_entries()), entry_name);

TEST(Catalog, NamesAreUniqueAndDescribed)
{
    const std::vector<const CatalogEntry *> entries = catalog_entries();
    for (size_t i = 0; i < entries.size(); ++i) {
        EXPECT_GT(strlen(entries[i]->description), 10u) << entries[i]->name;
        for (size_t j = i + 1; j < entries.size(); ++j)
            EXPECT_STRNE(entries[i]->name, entries[j]->name);
    }
}

} // namespace
