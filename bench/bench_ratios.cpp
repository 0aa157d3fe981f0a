/*
 * What the library adds to cJSON, document by document: the serializer's
 * time beside cJSON_Print alone on an equal tree (the serializer's output
 * parsed back), and the set function's time beside cJSON_Parse alone of the
 * same body (the page's own document). Ratios per document, then the catalog's
 * totals (sum over sum) and median.
 *
 *   middleware_ratios [--filter TEXT] [--quick]
 */
#include "catalog.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
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
    std::vector<double> renderRatios, setRatios;
    printf("%-46s %9s %9s %6s   %9s %9s %6s\n", "document", "render", "print", "ratio", "set", "parse", "ratio");
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
        render += r;
        print += p;
        renderRatios.push_back(r / p);
        printf("%-46s %7.1fus %7.1fus %6.2f", entry->name, r / 1000, p / 1000, r / p);

        if (page.set != nullptr) {
            const double s = time_ns([&] {
                page.set(state.data(), text.data(), static_cast<int32_t>(text.size()), out.data(), kBuffer);
            });
            const double q = time_ns([&] { cJSON_Delete(cJSON_ParseWithLength(text.data(), text.size())); });
            set += s;
            parse += q;
            setRatios.push_back(s / q);
            printf("   %7.1fus %7.1fus %6.2f", s / 1000, q / 1000, s / q);
        }
        printf("\n");
        cJSON_Delete(tree);
    }
    printf("\nrendering over %zu documents: %.2f times cJSON_Print alone (median document %.2f)\n",
           renderRatios.size(), render / print, median(renderRatios));
    printf("setting over %zu documents: %.2f times cJSON_Parse alone (median document %.2f)\n", setRatios.size(),
           parse > 0 ? set / parse : 0, median(setRatios));
    return 0;
}
