#include "fuzz_common.h"

#include <cstdio>
#include <map>
#include <cstring>
#include <utility>

namespace fuzz {

namespace {

// The address ranges this process has mapped, read once.
const std::vector<std::pair<uintptr_t, uintptr_t>> &mapped()
{
    static const std::vector<std::pair<uintptr_t, uintptr_t>> ranges = [] {
        std::vector<std::pair<uintptr_t, uintptr_t>> out;
        FILE *maps = fopen("/proc/self/maps", "r");
        unsigned long low = 0, high = 0;
        char line[512];
        while (maps != nullptr && fgets(line, sizeof line, maps) != nullptr)
            if (sscanf(line, "%lx-%lx", &low, &high) == 2)
                out.emplace_back(low, high);
        if (maps != nullptr)
            fclose(maps);
        return out;
    }();
    return ranges;
}

bool is_address(uintptr_t v)
{
    for (const auto &[low, high] : mapped())
        if (v >= low && v < high)
            return true;
    return false;
}

// Records whose pointers may be NULL in the sample: every pointer member is
// kept as the sample has it (the heuristic below only sees set pointers). A
// caller passes valid pointers or NULL; the bytes around them are the
// fuzzer's.
struct PointerMembers {
    const char *page;
    std::vector<size_t> offsets;
};

// The pointers of a fisheye display mode: its stream slots and its event
// stream.
template <typename Mode>
void mode_pointers(std::vector<size_t> &out, size_t at)
{
    for (size_t s = 0; s < sizeof(Mode::streams) / sizeof(Mode::streams[0]); ++s)
        out.push_back(at + offsetof(Mode, streams) + s * sizeof(void *));
    out.push_back(at + offsetof(Mode, event));
}

std::vector<size_t> fisheye_pointers()
{
    using R = video_fisheye_video_general_record;
    std::vector<size_t> out;
    mode_pointers<fisheye_mode_2_streams>(out, offsetof(R, mode1O));
    mode_pointers<fisheye_mode_2_streams>(out, offsetof(R, mode1P));
    mode_pointers<fisheye_mode_2_streams>(out, offsetof(R, mode2P));
    mode_pointers<fisheye_mode_4_streams>(out, offsetof(R, mode4R));
    mode_pointers<fisheye_mode_4_streams>(out, offsetof(R, mode1O3R));
    mode_pointers<fisheye_mode_4_streams>(out, offsetof(R, mode1P3R));
    mode_pointers<fisheye_mode_5_streams>(out, offsetof(R, mode1O1P3R));
    return out;
}

// The general capability page's state is its entry count and the entries,
// each led by its section pointer (NULL: under the root).
std::vector<size_t> capability_group_pointers(size_t stateSize)
{
    struct Layout {
        int32_t count;
        cap_entry entries[1];
    };
    std::vector<size_t> out;
    for (size_t at = offsetof(Layout, entries); at + sizeof(cap_entry) <= stateSize; at += sizeof(cap_entry))
        out.push_back(at + offsetof(cap_entry, group));
    return out;
}

const std::vector<PointerMembers> &pointer_members()
{
    static const std::vector<PointerMembers> all = {
        {"get_ptz_control_json",
         {offsetof(ptz_control_record, tour), offsetof(ptz_control_record, scan), offsetof(ptz_control_record, position),
          offsetof(ptz_control_record, threeDPositionEnable), offsetof(ptz_control_record, dehumidifyEnable),
          offsetof(ptz_control_record, pattern)}},
        {"get_video_fisheye_video_general_json", fisheye_pointers()},
        {"get_cap_common_json", capability_group_pointers(catalog_find("get_cap_common_json")->page->stateSize)},
    };
    return all;
}

} // namespace

std::vector<const CatalogEntry *> pages(bool settableOnly, const char *prefix)
{
    std::vector<const CatalogEntry *> out;
    for (const CatalogEntry *e : catalog_entries())
        if (e->page != nullptr && (!settableOnly || e->page->set != nullptr) &&
            strncmp(e->name, prefix, strlen(prefix)) == 0)
            out.push_back(e);
    return out;
}

const CatalogEntry *pick(const std::vector<const CatalogEntry *> &candidates, const uint8_t *data, size_t size,
                         const uint8_t **rest, size_t *restSize, bool *fullTexts)
{
    const uint8_t *newline = static_cast<const uint8_t *>(memchr(data, '\n', size));
    const size_t nameLength = newline != nullptr ? static_cast<size_t>(newline - data) : 0;
    *rest = newline != nullptr ? newline + 1 : data;
    *restSize = size - (newline != nullptr ? nameLength + 1 : 0);
    std::string name(reinterpret_cast<const char *>(data), nameLength);
    static const std::string kFull = " full";
    const bool full = name.size() > kFull.size() && name.compare(name.size() - kFull.size(), kFull.size(), kFull) == 0;
    if (fullTexts != nullptr) {
        *fullTexts = full;
        if (full)
            name.resize(name.size() - kFull.size());
    }
    uint32_t hash = 2166136261u;
    for (const CatalogEntry *e : candidates)
        if (name == e->name)
            return e;
    for (char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    return candidates[hash % candidates.size()];
}

void fill_state(const CatalogEntry &entry, std::vector<unsigned char> &state, const uint8_t *bytes, size_t size)
{
    const PageOps &page = *entry.page;
    state.assign(page.stateSize, 0);
    page.initial(state.data());
    static std::map<const PageOps *, std::vector<size_t>> pointers; // where each page's sample holds addresses
    auto found = pointers.find(&page);
    if (found == pointers.end()) {
        std::vector<size_t> at;
        for (size_t i = 0; i + sizeof(uintptr_t) <= state.size(); i += alignof(void *)) {
            uintptr_t word;
            memcpy(&word, state.data() + i, sizeof word);
            if (word != 0 && is_address(word))
                at.push_back(i);
        }
        found = pointers.emplace(&page, at).first;
    }
    const std::vector<unsigned char> sample = state;
    memcpy(state.data(), bytes, size < state.size() ? size : state.size());
    for (size_t at : found->second)
        memcpy(state.data() + at, sample.data() + at, sizeof(uintptr_t));
    for (const PointerMembers &p : pointer_members())
        if (strcmp(p.page, entry.name) == 0)
            for (size_t at : p.offsets)
                memcpy(state.data() + at, sample.data() + at, sizeof(void *));
}

} // namespace fuzz
