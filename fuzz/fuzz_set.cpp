// Set requests over arbitrary bodies, the page picked by the input's first
// line ("NAME", or "NAME full" for a state whose texts fill their arrays): a
// refused request leaves the record byte-identical; an accepted one renders,
// and posting that rendering back changes nothing (from a state with full
// texts it may be refused, since a settable text holds one byte less, but
// still changes nothing).
#include "fuzz_common.h"

#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const std::vector<const CatalogEntry *> settable = fuzz::pages(true);
    if (size == 0 || settable.empty())
        return 0;
    const uint8_t *body = nullptr;
    size_t bodySize = 0;
    bool fullTexts = false;
    const CatalogEntry *entry = fuzz::pick(settable, data, size, &body, &bodySize, &fullTexts);
    const PageOps &page = *entry->page;
    std::vector<unsigned char> state(page.stateSize);
    page.initial(state.data());
    if (fullTexts)
        catalog_fill_texts(*entry, state.data());
    const std::vector<unsigned char> before = state;
    // The body is handed over without a NUL after it: exactly bodySize bytes.
    std::vector<char> copy(body, body + bodySize);
    static std::vector<char> reply(1 << 16), doc(1 << 22);
    const int32_t rc = page.set(state.data(), copy.data(), static_cast<int32_t>(copy.size()), reply.data(),
                                static_cast<int32_t>(reply.size()));
    if (rc != 0) {
        if (rc != -1 || state != before)
            abort(); // a refused request must leave the record as it was
        return 0;
    }
    if (page.render(state.data(), doc.data(), static_cast<int32_t>(doc.size())) != 0)
        abort();
    const std::vector<unsigned char> accepted = state;
    const int32_t again = page.set(state.data(), doc.data(), static_cast<int32_t>(strlen(doc.data())), reply.data(),
                                   static_cast<int32_t>(reply.size()));
    if ((again != 0 && !fullTexts) || state != accepted)
        abort(); // the page's own rendering must apply and change nothing
    return 0;
}
