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

const CatalogEntry *catalog_find(const char *name)
{
    for (const CatalogEntry *entry : catalog_entries())
        if (strcmp(entry->name, name) == 0)
            return entry;
    return nullptr;
}
