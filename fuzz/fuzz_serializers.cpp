// Every serializer and schema function over arbitrary record bytes (texts
// without their NUL, counts and selectors of any value), the page picked by
// the input's first line. Nothing may be read or written outside the record:
// the sanitizers watch, and a state sits in a buffer of exactly its size.
// Built a second time with MW_FUZZ_PAGES="get_cap_" for the capability
// documents alone, whose option texts are split in place.
#include "fuzz_common.h"

#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
#ifdef MW_FUZZ_PAGES
    static const std::vector<const CatalogEntry *> all = fuzz::pages(false, MW_FUZZ_PAGES);
#else
    static const std::vector<const CatalogEntry *> all = fuzz::pages(false);
#endif
    if (size == 0 || all.empty())
        return 0;
    const uint8_t *bytes = nullptr;
    size_t count = 0;
    const CatalogEntry *entry = fuzz::pick(all, data, size, &bytes, &count);
    std::vector<unsigned char> state;
    fuzz::fill_state(*entry, state, bytes, count);
    static std::vector<char> out(1 << 22);
    const int32_t rc = entry->page->render(state.data(), out.data(), static_cast<int32_t>(out.size()));
    if (rc != 0 && rc != -1)
        abort();
    if (rc == 0 && memchr(out.data(), '\0', out.size()) == nullptr)
        abort();
    fuzz::fill_state(*entry, state, bytes, count);
    const int32_t schema = entry->page->schema(state.data(), out.data(), static_cast<int32_t>(out.size()));
    if (schema != 0 && schema != -1)
        abort();
    return 0;
}
