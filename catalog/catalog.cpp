#include "catalog.h"

#include <cstring>
#include <iterator>

namespace {
const CatalogGroup *const groups[] = {
    &catalog_core,          &catalog_system,        &catalog_network,     &catalog_audio_storage,
    &catalog_traffic,       &catalog_ptz,           &catalog_camera,      &catalog_video,
    &catalog_event_actions, &catalog_event_sources, &catalog_iot_devices, &catalog_iot_actions,
    &catalog_capability,    &catalog_vca,           &catalog_lpr,
};
} // namespace

std::vector<const CatalogGroup *> catalog_groups()
{
    return std::vector<const CatalogGroup *>(std::begin(groups), std::end(groups));
}

std::vector<const CatalogEntry *> catalog_entries()
{
    std::vector<const CatalogEntry *> all;
    for (const CatalogGroup *group : groups)
        for (size_t i = 0; i < group->count; ++i)
            all.push_back(&group->entries[i]);
    return all;
}

const mw::PageRow *catalog_row(const CatalogEntry &entry)
{
    return entry.page != nullptr ? mw::find_page(entry.name) : nullptr;
}

const char *catalog_read_only(const CatalogEntry &entry)
{
    const mw::PageRow *row = catalog_row(entry);
    return row != nullptr ? row->readOnly : nullptr;
}

int32_t catalog_render_by_table(const CatalogEntry &entry, void *state, char *dst, int32_t dstSize)
{
    const mw::PageRow *row = catalog_row(entry);
    if (row == nullptr)
        return -1;
    void *inputs[2] = {nullptr, nullptr};
    entry.inputs(state, inputs);
    return mw::render(inputs, dst, dstSize, *row->page);
}

cJSON *catalog_schema_of_every_state(const CatalogEntry &entry, void *state)
{
    const mw::PageRow *row = catalog_row(entry);
    if (row == nullptr)
        return nullptr;
    void *inputs[2] = {nullptr, nullptr};
    entry.inputs(state, inputs);
    return mw::schema_of_every_state(*row->page, row->name, inputs);
}

namespace {

// An archive that fills every text member it meets in a state to its whole
// array, without a NUL: each member with a byte of its own, so that a text
// shown under the wrong key shows. Only arrays inside the state are filled
// (not texts behind its pointers, nor the library's own tables).
class FillTexts final : public mw::Archive, public mw::Items {
public:
    FillTexts(unsigned char *state, size_t size) : begin_(state), end_(state + size) {}
    size_t filled = 0;

    void text(const char *, char *field, size_t capacity, bool) override { fill(field, capacity); }
    void computed_text(const char *, const char *text, size_t capacity) override
    {
        if (capacity != SIZE_MAX)
            fill(const_cast<char *>(text), capacity);
    }
    void nested(const char *, mw::Fn<mw::Archive &> f) override { f(*this); }
    void items(const char *, const char *, mw::Fn<mw::Items &> f) override { f(*this); }
    void event_types(int32_t, mw::Fn<mw::Archive &, int32_t> f) override
    {
        for (int32_t type = 0; type <= mw::kLastAlarmEventType; ++type)
            f(*this, type);
    }
    void only_when(bool cond, uint8_t, mw::Fn<mw::Archive &> f) override
    {
        if (cond)
            f(*this);
    }
    void indexed(int32_t, mw::Fn<mw::Archive &> f) override { f(*this); }
    void placed(mw::Fn<mw::Archive &> f) override { f(*this); }

private:
    void fill(char *field, size_t capacity)
    {
        static const char kBytes[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
        auto *at = reinterpret_cast<unsigned char *>(field);
        if (at < begin_ || at + capacity > end_ || memchr(field, '\0', capacity) == nullptr)
            return; // outside the state, or filled already
        memset(field, kBytes[filled++ % (sizeof kBytes - 1)], capacity);
    }
    unsigned char *begin_, *end_;
};

} // namespace

void catalog_fill_texts(const CatalogEntry &entry, void *state)
{
    const mw::PageRow *row = catalog_row(entry);
    if (row == nullptr)
        return;
    // Filling can show slots that an empty text hid: walk the page until
    // nothing new is filled.
    for (;;) {
        FillTexts fill(static_cast<unsigned char *>(state), entry.page->stateSize);
        void *inputs[2] = {nullptr, nullptr};
        entry.inputs(state, inputs);
        row->page->walk(fill, inputs);
        if (fill.filled == 0)
            return;
    }
}

const CatalogEntry *catalog_find(const char *name)
{
    for (const CatalogEntry *entry : catalog_entries())
        if (strcmp(entry->name, name) == 0)
            return entry;
    return nullptr;
}
