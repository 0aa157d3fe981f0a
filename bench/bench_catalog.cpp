/*
 * Benchmarks every document of the catalog: time per call and bytes of the
 * printed document (reported as bytes per second and as the "bytes" counter).
 */
#include "catalog.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace {

void render_entry(benchmark::State &state, const CatalogEntry *entry)
{
    std::vector<char> buffer(4 * 1024 * 1024);
    const int32_t size = static_cast<int32_t>(buffer.size());
    if (entry->render(buffer.data(), size) != 0) {
        state.SkipWithError("render failed");
        return;
    }
    const size_t bytes = strlen(buffer.data());
    for (auto _ : state) {
        int32_t rc = entry->render(buffer.data(), size);
        benchmark::DoNotOptimize(rc);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.counters["bytes"] = static_cast<double>(bytes);
}

} // namespace

int main(int argc, char **argv)
{
    for (const CatalogEntry *entry : catalog_entries())
        benchmark::RegisterBenchmark(entry->name, render_entry, entry);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
