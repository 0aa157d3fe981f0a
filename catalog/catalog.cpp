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

const CatalogEntry *catalog_find(const char *name)
{
    for (const CatalogEntry *entry : catalog_entries())
        if (strcmp(entry->name, name) == 0)
            return entry;
    return nullptr;
}
