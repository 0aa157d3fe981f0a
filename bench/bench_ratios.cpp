/*
 * What the library adds to cJSON, document by document: the serializer's
 * time beside cJSON_Print alone on an equal tree (the serializer's output
 * parsed back), and the set function's time beside cJSON_Parse alone of the
 * same body (the page's own document). Ratios per document, then the catalog's
 * totals (sum over sum) and median. Beside them, what one render and one set
 * allocate through cJSON's hooks (which every allocation of the library goes
 * through): how many allocations, and the most bytes held at once.
 *
 *   middleware_ratios [--filter TEXT] [--quick]
 */
#include "catalog.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int32_t kBuffer = 4 * 1024 * 1024;

double rounds_ms = 4.0; // each round runs for at least this long
int rounds = 5;         // the best round counts

// Nanoseconds per call of `f`: the best of several rounds.
template <typename F>
double time_ns(F &&f)
{
    double best = 1e300;
    for (int r = 0; r < rounds; ++r) {
        long calls = 0;
        const Clock::time_point start = Clock::now();
        Clock::time_point now = start;
        do {
            for (int i = 0; i < 16; ++i)
                f();
            calls += 16;
            now = Clock::now();
        } while (std::chrono::duration<double, std::milli>(now - start).count() < rounds_ms);
        best = std::min(best, std::chrono::duration<double, std::nano>(now - start).count() / calls);
    }
    return best;
}

// cJSON's allocations, counted through its hooks. (With hooks of its own
// cJSON grows a printed text by allocating anew rather than by realloc, so
// the counts are a little above what the default allocator sees.)
struct Heap {
    long allocations = 0;
    size_t held = 0, peak = 0;
};
Heap heap;
constexpr size_t kHeader = 16; // each block's size, kept in front of it

void *counting_malloc(size_t size)
{
    auto *block = static_cast<unsigned char *>(malloc(size + kHeader));
    if (block == nullptr)
        return nullptr;
    memcpy(block, &size, sizeof size);
    ++heap.allocations;
    heap.held += size;
    heap.peak = std::max(heap.peak, heap.held);
    return block + kHeader;
}

void counting_free(void *p)
{
    if (p == nullptr)
        return;
    unsigned char *block = static_cast<unsigned char *>(p) - kHeader;
    size_t size;
    memcpy(&size, block, sizeof size);
    heap.held -= size;
    free(block);
}

// What one call of `f` allocates.
template <typename F>
Heap counted(F &&f)
{
    cJSON_Hooks hooks{counting_malloc, counting_free};
    cJSON_InitHooks(&hooks);
    heap = Heap{};
    f();
    const Heap used = heap;
    cJSON_InitHooks(nullptr);
    return used;
}

double median(std::vector<double> v)
{
    if (v.empty())
        return 0;
    std::sort(v.begin(), v.end());
    return v.size() % 2 != 0 ? v[v.size() / 2] : (v[v.size() / 2 - 1] + v[v.size() / 2]) / 2;
}

} // namespace

int main(int argc, char **argv)
{
    const char *filter = nullptr;
    for (int i = 1; i < argc; ++i) {
        if (strcmp(argv[i], "--filter") == 0 && i + 1 < argc) {
            filter = argv[++i];
        } else if (strcmp(argv[i], "--quick") == 0) {
            rounds_ms = 0.5;
            rounds = 2;
        } else {
            fprintf(stderr, "usage: middleware_ratios [--filter TEXT] [--quick]\n");
            return 2;
        }
    }
    std::vector<char> out(kBuffer);
    double render = 0, print = 0, set = 0, parse = 0;
    long renderAllocations = 0, setAllocations = 0;
    size_t renderPeak = 0, setPeak = 0;
    std::vector<double> renderRatios, setRatios;
    printf("%-46s %9s %9s %6s %6s %7s   %9s %9s %6s %6s %7s\n", "document", "render", "print", "ratio", "allocs",
           "peak", "set", "parse", "ratio", "allocs", "peak");
    for (const CatalogEntry *entry : catalog_entries()) {
        if (entry->page == nullptr || (filter != nullptr && strstr(entry->name, filter) == nullptr))
            continue;
        const PageOps &page = *entry->page;
        std::vector<unsigned char> state(page.stateSize), scratch(page.stateSize);
        page.initial(state.data());
        if (page.render(state.data(), out.data(), kBuffer) != 0)
            return 1;
        const std::string text = out.data();
        cJSON *tree = cJSON_Parse(text.c_str());

        // A capability page tokenizes its record: render a fresh copy each time.
        const double r = time_ns([&] {
            memcpy(scratch.data(), state.data(), state.size());
            page.render(scratch.data(), out.data(), kBuffer);
        });
        const double p = time_ns([&] {
            char *printed = cJSON_Print(tree);
            cJSON_free(printed);
        });
        const Heap rh = counted([&] {
            memcpy(scratch.data(), state.data(), state.size());
            page.render(scratch.data(), out.data(), kBuffer);
        });
        render += r;
        print += p;
        renderAllocations += rh.allocations;
        renderPeak = std::max(renderPeak, rh.peak);
        renderRatios.push_back(r / p);
        printf("%-46s %7.1fus %7.1fus %6.2f %6ld %6.1fK", entry->name, r / 1000, p / 1000, r / p, rh.allocations,
               rh.peak / 1024.0);

        if (page.set != nullptr) {
            const double s = time_ns([&] {
                page.set(state.data(), text.data(), static_cast<int32_t>(text.size()), out.data(), kBuffer);
            });
            const double q = time_ns([&] { cJSON_Delete(cJSON_ParseWithLength(text.data(), text.size())); });
            const Heap sh = counted(
                [&] { page.set(state.data(), text.data(), static_cast<int32_t>(text.size()), out.data(), kBuffer); });
            set += s;
            parse += q;
            setAllocations += sh.allocations;
            setPeak = std::max(setPeak, sh.peak);
            setRatios.push_back(s / q);
            printf("   %7.1fus %7.1fus %6.2f %6ld %6.1fK", s / 1000, q / 1000, s / q, sh.allocations, sh.peak / 1024.0);
        }
        printf("\n");
        cJSON_Delete(tree);
    }
    printf("\nrendering over %zu documents: %.2f times cJSON_Print alone (median document %.2f)\n",
           renderRatios.size(), render / print, median(renderRatios));
    printf("setting over %zu documents: %.2f times cJSON_Parse alone (median document %.2f)\n", setRatios.size(),
           parse > 0 ? set / parse : 0, median(setRatios));
    printf("allocations: %ld over every render, %ld over every set; the most held at once: %.1f KiB by a render, "
           "%.1f KiB by a set\n",
           renderAllocations, setAllocations, renderPeak / 1024.0, setPeak / 1024.0);
    return 0;
}
