// The library keeps no state: every page rendered from 8 threads at once gives
// each thread the single-threaded text, and set functions on distinct records
// run in parallel. Built with the thread sanitizer in the test command.
#include "catalog.h"
#include "support.h"

#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 8;
constexpr int32_t kBuffer = 1 << 20;

struct Page {
    const CatalogEntry *entry;
    std::string text; // rendered alone, before any thread starts
};

std::vector<Page> pages()
{
    std::vector<Page> out;
    std::vector<char> buffer(kBuffer);
    for (const CatalogEntry *e : catalog_entries()) {
        if (e->page == nullptr)
            continue;
        std::vector<unsigned char> state(e->page->stateSize);
        e->page->initial(state.data());
        EXPECT_EQ(e->page->render(state.data(), buffer.data(), kBuffer), 0) << e->name;
        out.push_back({e, buffer.data()});
    }
    return out;
}

TEST(Concurrency, EveryPageRenderedFromEightThreadsAtOnce)
{
    const std::vector<Page> all = pages();
    std::vector<std::vector<std::string>> seen(kThreads);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            std::vector<char> buffer(kBuffer);
            // Each thread walks the catalog from another place, so that
            // different pages and the same page run side by side.
            for (size_t k = 0; k < all.size(); ++k) {
                const Page &p = all[(k + static_cast<size_t>(t) * all.size() / kThreads) % all.size()];
                std::vector<unsigned char> state(p.entry->page->stateSize);
                p.entry->page->initial(state.data()); // capability pages tokenize their own copy
                p.entry->page->render(state.data(), buffer.data(), kBuffer);
                seen[t].push_back(buffer.data());
            }
        });
    }
    for (std::thread &th : threads)
        th.join();
    for (int t = 0; t < kThreads; ++t)
        for (size_t k = 0; k < all.size(); ++k)
            EXPECT_EQ(seen[t][k], all[(k + static_cast<size_t>(t) * all.size() / kThreads) % all.size()].text)
                << "thread " << t << ", " << all[(k + static_cast<size_t>(t) * all.size() / kThreads) % all.size()].entry->name;
}

TEST(Concurrency, SetRequestsOnDistinctRecordsInParallel)
{
    const std::vector<Page> all = pages();
    std::vector<int> failures(kThreads, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            std::vector<char> reply(4096);
            for (const Page &p : all) {
                if (p.entry->page->set == nullptr)
                    continue;
                std::vector<unsigned char> state(p.entry->page->stateSize);
                p.entry->page->initial(state.data());
                const std::vector<unsigned char> before = state;
                // The page's own document applies and changes nothing; an
                // unknown key is refused and changes nothing.
                if (p.entry->page->set(state.data(), p.text.data(), static_cast<int32_t>(p.text.size()), reply.data(), 4096) != 0)
                    ++failures[t];
                static const char unknown[] = "{\"zzNoSuchKey\": 1}";
                if (p.entry->page->set(state.data(), unknown, sizeof unknown - 1, reply.data(), 4096) != -1)
                    ++failures[t];
                if (state != before)
                    ++failures[t];
            }
        });
    }
    for (std::thread &th : threads)
        th.join();
    for (int t = 0; t < kThreads; ++t)
        EXPECT_EQ(failures[t], 0) << "thread " << t;
}

} // namespace
